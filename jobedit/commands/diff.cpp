#include "commandjob.h"
#include "commandtext.h"
#include "jsonlist.h"

namespace JOBEDIT
{

namespace
{

/// One difference of two jobs. Of a node that only one of them has, the values are not named one by one.
struct JobDifference
{
    QString path; ///< in the first job, or where it would be there
    const TKE::ValueBase* left = nullptr;
    const TKE::ValueBase* right = nullptr;
    bool isNode = false;
    bool leftHasNode = false;
};

const TKE::Node* FindChild(const TKE::Node& node, QStringView name)
{
    const auto& nodes = node.GetNodes();
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const auto& n) { return n->GetName() == name; });
    return found != nodes.end() ? found->get() : nullptr;
}

class JobComparison
{
public:
    JobComparison(const TKE::Tree& left, const TKE::Tree& right) : m_left(left), m_right(right) {}

    void Compare(const TKE::Node& left, const TKE::Node& right)
    {
        for (const auto& value : left.GetValues())
        {
            const TKE::ValueBase* other = m_right.FindValue(right, value->GetName());
            if (!other || other->GetStoredText() != value->GetStoredText())
                m_found.push_back({.path = value->GetPathName(), .left = value.get(), .right = other});
        }
        for (const auto& value : right.GetValues())
            if (!m_left.FindValue(left, value->GetName()))
                m_found.push_back({.path = left.GetBasePath() + value->GetName(), .right = value.get()});
        for (const auto& below : left.GetNodes())
        {
            if (const TKE::Node* other = FindChild(right, below->GetName()))
                Compare(*below, *other);
            else
                AddNode(below->GetPathName(), true);
        }
        for (const auto& below : right.GetNodes())
            if (!FindChild(left, below->GetName()))
                AddNode(left.GetBasePath() + below->GetName().toString(), false);
    }
    void CompareAll()
    {
        for (const TKE::Node* top : m_left.GetTopNodes())
        {
            if (const TKE::Node* other = m_right.FindNode(top->GetBasePath()))
                Compare(*top, *other);
            else
                AddNode(top->GetPathName(), true);
        }
        for (const TKE::Node* top : m_right.GetTopNodes())
            if (!m_left.FindNode(top->GetBasePath()))
                AddNode(top->GetPathName(), false);
    }
    const std::vector<JobDifference>& GetFound() const { return m_found; }

private:
    void AddNode(const QString& path, bool left)
    {
        m_found.push_back({.path = path, .isNode = true, .leftHasNode = left});
    }

    const TKE::Tree& m_left;
    const TKE::Tree& m_right;
    std::vector<JobDifference> m_found;
};

void PrintText(const std::vector<JobDifference>& differences, bool stored, QTextStream& out)
{
    const auto side = [&](const TKE::ValueBase* value)
    { return value ? CommandText::Escaped(CommandText::Of(*value, stored)) : Commands::tr("(no value)"); };
    for (const JobDifference& found : differences)
    {
        if (!found.isNode)
            out << found.path << '\t' << side(found.left) << '\t' << side(found.right) << '\n';
        else
            out << found.path << '\t' << (found.leftHasNode ? Commands::tr("(node)") : Commands::tr("(no node)"))
                << '\t' << (found.leftHasNode ? Commands::tr("(no node)") : Commands::tr("(node)")) << '\n';
    }
}

void PrintJson(const std::vector<JobDifference>& differences, Call& call)
{
    const auto side = [](const TKE::ValueBase* value)
    {
        return value ? QJsonValue(
                           QJsonObject{{"value", CommandText::Of(*value, false)}, {"stored", value->GetStoredText()}})
                     : QJsonValue();
    };
    JsonList list(call.Out(), {{"left", call.GetArgument(0)}, {"right", call.GetArgument(1)}},
                  QStringLiteral("differences"));
    for (const JobDifference& found : differences)
    {
        if (found.isNode)
            list.Add({{"path", found.path}, {"what", "node"}, {"only", found.leftHasNode ? "left" : "right"}});
        else
            list.Add(
                {{"path", found.path}, {"what", "value"}, {"left", side(found.left)}, {"right", side(found.right)}});
    }
}

int Diff(Call& call)
{
    if (call.Has("with") && !call.Has("node"))
        return call.Misuse(Commands::tr("--with belongs to --node."));
    CommandJob left, right;
    if (!left.Load(call.GetArgument(0), call) || !right.Load(call.GetArgument(1), call))
        return esFinding;
    JobComparison comparison(left.GetTree(), right.GetTree());
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
        comparison.Compare(*leftNode, *rightNode);
    }
    else
        comparison.CompareAll();
    if (call.WantsJson())
        PrintJson(comparison.GetFound(), call);
    else
        PrintText(comparison.GetFound(), call.Has("stored"), call.Out());
    return comparison.GetFound().empty() ? esGood : esFinding;
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
