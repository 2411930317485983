#include "mainwindow.h"

#include "dialogpane.h"
#include "editactions.h"
#include "messagelist.h"
#include "nightcolours.h"
#include "nodepane.h"
#include "panelwindow.h"
#include "recentfiles.h"
#include "recoveryoffer.h"
#include "saving.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeView>
#include <algorithm>

namespace JOBEDIT
{

MainWindow::MainWindow(std::shared_ptr<const TKE::JobModel> model, QWidget* parent)
    : QMainWindow(parent)
    , m_document(new JobDocument(std::move(model), this))
    , m_nodes(new NodePane(this))
    , m_dialog(new DialogPane(this))
    , m_messages(new MessageList(this))
    , m_splitter(new QSplitter(this))
    , m_messageDock(new QDockWidget(tr("Messages"), this))
    , m_fileMenu(menuBar()->addMenu(tr("&File")))
    , m_editMenu(menuBar()->addMenu(tr("&Edit")))
    , m_nodeMenu(menuBar()->addMenu(tr("&Node")))
    , m_viewMenu(menuBar()->addMenu(tr("&View")))
    , m_toolsMenu(menuBar()->addMenu(tr("&Tools")))
    , m_helpMenu(menuBar()->addMenu(tr("&Help")))
{
    MakePanes();
    FillFileMenu();
    FillNodeMenu();
    FillViewMenu();
    new EditActions(*this);
    m_recovery = new RecoveryOffer(*this);
    m_helpMenu->addAction(tr("&About Job Editor"), this, &MainWindow::Slot_OnAbout);
    RestoreLayout();

    connect(m_document, &JobDocument::Replaced, this, &MainWindow::Slot_OnReplaced);
    connect(m_document, &JobDocument::NodesChanged, this, &MainWindow::Slot_OnNodesChanged);
    connect(&m_document->History(), &EditHistory::NodeMoved, this, &MainWindow::Slot_OnNodeMoved);
    connect(m_document, &JobDocument::FileNameChanged, this, &MainWindow::Slot_OnFileNameChanged);
    connect(m_document, &JobDocument::ModifiedChanged, this, &QWidget::setWindowModified);
    connect(m_nodes, &NodePane::CurrentChanged, m_dialog, [this] { m_dialog->ShowNode(m_nodes->GetCurrentNode()); });
    connect(m_nodes, &NodePane::Activated, m_dialog, &DialogPane::FocusDialog);
    m_reports = TKE::ErrorHandler::Interface().Subscribe(
        [this](const TKE::ErrorReport& report) { m_messages->Add(report.severity, report.text, report.details); });
    Slot_OnFileNameChanged();
    m_nodes->View()->setFocus();
}

MainWindow::~MainWindow()
{
    // Panels look into the tree, so they go while the document still holds it.
    m_dialog->ShowNode(nullptr);
}

bool MainWindow::NewFromSample()
{
    if (!MayGo())
        return false;
    TKE::FileError error;
    if (m_document->NewFromSample(error))
        return true;
    Fail(tr("The sample job could not be made."), error);
    return false;
}

bool MainWindow::OpenFile(const QString& fileName)
{
    if (!MayGo())
        return false;
    auto access = JobDocument::Access::ReadWrite;
    if (const QString holder = m_document->LockedBy(fileName); !holder.isEmpty())
    {
        QMessageBox question(QMessageBox::Question, tr("Open Job"),
                             tr("%1 is open in another editor: %2.").arg(QFileInfo(fileName).fileName(), holder),
                             QMessageBox::Cancel, this);
        question.setInformativeText(tr("Opened read-only, it can be saved under another name."));
        QPushButton* readOnly = question.addButton(tr("Open &Read-Only"), QMessageBox::AcceptRole);
        question.setDefaultButton(readOnly);
        question.exec();
        if (question.clickedButton() != readOnly)
            return false;
        access = JobDocument::Access::ReadOnly;
    }
    TKE::FileError error;
    if (!m_document->Open(fileName, access, error))
    {
        if (!QFileInfo::exists(fileName))
            RecentFiles::Remove(fileName);
        Fail(tr("%1 could not be opened.").arg(QFileInfo(fileName).fileName()), error);
        return false;
    }
    for (const TKE::FileError& warning : m_document->GetWarnings())
        m_messages->Add(TKE::Severity::Warning, warning.ToText());
    RecentFiles::Add(fileName);
    statusBar()->showMessage(tr("%1 opened").arg(m_document->GetFileName()), 5000);
    m_recovery->OfferForOpenJob();
    return true;
}

bool MainWindow::Save()
{
    return Saving(*this).Save();
}

bool MainWindow::SaveAs()
{
    return Saving(*this).SaveAs();
}

bool MainWindow::SaveTo(const QString& fileName)
{
    return Saving(*this).SaveTo(fileName);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!MayGo())
        return event->ignore();
    QSettings settings;
    settings.setValue("window/geometry", saveGeometry());
    settings.setValue("window/state", saveState());
    settings.setValue("window/splitter", m_splitter->saveState());
    event->accept();
}

