#include "tuner/tunervuhfdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{
constexpr int spacerWidth = 10; // pixels
}

TunerVUHFDlg::TunerVUHFDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerVUHFDlg"), readOnly, false)
    , m_secondChannel(secondChannel)
    , m_jobContext(jobContext)
{
    SetTranslationNamespace("TKE::TunerVUHFDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerVUHFDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());
    AddSpacerItem(spacerWidth, 0, Grid(), 0, 4);

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), TUNER_VUHF_FREQUENCY, {2, 3});
    rows.Line({2, 0});
    rows.Combo({0, 6}, QT_TR_NOOP("Gain :"), TUNER_VUHF_GAIN_CTRL_MODE);
    rows.IntSpin({1, 6}, QT_TR_NOOP("Value :"), TUNER_VUHF_GAIN_CTRL_MGCGAIN, QT_TR_NOOP("dB"));
    rows.Combo({3, 0}, QT_TR_NOOP("IF bandwidth :"), TUNER_VUHF_IFBANDWIDTH);
    rows.CheckBox({3, 3}, QT_TR_NOOP("AFC"), TUNER_VUHF_AFC_ON);
    rows.Combo({4, 0}, QT_TR_NOOP("Demodulation :"), TUNER_VUHF_ANALOGDEMOD_METHOD);
    rows.Combo({3, 6}, QT_TR_NOOP("Measurement mode :"), TUNER_VUHF_MEAS_MODE);
    rows.IntSpin({4, 6}, QT_TR_NOOP("Measurement time :"), TUNER_VUHF_MEAS_TIME_VALUE, QT_TR_NOOP("µs"));
    rows.Line({5, 0}, 9);
    // The squelch's check box stands in the place of a label.
    rows.CheckBox({6, 0}, QT_TR_NOOP("Squelch Threshold"), TUNER_VUHF_SQUELCHMODE);
    rows.IntSpin({6, 1}, nullptr, TUNER_VUHF_SQUELCH_THRESHOLD, QT_TR_NOOP("dBµV"));
    rows.AccessibleName({6, 1}, QT_TR_NOOP("Squelch Threshold"));
    rows.Combo({7, 0}, QT_TR_NOOP("Attenuation mode :"), TUNER_VUHF_ATTENUATION_MODE);
    rows.IntSpin({8, 0}, QT_TR_NOOP("Attenuation value :"), TUNER_VUHF_ATTENUATION_MANUAL_VALUE, QT_TR_NOOP("dB"));
    rows.IntSpin({6, 6}, QT_TR_NOOP("Volume :"), TUNER_VUHF_AUDIOVOLUME, QT_TR_NOOP("%"));
    rows.IntSpin({7, 6}, QT_TR_NOOP("Audio balance :"), TUNER_VUHF_AUDIOBALANCE);
    rows.Combo({8, 6}, QT_TR_NOOP("Audio format :"), TUNER_VUHF_AUDIOFORMAT);
    rows.IntSpin({9, 6}, QT_TR_NOOP("Analog audio offset :"), TUNER_VUHF_ANALOGAUDIOOFFSET, QT_TR_NOOP("Hz"));
    rows.Combo({10, 6}, QT_TR_NOOP("Amplifier mode :"), TUNER_VUHF_TUNERAMPLIFIERMODE);
    rows.Combo({11, 6}, QT_TR_NOOP("Reference frequency :"), TUNER_VUHF_REFERENCE_FREQUENCY_SOURCE);

    rows.VerticalLine({0, 5});
}

} // namespace TKE
