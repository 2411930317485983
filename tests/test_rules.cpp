#include "ipcparam/dflocatedlg.h"
#include "ipcparam/jobdlg.h"
#include "ipcparam/joboptions.h"
#include "ipcparam/resourcedlg.h"
#include "ipcparam/tkeoptions.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "recording/surveillancedlg.h"
#include "scan/memoryscandlg.h"
#include "scan/scandlg.h"
#include "scan/wbrxscandlg.h"
#include "common.h"
#include "tuner/antennadlg.h"
#include "tuner/tunerexternaldlg.h"

#include <QTest>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

using Panel = std::unique_ptr<ParameterDlg>;

/// The panels that have rules, each with the group of its values and where they sit.
struct Ruled
{
    const char* group;
    Band band;
    QString place;
    Panel (*make)();
};

TKEOptions AllOptions()
{
    TKEOptions options;
    for (int resource = 0; resource < AvailableResources::ResourceCount; ++resource)
        options.SetResource(resource, true);
    for (int gate = 1; gate <= TKEOptions::GateCount; ++gate)
        options.SetGate(gate, true);
    for (int number = 1; number <= TKEOptions::SwitchCount; ++number)
        options.SetSwitch(number, true);
    return options;
}

const QString parentPath = ParameterDlg::GetParentPath(basePath);

const QHash<QString, Ruled>& Panels()
{
    static const QHash<QString, Ruled> panels{
        {"antenna", {"G_ANTENNA_WB_VUHF", Band::Vuhf, parentPath, [] { return Panel(new AntennaDlg(basePath, true, true, true, nullptr, false)); }}},
        {"external", {"G_TUNER_EXT", Band::Hf, basePath, [] { return Panel(new TunerExternalDlg(basePath, true, true, nullptr, false)); }}},
        {"scan", {"G_SCAN_HF", Band::Hf, basePath, [] { return Panel(new ScanDlg(basePath, false, false, nullptr, false)); }}},
        {"receiver scan", {"G_WBRXSCAN_VUHF", Band::Vuhf, basePath, [] { return Panel(new WBRXScanDlg(basePath, true, nullptr, false)); }}},
        {"memory scan", {"G_MEMORYSCAN_HF", Band::Hf, basePath, [] { return Panel(new MemoryScanDlg(basePath, 1, true, false, nullptr, false)); }}},
        {"surveillance", {"G_SURVEILLANCE", Band::Hf, basePath, [] { return Panel(new SurveillanceDlg(basePath, true, nullptr, false)); }}},
        {"location", {"G_DFLOCATE", Band::Hf, basePath, [] { return Panel(new DFLocateDlg(basePath, nullptr, false)); }}},
        {"job", {"G_JOB", Band::Hf, basePath, [] { return Panel(new JobDlg(basePath, AllOptions(), nullptr, false)); }}},
    };
    return panels;
}

} // namespace

