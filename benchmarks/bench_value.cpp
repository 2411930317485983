// The value framework against what Qt offers for the same: look-up by path against a hash by path, notification against
// signals.

#include "harness.h"

#include "value/tree.h"

#include <QHash>
#include <QHashSeed>
#include <QObject>
#include <numeric>
#include <random>

using namespace TKE;

namespace
{

ValueDescriptor NumberDescriptor()
{
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind::Int;
    descriptor.minimum = 0;
    descriptor.maximum = 1'000'000'000;
    return descriptor;
}
const ValueDescriptor number = NumberDescriptor();

// Paths as jobs have them: a hundred keys at each task, ten tasks a job with their nodes above.
std::vector<QString> MakePaths(int count)
{
    std::vector<QString> paths;
    paths.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
    {
        const int key = i % 100, task = i / 100 % 10, job = i / 1000;
        paths.push_back(QStringLiteral("/Jobs/Job%1/TDS_HFWB%2/CS_CLASS/CLASSIFIER/TUNER_KEY_%3_STATUS")
                            .arg(job)
                            .arg(task)
                            .arg(key));
    }
    return paths;
}

// A tree and a hash with the same values, and what each took.
struct World
{
    explicit World(int count) : paths(MakePaths(count))
    {
        treeBytes = Bench::Heap(
            [&]
            {
                tree.Reserve(paths.size()); // as whoever loads a file does
                for (const QString& path : paths)
                    tree.CreateValue(path, number);
            });
        hashBytes = Bench::Heap(
            [&]
            {
                hash.reserve(qsizetype(paths.size()));
                // Keys of their own, as a hash that is filled from a file has them.
                for (const QString& path : paths)
                    hash.insert(QString(path.constData(), path.size()), tree.FindValue(path));
            });
    }

