#include "objects/fonts_decode.h"

#include "analysis/decode/dispatch.h"
#include "analysis/decode/groups.h"
#include "objects/items.h"

namespace folioscope {

namespace {

// clang-format off
constexpr Row kFNM[] = {                               // Font Pattern Map, a group
    u(Key::CharBoxWidth,   0, 2),
    u(Key::CharBoxHeight,  2, 2),
    u(Key::RasterOffset,   4, 4),
};

// Font Index, a group
constexpr Row kFNI[] = {
    name(Key::CharID,      0),
    u(Key::CharIncrement,  8, 2),
    s(Key::Ascender,       10, 2),
    s(Key::Descender,      12, 2),
};
constexpr Row kFNISpaces[] = {
    s(Key::ASpace,         18, 2),
    u(Key::BSpace,         20, 2),
    s(Key::CSpace,         22, 2),
    s(Key::BaselineOffset, 24, 2),
};
// clang-format on

constexpr std::uint16_t kFontPatternMap = 0xA2'89;

void DecodePattern(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    ReadRows(afp, kFNM, start, length, kToSequence);
}

void DecodeCharacter(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    constexpr std::uint8_t kRaster = 5;
    ReadRows(afp, kFNI, start, length, kToSequence);
    if (afp.Fonts.FontPatternTech == kRaster)
        afp.AddSequenceElement(Element::Int32(Key::FNMElementIndex, afp.ReadUnsigned(start + 16, 2) + 1));
    ReadRows(afp, kFNISpaces, start, length, kToSequence);
}

// `step` is what a group takes, `told` the length that is said of it. Groups of no length would never end: there are
// none then.
void AnalyzeFontArray(clsAFPFunctions& afp, std::int32_t step, std::int32_t told, GroupDecoder decode)
{
    afp.List().ClearSequenceElements();
    for (int number = 1; step > 0 && afp.FieldPosition < afp.FieldEnd; ++number) {
        AnalyzeSequenceGroup(afp, number, told, decode);
        afp.FieldPosition += step;
    }
    afp.List().PublishSequence(Key::FontArrayType, Key::FontArrayValue);
}

}  // namespace

void DecodeFontGroups(clsAFPFunctions& afp)
{
    constexpr std::int32_t kPatternSize = 8, kPatternTold = 6;  // sic, two different lengths
    if (Fields()[afp.Field()].id == kFontPatternMap)
        return AnalyzeFontArray(afp, kPatternSize, kPatternTold, DecodePattern);
    const std::int32_t length = afp.Fonts.FNIGroupLength;
    AnalyzeFontArray(afp, length, length, DecodeCharacter);
}

}  // namespace folioscope
