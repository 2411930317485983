#include "common.h"
#include "diskwatch.h"
#include "jobmodel/jobfile.h"
#include "keys/keymanager.h"

#include <QTemporaryDir>
#include <QtTest>
#include <fcntl.h>
#include <sys/stat.h>

using namespace TKE;

static bool s_haveHardLinks = true; // some file systems have none

extern "C" int link(const char* from, const char* to) noexcept
{
    if (s_haveHardLinks)
        return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
    errno = EPERM;
    return -1;
}

namespace
{

constexpr const char* declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr const char* node = "/Jobs/A/";

// A job whose one node has the given attributes and content.
QByteArray Job(const QByteArray& content, const QByteArray& attributes = "groups=\"G_TUNER_HF\"")
{
    return declaration + QByteArray("<Job version=\"1\">\n  <Node name=\"/Jobs/A\" type=\"CS\" ") + attributes + ">" +
           content + "</Node>\n</Job>\n";
}

// The element of one value.
QByteArray Mgc(const QByteArray& text)
{
    return "<Value name=\"TUNER_HF_NB_MGCVALUE\">" + text + "</Value>";
}

} // namespace

class JobFileTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    Tree& m_tree = *Tree::Instance();
    std::unique_ptr<JobFile> m_job;
    FileError m_error;

    QString Path(const QString& name) const { return m_directory.filePath(name); }
    QString Write(const QByteArray& text, const QString& name = "a.job.xml")
    {
        WriteAll(Path(name), text);
        return Path(name);
    }
    QByteArray ReadBack(const QString& name) const { return ReadAll(Path(name)); }
    bool Load(const QByteArray& text) { return m_job->Load(Write(text), &m_error); }
    ValueBase* Value(const QString& path) const { return m_tree.FindValue(path); }
    // The value below the one node of Job().
    ValueBase* At(const char* key) const { return Value(node + QString(key)); }

