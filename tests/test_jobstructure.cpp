#include "common.h"
#include "jobmodel/jobfile.h"

#include <QTemporaryDir>
#include <QTest>

using namespace TKE;

namespace
{

constexpr const char* declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

QByteArray Value(const QByteArray& name, const QByteArray& text)
{
    return "<Value name=\"" + name + "\">" + text + "</Value>";
}

// Written by hand, as people do.
const QByteArray job = declaration +
                       QByteArray("<Job version=\"1\">\n"
                                  "  <Node type='CS'\n\tname = 'A&#66;' groups=\"G_TUNER_HF\" x=\"name='no'\">\n"
                                  "    <!-- why --><Value  name='TUNER_HF_NB_MGCVALUE'> 061 </Value>\n"
                                  "    <Node name=\"IN\" type=\"T\" groups=\"G_TUNER_VUHF\"/> <Strange/>\n"
                                  "  </Node>\n"
                                  "  <Node name=\"/Jobs/C\" type=\"JOB\" groups=\"G_TUNER_HF\">\n    ") +
                       Value("TUNER_HF_NB_MGCVALUE", "60") + "\n  </Node>\n</Job>\n";

} // namespace

class TestJobStructure : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;
    std::unique_ptr<JobFile> m_job;
    QString m_reason;

    void Load(const QByteArray& text)
    {
        WriteAll(m_directory.filePath("a.job.xml"), text);
        FileError error;
        QVERIFY2(m_job->Load(m_directory.filePath("a.job.xml"), &error), qPrintable(error.ToText()));
        QCOMPARE(m_job->ToUtf8(), text);
    }
    static ValueBase* At(const QString& path) { return Tree::Instance()->FindValue(path); }
    QStringList Paths() const
    {
        QStringList paths;
        m_job->VisitNodes([&](const QString& path, const NodeSpec&, const QString&) { paths << path; });
        return paths;
    }

