#include "valuesmodel.h"

#include "application/errorhandler.h"
#include "jobdocument.h"
#include "value/tree.h"
#include "valuetexts.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

namespace JOBEDIT
{

ValuesModel::ValuesModel(JobDocument& document, QObject* parent) : QAbstractItemModel(parent), m_document(document)
{
    m_listing.branches.emplace_back();
}

void ValuesModel::SetListing(ValueListing listing)
{
    beginResetModel();
    m_listing = std::move(listing);
    if (m_listing.branches.empty())
        m_listing.branches.emplace_back();
    endResetModel();
}

const ValueListing::Branch& ValuesModel::Above(const QModelIndex& index) const
{
    return m_listing.branches[index.internalId()];
}

bool ValuesModel::IsBranch(const QModelIndex& index) const
{
    return index.isValid() && quint32(index.row()) >= Above(index).rowCount;
}

quint32 ValuesModel::BranchAt(const QModelIndex& index) const
{
    return index.isValid() ? Above(index).branches[size_t(index.row()) - Above(index).rowCount] : 0;
}

TKE::ValueBase* ValuesModel::ValueAt(const QModelIndex& index) const
{
    if (!index.isValid() || IsBranch(index))
        return nullptr;
    return m_listing.Find(m_listing.rows[Above(index).firstRow + quint32(index.row())]);
}

QString ValuesModel::PathAt(const QModelIndex& index) const
{
    if (IsBranch(index))
        return m_listing.branches[BranchAt(index)].path;
    const TKE::ValueBase* value = ValueAt(index);
    return value ? value->GetPathName() : QString();
}

ChangeMark ValuesModel::MarkAt(const QModelIndex& index) const
{
    const TKE::ValueBase* value = ValueAt(index);
    return value ? ChangeMark::Of(m_document, *value) : ChangeMark();
}

QModelIndex ValuesModel::IndexOf(const QString& path) const
{
    const QString node = path.left(path.lastIndexOf(u'/') + 1);
    const auto& branches = m_listing.branches;
    const auto found = std::ranges::find(branches, node, &ValueListing::Branch::path);
    if (found == branches.end())
        return {};
    const auto branch = quint32(found - branches.begin());
    if (node == path)
    {
        const ValueListing::Branch& above = branches[found->parent];
        // A branch without any row is not shown.
        const bool isShown =
            branch && found->position < above.branches.size() && above.branches[found->position] == branch;
        return isShown ? createIndex(int(above.rowCount + found->position), 0, quintptr(found->parent)) : QModelIndex();
    }
    // A flat list is sorted, the values of a branch stand together in a tree.
    const ValueListing::Branch& within = m_listing.isFlat ? branches.front() : *found;
    for (quint32 row = 0; row < within.rowCount; ++row)
    {
        const ValueListing::Row& entry = m_listing.rows[within.firstRow + row];
        if (entry.branch != branch)
            continue;
        if (const TKE::ValueBase* value = m_listing.Find(entry); value && value->GetPathName() == path)
            return createIndex(int(row), 0, quintptr(m_listing.isFlat ? 0 : branch));
    }
    return {};
}

QModelIndex ValuesModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= ValueListing::ColumnCount || row >= rowCount(parent))
        return {};
    return createIndex(row, column, quintptr(BranchAt(parent)));
}

QModelIndex ValuesModel::parent(const QModelIndex& index) const
{
    const auto branch = quint32(index.internalId());
    if (!index.isValid() || branch == 0)
        return {};
    const ValueListing::Branch& above = m_listing.branches[branch];
    return createIndex(int(m_listing.branches[above.parent].rowCount + above.position), 0, quintptr(above.parent));
}

int ValuesModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() && (parent.column() > 0 || !IsBranch(parent)))
        return 0;
    const ValueListing::Branch& branch = m_listing.branches[BranchAt(parent)];
    return int(branch.rowCount + branch.branches.size());
}

int ValuesModel::columnCount(const QModelIndex&) const
{
    return ValueListing::ColumnCount;
}

QString ValuesModel::TextAt(const TKE::ValueBase& value, int column) const
{
    switch (column)
    {
    case ValueListing::Label:
        return ValueTexts::Label(value);
    case ValueListing::Content:
        return ValueTexts::OfContent(value);
    case ValueListing::Saved:
        return ValueTexts::OfStored(value.GetDescriptor(), m_document.SavedText(value));
    case ValueListing::Default:
        return ValueTexts::OfDefault(value.GetDescriptor());
    case ValueListing::Key:
        return value.GetName();
    case ValueListing::Path:
        return value.GetPathName();
    default:
        return {};
    }
}

QVariant ValuesModel::data(const QModelIndex& index, int role) const
{
    if (IsBranch(index))
    {
        const QString& path = m_listing.branches[BranchAt(index)].path;
        if (role == Qt::DisplayRole && index.column() == ValueListing::Label)
            return path.size() > 1 ? path.chopped(1).section(u'/', -1) : path;
        if (role == Qt::DisplayRole && index.column() == ValueListing::Path)
            return path;
        return {};
    }
    const TKE::ValueBase* value = ValueAt(index);
    if (!value)
        return {};
    switch (role)
    {
    case Qt::DisplayRole:
        return TextAt(*value, index.column());
    case Qt::EditRole:
        return value->GetText();
    case Qt::CheckStateRole:
        if (index.column() != ValueListing::Content || value->GetKind() != TKE::ValueKind::Bool)
            return {};
        return value->GetBool() ? Qt::Checked : Qt::Unchecked;
    case Qt::ForegroundRole:
        if (value->GetState() == TKE::stEnabled)
            return {};
        return QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
    {
        QStringList lines{value->GetDescriptor().description, MarkAt(index).InWords(m_document, *value)};
        lines.removeAll({});
        return lines.join(u'\n');
    }
    default:
        return {};
    }
}

bool ValuesModel::setData(const QModelIndex& index, const QVariant& data, int role)
{
    TKE::ValueBase* value = ValueAt(index);
    if (!value || value->GetState() != TKE::stEnabled)
        return false;
    if (role == Qt::CheckStateRole)
        return value->SetBool(data.toInt() == Qt::Checked);
    if (role != Qt::EditRole)
        return false;
    const QString path = value->GetPathName();
    QString reason;
    if (value->SetFromText(data.toString(), nullptr, &reason))
        return true;
    TKE::ErrorHandler::Interface().Report(TKE::Severity::Warning, reason, path);
    return false;
}

QVariant ValuesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section)
    {
    case ValueListing::Label:
        return tr("Label");
    case ValueListing::Content:
        return tr("Value");
    case ValueListing::Saved:
        return tr("Saved");
    case ValueListing::Default:
        return tr("Default");
    case ValueListing::Key:
        return tr("Key");
    case ValueListing::Path:
        return tr("Path");
    default:
        return {};
    }
}

Qt::ItemFlags ValuesModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (!IsBranch(index))
        flags |= Qt::ItemNeverHasChildren;
    const TKE::ValueBase* value = index.column() == ValueListing::Content ? ValueAt(index) : nullptr;
    if (value && value->GetState() == TKE::stEnabled)
        flags |= value->GetKind() == TKE::ValueKind::Bool ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

} // namespace JOBEDIT
