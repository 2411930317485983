#pragma once

#include "exciter/wdepanel.h"

namespace TKE
{

/// The simulated scenario and its emitters. Channel model and seed belong to the fading.
class WDESimulationDlg : public WDEPanel
{
    Q_OBJECT

public:
    /// `channelCount` is the number of simulated emitters.
    WDESimulationDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                     bool readOnly);

    /// Follows the exciter mode and the value that the rule depends on.
    void Update(Observable* source, TChangeCode code) override;

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    void ApplyRules();

    ValuePtr m_duration{this};
    ValuePtr m_noiseLevel{this};
    ValuePtr m_seed{this};
    ValuePtr m_startTime{this};
    ValuePtr m_channelModel{this};
    ValuePtr m_fading{this};
};

} // namespace TKE
