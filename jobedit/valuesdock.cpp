#include "valuesdock.h"

#include "fieldmenu.h"
#include "fieldnavigator.h"
#include "mainwindow.h"
#include "nodepane.h"
#include "value/valuebase.h"
#include "valuedelegate.h"
#include "valuesmodel.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QTreeView>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

const char* const treeKey = "values/tree";
constexpr int typingPause = 150;   // ms
constexpr int changePause = 300;   // ms
constexpr int openedAtOnce = 2000; // a tree of so many values opens by itself when it is filtered
constexpr int openedHeight = 280;  // pixels
const char* const columnsKey = "values/columns";

// What is typed into the list goes into the filter: Qt's search would look at a million rows one by one.
class FilteringView final : public QTreeView
{
public:
    FilteringView(QLineEdit* filter, QWidget* parent) : QTreeView(parent), m_filter(filter) {}

    void keyboardSearch(const QString& text) override
    {
        m_filter->setFocus();
        m_filter->insert(text);
    }

private:
    QLineEdit* m_filter;
};

} // namespace

ValuesDock::ValuesDock(MainWindow& window)
    : QDockWidget(tr("Values"), &window)
    , m_window(window)
    , m_model(new ValuesModel(window.Document(), this))
    , m_scan(new ValueScan(window.Document(), this))
    , m_filter(new QLineEdit(this))
    , m_view(new FilteringView(m_filter, this))
    , m_count(new QLabel(this))
{
    setObjectName("valuesDock");
    m_later.setSingleShot(true);
    m_repaint.setSingleShot(true);
    Fill();
    AddActions();
    window.addDockWidget(Qt::BottomDockWidgetArea, this, Qt::Vertical);
    hide();

    connect(&m_later, &QTimer::timeout, this, &ValuesDock::Refresh);
    // Not by the model, whose list a view would go through to find out which of a million rows it shows.
    connect(&m_repaint, &QTimer::timeout, m_view->viewport(), qOverload<>(&QWidget::update));
    connect(m_scan, &ValueScan::Finished, this, &ValuesDock::Slot_OnFinished);
    connect(m_filter, &QLineEdit::textChanged, this, [this] { m_later.start(typingPause); });
    connect(m_filter, &QLineEdit::returnPressed, m_view, qOverload<>(&QWidget::setFocus));
    connect(&window.Document(), &JobDocument::Replaced, this, &ValuesDock::Slot_OnReplaced);
    connect(&window.Document(), &JobDocument::NodesChanged, this, &ValuesDock::Refresh);
    connect(&window.Document(), &JobDocument::ContentChanged, this, &ValuesDock::Slot_OnContentChanged);
    connect(&window.Document(), &JobDocument::ModifiedChanged, this, &ValuesDock::Slot_OnContentChanged); // saved
    connect(&window.Nodes(), &NodePane::CurrentChanged, this,
            [this]
            {
                if (m_onlyThisNode->isChecked())
                    Refresh();
            });
    connect(this, &ValuesDock::Activated, this, &ValuesDock::GoTo);
    Slot_OnShapeChanged();
}

ValuesDock::~ValuesDock()
{
    QSettings().setValue(columnsKey, m_view->header()->saveState());
}

