// The tag table of a colour management resource, and the values of its tags.

#include <gtest/gtest.h>

#include <string>

#include "base/numbers.h"
#include "colour/colour_support.h"

namespace folioscope {
namespace {

using namespace test;

struct NamedTag {
    unsigned id;
    std::string_view name;
};

// As the CMOCA registry has them.
// clang-format off
constexpr NamedTag kTags[] = {
    {0x0004, "Comment"},
    {0x0008, "Date and Time Stamp"},
    {0x0011, "Number of Components"},
    {0x1011, "Halftone Subset"},
    {0x1021, "Array Width"},
    {0x1025, "Array Height"},
    {0x1030, "Max Image Value"},
    {0x1035, "Number of Device Levels"},
    {0x1040, "Offset Tiling"},
    {0x1045, "Bilevel Point-Operation Screen Data"},
    {0x1050, "Multilevel Point-Operation Screen Data"},
    {0x1055, "Error Diffusion Filter"},
    {0x1060, "Location of Current Pixel"},
    {0x1065, "Raster Direction"},
    {0x1070, "Boundary Condition"},
    {0x1075, "Threshold Value"},
    {0x1080, "Quantization Boundary Table"},
    {0x2004, "Tone Transfer Curve Subset"},
    {0x2011, "Tone Transfer Curve Length"},
    {0x2015, "Tone Transfer Curve Data"},
    {0x2020, "Inverse Tone Transfer Curve Data"},
    {0x3011, "ICC Profile Subset"},
    {0x3015, "ICC Profile Data"},
    {0x3025, "ICC Profile Filename"},
    {0x4011, "Link Color Conversion Subset"},
    {0x4015, "Link Audit CMR OID"},
    {0x4020, "Link Instruction CMR OID"},
    {0x4025, "Link Audit CMR Name"},
    {0x4030, "Link Instruction CMR Name"},
    {0x4035, "Default Rendering Intent"},
    {0x4040, "Link LUT Perceptual"},
    {0x4045, "Link LUT Media-Relative Colorimetric"},
    {0x4050, "Link LUT Saturation"},
    {0x4055, "Link LUT ICC-Absolute Colorimetric"},
    {0x4090, "Link CMRE Identifier"},
    {0x5011, "Indexed Subset"},
    {0x5015, "Number of Named Colorants"},
    {0x5020, "Color Palette Gray"},
    {0x5025, "Color Palette CMYK"},
    {0x5030, "Color Palette RGB"},
    {0x5035, "Color Palette CIELAB"},
    {0x5040, "Color Palette Named Colorants"},
    {0x5045, "Colorant Identification List"},
    {0xFFFF, "End Data"},
};
// clang-format on

std::string HexOf(unsigned id)
{
    std::string text;
    AppendHex(text, id >> 8, 2);
    text += ' ';
    AppendHex(text, id & 0xFF, 2);
    return text;
}

TEST(CmrTags, HaveTheirNames)
{
    EXPECT_EQ(std::size(kTags), 44u);
    for (const auto& [id, name] : kTags) {
        const ColourShown shown = ShowTag(Cmr().Inside(id, 5, 0));
        ASSERT_FALSE(shown.elements.empty()) << name;
        EXPECT_EQ(shown.elements[0], "Text CMRTag " + HexOf(id));
        EXPECT_TRUE(shown.text.starts_with("CMR tag: " + std::string(name) + "\n")) << shown.text;
    }
}

TEST(CmrTags, OutsideTheRegistryAreUnknownAndReadByFieldType)
{
    for (const unsigned id : {0x0000u, 0x0005u, 0x1012u, 0x5046u, 0xEF00u, 0xF001u, 0xFFFEu}) {
        const std::string hex = HexOf(id);
        const Cmr cmr = Cmr().Header(26, Wide("HT")).Inside(id, 6, 3, "abc");
        ExpectTag(cmr, "Text CMRTag " + hex + " | CMR tag: <red>Unknown (" + hex +
                           ")</red>\n"
                           "Text CMRValueStr abc | Value: \"abc\"");
        EXPECT_EQ(ShowTag(cmr).heard, (Lines{"Message CMR: CMR tag: Unknown (" + hex + ")", "Invalid"}));
    }
}

TEST(CmrTags, AreNumberedFromOneAndIndented)
{
    const ColourShown shown = ShowColour(Cmr().Inside(0x0011, 1, 1, U1(4)).Inside(0x0004, 6, 2, "ab"));
    EXPECT_EQ(Lines(shown.elements.begin() + 16, shown.elements.end()),
              (Lines{"Int16 BeginRepetition 1", "Text CMRTag 00 11", "Int32 CMRValueNum 4", "Int16 EndRepetition 1",
                     "Int16 BeginRepetition 2", "Text CMRTag 00 04", "Text CMRValueStr ab", "Int16 EndRepetition 2",
                     "Int16 BeginRepetition 3", "Text CMRTag FF FF", "Int16 EndRepetition 3"}));
    EXPECT_EQ(shown.text.substr(shown.text.find("\n\n") + 1), "\n<b>Element 1</b>\n"
                                                              "→CMR tag: Number of Components\n"
                                                              "→Value: 4\n"
                                                              "\n<b>Element 2</b>\n"
                                                              "→CMR tag: Comment\n"
                                                              "→Value: \"ab\"\n"
                                                              "\n<b>Element 3</b>\n"
                                                              "→CMR tag: End Data\n");
}

TEST(CmrTags, EndWithTheEndTag)
{
    const ColourShown shown = ShowColour(Cmr().Inside(0xFFFF, 5, 0).Inside(0x0011, 1, 1, U1(4)));
    EXPECT_EQ(ValuesIn(shown.elements, "CMRTag"), Lines{"FF FF"});
}

// Field types
// --------------------------------------------------------------------------------------------------------------------

TEST(CmrFieldTypes, OfOneByteListBytes)
{
    ExpectTag(Cmr().Inside(0x1030, 1, 3, Raw({0, 127, 255, 9})), "Text CMRTag 10 30 | CMR tag: Max Image Value\n"
                                                                 "Int32 CMRValueNum 0 | Value: 0\n"
                                                                 "Int32 CMRValueNum 127 | Value: 127\n"
                                                                 "Int32 CMRValueNum 255 | Value: 255");
}

// The count is taken for a number of bytes: half of the numbers.
TEST(CmrFieldTypes, OfTwoBytesListHalfOfTheCount)
{
    ExpectTag(Cmr().Behind(0x1021, 2, 4, U2(0x10) + U2(0x20) + U2(0x30) + U2(0x40)),
              "Text CMRTag 10 21 | CMR tag: Array Width\n"
              "Int32 CMRValueNum 16 | Value: 16\n"
              "Int32 CMRValueNum 32 | Value: 32");
    const auto values = [](std::uint32_t count) {
        return ValuesIn(ShowTag(Cmr().Behind(0x1021, 2, count, U2(65535) + U2(2) + U2(3))).elements, "CMRValueNum");
    };
    EXPECT_EQ(values(3), (Lines{"65535", "2"}));
    EXPECT_EQ(values(5), (Lines{"65535", "2", "3"}));
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x1021, 2, 1, U2(500))).elements, "CMRValueNum"), Lines{"500"});
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x1021, 2, 2, U2(500) + U2(7))).elements, "CMRValueNum"), Lines{"500"});
}

