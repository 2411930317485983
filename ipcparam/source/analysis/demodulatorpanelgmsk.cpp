#include "analysis/demodulatorpanelgmsk.h"

#include "keys/keys.h"

namespace TKE
{

void DemodulatorPanelGMSK::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    rows.FloatSpin({4, 5}, QT_TR_NOOP("Bandwidth multiplied by Time :"), BXT, 2);
}

} // namespace TKE
