// Colour specifications: what each space holds, and where its bits leave no range.

#include "analysis/decode/colors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

constexpr std::string_view kName = "x'4E' (Color Specification)";

// A colour triplet: its space, four bit counts, values.
Shown ShowColor(std::string_view space, std::string_view bits, std::string_view values)
{
    return ShowTriplets(
        TripletOf("4E 00 " + std::string(space) + " 00*4 " + std::string(bits) + ' ' + std::string(values)));
}

TEST(Color, OfFourInks)
{
    ExpectTriplet(ShowColor("04", "08 04 01 10", "FF 0F 01 00"), kName,
                  "ColorSpace 4 | Color Space: CMYK\n"
                  "CyanBits 8\n"
                  "Steps 256 | No. of bits which represent the color Cyan: 8 (256 Steps)\n"
                  "MagentaBits 4\n"
                  "Steps 16 | No. of bits which represent the color Magenta: 4 (16 Steps)\n"
                  "YellowBits 1\n"
                  "Steps 2 | No. of bits which represent the color Yellow: 1 (2 Steps)\n"
                  "BlackBits 16\n"
                  "Steps 65536 | No. of bits which represent the color Black: 16 (65536 Steps)\n"
                  "IntensityCyan 255\n"
                  "Intensity 100 | Intensity of color Cyan: 255 (100% Saturation)\n"
                  "IntensityMagenta 15\n"
                  "Intensity 100 | Intensity of color Magenta: 15 (100% Saturation)\n"
                  "IntensityYellow 1\n"
                  "Intensity 100 | Intensity of color Yellow: 1 (100% Saturation)\n"
                  "IntensityBlack 0\n"
                  "Intensity 0 | Saturation: 0%");
}

TEST(Color, OfLightness)
{
    // The signed components have one bit less for their range.
    ExpectTriplet(ShowColor("08", "08 08 04 00", "80 7F F9"), kName,
                  "ColorSpace 8 | Color Space: CIELAB\n"
                  "LumBits 8\n"
                  "Steps 256 | No. of bits which represent the Luminance L*: 8 (256 Steps)\n"
                  "ChromABits 8\n"
                  "Steps 256 | No. of bits which represent the Chrominance a*: 8 (256 Steps)\n"
                  "ChromBBits 4\n"
                  "Steps 16 | No. of bits which represent the Chrominance b*: 4 (16 Steps)\n"
                  "Luminance 128\n"
                  "EqualsColorValue 50 | Luminance L*: 128 (equals value in Color Space: 50)\n"
                  "ChrominanceA 127\n"
                  "EqualsColorValue 100 | Chrominance a*: 127 (equals value in Color Space: 100)\n"
                  "ChrominanceB -7\n"
                  "EqualsColorValue -100 | Chrominance b*: -7 (equals value in Color Space: -100)");
}

TEST(Color, ToBeHighlighted)
{
    ExpectTriplet(ShowColor("06", "00*4", "0102 32 19"), kName,
                  "ColorSpace 6 | Color Space: Highlight Color\n"
                  "HighlightColor 258 | Highlight color index: 258\n"
                  "Intensity 50 | Saturation: 50%\n"
                  "Shading 25 | Shading: 25%");
    ExpectTriplet(ShowColor("06", "00*4", "0000 00 19"), kName,
                  "ColorSpace 6 | Color Space: Highlight Color\n"
                  "HighlightColor 0 | Highlight color index: Default\n"
                  "Shading 25 | Shading: 25%");
    ExpectTriplet(ShowColor("06", "00*4", "0001 32 00"), kName,
                  "ColorSpace 6 | Color Space: Highlight Color\n"
                  "HighlightColor 1 | Highlight color index: 1\n"
                  "Intensity 50 | Saturation: 50%");
}

TEST(Color, OfTheNamedOnes)
{
    ExpectTriplet(ShowColor("40", "00*4", "FF08"), kName,
                  "ColorSpace 64 | Color Space: Standard OCA\n"
                  "Color 65288 | Color: Color of paper");
}

