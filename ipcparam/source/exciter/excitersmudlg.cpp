#include "exciter/excitersmudlg.h"

#include "exciter/exciter_settings.h"
#include "jobmodel/exciterparameter.h"

#include <QGridLayout>

namespace TKE
{

using REPORTGENERATOR::Exciter_Settings;

ExciterSMUDlg::ExciterSMUDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly)
    : ExciterPanel(basePath, vuhf, jobContext, 2, parent, QStringLiteral("ExciterSMUDlg"), readOnly)
{
    SetTranslationNamespace("TKE::ExciterSMUDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void ExciterSMUDlg::BuildSpecialPanel()
{
    const SMUParameter& smu = Parameters().SMU();
    Row(0, 0, m_frequency, smu.Frequency());
    Row(2, 0, m_level, smu.Level());
    Row(3, 0, m_rfOutput, smu.RfOutput());
    Row(4, 0, m_referenceSource, smu.ReferenceSource());
    Row(5, 0, m_startTime, smu.StartTime());
    Row(0, 5, m_modulation, smu.Modulation());
    Row(1, 5, m_modulationSource, smu.ModulationSource());
    Row(2, 5, m_modulationDepth, smu.ModulationDepth());
    Row(3, 5, m_deviation, smu.Deviation());
    Row(4, 5, m_symbolRate, smu.SymbolRate());
    Row(5, 5, m_toneFrequency, smu.ToneFrequency());
    Row(6, 5, m_message, smu.Message());
    AddVerticalLine(Grid(), 0, 4, Grid()->rowCount(), 1);
    AddLine(Grid(), 7, 0, 1, Grid()->columnCount());
    Row(8, 0, m_burstLength, smu.BurstLength());
    Row(9, 0, m_burstPause, smu.BurstPause());
    Row(8, 5, m_burstCount, smu.BurstCount());
    ExciterModeChanged();
}

void ExciterSMUDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();

    const int mode = GetExciterMode();
    const bool ownSignal = !Exciter_Settings::IsValidWDE(mode);
    ApplyRule({{m_frequency, ownSignal && !Exciter_Settings::IsValidScan(mode)},
               {m_modulation, ownSignal},
               {m_modulationSource, ownSignal},
               {m_modulationDepth, ownSignal},
               {m_deviation, ownSignal},
               {m_symbolRate, ownSignal},
               {m_toneFrequency, ownSignal},
               {m_message, ownSignal}});
}

} // namespace TKE
