#include "shell/node_path.h"

#include <vector>

namespace folioscope {

std::uint32_t DepthOf(const NodeStore& nodes, std::uint32_t node)
{
    std::uint32_t depth = 0;
    for (; nodes[node].parent != 0; node = nodes[node].parent) ++depth;
    return depth;
}

std::string FullPath(const StructureTree& tree, std::uint32_t node, std::string_view separator)
{
    const NodeStore& nodes = tree.Nodes();
    std::string path;
    if (node < NodeStore::kRoot || node >= nodes.Size()) return path;
    std::vector<std::uint32_t> way;
    for (; node != 0; node = nodes[node].parent) way.push_back(node);
    while (!way.empty()) {
        tree.AppendNodeText(path, way.back());
        way.pop_back();
        if (!way.empty()) path += separator;
    }
    return path;
}

// What is left of the path for a node follows from its ancestors alone, so that each node is looked at once at most.
std::uint32_t ExtractNode(const StructureTree& tree, std::string_view path, std::string_view separator)
{
    const NodeStore& nodes = tree.Nodes();
    struct Level {
        std::uint32_t end;  // of the folder whose children are compared
        std::size_t from;   // where their text begins in the path
    };
    std::vector<Level> levels{{nodes.Size(), 0}};
    std::string text;
    for (std::uint32_t node = NodeStore::kRoot; node < nodes.Size();) {
        while (levels.size() > 1 && node >= levels.back().end) levels.pop_back();
        const std::string_view rest = path.substr(levels.back().from);
        text.clear();
        tree.AppendNodeText(text, node);
        if (rest == text) return node;
        const bool within = rest.starts_with(text) && rest.substr(text.size()).starts_with(separator);
        if (within && nodes.HasChildren(node)) {
            levels.push_back({nodes.End(node), levels.back().from + text.size() + separator.size()});
            ++node;
        } else {
            node = nodes.End(node);
        }
    }
    return 0;
}

}  // namespace folioscope
