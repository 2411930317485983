#include "application/arexception.h"
#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "application/translationcenter.h"
#include "common.h"
#include "exciter/exciter_settings.h"
#include "keys/keymanager.h"

#include <QTemporaryDir>
#include <QTest>

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

private:
    std::unique_ptr<QTemporaryDir> m_directory;

    static CfgCenter& Center() { return *CfgCenter::Instance(); }
    void Write(const QString& fileName, const QByteArray& content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
        WriteAll(fileName, content);
    }
    QString Get(const QString& name, TCfgView view, const QString& key)
    {
        const auto cfg = Center().CreateCfg(name, view, QString());
        return cfg ? cfg->GetString(key, QStringLiteral("default")) : QStringLiteral("no configuration");
    }

private slots:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        Center().SetDirectory(m_directory->path());
        ErrorHandler::Interface().Clear();
    }
    void cleanup()
    {
        Center().SetDirectory(QString());
        KeyManager::Instance()->Clear();
        TranslationCenter::Instance()->Install(QLocale::c());
    }

    void aConfigurationIsReadByViewAndName()
    {
        Write(m_directory->filePath("editor.ini"),
              "Dir=/user\nComma=/a,b\nQuoted=\"/a, b\"\nUmlaut=/\xc3\xbc\nEmpty=\n[Group]\nDir=/group\n");
        Write(m_directory->filePath("system/editor.ini"), "Dir=/system\n");
        QCOMPARE(Get("editor", cfgUser, "Dir"), "/user");
        QCOMPARE(Get("editor", cfgUser, "Group/Dir"), "/group");
        QCOMPARE(Get("editor", cfgUser, "Comma"), "/a,b");
        QCOMPARE(Get("editor", cfgUser, "Quoted"), "/a, b");
        QCOMPARE(Get("editor", cfgUser, "Umlaut"), QString::fromUtf8("/\xc3\xbc"));
        QCOMPARE(Get("editor", cfgUser, "Empty"), QString());
        QCOMPARE(Get("editor", cfgUser, "dir"), "default");
        QCOMPARE(Get("editor", cfgSystem, "Dir"), "/system");
        QCOMPARE(Center().CreateCfg("editor", cfgUser, "Group")->GetString("Dir", ""), "/group");
        QCoreApplication::setApplicationName("editor");
        QCOMPARE(Center().GetCfg(cfgUser)->GetString("Dir", ""), "/user");
        for (const char* name : {"", "../secret", "system/editor"}) // they leave the directory
            QVERIFY2(!Center().CreateCfg(QString::fromUtf8(name), cfgUser, QString()), name);
    }

    void aMissingFileOrDirectoryIsAnEmptyConfigurationAndCreatesNothing()
    {
        const QString missing = m_directory->filePath("not/there");
        Center().SetDirectory(missing);
        Collector collector;
        QCOMPARE(Get("JobManagement", cfgSystem, "JobModelXMLDir"), "default");
        QCOMPARE(Get("editor", cfgUser, "JobModelXMLDir"), "default");
        QVERIFY(!QFileInfo::exists(missing));
        QCOMPARE(collector.texts, QStringList());
    }

    void aConfigurationThatCannotBeHadIsNullAndReportedOnce()
    {
        const QString fileName = Center().GetFileName("editor", cfgUser);
        for (const QByteArray content : {"Dir=/user\nthis is no setting\n", "[Group\nDir=/user\n", ""})
        {
            QFile::remove(fileName);
            if (content.isEmpty())
                QVERIFY(QDir().mkpath(fileName)); // a directory stands in the file's place
            else
                Write(fileName, content);
            Center().DropCache();
            Collector collector;
            QVERIFY(!Center().CreateCfg("editor", cfgUser, QString()));
            QVERIFY(!Center().CreateCfg("editor", cfgUser, QString()));
            QCOMPARE(collector.texts.size(), 1);
            QVERIFY(collector.texts[0].contains("editor.ini"));
        }
    }

    void aFileIsReadOnceUntilTheCacheIsDropped()
    {
        const QString fileName = Center().GetFileName("editor", cfgUser);
        Write(fileName, "Dir=first\n");
        const auto before = Center().CreateCfg("editor", cfgUser, QString());

        Write(fileName, "Dir=the second\n");
        QCOMPARE(Center().CreateCfg("editor", cfgUser, QString()), before);

        Center().DropCache();
        QCOMPARE(Get("editor", cfgUser, "Dir"), "the second");
        QCOMPARE(before->GetString("Dir", ""), "first");
    }

    void reportsBeforeAnyoneListensReachTheFirstListenerOnlyAndTheLatestStay()
    {
        ErrorHandler::Interface().Report(Severity::Info, "one");
        ErrorHandler::Interface().Report(Severity::Error, "two");
        Collector first, second;
        QCOMPARE(first.texts, QStringList({"one", "two"}));
        QCOMPARE(second.texts, QStringList());

        ErrorHandler::Interface().Report(Severity::Warning, "three");
        QCOMPARE(second.texts, QStringList("three"));
        first.subscription.reset();
        second.subscription.reset();
        ErrorHandler::Interface().Report(Severity::Warning, "four"); // kept again
        QCOMPARE(Collector().texts, QStringList("four"));
        for (size_t i = 0; i < ErrorHandler::MaximumKept + 3; ++i)
            ErrorHandler::Interface().Report(Severity::Info, QString::number(i));
        const Collector latest;
        QCOMPARE(size_t(latest.texts.size()), ErrorHandler::MaximumKept);
        QCOMPARE(latest.texts.first(), "3");
    }

    void aListenerMayComeAndGoWhileAReportIsDelivered()
    {
        QStringList heard;
        ErrorHandler::Subscription second, late;
        ErrorHandler::Subscription first = ErrorHandler::Interface().Subscribe(
            [&](const ErrorReport& report)
            {
                heard << "first " + report.text;
                second.reset();
                if (!late)
                    late =
                        ErrorHandler::Interface().Subscribe([&](const ErrorReport& r) { heard << "late " + r.text; });
                first.reset();
            });
        second = ErrorHandler::Interface().Subscribe([&](const ErrorReport& r) { heard << "second " + r.text; });

        ErrorHandler::Interface().Report(Severity::Info, "a");
        ErrorHandler::Interface().Report(Severity::Info, "b");
        QCOMPARE(heard, QStringList({"first a", "late b"}));
    }

    void aListenerThatThrowsHarmsNobody()
    {
        const auto throwing = ErrorHandler::Interface().Subscribe([](const ErrorReport&) { throw 1; });
        Collector collector;
        QTest::ignoreMessage(QtWarningMsg, "A listener failed on the report \"text\"");
        ErrorHandler::Interface().Report(Severity::Error, "text");
        QCOMPARE(collector.texts, QStringList("text"));
    }

    void aListenerThatAnswersItsOwnReportsIsStopped()
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

    void anExceptionNamesItsPlace()
    {
        const ARException exception("no entry", "source/file", "Function", "Class::Function", 62);
        QCOMPARE(static_cast<const std::exception&>(exception).what(), "no entry (Function, source/file:62)");
        QCOMPARE(exception.GetText(), "no entry");
        QCOMPARE(exception.GetSignature(), "Class::Function");
    }

    void aKeyIsItsOwnNameUnlessAnotherIsRegistered()
    {
        KeyManager* const keys = KeyManager::Instance();
        QCOMPARE(keys->GetFullNameByKey("KEY"), "KEY");
        keys->Register("KEY", "Below/KEY");
        QCOMPARE(keys->GetFullNameByKey("KEY"), "Below/KEY");
        QCOMPARE(keys->GetFullNameByKey("key"), "key");
        QVERIFY_THROWS_EXCEPTION(ARException, keys->GetFullNameByKey(QString()));
    }

    void theLanguageIsReplacedNotAdded()
    {
        TranslationCenter& center = *TranslationCenter::Instance();
        const auto name = [] { return Exciter_Settings::GetExciterModeName(Exciter_Settings::emManual); };
        QCOMPARE(Exciter_Settings::GetExciterModeName(0) + Exciter_Settings::GetExciterModeName(11), QString());
        QVERIFY(center.Install(QLocale("de_CH"))); // a neighbouring country serves
        QCOMPARE(name(), "Manuell");
        const QString unknown = QString::fromUtf8("dB\xc2\xb5V :");
        QCOMPARE(center.translate("TKE::Nobody", unknown, nullptr), unknown);
        QCOMPARE(center.translate(nullptr, unknown, nullptr), unknown);
        QVERIFY(!center.Install(QLocale("en_US")));
        QCOMPARE(name(), "Manual");
    }
};

QTEST_GUILESS_MAIN(TestApplication)
#include "test_application.moc"
