#include "tuner/tunerexternaldlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{
constexpr int manualControl = 0; // item of CONTROL_MODE
}

TunerExternalDlg::TunerExternalDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TunerExternalDlg"), readOnly, false)
    , m_secondChannel(secondChannel)
    , m_jobContext(jobContext)
    , m_rules(*this, Binding::Mapped)
{
    SetTranslationNamespace("TKE::TunerExternalDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TunerExternalDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Frequency({0, 0}, QT_TR_NOOP("Frequency :"), TUNER_EXT_FREQUENCY, {2, 2}, true);
    rows.Combo({2, 0}, QT_TR_NOOP("Receiver :"), TUNER_EXT_RECEIVER);
    rows.Combo({3, 0}, QT_TR_NOOP("Control :"), TUNER_EXT_CONTROL_MODE);
    rows.IntSpin({4, 0}, QT_TR_NOOP("Settling time :"), TUNER_EXT_SETTLINGTIME, QT_TR_NOOP("ms"));
    if (m_jobContext)
        rows.CheckBox({5, 0, 1, 2}, QT_TR_NOOP("Set frequency at job start"), TUNER_EXT_SET_AT_START);
    else
        rows.LineEdit({5, 0}, QT_TR_NOOP("Remark :"), TUNER_EXT_REMARK, nullptr, true, {1, 2});
    rows.Combo({0, 4}, QT_TR_NOOP("Signal input :"), TUNER_EXT_INPUT);
    rows.LineEditFrequency({1, 4}, QT_TR_NOOP("IF frequency :"), TUNER_EXT_IF_FREQUENCY, false, QT_TR_NOOP("MHz"));
    rows.Combo({2, 4}, QT_TR_NOOP("IF bandwidth :"), TUNER_EXT_IFBANDWIDTH);
    rows.CheckBox({3, 5, 1, 2}, QT_TR_NOOP("Inverted IF spectrum"), TUNER_EXT_IF_INVERTED);
    rows.IntSpin({4, 4}, QT_TR_NOOP("Level offset :"), TUNER_EXT_LEVEL_OFFSET, QT_TR_NOOP("dB"));
    rows.Combo({5, 4}, QT_TR_NOOP("Demodulation :"), TUNER_EXT_ANALOGDEMOD_METHOD);
    rows.VerticalLine({0, 3});
    if (m_secondChannel)
    {
        rows.Line({6, 0});
        rows.Combo({7, 0}, QT_TR_NOOP("Signal input channel 2 :"), TUNER_EXT_CH2_INPUT);
        rows.Combo({7, 4}, QT_TR_NOOP("IF bandwidth :"), TUNER_EXT_CH2_IFBANDWIDTH);
    }

    m_rules.Observe({TUNER_EXT_CONTROL_MODE});
    ApplyRules();
}

void TunerExternalDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

// The frequency can be edited in manual control too: it says what the operator has tuned.
void TunerExternalDlg::ApplyRules()
{
    const auto isManual = m_rules.IsOneOf(TUNER_EXT_CONTROL_MODE, {manualControl});
    m_rules.EnableWhile(PanelRules::Not(isManual), {TUNER_EXT_SETTLINGTIME, TUNER_EXT_SET_AT_START});
    m_rules.Apply();
}

} // namespace TKE
