#pragma once

#include <QString>

namespace TKE
{

/// Brings what was written to the disk itself, so that it survives a power loss, as far as the disk keeps what it
/// says. Blocks until then: some milliseconds, on a busy disk far more.
class DiskSync
{
public:
    /// The content of an open file. False with the reason when it was lost; a file system that cannot do it is no
    /// reason.
    static bool File(int handle, QString* reason = nullptr);
    /// The names in a directory: of files that came, went or were renamed.
    static void Directory(const QString& path);
};

} // namespace TKE
