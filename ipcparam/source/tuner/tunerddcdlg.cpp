#include "tuner/tunerddcdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

TunerDDCDlg::TunerDDCDlg(const QString& basePath, bool secondChannel, bool alarmConditions, bool vuhf, QWidget* parent,
                         bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerDDCDlg"), readOnly, false)
    , m_secondChannel(secondChannel)
    , m_alarmConditions(alarmConditions)
    , m_vuhf(vuhf)
{
    SetTranslationNamespace("TKE::TunerDDCDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerDDCDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), TUNER_DDC_FREQUENCY, {2, 2}, true);
    rows.Combo({0, 4}, QT_TR_NOOP("Gain :"), TUNER_DDC_GAIN_CTRL_METHOD);
    rows.Combo({0, 6}, QT_TR_NOOP("Decay :"), TUNER_DDC_AGCDECAY, QT_TR_NOOP("ms"));
    rows.IntSpin({1, 6}, QT_TR_NOOP("Value :"), TUNER_DDC_MGCVALUE, QT_TR_NOOP("dB"));
    rows.Combo({2, 0}, QT_TR_NOOP("DDC bandwidth :"), TUNER_DDC_BANDWIDTH);
    rows.CheckBox({2, 4, 1, 2}, QT_TR_NOOP("Notch filter"), TUNER_DDC_NF1_STATUS);
    rows.IntSpin({2, 6}, QT_TR_NOOP("Frequency offset :"), TUNER_DDC_NF1_FREQUENCY, QT_TR_NOOP("Hz"));
    rows.Combo({3, 0}, QT_TR_NOOP("Demodulation :"), TUNER_DDC_ANALOGDEMOD_METHOD);
    rows.Combo({3, 6}, QT_TR_NOOP("Bandwidth :"), TUNER_DDC_NF1_BANDWIDTH);
    rows.Combo({4, 0}, QT_TR_NOOP("IF bandwidth :"), TUNER_DDC_IFBANDWIDTH);
    rows.CheckBox({4, 5, 1, 3}, QT_TR_NOOP("Noise suppression"), TUNER_DDC_NOISEREDUCTION_UNIT_STATUS);
    rows.IntSpin({5, 0}, QT_TR_NOOP("IF shift :"), TUNER_DDC_IFSHIFT, QT_TR_NOOP("Hz"));
    if (m_vuhf)
        rows.CheckBox({6, 1}, QT_TR_NOOP("AFC"), TUNER_DDC_AFC_ON);
    else
        rows.IntSpin({6, 0}, QT_TR_NOOP("BFO frequency :"), TUNER_DDC_BFOFREQUENCY, QT_TR_NOOP("Hz"));
    rows.Line({7, 0});
    rows.Combo({8, 0}, QT_TR_NOOP("Squelch :"), TUNER_DDC_SQUELCHMODE);
    rows.IntSpin({8, 4}, QT_TR_NOOP("Volume :"), TUNER_DDC_AUDIOVOLUME, QT_TR_NOOP("%"));
    rows.IntSpin({9, 0}, QT_TR_NOOP("Squelch Threshold :"), TUNER_DDC_SQUELCH_THRESHOLD, QT_TR_NOOP("dBµV"));
    rows.Combo({9, 4}, QT_TR_NOOP("Audio format :"), TUNER_DDC_AUDIOFORMAT, nullptr, {1, 2});
    if (m_vuhf)
        rows.IntSpin({10, 4}, QT_TR_NOOP("Audio balance :"), TUNER_DDC_AUDIOBALANCE);
    rows.VerticalLine({0, 3}); // ends above the rows that follow
    if (m_alarmConditions)
    {
        rows.Line({11, 0});
        rows.IntSpin({12, 0}, QT_TR_NOOP("Alarm threshold :"), TUNER_DDC_ALARM_THRESHOLD, QT_TR_NOOP("dBµV"));
        rows.CheckBox({12, 4, 1, 3}, QT_TR_NOOP("Hold frequency on alarm"), TUNER_DDC_ALARM_HOLD);
    }
    if (m_secondChannel)
    {
        PanelRows second = rows.Group({13, 0, 2, 9}, QT_TR_NOOP("Second channel"));
        second.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), TUNER_DDC_CH2_FREQUENCY);
        second.Combo({0, 4}, QT_TR_NOOP("DDC bandwidth :"), TUNER_DDC_CH2_BANDWIDTH);
        second.Combo({1, 4}, QT_TR_NOOP("Demodulation :"), TUNER_DDC_CH2_ANALOGDEMOD_METHOD);
    }
}

} // namespace TKE
