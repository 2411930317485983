#include "exciter/wdesimulationdlg.h"

#include "jobmodel/exciterparameter.h"

#include <QPointer>

namespace TKE
{

WDESimulationDlg::WDESimulationDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf,
                                   QWidget* parent, bool readOnly)
    : WDEPanel(basePath, channelCount, jobContext, vuhf, 9, parent, QStringLiteral("WDESimulationDlg"), readOnly)
{
    SetTranslationNamespace("TKE::WDESimulationDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void WDESimulationDlg::BuildSpecialPanel()
{
    const SimulationParameter& simulation = Parameters().Simulation();
    Row(0, 0, m_duration, simulation.Duration());
    Row(1, 0, m_noiseLevel, simulation.NoiseLevel());
    Row(2, 0, m_seed, simulation.Seed());
    Row(0, 4, m_startTime, simulation.StartTime());
    Row(1, 4, m_channelModel, simulation.ChannelModel());
    Row(2, 4, m_fading, simulation.Fading());
    AddVerticalLine(Grid(), 0, 3, 3, 1);
    BuildChannels(QT_TR_NOOP("Emitter"),
                  {&simulation.EmitterActive(), &simulation.EmitterFrequency(), &simulation.EmitterLevel(),
                   &simulation.EmitterModulation(), &simulation.EmitterSnr(), &simulation.EmitterOnTime(),
                   &simulation.EmitterOffTime(), &simulation.EmitterBearing()});
    ExciterModeChanged();
}

void WDESimulationDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();
    ApplyRules();
}

void WDESimulationDlg::Update(Observable* source, TChangeCode code)
{
    const QPointer<WDESimulationDlg> self(this);
    ExciterPanel::Update(source, code);
    if (self && code == ccContent && source == m_fading.Get())
        ApplyRules();
}

void WDESimulationDlg::ApplyRules()
{
    if (m_fading)
        ApplyRule({{m_channelModel, m_fading->GetBool()}, {m_seed, m_fading->GetBool()}});
}

} // namespace TKE
