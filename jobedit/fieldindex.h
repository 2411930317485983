#pragma once

#include "value/tree.h"

#include <QStringList>
#include <vector>

namespace JOBEDIT
{

/// Finds fields of the job by words, each of which must occur in the label (in any language), the key, the description,
/// the unit or the path of the node.
///
/// What matches is decided once for each kind of field and for each node, so that the time does not grow with the
/// number of values. The index is made ahead in slices (Prepare), the rest of it at the first search, and anew when the
/// tree has other nodes since.
class FieldIndex
{
public:
    struct Result
    {
        QStringList paths;   ///< best first: label begins, word of the label, label, key, description, unit, node
        qsizetype count = 0; ///< how many there are
    };

    /// `tree` is not owned and outlives the index.
    explicit FieldIndex(const TKE::Tree& tree) : m_tree(tree) {}

    /// The first `limit` fields. A text that is the path of a value gives that value first; without a word, nothing.
    Result Find(const QString& text, qsizetype limit);
    /// Makes a part of the index, which takes a few milliseconds. False when nothing is left to do.
    bool Prepare();
    /// Nodes have come, gone or been renamed. A change of the number of values is noticed without.
    void Invalidate() { m_isBegun = false; }

private:
    using Ranks = std::vector<quint8>; // per word

    /// What all values of one name and descriptor share; all in folded case.
    struct Field
    {
        const QString* name;
        const TKE::ValueDescriptor* descriptor;
        QStringList labels;
        QString key;
        QString description;
        QString unit;

        quint8 RankOf(const QString& word) const;
    };
    /// The fields of nodes that are alike, as indices of m_fields.
    using Shape = std::vector<quint32>;
    struct IndexedNode
    {
        QString path; // with a "/" at the end
        QString folded;
        quint32 shape;
    };

    void Begin();
    void Collect(const TKE::Node& node);
    quint32 ShapeOf(const TKE::Node& node);
    bool HasShape(const TKE::Node& node, const Shape& shape) const;

    const TKE::Tree& m_tree;
    bool m_isBegun = false;
    size_t m_valueCount = 0;
    QStringList m_pending; // paths of nodes that are still to be looked at, last first
    std::vector<Field> m_fields;
    std::vector<Shape> m_shapes;
    QMultiHash<size_t, quint32> m_shapesBySize;
    QHash<std::pair<const QString*, const TKE::ValueDescriptor*>, quint32> m_fieldNumbers;
    std::vector<IndexedNode> m_nodes;
};

} // namespace JOBEDIT
