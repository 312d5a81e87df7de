// Colours of texts, which graphics and images lay out in the same way.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

TEST(SEC, HasThreeColoursOfLight)
{
    // P0 reserved, P1 space, P2 to P5 reserved, P6 to P9 bits, P10 on values.
    ExpectItems("PTX", "2BD3 0F 80 00 01 00*4 08 04 01 00 FF 03 00",
                "Text BeginSequence SEC\n"
                "Byte ColorSpace 1 | SEC: Color Space: RGB\n"
                "Byte RedBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the color Red: 8 (256 Steps)\n"
                "Byte GreenBits 4\n"
                "Float64 Steps 16 | SEC: No. of bits which represent the color Green: 4 (16 Steps)\n"
                "Byte BlueBits 1\n"
                "Float64 Steps 2 | SEC: No. of bits which represent the color Blue: 1 (2 Steps)\n"
                "Byte IntensityRed 255\n"
                "Int16 Intensity 100 | SEC: Intensity of color Red: 255 (100% Saturation)\n"
                "Byte IntensityGreen 3\n"
                "Int16 Intensity 20 | SEC: Intensity of color Green: 3 (20% Saturation)\n"
                "Byte IntensityBlue 0\n"
                "Int16 Intensity 0 | SEC: Saturation: 0%");
}

TEST(SEC, HasFourInks)
{
    ExpectItems("PTX", "2BD3 10 80 00 04 00*4 08 08 08 08 80 01 FF 00",
                "Text BeginSequence SEC\n"
                "Byte ColorSpace 4 | SEC: Color Space: CMYK\n"
                "Byte CyanBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the color Cyan: 8 (256 Steps)\n"
                "Byte MagentaBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the color Magenta: 8 (256 Steps)\n"
                "Byte YellowBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the color Yellow: 8 (256 Steps)\n"
                "Byte BlackBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the color Black: 8 (256 Steps)\n"
                "Byte IntensityCyan 128\n"
                "Int16 Intensity 50 | SEC: Intensity of color Cyan: 128 (50% Saturation)\n"
                "Byte IntensityMagenta 1\n"
                "Int16 Intensity 0 | SEC: Intensity of color Magenta: 1\n"
                "Byte IntensityYellow 255\n"
                "Int16 Intensity 100 | SEC: Intensity of color Yellow: 255 (100% Saturation)\n"
                "Byte IntensityBlack 0\n"
                "Int16 Intensity 0 | SEC: Saturation: 0%");
}

TEST(SEC, HasALightnessAndTwoSignedColours)
{
    ExpectItems("PTX", "2BD3 0F 80 00 08 00*4 08 08 08 00 80 81 40",
                "Text BeginSequence SEC\n"
                "Byte ColorSpace 8 | SEC: Color Space: CIELAB\n"
                "Byte LumBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the Luminance L*: 8 (256 Steps)\n"
                "Byte ChromABits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the Chrominance a*: 8 (256 Steps)\n"
                "Byte ChromBBits 8\n"
                "Float64 Steps 256 | SEC: No. of bits which represent the Chrominance b*: 8 (256 Steps)\n"
                "Byte Luminance 128\n"
                "Int16 EqualsColorValue 50 | SEC: Luminance L*: 128 (equals value in Color Space: 50)\n"
                "Int16 ChrominanceA -127\n"
                "Int16 EqualsColorValue -100 | SEC: Chrominance a*: -127 (equals value in Color Space: -100)\n"
                "Int16 ChrominanceB 64\n"
                "Int16 EqualsColorValue 50 | SEC: Chrominance b*: 64 (equals value in Color Space: 50)");
}

