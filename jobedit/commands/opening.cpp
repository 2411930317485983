#include "opening.h"

#include "command.h"
#include "jobdocument.h"
#include "progress.h"

namespace JOBEDIT
{

bool OpenForReading(JobDocument& document, const QString& fileName, Call& call)
{
    TKE::FileError error;
    {
        Progress progress(Commands::tr("Reading %1:").arg(fileName));
        document.SetProgress(std::ref(progress));
        const bool opened = fileName.isEmpty() ? document.NewFromSample(error)
                                               : document.Open(fileName, JobDocument::Access::ReadOnly, error);
        document.SetProgress({});
        if (opened)
            return true;
    }
    call.Refuse(error.ToText());
    return false;
}

} // namespace JOBEDIT
