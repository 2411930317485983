#pragma once

#include <vector>

namespace TKE
{

class ValueBase;

/// A widget that shows values without being a ValueLink: of a value that switches a box, or of several at once.
class ValueHolder
{
public:
    /// None where it holds nothing.
    virtual std::vector<ValueBase*> GetBoundValues() const = 0;

protected:
    ~ValueHolder() = default;
};

} // namespace TKE
