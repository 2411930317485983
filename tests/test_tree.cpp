#include "common.h"
#include "value/idledisposal.h"
#include "value/tree.h"

#include <QtTest>
#include <cstdlib>
#include <map>
#include <random>

// Counts what the heap is asked for. The sanitizers bring an allocator of their own.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define COUNTS_ALLOCATIONS 1
static size_t allocations = 0;
extern "C" void* __libc_malloc(size_t size);
extern "C" void* malloc(size_t size) noexcept
{
    ++allocations;
    return __libc_malloc(size);
}
#endif

using namespace TKE;

namespace
{

const ValueDescriptor& text = ValueDescriptor::Plain(ValueKind::Text);

QStringList NamesOf(const std::vector<std::unique_ptr<Node>>& nodes)
{
    QStringList names;
    for (const auto& node : nodes)
        names += node->GetName().toString();
    return names;
}

} // namespace

class test_tree : public QObject
{
    Q_OBJECT

    Tree m_tree;

private slots:
    void cleanup() { m_tree.Clear(); }

    void WhatIsClearedLaterIsGoneAtOnceForAllWhoHoldIt()
    {
        constexpr int count = 5000; // more than goes in one step
        std::vector<ValueBase*> values;
        for (int i = 0; i < count; ++i)
            values.push_back(m_tree.CreateValue<TextValue>(QString("/A/%1/B/K%2").arg(i % 3).arg(i), text));
        int told = 0;
        Hearer hearer([&] { told += hearer.codes.back() == ccState && m_tree.ValueCount() == 0; });
        for (ValueBase* value : values)
            value->Attach(&hearer);
        m_tree.ClearLater();
        QCOMPARE(told, count);
        QVERIFY(m_tree.GetTopNodes().empty());
        QVERIFY(!m_tree.FindNode(u"/A/0"));
        QVERIFY(IdleDisposal::IsUnderWay());
        QCOMPARE(values.back()->GetPathName(), QString("/A/%1/B/K%2").arg((count - 1) % 3).arg(count - 1));
        // The place is free for others meanwhile.
        QVERIFY(m_tree.CreateValue<TextValue>(u"/A/0/B/K0", text));
        QTRY_VERIFY(!IdleDisposal::IsUnderWay());
        QCOMPARE(m_tree.ValueCount(), size_t(1));
        m_tree.Clear(); // the hearer holds nothing of what is gone
        QCOMPARE(told, count);
    }

    void AValueIsFoundByItsPathAndByNoOther_data()
    {
        const Table<QString, QString> row("path", "node");
        row("deep", "/Jobs/Demo/TDS_1/KEY", "/Jobs/Demo/TDS_1");
        row("below the root", "/K", "/");
        row("beside the root, in a node", "JOBMANAGEMENT/IPC_TYPE", "JOBMANAGEMENT");
        row("beside the root", "K", "");
        const QString letters(1000, QChar(0x65e5));
        row("long and not of this alphabet", "/" + letters + "/" + letters, "/" + letters);
    }
    void AValueIsFoundByItsPathAndByNoOther()
    {
        QFETCH(QString, path);
        QFETCH(QString, node);
        ValueBase* value = m_tree.CreateValue(path, text);
        QVERIFY(value);
        QCOMPARE(value->GetPathName(), path);
        QVERIFY(m_tree.FindValue(path) == value);
        QCOMPARE(value->GetNode()->GetPathName(), node == u"/" ? QString() : node);
        if (!node.isEmpty())
            QVERIFY(m_tree.FindNode(node) == value->GetNode());
        QVERIFY(m_tree.FindNode(value->GetNode()->GetBasePath()) == value->GetNode());
        QVERIFY(m_tree.FindValue(*value->GetNode(), value->GetName()) == value);
        for (const QString& other : {path + "/", "/" + path, path.chopped(1), path + "x", path.toLower(), path.mid(1),
                                     QString(), "/" + value->GetName()})
            QVERIFY2(other == path || !m_tree.FindValue(other), qPrintable(other));
        QVERIFY(!m_tree.CreateValue(path, text));
        QCOMPARE(m_tree.ValueCount(), size_t(1));
    }

