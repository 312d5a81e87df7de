#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/node_store.h"

namespace folioscope {

// Which nodes of a tree are rows of its view. A node number is tree order, so that the rows are the nodes whose bit is
// set, in their order: two bits a node and some counts, whatever is open. Rows count from 0. Nodes that the tree got
// since the last TakeOver are not known here.
class VisibleRows {
public:
    void Reset(const NodeStore* nodes);
    // Takes over the nodes that were added. True if rows came.
    bool TakeOver();

    std::uint32_t Known() const { return known_; }  // one more than the highest known number
    std::uint32_t Rows() const { return rows_; }
    std::uint32_t NodeAt(std::uint32_t row) const;        // 0 behind the last row
    std::uint32_t RowOf(std::uint32_t node) const;        // of a node that isn't visible: how many rows precede it
    std::uint32_t NextRowNode(std::uint32_t node) const;  // the node of the next row; 0 behind the last row

    bool IsVisible(std::uint32_t node) const { return node < known_ && Bit(visible_, node); }
    bool IsExpanded(std::uint32_t node) const { return node < known_ && Bit(expanded_, node); }
    bool HasChildren(std::uint32_t node) const { return node + 1 < End(node); }

    // The folders in a folder keep their state. False if nothing changed, or if the node has no children.
    bool Expand(std::uint32_t node);
    bool Collapse(std::uint32_t node);
    // Expands all folders from `first` to before `last`, in tree order.
    void ExpandRange(std::uint32_t first, std::uint32_t last);
    void CollapseAll();

    std::uint32_t End(std::uint32_t node) const;  // as the store's, but among the known nodes

private:
    using Words = std::vector<std::uint64_t>;
    static constexpr std::uint32_t kWord = 64, kBlock = 4096, kStretch = kBlock * 256;  // in nodes

    static bool Bit(const Words& words, std::uint32_t node) { return (words[node / kWord] >> node % kWord & 1) != 0; }
    static void SetBit(Words& words, std::uint32_t node) { words[node / kWord] |= std::uint64_t{1} << node % kWord; }
    void Show(std::uint32_t node);
    void Hide(std::uint32_t first, std::uint32_t last);
    void Count(std::uint32_t node, std::int64_t more);
    void Reveal(std::uint32_t folder);

    const NodeStore* nodes_ = nullptr;
    Words visible_, expanded_;
    std::vector<std::uint32_t> inBlock_, inStretch_;  // how many visible nodes
    std::uint32_t known_ = 0, rows_ = 0;
};

}  // namespace folioscope
