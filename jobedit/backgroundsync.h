#pragma once

#include <QString>
#include <atomic>
#include <memory>

class QFileDevice;

namespace JOBEDIT
{

/// Brings a growing file to the disk again and again, in a thread of its own: a disk that is slow holds up nobody.
class BackgroundSync
{
public:
    /// All that was written to the file so far is on the disk soon. The file may be closed or removed meanwhile.
    void Start(const QFileDevice& file);

private:
    QString m_known; // the file that it was asked for last
    // One that waits takes what is written until it begins: there are never more of a file than it and those that run.
    std::shared_ptr<std::atomic<bool>> m_waits;
};

} // namespace JOBEDIT
