#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// How the spectrum is computed and displayed.
class FFTDataDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `fftLengthMode` offers the FFT length in place of the spectral resolution. `refreshRateRow` shows the refresh
    /// rate.
    FFTDataDlg(const QString& basePath, bool fftLengthMode, bool refreshRateRow, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_fftLengthMode;
    bool m_refreshRateRow;
};

} // namespace TKE
