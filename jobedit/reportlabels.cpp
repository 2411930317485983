#include "reportlabels.h"

#include "fieldtexts.h"
#include "jobmodel/journalpause.h"
#include "valuetexts.h"
#include "valuewidgets/showntext.h"

#include <QCoreApplication>
#include <cmath>

namespace JOBEDIT
{

namespace
{

QString WithoutUnit(QString label)
{
    // The unit of the panel's field is not that of the document.
    for (const char* unit : {"[Hz]", "[kHz]", "[MHz]"})
        label.remove(QLatin1StringView(unit));
    while (label.endsWith(':') || label.endsWith(' '))
        label.chop(1);
    return label;
}

} // namespace

QString ReportLabels::LabelOf(const TKE::ValueDescriptor& descriptor)
{
    Texts& texts = TextsOf(descriptor);
    if (!texts.labelKnown)
    {
        texts.labelKnown = true;
        if (!descriptor.label.isEmpty())
            texts.label = WithoutUnit(FieldTexts::Label(descriptor));
        else if (!descriptor.description.isEmpty())
            texts.label = descriptor.description.left(1).toUpper() + descriptor.description.mid(1);
    }
    return texts.label;
}

ReportLabels::Shown ReportLabels::Of(const TKE::ValueBase& value) const
{
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    switch (value.GetKind())
    {
    case TKE::ValueKind::Bool:
        return {value.GetBool() ? tr("on") : tr("off"), {}};
    case TKE::ValueKind::Frequency:
    {
        const QString text = ValueTexts::OfFrequency(static_cast<const TKE::FrequencyValue&>(value).GetValue());
        const qsizetype blank = text.lastIndexOf(' ');
        return {text.left(blank), text.mid(blank + 1)};
    }
    case TKE::ValueKind::DoubleList:
    {
        QStringList numbers;
        const bool isFrequency = descriptor.unit == QLatin1StringView("Hz");
        for (const double number : static_cast<const TKE::DoubleListValue&>(value).GetValue())
            numbers << (isFrequency && number == std::rint(number) ? ValueTexts::OfFrequency(std::llround(number))
                                                                   : m_locale.toString(number, 'g', 15));
        return {numbers.join("; "), isFrequency ? QString() : descriptor.unit};
    }
    case TKE::ValueKind::Selection:
    {
        const auto& selection = static_cast<const TKE::ValueSelection&>(value);
        if (!selection.IsMultiple())
            return {value.GetText(), descriptor.unit};
        QStringList names;
        for (const int key : selection.GetKeys())
        {
            const TKE::SelectionItem* item = selection.FindItem(key);
            names << (item ? item->GetName() : QString::number(key));
        }
        return {names.join(", "), descriptor.unit};
    }
    default:
        return {TKE::ShownText::Of(value, m_locale), descriptor.unit};
    }
}

QString ReportLabels::DefaultOf(const TKE::ValueDescriptor& descriptor)
{
    Texts& texts = TextsOf(descriptor);
    if (!texts.defaultKnown)
    {
        texts.defaultKnown = true;
        // A value in a tree of its own, of which the journal hears nothing: showing is no edit.
        TKE::Tree scratch;
        const TKE::JournalPause pause(scratch);
        const Shown shown = Of(*scratch.CreateValue(u"value", descriptor));
        texts.shownDefault = shown.unit.isEmpty() ? shown.text : shown.text + ' ' + shown.unit;
    }
    return texts.shownDefault;
}

bool ReportLabels::IsChanged(const TKE::ValueBase& value)
{
    m_stored.clear();
    value.AppendStored(m_stored);
    return m_stored != TextsOf(value.GetDescriptor()).storedDefault;
}

ReportLabels::Texts& ReportLabels::TextsOf(const TKE::ValueDescriptor& descriptor)
{
    const auto found = m_texts.find(&descriptor);
    if (found != m_texts.end())
        return *found;
    return *m_texts.insert(&descriptor, {.storedDefault = descriptor.defaultText.toStdString()});
}

} // namespace JOBEDIT
