#include "analysis/decode/rows.h"

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

namespace {

constexpr std::int32_t kPage500 = 500, kPage1252 = 1252;
constexpr double kPerInch = 1440;

// The bytes that a row needs to be inside of the length.
std::int32_t EndOf(const Row& row)
{
    switch (row.read) {
    case Read::Bit:
    case Read::TwoOrOne:
    case Read::OneOrZero: return row.at + row.size / 8 + 1;
    case Read::True: return 0;
    default: return row.at + (row.size == 0 ? 1 : row.size);
    }
}

}  // namespace

int DegreesOf(std::uint8_t angleByte)
{
    switch (angleByte) {
    case 0x00: return 0;
    case 0x2D: return 90;
    case 0x5A: return 180;
    case 0x87: return 270;
    default: return -1;
    }
}

void ReadRows(clsAFPFunctions& afp, std::span<const Row> rows, std::int32_t base, std::int32_t length, AddTo to)
{
    for (const Row& row : rows) {
        if (row.inside && EndOf(row) > length) continue;
        const std::int32_t p = base + row.at;
        const std::int32_t bytes = row.size != 0 ? row.size : length - row.at;
        switch (const Key key = row.key; row.read) {
        case Read::Byte: afp.Add(to, Element::Byte(key, afp.ByteAt(p))); break;
        case Read::Unsigned: afp.Add(to, Element::Int32(key, afp.ReadUnsigned(p, row.size))); break;
        case Read::Signed: afp.Add(to, Element::Int32(key, afp.ReadSigned(p, row.size))); break;
        case Read::Bit: afp.Add(to, Element::Boolean(key, afp.ReadBit(p, row.size))); break;
        case Read::TwoOrOne: afp.Add(to, Element::Int16(key, afp.ReadBit(p, row.size) ? 2 : 1)); break;
        case Read::OneOrZero: afp.Add(to, Element::Int16(key, afp.ReadBit(p, row.size) ? 1 : 0)); break;
        case Read::IsOne: afp.Add(to, Element::Boolean(key, afp.ByteAt(p) == 1)); break;
        case Read::HighHalf: afp.Add(to, Element::Byte(key, afp.ByteAt(p) >> 4)); break;
        case Read::LowHalf: afp.Add(to, Element::Byte(key, afp.ByteAt(p) & 0x0F)); break;
        case Read::In256: afp.Add(to, Element::Int16(key, afp.ByteAt(p) * 256)); break;
        case Read::Angle:
            if (const int degrees = DegreesOf(afp.ByteAt(p)); degrees >= 0) afp.Add(to, Element::Int16(key, degrees));
            break;
        case Read::Inches: afp.Add(to, Element::Float64(key, afp.ReadUnsigned(p, 2) / kPerInch)); break;
        case Read::True: afp.Add(to, Element::Boolean(key, true)); break;
        case Read::Text: afp.Add(to, afp.ReadText(key, p, bytes)); break;
        case Read::Text500: afp.Add(to, afp.ReadTextCP(key, kPage500, p, bytes)); break;
        case Read::Text1252: afp.Add(to, afp.ReadTextCP(key, kPage1252, p, bytes)); break;
        case Read::Hex: afp.Add(to, afp.ReadHex(key, p, bytes)); break;
        }
    }
}

void ReadRows(clsAFPFunctions& afp, std::span<const Row> rows, std::int32_t base, std::int32_t length)
{
    ReadRows(afp, rows, base, length, AddTo::Record);
}

}  // namespace folioscope
