#include "commandjob.h"
#include "commandtext.h"
#include "jobdiff.h"
#include "jsonlist.h"

namespace JOBEDIT
{

namespace
{

/// One difference of two jobs. Of a node that only one of them has, the values are not named one by one.
struct Line
{
    Difference found;
    QString path; ///< in the first job, or where it would be there
    const TKE::ValueBase* left = nullptr;
    const TKE::ValueBase* right = nullptr;
};

std::vector<Line> Compare(const TKE::Tree& left, const QString& leftBase, const TKE::Tree& right,
                          const QString& rightBase)
{
    std::vector<Line> lines;
    for (const Difference& found : CompareTrees(left, leftBase, right, rightBase))
    {
        const QString path = leftBase + found.Path();
        if (found.IsNode())
            lines.push_back({found, path.chopped(1)});
        else
            lines.push_back({found, path, left.FindValue(path), right.FindValue(rightBase + found.Path())});
    }
    return lines;
}

void PrintText(const std::vector<Line>& lines, bool stored, QTextStream& out)
{
    const auto side = [&](const TKE::ValueBase* value)
    { return value ? CommandText::Escaped(CommandText::Of(*value, stored)) : Commands::tr("(no value)"); };
    const auto node = [](bool isThere, const QString& type) {
        return !isThere ? Commands::tr("(no node)") : type.isEmpty() ? Commands::tr("(node)") : type;
    };
    for (const Line& line : lines)
    {
        out << line.path << '\t';
        if (!line.found.IsNode())
            out << side(line.left) << '\t' << side(line.right) << '\n';
        else if (line.found.kind == Difference::Kind::Changed)
            out << node(true, line.found.leftStored) << '\t' << node(true, line.found.rightStored) << '\n';
        else
        {
            const bool isLeft = line.found.kind == Difference::Kind::OnlyLeft;
            out << node(isLeft, {}) << '\t' << node(!isLeft, {}) << '\n';
        }
    }
}

void PrintJson(const std::vector<Line>& lines, Call& call)
{
    const auto side = [](const TKE::ValueBase* value)
    {
        return value ? QJsonValue(
                           QJsonObject{{"value", CommandText::Of(*value, false)}, {"stored", value->GetStoredText()}})
                     : QJsonValue();
    };
    JsonList list(call.Out(), {{"left", call.GetArgument(0)}, {"right", call.GetArgument(1)}},
                  QStringLiteral("differences"));
    for (const Line& line : lines)
    {
        const Difference& found = line.found;
        if (!found.IsNode())
            list.Add({{"path", line.path}, {"what", "value"}, {"left", side(line.left)}, {"right", side(line.right)}});
        else if (found.kind == Difference::Kind::Changed)
            list.Add({{"path", line.path}, {"what", "type"}, {"left", found.leftStored}, {"right", found.rightStored}});
        else
            list.Add({{"path", line.path},
                      {"what", "node"},
                      {"only", found.kind == Difference::Kind::OnlyLeft ? "left" : "right"}});
    }
}

int Diff(Call& call)
{
    if (call.Has("with") && !call.Has("node"))
        return call.Misuse(Commands::tr("--with belongs to --node."));
    CommandJob left, right;
    if (!left.Load(call.GetArgument(0), call) || !right.Load(call.GetArgument(1), call))
        return esFinding;
    QString leftBase;
    QString rightBase;
    if (call.Has("node"))
    {
        const QString leftPath = call.GetValue("node");
        const QString rightPath = call.Has("with") ? call.GetValue("with") : leftPath;
        const TKE::Node* leftNode = left.FindNode(leftPath);
        const TKE::Node* rightNode = right.FindNode(rightPath);
        if (!leftNode)
            return call.Refuse(Commands::tr("%1: the job has no node %2.").arg(call.GetArgument(0), leftPath));
        if (!rightNode)
            return call.Refuse(Commands::tr("%1: the job has no node %2.").arg(call.GetArgument(1), rightPath));
        leftBase = leftNode->GetBasePath();
        rightBase = rightNode->GetBasePath();
    }
    const std::vector<Line> lines = Compare(left.GetTree(), leftBase, right.GetTree(), rightBase);
    if (call.WantsJson())
        PrintJson(lines, call);
    else
        PrintText(lines, call.Has("stored"), call.Out());
    return lines.empty() ? esGood : esFinding;
}

} // namespace

Command MakeDiff()
{
    return {.name = "diff",
            .arguments = "FILE1 FILE2",
            .summary = Commands::tr("lists what differs: path and both values"),
            .help = Commands::tr("Compares the contents of all values, whether they stand in the files or not. Exit "
                                 "status 1 when there is a difference."),
            .fewest = 2,
            .most = 2,
            .json = true,
            .options = {{"node", Commands::tr("Compares only this node of FILE1 ..."), "PATH"},
                        {"with", Commands::tr("... with this node of FILE2; the same when absent."), "PATH"},
                        {"stored", Commands::tr("The stored form: independent of language, items by key.")}},
            .run = Diff};
}

} // namespace JOBEDIT