TEST(CmrFieldTypes, OfFourBytesListAQuarterOfTheCount)
{
    const auto values = [](std::uint32_t count) {
        return ValuesIn(ShowTag(Cmr().Behind(0x1030, 4, count, U4(70000) + U4(0xFFFFFFFF))).elements, "CMRValueNum");
    };
    EXPECT_EQ(values(2), Lines{"70000"});
    EXPECT_EQ(values(4), Lines{"70000"});
    EXPECT_EQ(values(5), (Lines{"70000", "2147483647"}));
    EXPECT_EQ(ShowTag(Cmr().Inside(0x1030, 4, 1, U4(1234567))).text, "CMR tag: Max Image Value\nValue: 1,234,567\n");
}

TEST(CmrFieldTypes, OfBytesAndCodesShowHex)
{
    for (const unsigned type : {5u, 8u}) {
        ExpectTag(Cmr().Inside(0x4015, type, 3, Raw({0x06, 0xAB, 0xFF})),
                  "Text CMRTag 40 15 | CMR tag: Link Audit CMR OID\n"
                  "Text CMRValueHex 06 AB FF | Value: x'06 AB FF'");
        ExpectTag(Cmr().Behind(0x4020, type, 9, Raw({1, 2, 3, 4, 5, 6, 7, 8, 9})),
                  "Text CMRTag 40 20 | CMR tag: Link Instruction CMR OID\n"
                  "Text CMRValueHex 01 02 03 04 05 06 07 08 \t\t09 | Value: x'01 02 03 04 05 06 07 08 →→09'");
    }
}

