#include "report.h"

#include "command.h"
#include "jobdocument.h"
#include "progress.h"

#include <QFileInfo>

namespace JOBEDIT
{

namespace
{

int RunReport(Call& call)
{
    const QString out = call.GetValue("out");
    static const QStringList suffixes{"html", "htm", "pdf"};
    if (!suffixes.contains(QFileInfo(out).suffix().toLower()))
        return call.Misuse(Commands::tr("report needs --out FILE with the suffix .html or .pdf."));
    JobDocument document(JobDocument::ConfiguredModel());
    TKE::FileError error;
    {
        Progress progress(Commands::tr("Reading"));
        document.SetProgress(std::ref(progress));
        const bool opened = document.Open(call.GetArgument(0), JobDocument::Access::ReadOnly, error);
        document.SetProgress({});
        if (!opened)
            return call.Refuse(error.ToText());
    }
    Progress progress(Commands::tr("Writing"));
    if (!WriteReport(document, out, {.onlyChanges = call.Has("only-changes")}, std::ref(progress), error))
        return call.Refuse(error.ToText());
    return esGood;
}

} // namespace

Command MakeReport()
{
    return {.name = "report",
            .arguments = "FILE",
            .summary = Commands::tr("writes the job as a document, HTML or PDF"),
            .help = Commands::tr("One table per node with labels, values and units. What differs from its default is marked."),
            .fewest = 1,
            .most = 1,
            .draws = true,
            .options = {{"out", Commands::tr("File or directory to write."), "FILE"},
                        {"only-changes", Commands::tr("Only values that differ from their default.")}},
            .run = RunReport};
}

} // namespace JOBEDIT
