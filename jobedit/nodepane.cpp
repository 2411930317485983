#include "nodepane.h"

#include "chains.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSet>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace JOBEDIT
{

namespace
{

constexpr int mostExpanded = 3000; // nobody looks through more rows, and to lay them out takes its time
constexpr int mostMeasured = 100;  // rows that the width of the first column comes from

} // namespace

NodePane::NodePane(QWidget* parent)
    : QWidget(parent), m_model(new NodeTreeModel(this)), m_filter(new QLineEdit(this)), m_view(new QTreeView(this))
{
    m_filter->setObjectName("nodeFilter");
    m_filter->setPlaceholderText(tr("Filter by name or type"));
    m_filter->setAccessibleName(tr("Filter of the nodes"));
    m_filter->setClearButtonEnabled(true);

    m_view->setObjectName("nodeTree");
    m_view->setAccessibleName(tr("Nodes of the job"));
    m_view->setModel(m_model);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setExpandsOnDoubleClick(false);
    m_view->setIndentation(14);
    m_view->header()->setResizeContentsPrecision(mostMeasured);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);

    connect(m_filter, &QLineEdit::textChanged, this, &NodePane::ApplyFilter);
    connect(m_filter, &QLineEdit::returnPressed, m_view, qOverload<>(&QWidget::setFocus));
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &NodePane::Slot_OnCurrentRowChanged);
    connect(m_view, &QTreeView::activated, this, &NodePane::Activated);
    connect(m_view, &QTreeView::customContextMenuRequested, this,
            [this](const QPoint& position) { emit MenuRequested(m_view->viewport()->mapToGlobal(position)); });
}

void NodePane::SetNodes(std::vector<JobNode> nodes)
{
    {
        // Half-built trees are nobody's business; the one change of the current node is told below.
        const QSignalBlocker blocker(this);
        Fill(std::move(nodes));
        for (const JobNode& node : m_model->GetNodes())
            if (HasDialog(node) && SelectNode(node.path))
                break;
        m_view->scrollToTop();
    }
    emit CurrentChanged();
}

void NodePane::UpdateNodes(std::vector<JobNode> nodes, const QString& path)
{
    {
        const QSignalBlocker blocker(this);
        // Which nodes are otherwise than they are by themselves.
        const std::vector<JobNode> before = m_model->GetNodes();
        std::vector<std::pair<QString, bool>> expanded;
        for (size_t number = 0; number < before.size(); ++number)
            if (const QModelIndex index = m_model->IndexOf(int(number)); index.isValid() && m_model->rowCount(index))
                if (const bool isExpanded = m_view->isExpanded(index); isExpanded != IsExpandedByItself(before[number]))
                    expanded.emplace_back(before[number].path, isExpanded);
        Fill(std::move(nodes));
        for (const auto& [each, isExpanded] : expanded)
            m_view->setExpanded(m_model->IndexOf(m_model->NumberOf(each)), isExpanded);
        if (!SelectNode(path))
            SelectNearest(before, path);
    }
    emit CurrentChanged();
}

void NodePane::SelectNearest(const std::vector<JobNode>& before, const QString& path)
{
    QSet<QStringView> left;
    for (const JobNode& node : m_model->GetNodes())
        left.insert(node.path);
    const auto place = std::max(std::ranges::find(before, path, &JobNode::path), before.begin());
    const auto isLeft = [&](const JobNode& node) { return left.contains(node.path); };
    const auto from = place == before.end() ? before.begin() : place;
    if (const auto next = std::find_if(from, before.end(), isLeft); next != before.end())
        SelectNode(next->path);
    else if (const auto last = std::find_if(std::reverse_iterator(from), before.rend(), isLeft); last != before.rend())
        SelectNode(last->path);
}

void NodePane::Fill(std::vector<JobNode> nodes)
{
    m_current = -1;
    m_model->SetNodes(std::move(nodes));
    Expand();
    m_view->resizeColumnToContents(0);
}

const JobNode* NodePane::GetCurrentNode() const
{
    return m_current < 0 ? nullptr : &m_model->GetNodes()[size_t(m_current)];
}

std::vector<JobNode> NodePane::GetSelectedNodes() const
{
    std::vector<int> selected;
    // Not selectedRows, which takes a second for some thousand rows.
    for (const QModelIndex& index : m_view->selectionModel()->selection().indexes())
        if (index.column() == 0)
            selected.push_back(m_model->NumberOf(index));
    if (selected.empty() && m_current >= 0)
        selected.push_back(m_current);
    std::ranges::sort(selected); // the order of the tree
    std::vector<JobNode> nodes;
    nodes.reserve(selected.size());
    for (const int number : selected)
        nodes.push_back(m_model->GetNodes()[size_t(number)]);
    return nodes;
}

bool NodePane::SelectNode(const QString& path)
{
    const int number = m_model->NumberOf(path);
    if (number < 0)
        return false;
    if (!m_model->IndexOf(number).isValid())
        m_filter->clear();
    const QModelIndex shown = m_model->IndexOf(number);
    m_view->setCurrentIndex(shown);
    m_view->scrollTo(shown, QTreeView::PositionAtCenter);
    return true;
}

void NodePane::Slot_OnCurrentRowChanged(const QModelIndex& current)
{
    const int number = m_model->NumberOf(current);
    if (number < 0 || std::exchange(m_current, number) == number)
        return;
    emit CurrentChanged();
}

void NodePane::Expand()
{
    m_isAllExpanded = m_model->CountShown() <= mostExpanded;
    if (m_isAllExpanded)
        m_view->expandAll();
    else
        m_view->expandToDepth(0);
}

void NodePane::ApplyFilter(const QString& text)
{
    std::vector<int> selected;
    for (const QItemSelectionRange& range : m_view->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected.push_back(m_model->NumberOf(m_model->index(row, 0, range.parent())));
    m_model->SetFilter(text.trimmed());
    Expand();
    if (const QModelIndex current = m_model->IndexOf(m_current); current.isValid())
    {
        m_view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        m_view->scrollTo(current);
    }
    QItemSelection selection;
    for (const int number : selected)
        if (const QModelIndex index = m_model->IndexOf(number); index.isValid())
            selection.select(index, index.siblingAtColumn(1));
    m_view->selectionModel()->select(selection, QItemSelectionModel::Select);
}

} // namespace JOBEDIT