TEST(CmrFieldTypes, OfAsciiAreTextOfPage437)
{
    ExpectTag(Cmr().Behind(0x0004, 6, 8, Raw({'@', 'a', 0x81, '@', 'z', 0, '@', ' '})),
              "Text CMRTag 00 04 | CMR tag: Comment\n"
              "Text CMRValueStr aü z | Value: \"aü z\"");
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x3025, 6, 4, "p.ic")).elements, "CMRValueStr"), Lines{"p.ic"});
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x3025, 6, 0)).elements, "CMRValueStr"), Lines{""});
}

// Count bytes are read, of which an odd last one is dropped: half of the characters.
TEST(CmrFieldTypes, OfUtf16ReadHalfOfTheText)
{
    const Bytes name = Filled("HT001.000ACME@LASER7@@@@@@@@@@@@@@@@END-OF-THE-FULL-NAME", 146);
    ExpectTag(Cmr().Behind(0x4025, 7, 73, name), "Text CMRTag 40 25 | CMR tag: Link Audit CMR Name\n"
                                                 "Text CMRValueStr HT001.000ACME LASER7 | Value: "
                                                 "\"HT001.000ACME LASER7\"");
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x4090, 7, 2, Wide("AB"))).elements, "CMRValueStr"), Lines{"A"});
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x4090, 7, 1, Wide("AB"))).elements, "CMRValueStr"), Lines{""});
}

TEST(CmrFieldTypes, OfBitsAreFlagsThatCountMinusOne)
{
    ExpectTag(Cmr().Inside(0x0011, 9, 4, U1(0xA7)), "Text CMRTag 00 11 | CMR tag: Number of Components\n"
                                                    "Boolean CMRValueNum 1 | Value: -1\n"
                                                    "Boolean CMRValueNum 0 | Value: 0\n"
                                                    "Boolean CMRValueNum 1 | Value: -1\n"
                                                    "Boolean CMRValueNum 0 | Value: 0");
}

TEST(CmrFieldTypes, OfBitsAreReadFromFourBytesOnly)
{
    const Lines bits =
        ValuesIn(ShowTag(Cmr().Behind(0x0011, 9, 40, Zeros(3) + Raw({1, 0xFF}))).elements, "CMRValueNum");
    ASSERT_EQ(bits.size(), 40u);
    for (std::size_t bit = 0; bit < bits.size(); ++bit) EXPECT_EQ(bits[bit], bit == 31 ? "1" : "0") << bit;
}

TEST(CmrFieldTypes, ThatAreUnknownHaveNoValue)
{
    for (const unsigned type : {0u, 3u, 10u, 255u})
        EXPECT_EQ(ShowTag(Cmr().Inside(0x0004, type, 2, U4(0x01020304))).elements, Lines{"Text CMRTag 00 04"}) << type;
}

