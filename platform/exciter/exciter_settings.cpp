#include "exciter/exciter_settings.h"

namespace REPORTGENERATOR
{

QString Exciter_Settings::GetExciterModeName(int mode)
{
    switch (mode)
    {
    case emManual:
        return tr("Manual");
    case emFixedFrequency:
        return tr("Fixed frequency");
    case emWDERasterTest:
        return tr("WDE raster test");
    case emWDEScenario:
        return tr("WDE scenario");
    case emWDEScenarioLoop:
        return tr("WDE scenario loop");
    case emWDESingleChannelTest:
        return tr("WDE single channel test");
    case emWDEChannelGroupTest:
        return tr("WDE channel group test");
    case emFrequencyScan:
        return tr("Frequency scan");
    case emListScan:
        return tr("List scan");
    case emMemoryScan:
        return tr("Memory scan");
    default:
        return {};
    }
}

} // namespace REPORTGENERATOR
