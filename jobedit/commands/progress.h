#pragma once

#include <QElapsedTimer>
#include <QString>

namespace JOBEDIT
{

/// Shows on standard error how far long work is: one line that is written over again and goes at the end. Nothing where
/// standard error is no terminal, or before the work has taken half a second.
class Progress
{
public:
    explicit Progress(const QString& title);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Never cancels: an interrupt ends the program, and a file being written keeps its old generation.
    bool operator()(qint64 done, qint64 all);

private:
    QString m_title;
    QElapsedTimer m_time;
    int m_percent = -1; ///< shown
    bool m_terminal;
};

} // namespace JOBEDIT
