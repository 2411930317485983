#include "exciter/exciterwdedlg.h"

#include "exciter/exciter_settings.h"
#include "jobmodel/exciterparameter.h"

namespace TKE
{

using REPORTGENERATOR::Exciter_Settings;

ExciterWDEDlg::ExciterWDEDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly)
    : ExciterPanel(basePath, vuhf, jobContext, 4, parent, QStringLiteral("ExciterWDEDlg"), readOnly)
{
    SetTranslationNamespace("TKE::ExciterWDEDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void ExciterWDEDlg::BuildSpecialPanel()
{
    const WDEParameter& wde = Parameters().WDE();
    Row(0, 0, m_centerFrequency, wde.CenterFrequency());
    Row(2, 0, m_bandwidth, wde.Bandwidth());
    Row(3, 0, m_level, wde.Level());
    Row(4, 0, m_sampleRate, wde.SampleRate());
    AddVerticalLine(Grid(), 0, 4, 5, 1);
    Row(0, 5, m_channelRaster, wde.ChannelRaster());
    Row(1, 5, m_activeChannels, wde.ActiveChannels());
    Row(2, 5, m_phaseMode, wde.PhaseMode());
    Row(3, 5, m_crestFactorReduction, wde.CrestFactorReduction());
    Row(5, 0, m_reservedFrequencies, wde.ReservedFrequencies());
    ExciterModeChanged();
}

void ExciterWDEDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();

    const int mode = GetExciterMode();
    const bool isScenario = mode == Exciter_Settings::emWDEScenario || mode == Exciter_Settings::emWDEScenarioLoop;
    ApplyRule({{m_centerFrequency, !isScenario}});
}

} // namespace TKE
