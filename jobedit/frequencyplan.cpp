#include "frequencyplan.h"

#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"
#include "valuetexts.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <optional>

namespace JOBEDIT
{

namespace
{

using Kind = PlanMark::Kind;
namespace Keys = TKE::Keys;

enum class Shape : quint8
{
    Single,      ///< a frequency; `second` is its bandwidth
    Range,       ///< from the frequency `first` to `second`
    Frequencies, ///< a list
    Ranges,      ///< a list of pairs
};

/// A value that decides whether a mark is in use: a boolean (0 or 1) or a selection by its key.
struct Condition
{
    QLatin1StringView key{};
    int wanted = 1;
};

/// Which values of a node make marks, and of which kind. "{n}" stands for the numbers of channels.
struct Source
{
    Kind kind;
    Shape shape;
    const char* text;
    QLatin1StringView first;
    QLatin1StringView second{};
    Condition switchedOn = {};
    Condition chosen = {};
};

// Of each kind in the order of painting: what is wide lies below what is narrow.
// clang-format off
constexpr Source sources[] = {
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Wideband reception"), Keys::TUNER_WB_HF_FREQUENCY, Keys::TUNER_WB_HF_BANDWIDTH},
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Wideband reception, second channel"), Keys::TUNER_WB_HF_CH2_FREQUENCY, Keys::TUNER_WB_HF_CH2_BANDWIDTH},
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Wideband reception"), Keys::TUNER_WB_VUHF_FREQUENCY, Keys::TUNER_WB_VUHF_BANDWIDTH},
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Wideband reception, second channel"), Keys::TUNER_WB_VUHF_CH2_FREQUENCY, Keys::TUNER_WB_VUHF_CH2_BANDWIDTH},
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Panorama"), Keys::TUNER_WBRX_HF_FREQUENCY, Keys::TUNER_WBRX_HF_SPAN},
    {Kind::Wideband, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Panorama"), Keys::TUNER_WBRX_VUHF_FREQUENCY, Keys::TUNER_WBRX_VUHF_SPAN},
    {Kind::Range, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receiver scan"), Keys::WBRXSCAN_SEQ_FREQ_RANGE, {}, {Keys::WBRXSCAN_STATUS}},
    {Kind::Range, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Surveyed range"), Keys::SURVEILLANCE_SEQ_FREQ_RANGE},
    {Kind::Range, Shape::Range, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Scan"), Keys::SCAN_START_FREQUENCY, Keys::SCAN_STOP_FREQUENCY, {Keys::SCAN_STATUS}, {Keys::SCAN_TYPE, 0}},
    {Kind::Range, Shape::Range, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Detected range"), QLatin1StringView{"Range{n}/RasterRangeStart"}, QLatin1StringView{"Range{n}/RasterRangeStop"}, {QLatin1StringView{"Range{n}/RasterRangeActive"}}},
    {Kind::Range, Shape::Range, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Profile limits"), Keys::MINFREQUENCY, Keys::MAXFREQUENCY, {Keys::USEFREQUENCY}},
    {Kind::Transmitter, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Wideband exciter"), Keys::WdeCenterFrequency, Keys::WdeBandwidth},
    {Kind::Transmitter, Shape::Range, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Exciter scan"), Keys::ExciterScanStartFrequency, Keys::ExciterScanStopFrequency},
    {Kind::Excluded, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Excluded from the receiver scan"), Keys::WBRXSCAN_SEQ_EXCL_FREQ_RANGE, {}, {Keys::WBRXSCAN_STATUS}},
    {Kind::Excluded, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Excluded from the scan"), Keys::SCAN_SEQ_EXCL_FREQ_RANGE, {}, {Keys::SCAN_STATUS}},
    {Kind::Excluded, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Excluded from detection"), Keys::DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE},
    {Kind::Excluded, Shape::Ranges, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Excluded from detection"), Keys::DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE},
    {Kind::Excluded, Shape::Frequencies, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Reserved, never sent on"), Keys::WdeReservedFrequencies},
    {Kind::Excluded, Shape::Frequencies, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Excluded from detection"), QLatin1StringView{"Range{n}/RasterRangeExcluded"}, {}, {QLatin1StringView{"Range{n}/RasterRangeActive"}}},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receive frequency"), Keys::TUNER_HF_NB_FREQUENCY, Keys::TUNER_HF_NB_IFBANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receive frequency"), Keys::TUNER_VUHF_FREQUENCY, Keys::TUNER_VUHF_IFBANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receive frequency"), Keys::TUNER_EXT_FREQUENCY, Keys::TUNER_EXT_IFBANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receive frequency"), Keys::TUNER_WBRX_HF_FREQUENCY, Keys::TUNER_WBRX_HF_IFBANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Receive frequency"), Keys::TUNER_WBRX_VUHF_FREQUENCY, Keys::TUNER_WBRX_VUHF_IFBANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Channel frequency"), Keys::TUNER_DDC_FREQUENCY, Keys::TUNER_DDC_BANDWIDTH},
    {Kind::Tuned, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Channel frequency, second channel"), Keys::TUNER_DDC_CH2_FREQUENCY, Keys::TUNER_DDC_CH2_BANDWIDTH},
    {Kind::Channel, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Memory channel"), QLatin1StringView{"MEMORYSCAN_HF_CH{n}_FREQUENCY"}, QLatin1StringView{"MEMORYSCAN_HF_CH{n}_IFBANDWIDTH"}, {QLatin1StringView{"MEMORYSCAN_HF_CH{n}_STATUS"}}},
    {Kind::Channel, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Memory channel"), QLatin1StringView{"MEMORYSCAN_VUHF_CH{n}_FREQUENCY"}, QLatin1StringView{"MEMORYSCAN_VUHF_CH{n}_IFBANDWIDTH"}, {QLatin1StringView{"MEMORYSCAN_VUHF_CH{n}_STATUS"}}},
    {Kind::Channel, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Detected channel"), QLatin1StringView{"Channel{n}/SingleChannelFrequency"}, QLatin1StringView{"Channel{n}/SingleChannelBandwidth"}, {QLatin1StringView{"Channel{n}/SingleChannelActive"}}},
    {Kind::Channel, Shape::Frequencies, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Scan list"), Keys::SCAN_SEQ_FREQUENCY, {}, {Keys::SCAN_STATUS}, {Keys::SCAN_TYPE, 1}},
    {Kind::Channel, Shape::Frequencies, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Hop set"), Keys::FREQUENCYSETTBL, {}, {Keys::USEFREQUENCYSETTBL}},
    {Kind::Transmitter, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Generator"), Keys::SmuFrequency},
    {Kind::Transmitter, Shape::Frequencies, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Exciter scan list"), Keys::ExciterScanFrequencies},
    {Kind::Transmitter, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Exciter channel"), QLatin1StringView{"Channel{n}/WdeChannelFrequency"}, {}, {QLatin1StringView{"Channel{n}/WdeChannelActive"}}},
    {Kind::Transmitter, Shape::Single, QT_TRANSLATE_NOOP("JOBEDIT::FrequencyPlan", "Simulated emitter"), QLatin1StringView{"Emitter{n}/EmitterFrequency"}, {}, {QLatin1StringView{"Emitter{n}/EmitterActive"}}},
};
// clang-format on

/// The marks of nodes, one node after another.
class Finder
{
public:
    explicit Finder(const TKE::Tree& tree) : m_tree(tree)
    {
        m_firstKeys.reserve(std::size(sources));
        for (const Source& source : sources)
            m_firstKeys.push_back({NameOf(source.first, 1), source.first.contains(numberMark)});
    }

    const std::vector<PlanMark>& Find(const TKE::Node& node)
    {
        m_node = &node;
        m_marks.clear();
        for (m_index = 0; m_index < std::size(sources); ++m_index)
        {
            // Most rows find nothing at most nodes; that is seen without forming a name.
            if (!m_tree.FindValue(node, m_firstKeys[m_index].name))
                continue;
            if (!m_firstKeys[m_index].isNumbered)
                FindNumber(0);
            else
                for (int number = 1; FindNumber(number);)
                    ++number;
        }
        return m_marks;
    }

private:
    static constexpr QLatin1StringView numberMark{"{n}"};
    struct FirstKey
    {
        QString name; // of the only or first number
        bool isNumbered;
    };

    const Source& Row() const { return sources[m_index]; }

    static QString NameOf(QLatin1StringView key, int number)
    {
        const QString name = QString(key).replace(numberMark, QString::number(number));
        return TKE::KeyManager::Instance()->GetFullNameByKey(name);
    }

    const TKE::ValueBase* ValueOf(QLatin1StringView key, int number) const
    {
        return !key.isEmpty() ? m_tree.FindValue(*m_node, NameOf(key, number)) : nullptr;
    }

    static std::optional<qint64> NumberOf(const TKE::ValueBase* value)
    {
        if (!value || value->GetState() == TKE::stReleased)
            return {};
        switch (value->GetKind())
        {
        case TKE::ValueKind::Bool:
            return value->GetBool();
        case TKE::ValueKind::Frequency:
            return static_cast<const TKE::FrequencyValue*>(value)->GetValue();
        case TKE::ValueKind::Selection: // quantities are their own keys
            return static_cast<const TKE::ValueSelection*>(value)->GetCurrentKey();
        case TKE::ValueKind::Int:
            return static_cast<const TKE::IntValue*>(value)->GetValue();
        default:
            return {};
        }
    }

    bool Holds(const Condition& condition, int number) const
    {
        const auto content = NumberOf(ValueOf(condition.key, number));
        return !content || *content == condition.wanted; // a switch that is missing forbids nothing
    }

    bool FindNumber(int number)
    {
        const TKE::ValueBase* value = ValueOf(Row().first, number);
        if (!value)
            return false;
        m_active = Holds(Row().switchedOn, number) && Holds(Row().chosen, number);
        if (value->GetKind() == TKE::ValueKind::DoubleList)
        {
            AddList(static_cast<const TKE::DoubleListValue*>(value)->GetValue());
            return true;
        }
        const auto first = NumberOf(value);
        const auto second = NumberOf(ValueOf(Row().second, number));
        if (first && Row().shape == Shape::Single)
            AddFrequency(*first, second.value_or(0), number);
        else if (first && second)
            AddRange(*first, *second, number);
        return true;
    }

    void AddList(const QList<double>& list)
    {
        const bool pairs = Row().shape == Shape::Ranges;
        int number = 0;
        for (qsizetype index = 0; index + (pairs ? 1 : 0) < list.size(); index += pairs ? 2 : 1)
            if (pairs)
                AddRange(std::llround(list[index]), std::llround(list[index + 1]), ++number);
            else
                AddFrequency(std::llround(list[index]), 0, ++number);
    }

    void AddFrequency(qint64 frequency, qint64 bandwidth, int number)
    {
        const qint64 width = std::max<qint64>(bandwidth, 0);
        m_marks.push_back({Row().kind, m_active, quint8(m_index), number, frequency - width / 2,
                           frequency - width / 2 + width, frequency});
    }

    void AddRange(qint64 from, qint64 to, int number)
    {
        m_marks.push_back({Row().kind, m_active, quint8(m_index), number, std::min(from, to), std::max(from, to), -1});
    }

    const TKE::Tree& m_tree;
    std::vector<FirstKey> m_firstKeys; // one per row of the table
    const TKE::Node* m_node = nullptr;
    std::vector<PlanMark> m_marks;
    size_t m_index = 0;
    bool m_active = true;
};

/// The node that the section of this one is named after: the task data set above it or, elsewhere, the node above it.
int SectionOf(const std::vector<JobNode>& nodes, int index)
{
    for (int above = index; above >= 0; above = nodes[size_t(above)].parent)
        if (nodes[size_t(above)].type == QLatin1StringView("TDS"))
            return above;
    const int parent = nodes[size_t(index)].parent;
    return parent < 0 ? index : parent;
}

QString TitleBelow(const std::vector<JobNode>& nodes, int section, int index)
{
    QString title = nodes[size_t(index)].name;
    for (int above = nodes[size_t(index)].parent; above >= 0 && above != section && index != section;
         above = nodes[size_t(above)].parent)
        title.prepend(nodes[size_t(above)].name + '/');
    return title;
}

} // namespace

FrequencyPlan FrequencyPlan::Of(const std::vector<JobNode>& nodes, const TKE::Tree& tree)
{
    FrequencyPlan plan;
    Finder finder(tree);
    for (int index = 0; index < int(nodes.size()); ++index)
    {
        const JobNode& node = nodes[size_t(index)];
        const TKE::Node* found = tree.FindNode(node.path);
        if (!found || (found->GetValues().empty() && found->GetNodes().empty()))
            continue;
        const std::vector<PlanMark>& marks = finder.Find(*found);
        if (marks.empty())
            continue;
        const int section = SectionOf(nodes, index);
        plan.m_lanes.push_back(
            {node.path, TitleBelow(nodes, section, index), nodes[size_t(section)].name, node.type, node.band, marks});
    }
    return plan;
}

bool FrequencyPlan::Update(const QString& path, const TKE::Tree& tree)
{
    Finder finder(tree);
    for (const TKE::Node* node = tree.FindNode(path); node; node = node->GetParent())
    {
        const std::vector<PlanMark>& marks = finder.Find(*node);
        const auto lane = std::ranges::find(m_lanes, node->GetBasePath(), &PlanLane::path);
        if (lane == m_lanes.end() && marks.empty())
            continue;
        if (lane == m_lanes.end() || marks.empty())
            return false;
        lane->marks = marks;
        return true;
    }
    return true;
}

bool FrequencyPlan::IsOn(const PlanLane& lane, const PlanMark& mark, TKE::Band band)
{
    // HF devices reach up to 30 MHz, V/UHF devices from 20 MHz on: each stays on the axis of its band where it can.
    const bool isVuhfDevice = lane.band == TKE::Band::Vuhf;
    const qint64 border = isVuhfDevice ? 20'000'000 : 30'000'000;
    if (mark.frequency >= 0)
        return (band == TKE::Band::Vuhf) == (isVuhfDevice ? mark.frequency >= border : mark.frequency > border);
    return band == TKE::Band::Vuhf ? mark.to > border : mark.from < border;
}

bool FrequencyPlan::IsOn(const PlanLane& lane, TKE::Band band)
{
    return std::ranges::any_of(lane.marks, [&](const PlanMark& mark) { return IsOn(lane, mark, band); });
}

QString FrequencyPlan::KindText(PlanMark::Kind kind)
{
    switch (kind)
    {
    case Kind::Wideband:
        return tr("Wideband reception");
    case Kind::Range:
        return tr("Searched range");
    case Kind::Tuned:
        return tr("Tuned receiver");
    case Kind::Channel:
        return tr("Channel in turn");
    case Kind::Transmitter:
        return tr("Exciter");
    case Kind::Excluded:
        break;
    }
    return tr("Excluded");
}

QString FrequencyPlan::SourceText(const PlanMark& mark)
{
    const QString text = tr(sources[mark.source].text);
    return mark.number > 0 ? tr("%1 %2", "what and its number").arg(text).arg(mark.number) : text;
}

QString FrequencyPlan::MarkText(const PlanMark& mark)
{
    QString text;
    if (mark.frequency < 0)
        text = tr("%1: %2 to %3").arg(SourceText(mark), ValueTexts::OfFrequency(mark.from), ValueTexts::OfFrequency(mark.to));
    else if (mark.to > mark.from)
        text = tr("%1: %2, bandwidth %3")
                   .arg(SourceText(mark), ValueTexts::OfFrequency(mark.frequency), ValueTexts::OfFrequency(mark.to - mark.from));
    else
        text = tr("%1: %2").arg(SourceText(mark), ValueTexts::OfFrequency(mark.frequency));
    return mark.active ? text : tr("%1 (switched off)").arg(text);
}

} // namespace JOBEDIT
