#pragma once

#include "ipcparam/export.h"
#include "value/observable.h"
#include "value/valueobservingptr.h"

#include <QWidget>
#include <string>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLayoutItem;

namespace JOBXMLGENERATOR
{
class Parameter;
}

namespace TKE
{

class PanelRows;
class PanelRules;
class Tree;
class ValueBase;
class VCButtonGroup;
class VCCheckableGroupBox;
class VCCheckBox;
class VCComboBoxClassic;
class VCLabel;
class VCLineEdit;
class VCListBoxNumeric;

/// Base of every parameter panel: a grid of labelled widgets, each bound by an item path to one value of the value tree.
///
/// A panel is built completely in its constructor: the subclass sets its translation namespace, fills the grid through the builders, attaches
/// itself to the values it watches and ends with SetDefaultStretchFactor(). It holds no values; the widgets read and write the tree.
///
/// Item paths: the base path begins and ends with "/". Where an operation takes `fromBase`, true appends the key to the base path as it
/// stands, false maps it first (GetItemPath). An operation on a value that does not exist does nothing. GUI thread only.
class IPCPARAM_EXPORT ParameterDlg : public QWidget, public IObserver
{
    Q_OBJECT

public:
    using Parameter = JOBXMLGENERATOR::Parameter;
    /// Factor of a list: stored number = shown number x factor.
    using FactorType = double;

    /// How BuildRow treats a descriptor's row.
    struct BuildRowSettings
    {
        bool searchUpwards = false;     ///< look the value up at the base path and above, unmapped
        bool keepFrequencyUnit = false; ///< leave the display unit of frequencies as it is
        bool rebaseOnValue = false;     ///< build the row at the place where the value was found
        bool kiloHertz = false;         ///< frequency lists and line edits in kHz instead of MHz
    };

    /// `readOnly` disables every widget that a builder makes, for good. `plainGrid` leaves out the group box around the grid.
    ParameterDlg(const QString& basePath, QWidget* parent, const QString& objectName, bool readOnly, bool plainGrid);
    /// Does not detach the panel from what it watches: who called AddObserver calls DeleteObserver.
    ~ParameterDlg() override;

    /// The context that texts of panels without a namespace of their own are translated in.
    static void SetDefaultTranslationNamespace(const QString& ns);

    QString GetBasePath() const { return m_basePath; }
    bool IsReadOnly() const { return m_readOnly; }
    /// The group box's title; empty without a group box.
    QString GetTitle() const;
    /// The path one level above: of "/A/B/" it is "/A/", of "/A/" it is "/", of "/" it is empty.
    static QString GetParentPath(const QString& path);

    /// Nothing; panels override it to follow the values they watch.
    void Update(Observable* source, TChangeCode code) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // The builders. Each takes the grid (null: the widget is made and bound, but placed nowhere), a cell and its spans, and the key. The
    // widgets that they return are declared in valuewidgets/, the check group and the numeric list in widgets/.

