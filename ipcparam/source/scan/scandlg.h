#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// The scan of a narrow-band tuner: over a frequency range, a frequency list or the receiver's memory channels. A scan can be prepared while
/// it is off.
class ScanDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `scanOption` leaves the switch and the timing: the channels come from a memory scan then. `vuhf` shows lists in MHz instead of kHz.
    ScanDlg(const QString& basePath, bool scanOption, bool vuhf, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void BuildChannels();
    void BuildTiming();
    void BuildLists();
    void ApplyRules();

    bool m_scanOption;
    bool m_vuhf;
    PanelRules m_rules;
};

} // namespace TKE
