#include "checkdock.h"

#include "fieldnavigator.h"
#include "mainwindow.h"
#include "nodepane.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr qint64 millisecondsOfSlice = 20;
constexpr int mostShown = 1000;
constexpr int leastHeight = 180; // pixels; some rows at once

void Collect(const TKE::Node& node, QStringList& paths)
{
    paths << node.GetBasePath();
    for (const auto& below : node.GetNodes())
        Collect(*below, paths);
}

} // namespace

CheckDock::CheckDock(MainWindow& window)
    : QDockWidget(tr("Check"), &window)
    , m_window(window)
    , m_list(new QTreeWidget(this))
    , m_summary(new QLabel(this))
    , m_stop(new QPushButton(tr("&Stop"), this))
    , m_status(new QLabel(&window))
{
    setObjectName("checkDock");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
    MakeList();
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    if (auto* messages = window.findChild<QDockWidget*>(QStringLiteral("messageDock")))
        window.tabifyDockWidget(messages, this);
    hide();
    m_status->setObjectName("checkStatus");
    m_status->hide();
    window.statusBar()->addPermanentWidget(m_status);

    const auto check = [this]
    {
        show();
        raise();
        if (height() < leastHeight && !isFloating())
            m_window.resizeDocks({this}, {leastHeight}, Qt::Vertical);
        m_list->setFocus(Qt::ShortcutFocusReason);
        Start();
    };
    window.ToolsMenu()->addAction(tr("&Check Job"), this, check)->setShortcut(Qt::Key_F7);
    QAction* show = toggleViewAction();
    show->setText(tr("C&heck"));
    window.ViewMenu()->addAction(show);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &CheckDock::Slot_OnSlice);
    connect(m_stop, &QPushButton::clicked, this, &CheckDock::Stop);
    connect(m_list, &QTreeWidget::itemActivated, this, &CheckDock::Slot_OnActivated);
    connect(&window.Document(), &JobDocument::Replaced, this, &CheckDock::Start);
    connect(&window.Document(), &JobDocument::NodesChanged, this, &CheckDock::Start);
    connect(&window.Document(), &JobDocument::ContentChanged, this, &CheckDock::Slot_OnContentChanged);
    // A panel may disable what does not apply in it, which is no change of content.
    connect(&window.Nodes(), &NodePane::CurrentChanged, this, &CheckDock::Slot_OnNodeShown);
    if (TKE::Tree::Instance()->ValueCount() > 0)
        Start(); // a window may be made for a job that is open already
}

void CheckDock::MakeList()
{
    m_list->setObjectName("checkList");
    m_list->setAccessibleName(tr("Findings of the check"));
    m_list->setHeaderLabels({tr("Field"), tr("Finding"), tr("Node")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setColumnWidth(0, 220);
    m_list->setColumnWidth(1, 480);
    m_summary->setObjectName("checkSummary");
    m_stop->setObjectName("checkStop");
    m_stop->hide();

    auto* content = new QWidget(this);
    auto* header = new QHBoxLayout;
    header->addWidget(m_summary, 1);
    header->addWidget(m_stop);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(6, 2, 6, 0);
    layout->addLayout(header);
    layout->addWidget(m_list);
    content->setFocusProxy(m_list);
    setWidget(content);
}

void CheckDock::Start()
{
    m_checker = std::make_unique<Checker>(*TKE::Tree::Instance(), *m_window.Document().GetModel());
    m_findings.clear();
    m_errors = m_warnings = 0;
    m_changed.clear();
    m_nodes.clear();
    m_next = 0;
    for (const TKE::Node* top : TKE::Tree::Instance()->GetTopNodes())
        Collect(*top, m_nodes);
    m_isShown = false;
    m_isStopped = false;
    m_timer.start();
}

void CheckDock::Stop()
{
    m_isStopped = m_isStopped || IsRunning();
    m_nodes.clear();
    m_next = 0;
    m_isShown = false;
    m_timer.start(); // the changes still to be checked, and the summary
}

void CheckDock::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && IsRunning())
        Stop();
    else
        QDockWidget::keyPressEvent(event);
}

void CheckDock::Slot_OnContentChanged(const TKE::ValueBase& value)
{
    if (!m_checker || !value.GetNode())
        return;
    // The rules that follow the value have not been heard yet.
    m_changed << value.GetNode()->GetBasePath();
    m_timer.start();
}

