#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/rows.h"

namespace folioscope {

// What text, graphics and image data have in common: each is a chain of items in one or more fields.

// One control sequence, drawing order or self-defining field. Positions are those of the record buffer.
struct Item {
    std::int32_t at;      // its first byte: the length byte of a sequence, the code of an order or a field
    std::int32_t length;  // as its length byte says
    std::int32_t end;     // the field's last byte
};

// The keys of an item that rows can say. Offsets count from the item's first parameter byte.
class ItemRows {
public:
    static constexpr std::size_t kMost = 10;

    constexpr ItemRows(std::initializer_list<Row> rows = {}) : count_(static_cast<std::uint8_t>(rows.size()))
    {
        if (rows.size() > kMost) throw "too many rows for one item";
        std::size_t i = 0;
        for (const Row& row : rows) rows_[i++] = row;
    }
    std::span<const Row> All() const { return {rows_.data(), count_}; }

private:
    std::array<Row, kMost> rows_{};
    std::uint8_t count_;
};

// What rows can't say of an item.
using ItemProcedure = void (*)(clsAFPFunctions&, const Item&);

// Code to row + 1 of a table; 0 for a code that no row has.
template <class Row, std::size_t count, class Code>
constexpr std::array<std::uint8_t, 256> IndexByCode(const Row (&rows)[count], Code codeOf)
{
    std::array<std::uint8_t, 256> index{};
    for (std::size_t i = 0; i < count; ++i) {
        auto& place = index[codeOf(rows[i])];
        if (place != 0) throw "two rows for one code";
        place = static_cast<std::uint8_t>(i + 1);
    }
    return index;
}

// To the sequence in hand.
inline constexpr AddTo kToSequence = AddTo::Sequence;

// Starts the sequence of a field, and passes what the last item of the field before it left in this one.
void BeginItems(clsAFPFunctions& afp);
// Publishes the sequence.
void EndItems(clsAFPFunctions& afp, Key types, Key values);
// The last item ran over the field's end: the next field begins with its rest.
bool RunsOver(const clsAFPFunctions& afp, std::int32_t end);
void CarryOver(clsAFPFunctions& afp, std::int32_t end);

// A colour with its space: all that follows a head of two bytes.
void DecodeItemColor(clsAFPFunctions& afp, const Item& item);

// "0F", for a code that no table knows.
void AddCode(clsAFPFunctions& afp, Key key, std::uint8_t code);

}  // namespace folioscope
