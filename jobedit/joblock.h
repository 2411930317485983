#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

class QLockFile;

namespace JOBEDIT
{

/// The lock that somebody else has on the file of a job.
struct JobLock
{
    QString program{}; ///< empty: who it is cannot be read
    QString host{};
    QString user{};
    qint64 process = 0;
    QDateTime since{};

    /// Nothing when nobody has it, or when no lock can be made there: then nothing can be written either.
    static std::optional<JobLock> Of(const QString& fileName);
    /// The same, where it was tried to take the lock of that file.
    static std::optional<JobLock> Of(const QString& fileName, const QLockFile& tried);

    /// "jobedit of anna on north, process 123, since 2/29/24 11:05 PM"
    QString ToText() const;
    /// Whether only people can tell if its editor is still there: it runs on another computer.
    bool IsOutOfSight() const;
    /// False with the reason when it cannot be removed, or is another one by now.
    bool Remove(const QString& fileName, QString& reason) const;

    bool operator==(const JobLock&) const = default;
};

} // namespace JOBEDIT
