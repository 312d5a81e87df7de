#pragma once

#include <cstdint>
#include <span>

#include "analysis/elements/element.h"

namespace folioscope {

class clsAFPFunctions;

// Where a decoder's Elements go: to the record, or to the sequence in hand.
enum class AddTo : std::uint8_t { Record, Sequence };

// How a row reads its value.
enum class Read : std::uint8_t {
    Byte,
    Unsigned,   // big-endian, 1 to 4 bytes
    Signed,     // the same in two's complement
    Bit,        // size: the bit's number, 0 the highest
    TwoOrOne,   // 2 if the bit is set, else 1
    OneOrZero,  // the bit as a number
    IsOne,      // Boolean: the byte is 1
    HighHalf,   // the upper four bits
    LowHalf,
    In256,   // a byte of whole numbers, as 256ths
    Angle,   // 0x00, 0x2D, 0x5A, 0x87: 0 to 270 degrees; another byte adds nothing
    Inches,  // two bytes, in 1440ths of an inch
    True,    // a Boolean without bytes
    Text,    // in the current code page
    Text500,
    Text1252,
    Hex,
};

// One key of a layout. Offsets count from 0, from the first byte of the field's data, group or triplet.
struct Row {
    Key key;
    Read read;
    std::uint8_t at;
    std::uint8_t size;  // bytes; of texts and hex: 0 is to the end
    bool inside;        // only if it lies whole inside the length
};

constexpr Row b(Key key, std::uint8_t at) { return {key, Read::Byte, at, 1, false}; }
constexpr Row u(Key key, std::uint8_t at, std::uint8_t size) { return {key, Read::Unsigned, at, size, false}; }
constexpr Row s(Key key, std::uint8_t at, std::uint8_t size) { return {key, Read::Signed, at, size, false}; }
constexpr Row bit(Key key, std::uint8_t at, std::uint8_t number) { return {key, Read::Bit, at, number, false}; }
constexpr Row text(Key key, std::uint8_t at, std::uint8_t size = 0) { return {key, Read::Text, at, size, false}; }
constexpr Row name(Key key, std::uint8_t at) { return {key, Read::Text500, at, 8, false}; }
constexpr Row hex(Key key, std::uint8_t at, std::uint8_t size = 0) { return {key, Read::Hex, at, size, false}; }
constexpr Row angle(Key key, std::uint8_t at) { return {key, Read::Angle, at, 1, false}; }
constexpr Row read(Read how, Key key, std::uint8_t at, std::uint8_t size = 1) { return {key, how, at, size, false}; }
constexpr Row inside(Row row)
{
    row.inside = true;
    return row;
}

// Adds an Element for each row. `base` is the buffer index of offset 0, `length` the bytes from there on.
void ReadRows(clsAFPFunctions& afp, std::span<const Row> rows, std::int32_t base, std::int32_t length, AddTo to);
void ReadRows(clsAFPFunctions& afp, std::span<const Row> rows, std::int32_t base, std::int32_t length);

// Degrees of an angle byte, or -1 for a byte that is none.
int DegreesOf(std::uint8_t angleByte);

}  // namespace folioscope
