#pragma once

#include "jobnode.h"

namespace JOBEDIT
{

/// The title that the dialog of the node has, without making the dialog; empty where the node has none of its own.
QString ChainTitle(const JobNode& node);

} // namespace JOBEDIT
