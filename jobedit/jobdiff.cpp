#include "jobdiff.h"

#include "fieldtexts.h"
#include "valuetexts.h"

#include <QCoreApplication>
#include <unordered_set>

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class JobDiff
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::JobDiff)
};

using TKE::Node;
using TKE::ValueBase;

/// One comparison under way.
class Comparison
{
public:
    Comparison(const TKE::Tree& right, qint64 all, const DiffProgress& progress)
        : m_right(right), m_all(all), m_progress(progress)
    {
    }

    void CompareNodes(const Node& left, const Node& right, const QString& place)
    {
        // The bases themselves may be of two types: they were chosen.
        if (!place.isEmpty() && left.GetTypeText() != right.GetTypeText())
            Add({.node = place, .leftStored = left.GetTypeText(), .rightStored = right.GetTypeText()});
        CompareValues(left, right, place);
        CompareBelow(left.GetNodes(), right.GetNodes(), right.GetBasePath(), place);
    }

    template <class Nodes>
    void CompareBelow(const Nodes& left, const Nodes& right, const QString& rightBase, const QString& place)
    {
        size_t matched = 0;
        for (const auto& node : left)
        {
            if (m_ended)
                return;
            const Node* other = m_right.FindNode(rightBase + NameOf(*node));
            if (other)
            {
                ++matched;
                CompareNodes(*node, *other, place + NameOf(*node));
            }
            else
                Add({.kind = Difference::Kind::OnlyLeft,
                     .node = place + NameOf(*node),
                     .leftStored = node->GetTypeText()});
        }
        if (matched == right.size())
            return;
        std::unordered_set<QString> names;
        for (const auto& node : left)
            names.insert(NameOf(*node));
        for (const auto& node : right)
            if (!names.contains(NameOf(*node)))
                Add({.kind = Difference::Kind::OnlyRight,
                     .node = place + NameOf(*node),
                     .rightStored = node->GetTypeText()});
    }

    std::vector<Difference> Take()
    {
        if (m_ended)
            m_found.clear();
        return std::move(m_found);
    }

private:
    // The last segment with a "/"; of a top node its whole path, since a tree may have several.
    static QString NameOf(const Node& node)
    {
        return node.GetParent() ? node.GetName().toString() + u'/' : node.GetBasePath();
    }

    void CompareValues(const Node& left, const Node& right, const QString& place)
    {
        const auto& others = right.GetValues();
        size_t matched = 0;
        for (size_t slot = 0; slot < left.GetValues().size(); ++slot)
        {
            if (m_ended)
                return;
            const ValueBase& value = *left.GetValues()[slot];
            // Names are interned: the same name is the same object.
            const ValueBase* other = slot < others.size() && &others[slot]->GetName() == &value.GetName()
                                         ? others[slot].get()
                                         : m_right.FindValue(right, value.GetName());
            if (other)
            {
                ++matched;
                CompareContents(value, *other, place);
            }
            else
                Add({Difference::Kind::OnlyLeft,
                     place,
                     value.GetName(),
                     &value.GetDescriptor(),
                     value.GetStoredText(),
                     {}});
        }
        if (matched == others.size())
            return;
        std::unordered_set<const QString*> names;
        for (const auto& value : left.GetValues())
            names.insert(&value->GetName());
        for (const auto& value : others)
            if (!names.contains(&value->GetName()))
                Add({Difference::Kind::OnlyRight,
                     place,
                     value->GetName(),
                     &value->GetDescriptor(),
                     {},
                     value->GetStoredText()});
    }

    void CompareContents(const ValueBase& left, const ValueBase& right, const QString& place)
    {
        m_leftText.clear();
        m_rightText.clear();
        left.AppendStored(m_leftText);
        right.AppendStored(m_rightText);
        if (m_leftText != m_rightText)
            Add({Difference::Kind::Changed, place, left.GetName(), &left.GetDescriptor(),
                 QString::fromStdString(m_leftText), QString::fromStdString(m_rightText)});
        constexpr qint64 slice = 8192;
        if (++m_done % slice == 0 && m_progress && !m_progress(m_done, m_all))
            m_ended = true;
    }

    void Add(Difference difference) { m_found.push_back(std::move(difference)); }

    const TKE::Tree& m_right;
    qint64 m_all;
    const DiffProgress& m_progress;
    std::vector<Difference> m_found;
    std::string m_leftText;
    std::string m_rightText;
    qint64 m_done = 0;
    bool m_ended = false;
};

QString TextOf(const Difference& difference, const QString& stored)
{
    if (!difference.descriptor)
        return stored.isEmpty() ? JobDiff::tr("(node)") : stored;
    return ValueTexts::OfStored(*difference.descriptor, stored);
}

} // namespace

std::vector<Difference> CompareTrees(const TKE::Tree& left, const QString& leftBase, const TKE::Tree& right,
                                     const QString& rightBase, const DiffProgress& progress)
{
    Comparison comparison(right, qint64(left.ValueCount()), progress);
    if (leftBase.isEmpty() && rightBase.isEmpty())
        comparison.CompareBelow(left.GetTopNodes(), right.GetTopNodes(), {}, {});
    else if (const Node* leftNode = left.FindNode(leftBase), *rightNode = right.FindNode(rightBase);
             leftNode && rightNode)
        comparison.CompareNodes(*leftNode, *rightNode, {});
    return comparison.Take();
}

QString Difference::LeftText() const
{
    return kind == Kind::OnlyRight ? QString() : TextOf(*this, leftStored);
}

QString Difference::RightText() const
{
    return kind == Kind::OnlyLeft ? QString() : TextOf(*this, rightStored);
}

QString Difference::Label() const
{
    const QString label = descriptor ? FieldTexts::Label(*descriptor) : QString();
    return label.isEmpty() ? key : label;
}

QString ToText(const std::vector<Difference>& differences)
{
    QString text;
    const auto oneLine = [](QString content) { return content.replace(u'\n', QLatin1String("\\n")); };
    for (const Difference& difference : differences)
    {
        const QString left = oneLine(difference.LeftText());
        const QString right = oneLine(difference.RightText());
        switch (difference.kind)
        {
        case Difference::Kind::Changed:
            text += QStringLiteral("~ %1: %2 -> %3\n").arg(difference.Path(), left, right);
            break;
        case Difference::Kind::OnlyLeft:
            text += QStringLiteral("- %1: %2\n").arg(difference.Path(), left);
            break;
        case Difference::Kind::OnlyRight:
            text += QStringLiteral("+ %1: %2\n").arg(difference.Path(), right);
            break;
        }
    }
    return text;
}

} // namespace JOBEDIT
