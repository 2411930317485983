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

const QByteArray otherJob = declaration + QByteArray("<Job version=\"1\">\n"
                                                     "  <Node name=\"AB\" type=\"CS\" groups=\"G_TUNER_VUHF\"/>\n"
                                                     "</Job>\n");

} // namespace

class TestJobStructure : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;
    std::unique_ptr<JobFile> m_job;
    QString m_reason;

    // What somebody does to the job who hears of an operation, once.
    void Act(Hearer& once, const QString& act)
    {
        once.act = {};
        const QMap<QString, std::function<void()>> acts{{"remove above", [&] { m_job->RemoveNode(u"AB"); }},
                                                         {"remove another", [&] { m_job->RemoveNode(u"/Jobs/C"); }},
                                                         {"rename above", [&] { m_job->RenameNode(u"AB", "BA"); }},
                                                         {"copy above", [&] { m_job->DuplicateNode(u"AB", "BA"); }},
                                                         {"load", [&] { Load(otherJob); }},
                                                         {"die", [&] { m_job.reset(); }},
                                                         {"die and wait", [&] { m_job.reset(); }}};
        acts[act]();
        if (act == "load" || act == "die and wait") // a modal dialog, say
            QTest::qWait(1);
    }
    // That the tree holds what the job says, and the file the same again.
    void IsWhole()
    {
        QStringList missing;
        m_job->VisitNodes(
            [&](const QString& path, const NodeSpec& spec, const QString&)
            {
                const Node* node = Tree::Instance()->FindNode(path);
                if (!node || (!spec.groups.isEmpty() && node->GetValues().empty()))
                    missing << path;
            });
        QCOMPARE(missing, QStringList());
        const QByteArray bytes = m_job->ToUtf8();
        Load(bytes);
    }

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
    void init()
    {
        m_job = std::make_unique<JobFile>();
        m_reason.clear();
    }
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

    void namesThatCannotBeAreRefused()
    {
        Load(job);
        // Empty, no segment, two segments, and no node.
        for (const auto& [path, name] : {std::pair{"AB", ""}, {"AB/IN", ".."}, {"AB/IN", "a/b"}, {"NOWHERE", "a"}})
        {
            QString copyReason, renameReason;
            QVERIFY2(!m_job->DuplicateNode(QString(path), name, &copyReason), name);
            QVERIFY2(!m_job->RenameNode(QString(path), name, &renameReason), name);
            QVERIFY(!copyReason.isEmpty() && !renameReason.isEmpty());
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
        m_job->RemoveNode(u"AB"); // with the stranger, since nothing is to come back
        QCOMPARE(Paths(), QStringList());
        QVERIFY(!Tree::Instance()->FindNode(u"AB"));
        QVERIFY2(m_job->AddNode({}, {.name = "AB/X", .type = "T"}, &m_reason), qPrintable(m_reason));
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

    void whoHearsOfAnEndMayChangeTheJob_data()
    {
        const Table<QString, QString, QStringList> table("way", "act", "left");
        const auto row = [&](const QString& way, const QString& act, const QStringList& left)
        { table(way + ", then " + act, way, act, left); };
        row("remove", "remove above", {"/Jobs/C/"});
        row("remove", "remove another", {"AB/"});
        row("remove", "rename above", {"BA/", "/Jobs/C/"});
        row("remove", "copy above", {"AB/", "BA/", "/Jobs/C/"});
        row("remove", "load", {"AB/"});
        row("remove", "die", {});
        row("remove", "die and wait", {});
        row("rename", "remove above", {"/Jobs/C/"});
        row("rename", "remove another", {"AB/", "AB/NEW/"});
        row("rename", "copy above", {"AB/", "AB/NEW/", "BA/", "/Jobs/C/"});
        row("rename", "load", {"AB/"});
        row("rename", "die", {});
        row("rename", "die and wait", {});
    }
    void whoHearsOfAnEndMayChangeTheJob()
    {
        QFETCH(QString, way);
        QFETCH(QString, act);
        QFETCH(QStringList, left);
        Load(job);
        Hearer once([&] { Act(once, act); });
        ValueBase* value = Tree::Instance()->FindNode(u"AB/IN")->GetValues().front().get();
        const QString name = value->GetName();
        value->Attach(&once);
        if (way == "remove")
            m_job->RemoveNode(u"AB/IN");
        else
            QCOMPARE(m_job->RenameNode(u"AB/IN", "NEW", &m_reason), left.contains("AB/NEW/") || act == "die");
        QVERIFY(!once.act);
        if (!m_job)
        {
            QCOMPARE(At("AB/NEW/" + name) != nullptr, way == "rename" && act == "die"); // the tree keeps what it has
            return;
        }
        QCOMPARE(Paths(), left);
        IsWhole();
    }

    void whoHearsOfANewStateMayChangeTheJob_data()
    {
        const Table<QString, QString> row("way", "act");
        for (const char* way : {"add", "put back"})
            for (const char* act : {"remove above", "remove another", "load", "die", "die and wait"})
                row(QString(way) + ", then " + act, way, act);
    }
    void whoHearsOfANewStateMayChangeTheJob()
    {
        QFETCH(QString, way);
        QFETCH(QString, act);
        Load(job);
        std::shared_ptr<TakenNode> taken;
        if (way == "put back")
        {
            QVERIFY(m_job->DuplicateNode(u"/Jobs/C", "AB/X"));
            taken = m_job->TakeNode(u"AB/X");
        }
        // The host has made a value already that the rules of the new node disable.
        ValueBase* own = Tree::Instance()->CreateValue<IntValue>(u"AB/X/TUNER_HF_NB_MGCVALUE");
        Hearer once([&] { Act(once, act); });
        own->Attach(&once);
        const bool stays = act == "remove another" || act == "die";
        if (way == "add")
            QCOMPARE(m_job->AddNode({}, {.name = "AB/X", .type = "T", .groups = {"G_TUNER_HF"}}, &m_reason) != nullptr,
                     stays);
        else
            QCOMPARE(m_job->PutBackNode(*taken, &m_reason), stays);
        QVERIFY(!once.act);
        QCOMPARE(m_reason.isEmpty(), stays);
        if (m_job)
            IsWhole();
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
