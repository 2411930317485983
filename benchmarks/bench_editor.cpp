// For how long the window of the editor does not answer while a job of a million values comes, goes and is filtered.

#include "largejob.h"

#include "jobedit/mainwindow.h"
#include "jobedit/nodepane.h"
#include "value/idledisposal.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

namespace
{

/// Milliseconds of the processor that this thread has used.
double Now()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

/// Lets the event loop run this long, and until nothing is left to delete.
void Settle(int milliseconds)
{
    do
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    } while (TKE::IdleDisposal::IsUnderWay());
}

/// The longest time between two ticks of a timer while `operation` runs, and after it.
double LongestStep(const std::function<bool()>& operation)
{
    double last = Now();
    double longest = 0;
    QTimer heart;
    heart.setTimerType(Qt::PreciseTimer);
    heart.callOnTimeout(
        [&]
        {
            longest = std::max(longest, Now() - last);
            last = Now();
        });
    heart.start(10);
    if (!operation())
        throw std::runtime_error("The job was not opened.");
    Settle(500);
    return longest;
}

struct Editor
{
    Editor() { window.show(); }

    LargeJobFile large;
    JOBEDIT::MainWindow window{TKE::JobModel::Load()};
};

Bench::Sides Opening(Editor& editor, bool isOpening)
{
    return {[&editor, isOpening]
            {
                const auto open = [&] { return editor.window.OpenFile(editor.large.GetFileName()); };
                const auto leave = [&] { return editor.window.NewFromSample(); };
                const double opening = LongestStep(open);
                const double leaving = LongestStep(leave);
                return isOpening ? opening : leaving;
            },
            {}};
}

Bench::Sides Filtering(Editor& editor)
{
    editor.window.OpenFile(editor.large.GetFileName());
    Settle(500);
    return {[&editor]
            {
                double longest = 0;
                for (const char* text : {"_", "_v", "_vu", "_vuh", "_vuhf", ""})
                {
                    const double begin = Now();
                    editor.window.Nodes().Filter()->setText(text);
                    longest = std::max(longest, Now() - begin);
                }
                return longest;
            },
            {}};
}

} // namespace

int main(int argc, char** argv)
{
    QHashSeed::setDeterministicGlobalSeed();
    Bench::TakeOptions(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    Editor editor;
    using enum Bench::Kind;
    Bench::Register({21, "ms of the longest step of opening", Amount, 100, 50}, 5,
                    [&] { return Opening(editor, true); });
    Bench::Register({22, "ms of the longest step of leaving", Amount, 100, 50}, 5,
                    [&] { return Opening(editor, false); });
    Bench::Register({23, "ms of a key of the node filter", Amount, 50, 20}, 9, [&] { return Filtering(editor); });
    return Bench::Run(argc, argv);
}
