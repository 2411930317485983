#include "commandjob.h"
#include "commandlock.h"
#include "commandtext.h"
#include "typedvalue.h"

namespace JOBEDIT
{

namespace
{

struct Change
{
    const TKE::ValueBase* value;
    QString before;
};

/// Sets all that is asked for in the tree. False when something was refused; all refusals are told.
bool SetAll(CommandJob& job, Call& call, std::vector<Change>& changes)
{
    const bool stored = call.Has("stored");
    bool good = true;
    for (const QString& assignment : call.GetArguments().mid(1))
    {
        const QString path = assignment.section(u'=', 0, 0);
        const QString text = assignment.section(u'=', 1);
        TKE::ValueBase* value = job.FindValue(path);
        QString reason;
        if (!value)
            reason = Commands::tr("The job has no such value.");
        else
        {
            const QString before = CommandText::Of(*value, stored);
            const QString content = value->GetStoredText();
            const bool accepted = stored ? value->SetStoredText(text, nullptr, &reason)
                                         : TypedValue::Set(*value, text, QLocale(), reason);
            if (accepted && content != value->GetStoredText())
                changes.push_back({value, before});
            if (accepted)
                continue;
        }
        call.Refuse((value ? value->GetPathName() : path) + QLatin1String(": ") + reason);
        good = false;
    }
    return good;
}

int Set(Call& call)
{
    const QString file = call.GetArgument(0);
    for (const QString& assignment : call.GetArguments().mid(1))
        if (assignment.indexOf(u'=') < 1)
            return call.Misuse(Commands::tr("%1 is not of the form PATH=VALUE.").arg(assignment));
    const bool dryRun = call.Has("dry-run");
    const QString target = call.Has("out") ? call.GetValue("out") : file;

    std::optional<CommandLock> lock;
    if (!dryRun)
        lock.emplace(target);
    if (lock && !lock->GetHolder().isEmpty() && !call.Has("force"))
        return call.Refuse(Commands::tr("%1 is open in another editor: %2. --force writes it nevertheless.")
                               .arg(target, lock->GetHolder()));
    CommandJob job;
    if (!job.Load(file, call))
        return esFinding;

    std::vector<Change> changes;
    if (!SetAll(job, call, changes))
        return call.Refuse(Commands::tr("%1 was not changed.").arg(target));
    if (!dryRun && (!changes.empty() || call.Has("out")) && !job.SaveAs(target, call))
        return esFinding;
    for (const Change& change : changes)
        call.Out() << change.value->GetPathName() << '\t' << CommandText::Escaped(change.before) << '\t'
                   << CommandText::Escaped(CommandText::Of(*change.value, call.Has("stored"))) << '\n';
    return esGood;
}

} // namespace

Command MakeSet()
{
    return {.name = "set",
            .arguments = "FILE PATH=VALUE...",
            .summary = Commands::tr("changes values, all of them or none"),
            .help = Commands::tr(
                "VALUE is what one would type in the editor: 433.92M, an item's name or key, on or off. When a value "
                "is refused, nothing is written. Prints path, old and new value of what has changed. The previous "
                "version of the file stays beside it, with a \"~\" at the end of its name."),
            .fewest = 2,
            .options = {{"out", Commands::tr("Writes another file and leaves FILE alone."), "FILE"},
                        {"dry-run", Commands::tr("Only tells what would change.")},
                        {"stored", Commands::tr("The stored form: independent of language, items by key.")},
                        {"force", Commands::tr("Writes even what is open in another editor.")}},
            .run = Set};
}

} // namespace JOBEDIT
