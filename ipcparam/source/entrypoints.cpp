#include "ipcparam/ipcparam.h"

namespace TKE
{

namespace
{

// Titles that Update looks for: the rules of these tasks follow values of the tree.
constexpr char titleClassifierHF[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier HF Configuration");
constexpr char titleClassifierVUHF[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier VUHF Configuration");
constexpr char titleClassifierDDC[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier DDC Configuration");
constexpr char titleDataTransHF[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission HF Configuration");
constexpr char titleDataTransVUHF[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission VUHF Configuration");
constexpr char titleDataTransDDC[] = QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission DDC Configuration");

} // namespace

/// What an entry point asks for. What it does not name is off.
struct IPCParam::Chain
{
    /// The rule that holds for the tabs of this kind of task.
    enum class Rule
    {
        None,
        Classifier,
        DataTrans,
        ScanStatus
    };

    const char* title; // untranslated
    bool vuhf = false;
    bool ddc = false;
    bool wbHeader = false;
    bool generalPanel = false;
    bool wbTuner = false;
    bool headerOnly = false;
    int channelCount = 0;
    TabFlags tabs;
    Rule rule = Rule::None;
};

void IPCParam::Open(const Chain& chain, int tab)
{
    // What the entry point before this one watched is let go: the tabs are new, so their rule starts anew too.
    if (m_classifierPartShown)
        SpecificClassifierPart(true);
    if (m_dataTransPartShown)
        SpecificDataTransPart(true);

    m_title = tr(chain.title);
    setWindowTitle(m_title);
    m_tabs = chain.tabs;
    m_wbHeader = chain.wbHeader;
    m_vuhf = chain.vuhf;
    m_ddc = chain.ddc;
    m_generalPanelOption = chain.generalPanel;
    m_wbTuner = chain.wbTuner;
    m_headerOnly = chain.headerOnly;
    m_channelCount = chain.channelCount;

    if (!BuildTabDlg())
        return;
    switch (chain.rule)
    {
    case Chain::Rule::None:
        break;
    case Chain::Rule::Classifier:
        SpecificClassifierPart(false);
        break;
    case Chain::Rule::DataTrans:
        SpecificDataTransPart(false);
        break;
    case Chain::Rule::ScanStatus:
        SpecificProductionSCScanPart();
        break;
    }
    SetTab(tab);
}

// The title is stored translated, but compared with the untranslated texts: under a translation the tabs keep the state
// that the entry point gave them. Callers rely on it.
void IPCParam::Update(Observable*, TChangeCode code)
{
    if (code != ccContent)
        return;
    const auto isTitle = [this](const char* title) { return m_title == QLatin1StringView(title); };
    if (isTitle(titleClassifierHF) || isTitle(titleClassifierVUHF) || isTitle(titleClassifierDDC))
        SpecificClassifierPart(false);
    else if (isTitle(titleDataTransHF) || isTitle(titleDataTransVUHF) || isTitle(titleDataTransDDC))
        SpecificDataTransPart(false);
}

// The entry points. Their flags stand in the order of TabFlags.
// clang-format off

void IPCParam::ClassifierDDCDlg(int tab, bool vuhf, bool reduced, int count)
{
    Open({.title = titleClassifierDDC, .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowGeneral = !m_jobContext && !reduced, .ShowTunerDDC = !reduced,
                   .ShowTunerWB = m_jobContext, .ShowDemodulator = m_jobContext && !reduced,
                   .ShowDecoder = m_jobContext && !vuhf, .ShowCorrelator = m_jobContext && vuhf && !reduced,
                   .ShowClassifier = true, .ClassifierReduced = reduced, .ShowFFTDataCS = m_jobContext && !reduced,
                   .ShowFFTDataWB = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext,
                   .TunerSecondChannel = !m_jobContext && count > 1},
          .rule = Chain::Rule::Classifier}, tab);
}

void IPCParam::ClassifierDlg(int tab, int count)
{
    Open({.title = titleClassifierHF,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowAntenna = !m_jobContext, .ShowTunerHF = true,
                   .ShowDemodulator = m_jobContext, .ShowDecoder = m_jobContext, .ShowClassifier = true,
                   .ShowFFTDataCS = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext,
                   .TunerSecondChannel = !m_jobContext && count > 1},
          .rule = Chain::Rule::Classifier}, tab);
}

void IPCParam::ClassifierVUHFDlg(int tab, int count)
{
    Open({.title = titleClassifierVUHF, .vuhf = true,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowAntenna = !m_jobContext, .ShowTunerVUHF = true,
                   .ShowDemodulator = m_jobContext, .ShowCorrelator = m_jobContext, .ShowClassifier = true,
                   .ShowFFTDataCS = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext,
                   .TunerSecondChannel = !m_jobContext && count > 1},
          .rule = Chain::Rule::Classifier}, tab);
}

void IPCParam::DataTransDDCDlg(int tab, bool vuhf, bool alarm)
{
    Open({.title = titleDataTransDDC, .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowTunerDDC = true, .ShowTunerWB = m_jobContext,
                   .ShowDemodulator = true, .ShowDecoder = !vuhf, .ShowCorrelator = vuhf,
                   .ShowAlarmConditions = alarm && !m_jobContext, .ShowFFTDataCS = m_jobContext,
                   .ShowFFTDataWB = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::DataTrans}, tab);
}

void IPCParam::DataTransDlg(int tab, bool alarm)
{
    Open({.title = titleDataTransHF,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowAntenna = !m_jobContext, .ShowTunerHF = true,
                   .ShowDemodulator = true, .ShowDecoder = true, .ShowAlarmConditions = alarm && !m_jobContext,
                   .ShowFFTDataCS = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::DataTrans}, tab);
}

void IPCParam::DataTransVUHFDlg(int tab, bool alarm)
{
    Open({.title = titleDataTransVUHF, .vuhf = true,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowAntenna = !m_jobContext, .ShowTunerVUHF = true,
                   .ShowDemodulator = true, .ShowCorrelator = true, .ShowAlarmConditions = alarm && !m_jobContext,
                   .ShowFFTDataCS = m_jobContext, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::DataTrans}, tab);
}

void IPCParam::DetectionConventionalDDCDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Detection Conventional Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowTunerWB = m_jobContext, .ShowFFTDataWB = m_jobContext, .ShowFFTData = m_jobContext,
                   .ShowDetection = true, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext}}, tab);
}

void IPCParam::DetectionShorttimeDDCDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Detection Shorttime Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowTunerWB = m_jobContext, .ShowFFTDataWB = m_jobContext, .ShowFFTData = m_jobContext,
                   .ShowDetectionShort = true}}, tab);
}

void IPCParam::WBRXDlg(bool vuhf, int tab)
{
    Open({.title = QT_TR_NOOP("Receiver Configuration"), .vuhf = vuhf,
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerReceiver = true, .ShowWBRXScan = true,
                   .ShowDFLocate = m_jobContext}}, tab);
}

void IPCParam::ExciterDlg(int tab, bool vuhf)
{
    using REPORTGENERATOR::Exciter_Settings;
    const auto mode = GetExciterMode();
    Open({.title = QT_TR_NOOP("Exciter Configuration"), .vuhf = vuhf,
          .tabs = {.ShowExciterSCU = true, .ShowExciterSMU = true,
                   .ShowExciterWDE = Exciter_Settings::IsValidWDE(mode),
                   .ShowExciterScanSettings = Exciter_Settings::IsValidScan(mode)}}, tab);
}

void IPCParam::FullDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("JobEdit Online"), .vuhf = vuhf,
          .tabs = {.ShowGeneral = true, .ShowAutoRecording = true, .ShowAntenna = !m_jobContext,
                   .ShowTunerHF = true, .ShowDemodulator = true, .ShowDecoder = true, .ShowClassifier = true,
                   .ShowFFTDataCS = true, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext}}, tab);
}

