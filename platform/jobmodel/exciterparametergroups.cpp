#include "jobmodel/exciterparametergroups.h"

namespace TKE
{

using namespace Keys;
using namespace Qt::StringLiterals;

SMUParameter::SMUParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_EXC_SMU"_s,
                            {SmuFrequency, SmuLevel, SmuRfOutput, SmuReferenceSource, SmuStartTime, SmuModulation,
                             SmuModulationSource, SmuModulationDepth, SmuDeviation, SmuSymbolRate, SmuToneFrequency,
                             SmuMessage, SmuBurstLength, SmuBurstPause, SmuBurstCount})
{
}

SCUParameter::SCUParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_EXC_SCU"_s,
                            {ScuOutputPath, ScuAttenuation, ScuFilter, ScuLevelLimit, ScuAmplifier, ScuTriggerSource,
                             ScuSettlingTime, ScuBlanking, ScuBlankingTime, ScuRemark})
{
}

WDEParameter::WDEParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_EXC_WDE"_s,
                            {WdeCenterFrequency, WdeBandwidth, WdeLevel, WdeSampleRate, WdeChannelRaster,
                             WdeActiveChannels, WdePhaseMode, WdeCrestFactorReduction, WdeReservedFrequencies})
{
}

ExciterScanParameter::ExciterScanParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_EXC_SCAN"_s,
                            {ExciterScanStartFrequency, ExciterScanStopFrequency, ExciterScanStepWidth,
                             ExciterScanFirstMemory, ExciterScanLastMemory, ExciterScanDwellTime, ExciterScanPause,
                             ExciterScanDirection, ExciterScanCycles, ExciterScanStartTime, ExciterScanFrequencies})
{
}

WDEExciterParameter::WDEExciterParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_WDE_EXCITER"_s,
                            {WdeExciterLevelReference, WdeExciterBurstLength, WdeExciterBurstPause, WdeExciterStartTime,
                             WdeExciterRepeat, WdeChannelActive, WdeChannelFrequency, WdeChannelLevel,
                             WdeChannelModulation, WdeChannelSymbolRate, WdeChannelShift, WdeChannelMessage})
{
}

RasterDetectorParameter::RasterDetectorParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_WDE_RASTER"_s,
                            {RasterThresholdMode, RasterThresholdAbs, RasterThresholdRel, RasterIntegrationTime,
                             RasterMinDuration, RasterHoldTime, RasterRangeActive, RasterRangeStart, RasterRangeStop,
                             RasterRangeSpacing, RasterRangeBandwidth, RasterRangeExcluded})
{
}

SingleChannelDetectorParameter::SingleChannelDetectorParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_WDE_SINGLE"_s,
                            {SingleIntegrationTime, SingleMinDuration, SingleHoldTime, SingleReportLevel,
                             SingleChannelActive, SingleChannelFrequency, SingleChannelBandwidth,
                             SingleChannelThreshold, SingleChannelHysteresis})
{
}

SimulationParameter::SimulationParameter(const JobModel& model, Band band)
    : ExciterParameterGroup(model, band, u"G_WDE_SIMULATION"_s,
                            {SimulationDuration, SimulationNoiseLevel, SimulationSeed, SimulationStartTime,
                             SimulationChannelModel, SimulationFading, Keys::EmitterActive, Keys::EmitterFrequency,
                             Keys::EmitterLevel, Keys::EmitterModulation, Keys::EmitterSnr, Keys::EmitterOnTime,
                             Keys::EmitterOffTime, Keys::EmitterBearing})
{
}

} // namespace TKE
