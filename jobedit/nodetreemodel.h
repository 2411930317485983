#pragma once

#include "jobnode.h"

#include <QHash>
#include <QStandardItemModel>
#include <vector>

namespace JOBEDIT
{

/// The nodes of the job as a tree: name and type text. Nodes without a dialog are dimmed.
class NodeTreeModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit NodeTreeModel(QObject* parent = nullptr);

    void SetNodes(std::vector<JobNode> nodes);
    const std::vector<JobNode>& GetNodes() const { return m_nodes; }
    /// Null for an index that is not valid. Valid until the next SetNodes.
    const JobNode* NodeOf(const QModelIndex& index) const;
    /// Invalid when no node has this path ("/" at the end or not).
    QModelIndex IndexOf(const QString& path) const;

    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<JobNode> m_nodes;
    QHash<QString, size_t> m_numbers;    // by path
    std::vector<QStandardItem*> m_items; // one per node, owned by the model
};

} // namespace JOBEDIT
