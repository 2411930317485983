#pragma once

#include "checker.h"

#include <QDockWidget>
#include <QElapsedTimer>
#include <QSet>
#include <QTimer>
#include <map>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace JOBEDIT
{

class MainWindow;

/// What is wrong with the values of the job. A job is checked when it comes, bit by bit while nothing else is to be
/// done; after an edit only the node that it was in. Return or a double click goes to the field.
class CheckDock : public QDockWidget
{
    Q_OBJECT

public:
    /// Puts itself into the window, its menus and its status bar.
    explicit CheckDock(MainWindow& window);

    /// Checks all values anew.
    void Start();
    /// Leaves a check under way where it is; what it found stays.
    void Stop();
    bool IsRunning() const { return m_isToBegin || m_next < m_nodes.size(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakeList();
    void Slot_OnContentChanged(const TKE::ValueBase& value);
    void Slot_OnNodeShown();
    void Slot_OnSlice();
    void Slot_OnActivated();
    void Check(const QString& nodePath, bool below);
    void Count(const std::vector<Finding>& findings, int sign);
    void ShowFindings();
    void ShowSummary();

    MainWindow& m_window;
    std::map<QString, std::vector<Finding>> m_findings; // by the path of the node
    qsizetype m_errors = 0;
    qsizetype m_warnings = 0;
    QStringList m_nodes; // that a check of all goes through
    qsizetype m_next = 0;
    QSet<QString> m_changed; // nodes
    bool m_isToBegin = false; // m_nodes is to be filled
    QElapsedTimer m_sinceShown;
    std::unique_ptr<Checker> m_checker;
    QTimer m_timer;
    bool m_isShown = true; // the list shows m_findings
    bool m_isStopped = false;
    QTreeWidget* m_list;
    QLabel* m_summary;
    QPushButton* m_stop;
    QLabel* m_status; // in the status bar
};

} // namespace JOBEDIT
