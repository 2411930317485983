#include "application/errorhandler.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/parameterdlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <QPointer>
#include <QTest>
#include <QTranslator>

#include <climits>

using namespace TKE;

namespace
{

const QString tdsPath = QStringLiteral("/Jobs/T/TDS_1/");
const QString setPath = tdsPath + QStringLiteral("CS_1/");
const QString taskPath = setPath + QStringLiteral("TASK/");

/// The host with what a derived class sees of it.
struct Host : IPCParam
{
    using IPCParam::AddObserver;
    using IPCParam::IPCParam;
    using IPCParam::Panel;
    using IPCParam::tabRowCount;
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
    /// Of those of the rows that have a panel by now: number and whether the tab is enabled.
    QString States(std::initializer_list<int> rows) const
    {
        QString text;
        for (const int row : rows)
        {
            if (Panel(row))
                text += QString::number(row) + (isTabEnabled(indexOf(Panel(row))) ? u'+' : u'-');
        }
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

/// Calls a function on every content change of what it is attached to.
struct Listener : IObserver
{
    explicit Listener(std::function<void()> f) : function(std::move(f)) {}
    void Update(Observable*, TChangeCode code) override
    {
        if (code == ccContent)
            function();
    }
    std::function<void()> function;
};

/// Translates every text of the host.
struct Foreign : QTranslator
{
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "TKE::IPCParam") == 0 ? QStringLiteral("~") + QLatin1StringView(text) : QString();
    }
    bool isEmpty() const override { return false; }
};

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

    void everyEntryPointHasItsTitleAndItsTabs_data();
    void everyEntryPointHasItsTitleAndItsTabs();
    void rowsHaveTheirTitles();
    void withoutJobPathTheSpectrumTakesTheTaskPath();
    void activityGenerationFollowsTheTypeText_data();
    void activityGenerationFollowsTheTypeText();
    void theFallbackTypeServesOnlyWithoutTypeNode();
    void theExciterModeDecidesOnTheTabs_data();
    void theExciterModeDecidesOnTheTabs();
    void anExciterModeThatCannotBeReadLeavesTwoTabs();
    void tabsAreSelectedFromOneAndOnlyWhenEnabled();
    void panelsGetTheReadOnlyFlagAndTheirPaths();
    void optionsOfAnEntryPointDoNotStayForTheNext();
    void tabsFollowTheAutomaticMode_data();
    void tabsFollowTheAutomaticMode();
    void theHostObservesOnlyWhatItsTabsFollow();
    void observedPathsAreMapped();
    void aTranslatedTitleMakesUpdateInert();
    void theScanTabNeedsAScanStatus();
    void anotherEntryPointDeletesTheOldPanelsAtOnce();
    void anEntryPointMayBeCalledWithinANotification();
    void anEntryPointOvertakesTheOneUnderWay();
    void hostAndTreeDieInEitherOrder();
    void onlyInJobContextTheSizeHasAMinimum();
    void aPathThatCannotBeFormedIsReported();
};

