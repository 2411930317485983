#include "analysis/demodulatorpanelmt.h"

#include "keys/keys.h"

namespace TKE
{

void DemodulatorPanelMT::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.FloatSpin({4, 5}, QT_TR_NOOP("Tone duration :"), TONEDURATION, 2);
    rows.Label({4, 7}, QT_TR_NOOP("ms")); // aligned right, unlike "Hz" below
    rows.FloatSpin({5, 5}, QT_TR_NOOP("Frequency offset tracking range :"), FREQUENCYOFFSETTRACKINGRANGE, 2);
    rows.FloatSpin({6, 5}, QT_TR_NOOP("Tone duration capture r. :"), TONEDURATIONCAPTURERANGE, 2);
    rows.FloatSpin({7, 5}, QT_TR_NOOP("Tone duration tracking r. :"), TONEDURATIONTRACKINGRANGE, 2);
    rows.IntSpin({8, 5}, QT_TR_NOOP("Number of channels :"), TONECOUNT);
    // HF stores the one spacing under the name of a sequence.
    rows.FloatSpin({9, 5}, QT_TR_NOOP("Tone spacing :"), IsVUHF() ? TONESPACING : SEQ_TONESPACING, 2, QT_TR_NOOP("Hz"));
}

} // namespace TKE
