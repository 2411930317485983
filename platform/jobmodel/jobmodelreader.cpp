#include "jobmodel/jobmodelreader.h"

#include "jobmodel/nodespec.h"
#include "value/format.h"
#include "value/tree.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace TKE
{

using JOBXMLGENERATOR::ControlType;
using JOBXMLGENERATOR::Place;

namespace
{

QString Text(const char* utf8)
{
    return utf8 ? QString::fromUtf8(utf8) : QString();
}

struct KindName
{
    std::string_view name;
    ValueKind kind;
    ControlType control; // the control where the file names none
};
constexpr std::array kinds{
    KindName{"bool", ValueKind::Bool, ControlType::CheckBox},
    KindName{"int", ValueKind::Int, ControlType::Integer},
    KindName{"double", ValueKind::Double, ControlType::Real},
    KindName{"frequency", ValueKind::Frequency, ControlType::Frequency},
    KindName{"text", ValueKind::Text, ControlType::Text},
    KindName{"datetime", ValueKind::DateTime, ControlType::Text},
    KindName{"date", ValueKind::Text, ControlType::Text},
    KindName{"time", ValueKind::Text, ControlType::Text},
    KindName{"list", ValueKind::DoubleList, ControlType::Frequency},
    KindName{"selection", ValueKind::Selection, ControlType::Combo},
    KindName{"multiselection", ValueKind::Selection, ControlType::Combo},
};

struct PlaceName
{
    std::string_view name;
    Place place;
};
constexpr std::array places{
    PlaceName{"M", Place::Mapped},       PlaceName{"C", Place::Mapped},   PlaceName{"Z", Place::Mapped},
    PlaceName{"R", Place::Raw},          PlaceName{"P", Place::Raw},      PlaceName{"U", Place::Raw},
    PlaceName{"N", Place::Channel},      PlaceName{"W", Place::Data},     PlaceName{"W0", Place::DataBeside},
    PlaceName{"WD", Place::Demodulator}, PlaceName{"A", Place::Absolute},
};

template <class Table> auto FindName(const Table& table, const char* name)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const auto& row) { return name && row.name == name; });
    return found != table.end() ? &*found : nullptr;
}

constexpr int mostRows = 1000; // of one parameter in a panel, and columns

// Whether the default of every channel there may be is a number of that kind.
bool IsWithinKind(ValueKind kind, qint64 first, qint64 step)
{
    const double furthest = std::abs(double(first)) + NodeSpec::maximumCount * std::abs(double(step));
    return furthest < (kind == ValueKind::Int ? std::numeric_limits<int>::max() : 9e15);
}

bool IsNumber(ValueKind kind)
{
    return kind == ValueKind::Int || kind == ValueKind::Double || kind == ValueKind::Frequency;
}

} // namespace

JobModelReader::JobModelReader(JobModel& model, const QString& shownName)
    : XmlReader(shownName, AfterError::GoOn), m_model(model)
{
}

void JobModelReader::ReadInto(QIODevice& device)
{
    Read(device);
    // A file that ends too early may leave a group open, whose rules still hold for what is there.
    AddRules();
    m_model.m_errors += GetErrors();
}

QString JobModelReader::ItemPath() const
{
    QString path = m_group ? m_group->m_name : QString();
    if (m_parameter)
        path += QLatin1Char('/') + m_parameter->m_name;
    return path;
}

bool JobModelReader::Refuse(const char* attribute, const char* text)
{
    ReportError(ItemPath(), text ? tr("%1: \"%2\" is not possible").arg(Text(attribute), Text(text))
                                 : tr("%1 is missing").arg(Text(attribute)));
    return false;
}

void JobModelReader::OnStart(std::string_view name, Attributes attributes)
{
    if (m_skip > 0)
    {
        ++m_skip;
        return;
    }
    ++m_depth;
    if (m_depth == 1 && name == "JobModel")
        Find(attributes, "version") ? void() : ReportError({}, tr("%1 is missing").arg(QLatin1String("version")));
    else if (m_depth == 2 && name == "Group")
        StartGroup(attributes);
    else if (m_depth == 3 && name == "Parameter")
        StartParameter(attributes);
    else if (m_depth == 3 && name == "Rule")
        StartRule(attributes);
    else if (m_depth == 4 && name == "Item" && m_parameter)
        StartItem(attributes);
    else
    {
        const QString reason = tr("Unknown element \"%1\"").arg(QString::fromUtf8(name.data(), qsizetype(name.size())));
        m_depth == 1 ? ReportError({}, reason) : ReportWarning(ItemPath(), reason);
        m_skip = 1;
    }
}

void JobModelReader::OnEnd(std::string_view)
{
    if (m_skip > 1)
    {
        --m_skip;
        return;
    }
    m_skip = 0;
    if (m_depth == 3)
        EndParameter();
    else if (m_depth == 2)
        AddRules();
    --m_depth;
}

void JobModelReader::OnFinish()
{
    if (m_model.m_groups.empty())
        ReportError({}, tr("The file holds no group"));
}

