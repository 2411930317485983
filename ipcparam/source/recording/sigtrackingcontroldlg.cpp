#include "ipcparam/sigtrackingcontroldlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

SigTrackingControlDlg::SigTrackingControlDlg(const QString& basePath, QWidget* parent)
    : ParameterDlg(basePath, parent, QStringLiteral("SigTrackingControlDlg"), false, false)
{
    SetTranslationNamespace("TKE::SigTrackingControlDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void SigTrackingControlDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Raw);
    rows.Combo({0, 0}, QT_TR_NOOP("Frequency range :"), Keys::SIGNALTRACKINGCONTROL_FREQUENCYRANGE);
    SetEnabledDisabled();
}

// The combo box shows the value under the key as it stands; what is disabled is the value under the key's full name.
void SigTrackingControlDlg::SetEnabledDisabled()
{
    Enable(Keys::SIGNALTRACKINGCONTROL_FREQUENCYRANGE, false, false);
}

} // namespace TKE
