#include "framework/panelrows.h"

#include "valuewidgets/readername.h"
#include "valuewidgets/vccheckbox.h"
#include "widgets/vccheckablegroupbox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace TKE
{

PanelRows PanelRows::Group(const char* title) const
{
    auto* box = new QGroupBox(m_panel.GetTranslation(QString::fromUtf8(title)), &m_panel);
    return {m_panel, *new QGridLayout(box), m_binding};
}

QWidget* PanelRows::Box() const { return m_grid.parentWidget(); }

PanelRows PanelRows::Group(Cell cell, const char* title) const
{
    const PanelRows rows = Group(title);
    m_grid.addWidget(rows.Box(), cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    m_panel.Sign(QString::fromUtf8(title), cell.row, cell.column);
    return rows;
}

PanelRows PanelRows::CheckableGroup(Cell cell, const char* title, const QString& key) const
{
    QGroupBox* box = m_panel.CreateCheckableGroupBoxFromVT(key, m_panel.GetTranslation(QString::fromUtf8(title)), QString(), IsRaw());
    m_grid.addWidget(box, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    return {m_panel, *new QGridLayout(box), m_binding};
}

QLabel* PanelRows::Label(Cell cell, const char* text)
{
    return m_panel.AddLabel(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan,
                            m_panel.GetTranslation(QString::fromUtf8(text)));
}

QLabel* PanelRows::Unit(Cell cell, const char* text)
{
    return m_panel.AddLeftLabel(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan,
                                m_panel.GetTranslation(QString::fromUtf8(text)));
}

void PanelRows::Line(Cell cell, int columns)
{
    m_panel.AddLine(&m_grid, cell.row, cell.column, 1, columns > 0 ? columns : m_grid.columnCount());
}

void PanelRows::VerticalLine(Cell cell, int rows)
{
    m_panel.AddVerticalLine(&m_grid, cell.row, cell.column, rows > 0 ? rows : m_grid.rowCount(), 1);
}

template <class Build> auto PanelRows::Row(Cell cell, const char* label, const char* unit, Span span, Build build)
{
    QLabel* text = nullptr;
    int column = cell.column;
    if (label)
    {
        text = Label(cell, label);
        column += cell.columnSpan;
    }
    const auto finish = [&]
    {
        ParameterDlg::MakeBuddy(text, m_grid.itemAtPosition(cell.row, column));
        if (unit)
            Unit({cell.row, column + span.columns}, unit);
    };
    if constexpr (std::is_void_v<decltype(build(column))>)
    {
        build(column);
        finish();
    }
    else
    {
        auto* widget = build(column);
        finish();
        return widget;
    }
}

VCComboBoxClassic* PanelRows::Combo(Cell cell, const char* label, const QString& key, const char* unit, Span span)
{
    return Row(cell, label, unit, span,
               [&](int column)
               {
                   return IsParent()
                              ? m_panel.AddComboBoxFromVTParent(&m_grid, cell.row, column, span.rows, span.columns, key)
                              : m_panel.AddComboFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, IsRaw());
               });
}

void PanelRows::IntSpin(Cell cell, const char* label, const QString& key, const char* unit, double factor, Span span)
{
    Row(cell, label, unit, span,
        [&](int column)
        { m_panel.AddIntSpinFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, IsRaw(), factor); });
}

void PanelRows::FloatSpin(Cell cell, const char* label, const QString& key, int precision, const char* unit, double factor,
                          Span span)
{
    Row(cell, label, unit, span,
        [&](int column) {
            m_panel.AddFloatSpinFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, precision, IsRaw(), factor);
        });
}

void PanelRows::Frequency(Cell cell, const char* label, const QString& key, Span span, bool adjustUnit)
{
    Row(cell, label, nullptr, span,
        [&](int column)
        { m_panel.AddFrequencyFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, adjustUnit, IsRaw()); });
}

