#include "analysis/tdsheadermsdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

TdsHeaderMSDlg::TdsHeaderMSDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TdsHeaderMSDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::TdsHeaderMSDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TdsHeaderMSDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Raw);

    rows.LineEdit({0, 0}, QT_TR_NOOP("Channels :"), TDS_HEADER_MEMORYSCAN_COUNT);
    Enable(TDS_HEADER_MEMORYSCAN_COUNT, false, true);
}

} // namespace TKE
