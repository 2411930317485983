#include "analysis/demodulatorpanelf7w.h"

#include "keys/keys.h"
#include "valuewidgets/readername.h"

#include <QLabel>

namespace TKE
{

void DemodulatorPanelF7W::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.FloatSpin({4, 5}, QT_TR_NOOP("Baudrate channel A :"), BAUDRATE_0, 2, QT_TR_NOOP("Bd"));
    rows.FloatSpin({5, 5}, QT_TR_NOOP("Baudrate channel B :"), BAUDRATE_1, 2, QT_TR_NOOP("Bd"));
    rows.Combo({6, 5}, QT_TR_NOOP("Switch channel to ACID :"), ACID_CH_SEL);
    QLabel* label = rows.Label({7, 5}, QT_TR_NOOP("Tone spacing (Hz) :"));
    ReaderName::FromLabel(*label, *AddSpacingList({7, 6, 2, 2}, SEQ_TONESPACING, 3, 3, 1, 115));
}

} // namespace TKE
