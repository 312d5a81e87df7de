#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "document/text_store.h"

namespace folioscope {

// What is kept of one tree node. Captions and property texts are formulas of it as far as they go; the text store has
// the rest.
struct NodeRecord {
    std::uint32_t parent = 0;
    std::uint32_t end = 0;        // the first node behind the subtree; 0 while the folder is open
    std::int32_t lngStart = 0;    // 1-based file position of the length field; a page folder's number in its place
    std::uint16_t lngLength = 0;  // the record's length in bytes, from the length field on
    std::uint8_t field = 0;       // row of the field table, of a folder: of its Begin field
    std::uint8_t image = 0;

    bool folder : 1 = false;
    bool bolUnread : 1 = false;  // the body wasn't read yet
    bool deferred : 1 = false;   // the body is made from the file whenever it is asked for
    bool red : 1 = false;
    bool head : 1 = false;        // the three head lines precede the stored text
    bool titled : 1 = false;      // a folder that has the title of its Begin field
    bool ownCaption : 1 = false;  // `caption` is the whole text of the node, else what follows the formula
    bool nameLine : 1 = false;    // the body is the name's or the content's line made of the caption's name
    bool described : 1 = false;   // texts that other records left follow the body

    TextPlace caption = kNoText;
    TextPlace content = kNoText;
};

static_assert(sizeof(NodeRecord) == 28);

// The nodes of a tree. They are born in tree order, so that a node's number, the order of its birth and tree order are
// one: the first child of i is i + 1, and so is the next node. 0 is no node, 1 the root.
class NodeStore {
public:
    static constexpr std::uint32_t kRoot = 1;

    NodeStore() { Clear(); }

    void Clear()
    {
        blocks_.clear();
        size_ = 0;
        Append({});
    }

    std::uint32_t Add(std::uint32_t parent, bool folder)
    {
        NodeRecord node;
        node.parent = parent;
        node.end = folder ? 0 : size_ + 1;
        node.folder = folder;
        return Append(node);
    }
    void Close(std::uint32_t folder) { (*this)[folder].end = size_; }

    std::uint32_t Size() const { return size_; }  // one more than the highest number
    std::uint32_t End(std::uint32_t node) const { return (*this)[node].end != 0 ? (*this)[node].end : size_; }
    bool HasChildren(std::uint32_t node) const { return End(node) > node + 1; }

    template <class Visit> void ForEachChild(std::uint32_t node, Visit visit) const
    {
        for (std::uint32_t child = node + 1; child < End(node); child = End(child)) visit(child);
    }

    NodeRecord& operator[](std::uint32_t node) { return blocks_[node / kBlock][node % kBlock]; }
    const NodeRecord& operator[](std::uint32_t node) const { return blocks_[node / kBlock][node % kBlock]; }

private:
    static constexpr std::uint32_t kBlock = 65'536;

    std::uint32_t Append(const NodeRecord& node)
    {
        if (size_ % kBlock == 0) blocks_.push_back(std::make_unique_for_overwrite<NodeRecord[]>(kBlock));
        blocks_.back()[size_ % kBlock] = node;
        return size_++;
    }

    std::vector<std::unique_ptr<NodeRecord[]>> blocks_;
    std::uint32_t size_ = 0;
};

// Walks a tree in its order and knows the depth at each step: 0 for the root.
class TreeWalk {
public:
    explicit TreeWalk(const NodeStore& nodes) : nodes_(nodes) {}
    std::uint32_t Node() const { return node_; }
    std::uint32_t Depth() const { return depth_; }
    bool AtEnd() const { return node_ >= nodes_.Size(); }

    void Next()
    {
        const std::uint32_t next = node_ + 1;
        if (next < nodes_.Size()) {
            const std::uint32_t parent = nodes_[next].parent;
            if (parent == node_)
                ++depth_;
            else
                for (std::uint32_t at = node_; nodes_[at].parent != parent; at = nodes_[at].parent) --depth_;
        }
        node_ = next;
    }

private:
    const NodeStore& nodes_;
    std::uint32_t node_ = NodeStore::kRoot, depth_ = 0;
};

}  // namespace folioscope
