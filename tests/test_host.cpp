#include "common.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/parameterdlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <QPointer>

#include <climits>
#include <map>

using namespace TKE;

namespace
{

const QString tdsPath = QStringLiteral("/Jobs/T/TDS_1/");
const QString setPath = tdsPath + QStringLiteral("CS_1/");
const QString taskPath = setPath + QStringLiteral("TASK/");

/// The host with what a derived class sees of it.
struct Host : IPCParam
{
    using IPCParam::IPCParam;
    using IPCParam::Panel;
    using IPCParam::TabTitle;
    using IPCParam::WantedRows;

    QString Wanted() const
    {
        QStringList rows;
        for (const int row : WantedRows())
            rows << QString::number(row);
        return rows.join(u' ');
    }
    QStringList Tabs() const
    {
        QStringList titles;
        for (int index = 0; index < count(); ++index)
            titles << tabText(index);
        return titles;
    }
    /// Of those of the rows that are shown: number and whether the tab is enabled.
    QString States(std::initializer_list<int> rows) const
    {
        QString text;
        for (const int row : rows)
            if (Panel(row))
                text += QString::number(row) + (isTabEnabled(indexOf(Panel(row))) ? u'+' : u'-');
        return text;
    }
};

std::unique_ptr<Host> Make(bool isJob, const QString& jobPath = setPath)
{
    std::vector<QString> resources{QStringLiteral("HF receiver 1")};
    const QString ns = QStringLiteral("TKE");
    return isJob ? std::make_unique<Host>(jobPath, taskPath, resources, taskPath, taskPath, QString(), taskPath, ns)
                 : std::make_unique<Host>(taskPath, nullptr, false, false, false, taskPath, ns);
}

BoolValue* CreateBool(QLatin1StringView key)
{
    return Tree::Instance()->CreateValue<BoolValue>(taskPath + key);
}

using OpenCall = void (*)(Host&);

} // namespace

Q_DECLARE_METATYPE(OpenCall)

