#include "widgets/vclistboxnumeric.h"

#include "valuewidgets/numericvalue.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolTip>

namespace TKE
{

namespace
{

constexpr qsizetype mostRefusedLines = 5; // that are named

} // namespace

// Leaves the number of an editor with the table, which stores it once the editor is closed: storing may take the table
// down with it.
class VCListBoxNumeric::Delegate final : public QStyledItemDelegate
{
public:
    explicit Delegate(VCListBoxNumeric* table) : QStyledItemDelegate(table), m_table(*table) {}

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override
    {
        const auto* line = qobject_cast<const QLineEdit*>(editor);
        // Who only looked into a cell did not edit it: the stored number keeps the digits that are not shown.
        if (!line || !line->isModified())
            return;
        if (const auto number = m_table.StoredNumber(line->text(), m_table.m_refusal))
            m_table.m_entry = Entry{index.row(), index.column(), *number};
    }

protected:
    // The editor, the table and this may be gone when an event was handled. An editor that is gone must not get the
    // event any more.
    bool eventFilter(QObject* editor, QEvent* event) override
    {
        const QPointer<VCListBoxNumeric> table(&m_table);
        const bool isOtherWindow = event->type() == QEvent::FocusOut &&
                                   static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason;
        if (isOtherWindow && table->IsEditing())
        {
            // Qt would give the focus back to the table by way of the editor.
            table->CommitOpenEditor();
            if (table)
                table->setFocus();
            return true;
        }
        const QPointer<QObject> alive(editor);
        const bool isHandled = QStyledItemDelegate::eventFilter(editor, event);
        return isHandled || !alive;
    }

private:
    VCListBoxNumeric& m_table;
};

VCListBoxNumeric::VCListBoxNumeric(QWidget* parent, const QString& name, int columns, int minRows, int maxRows,
                                   bool sorted, const QStringList& headers, double factor)
    : QTableWidget(0, columns, parent)
    , ValueLink(static_cast<QWidget*>(this))
    , m_rules(columns, minRows, sorted, factor)
    , m_minRows(minRows)
    , m_maxRows(maxRows)
    , m_sorted(sorted)
{
    setObjectName(name);
    setHorizontalHeaderLabels(headers);
    horizontalHeader()->setVisible(!headers.join(QString()).isEmpty());
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setItemDelegate(new Delegate(this));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &VCListBoxNumeric::Slot_OnMenuRequested);
    setEnabled(false);
}

bool VCListBoxNumeric::CanShow(const ValueBase& value) const
{
    return dynamic_cast<const DoubleListValue*>(&value) != nullptr;
}

void VCListBoxNumeric::Update(Observable* source, TChangeCode code)
{
    // What is being typed is dropped before the table is disabled, or losing the focus would still store it.
    if (code == ccState && GetBoundValue() && source == GetBoundValue() && GetBoundValue()->GetState() != stEnabled)
    {
        DiscardOpenEditor();
        DropPendingRow();
    }
    ValueLink::Update(source, code);
}

void VCListBoxNumeric::ShowContent()
{
    DiscardOpenEditor();
    DropPendingRow();
    const QScopedValueRollback loading(m_isLoading, true);
    m_rows = m_rules.FromList(List()->GetValue(), List()->GetDescriptor().minimum.value_or(0.0));
    setRowCount(int(m_rows.size()));
    for (int row = 0; row < rowCount(); ++row)
    {
        for (int column = 0; column < columnCount(); ++column)
        {
            const QString text = ShownText(m_rows[size_t(row)][size_t(column)]);
            if (QTableWidgetItem* cell = item(row, column))
                cell->setText(text);
            else
                setItem(row, column, new QTableWidgetItem(text));
        }
    }
}

void VCListBoxNumeric::ShowNothing()
{
    DiscardOpenEditor();
    DropPendingRow();
    m_rows.clear();
    setRowCount(0);
}

