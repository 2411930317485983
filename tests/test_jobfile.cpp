#include "jobmodel/jobfile.h"
#include "keys/keymanager.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace TKE;

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

struct Listener final : IObserver
{
    std::function<void(Observable*, TChangeCode)> heard;
    void Update(Observable* source, TChangeCode code) override
    {
        if (heard)
            heard(source, code);
    }
};

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
        QFile file(Path(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        return written ? file.fileName() : QString();
    }
    QByteArray ReadBack(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
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

    void everyGroupOfEveryNodeOfTheSampleHasItsValues()
    {
        QVERIFY2(m_job->LoadSample(&m_error), qPrintable(m_error.ToText()));
        QVERIFY(m_job->GetWarnings().isEmpty());
        QVERIFY(m_job->GetFileName().isEmpty());
        int nodes = 0;
        std::function<void(const Node&)> visit = [&](const Node& visited)
        {
            for (const auto& below : visited.GetNodes())
                visit(*below);
            const NodeSpec* spec = m_job->FindNodeSpec(visited.GetBasePath());
            if (!spec)
                return;
            ++nodes;
            QCOMPARE(visited.GetTypeText(), spec->type);
            for (const QString& name : spec->groups)
            {
                const ParameterGroup* group = m_job->GetModel()->FindGroup(name, spec->band);
                QVERIFY2(group, qPrintable(name));
                for (const auto& parameter : group->GetParameters())
                {
                    QString key = parameter->GetUniqueParameterName();
                    if (parameter->IsPerChannel())
                        QVERIFY2(spec->count > 0, qPrintable(visited.GetPathName()));
                    key.replace("{n}", QString::number(spec->count));
                    if (parameter->GetPlace() == JOBXMLGENERATOR::Place::Channel)
                        key.prepend(parameter->GetChannelNoun() + QString::number(spec->count) + '/');
                    if (name == "G_WAVECOM" || name == "G_IPCTYPE")
                        continue; // these have their own tests
                    const ValueBase* value = m_tree.FindValue(visited, key);
                    QVERIFY2(value, qPrintable(visited.GetBasePath() + key));
                    QCOMPARE(value->GetKind(), parameter->GetValueDescriptor().kind);
                }
            }
        };
        for (const Node* top : m_tree.GetTopNodes())
            visit(*top);
        QCOMPARE(nodes, ReadResource(":/models/sample.job.xml").count("<Node "));

        QCOMPARE(Value("JOBMANAGEMENT/IPC_TYPE")->GetText(), QString("UNKNOWN"));
        QCOMPARE(m_tree.FindNode(u"JOBMANAGEMENT/IPC_TYPE")->GetTypeText(), QString("UNKNOWN"));
        QCOMPARE(Value("/Jobs/Demo/TDS_EXC_SCAN/ExciterMode")->GetStoredText(), QString("8"));
        QVERIFY(Value("/Jobs/Demo/TDS_EXC/CS_WDE/WDEEXCITER/Channel4/WdeChannelFrequency"));
        QVERIFY(!Value("/Jobs/Demo/TDS_EXC/CS_WDE/WDEEXCITER/Channel5/WdeChannelFrequency"));
        const QString wavecom = "WAVECOM_DEMODULATOR_HF/WAVECOM_DEMODULATOR_HF_FSK_MODTYPE";
        QVERIFY(Value("/Jobs/Demo/TDS_HF1/CS_DATA/WAVECOM/" + wavecom));
        QVERIFY(Value("/Jobs/Demo/TDS_VUHF1/CS_DATA/WAVECOM/Data/" + wavecom));
        QVERIFY(Value("/Jobs/Demo/TDS_VUHF1/CS_DATA/WAVECOM/WAVECOM_HF_WORKFLOW"));
        QVERIFY(Value("/Jobs/Demo/TDS_VUHF1/CS_DATA/WAVECOM/Data/WAVECOM_HF_MODE"));
        QCOMPARE(m_job->ToUtf8(), ReadResource(":/models/sample.job.xml"));
    }

    void mappedKeysSitUnderTheirFullNamesAndKeepTheirNamesInFiles()
    {
        KeyManager::Instance()->Register("TUNER_HF_NB_MGCVALUE", "Gain/Manual");
        const QByteArray text = Job("\n    <Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>\n  ");
        QVERIFY2(Load(text), qPrintable(m_error.ToText()));
        QVERIFY(!At("TUNER_HF_NB_MGCVALUE"));
        QCOMPARE(At("Gain/Manual")->GetText(), QString("61"));
        QCOMPARE(At("Gain/Manual")->GetState(), stDisabled); // the rule follows the name, too
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetStoredText("0"));
        QCOMPARE(At("Gain/Manual")->GetState(), stEnabled);
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetToDefault());
        QCOMPARE(m_job->ToUtf8(), text);
    }

    void whatNobodyEditsKeepsItsBytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("in the writer's form") << Job("\n    <Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>\n  ");
        QTest::newRow("default named") << Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">60</Value>");
        QTest::newRow("file order") << Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>"
                                           "<Value name=\"TUNER_HF_NB_FREQUENCY\">7000000</Value>");
        QTest::newRow("by hand") << Job(
            "\n\n\t<Value  name = 'TUNER_HF_NB_MGCVALUE' >\n 061 </Value >  <!-- why -->\n");
        QTest::newRow("within a value") << Job(
            "<Value name=\"TUNER_HF_NB_MGCVALUE\"><![CDATA[6]]><!-- here -->1<?ask me?></Value>");
        QTest::newRow("line ends of another system")
            << Job("\n  <Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>\n").replace("\n", "\r\n");
        QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + Job({});
        QTest::newRow("no declaration, no line end") << QByteArray("<Job version='1'><Node name='/A' type=''/></Job>");
        QTest::newRow("empty") << QByteArray("<Job version='1'/>");
        QTest::newRow("unknown elements")
            << Job("<More><Value name=\"TUNER_HF_NB_MGCVALUE\">1</Value><Node/></More><x:y/>");
        QTest::newRow("unknown beside the nodes")
            << Job({}).replace("</Job>", "<Extra a='1'>t</Extra></Job><!-- end --><?end?>");
        QTest::newRow("unknown attributes")
            << Job("<Value name=\"TUNER_HF_NB_MGCVALUE\" by=\"me\">61</Value>", "since=\"1999\"");
        QTest::newRow("unknown group and its values")
            << Job("<Value name=\"X\">&#65;&lt;</Value>", "groups=\"G_X G_TUNER_HF\"");
        QTest::newRow("unknown item") << Job("<Value name=\"TUNER_HF_NB_GAIN_CTRL_METHOD\">77</Value>");
        QTest::newRow("newer version") << Job({}).replace("version=\"1\">", "version=\"2\" new=\"\">");
        QTest::newRow("values after nodes")
            << Job("<Node name=\"B\" type=\"\"/><Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>");
        QTest::newRow("text") << Job("<Value name=\"JOB_DESCRIPTION\">a &amp; b\n\xC3\xA4 &gt;&#13;</Value>",
                                     "groups=\"G_JOB\"");
        QTest::newRow("stray text") << Job("stray<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>text");
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
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray key = "TUNER_HF_NB_MGCVALUE";
        const QByteArray canonical = "<Value name=\"" + key + "\">70</Value>";
        QTest::newRow("named") << Job("\n    <Value name=\"" + key + "\">61</Value>\n    <!-- c -->\n  ")
                               << Job("\n    " + canonical + "\n    <!-- c -->\n  ");
        QTest::newRow("by hand") << Job("<Value a='1' name='" + key + "'> 61<!-- why --></Value >")
                                 << Job("<Value a='1' name='" + key + "'>70<!-- why --></Value >");
        QTest::newRow("unknown within") << Job("<Value name=\"" + key + "\"><x>1</x>61</Value>")
                                        << Job("<Value name=\"" + key + "\">70<x>1</x></Value>");
        QTest::newRow("new, behind its like")
            << Job("\n\t<Value name=\"TUNER_HF_NB_FREQUENCY\">7000000</Value>\n\t<x/>\n")
            << Job("\n\t<Value name=\"TUNER_HF_NB_FREQUENCY\">7000000</Value>\n\t" + canonical + "\n\t<x/>\n");
        QTest::newRow("new, before the nodes") << Job("\n    <Node name=\"B\" type=\"T\"/>\n  ")
                                               << Job("\n    " + canonical + "\n    <Node name=\"B\" type=\"T\"/>\n  ");
        QTest::newRow("new, all on one line")
            << QByteArray("<Job version='1'><Node name='/Jobs/A' type='' groups='G_TUNER_HF' /></Job>")
            << "<Job version='1'><Node name='/Jobs/A' type='' groups='G_TUNER_HF'>" + canonical + "</Node></Job>";
        const QByteArray closed =
            "<Job version=\"1\">\n  <Node name=\"/Jobs/A\" type=\"\" groups=\"G_TUNER_HF\"/>\n</Job>";
        const QByteArray opened =
            "<Job version=\"1\">\n  <Node name=\"/Jobs/A\" type=\"\" groups=\"G_TUNER_HF\">\n    " + canonical +
            "\n  </Node>\n</Job>";
        QTest::newRow("new, in an empty node") << closed << opened;
        QTest::newRow("new, other line ends")
            << QByteArray(closed).replace("\n", "\r\n") << QByteArray(opened).replace("\n", "\r\n");
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

    void newValuesComeInTheOrderOfTheModel()
    {
        QVERIFY(Load(Job({})));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("70"));
        QVERIFY(At("TUNER_HF_NB_FREQUENCY")->SetFromText("7000000"));
        const QByteArray text = m_job->ToUtf8();
        QVERIFY(text.indexOf("TUNER_HF_NB_FREQUENCY") > 0);
        QVERIFY(text.indexOf("TUNER_HF_NB_FREQUENCY") < text.indexOf("TUNER_HF_NB_MGCVALUE"));
    }

    void aValueAtItsDefaultStaysInTheFileOnlyWhereTheFileNamedIt()
    {
        QVERIFY(Load(Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>")));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetToDefault());
        QVERIFY(m_job->ToUtf8().contains(">60<"));
        At("TUNER_HF_NB_MGCVALUE")->SetExplicit(false);
        QCOMPARE(m_job->ToUtf8(), Job({}));
    }

    void textOfAnyKindSurvives_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("markup") << "a < b && c > \"d\" ]]> 'e'";
        QTest::newRow("blanks") << "  two\n lines\t\r\n ";
        QTest::newRow("scripts") << QString::fromUtf8("Größe µV 高 🛰");
        QTest::newRow("empty") << "";
    }
    void textOfAnyKindSurvives()
    {
        QFETCH(QString, text);
        QVERIFY(Load(Job({}, "groups=\"G_JOB\"")));
        ValueBase* value = At("JOB_AUTHOR");
        QVERIFY(value->SetFromText("something else"));
        QVERIFY(value->SetFromText(text));
        value->SetExplicit(true);
        const QByteArray saved = m_job->ToUtf8();
        QVERIFY2(Load(saved), qPrintable(m_error.ToText()));
        QCOMPARE(At("JOB_AUTHOR")->GetText(), text);
        QCOMPARE(m_job->ToUtf8(), saved);
    }

    void charactersThatXmlCannotHoldDoNotSpoilTheFile()
    {
        QVERIFY(Load(Job({}, "groups=\"G_EXC_SMU\"")));
        QVERIFY(At("SmuMessage")->SetFromText(QString("a\x01") + QChar(0xFFFF) + "b"));
        QVERIFY2(Load(m_job->ToUtf8()), qPrintable(m_error.ToText()));
        QCOMPARE(At("SmuMessage")->GetText(), QString("a") + QChar(0xFFFD) + QChar(0xFFFD) + "b");
    }

    void anErrorNamesItsPlaceAndChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason"); // a piece of it

        const auto value = [](const char* name, const char* text)
        { return Job("\n \xC3\xA4<Value name=\"" + QByteArray(name) + "\">" + text + "</Value>"); };
        const QString mgc = "/Jobs/A/TUNER_HF_NB_MGCVALUE";
        QTest::newRow("too much") << value("TUNER_HF_NB_MGCVALUE", "121") << 4 << 3 << mgc << "121";
        QTest::newRow("no number") << value("TUNER_HF_NB_MGCVALUE", "6O") << 4 << 3 << mgc << "6O";
        QTest::newRow("not a number") << value("TUNER_HF_NB_MGCVALUE", "nan") << 4 << 3 << mgc << "nan";
        QTest::newRow("no truth") << value("TUNER_HF_NB_NF1_STATUS", "TRUE") << 4 << 3
                                  << "/Jobs/A/TUNER_HF_NB_NF1_STATUS"
                                  << "TRUE";
        QTest::newRow("value twice") << Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">1</Value>\n"
                                            "<Value name=\"TUNER_HF_NB_MGCVALUE\">1</Value>")
                                     << 4 << 1 << mgc << "twice";
        QTest::newRow("value without name") << Job("\n<Value>1</Value>") << 4 << 1 << "/Jobs/A"
                                            << "name";
        QTest::newRow("node twice") << Job("\n<Node name=\"B\" type=\"\"/>\n<Node name=\"B\" type=\"\"/>") << 5 << 1
                                    << "/Jobs/A/B"
                                    << "twice";
        QTest::newRow("node without type") << Job("\n<Node name=\"B\"/>") << 4 << 1 << "/Jobs/A/B"
                                           << "type";
        QTest::newRow("node without name") << Job("\n<Node type=\"B\"/>") << 4 << 1 << "/Jobs/A"
                                           << "name";
        QTest::newRow("node upwards") << Job("\n<Node name=\"..\" type=\"B\"/>") << 4 << 1 << "/Jobs/A/.."
                                      << "..";
        QTest::newRow("node of two names") << Job("\n<Node name=\"B/C\" type=\"B\"/>") << 4 << 1 << "/Jobs/A/B/C"
                                           << "B/C";
        QTest::newRow("count") << Job({}, "count=\"-1\"") << 3 << 3 << "/Jobs/A"
                               << "-1";
        QTest::newRow("count without end") << Job({}, "count=\"2000000000\"") << 3 << 3 << "/Jobs/A"
                                           << "2000000000";
        QTest::newRow("form") << Job({}, "form=\"round\"") << 3 << 3 << "/Jobs/A"
                              << "round";
        QTest::newRow("band") << Job({}, "band=\"UHF\"") << 3 << 3 << "/Jobs/A"
                              << "UHF";
        QTest::newRow("another root") << QByteArray("<Task version=\"1\"/>") << 1 << 1 << ""
                                      << "Task";
        QTest::newRow("no version") << QByteArray("<Job/>") << 1 << 1 << ""
                                    << "version";
        QTest::newRow("empty file") << QByteArray() << 1 << 1 << ""
                                    << "well-formed";
        QTest::newRow("cut off") << Job({}).chopped(9) << 3 << 54 << ""
                                 << "well-formed";
        QTest::newRow("mismatch") << Job("\n <a></b>") << 4 << 7 << ""
                                  << "well-formed";
        QTest::newRow("no UTF-8") << Job("\n\xE4\xE4") << 4 << 1 << ""
                                  << "UTF-8";
        QTest::newRow("another encoding") << Job({}).replace("UTF-8", "ISO-8859-1") << 1 << 1 << ""
                                          << "ISO-8859-1";
        QTest::newRow("two bytes a character") << QByteArray("\xFF\xFE<\0J\0o\0b\0/\0>\0", 14) << 1 << 1 << ""
                                               << "UTF-16";
        QTest::newRow("document type") << QByteArray("<!DOCTYPE Job [<!ENTITY a \"b\">]>\n<Job version=\"1\">&a;</Job>")
                                       << 1 << -1 << ""
                                       << "document type";
        QTest::newRow("depth of nodes") << Job(QByteArray("<Node name=\"B\" type=\"\">").repeated(100000)) << 3 << -1
                                        << ""
                                        << "deep";
        QTest::newRow("depth of the unknown") << Job(QByteArray("<x>").repeated(100000)) << 3 << -1 << ""
                                              << "deep";
        QTest::newRow("length of an attribute") << Job("<x a=\"" + QByteArray(9000000, 'a') + "\"/>") << 3 << -1 << ""
                                                << "longer";
        QTest::newRow("length of a text")
            << Job("\n<Value name=\"JOB_DESCRIPTION\">" + QByteArray(17000000, 'a') + "</Value>", "groups=\"G_JOB\"")
            << -1 << -1 << "/Jobs/A"
            << "longer";
    }
    void anErrorNamesItsPlaceAndChangesNothing()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QString, path);
        QFETCH(QString, reason);
        const QByteArray good = Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value><!-- good -->");
        QVERIFY(m_job->Load(Write(good, "good.job.xml")));
        ValueBase* survivor = At("TUNER_HF_NB_MGCVALUE");

        QVERIFY(!Load(text));
        QVERIFY2(m_error.reason.contains(reason), qPrintable(m_error.ToText()));
        QCOMPARE(m_error.file, Path("a.job.xml"));
        if (line >= 0)
            QCOMPARE(m_error.line, line);
        if (column >= 0)
            QCOMPARE(m_error.column, column);
        if (!path.isEmpty())
            QCOMPARE(m_error.itemPath, path);

        QCOMPARE(At("TUNER_HF_NB_MGCVALUE"), survivor);
        QCOMPARE(survivor->GetState(), stDisabled);
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetStoredText("0")); // the rules live on
        QCOMPARE(survivor->GetState(), stEnabled);
        QVERIFY(At("TUNER_HF_NB_GAIN_CTRL_METHOD")->SetToDefault());
        QCOMPARE(m_job->ToUtf8(), good);
        QCOMPARE(m_job->GetFileName(), Path("good.job.xml"));
    }

    void filesThatCannotBeReadAreNamed()
    {
        QVERIFY(!m_job->Load(Path("nowhere.job.xml"), &m_error));
        QCOMPARE(m_error.file, Path("nowhere.job.xml"));
        QVERIFY(!m_error.reason.isEmpty());
        QVERIFY(!m_job->Load(m_directory.path(), &m_error));
        QVERIFY(JobFile::Check(m_directory.path()).first().IsError());
        QVERIFY(!m_job->Save(&m_error)); // there is nothing to save to
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
        qint64 whole = 0;
        m_job->SetProgress(
            [&](qint64, qint64 all)
            {
                whole = all;
                return false;
            });
        const QByteArray text = ReadResource(":/models/sample.job.xml");
        QVERIFY(!m_job->Load(Write(text, "b.job.xml"), &m_error));
        QCOMPARE(whole, text.size());
        QVERIFY(At("TUNER_HF_NB_MGCVALUE"));
    }

    void theJournalHearsNothingOfLoadingAndEverythingAfterwards()
    {
        int heard = 0;
        m_tree.SetJournal([&](const JournalEntry&) { ++heard; });
        QVERIFY(Load(Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>")));
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
        Listener listener;
        bool released = false;
        listener.heard = [&](Observable* source, TChangeCode code)
        {
            released = released || (code == ccState && static_cast<ValueBase*>(source)->GetState() == stReleased);
            QVERIFY(At("TUNER_HF_NB_MGCVALUE") != old);
            QCOMPARE(At("TUNER_HF_NB_MGCVALUE")->GetText(), QString("61"));
        };
        At("TUNER_HF_NB_MGCVALUE")->Attach(&listener);
        QVERIFY(Load(Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>")));
        QVERIFY(released);
    }

    void statesStartAsTheModelSaysAndFollowTheirSource()
    {
        QVERIFY(Load(Job("<Value name=\"TUNER_HF_NB_SQUELCHMODE\">3</Value>", "groups=\"G_TUNER_HF G_EXC_CHECKS\"")));
        QCOMPARE(At("SimulationCheck")->GetState(), stDisabled);
        QCOMPARE(At("RasterDetectorCheck")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_THRESHOLD")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_SYLLABIC")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_NF2_FREQUENCY")->GetState(), stDisabled);
        QVERIFY(At("TUNER_HF_NB_SQUELCHMODE")->SetStoredText("1"));
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_THRESHOLD")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_SQUELCH_SYLLABIC")->GetState(), stDisabled);
        QVERIFY(At("TUNER_HF_NB_NF2_STATUS")->SetBool(true));
        QCOMPARE(At("TUNER_HF_NB_NF2_FREQUENCY")->GetState(), stEnabled);
        QCOMPARE(At("TUNER_HF_NB_NF1_FREQUENCY")->GetState(), stDisabled);
    }

    void rulesLetGoWhenValuesOrTheJobGo()
    {
        QVERIFY(Load(Job({})));
        m_tree.RemoveValue(node + QString("TUNER_HF_NB_NF1_FREQUENCY"));
        QVERIFY(At("TUNER_HF_NB_NF1_STATUS")->SetBool(true)); // its target is gone
        QCOMPARE(At("TUNER_HF_NB_NF1_BANDWIDTH")->GetState(), stEnabled);

        Listener listener; // removes the whole branch when the first rule of a change shows
        listener.heard = [&](Observable*, TChangeCode) { m_job->RemoveNode(QString(node)); };
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
        Listener listener;
        listener.heard = [&](Observable*, TChangeCode)
        {
            listener.heard = {};
            At("TUNER_HF_NB_NF1_STATUS")->SetBool(false);
        };
        At("TUNER_HF_NB_NF1_FREQUENCY")->Attach(&listener);
        QVERIFY(At("TUNER_HF_NB_NF1_STATUS")->SetBool(true));
        QCOMPARE(At("TUNER_HF_NB_NF1_FREQUENCY")->GetState(), stDisabled);
        QCOMPARE(At("TUNER_HF_NB_NF1_BANDWIDTH")->GetState(), stDisabled);
    }

    void savingKeepsThePreviousGeneration()
    {
        const QByteArray first = Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>");
        QVERIFY(Load(first));
        QVERIFY(!QFile::exists(Path("a.job.xml~")));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        QVERIFY2(m_job->Save(&m_error), qPrintable(m_error.ToText()));
        QCOMPARE(ReadBack("a.job.xml~"), first);
        QCOMPARE(ReadBack("a.job.xml"), QByteArray(first).replace("61", "62"));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("63"));
        QVERIFY(m_job->Save(&m_error));
        QCOMPARE(ReadBack("a.job.xml~"), QByteArray(first).replace("61", "62"));
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

    void aLinkStaysALinkWhenItsTargetIsSaved()
    {
        const QByteArray text = Job("<Value name=\"TUNER_HF_NB_MGCVALUE\">61</Value>");
        Write(text, "target.job.xml");
        QVERIFY(QFile::link(Path("target.job.xml"), Path("link.job.xml")));
        QVERIFY(m_job->Load(Path("link.job.xml")));
        QVERIFY(At("TUNER_HF_NB_MGCVALUE")->SetFromText("62"));
        QVERIFY2(m_job->Save(&m_error), qPrintable(m_error.ToText()));
        QVERIFY(QFileInfo(Path("link.job.xml")).isSymLink());
        QCOMPARE(ReadBack("target.job.xml"), QByteArray(text).replace("61", "62"));
        QCOMPARE(ReadBack("link.job.xml~"), text);
    }

    void aChangeOnDiskIsSeen()
    {
        QVERIFY(Load(Job({})));
        QVERIFY(!m_job->ChangedOnDisk());
        Write(Job("<!-- by another hand -->"));
        QCOMPARE(m_job->GetDiskState(), JobFile::DiskState::Changed);
        QVERIFY(m_job->Save(&m_error));
        QVERIFY(!m_job->ChangedOnDisk());
        QVERIFY(QFile::remove(Path("a.job.xml")));
        QCOMPARE(m_job->GetDiskState(), JobFile::DiskState::Vanished);
        QVERIFY(m_job->Save(&m_error));
        QVERIFY(!m_job->ChangedOnDisk());
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
        QString reason;
        const NodeSpec spec{.name = "C<", .type = "T", .groups = {"G_WDE_RASTER"}, .count = 2, .band = Band::Vuhf};
        Node* added = m_job->AddNode(u"/Jobs/A/", spec, &reason);
        QVERIFY2(added, qPrintable(reason));
        QVERIFY(Value("/Jobs/A/C</Range2/RasterRangeActive"));
        QVERIFY(Value("/Jobs/A/C</Range2/RasterRangeActive")->SetBool(false));
        QVERIFY(!m_job->AddNode(u"/Jobs/A", spec, &reason));
        QVERIFY(!m_job->AddNode(u"/Jobs/Nowhere", spec, &reason));
        QVERIFY(!m_job->AddNode(u"/Jobs/A", {.name = "D", .groups = {"G_NONE"}}, &reason));
        QVERIFY(!m_job->AddNode(u"/Jobs/A", {.name = "a/b"}, &reason));

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

        // A branch or a value that only the tree lost is not written either.
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

private:
    static QByteArray ReadResource(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

QTEST_GUILESS_MAIN(JobFileTest)
#include "test_jobfile.moc"
