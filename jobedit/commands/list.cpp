#include "commandjob.h"
#include "commandtext.h"
#include "jsonlist.h"

#include <QJsonArray>

namespace JOBEDIT
{

namespace
{

int ListNodes(const CommandJob& job, const TKE::JobFile& file, const QString& pattern, Call& call)
{
    const auto nodes = job.FindNodes(pattern);
    std::optional<JsonList> list;
    if (call.WantsJson())
        list.emplace(call.Out(), QJsonObject{{"file", call.GetArgument(0)}}, QStringLiteral("nodes"));
    for (const TKE::Node* node : nodes)
    {
        const TKE::NodeSpec& spec = *file.FindNodeSpec(node->GetBasePath());
        if (list)
            list->Add({{"path", node->GetPathName()},
                       {"type", spec.type},
                       {"band", spec.band == TKE::Band::Vuhf ? "VUHF" : "HF"},
                       {"groups", QJsonArray::fromStringList(spec.groups)},
                       {"count", spec.count}});
        else
            call.Out() << node->GetPathName() << '\t' << spec.type << '\n';
    }
    if (nodes.empty() && !pattern.isEmpty())
        return call.Refuse(Commands::tr("%1: the job has no node %2.").arg(call.GetArgument(0), pattern));
    return esGood;
}

int List(Call& call)
{
    CommandJob job;
    if (!job.Load(call.GetArgument(0), call))
        return esFinding;
    const QString pattern = call.GetArgument(1);
    if (call.Has("nodes"))
        return ListNodes(job, job.GetFile(), pattern, call);

    auto values = job.FindValues(pattern.isEmpty() ? QStringLiteral("*") : pattern);
    if (const TKE::Node* node = values.empty() ? job.FindNode(pattern) : nullptr)
        CommandJob::Collect(*node, values);
    const bool found = !values.empty() || pattern.isEmpty();
    if (call.Has("changed"))
        std::erase_if(values, [](const TKE::ValueBase* value)
                      { return value->GetStoredText() == value->GetDescriptor().defaultText; });
    std::optional<JsonList> list;
    if (call.WantsJson())
        list.emplace(call.Out(), QJsonObject{{"file", call.GetArgument(0)}}, QStringLiteral("values"));
    for (const TKE::ValueBase* value : values)
    {
        if (list)
            list->Add(CommandText::JsonOf(*value));
        else
            call.Out() << value->GetPathName() << '\t'
                       << CommandText::Escaped(CommandText::Of(*value, call.Has("stored"))) << '\t'
                       << value->GetDescriptor().unit << '\n';
    }
    if (!found)
        return call.Refuse(Commands::tr("%1: the job has no value %2.").arg(call.GetArgument(0), pattern));
    return esGood;
}

} // namespace

Command MakeList()
{
    return {.name = "list",
            .arguments = "FILE [PATTERN]",
            .summary = Commands::tr("lists values: path, value and unit"),
            .help = Commands::tr("PATTERN is the path of a value, or of a node to list all below it. \"*\" in it "
                                 "stands for any characters, \"?\" for one."),
            .fewest = 1,
            .most = 2,
            .json = true,
            .options = {{"changed", Commands::tr("Only values that differ from their defaults.")},
                        {"nodes", Commands::tr("The nodes instead: path and type.")},
                        {"stored", Commands::tr("The stored form: independent of language, items by key.")}},
            .run = List};
}

} // namespace JOBEDIT
