#include "value/tree.h"

#include "storage/pointerindex.h"
#include "value/idledisposal.h"

#include <QStringBuilder>
#include <QVarLengthArray>
#include <unordered_set>

namespace TKE
{

namespace
{

bool Same(QStringView left, QStringView right)
{
    const size_t bytes = size_t(left.size()) * sizeof(char16_t);
    return left.size() == right.size() && (bytes == 0 || std::memcmp(left.utf16(), right.utf16(), bytes) == 0);
}

QStringView WithoutSlash(QStringView path)
{
    return path.endsWith(u'/') ? path.chopped(1) : path;
}

// A value's hash is made of that of its node's path and that of its name, so that neither the path nor the hash is
// stored with it.
quint64 HashOfValue(quint64 nodeHash, QStringView name)
{
    return Mix(nodeHash ^ 0x51c8'64f1'0b2d'97a3, HashOf(name));
}

struct NameHash
{
    using is_transparent = void;
    size_t operator()(QStringView name) const { return HashOf(name); }
};
struct NameEqual
{
    using is_transparent = void;
    bool operator()(QStringView left, QStringView right) const { return Same(left, right); }
};

} // namespace

struct Tree::Index
{
    struct NodeHash
    {
        quint64 operator()(const Node& node) const { return node.m_hash; }
    };
    struct ValueHash
    {
        quint64 operator()(const ValueBase& value) const { return HashOfValue(value.m_node->m_hash, value.GetName()); }
    };

    std::vector<std::unique_ptr<Node>> topNodes;
    PointerIndex<Node, NodeHash> nodes;
    PointerIndex<ValueBase, ValueHash> values;

    // With or without a "/" at the end.
    Node* Find(QStringView path, quint64 hash) const
    {
        const qsizetype prefixSize = path.isEmpty() || path.endsWith(u'/') ? path.size() : path.size() + 1;
        return nodes.Find(hash,
                          [&](const Node& node)
                          {
                              const QStringView prefix = node.m_prefix;
                              return prefix.size() == prefixSize && Same(prefix.left(path.size()), path);
                          });
    }
    ValueBase* Find(const Node& node, QStringView name, quint64 hash) const
    {
        return values.Find(hash, [&](const ValueBase& value)
                           { return value.m_node == &node && Same(value.GetName(), name); });
    }

    // What is removed stays until the outermost removal ends, for the observers that are still to hear of it. One of
    // them may swap the index into another tree and delete that, so a removal under way holds on to the graveyard
    // itself.
    struct Graveyard
    {
        int removals = 0;
        std::vector<std::unique_ptr<Node>> nodes;
        std::vector<std::unique_ptr<ValueBase>> values;
    };
    struct Removal
    {
        explicit Removal(const Index& index) : graveyard(index.graveyard) { ++graveyard->removals; }
        ~Removal()
        {
            if (--graveyard->removals > 0)
                return;
            const auto goneNodes = std::move(graveyard->nodes);
            const auto goneValues = std::move(graveyard->values);
        }
        Node* Bury(std::unique_ptr<Node> node) const { return graveyard->nodes.emplace_back(std::move(node)).get(); }
        void Bury(std::unique_ptr<ValueBase> value) const { graveyard->values.push_back(std::move(value)); }
        std::shared_ptr<Graveyard> graveyard;
    };
    std::shared_ptr<Graveyard> graveyard = std::make_shared<Graveyard>();
    bool isClosing = false; // the tree dies and takes no more values

    // Some values or a node of the last branch. Whether there is more.
    static bool DeleteSome(std::vector<std::unique_ptr<Node>>& branches)
    {
        constexpr size_t mostValues = 1000;
        if (branches.empty())
            return false;
        auto* siblings = &branches;
        while (!siblings->back()->m_nodes.empty())
            siblings = &siblings->back()->m_nodes;
        auto& values = siblings->back()->m_values;
        if (values.size() > mostValues)
            values.resize(values.size() - mostValues);
        else
            siblings->pop_back();
        return true;
    }

