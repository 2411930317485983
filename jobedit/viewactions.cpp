#include "viewactions.h"

#include "dialogpane.h"
#include "languages.h"
#include "mainwindow.h"
#include "nightcolours.h"
#include "nodepane.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QMenu>
#include <QTabWidget>
#include <QTreeView>

namespace JOBEDIT
{

ViewActions::ViewActions(MainWindow& window) : QObject(&window), m_window(window)
{
    QMenu* menu = window.ViewMenu();
    AddForms();
    menu->addSeparator();
    QAction* messages = window.MessageDock()->toggleViewAction();
    messages->setText(MainWindow::tr("&Messages"));
    menu->addAction(messages);
    QAction* night = menu->addAction(MainWindow::tr("Night &Colours"));
    night->setCheckable(true);
    night->setChecked(NightColours::AreOn());
    connect(night, &QAction::toggled, this, &NightColours::Switch);
    auto* languages = new Languages(menu);
    connect(languages, &Languages::Chosen, &window, &MainWindow::LanguageChosen);
    menu->addMenu(languages);
    menu->addSeparator();
    menu->addAction(MainWindow::tr("&Next Pane"), this, [this] { MovePane(1); })->setShortcut(Qt::Key_F6);
    menu->addAction(MainWindow::tr("&Previous Pane"), this, [this] { MovePane(-1); })->setShortcut(Qt::SHIFT | Qt::Key_F6);
}

void ViewActions::AddForms()
{
    QMenu* menu = m_window.ViewMenu();
    DialogPane* dialog = &m_window.Dialog();
    auto* forms = new QActionGroup(menu);
    const auto addForm = [&](const QString& text, Qt::Key key, Form form)
    {
        QAction* action = menu->addAction(text, dialog, [dialog, form] { dialog->SetForm(form); });
        action->setShortcut(Qt::CTRL | key);
        action->setCheckable(true);
        action->setChecked(dialog->GetForm() == form);
        forms->addAction(action);
        connect(dialog, &DialogPane::FormChanged, action,
                [dialog, action, form] { action->setChecked(dialog->GetForm() == form); });
    };
    addForm(MainWindow::tr("&Job Form"), Qt::Key_1, Form::Job);
    addForm(MainWindow::tr("&Stand-Alone Form"), Qt::Key_2, Form::StandAlone);
}

QList<QWidget*> ViewActions::Panes() const
{
    QList<QWidget*> panes{&m_window.Nodes(), &m_window.Dialog(), m_window.Dialog().GetDialog()};
    for (QDockWidget* dock : m_window.findChildren<QDockWidget*>())
        panes << dock;
    return panes;
}

int ViewActions::CurrentPane() const
{
    const QList<QWidget*> panes = Panes();
    const QWidget* focus = m_window.focusWidget();
    int pane = 0;
    // The dialog stands within the pane of the switch: the innermost counts.
    for (int index = 0; index < panes.size(); ++index)
        if (panes[index] && focus && (panes[index] == focus || panes[index]->isAncestorOf(focus)))
            pane = index;
    return pane;
}

void ViewActions::MovePane(int step)
{
    const QList<QWidget*> panes = Panes();
    const int count = int(panes.size());
    int pane = CurrentPane();
    do
        pane = (pane + step + count) % count;
    while (!panes[pane] || !panes[pane]->isVisible());
    FocusPane(pane);
}

void ViewActions::FocusPane(int pane)
{
    switch (pane)
    {
    case 0:
        return m_window.Nodes().View()->setFocus(Qt::TabFocusReason);
    case 1:
        return m_window.Dialog().FocusSwitch();
    case 2:
        return m_window.Dialog().FocusDialog();
    }
    const QWidget* dock = Panes().value(pane);
    QWidget* inner = dock ? static_cast<const QDockWidget*>(dock)->widget() : nullptr;
    // What stands in the dock, or the first in it that takes the keyboard.
    for (QWidget* next = inner; next && (next == inner || inner->isAncestorOf(next)); next = next->nextInFocusChain())
        if ((next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && (next == inner || next->isVisibleTo(inner)))
            return next->setFocus(Qt::TabFocusReason);
}

} // namespace JOBEDIT
