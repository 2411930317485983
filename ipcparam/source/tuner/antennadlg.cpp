#include "tuner/antennadlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{

constexpr int manualSelection = 2; // item of SELECTION_MODE

QString PrefixOf(bool vuhf, bool wideband)
{
    if (wideband)
        return vuhf ? ANTENNA_WB_VUHF_ : ANTENNA_WB_HF_;
    return vuhf ? ANTENNA_VUHF_ : ANTENNA_HF_;
}

} // namespace

AntennaDlg::AntennaDlg(const QString& basePath, bool vuhf, bool wideband, bool wbTuner, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("AntennaDlg"), readOnly, false)
    , m_vuhf(vuhf)
    , m_wideband(wideband)
    , m_wbTuner(wbTuner)
    , m_prefix(PrefixOf(vuhf, wideband))
    , m_rules(*this, Binding::Parent)
{
    SetTranslationNamespace("TKE::AntennaDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void AntennaDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Parent);

    rows.ButtonGroup({0, 0, 5, 1}, QT_TR_NOOP("Antenna selection"), m_prefix + Antenna::SELECTION_MODE);
    rows.VerticalLine({0, 1}, 5);
    rows.Combo({0, 2}, QT_TR_NOOP("Antenna :"), m_prefix + Antenna::NAME);
    if (m_vuhf)
        rows.Combo({1, 2}, QT_TR_NOOP("Polarisation :"), m_prefix + Antenna::POLARISATION);
    else
        rows.Combo({1, 2}, QT_TR_NOOP("Preselection :"), m_prefix + Antenna::PRESELECTION);
    rows.LineEdit({2, 2}, QT_TR_NOOP("Direction :"), m_prefix + Antenna::AZIMUTH, QT_TR_NOOP("°"));
    rows.Combo({3, 2}, QT_TR_NOOP("Attenuation :"), m_prefix + Antenna::ATTENUATION, QT_TR_NOOP("dB"));
    rows.CheckBox({4, 3}, QT_TR_NOOP("Preamplifier On/Off"), m_prefix + Antenna::PREAMPLIFIER_STATUS);
    if (m_wideband)
    {
        rows.Line({5, 0}, 5);
        rows.Combo({6, 2}, QT_TR_NOOP("Distribution output :"), m_prefix + Antenna::OUTPUT);
    }
    if (m_wideband && m_wbTuner)
        rows.Combo({7, 2}, QT_TR_NOOP("Tuner input :"), m_prefix + Antenna::TUNERINPUT);

    m_rules.Observe({m_prefix + Antenna::SELECTION_MODE});
    ApplyRules();
}

void AntennaDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

// The preamplifier is left out: it is a boolean, and enabling one above the panel would overwrite it.
void AntennaDlg::ApplyRules()
{
    const auto isManual = m_rules.IsOneOf(m_prefix + Antenna::SELECTION_MODE, {manualSelection});
    m_rules.EnableWhile(isManual, {m_prefix + Antenna::NAME, m_prefix + Antenna::AZIMUTH});
    if (m_vuhf)
        m_rules.EnableWhile(isManual, {m_prefix + Antenna::POLARISATION});
    m_rules.Apply();
}

} // namespace TKE
