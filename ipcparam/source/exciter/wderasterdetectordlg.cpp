#include "exciter/wderasterdetectordlg.h"

#include "jobmodel/exciterparameter.h"
#include "value/valueselection.h"

#include <QPointer>

namespace TKE
{

WDERasterDetectorDlg::WDERasterDetectorDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf,
                                           QWidget* parent, bool readOnly)
    : WDEPanel(basePath, channelCount, jobContext, vuhf, 7, parent, QStringLiteral("WDERasterDetectorDlg"), readOnly)
{
    SetTranslationNamespace("TKE::WDERasterDetectorDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void WDERasterDetectorDlg::BuildSpecialPanel()
{
    const RasterDetectorParameter& detector = Parameters().RasterDetector();
    Row(0, 0, m_thresholdMode, detector.ThresholdMode());
    Row(1, 0, m_thresholdAbs, detector.ThresholdAbs());
    Row(2, 0, m_thresholdRel, detector.ThresholdRel());
    Row(0, 4, m_integrationTime, detector.IntegrationTime());
    Row(1, 4, m_minDuration, detector.MinDuration());
    Row(2, 4, m_holdTime, detector.HoldTime());
    AddVerticalLine(Grid(), 0, 3, 3, 1);
    BuildChannels(QT_TR_NOOP("Range"),
                  {&detector.RangeActive(), &detector.RangeStart(), &detector.RangeStop(), &detector.RangeSpacing(),
                   &detector.RangeBandwidth(), &detector.RangeExcluded()});
    ExciterModeChanged();
}

void WDERasterDetectorDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();
    ApplyRules();
}

void WDERasterDetectorDlg::Update(Observable* source, TChangeCode code)
{
    const QPointer<WDERasterDetectorDlg> self(this);
    ExciterPanel::Update(source, code);
    if (self && code == ccContent && source == m_thresholdMode.Get())
        ApplyRules();
}

void WDERasterDetectorDlg::ApplyRules()
{
    constexpr int absolute = 0;
    constexpr int aboveNoise = 1;
    const auto* mode = dynamic_cast<const ValueSelection*>(m_thresholdMode.Get());
    const int key = mode ? mode->GetCurrentKey() : -1;
    if (key == absolute || key == aboveNoise)
        ApplyRule({{m_thresholdAbs, key == absolute}, {m_thresholdRel, key == aboveNoise}});
}

} // namespace TKE
