#pragma once

#include "jobmodel/exciterparametergroup.h"
#include "keys/keys.h"

namespace TKE
{

// Each group has one accessor per parameter, named like its key without the prefix of the group.

/// The signal modulation unit: what is transmitted.
class SMUParameter final : public ExciterParameterGroup
{
public:
    SMUParameter(const JobModel& model, Band band);

    Parameter& Frequency() const { return Get(Keys::SmuFrequency); }
    Parameter& Level() const { return Get(Keys::SmuLevel); }
    Parameter& RfOutput() const { return Get(Keys::SmuRfOutput); }
    Parameter& ReferenceSource() const { return Get(Keys::SmuReferenceSource); }
    Parameter& StartTime() const { return Get(Keys::SmuStartTime); }
    Parameter& Modulation() const { return Get(Keys::SmuModulation); }
    Parameter& ModulationSource() const { return Get(Keys::SmuModulationSource); }
    Parameter& ModulationDepth() const { return Get(Keys::SmuModulationDepth); }
    Parameter& Deviation() const { return Get(Keys::SmuDeviation); }
    Parameter& SymbolRate() const { return Get(Keys::SmuSymbolRate); }
    Parameter& ToneFrequency() const { return Get(Keys::SmuToneFrequency); }
    Parameter& Message() const { return Get(Keys::SmuMessage); }
    Parameter& BurstLength() const { return Get(Keys::SmuBurstLength); }
    Parameter& BurstPause() const { return Get(Keys::SmuBurstPause); }
    Parameter& BurstCount() const { return Get(Keys::SmuBurstCount); }
};

/// The signal conditioning unit: the path from generator to output.
class SCUParameter final : public ExciterParameterGroup
{
public:
    SCUParameter(const JobModel& model, Band band);

    Parameter& OutputPath() const { return Get(Keys::ScuOutputPath); }
    Parameter& Attenuation() const { return Get(Keys::ScuAttenuation); }
    Parameter& Filter() const { return Get(Keys::ScuFilter); }
    Parameter& LevelLimit() const { return Get(Keys::ScuLevelLimit); }
    Parameter& Amplifier() const { return Get(Keys::ScuAmplifier); }
    Parameter& TriggerSource() const { return Get(Keys::ScuTriggerSource); }
    Parameter& SettlingTime() const { return Get(Keys::ScuSettlingTime); }
    Parameter& Blanking() const { return Get(Keys::ScuBlanking); }
    Parameter& BlankingTime() const { return Get(Keys::ScuBlankingTime); }
    Parameter& Remark() const { return Get(Keys::ScuRemark); }
};

/// The wide-band unit, for all its channels.
class WDEParameter final : public ExciterParameterGroup
{
public:
    WDEParameter(const JobModel& model, Band band);

    Parameter& CenterFrequency() const { return Get(Keys::WdeCenterFrequency); }
    Parameter& Bandwidth() const { return Get(Keys::WdeBandwidth); }
    Parameter& Level() const { return Get(Keys::WdeLevel); }
    Parameter& SampleRate() const { return Get(Keys::WdeSampleRate); }
    Parameter& ChannelRaster() const { return Get(Keys::WdeChannelRaster); }
    Parameter& ActiveChannels() const { return Get(Keys::WdeActiveChannels); }
    Parameter& PhaseMode() const { return Get(Keys::WdePhaseMode); }
    Parameter& CrestFactorReduction() const { return Get(Keys::WdeCrestFactorReduction); }
    Parameter& ReservedFrequencies() const { return Get(Keys::WdeReservedFrequencies); }
};

/// The scan modes.
class ExciterScanParameter final : public ExciterParameterGroup
{
public:
    ExciterScanParameter(const JobModel& model, Band band);

    Parameter& StartFrequency() const { return Get(Keys::ExciterScanStartFrequency); }
    Parameter& StopFrequency() const { return Get(Keys::ExciterScanStopFrequency); }
    Parameter& StepWidth() const { return Get(Keys::ExciterScanStepWidth); }
    Parameter& FirstMemory() const { return Get(Keys::ExciterScanFirstMemory); }
    Parameter& LastMemory() const { return Get(Keys::ExciterScanLastMemory); }
    Parameter& DwellTime() const { return Get(Keys::ExciterScanDwellTime); }
    Parameter& Pause() const { return Get(Keys::ExciterScanPause); }
    Parameter& Direction() const { return Get(Keys::ExciterScanDirection); }
    Parameter& Cycles() const { return Get(Keys::ExciterScanCycles); }
    Parameter& StartTime() const { return Get(Keys::ExciterScanStartTime); }
    Parameter& Frequencies() const { return Get(Keys::ExciterScanFrequencies); }
};

/// The channels of the wide-band unit, and what they share.
class WDEExciterParameter final : public ExciterParameterGroup
{
public:
    WDEExciterParameter(const JobModel& model, Band band);

