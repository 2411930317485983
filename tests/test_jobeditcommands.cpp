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

const QString frequency = QStringLiteral("TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY");

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

    QString WriteSample(const QString& name = "a.xml")
    {
        JobDocument document(JobModel::Load());
        FileError error;
        const bool good = document.NewFromSample(error) && document.SaveAs(File(name), error);
        return good ? File(name) : error.reason;
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
            "values.job.xml:2:2: /T/SCAN_START_FREQUENCY: Start frequency: ");
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
        row("unknown command", {"frobnicate", "good.job.xml"}, 2, "frobnicate");
        row("too few arguments", {"get", "good.job.xml"}, 2, "FILE PATH...");
        row("too many arguments", {"diff", "a", "b", "c"}, 2, "FILE1 FILE2");
        row("no JSON of this", {"new", "--json", "a"}, 2, "--json");
        row("no assignment", {"set", "good.job.xml", "TDS_HF1"}, 2, "PATH=VALUE");
        row("no number of chains", {"new", "a.xml", "--chains", "many"}, 2, "--chains");
        row("half an option", {"diff", "a", "b", "--with", "c"}, 2, "--node");
        row("get of a bad file", {"get", "bad.job.xml", "x"}, 1, "bad.job.xml:3:");
        row("set in a bad file", {"set", "bad.job.xml", "x=1"}, 1, "bad.job.xml:3:");
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
        WriteAll(File("values.job.xml"), "<Job version=\"1\"><Node name=\"/T\" type=\"X\" groups=\"G_SCAN_HF\">\n"
                                         " <Value name=\"SCAN_START_FREQUENCY\">9000000</Value></Node></Job>\n");
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
        const Outcome outcome = RunProgram({"render", WriteSample(), "--out", File("d"), "--entry", "TDSHeaderDDCDlg"});
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        const QStringList names = QDir(File("d")).entryList(QDir::Files);
        QCOMPARE(names.filter(QRegularExpression("^TDSHeaderDDCDlg_.*_job_\\d+_.*\\.png$")), names);
        QVERIFY(!names.filter("Jobs_Demo_TDS_VUHFWB_HEADER_VOICE").isEmpty());
        for (const QString& name : names)
        {
            const QSize size = QImage(File("d/") + name).size();
            QCOMPARE(size.expandedTo({775, 480}), size);
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
                             "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_NF1_STATUS=2",
                             "TDS_HF1/CS_CLASS/CLASSIFIER/DEMODULATOR_HF_DDC_FSK_SEQ_TONESPACING=100;;90"});
    }
    void setWritesAllOrNothing()
    {
        QFETCH(QString, refused);
        const QString file = WriteSample();
        const QByteArray before = ReadAll(file);
        const Outcome outcome = RunProgram({"set", file, frequency + "=7M", refused, "ALSO/NOWHERE=2"});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QString());
        // Each refusal is told, and no more.
        QVERIFY2(outcome.errors.contains(refused.section('=', 0, 0) + ": "), qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("ALSO/NOWHERE: ") && !outcome.errors.contains("FREQUENCY"));
        QCOMPARE(ReadAll(file), before);
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList{"a.xml"});
    }

    void setLeavesAFileAloneWhenTold()
    {
        const QString file = WriteSample();
        const QByteArray before = ReadAll(file);
        const QStringList arguments{"set", file, frequency + "=7M"};
        const Outcome dry = RunProgram(arguments + QStringList{"--dry-run"});
        QCOMPARE(dry.out, "/Jobs/Demo/" + frequency + "\t10000000\t7000000\n");
        QCOMPARE(RunProgram(arguments + QStringList{"--out", File("b.xml")}).status, 0);
        QCOMPARE(ReadAll(file), before);
        const Outcome difference = RunProgram({"diff", file, File("b.xml")});
        QCOMPARE(difference.status, 1);
        QCOMPARE(difference.out, dry.out);
        QCOMPARE(difference.errors, QString());
        const Outcome nowhere = RunProgram(arguments + QStringList{"--out", "/proc/a.xml"});
        QCOMPARE(nowhere.status, 1);
        QVERIFY2(nowhere.errors.startsWith("/proc/a.xml: "), qPrintable(nowhere.errors));
        QCOMPARE(nowhere.out, QString());
    }

    void anotherEditorsFileIsNotWritten()
    {
        const QString file = WriteSample();
        const QByteArray before = ReadAll(file);
        QLockFile lock(file + ".lock");
        QVERIFY(lock.tryLock(0));
        const QStringList arguments{"set", file, frequency + "=7M"};
        const Outcome refused = RunProgram(arguments);
        QCOMPARE(refused.status, 1);
        QVERIFY(refused.errors.contains(QString::number(QCoreApplication::applicationPid())));
        QCOMPARE(RunProgram({"new", file, "--force"}).status, 0); // told to
        QCOMPARE(ReadAll(file), before);
        QCOMPARE(RunProgram(arguments + QStringList{"--force"}).status, 0);
        QVERIFY(ReadAll(file) != before);
        QVERIFY(QFile::exists(file + ".lock")); // still the other's
    }

    void resultsAreOneJsonDocument_data()
    {
        const Table<QStringList, int, QString, int, QStringList> row("arguments", "status", "list", "count", "keys");
        const QStringList value{"changed", "default", "enabled", "kind", "label", "maximum",
                                "minimum", "path",    "stored",  "unit", "value"};
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
        WriteSample();
        WriteAll(File("bad.xml"), "<Job version=\"1\">\n  <Node name=\"A\">\n</Job>\n");
        QCOMPARE(RunProgram({"set", File("a.xml"), frequency + "=7M", "--out", File("b.xml")}).status, 0);
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
        const QStringList diff{"diff", WriteSample(), File("b.xml")};
        QCOMPARE(RunProgram({"new", File("b.xml"), "--from", File("a.xml"), "--chains", "60"}).status, 0);
        const QString whole = RunProgram(diff).out;
        QVERIFY2(whole.contains("/Jobs/Demo/TDS_HF1_2\t(no node)\t(node)\n"), qPrintable(whole));
        for (const auto& [node, status] : {std::pair("TDS_HF1_2", 0), std::pair("TDS_HFWB", 1)})
            QCOMPARE(RunProgram(diff + QStringList{"--node", "TDS_HF1", "--with", node}).status, status);
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
            const LargeJobPlan plan{.chains = 77, .channels = 20, .seed = seed, .allValues = true};
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
