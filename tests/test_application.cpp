#include "application/arexception.h"
#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "application/translationcenter.h"
#include "exciter/exciter_settings.h"
#include "keys/keymanager.h"

#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using namespace TKE;
using REPORTGENERATOR::Exciter_Settings;

namespace
{

/// Collects what is reported while it lives.
struct Collector
{
    QStringList texts;
    ErrorHandler::Subscription subscription =
        ErrorHandler::Interface().Subscribe([this](const ErrorReport& report) { texts << report.text; });
};

} // namespace

class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aConfigurationIsReadByViewAndName();
    void aMissingFileOrDirectoryIsAnEmptyConfigurationAndCreatesNothing();
    void aConfigurationThatCannotBeHadIsNullAndReportedOnce_data();
    void aConfigurationThatCannotBeHadIsNullAndReportedOnce();
    void aNameThatLeavesTheDirectoryIsRefused_data();
    void aNameThatLeavesTheDirectoryIsRefused();
    void aFileIsReadOnceUntilTheCacheIsDropped();
    void textsSurviveTheFile_data();
    void textsSurviveTheFile();

    void reportsBeforeAnyoneListensReachTheFirstListenerOnly();
    void keptReportsAreBoundedAndTheLatestStay();
    void aListenerMayComeAndGoWhileAReportIsDelivered();
    void aListenerThatThrowsHarmsNobody();
    void aListenerThatAnswersItsOwnReportsIsStopped();

    void anExceptionNamesItsPlace();
    void aKeyIsItsOwnNameUnlessAnotherIsRegistered();
    void anEmptyKeyThrows();

    void theLanguageIsReplacedNotAdded();
    void aNeighbouringCountryFindsTheLanguage();
    void anUnknownTextStaysAsItIs();
    void exciterModesKnowTheirKind_data();
    void exciterModesKnowTheirKind();

private:
    void Write(const QString& fileName, const QByteArray& content);
    QString Get(const QString& name, TCfgView view, const QString& key);

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestApplication::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    CfgCenter::Instance()->SetDirectory(m_directory->path());
    ErrorHandler::Interface().Clear();
}

void TestApplication::cleanup()
{
    CfgCenter::Instance()->SetDirectory(QString());
    KeyManager::Instance()->Clear();
    TranslationCenter::Instance()->Install(QLocale::c());
}

void TestApplication::Write(const QString& fileName, const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QString TestApplication::Get(const QString& name, TCfgView view, const QString& key)
{
    const auto cfg = CfgCenter::Instance()->CreateCfg(name, view, QString());
    return cfg ? cfg->GetString(key, QStringLiteral("default")) : QStringLiteral("no configuration");
}

void TestApplication::aConfigurationIsReadByViewAndName()
{
    Write(m_directory->filePath("editor.ini"), "Dir=/user\n[Group]\nDir=/group\n");
    Write(m_directory->filePath("system/editor.ini"), "Dir=/system\n");

    QCOMPARE(Get("editor", cfgUser, "Dir"), "/user");
    QCOMPARE(Get("editor", cfgUser, "Group/Dir"), "/group");
    QCOMPARE(Get("editor", cfgUser, "dir"), "default");
    QCOMPARE(Get("editor", cfgSystem, "Dir"), "/system");
    QCOMPARE(Get("another", cfgSystem, "Dir"), "default");
    QCOMPARE(CfgCenter::Instance()->CreateCfg("editor", cfgUser, "Group")->GetString("Dir", ""), "/group");

    QCoreApplication::setApplicationName("editor");
    QCOMPARE(CfgCenter::Instance()->GetCfg(cfgUser)->GetString("Dir", ""), "/user");
}

void TestApplication::aMissingFileOrDirectoryIsAnEmptyConfigurationAndCreatesNothing()
{
    const QString missing = m_directory->filePath("not/there");
    CfgCenter::Instance()->SetDirectory(missing);
    Collector collector;
    QCOMPARE(Get("JobManagement", cfgSystem, "JobModelXMLDir"), "default");
    QCOMPARE(Get("editor", cfgUser, "JobModelXMLDir"), "default");
    QVERIFY(!QFileInfo::exists(missing));
    QCOMPARE(collector.texts, QStringList());
}

void TestApplication::aConfigurationThatCannotBeHadIsNullAndReportedOnce_data()
{
    QTest::addColumn<QByteArray>("content"); // null: a directory stands in the file's place
    QTest::newRow("no assignment") << QByteArray("Dir=/user\nthis is no setting\n");
    QTest::newRow("open section") << QByteArray("[Group\nDir=/user\n");
    QTest::newRow("unreadable") << QByteArray();
}

void TestApplication::aConfigurationThatCannotBeHadIsNullAndReportedOnce()
{
    QFETCH(QByteArray, content);
    const QString fileName = CfgCenter::Instance()->GetFileName("editor", cfgUser);
    if (content.isNull())
        QVERIFY(QDir().mkpath(fileName));
    else
        Write(fileName, content);

    Collector collector;
    QVERIFY(!CfgCenter::Instance()->CreateCfg("editor", cfgUser, QString()));
    QVERIFY(!CfgCenter::Instance()->CreateCfg("editor", cfgUser, QString()));
    QCOMPARE(collector.texts.size(), 1);
    QVERIFY(collector.texts[0].contains("editor.ini"));
}

void TestApplication::aNameThatLeavesTheDirectoryIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("upwards") << "../secret";
    QTest::newRow("into the other view") << "system/editor";
}

