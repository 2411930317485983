// Values, nodes, jobs, observers and dialogs with their panels come and go at random, within notifications too.
// Replayed and made longer by hand:
//   LIFETIMES_SEED=7 LIFETIMES_STEPS=2000 build/asan/tests/test_lifetimes

#include "ipcparam/ipcparam.h"
#include "jobmodel/jobfile.h"
#include "monkeylog.h"
#include "value/idledisposal.h"
#include "value/valueobservingptr.h"

#include <QTest>
#include <QtWidgets>
#include <random>

using namespace TKE;

namespace
{

// What hashes give comes in the same order each time.
[[maybe_unused]] const bool isReplayed = qputenv("QT_HASH_SEED", "0");

constexpr int stepsInTest = 400;
constexpr int stepsBetweenChecks = 5;
constexpr int mostNested = 12; // steps within the notifications of one step
constexpr int deepest = 4;

using OpenDialog = void (*)(IPCParam& host, bool vuhf);
constexpr std::array<OpenDialog, 10> dialogs{
    [](IPCParam& h, bool v) { h.ClassifierDDCDlg(1, v, false, 1); },
    [](IPCParam& h, bool) { h.DataTransDlg(3, true); },
    [](IPCParam& h, bool v) { h.ExciterDlg(1, v); },
    [](IPCParam& h, bool v) { h.FullDlg(4, v); },
    [](IPCParam& h, bool v) { h.MemoryScanNBDlg(1, v, 4); },
    [](IPCParam& h, bool v) { h.RasterDetectorDlg(1, v, 2); },
    [](IPCParam& h, bool v) { h.TDSHeaderWBDlg(1, v, true, true); },
    [](IPCParam& h, bool v) { h.VoiceDDCDlg(1, v); },
    [](IPCParam& h, bool v) { h.WBTunerDlg(1, v, true); },
    [](IPCParam& h, bool v) { h.WDE_SimulationDlg(1, v, 3); },
};

class World
{
public:
    explicit World(unsigned seed) : m_random(seed)
    {
        Load();
        for (int i = 0; i < 10; ++i)
            NewMeddler();
    }
    ~World()
    {
        m_isEnding = true; // nobody meddles any more, but all still hear
        std::vector<std::function<void()>> ends{[this] { m_hosts.clear(); }, [this] { m_meddlers.clear(); },
                                                [this] { m_job.reset(); }, [this] { m_other.Clear(); },
                                                [] { Tree::Instance()->Clear(); }};
        std::shuffle(ends.begin(), ends.end(), m_random);
        for (const auto& end : ends)
            end();
    }

    void Step(int number)
    {
        m_number = number;
        m_nested = 0;
        if (TheTree().ValueCount() == 0)
            Load();
        Act();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        if (number % stepsBetweenChecks == 0)
            CheckTree();
    }
    int Calls() const { return m_calls; }
    int DeepestCall() const { return m_deepest; }

private:
    /// Holds values, and does something at random when one of them changes.
    struct Meddler : IObserver
    {
        explicit Meddler(World& w) : world(w) {}
        void Update(Observable*, TChangeCode) override { world.Heard(); }
        World& world;
        ValueObservingPtr<ValueBase> held{this};
    };
    using Host = std::shared_ptr<IPCParam>; // what is being put together is held

    void Load()
    {
        if (!m_job)
            m_job = std::make_unique<JobFile>();
        if (!m_job->LoadSample())
            qFatal("The sample does not load.");
    }
    Tree& TheTree() { return *Tree::Instance(); }
    size_t Below(size_t end) { return end ? m_random() % end : 0; }
    template <class List> auto& Any(List& list) { return *std::next(list.begin(), ptrdiff_t(Below(list.size()))); }
    /// Null when there is none.
    template <class List> auto* AnyOf(List& list) { return list.empty() ? nullptr : Any(list).get(); }
    template <class List> void DeleteAny(List& list)
    {
        if (list.empty())
            return;
        const auto at = list.begin() + ptrdiff_t(Below(list.size()));
        const auto dying = std::move(*at); // outlives its place in the list
        list.erase(at);
    }
    void ForEachNode(const std::function<void(Node&)>& act)
    {
        const std::function<void(Node&)> visit = [&](Node& node)
        {
            act(node);
            for (const auto& below : node.GetNodes())
                visit(*below);
        };
        for (Node* node : TheTree().GetTopNodes())
            visit(*node);
    }

    void Heard()
    {
        ++m_calls;
        if (m_isEnding || m_depth >= deepest || m_nested >= mostNested || Below(3) == 0)
            return;
        ++m_nested;
        ++m_depth;
        m_deepest = std::max(m_deepest, m_depth);
        Act();
        --m_depth;
    }

