#pragma once

#include "changemark.h"
#include "valuelisting.h"

#include <QAbstractItemModel>

namespace JOBEDIT
{

/// Shows a list of values, and writes what is edited in it. Each content is looked up when it is shown; values that
/// have gone meanwhile are empty rows until the next list comes.
class ValuesModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ValuesModel(JobDocument& document, QObject* parent);

    void SetListing(ValueListing listing);
    const ValueListing& GetListing() const { return m_listing; }

    /// Null for a node, and for a value that has gone.
    TKE::ValueBase* ValueAt(const QModelIndex& index) const;
    /// Of the value, or of the node ("/" at the end); empty for a value that has gone.
    QString PathAt(const QModelIndex& index) const;
    /// Whether it is a node.
    bool IsBranch(const QModelIndex& index) const;
    ChangeMark MarkAt(const QModelIndex& index) const;
    /// The row of the value or node; invalid when it is not in the list.
    QModelIndex IndexOf(const QString& path) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& data, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    // An index carries the branch that its row stands below. The values of a branch come before its branches.
    const ValueListing::Branch& Above(const QModelIndex& index) const;
    quint32 BranchAt(const QModelIndex& index) const;
    QString TextAt(const TKE::ValueBase& value, int column) const;

    JobDocument& m_document;
    ValueListing m_listing;
};

} // namespace JOBEDIT
