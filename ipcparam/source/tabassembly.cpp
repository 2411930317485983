#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "analysis/demodulatordlg.h"
#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/fftdatadlg.h"
#include "analysis/generaldlg.h"
#include "analysis/spectralzoomdlg.h"
#include "analysis/tdsheaderddcdlg.h"
#include "analysis/tdsheadermsdlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "exciter/exciterscansettingsdlg.h"
#include "exciter/exciterscudlg.h"
#include "exciter/excitersmudlg.h"
#include "exciter/exciterwdedlg.h"
#include "exciter/wdeexciterdlg.h"
#include "exciter/wderasterdetectordlg.h"
#include "exciter/wdesimulationdlg.h"
#include "exciter/wdesinglechanneldetectordlg.h"
#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/dflocatedlg.h"
#include "ipcparam/excitergeneraldlg.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/parameterdlg.h"
#include "keys/keys.h"
#include "recording/surveillancedlg.h"
#include "scan/memoryscandlg.h"
#include "scan/scandlg.h"
#include "scan/wbrxscandlg.h"
#include "tuner/antennadlg.h"
#include "tuner/tunerddcdlg.h"
#include "tuner/tunerdlg.h"
#include "tuner/tunerexternaldlg.h"
#include "tuner/tunervuhfdlg.h"
#include "tuner/tunerwbdlg.h"
#include "tuner/tunerwbrxdlg.h"
#include "value/tree.h"

#include <QLayout>
#include <QPointer>

