#include "value/observable.h"

#include <QtTest>
#include <functional>
#include <map>
#include <memory>
#include <random>

using namespace TKE;

namespace
{

class Source final : public Observable
{
public:
    using Observable::Notify;
};

class Hearer final : public IObserver
{
public:
    explicit Hearer(std::function<void()> onUpdate = {}) : m_onUpdate(std::move(onUpdate)) {}
    void Update(Observable*, TChangeCode) override
    {
        ++heard;
        if (const auto action = m_onUpdate) // a copy: the action may delete this
            action();
    }
    int heard = 0;

private:
    std::function<void()> m_onUpdate;
};

// What a random walk through attaching, detaching, notifying and dying must do, kept in the plainest way: each source
// has a list of links. In a round, exactly the links that stood at its beginning and still stand are called, in order.
class Walk
{
public:
    explicit Walk(unsigned seed) : m_random(seed) {}

    void Run(int steps)
    {
        for (int i = 0; i < steps && m_fault.isEmpty(); ++i)
            Step();
    }
    const QString& Fault() const { return m_fault; }
    int Calls() const { return m_calls; }
    int DeepestRound() const { return m_deepest; }

private:
    struct Link
    {
        int hearer;
        int serial;
        bool operator==(const Link&) const = default;
    };
    struct Round
    {
        int source;
        int excluded;
        std::vector<Link> links; // as they stood at the beginning
        size_t next = 0;
    };
    class WalkingHearer final : public IObserver
    {
    public:
        WalkingHearer(Walk& walk, int id) : m_walk(walk), m_id(id) {}
        void Update(Observable*, TChangeCode) override { m_walk.Heard(m_id); }

    private:
        Walk& m_walk;
        int m_id;
    };
    struct Sounding
    {
        std::unique_ptr<Source> source;
        std::vector<Link> links;
    };

    int Random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }
    template <class Map> int Any(const Map& map) { return std::next(map.begin(), Random(int(map.size())))->first; }

    void Step()
    {
        if (m_sources.size() < 3)
            m_sources[++m_lastId].source = std::make_unique<Source>();
        if (m_hearers.size() < 6)
        {
            const int id = ++m_lastId;
            m_hearers[id] = std::make_unique<WalkingHearer>(*this, id);
        }
        const int source = Any(m_sources), hearer = Any(m_hearers);
        auto& links = m_sources[source].links;
        const auto link = std::find_if(links.begin(), links.end(), [&](const Link& l) { return l.hearer == hearer; });
        switch (Random(20))
        {
        case 0:
            m_sources.erase(source);
            break;
        case 1:
        case 2:
            for (auto& [id, sounding] : m_sources)
                std::erase_if(sounding.links, [&](const Link& l) { return l.hearer == hearer; });
            m_hearers.erase(hearer);
            break;
        case 3:
        case 4:
        case 5:
        case 6:
            if (link != links.end())
                links.erase(link);
            m_sources[source].source->Detach(m_hearers[hearer].get());
            break;
        case 7:
        case 8:
        case 9:
            NotifyRound(source, Random(3) ? 0 : hearer);
            break;
        default:
            if (link == links.end())
                links.push_back({hearer, ++m_lastId});
            m_sources[source].source->Attach(m_hearers[hearer].get());
        }
        if (m_sources.count(source) && m_sources[source].source->IsObserved() == m_sources[source].links.empty())
            m_fault = QStringLiteral("IsObserved is wrong");
    }

    void NotifyRound(int source, int excluded)
    {
        if (m_rounds.size() >= 5)
            return;
        m_rounds.push_back({source, excluded, m_sources[source].links});
        m_deepest = std::max(m_deepest, int(m_rounds.size()));
        m_sources[source].source->Notify(ccContent, excluded ? m_hearers[excluded].get() : nullptr);
        if (NextOf(m_rounds.back()))
            m_fault = QStringLiteral("a round ended early");
        m_rounds.pop_back();
    }

    // The hearer whose turn it is in a round; 0 at its end.
    int NextOf(Round& round) const
    {
        const auto sounding = m_sources.find(round.source);
        if (sounding == m_sources.end())
            return 0;
        const auto& links = sounding->second.links;
        for (; round.next < round.links.size(); ++round.next)
        {
            const Link& link = round.links[round.next];
            if (link.hearer != round.excluded && std::find(links.begin(), links.end(), link) != links.end())
                return link.hearer;
        }
        return 0;
    }