void TestHost::everyEntryPointHasItsTitleAndItsTabs_data()
{
    QTest::addColumn<OpenCall>("open");
    QTest::addColumn<QString>("job");
    QTest::addColumn<QString>("standAlone"); // null: the same
    const auto row = [](const char* title, const char* variant, OpenCall open, const char* job, const char* standAlone)
    { QTest::addRow("%s|%s", title, variant) << open << QString(job) << QString(standAlone ? standAlone : job); };

    // clang-format off
    row("Classifier DDC Configuration", "HF", [](Host& h) { h.ClassifierDDCDlg(1, false, false, 1); }, "10 12 16 18 26 27 29 41", "5 18 29");
    row("Classifier DDC Configuration", "V/UHF", [](Host& h) { h.ClassifierDDCDlg(1, true, false, 2); }, "10 12 16 18 26 28 29 41", "5 18 29");
    row("Classifier DDC Configuration", "HF reduced", [](Host& h) { h.ClassifierDDCDlg(1, false, true, 1); }, "10 12 27 29 41", "29");
    row("Classifier DDC Configuration", "V/UHF reduced", [](Host& h) { h.ClassifierDDCDlg(1, true, true, 1); }, "10 12 29 41", "29");
    row("Classifier HF Configuration", "", [](Host& h) { h.ClassifierDlg(1, 1); }, "16 19 26 27 29 41", "5 7 19 29");
    row("Classifier VUHF Configuration", "", [](Host& h) { h.ClassifierVUHFDlg(1, 1); }, "16 20 26 28 29 41", "5 7 20 29");
    row("Data Transmission DDC Configuration", "HF", [](Host& h) { h.DataTransDDCDlg(1, false, true); }, "10 12 16 18 26 27 41", "5 18 26 27 30");
    row("Data Transmission DDC Configuration", "V/UHF", [](Host& h) { h.DataTransDDCDlg(1, true, true); }, "10 12 16 18 26 28 41", "5 18 26 28 30");
    row("Data Transmission DDC Configuration", "no alarm", [](Host& h) { h.DataTransDDCDlg(1, false, false); }, "10 12 16 18 26 27 41", "5 18 26 27");
    row("Data Transmission HF Configuration", "", [](Host& h) { h.DataTransDlg(1, true); }, "16 19 26 27 41", "5 7 19 26 27 30");
    row("Data Transmission HF Configuration", "no alarm", [](Host& h) { h.DataTransDlg(1, false); }, "16 19 26 27 41", "5 7 19 26 27");
    row("Data Transmission VUHF Configuration", "", [](Host& h) { h.DataTransVUHFDlg(1, true); }, "16 20 26 28 41", "5 7 20 26 28 30");
    row("Data Transmission VUHF Configuration", "no alarm", [](Host& h) { h.DataTransVUHFDlg(1, false); }, "16 20 26 28 41", "5 7 20 26 28");
    row("Detection Conventional Configuration", "", [](Host& h) { h.DetectionConventionalDDCDlg(1, false); }, "10 12 14 38 41", "39");
    row("Detection Shorttime Configuration", "", [](Host& h) { h.DetectionShorttimeDDCDlg(1, true); }, "10 12 14 40", "40");
    row("Receiver Configuration", "V/UHF", [](Host& h) { h.WBRXDlg(true, 1); }, "25 32 41", "7 25 32");
    row("Receiver Configuration", "HF", [](Host& h) { h.WBRXDlg(false, 1); }, "25 32 41", "7 25 32");
    row("JobEdit Online", "HF", [](Host& h) { h.FullDlg(1, false); }, "5 9 16 19 26 27 29 41", "5 7 9 16 19 26 27 29");
    row("JobEdit Online", "V/UHF", [](Host& h) { h.FullDlg(1, true); }, "5 9 16 19 26 27 29 41", "5 7 9 16 19 26 27 29");
    row("Exiter General Configuration", "", [](Host& h) { h.GeneralExciterDlg(1, false); }, "6", nullptr);
    row("Surveillance Memory Scan HF Configuration", "", [](Host& h) { h.MScanDlg(1, false); }, "16 19 41", "7 19 30");
    row("Surveillance Memory Scan VUHF Configuration", "", [](Host& h) { h.MScanDlg(1, true); }, "16 20 41", "7 20 30");
    row("Memory Scan Configuration", "", [](Host& h) { h.MemoryScanNBDlg(1, false, 8); }, "33", nullptr);
    row("Rasterdetector Configuration", "", [](Host& h) { h.RasterDetectorDlg(1, false, 2); }, "34", nullptr);
    row("SingleChannelDetector Configuration", "", [](Host& h) { h.SingleChannelDetectorDlg(1, false, 4); }, "35", nullptr);
    row("Spectral Zoom Configuration", "", [](Host& h) { h.SpectralZoomDDCDlg(1, false); }, "14 41", "8 9 15");
    row("External Receiver Header Configuration", "", [](Host& h) { h.TDSHeaderAutorecordingOnlyDlg(1, true); }, "9 42", nullptr);
    row("Classifier DDC Header Configuration", "", [](Host& h) { h.TDSHeaderDDCClassDlg(1, false); }, "2 9 16 42", nullptr);
    row("Voice DDC Header Configuration", "", [](Host& h) { h.TDSHeaderDDCDlg(1, false, false); }, "1 9 16 42", nullptr);
    row("Voice DDC Header Configuration", "reduced", [](Host& h) { h.TDSHeaderDDCDlg(1, true, true); }, "1 42", nullptr);
    row("Header Configuration", "", [](Host& h) { h.TDSHeaderDlg(1, false, false); }, "9 16 42", nullptr);
    row("Header Configuration", "ignored", [](Host& h) { h.TDSHeaderDlg(1, false, true); }, "9 16 42", nullptr);
    row("Header MS Configuration", "", [](Host& h) { h.TDSHeaderMSDlg(1, false); }, "4", nullptr);
    row("Tuner Configuration", "data", [](Host& h) { h.TDSHeaderMScanDataDlg(1, false); }, "9 16", nullptr);
    row("Tuner Configuration", "tuner", [](Host& h) { h.TDSHeaderTunerDlg(1, false); }, "9 42", nullptr);
    row("Header WB Configuration", "", [](Host& h) { h.TDSHeaderWBDlg(1, true, true, true); }, "3 9 12 42", "3 9 13 42");
    row("Header WB Configuration", "no options", [](Host& h) { h.TDSHeaderWBDlg(1, false, false, false); }, "3 9 12 42", "3 9 13 42");
    row("External Tuner", "", [](Host& h) { h.TunerExtDlg(1); }, "17 41", "7 17");
    row("Tuner HF Configuration", "", [](Host& h) { h.TunerNBDlg(1); }, "19 31 41", "7 19 31");
    row("Tuner VUHF Configuration", "", [](Host& h) { h.TunerNBVUHFDlg(1); }, "20 31 41", "7 20 31");
    row("Voice DDC Configuration", "HF", [](Host& h) { h.VoiceDDCDlg(1, false); }, "10 12 16 18 41", "5 18");
    row("Voice DDC Configuration", "V/UHF", [](Host& h) { h.VoiceDDCDlg(1, true); }, "10 12 16 18 41", "5 18");
    row("Voice HF Configuration", "", [](Host& h) { h.VoiceDlg(1); }, "16 19 31 41", "7 19 31");
    row("Voice VUHF Configuration", "", [](Host& h) { h.VoiceVUHFDlg(1); }, "16 20 31 41", "7 20 31");
    row("Tuner WB Configuration", "HF", [](Host& h) { h.WBTunerDlg(1, false, false); }, "10 12 14 41", "7 11");
    row("Tuner WB Configuration", "V/UHF", [](Host& h) { h.WBTunerDlg(1, true, true); }, "10 12 14 41", "7 11");
    row("Exciter Configuration", "WDE", [](Host& h) { h.WDE_ExciterDlg(1, false, 4); }, "36", nullptr);
    row("Simulation Configuration", "", [](Host& h) { h.WDE_SimulationDlg(1, false, 3); }, "37", nullptr);
    // clang-format on
}

