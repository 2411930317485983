#pragma once

#include "valuescan.h"

#include <QDockWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeView;

namespace JOBEDIT
{

class MainWindow;
class ValuesModel;

/// All values of the job in one list, as a tree or flat and sorted, filtered, and edited in place. It follows the job
/// while it is visible.
class ValuesDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ValuesDock(MainWindow& window);
    ~ValuesDock() override;

    QTreeView* View() const { return m_view; }
    QLineEdit* Filter() const { return m_filter; }
    ValuesModel& Model() { return *m_model; }
    /// Whether the list shows what was last asked for.
    bool IsUpToDate() const { return !m_stale && !m_scan->IsRunning() && !m_later.isActive(); }

signals:
    /// The field of this value, or the dialog of this node ("/" at the end), is wanted.
    void Activated(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Fill();
    void AddActions();
    QCheckBox* AddSwitch(const char* name, const QString& text, const QString& toolTip);

    ValueQuery Query() const;
    void Refresh();
    void Slot_OnReplaced();
    void Slot_OnContentChanged();
    void Slot_OnFinished(ValueListing& listing);
    void Slot_OnShapeChanged();
    void Slot_OnMenuRequested(const QPoint& position);
    void EditCurrent();
    void GoTo(const QString& path);
    void RestoreView(const QString& current, const QStringList& expanded);
    QStringList ExpandedPaths() const;

    MainWindow& m_window;
    ValuesModel* m_model;
    ValueScan* m_scan;
    QLineEdit* m_filter;
    QTreeView* m_view;
    QLabel* m_count;
    QCheckBox* m_asTree = nullptr;
    QCheckBox* m_onlyFromSaved = nullptr;
    QCheckBox* m_onlyFromDefault = nullptr;
    QCheckBox* m_onlyThisNode = nullptr;
    QTimer m_later;   // until the list is made anew
    QTimer m_repaint; // until contents are shown anew, once for many changes
    bool m_stale = true;
};

} // namespace JOBEDIT
