#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The HF narrow-band tuner: frequency, gain, filters, demodulation, squelch and audio. What can be edited follows from the enable states that
/// the value tree keeps.
class TunerDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// No row depends on `secondChannel` and `jobContext`.
    TunerDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_secondChannel;
    bool m_jobContext;
};

} // namespace TKE
