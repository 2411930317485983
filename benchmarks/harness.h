#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <malloc.h>
#include <string>
#include <vector>

/// Paired measurements. A goal is measured by running our side and the yardstick in turns within one process (ours,
/// yardstick, ours, ...), the first pair discarded; its figure is the median of the ratios of the pairs, so that
/// whatever else the machine does falls on both sides. The control compares our side with itself in the same turns:
/// away from 1 the row says more about the machine than about us.
///
/// Goals are registered as Google Benchmarks, so that its command line (--benchmark_filter=..., --benchmark_out=...)
/// serves.
namespace Bench
{

enum class Kind
{
    Share,  ///< ours / yardstick; less is better
    Faster, ///< yardstick / ours: "that many times faster"; more is better
    Amount, ///< ours alone, in the unit that the measure returns; less is better, and there is no yardstick
};

struct Goal
{
    int number;
    std::string what;
    Kind kind;
    double must; ///< 0: none, the row is there to compare with
    double aim;
};

/// One run of a side: returns what it cost, in any unit that both sides share.
using Measure = std::function<double()>;

/// The two sides of a goal. What they need lives in the closures and goes with them.
struct Sides
{
    Measure ours;
    Measure yardstick;
};

/// Whether only a quick run is wanted that shows that everything works; the figures mean nothing then.
inline bool& Smoke()
{
    static bool smoke = false;
    return smoke;
}

/// Whether fewer pairs do: the figures scatter more then.
inline bool& Short()
{
    static bool isShort = false;
    return isShort;
}

/// `full`, or `small` in a smoke run.
inline int Size(int full, int small)
{
    return Smoke() ? small : full;
}

/// Nanoseconds that `work` takes.
template <class Work> double Time(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count();
}

/// Bytes of heap in use, with the allocator's own overhead.
inline double HeapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// Bytes of heap that `work` has taken when it returns.
template <class Work> double Heap(Work work)
{
    const double before = HeapBytes();
    work();
    return HeapBytes() - before;
}

inline double Median(std::vector<double> numbers)
{
    if (numbers.empty())
        return 1.0;
    std::sort(numbers.begin(), numbers.end());
    const size_t middle = numbers.size() / 2;
    return numbers.size() % 2 ? numbers[middle] : (numbers[middle - 1] + numbers[middle]) / 2;
}

/// Registers a goal. `prepare` runs when the goal's turn comes; what it returns is measured in `pairs` pairs (and one
/// more, discarded).
inline void Register(const Goal& goal, int pairs, std::function<Sides()> prepare)
{
    const auto run = [=](benchmark::State& state)
    {
        for ([[maybe_unused]] auto once : state)
        {
            const Sides sides = prepare();
            std::vector<double> ours, yardstick, ratios, control;
            const int count = 1 + (Smoke() ? 2 : Short() ? std::min(pairs, 5) : pairs);
            for (int i = 0; i < count; ++i)
            {
                ours.push_back(sides.ours());
                yardstick.push_back(sides.yardstick ? sides.yardstick() : 1.0);
                ratios.push_back(goal.kind == Kind::Faster ? yardstick.back() / ours.back()
                                                           : ours.back() / yardstick.back());
                // Alternately one way and the other, so that a slow drift of the machine does not show.
                if (i >= 2)
                    control.push_back(i % 2 ? ours[i] / ours[i - 1] : ours[i - 1] / ours[i]);
            }
            const auto median = [](const std::vector<double>& all) { return Median({all.begin() + 1, all.end()}); };
            state.counters["ratio"] = median(ratios);
            state.counters["control"] = Median(control);
            state.counters["must"] = goal.must;
            state.counters["aim"] = goal.aim;
            state.counters["kind"] = double(int(goal.kind));
            state.counters["ours"] = median(ours);
            state.counters["yardstick"] = median(yardstick);
        }
    };
    const std::string name = std::to_string(goal.number) + " " + goal.what;
    benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(1);
}

/// Prints one row a goal.
class Table final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override
    {
        std::printf("%-52s %8s %8s %8s %8s  %-7s %10s %10s\n", "goal", "figure", "must", "aim", "control", "verdict",
                    "ours", "yardstick");
        return true;
    }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
        {
            const auto counter = [&](const char* name) { return run.counters.at(name).value; };
            const double ratio = counter("ratio");
            const bool moreIsBetter = int(counter("kind")) == int(Kind::Faster);
            const auto reaches = [&](double goal) { return moreIsBetter ? ratio >= goal : ratio <= goal; };
            const bool judged = !Smoke() && counter("must") > 0;
            m_missed = m_missed || (judged && !reaches(counter("must")));
            const char* verdict = !judged                    ? "-"
                                  : reaches(counter("aim"))  ? "aim"
                                  : reaches(counter("must")) ? "must"
                                                             : "MISSED";
            std::printf("%-52s %8.3f %8.2f %8.2f %8.3f  %-7s %10.4g %10.4g\n", run.run_name.function_name.c_str(),
                        ratio, counter("must"), counter("aim"), counter("control"), verdict, counter("ours"),
                        counter("yardstick"));
            std::fflush(stdout);
        }
    }
    bool HasMissed() const { return m_missed; }

private:
    bool m_missed = false;
};

/// Takes --smoke and --short from the command line. Call it first.
inline void TakeOptions(int& argc, char** argv)
{
    const auto take = [&](const char* option)
    {
        const auto last =
            std::remove_if(argv + 1, argv + argc, [&](const char* text) { return std::strcmp(text, option) == 0; });
        const bool isGiven = last != argv + argc;
        argc = int(last - argv);
        argv[argc] = nullptr;
        return isGiven;
    };
    Smoke() = take("--smoke");
    Short() = take("--short");
}

/// Measures what is registered and prints the table. Returns the exit status: 1 when a must is missed in a full run.
inline int Run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.HasMissed() ? 1 : 0;
}

} // namespace Bench
