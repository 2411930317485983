#include "nodetreemodel.h"

#include "chains.h"

#include <QGuiApplication>
#include <QPalette>

namespace JOBEDIT
{

namespace
{

constexpr int numberRole = Qt::UserRole + 1;

} // namespace

NodeTreeModel::NodeTreeModel(QObject* parent) : QStandardItemModel(parent) {}

void NodeTreeModel::SetNodes(std::vector<JobNode> nodes)
{
    clear();
    setHorizontalHeaderLabels({tr("Node"), tr("Type")});
    m_nodes = std::move(nodes);
    m_numbers.clear();
    m_items.clear();
    m_items.reserve(m_nodes.size());
    for (const JobNode& node : m_nodes)
    {
        QList<QStandardItem*> row{new QStandardItem(node.name), new QStandardItem(node.type)};
        for (QStandardItem* item : row)
            item->setData(int(m_items.size()), numberRole);
        QStandardItem* above = node.parent < 0 ? invisibleRootItem() : m_items[size_t(node.parent)];
        m_numbers.insert(node.path, m_items.size());
        m_items.push_back(row.first());
        above->appendRow(row);
    }
}

const JobNode* NodeTreeModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? &m_nodes[size_t(index.data(numberRole).toInt())] : nullptr;
}

QModelIndex NodeTreeModel::IndexOf(const QString& path) const
{
    const auto found = m_numbers.constFind(path.endsWith('/') ? path : path + '/');
    return found == m_numbers.constEnd() ? QModelIndex() : m_items[*found]->index();
}

Qt::ItemFlags NodeTreeModel::flags(const QModelIndex& index) const
{
    return QStandardItemModel::flags(index) & ~Qt::ItemIsEditable;
}

QVariant NodeTreeModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::ToolTipRole && index.isValid())
    {
        const JobNode& node = *NodeOf(index);
        return node.type.isEmpty() ? node.path : tr("%1\nType: %2").arg(node.path, node.type);
    }
    const QVariant data = QStandardItemModel::data(index, role);
    // Asked for at each painting, so that it follows the palette.
    if (role == Qt::ForegroundRole && !HasDialog(*NodeOf(index)))
        return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    return data;
}

} // namespace JOBEDIT
