#include "exciter/wdeexciterdlg.h"

#include "exciter/exciter_settings.h"
#include "jobmodel/exciterparameter.h"

namespace TKE
{

using REPORTGENERATOR::Exciter_Settings;

WDEExciterDlg::WDEExciterDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                             bool readOnly)
    : WDEPanel(basePath, channelCount, jobContext, vuhf, 6, parent, QStringLiteral("WDEExciterDlg"), readOnly)
{
    SetTranslationNamespace("TKE::WDEExciterDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void WDEExciterDlg::BuildSpecialPanel()
{
    const WDEExciterParameter& exciter = Parameters().WDEExciter();
    Row(0, 0, m_levelReference, exciter.LevelReference());
    Row(1, 0, m_burstLength, exciter.BurstLength());
    Row(2, 0, m_burstPause, exciter.BurstPause());
    Row(0, 4, m_startTime, exciter.StartTime());
    Row(1, 4, m_repeat, exciter.Repeat());
    AddVerticalLine(Grid(), 0, 3, 3, 1);
    BuildChannels(QT_TR_NOOP("Channel"),
                  {&exciter.ChannelActive(), &exciter.ChannelFrequency(), &exciter.ChannelLevel(),
                   &exciter.ChannelModulation(), &exciter.ChannelSymbolRate(), &exciter.ChannelShift(),
                   &exciter.ChannelMessage()});
    ExciterModeChanged();
}

void WDEExciterDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();

    const int mode = GetExciterMode();
    const bool isScenario = mode == Exciter_Settings::emWDEScenario || mode == Exciter_Settings::emWDEScenarioLoop;
    ApplyRule({{m_repeat, !isScenario}});
}

} // namespace TKE
