#include "common.h"
#include "jobedit/chains.h"
#include "jobedit/commands/command.h"
#include "jobedit/jobdocument.h"
#include "jobedit/largejob.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QProcess>
#include <QTest>
#include <QtWidgets>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

struct Outcome
{
    int status;
    QString out;
    QString errors;
};

Outcome RunProgram(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    environment.insert("LC_ALL", "C.UTF-8");
    static const QTemporaryDir runtime;
    environment.insert("XDG_RUNTIME_DIR", runtime.path());
    program.setProcessEnvironment(environment);
    program.start(JOBEDIT_PROGRAM, arguments);
    if (!program.waitForFinished(120000) || program.exitStatus() != QProcess::NormalExit)
        return {-1, {}, program.errorString()};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

} // namespace

class TestJobEditCommands : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;

    QString File(const QString& name) const { return m_directory->filePath(name); }

    void WriteSample(const QString& name)
    {
        JobDocument document(JobModel::Load());
        FileError error;
        QVERIFY2(document.NewFromSample(error) && document.SaveAs(File(name), error), qPrintable(error.reason));
    }

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void cleanup() { Tree::Instance()->Clear(); }

    void theCommandLineTellsByItsExitStatus_data()
    {
        const Table<QStringList, int, QString> row("arguments", "status", "says");
        row("help", {"--help"}, 0, "render");
        row("version", {"--version"}, 0, "jobedit ");
        row("a good file", {"check", "good.job.xml"}, 0, "");
        row("one bad file of two", {"check", "good.job.xml", "bad.job.xml"}, 1, "bad.job.xml:3:");
        row("a value at fault", {"check", "values.job.xml"}, 1,
            "values.job.xml: /T/SCAN_START_FREQUENCY: Start frequency: ");
        row("a missing file", {"check", "nowhere.xml"}, 1, "nowhere.xml");
        row("nothing to check", {"check"}, 2, "--help");
        row("unknown option", {"--sing"}, 2, "sing");
        row("render without a directory", {"render"}, 2, "--out");
        row("unknown entry", {"render", "--out", "d", "--entry", "X"}, 2, "VoiceDDCDlg");
        row("unknown form", {"render", "--out", "d", "--form", "round"}, 2, "standalone");
        row("pictures of the guide, of a file", {"render", "--guide", "--out", "d", "good.job.xml"}, 2, "--guide");
        row("unknown language", {"--language", "12"}, 2, "12");
        row("option of another command", {"check", "x", "--out", "d"}, 2, "render");
        row("two jobs at once", {"a", "b"}, 2, "2");
        row("render a bad file", {"render", "bad.job.xml", "--out", "d"}, 1, "bad.job.xml:3:");
        row("help of a command", {"set", "--help"}, 0, "--dry-run");
        row("help names the arguments", {"get", "--help"}, 0, "get FILE PATH...");
        row("unknown command", {"frobnicate", "good.job.xml"}, 2, "frobnicate");
        row("too few arguments", {"get", "good.job.xml"}, 2, "FILE PATH...");
        row("too many arguments", {"diff", "a", "b", "c"}, 2, "FILE1 FILE2");
        row("no JSON of this", {"new", "--json", "a"}, 2, "--json");
        row("no assignment", {"set", "good.job.xml", "TDS_HF1"}, 2, "PATH=VALUE");
        row("no number of chains", {"new", "a.xml", "--chains", "many"}, 2, "--chains");
        row("half an option", {"diff", "a", "b", "--with", "c"}, 2, "--node");
        row("get of a bad file", {"get", "bad.job.xml", "x"}, 1, "bad.job.xml:3:");
        row("set in a bad file", {"set", "bad.job.xml", "x=1"}, 1, "bad.job.xml:3:");
        row("list of a bad file", {"list", "bad.job.xml"}, 1, "bad.job.xml:3:");
        row("diff with a bad file", {"diff", "good.job.xml", "bad.job.xml"}, 1, "bad.job.xml:3:");
        row("new from a bad file", {"new", "new.job.xml", "--from", "bad.job.xml"}, 1, "bad.job.xml:3:");
        row("get of no value", {"get", "good.job.xml", "TDS_HF1/X"}, 1, "TDS_HF1/X");
        row("list of nothing", {"list", "good.job.xml", "*nowhere*"}, 1, "*nowhere*");
        row("diff of no node", {"diff", "good.job.xml", "good.job.xml", "--node", "N"}, 1, "N");
        row("new over a file", {"new", "good.job.xml"}, 1, "--force");
        row("new where nothing can be", {"new", "no/such/directory.xml"}, 1, "directory.xml");
        row("too few chains", {"new", "few.xml", "--chains", "1"}, 1, "chains");
        row("diff of equals", {"diff", "good.job.xml", "good.job.xml"}, 0, "");
        row("a window without a display", {"good.job.xml"}, 1, "display");
    }
    void theCommandLineTellsByItsExitStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, says);
        WriteSample("good.job.xml");
        WriteAll(File("bad.job.xml"), "<Job version=\"1\">\n  <Node name=\"A\" type=\"JOB\">\n</Job>\n");
        WriteAll(File("values.job.xml"), "<Job version=\"1\"><Node name=\"/T\" type=\"X\" groups=\"G_SCAN_HF\">"
                                         "<Value name=\"SCAN_START_FREQUENCY\">9000000</Value></Node></Job>\n");
        for (QString& argument : arguments)
            if (argument.endsWith(".xml") || argument == "d")
                argument = File(argument);
        const Outcome outcome = RunProgram(arguments);
        QVERIFY2(outcome.status == status, qPrintable(outcome.out + outcome.errors));
        QVERIFY2((status == 0 ? outcome.out : outcome.errors).contains(says), qPrintable(outcome.out + outcome.errors));
        QVERIFY(status == 0 || outcome.out.isEmpty());
        QVERIFY(!QFile::exists(File("new.job.xml")));
    }

    void theManPageNamesEveryCommandAndOption()
    {
        const QString text = ReadAll(SOURCE_DIRECTORY "/docs/jobedit.1");
        for (const Command& command : MakeCommands())
        {
            QVERIFY2(text.contains(".It Cm " + command.name + '\n'), qPrintable(command.name));
            for (const QCommandLineOption& option : command.options)
                QVERIFY2(text.contains(QRegularExpression("\n\\.It .*Fl \\\\-" + option.names().first() + "\\b")),
                         qPrintable(option.names().first()));
        }
    }

    void renderWritesAPicturePerTab_data() { EachText("form", {"job", "standalone"}); }
    void renderWritesAPicturePerTab()
    {
        QFETCH(QString, form);
        const Outcome outcome = RunProgram({"render", "--out", File("d"), "--form", form});
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        QCOMPARE(outcome.errors, QString());

        JobDocument document(JobModel::Load());
        FileError error;
        QVERIFY2(document.NewFromSample(error), qPrintable(error.reason));
        int tabs = 0;
        for (const JobNode& node : document.GetNodes())
            if (FindChain(node))
                tabs += MakeDialog(node, form == "job" ? Form::Job : Form::StandAlone, nullptr)->count();
        QVERIFY(tabs > 0);
        QCOMPARE(QDir(File("d")).entryList({"*_" + form + "_*.png"}, QDir::Files | QDir::CaseSensitive).size(),
                 qsizetype(tabs));
        QCOMPARE(outcome.out.count(".png\n"), QDir(File("d")).entryList(QDir::Files).size());
    }

    void renderShowsOneEntryOfAFile()
    {
        WriteSample("a.job.xml");
        const Outcome outcome =
            RunProgram({"render", File("a.job.xml"), "--out", File("d"), "--entry", "TDSHeaderDDCDlg"});
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        const QStringList names = QDir(File("d")).entryList(QDir::Files);
        QVERIFY(!names.filter(QRegularExpression("^TDSHeaderDDCDlg_IPC_HEADER_VOICE_AGMC_job_1_[A-Za-z]+\\.png$"))
                     .isEmpty());
        QVERIFY(!names.filter("Jobs_Demo_TDS_VUHFWB_HEADER_VOICE").isEmpty());
        for (const QString& name : names)
        {
            QVERIFY2(name.startsWith("TDSHeaderDDCDlg_"), qPrintable(name));
            const QImage picture(File("d/") + name);
            QVERIFY(picture.width() >= 775 && picture.height() >= 480);
        }
    }

    void getPrintsWhatSetWrote_data()
    {
        const Table<QString, QString, QString, QString> row("path", "typed", "text", "stored");
        const QString tuner = "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_";
        row("frequency with a unit", tuner + "FREQUENCY", "7.1 MHz", "7100000", "7100000");
        row("decimal comma", tuner + "FREQUENCY", "7040,5 k", "7040500", "7040500");
        row("whole path", "/Jobs/Demo/" + tuner + "FREQUENCY", "5e6", "5000000", "5000000");
        row("item by name", tuner + "SQUELCHMODE", "Level and syllabic", "Level and syllabic", "3");
        row("item in small letters", tuner + "SQUELCHMODE", "syllabic", "Syllabic", "2");
        row("item by key", tuner + "SQUELCHMODE", "1", "Level", "1");
        row("number with its unit", tuner + "MGCVALUE", "33 dB", "33", "33");
        row("switch", tuner + "NF1_STATUS", "on", "true", "true");
        row("text with an umlaut and =", "Resources/HF1/RESOURCE_NAME", "Gerät=1 <ä>", "Gerät=1 <ä>", "Gerät=1 <ä>");
    }
    void getPrintsWhatSetWrote()
    {
        QFETCH(QString, path);
        QFETCH(QString, typed);
        const QString file = File("Müller's job 1.xml");
        WriteSample("Müller's job 1.xml");
        const Outcome set = RunProgram({"set", file, path + '=' + typed});
        QVERIFY2(set.status == 0, qPrintable(set.errors));
        QCOMPARE(set.out.count('\n'), qsizetype(1));
        QVERIFY(QFile::exists(file + '~'));
        QTEST(RunProgram({"get", file, path}).out.chopped(1), "text");
        QTEST(RunProgram({"get", "--stored", "--", file, path}).out.chopped(1), "stored");
    }

    void setWritesAllOrNothing_data()
    {
        EachText("refused", {"NOWHERE=1", "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_MGCVALUE=loud",
                             "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_MGCVALUE=100000",
                             "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_SQUELCHMODE=Silence",
                             "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_NF1_STATUS=2"});
    }
    void setWritesAllOrNothing()
    {
        QFETCH(QString, refused);
        WriteSample("a.xml");
        const QByteArray before = ReadAll(File("a.xml"));
        const Outcome outcome = RunProgram(
            {"set", File("a.xml"), "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY=7M", refused, "ALSO/NOWHERE=2"});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QString());
        // Each refusal is told, and no more.
        QVERIFY2(outcome.errors.contains(refused.section('=', 0, 0) + ": "), qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("ALSO/NOWHERE: ") && !outcome.errors.contains("FREQUENCY"));
        QCOMPARE(ReadAll(File("a.xml")), before);
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList{"a.xml"});
    }

    void setLeavesAFileAloneWhenTold()
    {
        WriteSample("a.xml");
        const QByteArray before = ReadAll(File("a.xml"));
        const QString assignment = "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY=7M";
        const Outcome dry = RunProgram({"set", File("a.xml"), assignment, "--dry-run"});
        QCOMPARE(dry.out, QString("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY\t10000000\t7000000\n"));
        QCOMPARE(RunProgram({"set", File("a.xml"), assignment, "--out", File("b.xml")}).status, 0);
        QCOMPARE(ReadAll(File("a.xml")), before);
        const Outcome difference = RunProgram({"diff", File("a.xml"), File("b.xml")});
        QCOMPARE(difference.status, 1);
        QCOMPARE(difference.out, dry.out);
        QCOMPARE(difference.errors, QString());
    }

    void anotherEditorsFileIsNotWritten()
    {
        WriteSample("a.xml");
        const QByteArray before = ReadAll(File("a.xml"));
        QLockFile lock(File("a.xml") + ".lock");
        QVERIFY(lock.tryLock(0));
        const QStringList arguments{"set", File("a.xml"), "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY=7M"};
        const Outcome refused = RunProgram(arguments);
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.errors.contains(QString::number(QCoreApplication::applicationPid())),
                 qPrintable(refused.errors));
        QCOMPARE(RunProgram({"new", File("a.xml"), "--force"}).status, 0); // told to
        QCOMPARE(ReadAll(File("a.xml")), before);
        QCOMPARE(RunProgram(arguments + QStringList{"--force"}).status, 0);
        QVERIFY(ReadAll(File("a.xml")) != before);
        QVERIFY(QFile::exists(File("a.xml.lock"))); // still the other's
    }

    void whatCannotBeWrittenIsSaid()
    {
        WriteSample("a.xml");
        const QStringList assignment{"TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY=7M"};
        const Outcome outcome = RunProgram(QStringList{"set", File("a.xml"), "--out", "/proc/a.xml"} + assignment);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.startsWith("/proc/a.xml: "), qPrintable(outcome.errors));
        QCOMPARE(outcome.out, QString());
    }

    void resultsAreOneJsonDocument_data()
    {
        const Table<QStringList, int, QString, int, QStringList> row("arguments", "status", "list", "count", "keys");
        const QStringList value{"changed", "default", "enabled", "kind", "label", "maximum",
                                "minimum", "path",    "stored",  "unit", "value"};
        const QString frequency = "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY";
        row("get", {"get", "a.xml", frequency}, 0, "values", 1, value);
        row("get nothing", {"get", "a.xml", "X"}, 1, "values", 0, {});
        row("list", {"list", "a.xml", "*HF1/CS_TUNER/*/TUNER_HF_NB_FREQUENC?"}, 0, "values", 1, value);
        row("list nodes", {"list", "a.xml", "--nodes", "TDS_HF1/CS_TUNER"}, 0, "nodes", 2,
            {"band", "count", "groups", "path", "type"});
        row("diff", {"diff", "a.xml", "b.xml"}, 1, "differences", 1, {"left", "path", "right", "what"});
        row("check", {"check", "bad.xml"}, 1, "findings", 2, {"column", "file", "line", "path", "reason", "severity"});
    }
    void resultsAreOneJsonDocument()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, list);
        WriteSample("a.xml");
        WriteAll(File("bad.xml"), "<Job version=\"1\">\n  <Node name=\"A\">\n</Job>\n");
        QCOMPARE(RunProgram(
                     {"set", File("a.xml"), "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY=7M", "--out", File("b.xml")})
                     .status,
                 0);
        for (QString& argument : arguments)
            if (argument.endsWith(".xml"))
                argument = File(argument);
        const Outcome outcome = RunProgram(arguments + QStringList{"--json"});
        QTEST(outcome.status, "status");
        QJsonParseError fault;
        const QJsonArray items = QJsonDocument::fromJson(outcome.out.toUtf8(), &fault).object()[list].toArray();
        QVERIFY2(fault.error == QJsonParseError::NoError, qPrintable(outcome.out));
        QTEST(int(items.size()), "count");
        if (!items.isEmpty())
            QTEST(items.first().toObject().keys(), "keys");
    }

    void diffComparesTwoNodes()
    {
        WriteSample("a.xml");
        QCOMPARE(RunProgram({"new", File("b.xml"), "--from", File("a.xml"), "--chains", "60"}).status, 0);
        const Outcome whole = RunProgram({"diff", File("a.xml"), File("b.xml")});
        QVERIFY2(whole.out.contains("/Jobs/Demo/TDS_HF1_2\t(no node)\t(node)\n"), qPrintable(whole.out));
        const QStringList nodes{"diff", File("a.xml"), File("b.xml"), "--node", "TDS_HF1", "--with"};
        QCOMPARE(RunProgram(nodes + QStringList{"TDS_HF1_2"}).status, 0);
        QCOMPARE(RunProgram(nodes + QStringList{"TDS_HFWB"}).status, 1);
        // What a node is of counts, too.
        WriteAll(File("c.xml"), ReadAll(File("a.xml")).replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\""));
        const Outcome types = RunProgram({"diff", File("a.xml"), File("c.xml")});
        QCOMPARE(types.status, 1);
        QCOMPARE(types.out, QString("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER\tIPC_TUNER_HF\tIPC_OTHER\n"));
    }

    void aLargeJobHasWhatWasPlanned()
    {
        const auto grow = [](quint32 seed)
        {
            Tree tree;
            JobFile job(tree);
            QString reason;
            LargeJobPlan plan;
            plan.chains = 77;
            plan.channels = 20;
            plan.seed = seed;
            plan.allValues = true;
            LargeJob large(job, tree);
            const bool grown = job.LoadSample() && large.Grow(plan, reason) && large.CountChains() == 77;
            return grown ? job.ToUtf8() : QByteArray();
        };
        const QByteArray first = grow(1);
        QVERIFY(!first.isEmpty());
        QVERIFY(first == grow(1));
        QVERIFY(first != grow(2));
        WriteAll(File("large.xml"), first);
        const Outcome check = RunProgram({"check", File("large.xml")});
        QVERIFY2(check.status == 0 && check.errors.isEmpty(), qPrintable(check.errors));
        Tree tree;
        JobFile job(tree);
        QVERIFY(job.Load(File("large.xml")));
        QCOMPARE(qsizetype(tree.ValueCount()), first.count("<Value "));
    }
};

QTEST_MAIN(TestJobEditCommands)
#include "test_jobeditcommands.moc"
