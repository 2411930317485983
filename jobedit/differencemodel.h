#pragma once

#include "jobdiff.h"
#include "valuewriting.h"

#include <QAbstractTableModel>
#include <QHash>

namespace JOBEDIT
{

/// Differences as rows with tick boxes, for a comparison of which one side may take over what is ticked.
class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Place,
        Parameter,
        Key,
        Left,
        Right,
        Reason, ///< why it was not taken over
        ColumnCount,
    };

    DifferenceModel(const QString& leftName, const QString& rightName, QObject* parent);

    /// All are ticked or none is.
    void SetDifferences(std::vector<Difference> differences, bool ticked);
    /// Moves the rows of `other` here, with their ticks.
    void TakeFrom(DifferenceModel& other);
    const std::vector<Difference>& GetDifferences() const { return m_differences; }
    void SwapNames();
    void SetRefusals(const std::vector<Refusal>& refusals);

    void Tick(const QModelIndexList& rows, bool on);
    bool IsTicked(const QModelIndex& index) const { return m_ticked[size_t(index.row())]; }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_differences.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : int(ColumnCount); }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    void Ticked();

private:
    QString TextOf(const Difference& difference, int column) const;

    QString m_leftName;
    QString m_rightName;
    std::vector<Difference> m_differences;
    std::vector<bool> m_ticked;
    QHash<QString, QString> m_refusals; // reason by path
};

} // namespace JOBEDIT