    void ANodeIsFoundWithAndWithoutASlashAtTheEnd()
    {
        Node* node = m_tree.CreateNode(u"/Jobs/Demo/", QStringLiteral("JOB"));
        QVERIFY(m_tree.FindNode(u"/Jobs/Demo") == node && m_tree.FindNode(u"/Jobs/Demo/") == node);
        QVERIFY(m_tree.CreateNode(u"/Jobs/Demo") == node);
        QCOMPARE(node->GetTypeText(), QStringLiteral("JOB"));
        QCOMPARE(m_tree.CreateNode(u"/Jobs/Demo", QStringLiteral("TASK"))->GetTypeText(), QStringLiteral("TASK"));
        QVERIFY(node->GetParent() == m_tree.FindNode(u"/Jobs") &&
                node->GetParent()->GetParent() == m_tree.FindNode(u"/"));
        for (const char16_t* other :
             {u"", u"//", u"Jobs", u"/jobs/Demo", u"/Jobs/Demo//", u"/Jobs/Dem", u"/Jobs/Demo/TDS"})
            QVERIFY2(!m_tree.FindNode(other), qPrintable(QString::fromUtf16(other)));
    }

    void AValueAndANodeMayShareAPathAndKeysBelowANodeMayHoldSlashes()
    {
        Node* node = m_tree.CreateNode(u"/Jobs/SAME");
        ValueBase* value = m_tree.CreateValue(u"/Jobs/SAME", text);
        ValueBase* below = m_tree.CreateValue(*node, u"Data/WAVECOM/MODE", text);
        QCOMPARE(below->GetPathName(), QStringLiteral("/Jobs/SAME/Data/WAVECOM/MODE"));
        QVERIFY(m_tree.FindNode(u"/Jobs/SAME") == node && m_tree.FindValue(u"/Jobs/SAME") == value);
        m_tree.RemoveValue(u"/Jobs/SAME");
        QVERIFY(m_tree.FindNode(u"/Jobs/SAME") == node && !m_tree.FindValue(u"/Jobs/SAME"));
        QVERIFY(m_tree.FindValue(*node, u"Data/WAVECOM/MODE") == below);
        QVERIFY(!m_tree.FindValue(*node, u"/Data/WAVECOM/MODE") && !m_tree.FindValue(*node, u"MODE"));
    }

    void FindingAllocatesNothing()
    {
#ifdef COUNTS_ALLOCATIONS
        Node* node = m_tree.CreateNode(u"/Jobs/Demo/TDS_HFWB/CS_CLASS/CLASSIFIER");
        m_tree.CreateValue(*node, u"Data/TUNER_HF_NB_FREQUENCY", text);
        const QString path = QStringLiteral("/Jobs/Demo/TDS_HFWB/CS_CLASS/CLASSIFIER/Data/TUNER_HF_NB_FREQUENCY");
        const size_t before = allocations;
        const bool found = m_tree.FindValue(path) && m_tree.FindValue(*node, u"Data/TUNER_HF_NB_FREQUENCY") &&
                           m_tree.FindNode(u"/Jobs/Demo/") && !m_tree.FindValue(u"/Jobs/Demo/NONE");
        const size_t taken = allocations - before; // by now, since comparing may allocate too
        QCOMPARE(taken, size_t(0));
        QVERIFY(found);
        m_tree.CreateNode(u"/Other");
        QVERIFY(allocations > before); // it does count
#else
        QSKIP("the heap is not ours to watch");
#endif
    }

    void MakingAValueDoesNotAskTheHeapForEach()
    {
#ifdef COUNTS_ALLOCATIONS
        constexpr int count = 1000;
        std::vector<const QString*> names; // known already
        for (int i = 0; i < count; ++i)
            names.push_back(&Tree::Intern(QStringLiteral("V%1").arg(i)));
        Node* node = m_tree.CreateNode(u"/Jobs");
        const size_t before = allocations;
        for (const QString* name : names)
            m_tree.CreateValue(*node, *name, ValueDescriptor::Plain(ValueKind::Int), "7");
        QVERIFY2(allocations - before < count / 10, qPrintable(QString::number(allocations - before)));
#else
        QSKIP("the heap is not ours to watch");
#endif
    }