void TestHost::everyEntryPointHasItsTitleAndItsTabs()
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
        QStringList tabs;
        for (const int row : host->WantedRows())
        {
            if (host->Panel(row))
                tabs << QString::fromUtf8(Host::TabTitle(row));
        }
        QCOMPARE(host->Tabs(), tabs);
    }
}

void TestHost::rowsHaveTheirTitles()
{
    QStringList titles;
    for (int row = 1; row <= Host::tabRowCount; ++row)
        titles << QString::fromUtf8(Host::TabTitle(row));
    QCOMPARE(titles.join(u','),
             "General,General,WB General,General,General,General,Antenna,General,AutoRecording,WB Tuner,WB Tuner,"
             "WB FFT Data,WB FFT Data,FFT Data,FFT Data,FFT Data,Tuner,Tuner,Tuner,VUHF Tuner,SMU,SCU,WDE,ScanSettings,"
             "Receiver Tuner,Demodulator,Decoder,Correlator,Classifier,Alarm Conditions,Scan,Scan,Tuner,Rasterdetector,"
             "Singlechanneldetector,Exciter,Simulation,Detection,Detection,Detection,DFLocate,Activity Generation");
}

void TestHost::withoutJobPathTheSpectrumTakesTheTaskPath()
{
    const auto host = Make(true, QString());
    host->DetectionConventionalDDCDlg(1, false);
    QCOMPARE(host->Wanted(), "10 13 14 38 41");
}

void TestHost::activityGenerationFollowsTheTypeText_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("IPC_AGED_X") << true;
    QTest::newRow("xAGSC") << true;
    QTest::newRow("AGMC") << true;
    QTest::newRow("IPC_AG") << false;
    QTest::newRow("aged") << false;
}

