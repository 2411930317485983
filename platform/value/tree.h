#pragma once

#include "value/node.h"
#include "value/value.h"
#include "value/valueselection.h"

#include <functional>
#include <memory>
#include <utility>

namespace TKE
{

/// The value tree of the application: nodes, and values below them, found by path. GUI thread only.
///
/// Paths: segments are joined by "/"; names are case-sensitive. A node is found with or without a "/" at the end. A
/// path that does not begin with "/" names something beside the root and never something below it. Finding allocates
/// nothing.
///
/// Ownership: the tree owns nodes and values. What is removed is first out of reach of Find, then reports state 1, then
/// is deleted; nothing is deleted before the outermost removal ends. Who hears of it may remove more, make new values
/// (not below a node that was removed), swap the tree with another and even delete it. A tree that dies takes no more
/// values.
///
/// A host may bring a storage of its own: what is not defined here makes up the library `storage`, and docs/storage.md
/// says how to put another in its place.
class Tree
{
public:
    static Tree* Instance();

    /// Trees beside the instance serve benchmarks and tools; values of any tree share the journal.
    Tree();
    ~Tree();
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    ValueBase* FindValue(QStringView path) const;
    /// The value `key` (which may hold "/") below `node`.
    ValueBase* FindValue(const Node& node, QStringView key) const;
    Node* FindNode(QStringView path) const;

    /// Makes the node at `path` and those above it as needed. An existing node keeps its type text when `type` is
    /// empty.
    Node* CreateNode(QStringView path, const QString& type = {});

    /// Makes a value of type V at `path`, and the nodes above it as needed; its content is the default of the
    /// descriptor. Null when a value stands there already, when the node has been removed, and when the tree dies.
    template <class V> V* CreateValue(QStringView path, const ValueDescriptor& descriptor)
    {
        const Place place = Split(path);
        return Add(*EnsureNode(place.prefix), std::make_unique<V>(Intern(place.name), descriptor));
    }
    template <class V> V* CreateValue(QStringView path)
    {
        const Place place = Split(path);
        return Add(*EnsureNode(place.prefix), std::make_unique<V>(Intern(place.name)));
    }
    /// The same with the type that the descriptor's kind asks for.
    ValueBase* CreateValue(QStringView path, const ValueDescriptor& descriptor);
    ValueBase* CreateValue(Node& node, QStringView name, const ValueDescriptor& descriptor);
    /// The same for who makes many: `name` is one segment that Intern gave, `content` the stored form of the content.
    ValueBase* CreateValue(Node& node, const QString& name, const ValueDescriptor& descriptor,
                           std::string_view content);
    /// Fetches from memory what making that value will need, while other work goes on.
    void Expect(const Node& node, const QString& name) const;
    /// The name, kept until the program ends and once only.
    static const QString& Intern(QStringView name);

    /// Removes the node at `path` and all below it. Nothing happens when there is none.
    void RemoveBranch(QStringView path);
    void RemoveValue(QStringView path);
    void Clear();
    /// As Clear, but what was removed is deleted later, a little at a time, so that a large tree holds nobody up.
    void ClearLater();
    /// Makes room for that many values before many are created.
    void Reserve(size_t values);
    void Reserve(Node& node, size_t values);
    size_t ValueCount() const;

    /// All nodes without a parent, in the order of creation.
    std::vector<Node*> GetTopNodes() const;

    /// Exchanges the whole content with that of `other`. Nobody is told: each value lives on, in the other tree.
    void Swap(Tree& other) { m_index.swap(other.m_index); }

    /// One hook that sees every content change of every value; an empty one switches it off. Returns the hook so far.
    JournalHook SetJournal(JournalHook hook) { return std::exchange(ValueBase::s_journal, std::move(hook)); }

private:
    struct Place
    {
        QStringView prefix; // up to and including the last "/"
        QStringView name;
    };
    static Place Split(QStringView path);
    Node* EnsureNode(QStringView prefix);
    bool Insert(Node& node, std::unique_ptr<ValueBase> value);
    template <class V> V* Add(Node& node, std::unique_ptr<V> value)
    {
        V* raw = value.get();
        if (!Insert(node, std::move(value)))
            return nullptr;
        raw->SetToDefault();
        return raw;
    }

    struct Index;
    std::unique_ptr<Index> m_index;
};

} // namespace TKE
