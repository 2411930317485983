#include "commandjob.h"
#include "commandtext.h"
#include "jsonlist.h"

namespace JOBEDIT
{

namespace
{

int Get(Call& call)
{
    CommandJob job;
    if (!job.Load(call.GetArgument(0), call))
        return esFinding;
    const QStringList paths = call.GetArguments().mid(1);
    std::vector<TKE::ValueBase*> values;
    int status = esGood;
    for (const QString& path : paths)
    {
        const auto found = job.FindValues(path);
        if (found.empty())
            status = call.Refuse(Commands::tr("%1: the job has no value %2.").arg(call.GetArgument(0), path));
        values.insert(values.end(), found.begin(), found.end());
    }
    if (call.WantsJson())
    {
        JsonList list(call.Out(), {{"file", call.GetArgument(0)}}, QStringLiteral("values"));
        for (const TKE::ValueBase* value : values)
            list.Add(CommandText::JsonOf(*value));
        return status;
    }
    const bool stored = call.Has("stored");
    // One value as it stands, for scripts; several with their paths.
    const bool single = paths.size() == 1 && !CommandJob::IsPattern(paths.first());
    for (const TKE::ValueBase* value : values)
    {
        const QString text = CommandText::Of(*value, stored);
        if (single)
            call.Out() << text << '\n';
        else
            call.Out() << value->GetPathName() << '\t' << CommandText::Escaped(text) << '\n';
    }
    return status;
}

} // namespace

Command MakeGet()
{
    return {.name = "get",
            .arguments = "FILE PATH...",
            .summary = Commands::tr("prints values"),
            .help = Commands::tr("PATH is the whole path of a value, or its path below the job. \"*\" in it stands for "
                                 "any characters, \"?\" for one. Of one PATH without these the value alone is printed, "
                                 "else path, tab and value."),
            .fewest = 2,
            .json = true,
            .options = {{"stored", Commands::tr("The stored form: independent of language, items by key.")}},
            .run = Get};
}

} // namespace JOBEDIT
