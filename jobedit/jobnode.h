#pragma once

#include "jobmodel/parametergroup.h"

#include <QString>

namespace JOBEDIT
{

/// A node of the job as the editor lists it: a copy, so that nothing dangles when the tree is replaced.
struct JobNode
{
    QString path; ///< full path, "/" at the end
    QString name; ///< as shown
    QString type; ///< type text
    TKE::Band band = TKE::Band::Hf;
    bool dataForm = false;
    int parent = -1; ///< index of the listed node above; -1 at the top
};

} // namespace JOBEDIT
