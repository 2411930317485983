#include "exciter/exciterscansettingsdlg.h"

#include "exciter/exciter_settings.h"
#include "jobmodel/exciterparameter.h"

namespace TKE
{

using REPORTGENERATOR::Exciter_Settings;

ExciterScanSettingsDlg::ExciterScanSettingsDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent,
                                               bool readOnly)
    : ExciterPanel(basePath, vuhf, jobContext, 5, parent, QStringLiteral("ExciterScanSettingsDlg"), readOnly)
{
    SetTranslationNamespace("TKE::ExciterScanSettingsDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void ExciterScanSettingsDlg::BuildSpecialPanel()
{
    const ExciterScanParameter& scan = Parameters().ScanSettings();
    Row(0, 0, m_startFrequency, scan.StartFrequency());
    Row(1, 0, m_stopFrequency, scan.StopFrequency());
    Row(2, 0, m_stepWidth, scan.StepWidth());
    Row(3, 0, m_firstMemory, scan.FirstMemory());
    Row(4, 0, m_lastMemory, scan.LastMemory());
    AddVerticalLine(Grid(), 0, 3, 5, 1);
    Row(0, 4, m_dwellTime, scan.DwellTime());
    Row(1, 4, m_pause, scan.Pause());
    Row(2, 4, m_direction, scan.Direction());
    Row(3, 4, m_cycles, scan.Cycles());
    Row(4, 4, m_startTime, scan.StartTime());
    Row(5, 0, m_frequencies, scan.Frequencies());
    ExciterModeChanged();
}

void ExciterScanSettingsDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();

    const int mode = GetExciterMode();
    const auto isOpenIn = [&](int scanMode) { return !IsScanMode() || mode == scanMode; };
    const bool range = isOpenIn(Exciter_Settings::emFrequencyScan);
    const bool memory = isOpenIn(Exciter_Settings::emMemoryScan);
    ApplyRule({{m_startFrequency, range},
               {m_stopFrequency, range},
               {m_stepWidth, range},
               {m_frequencies, isOpenIn(Exciter_Settings::emListScan)},
               {m_firstMemory, memory},
               {m_lastMemory, memory}});
}

} // namespace TKE