void MainWindow::MakePanes()
{
    m_splitter->setObjectName("splitter");
    m_splitter->addWidget(m_nodes);
    m_splitter->addWidget(m_dialog);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setContentsMargins(6, 6, 6, 0);
    setCentralWidget(m_splitter);

    m_messageDock->setObjectName("messageDock");
    m_messageDock->setWidget(m_messages);
    m_messageDock->setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
    addDockWidget(Qt::BottomDockWidgetArea, m_messageDock);
    statusBar();
}

void MainWindow::FillFileMenu()
{
    QMenu* menu = m_fileMenu;
    menu->addAction(tr("&New from Sample"), QKeySequence::New, this, &MainWindow::NewFromSample);
    menu->addAction(tr("&Open..."), QKeySequence::Open, this, &MainWindow::Slot_OnOpen);
    auto* recent = new RecentFiles(menu);
    connect(recent, &RecentFiles::Chosen, this, &MainWindow::OpenFile);
    menu->addMenu(recent);
    menu->addAction(tr("Re&cover Edits..."), this, [this] { m_recovery->OfferAgain(); });
    menu->addSeparator();
    menu->addAction(tr("&Save"), QKeySequence::Save, this, &MainWindow::Save);
    menu->addAction(tr("Save &As..."), QKeySequence::SaveAs, this, &MainWindow::SaveAs);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
}

void MainWindow::FillNodeMenu()
{
    QMenu* menu = m_nodeMenu;
    m_panelMenu = menu->addMenu(tr("Open &Panel"));
    connect(menu, &QMenu::aboutToShow, this, &MainWindow::FillPanelMenu);
    connect(m_nodes, &NodePane::MenuRequested, this,
            [this](const QPoint& position)
            {
                FillPanelMenu();
                if (!m_panelMenu->isEmpty())
                    m_panelMenu->popup(position);
            });
    menu->addSeparator();
    menu->addAction(tr("&Find..."), QKeySequence::Find, m_nodes->Filter(),
                    [filter = m_nodes->Filter()]
                    {
                        filter->setFocus(Qt::ShortcutFocusReason);
                        filter->selectAll();
                    });
}

void MainWindow::FillViewMenu()
{
    QMenu* menu = m_viewMenu;
    auto* forms = new QActionGroup(menu);
    const auto addForm = [&](const QString& text, Qt::Key key, Form form)
    {
        QAction* action =
            menu->addAction(text, QKeySequence(Qt::CTRL | key), m_dialog, [this, form] { m_dialog->SetForm(form); });
        action->setCheckable(true);
        action->setChecked(m_dialog->GetForm() == form);
        forms->addAction(action);
        connect(m_dialog, &DialogPane::FormChanged, action,
                [this, action, form] { action->setChecked(m_dialog->GetForm() == form); });
    };
    addForm(tr("&Job Form"), Qt::Key_1, Form::Job);
    addForm(tr("&Stand-Alone Form"), Qt::Key_2, Form::StandAlone);
    menu->addSeparator();
    menu->addAction(m_messageDock->toggleViewAction());
    QAction* night = menu->addAction(tr("Night &Colours"));
    night->setCheckable(true);
    night->setChecked(NightColours::AreOn());
    connect(night, &QAction::toggled, this, &NightColours::Switch);
    menu->addSeparator();
    menu->addAction(tr("&Next Pane"), QKeySequence(Qt::Key_F6), this, [this] { MovePane(1); });
    menu->addAction(tr("&Previous Pane"), QKeySequence(Qt::SHIFT | Qt::Key_F6), this, [this] { MovePane(-1); });
}

void MainWindow::Slot_OnOpen()
{
    const QString start = QFileInfo(m_document->GetFileName()).absolutePath();
    const QString fileName =
        QFileDialog::getOpenFileName(this, tr("Open Job"), start, tr("Jobs (*.xml);;All files (*)"));
    if (!fileName.isEmpty())
        OpenFile(fileName);
}

