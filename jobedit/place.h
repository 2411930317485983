#pragma once

#include "chains.h"

namespace JOBEDIT
{

/// Where in a job the user is.
struct Place
{
    QString node; ///< path
    Form form = Form::Job;
    int tab = 0;
};

} // namespace JOBEDIT
