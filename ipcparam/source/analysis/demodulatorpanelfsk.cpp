#include "analysis/demodulatorpanelfsk.h"

#include "keys/keys.h"
#include "valuewidgets/readername.h"

#include <QLabel>

namespace TKE
{

void DemodulatorPanelFSK::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    int row = 4;
    rows.FloatSpin({row, 5}, QT_TR_NOOP("Shift :"), SHIFT, 2, QT_TR_NOOP("Hz"));
    if (!IsVUHF())
    {
        rows.FloatSpin({++row, 5}, QT_TR_NOOP("Block length :"), BLOCKLENGTH, 2, QT_TR_NOOP("s"));
        rows.FloatSpin({++row, 5}, QT_TR_NOOP("Block cycle :"), BLOCKCYCLE, 2, QT_TR_NOOP("s"));
    }
    ++row;
    QLabel* label = rows.Label({row, 5}, QT_TR_NOOP("Tone spacing (Hz) :"));
    ReaderName::FromLabel(*label, *AddSpacingList({row, 6, 3, 2}, SEQ_TONESPACING, 3, 3, 1, 125));
}

} // namespace TKE
