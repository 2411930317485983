#include "changetext.h"

#include "value/valuedescriptor.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/showntext.h"
#include "valuewidgets/suffixeddouble.h"
#include "valuewidgets/valuelink.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
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

// As it stands in a sentence: without what sets it off from its field, and without mnemonic.
QString Plain(QString label)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(?=.)"));
    label = label.trimmed().remove(mnemonic);
    while (label.endsWith(':') || label.endsWith(' '))
        label.chop(1);
    return label;
}

QString LabelOf(const QWidget& field)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&field))
        return Plain(button->text());
    if (const auto* box = qobject_cast<const QGroupBox*>(&field); box && !box->title().isEmpty())
        return Plain(box->title());
    const QWidget* parent = field.parentWidget();
    for (const QLabel* label : parent ? parent->findChildren<QLabel*>() : QList<QLabel*>())
        if (label->buddy() && (label->buddy() == &field || label->buddy() == field.focusProxy()))
            return Plain(label->text());
    return Plain(field.accessibleName());
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

QString ChangeText::Of(const QString& path, QString label, const TKE::ValueDescriptor& descriptor,
                       const QString& before, const QString& after)
{
    if (label.isEmpty())
        label = Plain(descriptor.label);
    return tr("%1: %2 -> %3", "label of a value, content before and after")
        .arg(label.isEmpty() ? path.section('/', -1) : label, ShownOf(descriptor, before), ShownOf(descriptor, after));
}

QString ChangeText::LabelOnScreen(const TKE::ValueBase& value)
{
    const QWidget* window = QApplication::activeWindow();
    for (QWidget* widget : window ? window->findChildren<QWidget*>() : QWidgetList())
    {
        const auto* link = dynamic_cast<const TKE::ValueLink*>(widget);
        if (link && link->GetBoundValue() == &value && widget->isVisible())
            if (QString label = LabelOf(*widget); !label.isEmpty())
                return label;
    }
    return {};
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
