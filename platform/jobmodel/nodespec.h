#pragma once

#include "jobmodel/parametergroup.h"

#include <QStringList>

namespace TKE
{

/// What a job file says about a node, but for its values.
struct NodeSpec
{
    QString name{}; ///< one segment; the whole path of a top node
    QString type{}; ///< type text
    QStringList groups{};
    int count = 0;         ///< channels of the groups that have channels
    bool dataForm = false; ///< the decoder's values are in the data form
    Band band = Band::Hf;

    bool operator==(const NodeSpec&) const = default;

    /// Why a node cannot have this name, or an empty text. A top node's name is a path.
    QString NameFault(bool top) const;
    /// Most channels that a node may have.
    static constexpr int maximumCount = 1000;
};

} // namespace TKE
