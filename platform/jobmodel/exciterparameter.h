#pragma once

#include "jobmodel/exciterparametergroups.h"

#include <memory>

namespace TKE
{

/// The parameters of the exciter chain, as the descriptor file of a band describes them.
///
/// Reading a file is shared: as long as it does not change, all parameter sets that name it are made from one reading,
/// which is kept until the program ends. A file that is missing or faulty gives one load error, and the set holds what
/// could be read; what is missing is stood in for by parameters without a control. GUI thread only.
class ExciterParameter
{
public:
    using Parameter = JOBXMLGENERATOR::Parameter;

    /// `xmlDirectory` holds "exciter_hf.xml" and "exciter_vuhf.xml"; empty: the compiled-in ones. `vuhf` picks the
    /// band.
    explicit ExciterParameter(const QString& xmlDirectory = {}, bool vuhf = false);
    ~ExciterParameter();
    ExciterParameter(const ExciterParameter&) = delete;
    ExciterParameter& operator=(const ExciterParameter&) = delete;

    bool HasLoadError() const { return !GetLoadErrorText().isEmpty(); }
    /// The first thing that is wrong: file, line as far as there is one, and reason. Empty when all is well.
    const QString& GetLoadErrorText() const;

    Parameter& ExciterMode() const;
    Parameter& Autostart() const;

    SMUParameter& SMU() const;
    SCUParameter& SCU() const;
    WDEParameter& WDE() const;
    ExciterScanParameter& ScanSettings() const;
    WDEExciterParameter& WDEExciter() const;
    RasterDetectorParameter& RasterDetector() const;
    SingleChannelDetectorParameter& SingleChannelDetector() const;
    SimulationParameter& Simulation() const;

private:
    struct Content;
    static std::shared_ptr<Content> Load(const QString& file, Band band);

    std::shared_ptr<Content> m_content;
};

} // namespace TKE
