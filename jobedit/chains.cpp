#include "chains.h"

#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/alarmconditionsspdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/dflocatedlg.h"
#include "ipcparam/excitergeneraldlg.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/jobdlg.h"
#include "ipcparam/joboptions.h"
#include "ipcparam/resourcedlg.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/shorttimeprofileheaderdlg.h"
#include "ipcparam/sigtrackingcontroldlg.h"
#include "ipcparam/tkeoptions.h"
#include "ipcparam/wavecomdlg.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <algorithm>

namespace JOBEDIT
{

namespace
{

/// Name of an entry point and a call of it with these arguments.
#define CALL(entryPoint, ...) #entryPoint, [](TKE::IPCParam & dialog) { dialog.entryPoint(__VA_ARGS__); }

constexpr Chain chains[] = {
    {"IPC_CLASSIFIER_DDC_HF", CALL(ClassifierDDCDlg, 1, false, false, 1)},
    {"IPC_CLASSIFIER_DDC_VUHF", CALL(ClassifierDDCDlg, 1, true, false, 2)},
    {"IPC_CLASSIFIER_DDC_REDUCED", CALL(ClassifierDDCDlg, 1, false, true, 1)},
    {"IPC_CLASSIFIER_HF", CALL(ClassifierDlg, 1, 1)},
    {"IPC_CLASSIFIER_VUHF", CALL(ClassifierVUHFDlg, 1, 1)},
    {"IPC_DATATRANS_DDC_HF", CALL(DataTransDDCDlg, 1, false, true)},
    {"IPC_DATATRANS_DDC_VUHF", CALL(DataTransDDCDlg, 1, true, true)},
    {"IPC_DATATRANS_HF", CALL(DataTransDlg, 1, true)},
    {"IPC_DATATRANS_VUHF", CALL(DataTransVUHFDlg, 1, true)},
    {"IPC_DETECTION_CONV", CALL(DetectionConventionalDDCDlg, 1, false)},
    {"IPC_DETECTION_SHORT", CALL(DetectionShorttimeDDCDlg, 1, true)},
    {"IPC_WBRX_VUHF", CALL(WBRXDlg, true, 1)},
    {"IPC_WBRX_HF", CALL(WBRXDlg, false, 1)},
    {"IPC_EXCITER_WDE", CALL(ExciterDlg, 1, false)},
    {"IPC_EXCITER_SCAN", CALL(ExciterDlg, 1, true)},
    {"IPC_FULL", CALL(FullDlg, 1, false)},
    {"IPC_EXCITER_GENERAL", CALL(GeneralExciterDlg, 1, false)},
    {"IPC_MSCAN_HF", CALL(MScanDlg, 1, false)},
    {"IPC_MSCAN_VUHF", CALL(MScanDlg, 1, true)},
    {"IPC_MEMORYSCAN_HF", CALL(MemoryScanNBDlg, 1, false, 8)},
    {"IPC_MEMORYSCAN_VUHF", CALL(MemoryScanNBDlg, 1, true, 8)},
    {"IPC_WDE_RASTER", CALL(RasterDetectorDlg, 1, false, 2)},
    {"IPC_WDE_SINGLE", CALL(SingleChannelDetectorDlg, 1, false, 4)},
    {"IPC_SPECTRALZOOM", CALL(SpectralZoomDDCDlg, 1, false)},
    {"IPC_HEADER_EXT_AGSC", CALL(TDSHeaderAutorecordingOnlyDlg, 1, true)},
    {"IPC_HEADER_CLASS_AGMC", CALL(TDSHeaderDDCClassDlg, 1, false)},
    {"IPC_HEADER_VOICE_AGMC", CALL(TDSHeaderDDCDlg, 1, false, false), TKE::Band::Hf},
    {"IPC_HEADER_VOICE_AGMC", CALL(TDSHeaderDDCDlg, 1, true, true), TKE::Band::Vuhf},
    {"IPC_HEADER_HF_AGSC", CALL(TDSHeaderDlg, 1, false, false)},
    {"IPC_HEADER_MS", CALL(TDSHeaderMSDlg, 1, false)},
    {"IPC_HEADER_MSCANDATA", CALL(TDSHeaderMScanDataDlg, 1, false)},
    {"IPC_HEADER_TUNER_AGED", CALL(TDSHeaderTunerDlg, 1, false)},
    {"IPC_HEADER_WB_AGED", CALL(TDSHeaderWBDlg, 1, true, true, true)},
    {"IPC_TUNER_EXT", CALL(TunerExtDlg, 1)},
    {"IPC_TUNER_HF", CALL(TunerNBDlg, 1)},
    {"IPC_TUNER_VUHF", CALL(TunerNBVUHFDlg, 1)},
    {"IPC_VOICE_DDC_HF", CALL(VoiceDDCDlg, 1, false)},
    {"IPC_VOICE_DDC_VUHF", CALL(VoiceDDCDlg, 1, true)},
    {"IPC_VOICE_HF", CALL(VoiceDlg, 1)},
    {"IPC_VOICE_VUHF", CALL(VoiceVUHFDlg, 1)},
    {"IPC_WBTUNER_HF", CALL(WBTunerDlg, 1, false, false)},
    {"IPC_WBTUNER_VUHF", CALL(WBTunerDlg, 1, true, true)},
    {"IPC_WDE_EXCITER", CALL(WDE_ExciterDlg, 1, false, 4)},
    {"IPC_WDE_SIMULATION", CALL(WDE_SimulationDlg, 1, false, 3)},
};

#undef CALL

/// A job is prepared here for whatever station it will run at, so nothing that a station may have is held back.
const TKE::TKEOptions& AllOptions()
{
    static const TKE::TKEOptions options = []
    {
        TKE::TKEOptions all;
        for (int resource = 0; resource < TKE::AvailableResources::ResourceCount; ++resource)
            all.SetResource(resource, true);
        for (int gate = 1; gate <= TKE::TKEOptions::GateCount; ++gate)
            all.SetGate(gate, true);
        for (int number = 1; number <= TKE::TKEOptions::SwitchCount; ++number)
            all.SetSwitch(number, true);
        return all;
    }();
    return options;
}

/// The kind of a resource is what its type says.
TKE::JobOptions OptionsOf(const JobNode& resource)
{
    const TKE::ValueBase* type = TKE::Tree::Instance()->FindValue(resource.path + TKE::Keys::RESOURCE_TYPE);
    return TKE::JobOptions(type ? type->GetText() : QString());
}

/// Name of a panel class and how it is made, with these arguments, for `node`.
#define PANEL(panelClass, ...)                                                                                         \
#panelClass,                                                                                                       \
        [](const JobNode& node, QWidget* parent) -> TKE::ParameterDlg* { return new TKE::panelClass(__VA_ARGS__); }

// clang-format off
constexpr DirectPanel directPanels[] = {
    {"JOB", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Job"), PANEL(JobDlg, node.path, AllOptions(), parent, false)},
    {"RESOURCE", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Resource"), PANEL(ResourceDlg, node.path, OptionsOf(node), parent, false)},
    {"IPC_VOICE_HF", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Direction finding and location"), PANEL(DFLocateDlg, node.path, parent, false)},
    {"SHORTTIMEPROFILE", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Profile"), PANEL(ShorttimeProfileDlg, node.path, parent, false)},
    {"SHORTTIMEPROFILE", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Profile header"), PANEL(ShorttimeProfileHeaderDlg, node.path, parent, false)},
    {"SHORTTIMEPROFILE", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Alarm conditions"), PANEL(AlarmConditionsSPDlg, node.path, parent)},
    {"SHORTTIMEPROFILE", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Signal tracking"), PANEL(SigTrackingControlDlg, node.path, parent)},
    {"IPC_WAVECOM", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Decoder"), PANEL(WavecomDlg, node.path, parent, node.dataForm, false)},
    {"IPC_EXCITER_GENERAL", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Exciter"), PANEL(ExciterGeneralDlg, node.path, false, false, parent, false)},
    {"IPC_HEADER_HF_AGSC", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Automatic recording"), PANEL(AutoRecordingDlg, node.path, parent, false, false)},
    {"IPC_HEADER_HF_AGSC", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Automatic recording of results"), PANEL(AutoRecordingDlg, node.path, parent, true, false)},
    {"IPC_HEADER_HF_AGSC", QT_TRANSLATE_NOOP("JOBEDIT::DirectPanels", "Activity generation"), PANEL(ActivityGenerationDlg, node.path, parent, true, true, true, false)},
};
// clang-format on

#undef PANEL

bool Serves(const Chain& chain, const JobNode& node)
{
    return node.type == QLatin1StringView(chain.type) && (chain.band == TKE::Band::Both || chain.band == node.band);
}

std::unique_ptr<TKE::IPCParam> MakeHost(const JobNode& node, Form form, QWidget* parent)
{
    if (form == Form::StandAlone)
        return std::make_unique<TKE::IPCParam>(node.path, parent, false, false, false, node.path,
                                               QStringLiteral("TKE"));
    // A task stands below its channel set, a header below its section of the job: that node is the job path.
    const QString jobPath = TKE::ParameterDlg::GetParentPath(node.path);
    std::vector<QString> resources{QStringLiteral("HF receiver 1")};
    return std::make_unique<TKE::IPCParam>(jobPath, node.path, resources, node.path, node.path, QString(), node.path,
                                           QStringLiteral("TKE"));
}

} // namespace

std::span<const Chain> Chains()
{
    return chains;
}

std::span<const DirectPanel> DirectPanels()
{
    return directPanels;
}

const Chain* FindChain(const JobNode& node)
{
    const auto found = std::ranges::find_if(chains, [&](const Chain& chain) { return Serves(chain, node); });
    return found == std::end(chains) ? nullptr : &*found;
}

std::vector<const DirectPanel*> FindDirectPanels(const JobNode& node)
{
    std::vector<const DirectPanel*> found;
    for (const DirectPanel& panel : directPanels)
        if (node.type == QLatin1StringView(panel.type))
            found.push_back(&panel);
    return found;
}

bool HasDialog(const JobNode& node)
{
    return FindChain(node) || !FindDirectPanels(node).empty();
}

QStringList EntryNames()
{
    QStringList names;
    for (const Chain& chain : chains)
        names << QString::fromLatin1(chain.entryPoint);
    for (const DirectPanel& panel : directPanels)
        names << QString::fromLatin1(panel.name);
    names.removeDuplicates();
    return names;
}

std::unique_ptr<QTabWidget> MakeDialog(const JobNode& node, Form form, QWidget* parent)
{
    if (const Chain* chain = FindChain(node))
    {
        std::unique_ptr<TKE::IPCParam> host = MakeHost(node, form, parent);
        chain->open(*host);
        return host;
    }
    const auto panels = FindDirectPanels(node);
    return panels.empty() ? nullptr : MakePanels(node, panels, parent);
}

std::unique_ptr<QTabWidget> MakePanels(const JobNode& node, const std::vector<const DirectPanel*>& panels,
                                       QWidget* parent)
{
    auto tabs = std::make_unique<QTabWidget>(parent);
    for (const DirectPanel* panel : panels)
        tabs->addTab(panel->make(node, tabs.get()), QCoreApplication::translate("JOBEDIT::DirectPanels", panel->title));
    tabs->setWindowTitle(node.name);
    return tabs;
}

} // namespace JOBEDIT
