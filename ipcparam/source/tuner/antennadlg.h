#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// The antenna that feeds a chain's tuner, chosen by hand or automatically. The antenna belongs to the receiver, so all values lie one level
/// above the panel's base path.
class AntennaDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `wideband` means the antenna of a wideband receiver; `wbTuner` adds the input of its tuner, and nothing without `wideband`.
    AntennaDlg(const QString& basePath, bool vuhf, bool wideband, bool wbTuner, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void ApplyRules();

    bool m_vuhf;
    bool m_wideband;
    bool m_wbTuner;
    QString m_prefix;
    PanelRules m_rules;
};

} // namespace TKE
