#pragma once

#include "value/tree.h"

#include <functional>
#include <vector>

namespace JOBEDIT
{

/// What is otherwise in one of two branches: a value, a node's type text, or a whole node with all below it.
struct Difference
{
    enum class Kind
    {
        Changed,
        OnlyLeft,
        OnlyRight,
    };

    Kind kind = Kind::Changed;
    QString node{}; ///< path of the node from the base down, "/" at the end; empty: the base itself
    QString key{};  ///< name of the value; empty when the node itself is meant
    const TKE::ValueDescriptor* descriptor = nullptr; ///< null for a node
    QString leftStored{};                             ///< of a node its type text
    QString rightStored{};

    bool IsNode() const { return key.isEmpty(); }
    /// From the base down.
    QString Path() const { return node + key; }
    /// Both sides as people read them; empty where that side has nothing.
    QString LeftText() const;
    QString RightText() const;
    /// Label of the parameter, or its key where it has none.
    QString Label() const;
};

/// Called now and then with the values done and all; false ends the comparison.
using DiffProgress = std::function<bool(qint64 done, qint64 all)>;

/// Compares all below `leftBase` with all below `rightBase` (paths of nodes; empty: whole trees) by path and stored
/// form, and gives what differs in the order of the left tree; what only the right one has follows what the left one
/// has in the same node. Writes nothing. A comparison that was ended gives nothing.
std::vector<Difference> CompareTrees(const TKE::Tree& left, const QString& leftBase, const TKE::Tree& right,
                                     const QString& rightBase, const DiffProgress& progress = {});

/// One difference a line: "-" before what only the left side has, "+" what only the right one has, "~" what differs.
QString ToText(const std::vector<Difference>& differences);

} // namespace JOBEDIT
