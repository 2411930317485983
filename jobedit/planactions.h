#pragma once

#include <QObject>
#include <QSet>

class QDockWidget;
class QTimer;

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

class MainWindow;
class PlanPane;

/// The frequency plan in the window of the editor: a dock that follows the job while it is shown, the selection of
/// nodes both ways, and the export of the picture.
class PlanActions : public QObject
{
    Q_OBJECT

public:
    explicit PlanActions(MainWindow& window);

    PlanPane& Pane() { return *m_pane; }
    bool ExportTo(const QString& fileName);

private:
    void Slot_OnContentChanged(const TKE::ValueBase& value);
    void Slot_OnJobChanged();
    void Slot_OnExport();
    void Show(bool on);
    void Refresh();
    void FollowSelection();

    MainWindow& m_window;
    QDockWidget* m_dock;
    PlanPane* m_pane;
    QTimer* m_coalesce;
    bool m_inSight = false;  // shown and not behind another tab
    bool m_stale = true;     // as a whole
    QSet<QString> m_changed; // paths of the nodes whose values changed since the plan was shown
};

} // namespace JOBEDIT
