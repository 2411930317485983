#pragma once

#include "jobnode.h"

#include <QAbstractItemModel>
#include <vector>

namespace JOBEDIT
{

/// The nodes of the job as a tree: name and type text. Nodes without a dialog are dimmed. A filter keeps the nodes
/// whose name or type holds its text, with all above and below them.
///
/// It filters by itself, in two passes over flat tables: a proxy would take a tenth of a second for each key.
class NodeTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit NodeTreeModel(QObject* parent = nullptr);

    // Both reset the model.
    void SetNodes(std::vector<JobNode> nodes);
    /// Case does not matter; empty: all are shown.
    void SetFilter(const QString& text);

    // Nodes go by their numbers, which are valid until the next SetNodes; -1: none.
    const std::vector<JobNode>& GetNodes() const { return m_nodes; }
    /// Of the node with this path ("/" at the end or not), shown or not.
    int NumberOf(const QString& path) const;
    int NumberOf(const QModelIndex& index) const { return index.isValid() ? int(index.internalId()) : -1; }
    /// Invalid for a node that the filter hides.
    QModelIndex IndexOf(int number) const;
    int CountShown() const { return int(m_below.size()); }

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
        int row = -1;       ///< among those with the same parent; -1: hidden
        int belowBegin = 0; ///< in m_below
        int belowCount = 0;
    };
    const Place& PlaceOf(int number) const { return m_places[size_t(number) + 1]; }
    std::vector<bool> FindShown();
    void MakePlaces();
    void CollectTexts();

    std::vector<JobNode> m_nodes;
    std::vector<Place> m_places = {{}};         // that of the root, then one per node
    std::vector<int> m_below;                   // numbers of the nodes shown; those with the same parent side by side
    QString m_filter;                           // folded
    std::vector<QString> m_texts;               // names and types, folded and once each: a job repeats them many times
    std::vector<std::pair<int, int>> m_textsOf; // name and type of each node; made for the first filter
};

} // namespace JOBEDIT
