#pragma once

#include "jobmodel/nodetemplate.h"
#include "value/tree.h"

namespace TKE
{

/// Keeps the enable states of one node's values as the rules of its groups say, for as long as it lives. Values may go
/// at any time; a rule whose value is missing is skipped.
class NodeRules final : private IObserver
{
public:
    /// `tree` is the one that holds the values from the first change on; `basePath` ends in "/".
    NodeRules(Tree& tree, const QString& basePath, std::shared_ptr<const NodeTemplate> values);

    /// Follows these values, one per entry of the template, from now on.
    void Follow(const std::vector<ValueBase*>& values);
    /// The same, and sets all states once. Nobody else hears of them yet.
    void Begin(const std::vector<ValueBase*>& values);
    /// Does nothing from now on. Cheaper than going, which lets go of each value.
    void End() { m_tree = nullptr; }
    /// Sets the states of values that somebody may hear of already: he may change whatever he likes. Only the rules of
    /// the source with that name count when it is given.
    static void SetStates(Tree& tree, const QString& basePath, const NodeTemplate& values,
                          const QString* name = nullptr);

private:
    void Update(Observable* source, TChangeCode code) override;

    Tree* m_tree;
    QString m_basePath;
    std::shared_ptr<const NodeTemplate> m_values;
};

} // namespace TKE
