#include "value/node.h"

namespace TKE
{

void Node::TakeOut()
{
    m_isOut = true;
    for (const auto& below : m_nodes)
        below->TakeOut();
}

void Node::Release()
{
    for (const auto& value : m_values)
        value->Release();
    for (const auto& below : m_nodes)
        below->Release();
}

QStringView Node::GetName() const
{
    const QStringView path = QStringView(m_prefix).chopped(m_prefix.isEmpty() ? 0 : 1);
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace TKE
