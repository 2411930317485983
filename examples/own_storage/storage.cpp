// The value tree of this host: everything that value/tree.h declares and does not define, over two ordered maps.
#include "value/idledisposal.h"
#include "value/tree.h"

#include <QStringBuilder>
#include <algorithm>
#include <map>
#include <memory_resource>
#include <set>

namespace TKE
{

namespace
{

// "/A/B" and "/A/B/" are one node; so are "" and "", but "/" is another.
using NodeKey = std::pair<QStringView, bool>;

NodeKey KeyOf(QStringView path)
{
    return {path.endsWith(u'/') ? path.chopped(1) : path, !path.isEmpty()};
}

template <class T> std::unique_ptr<T> TakeFrom(std::vector<std::unique_ptr<T>>& owners, const T* pointer)
{
    const auto found = std::find_if(owners.begin(), owners.end(), [&](const auto& owner) { return owner.get() == pointer; });
    std::unique_ptr<T> taken = std::move(*found);
    owners.erase(found);
    return taken;
}

} // namespace

// The keys are views of what nodes and values hold themselves, so finding allocates nothing.
struct Tree::Index
{
    std::pmr::unsynchronized_pool_resource memory;
    std::pmr::map<NodeKey, Node*> nodes{&memory};
    std::pmr::map<std::pair<const Node*, QStringView>, ValueBase*> values{&memory};
    std::vector<std::unique_ptr<Node>> topNodes;

    // What was removed, until the outermost removal ends: observers may still look at it, and may delete the tree.
    struct Removed
    {
        int removals = 0;
        std::vector<std::unique_ptr<Node>> nodes;
        std::vector<std::unique_ptr<ValueBase>> values;
    };
    std::shared_ptr<Removed> removed = std::make_shared<Removed>();
    bool isClosing = false;

    struct Removal
    {
        explicit Removal(const Index& index) : removed(index.removed) { ++removed->removals; }
        ~Removal()
        {
            if (--removed->removals > 0)
                return;
            const auto nodes = std::move(removed->nodes);
            const auto values = std::move(removed->values);
        }
        std::shared_ptr<Removed> removed;
    };

