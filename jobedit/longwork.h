#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QFrame;
class QProgressBar;

namespace JOBEDIT
{

/// Work of the GUI thread that may take long: while it lives, the windows are painted and answer, but take no input
/// except the one that cancels it (Escape, the button, closing the window). After 300 ms a panel over the window shows
/// how far it is. Within another one it is a part of that one.
///
///     LongWork work(tr("Comparing"), window);
///     for (...)
///         if (!work.Progress(done, all))
///             return; // cancelled: leave everything as it was
class LongWork : public QObject
{
    Q_OBJECT

public:
    /// `window` may be null: nothing is shown then, and nobody can cancel.
    LongWork(QString title, QWidget* window);
    ~LongWork() override;

    /// To be called every 20 ms or more often; cheap. False once the user has cancelled.
    bool Progress(qint64 done, qint64 all);
    bool WasCancelled() const { return m_outer ? m_outer->WasCancelled() : m_cancelled; }
    void Cancel();

    static bool IsUnderWay() { return s_current; }

    static constexpr int ShownAfterMs = 300;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show();
    void LetWindowsAnswer();
    bool IsOwn(const QObject* object) const;
    bool IsOnPanel(const QEvent& press) const;

    inline static LongWork* s_current = nullptr; // the outermost

    LongWork* m_outer;
    QString m_title;
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_modal; // at the begin
    QPointer<QFrame> m_panel;
    QPointer<QProgressBar> m_bar;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceEvents;
    bool m_inEvents = false;
    bool m_cancelled = false;
};

} // namespace JOBEDIT
