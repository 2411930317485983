#include "analysis/demodulatorpanelmorse.h"

#include "keys/keys.h"

namespace TKE
{

void DemodulatorPanelMORSE::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.CheckBox({4, 5, 1, 2}, QT_TR_NOOP("Auto mode"), AUTOMODE);
    rows.FloatSpin({5, 5}, QT_TR_NOOP("Speed :"), SPEED, 2, QT_TR_NOOP("wpm"));
}

} // namespace TKE