private slots:
    void init()
    {
        m_job = std::make_unique<JobFile>();
        m_error = {};
    }
    void cleanup()
    {
        m_tree.SetJournal({});
        m_job.reset();
        m_tree.Clear();
        KeyManager::Instance()->Clear();
    }

    void theSampleIsReadWholeAndWithoutFault()
    {
        QVERIFY2(m_job->LoadSample(&m_error), qPrintable(m_error.ToText()));
        QVERIFY(m_job->GetWarnings().isEmpty());
        QVERIFY(m_job->GetFileName().isEmpty());
        qsizetype nodes = 0;
        m_job->VisitNodes(
            [&](const QString& path, const NodeSpec& spec, const QString&)
            {
                ++nodes;
                QCOMPARE(m_tree.FindNode(path)->GetTypeText(), spec.type);
            });
        QCOMPARE(nodes, ReadAll(":/models/sample.job.xml").count("<Node "));
        // Values per channel, of the job's management, and of both forms of the decoder.
        QVERIFY(Value("/Jobs/Demo/TDS_EXC/CS_WDE/WDEEXCITER/Channel4/WdeChannelFrequency"));
        QVERIFY(!Value("/Jobs/Demo/TDS_EXC/CS_WDE/WDEEXCITER/Channel5/WdeChannelFrequency"));
        QCOMPARE(m_tree.FindNode(u"JOBMANAGEMENT/IPC_TYPE")->GetTypeText(), QString("UNKNOWN"));
        const QString wavecom = "WAVECOM_DEMODULATOR_HF/WAVECOM_DEMODULATOR_HF_FSK_MODTYPE";
        QVERIFY(Value("/Jobs/Demo/TDS_HF1/CS_DATA/WAVECOM/" + wavecom));
        QVERIFY(Value("/Jobs/Demo/TDS_VUHF1/CS_DATA/WAVECOM/Data/" + wavecom));
        QCOMPARE(m_job->ToUtf8(), ReadAll(":/models/sample.job.xml"));
    }

    void mappedKeysSitUnderTheirFullNamesAndKeepTheirNamesInFiles()
    {
        KeyManager::Instance()->Register("TUNER_HF_NB_MGCVALUE", "Gain/Manual");
        const QByteArray text = Job("\n    " + Mgc("61") + "\n  ");
        QVERIFY2(Load(text), qPrintable(m_error.ToText()));
        QVERIFY(!At("TUNER_HF_NB_MGCVALUE"));
        QCOMPARE(At("Gain/Manual")->GetText(), QString("61"));
        QCOMPARE(At("Gain/Manual")->GetState(), stDisabled); // the rule follows the name, too
        QCOMPARE(m_job->ToUtf8(), text);
    }

    void whatNobodyEditsKeepsItsBytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("default named") << Job("\n    " + Mgc("60") + "\n  ");
        QTest::newRow("file order") << Job(Mgc("61") + "<Value name=\"TUNER_HF_NB_FREQUENCY\">7000000</Value>");
        QTest::newRow("by hand") << Job(
            "\n\n\t<Value  name = 'TUNER_HF_NB_MGCVALUE' >\n 061 </Value >  <!-- why -->\n");
        QTest::newRow("within a value") << Job(Mgc("<![CDATA[6]]><!-- here -->1<?ask me?>"));
        QTest::newRow("line ends of another system") << Job("\n  " + Mgc("61") + "\n").replace("\n", "\r\n");
        QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + Job({});
        QTest::newRow("no declaration, no line end") << QByteArray("<Job version='1'><Node name='/A' type=''/></Job>");
        QTest::newRow("unknown elements") << Job("<More>" + Mgc("1") + "<Node/></More><x:y/>");
        QTest::newRow("unknown beside the nodes")
            << Job({}).replace("</Job>", "<Extra a='1'>t</Extra></Job><!-- end --><?end?>");
        QTest::newRow("unknown attributes")
            << Job("<Value name=\"TUNER_HF_NB_MGCVALUE\" by=\"me\">61</Value>", "since=\"1999\"");
        QTest::newRow("unknown group and its values")
            << Job("<Value name=\"X\">&#65;&lt;</Value>", "groups=\"G_X G_TUNER_HF\"");
        QTest::newRow("unknown item") << Job("<Value name=\"TUNER_HF_NB_GAIN_CTRL_METHOD\">77</Value>");
        QTest::newRow("newer version") << Job({}).replace("version=\"1\">", "version=\"2\" new=\"\">");
        QTest::newRow("values after nodes") << Job("<Node name=\"B\" type=\"\"/>" + Mgc("61"));
        QTest::newRow("names of any kind") << Job("<Node name=\"a&#9;b&#10;&#13;\" type=\"&lt;\"/><Node name=\"\\..\\ "
                                                  "\" type=\"\"/><Node name=\"\xE2\x80\xAE\" type=\"\"/>");
        QTest::newRow("stray text") << Job("stray" + Mgc("61") + "\xC3\xA4 &gt;&#13;");
    }
    void whatNobodyEditsKeepsItsBytes()
    {
        QFETCH(QByteArray, text);
        QVERIFY2(Load(text), qPrintable(m_error.ToText()));
        QCOMPARE(m_job->ToUtf8(), text);
        if (ValueBase* value = At("TUNER_HF_NB_FREQUENCY"))
        {
            // An edit and its undoing leave no trace either.
            const QString before = value->GetText();
            QVERIFY(value->SetFromText("8000000"));
            QVERIFY(m_job->ToUtf8() != text);
            QVERIFY(value->SetFromText(before));
            QCOMPARE(m_job->ToUtf8(), text);
        }
    }

    void anEditChangesItsOwnElementOnly_data()
    {
        const Table<QByteArray, QByteArray> row("before", "after");
        const QByteArray begin = "<Value a='1' name='TUNER_HF_NB_MGCVALUE'>";
        row("by hand", Job(begin + " 61<!-- why --></Value >"), Job(begin + "70<!-- why --></Value >"));
        row("unknown within", Job(Mgc("<x>1</x>61")), Job(Mgc("70<x>1</x>")));
        const QByteArray frequency = "\n\t<Value name=\"TUNER_HF_NB_FREQUENCY\">7000000</Value>";
        row("new, behind its like", Job(frequency + "\n\t<x/>\n"), Job(frequency + "\n\t" + Mgc("70") + "\n\t<x/>\n"));
        const QByteArray other = "\n    <Node name=\"B\" type=\"T\"/>\n  ";
        row("new, before the nodes", Job(other), Job("\n    " + Mgc("70") + other));
        const QByteArray start = "<Job version='1'><Node name='/Jobs/A' type='' groups='G_TUNER_HF'";
        row("new, all on one line", start + " /></Job>", start + ">" + Mgc("70") + "</Node></Job>");
        const QByteArray lines = "<Job version=\"1\">\r\n  <Node name=\"/Jobs/A\" type=\"\" groups=\"G_TUNER_HF\"";
        row("new, other line ends", lines + "/>\r\n</Job>",
            lines + ">\r\n    " + Mgc("70") + "\r\n  </Node>\r\n</Job>");
    }
    void anEditChangesItsOwnElementOnly()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QVERIFY2(Load(before), qPrintable(m_error.ToText()));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("70"));
        QCOMPARE(m_job->ToUtf8(), after);
        QVERIFY2(Load(after), qPrintable(m_error.ToText()));
        QCOMPARE(At("TUNER_HF_NB_MGCVALUE")->GetText(), QString("70"));
    }

    void valuesAreWrittenInTheOrderOfTheModelAndAtTheirDefaultsOnlyWhereTheFileNamedThem()
    {
        QVERIFY(Load(Job(Mgc("61"))));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetToDefault());
        QVERIFY(m_job->ToUtf8().contains(">60<"));
        At("TUNER_HF_NB_MGCVALUE")->SetExplicit(false);
        QCOMPARE(m_job->ToUtf8(), Job({}));
        QVERIFY(Load(Job({})));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("70"));
        QVERIFY(At("TUNER_HF_NB_FREQUENCY")->SetFromText("7000000"));
        const QByteArray text = m_job->ToUtf8();
        QVERIFY(text.contains("FREQUENCY") && text.indexOf("FREQUENCY") < text.indexOf("MGCVALUE"));
    }

    void textOfAnyKindSurvives()
    {
        for (QString text :
             {QString("a < b && c > \"d\" ]]> 'e'"), QString("  two\n lines\t\r\n "),
              QString::fromUtf8("Größe µV 高 🛰"), QString(), QString("a\x01") + QChar(0xFFFF) + "b"})
        {
            QVERIFY(Load(Job({}, "groups=\"G_JOB\"")));
            ValueBase* value = At("JOB_AUTHOR");
            QVERIFY(value->SetFromText("something else"));
            QVERIFY(value->SetFromText(text));
            value->SetExplicit(true);
            const QByteArray saved = m_job->ToUtf8();
            QVERIFY2(Load(saved), qPrintable(m_error.ToText()));
            // What XML cannot hold is replaced.
            QCOMPARE(At("JOB_AUTHOR")->GetText(), text.replace(QRegularExpression("[\x01\uFFFF]"), QChar(0xFFFD)));
            QCOMPARE(m_job->ToUtf8(), saved);
        }
    }

    void anErrorNamesItsPlaceAndChangesNothing_data()
    {
        // line: 0: any; path: below the node; null: none; reason: a piece of it
        const Table<QByteArray, int, int, QString, QString> row("text", "line", "column", "path", "reason");

        row("too much", Job("\n \xC3\xA4" + Mgc("121")), 4, 3, "/TUNER_HF_NB_MGCVALUE", "121");
        row("not a number", Job("\n" + Mgc("nan")), 4, 1, "/TUNER_HF_NB_MGCVALUE", "nan");
        row("no truth", Job("<Value name=\"TUNER_HF_NB_NF1_STATUS\">TRUE</Value>"), 3, 0, "/TUNER_HF_NB_NF1_STATUS",
            "TRUE");
        row("value twice", Job(Mgc("1") + "\n" + Mgc("1")), 4, 1, "/TUNER_HF_NB_MGCVALUE", "twice");
        row("value without name", Job("\n<Value>1</Value>"), 4, 1, "", "name");
        row("node twice", Job("\n<Node name=\"B\" type=\"\"/>\n<Node name=\"B\" type=\"\"/>"), 5, 1, "/B", "twice");
        row("node twice by two ways",
            Job("<Node name=\"B\" type=\"\"/>").replace("</Job>", "<Node name=\"/Jobs/A/B\" type=\"\"/></Job>"), 0, 0,
            "/B", "twice");
        row("node without type", Job("\n<Node name=\"B\"/>"), 4, 1, "/B", "type");
        row("node upwards", Job("\n<Node name=\"..\" type=\"B\"/>"), 4, 1, "/..", "..");
        row("count without end", Job({}, "count=\"2000000000\""), 3, 3, "", "2000000000");
        row("band", Job({}, "band=\"UHF\""), 3, 3, "", "UHF");
        row("another root", "<Task version=\"1\"/>", 1, 1, nullptr, "Task");
        row("empty file", "", 1, 1, nullptr, "well-formed");
        row("cut off", Job({}).chopped(9), 3, 54, nullptr, "well-formed");
        row("no UTF-8", Job("\n\xE4\xE4"), 4, 1, nullptr, "UTF-8");
        row("another encoding", Job({}).replace("UTF-8", "ISO-8859-1"), 1, 1, nullptr, "ISO-8859-1");
        row("two bytes a character", QByteArray("\xFF\xFE<\0J\0o\0b\0/\0>\0", 14), 1, 1, nullptr, "UTF-16");
        row("document type", "<!DOCTYPE Job [<!ENTITY a \"b\">]>\n<Job version=\"1\">&a;</Job>", 1, 0, nullptr,
            "document type");
        row("entity that nobody describes", Job(Mgc("&a;")), 3, 0, nullptr, "well-formed");
        row("beyond any number", Job("\n" + Mgc("1e999")), 4, 1, "/TUNER_HF_NB_MGCVALUE", "1e999");
        row("node upwards in a path", "<Job version=\"1\"><Node name=\"/Jobs/../A\" type=\"\"/></Job>", 1, 18, nullptr,
            "..");
        row("node with two names", Job("\n<Node name=\"B/C\" type=\"\"/>"), 4, 1, "/B/C", "more than one");
        row("less than no count", Job({}, "count=\"-1\""), 3, 3, "", "-1");
        row("count without end in digits", Job({}, "count=\"99999999999999999999\""), 3, 3, "", "99999999999999999999");
        row("depth of nodes", Job(QByteArray("<Node name=\"B\" type=\"\">").repeated(100000)), 3, 0, nullptr, "deep");
        row("depth of the unknown", Job(QByteArray("<x>").repeated(100000)), 3, 0, nullptr, "deep");
        row("length of an attribute", Job("<x a=\"" + QByteArray(9000000, 'a') + "\"/>"), 3, 0, nullptr, "longer");
        row("length of a text", Job(Mgc(QByteArray(17000000, 'a'))), 0, 0, "", "longer");
    }
    void anErrorNamesItsPlaceAndChangesNothing()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QString, path);
        QFETCH(QString, reason);
        const QByteArray good = Job(Mgc("61") + "<!-- good -->");
        QVERIFY(m_job->Load(Write(good, "good.job.xml")));
        ValueBase* survivor = At("TUNER_HF_NB_MGCVALUE");

        QVERIFY(!Load(text));
        QVERIFY2(m_error.reason.contains(reason), qPrintable(m_error.ToText()));
        QCOMPARE(m_error.file, Path("a.job.xml"));
        QCOMPARE(line ? m_error.line : 0, line);
        QCOMPARE(column ? m_error.column : 0, column);
        if (!path.isNull())
            QCOMPARE(m_error.itemPath, "/Jobs/A" + path);

        QCOMPARE(At("TUNER_HF_NB_MGCVALUE"), survivor);
        QCOMPARE(survivor->GetState(), stDisabled);
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetStoredText("0")); // the rules live on
        QCOMPARE(survivor->GetState(), stEnabled);
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetToDefault());
        QCOMPARE(m_job->ToUtf8(), good);
        QCOMPARE(m_job->GetFileName(), Path("good.job.xml"));
    }

    void whatIsNoFileIsRefusedAtOnce_data()
    {
        QTest::addColumn<QString>("name");
        QVERIFY(mkfifo(qPrintable(Path("pipe")), 0600) == 0);
        QVERIFY(QFile::link(Path("pipe"), Path("link to a pipe")));
        for (const QString& name : {Path("pipe"), Path("link to a pipe"), m_directory.path(), QString("/dev/zero"),
                                    QString("/dev/tty"), Path("nowhere.job.xml"), QString()})
            QTest::newRow(qPrintable(QFileInfo(name).fileName())) << name;
    }
    void whatIsNoFileIsRefusedAtOnce()
    {
        QFETCH(QString, name);
        QVERIFY(!m_job->Save(&m_error)); // there is nothing to save to
        QVERIFY(Load(Job(Mgc("61"))));
        QVERIFY(!m_job->Load(name, &m_error)); // nor does it wait for what a pipe may bring
        QVERIFY(!m_error.reason.isEmpty());
        QCOMPARE(m_error.file, name);
        QVERIFY(JobFile::Check(name).first().IsError());
        if (!name.startsWith("/dev") && QFileInfo::exists(name))
            QVERIFY(!m_job->SaveAs(name, &m_error));
        QVERIFY(!m_error.reason.isEmpty());
        QCOMPARE(m_job->ToUtf8(), Job(Mgc("61")));
        QCOMPARE(m_job->GetFileName(), Path("a.job.xml"));
    }

    void aFileCutOffAnywhereChangesNothing()
    {
        const QByteArray whole = ReadAll(":/models/sample.job.xml");
        const qsizetype end = whole.lastIndexOf('>');
        QVERIFY(Load(Job(Mgc("61"))));
        for (qsizetype size = 0; size <= end; size += size < 200 || size > end - 20 ? 1 : 61)
        {
            QVERIFY2(!Load(whole.left(size)), qPrintable(QString::number(size)));
            QVERIFY(m_error.line > 0 && !m_error.reason.isEmpty());
        }
        QCOMPARE(m_job->ToUtf8(), Job(Mgc("61")));
        QVERIFY(Load(whole));
    }

    void aSmallFileMakesNoMoreValuesThanMemoryHolds()
    {
        QByteArray nodes;
        for (int node = 0; node < 400; ++node)
            nodes +=
                "<Node name=\"" + QByteArray::number(node) + "\" type=\"\" groups=\"G_WDE_RASTER\" count=\"1000\"/>\n";
        m_job->SetMostValues(20000);
        QVERIFY(!Load(Job("\n" + nodes)));
        QVERIFY2(m_error.reason.contains("values"), qPrintable(m_error.ToText()));
        QVERIFY(m_error.line > 3);
        QVERIFY(!Value("/Jobs/A/0"));
    }

    void checkingFindsEverythingAndTouchesNothing()
    {
        QVERIFY(Load(Job({})));
        const FileErrors found =
            JobFile::Check(Write(Job("\n<Value name=\"TUNER_HF_NB_MGCVALUE\">500</Value>\n<x/>\n"
                                     "<Value name=\"Y\"/>\n<Node name=\"B\"/>\n<Node name=\"C\" type=\"\"/>",
                                     "groups=\"G_TUNER_HF G_NEW\""),
                                 "other.job.xml"));
        QStringList lines;
        for (const FileError& finding : found)
            lines += QString("%1%2").arg(finding.IsError() ? "E" : "W").arg(finding.line);
        QCOMPARE(lines.join(' '), QString("W3 E4 W5 W6 E7"));
        QVERIFY(!Value("/Jobs/A/C"));
        QCOMPARE(m_job->ToUtf8(), Job({}));
        QVERIFY(JobFile::Check(Write(Job({}))).isEmpty());
    }

    void loadingIsCancelledWithoutATrace()
    {
        QVERIFY(Load(Job({})));
        m_job->SetProgress([](qint64, qint64) { return false; });
        QVERIFY(!m_job->Load(Write(ReadAll(":/models/sample.job.xml"), "b.job.xml"), &m_error));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE"));
    }

    void theJournalHearsNothingOfLoadingAndEverythingAfterwards()
    {
        int heard = 0;
        m_tree.SetJournal([&](const JournalEntry&) { ++heard; });
        QVERIFY(Load(Job(Mgc("61"))));
        QVERIFY(m_job->AddNode(u"/Jobs/A", {.name = "B", .type = "T", .groups = {"G_TUNER_VUHF"}}));
        QVERIFY(!Load("<Job/>"));
        QCOMPARE(heard, 0);
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        QCOMPARE(heard, 1);
    }

    void theOldValuesReportTheirEndWhenTheNewOnesAreThere()
    {
        QVERIFY(Load(Job({})));
        const ValueBase* old = At("TUNER_HF_NB_MGCVALUE");
        bool released = false;
        Hearer listener(
            [&]
            {
                released = released || old->GetState() == stReleased;
                QCOMPARE(At("TUNER_HF_NB_MGCVALUE")->GetText(), QString("61"));
            });
        At("TUNER_HF_NB_MGCVALUE")->Attach(&listener);
        QVERIFY(Load(Job(Mgc("61"))));
        QVERIFY(released);
    }

    void whoLoadsWithinALoadHasTheJobThatHeLoadedAndItsName()
    {
        const QString inner = Write(Job(Mgc("62")), "inner.job.xml");
        QVERIFY(Load(Job(Mgc("60"))));
        bool isFirst = true;
        Hearer listener(
            [&]
            {
                if (std::exchange(isFirst, false))
                    QVERIFY(m_job->Load(inner));
            });
        At("TUNER_HF_NB_MGCVALUE")->Attach(&listener);
        QVERIFY(Load(Job(Mgc("61"))));
        QCOMPARE(m_job->ToUtf8(), Job(Mgc("62")));
        QCOMPARE(m_job->GetFileName(), inner); // or saving would write it over the other
        QVERIFY(!m_job->ChangedOnDisk());
    }

    void statesStartAsTheModelSaysAndFollowTheirSource()
    {
        QVERIFY(Load(Job("<Value name=\"TUNER_HF_NB_SQUELCHMODE\">3</Value>", "groups=\"G_TUNER_HF G_EXC_CHECKS\"")));
        QCOMPARE(At("SimulationCheck")->GetState(), stDisabled);
        QCOMPARE(At("RasterDetectorCheck")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_SYLLABIC")->GetState(), stEnabled);
        QVERIFY(At("TUNER_HF_NB_SQUELCHMODE")->SetStoredText("1"));
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_THRESHOLD")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_SYLLABIC")->GetState(), stDisabled);
    }

    void rulesLetGoWhenValuesOrTheJobGo()
    {
        QVERIFY(Load(Job({})));
        m_tree.RemoveValue(node + QString("TUNER_HF_NB_NF1_FREQUENCY"));
        QVERIFY(At("TUNER_HF_NB_NF1_STATUS")->SetBool(true)); // its target is gone
        QCOMPARE(At("TUNER_HF_NB_NF1_BANDWIDTH")->GetState(), stEnabled);

        Hearer listener{[&] { m_job->RemoveNode(QString(node)); }}; // the whole branch, when the first rule shows
        At("TUNER_HF_NB_NF2_FREQUENCY")->Attach(&listener);
        At("TUNER_HF_NB_NF2_STATUS")->SetBool(true);
        QVERIFY(!At("TUNER_HF_NB_NF2_STATUS"));

        QVERIFY(Load(Job({})));
        m_job.reset();
        QVERIFY(At("TUNER_HF_NB_NF1_STATUS")->SetBool(true));
        QCOMPARE(At("TUNER_HF_NB_NF1_BANDWIDTH")->GetState(), stDisabled);
    }

    void aSourceThatTurnsBackWithinItsOwnChangeLeavesTheRightStates()
    {
        QVERIFY(Load(Job({})));
        Hearer listener{[&]
                        {
                            listener.act = {};
                            At("TUNER_HF_NB_NF1_STATUS")->SetBool(false);
                        }};
        At("TUNER_HF_NB_NF1_FREQUENCY")->Attach(&listener);
        QVERIFY(At("TUNER_HF_NB_NF1_STATUS")->SetBool(true));
        QCOMPARE(At("TUNER_HF_NB_NF1_FREQUENCY")->GetState(), stDisabled);
        QCOMPARE(At("TUNER_HF_NB_NF1_BANDWIDTH")->GetState(), stDisabled);
    }

    void savingKeepsThePreviousGeneration()
    {
        QVERIFY(Load(Job(Mgc("60"))));
        for (const char* text : {"61", "62"})
        {
            const QByteArray before = ReadBack("a.job.xml");
            QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText(text));
            QVERIFY2(m_job->Save(&m_error), qPrintable(m_error.ToText()));
            QCOMPARE(ReadBack("a.job.xml"), Job(Mgc(text)));
            QCOMPARE(ReadBack("a.job.xml~"), before);
        }
        QVERIFY(m_job->SaveAs(Path("fresh.job.xml"), &m_error));
        QVERIFY(!QFile::exists(Path("fresh.job.xml~")));
        QCOMPARE(m_job->GetFileName(), Path("fresh.job.xml"));
    }

    void aSaveThatFailsSaysWhyAndKeepsThePlace()
    {
        QVERIFY(m_job->Load(Write(Job({}), "kept.job.xml")));
        QVERIFY(!m_job->SaveAs(Path("nowhere/b.job.xml"), &m_error));
        QVERIFY(!m_error.reason.isEmpty());
        QCOMPARE(m_error.file, Path("nowhere/b.job.xml"));
        QCOMPARE(m_job->GetFileName(), Path("kept.job.xml"));
        // A backup that cannot be made: nothing is overwritten then.
        QVERIFY(QDir(m_directory.path()).mkpath("kept.job.xml~/full"));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        QVERIFY(!m_job->Save(&m_error));
        QCOMPARE(ReadBack("kept.job.xml"), Job({}));
        QVERIFY(QDir(Path("kept.job.xml~")).removeRecursively());
    }

    void whatIsSavedIsOnTheDiskBeforeItTakesThePlaceAndItsNameAfterwards_data()
    {
        QTest::addColumn<bool>("haveLinks");
        QTest::newRow("the backup is a link") << true;
        QTest::newRow("the backup is a copy") << false;
    }
    void whatIsSavedIsOnTheDiskBeforeItTakesThePlaceAndItsNameAfterwards()
    {
        QFETCH(bool, haveLinks);
        QVERIFY(Load(Job({})));
        const QByteArray path = Path("a.job.xml").toUtf8();
        const ino_t old = DiskWatch::Of(path).st_ino;
        DiskWatch::Take();
        std::vector<ino_t> inPlace;
        DiskWatch::s_before = [&](int)
        {
            inPlace.push_back(DiskWatch::Of(path).st_ino);
            return 0;
        };
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        s_haveHardLinks = haveLinks;
        const bool isSaved = m_job->Save(&m_error);
        s_haveHardLinks = true;
        QVERIFY2(isSaved, qPrintable(m_error.ToText()));
        DiskWatch::s_before = {};
        const struct stat saved = DiskWatch::Of(path);
        const auto calls = DiskWatch::Take();
        QCOMPARE(calls.size(), inPlace.size());
        QVERIFY(calls.size() >= 2);
        QVERIFY(calls.front().file == saved.st_ino && calls.front().size == saved.st_size && inPlace.front() == old);
        QVERIFY(calls.back().isDirectory && calls.back().file == DiskWatch::Of(m_directory.path().toUtf8()).st_ino);
        QVERIFY(inPlace.back() == saved.st_ino);
        const struct stat backup = DiskWatch::Of(path + '~');
        QCOMPARE(backup.st_ino == old, haveLinks);
        QVERIFY(haveLinks || (calls[1].file == backup.st_ino && calls[1].size == backup.st_size && inPlace[1] == old));
    }

    void aDiskThatLosesTheNewFileLeavesTheOldOne()
    {
        QVERIFY(Load(Job({})));
        const QStringList files = QDir(m_directory.path()).entryList(QDir::Files);
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        DiskWatch::s_before = [](int) { return ENOSPC; };
        const bool saved = m_job->Save(&m_error);
        DiskWatch::s_before = {};
        QVERIFY(!saved);
        QCOMPARE(m_error.reason, qt_error_string(ENOSPC));
        QCOMPARE(ReadBack("a.job.xml"), Job({}));
        QCOMPARE(QDir(m_directory.path()).entryList(QDir::Files), files);
    }

    void aLinkStaysALinkWhenItsTargetIsSaved()
    {
        QVERIFY(QFile::link(Write(Job(Mgc("61")), "target.job.xml"), Path("link.job.xml")));
        QVERIFY(m_job->Load(Path("link.job.xml")));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        QVERIFY2(m_job->Save(&m_error), qPrintable(m_error.ToText()));
        QVERIFY(QFileInfo(Path("link.job.xml")).isSymLink());
        QCOMPARE(ReadBack("target.job.xml"), Job(Mgc("62")));
        QCOMPARE(ReadBack("link.job.xml~"), Job(Mgc("61")));
    }

    void aLinkInThePlaceOfTheBackupIsReplacedAndNotFollowed()
    {
        for (const char* link : {"a.job.xml~", "a.job.xml~new"})
        {
            QVERIFY(Load(Job(Mgc("61"))));
            QFile::remove(Path(link));
            QVERIFY(QFile::link(Write("precious", "precious"), Path(link)));
            QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
            QVERIFY2(m_job->Save(&m_error), qPrintable(m_error.ToText()));
            QCOMPARE(ReadBack("precious"), QByteArray("precious"));
            QVERIFY(!QFileInfo(Path("a.job.xml~")).isSymLink());
            QCOMPARE(ReadBack("a.job.xml~"), Job(Mgc("61")));
            QVERIFY(!QFileInfo(Path("a.job.xml~new")).isSymLink());
        }
    }

    void aChangeOnDiskIsSeen()
    {
        QVERIFY(Load(Job({})));
        Write(Job("<!-- by another hand -->"));
        QCOMPARE(m_job->GetDiskState(), JobFile::DiskState::Changed);
        QVERIFY(m_job->Save(&m_error));
        QVERIFY(!m_job->ChangedOnDisk());
        QVERIFY(QFile::remove(Path("a.job.xml")));
        QCOMPARE(m_job->GetDiskState(), JobFile::DiskState::Vanished);
        QVERIFY(m_job->LoadSample());
        QVERIFY(!m_job->ChangedOnDisk());
    }

    void oneEditorAtATimeHoldsTheLock()
    {
        QVERIFY(Load(Job({})));
        QVERIFY(m_job->TakeLock());
        Tree otherTree;
        JobFile other(otherTree);
        QVERIFY(other.Load(Path("a.job.xml")));
        QString holder;
        QVERIFY(!other.TakeLock(&holder));
        QVERIFY2(holder.contains(QString::number(QCoreApplication::applicationPid())), qPrintable(holder));
        m_job->ReleaseLock();
        QVERIFY(other.TakeLock(&holder));
    }

    void nodesAreAddedAndRemovedInTreeAndFile()
    {
        const QByteArray before = Job("\n    <Node name=\"B\" type=\"T\"/>\n  ");
        QVERIFY(Load(before));
        const NodeSpec spec{.name = "C<", .type = "T", .groups = {"G_WDE_RASTER"}, .count = 2, .band = Band::Vuhf};
        QVERIFY(m_job->AddNode(u"/Jobs/A/", spec));
        QVERIFY(Value("/Jobs/A/C</Range2/RasterRangeActive")->SetBool(false));
        QVERIFY(!m_job->AddNode(u"/Jobs/A", spec));
        QVERIFY(!m_job->AddNode(u"/Jobs/Nowhere", spec));
        QVERIFY(!m_job->AddNode(u"/Jobs/A", {.name = "D", .groups = {"G_NONE"}}));
        QString reason;
        QVERIFY(!m_job->AddNode(u"/Jobs/A", {.name = "a/b"}, &reason));
        QVERIFY(!reason.isEmpty());

        const QByteArray after = m_job->ToUtf8();
        QCOMPARE(after, Job("\n    <Node name=\"B\" type=\"T\"/>"
                            "\n    <Node name=\"C&lt;\" type=\"T\" groups=\"G_WDE_RASTER\" count=\"2\" band=\"VUHF\">"
                            "\n      <Value name=\"Range2/RasterRangeActive\">false</Value>"
                            "\n    </Node>\n  "));
        QVERIFY2(Load(after), qPrintable(m_error.ToText()));
        QCOMPARE(*m_job->FindNodeSpec(u"/Jobs/A/C<"), spec);
        m_job->RemoveNode(u"/Jobs/A/C<");
        QVERIFY(!m_tree.FindNode(u"/Jobs/A/C<"));
        QVERIFY(!m_job->FindNodeSpec(u"/Jobs/A/C<"));
        QCOMPARE(m_job->ToUtf8(), before);

        // A branch that only the tree lost is not written either.
        m_tree.RemoveBranch(u"/Jobs/A/B");
        QVERIFY(!m_job->ToUtf8().contains("name=\"B\""));
    }

    void aJobIsMadeFromNothing()
    {
        QVERIFY(m_job->AddNode({}, {.name = "/Jobs/New", .type = "JOB", .groups = {"G_JOB"}}));
        QVERIFY(m_job->AddNode(u"/Jobs/New", {.name = "A", .type = "CS"}));
        const QByteArray text = m_job->ToUtf8();
        QCOMPARE(text, declaration +
                           QByteArray("<Job version=\"1\">\n  <Node name=\"/Jobs/New\" type=\"JOB\" groups=\"G_JOB\">\n"
                                      "    <Node name=\"A\" type=\"CS\"/>\n  </Node>\n</Job>\n"));
        QVERIFY(Load(text));
    }
};

QTEST_GUILESS_MAIN(JobFileTest)
#include "test_jobfile.moc"
