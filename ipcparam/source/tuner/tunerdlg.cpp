#include "tuner/tunerdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

TunerDlg::TunerDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerDlg"), readOnly, false)
    , m_secondChannel(secondChannel)
    , m_jobContext(jobContext)
{
    SetTranslationNamespace("TKE::TunerDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), TUNER_HF_NB_FREQUENCY);
    rows.Combo({0, 4}, QT_TR_NOOP("Gain :"), TUNER_HF_NB_GAIN_CTRL_METHOD);
    rows.Combo({0, 6}, QT_TR_NOOP("Decay :"), TUNER_HF_NB_AGCDECAY, QT_TR_NOOP("ms"));
    rows.Combo({1, 4}, QT_TR_NOOP("IFSource :"), TUNER_HF_NB_IFSOURCE);
    rows.IntSpin({1, 6}, QT_TR_NOOP("Value :"), TUNER_HF_NB_MGCVALUE, QT_TR_NOOP("dB"));
    rows.CheckBox({2, 5, 1, 3}, QT_TR_NOOP("Preamplifier On/Off"), TUNER_HF_NB_PREAMPLIFIER_STATUS);
    rows.Combo({3, 0}, QT_TR_NOOP("IF bandwidth :"), TUNER_HF_NB_IFBANDWIDTH);
    rows.Combo({4, 0}, QT_TR_NOOP("Demodulation :"), TUNER_HF_NB_ANALOGDEMOD_METHOD);
    rows.Combo({5, 0}, QT_TR_NOOP("Output IF path :"), TUNER_HF_NB_OUTPUTIFPATH);
    rows.IntSpin({6, 0}, QT_TR_NOOP("IF shift :"), TUNER_HF_NB_IFSHIFT, QT_TR_NOOP("Hz"));
    rows.IntSpin({7, 0}, QT_TR_NOOP("BFO frequency :"), TUNER_HF_NB_BFOFREQUENCY, QT_TR_NOOP("Hz"));
    rows.CheckBox({3, 4, 1, 2}, QT_TR_NOOP("Notch filter 1"), TUNER_HF_NB_NF1_STATUS);
    rows.IntSpin({3, 6}, QT_TR_NOOP("Frequency offset :"), TUNER_HF_NB_NF1_FREQUENCY, QT_TR_NOOP("Hz"));
    rows.Combo({4, 6}, QT_TR_NOOP("Bandwidth :"), TUNER_HF_NB_NF1_BANDWIDTH);
    rows.CheckBox({5, 4, 1, 2}, QT_TR_NOOP("Notch filter 2"), TUNER_HF_NB_NF2_STATUS);
    rows.IntSpin({5, 6}, QT_TR_NOOP("Frequency offset :"), TUNER_HF_NB_NF2_FREQUENCY, QT_TR_NOOP("Hz"));
    rows.Combo({6, 6}, QT_TR_NOOP("Bandwidth :"), TUNER_HF_NB_NF2_BANDWIDTH);
    rows.Line({8, 0});
    rows.Line({9, 0});
    rows.Combo({10, 0}, QT_TR_NOOP("Squelch :"), TUNER_HF_NB_SQUELCHMODE);
    rows.IntSpin({10, 4}, QT_TR_NOOP("Volume :"), TUNER_HF_NB_AUDIOVOLUME, QT_TR_NOOP("%"));
    rows.IntSpin({11, 0}, QT_TR_NOOP("Squelch Threshold :"), TUNER_HF_NB_SQUELCH_THRESHOLD, QT_TR_NOOP("dBµV"));
    rows.Combo({11, 4}, QT_TR_NOOP("Audio format :"), TUNER_HF_NB_AUDIOFORMAT, nullptr, {1, 2});
    rows.IntSpin({12, 0}, QT_TR_NOOP("Syllabic :"), TUNER_HF_NB_SQUELCH_SYLLABIC, QT_TR_NOOP("dB"));
    rows.Line({13, 0});
    rows.CheckBox({14, 1, 1, 2}, QT_TR_NOOP("Wideband mode"), TUNER_HF_NB_WIDEBANDMODE);
    rows.CheckBox({14, 5, 1, 3}, QT_TR_NOOP("Preamplifier On/Off"), TUNER_HF_NB_WIDEBAND_PREAMPLIFIER_STATUS);
    rows.CheckBox({15, 5, 1, 3}, QT_TR_NOOP("Noise suppression"), TUNER_HF_NB_NOISEREDUCTION_UNIT_STATUS);
    rows.IntSpin({16, 4, 1, 2}, QT_TR_NOOP("Replay freq. offset :"), TUNER_HF_NB_REPLAY_FREQUENCY_OFFSET, QT_TR_NOOP("Hz"));
    rows.VerticalLine({0, 3});
}

} // namespace TKE
