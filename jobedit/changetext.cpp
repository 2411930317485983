#include "changetext.h"

#include "value/valuedescriptor.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/showntext.h"
#include "valuewidgets/suffixeddouble.h"

#include <QDateTime>
#include <QStringList>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

constexpr qsizetype longestText = 40;

QString Shortened(QString text)
{
    text = text.simplified();
    return text.size() > longestText ? text.left(longestText - 3) + QStringLiteral("...") : text;
}

QString ItemName(const TKE::ValueDescriptor& descriptor, const QString& key)
{
    const auto item = std::ranges::find(descriptor.items, key.toInt(), &TKE::SelectionItem::GetKey);
    return item != descriptor.items.end() ? item->GetName() : key;
}

// The unit that shows the frequency shortest.
QString Frequency(qint64 hertz)
{
    using TKE::SuffixedDouble;
    auto unit = SuffixedDouble::Hertz;
    for (const auto larger : {SuffixedDouble::Kilo, SuffixedDouble::Mega})
        if (std::abs(double(hertz)) >= std::pow(10.0, SuffixedDouble::GetExponent(larger)))
            unit = larger;
    return SuffixedDouble::ToText(hertz, unit, QLocale()) + ' ' + SuffixedDouble::GetUnitText(unit);
}

} // namespace

QString ChangeText::Of(const QString& path, const TKE::ValueDescriptor& descriptor, const QString& before,
                       const QString& after)
{
    const QString label = LabelOf(descriptor);
    return tr("%1: %2 -> %3", "label of a value, content before and after")
        .arg(label.isEmpty() ? path.section('/', -1) : label, ShownOf(descriptor, before), ShownOf(descriptor, after));
}

QString ChangeText::LabelOf(const TKE::ValueDescriptor& descriptor)
{
    QString label = descriptor.label.trimmed();
    while (label.endsWith(':') || label.endsWith(' '))
        label.chop(1);
    return label;
}

QString ChangeText::ShownOf(const TKE::ValueDescriptor& descriptor, const QString& stored)
{
    using TKE::ValueKind;
    const auto withUnit = [&](const QString& number)
    { return descriptor.unit.isEmpty() ? number : number + ' ' + descriptor.unit; };
    switch (descriptor.kind)
    {
    case ValueKind::Bool:
        return stored == QLatin1String("true") ? tr("on") : tr("off");
    case ValueKind::Int:
        return withUnit(stored);
    case ValueKind::Double:
        return withUnit(TKE::Decimal::ToText(stored.toDouble(), -1, QLocale()));
    case ValueKind::Frequency:
        return Frequency(stored.toLongLong());
    case ValueKind::DateTime:
    {
        const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
        return moment.isValid() ? moment.toString(TKE::ShownText::GetDateTimeFormat()) : tr("none");
    }
    case ValueKind::Selection:
    {
        QStringList names;
        for (const QString& key : stored.split(';', Qt::SkipEmptyParts))
            names << ItemName(descriptor, key);
        return names.isEmpty() ? tr("none") : Shortened(names.join(QStringLiteral(", ")));
    }
    case ValueKind::DoubleList:
        return stored.isEmpty() ? tr("none") : Shortened(stored.split(';').join(QStringLiteral(", ")));
    case ValueKind::Text:
        break;
    }
    return stored.isEmpty() ? tr("empty") : Shortened(stored);
}

} // namespace JOBEDIT
