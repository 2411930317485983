#include "commandjob.h"

#include "jobdocument.h"
#include "progress.h"

#include <algorithm>

namespace JOBEDIT
{

CommandJob::CommandJob()
{
    m_file.SetModel(JobDocument::ConfiguredModel());
}

bool CommandJob::Told(bool good, const TKE::FileError& error, Call& call)
{
    if (!good)
        call.Refuse(error.ToText());
    return good;
}

bool CommandJob::Load(const QString& fileName, Call& call)
{
    TKE::FileError error;
    bool isLoaded = false;
    {
        Progress progress(Commands::tr("Reading %1:").arg(fileName));
        m_file.SetProgress(std::ref(progress));
        isLoaded = m_file.Load(fileName, &error);
        m_file.SetProgress({});
    }
    if (isLoaded)
        Loaded();
    return Told(isLoaded, error, call);
}

bool CommandJob::LoadSample(Call& call)
{
    TKE::FileError error;
    if (!Told(m_file.LoadSample(&error), error, call))
        return false;
    Loaded();
    return true;
}

bool CommandJob::SaveAs(const QString& fileName, Call& call)
{
    TKE::FileError error;
    return Told(m_file.SaveAs(fileName, &error), error, call);
}

void CommandJob::Loaded()
{
    m_tops.clear();
    std::vector<const TKE::Node*> nodes;
    for (const TKE::Node* top : m_tree.GetTopNodes())
        CollectNodes(*top, false, nodes);
    for (const TKE::Node* node : nodes)
        m_tops << node->GetBasePath();
}

// `below`: those below a node of the job, too.
void CommandJob::CollectNodes(const TKE::Node& node, bool below, std::vector<const TKE::Node*>& nodes) const
{
    const bool own = m_file.FindNodeSpec(node.GetBasePath());
    if (own)
        nodes.push_back(&node);
    if (below || !own)
        for (const auto& child : node.GetNodes())
            CollectNodes(*child, below, nodes);
}

TKE::ValueBase* CommandJob::FindValue(const QString& path) const
{
    TKE::ValueBase* value = m_tree.FindValue(path);
    for (auto top = m_tops.begin(); !value && top != m_tops.end(); ++top)
        value = m_tree.FindValue(*top + path);
    return value;
}

TKE::Node* CommandJob::FindNode(const QString& path) const
{
    TKE::Node* node = m_tree.FindNode(path);
    for (auto top = m_tops.begin(); !node && top != m_tops.end(); ++top)
        node = m_tree.FindNode(*top + path);
    return node;
}

bool CommandJob::Matches(QStringView pattern, QStringView text)
{
    qsizetype p = 0, t = 0, star = -1, resume = 0;
    while (t < text.size())
    {
        if (p < pattern.size() && pattern[p] == u'*')
        {
            star = p++;
            resume = t;
        }
        else if (p < pattern.size() && (pattern[p] == u'?' || pattern[p] == text[t]))
        {
            ++p;
            ++t;
        }
        else if (star >= 0) // the last star takes one more
        {
            p = star + 1;
            t = ++resume;
        }
        else
            return false;
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

bool CommandJob::IsMatch(const QString& pattern, const QString& path) const
{
    return Matches(pattern, path) ||
           std::any_of(m_tops.begin(), m_tops.end(),
                       [&](const QString& top)
                       { return path.startsWith(top) && Matches(pattern, QStringView(path).mid(top.size())); });
}

void CommandJob::Collect(const TKE::Node& node, std::vector<TKE::ValueBase*>& values)
{
    for (const auto& value : node.GetValues())
        values.push_back(value.get());
    for (const auto& below : node.GetNodes())
        Collect(*below, values);
}

std::vector<TKE::ValueBase*> CommandJob::FindValues(const QString& pattern) const
{
    if (TKE::ValueBase* value = FindValue(pattern))
        return {value};
    std::vector<TKE::ValueBase*> values;
    if (!IsPattern(pattern))
        return values;
    for (const TKE::Node* top : m_tree.GetTopNodes())
        Collect(*top, values);
    std::erase_if(values, [&](const TKE::ValueBase* value) { return !IsMatch(pattern, value->GetPathName()); });
    return values;
}

std::vector<const TKE::Node*> CommandJob::FindNodes(const QString& pattern) const
{
    std::vector<const TKE::Node*> nodes;
    const TKE::Node* named = pattern.isEmpty() || IsPattern(pattern) ? nullptr : FindNode(pattern);
    if (named)
        CollectNodes(*named, true, nodes);
    else
        for (const TKE::Node* top : m_tree.GetTopNodes())
            CollectNodes(*top, true, nodes);
    if (!named && !pattern.isEmpty())
        std::erase_if(nodes, [&](const TKE::Node* node) { return !IsMatch(pattern, node->GetPathName()); });
    return nodes;
}

} // namespace JOBEDIT
