#pragma once

#include "value/valuebase.h"

#include <memory>
#include <vector>

namespace TKE
{

/// A node of the tree: a type text, values and further nodes below it. Owned by the tree.
class Node
{
public:
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    static void* operator new(size_t size) { return TreeMemory::Take(size); }
    static void operator delete(void* piece, size_t size) { TreeMemory::Give(piece, size); }

    /// Last segment of the path; empty for the root "/".
    QStringView GetName() const;
    /// Full path without a "/" at the end.
    QString GetPathName() const { return m_prefix.chopped(m_prefix.isEmpty() ? 0 : 1); }
    /// Full path with a "/" at the end, as panels take it.
    const QString& GetBasePath() const { return m_prefix; }
    const QString& GetTypeText() const { return m_type; }
    void SetTypeText(const QString& type) { m_type = type; }

    /// Null for a top node.
    Node* GetParent() const { return m_parent; }
    /// In the order of creation.
    const std::vector<std::unique_ptr<Node>>& GetNodes() const { return m_nodes; }
    const std::vector<std::unique_ptr<ValueBase>>& GetValues() const { return m_values; }

private:
    friend class Tree;
    Node(Node* parent, const QString& prefix, quint64 hash) : m_parent(parent), m_prefix(prefix), m_hash(hash) {}

    /// From now on this node and all below it take no more values.
    void TakeOut();
    /// Lets all values here and below report their end.
    void Release();

    Node* m_parent;
    QString m_prefix;
    quint64 m_hash; // of the prefix: the first half of the hash of every value below
    QString m_type;
    bool m_isOut = false; // removed from the tree: it takes no more values
    std::vector<std::unique_ptr<Node>> m_nodes;
    std::vector<std::unique_ptr<ValueBase>> m_values;
};

} // namespace TKE