void TestApplication::aNameThatLeavesTheDirectoryIsRefused()
{
    QFETCH(QString, name);
    QVERIFY(!CfgCenter::Instance()->CreateCfg(name, cfgUser, QString()));
}

void TestApplication::aFileIsReadOnceUntilTheCacheIsDropped()
{
    const QString fileName = CfgCenter::Instance()->GetFileName("editor", cfgUser);
    Write(fileName, "Dir=first\n");
    const auto before = CfgCenter::Instance()->CreateCfg("editor", cfgUser, QString());

    Write(fileName, "Dir=the second\n");
    QCOMPARE(CfgCenter::Instance()->CreateCfg("editor", cfgUser, QString()), before);

    CfgCenter::Instance()->DropCache();
    QCOMPARE(Get("editor", cfgUser, "Dir"), "the second");
    QCOMPARE(before->GetString("Dir", ""), "first");
}

void TestApplication::textsSurviveTheFile_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("comma") << QByteArray("Key=/a,b") << "/a,b";
    QTest::newRow("quoted comma and blank") << QByteArray("Key=\"/a, b\"") << "/a, b";
    QTest::newRow("umlaut") << QByteArray("Key=/\xc3\xbc") << QString::fromUtf8("/\xc3\xbc");
    QTest::newRow("empty but given") << QByteArray("Key=") << QString();
}

void TestApplication::textsSurviveTheFile()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, text);
    Write(CfgCenter::Instance()->GetFileName("editor", cfgUser), line + '\n');
    QCOMPARE(Get("editor", cfgUser, "Key"), text);
}

void TestApplication::reportsBeforeAnyoneListensReachTheFirstListenerOnly()
{
    ErrorHandler::Interface().Report(Severity::Info, "one");
    ErrorHandler::Interface().Report(Severity::Error, "two");
    Collector first;
    Collector second;
    QCOMPARE(first.texts, QStringList({"one", "two"}));
    QCOMPARE(second.texts, QStringList());

    ErrorHandler::Interface().Report(Severity::Warning, "three");
    QCOMPARE(first.texts.last(), "three");
    QCOMPARE(second.texts, QStringList("three"));

    first.subscription.reset();
    second.subscription.reset();
    ErrorHandler::Interface().Report(Severity::Warning, "four");
    Collector third;
    QCOMPARE(third.texts, QStringList("four"));
}

void TestApplication::keptReportsAreBoundedAndTheLatestStay()
{
    const int number = int(ErrorHandler::MaximumKept) + 3;
    for (int i = 0; i < number; ++i)
        ErrorHandler::Interface().Report(Severity::Info, QString::number(i));
    Collector collector;
    QCOMPARE(collector.texts.size(), qsizetype(ErrorHandler::MaximumKept));
    QCOMPARE(collector.texts.first(), "3");
    QCOMPARE(collector.texts.last(), QString::number(number - 1));
}

void TestApplication::aListenerMayComeAndGoWhileAReportIsDelivered()
{
    QStringList heard;
    ErrorHandler::Subscription second;
    ErrorHandler::Subscription late;
    ErrorHandler::Subscription first = ErrorHandler::Interface().Subscribe(
        [&](const ErrorReport& report)
        {
            heard << "first " + report.text;
            second.reset();
            if (!late)
                late = ErrorHandler::Interface().Subscribe([&](const ErrorReport& r) { heard << "late " + r.text; });
            first.reset();
        });
    second = ErrorHandler::Interface().Subscribe([&](const ErrorReport& r) { heard << "second " + r.text; });

    ErrorHandler::Interface().Report(Severity::Info, "a");
    ErrorHandler::Interface().Report(Severity::Info, "b");
    QCOMPARE(heard, QStringList({"first a", "late b"}));
}

