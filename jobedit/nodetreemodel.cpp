#include "nodetreemodel.h"

#include "chains.h"

#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <algorithm>
#include <utility>

namespace JOBEDIT
{

NodeTreeModel::NodeTreeModel(QObject* parent) : QAbstractItemModel(parent) {}

void NodeTreeModel::SetNodes(std::vector<JobNode> nodes)
{
    beginResetModel();
    m_nodes = std::move(nodes);
    m_texts.clear();
    m_textsOf.clear();
    MakePlaces();
    endResetModel();
}

void NodeTreeModel::SetFilter(const QString& text)
{
    if (text.toCaseFolded() == m_filter)
        return;
    beginResetModel();
    m_filter = text.toCaseFolded();
    MakePlaces();
    endResetModel();
}

void NodeTreeModel::MakePlaces()
{
    const std::vector<bool> shown = FindShown();
    m_places.assign(m_nodes.size() + 1, {});
    int count = 0;
    for (size_t number = 0; number < m_nodes.size(); ++number)
        if (shown.empty() || shown[number])
        {
            m_places[number + 1].row = m_places[size_t(m_nodes[number].parent) + 1].belowCount++;
            ++count;
        }
    int begin = 0;
    for (Place& place : m_places)
        place.belowBegin = std::exchange(begin, begin + place.belowCount);
    m_below.resize(size_t(count));
    for (size_t number = 0; number < m_nodes.size(); ++number)
        if (const int row = m_places[number + 1].row; row >= 0)
            m_below[size_t(PlaceOf(m_nodes[number].parent).belowBegin) + size_t(row)] = int(number);
}

// Empty when all are.
std::vector<bool> NodeTreeModel::FindShown()
{
    if (m_filter.isEmpty())
        return {};
    CollectTexts();
    std::vector<bool> matching(m_texts.size());
    for (size_t text = 0; text < m_texts.size(); ++text)
        matching[text] = m_texts[text].contains(m_filter);
    // Each node stands before those below it.
    std::vector<bool> shown(m_nodes.size());
    for (size_t number = 0; number < m_nodes.size(); ++number)
    {
        const auto [name, type] = m_textsOf[number];
        const int above = m_nodes[number].parent;
        shown[number] = matching[size_t(name)] || matching[size_t(type)] || (above >= 0 && shown[size_t(above)]);
    }
    for (size_t number = m_nodes.size(); number-- > 0;)
        if (const int above = m_nodes[number].parent; above >= 0 && shown[number])
            shown[size_t(above)] = true;
    return shown;
}

void NodeTreeModel::CollectTexts()
{
    if (!m_textsOf.empty())
        return;
    QHash<QString, int> numbers;
    const auto numberOf = [&](const QString& text)
    {
        const auto found = numbers.constFind(text);
        if (found != numbers.constEnd())
            return *found;
        m_texts.push_back(text.toCaseFolded());
        return *numbers.insert(text, int(m_texts.size() - 1));
    };
    m_textsOf.reserve(m_nodes.size());
    for (const JobNode& node : m_nodes)
        m_textsOf.emplace_back(numberOf(node.name), numberOf(node.type));
}

int NodeTreeModel::NumberOf(const QString& path) const
{
    const auto found = std::ranges::find(m_nodes, path.endsWith('/') ? path : path + '/', &JobNode::path);
    return found == m_nodes.end() ? -1 : int(found - m_nodes.begin());
}

QModelIndex NodeTreeModel::IndexOf(int number) const
{
    return number < 0 || PlaceOf(number).row < 0 ? QModelIndex()
                                                 : createIndex(PlaceOf(number).row, 0, quintptr(number));
}

QModelIndex NodeTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Place& above = PlaceOf(NumberOf(parent));
    if (row < 0 || row >= above.belowCount || column < 0 || column >= columnCount(parent))
        return {};
    return createIndex(row, column, quintptr(m_below[above.belowBegin + row]));
}

QModelIndex NodeTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? IndexOf(m_nodes[size_t(NumberOf(index))].parent) : QModelIndex();
}

int NodeTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : PlaceOf(NumberOf(parent)).belowCount;
}

int NodeTreeModel::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant NodeTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const JobNode& node = m_nodes[size_t(NumberOf(index))];
    switch (role)
    {
    case Qt::DisplayRole:
        return index.column() == 0 ? node.name : node.type;
    case Qt::ToolTipRole:
        return node.type.isEmpty() ? node.path : tr("%1\nType: %2").arg(node.path, node.type);
    case Qt::ForegroundRole:
        // Asked for at each painting, so that it follows the palette.
        return HasDialog(node) ? QVariant() : QGuiApplication::palette().color(QPalette::PlaceholderText);
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