private slots:
    void init() { m_job = std::make_unique<JobFile>(); }
    void cleanup()
    {
        Tree::Instance()->SetJournal({});
        m_job.reset();
        Tree::Instance()->Clear();
    }

    void whatIsTakenComesBackWithItsBytes_data() { EachText("path", {"AB", "AB/IN", "/Jobs/C/"}); }
    void whatIsTakenComesBackWithItsBytes()
    {
        QFETCH(QString, path);
        Load(job);
        Tree::Instance()->SetJournal([](const JournalEntry&) { QFAIL("This is no edit."); });
        const QStringList paths = Paths();
        for (int round = 0; round < 2; ++round)
        {
            const auto taken = m_job->TakeNode(path);
            QVERIFY(taken);
            QVERIFY(!m_job->FindNodeSpec(path));
            QVERIFY(!Tree::Instance()->FindNode(path));
            QVERIFY(m_job->ToUtf8() != job);
            QVERIFY(m_job->PutBackNode(*taken, &m_reason));
            QCOMPARE(m_job->ToUtf8(), job);
            QCOMPARE(Paths(), paths);
        }
    }

    void editsAndRulesComeBackWithTheNode()
    {
        Load(job);
        QVERIFY(At("AB/TUNER_HF_NB_FREQUENCY")->SetStoredText("7000000"));
        const QByteArray edited = m_job->ToUtf8();
        QVERIFY(m_job->PutBackNode(*m_job->TakeNode(u"AB"), &m_reason));
        QCOMPARE(m_job->ToUtf8(), edited);
        ValueBase* control = At("AB/TUNER_HF_NB_GAIN_CTRL_METHOD");
        const EnableState state = At("AB/TUNER_HF_NB_MGCVALUE")->GetState();
        for (const SelectionItem& item : static_cast<ValueSelection*>(control)->GetItems())
            if (At("AB/TUNER_HF_NB_MGCVALUE")->GetState() == state)
                control->SetStoredText(QString::number(item.GetKey()));
        QVERIFY(At("AB/TUNER_HF_NB_MGCVALUE")->GetState() != state);
    }

    void aNodeThatIsRenamedKeepsItsBytesAndTheOldNameBringsItsOwn()
    {
        Load(job);
        QVERIFY2(m_job->RenameNode(u"AB", "Q \"<'", &m_reason), qPrintable(m_reason));
        QCOMPARE(m_job->ToUtf8(), QByteArray(job).replace("'A&#66;'", "\"Q &quot;&lt;'\""));
        QVERIFY(At("Q \"<'/TUNER_HF_NB_MGCVALUE")->IsExplicit());
        QCOMPARE(At("Q \"<'/TUNER_HF_NB_MGCVALUE")->GetText(), "61");
        QVERIFY(At("Q \"<'/IN/TUNER_VUHF_NB_FREQUENCY") || Tree::Instance()->FindNode(u"Q \"<'/IN"));
        QVERIFY(m_job->RenameNode(u"Q \"<'", "AB", &m_reason));
        QCOMPARE(m_job->ToUtf8(), job);
        QVERIFY(m_job->RenameNode(u"/Jobs/C", "/Other/C", &m_reason));
        QCOMPARE(m_job->ToUtf8(), QByteArray(job).replace("/Jobs/C", "/Other/C"));
    }

    void namesThatCannotBeAreRefused_data()
    {
        const Table<QString, QString> row("path", "name");
        row("empty", "AB", "");
        row("no segment", "AB/IN", "..");
        row("two segments", "AB/IN", "a/b");
        row("no node", "NOWHERE", "a");
    }
    void namesThatCannotBeAreRefused()
    {
        QFETCH(QString, path);
        QFETCH(QString, name);
        Load(job);
        for (const bool copy : {false, true})
        {
            m_reason.clear();
            QVERIFY(!(copy ? m_job->DuplicateNode(path, name, &m_reason) != nullptr
                           : m_job->RenameNode(path, name, &m_reason)));
            QVERIFY(!m_reason.isEmpty());
            QCOMPARE(m_job->ToUtf8(), job);
        }
    }

    void aNodeWithAStrangerBelowItStays()
    {
        const QByteArray text = QByteArray(job).replace("/Jobs/C", "AB/X");
        Load(text);
        QVERIFY(!m_job->TakeNode(u"AB", &m_reason));
        QVERIFY(m_reason.contains("AB"));
        QVERIFY(!m_job->RenameNode(u"AB", "B", &m_reason));
        QCOMPARE(m_job->ToUtf8(), text);
        QVERIFY(m_job->PutBackNode(*m_job->TakeNode(u"AB/X"), &m_reason));
        QCOMPARE(m_job->ToUtf8(), text);
    }

    void aCopyStandsBehindItsNodeWithTheSameContent()
    {
        Load(job);
        QVERIFY(At("AB/TUNER_HF_NB_FREQUENCY")->SetStoredText("7000000"));
        QVERIFY2(m_job->DuplicateNode(u"AB", "COPY", &m_reason), qPrintable(m_reason));
        QCOMPARE(Paths(), (QStringList{"AB/", "AB/IN/", "COPY/", "COPY/IN/", "/Jobs/C/"}));
        QCOMPARE(At("COPY/TUNER_HF_NB_FREQUENCY")->GetStoredText(), "7000000");
        const QByteArray bytes = m_job->ToUtf8();
        QCOMPARE(bytes.count("<!-- why -->"), 2);
        QVERIFY(At("COPY/TUNER_HF_NB_FREQUENCY")->SetStoredText("7000001"));
        QCOMPARE(At("AB/TUNER_HF_NB_FREQUENCY")->GetStoredText(), "7000000");
        QVERIFY(!m_job->DuplicateNode(u"AB", "COPY", &m_reason));
        m_job->RemoveNode(u"COPY");
        QVERIFY(m_job->PutBackNode(*m_job->TakeNode(u"AB"), &m_reason));
        const QByteArray one = m_job->ToUtf8();
        Load(bytes);
        QVERIFY(one.size() < bytes.size());
    }

    void aValueThatSeveralNodesHaveIsNeverLost()
    {
        Load(declaration + QByteArray("<Job version=\"1\">\n"
                                      "  <Node name=\"A\" type=\"T\" groups=\"G_IPCTYPE\"/>\n"
                                      "  <Node name=\"B\" type=\"T\" groups=\"G_IPCTYPE\"/>\n</Job>\n"));
        QVERIFY(At("JOBMANAGEMENT/IPC_TYPE")->SetStoredText("IPC_OTHER"));
        const QByteArray before = m_job->ToUtf8();
        QCOMPARE(before.count("<Value"), 1);
        const auto taken = m_job->TakeNode(u"A");
        QCOMPARE(m_job->ToUtf8().count("<Value"), 1); // B writes it now
        QVERIFY(m_job->PutBackNode(*taken, &m_reason));
        QCOMPARE(m_job->ToUtf8(), before);
        QVERIFY(m_job->DuplicateNode(u"A", "C", &m_reason));
        QCOMPARE(m_job->ToUtf8().count("<Value"), 1);
        for (const char* path : {"A", "B", "C"})
            m_job->RemoveNode(QString(path));
        QVERIFY(m_job->AddNode({}, {.name = "D", .type = "T", .groups = {"G_IPCTYPE"}}));
        QCOMPARE(m_job->ToUtf8().count("<Value"), 1);
    }
};

QTEST_MAIN(TestJobStructure)
#include "test_jobstructure.moc"