TEST(CmrFieldTypes, AreOneByteOfTwo)
{
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x0004, 0xFF06, 2, "ab")).elements, "CMRValueStr"), Lines{"ab"});
}

// Where the value stands
// --------------------------------------------------------------------------------------------------------------------

TEST(CmrValues, OfFourBytesStandInTheEntry)
{
    struct Fitting {
        unsigned type;
        std::uint32_t inside, behind;  // counts
    };
    // Numbers of 4 bytes in the entry; the same 4 bytes as an offset lead behind the object, where all is 0.
    const Fitting kFittings[] = {{1, 4, 5}, {2, 2, 3}, {4, 1, 2}, {5, 4, 5},
                                 {6, 4, 5}, {7, 2, 3}, {8, 4, 5}, {9, 32, 33}};
    for (const auto& [type, inside, behind] : kFittings) {
        const Bytes value = Raw({0x71, 0x72, 0x73, 0x74});
        const Lines in = ShowTag(Cmr().Inside(0xF001, type, inside, value)).elements;
        const Lines out = ShowTag(Cmr().Inside(0xF001, type, behind, value)).elements;
        ASSERT_GE(in.size(), 2u) << type;
        ASSERT_GE(out.size(), 2u) << type;
        const std::size_t bit = type == 9 ? 2 : 1;  // the second bit of x'71' is set
        EXPECT_NE(in[bit], out[bit]) << type;
        EXPECT_TRUE(out[bit].ends_with(" 0") || out[bit].ends_with(" ") || out[bit].ends_with("00") ||
                    out[bit].ends_with('\0'))
            << out[bit];
    }
}

TEST(CmrValues, OfFiveBytesStandAtAnOffsetFromTheEndOfTheHeader)
{
    // The offset is that of the table's first entry, so the value is the entry itself.
    const ColourShown shown = ShowTag(Cmr().Pointing(0x4015, 5, 5, 0));
    EXPECT_EQ(ValuesIn(shown.elements, "CMRValueHex"), Lines{"40 15 00 05 00"});
}

