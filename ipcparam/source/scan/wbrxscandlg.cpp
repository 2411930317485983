#include "scan/wbrxscandlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{

constexpr int panorama = 0; // item of MODE
// Items of THRESHOLD_MODE
constexpr int absolute = 0;
constexpr int aboveNoise = 1;

} // namespace

WBRXScanDlg::WBRXScanDlg(const QString& basePath, bool vuhf, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("WBRXScanDlg"), readOnly, false)
    , m_vuhf(vuhf)
    , m_rules(*this, Binding::Mapped)
{
    SetTranslationNamespace("TKE::WBRXScanDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void WBRXScanDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Scan On/Off"), WBRXSCAN_STATUS);
    rows.Combo({1, 0}, QT_TR_NOOP("Scan mode :"), WBRXSCAN_MODE);
    rows.Combo({2, 0}, QT_TR_NOOP("Resolution bandwidth :"), WBRXSCAN_RESOLUTIONBW);
    rows.Combo({3, 0}, QT_TR_NOOP("Step width :"), WBRXSCAN_STEPWIDTH);
    rows.Combo({4, 0}, QT_TR_NOOP("Detector :"), WBRXSCAN_DETECTOR);
    rows.IntSpin({5, 0}, QT_TR_NOOP("Measurement time :"), WBRXSCAN_MEASTIME, QT_TR_NOOP("ms"));
    rows.VerticalLine({0, 3}, 6);
    rows.Combo({0, 4}, QT_TR_NOOP("Threshold mode :"), WBRXSCAN_THRESHOLD_MODE);
    rows.IntSpin({1, 4}, QT_TR_NOOP("Threshold absolute :"), WBRXSCAN_THRESHOLD_ABS, QT_TR_NOOP("dBµV"));
    rows.IntSpin({2, 4}, QT_TR_NOOP("Threshold relative :"), WBRXSCAN_THRESHOLD_REL, QT_TR_NOOP("dB"));
    rows.IntSpin({3, 4}, QT_TR_NOOP("Dwell time :"), WBRXSCAN_DWELLTIME, QT_TR_NOOP("ms"));
    rows.CheckBox({3, 7}, QT_TR_NOOP("infinite"), WBRXSCAN_DWELLTIME_CHECK);
    rows.IntSpin({4, 4}, QT_TR_NOOP("Hold time :"), WBRXSCAN_HOLDTIME, QT_TR_NOOP("ms"));
    rows.IntSpin({5, 4}, QT_TR_NOOP("Revisit time :"), WBRXSCAN_REVISITTIME, QT_TR_NOOP("ms"));
    rows.Line({6, 0}, 8);
    BuildRanges(rows);

    PanelRows occupancy = rows.Group({9, 0, 1, 8}, QT_TR_NOOP("Occupancy"));
    occupancy.CheckBox({0, 0}, QT_TR_NOOP("Occupancy statistics"), WBRXSCAN_OCCUPANCY_ON);
    occupancy.IntSpin({0, 1}, QT_TR_NOOP("Integration time :"), WBRXSCAN_OCCUPANCY_INTERVAL, QT_TR_NOOP("min"));

    m_rules.Observe({WBRXSCAN_MODE, WBRXSCAN_THRESHOLD_MODE, WBRXSCAN_DWELLTIME_CHECK, WBRXSCAN_OCCUPANCY_ON});
    ApplyRules();
}

void WBRXScanDlg::BuildRanges(PanelRows rows)
{
    const double factor = m_vuhf ? 1000000 : 1000;
    const QList<const char*> headers{QT_TR_NOOP("min"), QT_TR_NOOP("max")};

    const char* scannedTitle = m_vuhf ? QT_TR_NOOP("Scan ranges (MHz)") : QT_TR_NOOP("Scan ranges (kHz)");
    PanelRows scanned = rows.Group({7, 0, 2, 4}, scannedTitle);
    scanned.List({0, 0}, WBRXSCAN_SEQ_FREQ_RANGE, {.columns = 2, .minRows = 1, .maxRows = 50, .sorted = true}, headers,
                 factor);
    scanned.AccessibleName({0, 0}, scannedTitle);

    const char* excludedTitle = m_vuhf ? QT_TR_NOOP("Excluded ranges (MHz)") : QT_TR_NOOP("Excluded ranges (kHz)");
    PanelRows excluded = rows.Group({7, 4, 2, 4}, excludedTitle);
    excluded.List({0, 0}, WBRXSCAN_SEQ_EXCL_FREQ_RANGE, {.columns = 2, .minRows = 0, .maxRows = 200, .sorted = true},
                  headers, factor);
    excluded.AccessibleName({0, 0}, excludedTitle);
}

void WBRXScanDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

void WBRXScanDlg::ApplyRules()
{
    m_rules.EnableWhile(PanelRules::Not(m_rules.IsOneOf(WBRXSCAN_MODE, {panorama})), {WBRXSCAN_STEPWIDTH});
    m_rules.EnableWhile(m_rules.IsOneOf(WBRXSCAN_THRESHOLD_MODE, {absolute}), {WBRXSCAN_THRESHOLD_ABS});
    m_rules.EnableWhile(m_rules.IsOneOf(WBRXSCAN_THRESHOLD_MODE, {aboveNoise}), {WBRXSCAN_THRESHOLD_REL});
    m_rules.EnableWhile(m_rules.IsOff(WBRXSCAN_DWELLTIME_CHECK), {WBRXSCAN_DWELLTIME});
    m_rules.EnableWhile(m_rules.IsOn(WBRXSCAN_OCCUPANCY_ON), {WBRXSCAN_OCCUPANCY_INTERVAL});
    m_rules.Apply();
}

} // namespace TKE
