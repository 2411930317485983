#include "editactions.h"

#include "longact.h"
#include "mainwindow.h"
#include "useracts.h"

#include <QAction>
#include <QMenu>

namespace JOBEDIT
{

EditActions::EditActions(MainWindow& window) : QObject(&window), m_window(window)
{
    EditHistory& history = window.Document().History();
    const auto run = [this](const QString& title, void (EditHistory::*act)())
    {
        EditHistory& steps = m_window.Document().History();
        LongAct work(title, &m_window, steps);
        (steps.*act)();
    };
    m_undo = window.EditMenu()->addAction(tr("&Undo"), this, [run] { run(tr("Undo"), &EditHistory::Undo); });
    m_redo = window.EditMenu()->addAction(tr("&Redo"), this, [run] { run(tr("Redo"), &EditHistory::Redo); });
    m_undo->setObjectName("undo");
    m_redo->setObjectName("redo");
    m_undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    auto* acts = new UserActs(history, this);
    for (QAction* action : {m_undo, m_redo})
    {
        action->setShortcutContext(Qt::ApplicationShortcut);
        acts->AddJobAction(action);
    }
    connect(&history, &EditHistory::Changed, this, &EditActions::Follow);
    // The languages and the labels of the values may be others by now.
    connect(window.EditMenu(), &QMenu::aboutToShow, this, &EditActions::Follow);
    Follow();
}

void EditActions::Follow()
{
    const EditHistory& history = m_window.Document().History();
    const auto show = [](QAction& action, bool enabled, const QString& name, QString text)
    {
        action.setEnabled(enabled);
        // An ampersand in the name of a step is no mnemonic.
        text += name.isEmpty() ? QString() : ' ' + QString(name).replace('&', "&&");
        action.setText(text);
        action.setStatusTip(name);
    };
    show(*m_undo, history.CanUndo(), history.UndoText(), tr("&Undo"));
    show(*m_redo, history.CanRedo(), history.RedoText(), tr("&Redo"));
}

} // namespace JOBEDIT
