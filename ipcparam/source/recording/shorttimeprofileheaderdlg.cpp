#include "ipcparam/shorttimeprofileheaderdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

ShorttimeProfileHeaderDlg::ShorttimeProfileHeaderDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("ShorttimeProfileHeaderDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::ShorttimeProfileHeaderDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void ShorttimeProfileHeaderDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Raw);
    rows.IntSpin({0, 0}, QT_TR_NOOP("Matching accuracy :"), Keys::PROFILEMATCHINGACCURACY);
    rows.Label({0, 2}, QT_TR_NOOP("%")); // right-aligned, unlike other units
}

} // namespace TKE
