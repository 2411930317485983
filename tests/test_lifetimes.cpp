// Values, nodes, jobs, observers, panels and dialogs come and go at random, within notifications too. Replayed and made
// longer by hand:
//   LIFETIMES_SEED=7 LIFETIMES_STEPS=2000 build/asan/tests/test_lifetimes

#include "analysis/classificatordlg.h"
#include "analysis/decoderdlg.h"
#include "analysis/demodulatordlg.h"
#include "analysis/generaldlg.h"
#include "exciter/exciterscudlg.h"
#include "exciter/wderasterdetectordlg.h"
#include "exciter/wdesimulationdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/excitergeneraldlg.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/wavecomdlg.h"
#include "jobmodel/jobfile.h"
#include "monkeylog.h"
#include "recording/surveillancedlg.h"
#include "scan/memoryscandlg.h"
#include "tuner/tunerddcdlg.h"
#include "tuner/tunerdlg.h"
#include "tuner/tunerwbdlg.h"
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

using MakePanel = QWidget* (*)(const QString& path, bool flag, bool readOnly);
template <class Panel, class... Arguments> QWidget* New(Arguments... arguments)
{
    return new Panel(arguments...);
}
constexpr std::array<MakePanel, 16> panels{
    [](const QString& p, bool, bool r) { return New<AutoRecordingDlg>(p, nullptr, false, r); },
    [](const QString& p, bool f, bool r) { return New<ClassificatorDlg>(p, f, f, false, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<DecoderDlg>(p, nullptr, f, true, r); },
    [](const QString& p, bool f, bool r) { return New<DemodulatorDlg>(p, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<ExciterGeneralDlg>(p, f, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<ExciterSCUDlg>(p, true, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<GeneralDlg>(p, nullptr, r, f); },
    [](const QString& p, bool f, bool r) { return New<MemoryScanDlg>(p, 3, true, f, nullptr, r); },
    [](const QString& p, bool, bool r) { return New<ShorttimeProfileDlg>(p, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<SurveillanceDlg>(p, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<TunerDDCDlg>(p, f, f, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<TunerDlg>(p, f, true, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<TunerWBDlg>(p, f, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<WavecomDlg>(p, nullptr, f, r); },
    [](const QString& p, bool f, bool r) { return New<WDERasterDetectorDlg>(p, 2, true, f, nullptr, r); },
    [](const QString& p, bool f, bool r) { return New<WDESimulationDlg>(p, 2, true, f, nullptr, r); },
};

using OpenDialog = void (*)(IPCParam& host, bool vuhf);
constexpr std::array<OpenDialog, 16> dialogs{
    [](IPCParam& h, bool v) { h.ClassifierDDCDlg(1, v, false, 1); },
    [](IPCParam& h, bool) { h.ClassifierDlg(2, 2); },
    [](IPCParam& h, bool v) { h.DataTransDDCDlg(1, v, true); },
    [](IPCParam& h, bool) { h.DataTransDlg(3, true); },
    [](IPCParam& h, bool v) { h.DetectionConventionalDDCDlg(1, v); },
    [](IPCParam& h, bool v) { h.ExciterDlg(1, v); },
    [](IPCParam& h, bool v) { h.FullDlg(4, v); },
    [](IPCParam& h, bool v) { h.GeneralExciterDlg(1, v); },
    [](IPCParam& h, bool v) { h.MemoryScanNBDlg(1, v, 4); },
    [](IPCParam& h, bool v) { h.RasterDetectorDlg(1, v, 2); },
    [](IPCParam& h, bool v) { h.TDSHeaderDDCDlg(1, v, false); },
    [](IPCParam& h, bool v) { h.TDSHeaderWBDlg(1, v, true, true); },
    [](IPCParam& h, bool) { h.TunerNBDlg(2); },
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
        std::vector<std::function<void()>> ends{[this] { m_hosts.clear(); },    [this] { m_panels.clear(); },
                                                [this] { m_meddlers.clear(); }, [this] { m_job.reset(); },
                                                [this] { m_other.Clear(); },    [] { Tree::Instance()->Clear(); }};
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
    struct Host
    {
        std::unique_ptr<IPCParam> dialog;
        int opening = 0; // what is being put together is not deleted
    };

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
                                            Choice{"remove node", 5, &World::RemoveNode},
                                            Choice{"remove branch", 2, &World::RemoveBranch},
                                            Choice{"copy node", 4, &World::CopyNode},
                                            Choice{"rename node", 4, &World::RenameNode},
                                            Choice{"take node", 3, &World::TakeNode},
                                            Choice{"put back", 4, &World::PutBack},
                                            Choice{"load", 1, &World::LoadAgain},
                                            Choice{"swap", 2, &World::Swap},
                                            Choice{"clear", 1, &World::Clear},
                                            Choice{"end the job", 1, &World::EndJob},
                                            Choice{"new host", 3, &World::NewHost},
                                            Choice{"open", 4, &World::Open},
                                            Choice{"delete host", 3, &World::DeleteHost},
                                            Choice{"new panel", 6, &World::NewPanel},
                                            Choice{"delete panel", 5, &World::DeletePanel},
                                            Choice{"type", 6, &World::Type},
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
        const std::function<void(Node*)> add = [&](Node* node)
        {
            nodes.push_back(node);
            for (const auto& below : node->GetNodes())
                add(below.get());
        };
        for (Node* node : TheTree().GetTopNodes())
            add(node);
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
        ValueBase* value = nullptr;
        if (!m_meddlers.empty() && Below(4))
            value = Any(m_meddlers)->held.Get();
        if (!value && !(value = AnyValue()))
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
    void RemoveNode()
    {
        if (const QString path = AnyJobPath(); m_job && Below(4))
            m_job->RemoveNode(path);
    }
    void RemoveBranch()
    {
        if (const Node* node = AnyNode(); node && node->GetParent())
            TheTree().RemoveBranch(node->GetBasePath());
    }
    void CopyNode()
    {
        if (const QString path = AnyJobPath(); path.count(u'/') > 3) // a small one
            m_job->DuplicateNode(path, "COPY" + QString::number(Below(5)));
    }
    void RenameNode()
    {
        if (const QString path = AnyJobPath(); !path.isEmpty())
            m_job->RenameNode(path, "NAME" + QString::number(Below(5)));
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
    void EndJob()
    {
        m_taken.clear();
        m_job.reset();
        if (Below(2))
            Load();
    }

    void NewHost()
    {
        const Node* node = AnyNode();
        if (!node || m_hosts.size() > 2)
            return;
        const QString path = node->GetBasePath();
        std::vector<QString> resources;
        m_hosts.push_back(std::make_shared<Host>());
        m_hosts.back()->dialog =
            Below(2) ? std::make_unique<IPCParam>(path, path, resources, path, path, QString(), path, "TKE")
                     : std::make_unique<IPCParam>(path, nullptr, Below(4) == 0, false, false, path, "TKE");
        Open();
    }
    void Open()
    {
        if (m_hosts.empty())
            return;
        const auto host = Any(m_hosts);
        ++host->opening;
        Any(dialogs)(*host->dialog, Below(2));
        --host->opening;
        if (Below(3))
            host->dialog->show();
    }
    void DeleteHost()
    {
        if (m_hosts.empty())
            return;
        const auto host = m_hosts.begin() + ptrdiff_t(Below(m_hosts.size()));
        if ((*host)->opening)
            return;
        const auto dying = std::move(*host);
        m_hosts.erase(host);
        if (Below(2))
            dying->dialog.release()->deleteLater();
    }
    void NewPanel()
    {
        const QString path = AnyJobPath();
        if (path.isEmpty() || m_panels.size() > 5)
            return;
        std::unique_ptr<QWidget> panel(Any(panels)(path, Below(2), Below(4) == 0));
        if (Below(3))
            panel->show();
        m_panels.push_back(std::move(panel));
    }
    void DeletePanel()
    {
        if (m_panels.empty())
            return;
        const auto panel = m_panels.begin() + ptrdiff_t(Below(m_panels.size()));
        const auto dying = std::move(*panel);
        m_panels.erase(panel);
    }
    // Into a field of what is shown.
    void Type()
    {
        if (m_depth > 0) // keys do not come within a notification
            return;
        QList<QWidget*> widgets; // in the same order for the same seed
        for (const auto& host : m_hosts)
            widgets << host->dialog->findChildren<QWidget*>();
        for (const auto& panel : m_panels)
            widgets << panel->findChildren<QWidget*>();
        QList<QWidget*> fields;
        for (QWidget* widget : std::as_const(widgets))
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
                fields << widget;
        if (fields.isEmpty())
            return;
        QPointer<QWidget> field = Any(fields);
        Note(field->metaObject()->className());
        field->setFocus();
        constexpr std::array keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_1, Qt::Key_Tab, Qt::Key_Return};
        for (size_t count = 1 + Below(4); field && count-- > 0;)
            QTest::keyClick(field, Any(keys));
    }
    void ShowTab()
    {
        if (m_hosts.empty())
            return;
        const auto host = Any(m_hosts);
        host->dialog->SetCurrentTab(int(Below(5)));
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
        if (m_meddlers.empty())
            return;
        Meddler& meddler = *Any(m_meddlers);
        meddler.held = AnyValue();
        const Node* node = meddler.held ? meddler.held->GetNode() : nullptr;
        for (size_t count = node ? Below(20) : 0; count-- > 0;)
            Any(node->GetValues())->Attach(&meddler);
    }
    void Detach()
    {
        if (m_meddlers.empty())
            return;
        Meddler& meddler = *Any(m_meddlers);
        if (ValueBase* value = meddler.held.Get())
            value->Detach(&meddler);
        meddler.held = nullptr;
    }
    void DeleteMeddler()
    {
        if (m_meddlers.empty())
            return;
        const auto meddler = m_meddlers.begin() + ptrdiff_t(Below(m_meddlers.size()));
        const auto dying = std::move(*meddler);
        m_meddlers.erase(meddler);
    }

    // Everything is found where it stands, and what is held is there.
    void CheckTree()
    {
        size_t count = 0;
        const std::function<void(const Node&)> check = [&](const Node& node)
        {
            QVERIFY2(TheTree().FindNode(node.GetBasePath()) == &node, qPrintable(node.GetBasePath()));
            for (const auto& value : node.GetValues())
            {
                ++count;
                QVERIFY2(TheTree().FindValue(value->GetPathName()) == value.get(), qPrintable(value->GetPathName()));
            }
            for (const auto& below : node.GetNodes())
                check(*below);
        };
        for (const Node* node : TheTree().GetTopNodes())
            check(*node);
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
    std::vector<std::shared_ptr<Host>> m_hosts;
    std::vector<std::unique_ptr<QWidget>> m_panels;
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
        Tree::Instance()->Clear();
        QTRY_VERIFY(!IdleDisposal::IsUnderWay());
        QCOMPARE(Tree::Instance()->ValueCount(), size_t(0));
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
    }
};

QTEST_MAIN(TestLifetimes)
#include "test_lifetimes.moc"
