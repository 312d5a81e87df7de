#include "analysis/decode/fields_graphics.h"

#include <span>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/colors.h"
#include "analysis/decode/groups.h"

namespace folioscope {

namespace {

// A value that a set of defaults gives if its bit of the mask is set. The values stand one behind the other.
struct DefaultRow {
    std::uint8_t subtype;
    std::uint8_t bit;                                                // of the mask word, 0 the highest
    std::uint8_t size;                                               // bytes
    Row rows[2];                                                     // offsets count from the value's first byte
    bool (*procedure)(clsAFPFunctions&, std::int32_t at) = nullptr;  // false: the part ends here
};

bool AddDefaultRotation(clsAFPFunctions& afp, std::int32_t at)
{
    AddCharRotation(afp, at);
    return true;
}

bool AddDefaultColor(clsAFPFunctions& afp, std::int32_t at)
{
    return DecodeColor(afp, {at + 1, at + 6, at + 10, ColorSource::Triplet}, AddTo::Record);
}

// clang-format off
constexpr Row kDrawingSpace[] = {
    bit(Key::PicturePS,        2, 0),
    bit(Key::PictureDimension, 2, 1),
    read(Read::OneOrZero, Key::Symmetric, 2, 4),
    u(Key::Resolution,     10, 2),
    b(Key::UnitBaseX,      5),
    b(Key::UnitBaseY,      5),                         // one unit base for both axes
    u(Key::PageBaseUnitsX, 6, 2),
    u(Key::PageBaseUnitsY, 8, 2),
    s(Key::LeftMargin,     12, 2),
    s(Key::RightMargin,    14, 2),
    s(Key::BottomMargin,   16, 2),
    s(Key::TopMargin,      18, 2),
};
constexpr DefaultRow kDefaults[] = {
    {0,  0,  2, {u(Key::Color, 0, 2)}},                // drawing attributes
    {0,  2,  1, {b(Key::ForegroundMix, 0)}},
    {0,  3,  1, {b(Key::BackgroundMix, 0)}},
    {1,  0,  1, {b(Key::LineType, 0)}},                // line attributes
    {1,  1,  1, {read(Read::In256, Key::LineWidth, 0)}},
    {1,  2,  1, {b(Key::LineEnd, 0)}},
    {1,  3,  1, {b(Key::LineJoin, 0)}},
    {2,  0,  4, {}, AddDefaultRotation},               // character attributes
    {2,  1,  4, {s(Key::CellWidth, 0, 2), s(Key::CellHeight, 2, 2)}},
    {2,  2,  1, {b(Key::CharDirection, 0)}},
    {2,  3,  1, {b(Key::Precision, 0)}},
    {2,  4,  1, {b(Key::CHSID, 0)}},
    {3,  1,  4, {s(Key::MarkerCellWidth, 0, 2), s(Key::MarkerCellHeight, 2, 2)}},  // marker attributes
    {3,  3,  1, {b(Key::Precision, 0)}},
    {3,  4,  1, {b(Key::MSID, 0)}},
    {3,  7,  1, {b(Key::MarkerSymbol, 0)}},
    {4,  4,  1, {b(Key::PatternSID, 0)}},              // pattern attributes
    {4,  7,  1, {b(Key::PatternSymbol, 0)}},
    {4,  11, 4, {s(Key::PatternRefPointX, 0, 2), s(Key::PatternRefPointY, 2, 2)}},
    {11, 0,  2, {s(Key::MajorX, 0, 2)}},               // arc parameters
    {11, 1,  2, {s(Key::MinorY, 0, 2)}},
    {11, 2,  2, {s(Key::MinorX, 0, 2)}},
    {11, 3,  2, {s(Key::MajorY, 0, 2)}},
    {16, 0,  1, {b(Key::ForegroundMix, 0)}},           // process colour
    {16, 1,  1, {b(Key::BackgroundMix, 0)}},
    {16, 2,  0, {}, AddDefaultColor},                  // the last value
    {17, 0,  2, {u(Key::NormalLineWidth, 0, 2)}},      // normal line width
};
// clang-format on

std::span<const Row> RowsOf(const DefaultRow& row)
{
    const std::size_t count = row.rows[0].key == Key::NoKey ? 0 : row.rows[1].key == Key::NoKey ? 1 : 2;
    return {row.rows, count};
}

void DecodeDefaults(clsAFPFunctions& afp, std::int32_t start)
{
    constexpr std::int32_t kMaskAt = 3, kFlagsAt = 5, kValuesAt = 6;
    const std::uint8_t subtype = afp.ByteAt(start + 2);
    const bool allDefault = !afp.ReadBit(start + kFlagsAt, 0);
    afp.AddElement(Element::Byte(Key::Subtype, subtype));
    afp.AddElement(Element::Boolean(Key::AllDefault, allDefault));
    if (allDefault) return;
    std::int32_t at = start + kValuesAt;
    for (const DefaultRow& row : kDefaults) {
        if (row.subtype != subtype || !afp.ReadBit(start + kMaskAt, row.bit)) continue;
        ReadRows(afp, RowsOf(row), at, row.size);
        if (row.procedure != nullptr && !row.procedure(afp, at)) return;
        at += row.size;
    }
}

// The set's name and its version stand where the format has them, or three bytes behind.
void DecodeOrderSubset(clsAFPFunctions& afp, std::int32_t start)
{
    constexpr std::uint8_t kDR2V0 = 0xB0, kGRS = 0xB8;
    const std::uint8_t first = afp.ByteAt(start + 2), second = afp.ByteAt(start + 5);
    const std::uint8_t version = first == kGRS ? second : second == kGRS ? afp.ByteAt(start + 6) : 0;
    if (first == kDR2V0 || second == kDR2V0)
        afp.AddElement(Element::Literal(Key::DOSubset, "DR/2V0"));
    else if (version == 2)
        afp.AddElement(Element::Literal(Key::DOSubset, "GRS2"));
    else if (version == 3)
        afp.AddElement(Element::Literal(Key::DOSubset, "GRS3"));
    afp.AddElement(Element::Byte(Key::GeoFormat, afp.ByteAt(start + 8)));
}

}  // namespace

void AddCharRotation(clsAFPFunctions& afp, std::int32_t position)
{
    const std::int32_t x = afp.ReadSigned(position, 2), y = afp.ReadSigned(position + 2, 2);
    if (x == 0 && y == 0) return afp.AddElement(Element::Literal(Key::CharRotation, "Default"));
    if (x != 0 && y != 0) return;
    afp.AddElement(Element::Int16(Key::CharRotation, x > 0 ? 0 : x < 0 ? 180 : y > 0 ? 90 : 270));
}

void DecodeGDD(clsAFPFunctions& afp)
{
    AnalyzeTypedGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        constexpr std::uint8_t kOrderSubset = 0xF7, kSpace = 0xF6, kDefaultValues = 0x21;
        const std::uint8_t type = inner.ByteAt(start);
        inner.AddElement(Element::Byte(Key::Type, type));
        if (type == kOrderSubset) DecodeOrderSubset(inner, start);
        if (type == kSpace) ReadRows(inner, kDrawingSpace, start, length);
        if (type == kDefaultValues) DecodeDefaults(inner, start);
    });
}

}  // namespace folioscope