void VCListBoxNumeric::CommitOpenEditor()
{
    if (QWidget* editor = IsEditing() ? indexWidget(currentIndex()) : nullptr)
    {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void VCListBoxNumeric::DiscardOpenEditor()
{
    const QScopedValueRollback loading(m_isLoading, true);
    if (QWidget* editor = IsEditing() ? indexWidget(currentIndex()) : nullptr)
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

void VCListBoxNumeric::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const std::optional<Entry> entry = std::exchange(m_entry, std::nullopt);
    const QString refusal = std::exchange(m_refusal, {});
    QTableWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (m_isLoading)
        return;
    if (hint == QAbstractItemDelegate::RevertModelCache)
    {
        DropPendingRow();
        return;
    }
    if (!refusal.isEmpty())
        Explain(refusal);
    const QPointer alive(this);
    if (entry)
        Accept(*entry);
    if (!alive)
        return;
    if (hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem)
        MoveOn(hint == QAbstractItemDelegate::EditNextItem);
    else if (hint == QAbstractItemDelegate::SubmitModelCache && currentRow() == m_pendingRow)
        EditPendingRow();
    else if (!IsFocusInside())
        DropPendingRow();
}

// A number was typed: into a stored row, or into the pending one, which is stored when it is complete.
void VCListBoxNumeric::Accept(const Entry& entry)
{
    Rows rows = m_rows;
    if (entry.row == m_pendingRow)
    {
        m_pending[size_t(entry.column)] = entry.number;
        item(entry.row, entry.column)->setText(ShownText(entry.number));
        if (std::find(m_pending.begin(), m_pending.end(), std::nullopt) != m_pending.end())
            return;
        Row row;
        for (const auto& number : m_pending)
            row.push_back(*number);
        rows.insert(rows.begin() + m_pendingRow, row);
    }
    else if (entry.row < int(rows.size()))
        rows[size_t(entry.row)][size_t(entry.column)] = entry.number;
    WriteNormalised(rows, entry);
}

// False when the write took this table down with it.
bool VCListBoxNumeric::Write(const Rows& rows)
{
    const QPointer alive(this);
    if (DoubleListValue* list = List())
        list->SetValue(NumberRows::ToList(rows), this);
    if (!alive)
        return false;
    if (List())
        ShowContent();
    return true;
}

// Stores `rows` in order and makes the row current that holds the number of `current`.
void VCListBoxNumeric::WriteNormalised(const Rows& rows, const Entry& current)
{
    if (!Write(m_rules.Normalised(rows)))
        return;
    const int row = m_rules.Find(m_rows, current.number, current.column).value_or(current.row);
    if (row < rowCount())
        setCurrentCell(row, current.column);
}

void VCListBoxNumeric::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableWidget::currentChanged(current, previous);
    if (!m_isLoading && current.row() != m_pendingRow)
        DropPendingRow();
}

bool VCListBoxNumeric::IsFocusInside() const
{
    const QWidget* focus = QApplication::focusWidget();
    return !focus || focus == this || isAncestorOf(focus); // none: another window has it, and it will be back
}

void VCListBoxNumeric::focusOutEvent(QFocusEvent* event)
{
    QTableWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && !IsFocusInside())
        DropPendingRow();
}

// Tab moves cell by cell. At the ends it leaves the table, which would go round by itself: its own way is passed over.
bool VCListBoxNumeric::focusNextPrevChild(bool next)
{
    const QModelIndex end = next ? model()->index(rowCount() - 1, columnCount() - 1) : model()->index(0, 0);
    if (!currentIndex().isValid() || currentIndex() == end)
        return QAbstractScrollArea::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
    return QTableWidget::focusNextPrevChild(next);
}

void VCListBoxNumeric::MoveOn(bool forward)
{
    const int cell = currentRow() * columnCount() + currentColumn() + (forward ? 1 : -1);
    if (cell < 0 || cell >= rowCount() * columnCount())
    {
        QAbstractScrollArea::focusNextPrevChild(forward); // NOLINT(bugprone-parent-virtual-call)
        return;
    }
    setCurrentCell(cell / columnCount(), cell % columnCount());
    edit(currentIndex());
}

void VCListBoxNumeric::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int key = event->key();
    if (IsEditing())
    {
        // Keys that the editor has no use for arrive here. Those that move write first, since writing may change the
        // order.
        const QPointer alive(this);
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            CommitOpenEditor();
        if (alive && !IsEditing())
            QTableWidget::keyPressEvent(event);
        return;
    }
    if (event->matches(QKeySequence::Copy))
        CopyRow();
    else if (event->matches(QKeySequence::Paste))
        PasteRows();
    else if (isPlain && key == Qt::Key_Insert)
        Slot_OnNewRow();
    else if (isPlain && key == Qt::Key_Delete)
        Slot_OnDeleteRow();
    else if (isPlain && key == Qt::Key_Escape && m_pendingRow >= 0)
        DropPendingRow();
    else
        QTableWidget::keyPressEvent(event);
}

