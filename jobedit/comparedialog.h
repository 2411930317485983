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
/// over. Return leads to the field. Deletes itself when it is closed, and when the job is another one.
///
/// The job may be edited while the list is open: coming back to it, one sees what is left.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// `holder` is kept for as long as the right side is needed.
    CompareDialog(JobDocument& document, CompareSides sides, std::shared_ptr<const void> holder,
                  const CompareTexts& texts, QWidget* parent);

    /// Compares; false when the user cancelled it. Ticks all when asked to.
    bool Compare(bool ticked);
    /// Shows what `other`, which compares the same and goes, shows: differences, ticks, place.
    void TakeView(CompareDialog& other);
    const CompareSides& GetSides() const { return m_sides; }
    DifferenceModel& Model() { return *m_model; }
    /// Brings the list to the front, with the keyboard.
    void Activate();
    /// Makes room for what stands at this place of the screen.
    void KeepOff(const QRect& place);

signals:
    /// The user wants to see the field, or the node where the path ends in "/".
    void Wanted(const QString& path);
    /// Something could not be taken over.
    void Refused(const QString& path, const QString& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeLayout(const CompareTexts& texts);
    void AddWays(bool both);
    void Go(const QString& base);
    void Outdate();
    void CloseWithoutNodes();
    void Refresh();
    bool Fill(bool ticked);
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
    bool m_outdated = false; // the job has changed since it was compared
};

} // namespace JOBEDIT
