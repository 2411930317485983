#include "analysis/fftdatadlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

FFTDataDlg::FFTDataDlg(const QString& basePath, bool fftLengthMode, bool refreshRateRow, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("FFTDataDlg"), readOnly, false)
    , m_fftLengthMode(fftLengthMode)
    , m_refreshRateRow(refreshRateRow)
{
    SetTranslationNamespace("TKE::FFTDataDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void FFTDataDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    if (m_fftLengthMode)
        rows.Combo({0, 0}, QT_TR_NOOP("FFT length :"), SPECTRUM_FFT_LENGTH);
    else
        rows.Combo({0, 0}, QT_TR_NOOP("Spectral resolution :"), SPECTRUM_RESOLUTIONBW);
    if (m_refreshRateRow)
    {
        // A standing remark: nothing checks the rate.
        rows.Combo({1, 0}, QT_TR_NOOP("Refresh rate:"), SPECTRUM_MAX_SPECTRUMRATE,
                   QT_TR_NOOP("(Refresh rate >50: performance problems may occur)"));
    }
    rows.VerticalLine({0, 3}, 3);
    rows.Combo({0, 4}, QT_TR_NOOP("Window type :"), SPECTRUM_WINDOW_TYPES);
    rows.Combo({1, 4}, QT_TR_NOOP("FFT display mode :"), SPECTRUM_DISPLAYMODE);
    rows.IntSpin({2, 4}, QT_TR_NOOP("FFT measurement time :"), SPECTRUM_MEASUREMENTTIME, QT_TR_NOOP("s"));
}

} // namespace TKE
