#include "commandlock.h"

#include "command.h"

#include <QFileInfo>

namespace JOBEDIT
{

CommandLock::CommandLock(const QString& fileName) : m_lock(QFileInfo(fileName).absoluteFilePath() + ".lock")
{
    m_lock.setStaleLockTime(0); // stale only when its holder is gone, however long it has been there
    m_taken = m_lock.tryLock(0);
}

QString CommandLock::GetHolder() const
{
    // Where no lock can be made, nothing can be written either, and that says why.
    if (m_taken || m_lock.error() != QLockFile::LockFailedError)
        return {};
    qint64 process = 0;
    QString host, program;
    if (!m_lock.getLockInfo(&process, &host, &program))
        return Commands::tr("another editor");
    return Commands::tr("%1 on %2, process %3").arg(program, host).arg(process);
}

} // namespace JOBEDIT
