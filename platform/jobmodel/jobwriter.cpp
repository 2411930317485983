#include "jobmodel/jobwriter.h"

#include "jobmodel/xmltext.h"

#include <QIODevice>
#include <algorithm>

namespace TKE
{

namespace
{

constexpr size_t blockSize = 256UL * 1024;

// `startTag` without the "/" that closes it.
std::string Opened(std::string startTag)
{
    startTag.resize(XmlText::BlankEnd(std::string_view(startTag).substr(0, startTag.size() - 2)));
    return startTag + '>';
}

} // namespace

JobWriter::JobWriter(const Tree& tree, QIODevice& device, Progress progress)
    : m_tree(tree), m_device(device), m_progress(std::move(progress))
{
    m_sinceProgress.start();
    m_out.reserve(blockSize + blockSize / 4);
}

bool JobWriter::Write(const JobLayout& layout)
{
    WriteNode(layout.root);
    m_out += layout.tail;
    m_failed = m_failed || m_device.write(m_out.data(), qint64(m_out.size())) != qint64(m_out.size());
    m_out.clear();
    return !m_failed;
}

void JobWriter::FlushFull()
{
    if (m_out.size() < blockSize)
        return;
    m_failed = m_failed || m_device.write(m_out.data(), qint64(m_out.size())) != qint64(m_out.size());
    m_out.clear();
}

void JobWriter::Tick()
{
    constexpr qint64 tickMs = 10;
    if (!m_progress || m_cancelled || !m_sinceProgress.hasExpired(tickMs))
        return;
    m_cancelled = !m_progress(m_nodesDone);
    m_failed = m_failed || m_cancelled;
    m_sinceProgress.start();
}

void JobWriter::AppendElement(std::string& out, const NodeTemplate::Entry& entry, const ValueBase& value)
{
    out += "<Value name=\"";
    XmlText::AppendAttribute(out, entry.fileName);
    out += "\">";
    const size_t begin = out.size();
    value.AppendStored(out);
    if (out.size() == begin)
    {
        out.back() = '/';
        out += '>';
        return;
    }
    if (value.GetKind() == ValueKind::Text)
    {
        const std::string text = out.substr(begin);
        out.resize(begin);
        XmlText::AppendContent(out, text);
    }
    out += "</Value>";
}

bool JobWriter::IsWritten(const NodeTemplate::Entry& entry, const ValueBase& value)
{
    if (value.IsExplicit())
        return true;
    m_stored.clear();
    value.AppendStored(m_stored);
    return m_stored != entry.defaultText;
}

// The entries that have no element yet and need one, in the order of the model.
std::vector<size_t> JobWriter::FindNew(const JobNode& node, const std::vector<ValueBase*>& values)
{
    std::vector<bool> named(values.size());
    for (const JobNode::Piece& piece : node.content)
    {
        if (piece.kind == JobNode::Piece::Value)
            named[piece.index] = true;
        else if (piece.kind == JobNode::Piece::Kept)
            named[node.kept[piece.index].entry] = true;
    }
    for (const quint32 index : node.borrowed)
        named[index] = true;

    std::vector<size_t> found;
    for (size_t i = 0; i < values.size(); ++i)
    {
        if (!named[i] && values[i] && IsWritten(node.values->GetEntries()[i], *values[i]))
            found.push_back(i);
    }
    return found;
}

void JobWriter::WriteNode(const JobNode& node)
{
    ++m_nodesDone;
    Tick();
    std::vector<ValueBase*> values;
    if (m_cancelled || !node.FindValues(m_tree, values))
        return;
    const std::vector<size_t> added = FindNew(node, values);
    const auto isValue = [](const JobNode::Piece& piece)
    { return piece.kind == JobNode::Piece::Value || piece.kind == JobNode::Piece::Kept; };
    const auto isAlive = [&](const JobNode::Piece& piece)
    { return piece.kind != JobNode::Piece::Node || node.nodes[piece.index]; };
    const bool opens =
        node.endTag.empty() && (!added.empty() || std::any_of(node.content.begin(), node.content.end(), isAlive));

    m_out += node.lead;
    m_out += opens ? Opened(node.startTag) : node.startTag;

    // New values follow the last one that is there.
    const auto afterValues = std::find_if(node.content.rbegin(), node.content.rend(), isValue).base();
    const auto writeAdded = [&]
    {
        const std::string lead = added.empty() ? std::string() : node.NewLead();
        for (const size_t i : added)
        {
            m_out += lead;
            AppendElement(m_out, node.values->GetEntries()[i], *values[i]);
            FlushFull();
        }
    };
    for (auto piece = node.content.begin(); piece != node.content.end(); ++piece)
    {
        if (piece == afterValues)
            writeAdded();
        switch (piece->kind)
        {
        case JobNode::Piece::Value:
            if (const ValueBase* value = values[piece->index];
                value && IsWritten(node.values->GetEntries()[piece->index], *value))
            {
                m_out += node.valueLead;
                AppendElement(m_out, node.values->GetEntries()[piece->index], *value);
            }
            break;
        case JobNode::Piece::Kept:
        {
            const KeptValue& kept = node.kept[piece->index];
            if (const ValueBase* value = values[kept.entry];
                value && IsWritten(node.values->GetEntries()[kept.entry], *value))
                WriteKept(kept, *value);
            break;
        }
        case JobNode::Piece::Text:
            m_out += node.texts[piece->index];
            break;
        case JobNode::Piece::Node:
            if (node.nodes[piece->index])
                WriteNode(*node.nodes[piece->index]);
            break;
        }
        FlushFull();
    }
    if (afterValues == node.content.end())
        writeAdded();

    if (opens)
        m_out += node.OwnLead() + (node.parent ? "</Node>" : "</Job>");
    else
    {
        m_out += node.endLead;
        m_out += node.endTag;
    }
}

void JobWriter::WriteKept(const KeptValue& kept, const ValueBase& value)
{
    m_stored.clear();
    value.AppendStored(m_stored);
    m_out += kept.lead;
    if (m_stored == kept.loaded)
    {
        m_out += kept.source;
        return;
    }
    const std::string startTag = kept.source.substr(0, kept.tagEnd);
    const bool isClosed = startTag.ends_with("/>");
    m_out += isClosed ? Opened(startTag) : startTag;
    XmlText::AppendContent(m_out, m_stored);
    m_out += kept.additions;
    m_out += isClosed ? "</Value>" : std::string_view(kept.source).substr(kept.contentEnd);
}

} // namespace TKE
