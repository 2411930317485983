#include "command.h"
#include "jobdocument.h"
#include "opening.h"
#include "planexport.h"

#include <QFileInfo>

namespace JOBEDIT
{

namespace
{

constexpr QSize leastSize(1600, 600); // pixels

int RunPlan(Call& call)
{
    const QString out = call.GetValue("out");
    static const QStringList suffixes{"svg", "png"};
    if (!suffixes.contains(QFileInfo(out).suffix().toLower()))
        return call.Misuse(Commands::tr("plan needs --out FILE with the suffix .svg or .png."));
    JobDocument document(JobDocument::ConfiguredModel());
    if (!OpenForReading(document, call.GetArgument(0), call))
        return esFinding;
    TKE::FileError error;
    return ExportPlan(document, out, leastSize, error) ? esGood : call.Refuse(error.ToText());
}

} // namespace

Command MakePlan()
{
    return {.name = "plan",
            .arguments = "FILE",
            .summary = Commands::tr("writes the frequency plan of the job, SVG or PNG"),
            .help = Commands::tr("One line per chain with its frequencies, bandwidths and ranges."),
            .fewest = 1,
            .most = 1,
            .draws = true,
            .options = {{"out", Commands::tr("The picture, a file with the suffix .svg or .png."), "FILE"}},
            .run = RunPlan};
}

} // namespace JOBEDIT
