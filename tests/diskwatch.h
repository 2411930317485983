#pragma once

#include <QByteArray>
#include <atomic>
#include <cerrno>
#include <functional>
#include <mutex>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

/// Sees what a test program brings to the disk: its calls of fsync and fdatasync go here, those of its libraries too.
class DiskWatch
{
public:
    struct Call
    {
        ino_t file;
        off_t size;
        bool isDirectory;
    };

    /// Called for each one, before it is done, in its thread; what it returns but 0 is the error it fails with.
    inline static std::function<int(int handle)> s_before;

    static std::vector<Call> Take()
    {
        const std::scoped_lock lock(s_mutex);
        return std::exchange(s_calls, {});
    }
    static struct stat Of(const QByteArray& path)
    {
        struct stat found = {};
        stat(path.constData(), &found);
        return found;
    }
    static int Do(long call, int handle)
    {
        struct stat found = {};
        fstat(handle, &found);
        if (const int error = s_before ? s_before(handle) : 0)
        {
            errno = error;
            return -1;
        }
        {
            const std::scoped_lock lock(s_mutex);
            s_calls.push_back({found.st_ino, found.st_size, S_ISDIR(found.st_mode)});
        }
        return int(syscall(call, handle));
    }

private:
    inline static std::mutex s_mutex;
    inline static std::vector<Call> s_calls;
};

extern "C" int fsync(int handle)
{
    return DiskWatch::Do(SYS_fsync, handle);
}
extern "C" int fdatasync(int handle)
{
    return DiskWatch::Do(SYS_fdatasync, handle);
}
