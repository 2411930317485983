#include "analysis/demodulatorpanelmpsk.h"

#include "keys/keys.h"

namespace TKE
{

void DemodulatorPanelMPSK::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.IntSpin({4, 5}, QT_TR_NOOP("Channel count :"), NUMOFCHANNELS);
    rows.IntSpin({5, 5}, QT_TR_NOOP("Visualisation channel :"), CHANNEL_VISUALISATION);
    rows.CheckBox({6, 5}, QT_TR_NOOP("same distance [Hz]"), SAME_DISTANCE);
    // Stored in tenths of Hz, unlike the spacings of the other demodulations.
    QWidget* list = AddSpacingList({6, 6, 5, 2}, SEQ_CHANNELSPACING, 1, 23, 10, 125);
    list->setAccessibleName(GetTranslation(QT_TR_NOOP("Channel spacing")));
}

} // namespace TKE
