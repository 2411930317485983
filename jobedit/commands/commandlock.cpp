#include "commandlock.h"

#include "joblock.h"

#include <QFileInfo>

namespace JOBEDIT
{

CommandLock::CommandLock(const QString& fileName)
    : m_fileName(QFileInfo(fileName).absoluteFilePath()), m_lock(m_fileName + ".lock")
{
    m_lock.setStaleLockTime(0); // stale only when its holder is gone, however long it has been there
    m_lock.tryLock(0);
}

QString CommandLock::GetHolder() const
{
    const auto lock = JobLock::Of(m_fileName, m_lock);
    return lock ? lock->ToText() : QString();
}

} // namespace JOBEDIT
