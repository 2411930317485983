#include "valuetexts.h"

#include "fieldtexts.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/showntext.h"
#include "valuewidgets/suffixeddouble.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>

namespace JOBEDIT
{

namespace
{

QString ItemName(const TKE::ValueDescriptor& descriptor, const QString& key)
{
    bool isNumber = false;
    const int number = key.toInt(&isNumber);
    const auto found = std::ranges::find(descriptor.items, number, &TKE::SelectionItem::GetKey);
    return isNumber && found != descriptor.items.end() ? found->GetName() : key;
}

QString Number(const TKE::ValueDescriptor& descriptor, double number)
{
    if (descriptor.kind == TKE::ValueKind::Frequency)
        return ValueTexts::OfFrequency(std::llround(number));
    const QString text = TKE::Decimal::ToText(number, -1, QLocale());
    return descriptor.unit.isEmpty() ? text : text + u' ' + descriptor.unit;
}

} // namespace

QString ValueTexts::OfFrequency(qint64 hertz)
{
    using TKE::SuffixedDouble;
    const double size = std::abs(double(hertz));
    const auto unit = size >= 1e9   ? SuffixedDouble::Giga
                      : size >= 1e6 ? SuffixedDouble::Mega
                      : size >= 1e3 ? SuffixedDouble::Kilo
                                    : SuffixedDouble::Hertz;
    return SuffixedDouble::ToText(hertz, unit, QLocale()) + u' ' + SuffixedDouble::GetUnitText(unit);
}

QString ValueTexts::OfStored(const TKE::ValueDescriptor& descriptor, const QString& stored)
{
    const auto each = [&](QLatin1StringView separator, const auto& textOf)
    {
        QStringList texts = stored.split(u';', Qt::SkipEmptyParts);
        for (QString& text : texts)
            text = textOf(descriptor, text);
        return texts.join(separator);
    };
    const auto number = [](const TKE::ValueDescriptor& of, const QString& text)
    {
        bool isNumber = false;
        const double read = text.toDouble(&isNumber);
        return isNumber ? Number(of, read) : text;
    };
    switch (descriptor.kind)
    {
    case TKE::ValueKind::Bool:
        return stored == QLatin1StringView("true") ? tr("on") : tr("off");
    case TKE::ValueKind::Selection:
        return each(QLatin1StringView(", "), ItemName);
    case TKE::ValueKind::Int:
    case TKE::ValueKind::Double:
    case TKE::ValueKind::Frequency:
        return number(descriptor, stored);
    case TKE::ValueKind::DoubleList:
        return each(QLatin1StringView("; "), number); // a comma may stand in the numbers
    case TKE::ValueKind::DateTime:
    {
        const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
        return moment.isValid() ? moment.toString(TKE::ShownText::GetDateTimeFormat()) : stored;
    }
    case TKE::ValueKind::Text:
        break;
    }
    return stored;
}

QString ValueTexts::Range(const TKE::ValueBase& value)
{
    const auto& [minimum, maximum] = std::tie(value.GetDescriptor().minimum, value.GetDescriptor().maximum);
    if (minimum && maximum)
        return tr("%1 to %2").arg(Number(value.GetDescriptor(), *minimum), Number(value.GetDescriptor(), *maximum));
    if (minimum)
        return tr("at least %1").arg(Number(value.GetDescriptor(), *minimum));
    return maximum ? tr("at most %1").arg(Number(value.GetDescriptor(), *maximum)) : QString();
}

QString ValueTexts::Label(const TKE::ValueBase& value)
{
    const QString label = FieldTexts::Label(value.GetDescriptor());
    return label.isEmpty() ? value.GetName() : label;
}

} // namespace JOBEDIT