    void Act()
    {
        struct Choice
        {
            const char* name;
            size_t weight;
            void (World::*run)();
        };
        static constexpr std::array choices{Choice{"write", 30, &World::Write},
                                            Choice{"state", 8, &World::SetState},
                                            Choice{"remove value", 8, &World::RemoveValue},
                                            Choice{"make value", 6, &World::MakeValue},
                                            Choice{"change node", 13, &World::ChangeNode},
                                            Choice{"remove branch", 2, &World::RemoveBranch},
                                            Choice{"take node", 3, &World::TakeNode},
                                            Choice{"put back", 4, &World::PutBack},
                                            Choice{"swap", 2, &World::Swap},
                                            Choice{"clear", 1, &World::Clear},
                                            Choice{"load", 2, &World::LoadAgain},
                                            Choice{"new host", 6, &World::NewHost},
                                            Choice{"open", 6, &World::Open},
                                            Choice{"delete host", 6, &World::DeleteHost},
                                            Choice{"tab", 3, &World::ShowTab},
                                            Choice{"new meddler", 6, &World::NewMeddler},
                                            Choice{"attach", 25, &World::Attach},
                                            Choice{"detach", 6, &World::Detach},
                                            Choice{"delete meddler", 6, &World::DeleteMeddler}};
        size_t all = 0;
        for (const Choice& choice : choices)
            all += choice.weight;
        size_t at = Below(all);
        const Choice* choice = choices.data();
        for (; at >= choice->weight; ++choice)
            at -= choice->weight;
        MonkeyLog::Add(m_number, QByteArray(m_depth * 2, ' ') + choice->name);
        (this->*choice->run)();
    }
    void Note(const QString& text) { MonkeyLog::Add(m_number, QByteArray(m_depth * 2 + 2, ' ') + text.toUtf8()); }

    Node* AnyNode()
    {
        std::vector<Node*> nodes;
        ForEachNode([&](Node& node) { nodes.push_back(&node); });
        Node* node = nodes.empty() ? nullptr : Any(nodes);
        if (node)
            Note(node->GetBasePath());
        return node;
    }
    ValueBase* AnyValue()
    {
        for (int tries = 0; tries < 5; ++tries)
        {
            const Node* node = AnyNode();
            if (node && !node->GetValues().empty())
            {
                ValueBase* value = Any(node->GetValues()).get();
                Note(value->GetName());
                return value;
            }
        }
        return nullptr;
    }
    QString AnyJobPath()
    {
        QStringList paths;
        if (m_job)
            m_job->VisitNodes([&](const QString& path, const NodeSpec&, const QString&) { paths << path; });
        const QString path = paths.isEmpty() ? QString() : Any(paths);
        Note(path);
        return path;
    }

    // Of a value that somebody holds, mostly: others tell nobody.
    void Write()
    {
        const Meddler* meddler = Below(4) ? AnyOf(m_meddlers) : nullptr;
        ValueBase* value = meddler && meddler->held ? meddler->held.Get() : AnyValue();
        if (!value)
            return;
        if (value->GetKind() == ValueKind::Selection && !value->GetDescriptor().items.empty())
            static_cast<ValueSelection*>(value)->SelectKey(Any(value->GetDescriptor().items).GetKey());
        else if (value->GetKind() == ValueKind::Bool)
            value->SetBool(!value->GetBool());
        else
            value->SetStoredText(QString::number(Below(100)));
    }
    void SetState()
    {
        if (ValueBase* value = AnyValue())
            value->SetState(EnableState(Below(3)));
    }
    void RemoveValue()
    {
        if (const ValueBase* value = AnyValue())
            TheTree().RemoveValue(value->GetPathName());
    }
    void MakeValue()
    {
        if (Node* node = AnyNode())
            TheTree().CreateValue(*node, "V" + QString::number(Below(3)),
                                  ValueDescriptor::Plain(ValueKind(1 + Below(7))));
    }
    void ChangeNode()
    {
        const QString path = AnyJobPath();
        if (path.isEmpty())
            return;
        const size_t choice = Below(3);
        if (choice == 0)
            m_job->RemoveNode(path);
        else if (choice == 1)
            m_job->RenameNode(path, "NAME" + QString::number(Below(5)));
        else if (path.count(u'/') > 3) // a small one
            m_job->DuplicateNode(path, "COPY" + QString::number(Below(5)));
    }
    void RemoveBranch()
    {
        if (const Node* node = AnyNode(); node && node->GetParent())
            TheTree().RemoveBranch(node->GetBasePath());
    }
    void TakeNode()
    {
        if (const QString path = AnyJobPath(); !path.isEmpty())
        {
            if (auto taken = m_job->TakeNode(path))
                m_taken.push_back(std::move(taken));
        }
    }
    void PutBack()
    {
        if (m_taken.empty() || !m_job)
            return;
        const auto taken = m_taken.back();
        m_taken.pop_back();
        m_job->PutBackNode(*taken);
    }
    void LoadAgain()
    {
        m_taken.clear();
        if (Below(2))
            m_job.reset();
        if (m_job || Below(2))
            Load();
    }
    void Swap()
    {
        TheTree().Swap(m_other); // the job keeps looking at the tree that it has
    }
    void Clear()
    {
        Below(2) ? m_other.Clear() : m_other.ClearLater();
        if (Below(3) == 0)
            TheTree().Clear();
    }
    void NewHost()
    {
        const Node* node = AnyNode();
        if (!node || m_hosts.size() > 2)
            return;
        const QString path = node->GetBasePath();
        std::vector<QString> resources;
        auto* host = Below(2) ? new IPCParam(path, path, resources, path, path, QString(), path, "TKE")
                              : new IPCParam(path, nullptr, Below(4) == 0, false, false, path, "TKE");
        if (Below(2))
            m_hosts.emplace_back(host);
        else
            m_hosts.emplace_back(host, std::mem_fn(&QObject::deleteLater));
        Open();
    }
    void Open()
    {
        if (m_hosts.empty())
            return;
        const Host host = Any(m_hosts);
        Any(dialogs)(*host, Below(2));
        if (Below(3))
            host->show();
    }
    void DeleteHost() { DeleteAny(m_hosts); }
    void ShowTab()
    {
        if (!m_hosts.empty())
            Host(Any(m_hosts))->SetCurrentTab(int(Below(5)));
    }