TEST(CmrValues, BehindTheObjectAreZeros)
{
    for (const std::uint32_t offset : {1000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        EXPECT_EQ(ValuesIn(ShowTag(Cmr().Pointing(0x4015, 5, 5, offset)).elements, "CMRValueHex"),
                  Lines{"00 00 00 00 00"});
        EXPECT_EQ(ValuesIn(ShowTag(Cmr().Pointing(0x0004, 6, 50, offset)).elements, "CMRValueStr"), Lines{""});
    }
}

// A field type that isn't known sets no size: that of the tag before it holds.
TEST(CmrValues, OfAnUnknownFieldTypeStandWhereTheTagBeforePutThem)
{
    const Cmr first = Cmr().Inside(0x1011, 0, 1, Raw({2, 0, 0, 0}));
    EXPECT_EQ(ValuesIn(ShowTag(first).elements, "CMRHTSubsetID"), Lines{"2"}) << "nothing before: in the entry";
    const Cmr behind = Cmr().Behind(0x0004, 6, 5, "hello").Behind(0x1011, 0, 1, U1(4));
    EXPECT_EQ(ValuesIn(ShowTag(behind, 2).elements, "CMRHTSubsetID"), Lines{"4"}) << "5 bytes before: at the offset";
    const Cmr inside = Cmr().Inside(0x0004, 6, 4, "hell").Inside(0x1011, 0, 1, Raw({3, 0, 0, 0}));
    EXPECT_EQ(ValuesIn(ShowTag(inside, 2).elements, "CMRHTSubsetID"), Lines{"3"}) << "4 bytes before: in the entry";
}

// Tags of their own reading
// --------------------------------------------------------------------------------------------------------------------

TEST(CmrSubsets, AreOneByteWhateverTheCount)
{
    struct Subset {
        unsigned id;
        std::string_view name, element, line;
    };
    const Subset kSubsets[] = {
        {0x1011, "Halftone Subset", "CMRHTSubsetID", "Subset type: Bilevel Error Diffusion Halftone"},
        {0x2004, "Tone Transfer Curve Subset", "CMRTTCSubsetID", "Subset type: <red>Unknown (3)</red>"},
        {0x3011, "ICC Profile Subset", "CMRICCSubsetID", "Subset type: Monochrome output profile"},
        {0x4011, "Link Color Conversion Subset", "CMRLCCSubsetID", "Subset type: ICC DeviceLink Profile"},
        {0x4035, "Default Rendering Intent", "CMRRenderingIntent", "Rendering Intent: ICC-Absolute Colorimetric"},
        {0x5011, "Indexed Subset", "CMRIndSubsetID", "Subset type: <red>Unknown (3)</red>"},
    };
    for (const auto& [id, name, element, line] : kSubsets)
        for (const std::uint32_t count : {0u, 1u, 4u})
            ExpectTag(Cmr().Inside(id, 8, count, Raw({3, 9, 9, 9})),
                      "Text CMRTag " + HexOf(id) + " | CMR tag: " + std::string(name) + "\nByte " +
                          std::string(element) + " 3 | " + std::string(line));
}

TEST(CmrComponents, HaveAByteEach)
{
    ExpectTag(Cmr().Inside(0x1065, 8, 4, Raw({1, 1, 2, 1})),
              "Text CMRTag 10 65 | CMR tag: Raster Direction\n"
              "Byte CMRRasterDir 1 | Raster Direction: Normal Raster\n"
              "Byte CMRRasterDir 1 | Raster Direction: Normal Raster\n"
              "Byte CMRRasterDir 2 | Raster Direction: Serpentine Raster\n"
              "Byte CMRRasterDir 1 | Raster Direction: Normal Raster");
    ExpectTag(Cmr().Behind(0x1070, 8, 5, Raw({1, 2, 3, 4, 5})),
              "Text CMRTag 10 70 | CMR tag: Boundary Condition\n"
              "Byte CMRBoundaryCond 1 | Boundary Condition: None\n"
              "Byte CMRBoundaryCond 2 | Boundary Condition: Zero Boundary\n"
              "Byte CMRBoundaryCond 3 | Boundary Condition: Reflect\n"
              "Byte CMRBoundaryCond 4 | Boundary Condition: Periodic\n"
              "Byte CMRBoundaryCond 5 | Boundary Condition: <red>Unknown (5)</red>");
    ExpectTag(Cmr().Inside(0x2011, 8, 2, Raw({1, 2})),
              "Text CMRTag 20 11 | CMR tag: Tone Transfer Curve Length\n"
              "Byte CMRTTCurveLen 1 | Entries in tone transfer curve: 256 (1-byte each)\n"
              "Byte CMRTTCurveLen 2 | Entries in tone transfer curve: 65536 (2-byte each)");
    EXPECT_EQ(ShowTag(Cmr().Inside(0x1065, 8, 0)).elements, Lines{"Text CMRTag 10 65"});
}

TEST(CmrBulk, ShowsTypeAndCountOnly)
{
    const NamedTag kBulk[] = {{0x1045, "Bilevel Point-Operation Screen Data"},
                              {0x1050, "Multilevel Point-Operation Screen Data"},
                              {0x2015, "Tone Transfer Curve Data"},
                              {0x2020, "Inverse Tone Transfer Curve Data"}};
    for (const auto& [id, name] : kBulk)
        ExpectTag(Cmr().Behind(id, 1, 256000, Zeros(256)),
                  "Text CMRTag " + HexOf(id) + " | CMR tag: " + std::string(name) +
                      "\nByte CMRFieldType 1 | Field type: 1 byte unsigned binary"
                      "\nInt32 CMRCount 256000 | Count: 256,000");
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Inside(0x1045, 77, 1)).elements, "CMRFieldType"), Lines{"77"});
}

