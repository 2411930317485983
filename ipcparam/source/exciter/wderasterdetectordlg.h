#pragma once

#include "exciter/wdepanel.h"

namespace TKE
{

/// The detector that checks the signals on raster channels, and its ranges. Of the two thresholds only the one of
/// the threshold mode can be edited.
class WDERasterDetectorDlg : public WDEPanel
{
    Q_OBJECT

public:
    /// `channelCount` is the number of raster ranges.
    WDERasterDetectorDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                         bool readOnly);

    /// Follows the exciter mode and the value that the rule depends on.
    void Update(Observable* source, TChangeCode code) override;

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    void ApplyRules();

    ValuePtr m_thresholdMode{this};
    ValuePtr m_thresholdAbs{this};
    ValuePtr m_thresholdRel{this};
    ValuePtr m_integrationTime{this};
    ValuePtr m_minDuration{this};
    ValuePtr m_holdTime{this};
};

} // namespace TKE
