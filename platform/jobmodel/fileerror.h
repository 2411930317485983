#pragma once

#include <QList>
#include <QString>

namespace TKE
{

/// What is wrong with a file, and where.
struct FileError
{
    enum class Severity
    {
        Warning, ///< the file can be used; what is named is kept as it stands
        Error,
    };

    Severity severity = Severity::Error;
    QString file{};
    qint64 line = 0;    ///< from 1; 0 when it concerns the file as a whole
    qint64 column = 0;  ///< characters, from 1
    QString itemPath{}; ///< full path of the node or value concerned; empty when there is none
    QString reason{};

    bool IsError() const { return severity == Severity::Error; }
    /// "file:line:column: item path: reason", without what is not known.
    QString ToText() const;
};

using FileErrors = QList<FileError>;

} // namespace TKE
