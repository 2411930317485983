#include "tuner/tunerwbdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

TunerWBDlg::TunerWBDlg(const QString& basePath, bool secondChannel, bool vuhf, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerWBDlg"), readOnly, false)
    , m_secondChannel(secondChannel)
    , m_vuhf(vuhf)
    , m_prefix(vuhf ? TUNER_WB_VUHF_ : TUNER_WB_HF_)
{
    SetTranslationNamespace("TKE::TunerWBDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerWBDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), m_prefix + TunerWB::FREQUENCY, {2, 2}, true);
    rows.Combo({2, 0}, QT_TR_NOOP("Bandwidth :"), m_prefix + TunerWB::BANDWIDTH);
    if (m_vuhf)
        rows.Combo({3, 0}, QT_TR_NOOP("IF bandwidth :"), m_prefix + TunerWB::IFBANDWIDTH);
    else
        rows.Combo({3, 0}, QT_TR_NOOP("Preselection :"), m_prefix + TunerWB::PRESELECTION);
    rows.Combo({4, 0}, QT_TR_NOOP("Reference frequency :"), m_prefix + TunerWB::REFERENCE_FREQUENCY_SOURCE);
    rows.Combo({0, 4}, QT_TR_NOOP("Gain control :"), m_prefix + TunerWB::GAINCONTROL_MODE);
    rows.IntSpin({1, 4}, QT_TR_NOOP("Gain :"), m_prefix + TunerWB::GAINCONTROL_MGC_GAIN, QT_TR_NOOP("dB"));
    rows.Combo({2, 4}, QT_TR_NOOP("Decay time :"), m_prefix + TunerWB::AGC_DECAY, QT_TR_NOOP("ms"));
    if (m_vuhf)
    {
        rows.Combo({3, 4}, QT_TR_NOOP("Attenuation mode :"), m_prefix + TunerWB::ATTENUATION_MODE);
        rows.IntSpin({4, 4}, QT_TR_NOOP("Attenuation value :"), m_prefix + TunerWB::ATTENUATION_MANUAL_VALUE,
                     QT_TR_NOOP("dB"));
        rows.Combo({5, 4}, QT_TR_NOOP("Amplifier mode :"), m_prefix + TunerWB::TUNERAMPLIFIERMODE);
    }
    else
    {
        rows.Combo({3, 4}, QT_TR_NOOP("Attenuation :"), m_prefix + TunerWB::ATTENUATION, QT_TR_NOOP("dB"));
        rows.CheckBox({4, 5, 1, 2}, QT_TR_NOOP("Preamplifier On/Off"), m_prefix + TunerWB::PREAMPLIFIER_STATUS);
    }
    rows.VerticalLine({0, 3});
    if (m_secondChannel)
    {
        rows.Line({6, 0});
        PanelRows second = rows.Group({7, 0, 2, 7}, QT_TR_NOOP("Second channel"));
        second.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), m_prefix + TunerWB::CH2_FREQUENCY);
        second.Combo({0, 4}, QT_TR_NOOP("Bandwidth :"), m_prefix + TunerWB::CH2_BANDWIDTH);
    }
}

} // namespace TKE
