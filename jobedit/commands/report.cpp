#include "report.h"

#include "command.h"
#include "jobdocument.h"
#include "opening.h"
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
    if (!OpenForReading(document, call.GetArgument(0), call))
        return esFinding;
    TKE::FileError error;
    {
        Progress progress(Commands::tr("Writing %1:").arg(out));
        if (WriteReport(document, out, {.onlyChanges = call.Has("only-changes")}, std::ref(progress), error))
            return esGood;
    }
    return call.Refuse(error.ToText());
}

} // namespace

Command MakeReport()
{
    return {.name = "report",
            .arguments = "FILE",
            .summary = Commands::tr("writes the job as a document, HTML or PDF"),
            .help = Commands::tr(
                "One table per node with labels, values and units. What differs from its default is marked."),
            .fewest = 1,
            .most = 1,
            .draws = true,
            .options = {{"out", Commands::tr("The document, a file with the suffix .html or .pdf."), "FILE"},
                        {"only-changes", Commands::tr("Only values that differ from their default.")}},
            .run = RunReport};
}

} // namespace JOBEDIT