void TestHost::activityGenerationFollowsTheTypeText()
{
    QFETCH(bool, isShown);
    Tree::Instance()->CreateNode(taskPath, QString::fromUtf8(QTest::currentDataTag()));
    const auto host = Make(true);
    host->TDSHeaderTunerDlg(1, false);
    QCOMPARE(host->Wanted(), isShown ? "9 42" : "9");
}

void TestHost::theFallbackTypeServesOnlyWithoutTypeNode()
{
    Tree::Instance()->CreateNode(QString(Keys::JOBMANAGEMENT_IPC_TYPE), QStringLiteral("ANY_AGSC"));
    const auto wanted = [](const QString& typePath)
    {
        Host host(taskPath, nullptr, false, false, false, typePath, QString());
        host.TDSHeaderTunerDlg(1, false);
        return host.Wanted();
    };
    QCOMPARE(wanted(QStringLiteral("/no/such/node/")), "9 42");
    QCOMPARE(wanted(setPath), "9"); // there, but without a type
}

void TestHost::theExciterModeDecidesOnTheTabs_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("rows");
    for (const int mode : {-1, 0, 1, 2, 11})
        QTest::addRow("%d", mode) << mode << "21 22";
    for (const int mode : {3, 4, 5, 6, 7})
        QTest::addRow("%d", mode) << mode << "21 22 23";
    for (const int mode : {8, 9, 10})
        QTest::addRow("%d", mode) << mode << "21 22 24";
}

void TestHost::theExciterModeDecidesOnTheTabs()
{
    QFETCH(int, mode);
    QFETCH(QString, rows);
    auto* value = Tree::Instance()->CreateValue<ValueSelection>(tdsPath + Keys::ExciterMode);
    value->SetStoredText(QStringLiteral("5"));
    const auto host = Make(true);
    host->ExciterDlg(1, false);
    QCOMPARE(host->windowTitle(), "Exciter Configuration");
    QCOMPARE(host->Wanted(), "21 22 23");
    value->SetStoredText(QString::number(mode));
    QCOMPARE(host->Wanted(), "21 22 23"); // the next call sees it
    host->ExciterDlg(1, true);
    QCOMPARE(host->Wanted(), rows);
}

void TestHost::anExciterModeThatCannotBeReadLeavesTwoTabs()
{
    const auto host = Make(false);
    host->ExciterDlg(1, false);
    QCOMPARE(host->Wanted(), "21 22"); // no such value
    Tree::Instance()->CreateValue<IntValue>(tdsPath + Keys::ExciterMode)->SetValue(3);
    host->ExciterDlg(1, false);
    QCOMPARE(host->Wanted(), "21 22"); // no selection
    for (const char* path : {"/A/", "/A/B/", "/Nowhere/A/B/C/", ""})
    {
        if (qstrlen(path) < 6 && qstrlen(path) > 0)
            Tree::Instance()->CreateNode(QString::fromUtf8(path));
        Host shallow(QString::fromUtf8(path), nullptr, false, false, false, QString(), QString());
        shallow.ExciterDlg(1, false);
        QCOMPARE(shallow.Wanted(), "21 22");
    }
}

void TestHost::tabsAreSelectedFromOneAndOnlyWhenEnabled()
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
    host->SetCurrentTab(99);
    QCOMPARE(host->CurrentTab(), 0);
}

void TestHost::panelsGetTheReadOnlyFlagAndTheirPaths()
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

    // Paths without the marks that they are cut at serve whole.
    std::vector<QString> resources;
    const QString plain = QStringLiteral("/A/cs_1/");
    Host whole(plain, plain, resources, plain, plain, QString(), plain, QString());
    whole.DetectionConventionalDDCDlg(1, false);
    QCOMPARE(whole.Panel(14)->GetBasePath(), plain);
}

void TestHost::optionsOfAnEntryPointDoNotStayForTheNext()
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

