#include "valuetexts.h"

#include "value/valueselection.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/showntext.h"

namespace JOBEDIT
{

namespace
{

QString ItemName(const TKE::ValueSelection& selection, const QString& stored)
{
    bool isKey = false;
    const TKE::SelectionItem* item = selection.FindItem(stored.toInt(&isKey));
    return isKey && item ? item->GetName() : stored;
}

QString Number(const TKE::ValueBase& value, double stored)
{
    const QLocale locale;
    if (value.GetKind() == TKE::ValueKind::Frequency)
    {
        const auto unit = TKE::GuiCentral::Instance().GetFrequencyUnit();
        return TKE::SuffixedDouble::ToText(qint64(stored), unit, locale) + u' ' +
               TKE::SuffixedDouble::GetUnitText(unit);
    }
    const QString number = TKE::Decimal::ToText(stored, -1, locale);
    const QString& unit = value.GetDescriptor().unit;
    return unit.isEmpty() ? number : number + u' ' + unit;
}

} // namespace

QString ValueTexts::OfStored(const TKE::ValueBase& value, const QString& stored)
{
    switch (value.GetKind())
    {
    case TKE::ValueKind::Bool:
        return stored == QLatin1StringView("true") ? tr("on") : tr("off");
    case TKE::ValueKind::Selection:
        return value.GetDescriptor().multiple ? stored
                                              : ItemName(static_cast<const TKE::ValueSelection&>(value), stored);
    case TKE::ValueKind::Int:
    case TKE::ValueKind::Double:
    case TKE::ValueKind::Frequency:
    {
        bool isNumber = false;
        const double number = stored.toDouble(&isNumber);
        return isNumber ? Number(value, number) : stored;
    }
    case TKE::ValueKind::DateTime:
    {
        const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
        return moment.isValid() ? moment.toString(TKE::ShownText::GetDateTimeFormat()) : stored;
    }
    case TKE::ValueKind::Text:
    case TKE::ValueKind::DoubleList:
        break;
    }
    return stored;
}

QString ValueTexts::Range(const TKE::ValueBase& value)
{
    const auto& [minimum, maximum] = std::tie(value.GetDescriptor().minimum, value.GetDescriptor().maximum);
    if (minimum && maximum)
        return tr("%1 to %2").arg(Number(value, *minimum), Number(value, *maximum));
    if (minimum)
        return tr("at least %1").arg(Number(value, *minimum));
    return maximum ? tr("at most %1").arg(Number(value, *maximum)) : QString();
}

QString ValueTexts::Label(const TKE::ValueBase& value)
{
    QString label = value.GetDescriptor().label;
    label.remove(u'&');
    if (label.endsWith(u':'))
        label.chop(1);
    return label.isEmpty() ? value.GetName() : label;
}

} // namespace JOBEDIT
