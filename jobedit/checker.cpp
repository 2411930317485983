#include "checker.h"

#include "fieldtexts.h"

#include <QDate>
#include <QTime>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

using Severity = TKE::FileError::Severity;

/// Ends of the keys of two values of one node, the first of which must not be more than the second. Periods of the day
/// are none of them: they may go on past midnight.
struct Pair
{
    QLatin1StringView lower;
    QLatin1StringView upper;
};
constexpr Pair boundPairs[] = {
    {QLatin1StringView("START_FREQUENCY"), QLatin1StringView("STOP_FREQUENCY")},
    {QLatin1StringView("StartFrequency"), QLatin1StringView("StopFrequency")},
    {QLatin1StringView("RangeStart"), QLatin1StringView("RangeStop")},
    {QLatin1StringView("MINFREQUENCY"), QLatin1StringView("MAXFREQUENCY")},
    {QLatin1StringView("BANDWIDTH_MIN"), QLatin1StringView("BANDWIDTH_MAX")},
    {QLatin1StringView("BANDWDTH_MIN"), QLatin1StringView("BANDWDTH_MAX")},
    {QLatin1StringView("BANDWIDTH_MINIMUM"), QLatin1StringView("BANDWIDTH_MAXIMUM")},
    {QLatin1StringView("MINBANDWIDTH"), QLatin1StringView("MAXBANDWIDTH")},
    {QLatin1StringView("MINBURSTLENGTH"), QLatin1StringView("MAXBURSTLENGTH")},
    {QLatin1StringView("MEMORY_FIRST"), QLatin1StringView("MEMORY_LAST")},
    {QLatin1StringView("FirstMemory"), QLatin1StringView("LastMemory")},
    {QLatin1StringView("DATEPERIOD_START"), QLatin1StringView("DATEPERIOD_STOP")},
};

bool IsDate(const TKE::ValueBase& value)
{
    return value.GetName().contains(QLatin1StringView("DATEPERIOD_"));
}

bool IsTime(const TKE::ValueBase& value)
{
    return value.GetName().contains(QLatin1StringView("TIMEPERIOD_"));
}

/// What is compared; nothing for an empty date.
std::optional<double> NumberOf(const TKE::ValueBase& value)
{
    switch (value.GetKind())
    {
    case TKE::ValueKind::Int:
        return static_cast<const TKE::IntValue&>(value).GetValue();
    case TKE::ValueKind::Double:
        return static_cast<const TKE::DoubleValue&>(value).GetValue();
    case TKE::ValueKind::Frequency:
        return double(static_cast<const TKE::FrequencyValue&>(value).GetValue());
    case TKE::ValueKind::Selection: // the key is the quantity
        return static_cast<const TKE::ValueSelection&>(value).GetCurrentKey();
    case TKE::ValueKind::Text:
        if (const QDate date = QDate::fromString(value.GetText(), Qt::ISODate); date.isValid())
            return double(date.toJulianDay());
        return {};
    default:
        return {};
    }
}

QString Shown(double number)
{
    return QLocale().toString(number, 'f', QLocale::FloatingPointShortest);
}

/// The label; a field without one is told by its key, too.
QString NameOf(const TKE::ValueBase& value)
{
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    return descriptor.label.isEmpty() && !descriptor.description.isEmpty()
               ? descriptor.description + QStringLiteral(" (") + value.GetName() + ')'
               : FieldTexts::Label(value);
}

/// "0 to 120 dB", as far as there are limits.
QString RangeOf(const TKE::ValueDescriptor& descriptor)
{
    const QString unit = descriptor.unit.isEmpty() ? QString() : ' ' + descriptor.unit;
    if (descriptor.minimum && descriptor.maximum)
        return Checker::tr("%1 to %2").arg(Shown(*descriptor.minimum), Shown(*descriptor.maximum)) + unit;
    return descriptor.minimum ? Checker::tr("at least %1").arg(Shown(*descriptor.minimum)) + unit
                              : Checker::tr("at most %1").arg(Shown(descriptor.maximum.value_or(0))) + unit;
}

bool IsKnown(const TKE::ValueSelection& selection, int key)
{
    // A panel may show a part of the items only; what the model knows is known.
    const auto& items = selection.GetDescriptor().items;
    return selection.FindItem(key) ||
           std::ranges::any_of(items, [&](const TKE::SelectionItem& item) { return item.GetKey() == key; });
}

/// What is wrong with a selection: keys that this version does not know are kept.
QString FaultOfSelection(const TKE::ValueSelection& selection)
{
    const auto& items = selection.GetDescriptor().items;
    if (items.empty())
        return {};
    const std::vector<int> keys = selection.IsMultiple() ? selection.GetKeys() : std::vector{selection.GetCurrentKey()};
    const auto unknown = std::ranges::find_if_not(keys, [&](int key) { return IsKnown(selection, key); });
    if (unknown == keys.end())
        return {};
    constexpr size_t mostNames = 8;
    QStringList names;
    for (size_t item = 0; item < std::min(items.size(), mostNames); ++item)
        names << items[item].GetName();
    if (items.size() > mostNames)
        names << QStringLiteral("...");
    return Checker::tr("No item has the number %1; there are: %2.").arg(*unknown).arg(names.join(QStringLiteral(", ")));
}

} // namespace

Checker::Checker(const TKE::Tree& tree, const TKE::JobModel& model) : m_tree(tree)
{
    for (const auto& group : model.GetGroups())
        for (const auto& parameter : group->GetParameters())
            if (parameter->IsDoubleList())
                m_lists.insert(&parameter->GetValueDescriptor(),
                               {std::max(parameter->GetColumnCount(), 1), parameter->GetRowCount()});
}

