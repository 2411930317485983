#include "tuner/tunerwbrxdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

TunerWBRXDlg::TunerWBRXDlg(const QString& basePath, bool vuhf, bool jobContext, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerWBRXDlg"), readOnly, false)
    , m_vuhf(vuhf)
    , m_jobContext(jobContext)
    , m_prefix(vuhf ? TUNER_WBRX_VUHF_ : TUNER_WBRX_HF_)
{
    SetTranslationNamespace("TKE::TunerWBRXDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerWBRXDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), m_prefix + TunerWBRX::FREQUENCY, {2, 2}, true);
    rows.Combo({2, 0}, QT_TR_NOOP("Span :"), m_prefix + TunerWBRX::SPAN);
    rows.Combo({3, 0}, QT_TR_NOOP("IF bandwidth :"), m_prefix + TunerWBRX::IFBANDWIDTH);
    rows.Combo({4, 0}, QT_TR_NOOP("Demodulation :"), m_prefix + TunerWBRX::ANALOGDEMOD_METHOD);
    if (m_jobContext)
        rows.Combo({5, 0}, QT_TR_NOOP("Antenna :"), m_prefix + TunerWBRX::ANTENNA);
    rows.Combo({0, 4}, QT_TR_NOOP("Gain :"), m_prefix + TunerWBRX::GAIN_CTRL_MODE);
    rows.IntSpin({1, 4}, QT_TR_NOOP("Value :"), m_prefix + TunerWBRX::GAIN_CTRL_MGCGAIN, QT_TR_NOOP("dB"));
    rows.Combo({2, 4}, QT_TR_NOOP("Attenuation mode :"), m_prefix + TunerWBRX::ATTENUATION_MODE);
    rows.IntSpin({3, 4}, QT_TR_NOOP("Attenuation value :"), m_prefix + TunerWBRX::ATTENUATION_MANUAL_VALUE, QT_TR_NOOP("dB"));
    if (m_vuhf)
        rows.Combo({4, 4}, QT_TR_NOOP("Amplifier mode :"), m_prefix + TunerWBRX::TUNERAMPLIFIERMODE);
    else
        rows.CheckBox({4, 5, 1, 2}, QT_TR_NOOP("Preamplifier On/Off"), m_prefix + TunerWBRX::PREAMPLIFIER_STATUS);
    rows.Combo({5, 4}, QT_TR_NOOP("Reference frequency :"), m_prefix + TunerWBRX::REFERENCE_FREQUENCY_SOURCE);
    rows.VerticalLine({0, 3});
    rows.Line({6, 0});
    rows.Combo({7, 0}, QT_TR_NOOP("Measurement mode :"), m_prefix + TunerWBRX::MEAS_MODE);
    rows.IntSpin({7, 4}, QT_TR_NOOP("Measurement time :"), m_prefix + TunerWBRX::MEAS_TIME_VALUE, QT_TR_NOOP("µs"));
    // The squelch's check box stands in the place of a label.
    rows.CheckBox({8, 0}, QT_TR_NOOP("Squelch Threshold"), m_prefix + TunerWBRX::SQUELCHMODE);
    rows.IntSpin({8, 1}, nullptr, m_prefix + TunerWBRX::SQUELCH_THRESHOLD, QT_TR_NOOP("dBµV"));
    rows.AccessibleName({8, 1}, QT_TR_NOOP("Squelch Threshold"));
    rows.IntSpin({8, 4}, QT_TR_NOOP("Volume :"), m_prefix + TunerWBRX::AUDIOVOLUME, QT_TR_NOOP("%"));
}

} // namespace TKE
