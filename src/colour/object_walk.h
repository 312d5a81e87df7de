#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

class ObjectWalk;

// How a row reads its value out of an object.
enum class ObjectRead : std::uint8_t {
    Byte,
    Unsigned,  // big-endian, 1 to 4 bytes
    Bit,       // size: the bit's number, 0 the highest
    Wide,      // text in UTF-16BE, cleaned
    Narrow,    // text in code page 437, cleaned
    Hex,
    Own,
};

// One key of a structure inside an object. Offsets count from 0, from the structure's first byte.
struct ObjectRow {
    Key key;
    ObjectRead read;
    std::uint8_t at;
    std::uint8_t size = 1;                                               // bytes; of a bit: its number
    void (*own)(ObjectWalk&, Key key, std::int64_t position) = nullptr;  // for a value of its own shape
};

inline constexpr std::int32_t kUtf16BEPage = 1200, kPage437 = 437;

// Turns the bytes of ObjectBuffer into Elements. Positions count from 0; what lies outside of the object reads as 0.
class ObjectWalk {
public:
    ObjectWalk(clsAFPFunctions& afp, AddTo to) : afp_(afp), to_(to) {}

    std::int64_t Size() const { return static_cast<std::int64_t>(afp_.ObjectBuffer.size()); }
    std::uint8_t ByteAt(std::int64_t position) const { return afp_.Object().At(position); }
    std::int32_t Unsigned(std::int64_t position, int length) const { return afp_.ObjReadUnsigned(position, length); }
    bool Bit(std::int64_t position, int bit) const { return afp_.ObjReadBit(position, bit); }

    // The sequence takes no more: whatever a count says, nothing that follows would be kept.
    bool Full() const { return afp_.List().SequenceIsFull(); }

    void Add(const Element& element) { afp_.Add(to_, element); }
    void AddRows(std::span<const ObjectRow> rows, std::int64_t base);
    void AddText(Key key, std::string_view made);
    void AddText(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    void AddCleaned(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    void AddHex(Key key, std::int64_t position, std::int64_t length);

    Element Text(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    // "@" fills what isn't used of a name, so it counts as a blank; blanks at both ends go.
    Element Cleaned(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    std::string_view TextOf(const Element& element) const { return afp_.List().TextOf(element); }

private:
    static constexpr std::int64_t kMostText = 8 << 20;

    std::int64_t BytesToRead(std::int64_t position, std::int64_t length);

    clsAFPFunctions& afp_;
    AddTo to_;
    std::int64_t textLeft_ = kMostText;  // many entries can point to one long text
};

}  // namespace folioscope
