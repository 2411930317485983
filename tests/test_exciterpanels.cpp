#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "common.h"
#include "exciterfixture.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace ExciterTest;
using PanelTest::Place;

class TestExciterPanels : public QObject
{
    Q_OBJECT

private slots:
    void init() { FillTree(); }
    void cleanup()
    {
        Tree::Instance()->Clear();
        CfgCenter::Instance()->SetDirectory(QString());
    }

    void aReadOnlyPanelStaysLockedAndAppliesNoRule()
    {
        const auto panels = MakeAll(true);
        for (const int mode : {4, 9, 2, 3})
        {
            SetMode(mode);
            QCOMPARE(Disabled(), QString());
        }
        PanelTest::ValueOf(ScuBlanking)->SetStoredText(QStringLiteral("true"));
        for (const Panel& panel : panels)
        {
            QCOMPARE(panel->GetTitle(), "WDE raster test");
            for (QWidget* widget : panel->findChildren<QWidget*>())
            {
                if (dynamic_cast<ValueLink*>(widget))
                    QVERIFY2(!widget->isEnabled(), qPrintable(panel->objectName() + ' ' + widget->objectName()));
            }
        }
        // The mode has enabled the value itself.
        QCOMPARE(Switch(ExciterCheck)->GetState(), stEnabled);
    }

    void channelsHaveTheirOwnValues()
    {
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

    void channelsMayBeNone()
    {
        for (const int count : {0, -1})
        {
            const Panel none = Make("WDERasterDetectorDlg", false, count);
            QVERIFY(!none->findChild<QScrollArea*>());
            QCOMPARE(PanelTest::Grid(*none).PlaceOfLine(QFrame::HLine), Place{});
        }
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

    void valuesMayGoBeforeThePanels()
    {
        auto panels = MakeAll();
        Tree::Instance()->RemoveBranch(switchPath);
        SetMode(6);
        Tree::Instance()->Clear();
        for (const Panel& panel : panels)
        {
            QCOMPARE(panel->GetExciterMode(), -1);
            panel->Update(nullptr, ccContent);
        }
    }

    void aPanelMayGoWhileItAppliesTheMode()
    {
        // What hears of the change deletes the panel, whatever it writes first.
        for (const auto key : switches)
        {
            SetMode(3);
            Panel panel = Make("ExciterGeneralDlg");
            Listener killer([&] { panel.reset(); });
            Switch(key)->Attach(&killer);
            SetMode(key == RasterDetectorCheck || key == SingleChannelDetectorCheck ? 6 : key == ExciterCheck ? 2 : 4);
            QVERIFY(!panel);
        }
        SetMode(2);
        Panel panel = Make("ExciterSMUDlg");
        Listener killer([&] { panel.reset(); });
        PanelTest::ValueOf(SmuModulation)->Attach(&killer);
        SetMode(3);
        QVERIFY(!panel);
        panel = Make("ExciterSCUDlg");
        Listener another([&] { panel.reset(); });
        PanelTest::ValueOf(ScuBlankingTime)->Attach(&another);
        PanelTest::ValueOf(ScuBlanking)->SetStoredText(QStringLiteral("true"));
        QVERIFY(!panel);
    }
};

QTEST_MAIN(TestExciterPanels)
#include "test_exciterpanels.moc"
