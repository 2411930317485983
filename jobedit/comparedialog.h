#pragma once

#include "takeover.h"

#include <QDialog>
#include <QModelIndex>

class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

namespace JOBEDIT
{

class DifferenceModel;
class JobDocument;

/// How a comparison is shown.
struct CompareTexts
{
    QString title;
    QString heading; ///< what is compared
    QString leftName;
    QString rightName;
    QString takeOver;     ///< text of the button
    QString close;        ///< text of the button that takes nothing over
    bool canSwap = false; ///< whether either side may take over from the other: both belong to the open job
};

/// The differences between the open job and something else as a list with tick boxes, a filter above it, and a button
/// that takes the ticked ones over into the open job. Space ticks the selected rows; what a filter hides is not taken
/// over. Deletes itself when it is closed.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// `holder` is kept for as long as the right side is needed.
    CompareDialog(JobDocument& document, CompareSides sides, std::shared_ptr<const void> holder,
                  const CompareTexts& texts, QWidget* parent);

    /// Compares; false when the user cancelled it. Ticks all when asked to.
    bool Compare(bool ticked);
    DifferenceModel& Model() { return *m_model; }

signals:
    /// Something could not be taken over.
    void Refused(const QString& path, const QString& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeLayout(const CompareTexts& texts);
    void FitColumns();
    void Swap();
    void TakeOverTicked();
    void TickShown(bool on);
    void ToggleSelected();
    void ShowCounts();
    void ApplyFilter(const QString& text);
    QModelIndexList ShownRows() const;

    JobDocument& m_document;
    CompareSides m_sides;
    std::shared_ptr<const void> m_holder;
    DifferenceModel* m_model;
    QSortFilterProxyModel* m_filtered;
    QLineEdit* m_filter;
    QTreeView* m_view;
    QLabel* m_counts;
    QPushButton* m_takeOver;
};

} // namespace JOBEDIT
