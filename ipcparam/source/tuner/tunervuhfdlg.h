#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The V/UHF tuner: frequency, gain, filters, measurement, squelch, attenuation and audio. What can be edited follows from the enable states that
/// the value tree keeps.
class TunerVUHFDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// No row depends on `secondChannel` and `jobContext`.
    TunerVUHFDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_secondChannel;
    bool m_jobContext;
};

} // namespace TKE
