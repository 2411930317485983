#include "analysis/spectralzoomdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

SpectralZoomDlg::SpectralZoomDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("SpectralZoomDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::SpectralZoomDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void SpectralZoomDlg::BuildPanel()
{
    SetBasePath(GetBasePath() + QLatin1String("TDSSpectralZoom/"));
    PanelRows rows(*this, *Grid());

    rows.CheckBox({0, 0}, QT_TR_NOOP("Lock frequency"), DDC_LOCK_FREQUENCY_OFFLINE);
}

} // namespace TKE