void TestHost::tabsFollowTheAutomaticMode_data()
{
    QTest::addColumn<OpenCall>("open");
    QTest::addColumn<QString>("mode"); // null: no such value
    QTest::addColumn<QString>("classification");
    QTest::addColumn<bool>("tuner");
    QTest::addColumn<bool>("demodulator");
    QTest::addColumn<bool>("classifier");

    const std::pair<const char*, OpenCall> classifiers[] = {
        {"classifier HF", [](Host& h) { h.ClassifierDlg(1, 1); }},
        {"classifier VUHF", [](Host& h) { h.ClassifierVUHFDlg(1, 1); }},
        {"classifier DDC", [](Host& h) { h.ClassifierDDCDlg(1, true, false, 1); }}};
    for (const auto& [name, open] : classifiers)
    {
        QTest::addRow("%s, no values", name) << open << QString() << QString() << true << false << true;
        QTest::addRow("%s, one value", name) << open << "true" << QString() << true << false << true;
        QTest::addRow("%s, manual", name) << open << "false"
                                          << "false" << true << true << true;
        QTest::addRow("%s, classification", name) << open << "false"
                                                  << "true" << true << false << true;
        QTest::addRow("%s, automatic", name) << open << "true"
                                             << "false" << false << false << false;
        QTest::addRow("%s, all automatic", name) << open << "true"
                                                 << "true" << false << false << false;
    }
    const std::pair<const char*, OpenCall> dataTransmissions[] = {
        {"data HF", [](Host& h) { h.DataTransDlg(1, true); }},
        {"data VUHF", [](Host& h) { h.DataTransVUHFDlg(1, true); }},
        {"data DDC", [](Host& h) { h.DataTransDDCDlg(1, false, true); }}};
    for (const auto& [name, open] : dataTransmissions)
    {
        QTest::addRow("%s, no value", name) << open << QString() << QString() << true << true << true;
        QTest::addRow("%s, manual", name) << open << "false"
                                          << "true" << true << true << true;
        QTest::addRow("%s, automatic", name) << open << "true"
                                             << "false" << false << false << true;
    }
}

void TestHost::tabsFollowTheAutomaticMode()
{
    QFETCH(OpenCall, open);
    QFETCH(QString, mode);
    QFETCH(QString, classification);
    QFETCH(bool, tuner);
    QFETCH(bool, demodulator);
    QFETCH(bool, classifier);
    BoolValue* modeValue = mode.isNull() ? nullptr : CreateBool(Keys::STATE_AUTOMATICMODE);
    BoolValue* classificationValue =
        classification.isNull() ? nullptr : CreateBool(Keys::STATE_AUTOMATICCLASSIFICATION);
    const auto write = [&](bool invert)
    {
        if (modeValue)
            modeValue->SetBool((mode == "true") != invert);
        if (classificationValue)
            classificationValue->SetBool((classification == "true") != invert);
    };
    const auto check = [&](const Host& host, bool isRuled)
    {
        for (const int row : {18, 19, 20, 26, 27, 28, 29})
        {
            const bool expected = row < 26 ? tuner : row < 29 ? demodulator : classifier;
            if (host.Panel(row))
                QCOMPARE(host.isTabEnabled(host.indexOf(host.Panel(row))), !isRuled || expected);
        }
    };

    write(false);
    const auto host = Make(true);
    open(*host);
    check(*host, true); // at once
    write(true);
    write(false);
    check(*host, true); // with each change
    open(*host);
    check(*host, true); // and on new tabs

    const auto standAlone = Make(false);
    open(*standAlone);
    write(true);
    write(false);
    check(*standAlone, false);
}

