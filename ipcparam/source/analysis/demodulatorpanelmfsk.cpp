#include "analysis/demodulatorpanelmfsk.h"

#include "keys/keys.h"

namespace TKE
{

void DemodulatorPanelMFSK::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.FloatSpin({4, 5}, QT_TR_NOOP("Shift :"), SHIFT, 2, QT_TR_NOOP("Hz"));
    rows.IntSpin({5, 5}, QT_TR_NOOP("Channel count :"), NUMOFCHANNELS);
    rows.IntSpin({6, 5}, QT_TR_NOOP("Visualisation channel :"), CHANNEL_VISUALISATION);
    rows.CheckBox({7, 5}, QT_TR_NOOP("same distance [Hz]"), SAME_DISTANCE);
    QWidget* list = AddSpacingList({7, 6, 3, 2}, SEQ_CHANNELSPACING, 1, 23, 1, 125);
    list->setAccessibleName(GetTranslation(QT_TR_NOOP("Channel spacing")));
}

} // namespace TKE