Bytes Stamp(unsigned year, const Bytes& parts) { return U2(year) + parts + Zeros(3); }

std::string StampOf(const Bytes& value)
{
    return ValuesIn(ShowTag(Cmr().Behind(0x0008, 5, 10, value)).elements, "TimeStamp").at(0);
}

TEST(CmrTimeStamp, KeepsTheFirstTwoDigitsBehindAZero)
{
    ExpectTag(Cmr().Behind(0x0008, 5, 10, Stamp(2004, Raw({5, 12, 23, 8, 0}))),
              "Text CMRTag 00 08 | CMR tag: Date and Time Stamp\n"
              "Text TimeStamp 2004/05/01 02:08:00 Z UTC | Time stamp: 2004/05/01 02:08:00 Z UTC");
    EXPECT_EQ(StampOf(Stamp(7, Raw({255, 100, 99, 59, 1}))), "7/02/01 09:05:01 Z UTC");
    EXPECT_EQ(StampOf(Stamp(65535, Zeros(5))), "65535/00/00 00:00:00 Z UTC");
}

TEST(CmrTimeStamp, TellsTheZone)
{
    const Bytes parts = Raw({1, 2, 3, 4, 5});
    EXPECT_EQ(StampOf(U2(1999) + parts + Raw({1, 2, 30})), "1999/01/02 03:04:05 +02:03");
    EXPECT_EQ(StampOf(U2(1999) + parts + Raw({2, 5, 0})), "1999/01/02 03:04:05 -05:00");
    EXPECT_EQ(StampOf(U2(1999) + parts + Raw({255, 11, 45})), "1999/01/02 03:04:05 -01:04");
    EXPECT_EQ(StampOf(U2(1999) + parts + Raw({0, 5, 30})), "1999/01/02 03:04:05 Z UTC");
}

TEST(CmrLut, ShowsItsHeadAndHowMuchFollows)
{
    const NamedTag kLuts[] = {{0x4040, "Link LUT Perceptual"},
                              {0x4045, "Link LUT Media-Relative Colorimetric"},
                              {0x4050, "Link LUT Saturation"},
                              {0x4055, "Link LUT ICC-Absolute Colorimetric"}};
    const Bytes head = Raw({3, 4, 17, 18, 19}) + Zeros(12) + Raw({2, 0xA0, 0});
    for (const auto& [id, name] : kLuts)
        ExpectTag(
            Cmr().Behind(id, 5, 1020, head),
            "Text CMRTag " + HexOf(id) + " | CMR tag: " + std::string(name) +
                "\nByte LUTNoCompICS 3 | Number of components of input color space: 3"
                "\nByte LUTNoCompOCS 4 | Number of components of output color space: 4"
                "\nText LUTGridPoints 11 12 13 00 00 00 00 00 \t\t00 00 00 00 00 00 00 | Number of grid points per "
                "component of input color space: x'11 12 13 00 00 00 00 00 →→00 00 00 00 00 00 00'"
                "\nByte LUTPrecision 2 | Precision of data elements: 2-byte unsigned binary"
                "\nBoolean LUTMediaRelative 1 | Media-relative colorimetric: true"
                "\nBoolean LUTSaturation 0 | Saturation: false"
                "\nBoolean LUTICCAbsolute 1 | ICC-absolute colorimetric: true"
                "\nInt32 LUTData 1000 | Number of LUT data: 1,000");
}

TEST(CmrLut, OfFewerBytesThanItsHeadCountsBelowZero)
{
    EXPECT_EQ(ShowTag(Cmr().Inside(0x4040, 5, 0)).elements.back(), "Int32 LUTData -20");
    EXPECT_EQ(ShowTag(Cmr().Pointing(0x4040, 5, 20, 0)).elements.back(), "Int32 LUTData 0");
}

}  // namespace
}  // namespace folioscope
