#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "common.h"
#include "exciterfixture.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace ExciterTest;

class TestExciter : public QObject
{
    Q_OBJECT

private slots:
    void init() { FillTree(); }
    void cleanup()
    {
        Tree::Instance()->Clear();
        CfgCenter::Instance()->SetDirectory(QString());
    }

    void aModeThatIsNoSelectionCountsAsUnknownAndWithoutAnyNothingIsTouched()
    {
        Tree::Instance()->RemoveValue(modePath);
        const QString before = Switches();
        std::vector<Panel> panels = MakeAll();
        const auto checkUnknown = [&](const QString& switchStates, const QString& disabled)
        {
            QCOMPARE(Switches(), switchStates);
            QCOMPARE(Disabled(), disabled);
            for (const Panel& panel : panels)
            {
                QCOMPARE(panel->GetExciterMode(), -1);
                QVERIFY(!panel->IsScanMode());
                QCOMPARE(panel->GetTitle(), QString());
            }
        };
        checkUnknown(before, QString());
        auto* mode = Tree::Instance()->CreateValue<IntValue>(modePath);
        mode->SetValue(1);
        panels = MakeAll();
        checkUnknown("---- true", "RasterThresholdAbs ScuBlankingTime");
        Switch(ExciterCheck)->SetState(stEnabled);
        mode->SetValue(3);
        checkUnknown("---- true", "RasterThresholdAbs ScuBlankingTime");
    }

    void theUserMayClearASwitchUntilTheModeChanges()
    {
        const Panel panel = Make("ExciterGeneralDlg");
        panel->show();
        auto* box = panel->findChild<QCheckBox*>(QString(RasterDetectorCheck));
        QVERIFY(box->isChecked() && box->isEnabled());
        box->click();
        QVERIFY(!Switch(RasterDetectorCheck)->GetBool());

        panel->Update(Mode(), ccState);                 // another code
        panel->Update(Switch(ExciterCheck), ccContent); // another value
        QVERIFY(!Switch(RasterDetectorCheck)->GetBool());
        SetMode(6);
        QVERIFY(!box->isEnabled());
        SetMode(3);
        QVERIFY(box->isChecked() && box->isEnabled());
    }

    void theModeDecidesOnTheSwitchesAndWhatCanBeEdited_data()
    {
        const Table<int, QString, QString> table("mode", "switches", "disabled");
        const QString wde = QStringLiteral("SmuDeviation SmuFrequency SmuMessage SmuModulation SmuModulationDepth "
                                           "SmuModulationSource SmuSymbolRate SmuToneFrequency");
        const QString memory = QStringLiteral("ExciterScanFirstMemory ExciterScanLastMemory");
        const QString range = QStringLiteral("ExciterScanStartFrequency ExciterScanStepWidth ExciterScanStopFrequency");
        const QString list = QStringLiteral("ExciterScanFrequencies");
        const QString smu = QStringLiteral("SmuFrequency");
        const QString scenario = QStringLiteral("WdeCenterFrequency WdeExciterRepeat");
        const auto row = [&](int mode, const QString& switchStates, const QStringList& more)
        {
            QStringList names =
                QString("RasterThresholdAbs ScuBlankingTime " + more.join(u' ')).simplified().split(u' ');
            names.sort();
            table(QString::number(mode), mode, switchStates, names.join(u' '));
        };
        for (const int mode : {0, 2, 11})
            row(mode, "---- true", {});
        row(1, "---- false", {});
        row(3, "+-+- true", {wde});
        for (const int mode : {4, 5})
            row(mode, "+--+ true", {wde, scenario});
        for (const int mode : {6, 7})
            row(mode, "++-- true", {wde});
        row(8, "---- true", {smu, list, memory});
        row(9, "---- true", {smu, range, memory});
        row(10, "---- true", {smu, range, list});
    }
    void theModeDecidesOnTheSwitchesAndWhatCanBeEdited()
    {
        QFETCH(int, mode);
        const auto panels = MakeAll();
        QCOMPARE(Switches(), "+-+- true"); // the mode is 3
        for (const int before : {1, 2, 4, 5, 6, 8, 9, 10})
        {
            SetMode(before);
            SetMode(mode);
            QTEST(Switches(), "switches");
            QTEST(Disabled(), "disabled");
        }
        for (const Panel& panel : panels)
        {
            QCOMPARE(panel->GetExciterMode(), mode);
            QCOMPARE(panel->IsScanMode(), mode >= 8 && mode <= 10);
            QCOMPARE(panel->GetTitle(), Mode()->GetSelectedItem() ? Mode()->GetText() : QString());
        }
        const auto later = MakeAll(); // on building, too
        QTEST(Switches(), "switches");
        QTEST(Disabled(), "disabled");
    }

    void rulesFollowTheirOwnValue_data()
    {
        // texts: the stored content of the value ...; disabled: ... and what it disables
        const Table<QString, QString, QStringList, QStringList> row("panel", "key", "texts", "disabled");
        row("blanking", "ExciterSCUDlg", QString(ScuBlanking), {"true", "false"}, {"", "ScuBlankingTime"});
        // An unknown threshold mode leaves things as they are.
        row("threshold", "WDERasterDetectorDlg", QString(RasterThresholdMode), {"0", "7", "1"},
            {"RasterThresholdRel", "RasterThresholdRel", "RasterThresholdAbs"});
        row("fading", "WDESimulationDlg", QString(SimulationFading), {"false", "true"},
            {"SimulationChannelModel SimulationSeed", ""});
    }
    void rulesFollowTheirOwnValue()
    {
        QFETCH(QString, panel);
        QFETCH(QString, key);
        QFETCH(QStringList, texts);
        QFETCH(QStringList, disabled);
        ValueBase* source = PanelTest::ValueOf(key);
        const Panel first = Make(panel);
        for (qsizetype i = 0; i < texts.size(); ++i)
        {
            source->SetStoredText(texts[i]);
            QCOMPARE(Disabled(), disabled[i]);
        }
        const Panel second = Make(panel); // the same at once
        QCOMPARE(Disabled(), disabled.last());
        Tree::Instance()->RemoveValue(basePath + key);
        SetMode(5); // without the value there is no rule
        QCOMPARE(Disabled(), disabled.last());
    }