void JobModelReader::StartGroup(Attributes attributes)
{
    auto group = std::make_unique<ParameterGroup>();
    group->m_name = Text(Find(attributes, "name"));
    group->m_title = Text(Find(attributes, "title"));
    const std::string_view band = Find(attributes, "band") ? Find(attributes, "band") : "both";
    if (group->m_name.isEmpty())
        Refuse("name", nullptr);
    else if (band != "HF" && band != "VUHF" && band != "both")
        Refuse("band", band.data());
    else
    {
        group->m_band = band == "HF" ? Band::Hf : band == "VUHF" ? Band::Vuhf : Band::Both;
        const ParameterGroup* same = m_model.FindGroup(group->m_name, group->m_band);
        if (!same || same->m_band != group->m_band)
        {
            m_group = m_model.m_groups.emplace_back(std::move(group)).get();
            return;
        }
        ReportError(group->m_name, tr("The group is described twice"));
    }
    m_skip = 1;
}

void JobModelReader::StartParameter(Attributes attributes)
{
    m_parameter = std::make_unique<Parameter>();
    m_parameter->m_name = Text(Find(attributes, "name"));
    m_parameter->m_descriptor.label = Text(Find(attributes, "label"));
    m_parameter->m_descriptor.description = Text(Find(attributes, "description"));
    m_parameter->m_descriptor.unit = Text(Find(attributes, "unit"));
    m_parameter->m_panelUnit = Text(Find(attributes, "panelUnit"));

    bool usable = !m_parameter->m_name.isEmpty() || Refuse("name", nullptr);
    if (usable && m_group->FindParameter(m_parameter->m_name))
    {
        ReportError(ItemPath(), tr("The parameter is described twice"));
        usable = false;
    }
    usable = usable && ReadKind(attributes, *m_parameter) && ReadNumbers(attributes, *m_parameter) &&
             ReadRow(attributes, *m_parameter) && ReadPlace(attributes, *m_parameter) &&
             ReadDefault(attributes, *m_parameter);
    if (usable)
        return;
    m_parameter.reset();
    m_skip = 1;
}

bool JobModelReader::ReadKind(Attributes attributes, Parameter& parameter)
{
    const char* name = Find(attributes, "kind");
    const auto* kind = FindName(kinds, name);
    if (!kind)
        return Refuse("kind", name);
    parameter.m_descriptor.kind = kind->kind;
    parameter.m_descriptor.multiple = kind->name == "multiselection";
    parameter.m_controlType = kind->control;
    return true;
}

template <class T, class Target>
bool JobModelReader::ReadNumber(Attributes attributes, const char* name, Target& number)
{
    const char* text = Find(attributes, name);
    if (!text)
        return true;
    const char* end = text + std::strlen(text);
    T read{};
    const auto [stop, error] = std::from_chars(text, end, read);
    // "nan" and "inf" are numbers to it, too.
    if (error != std::errc() || stop != end || !std::isfinite(double(read)))
        return Refuse(name, text);
    number = read;
    return true;
}

bool JobModelReader::ReadNumbers(Attributes attributes, Parameter& parameter)
{
    ValueDescriptor& descriptor = parameter.m_descriptor;
    if (!IsNumber(descriptor.kind) && descriptor.kind != ValueKind::DoubleList)
        return true; // dates and texts may have limits, which their editors do not check
    if (!ReadNumber<double>(attributes, "min", descriptor.minimum) ||
        !ReadNumber<double>(attributes, "max", descriptor.maximum) ||
        !ReadNumber<double>(attributes, "step", descriptor.step) ||
        !ReadNumber<int>(attributes, "precision", descriptor.precision))
        return false;
    if (descriptor.minimum && descriptor.maximum && *descriptor.minimum > *descriptor.maximum)
        return Refuse("max", Find(attributes, "max"));
    if (descriptor.precision < 0 || descriptor.precision > 15)
        return Refuse("precision", Find(attributes, "precision"));
    return true;
}

bool JobModelReader::ReadRow(Attributes attributes, Parameter& parameter)
{
    int control = int(parameter.m_controlType);
    if (!ReadNumber<int>(attributes, "control", control) ||
        !ReadNumber<int>(attributes, "subControl", parameter.m_controlSubType) ||
        !ReadNumber<int>(attributes, "rows", parameter.m_rowCount) ||
        !ReadNumber<int>(attributes, "columns", parameter.m_columnCount))
        return false;
    for (const auto& [name, count] : {std::pair("rows", parameter.m_rowCount), std::pair("columns", parameter.m_columnCount)})
        if (Find(attributes, name) && (count < 0 || count > mostRows))
            return Refuse(name, Find(attributes, name));
    if (control < 0 || control > int(ControlType::Frequency))
        return Refuse("control", Find(attributes, "control"));
    parameter.m_controlType = ControlType(control);

    using Number = Parameter::Number;
    const char* text = Find(attributes, "number");
    const std::string_view number = text ? text : "";
    if (number == "float")
        parameter.m_number = Number::Float;
    else if (number == "double" || (number.empty() && parameter.m_descriptor.kind == ValueKind::Double))
        parameter.m_number = Number::Double;
    else if (number == "long")
        parameter.m_number = Number::Long;
    else if (number == "integer" || (number.empty() && parameter.m_descriptor.kind == ValueKind::Int))
        parameter.m_number = Number::Integer;
    else if (!number.empty())
        return Refuse("number", text);
    return true;
}