std::vector<Finding> Checker::CheckNode(const TKE::Node& node) const
{
    std::vector<Finding> findings;
    const auto add = [&](Severity severity, const TKE::ValueBase& value, const QString& text)
    {
        if (!text.isEmpty())
            findings.push_back({severity, value.GetPathName(), NameOf(value), text});
    };
    for (const auto& value : node.GetValues())
    {
        if (value->GetState() != TKE::stEnabled)
            continue;
        if (value->GetKind() == TKE::ValueKind::Selection)
            add(Severity::Warning, *value, FaultOfSelection(static_cast<const TKE::ValueSelection&>(*value)));
        else
            add(Severity::Error, *value, FaultOf(*value));
        add(Severity::Error, *value, FaultOfPair(*value));
    }
    return findings;
}

std::vector<Finding> Checker::CheckValues() const
{
    std::vector<Finding> findings;
    for (const TKE::Node* top : m_tree.GetTopNodes())
        CheckBelow(*top, findings);
    return findings;
}

void Checker::CheckBelow(const TKE::Node& node, std::vector<Finding>& findings) const
{
    std::ranges::move(CheckNode(node), std::back_inserter(findings));
    for (const auto& below : node.GetNodes())
        CheckBelow(*below, findings);
}

TKE::FileErrors Checker::CheckFile(const QString& fileName, const std::shared_ptr<const TKE::JobModel>& model,
                                   const TKE::JobFile::Progress& progress)
{
    // It is read twice.
    const auto half = [&](int number) -> TKE::JobFile::Progress
    {
        if (!progress)
            return {};
        return [&progress, number](qint64 done, qint64 all) { return progress(done + number * all, 2 * all); };
    };
    TKE::FileErrors errors = TKE::JobFile::Check(fileName, model, half(0));
    TKE::Tree tree;
    TKE::JobFile file(tree);
    file.SetModel(model);
    file.SetProgress(half(1));
    if (std::ranges::any_of(errors, &TKE::FileError::IsError) || !file.Load(fileName))
        return errors;
    TKE::FileErrors found;
    for (const Finding& finding : Checker(tree, *model).CheckValues())
        found.append({.severity = finding.severity,
                      .file = fileName,
                      .itemPath = finding.path,
                      .reason = finding.label + QStringLiteral(": ") + finding.text});
    errors += TKE::JobFile::Locate(std::move(found), fileName, *model);
    return errors;
}

QString Checker::FaultOf(const TKE::ValueBase& value) const
{
    switch (value.GetKind())
    {
    case TKE::ValueKind::Int:
    case TKE::ValueKind::Double:
    case TKE::ValueKind::Frequency:
        if (!value.GetDescriptor().Accepts(*NumberOf(value)))
            return tr("%1 is not permitted; permitted is: %2.")
                .arg(FieldTexts::Content(value), RangeOf(value.GetDescriptor()));
        return {};
    case TKE::ValueKind::DoubleList:
        return FaultOfList(value);
    case TKE::ValueKind::Text:
        if (IsDate(value) && !value.GetText().isEmpty() && !NumberOf(value))
            return tr("\"%1\" is not a date (yyyy-MM-dd).").arg(value.GetText());
        if (IsTime(value) && !value.GetText().isEmpty() &&
            !QTime::fromString(value.GetText(), QStringLiteral("hh:mm")).isValid())
            return tr("\"%1\" is not a time of the day (hh:mm).").arg(value.GetText());
        return {};
    default:
        return {};
    }
}

QString Checker::FaultOfList(const TKE::ValueBase& value) const
{
    const QList<double>& numbers = static_cast<const TKE::DoubleListValue&>(value).GetValue();
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    const ListShape shape = m_lists.value(&descriptor, {1, 0});
    if (numbers.size() % shape.columns != 0)
        return tr("%1 numbers do not fill rows of %2.").arg(numbers.size()).arg(shape.columns);
    if (const qsizetype rows = numbers.size() / shape.columns; shape.rows > 0 && rows > shape.rows)
        return tr("There are %1 rows; permitted are %2 at most.").arg(rows).arg(shape.rows);
    for (qsizetype index = 0; index < numbers.size(); ++index)
    {
        const qsizetype row = index / shape.columns + 1;
        if (!descriptor.Accepts(numbers[index]))
            return tr("Row %1: %2 is not permitted; permitted is: %3.")
                .arg(row)
                .arg(Shown(numbers[index]), RangeOf(descriptor));
        // Two columns are a range.
        if (shape.columns == 2 && index % 2 == 1 && numbers[index - 1] > numbers[index])
            return tr("Row %1: the range begins at %2, after its end at %3.")
                .arg(row)
                .arg(Shown(numbers[index - 1]), Shown(numbers[index]));
    }
    return {};
}

const QStringList& Checker::UpperNames(const QString& name) const
{
    const auto known = m_upperNames.constFind(&name);
    if (known != m_upperNames.constEnd())
        return *known;
    QStringList others;
    for (const Pair& pair : boundPairs)
        if (name.endsWith(pair.lower))
            others << name.chopped(pair.lower.size()) + pair.upper;
    return *m_upperNames.insert(&name, others);
}

QString Checker::FaultOfPair(const TKE::ValueBase& value) const
{
    for (const QString& other : UpperNames(value.GetName()))
    {
        const TKE::ValueBase* upper = m_tree.FindValue(*value.GetNode(), other);
        if (!upper || upper->GetState() != TKE::stEnabled || upper->GetKind() != value.GetKind())
            continue;
        const auto least = NumberOf(value);
        const auto most = NumberOf(*upper);
        if (least && most && *least > *most)
            return tr("%1 is more than %2, which \"%3\" holds.")
                .arg(FieldTexts::Content(value), FieldTexts::Content(*upper), NameOf(*upper));
    }
    return {};
}

} // namespace JOBEDIT
