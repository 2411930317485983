#include "scan/scandlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{

// Items of SCAN_TYPE
constexpr int frequencyRange = 0;
constexpr int frequencyList = 1;
constexpr int memoryChannels = 2;

} // namespace

ScanDlg::ScanDlg(const QString& basePath, bool scanOption, bool vuhf, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("ScanDlg"), readOnly, false)
    , m_scanOption(scanOption)
    , m_vuhf(vuhf)
    , m_rules(*this, Binding::Mapped)
{
    SetTranslationNamespace("TKE::ScanDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void ScanDlg::BuildPanel()
{
    PanelRows(*this, *Grid()).CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Scan On/Off"), SCAN_STATUS);
    if (!m_scanOption)
        BuildChannels();
    BuildTiming();
    if (!m_scanOption)
        BuildLists();

    m_rules.Observe({SCAN_TYPE, SCAN_DWELLTIME_CHECK, SCAN_CYCLES_CHECK});
    ApplyRules();
}

void ScanDlg::BuildChannels()
{
    PanelRows rows(*this, *Grid());
    rows.ButtonGroup({1, 0, 2, 1}, QT_TR_NOOP("Scan type"), SCAN_TYPE);

    PanelRows range = rows.Group({1, 1, 2, 1}, QT_TR_NOOP("Frequency range"));
    range.Frequency({0, 0}, QT_TR_NOOP("Start frequency :"), SCAN_START_FREQUENCY, {2, 2}, true);
    range.Frequency({2, 0}, QT_TR_NOOP("Stop frequency :"), SCAN_STOP_FREQUENCY);
    range.Combo({4, 0}, QT_TR_NOOP("Step width :"), SCAN_STEPWIDTH);

    PanelRows memory = rows.Group({1, 2, 2, 1}, QT_TR_NOOP("Memory channels"));
    memory.IntSpin({0, 0}, QT_TR_NOOP("First channel :"), SCAN_MEMORY_FIRST);
    memory.IntSpin({1, 0}, QT_TR_NOOP("Last channel :"), SCAN_MEMORY_LAST);
    memory.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Skip locked-out channels"), SCAN_MEMORY_SKIP);
}

void ScanDlg::BuildTiming()
{
    PanelRows timing = PanelRows(*this, *Grid()).Group({3, 0, 1, 3}, QT_TR_NOOP("Timing"));
    timing.IntSpin({0, 0}, QT_TR_NOOP("Dwell time :"), SCAN_DWELLTIME, QT_TR_NOOP("ms"));
    timing.CheckBox({0, 3}, QT_TR_NOOP("infinite"), SCAN_DWELLTIME_CHECK);
    timing.IntSpin({1, 0}, QT_TR_NOOP("Hold time :"), SCAN_HOLDTIME, QT_TR_NOOP("ms"));
    timing.IntSpin({2, 0}, QT_TR_NOOP("Threshold :"), SCAN_THRESHOLD, QT_TR_NOOP("dBµV"));
    timing.Combo({0, 4}, QT_TR_NOOP("Direction :"), SCAN_DIRECTION);
    timing.IntSpin({1, 4}, QT_TR_NOOP("Cycles :"), SCAN_CYCLES);
    timing.CheckBox({1, 6}, QT_TR_NOOP("infinite"), SCAN_CYCLES_CHECK);
}

void ScanDlg::BuildLists()
{
    PanelRows rows(*this, *Grid());
    const double factor = m_vuhf ? 1000000 : 1000;

    const char* listTitle = m_vuhf ? QT_TR_NOOP("Frequency list (MHz)") : QT_TR_NOOP("Frequency list (kHz)");
    PanelRows list = rows.Group({4, 0}, listTitle);
    list.List({0, 0}, SCAN_SEQ_FREQUENCY, {.columns = 1, .minRows = 0, .maxRows = 200, .sorted = false},
              {QT_TR_NOOP("Frequency")}, factor);
    list.AccessibleName({0, 0}, listTitle);

    const char* excludedTitle = m_vuhf ? QT_TR_NOOP("Excluded ranges (MHz)") : QT_TR_NOOP("Excluded ranges (kHz)");
    PanelRows excluded = rows.Group({4, 1, 1, 2}, excludedTitle);
    excluded.List({0, 0}, SCAN_SEQ_EXCL_FREQ_RANGE, {.columns = 2, .minRows = 0, .maxRows = 100, .sorted = true},
                  {QT_TR_NOOP("min"), QT_TR_NOOP("max")}, factor);
    excluded.AccessibleName({0, 0}, excludedTitle);
}

void ScanDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

void ScanDlg::ApplyRules()
{
    m_rules.EnableWhile(m_rules.IsOneOf(SCAN_TYPE, {frequencyRange}),
                        {SCAN_START_FREQUENCY, SCAN_STOP_FREQUENCY, SCAN_STEPWIDTH, SCAN_SEQ_EXCL_FREQ_RANGE});
    m_rules.EnableWhile(m_rules.IsOneOf(SCAN_TYPE, {frequencyList}), {SCAN_SEQ_FREQUENCY});
    m_rules.EnableWhile(m_rules.IsOneOf(SCAN_TYPE, {memoryChannels}),
                        {SCAN_MEMORY_FIRST, SCAN_MEMORY_LAST, SCAN_MEMORY_SKIP});
    m_rules.EnableWhile(m_rules.IsOff(SCAN_DWELLTIME_CHECK), {SCAN_DWELLTIME});
    m_rules.EnableWhile(m_rules.IsOff(SCAN_CYCLES_CHECK), {SCAN_CYCLES});
    m_rules.Apply();
}

} // namespace TKE