bool JobModelReader::ReadPlace(Attributes attributes, Parameter& parameter)
{
    const char* name = Find(attributes, "at");
    const auto* place = FindName(places, name);
    if (!place)
        return Refuse("at", name);
    parameter.m_place = place->place;
    parameter.m_channelNoun = Text(Find(attributes, "perChannel"));
    if (parameter.m_place == Place::Channel && parameter.m_channelNoun.isEmpty())
        return Refuse("perChannel", nullptr);

    const char* state = Find(attributes, "state");
    parameter.m_startsDisabled = state && std::string_view(state) == "2";
    if (state && !parameter.m_startsDisabled && std::string_view(state) != "0")
        return Refuse("state", state);
    return true;
}

bool JobModelReader::ReadDefault(Attributes attributes, Parameter& parameter)
{
    ValueDescriptor& descriptor = parameter.m_descriptor;
    const char* text = Find(attributes, "default");
    if (!text)
        return Refuse("default", nullptr);

    // The value itself says whether it takes the default, and how it writes it ("10.0" is stored as "10").
    Tree scratch;
    ValueBase* value = scratch.CreateValue(u"value", descriptor);
    QString reason;
    bool taken = value->SetStored(text, nullptr, &reason);
    if (taken && IsNumber(descriptor.kind))
        taken = descriptor.Accepts(value->GetStoredText().toDouble(), &reason);
    if (!taken)
    {
        ReportError(ItemPath(), tr("The default is refused: %1").arg(reason));
        return false;
    }
    descriptor.defaultText = value->GetStoredText();

    const char* perChannel = Find(attributes, "defaultPerChannel");
    if (!perChannel)
        return true;
    // first+distance*(n-1)
    const std::string_view expression(perChannel);
    const size_t plus = expression.find('+');
    const size_t times = expression.find("*(n-1)");
    qint64 first = 0;
    const bool whole = descriptor.kind == ValueKind::Int || descriptor.kind == ValueKind::Frequency;
    if (!whole || plus == std::string_view::npos || times == std::string_view::npos || times < plus ||
        times + 6 != expression.size() || !Stored::Read(expression.substr(0, plus), first, nullptr) ||
        !Stored::Read(expression.substr(plus + 1, times - plus - 1), parameter.m_channelStep, nullptr) ||
        descriptor.defaultText != QString::number(first) || !IsWithinKind(descriptor.kind, first, parameter.m_channelStep))
        return Refuse("defaultPerChannel", perChannel);
    return true;
}

void JobModelReader::StartItem(Attributes attributes)
{
    int key = -1;
    const char* name = Find(attributes, "name");
    auto& items = m_parameter->m_descriptor.items;
    if (!ReadNumber<int>(attributes, "key", key))
        return;
    if (key < 0 || !name)
        Refuse(name ? "key" : "name", nullptr);
    else if (std::any_of(items.begin(), items.end(), [&](const SelectionItem& item) { return item.GetKey() == key; }))
        ReportError(ItemPath(), tr("The key %1 occurs twice").arg(key));
    else
        items.emplace_back(key, Text(name));
}

void JobModelReader::EndParameter()
{
    if (!m_parameter)
        return;
    m_group->m_byName.insert(m_parameter->m_name, m_parameter.get());
    m_group->m_parameters.push_back(std::move(m_parameter));
}

void JobModelReader::StartRule(Attributes attributes)
{
    PendingRule pending{{Text(Find(attributes, "target")), Text(Find(attributes, "source")), {}}, PieceBegin()};
    const QString equals = Text(Find(attributes, "equals"));
    if (equals == QLatin1String("true") || equals == QLatin1String("false"))
        pending.rule.keys = {equals == QLatin1String("true")};
    else
    {
        for (const QStringView key : QStringView(equals).split(u';'))
        {
            bool isNumber = false;
            pending.rule.keys.push_back(key.toInt(&isNumber));
            if (!isNumber)
            {
                Refuse("equals", Find(attributes, "equals"));
                return;
            }
        }
    }
    m_rules.push_back(std::move(pending));
}

void JobModelReader::AddRules()
{
    for (PendingRule& pending : std::exchange(m_rules, {}))
    {
        for (const QString& name : {pending.rule.target, pending.rule.source})
        {
            if (m_group->FindParameter(name))
                continue;
            Report(FileError::Severity::Error, pending.offset, m_group->m_name,
                   tr("A rule names \"%1\", which is no parameter of the group").arg(name));
            pending.rule.keys.clear();
        }
        if (!pending.rule.keys.empty())
            m_group->m_rules.push_back(std::move(pending.rule));
    }
    m_group = nullptr;
}

} // namespace TKE
