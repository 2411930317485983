#include "findmodel.h"

#include "fieldtexts.h"

namespace JOBEDIT
{

void FindModel::SetResult(FieldIndex::Result result)
{
    beginResetModel();
    m_result = std::move(result);
    endResetModel();
}

int FindModel::rowCount(const QModelIndex& parent) const
{
    const qsizetype shown = m_result.paths.size();
    return parent.isValid() ? 0 : int(shown + (m_result.count > shown));
}

int FindModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString path = PathAt(index.row());
    if (path.isEmpty())
        return index.column() == ColumnLabel
                   ? tr("... %1 more").arg(QLocale().toString(m_result.count - m_result.paths.size()))
                   : QVariant();
    const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(path);
    const qsizetype slash = path.lastIndexOf('/');
    switch (index.column())
    {
    case ColumnLabel:
        if (value && role == Qt::ToolTipRole)
            return value->GetDescriptor().description;
        return value ? FieldTexts::Label(*value) : QVariant();
    case ColumnContent:
        return value ? FieldTexts::Content(*value) : QVariant();
    case ColumnNode:
        return path.left(qMax<qsizetype>(slash, 0));
    default:
        return path.mid(slash + 1);
    }
}

QVariant FindModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section)
    {
    case ColumnLabel:
        return tr("Field");
    case ColumnContent:
        return tr("Value");
    case ColumnNode:
        return tr("Node");
    default:
        return tr("Key");
    }
}

} // namespace JOBEDIT
