#include "backgroundsync.h"

#include "jobmodel/disksync.h"

#include <QFileDevice>
#include <QFileInfo>
#include <QThreadPool>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace JOBEDIT
{

void BackgroundSync::Start(const QFileDevice& file)
{
#ifdef Q_OS_UNIX
    QString directory; // of a file that is new there
    if (m_known != file.fileName())
    {
        m_known = file.fileName();
        directory = QFileInfo(m_known).path();
        m_waits = std::make_shared<std::atomic<bool>>(false);
    }
    if (m_waits->exchange(true))
        return;
    static QThreadPool pool; // painting waits for that of all
    pool.setMaxThreadCount(1);
    // A handle of its own, which stays open until then.
    pool.start(
        [waits = m_waits, handle = dup(file.handle()), directory]
        {
            waits->store(false);
            TKE::DiskSync::File(handle);
            close(handle);
            if (!directory.isEmpty())
                TKE::DiskSync::Directory(directory);
        });
#else
    Q_UNUSED(file);
#endif
}

} // namespace JOBEDIT
