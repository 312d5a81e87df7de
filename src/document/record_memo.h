#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/render/renderer.h"
#include "document/node_store.h"

namespace folioscope {

// Everything besides its bytes that the text of a repeating record depends on.
struct MemoState {
    UnitState units;
    LineState lines;
    std::int32_t codePage = 0, codePageNOP = 0, codePageTLE = 0;
    std::int32_t carryOver = 0;
    bool colorManagement = false, metadata = false;

    bool operator==(const MemoState&) const = default;
};

// Descriptors, maps, drawings and tags come again on every page with the same bytes. What such a record came to is
// remembered here for a while, so that its equals are not decoded again. The memory is bounded: a new record takes the
// place of an old one.
//
// A field may only be told from memory if its text and caption follow from its bytes and from MemoState, and if reading
// it changes nothing but units and line widths: the list in record_memo.cpp says which ones do.
class RecordMemo {
public:
    // What a record came to.
    struct Entry {
        std::uint32_t hash = 0;
        Status status = kNothing;
        std::string bytes;
        MemoState before;
        UnitState units;
        LineState lines;
        NodeRecord node;
    };

    // Bytes behind the record that count with it: a text looks at two bytes, however short it is.
    static constexpr std::int32_t kBehind = 2;

    RecordMemo() : entries_(kEntries) {}

    static bool Repeats(std::size_t field, std::size_t bytes);

    // The bytes of the record from its length field on, and kBehind more. The sequence number doesn't count.
    void Ask(std::string_view record, const MemoState& state);
    // What the record that was asked for came to; null: nobody remembers.
    const Entry* Answer() const { return known_ ? asked_ : nullptr; }
    // Remembers it for the record that was asked for.
    void Learn(Status status, const UnitState& units, const LineState& lines, const NodeRecord& node);

private:
    static constexpr std::size_t kEntries = 4096;

    std::vector<Entry> entries_;
    Entry* asked_ = nullptr;
    bool known_ = false;
    std::uint32_t hash_ = 0;
    std::string bytes_;
    MemoState state_;
};

}  // namespace folioscope
