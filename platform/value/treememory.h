#pragma once

#include <cstddef>

namespace TKE
{

/// Memory of nodes and values, of which a job has millions: pieces of one size stand side by side without the overhead
/// that the general allocator has for each. What is given back serves the next of that size; all goes back to the
/// system when the last of a size is gone. GUI thread only.
class TreeMemory
{
public:
    static void* Take(std::size_t size);
    static void Give(void* piece, std::size_t size) noexcept;
};

} // namespace TKE