namespace TKE
{

namespace
{

/// In which form of the host a row of the table counts.
enum class HostForm
{
    Any,
    Job,        // in job context
    StandAlone, // outside job context
    WithJob,    // in job context with a job path
    WithoutJob, // outside job context, or without a job path
};

// Rows of the table that the rules of the task types name.
constexpr int rowTunerDDC = 18;
constexpr int rowTunerHF = 19;
constexpr int rowTunerVUHF = 20;
constexpr int rowDemodulator = 26;
constexpr int rowDecoder = 27;
constexpr int rowCorrelator = 28;
constexpr int rowClassifier = 29;
constexpr int rowScan = 31;

template <class Panel, class... Arguments> std::unique_ptr<ParameterDlg> New(Arguments&&... arguments)
{
    return std::make_unique<Panel>(std::forward<Arguments>(arguments)...);
}

// The path up to and including the "/" that starts the first `marker`; the whole path when it has none.
QString CutAfterSlash(const QString& path, QLatin1StringView marker)
{
    const qsizetype position = path.indexOf(marker);
    return position < 0 ? path : path.left(position + 1);
}

} // namespace

/// One row of the tab table: when it counts, its title (untranslated) and how its panel is made.
struct IPCParam::TabRow
{
    bool TabFlags::*flag;
    HostForm form;
    const char* title;
    PanelPtr (*create)(IPCParam& host);
};

QString IPCParam::TdsItemPath() const
{
    return CutAfterSlash(m_baseItemPath, QLatin1StringView("/TDS"));
}
QString IPCParam::TdsJobPath() const
{
    return CutAfterSlash(m_jobPath, QLatin1StringView("/CS_"));
}

// The order of the rows is the order of the tabs, whatever the entry point. The rows are numbered from 1. Every panel
// takes the host as its parent and the host's read-only flag; the rest of its arguments stands in its row.
//
// Flags whose meaning the row does not tell: the headers of rows 1 and 2 differ in their first flag, ClassifierReduced
// drops their frequency lock; V/UHF extends the IF bandwidths of row 3, and read-only its improved dynamics; the WB
// forms of the spectrum (12, 13) have the FFT length mode and the refresh rate; V/UHF means symbol recognition for the
// classifier, and megahertz for the detection; activity options A and B stand for energy and level.
const std::array<IPCParam::TabRow, IPCParam::tabRowCount>& IPCParam::TabTable()
{
    using H = IPCParam;
    using F = TabFlags;
    using enum HostForm;
    static constexpr std::array<TabRow, tabRowCount> table{{
        // clang-format off
        /*  1 */ {&F::ShowHeaderDDC, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<TdsHeaderDDCDlg>(h.m_baseItemPath, &h, false, h.m_tabs.ClassifierReduced, h.m_readOnly); }},
        /*  2 */ {&F::ShowHeaderDDCClass, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<TdsHeaderDDCDlg>(h.m_baseItemPath, &h, true, h.m_tabs.ClassifierReduced, h.m_readOnly); }},
        /*  3 */ {&F::ShowHeaderWB, Any, QT_TR_NOOP("WB General"), [](H& h) {
          return New<TdsHeaderWBDlg>(h.m_baseItemPath, &h, h.m_readOnly, h.m_vuhf, h.m_wbHeader, h.m_readOnly); }},
        /*  4 */ {&F::ShowHeaderMS, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<TdsHeaderMSDlg>(h.m_baseItemPath, &h, h.m_readOnly); }},
        /*  5 */ {&F::ShowGeneral, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<GeneralDlg>(h.m_baseItemPath, &h, h.m_readOnly, h.m_generalPanelOption); }},
        /*  6 */ {&F::ShowExciterGeneral, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<ExciterGeneralDlg>(h.m_baseItemPath, h.m_vuhf, false, &h, h.m_readOnly); }},
        /*  7 */ {&F::ShowAntenna, Any, QT_TR_NOOP("Antenna"), [](H& h) {
          return New<AntennaDlg>(h.m_baseItemPath, h.m_vuhf, h.m_tabs.ShowTunerWB, h.m_wbTuner, &h, h.m_readOnly); }},
        /*  8 */ {&F::ShowSpectralZoom, Any, QT_TR_NOOP("General"), [](H& h) {
          return New<SpectralZoomDlg>(h.TdsItemPath(), &h, h.m_readOnly); }},
        /*  9 */ {&F::ShowAutoRecording, Any, QT_TR_NOOP("AutoRecording"), [](H& h) {
          return New<AutoRecordingDlg>(h.m_baseItemPath, &h, h.m_headerOnly, h.m_readOnly); }},
        /* 10 */ {&F::ShowTunerWB, Job, QT_TR_NOOP("WB Tuner"), [](H& h) {
          return New<TunerWBDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_vuhf, &h, h.m_readOnly); }},
        /* 11 */ {&F::ShowTunerWB, StandAlone, QT_TR_NOOP("WB Tuner"), [](H& h) {
          return New<TunerWBDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_vuhf, &h, h.m_readOnly); }},
        /* 12 */ {&F::ShowFFTDataWB, WithJob, QT_TR_NOOP("WB FFT Data"), [](H& h) {
          return New<FFTDataDlg>(h.TdsJobPath(), true, true, &h, h.m_readOnly); }},
        /* 13 */ {&F::ShowFFTDataWB, WithoutJob, QT_TR_NOOP("WB FFT Data"), [](H& h) {
          return New<FFTDataDlg>(h.m_taskPath, true, true, &h, h.m_readOnly); }},
        /* 14 */ {&F::ShowFFTData, Job, QT_TR_NOOP("FFT Data"), [](H& h) {
          return New<FFTDataDlg>(h.TdsJobPath(), false, false, &h, h.m_readOnly); }},
        /* 15 */ {&F::ShowFFTData, StandAlone, QT_TR_NOOP("FFT Data"), [](H& h) {
          return New<FFTDataDlg>(h.m_taskPath, false, false, &h, h.m_readOnly); }},
        /* 16 */ {&F::ShowFFTDataCS, Any, QT_TR_NOOP("FFT Data"), [](H& h) {
          return New<FFTDataDlg>(h.TdsJobPath(), false, false, &h, h.m_readOnly); }},
        /* 17 */ {&F::ShowTunerExternal, Any, QT_TR_NOOP("Tuner"), [](H& h) {
          return New<TunerExternalDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_jobContext, &h, h.m_readOnly); }},
        /* 18 */ {&F::ShowTunerDDC, Any, QT_TR_NOOP("Tuner"), [](H& h) {
          return New<TunerDDCDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_tabs.ShowAlarmConditions, h.m_vuhf, &h,
                                  h.m_readOnly); }},
        /* 19 */ {&F::ShowTunerHF, Any, QT_TR_NOOP("Tuner"), [](H& h) {
          return New<TunerDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_jobContext, &h, h.m_readOnly); }},
        /* 20 */ {&F::ShowTunerVUHF, Any, QT_TR_NOOP("VUHF Tuner"), [](H& h) {
          return New<TunerVUHFDlg>(h.m_baseItemPath, h.m_tabs.TunerSecondChannel, h.m_jobContext, &h, h.m_readOnly); }},
        /* 21 */ {&F::ShowExciterSMU, Any, QT_TR_NOOP("SMU"), [](H& h) {
          return New<ExciterSMUDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 22 */ {&F::ShowExciterSCU, Any, QT_TR_NOOP("SCU"), [](H& h) {
          return New<ExciterSCUDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 23 */ {&F::ShowExciterWDE, Any, QT_TR_NOOP("WDE"), [](H& h) {
          return New<ExciterWDEDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 24 */ {&F::ShowExciterScanSettings, Any, QT_TR_NOOP("ScanSettings"), [](H& h) {
          return New<ExciterScanSettingsDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 25 */ {&F::ShowTunerReceiver, Any, QT_TR_NOOP("Receiver Tuner"), [](H& h) {
          return New<TunerWBRXDlg>(h.m_baseItemPath, h.m_vuhf, h.m_jobContext, &h, h.m_readOnly); }},
        /* 26 */ {&F::ShowDemodulator, Any, QT_TR_NOOP("Demodulator"), [](H& h) {
          auto panel = std::make_unique<DemodulatorDlg>(h.m_baseItemPath, h.m_vuhf, &h, h.m_readOnly);
          panel->BuildPanel(); // this panel leaves it to the host
          return PanelPtr(std::move(panel)); }},
        /* 27 */ {&F::ShowDecoder, Any, QT_TR_NOOP("Decoder"), [](H& h) {
          return New<DecoderDlg>(h.m_baseItemPath, &h, h.m_vuhf, h.m_jobContext, h.m_readOnly); }},
        /* 28 */ {&F::ShowCorrelator, Any, QT_TR_NOOP("Correlator"), [](H& h) {
          return New<CorrelatorDlg>(h.m_baseItemPath, &h, h.m_readOnly); }},
        /* 29 */ {&F::ShowClassifier, Any, QT_TR_NOOP("Classifier"), [](H& h) {
          return New<ClassificatorDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, h.m_tabs.ClassifierReduced, &h,
                                       h.m_readOnly); }},
        /* 30 */ {&F::ShowAlarmConditions, Any, QT_TR_NOOP("Alarm Conditions"), [](H& h) {
          return New<SurveillanceDlg>(h.m_baseItemPath, h.m_ddc, &h, h.m_readOnly); }},
        /* 31 */ {&F::ShowScan, Any, QT_TR_NOOP("Scan"), [](H& h) {
          return New<ScanDlg>(h.m_baseItemPath, h.m_tabs.ScanOption, h.m_vuhf, &h, h.m_readOnly); }},
        /* 32 */ {&F::ShowWBRXScan, Any, QT_TR_NOOP("Scan"), [](H& h) {
          return New<WBRXScanDlg>(h.m_baseItemPath, h.m_vuhf, &h, h.m_readOnly); }},
        /* 33 */ {&F::ShowMemoryScan, Any, QT_TR_NOOP("Tuner"), [](H& h) {
          return New<MemoryScanDlg>(h.m_baseItemPath, h.m_channelCount, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 34 */ {&F::ShowRasterDetector, Any, QT_TR_NOOP("Rasterdetector"), [](H& h) {
          return New<WDERasterDetectorDlg>(h.m_baseItemPath, h.m_channelCount, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 35 */ {&F::ShowSingleChannelDetector, Any, QT_TR_NOOP("Singlechanneldetector"), [](H& h) {
          return New<WDESingleChannelDetectorDlg>(h.m_baseItemPath, h.m_channelCount, h.m_jobContext, h.m_vuhf, &h,
                                                  h.m_readOnly); }},
        /* 36 */ {&F::ShowWDEExciter, Any, QT_TR_NOOP("Exciter"), [](H& h) {
          return New<WDEExciterDlg>(h.m_baseItemPath, h.m_channelCount, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 37 */ {&F::ShowWDESimulation, Any, QT_TR_NOOP("Simulation"), [](H& h) {
          return New<WDESimulationDlg>(h.m_baseItemPath, h.m_channelCount, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 38 */ {&F::ShowDetection, Job, QT_TR_NOOP("Detection"), [](H& h) {
          return New<DetectionDlg>(h.m_baseItemPath, h.m_vuhf, &h, h.m_readOnly); }},
        /* 39 */ {&F::ShowDetection, StandAlone, QT_TR_NOOP("Detection"), [](H& h) {
          return New<DetectionDlg>(h.m_baseItemPath, h.m_vuhf, &h, h.m_readOnly); }},
        /* 40 */ {&F::ShowDetectionShort, Any, QT_TR_NOOP("Detection"), [](H& h) {
          return New<DetectionShortDlg>(h.m_baseItemPath, h.m_jobContext, h.m_vuhf, &h, h.m_readOnly); }},
        /* 41 */ {&F::ShowDFLocate, Any, QT_TR_NOOP("DFLocate"), [](H& h) {
          return New<DFLocateDlg>(h.m_baseItemPath, &h, h.m_readOnly); }},
        /* 42 */ {&F::ShowActivityGeneration, Any, QT_TR_NOOP("Activity Generation"), [](H& h) {
          return New<ActivityGenerationDlg>(h.m_baseItemPath, &h, h.m_tabs.ActivityOptionA, h.m_tabs.ActivityOptionB,
                                            h.m_tabs.ShowDetection, h.m_readOnly); }},
        // clang-format on
    }};
    return table;
}

const char* IPCParam::TabTitle(int row)
{
    return TabTable()[row - 1].title;
}

std::vector<int> IPCParam::WantedRows() const
{
    const bool isWithJob = m_jobContext && !m_jobPath.isEmpty();
    const auto counts = [&](HostForm form)
    {
        switch (form)
        {
        case HostForm::Any:
            return true;
        case HostForm::Job:
            return m_jobContext;
        case HostForm::StandAlone:
            return !m_jobContext;
        case HostForm::WithJob:
            return isWithJob;
        case HostForm::WithoutJob:
            return !isWithJob;
        }
        return false;
    };

    std::vector<int> rows;
    for (int row = 1; row <= tabRowCount; ++row)
    {
        const TabRow& entry = TabTable()[row - 1];
        if (m_tabs.*entry.flag && counts(entry.form))
            rows.push_back(row);
    }
    return rows;
}

void IPCParam::DeletePanels()
{
    // The page in view goes last, so that no other one comes into view on the way.
    for (PanelPtr& panel : m_panels)
    {
        if (panel.get() != currentWidget())
            panel.reset();
    }
    for (PanelPtr& panel : m_panels)
        panel.reset();
    m_extraPanels.clear();
}

// False when another assembly has overtaken this one: a panel may write a value while it is built, or a tab becomes
// current, and who hears of it may call an entry point. The later call then has made all tabs.
bool IPCParam::BuildTabDlg()
{
    const int assembly = ++m_assembly;
    DeletePanels();
    if (m_jobContext)
        setMinimumSize(775, 480);

    for (const int row : WantedRows())
    {
        const TabRow& entry = TabTable()[row - 1];
        PanelPtr panel = entry.create(*this);
        if (assembly != m_assembly)
            return false;
        m_panels[row - 1] = std::move(panel);
        // The first page counts as shown at once and would be laid out at a size that it never has.
        const QPointer<QLayout> layout = m_panels[row - 1]->layout();
        layout->setEnabled(false);
        addTab(m_panels[row - 1].get(), tr(entry.title));
        if (layout)
            layout->setEnabled(true);
    }
    return assembly == m_assembly;
}

void IPCParam::EnableTabs(std::initializer_list<int> rows, bool enable)
{
    for (const int row : rows)
    {
        if (ParameterDlg* panel = Panel(row))
            setTabEnabled(indexOf(panel), enable);
    }
}

void IPCParam::SpecificClassifierPart(bool detach)
{
    if (!m_jobContext)
        return;
    if (!m_classifierPartShown)
    {
        AddObserver(m_baseItemPath, Keys::STATE_AUTOMATICMODE);
        AddObserver(m_baseItemPath, Keys::STATE_AUTOMATICCLASSIFICATION);
        EnableTabs({rowTunerHF, rowTunerVUHF, rowTunerDDC}, true);
        EnableTabs({rowDemodulator, rowDecoder, rowCorrelator}, false);
        EnableTabs({rowClassifier}, true);
        m_classifierPartShown = true;
    }
    if (detach)
    {
        DeleteObserver(m_baseItemPath, Keys::STATE_AUTOMATICMODE);
        DeleteObserver(m_baseItemPath, Keys::STATE_AUTOMATICCLASSIFICATION);
        m_classifierPartShown = false;
        return;
    }
    const ValueBase* mode = m_tree->FindValue(GetItemPath(m_baseItemPath, Keys::STATE_AUTOMATICMODE));
    const ValueBase* classification =
        m_tree->FindValue(GetItemPath(m_baseItemPath, Keys::STATE_AUTOMATICCLASSIFICATION));
    if (!mode || !classification)
        return;
    const bool isManual = !mode->GetBool();
    const bool isManualClassification = isManual && !classification->GetBool();
    EnableTabs({rowTunerHF, rowTunerVUHF, rowTunerDDC, rowClassifier}, isManual);
    EnableTabs({rowDemodulator, rowDecoder, rowCorrelator}, isManualClassification);
}

void IPCParam::SpecificDataTransPart(bool detach)
{
    if (!m_jobContext)
        return;
    const std::initializer_list<int> tabs = {rowTunerHF,     rowTunerVUHF, rowTunerDDC,
                                             rowDemodulator, rowDecoder,   rowCorrelator};
    if (!m_dataTransPartShown)
    {
        AddObserver(m_baseItemPath, Keys::STATE_AUTOMATICMODE);
        EnableTabs(tabs, true);
        m_dataTransPartShown = true;
    }
    if (detach)
    {
        DeleteObserver(m_baseItemPath, Keys::STATE_AUTOMATICMODE);
        m_dataTransPartShown = false;
        return;
    }
    if (const ValueBase* mode = m_tree->FindValue(GetItemPath(m_baseItemPath, Keys::STATE_AUTOMATICMODE)))
        EnableTabs(tabs, !mode->GetBool());
}

void IPCParam::SpecificProductionSCScanPart()
{
    if (!m_tree->FindValue(GetItemPath(m_baseItemPath, Keys::SCAN_STATUS)))
        EnableTabs({rowScan}, false);
}

} // namespace TKE