    void rulesReachValuesAboveTheBasePath()
    {
        for (const auto key : {SmuFrequency, SmuMessage})
            Tree::Instance()->RemoveValue(basePath + key);
        PanelTest::Fill(QStringLiteral("G_EXC_SMU"), switchPath);
        const Panel panel = Make("ExciterSMUDlg");
        const auto state = [](QLatin1StringView key)
        { return Tree::Instance()->FindValue(switchPath + key)->GetState(); };
        QCOMPARE(state(SmuFrequency), stDisabled);
        QCOMPARE(state(SmuMessage), stDisabled);
        QCOMPARE(state(SmuModulation), stEnabled); // hidden by the one below
        QCOMPARE(PanelTest::Grid(*panel).PathAt(6, 6), switchPath + SmuMessage);
    }

    void aModeSetWhileAnotherIsAppliedWins()
    {
        const auto panels = MakeAll();
        Hearer meddler([] { SetMode(7); });
        Switch(RasterDetectorCheck)->Attach(&meddler);
        SetMode(1);
        QCOMPARE(Switches(), "++-- true");
    }

    void channelsHaveTheirOwnValuesAndMayBeNone()
    {
        for (const int count : {0, -1})
            QVERIFY(!Make("WDERasterDetectorDlg", count)->findChild<QScrollArea*>());
        Tree::Instance()->RemoveValue(basePath + "Channel2/WdeChannelLevel");
        // Neither the one above nor the neighbour's serves instead.
        Tree::Instance()->CreateValue<IntValue>(switchPath + "WdeChannelLevel");
        const Panel panel = Make("WDEExciterDlg");
        auto* area = panel->findChild<QScrollArea*>("WDE_CHANNELS");
        const auto boxes = area->widget()->findChildren<QGroupBox*>();
        const PanelTest::Grid second(boxes[1]);
        QCOMPARE(second.PathAt(1, 1), basePath + "Channel2/WdeChannelFrequency");
        QCOMPARE(second.PathAt(2, 1), QString());
        QCOMPARE(PanelTest::Grid(boxes[0]).PathAt(2, 1), basePath + "Channel1/WdeChannelLevel");
    }

    void aParameterSetThatCannotBeLoadedIsReportedAndThePanelsStand()
    {
        QTemporaryDir directory;
        CfgCenter::Instance()->SetDirectory(directory.path());
        const QString fileName = CfgCenter::Instance()->GetFileName("JobManagement", cfgSystem);
        QDir().mkpath(QFileInfo(fileName).path());
        QSettings(fileName, QSettings::IniFormat).setValue("JobModelXMLDir", directory.path());
        WriteAll(directory.filePath("exciter_hf.xml"),
                 "<JobModel version=\"1\">\n<Group name=\"G_EXC_SMU\" band=\"HF\">\n<Parameter name=\"SmuLevel\" "
                 "kind=\"double\" at=\"U\" default=\"0\" label=\"Power :\" description=\"d\" control=\"3\" "
                 "number=\"double\"/>\n");

        ErrorHandler::Interface().Clear();
        QStringList reports;
        const auto subscription =
            ErrorHandler::Interface().Subscribe([&](const ErrorReport& report) { reports << report.text; });
        for (const QString& name : panelNames)
        {
            reports.clear();
            const Panel panel = Make(name);
            QCOMPARE(reports.size(), 1);
            QVERIFY2(reports[0].contains("exciter_hf.xml:4:"), qPrintable(reports[0]));
            QCOMPARE(panel->GetTitle(), "WDE raster test"); // the mode needs no descriptor
            if (name == "ExciterSMUDlg")
                QCOMPARE(PanelTest::Grid(*panel).TextAt(2, 0), "Power :");
        }
        SetMode(6);
        QCOMPARE(Switches(), "+-+- true"); // of a panel that is gone
        const Panel general = Make("ExciterGeneralDlg");
        QCOMPARE(Switches(), "++-- true");
    }

    void aPanelMayGoWhileItAppliesTheMode()
    {
        // What hears of the change deletes the panel, whatever it writes first.
        for (const auto key : switches)
        {
            SetMode(3);
            Panel panel = Make("ExciterGeneralDlg");
            Hearer killer([&] { panel.reset(); });
            Switch(key)->Attach(&killer);
            SetMode(key == RasterDetectorCheck || key == SingleChannelDetectorCheck ? 6 : key == ExciterCheck ? 2 : 4);
            QVERIFY(!panel);
        }
        SetMode(2);
        Panel panel = Make("ExciterSMUDlg");
        Hearer killer([&] { panel.reset(); });
        PanelTest::ValueOf(SmuModulation)->Attach(&killer);
        SetMode(3);
        QVERIFY(!panel);
        panel = Make("ExciterSCUDlg");
        Hearer another([&] { panel.reset(); });
        PanelTest::ValueOf(ScuBlankingTime)->Attach(&another);
        PanelTest::ValueOf(ScuBlanking)->SetStoredText(QStringLiteral("true"));
        QVERIFY(!panel);
    }
};

QTEST_MAIN(TestExciter)
#include "test_exciter.moc"
