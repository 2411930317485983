#pragma once

#include "jobmodel/nodespec.h"

#include <string>

/// The start tag of a node's element, in UTF-8.
namespace TKE::NodeTag
{

/// As the writer puts it, for an element without content.
std::string Of(const NodeSpec& spec);
/// `tag`, which is well-formed, with another value of its attribute "name"; all else stays.
std::string Renamed(const std::string& tag, const QString& name);

} // namespace TKE::NodeTag
