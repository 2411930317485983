#include "jobmodel/jobstructure.h"

#include "jobmodel/journalpause.h"
#include "jobmodel/nodetag.h"

#include <algorithm>

namespace TKE
{

namespace
{

bool Refuse(QString* reason, const QString& why)
{
    if (reason)
        *reason = why;
    return false;
}

QString NodePath(QStringView path)
{
    return path.isEmpty() || path.endsWith(u'/') ? path.toString() : path.toString() + QLatin1Char('/');
}

void SetPath(JobNode& node, const QString& path)
{
    node.path = path;
    for (const auto& below : node.nodes)
    {
        if (below)
            SetPath(*below, path + below->spec.name + QLatin1Char('/'));
    }
}

std::unique_ptr<JobNode> CopyOf(const JobNode& node)
{
    auto copy = std::make_unique<JobNode>();
    copy->spec = node.spec;
    copy->path = node.path;
    copy->values = node.values;
    copy->lead = node.lead;
    copy->startTag = node.startTag;
    copy->valueLead = node.valueLead;
    copy->hasValues = node.hasValues;
    copy->endLead = node.endLead;
    copy->endTag = node.endTag;
    copy->content = node.content;
    copy->kept = node.kept;
    copy->texts = node.texts;
    for (const auto& below : node.nodes)
    {
        copy->nodes.push_back(below ? CopyOf(*below) : nullptr);
        if (below)
            copy->nodes.back()->parent = copy.get();
    }
    return copy;
}

// A value that another node writes cannot stand in this one, too.
void DropBorrowed(JobNode& node)
{
    std::erase_if(node.content,
                  [&](const JobNode::Piece& piece)
                  {
                      const bool isKept = piece.kind == JobNode::Piece::Kept;
                      if (!isKept && piece.kind != JobNode::Piece::Value)
                          return false;
                      const quint32 entry = isKept ? node.kept[piece.index].entry : quint32(piece.index);
                      return std::ranges::find(node.borrowed, entry) != node.borrowed.end();
                  });
    for (const auto& below : node.nodes)
    {
        if (below)
            DropBorrowed(*below);
    }
}

template <class Visit> void ForEach(JobNode& node, Visit visit)
{
    visit(node);
    for (const auto& below : node.nodes)
    {
        if (below)
            ForEach(*below, visit);
    }
}

// The path of an entry that does not lie below its node; empty for all others.
QString AbsolutePath(const NodeTemplate& values, quint32 entry)
{
    const NodeTemplate::Home& home = values.GetHomes()[values.GetEntries()[entry].home];
    return home.absolute ? home.path + *values.GetEntries()[entry].name : QString();
}

bool HasAbsolute(const JobNode& node)
{
    return node.values && std::ranges::any_of(node.values->GetHomes(), &NodeTemplate::Home::absolute);
}

} // namespace

JobNode* JobStructure::Find(QStringView path) const
{
    return m_layout.isReplaced ? nullptr : m_layout.byPath.value(NodePath(path));
}

QStringList JobStructure::PathsBelow(QStringView path) const
{
    const QString prefix = NodePath(path);
    QStringList paths;
    for (auto each = m_layout.byPath.begin(); each != m_layout.byPath.end(); ++each)
    {
        if (!prefix.isEmpty() && each.key().startsWith(prefix))
            paths << each.key();
    }
    std::sort(paths.begin(), paths.end(), [](const QString& one, const QString& other) { return one.size() > other.size(); });
    return paths;
}

Node* JobStructure::Add(QStringView parentPath, const NodeSpec& spec, const JobModel& model, QString* reason)
{
    const auto refuse = [&](const QString& why) -> Node*
    {
        Refuse(reason, why);
        return nullptr;
    };
    JobNode* parent = parentPath.isEmpty() ? &m_layout.root : Find(parentPath);
    if (!parent)
        return refuse(tr("The job holds no node \"%1\"").arg(parentPath));
    if (const QString fault = spec.NameFault(parent == &m_layout.root); !fault.isEmpty())
        return refuse(fault);
    auto node = std::make_unique<JobNode>();
    node->spec = spec;
    node->path = parent->path + spec.name + QLatin1Char('/');
    if (m_layout.byPath.contains(node->path))
        return refuse(tr("The node occurs twice"));
    if (spec.count < 0 || spec.count > NodeSpec::maximumCount)
        return refuse(tr("\"%1\" is no count of channels (1 to %2)").arg(spec.count).arg(NodeSpec::maximumCount));
    node->values = m_layout.TemplateFor(model, spec);
    if (!node->values->GetUnknownGroups().isEmpty())
        return refuse(tr("The group \"%1\" is unknown").arg(node->values->GetUnknownGroups().first()));

    const JournalPause pause(m_tree);
    node->parent = parent;
    node->lead = parent->NewLead();
    node->startTag = NodeTag::Of(spec);
    JobNode& added = *node;
    parent->Add(JobNode::Piece::Node, parent->nodes.size());
    parent->nodes.push_back(std::move(node));
    size_t next = 0;
    Make(added, {}, next);
    Adopt(added);
    return Begin(added, reason);
}

std::shared_ptr<TakenNode> JobStructure::Take(QStringView path, QString* reason)
{
    JobNode* node = Find(path);
    const QString fault = !node                ? tr("The job holds no node \"%1\"")
                          : HasStranger(*node) ? tr("Below \"%1\" lies another node that is no part of it")
                                               : QString();
    if (!fault.isEmpty())
    {
        Refuse(reason, fault.arg(path));
        return {};
    }
    auto taken = std::make_shared<TakenNode>();
    taken->parentPath = node->parent->path;
    Read(*node, taken->contents);
    m_layout.Forget(*node);
    Bequeath(*node, taken->heirs);
    auto& siblings = node->parent->nodes;
    const auto place = std::ranges::find(siblings, node, &std::unique_ptr<JobNode>::get);
    taken->slot = size_t(place - siblings.begin());
    taken->node = std::move(*place);
    // The rules end before the values do.
    taken->node->EndRules();
    m_tree.RemoveBranch(taken->node->path);
    return taken;
}

bool JobStructure::PutBack(TakenNode& taken, QString* reason)
{
    JobNode* parent = taken.parentPath.isEmpty() ? &m_layout.root : Find(taken.parentPath);
    if (m_layout.isReplaced || !parent || taken.slot >= parent->nodes.size() || parent->nodes[taken.slot])
        return Refuse(reason, tr("The job holds no node \"%1\"").arg(taken.parentPath));
    if (Find(taken.node->path))
        return Refuse(reason, tr("The node occurs twice"));
    const JournalPause pause(m_tree);
    for (const TakenNode::Heir& heir : taken.heirs)
    {
        if (JobNode* node = Find(heir.path))
            node->borrowed.push_back(heir.entry);
    }
    JobNode& node = *taken.node;
    node.parent = parent;
    parent->nodes[taken.slot] = std::move(taken.node);
    std::vector<std::vector<quint32>> borrowed;
    ForEach(node, [&](JobNode& each) { borrowed.push_back(each.borrowed); });
    size_t next = 0;
    Make(node, taken.contents, next);
    next = 0;
    ForEach(node, [&](JobNode& each) { each.borrowed = std::move(borrowed[next++]); });
    return Begin(node, reason);
}

bool JobStructure::Rename(QStringView path, const QString& name, QString* reason)
{
    JobNode* node = Find(path);
    if (!node)
        return Refuse(reason, tr("The job holds no node \"%1\"").arg(path));
    NodeSpec spec = node->spec;
    const QString newPath = PathFor(*node, name, spec, reason);
    if (newPath.isEmpty())
        return false;
    const auto taken = Take(path, reason);
    if (!taken)
        return false;
    JobNode& renamed = *taken->node;
    if (renamed.fileTag.empty())
    {
        renamed.fileTag = renamed.startTag;
        renamed.fileName = renamed.spec.name;
    }
    renamed.startTag = spec.name == renamed.fileName ? renamed.fileTag : NodeTag::Renamed(renamed.fileTag, spec.name);
    renamed.spec = spec;
    SetPath(renamed, newPath);
    return PutBack(*taken, reason);
}

Node* JobStructure::Duplicate(QStringView path, const QString& name, QString* reason)
{
    const JobNode* node = Find(path);
    NodeSpec spec = node ? node->spec : NodeSpec();
    const QString newPath = node ? PathFor(*node, name, spec, reason) : QString();
    if (newPath.isEmpty())
    {
        if (!node)
            Refuse(reason, tr("The job holds no node \"%1\"").arg(path));
        return nullptr;
    }
    const JournalPause pause(m_tree);
    Contents contents;
    Read(*node, contents);
    JobNode& parent = *node->parent;
    const size_t original =
        size_t(std::ranges::find(parent.nodes, node, &std::unique_ptr<JobNode>::get) - parent.nodes.begin());
    auto copied = CopyOf(*node);
    copied->parent = &parent;
    copied->startTag = NodeTag::Renamed(node->startTag, spec.name);
    copied->spec = spec;
    SetPath(*copied, newPath);
    JobNode& copy = *copied;
    const auto piece = std::ranges::find_if(parent.content, [&](const JobNode::Piece& each)
                                            { return each.kind == JobNode::Piece::Node && each.index == original; });
    parent.content.emplace(piece + 1, JobNode::Piece::Node, parent.nodes.size());
    parent.nodes.push_back(std::move(copied));
    size_t next = 0;
    Make(copy, contents, next);
    DropBorrowed(copy);
    return Begin(copy, reason);
}

QString JobStructure::PathFor(const JobNode& node, const QString& name, NodeSpec& spec, QString* reason) const
{
    spec.name = name;
    if (const QString fault = spec.NameFault(node.parent == &m_layout.root); !fault.isEmpty())
    {
        Refuse(reason, fault);
        return {};
    }
    QString path = node.parent->path + spec.name + QLatin1Char('/');
    if (!m_layout.byPath.contains(path) && !m_tree.FindNode(path))
        return path;
    Refuse(reason, tr("There is a node \"%1\" already").arg(path.chopped(1)));
    return {};
}

// Whether a node of the job that is no part of `node` has its values below it.
bool JobStructure::HasStranger(const JobNode& node) const
{
    for (auto each = m_layout.byPath.begin(); each != m_layout.byPath.end(); ++each)
    {
        if (!each.key().startsWith(node.path))
            continue;
        const JobNode* above = each.value();
        while (above && above != &node)
            above = above->parent;
        if (!above)
            return true;
    }
    return false;
}

void JobStructure::Read(const JobNode& node, Contents& contents) const
{
    std::vector<TakenNode::Content> own;
    std::vector<ValueBase*> values;
    node.FindValues(m_tree, values);
    for (size_t i = 0; i < values.size(); ++i)
    {
        if (!values[i])
            continue;
        TakenNode::Content content{quint32(i), values[i]->IsExplicit(), {}};
        values[i]->AppendStored(content.stored);
        if (content.isExplicit || content.stored != node.values->GetEntries()[i].defaultText)
            own.push_back(std::move(content));
    }
    contents.push_back(std::move(own));
    for (const auto& below : node.nodes)
    {
        if (below)
            Read(*below, contents);
    }
}

// Makes the values of `node` and of all below it. Those that are there already keep their content.
void JobStructure::Make(JobNode& node, const Contents& contents, size_t& next)
{
    m_layout.byPath.insert(node.path, &node);
    node.borrowed.clear();
    std::vector<ValueBase*> values;
    node.Create(m_tree, values);
    if (next < contents.size())
    {
        for (const TakenNode::Content& content : contents[next++])
        {
            if (std::ranges::find(node.borrowed, content.entry) != node.borrowed.end())
                continue;
            values[content.entry]->SetStored(content.stored);
            values[content.entry]->SetExplicit(content.isExplicit);
        }
    }
    for (const auto& below : node.nodes)
    {
        if (below)
            Make(*below, contents, next);
    }
}

// Lets the rules of `node` and of all below it begin. Values that were there before may have observers, who hear of the
// states: of the job, only what is found anew is touched once the first one is set.
Node* JobStructure::Begin(JobNode& node, QString* reason)
{
    const QString path = node.path;
    std::vector<std::pair<QString, std::shared_ptr<const NodeTemplate>>> begun;
    ForEach(node,
            [&](JobNode& each)
            {
                each.rules = std::make_unique<NodeRules>(m_tree, each.path, each.values);
                std::vector<ValueBase*> values;
                each.FindValues(m_tree, values);
                each.rules->Follow(values);
                begun.emplace_back(each.path, each.values);
            });
    for (const auto& [eachPath, values] : begun)
    {
        const JobNode* each = Find(eachPath);
        if (each && each->values == values)
            NodeRules::SetStates(m_tree, eachPath, *values);
    }
    if (Find(path))
        return m_tree.FindNode(path);
    Refuse(reason, tr("The job holds no node \"%1\"").arg(path));
    return nullptr;
}

// Values outside of `node` that it wrote go over to other nodes that have them.
void JobStructure::Bequeath(const JobNode& node, std::vector<TakenNode::Heir>& heirs)
{
    if (HasAbsolute(node))
    {
        for (quint32 i = 0; i < node.values->GetEntries().size(); ++i)
        {
            const QString path = AbsolutePath(*node.values, i);
            if (path.isEmpty() || std::ranges::find(node.borrowed, i) != node.borrowed.end())
                continue;
            for (JobNode* other : std::as_const(m_layout.byPath))
            {
                const auto entry = HasAbsolute(*other)
                                       ? std::ranges::find_if(other->borrowed, [&](quint32 each)
                                                              { return AbsolutePath(*other->values, each) == path; })
                                       : other->borrowed.end();
                if (entry == other->borrowed.end())
                    continue;
                heirs.push_back({other->path, *entry});
                other->borrowed.erase(entry);
                break;
            }
        }
    }
    for (const auto& below : node.nodes)
    {
        if (below)
            Bequeath(*below, heirs);
    }
}

// Takes over what `node` borrowed and no other node writes.
void JobStructure::Adopt(JobNode& node)
{
    std::erase_if(node.borrowed,
                  [&](quint32 entry)
                  {
                      const QString path = AbsolutePath(*node.values, entry);
                      if (path.isEmpty())
                          return false;
                      for (const JobNode* other : std::as_const(m_layout.byPath))
                      {
                          if (other == &node || !HasAbsolute(*other))
                              continue;
                          for (quint32 i = 0; i < other->values->GetEntries().size(); ++i)
                          {
                              if (AbsolutePath(*other->values, i) == path &&
                                  std::ranges::find(other->borrowed, i) == other->borrowed.end())
                                  return false;
                          }
                      }
                      return true;
                  });
}

} // namespace TKE
