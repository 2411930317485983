#include "fieldindex.h"

#include "fieldtexts.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <algorithm>
#include <map>

namespace JOBEDIT
{

namespace
{

/// How well a word matches; the ranks of a field's words add up.
enum Rank : quint8
{
    LabelBegins,
    LabelWord,
    LabelHolds,
    KeyHolds,
    DescriptionHolds,
    UnitHolds,
    NodeHolds,
    Nowhere,
};

constexpr int mostWords = 16; // further ones do not count

quint8 RankInLabel(const QString& label, const QString& word)
{
    quint8 rank = Nowhere;
    for (qsizetype at = label.indexOf(word); at >= 0; at = label.indexOf(word, at + 1))
        if (at == 0)
            return LabelBegins;
        else
            rank = std::min<quint8>(rank, label.at(at - 1).isLetterOrNumber() ? LabelHolds : LabelWord);
    return rank;
}

/// The fields of one kind of node that match, best first.
struct Matches
{
    struct Match
    {
        int rank;
        quint32 field;
    };
    std::vector<Match> all;
};

} // namespace

quint8 FieldIndex::Field::RankOf(const QString& word) const
{
    quint8 rank = Nowhere;
    for (const QString& label : labels)
        rank = std::min(rank, RankInLabel(label, word));
    if (rank != Nowhere)
        return rank;
    return key.contains(word)           ? KeyHolds
           : description.contains(word) ? DescriptionHolds
           : unit.contains(word)        ? UnitHolds
                                        : Nowhere;
}

FieldIndex::Result FieldIndex::Find(const QString& text, qsizetype limit)
{
    static const QRegularExpression separators(QStringLiteral("[\\s/]+"));
    const QStringList words = text.toCaseFolded().split(separators, Qt::SkipEmptyParts).mid(0, mostWords);
    if (words.isEmpty())
        return {};
    while (Prepare())
        ;

    std::vector<Ranks> ranks(m_fields.size());
    for (size_t field = 0; field < m_fields.size(); ++field)
        for (const QString& word : words)
            ranks[field].push_back(m_fields[field].RankOf(word));

    // What matches in nodes of one shape whose paths hold the same words.
    std::map<std::pair<quint32, quint32>, Matches> kinds;
    const auto match = [&](const Shape& shape, quint32 inPath)
    {
        Matches matches;
        for (const quint32 field : shape)
        {
            int sum = 0;
            for (size_t word = 0; word < ranks[field].size() && sum >= 0; ++word)
            {
                const int rank = std::min<int>(ranks[field][word], (inPath >> word & 1) ? NodeHolds : Nowhere);
                sum = rank == Nowhere ? -1 : sum + rank;
            }
            if (sum >= 0)
                matches.all.push_back({sum, field});
        }
        std::ranges::stable_sort(matches.all, {}, &Matches::Match::rank);
        return matches;
    };

    Result result;
    std::vector<std::pair<const IndexedNode*, const Matches*>> found;
    for (const IndexedNode& node : m_nodes)
    {
        quint32 inPath = 0;
        for (qsizetype word = 0; word < words.size(); ++word)
            inPath |= quint32(node.folded.contains(words[word])) << word;
        const std::pair kind(node.shape, inPath);
        auto known = kinds.find(kind);
        if (known == kinds.end())
            known = kinds.emplace(kind, match(m_shapes[node.shape], inPath)).first;
        if (known->second.all.empty())
            continue;
        found.emplace_back(&node, &known->second);
        result.count += qsizetype(known->second.all.size());
    }

    const QString path = text.trimmed();
    if (m_tree.FindValue(path))
        result.paths << path;
    for (int rank = 0; rank <= NodeHolds * words.size() && result.paths.size() < limit; ++rank)
        for (const auto& [node, matches] : found)
        {
            auto hit = std::ranges::lower_bound(matches->all, rank, {}, &Matches::Match::rank);
            for (; hit != matches->all.end() && hit->rank == rank; ++hit)
                if (const QString hitPath = node->path + *m_fields[hit->field].name; hitPath != path)
                    result.paths << hitPath;
            if (result.paths.size() >= limit)
                break;
        }
    if (result.paths.size() > limit)
        result.paths = result.paths.mid(0, limit);
    return result;
}

void FieldIndex::Begin()
{
    m_isBegun = true;
    m_fields.clear();
    m_shapes.clear();
    m_shapesBySize.clear();
    m_fieldNumbers.clear();
    m_nodes.clear();
    m_valueCount = m_tree.ValueCount();
    m_pending.clear();
    for (const TKE::Node* top : m_tree.GetTopNodes())
        Collect(*top);
    std::ranges::reverse(m_pending);
}

void FieldIndex::Collect(const TKE::Node& node)
{
    if (!node.GetValues().empty())
        m_pending << node.GetBasePath();
    for (const auto& below : node.GetNodes())
        Collect(*below);
}

bool FieldIndex::Prepare()
{
    constexpr qint64 sliceMs = 8; // others work in slices at the same time
    constexpr int nodesAtOnce = 16;
    if (!m_isBegun || m_valueCount != m_tree.ValueCount())
        Begin();
    QElapsedTimer time;
    time.start();
    while (!m_pending.isEmpty() && !time.hasExpired(sliceMs))
        for (int count = 0; count < nodesAtOnce && !m_pending.isEmpty(); ++count)
        {
            const QString path = m_pending.takeLast();
            if (const TKE::Node* node = m_tree.FindNode(path))
                m_nodes.push_back({path, path.toCaseFolded(), ShapeOf(*node)});
        }
    return !m_pending.isEmpty();
}

quint32 FieldIndex::ShapeOf(const TKE::Node& node)
{
    const auto& values = node.GetValues();
    for (auto [known, end] = m_shapesBySize.equal_range(values.size()); known != end; ++known)
        if (HasShape(node, m_shapes[*known]))
            return *known;

    Shape shape;
    for (const auto& value : values)
    {
        const std::pair kind(&value->GetName(), &value->GetDescriptor());
        auto number = m_fieldNumbers.find(kind);
        if (number == m_fieldNumbers.end())
        {
            QStringList labels;
            for (const QString& label : FieldTexts::Labels(*kind.second))
                labels << label.toCaseFolded();
            number = m_fieldNumbers.insert(kind, quint32(m_fields.size()));
            m_fields.push_back({kind.first, kind.second, labels, kind.first->toCaseFolded(),
                                kind.second->description.toCaseFolded(), kind.second->unit.toCaseFolded()});
        }
        shape.push_back(*number);
    }
    m_shapes.push_back(std::move(shape));
    m_shapesBySize.insert(values.size(), quint32(m_shapes.size() - 1));
    return quint32(m_shapes.size() - 1);
}

bool FieldIndex::HasShape(const TKE::Node& node, const Shape& shape) const
{
    return std::ranges::equal(node.GetValues(), shape,
                              [this](const auto& value, quint32 number)
                              {
                                  const Field& field = m_fields[number];
                                  return &value->GetName() == field.name && &value->GetDescriptor() == field.descriptor;
                              });
}

} // namespace JOBEDIT