void CheckDock::Slot_OnNodeShown()
{
    const JobNode* node = m_window.Nodes().GetCurrentNode();
    if (!m_checker || !node)
        return;
    m_changed << node->path;
    m_timer.start();
}

void CheckDock::Slot_OnSlice()
{
    QElapsedTimer time;
    time.start();
    const auto changed = std::exchange(m_changed, {});
    for (const QString& path : changed)
        Check(path, true);
    while (IsRunning() && time.elapsed() < millisecondsOfSlice)
        Check(m_nodes[m_next++], false);
    if (!IsRunning())
    {
        m_timer.stop();
        m_nodes.clear();
        m_next = 0;
    }
    // A list that is full already stays as it is until the end.
    if (!m_isShown && (!IsRunning() || m_list->topLevelItemCount() < mostShown))
        ShowFindings();
    ShowSummary();
}

void CheckDock::Check(const QString& nodePath, bool below)
{
    const TKE::Node* node = TKE::Tree::Instance()->FindNode(nodePath);
    std::vector<Finding> findings = node ? m_checker->CheckNode(*node) : std::vector<Finding>();
    if (const auto known = m_findings.find(nodePath); known != m_findings.end())
    {
        Count(known->second, -1);
        m_findings.erase(known);
        m_isShown = false;
    }
    if (!findings.empty())
    {
        Count(findings, 1);
        m_findings[nodePath] = std::move(findings);
        m_isShown = false;
    }
    if (!node || !below)
        return;
    // Rules of a node reach those of its channels, which are no nodes of the job and have no type.
    for (const auto& channel : node->GetNodes())
        if (channel->GetTypeText().isEmpty())
            Check(channel->GetBasePath(), true);
}

void CheckDock::Count(const std::vector<Finding>& findings, int sign)
{
    for (const Finding& finding : findings)
        (finding.severity == TKE::FileError::Severity::Error ? m_errors : m_warnings) += sign;
}

void CheckDock::ShowFindings()
{
    m_isShown = true;
    const QTreeWidgetItem* before = m_list->currentItem();
    const QString path = before ? before->data(0, Qt::UserRole).toString() : QString();
    m_list->clear();
    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon warningIcon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    QList<QTreeWidgetItem*> items;
    QTreeWidgetItem* current = nullptr;
    for (const auto& [node, findings] : m_findings)
        for (const Finding& finding : findings)
        {
            if (items.size() == mostShown)
                break;
            const bool isError = finding.severity == TKE::FileError::Severity::Error;
            auto* item = new QTreeWidgetItem({finding.label, finding.text, node});
            item->setIcon(0, isError ? errorIcon : warningIcon);
            item->setData(0, Qt::UserRole, finding.path);
            item->setData(0, Qt::AccessibleTextRole,
                          (isError ? tr("Error: %1") : tr("Warning: %1")).arg(finding.label));
            for (int column = 0; column < 3; ++column)
                item->setToolTip(column, finding.path + '\n' + finding.text);
            if (finding.path == path)
                current = item;
            items << item;
        }
    m_list->addTopLevelItems(items);
    if (current || !items.isEmpty())
        m_list->setCurrentItem(current ? current : items.constFirst());
}

void CheckDock::ShowSummary()
{
    const bool isGood = m_findings.empty();
    QString text = isGood ? tr("No value is at fault.") : tr("Errors: %1, warnings: %2").arg(m_errors).arg(m_warnings);
    if (m_errors + m_warnings > mostShown)
        text = tr("Errors: %1, warnings: %2; the first %3 are shown.").arg(m_errors).arg(m_warnings).arg(mostShown);
    if (m_isStopped)
        text = tr("Stopped before all values were checked; errors: %1, warnings: %2").arg(m_errors).arg(m_warnings);
    if (IsRunning())
        text = tr("Checking: %1 %, errors: %2, warnings: %3")
                   .arg(m_next * 100 / m_nodes.size())
                   .arg(m_errors)
                   .arg(m_warnings);
    m_summary->setText(text);
    m_stop->setVisible(IsRunning());
    m_status->setText(tr("Check (F7): errors %1, warnings %2").arg(m_errors).arg(m_warnings));
    m_status->setVisible(!isGood);
}

void CheckDock::Slot_OnActivated()
{
    if (const QTreeWidgetItem* item = m_list->currentItem())
        FieldNavigator(m_window).GoToOrTell(item->data(0, Qt::UserRole).toString());
}

} // namespace JOBEDIT