    /// A group box whose title check box is bound to a boolean or a selection; the panel places it.
    virtual VCCheckableGroupBox* CreateCheckableGroupBoxFromVT(const QString& key, const QString& title,
                                                               const QString& toolTip, bool fromBase);
    /// Hook through which a subclass rewrites a key before it is mapped.
    virtual QString BuildFinalKey(const QString& key) const;
    virtual void AddLine(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan);
    /// Width and height in pixels; expands horizontally.
    virtual void AddSpacerItem(int width, int height, QGridLayout* grid, int row, int column);
    virtual void AddVerticalLine(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan);
    virtual QLabel* AddLabel(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& text);
    virtual QLabel* AddLabelToHBoxLayout(QHBoxLayout* box, const QString& text);
    virtual QLabel* AddLeftLabelToHBoxLayout(QHBoxLayout* box, const QString& text);
    /// A label that shows the value's text.
    virtual VCLabel* AddLabelFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                    bool fromBase);
    virtual QLabel* AddLeftLabel(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& text);
    virtual VCLineEdit* AddLineEditFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                          const QString& key, bool frame, bool fromBase);
    /// Binds one level above the base path; `fromBase` has no meaning there.
    virtual VCLineEdit* AddLineEditFromVTParent(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                const QString& key, bool frame, bool fromBase);
    /// A frequency as text in kHz or MHz.
    virtual void AddLineEditFrequencyFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                            const QString& key, bool frame, bool fromBase, bool kiloHertz);
    /// `digits`, `decimals`, `prefix` and `suffix` are those of VCLineEdit::SetFormat.
    virtual void AddLineEditFormatFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                         const QString& key, int digits, int decimals, const QString& prefix,
                                         const QString& suffix, bool frame, bool fromBase);
    virtual VCComboBoxClassic* AddComboFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                              const QString& key, bool fromBase);
    virtual VCButtonGroup* AddVerticalButtonGroupFromVTParent(QGridLayout* grid, int row, int column, int rowSpan,
                                                              int columnSpan, const QString& key, const QString& title);
    virtual VCButtonGroup* AddVerticalButtonGroupFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                        const QString& key, const QString& title, bool fromBase);
    /// Shown = stored x factor.
    virtual void AddIntSpinFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                  bool fromBase, double factor);
    /// Shown = stored x factor, with `precision` decimals.
    virtual void AddFloatSpinFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                    int precision, bool fromBase, double factor);
    /// `adjustUnit` picks the GUI-wide frequency unit that suits the value: kHz up to 20 MHz, MHz up to 1 GHz, GHz above.
    virtual void AddFrequencyFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                    bool adjustUnit, bool fromBase);
    virtual void AddTimeEditFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                   bool fromBase);
    /// Both keys are appended to the base path as they stand.
    virtual void AddTimePeriodFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                     const QString& startKey, const QString& stopKey);
    virtual void AddDatePeriodFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                     const QString& startKey, const QString& stopKey);
    virtual VCListBoxNumeric* AddListBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                               const QString& key, int columns, int minRows, int maxRows, bool sorted,
                                               const QStringList& headers, FactorType factor, bool fromBase);
    virtual void AddListBoxFromVT(QGridLayout* grid, int row, int column, const QString& key, int columns, int minRows,
                                  int maxRows, bool sorted, const QStringList& headers, FactorType factor);
    /// A check list of the items of a selection; false when the key names no selection.
    virtual bool AddListBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                  bool fromBase);
    virtual VCCheckBox* AddCheckBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                          const QString& key, const QString& text, bool fromBase);
    virtual VCCheckBox* AddCheckBoxFromVTParent(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                const QString& key, const QString& text);
    virtual VCComboBoxClassic* AddComboBoxFromVTParent(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                       const QString& key);
    /// Display format of the date and time editors.
    virtual QString GetTimeFormatString();
    /// Gives the room that is left to a row and a column behind the last ones.
    virtual void SetDefaultStretchFactor();
    /// Sets the group box's title; nothing happens without a group box.
    virtual void SetTitle(const QString& title);
    /// Base path + the full name of the (rewritten) key. When the key mechanism fails, the base path alone, which names no value.
    virtual QString GetItemPath(const QString& key);
    /// The directory of the job model's XML files, read from the configuration again; empty for the built-in model.
    virtual QString GetXMLFileDirPath();

    /// Builds label, widget and unit of one descriptor at (`row`, `column`) and the two columns after it; `value` then holds the descriptor's
    /// value or is empty.
    void BuildRow(QGridLayout* grid, ValueObservingPtr<ValueBase>& value, const Parameter& parameter, int row, int column,
                  const BuildRowSettings& settings);

    /// Makes `ptr` hold the value at GetItemPath(key), or empties it.
    void GetValuePtr(ValueObservingPtr<ValueBase>& ptr, const QString& key);
    /// The same with the unmapped key at `path` or the nearest level above it that has the value; never directly below "/".
    void GetValuePtr(ValueObservingPtr<ValueBase>& ptr, const QString& path, const QString& key);
    /// The descriptor's value: mapped at the base path, or unmapped there and above.
    void GetValuePtr(bool searchUpwards, ValueObservingPtr<ValueBase>& ptr, const Parameter& parameter);

    /// Sets the value's enable state to enabled or disabled.
    void Enable(const QString& key, bool enable, bool fromBase);
    void Enable(const Parameter& parameter, bool enable, bool fromBase);
    /// One level above the panel, unmapped; a boolean value also becomes `enable`.
    void EnableUp(const QString& key, bool enable);
    bool IsChecked(const QString& key, bool fromBase);
    /// Writes the boolean, unless the value is disabled.
    void SetChecked(const QString& key, bool checked, bool fromBase);
    /// Writes the value's text (of a selection: the item's name), unless the value is disabled.
    void SetSelection(const QString& key, const QString& selection, bool fromBase);
    /// Name of the selected item; empty when the mapped key names no selection.
    QString GetSelectedValue(const QString& key);

    /// Attaches the panel to the value of the mapped key; null when there is none.
    ValueBase* AddObserver(const QString& key);
    void DeleteObserver(ValueBase* value);

    /// The panel's translation context, for example "TKE::TunerDlg".
    void SetTranslationNamespace(const char* ns);
    const char* GetTranslationNamespace() const { return m_translationNamespace.c_str(); }
    QString GetTranslation(const QString& text) const;

    QGridLayout* Grid() const { return m_grid; }
    QGroupBox* GroupBox() const { return m_groupBox; }
    /// Holds for the rows built from now on: a row may have a read-only rule of its own.
    void SetReadOnly(bool readOnly) { m_readOnly = readOnly; }
    /// Moves the panel to another base path; rows built so far keep their binding.
    void SetBasePath(const QString& basePath) { m_basePath = basePath; }
    /// The path of a key, as `fromBase` says.
    QString PathOf(const QString& key, bool fromBase);
    /// The panel promises that what its builders were told decides on its size, so that hidden panels built alike need not measure themselves.
    /// Not for a panel with widgets or texts of its own making.
    void ShareSizeHints() { m_sharesSizeHints = true; }

private:
    friend class PanelRows;
    friend class PanelRules;

    template <class W> W* Finish(W* widget, QGridLayout* grid, int row, int column, int rowSpan, int columnSpan);
    template <class W>
    W* PlacePlain(W* widget, const QString& text, QGridLayout* grid, int row, int column, int rowSpan, int columnSpan);
    void Sign(const QString& text, int row, int column);
    /// `label` names the widget in `item`; either may be null.
    static void MakeBuddy(QLabel* label, const QLayoutItem* item);
    QString ParentPathOf(const QString& key) const { return GetParentPath(m_basePath) + key; }
    QSize CachedHint(bool minimum) const;

    bool m_readOnly;
    QGridLayout* m_grid = nullptr;
    std::string m_translationNamespace;
    QString m_basePath;
    QString m_xmlDirectory;
    Tree* m_tree;
    QGroupBox* m_groupBox = nullptr;
    size_t m_signature = 0; // of all that was built, to find the size of a like panel again
    bool m_sharesSizeHints = false;
};

} // namespace TKE
