#pragma once

#include "jobmodel/nodespec.h"
#include "value/tree.h"

#include <functional>

namespace JOBEDIT
{

class JobDocument;

/// A job that nodes are copied from: its tree, and what it says about a node (null: nothing).
struct NodeSource
{
    const TKE::Tree& tree;
    std::function<const TKE::NodeSpec*(const QString& path)> specOf;
};

/// "/A/B/" of "/A/B/C/" or "/A/B/C"; empty when nothing is above.
QString ParentPath(const QString& path);

/// Adds a copy of the node at `fromPath`, with the nodes and contents below it, to the open job as `name` below
/// `parentPath` (empty: at the top). False, with the reason when asked for, when the node itself cannot be added.
bool CopyNode(const NodeSource& source, const QString& fromPath, JobDocument& document, const QString& parentPath,
              const QString& name, QString* reason);

} // namespace JOBEDIT
