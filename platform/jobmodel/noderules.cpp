#include "jobmodel/noderules.h"

#include <algorithm>

namespace TKE
{

namespace
{

ValueBase* Find(const Tree& tree, const QString& basePath, const NodeTemplate& values, quint32 index)
{
    const NodeTemplate::Entry& entry = values.GetEntries()[index];
    const NodeTemplate::Home& home = values.GetHomes()[entry.home];
    return tree.FindValue(home.absolute ? home.path + *entry.name : basePath + home.path + *entry.name);
}

bool Holds(const NodeTemplate::Rule& rule, const ValueBase& source)
{
    const int key = source.GetKind() == ValueKind::Selection
                        ? static_cast<const ValueSelection&>(source).GetCurrentKey()
                        : int(source.GetBool());
    return std::find(rule.keys.begin(), rule.keys.end(), key) != rule.keys.end();
}

void Apply(const NodeTemplate::Rule& rule, const ValueBase& source, ValueBase& target)
{
    if (target.GetState() != stReleased)
        target.SetState(Holds(rule, source) ? stEnabled : stDisabled);
}

} // namespace

NodeRules::NodeRules(Tree& tree, const QString& basePath, std::shared_ptr<const NodeTemplate> values)
    : m_tree(&tree), m_basePath(basePath), m_values(std::move(values))
{
}

void NodeRules::Follow(const std::vector<ValueBase*>& values)
{
    for (const NodeTemplate::Rule& rule : m_values->GetRules())
    {
        if (values[rule.source] && values[rule.target])
            values[rule.source]->Attach(this);
    }
}

void NodeRules::Begin(const std::vector<ValueBase*>& values)
{
    Follow(values);
    for (const NodeTemplate::Rule& rule : m_values->GetRules())
    {
        if (values[rule.source] && values[rule.target])
            Apply(rule, *values[rule.source], *values[rule.target]);
    }
}

void NodeRules::SetStates(Tree& tree, const QString& basePath, const NodeTemplate& values, const QString* name)
{
    for (const NodeTemplate::Rule& rule : values.GetRules())
    {
        if (name && *values.GetEntries()[rule.source].name != *name)
            continue;
        const ValueBase* source = Find(tree, basePath, values, rule.source);
        ValueBase* target = Find(tree, basePath, values, rule.target);
        if (source && target)
            Apply(rule, *source, *target);
    }
}

void NodeRules::Update(Observable* changed, TChangeCode code)
{
    if (code != ccContent || !m_tree)
        return;
    // Whoever hears of a new state may change the source again, remove values or end these rules: nothing here is
    // touched after the first state is set but what is held by this operation itself, and values are sought anew for
    // each rule.
    const QString basePath = m_basePath;
    const auto values = m_values;
    const QString name = static_cast<ValueBase*>(changed)->GetName();
    SetStates(*m_tree, basePath, *values, &name);
}

} // namespace TKE
