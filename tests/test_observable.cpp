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

// What a random walk through attaching (more than once, too), detaching (also whom was never attached), notifying and
// dying must do, kept in the plainest way: each source has a list of links. In a round, exactly the links that stood at
// its beginning and still stand are called, in order.
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
        m_sources[source].source->Attach(nullptr);
        m_sources[source].source->Detach(nullptr);
        const auto link = std::find_if(links.begin(), links.end(), [&](const Link& l) { return l.hearer == hearer; });
        const int choice = Random(20);
        if (choice < 1)
            m_sources.erase(source);
        else if (choice < 3)
        {
            for (auto& [id, sounding] : m_sources)
                std::erase_if(sounding.links, [&](const Link& l) { return l.hearer == hearer; });
            m_hearers.erase(hearer);
        }
        else if (choice < 7)
        {
            if (link != links.end())
                links.erase(link);
            m_sources[source].source->Detach(m_hearers[hearer].get());
        }
        else if (choice < 10)
            NotifyRound(source, Random(3) ? 0 : hearer);
        else
        {
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
