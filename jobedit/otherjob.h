#pragma once

#include "jobmodel/jobfile.h"

namespace JOBEDIT
{

/// A job beside the open one, in a tree of its own. Nobody else hears of it.
struct OtherJob
{
    TKE::Tree tree;
    TKE::JobFile file{tree};
};

} // namespace JOBEDIT
