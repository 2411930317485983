#pragma once

#include <QString>
#include <vector>

namespace JOBEDIT
{

class JobDocument;

/// A content that is to go into the open job.
struct ValueChange
{
    QString path;   ///< of the value
    QString stored; ///< the content in stored form
    /// Whether a selection takes a key that it has no item for, as files may hold it.
    bool unknownItems = true;
};

/// A change that was not made, and why.
struct Refusal
{
    QString path;
    QString reason;
};

struct WriteResult
{
    int written = 0; ///< values that are now as wanted and were not before
    std::vector<Refusal> refused{};
    bool isCancelled = false; ///< nothing has changed
};

/// Writes these contents into the open job as one step of undo with that name. What cannot be written is left as it is.
/// The progress of the history is told, and may cancel it.
WriteResult WriteValues(JobDocument& document, const QString& stepName, const std::vector<ValueChange>& changes);

} // namespace JOBEDIT
