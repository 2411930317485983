#pragma once

#include "ipcparam/exciterpanel.h"

namespace TKE
{

/// Frequencies and timing of the scan modes. Each scan mode takes its frequencies from one place: a range, a list
/// or memory channels; any other mode leaves all of them open.
class ExciterScanSettingsDlg : public ExciterPanel
{
    Q_OBJECT

public:
    ExciterScanSettingsDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_startFrequency{this};
    ValuePtr m_stopFrequency{this};
    ValuePtr m_stepWidth{this};
    ValuePtr m_firstMemory{this};
    ValuePtr m_lastMemory{this};
    ValuePtr m_dwellTime{this};
    ValuePtr m_pause{this};
    ValuePtr m_direction{this};
    ValuePtr m_cycles{this};
    ValuePtr m_startTime{this};
    ValuePtr m_frequencies{this};
};

} // namespace TKE
