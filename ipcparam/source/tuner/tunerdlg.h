#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The HF narrow-band tuner: frequency, gain, filters, demodulation, squelch and audio. What can be edited follows from the enable states that
/// the value tree keeps. The sides of the vertical line count their rows each for itself, so that the panel stays low; they are built, and
/// reached by Tab, in the order in which they are written down.
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
