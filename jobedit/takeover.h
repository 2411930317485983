#pragma once

#include "jobdiff.h"
#include "nodecopy.h"
#include "valuewriting.h"

namespace JOBEDIT
{

/// What is compared: a branch of the open job, at the left, and a branch of some job at the right.
struct CompareSides
{
    QString leftBase; ///< "/" at the end; empty: all
    QString rightBase;
    NodeSource right;

    std::vector<Difference> Compare(const DiffProgress& progress = {}) const;
};

/// Makes the left side as the right one is in these differences, as one step of undo with that name. The paths of the
/// refusals are those of the differences.
WriteResult TakeOver(JobDocument& document, const QString& stepName, const CompareSides& sides,
                     const std::vector<Difference>& differences);

} // namespace JOBEDIT
