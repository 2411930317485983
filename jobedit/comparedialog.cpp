#include "comparedialog.h"

#include "differencemodel.h"
#include "jobdocument.h"
#include "longact.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr int pause = 100; // ms between two looks whether long work is over

} // namespace

CompareDialog::CompareDialog(JobDocument& document, CompareSides sides, std::shared_ptr<const void> holder,
                             const CompareTexts& texts, QWidget* parent)
    : QDialog(parent)
    , m_document(document)
    , m_sides(std::move(sides))
    , m_holder(std::move(holder))
    , m_model(new DifferenceModel(texts.leftName, texts.rightName, this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_counts(new QLabel(this))
    , m_takeOver(new QPushButton(texts.takeOver, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(texts.title);
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    MakeLayout(texts);
    connect(m_filter, &QLineEdit::textChanged, this, &CompareDialog::ApplyFilter);
    connect(m_filter, &QLineEdit::returnPressed, m_view, qOverload<>(&QWidget::setFocus));
    connect(m_model, &DifferenceModel::Ticked, this, &CompareDialog::ShowCounts);
    connect(m_takeOver, &QPushButton::clicked, this, &CompareDialog::TakeOverTicked);
    m_view->installEventFilter(this);
    connect(&document, &JobDocument::ContentChanged, this, &CompareDialog::Outdate);
    connect(&document, &JobDocument::NodesChanged, this, &CompareDialog::Outdate);
    connect(&document, &JobDocument::NodesChanged, this, &CompareDialog::CloseWithoutNodes);
    connect(&document, &JobDocument::Replaced, this, &QWidget::close);
    resize(1100, 560);
}

bool CompareDialog::Compare(bool ticked)
{
    if (!Fill(ticked))
        return false;
    FitColumns();
    m_view->setCurrentIndex(m_filtered->index(0, 0));
    m_view->setFocus();
    return true;
}

void CompareDialog::TakeView(CompareDialog& other)
{
    const int current = other.m_view->currentIndex().row();
    m_model->TakeFrom(*other.m_model);
    m_filter->setText(other.m_filter->text());
    m_view->header()->restoreState(other.m_view->header()->saveState());
    m_view->setCurrentIndex(m_filtered->index(current, 0));
    m_view->setFocus();
    restoreGeometry(other.saveGeometry());
    if (other.m_outdated)
        Outdate();
}

bool CompareDialog::Fill(bool ticked)
{
    std::vector<Difference> differences;
    {
        LongWork work(tr("Comparing"), isVisible() ? this : parentWidget());
        differences = m_sides.Compare([&](qint64 done, qint64 all) { return work.Progress(done, all); });
        if (work.WasCancelled())
            return false;
    }
    m_outdated = false;
    m_model->SetDifferences(std::move(differences), ticked);
    return true;
}

bool CompareDialog::eventFilter(QObject* watched, QEvent* event)
{
    // The view itself would toggle the current row only, and not at all in the other columns.
    if (watched == m_view && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space)
    {
        ToggleSelected();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void CompareDialog::MakeLayout(const CompareTexts& texts)
{
    auto* heading = new QLabel(texts.heading, this);
    heading->setWordWrap(true);
    m_filter->setObjectName("differenceFilter");
    m_filter->setPlaceholderText(tr("Filter by node, parameter, key or value"));
    m_filter->setAccessibleName(tr("Filter of the differences"));
    m_filter->setClearButtonEnabled(true);

    m_view->setObjectName("differences");
    m_view->setAccessibleName(tr("Differences"));
    m_view->setModel(m_filtered);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->header()->setStretchLastSection(true);
    m_view->header()->setTextElideMode(Qt::ElideMiddle);
    m_view->setColumnHidden(DifferenceModel::Reason, true);
    AddWays(texts.canSwap);

    auto* all = new QPushButton(tr("Tick &All"), this);
    auto* none = new QPushButton(tr("Tick &None"), this);
    all->setObjectName("tickAll");
    none->setObjectName("tickNone");
    connect(all, &QPushButton::clicked, this, [this] { TickShown(true); });
    connect(none, &QPushButton::clicked, this, [this] { TickShown(false); });
    auto* swap = new QPushButton(tr("S&wap Sides"), this);
    swap->setObjectName("swap");
    swap->setVisible(texts.canSwap);
    connect(swap, &QPushButton::clicked, this, &CompareDialog::Swap);
    m_counts->setObjectName("counts");
    m_takeOver->setObjectName("takeOver");

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_takeOver, QDialogButtonBox::ApplyRole);
    QPushButton* close = buttons->addButton(texts.close, QDialogButtonBox::RejectRole);
    close->setObjectName("close");
    for (QPushButton* button : {all, none, swap, m_takeOver, close})
        button->setAutoDefault(false); // Return in the filter or the list is no press of a button
    // Pressing it is a decision, which Escape is not. A button of the accepting role would answer Return as well.
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* ticks = new QHBoxLayout;
    ticks->addWidget(all);
    ticks->addWidget(none);
    ticks->addWidget(m_counts, 1);
    ticks->addWidget(swap);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    layout->addLayout(ticks);
    layout->addWidget(buttons);
    QWidget* order[] = {m_filter, m_view, all, none, swap, m_takeOver, close};
    for (size_t place = 1; place < std::size(order); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void CompareDialog::Swap()
{
    std::swap(m_sides.leftBase, m_sides.rightBase);
    m_model->SwapNames();
    m_model->SetRefusals({});
    m_view->setColumnHidden(DifferenceModel::Reason, true);
    Compare(false);
}

// To the field of either side, or of the open job only.
void CompareDialog::AddWays(bool both)
{
    const auto add = [this](const QString& text, const QList<QKeySequence>& keys, QString CompareSides::*base)
    {
        auto* way = new QAction(text, m_view);
        way->setShortcuts(keys);
        way->setShortcutContext(Qt::WidgetShortcut);
        connect(way, &QAction::triggered, this, [this, base] { Go(m_sides.*base); });
        m_view->addAction(way);
    };
    add(both ? tr("Go to &Left Field") : tr("&Go to Field"), {Qt::Key_Return, Qt::Key_Enter}, &CompareSides::leftBase);
    if (both)
        add(tr("Go to &Right Field"), {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}, &CompareSides::rightBase);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_view, &QTreeView::activated, this, [this] { Go(m_sides.leftBase); });
}

void CompareDialog::Go(const QString& base)
{
    if (const QModelIndex row = m_filtered->mapToSource(m_view->currentIndex()); row.isValid())
        emit Wanted(base + m_model->GetDifferences()[size_t(row.row())].Path());
}

void CompareDialog::Activate()
{
    raise();
    activateWindow();
    m_view->setFocus(Qt::ShortcutFocusReason);
}

void CompareDialog::KeepOff(const QRect& place)
{
    if (!frameGeometry().intersects(place))
        return;
    const QRect free = screen()->availableGeometry();
    const bool below = place.center().y() < free.center().y();
    const int frame = frameGeometry().height() - height();
    resize(width(), std::min(height(), (below ? free.bottom() - place.bottom() : place.top() - free.top()) - frame));
    move(x(), below ? free.bottom() + 1 - frameGeometry().height() : free.top());
}

void CompareDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    // After the event, which belongs to the windows first.
    if (event->type() == QEvent::ActivationChange)
        QMetaObject::invokeMethod(this, &CompareDialog::Refresh, Qt::QueuedConnection);
}

void CompareDialog::Outdate()
{
    if (!std::exchange(m_outdated, true))
        QMetaObject::invokeMethod(this, &CompareDialog::Refresh, Qt::QueuedConnection); // undo works here, too
}

void CompareDialog::CloseWithoutNodes()
{
    const TKE::Tree& tree = *TKE::Tree::Instance();
    const auto gone = [](const TKE::Tree& of, const QString& base) { return !base.isEmpty() && !of.FindNode(base); };
    if (gone(tree, m_sides.leftBase) || gone(m_sides.right.tree, m_sides.rightBase))
        close();
}

// Once the user is here again: what was ticked stays so, and the next row takes the place of one that is gone.
void CompareDialog::Refresh()
{
    if (!m_outdated || !isActiveWindow())
        return;
    if (LongWork::IsUnderWay()) // it may be what outdates the list, time and again
        return QTimer::singleShot(pause, this, &CompareDialog::Refresh);
    const auto pathOf = [this](int row) { return m_model->GetDifferences()[size_t(row)].Path(); };
    QSet<QString> ticked;
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (m_model->IsTicked(m_model->index(row, 0)))
            ticked << pathOf(row);
    const int current = m_view->currentIndex().row();
    if (!Fill(false))
        return reject();
    QModelIndexList still;
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (ticked.contains(pathOf(row)))
            still << m_model->index(row, 0);
    m_model->Tick(still, true);
    m_view->setCurrentIndex(m_filtered->index(std::clamp(current, 0, std::max(m_filtered->rowCount() - 1, 0)), 0));
}

void CompareDialog::FitColumns()
{
    if (m_model->rowCount() == 0)
        return;
    // Percent of the width at most, so that both contents are in sight; what is longer stands in the tool tip.
    constexpr int shares[] = {32, 20, 22, 15};
    for (int column = DifferenceModel::Place; column <= DifferenceModel::Left; ++column)
    {
        m_view->resizeColumnToContents(column);
        constexpr int gap = 12;
        m_view->setColumnWidth(column, std::min(m_view->columnWidth(column) + gap, width() * shares[column] / 100));
    }
}

void CompareDialog::TakeOverTicked()
{
    std::vector<Difference> wanted;
    for (const QModelIndex& row : ShownRows())
        if (m_model->IsTicked(row))
            wanted.push_back(m_model->GetDifferences()[size_t(row.row())]);
    LongAct work(windowTitle(), this, m_document.History());
    const WriteResult result = TakeOver(m_document, windowTitle(), m_sides, wanted);
    if (result.isCancelled)
        return m_counts->setText(tr("Cancelled, nothing was taken over"));
    if (!Compare(false))
        return reject();
    m_model->SetRefusals(result.refused);
    m_view->setColumnHidden(DifferenceModel::Reason, result.refused.empty());
    m_counts->setText(tr("%1 taken over, %2 refused, %3 differences left")
                          .arg(result.written)
                          .arg(result.refused.size())
                          .arg(m_model->rowCount()));
    constexpr size_t told = 300; // the list has them all
    for (size_t number = 0; number < std::min(told, result.refused.size()); ++number)
        emit Refused(m_sides.leftBase + result.refused[number].path, result.refused[number].reason);
}

void CompareDialog::TickShown(bool on)
{
    m_model->Tick(ShownRows(), on);
}

void CompareDialog::ToggleSelected()
{
    QModelIndexList rows;
    for (const QModelIndex& row : m_view->selectionModel()->selectedRows())
        rows << m_filtered->mapToSource(row);
    // A filter that hides the selected rows leaves a current one that is not selected.
    if (rows.isEmpty() && m_view->currentIndex().isValid())
        rows << m_filtered->mapToSource(m_view->currentIndex());
    if (!rows.isEmpty())
        m_model->Tick(rows, !std::ranges::all_of(rows, [this](const auto& row) { return m_model->IsTicked(row); }));
}

void CompareDialog::ShowCounts()
{
    const QModelIndexList rows = ShownRows();
    const auto ticked = std::ranges::count_if(rows, [this](const auto& row) { return m_model->IsTicked(row); });
    m_counts->setText(
        m_model->rowCount() == 0
            ? tr("There are no differences.")
            : tr("%1 differences, %2 shown, %3 of these ticked").arg(m_model->rowCount()).arg(rows.size()).arg(ticked));
    m_takeOver->setEnabled(ticked > 0);
}

void CompareDialog::ApplyFilter(const QString& text)
{
    m_filtered->setFilterFixedString(text.trimmed());
    ShowCounts();
}

QModelIndexList CompareDialog::ShownRows() const
{
    QModelIndexList rows;
    for (int row = 0; row < m_filtered->rowCount(); ++row)
        rows << m_filtered->mapToSource(m_filtered->index(row, 0));
    return rows;
}

} // namespace JOBEDIT
