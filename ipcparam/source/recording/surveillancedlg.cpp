#include "recording/surveillancedlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

#include <QGridLayout>

namespace TKE
{

using namespace Keys;

namespace
{
constexpr int weekdaysHeight = 90; // pixels
}

SurveillanceDlg::SurveillanceDlg(const QString& basePath, bool ddc, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("SurveillanceDlg"), readOnly, false)
    , m_ddc(ddc)
    , m_rules(*this, Binding::Mapped)
{
    SetTranslationNamespace("TKE::SurveillanceDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void SurveillanceDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());
    BuildAlarm(rows.Group({0, 0}, QT_TR_NOOP("Alarm")));
    BuildSignal(rows.Group({0, 1}, QT_TR_NOOP("Signal")));
    BuildText(rows.Group({1, 0}, QT_TR_NOOP("Text")));
    if (m_ddc)
        BuildDetection(rows);
    BuildPeriods(rows);

    m_rules.Observe({SURVEILLANCE_LEVEL_CHECK, SURVEILLANCE_DURATION_CHECK, SURVEILLANCE_ABSENCE_CHECK,
                     SURVEILLANCE_FREQDEVIATION_CHECK, SURVEILLANCE_MODULATION_CHECK, SURVEILLANCE_TEXT_CHECK});
    if (m_ddc)
        m_rules.Observe({SURVEILLANCE_BANDWIDTH_CHECK});
    ApplyRules();
}

void SurveillanceDlg::BuildAlarm(PanelRows rows)
{
    rows.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Alarm On/Off"), SURVEILLANCE_ALARM_ON);
    rows.Combo({1, 0}, QT_TR_NOOP("Priority :"), SURVEILLANCE_PRIORITY);
    rows.IntSpin({2, 0}, QT_TR_NOOP("Reappearance Time :"), SURVEILLANCE_REAPPEARANCE_TIME, QT_TR_NOOP("s"));
    rows.CheckList({3, 0}, QT_TR_NOOP("Actions :"), SURVEILLANCE_ACTIONS, {3, 1});
}

// Each condition's check box stands in the place of a label.
void SurveillanceDlg::BuildSignal(PanelRows rows)
{
    const auto addCondition =
        [&](int row, const char* text, const QString& checkKey, const QString& key, const char* unit)
    {
        rows.CheckBox({row, 0}, text, checkKey);
        rows.IntSpin({row, 1}, nullptr, key, unit);
        rows.AccessibleName({row, 1}, text);
    };
    addCondition(0, QT_TR_NOOP("Level above"), SURVEILLANCE_LEVEL_CHECK, SURVEILLANCE_LEVEL, QT_TR_NOOP("dBµV"));
    addCondition(1, QT_TR_NOOP("Signal longer than"), SURVEILLANCE_DURATION_CHECK, SURVEILLANCE_DURATION, QT_TR_NOOP("s"));
    addCondition(2, QT_TR_NOOP("Signal absent for"), SURVEILLANCE_ABSENCE_CHECK, SURVEILLANCE_ABSENCE, QT_TR_NOOP("s"));
    addCondition(3, QT_TR_NOOP("Frequency deviation above"), SURVEILLANCE_FREQDEVIATION_CHECK, SURVEILLANCE_FREQDEVIATION,
                 QT_TR_NOOP("Hz"));
    rows.CheckBox({4, 0}, QT_TR_NOOP("Modulation type"), SURVEILLANCE_MODULATION_CHECK);
    rows.CheckList({4, 1}, nullptr, SURVEILLANCE_MODULATIONS, {3, 1});
    rows.AccessibleName({4, 1}, QT_TR_NOOP("Modulation type"));
}

void SurveillanceDlg::BuildText(PanelRows rows)
{
    rows.CheckBox({0, 0}, QT_TR_NOOP("Decoded text contains"), SURVEILLANCE_TEXT_CHECK);
    rows.LineEdit({0, 1}, nullptr, SURVEILLANCE_TEXT);
    rows.AccessibleName({0, 1}, QT_TR_NOOP("Decoded text contains"));
    rows.CheckBox({1, 1}, QT_TR_NOOP("Match case"), SURVEILLANCE_TEXT_MATCHCASE);
}

void SurveillanceDlg::BuildDetection(PanelRows rows)
{
    const char* rangesTitle = QT_TR_NOOP("Surveyed ranges (kHz)");
    PanelRows ranges = rows.Group({1, 1}, rangesTitle);
    ranges.List({0, 0}, SURVEILLANCE_SEQ_FREQ_RANGE, {.columns = 2, .minRows = 0, .maxRows = 50, .sorted = true},
                {QT_TR_NOOP("min"), QT_TR_NOOP("max")}, 1000);
    ranges.AccessibleName({0, 0}, rangesTitle);

    PanelRows bandwidth = rows.Group({2, 0, 1, 2}, QT_TR_NOOP("Bandwidth (kHz)"));
    bandwidth.CheckBox({0, 0}, QT_TR_NOOP("Use bandwidth"), SURVEILLANCE_BANDWIDTH_CHECK);
    bandwidth.LineEditFrequency({0, 1}, QT_TR_NOOP("Min :"), SURVEILLANCE_BANDWIDTH_MIN, true);
    bandwidth.LineEditFrequency({0, 3}, QT_TR_NOOP("Max :"), SURVEILLANCE_BANDWIDTH_MAX, true);
}

void SurveillanceDlg::BuildPeriods(PanelRows rows)
{
    rows.CheckableGroup({3, 0}, QT_TR_NOOP("Time period"), SURVEILLANCE_TIMEPERIOD_CHECK)
        .TimePeriod({0, 0}, SURVEILLANCE_TIMEPERIOD_START, SURVEILLANCE_TIMEPERIOD_STOP);
    rows.CheckableGroup({3, 1}, QT_TR_NOOP("Date period"), SURVEILLANCE_DATEPERIOD_CHECK)
        .DatePeriod({0, 0}, SURVEILLANCE_DATEPERIOD_START, SURVEILLANCE_DATEPERIOD_STOP);

    const char* weekdaysTitle = QT_TR_NOOP("Weekdays");
    PanelRows weekdays = rows.Group({4, 0, 1, 2}, weekdaysTitle);
    weekdays.CheckList({0, 0}, nullptr, SURVEILLANCE_WEEKDAYS);
    weekdays.AccessibleName({0, 0}, weekdaysTitle);
    weekdays.WidgetAt({0, 0})->setMaximumHeight(weekdaysHeight);
}

void SurveillanceDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

// The two periods need no rule: an unchecked group disables what stands in it.
void SurveillanceDlg::ApplyRules()
{
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_LEVEL_CHECK), {SURVEILLANCE_LEVEL});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_DURATION_CHECK), {SURVEILLANCE_DURATION});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_ABSENCE_CHECK), {SURVEILLANCE_ABSENCE});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_FREQDEVIATION_CHECK), {SURVEILLANCE_FREQDEVIATION});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_MODULATION_CHECK), {SURVEILLANCE_MODULATIONS});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_TEXT_CHECK), {SURVEILLANCE_TEXT, SURVEILLANCE_TEXT_MATCHCASE});
    m_rules.EnableWhile(m_rules.IsOn(SURVEILLANCE_BANDWIDTH_CHECK), {SURVEILLANCE_BANDWIDTH_MIN, SURVEILLANCE_BANDWIDTH_MAX});
    m_rules.Apply();
}

} // namespace TKE
