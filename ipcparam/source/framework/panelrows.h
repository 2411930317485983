#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// A place in the grid of a panel.
struct Cell
{
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
};

/// How many cells a widget covers.
struct Span
{
    int rows = 1;
    int columns = 1;
};

/// The shape of a numeric list, as AddListBoxFromVT takes it.
struct ListShape
{
    int columns = 1;
    int minRows = 0;
    int maxRows = 0;
    bool sorted = false;
};

/// Where the rows of a panel find their values.
enum class Binding
{
    Mapped, ///< base path + the key's full name
    Raw,    ///< base path + key
    Parent, ///< one level above the base path + key; not every row can
};

/// Writes a panel's rows so that its source reads like its table: label, widget and unit in one call, made by the panel's own builders (so a
/// subclass that overrides one is heard). The label stands at `cell`, the widget in the column after the label, the unit in the column after
/// the widget. Texts are given untranslated (QT_TR_NOOP) and are translated in the panel's context; a null text leaves the label or unit out,
/// and a widget without label stands at `cell` itself. The label becomes the widget's buddy.
class PanelRows
{
public:
    PanelRows(ParameterDlg& panel, QGridLayout& grid, Binding binding = Binding::Mapped)
        : m_panel(panel)
        , m_grid(grid)
        , m_binding(binding)
    {
        panel.ShareSizeHints();
    }

    /// Rows with the same binding in a new group box, which has a grid of its own and is the panel's child until the panel places Box().
    PanelRows Group(const char* title) const;
    /// The same, placed at `cell`.
    PanelRows Group(Cell cell, const char* title) const;
    /// The same with a check box in its title, bound to a boolean or a selection.
    PanelRows CheckableGroup(Cell cell, const char* title, const QString& key) const;
    /// The widget that the grid lays out.
    QWidget* Box() const;

    QLabel* Label(Cell cell, const char* text);
    QLabel* Unit(Cell cell, const char* text);
    /// A horizontal line; `columns` 0 takes all columns that the grid has by now.
    void Line(Cell cell, int columns = 0);
    /// A vertical line; `rows` 0 takes all rows that the grid has by now.
    void VerticalLine(Cell cell, int rows = 0);

    VCComboBoxClassic* Combo(Cell cell, const char* label, const QString& key, const char* unit = nullptr, Span span = {});
    void IntSpin(Cell cell, const char* label, const QString& key, const char* unit = nullptr, double factor = 1.0,
                 Span span = {});
    void FloatSpin(Cell cell, const char* label, const QString& key, int precision, const char* unit = nullptr,
                   double factor = 1.0, Span span = {});
    void Frequency(Cell cell, const char* label, const QString& key, Span span = {2, 2}, bool adjustUnit = false);
    VCLineEdit* LineEdit(Cell cell, const char* label, const QString& key, const char* unit = nullptr, bool frame = true,
                         Span span = {});
    void LineEditFrequency(Cell cell, const char* label, const QString& key, bool kiloHertz, const char* unit = nullptr,
                           Span span = {});
    void TimeEdit(Cell cell, const char* label, const QString& key, Span span = {});
    VCLabel* TextLabel(Cell cell, const char* label, const QString& key, const char* unit = nullptr, Span span = {});
    /// The check box stands at `cell` with its spans.
    VCCheckBox* CheckBox(Cell cell, const char* text, const QString& key);
    /// A check box without a text of its own in the column after its label.
    VCCheckBox* Switch(Cell cell, const char* label, const QString& key);
    /// Null where none stands.
    QWidget* WidgetAt(Cell cell) const;
    /// Names the widget at `cell` for assistive technology, where no label can be its buddy.
    void AccessibleName(Cell cell, const char* text);
    /// The items of a selection as lines to check. False when the key names no selection.
    bool CheckList(Cell cell, const char* label, const QString& key, Span span = {});
    /// Two times of a day, or two days; always base path + key.
    void TimePeriod(Cell cell, const QString& startKey, const QString& stopKey);
    void DatePeriod(Cell cell, const QString& startKey, const QString& stopKey);
    VCButtonGroup* ButtonGroup(Cell cell, const char* title, const QString& key);
    /// A numeric list, always mapped; stored number = shown number x factor.
    void List(Cell cell, const QString& key, const ListShape& shape, const QList<const char*>& headers,
              ParameterDlg::FactorType factor);

private:
    bool IsRaw() const { return m_binding == Binding::Raw; }
    bool IsParent() const { return m_binding == Binding::Parent; }
    template <class Build> auto Row(Cell cell, const char* label, const char* unit, Span span, Build build);

    ParameterDlg& m_panel;
    QGridLayout& m_grid;
    Binding m_binding;
};

} // namespace TKE
