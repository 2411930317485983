#include "exciter/wdesinglechanneldetectordlg.h"

#include "jobmodel/exciterparameter.h"

namespace TKE
{

WDESingleChannelDetectorDlg::WDESingleChannelDetectorDlg(const QString& basePath, int channelCount, bool jobContext,
                                                         bool vuhf, QWidget* parent, bool readOnly)
    : WDEPanel(basePath, channelCount, jobContext, vuhf, 8, parent, QStringLiteral("WDESingleChannelDetectorDlg"),
               readOnly)
{
    SetTranslationNamespace("TKE::WDESingleChannelDetectorDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void WDESingleChannelDetectorDlg::BuildSpecialPanel()
{
    const SingleChannelDetectorParameter& detector = Parameters().SingleChannelDetector();
    Row(0, 0, m_integrationTime, detector.IntegrationTime());
    Row(1, 0, m_minDuration, detector.MinDuration());
    Row(0, 4, m_holdTime, detector.HoldTime());
    Row(1, 4, m_reportLevel, detector.ReportLevel());
    AddVerticalLine(Grid(), 0, 3, 2, 1);
    BuildChannels(QT_TR_NOOP("Channel"),
                  {&detector.ChannelActive(), &detector.ChannelFrequency(), &detector.ChannelBandwidth(),
                   &detector.ChannelThreshold(), &detector.ChannelHysteresis()});
    ExciterModeChanged();
}

void WDESingleChannelDetectorDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();
}

} // namespace TKE
