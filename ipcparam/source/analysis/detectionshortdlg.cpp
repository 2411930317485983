#include "analysis/detectionshortdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{

constexpr double kiloHertzPerHertz = 0.001;

} // namespace

DetectionShortDlg::DetectionShortDlg(const QString& basePath, bool jobContext, bool megahertzRanges, QWidget* parent,
                                     bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("DetectionShortDlg"), readOnly, false)
    , m_jobContext(jobContext)
    , m_megahertzRanges(megahertzRanges)
{
    SetTranslationNamespace("TKE::DetectionShortDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void DetectionShortDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.Combo({0, 0}, QT_TR_NOOP("Operating mode :"), DDC_DETECTSHORT_OPERATING_MODE);
    rows.Combo({1, 0}, QT_TR_NOOP("Analysis depth :"), DDC_DETECTSHORT_ANALYSIS_DEPTH);
    rows.FloatSpin({2, 0}, QT_TR_NOOP("Snapshot length :"), DDC_DETECTSHORT_SNAPSHOT_LENGTH, 2, QT_TR_NOOP("s"));
    rows.VerticalLine({0, 3}, 6);
    rows.IntSpin({0, 4}, QT_TR_NOOP("Max signal level :"), DDC_DETECTSHORT_SIGNAL_LEVEL_MAXIMUM, QT_TR_NOOP("dBµV"));
    // Free bandwidths, on purpose: continuous detection offers a choice of them.
    rows.FloatSpin({1, 4}, QT_TR_NOOP("Min signal bandwidth :"), DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MINIMUM, 3,
                   QT_TR_NOOP("kHz"), kiloHertzPerHertz);
    rows.FloatSpin({2, 4}, QT_TR_NOOP("Max signal bandwidth :"), DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MAXIMUM, 3,
                   QT_TR_NOOP("kHz"), kiloHertzPerHertz);
    rows.Combo({3, 4}, QT_TR_NOOP("Noise level mode :"), DDC_DETECTSHORT_NOISE_LEVEL_MODE);
    rows.IntSpin({4, 4}, QT_TR_NOOP("Noise level :"), DDC_DETECTSHORT_NOISE_LEVEL, QT_TR_NOOP("dBµV"));
    rows.IntSpin({5, 4}, QT_TR_NOOP("Min SNR :"), DDC_DETECTSHORT_SNR_MINIMUM, QT_TR_NOOP("dB"));
    rows.Line({6, 0});

    const QList<const char*> headers{QT_TR_NOOP("min"), QT_TR_NOOP("max")};
    const char* rangesTitle =
        m_megahertzRanges ? QT_TR_NOOP("Excluded ranges (MHz)") : QT_TR_NOOP("Excluded ranges (kHz)");
    PanelRows ranges = rows.Group({7, 0, 1, 3}, rangesTitle);
    ranges.List({0, 0}, DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE,
                {.columns = 2, .minRows = 0, .maxRows = 500, .sorted = true}, headers,
                m_megahertzRanges ? 1000000 : 1000);
    ranges.AccessibleName({0, 0}, rangesTitle);

    // The lengths follow the flag of the ranges: the receivers whose ranges are in MHz store lengths in tenths of a
    // millisecond.
    const char* lengthTitle = QT_TR_NOOP("Signal Length (ms)");
    PanelRows lengths = rows.Group({7, 4, 1, 3}, lengthTitle);
    lengths.List({0, 0}, DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH, {.columns = 2, .minRows = 1, .maxRows = 10, .sorted = true},
                 headers, m_megahertzRanges ? 10 : 1);
    lengths.AccessibleName({0, 0}, lengthTitle);
}

} // namespace TKE
