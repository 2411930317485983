#include "joblock.h"

#include "application/qtcompat.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QSysInfo>

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class JobLockText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::JobLock)
};

QString LockFileOf(const QString& fileName)
{
    return QFileInfo(fileName).absoluteFilePath() + QStringLiteral(".lock");
}

} // namespace

std::optional<JobLock> JobLock::Of(const QString& fileName)
{
    QLockFile probe(LockFileOf(fileName));
    probe.setStaleLockTime(0); // a lock is stale only when its holder is gone, however long it has been there
    probe.tryLock(0);
    return Of(fileName, probe);
}

std::optional<JobLock> JobLock::Of(const QString& fileName, const QLockFile& tried)
{
    if (tried.isLocked() || tried.error() != QLockFile::LockFailedError)
        return {};
    const QFileInfo info(LockFileOf(fileName));
    JobLock lock{.user = info.owner(), .since = info.lastModified()};
    tried.getLockInfo(&lock.process, &lock.host, &lock.program);
    return lock;
}

QString JobLock::ToText() const
{
    const QString begin = QLocale().toString(since, QLocale::ShortFormat);
    if (program.isEmpty())
        return JobLockText::tr("another editor, since %1").arg(begin);
    if (user.isEmpty())
        return JobLockText::tr("%1 on %2, process %3, since %4").arg(program, host).arg(process).arg(begin);
    return JobLockText::tr("%1 of %2 on %3, process %4, since %5").arg(program, user, host).arg(process).arg(begin);
}

bool JobLock::IsOutOfSight() const
{
    return host.isEmpty() ? program.isEmpty() : host != QSysInfo::machineHostName();
}

bool JobLock::Remove(const QString& fileName, QString& reason) const
{
    const auto now = Of(fileName);
    if (now && *now != *this)
        reason = JobLockText::tr("another editor has it by now: %1").arg(now->ToText());
    else if (QFile file(LockFileOf(fileName)); now && !file.remove())
        reason = QStringLiteral("%1: %2").arg(file.fileName(), QtCompat::ErrorText(file));
    else
        return true;
    return false;
}

} // namespace JOBEDIT
