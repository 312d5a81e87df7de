// Lines of colours, whose keys wait for each other.

#include "analysis/render/colors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct LabelCase {
    Key key;
    std::string_view label;
};

TEST(ColorBits, AreToldWithTheirSteps)
{
    constexpr LabelCase kBits[] = {{Key::RedBits, "No. of bits which represent the color Red"},
                                   {Key::GreenBits, "No. of bits which represent the color Green"},
                                   {Key::BlueBits, "No. of bits which represent the color Blue"},
                                   {Key::CyanBits, "No. of bits which represent the color Cyan"},
                                   {Key::MagentaBits, "No. of bits which represent the color Magenta"},
                                   {Key::YellowBits, "No. of bits which represent the color Yellow"},
                                   {Key::BlackBits, "No. of bits which represent the color Black"},
                                   {Key::LumBits, "No. of bits which represent the Luminance L*"},
                                   {Key::ChromABits, "No. of bits which represent the Chrominance a*"},
                                   {Key::ChromBBits, "No. of bits which represent the Chrominance b*"}};
    LineBench bench;
    for (const auto& [key, label] : kBits) {
        EXPECT_EQ(bench.Text(key, 8), "");
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Add(key, 8).Add(Element::Float64(Key::Steps, 256)).Text(), head + "8 (256 Steps)\n");
        EXPECT_EQ(bench.Add(key, 0).Add(Element::Float64(Key::Steps, 1)).Text(), head + "0 (1 Steps)\n");
        EXPECT_EQ(bench.Add(key, 64).Add(Element::Float64(Key::Steps, 18446744073709551616.0)).Text(),
                  head + "64 (1.84467440737096E+19 Steps)\n");
    }
}

TEST(Intensity, IsToldWithItsColour)
{
    constexpr LabelCase kColors[] = {
        {Key::IntensityRed, "Intensity of color Red"},         {Key::IntensityGreen, "Intensity of color Green"},
        {Key::IntensityBlue, "Intensity of color Blue"},       {Key::IntensityCyan, "Intensity of color Cyan"},
        {Key::IntensityMagenta, "Intensity of color Magenta"}, {Key::IntensityYellow, "Intensity of color Yellow"},
        {Key::IntensityBlack, "Intensity of color Black"}};
    LineBench bench;
    for (const auto& [key, label] : kColors) {
        EXPECT_EQ(bench.Text(key, 8), "");
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Add(key, 128).Add(Key::Intensity, 50).Text(), head + "128 (50% Saturation)\n");
        EXPECT_EQ(bench.Add(key, 1).Add(Key::Intensity, 0).Text(), head + "1\n");
        EXPECT_EQ(bench.Add(key, 0).Add(Key::Intensity, 0).Text(), "Saturation: 0%\n");
    }
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(Intensity, AloneIsASaturation)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::Intensity, 75), "Saturation: 75%\n");
    // A value is used up by its line.
    bench.Add(Key::IntensityRed, 255).Add(Key::Intensity, 100).Add(Key::Intensity, 10);
    EXPECT_EQ(bench.Text(), "Intensity of color Red: 255 (100% Saturation)\nSaturation: 10%\n");
}

TEST(Intensity, AboveTheWholeIsToldOf)
{
    const Lines kTold = {"Message Saturation: Invalid (101%)", "Invalid"};
    LineBench alone;
    EXPECT_EQ(alone.Text(Key::Intensity, 101), "Saturation: 101%\n");
    EXPECT_EQ(alone.witness.heard, kTold);
    LineBench ofColor;
    EXPECT_EQ(ofColor.Add(Key::IntensityRed, 130).Add(Key::Intensity, 101).Text(),
              "Intensity of color Red: 130 (101% Saturation)\n");
    EXPECT_EQ(ofColor.witness.heard, kTold);
    LineBench whole;
    whole.Text(Key::Intensity, 100);
    EXPECT_TRUE(whole.witness.heard.empty());
}

TEST(ShadingLine, HasAPercentSign)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::Shading, 25), "Shading: 25%\n");
    EXPECT_EQ(bench.Text(Key::Shading, 255), "Shading: 255%\n");
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(ColorValue, IsToldWithItsShare)
{
    constexpr LabelCase kValues[] = {
        {Key::Luminance, "Luminance L*"}, {Key::ChrominanceA, "Chrominance a*"}, {Key::ChrominanceB, "Chrominance b*"}};
    LineBench bench;
    for (const auto& [key, label] : kValues) {
        EXPECT_EQ(bench.Text(key, 8), "");
        EXPECT_EQ(bench.Add(key, -64).Add(Key::EqualsColorValue, -50).Text(),
                  std::string(label) + ": -64 (equals value in Color Space: -50)\n");
    }
}

TEST(ColorKeys, WaitInTheirRecordOnly)
{
    LineBench bench;
    bench.Add(Key::RedBits, 8).Add(Key::IntensityRed, 8).Add(Key::Luminance, 8).Text();
    bench.Add(Element::Float64(Key::Steps, 256)).Add(Key::Intensity, 50).Add(Key::EqualsColorValue, 50);
    EXPECT_EQ(bench.Text(), "Saturation: 50%\n");
}

TEST(ColorLines, AreIndented)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    bench.Add(Key::RedBits, 8).Add(Element::Float64(Key::Steps, 256)).Add(Key::IntensityRed, 255);
    bench.Add(Key::Intensity, 100).Add(Key::Shading, 1).Add(Key::Luminance, 1).Add(Key::EqualsColorValue, 2);
    EXPECT_EQ(bench.Text(), "→No. of bits which represent the color Red: 8 (256 Steps)\n"
                            "→Intensity of color Red: 255 (100% Saturation)\n→Shading: 1%\n"
                            "→Luminance L*: 1 (equals value in Color Space: 2)\n");
}

}  // namespace
}  // namespace folioscope