TEST(Color, OfOtherSpacesHasNoMore)
{
    ExpectTriplet(ShowColor("02", "08*4", "01 02 03 04"), kName, "ColorSpace 2 | Color Space: RGB Grayscale");
    for (const std::string_view space : {"00", "03", "05", "07", "09", "3F", "41", "FF"}) {
        const Shown shown = ShowColor(space, "08*4", "01 02 03 04");
        EXPECT_EQ(KeysOf(shown), "ColorSpace") << space;
        EXPECT_EQ(shown.heard.size(), 2u) << space;
    }
}

TEST(Color, SharesAreRoundedHalfToEven)
{
    const auto red = [](std::string_view bits, std::string_view value) {
        return ValuesOf(ShowColor("01", std::string(bits) + " 01 01 00", std::string(value) + " 00 00"), "Intensity")
            .at(0);
    };
    EXPECT_EQ(red("04", "03"), "20");  // 3 / 15
    EXPECT_EQ(red("02", "01"), "33");
    EXPECT_EQ(red("02", "02"), "67");
    EXPECT_EQ(red("08", "80"), "50");  // 50.196
    EXPECT_EQ(red("01", "01"), "100");
    EXPECT_EQ(red("20", "FF"), "0");
    EXPECT_EQ(red("FF", "FF"), "0");
}

TEST(Color, AboveTheWholeIsToldOf)
{
    const Shown shown = ShowColor("01", "07 08 08 00", "FF 00 00");
    EXPECT_EQ(ValuesOf(shown, "Intensity"), (Lines{"201", "0", "0"}));
    EXPECT_NE(shown.text.find("→Intensity of color Red: 255 (201% Saturation)\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message Saturation: Invalid (201%)", "Invalid"}));
    // The largest share that bytes can make.
    const Shown largest = ShowColor("01", "01 08 08 00", "FF 00 00");
    EXPECT_EQ(ValuesOf(largest, "Intensity").at(0), "25500");
}

// Bits without a range
// -----------------------------------------------------------------------------------------------------

constexpr std::string_view kRgbBits = "ColorSpace RedBits Steps GreenBits Steps BlueBits Steps";
constexpr std::string_view kLabBits = "ColorSpace LumBits Steps ChromABits Steps ChromBBits Steps";

TEST(Color, EndsAtAComponentOfNoBits)
{
    const std::string bits(kRgbBits);
    EXPECT_EQ(KeysOf(ShowColor("01", "00 08 08 00", "01 02 03")), bits + " IntensityRed");
    EXPECT_EQ(KeysOf(ShowColor("01", "08 00 08 00", "01 02 03")), bits + " IntensityRed Intensity IntensityGreen");
    EXPECT_EQ(KeysOf(ShowColor("01", "08 08 00 00", "01 02 03")),
              bits + " IntensityRed Intensity IntensityGreen Intensity IntensityBlue");
    EXPECT_EQ(ValuesOf(ShowColor("01", "00 08 08 00", "01 02 03"), "Steps"), (Lines{"1", "256", "256"}));
}

TEST(Color, EndsAtASignedComponentOfOneBit)
{
    const std::string bits(kLabBits);
    EXPECT_EQ(KeysOf(ShowColor("08", "08 01 08 00", "01 02 03")), bits + " Luminance EqualsColorValue ChrominanceA");
    EXPECT_EQ(KeysOf(ShowColor("08", "08 00 08 00", "01 02 03")), bits + " Luminance EqualsColorValue ChrominanceA");
    EXPECT_EQ(KeysOf(ShowColor("08", "08 02 01 00", "01 01 03")),
              bits + " Luminance EqualsColorValue ChrominanceA EqualsColorValue ChrominanceB");
    EXPECT_EQ(KeysOf(ShowColor("08", "01 08 08 00", "01 02 03")),
              bits + " Luminance EqualsColorValue ChrominanceA EqualsColorValue ChrominanceB EqualsColorValue");
}

