#include "shell/visible_rows.h"

#include <algorithm>
#include <bit>

namespace folioscope {

void VisibleRows::Reset(const NodeStore* nodes)
{
    *this = {};
    nodes_ = nodes;
    TakeOver();
}

bool VisibleRows::TakeOver()
{
    if (nodes_ == nullptr || nodes_->Size() <= known_) return false;
    const std::uint32_t first = known_, before = rows_;
    known_ = nodes_->Size();
    visible_.resize(known_ / kWord + 1);
    expanded_.resize(known_ / kWord + 1);
    inBlock_.resize(known_ / kBlock + 1);
    inStretch_.resize(known_ / kStretch + 1);
    for (std::uint32_t node = std::max(first, NodeStore::kRoot); node < known_; ++node) {
        const std::uint32_t parent = (*nodes_)[node].parent;
        if (parent == 0 || (Bit(visible_, parent) && Bit(expanded_, parent))) Show(node);
    }
    return rows_ != before;
}

std::uint32_t VisibleRows::End(std::uint32_t node) const
{
    return node != 0 && node < known_ ? std::min(nodes_->End(node), known_) : 0;
}

std::uint32_t VisibleRows::NodeAt(std::uint32_t row) const
{
    if (row >= rows_) return 0;
    std::size_t at = 0;
    for (; row >= inStretch_[at]; ++at) row -= inStretch_[at];
    at *= kStretch / kBlock;
    for (; row >= inBlock_[at]; ++at) row -= inBlock_[at];
    at *= kBlock / kWord;
    for (; row >= static_cast<std::uint32_t>(std::popcount(visible_[at])); ++at)
        row -= static_cast<std::uint32_t>(std::popcount(visible_[at]));
    std::uint64_t word = visible_[at];
    for (; row > 0; --row) word &= word - 1;
    return static_cast<std::uint32_t>(at * kWord) + static_cast<std::uint32_t>(std::countr_zero(word));
}

std::uint32_t VisibleRows::RowOf(std::uint32_t node) const
{
    if (node >= known_) return rows_;
    std::uint32_t row = 0;
    const std::uint32_t stretch = node / kStretch, block = node / kBlock, word = node / kWord;
    for (std::uint32_t at = 0; at < stretch; ++at) row += inStretch_[at];
    for (std::uint32_t at = stretch * (kStretch / kBlock); at < block; ++at) row += inBlock_[at];
    for (std::uint32_t at = block * (kBlock / kWord); at < word; ++at)
        row += static_cast<std::uint32_t>(std::popcount(visible_[at]));
    const std::uint64_t before = (std::uint64_t{1} << node % kWord) - 1;
    return row + static_cast<std::uint32_t>(std::popcount(visible_[word] & before));
}

std::uint32_t VisibleRows::NextRowNode(std::uint32_t node) const
{
    const std::uint32_t next = node + 1;
    if (next >= known_) return 0;
    if (Bit(visible_, next)) return next;
    return NodeAt(RowOf(next));
}

bool VisibleRows::Expand(std::uint32_t node)
{
    if (!HasChildren(node) || IsExpanded(node)) return false;
    SetBit(expanded_, node);
    if (Bit(visible_, node)) Reveal(node);
    return true;
}

bool VisibleRows::Collapse(std::uint32_t node)
{
    if (!IsExpanded(node)) return false;
    expanded_[node / kWord] &= ~(std::uint64_t{1} << node % kWord);
    if (Bit(visible_, node)) Hide(node + 1, End(node));
    return true;
}

void VisibleRows::ExpandRange(std::uint32_t first, std::uint32_t last)
{
    last = std::min(last, known_);
    for (std::uint32_t node = std::max(first, NodeStore::kRoot); node < last; ++node)
        if ((*nodes_)[node].folder) Expand(node);
}

void VisibleRows::CollapseAll()
{
    if (known_ <= NodeStore::kRoot) return;
    std::fill(expanded_.begin(), expanded_.end(), 0);
    Hide(NodeStore::kRoot + 1, known_);
}

void VisibleRows::Count(std::uint32_t node, std::int64_t more)
{
    const auto add = static_cast<std::uint32_t>(more);
    inBlock_[node / kBlock] += add;
    inStretch_[node / kStretch] += add;
    rows_ += add;
}

void VisibleRows::Show(std::uint32_t node)
{
    SetBit(visible_, node);
    Count(node, 1);
}

// Word by word: what is hidden can be the whole tree.
void VisibleRows::Hide(std::uint32_t first, std::uint32_t last)
{
    while (first < last) {
        const std::uint32_t next = std::min(last, (first / kWord + 1) * kWord);
        std::uint64_t& word = visible_[first / kWord];
        const std::uint64_t mask = ~std::uint64_t{0} >> (kWord - (next - first)) << first % kWord;
        Count(first, -static_cast<std::int64_t>(std::popcount(word & mask)));
        word &= ~mask;
        first = next;
    }
}

// All below a folder that is seen, but what lies in closed folders.
void VisibleRows::Reveal(std::uint32_t folder)
{
    const std::uint32_t end = End(folder);
    for (std::uint32_t node = folder + 1; node < end;) {
        Show(node);
        node = (*nodes_)[node].folder && !Bit(expanded_, node) ? End(node) : node + 1;
    }
}

}  // namespace folioscope