void VCListBoxNumeric::Slot_OnMenuRequested(const QPoint& position)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Done when the menu is closed: whoever hears of the write may delete the table, and the menu with it.
    QAction* newRow = menu->addAction(tr("&New row"));
    newRow->setShortcut(Qt::Key_Insert);
    newRow->setEnabled(CanAddRow());
    connect(newRow, &QAction::triggered, this, &VCListBoxNumeric::Slot_OnNewRow, Qt::QueuedConnection);
    QAction* deleteRow = menu->addAction(tr("&Delete row"));
    deleteRow->setShortcut(Qt::Key_Delete);
    deleteRow->setEnabled(CanDeleteRow());
    connect(deleteRow, &QAction::triggered, this, &VCListBoxNumeric::Slot_OnDeleteRow, Qt::QueuedConnection);
    menu->popup(viewport()->mapToGlobal(position));
}

bool VCListBoxNumeric::CanAddRow() const
{
    return isEnabled() && List() && m_pendingRow < 0 && rowCount() < m_maxRows;
}

bool VCListBoxNumeric::CanDeleteRow() const
{
    return isEnabled() && List() && currentRow() >= 0 && rowCount() > m_minRows;
}

void VCListBoxNumeric::Slot_OnNewRow()
{
    if (!CanAddRow())
        return;
    const int row = m_sorted || currentRow() < 0 ? rowCount() : currentRow() + 1;
    {
        const QScopedValueRollback loading(m_isLoading, true);
        insertRow(row);
        for (int column = 0; column < columnCount(); ++column)
            setItem(row, column, new QTableWidgetItem);
    }
    m_pendingRow = row;
    m_pending.assign(size_t(columnCount()), std::nullopt);
    EditPendingRow();
}

void VCListBoxNumeric::EditPendingRow()
{
    if (m_pendingRow < 0)
        return;
    const auto empty = std::find(m_pending.begin(), m_pending.end(), std::nullopt);
    setCurrentCell(m_pendingRow, int(empty - m_pending.begin()));
    edit(currentIndex());
}

void VCListBoxNumeric::DropPendingRow()
{
    if (m_pendingRow < 0)
        return;
    DiscardOpenEditor();
    const QScopedValueRollback loading(m_isLoading, true);
    removeRow(std::exchange(m_pendingRow, -1));
}

void VCListBoxNumeric::Slot_OnDeleteRow()
{
    if (!CanDeleteRow())
        return;
    if (currentRow() == m_pendingRow)
    {
        DropPendingRow();
        return;
    }
    Rows rows = m_rows;
    rows.erase(rows.begin() + currentRow());
    Write(rows);
}

void VCListBoxNumeric::CopyRow() const
{
    if (currentRow() < 0)
        return;
    QStringList shown;
    for (int column = 0; column < columnCount(); ++column)
        shown.append(item(currentRow(), column)->text());
    QApplication::clipboard()->setText(shown.join(u'\t'));
}

void VCListBoxNumeric::PasteRows()
{
    static const QRegularExpression separators(QStringLiteral("[\\s;]+"));
    DropPendingRow();
    Rows rows = m_rows;
    QStringList refused;
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    for (const QString& line : lines)
    {
        const QStringList fields = line.trimmed().split(separators);
        Row row;
        for (const QString& field : fields)
        {
            QString reason;
            if (const auto number = StoredNumber(field, reason))
                row.push_back(*number);
        }
        const bool isGood = fields.size() == columnCount() && row.size() == size_t(columnCount());
        if (isGood && int(rows.size()) < m_maxRows)
            rows.push_back(row);
        else if (!line.trimmed().isEmpty())
            refused.append(line.trimmed());
    }
    if (!refused.isEmpty())
        Explain(tr("Not taken over:") + u'\n' + refused.mid(0, mostRefusedLines).join(u'\n'));
    if (rows.size() > m_rows.size())
        WriteNormalised(rows, {int(rows.size()) - 1, 0, rows.back()[0]});
}

// Refuses what is no number or lies outside the limits.
std::optional<double> VCListBoxNumeric::StoredNumber(const QString& shown, QString& reason) const
{
    double stored = 0;
    if (!List() || !NumericValue::Read(*List(), shown, 1 / m_rules.GetFactor(), locale(), stored, reason))
        return {};
    return NumberRows::Rounded(stored);
}

// When the focus has moved, which would take the tool tip away.
void VCListBoxNumeric::Explain(const QString& reason)
{
    const QPoint place = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
    QTimer::singleShot(0, this, [this, place, reason] { QToolTip::showText(place, reason, this); });
}

} // namespace TKE
