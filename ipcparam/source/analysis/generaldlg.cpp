#include "analysis/generaldlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

GeneralDlg::GeneralDlg(const QString& basePath, QWidget* parent, bool readOnly, bool tdsHeader)
    : ParameterDlg(basePath, parent, QStringLiteral("GeneralDlg"), readOnly, false)
    , m_prefix(tdsHeader ? TDS_HEADER_ : CS_HEADER_DDC_)
{
    SetTranslationNamespace("TKE::GeneralDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void GeneralDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.IntSpin({0, 0}, QT_TR_NOOP("Detection Lock timeout :"), m_prefix + General::SIGDETECTLOCKTIMEOUT,
                 QT_TR_NOOP("ms"));
    rows.IntSpin({1, 0}, QT_TR_NOOP("Detection Relock timeout :"), m_prefix + General::SIGDETECTRELOCKTIMEOUT,
                 QT_TR_NOOP("ms"));
    rows.VerticalLine({0, 3}, 2);
    rows.Combo({0, 4}, QT_TR_NOOP("Lock criterion :"), m_prefix + General::LOCKCRITERION, nullptr, {1, 3});
    rows.IntSpin({1, 4}, QT_TR_NOOP("Max dwelltime :"), m_prefix + General::MAXDWELLTIME);
    // This unit stands to the right of its column, next to the check box that belongs to it.
    rows.Label({1, 6}, QT_TR_NOOP("ms"));
    rows.CheckBox({1, 7}, QT_TR_NOOP("infinite"), m_prefix + General::MAXDWELLTIME_CHECK);
    // One configuration set for both headers, hence no prefix.
    rows.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Enable Configset"), CONFIGSET_ENABLED);
}

} // namespace TKE
