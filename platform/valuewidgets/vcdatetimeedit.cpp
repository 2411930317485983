#include "valuewidgets/vcdatetimeedit.h"

#include "value/value.h"
#include "valuewidgets/showntext.h"

#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace TKE
{

namespace
{

// The clock of the editor is UTC, which skips no hour; a value's moment has no zone.
QDateTime OnEditorsClock(const QDateTime& moment)
{
    const QTime time = moment.time();
    return QDateTime(moment.date(), QTime(time.hour(), time.minute(), time.second()), Qt::UTC);
}

bool StartsWithDigit(const QString& text)
{
    return !text.isEmpty() && text.front().isDigit();
}

QDateTime Stepped(const QDateTime& moment, QDateTimeEdit::Section section, int steps)
{
    switch (section)
    {
    case QDateTimeEdit::YearSection:
        return moment.addYears(steps);
    case QDateTimeEdit::MonthSection:
        return moment.addMonths(steps);
    case QDateTimeEdit::DaySection:
        return moment.addDays(steps);
    case QDateTimeEdit::HourSection:
        return moment.addSecs(qint64(3600) * steps);
    case QDateTimeEdit::MinuteSection:
        return moment.addSecs(qint64(60) * steps);
    case QDateTimeEdit::SecondSection:
        return moment.addSecs(steps);
    default:
        return moment;
    }
}

} // namespace

VCDateTimeEdit::VCDateTimeEdit(QWidget* parent, const QString& name) : QDateTimeEdit(parent), ValueLink(this)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setKeyboardTracking(false);
    setTimeSpec(Qt::UTC);
    setDisplayFormat(ShownText::GetDateTimeFormat());
    setMinimumDateTime(QDateTime(QDate(100, 1, 1), QTime(0, 0), Qt::UTC)); // stands for "none"
}

bool VCDateTimeEdit::CanShow(const ValueBase& value) const
{
    return value.GetKind() == ValueKind::DateTime;
}

void VCDateTimeEdit::ShowContent()
{
    setSpecialValueText(tr("none"));
    Show(static_cast<const DateTimeValue*>(GetBoundValue())->GetValue());
}

void VCDateTimeEdit::ShowNothing()
{
    setSpecialValueText(QStringLiteral(" "));
    Show({});
}

void VCDateTimeEdit::Show(const QDateTime& moment)
{
    const QSignalBlocker quiet(this);
    setDateTime(moment.isValid() ? OnEditorsClock(moment) : minimumDateTime());
    m_shown = dateTime();
}

bool VCDateTimeEdit::IsTypedInto() const
{
    return text() != textFromDateTime(dateTime());
}

void VCDateTimeEdit::BeginAtNow()
{
    const QSignalBlocker quiet(this);
    setDateTime(OnEditorsClock(QDateTime::currentDateTime()));
}

void VCDateTimeEdit::stepBy(int steps)
{
    if (IsNone())
        BeginAtNow();
    else if (m_differential)
    {
        interpretText();
        const Section section = currentSection();
        setDateTime(Stepped(dateTime(), section, steps));
        setSelectedSection(section);
    }
    else
        QDateTimeEdit::stepBy(steps);
    OnEdited();
}

QAbstractSpinBox::StepEnabled VCDateTimeEdit::stepEnabled() const
{
    if (!GetBoundValue() || isReadOnly())
        return StepNone;
    return m_differential || IsNone() ? StepUpEnabled | StepDownEnabled : QDateTimeEdit::stepEnabled();
}

void VCDateTimeEdit::WriteEdit()
{
    ValueBase* value = GetBoundValue();
    if (!value || dateTime() == m_shown)
        return;
    if (!isEnabled())
    {
        ShowContent(); // disabled while it was typed into
        return;
    }
    m_shown = dateTime();
    if (!value->SetStoredText(m_shown.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")), this))
        ShowContent();
}

bool VCDateTimeEdit::event(QEvent* event)
{
    switch (event->type())
    {
    case QEvent::KeyPress:
        return HandleKey(static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
        return HandleLast(event);
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::Timer:
        return HoldWrites([&] { return QDateTimeEdit::event(event); });
    default:
        return QDateTimeEdit::event(event);
    }
}

bool VCDateTimeEdit::HandleKey(QKeyEvent* event)
{
    switch (event->key())
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return HandleLast(event);
    case Qt::Key_Escape:
        if (!GetBoundValue() || (!IsTypedInto() && dateTime() == m_shown))
            break;
        ShowContent();
        event->accept();
        return true;
    default:
        if (IsNone() && StartsWithDigit(event->text()))
            BeginAtNow();
        break;
    }
    return HoldWrites([&] { return QDateTimeEdit::event(event); });
}

bool VCDateTimeEdit::HandleLast(QEvent* event)
{
    return HoldWrites(
        [&]
        {
            const QPointer<QWidget> alive(this);
            const bool handled = QDateTimeEdit::event(event);
            if (alive)
                OnEdited();
            return handled;
        });
}

void VCDateTimeEdit::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QDateTimeEdit::wheelEvent(event);
    else
        event->ignore();
}

} // namespace TKE