void IPCParam::GeneralExciterDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Exiter General Configuration"), .vuhf = vuhf, .generalPanel = true,
          .tabs = {.ShowExciterGeneral = true}}, tab);
}

void IPCParam::MScanDlg(int tab, bool vuhf)
{
    Open({.title = vuhf ? QT_TR_NOOP("Surveillance Memory Scan VUHF Configuration")
                        : QT_TR_NOOP("Surveillance Memory Scan HF Configuration"),
          .vuhf = vuhf,
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerHF = !vuhf, .ShowTunerVUHF = vuhf,
                   .ShowAlarmConditions = !m_jobContext, .ShowFFTDataCS = m_jobContext,
                   .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext}}, tab);
}

void IPCParam::MemoryScanNBDlg(int tab, bool vuhf, int count)
{
    Open({.title = QT_TR_NOOP("Memory Scan Configuration"), .vuhf = vuhf, .channelCount = count,
          .tabs = {.ShowMemoryScan = true}}, tab);
}

void IPCParam::RasterDetectorDlg(int tab, bool vuhf, int count)
{
    Open({.title = QT_TR_NOOP("Rasterdetector Configuration"), .vuhf = vuhf, .channelCount = count,
          .tabs = {.ShowRasterDetector = true}}, tab);
}

void IPCParam::SingleChannelDetectorDlg(int tab, bool vuhf, int count)
{
    Open({.title = QT_TR_NOOP("SingleChannelDetector Configuration"), .vuhf = vuhf, .channelCount = count,
          .tabs = {.ShowSingleChannelDetector = true}}, tab);
}

void IPCParam::SpectralZoomDDCDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Spectral Zoom Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowAutoRecording = !m_jobContext, .ShowFFTData = true, .ShowSpectralZoom = !m_jobContext,
                   .ShowDFLocate = m_jobContext}}, tab);
}

void IPCParam::TDSHeaderAutorecordingOnlyDlg(int tab, bool headerOnly)
{
    Open({.title = QT_TR_NOOP("External Receiver Header Configuration"), .generalPanel = true, .headerOnly = headerOnly,
          .tabs = {.ShowAutoRecording = true, .ShowActivityGeneration = HasActivityType()}}, tab);
}

void IPCParam::TDSHeaderDDCClassDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Classifier DDC Header Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowAutoRecording = true, .ShowHeaderDDCClass = true, .ShowFFTDataCS = true,
                   .ShowActivityGeneration = HasActivityType(), .ActivityOptionA = true}}, tab);
}

void IPCParam::TDSHeaderDDCDlg(int tab, bool vuhf, bool reduced)
{
    Open({.title = QT_TR_NOOP("Voice DDC Header Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowAutoRecording = !reduced, .ClassifierReduced = reduced, .ShowHeaderDDC = true,
                   .ShowFFTDataCS = !reduced, .ShowActivityGeneration = HasActivityType(),
                   .ActivityOptionA = true}}, tab);
}

void IPCParam::TDSHeaderDlg(int tab, bool vuhf, bool /*ignored*/)
{
    Open({.title = QT_TR_NOOP("Header Configuration"), .vuhf = vuhf, .generalPanel = true,
          .tabs = {.ShowAutoRecording = true, .ShowFFTDataCS = true, .ShowActivityGeneration = HasActivityType(),
                   .ActivityOptionA = true}}, tab);
}

void IPCParam::TDSHeaderMSDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Header MS Configuration"), .vuhf = vuhf,
          .tabs = {.ShowHeaderMS = true}}, tab);
}

void IPCParam::TDSHeaderMScanDataDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Tuner Configuration"), .vuhf = vuhf,
          .tabs = {.ShowAutoRecording = true, .ShowFFTDataCS = true, .ScanOption = true}}, tab);
}

