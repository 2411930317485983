#include "changetext.h"

#include "value/tree.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/showntext.h"
#include "valuewidgets/suffixeddouble.h"

#include <QStringList>

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

QString ItemName(const TKE::ValueSelection& selection, const QString& key)
{
    const TKE::SelectionItem* item = selection.FindItem(key.toInt());
    return item ? item->GetName() : key;
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

QString ChangeText::Of(const QString& path, const QString& before, const QString& after)
{
    const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(path);
    const QString label = value ? LabelOf(*value) : path.section('/', -1);
    const QString from = value ? ShownOf(*value, before) : Shortened(before);
    const QString to = value ? ShownOf(*value, after) : Shortened(after);
    return tr("%1: %2 -> %3", "label of a value, content before and after").arg(label, from, to);
}

QString ChangeText::LabelOf(const TKE::ValueBase& value)
{
    QString label = value.GetDescriptor().label.trimmed();
    while (label.endsWith(':') || label.endsWith(' '))
        label.chop(1);
    return label.isEmpty() ? value.GetName() : label;
}

QString ChangeText::ShownOf(const TKE::ValueBase& value, const QString& stored)
{
    using TKE::ValueKind;
    const QString& unit = value.GetDescriptor().unit;
    const auto withUnit = [&](const QString& number) { return unit.isEmpty() ? number : number + ' ' + unit; };
    switch (value.GetKind())
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
        const auto& selection = static_cast<const TKE::ValueSelection&>(value);
        QStringList names;
        for (const QString& key : stored.split(';', Qt::SkipEmptyParts))
            names << ItemName(selection, key);
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
