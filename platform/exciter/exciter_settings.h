#pragma once

#include <QCoreApplication>
#include <QString>

namespace REPORTGENERATOR
{

/// The modes of the exciter chain: their names, and which of them work with the wide-band unit or scan.
class Exciter_Settings
{
    Q_DECLARE_TR_FUNCTIONS(REPORTGENERATOR::Exciter_Settings)

public:
    /// The numbers are the item keys of the exciter-mode selection.
    enum ExciterModeType : int
    {
        emNone = -1, ///< No mode is known.
        emManual = 1,
        emFixedFrequency,
        emWDERasterTest,
        emWDEScenario,
        emWDEScenarioLoop,
        emWDESingleChannelTest,
        emWDEChannelGroupTest,
        emFrequencyScan,
        emListScan,
        emMemoryScan
    };

    /// The mode's translated name; empty when there is no such mode.
    static QString GetExciterModeName(int mode);

    /// The mode drives the wide-band unit.
    static bool IsValidWDE(int mode) { return mode >= emWDERasterTest && mode <= emWDEChannelGroupTest; }
    /// The mode steps over frequencies.
    static bool IsValidScan(int mode) { return mode >= emFrequencyScan && mode <= emMemoryScan; }
};

} // namespace REPORTGENERATOR
