#pragma once

#include "fieldindex.h"

#include <QAbstractTableModel>

namespace JOBEDIT
{

/// The fields found, best first, with what they hold now; where there are more of them, a last row says so.
class FindModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ColumnLabel,
        ColumnContent,
        ColumnNode,
        ColumnKey,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void SetResult(FieldIndex::Result result);
    const FieldIndex::Result& GetResult() const { return m_result; }
    /// Empty for the row that stands for the others.
    QString PathAt(int row) const { return m_result.paths.value(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    FieldIndex::Result m_result;
};

} // namespace JOBEDIT
