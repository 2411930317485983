#include "analysis/tdsheaderwbdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

#include <QGridLayout>

namespace TKE
{

using namespace Keys;

namespace
{

constexpr int gap = 10; // pixels

} // namespace

TdsHeaderWBDlg::TdsHeaderWBDlg(const QString& basePath, QWidget* parent, bool readOnly, bool ifBandwidthExtension,
                               bool memoryScan, bool improvedDynamicsReadOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TdsHeaderWBDlg"), readOnly, false)
    , m_ifBandwidthExtension(ifBandwidthExtension)
    , m_memoryScan(memoryScan)
    , m_improvedDynamicsReadOnly(improvedDynamicsReadOnly)
{
    SetTranslationNamespace("TKE::TdsHeaderWBDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TdsHeaderWBDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());
    PanelRows raw(*this, *Grid(), Binding::Raw);

    raw.Combo({0, 0}, QT_TR_NOOP("Gain control :"), TDS_HEADER_VUHF_WB_GAINCONTROL_MODE);
    raw.IntSpin({1, 0}, QT_TR_NOOP("Gain :"), TDS_HEADER_VUHF_WB_GAINCONTROL_MGC_GAIN, QT_TR_NOOP("dB"));
    AddSpacerItem(gap, gap, Grid(), 1, 3);
    AddSpacerItem(gap, gap, Grid(), 2, 0);
    rows.Combo({0, 4}, QT_TR_NOOP("IF bandwidth :"), TDS_HEADER_VUHF_WB_IFBANDWIDTH);
    if (m_ifBandwidthExtension)
        rows.CheckBox({0, 6}, QT_TR_NOOP("Ext."), TDS_HEADER_VUHF_WB_IFBANDWIDTH_EXTENSION);
    rows.Unit({0, 7}, QT_TR_NOOP("Chs. :"));
    raw.LineEdit({0, 8}, nullptr, TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT);
    raw.AccessibleName({0, 8}, QT_TR_NOOP("Chs. :"));
    rows.IntSpin({2, 0}, QT_TR_NOOP("Delay :"), TDS_HEADER_VUHF_WB_IFSIGNALDELAY, QT_TR_NOOP("s"));
    rows.Combo({3, 0}, QT_TR_NOOP("Reference frequency :"), TDS_HEADER_VUHF_WB_REFERENCE_FREQUENCY_SOURCE);
    if (!m_memoryScan)
    {
        rows.CheckBox({3, 2}, QT_TR_NOOP("RF mute"), TDS_HEADER_VUHF_WB_RFMUTE);
        const bool readOnly = IsReadOnly();
        SetReadOnly(m_improvedDynamicsReadOnly);
        rows.CheckBox({4, 2, 1, 3}, QT_TR_NOOP("Improved dynamic behaviour at 1 MHz"),
                      TDS_HEADER_VUHF_WB_IMPROVED_DYNAMIC_BEHAVIOUR);
        SetReadOnly(readOnly);
    }
    rows.Line({5, 0}, 9);
    BuildAgc(rows.Group({6, 0, 1, 4}, QT_TR_NOOP("AGC")));
    BuildScan(rows.Group({6, 5, 1, 4}, QT_TR_NOOP("Scan")));
    // The channel count is shown only.
    Enable(TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT, false, true);
}

void TdsHeaderWBDlg::BuildAgc(PanelRows rows)
{
    rows.Combo({0, 0}, QT_TR_NOOP("Attack time :"), TDS_HEADER_VUHF_WB_AGC_ATTACKTIME, QT_TR_NOOP("ms"));
    rows.Combo({1, 0}, QT_TR_NOOP("Hold time :"), TDS_HEADER_VUHF_WB_AGC_HOLDTIME, QT_TR_NOOP("ms"));
    rows.Combo({2, 0}, QT_TR_NOOP("Decay time :"), TDS_HEADER_VUHF_WB_AGC_DECAY, QT_TR_NOOP("ms"));
    rows.IntSpin({3, 0}, QT_TR_NOOP("Hysteresis :"), TDS_HEADER_VUHF_WB_AGC_HYSTERESIS, QT_TR_NOOP("dB"));
}

void TdsHeaderWBDlg::BuildScan(PanelRows rows)
{
    rows.IntSpin({0, 0}, QT_TR_NOOP("Step dwelltime :"), TDS_HEADER_VUHF_WB_STEPDWELLTIME, QT_TR_NOOP("ms"));
    rows.CheckBox({0, 3}, QT_TR_NOOP("infinite"), TDS_HEADER_VUHF_WB_STEPDWELLTIME_CHECK);
    if (!m_memoryScan)
        return;
    rows.IntSpin({1, 0}, QT_TR_NOOP("Scan dwelltime :"), TUNER_WB_VUHF_MEMORYSCAN_DWELLTIME, QT_TR_NOOP("µs"));
    rows.Combo({2, 0}, QT_TR_NOOP("Scan tuner mode :"), TUNER_WB_VUHF_MEMORYSCAN_TUNERAMPLIFIERMODE);
}

} // namespace TKE
