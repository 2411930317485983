#pragma once

#include "ipcparam/parameterdlg.h"

#include <initializer_list>
#include <memory>

namespace TKE
{

class ExciterParameter;
class ValueSelection;

/// Base of the exciter panels: loads the parameter set of the band, watches the exciter mode, which lies at the base
/// path or above, shows the mode's name as title and calls the subclass back whenever the mode changes. A parameter set
/// that cannot be loaded is reported; the panel is then built from what there is.
class IPCPARAM_EXPORT ExciterPanel : public ParameterDlg
{
    Q_OBJECT

public:
    /// `loadFlag` picks the parameters of the V/UHF band. `rowFlag` leaves the display unit of frequencies as it is.
    /// `panelKind` is the number of the kind of panel.
    ExciterPanel(const QString& basePath, bool loadFlag, bool rowFlag, int panelKind, QWidget* parent,
                 const QString& className, bool readOnly);
    ~ExciterPanel() override;

    int GetPanelKind() const { return m_panelKind; }
    /// The selection that holds the mode; null when there is none.
    ValueSelection* GetExciterModeValue() const;
    /// The key of the mode, -1 when there is none.
    int GetExciterMode() const;
    bool IsScanMode() const;

    /// Follows the exciter mode.
    void Update(Observable* source, TChangeCode code) override;

protected:
    using ValuePtr = ValueObservingPtr<ValueBase>;

    /// A row of a rule: whether the value that it holds can be edited.
    struct Editable
    {
        ValuePtr& value;
        bool isEditable;
    };

    /// Fills the grid; the mode is known by then.
    virtual void BuildSpecialPanel() = 0;
    virtual void ExciterModeChanged() = 0;

    /// To be called by the subclass's constructor, when its own members exist.
    void InitPanel();
    /// Sets the title to the name of the mode.
    void UpdateTitle();
    /// Builds the row of one parameter in the panel's grid, where its value is found at the base path or above.
    void Row(int row, int column, ValuePtr& value, const Parameter& parameter);
    /// How the exciter panels build their rows.
    BuildRowSettings RowSettings(bool rebaseOnValue) const;
    /// Enables or disables the values, in this order; not on a read-only panel. Who hears of it may delete the panel or
    /// apply another rule; the rest of this one is then left out. Make it the last thing you do.
    void ApplyRule(std::initializer_list<Editable> rows);

    const ExciterParameter& Parameters() const { return *m_exciterParameter; }

    ValuePtr m_exciterModePtr{this};

private:
    bool m_loadFlag;
    int m_panelKind;
    bool m_rowFlag;
    std::unique_ptr<ExciterParameter> m_exciterParameter;
    int m_ruleRound = 0; // tells a rule that another one has overtaken it
};

} // namespace TKE