    void NodesAndValuesStandInTheOrderOfCreation()
    {
        for (const char* path : {"/b/x", "/a/y", "c/z", "/b/w"})
            m_tree.CreateValue(QString::fromUtf8(path), text);
        QCOMPARE(int(m_tree.GetTopNodes().size()), 2);
        QCOMPARE(NamesOf(m_tree.FindNode(u"/")->GetNodes()), QStringList({"b", "a"}));
        m_tree.RemoveBranch(u"/b");
        m_tree.CreateNode(u"/b");
        QCOMPARE(NamesOf(m_tree.FindNode(u"/")->GetNodes()), QStringList({"a", "b"}));
        m_tree.RemoveBranch(u"c/");
        QCOMPARE(int(m_tree.GetTopNodes().size()), 1);
        QVERIFY(m_tree.FindNode(u"/")->GetName().isEmpty());
    }

    void WhatEndsIsToldWholeAndWhoHearsMayRemoveMoreSwapTheTreeOrDeleteIt_data()
    {
        const Table<QString, QString> row("way", "further");
        for (const char* way : {"branch", "value", "clear", "clear later", "root"})
            for (const char* further : {"nothing", "/x", "/a", "/a/b", "all", "swap", "delete"})
                row(QString(way) + ", then " + further, way, further);
    }
    void WhatEndsIsToldWholeAndWhoHearsMayRemoveMoreSwapTheTreeOrDeleteIt()
    {
        QFETCH(QString, way);
        QFETCH(QString, further);
        auto tree = std::make_unique<Tree>();
        QStringList told;
        bool outOfReach = true, whole = true;
        Hearer hearer(
            [&]
            {
                const auto* value = static_cast<ValueBase*>(hearer.source);
                told += value->GetNode()->GetBasePath() + value->GetText();
                outOfReach =
                    outOfReach && value->GetState() == stReleased && !(tree && tree->FindValue(value->GetPathName()));
                for (const Node* node = value->GetNode(); node && way != u"value"; node = node->GetParent())
                    for (const auto& other : node->GetValues())
                        whole = whole && !other->GetText().isEmpty();
                if (further.startsWith(u'/'))
                    tree->RemoveBranch(further);
                else if (further == u"all")
                    tree->Clear();
                else if (further == u"swap")
                {
                    Tree other; // dies with all that was in the tree
                    tree->Swap(other);
                }
                else if (further == u"delete")
                    tree.reset();
            });
        QStringList paths{"/a/M", "/a/b/K", "/a/b/c/L", "/x/y/O"};
        for (const QString& path : std::as_const(paths))
        {
            ValueBase* value = tree->CreateValue(path, text);
            value->SetFromText(value->GetName());
            value->Attach(&hearer);
        }
        if (way == u"branch" || way == u"root")
            tree->RemoveBranch(way == u"root" ? u"/" : u"/a/b/");
        else if (way == u"value")
            tree->RemoveValue(u"/a/b/K");
        else
            way == u"clear" ? tree->Clear() : tree->ClearLater();
        if ((way == u"branch" || way == u"value") && (further.startsWith(u'/') || further == u"nothing"))
            paths = paths.filter(QRegularExpression((way == u"value" ? "^(/a/b/K|" : "^(/a/b/|") + further + "/)"));
        told.sort();
        QCOMPARE(told, paths);
        QVERIFY(outOfReach && whole);
        QVERIFY(further == u"delete" ? !tree : tree->ValueCount() == size_t(4 - paths.size()));
        QVERIFY(!tree || tree->CreateValue(u"/a/b/K", text)); // the place is free again
        QTRY_VERIFY(!IdleDisposal::IsUnderWay());
    }

