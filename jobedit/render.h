#pragma once

#include "chains.h"

#include <QTextStream>

namespace JOBEDIT
{

struct RenderRequest
{
    QString directory; ///< made when it is missing
    QString entry;     ///< only this entry point or direct panel; empty: all
    Form form = Form::Job;
};

/// Writes a picture of every tab of the dialogs of these nodes, whose values stand in the tree, and names each on
/// `out`. False when a picture cannot be written or nothing answers the request; `errors` says what.
bool Render(const std::vector<JobNode>& nodes, const RenderRequest& request, QTextStream& out, QTextStream& errors);

} // namespace JOBEDIT
