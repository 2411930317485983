#pragma once

#include "ipcparam/exciterpanel.h"

namespace TKE
{

/// The signal path between generator and output. The blanking time belongs to the blanking of the receivers.
class ExciterSCUDlg : public ExciterPanel
{
    Q_OBJECT

public:
    ExciterSCUDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly);

    /// Follows the exciter mode and the value that the rule depends on.
    void Update(Observable* source, TChangeCode code) override;

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    void ApplyRules();

    ValuePtr m_outputPath{this};
    ValuePtr m_attenuation{this};
    ValuePtr m_filter{this};
    ValuePtr m_levelLimit{this};
    ValuePtr m_amplifier{this};
    ValuePtr m_triggerSource{this};
    ValuePtr m_settlingTime{this};
    ValuePtr m_blanking{this};
    ValuePtr m_blankingTime{this};
    ValuePtr m_remark{this};
};

} // namespace TKE
