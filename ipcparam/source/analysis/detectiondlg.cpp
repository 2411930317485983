#include "analysis/detectiondlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

DetectionDlg::DetectionDlg(const QString& basePath, bool megahertzRanges, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("DetectionDlg"), readOnly, false)
    , m_megahertzRanges(megahertzRanges)
{
    SetTranslationNamespace("TKE::DetectionDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void DetectionDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Combo({0, 0}, QT_TR_NOOP("Detection quality :"), DDC_DETECTCONV_PAR_QUALITY);
    rows.Combo({1, 0}, QT_TR_NOOP("Detection mode :"), DDC_DETECTCONV_PAR_MODE);
    rows.Line({2, 0}, 4);
    rows.IntSpin({3, 0}, QT_TR_NOOP("Decay time :"), DDC_DETECTCONV_PAR_DECAYTIME, QT_TR_NOOP("ms"));
    rows.VerticalLine({0, 4}, 6);
    rows.IntSpin({0, 5}, QT_TR_NOOP("Max signal level :"), DDC_DETECTCONV_PAR_LEVEL_MAX, QT_TR_NOOP("dBµV/Hz"));
    rows.Combo({1, 5}, QT_TR_NOOP("Min signal bandwidth :"), DDC_DETECTCONV_PAR_BANDWDTH_MIN);
    rows.Combo({2, 5}, QT_TR_NOOP("Max signal bandwidth :"), DDC_DETECTCONV_PAR_BANDWDTH_MAX);
    rows.Combo({3, 5}, QT_TR_NOOP("Noise level mode :"), DDC_DETECTCONV_PAR_NOISELEVEL_MODE);
    rows.IntSpin({4, 5}, QT_TR_NOOP("Noise level absolute :"), DDC_DETECTCONV_PAR_NOISELEVEL_ABS,
                 QT_TR_NOOP("dBµV/Hz"));
    rows.IntSpin({5, 5}, QT_TR_NOOP("Noise level relative :"), DDC_DETECTCONV_PAR_NOISELEVEL_REL, QT_TR_NOOP("dB"));
    rows.Line({6, 0}, 8);

    const char* title = m_megahertzRanges ? QT_TR_NOOP("Excluded ranges (MHz)") : QT_TR_NOOP("Excluded ranges (kHz)");
    PanelRows ranges = rows.Group({7, 0, 2, 4}, title);
    ranges.List({0, 0}, DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE,
                {.columns = 2, .minRows = 0, .maxRows = 200, .sorted = true}, {QT_TR_NOOP("min"), QT_TR_NOOP("max")},
                m_megahertzRanges ? 1000000 : 1000);
    ranges.AccessibleName({0, 0}, title);
}

} // namespace TKE
