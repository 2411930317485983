#include "planactions.h"

#include "mainwindow.h"
#include "messagelist.h"
#include "nodepane.h"
#include "planexport.h"
#include "planpane.h"

#include <QAction>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

namespace JOBEDIT
{

namespace
{

constexpr int settleTime = 40;    // ms that changes are gathered for
constexpr int mostUpdates = 50;   // nodes; beyond that all is made anew
constexpr int usefulHeight = 340; // of the dock when it opens
constexpr QSize exportSize(1600, 0);

} // namespace

PlanActions::PlanActions(MainWindow& window)
    : QObject(&window)
    , m_window(window)
    , m_dock(new QDockWidget(tr("Frequency Plan"), &window))
    , m_pane(new PlanPane(m_dock))
    , m_coalesce(new QTimer(this))
{
    m_dock->setObjectName("planDock");
    m_dock->setWidget(m_pane);
    window.addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    QAction* next = nullptr; // of the menu, below the messages
    if (auto* messages = window.findChild<QDockWidget*>("messageDock"))
    {
        window.tabifyDockWidget(messages, m_dock);
        const auto actions = window.ViewMenu()->actions();
        next = actions.value(actions.indexOf(messages->toggleViewAction()) + 1);
    }
    m_dock->hide();

    // Not the action of the dock: behind another tab it counts as shown there, and would be closed instead of brought
    // to the front.
    auto* show = new QAction(tr("&Frequency Plan"), this);
    show->setCheckable(true);
    show->setShortcut(QKeySequence(Qt::Key_F8));
    window.ViewMenu()->insertAction(next, show);
    connect(show, &QAction::triggered, this, &PlanActions::Show);
    connect(m_dock, &QDockWidget::visibilityChanged, show, &QAction::setChecked);
    connect(m_dock, &QDockWidget::visibilityChanged, this,
            [this](bool inSight)
            {
                m_inSight = inSight;
                if (inSight)
                    Refresh();
            });

    m_coalesce->setSingleShot(true);
    m_coalesce->setInterval(settleTime);
    connect(m_coalesce, &QTimer::timeout, this, &PlanActions::Refresh);
    connect(&window.Document(), &JobDocument::ContentChanged, this, &PlanActions::Slot_OnContentChanged);
    connect(&window.Document(), &JobDocument::NodesChanged, this, &PlanActions::Slot_OnJobChanged);
    connect(&window.Document(), &JobDocument::Replaced, this, &PlanActions::Slot_OnJobChanged);
    connect(&window.Nodes(), &NodePane::CurrentChanged, this,
            [this]
            {
                if (m_inSight)
                    FollowSelection();
            });
    connect(m_pane, &PlanPane::NodeChosen, &window.Nodes(), &NodePane::SelectNode);
    connect(m_pane, &PlanPane::ExportRequested, this, &PlanActions::Slot_OnExport);
}

void PlanActions::Show(bool on)
{
    m_dock->setVisible(on);
    if (!on)
        return;
    m_dock->raise();
    if (!m_dock->isFloating() && m_dock->height() < usefulHeight)
        m_window.resizeDocks({m_dock}, {usefulHeight}, Qt::Vertical);
    Refresh();
    m_pane->FocusView();
}

bool PlanActions::ExportTo(const QString& fileName)
{
    Refresh();
    const QString job = QFileInfo(m_window.Document().GetFileName()).fileName();
    TKE::FileError error;
    if (m_pane->Picture(job.isEmpty() ? tr("Frequency plan of a new job") : tr("Frequency plan of %1").arg(job))
            .Write(fileName, exportSize, error))
    {
        m_window.statusBar()->showMessage(tr("%1 written").arg(fileName), 5000);
        return true;
    }
    const QString text = tr("The frequency plan could not be written.");
    m_window.Messages().Add(TKE::Severity::Error, text, error.ToText());
    if (m_window.isVisible())
        QMessageBox(QMessageBox::Critical, tr("Frequency Plan"), text + "\n\n" + error.ToText(), QMessageBox::Ok,
                    &m_window)
            .exec();
    return false;
}

void PlanActions::Slot_OnContentChanged(const TKE::ValueBase& value)
{
    if (m_stale || !value.GetNode())
        return;
    m_changed.insert(value.GetNode()->GetBasePath());
    if (m_changed.size() > mostUpdates)
        m_stale = true;
    if (m_inSight && !m_coalesce->isActive())
        m_coalesce->start();
}

void PlanActions::Slot_OnJobChanged()
{
    m_stale = true;
    if (m_inSight && !m_coalesce->isActive())
        m_coalesce->start();
}

void PlanActions::Slot_OnExport()
{
    const QString job = m_window.Document().GetFileName();
    const QFileInfo info(job);
    const QString start = job.isEmpty() ? tr("plan.svg") : info.absolutePath() + '/' + info.completeBaseName() + ".svg";
    QString filter;
    QString fileName = QFileDialog::getSaveFileName(m_dock, tr("Export Frequency Plan"), start,
                                                    tr("Drawing (*.svg);;Picture (*.png)"), &filter);
    if (fileName.isEmpty())
        return;
    if (QFileInfo(fileName).suffix().isEmpty())
        fileName += filter.contains("*.png") ? ".png" : ".svg";
    ExportTo(fileName);
}

void PlanActions::Refresh()
{
    m_coalesce->stop();
    if (m_stale || !m_changed.isEmpty())
    {
        FrequencyPlan plan = m_pane->GetPlan();
        for (const QString& path : std::as_const(m_changed))
            m_stale = m_stale || !plan.Update(path, *TKE::Tree::Instance());
        if (m_stale)
            plan = FrequencyPlan::Of(m_window.Document().GetNodes(), *TKE::Tree::Instance());
        m_stale = false;
        m_changed.clear();
        m_pane->SetPlan(std::move(plan));
    }
    FollowSelection();
}

void PlanActions::FollowSelection()
{
    if (const JobNode* node = m_window.Nodes().GetCurrentNode())
        m_pane->SelectPath(node->path);
}

} // namespace JOBEDIT
