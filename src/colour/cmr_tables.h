#pragma once

// What a colour management resource is made of: the header, the tag table and the values of the tags, as the Color
// Management Object Content Architecture (CMOCA) lays them out.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "analysis/elements/element.h"

namespace folioscope {

// The value of a tag.
enum class TagData : std::uint8_t {
    ByFieldType,  // as the entry's field type says
    One,          // one byte, whatever the count
    Each,         // a byte for each of the count
    Bulk,         // type and count only: a screen or a curve has more values than anybody reads
    TimeStamp,
    Profile,        // an ICC profile
    Lut,            // the head of a look-up table
    ColorantCount,  // how many named colorants the palette behind it has
    Palette,
    ColorantNames,
    End,  // closes the table
};

struct CmrTag {
    std::uint16_t id;
    const char* name;  // as registered
    TagData data = TagData::ByFieldType;
    Key key = Key::NoKey;  // of One and Each
};

// clang-format off
inline constexpr CmrTag kCmrTags[] = {                 // the registry of CMR tags
    {0x0004, "Comment"},
    {0x0008, "Date and Time Stamp",                    TagData::TimeStamp},
    {0x0011, "Number of Components"},
    {0x1011, "Halftone Subset",                        TagData::One,  Key::CMRHTSubsetID},
    {0x1021, "Array Width"},
    {0x1025, "Array Height"},
    {0x1030, "Max Image Value"},
    {0x1035, "Number of Device Levels"},
    {0x1040, "Offset Tiling"},
    {0x1045, "Bilevel Point-Operation Screen Data",    TagData::Bulk},
    {0x1050, "Multilevel Point-Operation Screen Data", TagData::Bulk},
    {0x1055, "Error Diffusion Filter"},
    {0x1060, "Location of Current Pixel"},
    {0x1065, "Raster Direction",                       TagData::Each, Key::CMRRasterDir},
    {0x1070, "Boundary Condition",                     TagData::Each, Key::CMRBoundaryCond},
    {0x1075, "Threshold Value"},
    {0x1080, "Quantization Boundary Table"},
    {0x2004, "Tone Transfer Curve Subset",             TagData::One,  Key::CMRTTCSubsetID},
    {0x2011, "Tone Transfer Curve Length",             TagData::Each, Key::CMRTTCurveLen},
    {0x2015, "Tone Transfer Curve Data",               TagData::Bulk},
    {0x2020, "Inverse Tone Transfer Curve Data",       TagData::Bulk},
    {0x3011, "ICC Profile Subset",                     TagData::One,  Key::CMRICCSubsetID},
    {0x3015, "ICC Profile Data",                       TagData::Profile},
    {0x3025, "ICC Profile Filename"},
    {0x4011, "Link Color Conversion Subset",           TagData::One,  Key::CMRLCCSubsetID},
    {0x4015, "Link Audit CMR OID"},
    {0x4020, "Link Instruction CMR OID"},
    {0x4025, "Link Audit CMR Name"},
    {0x4030, "Link Instruction CMR Name"},
    {0x4035, "Default Rendering Intent",               TagData::One,  Key::CMRRenderingIntent},
    {0x4040, "Link LUT Perceptual",                    TagData::Lut},
    {0x4045, "Link LUT Media-Relative Colorimetric",   TagData::Lut},
    {0x4050, "Link LUT Saturation",                    TagData::Lut},
    {0x4055, "Link LUT ICC-Absolute Colorimetric",     TagData::Lut},
    {0x4090, "Link CMRE Identifier"},
    {0x5011, "Indexed Subset",                         TagData::One,  Key::CMRIndSubsetID},
    {0x5015, "Number of Named Colorants",              TagData::ColorantCount},
    {0x5020, "Color Palette Gray",                     TagData::Palette},
    {0x5025, "Color Palette CMYK",                     TagData::Palette},
    {0x5030, "Color Palette RGB",                      TagData::Palette},
    {0x5035, "Color Palette CIELAB",                   TagData::Palette},
    {0x5040, "Color Palette Named Colorants",          TagData::Palette},
    {0x5045, "Colorant Identification List",           TagData::ColorantNames},
    {0xFFFF, "End Data",                               TagData::End},
};
// clang-format on

static_assert(std::size(kCmrTags) == 44);
static_assert(std::ranges::is_sorted(kCmrTags, std::ranges::less_equal{}, &CmrTag::id), "tags ascend, each once");

struct CmrFieldType {
    std::uint8_t type;
    std::uint8_t bits;  // of one value
    const char* name;
};

// clang-format off
inline constexpr CmrFieldType kCmrFieldTypes[] = {
    {1, 8,  "1 byte unsigned binary"},
    {2, 16, "2 byte unsigned binary"},
    {4, 32, "4 byte unsigned binary"},
    {5, 8,  "BYTE"},
    {6, 8,  "ASCII"},
    {7, 16, "UTF-16BE"},
    {8, 8,  "CODE"},
    {9, 1,  "BITS"},
};
// clang-format on

static_assert(std::ranges::is_sorted(kCmrFieldTypes, std::ranges::less_equal{}, &CmrFieldType::type));

// Tags whose value is a list of colours: the index, the CIELab value and a byte for each colorant. The palette of named
// colorants has as many as the tag before it counts, of which twelve are told.
struct CmrPalette {
    std::uint16_t tag;
    std::array<Key, 12> colorants;  // NoKey behind the last one
    bool counted = false;
};

// clang-format off
inline constexpr CmrPalette kCmrPalettes[] = {
    {0x5020, {Key::CPGComponentGray}},
    {0x5025, {Key::CPGComponentCyan, Key::CPGComponentMagenta, Key::CPGComponentYellow, Key::CPGComponentBlack}},
    {0x5030, {Key::CPGComponentRed, Key::CPGComponentGreen, Key::CPGComponentBlue}},
    {0x5035, {}},
    {0x5040, {Key::CPGComponent1, Key::CPGComponent2, Key::CPGComponent3, Key::CPGComponent4,
              Key::CPGComponent5, Key::CPGComponent6, Key::CPGComponent7, Key::CPGComponent8,
              Key::CPGComponent9, Key::CPGComponent10, Key::CPGComponent11, Key::CPGComponent12}, true},
};
// clang-format on

static_assert(std::ssize(kCmrPalettes) == std::ranges::count(kCmrTags, TagData::Palette, &CmrTag::data));

}  // namespace folioscope
