#include "nodetreemodel.h"

#include "chains.h"

#include <QGuiApplication>
#include <QPalette>
#include <utility>

namespace JOBEDIT
{

NodeTreeModel::NodeTreeModel(QObject* parent) : QAbstractItemModel(parent) {}

void NodeTreeModel::SetNodes(std::vector<JobNode> nodes)
{
    beginResetModel();
    m_nodes = std::move(nodes);
    m_numbers.clear();
    m_numbers.reserve(qsizetype(m_nodes.size()));
    for (size_t number = 0; number < m_nodes.size(); ++number)
        m_numbers.insert(m_nodes[number].path, int(number));
    m_places.assign(m_nodes.size() + 1, {});
    for (size_t number = 0; number < m_nodes.size(); ++number)
        m_places[number + 1].row = m_places[m_nodes[number].parent + 1].belowCount++;
    int begin = 0;
    for (Place& place : m_places)
        place.belowBegin = std::exchange(begin, begin + place.belowCount);
    m_below.resize(m_nodes.size());
    for (size_t number = 0; number < m_nodes.size(); ++number)
        m_below[PlaceOf(m_nodes[number].parent).belowBegin + m_places[number + 1].row] = int(number);
    endResetModel();
}

const JobNode* NodeTreeModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? &m_nodes[size_t(index.internalId())] : nullptr;
}

QModelIndex NodeTreeModel::IndexOf(const QString& path) const
{
    const auto found = m_numbers.constFind(path.endsWith('/') ? path : path + '/');
    return found == m_numbers.constEnd() ? QModelIndex() : createIndex(PlaceOf(*found).row, 0, quintptr(*found));
}

QModelIndex NodeTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Place& above = PlaceOf(parent);
    if (row < 0 || row >= above.belowCount || column < 0 || column >= columnCount(parent))
        return {};
    return createIndex(row, column, quintptr(m_below[above.belowBegin + row]));
}

QModelIndex NodeTreeModel::parent(const QModelIndex& index) const
{
    const int above = index.isValid() ? NodeOf(index)->parent : -1;
    return above < 0 ? QModelIndex() : createIndex(PlaceOf(above).row, 0, quintptr(above));
}

int NodeTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : PlaceOf(parent).belowCount;
}

int NodeTreeModel::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant NodeTreeModel::data(const QModelIndex& index, int role) const
{
    const JobNode* node = NodeOf(index);
    if (!node)
        return {};
    switch (role)
    {
    case Qt::DisplayRole:
        return index.column() == 0 ? node->name : node->type;
    case Qt::ToolTipRole:
        return node->type.isEmpty() ? node->path : tr("%1\nType: %2").arg(node->path, node->type);
    case Qt::ForegroundRole:
        // Asked for at each painting, so that it follows the palette.
        return HasDialog(*node) ? QVariant() : QGuiApplication::palette().brush(QPalette::PlaceholderText);
    default:
        return {};
    }
}

QVariant NodeTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("Node") : tr("Type");
}

} // namespace JOBEDIT
