#pragma once

#include "exciter/exciter_settings.h"
#include "ipcparam/export.h"
#include "value/observable.h"

#include <QTabWidget>
#include <array>
#include <initializer_list>
#include <memory>
#include <vector>

namespace TKE
{

class ParameterDlg;
class Tree;

/// The dialog host: shows, for one task of a job, the parameter panels that belong to that kind of task as tabs.
///
/// Construct it, then call one entry point. The entry point sets the window title, makes the tabs and selects tab
/// number `tab`, counted from 1; a number that names no tab, or a disabled one, selects nothing. Calling an entry point
/// again rebuilds the tabs: the old panels are deleted at once, so do not call it from a signal of one of their
/// widgets, but any notification of the value tree may lead to it.
///
/// A notification of the value tree may lead to the end of the host, too, but not while one of its entry points, its
/// Update or its destructor runs: a panel may write values as it is built, and so may an editor that loses the focus
/// with its tab. Who cannot tell calls deleteLater().
///
/// Item paths begin and end with "/". What a path does not find in the value tree is left out; nothing is reported. The
/// host owns its panels and lets go of the values that it observes when it dies. GUI thread only.
class IPCPARAM_EXPORT IPCParam : public QTabWidget, public IObserver
{
    Q_OBJECT

public:
    /// The form for the job editor ("job context"): no parent, never read-only, at least 775 x 480 pixels.
    /// `baseItemPath` is where the panels bind their values, `typePath` the node whose type text tells what kind of
    /// task it is. The two contexts are only kept.
    IPCParam(const QString& jobPath, const QString& taskPath, std::vector<QString>& resources,
             const QString& baseItemPath, const QString& contextA, const QString& contextB, const QString& typePath,
             const QString& translationNamespace);
    /// The stand-alone form. `readOnly` disables all that the panels show; both options are only kept.
    IPCParam(const QString& baseItemPath, QWidget* parent, bool readOnly, bool optionA, bool optionB,
             const QString& typePath, const QString& translationNamespace);
    ~IPCParam() override;

    // The entry points, one per kind of task. `vuhf` picks the V/UHF form.

    /// `count` above 1 shows the second channel, outside job context.
    void ClassifierDDCDlg(int tab, bool vuhf, bool reduced, int count);
    void ClassifierDlg(int tab, int count);
    void ClassifierVUHFDlg(int tab, int count);
    void DataTransDDCDlg(int tab, bool vuhf, bool alarm);
    void DataTransDlg(int tab, bool alarm);
    void DataTransVUHFDlg(int tab, bool alarm);
    void DetectionConventionalDDCDlg(int tab, bool vuhf);
    void DetectionShorttimeDDCDlg(int tab, bool vuhf);
    /// Mind the order of the arguments.
    void WBRXDlg(bool vuhf, int tab);
    /// The exciter mode at this moment decides on the tabs "WDE" and "ScanSettings".
    void ExciterDlg(int tab, bool vuhf);
    void FullDlg(int tab, bool vuhf);
    void GeneralExciterDlg(int tab, bool vuhf);
    void MScanDlg(int tab, bool vuhf);
    /// `count` is the number of memory channels.
    void MemoryScanNBDlg(int tab, bool vuhf, int count);
    /// `count` is the number of raster ranges.
    void RasterDetectorDlg(int tab, bool vuhf, int count);
    /// `count` is the number of detector channels.
    void SingleChannelDetectorDlg(int tab, bool vuhf, int count);
    void SpectralZoomDDCDlg(int tab, bool vuhf);
    void TDSHeaderAutorecordingOnlyDlg(int tab, bool headerOnly);
    void TDSHeaderDDCClassDlg(int tab, bool vuhf);
    void TDSHeaderDDCDlg(int tab, bool vuhf, bool reduced);
    void TDSHeaderDlg(int tab, bool vuhf, bool ignored);
    void TDSHeaderMSDlg(int tab, bool vuhf);
    void TDSHeaderMScanDataDlg(int tab, bool vuhf);
    void TDSHeaderTunerDlg(int tab, bool vuhf);
    void TDSHeaderWBDlg(int tab, bool vuhf, bool wbHeader, bool wbTuner);
    void TunerExtDlg(int tab);
    void TunerNBDlg(int tab);
    void TunerNBVUHFDlg(int tab);
    void VoiceDDCDlg(int tab, bool vuhf);
    void VoiceDlg(int tab);
    void VoiceVUHFDlg(int tab);
    void WBTunerDlg(int tab, bool vuhf, bool wbTuner);
    /// `count` is the number of exciter channels.
    void WDE_ExciterDlg(int tab, bool vuhf, int count);
    /// `count` is the number of simulated emitters.
    void WDE_SimulationDlg(int tab, bool vuhf, int count);

    /// Selects the tab with this index, counted from 0, even when it is disabled. An index that names no tab selects
    /// nothing.
    void SetCurrentTab(int index);
    /// Index of the current tab, counted from 0; -1 without tabs.
    int CurrentTab() const;