TEST(Color, ThatEndsEarlyClosesItsTriplet)
{
    const Shown shown = ShowTriplets(TripletOf("4E 00 01 00*4 00*4 01 02 03") + TripletOf("81 01"));
    EXPECT_EQ(ValuesOf(shown, "EndTriplet"), (Lines{"True", "True"}));
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(Color, AddsToTheSequenceIfAsked)
{
    RecordWalk walk(AfpFile().Add("NOP", Pieces("01 08 08 08 00 FF 80 00")));
    walk.Next();
    const std::int32_t at = walk.afp.FieldPosition;
    walk.afp.List().ClearSequenceElements();
    EXPECT_TRUE(DecodeColor(walk.afp, {at, at + 1, at + 5, ColorSource::Triplet}, AddTo::Sequence));
    EXPECT_EQ(walk.afp.List().SequenceCount(), 13u);
    EXPECT_FALSE(DecodeColor(walk.afp, {at, at + 4, at + 5, ColorSource::Triplet}, AddTo::Record));
}

// Sources: a triplet, an item of a data object, a tile
// ----------------------------------------------------------------------------

// A colour whose space, bits and values lie one behind the other.
Lines ElementsFrom(ColorSource source, std::string_view pieces)
{
    RecordWalk walk(AfpFile().Add("NOP", Pieces(pieces)));
    walk.Next();
    const std::int32_t at = walk.afp.FieldPosition;
    walk.afp.List().ClearCollections();
    DecodeColor(walk.afp, {at, at + 1, at + 5, source}, AddTo::Record);
    return walk.Lines();
}

TEST(ColorSource, OfATileHasValuesOfTwoBytes)
{
    EXPECT_EQ(ElementsFrom(ColorSource::Tile, "01 10 08 08 00 FFFF 80FF 00FF"),
              (Lines{"Byte ColorSpace 1", "Byte RedBits 16", "Float64 Steps 65536.000000", "Byte GreenBits 8",
                     "Float64 Steps 256.000000", "Byte BlueBits 8", "Float64 Steps 256.000000",
                     "Int32 IntensityRed 65535", "Int16 Intensity 100", "Int32 IntensityGreen 33023",
                     "Int16 Intensity 50",  // of the first byte alone
                     "Int32 IntensityBlue 255", "Int16 Intensity 100"}));
    EXPECT_EQ(ElementsFrom(ColorSource::Item, "01 08 08 08 00 FF 80 01"),
              (Lines{"Byte ColorSpace 1", "Byte RedBits 8", "Float64 Steps 256.000000", "Byte GreenBits 8",
                     "Float64 Steps 256.000000", "Byte BlueBits 8", "Float64 Steps 256.000000", "Byte IntensityRed 255",
                     "Int16 Intensity 100", "Byte IntensityGreen 128", "Int16 Intensity 50", "Byte IntensityBlue 1",
                     "Int16 Intensity 0"}));
}

TEST(ColorSource, DecidesWhenAHighlightHasACoverage)
{
    const std::string_view zeroBits = "06 00*4 0001 32 19", someBits = "06 00 01 01 00 0001 00 00";
    EXPECT_EQ(ElementsFrom(ColorSource::Triplet, zeroBits),
              (Lines{"Byte ColorSpace 6", "Int32 HighlightColor 1", "Byte Intensity 50", "Byte Shading 25"}));
    EXPECT_EQ(ElementsFrom(ColorSource::Triplet, someBits), (Lines{"Byte ColorSpace 6", "Int32 HighlightColor 1"}));
    for (const ColorSource source : {ColorSource::Item, ColorSource::Tile}) {
        EXPECT_EQ(ElementsFrom(source, zeroBits),
                  (Lines{"Byte ColorSpace 6", "Int32 HighlightColor 1", "Int16 Intensity 100", "Int16 Shading 0"}));
        EXPECT_EQ(ElementsFrom(source, someBits),
                  (Lines{"Byte ColorSpace 6", "Int32 HighlightColor 1", "Byte Intensity 0", "Byte Shading 0"}));
    }
}

TEST(ColorSource, OfATileCanExceedAShortNumber)
{
    // 327 times the range still fits, 328 times doesn't: 327 x 100 = 32,700.
    EXPECT_EQ(ElementsFrom(ColorSource::Tile, "01 01 08 08 00 0147 0000 0000").at(8), "Int16 Intensity 32700");
    EXPECT_EQ(ElementsFrom(ColorSource::Tile, "01 01 08 08 00 0148 0000 0000").size(), 8u);
    EXPECT_EQ(ElementsFrom(ColorSource::Tile, "08 08 02 02 00 0000 FEB9 0000").at(10), "Int16 EqualsColorValue -32700");
    EXPECT_EQ(ElementsFrom(ColorSource::Tile, "08 08 02 02 00 0000 FEB8 0000").size(), 10u);
}

}  // namespace
}  // namespace folioscope