void TestApplication::aListenerThatThrowsHarmsNobody()
{
    const auto throwing =
        ErrorHandler::Interface().Subscribe([](const ErrorReport&) { throw std::runtime_error("listener"); });
    const auto throwingAnything = ErrorHandler::Interface().Subscribe([](const ErrorReport&) { throw 1; });
    Collector collector;
    QTest::ignoreMessage(QtWarningMsg, "A listener failed on the report \"text\": listener");
    QTest::ignoreMessage(QtWarningMsg, "A listener failed on the report \"text\"");
    ErrorHandler::Interface().Report(Severity::Error, "text");
    QCOMPARE(collector.texts, QStringList("text"));
}

void TestApplication::aListenerThatAnswersItsOwnReportsIsStopped()
{
    int calls = 0;
    {
        const auto answering = ErrorHandler::Interface().Subscribe(
            [&](const ErrorReport&)
            {
                ++calls;
                ErrorHandler::Interface().Report(Severity::Error, "again");
            });
        QTest::ignoreMessage(QtWarningMsg, "Report dropped, listeners keep answering each other: again");
        ErrorHandler::Interface().Report(Severity::Error, "first");
    }
    QVERIFY(calls > 1);
    Collector collector; // the handler works again afterwards
    ErrorHandler::Interface().Report(Severity::Error, "later");
    QCOMPARE(collector.texts, QStringList("later"));
}

void TestApplication::anExceptionNamesItsPlace()
{
    try
    {
        throw ARException("no entry", "source/file", "Function", "Class::Function", 62);
    }
    catch (const std::exception& exception)
    {
        QCOMPARE(exception.what(), "no entry (Function, source/file:62)");
        const auto& failure = dynamic_cast<const ARException&>(exception);
        QCOMPARE(failure.GetText(), "no entry");
        QCOMPARE(failure.GetSignature(), "Class::Function");
        QCOMPARE(failure.GetLine(), 62);
    }
}

void TestApplication::aKeyIsItsOwnNameUnlessAnotherIsRegistered()
{
    KeyManager* const keys = KeyManager::Instance();
    QCOMPARE(keys->GetFullNameByKey("KEY"), "KEY");
    keys->Register("KEY", "Below/KEY");
    QCOMPARE(keys->GetFullNameByKey("KEY"), "Below/KEY");
    QCOMPARE(keys->GetFullNameByKey("key"), "key");
    keys->Clear();
    QCOMPARE(keys->GetFullNameByKey("KEY"), "KEY");
}

void TestApplication::anEmptyKeyThrows()
{
    QVERIFY_THROWS_EXCEPTION(ARException, KeyManager::Instance()->GetFullNameByKey(QString()));
}

void TestApplication::theLanguageIsReplacedNotAdded()
{
    const auto name = [] { return Exciter_Settings::GetExciterModeName(Exciter_Settings::emManual); };
    QCOMPARE(name(), "Manual");
    QVERIFY(TranslationCenter::Instance()->Install(QLocale("de_DE")));
    QCOMPARE(name(), "Manuell");
    QVERIFY(!TranslationCenter::Instance()->Install(QLocale("en_US")));
    QCOMPARE(name(), "Manual");
}

void TestApplication::aNeighbouringCountryFindsTheLanguage()
{
    QVERIFY(TranslationCenter::Instance()->Install(QLocale("de_CH")));
    QCOMPARE(TranslationCenter::Instance()->translate("REPORTGENERATOR::Exciter_Settings", "Manual", nullptr),
             "Manuell");
}

void TestApplication::anUnknownTextStaysAsItIs()
{
    const QString text = QString::fromUtf8("dB\xc2\xb5V :");
    QVERIFY(TranslationCenter::Instance()->Install(QLocale("de_DE")));
    QCOMPARE(TranslationCenter::Instance()->translate("TKE::Nobody", text, nullptr), text);
    QCOMPARE(TranslationCenter::Instance()->translate(nullptr, text, nullptr), text);
}

void TestApplication::exciterModesKnowTheirKind_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("named");
    QTest::addColumn<bool>("wde");
    QTest::addColumn<bool>("scan");
    QTest::newRow("none") << -1 << false << false << false;
    QTest::newRow("zero") << 0 << false << false << false;
    QTest::newRow("last before WDE") << 2 << true << false << false;
    QTest::newRow("first WDE") << 3 << true << true << false;
    QTest::newRow("last WDE") << 7 << true << true << false;
    QTest::newRow("first scan") << 8 << true << false << true;
    QTest::newRow("last scan") << 10 << true << false << true;
    QTest::newRow("beyond") << 11 << false << false << false;
}

void TestApplication::exciterModesKnowTheirKind()
{
    QFETCH(int, mode);
    QTEST(!Exciter_Settings::GetExciterModeName(mode).isEmpty(), "named");
    QTEST(Exciter_Settings::IsValidWDE(mode), "wde");
    QTEST(Exciter_Settings::IsValidScan(mode), "scan");
}

QTEST_GUILESS_MAIN(TestApplication)
#include "test_application.moc"
