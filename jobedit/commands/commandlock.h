#pragma once

#include <QLockFile>

namespace JOBEDIT
{

/// Keeps other editors away from a file while a command writes it.
class CommandLock
{
public:
    explicit CommandLock(const QString& fileName);
    /// Who has the file open; empty when nobody else has.
    QString GetHolder() const;

private:
    QString m_fileName;
    QLockFile m_lock;
};

} // namespace JOBEDIT
