#pragma once

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace TKE
{

enum class Severity
{
    Info,
    Warning,
    Error
};

/// What went wrong, for a person to read.
struct ErrorReport
{
    Severity severity;
    QString text;
    QString details; ///< Empty when the text says it all.
};

/// Takes the reports of all parts of the program and hands them to whoever shows or collects them.
///
/// Reports that nobody listens to are kept (the latest MaximumKept of them) and delivered to the next listener that
/// subscribes. Listeners may subscribe, unsubscribe and report while they are called. GUI thread only.
class ErrorHandler
{
public:
    using Listener = std::function<void(const ErrorReport&)>;
    /// The listener hears reports as long as this lives; it may outlive the handler.
    using Subscription = std::shared_ptr<const Listener>;

    static constexpr size_t MaximumKept = 100;

    static ErrorHandler& Interface();

    /// Never throws, not even when a listener does.
    void Report(Severity severity, const QString& text, const QString& details = {}) noexcept;

    /// Listeners are called in the order of subscribing.
    [[nodiscard]] Subscription Subscribe(Listener listener);

    /// Forgets the reports kept for a later listener.
    void Clear() { m_kept.clear(); }

private:
    void Deliver(const ErrorReport& report);
    static void Call(const Listener& listener, const ErrorReport& report) noexcept;

    std::vector<std::weak_ptr<const Listener>> m_listeners;
    std::deque<ErrorReport> m_kept;
    int m_depth = 0; // of reports made by listeners while they hear one
};

} // namespace TKE
