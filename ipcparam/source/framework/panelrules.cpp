#include "framework/panelrules.h"

#include "value/tree.h"

#include <QPointer>
#include <algorithm>

namespace TKE
{

// Where the rows find their values, and nowhere else.
void PanelRules::Observe(std::initializer_list<QString> keys)
{
    for (const QString& key : keys)
    {
        const QString path =
            m_binding == Binding::Parent ? m_panel.ParentPathOf(key) : m_panel.PathOf(key, m_binding == Binding::Raw);
        m_observed.emplace_back(key, &m_panel).value.Reset(m_panel.m_tree->FindValue(path));
    }
}

bool PanelRules::Concerns(const Observable* source, TChangeCode code) const
{
    return code == ccContent && std::any_of(m_observed.begin(), m_observed.end(),
                                            [source](const Observed& observed) { return observed.value.Get() == source; });
}

const ValueBase* PanelRules::Find(const QString& key) const
{
    const auto found =
        std::find_if(m_observed.begin(), m_observed.end(), [&](const Observed& observed) { return observed.key == key; });
    return found == m_observed.end() ? nullptr : found->value.Get();
}

PanelRules::Condition PanelRules::IsOneOf(const QString& key, std::initializer_list<int> itemKeys) const
{
    const auto* selection = dynamic_cast<const ValueSelection*>(Find(key));
    if (!selection)
        return {};
    return std::find(itemKeys.begin(), itemKeys.end(), selection->GetCurrentKey()) != itemKeys.end();
}

PanelRules::Condition PanelRules::IsOn(const QString& key) const
{
    const ValueBase* value = Find(key);
    return value ? Condition(value->GetBool()) : Condition();
}

PanelRules::Condition PanelRules::Both(Condition first, Condition second)
{
    return first && second ? Condition(*first && *second) : Condition();
}

void PanelRules::EnableWhile(Condition condition, std::initializer_list<QString> keys)
{
    if (!condition)
        return;
    for (const QString& key : keys)
        m_states.emplace_back(key, *condition);
}

void PanelRules::Apply()
{
    const auto states = std::exchange(m_states, {});
    // What a read-only panel shows stays disabled.
    if (m_panel.IsReadOnly())
        return;
    const Binding binding = m_binding;
    const QPointer<ParameterDlg> panel(&m_panel);
    for (const auto& [key, isOn] : states)
    {
        if (!panel)
            return;
        if (binding == Binding::Parent)
            panel->EnableUp(key, isOn);
        else
            panel->Enable(key, isOn, binding == Binding::Raw);
    }
}

} // namespace TKE