    // Of the look-up.
    void Forget(const Node& node)
    {
        for (const auto& value : node.GetValues())
            values.Erase(value.get());
        for (const auto& below : node.GetNodes())
            Forget(*below);
        nodes.Erase(&node);
    }
    std::vector<std::unique_ptr<Node>> TakeAll()
    {
        nodes.Clear();
        values.Clear();
        for (const auto& node : topNodes)
            node->TakeOut();
        return std::exchange(topNodes, {});
    }
};

Tree* Tree::Instance()
{
    static Tree instance;
    return &instance;
}

Tree::Tree() : m_index(std::make_unique<Index>())
{
    Intern({}); // the names are made before the first tree, and so outlive it
}

Tree::~Tree()
{
    m_index->isClosing = true;
    Clear();
}

const QString& Tree::Intern(QStringView name)
{
    static std::unordered_set<QString, NameHash, NameEqual> names;
    const auto found = names.find(name);
    return found != names.end() ? *found : *names.insert(name.toString()).first;
}

Tree::Place Tree::Split(QStringView path)
{
    qsizetype end = path.size();
    while (end > 0 && path[end - 1] != u'/')
        --end;
    return {path.left(end), path.mid(end)};
}

ValueBase* Tree::FindValue(QStringView path) const
{
    const Place place = Split(path);
    const quint64 nodeHash = HashOf(WithoutSlash(place.prefix));
    const quint64 hash = HashOfValue(nodeHash, place.name);
    // Nodes are few and at hand, values are many and far: the way to the value begins while the node is sought.
    m_index->values.Prefetch(hash);
    const Node* node = m_index->Find(place.prefix, nodeHash);
    return node ? m_index->Find(*node, place.name, hash) : nullptr;
}

ValueBase* Tree::FindValue(const Node& node, QStringView key) const
{
    if (key.contains(u'/'))
    {
        QVarLengthArray<QChar, 512> path(node.m_prefix.begin(), node.m_prefix.end());
        path.append(key.begin(), key.size());
        return FindValue(QStringView(path.constData(), path.size()));
    }
    return m_index->Find(node, key, HashOfValue(node.m_hash, key));
}

Node* Tree::FindNode(QStringView path) const
{
    return m_index->Find(path, HashOf(WithoutSlash(path)));
}

Node* Tree::EnsureNode(QStringView prefix)
{
    const quint64 hash = HashOf(WithoutSlash(prefix));
    if (Node* node = m_index->Find(prefix, hash))
        return node;
    const QStringView above = Split(WithoutSlash(prefix)).prefix;
    Node* parent = above.isEmpty() ? nullptr : EnsureNode(above);
    auto& siblings = parent ? parent->m_nodes : m_index->topNodes;
    Node* node = siblings.emplace_back(new Node(parent, prefix.toString(), hash)).get();
    m_index->nodes.Insert(node, hash, [](const Node&) { return false; });
    return node;
}

Node* Tree::CreateNode(QStringView path, const QString& type)
{
    Node* node = path.endsWith(u'/') ? EnsureNode(path) : EnsureNode(QString(path % u'/'));
    if (!type.isEmpty())
        node->SetTypeText(type);
    return node;
}

bool Tree::Insert(Node& node, std::unique_ptr<ValueBase> value)
{
    if (!value || node.m_isOut || m_index->isClosing)
        return false;
    value->m_node = &node;
    const QStringView name = value->GetName();
    if (!m_index->values.Insert(value.get(), HashOfValue(node.m_hash, name),
                                [&](const ValueBase& other)
                                { return other.m_node == &node && Same(other.GetName(), name); }))
        return false;
    node.m_values.push_back(std::move(value));
    return true;
}

ValueBase* Tree::CreateValue(QStringView path, const ValueDescriptor& descriptor)
{
    const Place place = Split(path);
    return CreateValue(*EnsureNode(place.prefix), place.name, descriptor);
}

ValueBase* Tree::CreateValue(Node& node, QStringView name, const ValueDescriptor& descriptor)
{
    if (name.contains(u'/'))
        return node.m_isOut ? nullptr : CreateValue(QString(node.m_prefix % name), descriptor);
    return Add(node, ValueBase::Make(Intern(name), descriptor));
}

ValueBase* Tree::CreateValue(Node& node, const QString& name, const ValueDescriptor& descriptor,
                             std::string_view content)
{
    auto value = ValueBase::Make(name, descriptor);
    ValueBase* raw = value.get();
    if (!Insert(node, std::move(value)))
        return nullptr;
    raw->SetStored(content);
    return raw;
}

void Tree::Expect(const Node& node, const QString& name) const
{
    m_index->values.Prefetch(HashOfValue(node.m_hash, name));
}

namespace
{

template <class T> std::unique_ptr<T> TakeFrom(std::vector<std::unique_ptr<T>>& owners, const T* pointer)
{
    const auto found =
        std::find_if(owners.begin(), owners.end(), [&](const auto& owner) { return owner.get() == pointer; });
    std::unique_ptr<T> taken = std::move(*found);
    owners.erase(found);
    return taken;
}

} // namespace

void Tree::RemoveBranch(QStringView path)
{
    Node* node = FindNode(path);
    if (!node)
        return;
    const Index::Removal removal(*m_index);
    m_index->Forget(*node);
    node->TakeOut();
    removal.Bury(TakeFrom(node->m_parent ? node->m_parent->m_nodes : m_index->topNodes, node));
    node->Release();
}

void Tree::RemoveValue(QStringView path)
{
    ValueBase* value = FindValue(path);
    if (!value)
        return;
    const Index::Removal removal(*m_index);
    m_index->values.Erase(value);
    removal.Bury(TakeFrom(value->m_node->m_values, value));
    value->Release();
}

void Tree::Clear()
{
    const Index::Removal removal(*m_index);
    std::vector<Node*> nodes;
    for (auto& node : m_index->TakeAll())
        nodes.push_back(removal.Bury(std::move(node)));
    for (Node* node : nodes)
        node->Release();
}

void Tree::ClearLater()
{
    auto remains = std::make_shared<std::vector<std::unique_ptr<Node>>>(m_index->TakeAll());
    for (const auto& node : *remains)
        node->Release();
    IdleDisposal::Add([remains] { return Index::DeleteSome(*remains); });
}

void Tree::Reserve(size_t values)
{
    m_index->values.Reserve(values);
}

void Tree::Reserve(Node& node, size_t values)
{
    node.m_values.reserve(values);
}

size_t Tree::ValueCount() const
{
    return m_index->values.Size();
}

std::vector<Node*> Tree::GetTopNodes() const
{
    std::vector<Node*> nodes;
    for (const auto& node : m_index->topNodes)
        nodes.push_back(node.get());
    return nodes;
}

} // namespace TKE
