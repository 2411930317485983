#include "jobmodel/jobreader.h"

#include "jobmodel/jobwriter.h"
#include "jobmodel/xmltext.h"
#include "value/format.h"

namespace TKE
{

namespace
{

constexpr size_t longestText = 16UL * 1024 * 1024;

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

JobReader::JobReader(Tree& tree, Tree& finalTree, JobLayout& layout, const JobModel& model, const QString& shownName,
                     Purpose purpose)
    : XmlReader(shownName, purpose == Purpose::Load ? AfterError::Stop : AfterError::GoOn)
    , m_tree(tree)
    , m_finalTree(finalTree)
    , m_layout(layout)
    , m_model(model)
{
}

QString JobReader::PathOf(const QString& name) const
{
    QString path = m_open.empty() ? QString() : m_open.back().node->path;
    if (name.isEmpty())
        path.chop(path.isEmpty() ? 0 : 1);
    return path + name;
}

// Takes what lies before `end` and was not taken yet into the layout; the blanks at its end, which lead the element to
// come, are returned.
std::string_view JobReader::TakeGap(qint64 end)
{
    const std::string_view gap = Source(m_taken, end);
    const size_t textEnd = XmlText::BlankEnd(gap);
    if (textEnd > 0)
    {
        JobNode& node = *m_open.back().node;
        node.Add(JobNode::Piece::Text, node.texts.size());
        node.texts.emplace_back(gap.substr(0, textEnd));
        if (gap.find('<') == std::string_view::npos)
            Report(FileError::Severity::Warning, m_taken, PathOf(), tr("Text outside of any value"));
    }
    return gap.substr(textEnd);
}

void JobReader::OnStart(std::string_view name, Attributes attributes)
{
    if (m_unknownDepth > 0)
        ++m_unknownDepth;
    else if (m_inValue)
    {
        m_unknownDepth = 1;
        m_additionBegin = PieceBegin();
    }
    else if (m_open.empty())
        StartRoot(name, attributes);
    else if (name == "Value" && m_open.size() > 1)
        StartValue(attributes);
    else if (name == "Node")
        StartNode(attributes);
    else
        StartUnknown(name);
}

void JobReader::OnEnd(std::string_view)
{
    if (m_unknownDepth > 0)
    {
        if (--m_unknownDepth == 0 && m_inValue)
            m_additions += Source(m_additionBegin, PieceEnd());
    }
    else if (m_inValue)
        EndValue();
    else
        EndNode();
}

void JobReader::OnText(std::string_view utf8)
{
    if (m_unknownDepth > 0)
        return;
    if (m_text.size() + utf8.size() > longestText)
        ReportError(PathOf(), tr("The text is longer than %1 bytes").arg(longestText));
    else
        m_text += utf8;
}

void JobReader::OnOther()
{
    if (m_inValue && m_unknownDepth == 0)
        m_additions += Source(PieceBegin(), PieceEnd());
}

void JobReader::OnFinish()
{
    m_layout.tail = Source(m_taken, FileEnd());
}

void JobReader::StartRoot(std::string_view name, Attributes attributes)
{
    const char* version = Find(attributes, "version");
    int number = 0;
    if (name != "Job")
    {
        ReportError({}, tr("This is no job file: its root element is \"%1\"").arg(Text(name)));
        m_unknownDepth = 1;
    }
    else if (!version)
        ReportError({}, tr("The version is missing"));
    else if (!Stored::Read(version, number, nullptr) || number < 1)
        ReportError({}, tr("\"%1\" is no version").arg(Text(version)));
    else if (number > 1)
        ReportWarning({}, tr("The file has version %1; what version 1 does not know is kept as it stands").arg(number));
    m_open.push_back({&m_layout.root, {}});
    m_layout.root.startTag = Source(0, PieceEnd());
    m_taken = PieceEnd();
    Release(m_taken);
}

void JobReader::StartUnknown(std::string_view name)
{
    ReportWarning(PathOf(), tr("Unknown element \"%1\"").arg(Text(name)));
    m_unknownDepth = 1;
}

bool JobReader::ReadSpec(Attributes attributes, NodeSpec& spec)
{
    const bool top = m_open.size() == 1;
    const auto textOf = [&](const char* name)
    { return Find(attributes, name) ? Text(Find(attributes, name)) : QString(); };
    spec.name = textOf("name");
    spec.type = textOf("type");
    spec.groups = textOf("groups").split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString path = PathOf(spec.name);
    const auto refuse = [&](const QString& reason)
    {
        ReportError(path, reason);
        return false;
    };

    if (const QString fault = spec.NameFault(top); !fault.isEmpty())
        return refuse(fault);
    if (!Find(attributes, "type"))
        return refuse(tr("The type of the node is missing"));
    if (m_layout.byPath.contains(path + QLatin1Char('/')))
        return refuse(tr("The node occurs twice"));
    if (const char* count = Find(attributes, "count");
        count && (!Stored::Read(count, spec.count, nullptr) || spec.count < 1 || spec.count > NodeSpec::maximumCount))
        return refuse(tr("\"%1\" is no count of channels (1 to %2)").arg(Text(count)).arg(NodeSpec::maximumCount));
    if (const QString form = textOf("form"); form == QLatin1String("data"))
        spec.dataForm = true;
    else if (!form.isEmpty())
        return refuse(tr("The form \"%1\" is unknown").arg(form));
    if (const QString band = textOf("band"); band == QLatin1String("VUHF"))
        spec.band = Band::Vuhf;
    else if (!band.isEmpty() && band != QLatin1String("HF"))
        return refuse(tr("The band \"%1\" is unknown").arg(band));
    return true;
}

void JobReader::StartNode(Attributes attributes)
{
    auto node = std::make_unique<JobNode>();
    if (!ReadSpec(attributes, node->spec))
    {
        m_unknownDepth = 1;
        return;
    }
    JobNode& parent = *m_open.back().node;
    node->parent = &parent;
    node->path = PathOf(node->spec.name) + QLatin1Char('/');
    node->values = m_layout.TemplateFor(m_model, node->spec);
    for (const QString& group : node->values->GetUnknownGroups())
        ReportWarning(PathOf(node->spec.name), tr("The group \"%1\" is unknown").arg(group));
    if (m_tree.ValueCount() + node->values->GetEntries().size() > m_mostValues)
    {
        ReportError(PathOf(node->spec.name), tr("The job has more than %1 values").arg(m_mostValues));
        m_unknownDepth = 1;
        return;
    }

    node->lead = TakeGap(PieceBegin());
    node->startTag = Source(PieceBegin(), PieceEnd());
    m_taken = PieceEnd();
    Release(m_taken);

    MakeRoom();
    OpenNode open{node.get(), {}};
    node->Create(m_tree, open.values);
    Tick(); // a node may have thousands of values that the file does not name
    m_open.push_back(std::move(open));
    m_layout.byPath.insert(node->path, node.get());
    if (m_visitor)
        m_visitor(node->path, node->spec, parent.path);
    parent.Add(JobNode::Piece::Node, parent.nodes.size());
    parent.nodes.push_back(std::move(node));
}

// Room for the values of the whole file: roughly by its size, then as many as there will be if it goes on as so far,
// and some. To make room again moves all values there are, for which the window does not answer.
void JobReader::MakeRoom()
{
    constexpr size_t bytesOfValue = 64;
    const size_t made = m_tree.ValueCount();
    if (made < m_room)
        return;
    const double perByte = 1.2 * double(made) / double(std::max<qint64>(PieceBegin(), 1));
    m_room = made == 0 ? size_t(FileSize()) / bytesOfValue
                       : std::clamp(size_t(perByte * double(FileSize())), made * 3 / 2, made * 8);
    m_tree.Reserve(m_room);
}

void JobReader::EndNode()
{
    JobNode& node = *m_open.back().node;
    if (PieceBegin() != PieceEnd())
    {
        node.endLead = TakeGap(PieceBegin());
        node.endTag = Source(PieceBegin(), PieceEnd());
        m_taken = PieceEnd();
        Release(m_taken);
    }
    if (node.values && !node.values->GetRules().empty())
    {
        node.rules = std::make_unique<NodeRules>(m_finalTree, node.path, node.values);
        node.rules->Begin(m_open.back().values);
    }
    node.content.shrink_to_fit();
    m_open.pop_back();
}

void JobReader::StartValue(Attributes attributes)
{
    const char* name = Find(attributes, "name");
    if (!name)
    {
        ReportError(PathOf(), tr("The name of the value is missing"));
        m_unknownDepth = 1;
        return;
    }
    OpenNode& open = m_open.back();
    const qsizetype entry = open.node->values->FindEntry(name, open.next);
    if (entry < 0)
    {
        ReportWarning(PathOf(Text(name)), tr("No group of the node has this value"));
        m_unknownDepth = 1;
        return;
    }
    if (open.values[size_t(entry)]->IsExplicit())
        ReportError(PathOf(Text(name)), tr("The value occurs twice"));
    m_inValue = true;
    m_entry = size_t(entry);
    open.next = m_entry + 1;
    m_valueBegin = PieceBegin();
    m_tagEnd = PieceEnd();
    m_text.clear();
    m_additions.clear();
    WantText(true);
}

void JobReader::EndValue()
{
    WantText(false);
    m_inValue = false;
    OpenNode& open = m_open.back();
    ValueBase& value = *open.values[m_entry];
    const bool isText = value.GetKind() == ValueKind::Text;
    QString reason;
    if (!value.SetStored(isText ? std::string_view(m_text) : XmlText::Trimmed(m_text), nullptr, &reason))
        Report(FileError::Severity::Error, m_valueBegin, value.GetPathName(), reason);
    if (!m_findings.isEmpty())
        for (const FileError& found : m_findings.values(value.GetPathName()))
            Report(found.severity, m_valueBegin, found.itemPath, found.reason);
    value.SetExplicit(true);
    AddValuePiece(*open.node, value);
    m_taken = PieceEnd();
    Release(m_taken);
}

// Whether `element` is what the writer would put.
bool JobReader::IsAsWritten(std::string_view element, const NodeTemplate::Entry& entry, const ValueBase& value)
{
    m_element.clear();
    constexpr std::string_view begin = "<Value name=\"", tagEnd = "\">", end = "</Value>";
    const size_t tagSize = size_t(m_tagEnd - m_valueBegin);
    // The element has this name. Where its tag is no longer than this, the name stands in it without escapes, as a
    // plain one does in the writer's.
    if (value.GetKind() == ValueKind::Text || !entry.isPlain ||
        tagSize != begin.size() + entry.fileName.size() + tagEnd.size())
    {
        JobWriter::AppendElement(m_element, entry, value);
        return element == m_element;
    }
    value.AppendStored(m_element);
    return !m_element.empty() && element.size() == tagSize + m_element.size() + end.size() &&
           element.starts_with(begin) && element.substr(0, tagSize).ends_with(tagEnd) && element.ends_with(end) &&
           element.substr(tagSize, m_element.size()) == m_element;
}

void JobReader::AddValuePiece(JobNode& node, ValueBase& value)
{
    const NodeTemplate::Entry& entry = node.values->GetEntries()[m_entry];
    const std::string_view lead = TakeGap(m_valueBegin);
    const std::string_view element = Source(m_valueBegin, PieceEnd());
    if (!std::exchange(node.hasValues, true))
        node.valueLead = lead;
    if (lead == node.valueLead && IsAsWritten(element, entry, value))
    {
        node.Add(JobNode::Piece::Value, m_entry);
        return;
    }
    KeptValue kept{quint32(m_entry),
                   quint32(m_tagEnd - m_valueBegin),
                   quint32(PieceBegin() - m_valueBegin),
                   std::string(lead),
                   std::string(element),
                   {},
                   m_additions};
    value.AppendStored(kept.loaded);
    node.Add(JobNode::Piece::Kept, node.kept.size());
    node.kept.push_back(std::move(kept));
}

} // namespace TKE
