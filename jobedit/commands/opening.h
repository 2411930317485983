#pragma once

#include <QString>

namespace JOBEDIT
{

class Call;
class JobDocument;

/// Opens the job of a file, or one like the sample without a name, for a command that only looks at it. Tells how far
/// it is. False when it cannot be read; the call's error stream says why.
bool OpenForReading(JobDocument& document, const QString& fileName, Call& call);

} // namespace JOBEDIT
