#include "valuelisting.h"

#include "value/tree.h"

namespace JOBEDIT
{

TKE::ValueBase* ValueListing::Find(const Row& row) const
{
    const TKE::Node* node = TKE::Tree::Instance()->FindNode(branches[row.branch].path);
    return node && row.place < node->GetValues().size() ? node->GetValues()[row.place].get() : nullptr;
}

} // namespace JOBEDIT
