#include "nodepane.h"

#include "chains.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace JOBEDIT
{

NodePane::NodePane(QWidget* parent)
    : QWidget(parent)
    , m_model(new NodeTreeModel(this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_view(new QTreeView(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filtered->setRecursiveFilteringEnabled(true);
    m_filtered->setAutoAcceptChildRows(true);

    m_filter->setObjectName("nodeFilter");
    m_filter->setPlaceholderText(tr("Filter by name or type"));
    m_filter->setAccessibleName(tr("Filter of the nodes"));
    m_filter->setClearButtonEnabled(true);

    m_view->setObjectName("nodeTree");
    m_view->setAccessibleName(tr("Nodes of the job"));
    m_view->setModel(m_filtered);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setExpandsOnDoubleClick(false);
    m_view->setIndentation(14);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);

    connect(m_filter, &QLineEdit::textChanged, this, &NodePane::ApplyFilter);
    connect(m_filter, &QLineEdit::returnPressed, m_view, qOverload<>(&QWidget::setFocus));
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &NodePane::CurrentChanged);
    connect(m_view, &QTreeView::activated, this, &NodePane::Activated);
    connect(m_view, &QTreeView::customContextMenuRequested, this,
            [this](const QPoint& position) { emit MenuRequested(m_view->viewport()->mapToGlobal(position)); });
}

void NodePane::SetNodes(std::vector<JobNode> nodes)
{
    {
        // Half-built trees are nobody's business; the one change of the current node is told below.
        const QSignalBlocker blocker(this);
        m_view->setCurrentIndex({});
        m_model->SetNodes(std::move(nodes));
        Expand();
        m_view->resizeColumnToContents(0);
        for (const JobNode& node : m_model->GetNodes())
            if (HasDialog(node) && SelectNode(node.path))
                break;
        m_view->scrollToTop();
    }
    emit CurrentChanged();
}

const JobNode* NodePane::GetCurrentNode() const
{
    return m_model->NodeOf(m_filtered->mapToSource(m_view->currentIndex()));
}

bool NodePane::SelectNode(const QString& path)
{
    const QModelIndex index = m_model->IndexOf(path);
    if (!index.isValid())
        return false;
    if (!m_filtered->mapFromSource(index).isValid())
        m_filter->clear();
    const QModelIndex shown = m_filtered->mapFromSource(index);
    m_view->setCurrentIndex(shown);
    m_view->scrollTo(shown, QTreeView::PositionAtCenter);
    return true;
}

void NodePane::Expand()
{
    // Nobody looks through thousands of rows, and to lay them out takes its time.
    constexpr int mostExpanded = 3000;
    int rows = 0;
    for (QModelIndexList left{QModelIndex()}; !left.isEmpty() && rows <= mostExpanded;)
    {
        const QModelIndex above = left.takeLast();
        const int below = m_filtered->rowCount(above);
        rows += below;
        for (int row = 0; row < below && rows <= mostExpanded; ++row)
            left << m_filtered->index(row, 0, above);
    }
    if (rows <= mostExpanded)
        m_view->expandAll();
    else
        m_view->expandToDepth(0);
}

void NodePane::ApplyFilter(const QString& text)
{
    m_filtered->setFilterFixedString(text.trimmed());
    Expand();
    m_view->scrollTo(m_view->currentIndex());
}

} // namespace JOBEDIT