void TestHost::theHostObservesOnlyWhatItsTabsFollow()
{
    BoolValue* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
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

void TestHost::observedPathsAreMapped()
{
    KeyManager::Instance()->Register(QString(Keys::STATE_AUTOMATICMODE), QStringLiteral("State/Auto"));
    auto* mode = Tree::Instance()->CreateValue<BoolValue>(taskPath + QStringLiteral("State/Auto"));
    const auto host = Make(true);
    host->DataTransDlg(1, false);
    mode->SetBool(true);
    QCOMPARE(host->States({19}), "19-");
}

void TestHost::aTranslatedTitleMakesUpdateInert()
{
    BoolValue* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
    Foreign translator;
    QCoreApplication::installTranslator(&translator);
    const auto host = Make(true);
    host->DataTransDlg(1, false);
    QCOMPARE(host->windowTitle(), "~Data Transmission HF Configuration");
    QVERIFY(host->Tabs().contains(QStringLiteral("~Tuner")));
    mode->SetBool(true);
    QCOMPARE(host->States({19}), "19+");
    host->DataTransDlg(1, false); // the entry point itself applies the value
    QCOMPARE(host->States({19}), "19-");
    QCoreApplication::removeTranslator(&translator);
}

void TestHost::theScanTabNeedsAScanStatus()
{
    const auto host = Make(true);
    host->TunerNBDlg(1);
    if (!host->Panel(31))
        QSKIP("no scan panel yet");
    QCOMPARE(host->States({19, 31}), "19+31-");
    Tree::Instance()->CreateValue<IntValue>(taskPath + Keys::SCAN_STATUS);
    host->VoiceVUHFDlg(1);
    QCOMPARE(host->States({20, 31}), "20+31+");
}

void TestHost::anotherEntryPointDeletesTheOldPanelsAtOnce()
{
    const auto host = Make(true);
    host->TunerNBDlg(1);
    const QPointer<ParameterDlg> old = host->Panel(19);
    QVERIFY(old);
    host->TunerNBVUHFDlg(1);
    QVERIFY(!old);
    QVERIFY(!host->Panel(19));
    QVERIFY(host->Panel(20));
    QCOMPARE(host->Tabs().count(QStringLiteral("Tuner")), 0);
}

void TestHost::anEntryPointMayBeCalledWithinANotification()
{
    BoolValue* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
    auto host = Make(true);
    const auto reopen = [&] { host->DataTransVUHFDlg(1, true); };
    // Called before the host hears of the change, and after it.
    Listener before(reopen);
    Listener after(reopen);
    mode->Attach(&before);
    host->DataTransDlg(1, true);
    mode->Attach(&after);
    mode->SetBool(true);
    QCOMPARE(host->States({19, 20}), "20-");
    mode->SetBool(false);
    QCOMPARE(host->States({19, 20}), "20+");

    before.function = [&] { host.reset(); };
    after.function = [] {};
    mode->SetBool(true);
    QVERIFY(!host);
}

void TestHost::anEntryPointOvertakesTheOneUnderWay()
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

void TestHost::hostAndTreeDieInEitherOrder()
{
    CreateBool(Keys::STATE_AUTOMATICMODE);
    CreateBool(Keys::STATE_AUTOMATICCLASSIFICATION);
    Tree::Instance()->CreateValue<FrequencyValue>(taskPath + Keys::TUNER_HF_NB_FREQUENCY);
    auto host = Make(true);
    host->ClassifierDlg(1, 1);
    Tree::Instance()->Clear();
    host->ClassifierDlg(1, 1); // on a tree without values
    QCOMPARE(host->States({19}), "19+");
    init();
    auto* mode = CreateBool(Keys::STATE_AUTOMATICMODE);
    CreateBool(Keys::STATE_AUTOMATICCLASSIFICATION);
    mode->SetBool(true); // values that came later are not observed before the next call
    host->ClassifierDlg(1, 1);
    QCOMPARE(host->States({19}), "19-");
    host.reset();
    mode->SetBool(false);

    // A parent takes the host and its panels along.
    auto parent = std::make_unique<QWidget>();
    auto* child = std::make_unique<Host>(taskPath, parent.get(), false, false, false, taskPath, QString()).release();
    child->TunerNBDlg(1);
    const QPointer<ParameterDlg> panel = child->Panel(19);
    parent.reset();
    QVERIFY(!panel);
}

void TestHost::onlyInJobContextTheSizeHasAMinimum()
{
    const auto job = Make(true);
    job->TDSHeaderMSDlg(1, false);
    QCOMPARE(job->minimumSize(), QSize(775, 480));
    const auto standAlone = Make(false);
    standAlone->TDSHeaderMSDlg(1, false);
    QCOMPARE(standAlone->minimumSize(), QSize(0, 0));
}

void TestHost::aPathThatCannotBeFormedIsReported()
{
    QStringList reports;
    const auto subscription =
        ErrorHandler::Interface().Subscribe([&](const ErrorReport& report) { reports << report.text; });
    const auto host = Make(true);
    host->AddObserver(taskPath, QString());
    QCOMPARE(reports, QStringList("IPCParam::GetItemPath(): failed"));
}

QTEST_MAIN(TestHost)
#include "test_host.moc"
