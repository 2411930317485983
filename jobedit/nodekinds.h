#pragma once

#include "jobdocument.h"

namespace JOBEDIT
{

/// A kind of node that a job can have, as the sample job has it.
struct NodeKind
{
    TKE::NodeSpec spec;               ///< the name is that of the sample
    std::vector<TKE::NodeSpec> above; ///< the nodes above it, from below the job's own node on
    bool isChain = false;             ///< has a dialog
    QString parameters;               ///< titles of its groups

    /// "HF" or "V/UHF".
    QString BandText() const;
};

/// Where a node of a kind can go: below the node at `path`, in these new nodes (each below the one before it).
struct NodePlace
{
    QString path;
    std::vector<TKE::NodeSpec> added;

    /// Path of the new node's parent.
    QString ParentPath() const;
};

/// One kind per type, band and groups of the sample's nodes; those with a dialog first, by type.
std::vector<NodeKind> NodeKinds(const std::shared_ptr<const TKE::JobModel>& model);

/// All places for the kind in the open job, the nearest to the node at `nearPath` first. The new nodes have names that
/// nobody else has.
std::vector<NodePlace> PlacesFor(const NodeKind& kind, const JobDocument& document, const QString& nearPath);

/// `name`, or it with a number where the node at `parentPath` has one of that name already.
QString UniqueNodeName(const QString& parentPath, const QString& name);
/// Why a node below `parentPath` (empty: at the top) cannot have the name; empty when it can.
QString NodeNameFault(const QString& parentPath, const QString& name);

/// Adds the node with what is new above it as one step of undo. The path of the node; empty with the reason when it
/// cannot be added, and nothing has changed then.
QString AddNodeOfKind(JobDocument& document, const NodeKind& kind, const NodePlace& place, const QString& name,
                      QString& reason);

} // namespace JOBEDIT
