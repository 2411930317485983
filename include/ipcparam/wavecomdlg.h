#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The settings of an attached Wavecom decoder: workflow, decoder mode with its mode type, and options. The values lie
/// at the base path or, in the data-node form, in a node "Data/" below it (workflow and expert interface beside that
/// node). Each change of the decoder mode replaces the combo box of the mode type.
class IPCPARAM_EXPORT WavecomDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `dataNode` picks the data-node form.
    WavecomDlg(const QString& basePath, QWidget* parent, bool dataNode, bool readOnly);
    ~WavecomDlg() override;

    /// Called once, by the constructor.
    void BuildPanel();
    /// Follows the decoder mode.
    void Update(Observable* source, TChangeCode code) override;

protected:
    QString GetItemPath(const QString& key) override;

private:
    void BuildData();
    void BuildOptions();
    void CreateSpecificPart();
    /// The key as the builders need it: in the data-node form it names the value from the base path on.
    QString DataKey(const QString& key) const;

    bool m_dataNode;
    QString m_reserved;               // part of the class's layout, used by nothing
    ValueBase* m_modeValue = nullptr; // the tree's
    QGroupBox* m_dataGroup = nullptr; // these three are in the panel's chain of children
    QGridLayout* m_dataLayout = nullptr;
    VCComboBoxClassic* m_modeTypeCombo = nullptr;
};

} // namespace TKE
