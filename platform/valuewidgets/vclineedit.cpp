#include "valuewidgets/vclineedit.h"

#include "application/errorhandler.h"
#include "value/value.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/numericvalue.h"
#include "valuewidgets/showntext.h"

namespace TKE
{

VCLineEdit::VCLineEdit(QWidget* parent, const QString& name) : QLineEdit(parent), TextEntry(this)
{
    setObjectName(name);
}

void VCLineEdit::SetFormat(int digits, int decimals, const QString& prefix, const QString& suffix, double factor)
{
    if (!(factor > 0))
        factor = 1.0;
    m_format = std::make_unique<const Format>(Format{digits, std::clamp(decimals, 0, 15), prefix, suffix, factor});
    if (GetBoundValue())
        ShowContent();
}

void VCLineEdit::SetFrequencyUnit(SuffixedDouble::ESuffix unit)
{
    if (unit == m_unit)
        return;
    m_unit = unit;
    if (GetBoundValue())
        ShowContent();
}

bool VCLineEdit::event(QEvent* event)
{
    return Handle(event, [&] { return QLineEdit::event(event); });
}

void VCLineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    PaintRefusal();
}

bool VCLineEdit::CanShow(const ValueBase& value) const
{
    return NumericValue::Is(value) || value.GetKind() == ValueKind::Text || value.GetKind() == ValueKind::DateTime;
}

QString VCLineEdit::ContentText() const
{
    const ValueBase& value = *GetBoundValue();
    if (m_format && NumericValue::Is(value))
        return NumberAsText(NumericValue::Get(value));
    if (value.GetKind() == ValueKind::Frequency)
        return SuffixedDouble::ToText(static_cast<const FrequencyValue&>(value).GetValue(), m_unit, locale());
    return ShownText::Of(value, locale());
}

QString VCLineEdit::NumberAsText(double stored) const
{
    QString number = Decimal::ToText(std::abs(stored * m_format->factor), m_format->decimals, locale());
    const qsizetype width = m_format->digits + (m_format->decimals > 0 ? m_format->decimals + 1 : 0);
    number = number.rightJustified(width, QString(locale().zeroDigit()).front());
    return m_format->prefix + (stored < 0 ? locale().negativeSign() : QString()) + number + m_format->suffix;
}

bool VCLineEdit::Write(const QString& typed, QString& reason)
{
    ValueBase& value = *GetBoundValue();
    switch (value.GetKind())
    {
    case ValueKind::Int:
    case ValueKind::Double:
    case ValueKind::Frequency:
        return WriteNumber(value, typed, reason);
    case ValueKind::DateTime:
        if (const auto stored = ShownText::DateTimeToStored(typed))
            return value.SetStoredText(*stored, this, &reason);
        reason = tr("\"%1\" is not a date and time (dd.mm.yyyy hh:mm:ss)").arg(typed);
        return false;
    default:
        return value.SetFromText(typed, this, &reason);
    }
}

bool VCLineEdit::WriteNumber(ValueBase& value, QString typed, QString& reason)
{
    double stored = 0;
    if (m_format)
    {
        typed = typed.trimmed();
        if (typed.startsWith(m_format->prefix))
            typed.remove(0, m_format->prefix.size());
        if (typed.endsWith(m_format->suffix))
            typed.chop(m_format->suffix.size());
        return NumericValue::Read(value, typed, m_format->factor, locale(), stored, reason) &&
               NumericValue::Set(value, stored, this, reason);
    }
    if (value.GetKind() != ValueKind::Frequency)
        return NumericValue::Read(value, typed, 1.0, locale(), stored, reason) &&
               NumericValue::Set(value, stored, this, reason);
    qint64 hertz = 0;
    const double factor = std::pow(10.0, -SuffixedDouble::GetExponent(m_unit));
    return SuffixedDouble::FromText(typed, m_unit, locale(), hertz, reason) &&
           NumericValue::IsInRange(value, double(hertz), factor, locale(), reason) &&
           static_cast<FrequencyValue&>(value).SetValue(hertz, this, &reason);
}

void VCLineEdit::OnRefused(const QString& reason)
{
    if (!m_suppressMessage)
        ErrorHandler::Interface().Report(Severity::Warning, reason, GetBoundValue()->GetPathName());
}

} // namespace TKE
