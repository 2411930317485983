#pragma once

#include "ipcparam/export.h"
#include "value/value.h"
#include "valuewidgets/valuelink.h"
#include "widgets/numberrows.h"

#include <QTableWidget>

namespace TKE
{

/// A table of numbers bound to a list of doubles: the list holds the rows one after the other, in stored units.
///
/// Stored number = shown number x factor (the factor of a spin box works the other way round). Fewer stored rows than
/// the least number are filled up in the view with the lower limit; the fill is stored with the next edit. What is
/// stored is shown in its order; a sorted list is brought into ascending order, without duplicates or overlaps, by the
/// user's edits only. Every accepted edit writes the whole list; a number that cannot be read or lies outside the
/// limits leaves the cell as it was, and a tool tip says why. See Decimal for what is understood.
class IPCPARAM_EXPORT VCListBoxNumeric : public QTableWidget, public ValueLink
{
    Q_OBJECT

public:
    /// `columns`: numbers per row. The header line is hidden when all `headers` are empty. Disabled until a bound value
    /// is enabled.
    VCListBoxNumeric(QWidget* parent, const QString& name, int columns, int minRows, int maxRows, bool sorted,
                     const QStringList& headers, double factor);

    /// Shows the list of doubles at `path`. False when there is none; the table is then empty and disabled.
    bool SetList_ValuePath(const QString& path) { return BindPath(path); }

    void Update(Observable* source, TChangeCode code) override;

protected:
    bool CanShow(const ValueBase& value) const override;
    void ShowContent() override;
    void ShowNothing() override;

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool focusNextPrevChild(bool next) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void Slot_OnNewRow();
    void Slot_OnDeleteRow();
    void Slot_OnMenuRequested(const QPoint& position);

private:
    class Delegate;
    using Row = NumberRows::Row;
    using Rows = NumberRows::Rows;
    // A number typed into a cell, in stored units.
    struct Entry
    {
        int row;
        int column;
        double number;
    };

    DoubleListValue* List() const { return static_cast<DoubleListValue*>(GetBoundValue()); }
    bool IsEditing() const { return state() == EditingState; }
    bool IsFocusInside() const;
    bool CanAddRow() const;
    bool CanDeleteRow() const;
    QString ShownText(double stored) const { return m_rules.ToText(stored, locale()); }
    std::optional<double> StoredNumber(const QString& shown, QString& reason) const;
    void Explain(const QString& reason);

    void CommitOpenEditor();
    void DiscardOpenEditor();
    void DropPendingRow();
    void EditPendingRow();
    void MoveOn(bool forward);
    void CopyRow() const;
    void PasteRows();

    void Accept(const Entry& entry);
    bool Write(const Rows& rows);
    void WriteNormalised(const Rows& rows, const Entry& current);

    NumberRows m_rules;
    int m_minRows;
    int m_maxRows;
    bool m_sorted;
    bool m_isLoading = false;
    int m_pendingRow = -1;                        // a row that is not stored yet
    std::vector<std::optional<double>> m_pending; // what it holds by now
    Rows m_rows;                                  // as shown, with the fill, without the pending row
    std::optional<Entry> m_entry;                 // what the editor that is about to close leaves behind
    QString m_refusal;                            // or why it leaves nothing
};

} // namespace TKE
