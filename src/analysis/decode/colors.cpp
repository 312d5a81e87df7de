#include "analysis/decode/colors.h"

#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "base/numbers.h"

namespace folioscope {

namespace {

struct Component {
    Key bits, value, share;
    bool isSigned;  // the range is one bit smaller
};

struct ColorSpaceRow {
    std::uint8_t space;
    std::span<const Component> components;
};

// clang-format off
constexpr Component kRGB[] = {
    {Key::RedBits,     Key::IntensityRed,     Key::Intensity,        false},
    {Key::GreenBits,   Key::IntensityGreen,   Key::Intensity,        false},
    {Key::BlueBits,    Key::IntensityBlue,    Key::Intensity,        false},
};
constexpr Component kCMYK[] = {
    {Key::CyanBits,    Key::IntensityCyan,    Key::Intensity,        false},
    {Key::MagentaBits, Key::IntensityMagenta, Key::Intensity,        false},
    {Key::YellowBits,  Key::IntensityYellow,  Key::Intensity,        false},
    {Key::BlackBits,   Key::IntensityBlack,   Key::Intensity,        false},
};
constexpr Component kCIELAB[] = {
    {Key::LumBits,     Key::Luminance,        Key::EqualsColorValue, false},
    {Key::ChromABits,  Key::ChrominanceA,     Key::EqualsColorValue, true},
    {Key::ChromBBits,  Key::ChrominanceB,     Key::EqualsColorValue, true},
};
constexpr ColorSpaceRow kColorSpaces[] = {{1, kRGB}, {4, kCMYK}, {8, kCIELAB}};
// clang-format on

constexpr std::uint8_t kHighlight = 6, kStandardOCA = 64;

// A value as a percentage of its range; nothing for bits without a range, or for one that 16 bits can't hold.
std::optional<std::int64_t> ShareOf(std::int32_t value, int bits, bool isSigned)
{
    const double range = std::exp2(isSigned ? bits - 1 : bits) - 1;
    if (bits == 0 || range == 0) return {};
    const std::int64_t share = RoundHalfToEven(value / range * 100);
    if (share < std::numeric_limits<std::int16_t>::min() || share > std::numeric_limits<std::int16_t>::max()) return {};
    return share;
}

// A component's value and its share of the range; false if there is no range.
bool AddValue(clsAFPFunctions& afp, const Component& component, ColorPlace place, std::int32_t number, AddTo to)
{
    const bool tile = place.source == ColorSource::Tile;
    const int size = tile ? 2 : 1;
    const std::int32_t p = place.values + number * size;
    std::int32_t value = component.isSigned ? afp.ReadSigned(p, size) : afp.ReadUnsigned(p, size);
    if (tile)
        afp.Add(to, Element::Int32(component.value, value));
    else if (component.isSigned)
        afp.Add(to, Element::Int16(component.value, value));
    else
        afp.Add(to, Element::Byte(component.value, static_cast<std::uint8_t>(value)));
    if (tile && component.value == Key::IntensityGreen) value = afp.ByteAt(p);  // sic, of the first byte alone
    const auto share = ShareOf(value, afp.ByteAt(place.bits + number), component.isSigned);
    if (share) afp.Add(to, Element::Int16(component.share, *share));
    return share.has_value();
}

bool AddValues(clsAFPFunctions& afp, std::span<const Component> components, ColorPlace place, AddTo to)
{
    for (std::int32_t number = 0; const Component& component : components)
        if (!AddValue(afp, component, place, number++, to)) return false;
    return true;
}

void AddAllBits(clsAFPFunctions& afp, std::span<const Component> components, std::int32_t bits, AddTo to)
{
    for (const Component& component : components) AddBits(afp, component.bits, bits++, to);
}

void DecodeHighlight(clsAFPFunctions& afp, ColorPlace place, AddTo to)
{
    constexpr std::int64_t kFullCoverage = 100;
    afp.Add(to, Element::Int32(Key::HighlightColor, afp.ReadUnsigned(place.values, 2)));
    const std::uint8_t coverage = afp.ByteAt(place.values + 2), shading = afp.ByteAt(place.values + 3);
    if (place.source == ColorSource::Triplet) {
        if (coverage != 0) afp.Add(to, Element::Byte(Key::Intensity, coverage));
        if (shading != 0) afp.Add(to, Element::Byte(Key::Shading, shading));
        return;
    }
    const bool hasCoverage = afp.ByteAt(place.bits + 1) != 0, hasShading = afp.ByteAt(place.bits + 2) != 0;
    afp.Add(to, hasCoverage ? Element::Byte(Key::Intensity, coverage) : Element::Int16(Key::Intensity, kFullCoverage));
    afp.Add(to, hasShading ? Element::Byte(Key::Shading, shading) : Element::Int16(Key::Shading, 0));
}

}  // namespace

void AddBits(clsAFPFunctions& afp, Key bits, std::int32_t position, AddTo to)
{
    const std::uint8_t count = afp.ByteAt(position);
    afp.Add(to, Element::Byte(bits, count));
    afp.Add(to, Element::Float64(Key::Steps, std::exp2(count)));
}

bool DecodeColor(clsAFPFunctions& afp, ColorPlace place, AddTo to)
{
    const std::uint8_t space = afp.ByteAt(place.space);
    afp.Add(to, Element::Byte(Key::ColorSpace, space));
    for (const auto& [known, components] : kColorSpaces) {
        if (known != space) continue;
        AddAllBits(afp, components, place.bits, to);
        return AddValues(afp, components, place, to);
    }
    if (space == kHighlight) DecodeHighlight(afp, place, to);
    if (space == kStandardOCA) afp.Add(to, Element::Int32(Key::Color, afp.ReadUnsigned(place.values, 2)));
    return true;
}

void AddRGBBits(clsAFPFunctions& afp, std::int32_t bits) { AddAllBits(afp, kRGB, bits, AddTo::Record); }

bool AddRGBValues(clsAFPFunctions& afp, std::int32_t bits, std::int32_t values)
{
    return AddValues(afp, kRGB, {0, bits, values, ColorSource::Triplet}, AddTo::Record);
}

}  // namespace folioscope
