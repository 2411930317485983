#pragma once

#include "framework/panelrows.h"

#include <deque>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

namespace TKE
{

/// The enable rules of a panel: the values that they look at, and the values that are enabled exactly while a condition holds.
///
/// A condition on a value that does not exist is undecided, and its rule is skipped. A read-only panel applies none. Who hears of an enable
/// state may delete the panel: make Apply the last thing that an operation does.
class PanelRules
{
public:
    using Condition = std::optional<bool>;

    PanelRules(ParameterDlg& panel, Binding binding)
        : m_panel(panel)
        , m_binding(binding)
    {
    }

    /// Passes the changes of these values on to the panel's Update, from now on until the panel goes.
    void Observe(std::initializer_list<QString> keys);
    /// Whether what the panel's Update was told is a new content of a value that the rules look at.
    bool Concerns(const Observable* source, TChangeCode code) const;

    /// A selection has one of the item keys.
    Condition IsOneOf(const QString& key, std::initializer_list<int> itemKeys) const;
    Condition IsOn(const QString& key) const;
    Condition IsOff(const QString& key) const { return Not(IsOn(key)); }
    static Condition Not(Condition condition) { return condition ? Condition(!*condition) : condition; }
    static Condition Both(Condition first, Condition second);

    /// One more rule for the next Apply.
    void EnableWhile(Condition condition, std::initializer_list<QString> keys);
    void Apply();

private:
    struct Observed
    {
        Observed(const QString& name, IObserver* panel)
            : key(name)
            , value(panel)
        {
        }
        QString key;
        ValueObservingPtr<ValueBase> value;
    };
    const ValueBase* Find(const QString& key) const;

    ParameterDlg& m_panel;
    Binding m_binding;
    std::deque<Observed> m_observed; // a deque, since the handles do not move
    std::vector<std::pair<QString, bool>> m_states;
};

} // namespace TKE
