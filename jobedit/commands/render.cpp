#include "render.h"

#include "command.h"
#include "guidepictures.h"
#include "jobdocument.h"
#include "opening.h"

namespace JOBEDIT
{

namespace
{

int RunRender(Call& call)
{
    const QString entry = call.GetValue("entry");
    const QString form = call.GetValue("form");
    if (call.GetValue("out").isEmpty())
        return call.Misuse(Commands::tr("render needs --out DIR."));
    if (call.Has("entry") && !EntryNames().contains(entry))
        return call.Misuse(
            Commands::tr("There is no entry %1. There are: %2.").arg(entry, EntryNames().join(QLatin1String(", "))));
    if (call.Has("form") && form != QLatin1String("job") && form != QLatin1String("standalone"))
        return call.Misuse(Commands::tr("--form is job or standalone."));
    if (call.Has("guide") && (call.Has("entry") || call.Has("form") || !call.GetArguments().isEmpty()))
        return call.Misuse(
            Commands::tr("--guide shows the sample job, and takes neither FILE nor --entry nor --form."));

    if (call.Has("guide"))
        return MakeGuidePictures(JobDocument::ConfiguredModel(), call.GetValue("out"), call.Out(), call.Errors())
                   ? esGood
                   : esFinding;
    JobDocument document(JobDocument::ConfiguredModel());
    if (!OpenForReading(document, call.GetArgument(0), call))
        return esFinding;
    const RenderRequest request{call.GetValue("out"), entry,
                                form == QLatin1String("standalone") ? Form::StandAlone : Form::Job};
    return Render(document.GetNodes(), request, call.Out(), call.Errors()) ? esGood : esFinding;
}

} // namespace

Command MakeRender()
{
    return {.name = "render",
            .arguments = "[FILE]",
            .summary = Commands::tr("writes a picture of every tab of the dialogs"),
            .help = Commands::tr("Without a file the dialogs of the sample job."),
            .most = 1,
            .draws = true,
            .options = {{"out", Commands::tr("Directory that the pictures go into."), "DIR"},
                        {"entry", Commands::tr("Only the dialogs of this entry point or panel."), "NAME"},
                        {"form", Commands::tr("job (when absent) or standalone."), "FORM"},
                        {"guide", Commands::tr("Pictures of the editor itself, as its guide shows them.")}},
            .run = RunRender};
}

} // namespace JOBEDIT
