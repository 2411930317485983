#include "commandjob.h"

#include "jobdocument.h"
#include "progress.h"
#include "value/value.h"
#include "value/valueselection.h"
#include "valuewidgets/showntext.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

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
    {
        Progress progress(Commands::tr("Reading %1:").arg(fileName));
        m_file.SetProgress([&](qint64 done, qint64 all) { return progress(done, all); });
        const bool good = m_file.Load(fileName, &error);
        m_file.SetProgress({});
        if (good)
            Loaded();
        else
            progress(1, 1);
    }
    return Told(error.reason.isEmpty(), error, call);
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
                       { return path.startsWith(top) && Matches(pattern, QStringView(path).sliced(top.size())); });
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

CommandLock::CommandLock(const QString& fileName) : m_lock(QFileInfo(fileName).absoluteFilePath() + ".lock")
{
    m_lock.setStaleLockTime(0); // stale only when its holder is gone, however long it has been there
    m_taken = m_lock.tryLock(0);
}

QString CommandLock::GetHolder() const
{
    // Where no lock can be made, nothing can be written either, and that says why.
    if (m_taken || m_lock.error() != QLockFile::LockFailedError)
        return {};
    qint64 process = 0;
    QString host, program;
    if (!m_lock.getLockInfo(&process, &host, &program))
        return Commands::tr("another editor");
    return Commands::tr("%1 on %2, process %3").arg(program, host).arg(process);
}

QString CommandText::Of(const TKE::ValueBase& value, bool stored)
{
    return stored ? value.GetStoredText() : TKE::ShownText::Of(value, QLocale());
}

QString CommandText::Escaped(QString text)
{
    return text.replace(u'\\', QLatin1String("\\\\"))
        .replace(u'\t', QLatin1String("\\t"))
        .replace(u'\n', QLatin1String("\\n"))
        .replace(u'\r', QLatin1String("\\r"));
}

QJsonObject CommandText::JsonOf(const TKE::ValueBase& value)
{
    static constexpr const char* kinds[] = {"",     "bool",     "integer", "number",   "frequency",
                                            "text", "datetime", "list",    "selection"};
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    const auto limit = [](const std::optional<double>& number) { return number ? QJsonValue(*number) : QJsonValue(); };
    QJsonObject object{{"path", value.GetPathName()},
                       {"value", Of(value, false)},
                       {"stored", value.GetStoredText()},
                       {"default", descriptor.defaultText},
                       {"changed", value.GetStoredText() != descriptor.defaultText},
                       {"enabled", value.GetState() == TKE::stEnabled},
                       {"kind", descriptor.multiple ? "multiselection" : kinds[value.GetTypeCode()]},
                       {"label", descriptor.label},
                       {"unit", descriptor.unit},
                       {"minimum", limit(descriptor.minimum)},
                       {"maximum", limit(descriptor.maximum)}};
    if (value.GetKind() == TKE::ValueKind::Selection)
    {
        QJsonArray items;
        for (const TKE::SelectionItem& item : static_cast<const TKE::ValueSelection&>(value).GetItems())
            items.append(QJsonObject{{"key", item.GetKey()}, {"name", item.GetName()}});
        object.insert("items", items);
    }
    return object;
}

JsonList::JsonList(QTextStream& out, const QJsonObject& head, const QString& name) : m_out(out)
{
    QString text = QString::fromUtf8(QJsonDocument(head).toJson(QJsonDocument::Compact));
    text.chop(1);
    m_out << text << (head.isEmpty() ? "" : ",") << '"' << name << "\":[";
}

JsonList::~JsonList()
{
    m_out << "\n]}\n";
}

void JsonList::Add(const QJsonObject& item)
{
    m_out << m_separator << QString::fromUtf8(QJsonDocument(item).toJson(QJsonDocument::Compact));
    m_separator = ",\n";
}

} // namespace JOBEDIT
