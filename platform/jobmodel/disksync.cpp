#include "jobmodel/disksync.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace TKE
{

#ifdef Q_OS_UNIX

bool DiskSync::File(int handle, QString* reason)
{
    int failed = 0;
    do
        failed = fdatasync(handle);
    while (failed && errno == EINTR);
    // The others say that this is nothing to be synced.
    if (!failed || (errno != EIO && errno != ENOSPC && errno != EDQUOT))
        return true;
    if (reason)
        *reason = qt_error_string(errno);
    return false;
}

void DiskSync::Directory(const QString& path)
{
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

#else

// QSaveFile asks for it where it can be done.
bool DiskSync::File(int, QString*)
{
    return true;
}

void DiskSync::Directory(const QString&) {}

#endif

} // namespace TKE
