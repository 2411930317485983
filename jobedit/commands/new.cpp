#include "commandjob.h"
#include "commandlock.h"
#include "largejob.h"

#include <QFileInfo>

namespace JOBEDIT
{

namespace
{

int New(Call& call)
{
    LargeJobPlan plan;
    bool isNumber = true;
    if (call.Has("chains"))
        plan.chains = call.GetValue("chains").toInt(&isNumber);
    if (!isNumber || (call.Has("chains") && plan.chains < 1) || plan.chains > 100'000)
        return call.Misuse(Commands::tr("--chains is a number from 1 to 100000."));
    if (call.Has("channels"))
        plan.channels = call.GetValue("channels").toInt(&isNumber);
    if (!isNumber || (call.Has("channels") && plan.channels < 1) || plan.channels > TKE::NodeSpec::maximumCount)
        return call.Misuse(Commands::tr("--channels is a number from 1 to %1.").arg(TKE::NodeSpec::maximumCount));
    if (call.Has("vary"))
        plan.seed = call.GetValue("vary").toUInt(&isNumber);
    if (!isNumber)
        return call.Misuse(Commands::tr("--vary is a number from 0."));
    if ((call.Has("vary") || call.Has("channels")) && !call.Has("chains"))
        return call.Misuse(Commands::tr("--channels and --vary belong to --chains."));
    plan.allValues = call.Has("all-values");

    const QString target = call.GetArgument(0);
    const CommandLock lock(target);
    if (!call.Has("force") && QFileInfo::exists(target))
        return call.Refuse(Commands::tr("%1 exists. --force replaces it.").arg(target));
    if (!call.Has("force") && !lock.GetHolder().isEmpty())
        return call.Refuse(Commands::tr("%1 is open in another editor: %2. --force writes it nevertheless.")
                               .arg(target, lock.GetHolder()));
    CommandJob job;
    if (!(call.Has("from") ? job.Load(call.GetValue("from"), call) : job.LoadSample(call)))
        return esFinding;
    LargeJob large(job.GetFile(), job.GetTree());
    if (!call.Has("chains"))
        plan.chains = large.CountChains();
    if (QString reason; !large.Grow(plan, reason))
        return call.Refuse(reason);
    return job.SaveAs(target, call) ? esGood : esFinding;
}

} // namespace

Command MakeNew()
{
    return {.name = "new",
            .arguments = "FILE",
            .summary = Commands::tr("writes a new job like the sample"),
            .help = Commands::tr("With --chains the tasks of the job are repeated under new names, for trying out how "
                                 "large jobs behave."),
            .fewest = 1,
            .most = 1,
            .options = {{"from", Commands::tr("Like this job instead of the sample."), "FILE"},
                        {"chains", Commands::tr("How many chains the job has in all."), "N"},
                        {"channels", Commands::tr("How many channels each new node has that has any."), "N"},
                        {"vary",
                         Commands::tr("Gives a third of the new values other contents; the same number gives "
                                      "the same contents."),
                         "NUMBER"},
                        {"all-values", Commands::tr("Writes every value, not only what differs from its default.")},
                        {"force", Commands::tr("Replaces FILE when it exists.")}},
            .run = New};
}

} // namespace JOBEDIT