    void Update(Observable* source, TChangeCode code) override;

protected:
    static constexpr int tabRowCount = 42;

    /// Numbers (from 1) of the rows of the tab table that the latest entry point asks for, in the order of the tabs.
    std::vector<int> WantedRows() const;
    /// Untranslated title of a row of the tab table.
    static const char* TabTitle(int row);
    /// The panel of a row; null when it has none.
    ParameterDlg* Panel(int row) const { return m_panels[row - 1].get(); }

    /// Attaches the host to the value, or detaches it. Nothing happens when there is no such value.
    void AddObserver(const QString& path, const QString& key);
    void DeleteObserver(const QString& path, const QString& key);

    /// Keep the tabs of a classifier or data transmission task in step with its automatic mode. The first call attaches
    /// the host to the values and gives the tabs their first state; every call, the first one too, then applies the
    /// values. `detach` lets go of them instead.
    void SpecificClassifierPart(bool detach);
    void SpecificDataTransPart(bool detach);
    /// Disables the "Scan" tab of a task without a scan status.
    void SpecificProductionSCScanPart();

private:
    /// What tab assembly makes, and options of single panels. Each entry point sets the whole block.
    struct TabFlags
    {
        bool ShowGeneral = false;
        bool ShowAutoRecording = false;
        bool Unused1 = false; // no tab reads it
        bool ShowAntenna = false;
        bool ShowTunerExternal = false;
        bool ShowTunerHF = false;
        bool ShowTunerDDC = false;
        bool ShowTunerVUHF = false;
        bool ShowTunerWB = false;
        bool ShowTunerReceiver = false;
        bool ShowExciterSCU = false;
        bool ShowExciterSMU = false;
        bool ShowExciterWDE = false;
        bool ShowExciterScanSettings = false;
        bool ShowExciterGeneral = false;
        bool ShowRasterDetector = false;
        bool ShowWDEExciter = false;
        bool ShowWDESimulation = false;
        bool ShowSingleChannelDetector = false;
        bool ShowDemodulator = false;
        bool ShowDecoder = false;
        bool ShowCorrelator = false;
        bool ShowClassifier = false;
        bool ClassifierReduced = false; // an option, not a tab
        bool ShowAlarmConditions = false;
        bool ShowHeaderDDC = false;
        bool ShowHeaderDDCClass = false;
        bool ShowHeaderWB = false;
        bool ShowHeaderMS = false;
        bool Unused2 = false; // no tab reads it
        bool ShowFFTDataCS = false;
        bool ShowFFTDataWB = false;
        bool ShowFFTData = false;
        bool ShowScan = false;
        bool ShowWBRXScan = false;
        bool ShowMemoryScan = false;
        bool ShowSpectralZoom = false;
        bool ShowDetection = false;
        bool ShowDetectionShort = false;
        bool ShowDFLocate = false;
        bool ScanOption = false;   // an option
        bool LocateOption = false; // an option
        bool ShowActivityGeneration = false;
        bool ActivityOptionA = false;    // an option
        bool ActivityOptionB = false;    // an option
        bool TunerSecondChannel = false; // an option
    };
    struct Chain;
    struct TabRow;
    using PanelPtr = std::unique_ptr<ParameterDlg>;

    void InitMember(const QString& jobPath, const QString& taskPath, const std::vector<QString>& resources,
                    const QString& baseItemPath, const QString& contextA, const QString& contextB,
                    const QString& typePath, const QString& translationNamespace);
    void Open(const Chain& chain, int tab);
    static const std::array<TabRow, tabRowCount>& TabTable();
    bool BuildTabDlg();
    void DeletePanels();
    void SetTab(int n);
    void EnableTabs(std::initializer_list<int> rows, bool enable);

    REPORTGENERATOR::Exciter_Settings::ExciterModeType GetExciterMode() const;
    bool HasActivityType() const;
    QString GetItemPath(const QString& path, const QString& key) const;
    QString TdsItemPath() const;
    QString TdsJobPath() const;

    QString m_jobPath;
    QString m_taskPath;
    std::vector<QString> m_resources;
    QString m_baseItemPath;
    QString m_contextA;
    QString m_contextB;
    Tree* m_tree;
    std::array<PanelPtr, tabRowCount> m_panels; // one per row of the tab table
    std::vector<PanelPtr> m_extraPanels;
    TabFlags m_tabs;
    bool m_jobContext;
    bool m_classifierPartShown = false;
    bool m_dataTransPartShown = false;
    bool m_wbHeader = false;
    bool m_vuhf = false;
    bool m_ddc = false;
    bool m_readOnly;
    bool m_generalPanelOption = false;
    bool m_wbTuner = false;
    QString m_translationNamespace;
    bool m_headerOnly = false;
    bool m_optionA;
    bool m_optionB;
    int m_channelCount = 0;
    QString m_ipcType;
    QString m_title;
    int m_assembly = 0; // counts tab assemblies, so that one notices when another has overtaken it
};

} // namespace TKE