void ValuesDock::Fill()
{
    auto* content = new QWidget(this);
    m_filter->setObjectName("valueFilter");
    m_filter->setPlaceholderText(tr("Filter by label, key, path or value"));
    m_filter->setAccessibleName(tr("Filter of the values"));
    m_filter->setClearButtonEnabled(true);

    m_view->setObjectName("values");
    m_view->setAccessibleName(tr("Values of the job"));
    m_view->setModel(m_model);
    m_view->setItemDelegate(new ValueDelegate(m_view));
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setIndentation(14);
    const int widths[] = {240, 150, 120, 120, 240, 420};
    for (int column = 0; column < ValueListing::ColumnCount; ++column)
        m_view->setColumnWidth(column, widths[column]);

    auto* row = new QHBoxLayout;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(row);
    layout->addWidget(m_view);
    setWidget(content);

    m_asTree = AddSwitch("asTree", tr("Tree"), tr("By node, in the order of the job"));
    m_onlyFromSaved = AddSwitch("onlyFromSaved", tr("Changed"), tr("Only values that differ from the saved file"));
    m_onlyFromDefault = AddSwitch("onlyFromDefault", tr("Not default"), tr("Only values that differ from the default"));
    m_onlyThisNode =
        AddSwitch("onlyThisNode", tr("This node"), tr("Only values of the selected node and those below it"));
    m_asTree->setChecked(QSettings().value(treeKey, true).toBool());
    row->addWidget(m_filter, 1);
    for (QCheckBox* box : {m_asTree, m_onlyFromSaved, m_onlyFromDefault, m_onlyThisNode})
    {
        row->addWidget(box);
        connect(box, &QCheckBox::toggled, this,
                box == m_asTree ? &ValuesDock::Slot_OnShapeChanged : &ValuesDock::Refresh);
    }
    row->addWidget(m_count);
}

QCheckBox* ValuesDock::AddSwitch(const char* name, const QString& text, const QString& toolTip)
{
    auto* box = new QCheckBox(text, widget());
    box->setObjectName(name);
    box->setToolTip(toolTip);
    return box;
}

void ValuesDock::AddActions()
{
    QAction* show = toggleViewAction();
    show->setText(tr("&Values"));
    show->setShortcut(Qt::Key_F9);
    m_window.ViewMenu()->addAction(show);
    connect(show, &QAction::triggered, this,
            [this](bool on)
            {
                if (!on)
                    return;
                // As high as the user left it, but not a strip the first time.
                if (height() < openedHeight && !QSettings().contains("window/state"))
                    m_window.resizeDocks({this}, {openedHeight}, Qt::Vertical);
                m_filter->setFocus(Qt::ShortcutFocusReason);
            });

    auto* edit = new QAction(tr("&Edit Value"), m_view);
    edit->setShortcut(Qt::Key_F2);
    edit->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(edit);
    connect(edit, &QAction::triggered, this, &ValuesDock::EditCurrent);
    auto* menu = new QAction(tr("Context &Menu"), m_view);
    menu->setShortcuts({Qt::Key_Menu, Qt::SHIFT | Qt::Key_F10});
    menu->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(menu);
    connect(menu, &QAction::triggered, this,
            [this] { Slot_OnMenuRequested(m_view->visualRect(m_view->currentIndex()).center()); });

    connect(m_view, &QTreeView::activated, this,
            [this](const QModelIndex& index)
            {
                if (const QString path = m_model->PathAt(index); !path.isEmpty())
                    emit Activated(path);
            });
    connect(m_view, &QWidget::customContextMenuRequested, this, &ValuesDock::Slot_OnMenuRequested);
    m_view->header()->setSortIndicator(ValueListing::Path, Qt::AscendingOrder);
    m_view->header()->restoreState(QSettings().value(columnsKey).toByteArray());
    connect(m_view->header(), &QHeaderView::sortIndicatorChanged, this, &ValuesDock::Refresh);
}

void ValuesDock::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (m_stale)
        Refresh();
}

ValueQuery ValuesDock::Query() const
{
    ValueQuery query;
    query.text = m_filter->text().trimmed();
    if (const JobNode* node = m_window.Nodes().GetCurrentNode(); node && m_onlyThisNode->isChecked())
        query.below = node->path;
    query.onlyFromSaved = m_onlyFromSaved->isChecked();
    query.onlyFromDefault = m_onlyFromDefault->isChecked();
    query.isFlat = !m_asTree->isChecked();
    query.sortedBy = ValueListing::Column(m_view->header()->sortIndicatorSection());
    query.order = m_view->header()->sortIndicatorOrder();
    return query;
}

void ValuesDock::Refresh()
{
    m_later.stop();
    m_stale = !isVisible();
    if (!m_stale)
        m_scan->Start(Query());
}

void ValuesDock::Slot_OnReplaced()
{
    m_model->SetListing({});
    Refresh();
}