TEST(SEC, TakesTheCoverageOfAHighlightByItsBits)
{
    // P7 and P8 say whether P12 and P13 count.
    const auto of = [](std::string_view bits, std::string_view expected) {
        ExpectItems("PTX", "2BD3 10 80 00 06 00*4 " + std::string(bits) + " 0007 32 19",
                    "Text BeginSequence SEC\nByte ColorSpace 6 | SEC: Color Space: Highlight Color\n"
                    "Int32 HighlightColor 7 | SEC: Highlight color index: 7\n" +
                        std::string(expected));
    };
    of("00 00 00 00", "Int16 Intensity 100 | SEC: Saturation: 100%\nInt16 Shading 0 | SEC: Shading: 0%");
    of("10 08 00 00", "Byte Intensity 50 | SEC: Saturation: 50%\nInt16 Shading 0 | SEC: Shading: 0%");
    of("10 00 08 00", "Int16 Intensity 100 | SEC: Saturation: 100%\nByte Shading 25 | SEC: Shading: 25%");
    of("10 08 08 00", "Byte Intensity 50 | SEC: Saturation: 50%\nByte Shading 25 | SEC: Shading: 25%");
    const ShownItems standard = ShowItems("PTX", Pieces("2BD3 10 80 00 06 00*4 00*4 0000 00 00"));
    EXPECT_NE(standard.text.find("SEC: Highlight color index: Default\n"), std::string::npos);
    const ShownItems largest = ShowItems("PTX", Pieces("2BD3 10 80 00 06 00*4 00*4 FFFF 00 00"));
    EXPECT_NE(largest.text.find("SEC: Highlight color index: 65,535\n"), std::string::npos);
}

TEST(SEC, HasANamedColour)
{
    ExpectItems("PTX", "2BD3 0E 80 00 40 00*4 00*4 FF02",
                "Text BeginSequence SEC\nByte ColorSpace 64 | SEC: Color Space: Standard OCA\n"
                "Int32 Color 65282 | SEC: Color: Red");
}

TEST(SEC, OfAnotherSpaceHasNoMoreAndSaysNothing)
{
    for (const std::string_view space : {"00", "02", "03", "05", "07", "09", "12", "3F", "41", "FF"}) {
        const ShownItems shown =
            ShowItems("PTX", Pieces("2BD3 10 80 00 " + std::string(space) + " 00*4 08*4 01 02 03 04"));
        EXPECT_EQ(KeysOf(shown), "ColorSpace") << space;
        EXPECT_EQ(shown.text, "") << space;
        EXPECT_EQ(shown.heard, Lines{}) << space;
    }
}

TEST(SEC, StopsAtAColourWithoutARangeAndTheWalkGoesOn)
{
    const auto keys = [](std::string_view space, std::string_view bits, std::string_view values) {
        const ShownItems shown =
            ShowItems("PTX", Pieces("2BD3 10 80 00 " + std::string(space) + " 00*4 " + std::string(bits) + ' ' +
                                    std::string(values) + " 2BD3 02 D8"));
        EXPECT_EQ(shown.items.back(), "Boolean NewLine 1");
        EXPECT_EQ(shown.heard, Lines{});
        const std::string all = KeysOf(shown);
        return all.substr(0, all.find(" BeginSequence"));
    };
    const std::string rgb = "ColorSpace RedBits Steps GreenBits Steps BlueBits Steps";
    EXPECT_EQ(keys("01", "00 08 08 00", "01 02 03 00"), rgb + " IntensityRed");
    EXPECT_EQ(keys("01", "08 08 00 00", "01 02 03 00"),
              rgb + " IntensityRed Intensity IntensityGreen Intensity IntensityBlue");
    const std::string lab = "ColorSpace LumBits Steps ChromABits Steps ChromBBits Steps";
    EXPECT_EQ(keys("08", "00 08 08 00", "01 02 03 00"), lab + " Luminance");
    EXPECT_EQ(keys("08", "08 01 08 00", "01 02 03 00"), lab + " Luminance EqualsColorValue ChrominanceA");
    EXPECT_EQ(keys("08", "08 08 00 00", "01 02 03 00"),
              lab + " Luminance EqualsColorValue ChrominanceA EqualsColorValue ChrominanceB");
    const std::string inks = "ColorSpace CyanBits Steps MagentaBits Steps YellowBits Steps BlackBits Steps";
    EXPECT_EQ(keys("04", "08 08 08 00", "01 02 03 00"),
              inks + " IntensityCyan Intensity IntensityMagenta Intensity IntensityYellow Intensity IntensityBlack");
}

TEST(SEC, HasStepsBeyondWholeNumbers)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 0F 80 00 01 00*4 40 FF 01 00 FF FF 00"));
    EXPECT_EQ(ValuesOf(shown, "Steps"), (Lines{"1.84467440737096e+19", "5.78960446186581e+76", "2"}));
    EXPECT_NE(shown.text.find("SEC: No. of bits which represent the color Red: 64 (1.84467440737096E+19 Steps)\n"),
              std::string::npos);
    EXPECT_EQ(ValuesOf(shown, "Intensity"), (Lines{"0", "0", "0"}));
}

}  // namespace
}  // namespace folioscope