    void ANodeThatIsRemovedAndATreeThatDiesTakeNoMoreValues_data()
    {
        EachText("way", {"branch", "clear", "clear later", "tree"});
    }
    void ANodeThatIsRemovedAndATreeThatDiesTakeNoMoreValues()
    {
        QFETCH(QString, way);
        auto tree = std::make_unique<Tree>();
        tree->CreateValue(u"/a/b/K", text);
        tree->CreateValue(u"c/L", text); // of another top node, which is told after the first
        Node* above = tree->FindNode(u"/a");
        int told = 0, made = 0;
        Hearer maker(
            [&, dying = tree.get()]
            {
                ++told;
                made += dying->CreateValue(*above, u"NEW", text) || dying->CreateValue(*above, u"d/NEW", text) ||
                        dying->CreateValue(*above, Tree::Intern(u"NEW"), text, "");
                made += way == u"tree" && dying->CreateValue(u"/x/NEW", text);
            });
        tree->FindValue(u"/a/b/K")->Attach(&maker);
        tree->FindValue(u"c/L")->Attach(&maker);
        if (way == u"branch")
            tree->RemoveBranch(u"/a");
        else if (way == u"clear")
            tree->Clear();
        else
            way == u"tree" ? tree.reset() : tree->ClearLater();
        QCOMPARE(told, way == u"branch" ? 1 : 2);
        QCOMPARE(made, 0);
        QVERIFY(!tree || !tree->FindNode(u"/a"));
        QTRY_VERIFY(!IdleDisposal::IsUnderWay());
    }

    void AValueMayBeRemovedWithinItsOwnWrite()
    {
        for (const ValueKind kind : {ValueKind::Text, ValueKind::Selection})
        {
            ValueBase* value = m_tree.CreateValue(u"/a/K", ValueDescriptor::Plain(kind));
            Hearer remover([&] { m_tree.RemoveBranch(u"/a"); });
            Hearer later;
            value->Attach(&remover);
            value->Attach(&later);
            QVERIFY(value->SetStoredText(QStringLiteral("1")));
            QCOMPARE(m_tree.ValueCount(), size_t(0));
            // The round of the write ended with the value; of its end all were told.
            QVERIFY(later.codes == std::vector<int>{ccState});
        }
    }

    void ValuesMadeWhileOthersEndStay()
    {
        Hearer maker([&] { m_tree.CreateValue(u"/a/NEW", text); });
        m_tree.CreateValue(u"/a/OLD", text)->Attach(&maker);
        m_tree.Clear();
        QVERIFY(m_tree.FindValue(u"/a/NEW") && !m_tree.FindValue(u"/a/OLD"));
        QCOMPARE(m_tree.FindNode(u"/a")->GetValues().size(), size_t(1));
    }

    void RandomGrowthAndRemovalKeepEveryPathRight_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void RandomGrowthAndRemovalKeepEveryPathRight()
    {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        const auto any = [&](int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); };
        const auto anyPath = [&]
        {
            QString path;
            for (int depth = any(4); depth >= 0; --depth)
                path += u'/' + QString::number(any(5));
            return path;
        };
        std::map<QString, ValueBase*> model;
        m_tree.Reserve(seed % 2 ? 0 : 100);
        for (const char16_t* missing : {u"", u"//", u"0", u"/0/"})
        {
            m_tree.RemoveBranch(missing);
            m_tree.RemoveValue(missing);
        }
        for (int step = 0; step < 20000; ++step)
        {
            const QString path = anyPath();
            const int choice = any(100);
            if (choice < 55)
            {
                ValueBase* value = m_tree.CreateValue(path, text);
                QCOMPARE(value != nullptr, model.try_emplace(path, value).second);
                QVERIFY(!value || value->SetFromText(path)); // what is made next takes the memory of what was removed
            }
            else if (choice < 98)
            {
                m_tree.RemoveValue(path);
                model.erase(path);
            }
            else
            {
                m_tree.RemoveBranch(path);
                std::erase_if(model, [&](const auto& entry) { return entry.first.startsWith(path + u'/'); });
            }
            const QString wanted = anyPath();
            const auto found = model.find(wanted);
            QVERIFY2(m_tree.FindValue(wanted) == (found == model.end() ? nullptr : found->second), qPrintable(wanted));
        }
        QCOMPARE(m_tree.ValueCount(), model.size());
        QVERIFY(model.size() > 50);
        for (const auto& [path, value] : model)
            QVERIFY(m_tree.FindValue(path) == value && value->GetPathName() == path && value->GetText() == path);
    }
};

QTEST_GUILESS_MAIN(test_tree)
#include "test_tree.moc"
