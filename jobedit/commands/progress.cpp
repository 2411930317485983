#include "progress.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace JOBEDIT
{

namespace
{

bool IsTerminal()
{
#ifdef Q_OS_UNIX
    return isatty(STDERR_FILENO);
#else
    return false;
#endif
}

void Show(const QString& line)
{
    std::fprintf(stderr, "\r\033[K%s", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

} // namespace

Progress::Progress(const QString& title) : m_title(title), m_terminal(IsTerminal())
{
    m_time.start();
}

Progress::~Progress()
{
    if (m_percent >= 0)
        Show({});
}

bool Progress::operator()(qint64 done, qint64 all)
{
    constexpr int patienceMs = 500;
    const int percent = all > 0 ? int(done * 100 / all) : 0;
    if (m_terminal && percent != m_percent && m_time.hasExpired(patienceMs))
    {
        m_percent = percent;
        Show(QStringLiteral("%1 %2 %").arg(m_title).arg(percent));
    }
    return true;
}

} // namespace JOBEDIT
