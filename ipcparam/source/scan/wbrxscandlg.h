#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// The scan of a wideband monitoring receiver: several ranges in panorama or channel steps, with occupancy statistics.
class WBRXScanDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `vuhf` shows ranges in MHz instead of kHz.
    WBRXScanDlg(const QString& basePath, bool vuhf, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void BuildRanges(PanelRows rows);
    void ApplyRules();

    bool m_vuhf;
    PanelRules m_rules;
};

} // namespace TKE