    void Heard(int hearer)
    {
        ++m_calls;
        if (m_rounds.empty() || NextOf(m_rounds.back()) != hearer)
        {
            m_fault = QStringLiteral("%1 was called out of turn").arg(hearer);
            return;
        }
        ++m_rounds.back().next;
        for (int i = Random(4); i > 0 && m_fault.isEmpty(); --i)
            Step();
    }

    std::mt19937 m_random;
    std::map<int, Sounding> m_sources;
    std::map<int, std::unique_ptr<WalkingHearer>> m_hearers;
    std::vector<Round> m_rounds;
    int m_lastId = 0, m_calls = 0, m_deepest = 0;
    QString m_fault;
};

} // namespace

class test_observable : public QObject
{
    Q_OBJECT

private slots:
    void ObserversAreCalledInTheOrderOfAttachingAndOnceEach_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("one") << 1;
        QTest::newRow("two") << 2;
        QTest::newRow("many") << 9;
    }
    void ObserversAreCalledInTheOrderOfAttachingAndOnceEach()
    {
        QFETCH(int, count);
        Source source;
        std::vector<int> order, expected;
        std::vector<std::unique_ptr<Hearer>> hearers;
        for (int i = 0; i < count; ++i)
        {
            expected.push_back(i);
            hearers.push_back(std::make_unique<Hearer>([&order, i] { order.push_back(i); }));
            source.Attach(hearers.back().get());
        }
        for (const auto& hearer : hearers)
            source.Attach(hearer.get());
        source.Attach(nullptr);
        source.Detach(nullptr);
        source.Notify(ccState);
        QVERIFY(order == expected);

        // A single Detach undoes both.
        for (const auto& hearer : hearers)
        {
            QVERIFY(source.IsObserved());
            source.Detach(hearer.get());
            source.Detach(hearer.get());
        }
        QVERIFY(!source.IsObserved());
        source.Notify(ccState);
        QVERIFY(order == expected);
    }

    void TheExcludedObserverAloneHearsNothing_data()
    {
        QTest::addColumn<bool>("alone");
        QTest::newRow("alone") << true;
        QTest::newRow("among others") << false;
    }
    void TheExcludedObserverAloneHearsNothing()
    {
        QFETCH(bool, alone);
        Source source;
        Hearer writer, other;
        source.Attach(&writer);
        if (!alone)
            source.Attach(&other);
        source.Notify(ccContent, &writer);
        QCOMPARE(writer.heard, 0);
        QCOMPARE(other.heard, alone ? 0 : 1);
        source.Notify(ccContent);
        QCOMPARE(writer.heard, 1);
    }

    void WhoLeavesWithinARoundIsNotCalledAnyMore_data()
    {
        QTest::addColumn<bool>("byDying");
        QTest::addColumn<int>("leaver");
        for (int leaver = 0; leaver < 3; ++leaver)
        {
            QTest::addRow("number %d is detached", leaver) << false << leaver;
            QTest::addRow("number %d is deleted", leaver) << true << leaver;
        }
    }
    // The middle one of three lets one of them go.
    void WhoLeavesWithinARoundIsNotCalledAnyMore()
    {
        QFETCH(bool, byDying);
        QFETCH(int, leaver);
        Source source;
        std::array<std::unique_ptr<Hearer>, 3> hearers;
        std::vector<int> called;
        for (int i = 0; i < 3; ++i)
        {
            hearers[size_t(i)] = std::make_unique<Hearer>(
                [&, i]
                {
                    called.push_back(i);
                    auto& leaving = hearers[size_t(leaver)];
                    if (i != 1 || !leaving)
                        return;
                    source.Detach(byDying ? nullptr : leaving.get());
                    if (byDying)
                        leaving.reset();
                });
            source.Attach(hearers[size_t(i)].get());
        }
        source.Notify(ccContent);
        QVERIFY(called == (leaver == 2 ? std::vector{0, 1} : std::vector{0, 1, 2}));
        called.clear();
        source.Notify(ccContent);
        QCOMPARE(int(called.size()), 2);
    }

    void WhoComesWithinARoundWaitsForTheNext_data() { TheExcludedObserverAloneHearsNothing_data(); }
    void WhoComesWithinARoundWaitsForTheNext()
    {
        QFETCH(bool, alone);
        Source source;
        Hearer late, other;
        Hearer early([&] { source.Attach(&late); });
        source.Attach(&early);
        if (!alone)
            source.Attach(&other);
        source.Notify(ccContent);
        QCOMPARE(late.heard, 0);
        source.Notify(ccContent);
        QCOMPARE(late.heard, 1);
    }

    void WhoLeavesAndComesBackWithinARoundWaitsForTheNext()
    {
        Source source;
        Hearer second;
        Hearer first(
            [&]
            {
                source.Detach(&second);
                source.Attach(&second);
            });
        source.Attach(&first);
        source.Attach(&second);
        source.Notify(ccContent);
        QCOMPARE(second.heard, 0);
        source.Detach(&first);
        source.Notify(ccContent);
        QCOMPARE(second.heard, 1);
    }

    void TheRoundEndsWhenTheObservedDies_data() { TheExcludedObserverAloneHearsNothing_data(); }
    void TheRoundEndsWhenTheObservedDies()
    {
        QFETCH(bool, alone);
        auto source = std::make_unique<Source>();
        Hearer killer([&] { source.reset(); });
        Hearer next;
        source->Attach(&killer);
        if (!alone)
            source->Attach(&next);
        source->Notify(ccContent);
        QVERIFY(!source);
        QCOMPARE(next.heard, 0);
    }

    void AllNestedRoundsEndWhenTheObservedDies()
    {
        auto source = std::make_unique<Source>();
        int depth = 0;
        Hearer killer([&] { ++depth < 4 ? source->Notify(ccContent) : source.reset(); });
        Hearer next;
        source->Attach(&killer);
        source->Attach(&next);
        source->Notify(ccContent);
        QCOMPARE(depth, 4);
        QCOMPARE(next.heard, 0);
    }

    void ANestedRoundReachesAllAndTheOuterOneGoesOn()
    {
        Source source;
        bool nested = false;
        Hearer first(
            [&]
            {
                if (!std::exchange(nested, true))
                    source.Notify(ccContent);
            });
        Hearer second;
        source.Attach(&first);
        source.Attach(&second);
        source.Notify(ccContent);
        QCOMPARE(first.heard, 2);
        QCOMPARE(second.heard, 2);
    }

    void ObserverAndObservedDieInEitherOrder_data()
    {
        QTest::addColumn<int>("sources");
        QTest::addColumn<int>("hearers");
        QTest::newRow("one of each") << 1 << 1;
        QTest::newRow("many observed by one") << 5 << 1;
        QTest::newRow("many observed by many") << 5 << 4;
    }
    void ObserverAndObservedDieInEitherOrder()
    {
        QFETCH(int, sources);
        QFETCH(int, hearers);
        for (const bool observersFirst : {true, false})
        {
            std::vector<std::unique_ptr<Source>> observed;
            std::vector<std::unique_ptr<Hearer>> observing;
            for (int i = 0; i < sources; ++i)
                observed.push_back(std::make_unique<Source>());
            for (int i = 0; i < hearers; ++i)
            {
                observing.push_back(std::make_unique<Hearer>());
                for (const auto& source : observed)
                    source->Attach(observing.back().get());
            }
            if (observersFirst)
            {
                observing.clear();
                for (const auto& source : observed)
                {
                    QVERIFY(!source->IsObserved());
                    source->Notify(ccContent);
                }
            }
            else
            {
                // One stays, so that the observers still have something to let go of.
                observed.resize(1);
                observed.front()->Notify(ccContent);
                for (const auto& hearer : observing)
                    QCOMPARE(hearer->heard, 1);
            }
        }
    }

    void RandomSequencesKeepAllPromises_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 8; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void RandomSequencesKeepAllPromises()
    {
        QFETCH(unsigned, seed);
        Walk walk(seed);
        walk.Run(5000);
        QVERIFY2(walk.Fault().isEmpty(), qPrintable(walk.Fault()));
        QVERIFY(walk.Calls() > 1000);
        QVERIFY(walk.DeepestRound() > 3);
    }
};

QTEST_GUILESS_MAIN(test_observable)
#include "test_observable.moc"
