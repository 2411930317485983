#include "differencemodel.h"

namespace JOBEDIT
{

DifferenceModel::DifferenceModel(const QString& leftName, const QString& rightName, QObject* parent)
    : QAbstractTableModel(parent), m_leftName(leftName), m_rightName(rightName)
{
}

void DifferenceModel::SetDifferences(std::vector<Difference> differences, bool ticked)
{
    beginResetModel();
    m_differences = std::move(differences);
    m_ticked.assign(m_differences.size(), ticked);
    endResetModel();
    emit Ticked();
}

void DifferenceModel::TakeFrom(DifferenceModel& other)
{
    beginResetModel();
    other.beginResetModel();
    m_differences = std::exchange(other.m_differences, {});
    m_ticked = std::exchange(other.m_ticked, {});
    m_refusals = std::exchange(other.m_refusals, {});
    other.endResetModel();
    endResetModel();
    emit Ticked();
}

void DifferenceModel::SwapNames()
{
    std::swap(m_leftName, m_rightName);
    emit headerDataChanged(Qt::Horizontal, Left, Right);
}

void DifferenceModel::SetRefusals(const std::vector<Refusal>& refusals)
{
    m_refusals.clear();
    for (const Refusal& refusal : refusals)
        m_refusals.insert(refusal.path, refusal.reason);
    if (!m_differences.empty())
        emit dataChanged(index(0, Reason), index(rowCount() - 1, Reason));
}

void DifferenceModel::Tick(const QModelIndexList& rows, bool on)
{
    for (const QModelIndex& row : rows)
        m_ticked[size_t(row.row())] = on;
    if (!m_differences.empty())
        emit dataChanged(index(0, Place), index(rowCount() - 1, Place), {Qt::CheckStateRole});
    emit Ticked();
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    // A name that is cut stands in the tool tip.
    const bool isTip = role == Qt::ToolTipRole && (section == Left || section == Right);
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && !isTip))
        return {};
    switch (section)
    {
    case Place:
        return tr("Node");
    case Parameter:
        return tr("Parameter");
    case Key:
        return tr("Key");
    case Left:
        return m_leftName;
    case Right:
        return m_rightName;
    default:
        return tr("Not taken over because");
    }
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) // a view that shows nothing asks for that
        return {};
    const Difference& difference = m_differences[size_t(index.row())];
    switch (role)
    {
    case Qt::DisplayRole:
        return TextOf(difference, index.column());
    case Qt::ToolTipRole:
        return index.column() == Parameter && difference.descriptor ? difference.descriptor->description
                                                                    : TextOf(difference, index.column());
    case Qt::CheckStateRole:
        if (index.column() == Place)
            return IsTicked(index) ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool DifferenceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Place)
        return false;
    Tick({index}, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == Place ? flags | Qt::ItemIsUserCheckable : flags;
}

QString DifferenceModel::TextOf(const Difference& difference, int column) const
{
    const bool node = difference.IsNode();
    switch (column)
    {
    case Place:
        return difference.node.isEmpty() ? tr("(the chain itself)") : difference.node.chopped(1);
    case Parameter:
        if (!node) // the key says it where there is no label
            return difference.Label() == difference.key ? QString() : difference.Label();
        return difference.kind == Difference::Kind::Changed ? tr("Type of the node") : tr("Whole node");
    case Key:
        return difference.key;
    case Left:
        return difference.kind == Difference::Kind::OnlyRight ? tr("(missing)") : difference.LeftText();
    case Right:
        return difference.kind == Difference::Kind::OnlyLeft ? tr("(missing)") : difference.RightText();
    default:
        return m_refusals.value(difference.Path());
    }
}

} // namespace JOBEDIT
