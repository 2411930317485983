// Finding a field in a job of a million values, as somebody does who types.

#include "largejob.h"

#include "jobedit/fieldindex.h"

namespace
{

struct Job
{
    Job()
    {
        TKE::FileError error;
        if (!file.Load(large.GetFileName(), &error))
            throw std::runtime_error(error.ToText().toStdString());
    }

    LargeJobFile large;
    TKE::Tree tree;
    TKE::JobFile file{tree};
};

Job& Large()
{
    static Job job;
    return job;
}

/// Milliseconds of the processor that `work` takes: there is no yardstick that other load would fall on too.
template <class Work> double Milliseconds(Work work)
{
    const auto now = []
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
    };
    const double begin = now();
    work();
    return now() - begin;
}

Bench::Sides Finding(const QString& text)
{
    auto index = std::make_shared<JOBEDIT::FieldIndex>(Large().tree);
    index->Find(text, 1); // the first search makes the index
    return {[=]
            {
                qsizetype count = 0;
                const double time = Milliseconds([&] { count = index->Find(text, 200).count; });
                if (count == 0)
                    throw std::runtime_error("Nothing was found.");
                return time;
            },
            {}};
}

Bench::Sides MakingTheIndex()
{
    return {[]
            {
                JOBEDIT::FieldIndex index(Large().tree);
                return Milliseconds([&] { index.Find("gain", 200); });
            },
            {}};
}

} // namespace

int main(int argc, char** argv)
{
    QHashSeed::setDeterministicGlobalSeed();
    Bench::TakeOptions(argc, argv);
    using enum Bench::Kind;
    Bench::Register({18, "ms to find one word in a million", Amount, 50, 20}, 25, [] { return Finding("gain"); });
    Bench::Register({19, "ms to find three words and a path", Amount, 50, 20}, 25,
                    [] { return Finding("frequency hz cs_ 1"); });
    Bench::Register({20, "ms to make the index in slices", Amount, 1000, 300}, 5, MakingTheIndex);
    const int status = Bench::Run(argc, argv);
    std::printf("%zu values\n", Large().tree.ValueCount());
    return status;
}