class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void init() { Tree::Instance()->CreateNode(taskPath, QStringLiteral("IPC_AGED")); }
    void cleanup()
    {
        Tree::Instance()->Clear();
        KeyManager::Instance()->Clear();
    }

    void anEntryPointHasItsTitleAndItsTabs_data()
    {
        const Table<OpenCall, QString, QString> table("open", "job", "standAlone");
        const auto row =
            [&](const QString& title, const char* variant, OpenCall open, const char* job, const char* standAlone)
        { table(title + '|' + variant, open, job, standAlone ? standAlone : job); };

        // clang-format off
        row("Classifier DDC Configuration", "HF", [](Host& h) { h.ClassifierDDCDlg(1, false, false, 1); }, "10 12 16 18 26 27 29 41", "5 18 29");
        row("Classifier DDC Configuration", "V/UHF", [](Host& h) { h.ClassifierDDCDlg(1, true, false, 2); }, "10 12 16 18 26 28 29 41", "5 18 29");
        row("Classifier DDC Configuration", "HF reduced", [](Host& h) { h.ClassifierDDCDlg(1, false, true, 1); }, "10 12 27 29 41", "29");
        row("Classifier DDC Configuration", "V/UHF reduced", [](Host& h) { h.ClassifierDDCDlg(1, true, true, 1); }, "10 12 29 41", "29");
        row("Classifier HF Configuration", "", [](Host& h) { h.ClassifierDlg(1, 1); }, "16 19 26 27 29 41", "5 7 19 29");
        row("Data Transmission DDC Configuration", "HF", [](Host& h) { h.DataTransDDCDlg(1, false, true); }, "10 12 16 18 26 27 41", "5 18 26 27 30");
        row("Data Transmission DDC Configuration", "V/UHF", [](Host& h) { h.DataTransDDCDlg(1, true, true); }, "10 12 16 18 26 28 41", "5 18 26 28 30");
        row("Data Transmission DDC Configuration", "no alarm", [](Host& h) { h.DataTransDDCDlg(1, false, false); }, "10 12 16 18 26 27 41", "5 18 26 27");
        row("Data Transmission HF Configuration", "no alarm", [](Host& h) { h.DataTransDlg(1, false); }, "16 19 26 27 41", "5 7 19 26 27");
        row("Data Transmission VUHF Configuration", "", [](Host& h) { h.DataTransVUHFDlg(1, true); }, "16 20 26 28 41", "5 7 20 26 28 30");
        row("Detection Conventional Configuration", "", [](Host& h) { h.DetectionConventionalDDCDlg(1, false); }, "10 12 14 38 41", "39");
        row("Detection Shorttime Configuration", "", [](Host& h) { h.DetectionShorttimeDDCDlg(1, true); }, "10 12 14 40", "40");
        row("Exiter General Configuration", "", [](Host& h) { h.GeneralExciterDlg(1, false); }, "6", nullptr);
        row("Surveillance Memory Scan HF Configuration", "", [](Host& h) { h.MScanDlg(1, false); }, "16 19 41", "7 19 30");
        row("Surveillance Memory Scan VUHF Configuration", "", [](Host& h) { h.MScanDlg(1, true); }, "16 20 41", "7 20 30");
        row("Spectral Zoom Configuration", "", [](Host& h) { h.SpectralZoomDDCDlg(1, false); }, "14 41", "8 9 15");
        row("Voice DDC Header Configuration", "", [](Host& h) { h.TDSHeaderDDCDlg(1, false, false); }, "1 9 16 42", nullptr);
        row("Voice DDC Header Configuration", "reduced", [](Host& h) { h.TDSHeaderDDCDlg(1, true, true); }, "1 42", nullptr);
        row("Header WB Configuration", "", [](Host& h) { h.TDSHeaderWBDlg(1, true, true, true); }, "3 9 12 42", "3 9 13 42");
        row("Tuner WB Configuration", "HF", [](Host& h) { h.WBTunerDlg(1, false, false); }, "10 12 14 41", "7 11");
        // clang-format on
    }
    void anEntryPointHasItsTitleAndItsTabs()
    {
        QFETCH(OpenCall, open);
        const QString title = QString::fromUtf8(QTest::currentDataTag()).section(u'|', 0, 0);
        for (const bool isJob : {true, false})
        {
            const auto host = Make(isJob);
            // What an earlier entry point left behind must not show.
            host->ClassifierDDCDlg(1, true, true, 2);
            host->TDSHeaderDDCDlg(1, true, true);
            open(*host);

            QFETCH(QString, job);
            QFETCH(QString, standAlone);
            QCOMPARE(host->Wanted(), isJob ? job : standAlone);
            QCOMPARE(host->windowTitle(), title);
            QCOMPARE(host->minimumSize(), isJob ? QSize(775, 480) : QSize(0, 0));
            QStringList tabs;
            for (const int row : host->WantedRows())
                if (host->Panel(row))
                    tabs << QString::fromUtf8(Host::TabTitle(row));
            QCOMPARE(host->Tabs(), tabs);
        }
    }

    void activityGenerationFollowsTheTypeText()
    {
        const auto wanted = [](const QString& typePath)
        {
            Host host(taskPath, nullptr, false, false, false, typePath, QString());
            host.TDSHeaderTunerDlg(1, false);
            return host.Wanted();
        };
        for (const auto& [type, rows] :
             {std::pair{"IPC_AGED_X", "9 42"}, {"xAGSC", "9 42"}, {"AGMC", "9 42"}, {"aged IPC_AG", "9"}})
        {
            Tree::Instance()->CreateNode(taskPath, QString::fromUtf8(type));
            QCOMPARE(wanted(taskPath), rows);
        }
        // Another type serves only where there is no node, not where the node has no type.
        Tree::Instance()->CreateNode(QString(Keys::JOBMANAGEMENT_IPC_TYPE), QStringLiteral("ANY_AGSC"));
        QCOMPARE(wanted(QStringLiteral("/no/such/node/")), "9 42");
        QCOMPARE(wanted(setPath), "9");
    }

    void theExciterModeDecidesOnTheTabs()
    {
        const auto host = Make(true);
        host->ExciterDlg(1, false);
        QCOMPARE(host->Wanted(), "21 22"); // no such value
        auto* value = Tree::Instance()->CreateValue<ValueSelection>(tdsPath + Keys::ExciterMode);
        const std::map<int, QString> kinds{{-1, ""},   {2, ""},     {3, " 23"}, {7, " 23"},
                                           {8, " 24"}, {10, " 24"}, {11, ""}};
        for (const auto& [mode, row] : kinds)
        {
            value->SetStoredText(QString::number(mode));
            host->ExciterDlg(1, true);
            QCOMPARE(host->Wanted(), "21 22" + row);
        }
        // One that cannot be read leaves two tabs.
        Tree::Instance()->Clear();
        Tree::Instance()->CreateNode(QStringLiteral("/A/"));
        Tree::Instance()->CreateValue<IntValue>(tdsPath + Keys::ExciterMode)->SetValue(3); // no selection
        for (const QString& path : {taskPath, QStringLiteral("/A/"), QStringLiteral("/Nowhere/A/B/"), QString()})
        {
            Host unread(path, nullptr, false, false, false, QString(), QString());
            unread.ExciterDlg(1, false);
            QCOMPARE(unread.Wanted(), "21 22");
        }
    }

    void tabsAreSelectedFromOneAndOnlyWhenEnabled()
    {
        const auto host = Make(true);
        // Pages of others come before the host's own and are left alone.
        host->addTab(std::make_unique<QWidget>().release(), QStringLiteral("first"));
        host->addTab(std::make_unique<QWidget>().release(), QStringLiteral("second"));
        host->setTabEnabled(0, false);
        host->VoiceDlg(3);
        QCOMPARE(host->CurrentTab(), 2);
        QCOMPARE(host->currentWidget(), host->Panel(16) ? host->Panel(16) : host->Panel(19));
        for (const int nothing : {0, 1, -1, INT_MIN, INT_MAX, 99})
        {
            host->SetCurrentTab(1);
            host->VoiceDlg(nothing);
            QCOMPARE(host->CurrentTab(), 1);
        }
        host->SetCurrentTab(0); // disabled, but asked for by index
        QCOMPARE(host->CurrentTab(), 0);
    }

    void panelsGetTheReadOnlyFlagAndTheirPaths()
    {
        Host readOnly(taskPath, nullptr, true, false, false, taskPath, QString());
        readOnly.TunerNBDlg(1);
        QVERIFY(readOnly.Panel(19)->IsReadOnly());
        QCOMPARE(readOnly.Panel(19)->GetBasePath(), taskPath);
        const auto host = Make(true);
        host->TunerNBDlg(1);
        QVERIFY(!host->Panel(19)->IsReadOnly());

        host->DetectionConventionalDDCDlg(1, false);
        QCOMPARE(host->Panel(12)->GetBasePath(), tdsPath);
        QCOMPARE(host->Panel(14)->GetBasePath(), tdsPath);
        readOnly.SpectralZoomDDCDlg(1, false);
        QCOMPARE(readOnly.Panel(8)->GetBasePath(), "/Jobs/T/TDSSpectralZoom/");
        QCOMPARE(readOnly.Panel(15)->GetBasePath(), "");

        // A path without the mark that it is cut at serves whole.
        const auto whole = Make(true, QStringLiteral("/A/cs_1/"));
        whole->DetectionConventionalDDCDlg(1, false);
        QCOMPARE(whole->Panel(14)->GetBasePath(), "/A/cs_1/");
        // Without a job path, the spectrum takes the task's.
        const auto pathless = Make(true, QString());
        pathless->DetectionConventionalDDCDlg(1, false);
        QCOMPARE(pathless->Wanted(), "10 13 14 38 41");
    }

    void optionsOfAnEntryPointDoNotStayForTheNext()
    {
        const auto fields = [](const Host& host, int row) { return host.Panel(row)->findChildren<QWidget*>().size(); };
        const auto host = Make(false);
        host->TDSHeaderTunerDlg(1, false);
        const qsizetype full = fields(*host, 9);
        host->TDSHeaderAutorecordingOnlyDlg(1, true);
        QVERIFY(fields(*host, 9) < full);
        host->TDSHeaderTunerDlg(1, false);
        QCOMPARE(fields(*host, 9), full);

        host->GeneralExciterDlg(1, false); // sets the option of the general panel, which this task does not show
        host->VoiceDDCDlg(1, false);
        QVERIFY(host->Panel(5)->findChild<QWidget*>(Keys::CS_HEADER_DDC_ + Keys::General::LOCKCRITERION));
    }

    void tabsFollowTheAutomaticMode_data()
    {
        // values: of the mode and the classification, true, false or missing; states: of the tuner, the demodulator
        // with its like and the classifier
        const Table<OpenCall, QString, QString> table("open", "values", "states");
        const auto rows = [&](const QStringList& cases, const QString& name, OpenCall open)
        {
            for (const QString& one : cases)
                table(name + ' ' + one, open, one.left(2), one.mid(3));
        };
        const QStringList classifier{"-- +-+", "t- +-+", "ff +++", "ft +-+", "tf ---", "tt ---"};
        const QStringList dataTransmission{"-- +++", "ft +++", "tf --+"};
        rows(classifier, "classifier HF", [](Host& h) { h.ClassifierDlg(1, 1); });
        rows(classifier, "classifier VUHF", [](Host& h) { h.ClassifierVUHFDlg(1, 1); });
        rows(classifier, "classifier DDC", [](Host& h) { h.ClassifierDDCDlg(1, true, false, 1); });
        rows(dataTransmission, "data HF", [](Host& h) { h.DataTransDlg(1, true); });
        rows(dataTransmission, "data VUHF", [](Host& h) { h.DataTransVUHFDlg(1, true); });
        rows(dataTransmission, "data DDC", [](Host& h) { h.DataTransDDCDlg(1, false, true); });
    }
    void tabsFollowTheAutomaticMode()
    {
        QFETCH(OpenCall, open);
        QFETCH(QString, values);
        QFETCH(QString, states);
        BoolValue* mode = values[0] == u'-' ? nullptr : CreateBool(Keys::STATE_AUTOMATICMODE);
        BoolValue* classification = values[1] == u'-' ? nullptr : CreateBool(Keys::STATE_AUTOMATICCLASSIFICATION);
        const auto write = [&](bool invert)
        {
            if (mode)
                mode->SetBool((values[0] == u't') != invert);
            if (classification)
                classification->SetBool((values[1] == u't') != invert);
        };
        const auto check = [](const Host& host, const QString& expected)
        {
            for (const int row : {18, 19, 20, 26, 27, 28, 29})
                if (host.Panel(row))
                    QCOMPARE(host.States({row}), QString::number(row) + expected[row < 26 ? 0 : row < 29 ? 1 : 2]);
        };

        write(false);
        const auto host = Make(true);
        open(*host);
        check(*host, states); // at once
        write(true);
        write(false);
        check(*host, states); // with each change
        open(*host);
        check(*host, states); // and on new tabs

        const auto standAlone = Make(false);
        open(*standAlone);
        write(true);
        write(false);
        check(*standAlone, QStringLiteral("+++"));
    }

    void theHostObservesOnlyWhatItsTabsFollow()
    {
        KeyManager::Instance()->Register(QString(Keys::STATE_AUTOMATICMODE), QStringLiteral("State/Auto"));
        BoolValue* mode = CreateBool(QLatin1StringView("State/Auto"));
        BoolValue* classification = CreateBool(Keys::STATE_AUTOMATICCLASSIFICATION);
        const auto observed = [&] { return std::pair(mode->IsObserved(), classification->IsObserved()); };

        auto host = Make(true);
        host->ClassifierDlg(1, 1);
        QCOMPARE(observed(), std::pair(true, true));
        host->DataTransDlg(1, false);
        QCOMPARE(observed(), std::pair(true, false));
        host->VoiceDlg(1);
        QCOMPARE(observed(), std::pair(false, false));
        host->ClassifierDlg(1, 1);
        host.reset();
        QCOMPARE(observed(), std::pair(false, false));
        host = Make(false);
        host->ClassifierDlg(1, 1);
        QCOMPARE(observed(), std::pair(false, false));
    }

    void theScanTabNeedsAScanStatus()
    {
        const auto host = Make(true);
        host->TunerNBDlg(1);
        QCOMPARE(host->States({19, 31}), "19+31-");
        Tree::Instance()->CreateValue<IntValue>(taskPath + Keys::SCAN_STATUS);
        host->VoiceVUHFDlg(1);
        QCOMPARE(host->States({20, 31}), "20+31+");
    }

    void aTranslatedTitleMakesUpdateInert()
    {
        BoolValue* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
        const ContextTranslator translator;
        const auto host = Make(true);
        host->DataTransDlg(1, false);
        QCOMPARE(host->windowTitle(), "TKE::IPCParam|Data Transmission HF Configuration");
        QVERIFY(host->Tabs().contains(QStringLiteral("TKE::IPCParam|Tuner")));
        mode->SetBool(true);
        QCOMPARE(host->States({19}), "19+");
        host->DataTransDlg(1, false); // the entry point itself applies the value
        QCOMPARE(host->States({19}), "19-");
    }

    void anEntryPointMayBeCalledWithinANotification()
    {
        BoolValue* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
        auto host = Make(true);
        const auto reopen = [&] { host->DataTransVUHFDlg(1, true); };
        // Called before the host hears of the change, and after it.
        Hearer before(reopen);
        Hearer after(reopen);
        mode->Attach(&before);
        host->DataTransDlg(1, true);
        mode->Attach(&after);
        const QPointer<ParameterDlg> old = host->Panel(19);
        mode->SetBool(true);
        QVERIFY(!old); // not later
        QCOMPARE(host->States({19, 20}), "20-");
        mode->SetBool(false);
        QCOMPARE(host->States({19, 20}), "20+");

        before.act = [&] { host.reset(); };
        after.act = {};
        mode->SetBool(true);
        QVERIFY(!host);
    }

    void anEntryPointOvertakesTheOneUnderWay()
    {
        CreateBool(Keys::STATE_AUTOMATICMODE)->SetBool(true);
        const auto host = Make(true);
        host->show();
        bool isFirst = true;
        connect(host.get(), &QTabWidget::currentChanged, this,
                [&]
                {
                    if (std::exchange(isFirst, false))
                        host->TunerNBVUHFDlg(1);
                });
        host->DataTransDlg(1, true);
        QVERIFY(!isFirst);
        QCOMPARE(host->windowTitle(), "Tuner VUHF Configuration");
        QCOMPARE(host->Wanted(), "20 31 41");
        QCOMPARE(host->States({19, 20}), "20+"); // and not disabled by the rule of the first one
    }
};

QTEST_MAIN(TestHost)
#include "test_host.moc"