    std::vector<QString> paths;
    Tree tree;
    QHash<QString, ValueBase*> hash;
    double treeBytes = 0;
    double hashBytes = 0;
};

// Paths to look for, copied, so that those of the hash are not the very same strings.
std::vector<QString> Choose(const World& world, int count, bool anywhere)
{
    std::mt19937 random(4711);
    std::uniform_int_distribution<size_t> any(0, world.paths.size() - 1);
    std::vector<QString> chosen;
    chosen.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
    {
        const QString& path = world.paths[anywhere ? any(random) : size_t(i)];
        chosen.emplace_back(path.constData(), path.size());
    }
    return chosen;
}

Bench::Sides LookUp(bool cold)
{
    auto world = std::make_shared<World>(Bench::Size(1'000'000, 10'000));
    // Hot: the values of one task over and over. Cold: a random walk through all of them.
    auto wanted =
        std::make_shared<std::vector<QString>>(Choose(*world, cold ? Bench::Size(200'000, 2'000) : 100, cold));
    const int repeats = cold ? 1 : Bench::Size(1'000, 10);
    const auto measure = [=](auto find)
    {
        return Bench::Time(
                   [&]
                   {
                       for (int i = 0; i < repeats; ++i)
                       {
                           for (const QString& path : *wanted)
                               benchmark::DoNotOptimize(find(path));
                       }
                   }) /
               double(repeats) / double(wanted->size());
    };
    return {[=] { return measure([&](const QString& path) { return world->tree.FindValue(path); }); },
            [=] { return measure([&](const QString& path) { return world->hash.value(path); }); }};
}

// The memory that one value takes; of many, since they get it in blocks.
double ChunkOfValue()
{
    constexpr int count = 100'000;
    std::vector<std::unique_ptr<IntValue>> values(count);
    static const QString name = QStringLiteral("NAME");
    return Bench::Heap(
               [&]
               {
                   for (auto& value : values)
                       value = std::make_unique<IntValue>(name, number);
               }) /
           count;
}

// All that the tree takes for a value beside its type, descriptor, content and observers: the index, the nodes, the
// names, and in the value the pointers to node and name.
Bench::Sides IndexBytes()
{
    auto world = std::make_shared<World>(Bench::Size(1'000'000, 10'000));
    const double count = double(world->paths.size());
    const double inValue = 2 * sizeof(void*);
    const double ours = world->treeBytes / count - ChunkOfValue() + inValue;
    const double yardstick = world->hashBytes / count;
    return {[=] { return ours; }, [=] { return yardstick; }};
}

struct Hearer final : IObserver
{
    void Update(Observable*, TChangeCode) override { ++heard; }
    int heard = 0;
};

struct OtherHearer final : IObserver
{
    void Update(Observable*, TChangeCode) override { --heard; }
    int heard = 0;
};

} // namespace

class Sender final : public QObject
{
    Q_OBJECT
public:
    void SetValue(int content)
    {
        if (content == m_content)
            return;
        m_content = content;
        emit Changed();
    }
signals:
    void Changed();

private:
    int m_content = 0;
};

class Receiver final : public QObject
{
    Q_OBJECT
public:
    void Slot_OnChanged() { ++heard; }
    int heard = 0;
};

namespace
{

constexpr size_t hearers = 8;

struct Audience
{
    std::array<Hearer, hearers> observers;
    OtherHearer other;
    std::array<Receiver, hearers> receivers;
    Tree tree;
    IntValue* value = tree.CreateValue<IntValue>(u"/Jobs/KEY", number);
    Sender sender;

    // All but the first `from` of each.
    void AttachFrom(size_t from)
    {
        for (size_t i = from; i < hearers; ++i)
        {
            value->Attach(&observers[i]);
            QObject::connect(&sender, &Sender::Changed, &receivers[i], &Receiver::Slot_OnChanged);
        }
    }
};

// Nanoseconds that one of many takes.
template <class Once> double TimeOfOne(int times, Once once)
{
    return Bench::Time(
               [&]
               {
                   for (int i = 1; i <= times; ++i)
                       once(i);
               }) /
           times;
}

Bench::Sides Notification()
{
    auto audience = std::make_shared<Audience>();
    audience->AttachFrom(0);
    // Each write changes something, the first of a run too, since the last of the run before was another number.
    const auto measure = [](auto& target)
    { return TimeOfOne(Bench::Size(200'000, 1'000), [&](int i) { target.SetValue(i); }); };
    return {[=] { return measure(*audience->value); }, [=] { return measure(audience->sender); }};
}

// What no notification that calls each observer can be faster than.
Bench::Sides BareCalls()
{
    auto audience = std::make_shared<Audience>();
    audience->AttachFrom(0);
    // Of two classes, or the compiler would guess the only one and call it directly.
    std::vector<IObserver*> observers{&audience->other};
    for (size_t i = 1; i < hearers; ++i)
        observers.push_back(&audience->observers[i]);
    const int times = Bench::Size(200'000, 1'000);
    return {[=]
            {
                return TimeOfOne(times,
                                 [&](int)
                                 {
                                     for (IObserver* observer : observers)
                                     {
                                         benchmark::DoNotOptimize(observer);
                                         observer->Update(audience->value, ccContent);
                                     }
                                 });
            },
            [=] { return TimeOfOne(times, [&](int i) { audience->sender.SetValue(i); }); }};
}

Bench::Sides Attaching(size_t others)
{
    auto audience = std::make_shared<Audience>();
    audience->AttachFrom(hearers - others);
    const int times = Bench::Size(50'000, 1'000);
    return {[=]
            {
                return TimeOfOne(times,
                                 [&](int)
                                 {
                                     audience->value->Attach(&audience->observers[0]);
                                     benchmark::ClobberMemory();
                                     audience->value->Detach(&audience->observers[0]);
                                     benchmark::ClobberMemory();
                                 });
            },
            [=]
            {
                Sender& sender = audience->sender;
                Receiver& receiver = audience->receivers[0];
                return TimeOfOne(times,
                                 [&](int)
                                 {
                                     QObject::connect(&sender, &Sender::Changed, &receiver, &Receiver::Slot_OnChanged);
                                     QObject::disconnect(&sender, &Sender::Changed, &receiver,
                                                         &Receiver::Slot_OnChanged);
                                 });
            }};
}

} // namespace

int main(int argc, char** argv)
{
    QHashSeed::setDeterministicGlobalSeed();
    Bench::TakeOptions(argc, argv);
    using enum Bench::Kind;
    Bench::Register({8, "find by path, a million values, cold", Share, 0.65, 0.45}, 31, [] { return LookUp(true); });
    Bench::Register({9, "find by path, hot", Share, 1.00, 0.75}, 31, [] { return LookUp(false); });
    Bench::Register({10, "bytes of index and node per value", Share, 0.35, 0.24}, 2, IndexBytes);
    Bench::Register({11, "bytes of a whole idle value", Amount, 80, 64}, 2,
                    [] {
                        return Bench::Sides{ChunkOfValue, {}};
                    });
    Bench::Register({12, "set and notify 8 observers", Faster, 8, 11}, 61, Notification);
    Bench::Register({12, "for comparison: 8 bare virtual calls", Faster, 0, 0}, 61, BareCalls);
    Bench::Register({13, "attach and detach", Faster, 20, 50}, 61, [] { return Attaching(0); });
    Bench::Register({13, "for comparison: beside 7 others", Faster, 0, 0}, 61, [] { return Attaching(hearers - 1); });
    return Bench::Run(argc, argv);
}

#include "bench_value.moc"
