#pragma once

#include "ipcparam/exciterpanel.h"

namespace TKE
{

/// Generator settings: frequency, level, modulation and burst timing. In the modes of the wide-band unit that
/// one supplies the signal, and scans supply the frequency.
class ExciterSMUDlg : public ExciterPanel
{
    Q_OBJECT

public:
    ExciterSMUDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_frequency{this};
    ValuePtr m_level{this};
    ValuePtr m_rfOutput{this};
    ValuePtr m_referenceSource{this};
    ValuePtr m_startTime{this};
    ValuePtr m_modulation{this};
    ValuePtr m_modulationSource{this};
    ValuePtr m_modulationDepth{this};
    ValuePtr m_deviation{this};
    ValuePtr m_symbolRate{this};
    ValuePtr m_toneFrequency{this};
    ValuePtr m_message{this};
    ValuePtr m_burstLength{this};
    ValuePtr m_burstPause{this};
    ValuePtr m_burstCount{this};
};

} // namespace TKE
