#include "mainwindow.h"

#include "checkdock.h"
#include "compareactions.h"
#include "dialogpane.h"
#include "editactions.h"
#include "languages.h"
#include "filedrop.h"
#include "guidewindow.h"
#include "hintbar.h"
#include "lastplaces.h"
#include "lockquestion.h"
#include "longwork.h"
#include "findbar.h"
#include "fieldmarks.h"
#include "fieldmenu.h"
#include "messagelist.h"
#include "nodeactions.h"
#include "nodepane.h"
#include "panelwindow.h"
#include "planactions.h"
#include "recentfiles.h"
#include "reportactions.h"
#include "recoveryoffer.h"
#include "reuseactions.h"
#include "saving.h"
#include "valuesdock.h"
#include "viewactions.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace JOBEDIT
{

namespace
{

// The pieces of memory that a job leaves are put together as they are freed, in the slices in which it goes. Otherwise
// the C library would do that at once for millions of them, when a large piece is asked for: a step of 80 ms.
void JoinFreedMemoryAtOnce()
{
#ifdef __GLIBC__
    mallopt(M_MXFAST, 0);
#endif
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<const TKE::JobModel> model, QWidget* parent)
    : MainWindow(std::make_unique<JobDocument>(std::move(model)), parent)
{
}

MainWindow::MainWindow(std::unique_ptr<JobDocument> document, QWidget* parent)
    : QMainWindow(parent)
    , m_document(document.release())
    , m_nodes(new NodePane(this))
    , m_dialog(new DialogPane(this))
    , m_messages(new MessageList(this))
    , m_hint(new HintBar(this))
    , m_splitter(new QSplitter(this))
    , m_messageDock(new QDockWidget(tr("Messages"), this))
    , m_fileMenu(menuBar()->addMenu(tr("&File")))
    , m_editMenu(menuBar()->addMenu(tr("&Edit")))
    , m_nodeMenu(menuBar()->addMenu(tr("&Node")))
    , m_viewMenu(menuBar()->addMenu(tr("&View")))
    , m_toolsMenu(menuBar()->addMenu(tr("&Tools")))
    , m_helpMenu(menuBar()->addMenu(tr("&Help")))
{
    JoinFreedMemoryAtOnce();
    m_document->setParent(this);
    MakePanes();
    FillFileMenu();
    FillNodeMenu();
    m_viewActions = new ViewActions(*this);
    new EditActions(*this);
    m_compare = new CompareActions(*this);
    new ReuseActions(*this);
    new NodeActions(*this);
    new FieldMarks(*this);
    new FieldMenu(*this);
    m_recovery = new RecoveryOffer(*this);
    new ValuesDock(*this);
    connect(new FileDrop(*this), &FileDrop::Dropped, this, &MainWindow::OpenFile);
    m_helpMenu->addAction(tr("&Guide"), this, [this] { GuideWindow::Open(this); })->setShortcut(QKeySequence::HelpContents);
    m_helpMenu->addAction(tr("&About Job Editor"), this, &MainWindow::Slot_OnAbout);
    new FindBar(*this);
    new CheckDock(*this);
    new PlanActions(*this);
    new ReportActions(*this);

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
    Slot_OnReplaced();
    m_nodes->View()->setFocus();
    RestoreLayout(); // at last, when all docks are there
}

MainWindow::~MainWindow()
{
    // Panels look into the tree, so they go while the document still holds it.
    m_dialog->ShowNode(nullptr);
}

std::unique_ptr<JobDocument> MainWindow::TakeDocument()
{
    m_document->setParent(nullptr);
    return std::unique_ptr<JobDocument>(m_document);
}

void MainWindow::TakeView(MainWindow& other)
{
    restoreGeometry(other.saveGeometry());
    restoreState(other.saveState());
    m_splitter->restoreState(other.m_splitter->saveState());
    m_hint->setVisible(other.m_hint->isVisible());
    Saving(other).ReportRefusals();
    m_messages->TakeFrom(*other.m_messages);
    GoTo(other.GetPlace());
    m_nodes->Filter()->setText(other.m_nodes->Filter()->text()); // it may hide that place
    for (const PanelWindow* panel : other.findChildren<PanelWindow*>())
        panel->MakeAgain(this);
    m_compare->TakeView(*other.m_compare);
    if (other.findChild<GuideWindow*>())
        GuideWindow::Open(this);
    m_viewActions->FocusPane(other.m_viewActions->CurrentPane());
}

void MainWindow::KeepPlace() const
{
    if (!m_document->GetFileName().isEmpty())
        LastPlaces::Keep(m_document->GetFileName(), GetPlace());
}

Place MainWindow::GetPlace() const
{
    const JobNode* node = m_nodes->GetCurrentNode();
    const QTabWidget* dialog = m_dialog->GetDialog();
    return {node ? node->path : QString(), m_dialog->GetForm(), dialog ? dialog->currentIndex() : 0};
}

void MainWindow::GoTo(const Place& place)
{
    if (!m_nodes->SelectNode(place.node))
        return;
    m_dialog->SetForm(place.form);
    if (QTabWidget* dialog = m_dialog->GetDialog(); dialog && dialog->isTabEnabled(place.tab))
        dialog->setCurrentIndex(place.tab);
}

void MainWindow::OfferHint()
{
    m_hint->Offer();
}

bool MainWindow::NewFromSample()
{
    if (!Saving(*this).MayGo())
        return false;
    KeepPlace();
    return Run(
        tr("Making a new job"), [this](TKE::FileError& error) { return m_document->NewFromSample(error); },
        [this](const TKE::FileError& error) { return Fail(tr("The sample job could not be made."), error); });
}

bool MainWindow::OpenFile(const QString& fileName)
{
    if (!Saving(*this).MayGo())
        return false;
    auto access = JobDocument::Access::ReadWrite;
    if (const auto lock = m_document->LockOf(fileName))
    {
        using Choice = LockQuestion::Choice;
        const Choice choice =
            LockQuestion::Ask(*this, tr("Open Job"), fileName, *lock, tr("Open &Read-Only"),
                              tr("Opened read-only, it can be saved under another name."));
        if (choice == Choice::Cancelled)
            return false;
        if (choice == Choice::Other)
            access = JobDocument::Access::ReadOnly;
    }
    KeepPlace();
    const QString name = QFileInfo(fileName).fileName();
    if (!Run(
            tr("Opening %1").arg(name),
            [&](TKE::FileError& error) { return m_document->Open(fileName, access, error); },
            [&](const TKE::FileError& error) { return Fail(tr("%1 could not be opened.").arg(name), error); }))
    {
        if (!QFileInfo::exists(fileName))
            RecentFiles::Remove(fileName);
        return false;
    }
    for (const TKE::FileError& warning : m_document->GetWarnings())
        m_messages->Add(TKE::Severity::Warning, warning.ToText());
    RecentFiles::Add(fileName);
    GoTo(LastPlaces::Find(fileName));
    m_hint->hide();
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
    if (!Saving(*this).MayGo())
        return event->ignore();
    KeepPlace();
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
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_hint);
    layout->addWidget(m_splitter, 1);
    setCentralWidget(centre);

    m_messageDock->setObjectName("messageDock");
    m_messageDock->setWidget(m_messages);
    m_messageDock->setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
    addDockWidget(Qt::BottomDockWidgetArea, m_messageDock);
    statusBar();
}

void MainWindow::FillFileMenu()
{
    QMenu* menu = m_fileMenu;
    menu->addAction(tr("&New from Sample"), this, &MainWindow::NewFromSample)->setShortcut(QKeySequence::New);
    menu->addAction(tr("&Open..."), this, &MainWindow::Slot_OnOpen)->setShortcut(QKeySequence::Open);
    auto* recent = new RecentFiles(menu);
    connect(recent, &RecentFiles::Chosen, this, &MainWindow::OpenFile);
    menu->addMenu(recent);
    menu->addAction(tr("Re&cover Edits..."), this, [this] { m_recovery->OfferAgain(); });
    menu->addSeparator();
    menu->addAction(tr("&Save"), this, &MainWindow::Save)->setShortcut(QKeySequence::Save);
    menu->addAction(tr("Save &As..."), this, &MainWindow::SaveAs)->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(Qt::CTRL | Qt::Key_Q);
}

void MainWindow::FillNodeMenu()
{
    QMenu* menu = m_nodeMenu;
    m_panelMenu = menu->addMenu(tr("Open &Panel"));
    connect(menu, &QMenu::aboutToShow, this, &MainWindow::FillPanelMenu);
    connect(m_nodes, &NodePane::MenuRequested, menu, [menu](const QPoint& position) { menu->popup(position); });
    menu->addSeparator();
    QAction* toFilter = menu->addAction(tr("&Filter..."), m_nodes->Filter(),
                                        [filter = m_nodes->Filter()]
                                        {
                                            filter->setFocus(Qt::ShortcutFocusReason);
                                            filter->selectAll();
                                        });
    toFilter->setShortcut(Qt::CTRL | Qt::Key_L);
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
    m_nodes->SetNodes(m_document->TakeNodes());
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

void MainWindow::ShowMessages()
{
    m_messageDock->show();
    m_messageDock->raise();
}

bool MainWindow::Run(const QString& title, const std::function<bool(TKE::FileError&)>& operation,
                     const std::function<bool(const TKE::FileError&)>& failed)
{
    if (LongWork::IsUnderWay())
        return false; // one after the other: this came while the window only painted itself
    TKE::FileError error;
    auto work = std::make_unique<LongWork>(title, this);
    m_document->SetProgress([&work](qint64 done, qint64 all) { return work->Progress(done, all); });
    const bool done = operation(error);
    m_document->SetProgress({});
    const bool cancelled = work->WasCancelled();
    work.reset();
    if (done)
        return true;
    if (!cancelled)
        return failed(error);
    statusBar()->showMessage(tr("%1: cancelled, nothing has changed").arg(title), 5000);
    return false;
}

bool MainWindow::Fail(const QString& text, const TKE::FileError& error)
{
    m_messages->Add(TKE::Severity::Error, text, error.ToText());
    ShowMessages();
    // Before the window is up there is nobody to press a button: the message waits in the list.
    if (isVisible())
        QMessageBox(QMessageBox::Critical, tr("Job Editor"), text + "\n\n" + error.ToText(), QMessageBox::Ok, this)
            .exec();
    return false;
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
