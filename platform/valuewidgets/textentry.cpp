#include "valuewidgets/textentry.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <limits>

namespace TKE
{

bool TextEntry::Concerns(const QEvent& event)
{
    switch (event.type())
    {
    case QEvent::KeyPress:
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::Timer:
    case QEvent::LocaleChange:
        return true;
    default:
        return false;
    }
}

bool TextEntry::IsEdited() const
{
    return IsPending() || Field().text() != m_shown;
}

bool TextEntry::Restores(QEvent& event)
{
    if (event.type() != QEvent::KeyPress || static_cast<QKeyEvent&>(event).key() != Qt::Key_Escape)
        return false;
    if (!IsEdited() && m_refusal.isEmpty())
        return false;
    event.accept();
    Restore();
    return true;
}

void TextEntry::Restore()
{
    if (GetBoundValue())
        ShowContent();
    else
        ShowText(m_shown);
}

bool TextEntry::EndsEdit(QEvent& event)
{
    switch (event.type())
    {
    case QEvent::KeyPress:
    {
        const int key = static_cast<QKeyEvent&>(event).key();
        if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !IsEdited())
            return false;
        event.accept(); // this Return is not meant for the default button
        return true;
    }
    case QEvent::FocusOut:
        return static_cast<QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
    case QEvent::LocaleChange:
        Restore();
        return false;
    default:
        return false;
    }
}

void TextEntry::WriteEdit()
{
    if (!GetBoundValue())
        return;
    if (!GetWidget()->isEnabled())
    {
        Restore(); // disabled while it was typed into
        return;
    }
    if (!IsEdited())
    {
        Accept();
        return;
    }
    const QPointer<QWidget> alive(GetWidget());
    QString reason;
    if (!Write(Field().text(), reason))
        Refuse(reason);
    else if (alive && GetBoundValue())
        ShowContent();
}

void TextEntry::ShowContent()
{
    ShowText(ContentText());
}

void TextEntry::ShowNothing()
{
    ShowText({});
}

void TextEntry::ShowText(const QString& text)
{
    Accept();
    QLineEdit& field = Field();
    if (field.text() != text)
    {
        const QSignalBlocker quiet(field);
        if (text.size() > field.maxLength())
            field.setMaxLength(std::numeric_limits<int>::max());
        field.setText(text);
    }
    m_shown = field.text();
}

void TextEntry::Refuse(const QString& reason)
{
    if (m_refusal.isEmpty())
    {
        m_toolTip = GetWidget()->toolTip();
        m_description = GetWidget()->accessibleDescription();
    }
    m_refusal = reason;
    Explain(reason, reason);
    OnRefused(reason);
}

void TextEntry::Accept()
{
    if (m_refusal.isEmpty())
        return;
    m_refusal.clear();
    Explain(m_toolTip, m_description);
}

void TextEntry::Explain(const QString& toolTip, const QString& description)
{
    QWidget* widget = GetWidget();
    widget->setToolTip(toolTip);
    widget->setAccessibleDescription(description); // tells readers
    widget->update();
}

void TextEntry::PaintRefusal() const
{
    if (m_refusal.isEmpty())
        return;
    QPainter painter(GetWidget());
    const bool isDark = GetWidget()->palette().color(QPalette::Base).lightness() < 128;
    painter.setPen(QPen(isDark ? QColor(255, 96, 96) : QColor(204, 0, 0), 2));
    painter.drawRect(GetWidget()->rect().adjusted(1, 1, -1, -1));
}

} // namespace TKE
