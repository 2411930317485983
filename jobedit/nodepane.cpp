#include "nodepane.h"

#include "chains.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
/// Keeps what is below an accepted node, as later versions do on demand.
class Filter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void setAutoAcceptChildRows(bool) {}

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        return QSortFilterProxyModel::filterAcceptsRow(row, parent) ||
               (parent.isValid() && filterAcceptsRow(parent.row(), parent.parent()));
    }
};
#else
using Filter = QSortFilterProxyModel;
#endif

QSortFilterProxyModel* NewFilter(QObject* parent)
{
    auto* filter = new Filter(parent);
    filter->setAutoAcceptChildRows(true);
    return filter;
}

} // namespace

NodePane::NodePane(QWidget* parent)
    : QWidget(parent)
    , m_model(new NodeTreeModel(this))
    , m_filtered(NewFilter(this))
    , m_filter(new QLineEdit(this))
    , m_view(new QTreeView(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filtered->setRecursiveFilteringEnabled(true);

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
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);

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
        QStringList before;
        QStringList collapsed;
        for (const JobNode& node : m_model->GetNodes())
        {
            before << node.path;
            if (const QModelIndex index = ShownIndexOf(node.path); index.isValid() && !m_view->isExpanded(index))
                collapsed << node.path;
        }
        Fill(std::move(nodes));
        for (const QString& each : collapsed)
            m_view->setExpanded(ShownIndexOf(each), false);
        bool found = SelectNode(path);
        const qsizetype place = std::max<qsizetype>(before.indexOf(path), 0);
        for (qsizetype next = place; !found && next < before.size(); ++next)
            found = SelectNode(before[next]);
        for (qsizetype next = place; !found && next > 0; --next)
            found = SelectNode(before[next - 1]);
    }
    emit CurrentChanged();
}

void NodePane::Fill(std::vector<JobNode> nodes)
{
    m_view->setCurrentIndex({});
    m_model->SetNodes(std::move(nodes));
    Expand();
    m_view->resizeColumnToContents(0);
}

QModelIndex NodePane::ShownIndexOf(const QString& path) const
{
    return m_filtered->mapFromSource(m_model->IndexOf(path));
}

const JobNode* NodePane::GetCurrentNode() const
{
    return m_model->NodeOf(m_filtered->mapToSource(m_view->currentIndex()));
}

std::vector<JobNode> NodePane::GetSelectedNodes() const
{
    std::vector<const JobNode*> selected;
    // Not selectedRows, which takes a second for some thousand rows.
    for (const QModelIndex& index : m_view->selectionModel()->selection().indexes())
        if (index.column() == 0)
            selected.push_back(m_model->NodeOf(m_filtered->mapToSource(index)));
    std::ranges::sort(selected); // they stand in one vector, in the order of the tree
    std::vector<JobNode> nodes;
    nodes.reserve(selected.size());
    for (const JobNode* node : selected)
        nodes.push_back(*node);
    return nodes;
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
