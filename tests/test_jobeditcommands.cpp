#include "jobedit/chains.h"
#include "jobedit/jobdocument.h"

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

    void WriteAll(const QString& name, const QByteArray& bytes)
    {
        QFile file(File(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
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
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("says");
        QTest::newRow("help") << QStringList{"--help"} << 0 << "render";
        QTest::newRow("version") << QStringList{"--version"} << 0 << "jobedit ";
        QTest::newRow("a good file") << QStringList{"check", "good.job.xml"} << 0 << "";
        QTest::newRow("one bad file of two")
            << QStringList{"check", "good.job.xml", "bad.job.xml"} << 1 << "bad.job.xml:3:";
        QTest::newRow("a missing file") << QStringList{"check", "nowhere.xml"} << 1 << "nowhere.xml";
        QTest::newRow("nothing to check") << QStringList{"check"} << 2 << "--help";
        QTest::newRow("unknown option") << QStringList{"--sing"} << 2 << "sing";
        QTest::newRow("render without a directory") << QStringList{"render"} << 2 << "--out";
        QTest::newRow("unknown entry") << QStringList{"render", "--out", "d", "--entry", "X"} << 2 << "VoiceDDCDlg";
        QTest::newRow("unknown form") << QStringList{"render", "--out", "d", "--form", "round"} << 2 << "standalone";
        QTest::newRow("unknown language") << QStringList{"--language", "12"} << 2 << "12";
        QTest::newRow("option of another command") << QStringList{"check", "x", "--out", "d"} << 2 << "render";
        QTest::newRow("two jobs at once") << QStringList{"a", "b"} << 2 << "2";
        QTest::newRow("render a bad file")
            << QStringList{"render", "bad.job.xml", "--out", "d"} << 1 << "bad.job.xml:3:";
        QTest::newRow("a window without a display") << QStringList{"good.job.xml"} << 1 << "display";
    }
    void theCommandLineTellsByItsExitStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, says);
        WriteSample("good.job.xml");
        WriteAll("bad.job.xml", "<Job version=\"1\">\n  <Node name=\"A\" type=\"JOB\">\n</Job>\n");
        for (QString& argument : arguments)
            if (argument.endsWith(".xml") || argument == "d")
                argument = File(argument);
        const Outcome outcome = RunProgram(arguments);
        QVERIFY2(outcome.status == status, qPrintable(outcome.out + outcome.errors));
        QVERIFY2((status == 0 ? outcome.out : outcome.errors).contains(says), qPrintable(outcome.out + outcome.errors));
        QVERIFY(status == 0 || outcome.out.isEmpty());
    }

    void renderWritesAPicturePerTab_data()
    {
        QTest::addColumn<QString>("form");
        QTest::newRow("job") << "job";
        QTest::newRow("standalone") << "standalone";
    }
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
        QCOMPARE(QDir(File("d")).entryList({"*_" + form + "_*.png"}, QDir::Files | QDir::CaseSensitive).size(), qsizetype(tabs));
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
};

QTEST_MAIN(TestJobEditCommands)
#include "test_jobeditcommands.moc"
