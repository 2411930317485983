#include "application/errorhandler.h"

#include <QtDebug>

#include <utility>

namespace TKE
{

namespace
{
// Reports that answer reports: beyond this depth two listeners are talking to each other for ever.
constexpr int maximumDepth = 8;
} // namespace

ErrorHandler& ErrorHandler::Interface()
{
    static ErrorHandler handler;
    return handler;
}

void ErrorHandler::Report(Severity severity, const QString& text, const QString& details) noexcept
{
    try
    {
        if (m_depth < maximumDepth)
            Deliver({severity, text, details});
        else
            qWarning("Report dropped, listeners keep answering each other: %s", qUtf8Printable(text));
    }
    catch (...)
    {
        // Out of memory: there is nobody left to tell.
    }
}

ErrorHandler::Subscription ErrorHandler::Subscribe(Listener listener)
{
    auto subscription = std::make_shared<const Listener>(std::move(listener));
    m_listeners.push_back(subscription);
    for (const ErrorReport& report : std::exchange(m_kept, {}))
        Call(*subscription, report);
    return subscription;
}

void ErrorHandler::Deliver(const ErrorReport& report)
{
    std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
    if (m_listeners.empty())
    {
        if (m_kept.size() == MaximumKept)
            m_kept.pop_front();
        m_kept.push_back(report);
        return;
    }
    const auto listeners = m_listeners; // the calls may change the list
    ++m_depth;
    for (const auto& entry : listeners)
    {
        if (const Subscription listener = entry.lock())
            Call(*listener, report);
    }
    --m_depth;
}

void ErrorHandler::Call(const Listener& listener, const ErrorReport& report) noexcept
{
    try
    {
        listener(report);
    }
    catch (const std::exception& failure)
    {
        qWarning("A listener failed on the report \"%s\": %s", qUtf8Printable(report.text), failure.what());
    }
    catch (...)
    {
        qWarning("A listener failed on the report \"%s\"", qUtf8Printable(report.text));
    }
}

} // namespace TKE