    void Forget(const Node& node)
    {
        for (const auto& value : node.GetValues())
            values.erase({&node, value->GetName()});
        for (const auto& below : node.GetNodes())
            Forget(*below);
        nodes.erase(KeyOf(node.GetBasePath()));
    }
    std::vector<std::unique_ptr<Node>> TakeAll()
    {
        nodes.clear();
        values.clear();
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
    static std::set<QString, std::less<>> names;
    const auto found = names.find(name);
    return found != names.end() ? *found : *names.insert(name.toString()).first;
}

Tree::Place Tree::Split(QStringView path)
{
    const qsizetype end = path.lastIndexOf(u'/') + 1;
    return {path.first(end), path.sliced(end)};
}

Node* Tree::FindNode(QStringView path) const
{
    const auto found = m_index->nodes.find(KeyOf(path));
    return found != m_index->nodes.end() ? found->second : nullptr;
}

ValueBase* Tree::FindValue(QStringView path) const
{
    const Place place = Split(path);
    const Node* node = FindNode(place.prefix);
    return node ? FindValue(*node, place.name) : nullptr;
}

ValueBase* Tree::FindValue(const Node& node, QStringView key) const
{
    const Node* home = &node;
    for (qsizetype slash = key.indexOf(u'/'); slash >= 0; slash = key.indexOf(u'/'))
    {
        const auto& nodes = home->GetNodes();
        const auto below = std::find_if(nodes.begin(), nodes.end(),
                                        [&](const auto& one) { return one->GetName() == key.first(slash); });
        if (below == nodes.end())
            return nullptr;
        home = below->get();
        key = key.sliced(slash + 1);
    }
    const auto found = m_index->values.find({home, key});
    return found != m_index->values.end() ? found->second : nullptr;
}

Node* Tree::EnsureNode(QStringView prefix)
{
    if (Node* node = FindNode(prefix))
        return node;
    const QStringView above = Split(KeyOf(prefix).first).prefix;
    Node* parent = above.isEmpty() ? nullptr : EnsureNode(above);
    auto& siblings = parent ? parent->m_nodes : m_index->topNodes;
    Node* node = siblings.emplace_back(new Node(parent, prefix.toString(), 0)).get();
    m_index->nodes.emplace(KeyOf(node->GetBasePath()), node);
    return node;
}

Node* Tree::CreateNode(QStringView path, const QString& type)
{
    Node* node = EnsureNode(path.endsWith(u'/') ? path.toString() : QString(path % u'/'));
    if (!type.isEmpty())
        node->SetTypeText(type);
    return node;
}

bool Tree::Insert(Node& node, std::unique_ptr<ValueBase> value)
{
    if (!value || node.m_isOut || m_index->isClosing ||
        !m_index->values.emplace(std::pair(&node, QStringView(value->GetName())), value.get()).second)
        return false;
    value->m_node = &node;
    node.m_values.push_back(std::move(value));
    return true;
}

ValueBase* Tree::CreateValue(QStringView path, const ValueDescriptor& descriptor)
{
    const Place place = Split(path);
    return Add(*EnsureNode(place.prefix), ValueBase::Make(Intern(place.name), descriptor));
}

ValueBase* Tree::CreateValue(Node& node, QStringView name, const ValueDescriptor& descriptor)
{
    return node.m_isOut ? nullptr : CreateValue(QString(node.GetBasePath() % name), descriptor);
}

ValueBase* Tree::CreateValue(Node& node, const QString& name, const ValueDescriptor& descriptor, std::string_view content)
{
    auto value = ValueBase::Make(name, descriptor);
    ValueBase* raw = value.get();
    if (!Insert(node, std::move(value)))
        return nullptr;
    raw->SetStored(content);
    return raw;
}

void Tree::RemoveBranch(QStringView path)
{
    Node* node = FindNode(path);
    if (!node)
        return;
    const Index::Removal removal(*m_index);
    m_index->Forget(*node);
    node->TakeOut();
    auto& siblings = node->GetParent() ? node->GetParent()->m_nodes : m_index->topNodes;
    removal.removed->nodes.push_back(TakeFrom(siblings, node));
    node->Release();
}

void Tree::RemoveValue(QStringView path)
{
    ValueBase* value = FindValue(path);
    if (!value)
        return;
    const Index::Removal removal(*m_index);
    Node* node = value->GetNode();
    m_index->values.erase({node, value->GetName()});
    removal.removed->values.push_back(TakeFrom(node->m_values, value));
    value->Release();
}

void Tree::Clear()
{
    const Index::Removal removal(*m_index);
    std::vector<Node*> nodes;
    for (auto& node : m_index->TakeAll())
        nodes.push_back(removal.removed->nodes.emplace_back(std::move(node)).get());
    for (Node* node : nodes)
        node->Release();
}

void Tree::ClearLater()
{
    auto remains = std::make_shared<std::vector<std::unique_ptr<Node>>>(m_index->TakeAll());
    for (const auto& node : *remains)
        node->Release();
    IdleDisposal::Add(
        [remains]
        {
            if (!remains->empty())
                remains->pop_back();
            return !remains->empty();
        });
}

size_t Tree::ValueCount() const
{
    return m_index->values.size();
}

std::vector<Node*> Tree::GetTopNodes() const
{
    std::vector<Node*> nodes;
    for (const auto& node : m_index->topNodes)
        nodes.push_back(node.get());
    return nodes;
}

// Hints, which maps have no use for.
void Tree::Expect(const Node&, const QString&) const {}
void Tree::Reserve(size_t) {}
void Tree::Reserve(Node&, size_t) {}

} // namespace TKE
