#pragma once

#include <functional>

namespace TKE
{

/// Deletes what is too large to be deleted at once: a little at a time, while the event loop has nothing else to do.
/// Without an application there is no such loop, and all is deleted at once. GUI thread only.
class IdleDisposal
{
public:
    /// `step` deletes some thousand small objects at most and returns whether there are more. What it holds goes with
    /// it when the program ends first.
    static void Add(std::function<bool()> step);
    /// Whether there is something left to delete.
    static bool IsUnderWay();
};

} // namespace TKE
