#include "analysis/decode/fields_barcode.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/rows.h"

namespace folioscope {

namespace {

constexpr std::int32_t kPage500 = 500, kPage850 = 850;

// clang-format off
constexpr Row kBDD[] = {                               // Bar Code Data Descriptor
    b(Key::UnitBase,         0),
    u(Key::ObjectBaseUnitsX, 2, 2),
    u(Key::ObjectBaseUnitsY, 4, 2),
    u(Key::ObjectSizeX,      6, 2),
    u(Key::ObjectSizeY,      8, 2),
    u(Key::BCSymWidth,       10, 2),
    b(Key::BCType,           12),
    b(Key::BCMod,            13),
    b(Key::FontLID,          14),
    u(Key::Color,            15, 2),
    b(Key::BCModWidth,       17),
    u(Key::BCElemHeight,     18, 2),
    b(Key::BCHeightMult,     20),
};
constexpr Row kBDAFlags[] = {                          // Bar Code Data, behind HRIPos
    bit(Key::Asterisk,       0, 3),
    bit(Key::SuppressSymbol, 0, 5),
    bit(Key::SuppressBlanks, 0, 6),
    u(Key::ContentOriginX,   1, 2),
    u(Key::ContentOriginY,   3, 2),
};
// clang-format on

}  // namespace

void AddHRIPosition(clsAFPFunctions& afp, std::int32_t flags)
{
    const bool below = afp.ReadBit(flags, 1), above = afp.ReadBit(flags, 2);
    afp.AddElement(Element::Int16(Key::HRIPos, below ? 1 : above ? 2 : 0));
}

void AddWideToNarrow(clsAFPFunctions& afp, std::int32_t position)
{
    double ratio = afp.ReadUnsigned(position, 2);
    while (ratio > 10) ratio /= 10;
    afp.AddElement(Element::Float64(Key::BCRatio, ratio));
}

void DecodeBDD(clsAFPFunctions& afp)
{
    constexpr std::int32_t kRatioAt = 21, kTripletsAt = 23;
    const std::int32_t start = afp.FieldPosition;
    ReadRows(afp, kBDD, start, afp.FieldEnd - start + 1);
    AddWideToNarrow(afp, start + kRatioAt);
    afp.FieldPosition = start + kTripletsAt;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

// The data may be EBCDIC or ASCII: both readings are given.
void DecodeBDA(clsAFPFunctions& afp)
{
    constexpr std::int32_t kDataAt = 5;
    const std::int32_t start = afp.FieldPosition, data = start + kDataAt, length = afp.FieldEnd - data + 1;
    afp.AddElement(Element::Boolean(Key::HRIPresent, afp.ReadBit(start, 0)));
    AddHRIPosition(afp, start);
    ReadRows(afp, kBDAFlags, start, afp.FieldEnd - start + 1);
    afp.AddElement(afp.ReadTextCP(Key::Content, kPage500, data, length));
    afp.AddElement(afp.ReadTextCP(Key::Content, kPage850, data, length));
    afp.AddElement(afp.ReadHex(Key::HexCode, data, length));
}

}  // namespace folioscope
