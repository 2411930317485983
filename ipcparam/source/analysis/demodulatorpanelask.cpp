#include "analysis/demodulatorpanelask.h"

namespace TKE
{

void DemodulatorPanelASK::BuildSpecificRows() {}

} // namespace TKE