void MainWindow::Slot_OnReplaced()
{
    for (PanelWindow* panel : findChildren<PanelWindow*>())
        panel->close();
    m_nodes->SetNodes(m_document->GetNodes());
}

void MainWindow::Slot_OnNodesChanged()
{
    for (PanelWindow* panel : findChildren<PanelWindow*>())
        if (!panel->IsAlive())
            panel->close();
    const JobNode* current = m_nodes->GetCurrentNode();
    const QString path = !m_movedPath.isEmpty() ? std::exchange(m_movedPath, {}) : current ? current->path : QString();
    m_nodes->UpdateNodes(m_document->GetNodes(), path);
}

void MainWindow::Slot_OnNodeMoved(const QString& from, const QString& to)
{
    const JobNode* current = m_nodes->GetCurrentNode();
    const QString path = !m_movedPath.isEmpty() ? m_movedPath : current ? current->path : QString();
    if (path.startsWith(from))
        m_movedPath = to + path.mid(from.size());
}

void MainWindow::Slot_OnFileNameChanged()
{
    const QString& fileName = m_document->GetFileName();
    const QString shown = fileName.isEmpty() ? tr("New job") : QFileInfo(fileName).fileName();
    setWindowTitle(m_document->IsReadOnly() ? tr("%1[*] (read-only) - Job Editor").arg(shown)
                                            : tr("%1[*] - Job Editor").arg(shown));
    setWindowFilePath(fileName);
    setWindowModified(m_document->IsModified());
}

void MainWindow::Slot_OnAbout()
{
    QMessageBox::about(this, tr("About Job Editor"),
                       tr("<h3>Job Editor %1</h3><p>Edits the parameters of the processing chains of jobs.</p>")
                           .arg(QCoreApplication::applicationVersion()));
}

void MainWindow::FillPanelMenu()
{
    m_panelMenu->clear();
    const JobNode* node = m_nodes->GetCurrentNode();
    if (node)
        for (const DirectPanel* panel : FindDirectPanels(*node))
            m_panelMenu->addAction(QCoreApplication::translate("JOBEDIT::DirectPanels", panel->title), this,
                                   [this, node = *node, panel] { (new PanelWindow(node, *panel, this))->show(); });
    m_panelMenu->setEnabled(!m_panelMenu->isEmpty());
}

void MainWindow::MovePane(int step)
{
    QWidget* const panes[] = {m_nodes, m_dialog, m_dialog->GetDialog(), m_messageDock};
    const QWidget* focus = QApplication::focusWidget();
    int pane = 0;
    // The dialog stands within the pane of the switch: the innermost counts.
    for (int index = 0; index < int(std::size(panes)); ++index)
        if (panes[index] && focus && (panes[index] == focus || panes[index]->isAncestorOf(focus)))
            pane = index;
    do
        pane = (pane + step + int(std::size(panes))) % int(std::size(panes));
    while (!panes[pane] || !panes[pane]->isVisible());
    switch (pane)
    {
    case 0:
        return m_nodes->View()->setFocus(Qt::TabFocusReason);
    case 1:
        return m_dialog->FocusSwitch();
    case 2:
        return m_dialog->FocusDialog();
    default:
        return m_messages->setFocus(Qt::TabFocusReason);
    }
}

bool MainWindow::MayGo()
{
    CommitPendingEdit();
    if (!m_document->IsModified())
        return true;
    const QString name =
        m_document->GetFileName().isEmpty() ? tr("The new job") : QFileInfo(m_document->GetFileName()).fileName();
    QMessageBox question(QMessageBox::Warning, tr("Job Editor"), tr("%1 has changes that are not saved.").arg(name),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec())
    {
    case QMessageBox::Save:
        return Save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindow::ShowMessages()
{
    m_messageDock->show();
}

void MainWindow::Fail(const QString& text, const TKE::FileError& error)
{
    m_messages->Add(TKE::Severity::Error, text, error.ToText());
    ShowMessages();
    // Before the window is up there is nobody to press a button: the message waits in the list.
    if (isVisible())
        QMessageBox(QMessageBox::Critical, tr("Job Editor"), text + "\n\n" + error.ToText(), QMessageBox::Ok, this)
            .exec();
}

void MainWindow::RestoreLayout()
{
    resize(1240, 780);
    m_splitter->setSizes({350, 890});
    resizeDocks({m_messageDock}, {90}, Qt::Vertical);
    const QSettings settings;
    restoreGeometry(settings.value("window/geometry").toByteArray());
    restoreState(settings.value("window/state").toByteArray());
    m_splitter->restoreState(settings.value("window/splitter").toByteArray());
}

} // namespace JOBEDIT
