#include "value/idledisposal.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <deque>

namespace TKE
{

namespace
{

constexpr int sliceMs = 5; // for which the window does not answer

std::deque<std::function<bool()>>& Steps()
{
    static std::deque<std::function<bool()>> steps;
    return steps;
}

void RunSlice();

void Schedule()
{
    QTimer::singleShot(0, QCoreApplication::instance(), RunSlice);
}

void RunSlice()
{
    QElapsedTimer time;
    time.start();
    auto& steps = Steps();
    while (!steps.empty() && time.elapsed() < sliceMs)
    {
        if (!steps.front()())
            steps.pop_front();
    }
    if (!steps.empty())
        Schedule();
}

} // namespace

void IdleDisposal::Add(std::function<bool()> step)
{
    if (!QCoreApplication::instance())
    {
        while (step())
            ;
        return;
    }
    Steps().push_back(std::move(step));
    if (Steps().size() == 1)
        Schedule();
}

bool IdleDisposal::IsUnderWay()
{
    return !Steps().empty();
}

} // namespace TKE
