#include "nodeactions.h"

#include "addnodedialog.h"
#include "dialogpane.h"
#include "longact.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "namedialog.h"
#include "nodecopy.h"
#include "nodepane.h"

#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTreeView>

namespace JOBEDIT
{

NodeActions::NodeActions(MainWindow& window) : QObject(&window), m_window(window)
{
    QMenu* menu = window.NodeMenu();
    menu->addSeparator();
    AddAction(tr("&Add Chain..."), Qt::Key_Insert, &NodeActions::Add);
    m_duplicate = AddAction(tr("&Duplicate..."), {}, &NodeActions::Duplicate);
    m_rename = AddAction(tr("&Rename..."), Qt::Key_F2, &NodeActions::Rename);
    m_remove = AddAction(tr("Re&move"), QKeySequence::Delete, &NodeActions::Remove);
    connect(&window.Nodes(), &NodePane::CurrentChanged, this, &NodeActions::EnableActions);
}

void NodeActions::Add()
{
    CommitPendingEdit();
    const JobNode* current = m_window.Nodes().GetCurrentNode();
    AddNodeDialog dialog(m_window.Document(), current ? current->path : QString(), &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString reason;
    const QString path =
        AddNodeOfKind(m_window.Document(), *dialog.GetKind(), *dialog.GetPlace(), dialog.GetName(), reason);
    if (path.isEmpty())
        return Fail(tr("%1 could not be added.").arg(dialog.GetName()), reason);
    m_window.Nodes().SelectNode(path);
}

void NodeActions::Duplicate()
{
    const JobNode* current = m_window.Nodes().GetCurrentNode();
    if (!current || current->parent < 0)
        return;
    CommitPendingEdit();
    const QString path = current->path;
    const QString parent = ParentPath(path);
    const QString name = NameDialog::Ask(
        tr("Duplicate"), tr("&Name of the copy of %1:").arg(path), UniqueNodeName(parent, current->name),
        [&](const QString& wanted) { return NodeNameFault(parent, wanted); }, &m_window);
    if (name.isEmpty())
        return;
    QString reason;
    if (m_window.Document().DuplicateNode(path, name, &reason))
        m_window.Nodes().SelectNode(parent + name);
    else
        Fail(tr("%1 could not be duplicated.").arg(path), reason);
}

void NodeActions::Rename()
{
    const JobNode* current = m_window.Nodes().GetCurrentNode();
    if (!current || current->parent < 0)
        return;
    CommitPendingEdit();
    const QString path = current->path;
    const QString parent = ParentPath(path);
    const QString before = current->name;
    const QString name = NameDialog::Ask(
        tr("Rename"), tr("New &name of %1:").arg(path), before,
        [&](const QString& wanted) { return wanted == before ? QString() : NodeNameFault(parent, wanted); }, &m_window);
    if (name.isEmpty() || name == before)
        return;
    QString reason;
    if (m_window.Document().RenameNode(path, name, &reason))
        m_window.Nodes().SelectNode(parent + name);
    else
        Fail(tr("%1 could not be renamed.").arg(path), reason);
}

void NodeActions::Remove()
{
    QStringList paths;
    // What stands below another of them goes with it.
    for (const JobNode& node : m_window.Nodes().GetSelectedNodes())
        if (node.parent >= 0 && (paths.isEmpty() || !node.path.startsWith(paths.last())))
            paths << node.path;
    if (paths.isEmpty())
        return;
    qsizetype count = 0;
    qsizetype reached = 0; // of the paths, which stand in the order of the nodes
    for (const JobNode& node : m_window.Nodes().GetNodes())
    {
        reached += reached < paths.size() && node.path == paths[reached];
        count += reached > 0 && node.path.startsWith(paths[reached - 1]);
    }
    // A key hit by chance must not take a section away.
    if (count > 1 &&
        QMessageBox::question(&m_window, tr("Remove"), tr("Remove %1 nodes with all their parameters?").arg(count)) !=
            QMessageBox::Yes)
        return;
    EditHistory& history = m_window.Document().History();
    LongAct work(tr("Remove"), &m_window, history);
    const EditHistory::Step step(history, {});
    qint64 done = 0;
    for (const QString& path : paths)
    {
        if (!history.MayGoOn(done++, paths.size()))
            return m_window.statusBar()->showMessage(
                MainWindow::tr("%1: cancelled, nothing has changed").arg(tr("Remove")), 8000);
        QString reason;
        if (m_window.Document().RemoveNode(path, &reason))
            m_window.statusBar()->showMessage(tr("%1 removed").arg(path), 8000);
        else
            Fail(tr("%1 could not be removed.").arg(path), reason);
    }
}

QAction* NodeActions::AddAction(const QString& text, const QKeySequence& key, void (NodeActions::*operation)())
{
    QAction* action = m_window.NodeMenu()->addAction(text, this, operation);
    // The keys belong to the tree: in a field they edit the field.
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_window.Nodes().View()->addAction(action);
    return action;
}

void NodeActions::EnableActions()
{
    // What stands at the top is the job itself.
    const JobNode* current = m_window.Nodes().GetCurrentNode();
    for (QAction* action : {m_duplicate, m_rename, m_remove})
        action->setEnabled(current && current->parent >= 0);
}

void NodeActions::Fail(const QString& text, const QString& reason)
{
    m_window.Messages().Add(TKE::Severity::Error, text, reason);
    QMessageBox::warning(&m_window, tr("Job Editor"), text + "\n\n" + reason);
}

} // namespace JOBEDIT