    void NewMeddler()
    {
        if (m_meddlers.size() > 20)
            return;
        m_meddlers.push_back(std::make_unique<Meddler>(*this));
        Attach();
    }
    void Attach()
    {
        Meddler* meddler = AnyOf(m_meddlers);
        ValueBase* value = meddler ? AnyValue() : nullptr;
        if (!value)
            return;
        meddler->held = value;
        for (size_t count = Below(20); count-- > 0;)
            Any(value->GetNode()->GetValues())->Attach(meddler);
    }
    void Detach()
    {
        Meddler* meddler = AnyOf(m_meddlers);
        if (!meddler)
            return;
        if (ValueBase* value = meddler->held.Get())
            value->Detach(meddler);
        meddler->held = nullptr;
    }
    void DeleteMeddler() { DeleteAny(m_meddlers); }

    // Everything is found where it stands, and what is held is there.
    void CheckTree()
    {
        size_t count = 0;
        ForEachNode(
            [&](const Node& node)
            {
                QVERIFY2(TheTree().FindNode(node.GetBasePath()) == &node, qPrintable(node.GetBasePath()));
                count += node.GetValues().size();
                for (const auto& value : node.GetValues())
                    QVERIFY2(TheTree().FindValue(value->GetPathName()) == value.get(),
                             qPrintable(value->GetPathName()));
            });
        QCOMPARE(TheTree().ValueCount(), count);
        for (const auto& meddler : m_meddlers)
        {
            const ValueBase* value = meddler->held.Get();
            QVERIFY(!value || TheTree().FindValue(value->GetPathName()) == value ||
                    m_other.FindValue(value->GetPathName()) == value);
        }
    }

    std::mt19937 m_random;
    Tree m_other;
    std::unique_ptr<JobFile> m_job;
    std::vector<std::shared_ptr<TakenNode>> m_taken;
    std::vector<Host> m_hosts;
    std::vector<std::unique_ptr<Meddler>> m_meddlers;
    int m_number = 0, m_depth = 0, m_nested = 0, m_calls = 0, m_deepest = 0;
    bool m_isEnding = false;
};

} // namespace

class TestLifetimes : public QObject
{
    Q_OBJECT

private slots:
    void whatComesAndGoesAtRandomLeavesNothingBehind_data()
    {
        QTest::addColumn<unsigned>("seed");
        const QByteArray given = qgetenv("LIFETIMES_SEED");
        for (const QByteArray& seed : given.isEmpty() ? QByteArrayList{"1", "2", "3", "4"} : given.split(','))
            QTest::newRow(seed.constData()) << seed.toUInt();
    }
    void whatComesAndGoesAtRandomLeavesNothingBehind()
    {
        QFETCH(unsigned, seed);
        const int steps = qEnvironmentVariableIsSet("LIFETIMES_STEPS") ? qEnvironmentVariableIntValue("LIFETIMES_STEPS")
                                                                       : stepsInTest;
        MonkeyLog::Begin("LIFETIMES_SEED", seed);
        {
            World world(seed);
            for (int step = 1; step <= steps && !QTest::currentTestFailed(); ++step)
                world.Step(step);
            if (QTest::currentTestFailed())
                MonkeyLog::Print();
            // Those that run each time do meddle; others may have had bad luck.
            const bool isGiven = qEnvironmentVariableIsSet("LIFETIMES_SEED") || steps < stepsInTest;
            QVERIFY(isGiven || (world.Calls() > steps / 4 && world.DeepestCall() > 1));
        }
        MonkeyLog::End();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Tree::Instance()->Clear();
        QTRY_VERIFY(!IdleDisposal::IsUnderWay());
        QCOMPARE(Tree::Instance()->ValueCount(), size_t(0));
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
    }
};

QTEST_MAIN(TestLifetimes)
#include "test_lifetimes.moc"