VCLineEdit* PanelRows::LineEdit(Cell cell, const char* label, const QString& key, const char* unit, bool frame, Span span)
{
    return Row(cell, label, unit, span,
               [&](int column)
               {
                   return IsParent() ? m_panel.AddLineEditFromVTParent(&m_grid, cell.row, column, span.rows, span.columns,
                                                                       key, frame, true)
                                     : m_panel.AddLineEditFromVT(&m_grid, cell.row, column, span.rows, span.columns, key,
                                                                 frame, IsRaw());
               });
}

void PanelRows::LineEditFrequency(Cell cell, const char* label, const QString& key, bool kiloHertz, const char* unit,
                                  Span span)
{
    Row(cell, label, unit, span,
        [&](int column)
        {
            m_panel.AddLineEditFrequencyFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, true, IsRaw(),
                                               kiloHertz);
        });
}

void PanelRows::TimeEdit(Cell cell, const char* label, const QString& key, Span span)
{
    Row(cell, label, nullptr, span,
        [&](int column)
        { m_panel.AddTimeEditFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, IsRaw()); });
}

VCLabel* PanelRows::TextLabel(Cell cell, const char* label, const QString& key, const char* unit, Span span)
{
    return Row(cell, label, unit, span,
               [&](int column)
               { return m_panel.AddLabelFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, IsRaw()); });
}

VCCheckBox* PanelRows::CheckBox(Cell cell, const char* text, const QString& key)
{
    const QString shown = m_panel.GetTranslation(QString::fromUtf8(text));
    return IsParent() ? m_panel.AddCheckBoxFromVTParent(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan, key, shown)
                      : m_panel.AddCheckBoxFromVT(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan, key, shown,
                                                  IsRaw());
}

VCCheckBox* PanelRows::Switch(Cell cell, const char* label, const QString& key)
{
    return Row(cell, label, nullptr, {}, [&](int column) { return CheckBox({cell.row, column}, "", key); });
}

QWidget* PanelRows::WidgetAt(Cell cell) const
{
    const QLayoutItem* item = m_grid.itemAtPosition(cell.row, cell.column);
    return item ? const_cast<QLayoutItem*>(item)->widget() : nullptr;
}

void PanelRows::AccessibleName(Cell cell, const char* text)
{
    if (QWidget* widget = WidgetAt(cell))
        ReaderName::Set(*widget, m_panel.GetTranslation(QString::fromUtf8(text)));
}

bool PanelRows::CheckList(Cell cell, const char* label, const QString& key, Span span)
{
    bool isBound = false;
    Row(cell, label, nullptr, span,
        [&](int column)
        { isBound = m_panel.AddListBoxFromVT(&m_grid, cell.row, column, span.rows, span.columns, key, IsRaw()); });
    return isBound;
}

void PanelRows::TimePeriod(Cell cell, const QString& startKey, const QString& stopKey)
{
    m_panel.AddTimePeriodFromVT(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan, startKey, stopKey);
}

void PanelRows::DatePeriod(Cell cell, const QString& startKey, const QString& stopKey)
{
    m_panel.AddDatePeriodFromVT(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan, startKey, stopKey);
}

VCButtonGroup* PanelRows::ButtonGroup(Cell cell, const char* title, const QString& key)
{
    const QString shown = m_panel.GetTranslation(QString::fromUtf8(title));
    return IsParent() ? m_panel.AddVerticalButtonGroupFromVTParent(&m_grid, cell.row, cell.column, cell.rowSpan,
                                                                   cell.columnSpan, key, shown)
                      : m_panel.AddVerticalButtonGroupFromVT(&m_grid, cell.row, cell.column, cell.rowSpan, cell.columnSpan,
                                                             key, shown, IsRaw());
}

void PanelRows::List(Cell cell, const QString& key, const ListShape& shape, const QList<const char*>& headers,
                     ParameterDlg::FactorType factor)
{
    QStringList shown;
    for (const char* header : headers)
        shown.append(m_panel.GetTranslation(QString::fromUtf8(header)));
    m_panel.AddListBoxFromVT(&m_grid, cell.row, cell.column, key, shape.columns, shape.minRows, shape.maxRows, shape.sorted,
                             shown, factor);
}

} // namespace TKE
