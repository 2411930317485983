#pragma once

#include "jobnode.h"

#include <QAbstractItemModel>
#include <QHash>
#include <vector>

namespace JOBEDIT
{

/// The nodes of the job as a tree: name and type text. Nodes without a dialog are dimmed.
class NodeTreeModel : public QAbstractItemModel
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

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// The place of a node in the tree. The number of the node stands in the indices.
    struct Place
    {
        int row = 0;        ///< among those with the same parent
        int belowBegin = 0; ///< in m_below
        int belowCount = 0;
    };
    const Place& PlaceOf(int number) const { return m_places[number + 1]; }
    const Place& PlaceOf(const QModelIndex& index) const
    {
        return PlaceOf(index.isValid() ? int(index.internalId()) : -1);
    }

    std::vector<JobNode> m_nodes;
    QHash<QString, int> m_numbers;      // of the nodes, by path
    std::vector<Place> m_places = {{}}; // that of the root, then one per node
    std::vector<int> m_below;           // numbers of nodes; those with the same parent side by side
};

} // namespace JOBEDIT