void ValuesDock::Slot_OnContentChanged()
{
    // Perhaps in the middle of a write: the values are looked at when it is over.
    if (!isVisible())
        m_stale = true;
    else if (!m_repaint.isActive())
        m_repaint.start(0);
    if (isVisible() && !m_later.isActive() && Query().DependsOnContent())
        m_later.start(changePause);
}

void ValuesDock::Slot_OnFinished(ValueListing& listing)
{
    // A new list would take the editor away with what is typed in it.
    if (m_view->isPersistentEditorOpen(m_view->currentIndex()))
    {
        m_later.start(changePause);
        return;
    }
    const QString current = m_model->PathAt(m_view->currentIndex());
    const QStringList expanded = ExpandedPaths();
    m_model->SetListing(std::move(listing));
    RestoreView(current, expanded);
    m_count->setText(tr("Values: %1").arg(m_model->GetListing().rows.size()));
}

QStringList ValuesDock::ExpandedPaths() const
{
    QStringList paths;
    QModelIndexList left{QModelIndex()};
    while (!left.isEmpty())
    {
        const QModelIndex parent = left.takeLast();
        const int rows = m_model->rowCount(parent);
        // Nodes stand behind the values.
        for (int row = rows - 1; row >= 0 && m_model->IsBranch(m_model->index(row, 0, parent)); --row)
        {
            const QModelIndex index = m_model->index(row, 0, parent);
            if (!m_view->isExpanded(index))
                continue;
            paths << m_model->PathAt(index);
            left << index;
        }
    }
    return paths;
}

void ValuesDock::RestoreView(const QString& current, const QStringList& expanded)
{
    const ValueListing& listing = m_model->GetListing();
    const ValueQuery query = Query();
    const bool isFiltered =
        !query.text.isEmpty() || !query.below.isEmpty() || query.onlyFromSaved || query.onlyFromDefault;
    if (!listing.isFlat && isFiltered && listing.rows.size() <= openedAtOnce)
        m_view->expandAll();
    else
        for (const QString& path : expanded)
            m_view->expand(m_model->IndexOf(path));
    // One node at the top alone has nothing to choose from.
    QModelIndex top = m_model->index(0, 0);
    while (!listing.isFlat && m_model->IsBranch(top) && m_model->rowCount(top.parent()) == 1)
    {
        m_view->expand(top);
        top = m_model->index(0, 0, top);
    }
    if (const QModelIndex index = current.isEmpty() ? QModelIndex() : m_model->IndexOf(current); index.isValid())
    {
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
    }
}

void ValuesDock::Slot_OnShapeChanged()
{
    const bool asTree = m_asTree->isChecked();
    QSettings().setValue(treeKey, asTree);
    m_view->setRootIsDecorated(asTree);
    m_view->header()->setSectionsClickable(!asTree);
    m_view->header()->setSortIndicatorShown(!asTree);
    Refresh();
}

void ValuesDock::Slot_OnMenuRequested(const QPoint& position)
{
    const QModelIndex index = m_view->indexAt(position);
    const TKE::ValueBase* value = m_model->ValueAt(index);
    if (!value)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("&Go to Field"), this, [this, path = value->GetPathName()] { emit Activated(path); });
    menu->addSeparator();
    FieldMenu::Fill(*menu, m_window.Document(), *value, value->GetState() == TKE::stEnabled);
    menu->popup(m_view->viewport()->mapToGlobal(position));
}

void ValuesDock::EditCurrent()
{
    const QModelIndex index = m_view->currentIndex().siblingAtColumn(ValueListing::Content);
    if (!index.isValid())
        return;
    m_view->setCurrentIndex(index);
    if (index.flags() & Qt::ItemIsUserCheckable)
        m_model->setData(index, index.data(Qt::CheckStateRole) == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                         Qt::CheckStateRole);
    else if (index.flags() & Qt::ItemIsEditable)
        m_view->edit(index);
}

void ValuesDock::GoTo(const QString& path)
{
    if (path.endsWith(u'/'))
        m_window.Nodes().SelectNode(path);
    else
        FieldNavigator(m_window).GoToOrTell(path);
}

} // namespace JOBEDIT
