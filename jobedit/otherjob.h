#pragma once

#include "jobmodel/jobfile.h"
#include "nodecopy.h"

namespace JOBEDIT
{

/// A job beside the open one, in a tree of its own. Nobody else hears of it.
struct OtherJob
{
    OtherJob() = default;
    ~OtherJob() { tree.ClearLater(); }
    OtherJob(const OtherJob&) = delete;
    OtherJob& operator=(const OtherJob&) = delete;

    TKE::Tree tree;
    TKE::JobFile file{tree};

    /// Valid as long as this lives.
    NodeSource Source() const
    {
        return {tree, [this](const QString& path) { return file.FindNodeSpec(path); }};
    }
};

} // namespace JOBEDIT
