#include "valuewidgets/showntext.h"

#include "value/value.h"
#include "valuewidgets/decimal.h"

namespace TKE
{

const QString& ShownText::GetDateTimeFormat()
{
    static const QString format = QStringLiteral("dd.MM.yyyy hh:mm:ss");
    return format;
}

QString ShownText::Of(const ValueBase& value, const QLocale& locale)
{
    switch (value.GetKind())
    {
    case ValueKind::Int:
        return Decimal::ToText(qint64(static_cast<const IntValue&>(value).GetValue()), 0, locale);
    case ValueKind::Double:
        return Decimal::ToText(static_cast<const DoubleValue&>(value).GetValue(), -1, locale);
    case ValueKind::Frequency:
        return Decimal::ToText(static_cast<const FrequencyValue&>(value).GetValue(), 0, locale);
    case ValueKind::DateTime:
        return static_cast<const DateTimeValue&>(value).GetValue().toString(GetDateTimeFormat());
    default:
        return value.GetText();
    }
}

std::optional<QString> ShownText::DateTimeToStored(const QString& text)
{
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return typed;
    // Read as UTC, whose clock skips no hour; the stored form has no zone.
    QDateTime read = QDateTime::fromString(typed + QStringLiteral("Z"), GetDateTimeFormat() + QStringLiteral("t"));
    if (!read.isValid())
        return {};
    return read.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss"));
}

} // namespace TKE
