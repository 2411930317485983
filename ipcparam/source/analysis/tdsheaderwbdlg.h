#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

class PanelRows;

/// The header of a V/UHF wideband receiver: gain, IF bandwidth, delay, reference, AGC and scan.
class TdsHeaderWBDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `ifBandwidthExtension` offers the extended IF bandwidth. `memoryScan` shows the rows of a memory scan in place
    /// of RF mute and improved dynamics. `improvedDynamicsReadOnly` is the read-only flag of the latter alone.
    TdsHeaderWBDlg(const QString& basePath, QWidget* parent, bool readOnly, bool ifBandwidthExtension, bool memoryScan,
                   bool improvedDynamicsReadOnly);

private:
    void BuildPanel();
    void BuildAgc(PanelRows rows);
    void BuildScan(PanelRows rows);

    bool m_ifBandwidthExtension;
    bool m_memoryScan;
    bool m_improvedDynamicsReadOnly;
};

} // namespace TKE