    Parameter& LevelReference() const { return Get(Keys::WdeExciterLevelReference); }
    Parameter& BurstLength() const { return Get(Keys::WdeExciterBurstLength); }
    Parameter& BurstPause() const { return Get(Keys::WdeExciterBurstPause); }
    Parameter& StartTime() const { return Get(Keys::WdeExciterStartTime); }
    Parameter& Repeat() const { return Get(Keys::WdeExciterRepeat); }
    Parameter& ChannelActive() const { return Get(Keys::WdeChannelActive); }
    Parameter& ChannelFrequency() const { return Get(Keys::WdeChannelFrequency); }
    Parameter& ChannelLevel() const { return Get(Keys::WdeChannelLevel); }
    Parameter& ChannelModulation() const { return Get(Keys::WdeChannelModulation); }
    Parameter& ChannelSymbolRate() const { return Get(Keys::WdeChannelSymbolRate); }
    Parameter& ChannelShift() const { return Get(Keys::WdeChannelShift); }
    Parameter& ChannelMessage() const { return Get(Keys::WdeChannelMessage); }
};

/// The raster detector and its ranges.
class RasterDetectorParameter final : public ExciterParameterGroup
{
public:
    RasterDetectorParameter(const JobModel& model, Band band);

    Parameter& ThresholdMode() const { return Get(Keys::RasterThresholdMode); }
    Parameter& ThresholdAbs() const { return Get(Keys::RasterThresholdAbs); }
    Parameter& ThresholdRel() const { return Get(Keys::RasterThresholdRel); }
    Parameter& IntegrationTime() const { return Get(Keys::RasterIntegrationTime); }
    Parameter& MinDuration() const { return Get(Keys::RasterMinDuration); }
    Parameter& HoldTime() const { return Get(Keys::RasterHoldTime); }
    Parameter& RangeActive() const { return Get(Keys::RasterRangeActive); }
    Parameter& RangeStart() const { return Get(Keys::RasterRangeStart); }
    Parameter& RangeStop() const { return Get(Keys::RasterRangeStop); }
    Parameter& RangeSpacing() const { return Get(Keys::RasterRangeSpacing); }
    Parameter& RangeBandwidth() const { return Get(Keys::RasterRangeBandwidth); }
    Parameter& RangeExcluded() const { return Get(Keys::RasterRangeExcluded); }
};

/// The single channel detector and its channels.
class SingleChannelDetectorParameter final : public ExciterParameterGroup
{
public:
    SingleChannelDetectorParameter(const JobModel& model, Band band);

    Parameter& IntegrationTime() const { return Get(Keys::SingleIntegrationTime); }
    Parameter& MinDuration() const { return Get(Keys::SingleMinDuration); }
    Parameter& HoldTime() const { return Get(Keys::SingleHoldTime); }
    Parameter& ReportLevel() const { return Get(Keys::SingleReportLevel); }
    Parameter& ChannelActive() const { return Get(Keys::SingleChannelActive); }
    Parameter& ChannelFrequency() const { return Get(Keys::SingleChannelFrequency); }
    Parameter& ChannelBandwidth() const { return Get(Keys::SingleChannelBandwidth); }
    Parameter& ChannelThreshold() const { return Get(Keys::SingleChannelThreshold); }
    Parameter& ChannelHysteresis() const { return Get(Keys::SingleChannelHysteresis); }
};

/// The simulated scenario and its emitters.
class SimulationParameter final : public ExciterParameterGroup
{
public:
    SimulationParameter(const JobModel& model, Band band);

    Parameter& Duration() const { return Get(Keys::SimulationDuration); }
    Parameter& NoiseLevel() const { return Get(Keys::SimulationNoiseLevel); }
    Parameter& Seed() const { return Get(Keys::SimulationSeed); }
    Parameter& StartTime() const { return Get(Keys::SimulationStartTime); }
    Parameter& ChannelModel() const { return Get(Keys::SimulationChannelModel); }
    Parameter& Fading() const { return Get(Keys::SimulationFading); }
    Parameter& EmitterActive() const { return Get(Keys::EmitterActive); }
    Parameter& EmitterFrequency() const { return Get(Keys::EmitterFrequency); }
    Parameter& EmitterLevel() const { return Get(Keys::EmitterLevel); }
    Parameter& EmitterModulation() const { return Get(Keys::EmitterModulation); }
    Parameter& EmitterSnr() const { return Get(Keys::EmitterSnr); }
    Parameter& EmitterOnTime() const { return Get(Keys::EmitterOnTime); }
    Parameter& EmitterOffTime() const { return Get(Keys::EmitterOffTime); }
    Parameter& EmitterBearing() const { return Get(Keys::EmitterBearing); }
};

} // namespace TKE
