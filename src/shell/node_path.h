#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/structure_tree.h"

namespace folioscope {

// The texts from the root to the node, tags and all, joined by the separator. Empty for a node that there isn't.
std::string FullPath(const StructureTree& tree, std::uint32_t node, std::string_view separator);

// The first node in tree order with that path; 0 if there is none. Texts that hold the separator are no hindrance.
std::uint32_t ExtractNode(const StructureTree& tree, std::string_view path, std::string_view separator);

// How deep a node lies: 0 for the root.
std::uint32_t DepthOf(const NodeStore& nodes, std::uint32_t node);

}  // namespace folioscope
