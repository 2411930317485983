#include "jobmodel/joblayout.h"

#include "value/idledisposal.h"

namespace TKE
{

namespace
{

QString PathOf(const NodeTemplate::Home& home, const QString& basePath)
{
    return home.absolute ? home.path : basePath + home.path;
}

} // namespace

TKE::Node* JobNode::Create(Tree& tree, std::vector<ValueBase*>& found)
{
    TKE::Node* node = tree.CreateNode(path, spec.type);
    std::vector<TKE::Node*> homes;
    for (const NodeTemplate::Home& home : values->GetHomes())
    {
        homes.push_back(tree.CreateNode(PathOf(home, path)));
        tree.Reserve(*homes.back(), homes.back()->GetValues().size() + home.size);
    }

    const auto& entries = values->GetEntries();
    found.clear();
    found.reserve(entries.size());
    for (size_t i = 0; i < entries.size(); ++i)
    {
        const NodeTemplate::Entry& entry = entries[i];
        if (const size_t later = i + 8; later < entries.size())
            tree.Expect(*homes[entries[later].home], *entries[later].name);
        ValueBase* value = tree.CreateValue(*homes[entry.home], *entry.name, *entry.descriptor, entry.defaultText);
        if (!value)
        {
            value = tree.FindValue(*homes[entry.home], *entry.name);
            borrowed.push_back(quint32(i));
        }
        else if (entry.startsDisabled)
            value->SetState(stDisabled);
        found.push_back(value);
    }
    return node;
}

bool JobNode::FindValues(const Tree& tree, std::vector<ValueBase*>& found) const
{
    found.clear();
    if (!values)
        return true;
    if (!tree.FindNode(path))
        return false;
    std::vector<TKE::Node*> homes;
    for (const NodeTemplate::Home& home : values->GetHomes())
        homes.push_back(tree.FindNode(PathOf(home, path)));
    for (const NodeTemplate::Entry& entry : values->GetEntries())
    {
        ValueBase* value = nullptr;
        if (const TKE::Node* home = homes[entry.home])
        {
            // Values mostly are where they were made.
            const auto& siblings = home->GetValues();
            if (entry.slot < siblings.size() && &siblings[entry.slot]->GetName() == entry.name)
                value = siblings[entry.slot].get();
            else
                value = tree.FindValue(*home, *entry.name);
        }
        found.push_back(value);
    }
    return true;
}

std::string JobNode::NewLead() const
{
    if (hasValues)
        return valueLead;
    for (const auto& node : nodes)
    {
        if (node)
            return node->lead;
    }
    std::string newLead = OwnLead();
    if (!newLead.empty())
        newLead += newLead.back() == '\t' ? "\t" : "  ";
    return newLead;
}

std::string JobNode::OwnLead() const
{
    if (!parent) // the root: as its file ends lines
    {
        const size_t end = startTag.find('\n');
        if (end == std::string::npos)
            return {};
        return end > 0 && startTag[end - 1] == '\r' ? "\r\n" : "\n";
    }
    return lead.find('\n') != std::string::npos ? lead : std::string();
}

std::shared_ptr<const NodeTemplate> JobLayout::TemplateFor(const JobModel& model, const NodeSpec& spec)
{
    const QString key = QStringLiteral("%1|%2|%3|%4")
                            .arg(spec.groups.join(QLatin1Char(' ')))
                            .arg(spec.count)
                            .arg(spec.dataForm)
                            .arg(int(spec.band));
    auto& known = m_templates[key];
    if (!known)
        known = std::make_shared<NodeTemplate>(model, spec);
    return known;
}

void JobNode::EndRules()
{
    if (rules)
        rules->End();
    for (const auto& below : nodes)
    {
        if (below)
            below->EndRules();
    }
}

void JobLayout::DisposeLater(std::shared_ptr<JobLayout> layout)
{
    layout->root.EndRules();
    IdleDisposal::Add(
        [remains = std::move(layout)]
        {
            // Who heard of a change may have deleted the job and run the event loop: the change finds no node then.
            remains->byPath.clear();
            // A node without further ones below.
            JobNode* node = &remains->root;
            while (!node->nodes.empty() && node->nodes.back())
                node = node->nodes.back().get();
            if (!node->nodes.empty())
                node->nodes.pop_back(); // one that was removed before
            else if (node->parent)
                node->parent->nodes.pop_back();
            return !remains->root.nodes.empty();
        });
}

void JobLayout::Forget(const JobNode& node)
{
    byPath.remove(node.path);
    for (const auto& below : node.nodes)
    {
        if (below)
            Forget(*below);
    }
}

} // namespace TKE
