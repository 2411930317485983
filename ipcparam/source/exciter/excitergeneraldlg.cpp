#include "ipcparam/excitergeneraldlg.h"

#include "exciter/exciter_settings.h"
#include "framework/panelrows.h"
#include "jobmodel/exciterparameter.h"
#include "keys/keys.h"

#include <QPointer>
#include <algorithm>
#include <array>
#include <utility>

namespace TKE
{

using namespace Keys;

namespace
{

/// What a mode makes of the four parts and of autostart.
struct ModeEffect
{
    int mode;
    bool exciter;
    bool singleChannelDetector;
    bool rasterDetector;
    bool simulation;
    bool autostart;
};

using Mode = REPORTGENERATOR::Exciter_Settings;

constexpr std::array modeEffects{
    ModeEffect{Mode::emManual, false, false, false, false, false},
    ModeEffect{Mode::emFixedFrequency, false, false, false, false, true},
    ModeEffect{Mode::emWDERasterTest, true, false, true, false, true},
    ModeEffect{Mode::emWDEScenario, true, false, false, true, true},
    ModeEffect{Mode::emWDEScenarioLoop, true, false, false, true, true},
    ModeEffect{Mode::emWDESingleChannelTest, true, true, false, false, true},
    ModeEffect{Mode::emWDEChannelGroupTest, true, true, false, false, true},
};
constexpr ModeEffect anyOtherMode{Mode::emNone, false, false, false, false, true};

const ModeEffect& EffectOf(int mode)
{
    const auto found = std::find_if(modeEffects.begin(), modeEffects.end(),
                                    [mode](const ModeEffect& effect) { return effect.mode == mode; });
    return found != modeEffects.end() ? *found : anyOtherMode;
}

} // namespace

ExciterGeneralDlg::ExciterGeneralDlg(const QString& basePath, bool loadFlag, bool rowFlag, QWidget* parent,
                                     bool readOnly)
    : ExciterPanel(basePath, loadFlag, rowFlag, 1, parent, QStringLiteral("ExciterGeneralDlg"), readOnly)
{
    SetTranslationNamespace("TKE::ExciterGeneralDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void ExciterGeneralDlg::BuildSpecialPanel()
{
    AddSpacerItem(10, 10, Grid(), 0, 0);
    BuildRowSettings settings = RowSettings(true);
    settings.kiloHertz = false;
    BuildRow(Grid(), m_exciterModePtr, Parameters().ExciterMode(), 0, 0, settings);
    BuildRow(Grid(), m_autostartPtr, Parameters().Autostart(), 1, 0, settings);

    PanelRows rows(*this, *Grid(), Binding::Parent);
    rows.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("WDE Exciters"), ExciterCheck);
    rows.CheckBox({3, 0, 1, 2}, QT_TR_NOOP("Single channel detector"), SingleChannelDetectorCheck);
    rows.CheckBox({4, 0, 1, 2}, QT_TR_NOOP("Raster channel detector"), RasterDetectorCheck);
    rows.CheckBox({5, 0, 1, 2}, QT_TR_NOOP("Simulation"), SimulationCheck);

    ExciterModeChanged();
}

// Who hears of a switch may delete the panel or change the mode; a change of the mode has then set everything already.
void ExciterGeneralDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();

    const QPointer<ExciterGeneralDlg> self(this);
    const int mode = GetExciterMode();
    const ModeEffect& effect = EffectOf(mode);
    const std::array<std::pair<QString, bool>, 4> switches{{{ExciterCheck, effect.exciter},
                                                            {SingleChannelDetectorCheck, effect.singleChannelDetector},
                                                            {RasterDetectorCheck, effect.rasterDetector},
                                                            {SimulationCheck, effect.simulation}}};
    for (const auto& [key, isOn] : switches)
    {
        EnableUp(key, isOn);
        if (!self || GetExciterMode() != mode)
            return;
    }
    if (m_autostartPtr)
        m_autostartPtr->SetFromText(effect.autostart ? QStringLiteral("true") : QStringLiteral("false"));
}

} // namespace TKE