void IPCParam::TDSHeaderTunerDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Tuner Configuration"), .vuhf = vuhf,
          .tabs = {.ShowAutoRecording = true, .ShowActivityGeneration = HasActivityType(),
                   .ActivityOptionB = true}}, tab);
}

void IPCParam::TDSHeaderWBDlg(int tab, bool vuhf, bool wbHeader, bool wbTuner)
{
    Open({.title = QT_TR_NOOP("Header WB Configuration"), .vuhf = vuhf, .wbHeader = wbHeader, .wbTuner = wbTuner,
          .tabs = {.ShowAutoRecording = true, .ShowHeaderWB = true, .ShowFFTDataWB = true,
                   .ShowActivityGeneration = HasActivityType()}}, tab);
}

void IPCParam::TunerExtDlg(int tab)
{
    Open({.title = QT_TR_NOOP("External Tuner"),
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerExternal = true, .ShowDFLocate = m_jobContext,
                   .LocateOption = m_jobContext}}, tab);
}

void IPCParam::TunerNBDlg(int tab)
{
    Open({.title = QT_TR_NOOP("Tuner HF Configuration"),
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerHF = true, .ShowScan = true,
                   .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::ScanStatus}, tab);
}

void IPCParam::TunerNBVUHFDlg(int tab)
{
    Open({.title = QT_TR_NOOP("Tuner VUHF Configuration"), .vuhf = true,
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerVUHF = true, .ShowScan = true,
                   .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::ScanStatus}, tab);
}

void IPCParam::VoiceDDCDlg(int tab, bool vuhf)
{
    Open({.title = QT_TR_NOOP("Voice DDC Configuration"), .vuhf = vuhf, .ddc = true,
          .tabs = {.ShowGeneral = !m_jobContext, .ShowTunerDDC = true, .ShowTunerWB = m_jobContext,
                   .ShowFFTDataCS = m_jobContext, .ShowFFTDataWB = m_jobContext, .ShowDFLocate = m_jobContext,
                   .LocateOption = m_jobContext}}, tab);
}

void IPCParam::VoiceDlg(int tab)
{
    Open({.title = QT_TR_NOOP("Voice HF Configuration"),
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerHF = true, .ShowFFTDataCS = m_jobContext,
                   .ShowScan = true, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::ScanStatus}, tab);
}

void IPCParam::VoiceVUHFDlg(int tab)
{
    Open({.title = QT_TR_NOOP("Voice VUHF Configuration"), .vuhf = true,
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerVUHF = true, .ShowFFTDataCS = m_jobContext,
                   .ShowScan = true, .ShowDFLocate = m_jobContext, .LocateOption = m_jobContext},
          .rule = Chain::Rule::ScanStatus}, tab);
}

void IPCParam::WBTunerDlg(int tab, bool vuhf, bool wbTuner)
{
    Open({.title = QT_TR_NOOP("Tuner WB Configuration"), .vuhf = vuhf, .wbTuner = wbTuner,
          .tabs = {.ShowAntenna = !m_jobContext, .ShowTunerWB = true, .ShowFFTDataWB = m_jobContext,
                   .ShowFFTData = m_jobContext, .ShowDFLocate = m_jobContext}}, tab);
}

void IPCParam::WDE_ExciterDlg(int tab, bool vuhf, int count)
{
    Open({.title = QT_TR_NOOP("Exciter Configuration"), .vuhf = vuhf, .channelCount = count,
          .tabs = {.ShowWDEExciter = true}}, tab);
}

void IPCParam::WDE_SimulationDlg(int tab, bool vuhf, int count)
{
    Open({.title = QT_TR_NOOP("Simulation Configuration"), .vuhf = vuhf, .channelCount = count,
          .tabs = {.ShowWDESimulation = true}}, tab);
}

// clang-format on

} // namespace TKE