class TestRules : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Tree::Instance()->Clear(); }

    void aRuleFollowsItsValue_data()
    {
        // observed: "KEY=stored KEY=stored"
        const Table<QString, QString, QString, QString> table("panel", "observed", "on", "off");
        const auto row = [&](const QString& panel, const QString& observed, const QString& on, const QString& off)
        { table(panel + ' ' + observed, panel, observed, on, off); };

        const char* chosen = "ANTENNA_WB_VUHF_NAME ANTENNA_WB_VUHF_AZIMUTH ANTENNA_WB_VUHF_POLARISATION";
        row("antenna", "ANTENNA_WB_VUHF_SELECTION_MODE=2", chosen, "");
        row("antenna", "ANTENNA_WB_VUHF_SELECTION_MODE=1", "ANTENNA_WB_VUHF_PREAMPLIFIER_STATUS ANTENNA_WB_VUHF_OUTPUT", chosen);
        row("external", "TUNER_EXT_CONTROL_MODE=0", "TUNER_EXT_FREQUENCY", "TUNER_EXT_SETTLINGTIME TUNER_EXT_SET_AT_START");
        row("external", "TUNER_EXT_CONTROL_MODE=1", "TUNER_EXT_SETTLINGTIME TUNER_EXT_SET_AT_START", "");
        const char* range = "SCAN_START_FREQUENCY SCAN_STOP_FREQUENCY SCAN_STEPWIDTH SCAN_SEQ_EXCL_FREQ_RANGE";
        const char* memory = "SCAN_MEMORY_FIRST SCAN_MEMORY_LAST SCAN_MEMORY_SKIP";
        const QString notRange = QString("SCAN_SEQ_FREQUENCY ") + memory;
        const QString notList = QString(range) + ' ' + memory;
        const QString notMemory = QString("SCAN_SEQ_FREQUENCY ") + range;
        row("scan", "SCAN_TYPE=0", range, notRange);
        row("scan", "SCAN_TYPE=1", "SCAN_SEQ_FREQUENCY", notList);
        row("scan", "SCAN_TYPE=2", memory, notMemory);
        row("scan", "SCAN_DWELLTIME_CHECK=true SCAN_CYCLES_CHECK=false", "SCAN_CYCLES", "SCAN_DWELLTIME");
        row("scan", "SCAN_DWELLTIME_CHECK=false SCAN_CYCLES_CHECK=true", "SCAN_DWELLTIME", "SCAN_CYCLES");
        row("receiver scan", "WBRXSCAN_MODE=0 WBRXSCAN_THRESHOLD_MODE=0 WBRXSCAN_OCCUPANCY_ON=false", "WBRXSCAN_THRESHOLD_ABS",
            "WBRXSCAN_STEPWIDTH WBRXSCAN_THRESHOLD_REL WBRXSCAN_OCCUPANCY_INTERVAL");
        row("receiver scan", "WBRXSCAN_MODE=1 WBRXSCAN_THRESHOLD_MODE=1 WBRXSCAN_OCCUPANCY_ON=true WBRXSCAN_DWELLTIME_CHECK=true",
            "WBRXSCAN_STEPWIDTH WBRXSCAN_THRESHOLD_REL WBRXSCAN_OCCUPANCY_INTERVAL", "WBRXSCAN_THRESHOLD_ABS WBRXSCAN_DWELLTIME");
        row("memory scan", "MEMORYSCAN_HF_DWELLTIME_CHECK=true", "MEMORYSCAN_HF_HOLDTIME", "MEMORYSCAN_HF_DWELLTIME");
        row("surveillance", "SURVEILLANCE_LEVEL_CHECK=true SURVEILLANCE_ABSENCE_CHECK=false SURVEILLANCE_TEXT_CHECK=true SURVEILLANCE_BANDWIDTH_CHECK=false",
            "SURVEILLANCE_LEVEL SURVEILLANCE_TEXT SURVEILLANCE_TEXT_MATCHCASE",
            "SURVEILLANCE_ABSENCE SURVEILLANCE_BANDWIDTH_MIN SURVEILLANCE_BANDWIDTH_MAX");
        row("surveillance", "SURVEILLANCE_DURATION_CHECK=false SURVEILLANCE_FREQDEVIATION_CHECK=true SURVEILLANCE_MODULATION_CHECK=false",
            "SURVEILLANCE_FREQDEVIATION", "SURVEILLANCE_DURATION SURVEILLANCE_MODULATIONS");
        row("location", "DFLOCATE_DF_ON=false DFLOCATE_LOCATE_ON=true DFLOCATE_METHOD=3 DFLOCATE_REPETITION=1",
            "DFLOCATE_METHOD DFLOCATE_MIN_BEARINGS DFLOCATE_INTERVAL DFLOCATE_MAX_UNCERTAINTY DFLOCATE_STATIONS",
            "DFLOCATE_DF_MODE DFLOCATE_QUALITY_THRESHOLD DFLOCATE_LAYER_HEIGHT");
        row("location", "DFLOCATE_DF_ON=true DFLOCATE_LOCATE_ON=true DFLOCATE_METHOD=1 DFLOCATE_REPETITION=0",
            "DFLOCATE_DF_MODE DFLOCATE_LAYER_HEIGHT", "DFLOCATE_MIN_BEARINGS DFLOCATE_INTERVAL");
        row("location", "DFLOCATE_LOCATE_ON=false DFLOCATE_METHOD=1 DFLOCATE_REPETITION=1", "",
            "DFLOCATE_METHOD DFLOCATE_REPETITION DFLOCATE_LAYER_HEIGHT DFLOCATE_INTERVAL DFLOCATE_STATIONS");
        row("job", "JOB_WORKFLOW_STORE=true", "JOB_WORKFLOW_KEEPTIME JOB_DESCRIPTION", "JOB_AUTHOR JOB_CREATIONDATETIME JOB_LASTEDITDATETIME");
        row("job", "JOB_WORKFLOW_STORE=false", "", "JOB_WORKFLOW_KEEPTIME");
    }
    void aRuleFollowsItsValue()
    {
        QFETCH(QString, panel);
        QFETCH(QString, observed);
        QFETCH(QString, on);
        QFETCH(QString, off);
        const Ruled& ruled = Panels()[panel];
        const auto find = [&](const QString& key) { return Tree::Instance()->FindValue(ruled.place + key); };
        // Once with the values there before the panel, once with values that change under it.
        for (const bool before : {true, false})
        {
            Tree::Instance()->Clear();
            Fill(ruled.group, ruled.place, ruled.band);
            Panel shown;
            if (!before)
                shown = ruled.make();
            for (const QString& text : observed.split(' '))
            {
                ValueBase* value = find(text.section('=', 0, 0));
                QVERIFY2(value, qPrintable(text));
                QVERIFY2(value->SetStoredText(text.section('=', 1)), qPrintable(text));
            }
            if (before)
                shown = ruled.make();
            for (const QString& key : on.split(' ', Qt::SkipEmptyParts))
                QVERIFY2(find(key) && find(key)->GetState() == stEnabled, qPrintable(key));
            for (const QString& key : off.split(' ', Qt::SkipEmptyParts))
                QVERIFY2(find(key) && find(key)->GetState() == stDisabled, qPrintable(key));
        }
    }

    void aPanelOutlivesItsValuesAndLacksThemQuietly_data()
    {
        EachText("panel", Panels().keys());
    }
    void aPanelOutlivesItsValuesAndLacksThemQuietly()
    {
        QFETCH(QString, panel);
        const Ruled& ruled = Panels()[panel];
        const Panel unbound = ruled.make();
        Fill(ruled.group, ruled.place, ruled.band);
        Panel shown = ruled.make();
        Tree::Instance()->Clear();
        Fill(ruled.group, ruled.place, ruled.band);
        // It may also go while it applies its rules.
        shown = ruled.make();
        Hearer deleter(
            [&]
            {
                if (deleter.codes.back() == ccState)
                    shown.reset();
            });
        for (const auto& value : Tree::Instance()->FindNode(ruled.place)->GetValues())
            value->Attach(&deleter);
        for (const auto& value : Tree::Instance()->FindNode(ruled.place)->GetValues())
            for (const char* stored : {"0", "1", "2", "true", "false"})
                if (shown && !value->GetName().contains("AUTHOR"))
                    value->SetStoredText(stored);
        QVERIFY(!shown);
    }

    void aRuleLooksOnlyWhereItsRowsDo()
    {
        Fill("G_DFLOCATE", basePath, Band::Hf);
        Tree::Instance()->RemoveValue(basePath + DFLOCATE_DF_ON);
        Tree::Instance()->CreateValue<BoolValue>(parentPath + DFLOCATE_DF_ON); // of another node, and off
        const DFLocateDlg panel(basePath, nullptr, false);
        QCOMPARE(ValueOf(DFLOCATE_DF_MODE)->GetState(), stEnabled);
    }

    void wantedRowsOnly()
    {
        // Without a resource its row is left out, and without options their group.
        TKEOptions none;
        const JobDlg job(basePath, none, nullptr, false);
        QVERIFY(job.findChild<QWidget*>(JOB_RESOURCES));
        QVERIFY(!job.findChild<QWidget*>(JOB_USE_HF) && !job.findChild<QWidget*>(JOB_RECEIVER_COUNT) && !job.findChild<QWidget*>(JOB_WORKFLOW));
        for (const char* kind : {"HF", "DF", "RECORDER", "other"})
        {
            const ResourceDlg resource(basePath, JobOptions(kind), nullptr, false);
            const Grid grid(resource);
            QCOMPARE(grid.Group("Options") != nullptr, kind != QByteArray("other"));
            QCOMPARE(resource.findChild<QWidget*>(RESOURCE_OPTION_DECODER) != nullptr, kind == QByteArray("HF"));
            QCOMPARE(resource.findChild<QWidget*>(RESOURCE_OPTION_SSL) != nullptr, kind == QByteArray("DF"));
        }
        // No stations to choose from: no group, neither placed nor left over.
        const DFLocateDlg location(basePath, nullptr, false);
        QCOMPARE(location.findChildren<QGroupBox*>().size(), 3); // the frame and two groups
    }
};

QTEST_MAIN(TestRules)
#include "test_rules.moc"
