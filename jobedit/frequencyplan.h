#pragma once

#include "jobnode.h"

#include <QCoreApplication>
#include <vector>

namespace TKE
{
class Tree;
}

namespace JOBEDIT
{

/// Something that a chain does at a frequency or over a range, in Hz.
struct PlanMark
{
    enum class Kind : quint8
    {
        Wideband,    ///< received as a whole
        Range,       ///< searched or watched
        Tuned,       ///< a receiver stands on it
        Channel,     ///< one of several that are visited in turn
        Transmitter, ///< the exciter sends there
        Excluded,    ///< left out
    };
    static constexpr int kindCount = 6;

    Kind kind;
    bool active;   ///< false: the job describes it but does not use it, for its switch is off
    quint8 source; ///< which value it comes from
    int number;    ///< of its channel or row, from 1; 0 when there is one only
    qint64 from;
    qint64 to;
    qint64 frequency; ///< the middle of a tuned bandwidth; -1 for a range

    bool Meets(double low, double high) const { return double(from) <= high && low <= double(to); }
};

/// All that one chain does, in the order in which it is painted.
struct PlanLane
{
    QString path; ///< of the node, "/" at the end
    QString title;
    QString group; ///< name of the section that the chain belongs to
    QString type;
    TKE::Band band;
    std::vector<PlanMark> marks;
};

/// What a job does on which frequencies: a lane per chain that has any, those of a section after one another. A copy;
/// nothing in it looks into the value tree.
class FrequencyPlan
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::FrequencyPlan)

public:
    /// The lanes of these nodes, whose values stand in `tree`.
    static FrequencyPlan Of(const std::vector<JobNode>& nodes, const TKE::Tree& tree);

    /// Brings the lane of this node, or of the nearest node above that has one, up to date. False when the lanes are no
    /// longer the same ones, so that the plan must be made anew.
    bool Update(const QString& path, const TKE::Tree& tree);

    const std::vector<PlanLane>& GetLanes() const { return m_lanes; }

    /// Whether the mark belongs on the axis of `band`. A range may belong on both.
    static bool IsOn(const PlanLane& lane, const PlanMark& mark, TKE::Band band);
    static bool IsOn(const PlanLane& lane, TKE::Band band);

    static QString KindText(PlanMark::Kind kind);
    /// What the mark is, for example "Memory channel 3".
    static QString SourceText(const PlanMark& mark);
    /// What the mark is and where: "Receive frequency: 10 MHz, bandwidth 2.7 kHz".
    static QString MarkText(const PlanMark& mark);

private:
    std::vector<PlanLane> m_lanes;
};

} // namespace JOBEDIT
