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

bool DecodeComponents(clsAFPFunctions& afp, ColorPlace place, std::span<const Component> components, AddToList add)
{
    std::int32_t at = place.bits;
    for (const Component& component : components) {
        const std::uint8_t bits = afp.ByteAt(at++);
        (afp.*add)(Element::Byte(component.bits, bits));
        (afp.*add)(Element::Float64(Key::Steps, std::exp2(bits)));
    }
    for (std::int32_t i = 0; const Component& component : components) {
        const std::int32_t p = place.values + i, value = component.isSigned ? afp.ReadSigned(p, 1) : afp.ByteAt(p);
        (afp.*add)(component.isSigned ? Element::Int16(component.value, value)
                                      : Element::Byte(component.value, afp.ByteAt(p)));
        const auto share = ShareOf(value, afp.ByteAt(place.bits + i), component.isSigned);
        if (!share) return false;
        (afp.*add)(Element::Int16(component.share, *share));
        ++i;
    }
    return true;
}

// Coverage and shading are left out where they are 0.
void DecodeHighlight(clsAFPFunctions& afp, ColorPlace place, AddToList add)
{
    (afp.*add)(Element::Int32(Key::HighlightColor, afp.ReadUnsigned(place.values, 2)));
    const std::uint8_t coverage = afp.ByteAt(place.values + 2), shading = afp.ByteAt(place.values + 3);
    if (coverage != 0) (afp.*add)(Element::Byte(Key::Intensity, coverage));
    if (shading != 0) (afp.*add)(Element::Byte(Key::Shading, shading));
}

}  // namespace

bool DecodeColor(clsAFPFunctions& afp, ColorPlace place, AddToList add)
{
    const std::uint8_t space = afp.ByteAt(place.space);
    (afp.*add)(Element::Byte(Key::ColorSpace, space));
    for (const auto& [known, components] : kColorSpaces)
        if (known == space) return DecodeComponents(afp, place, components, add);
    if (space == kHighlight) DecodeHighlight(afp, place, add);
    if (space == kStandardOCA) (afp.*add)(Element::Int32(Key::Color, afp.ReadUnsigned(place.values, 2)));
    return true;
}

}  // namespace folioscope
