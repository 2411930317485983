#include "nodekinds.h"

#include "chains.h"
#include "otherjob.h"

#include <QCoreApplication>
#include <algorithm>
#include <set>

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class NodeKindText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::NodeKind)
};

QString TitlesOf(const TKE::NodeSpec& spec, const TKE::JobModel& model)
{
    QStringList titles;
    for (const QString& name : spec.groups)
        if (const TKE::ParameterGroup* group = model.FindGroup(name, spec.band))
            titles << (group->GetTitle().isEmpty() ? name : group->GetTitle());
    titles.removeDuplicates();
    return titles.join(QStringLiteral(", "));
}

void Collect(const TKE::Node& node, const OtherJob& sample, const TKE::JobModel& model,
             const std::vector<TKE::NodeSpec>& above, std::set<QString>& known, std::vector<NodeKind>& kinds)
{
    auto below = above;
    if (const TKE::NodeSpec* spec = sample.file.FindNodeSpec(node.GetBasePath());
        spec && !spec->name.contains(u'/')) // not a node at the top
    {
        below.push_back(*spec);
        const QString key = QStringLiteral("%1|%2|%3|%4")
                                .arg(spec->type, spec->groups.join(u' '))
                                .arg(int(spec->band))
                                .arg(spec->dataForm);
        if (known.insert(key).second)
        {
            const JobNode shown{node.GetBasePath(), spec->name, spec->type, spec->band, spec->dataForm};
            kinds.push_back({*spec, above, HasDialog(shown), TitlesOf(*spec, model)});
        }
    }
    for (const auto& child : node.GetNodes())
        Collect(*child, sample, model, below, known, kinds);
}

/// Whether a node like `wanted` may stand in for it above others.
bool Serves(const TKE::NodeSpec& node, const TKE::NodeSpec& wanted)
{
    return node.type == wanted.type && node.band == wanted.band &&
           std::ranges::all_of(wanted.groups, [&](const QString& group) { return node.groups.contains(group); });
}

qsizetype CommonPrefix(QStringView left, QStringView right)
{
    const auto end = std::ranges::mismatch(left, right);
    return end.in1 - left.begin();
}

} // namespace

QString NodeKind::BandText() const
{
    return spec.band == TKE::Band::Vuhf ? NodeKindText::tr("V/UHF") : NodeKindText::tr("HF");
}

QString NodePlace::ParentPath() const
{
    QString parent = path;
    for (const TKE::NodeSpec& spec : added)
        parent += spec.name + u'/';
    return parent;
}

std::vector<NodeKind> NodeKinds(const std::shared_ptr<const TKE::JobModel>& model)
{
    OtherJob sample;
    sample.file.SetModel(model);
    std::vector<NodeKind> kinds;
    if (!sample.file.LoadSample())
        return kinds;
    std::set<QString> known;
    for (const TKE::Node* top : sample.tree.GetTopNodes())
        Collect(*top, sample, *model, {}, known, kinds);
    std::ranges::stable_sort(kinds, {}, [](const NodeKind& kind) { return std::pair(!kind.isChain, kind.spec.type); });
    return kinds;
}

std::vector<NodePlace> PlacesFor(const NodeKind& kind, const JobDocument& document, const QString& nearPath)
{
    struct Candidate
    {
        NodePlace place;
        bool taken; // a channel set that has its task: another one rather gets a set of its own
        bool chosen;
        qsizetype nearness;
    };
    std::vector<Candidate> candidates;
    for (const JobNode& node : document.GetNodes())
    {
        const TKE::NodeSpec* spec = document.File().FindNodeSpec(node.path);
        for (size_t level = kind.above.size() + 1; level-- > 0;)
        {
            const bool fits = level > 0 ? Serves(*spec, kind.above[level - 1]) : spec->type == QLatin1String("JOB");
            if (!fits)
                continue;
            NodePlace place{node.path, {kind.above.begin() + qsizetype(level), kind.above.end()}};
            if (!place.added.empty())
                place.added.front().name = UniqueNodeName(place.path, place.added.front().name);
            const bool taken = place.added.empty() && kind.above.size() > 1 &&
                               !TKE::Tree::Instance()->FindNode(node.path)->GetNodes().empty();
            candidates.push_back({std::move(place), taken, node.path == nearPath, CommonPrefix(node.path, nearPath)});
            break;
        }
    }
    std::ranges::stable_sort(
        candidates, {},
        [](const Candidate& candidate)
        { return std::tuple(!candidate.chosen, candidate.taken, -candidate.nearness, candidate.place.added.size()); });
    std::vector<NodePlace> places;
    places.reserve(candidates.size());
    for (Candidate& candidate : candidates)
        places.push_back(std::move(candidate.place));
    return places;
}

QString UniqueNodeName(const QString& parentPath, const QString& name)
{
    QString stem = name;
    while (stem.size() > 1 && stem.back().isDigit())
        stem.chop(1);
    QString unique = name;
    for (int number = 2; TKE::Tree::Instance()->FindNode(QString(parentPath + unique)); ++number)
        unique = stem + QString::number(number);
    return unique;
}

QString NodeNameFault(const QString& parentPath, const QString& name)
{
    QString fault = TKE::NodeSpec{.name = name}.NameFault(parentPath.isEmpty());
    if (fault.isEmpty() && TKE::Tree::Instance()->FindNode(QString(parentPath + name)))
        return NodeKindText::tr("There is a node \"%1\" here already.").arg(name);
    return fault;
}

QString AddNodeOfKind(JobDocument& document, const NodeKind& kind, const NodePlace& place, const QString& name,
                      QString& reason)
{
    const EditHistory::Step step(document.History(), {});
    auto specs = place.added;
    specs.push_back(kind.spec);
    specs.back().name = name;
    QString parent = place.path;
    for (const TKE::NodeSpec& spec : specs)
    {
        if (!document.AddNode(parent, spec, &reason))
        {
            if (parent != place.path)
                document.RemoveNode(place.path + specs.front().name + u'/', nullptr);
            return {};
        }
        parent += spec.name + u'/';
    }
    return parent;
}

} // namespace JOBEDIT
