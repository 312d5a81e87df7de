#include "analysis/render/units.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "analysis/render_bench.h"

namespace folioscope {
namespace {

using test::RenderBench;

using Told = std::vector<std::string>;

// UnitsText --------------------------------------------------------------------------------------------------------

std::string UnitsOf(std::int32_t measurement, std::int32_t value, std::int16_t units,
                    Language language = Language::English, NumberStyle style = {})
{
    RenderBench bench(language, std::move(style));
    bench.settings.DefaultMeasurement = measurement;
    return bench.renderer.UnitsText(value, units);
}

TEST(UnitsText, SpeaksSevenMeasurements)
{
    EXPECT_EQ(UnitsOf(0, 1'440, 1'440), "1 Inch");
    EXPECT_EQ(UnitsOf(1, 1'440, 1'440), "2.54 cm");
    EXPECT_EQ(UnitsOf(2, 1'440, 1'440), "25.4 mm");
    EXPECT_EQ(UnitsOf(3, 1'440, 1'440), "72 Point");
    EXPECT_EQ(UnitsOf(4, 1'440, 1'440), "240 pels");
    EXPECT_EQ(UnitsOf(5, 1'440, 1'440), "300 pels");
    EXPECT_EQ(UnitsOf(6, 1'440, 1'440), "600 pels");
}

TEST(UnitsText, OfAnotherMeasurementIsAZero)
{
    for (const std::int32_t measurement : {7, 100, -1})
        EXPECT_EQ(UnitsOf(measurement, 1'440, 1'440), "0") << measurement;
}

TEST(UnitsText, WithoutAResolutionIsEmpty)
{
    for (std::int32_t measurement = -1; measurement <= 7; ++measurement) EXPECT_EQ(UnitsOf(measurement, 1'440, 0), "");
}

TEST(UnitsText, ShowsUpToFourDecimals)
{
    EXPECT_EQ(UnitsOf(2, 1'000, 240), "105.8333 mm");
    EXPECT_EQ(UnitsOf(2, 9, 1'440), "0.1588 mm");  // half away from zero, on the decimal digits
    EXPECT_EQ(UnitsOf(0, 1, 240), "0.0042 Inch");
    EXPECT_EQ(UnitsOf(0, 360, 240), "1.5 Inch");
    EXPECT_EQ(UnitsOf(0, 1, 32'767), "0 Inch");
}

TEST(UnitsText, OfZeroAndBelow)
{
    EXPECT_EQ(UnitsOf(0, 0, 240), "0 Inch");
    EXPECT_EQ(UnitsOf(0, -120, 240), "-0.5 Inch");
    EXPECT_EQ(UnitsOf(2, -1'000, 240), "-105.8333 mm");
}

TEST(UnitsText, HasTheDigitsOfASmallFloat)
{
    EXPECT_EQ(UnitsOf(0, 2'147'483'647, 1), "2,147,484,000 Inch");
    EXPECT_EQ(UnitsOf(0, 16'777'217, 100), "167,772.2 Inch");
    EXPECT_EQ(UnitsOf(4, 123'456, 240), "123,456 pels");
}

TEST(UnitsText, SpeaksTheLanguage)
{
    EXPECT_EQ(UnitsOf(0, 240, 240, Language::German), "1 Zoll");
    EXPECT_EQ(UnitsOf(3, 240, 240, Language::German), "72 Punkt");
    EXPECT_EQ(UnitsOf(0, 240, 240, Language::French), "1 pouces");
    EXPECT_EQ(UnitsOf(2, 240, 240, Language::French), "25.4 mm");
}

TEST(UnitsText, HasTheSeparatorsInForceAndNoneAtTheEnd)
{
    EXPECT_EQ(UnitsOf(2, 10'000, 240, Language::German, {".", ","}), "1.058,333 mm");
    EXPECT_EQ(UnitsOf(0, 240'000, 240, Language::German, {".", ","}), "1.000 Zoll");
    EXPECT_EQ(UnitsOf(7, 240'000, 240, Language::German, {".", ","}), "0");
}

// Resolutions ------------------------------------------------------------------------------------------------------

struct Resolution {
    Key key;
    std::string_view label;
    std::int16_t UnitState::*sets;
};
constexpr Resolution kResolutions[] = {
    {Key::PageBaseUnitsX, "Units per unit base X axis", &UnitState::PageUnitsX},
    {Key::PageBaseUnitsY, "Units per unit base Y axis", &UnitState::PageUnitsY},
    {Key::ObjectBaseUnitsX, "Units per unit base X axis", &UnitState::ObjectUnitsX},
    {Key::ObjectBaseUnitsY, "Units per unit base Y axis", &UnitState::ObjectUnitsY},
    {Key::BasePixelX, "Image points per unit base X axis", &UnitState::ObjectUnitsX},
    {Key::BasePixelY, "Image points per unit base Y axis", &UnitState::ObjectUnitsY},
    {Key::ShapeUnitsX, "Units per outline unit base X axis", &UnitState::ObjectUnitsX},
    {Key::ShapeUnitsY, "Units per outline unit base Y axis", &UnitState::ObjectUnitsY},
};

bool Same(const UnitState& a, const UnitState& b)
{
    return a.PageUnitsX == b.PageUnitsX && a.PageUnitsY == b.PageUnitsY && a.ObjectUnitsX == b.ObjectUnitsX &&
           a.ObjectUnitsY == b.ObjectUnitsY;
}

TEST(Resolutions, StartAt1440)
{
    const RenderBench bench;
    EXPECT_TRUE(Same(bench.renderer.units, {1'440, 1'440, 1'440, 1'440}));
}

TEST(Resolutions, AreShownAndKeptEachInItsPlace)
{
    for (const auto& [key, label, sets] : kResolutions) {
        RenderBench bench;
        EXPECT_EQ(bench.Line(key, 2'400), std::string(label) + ": 2,400   (240 DPI)\r\n");
        UnitState expected;
        expected.*sets = 240;
        EXPECT_TRUE(Same(bench.renderer.units, expected)) << label;
        EXPECT_TRUE(bench.sink.told.empty());
    }
}

TEST(Resolutions, AreATenthRoundedHalfToEven)
{
    const std::pair<std::int32_t, std::string_view> kTenths[] = {{0, "0   (0 DPI)"},
                                                                 {1, "1   (1 DPI)"},
                                                                 {5, "5   (5 DPI)"},
                                                                 {9, "9   (9 DPI)"},
                                                                 {10, "10   (1 DPI)"},
                                                                 {14, "14   (1 DPI)"},
                                                                 {15, "15   (2 DPI)"},
                                                                 {25, "25   (2 DPI)"},
                                                                 {26, "26   (3 DPI)"},
                                                                 {14'400, "14,400   (1,440 DPI)"},
                                                                 {14'405, "14,405   (1,440 DPI)"},
                                                                 {14'415, "14,415   (1,442 DPI)"},
                                                                 {65'535, "65,535   (6,554 DPI)"},
                                                                 {-1, "-1   (-1 DPI)"}};
    RenderBench bench;
    for (const auto& [value, shown] : kTenths)
        EXPECT_EQ(bench.Line(Key::PageBaseUnitsX, value), "Units per unit base X axis: " + std::string(shown) + "\r\n");
}

TEST(Resolutions, HoldUntilTheNextOneWhateverComesBetween)
{
    RenderBench bench;
    bench.Line(Key::PageBaseUnitsX, 2'400);
    bench.AddText(Key::NodeText, "NOP").Add(Key::SFStart, 1).Render();
    EXPECT_EQ(bench.Line(Key::PageSizeX, 240), "Size in X direction: 240   (1 Inch)\r\n");
    bench.Line(Key::PageBaseUnitsX, 4'800);
    EXPECT_EQ(bench.Line(Key::PageSizeX, 240), "Size in X direction: 240   (0.5 Inch)\r\n");
}

TEST(Resolutions, TakeNoNoticeOfTheUnitBase)
{
    RenderBench bench;
    bench.Add(Key::UnitBaseX, 1).Add(Key::PageBaseUnitsX, 5'670);
    EXPECT_EQ(bench.Render(), "Base unit X axis: 10 Centimeter\r\nUnits per unit base X axis: 5,670   (567 DPI)\r\n");
}

// Sizes, origins, margins ------------------------------------------------------------------------------------------

// A bench whose four resolutions differ, so that 1,000 is 10, 5, 2.5 or 2 inches.
RenderBench& WithFourResolutions(RenderBench& bench)
{
    bench.renderer.units = {100, 200, 400, 500};
    return bench;
}

struct Measured {
    Key key;
    std::string_view label, inches;
};
constexpr Measured kSizes[] = {
    {Key::PageSizeX, "Size in X direction", "10"},
    {Key::PageSizeY, "Size in Y direction", "5"},
    {Key::ObjectSizeX, "Size in X direction", "2.5"},
    {Key::ObjectSizeY, "Size in Y direction", "2"},
};
constexpr Measured kOrigins[] = {
    {Key::OriginX, "Origin X axis", "10"},
    {Key::OriginY, "Origin Y axis", "5"},
    {Key::ContentOriginX, "Origin of contents X axis", "2.5"},
    {Key::ContentOriginY, "Origin of contents Y axis", "2"},
};
constexpr Measured kMargins[] = {
    {Key::LeftMargin, "Left margin", "10"},
    {Key::TopMargin, "Top margin", "5"},
    {Key::RightMargin, "Right margin", "10"},
    {Key::BottomMargin, "Bottom margin", "5"},
};

std::string MeasuredLine(const Measured& row)
{
    return std::string(row.label) + ": 1,000   (" + std::string(row.inches) + " Inch)\r\n";
}

TEST(Sizes, AreShownWithTheirUnits)
{
    RenderBench bench;
    for (const Measured& row : kSizes) EXPECT_EQ(WithFourResolutions(bench).Line(row.key, 1'000), MeasuredLine(row));
}

TEST(Sizes, HaveSentinels)
{
    RenderBench bench;
    for (const Measured& row : kSizes) {
        const std::string label(row.label);
        EXPECT_EQ(bench.Line(row.key, 0), label + ": Not specified\r\n");
        for (const std::int32_t value : {65'535, 16'777'215, -1})
            EXPECT_EQ(bench.Line(row.key, value), label + ": Default\r\n") << value;
        EXPECT_EQ(bench.Line(row.key, 65'534), label + ": 65,534   (45.5097 Inch)\r\n");
        EXPECT_EQ(bench.Line(row.key, 16'777'214), label + ": 16,777,214   (11,650.84 Inch)\r\n");
        EXPECT_EQ(bench.Line(row.key, -2), label + ": -2   (-0.0014 Inch)\r\n");
    }
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(Sizes, WithoutAResolutionEndInEmptyBrackets)
{
    RenderBench bench;
    bench.Line(Key::PageBaseUnitsX, 0);
    EXPECT_EQ(bench.Line(Key::PageSizeX, 1'000), "Size in X direction: 1,000   ()\r\n");
}

TEST(Origins, AreShownWithTheirUnits)
{
    RenderBench bench;
    for (const Measured& row : kOrigins) EXPECT_EQ(WithFourResolutions(bench).Line(row.key, 1'000), MeasuredLine(row));
}

TEST(Origins, HaveOneSentinel)
{
    RenderBench bench;
    for (const Measured& row : kOrigins) {
        const std::string label(row.label);
        EXPECT_EQ(bench.Line(row.key, -1), label + ": Default\r\n");
        EXPECT_EQ(bench.Line(row.key, 0), label + ": 0   (0 Inch)\r\n");
        EXPECT_EQ(bench.Line(row.key, 65'535), label + ": 65,535   (45.5104 Inch)\r\n");
        EXPECT_EQ(bench.Line(row.key, -1'440), label + ": -1,440   (-1 Inch)\r\n");
    }
}

TEST(Margins, AreShownWithPageUnitsAndHaveNoSentinel)
{
    RenderBench bench;
    for (const Measured& row : kMargins) {
        EXPECT_EQ(WithFourResolutions(bench).Line(row.key, 1'000), MeasuredLine(row));
        bench.renderer.units = {};
        EXPECT_EQ(bench.Line(row.key, -1), std::string(row.label) + ": -1   (-0.0007 Inch)\r\n");
        EXPECT_EQ(bench.Line(row.key, 0), std::string(row.label) + ": 0   (0 Inch)\r\n");
    }
}

TEST(CellSizes, HaveSentinelsAndNoUnits)
{
    const std::pair<Key, std::string> kCells[] = {{Key::CellSizeX, "Image cell size in X direction"},
                                                  {Key::CellSizeY, "Image cell size in Y direction"},
                                                  {Key::DefCellSizeX, "Default image cell size in X direction"},
                                                  {Key::DefCellSizeY, "Default image cell size in Y direction"}};
    RenderBench bench;
    for (const auto& [key, label] : kCells) {
        EXPECT_EQ(bench.Line(key, 0), label + ": No image cell\r\n");
        EXPECT_EQ(bench.Line(key, 65'535), label + ": Default\r\n");
        EXPECT_EQ(bench.Line(key, 16'777'215), label + ": Default\r\n");
        EXPECT_EQ(bench.Line(key, 1'000), label + ": 1,000\r\n");
        EXPECT_EQ(bench.Line(key, -1), label + ": -1\r\n");
    }
}

// Unit bases -------------------------------------------------------------------------------------------------------

TEST(UnitBases, HaveThreeWords)
{
    RenderBench bench;
    for (const auto& [key, label] : {std::pair<Key, std::string>{Key::UnitBaseX, "Base unit X axis"},
                                     std::pair<Key, std::string>{Key::UnitBaseY, "Base unit Y axis"}}) {
        EXPECT_EQ(bench.Line(key, 0), label + ": 10 Inch\r\n");
        EXPECT_EQ(bench.Line(key, 1), label + ": 10 Centimeter\r\n");
        EXPECT_EQ(bench.Line(key, 2), label + ": Relative\r\n");
    }
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(UnitBases, OfAnotherValueAreUnknown)
{
    RenderBench bench;
    EXPECT_EQ(bench.Add(Element::Byte(Key::UnitBaseX, 3)).Render(), "Base unit X axis: °^°R~Unknown (3)°^°S~\r\n");
    EXPECT_EQ(bench.sink.told, (Told{"Message Base unit X axis: Unknown (3)", "Invalid"}));
    bench.Add(Element::Byte(Key::UnitBaseY, 255)).Render();
    ASSERT_EQ(bench.sink.told.size(), 4u);
    EXPECT_EQ(bench.sink.told[2], "Message Base unit Y axis: Unknown (255)");
}

TEST(UnitBases, SpeakTheLanguage)
{
    RenderBench bench(Language::German);
    EXPECT_EQ(bench.Line(Key::UnitBaseX, 1), "Basiseinheit X-Achse: 10 Zentimeter\r\n");
    EXPECT_EQ(bench.Line(Key::UnitBaseX, 9), "Basiseinheit X-Achse: °^°R~Unbekannt (9)°^°S~\r\n");
    EXPECT_EQ(bench.sink.told.front(), "Message Basiseinheit X-Achse: Unbekannt (9)");
}

TEST(UnitBases, OfAnOutlineAreAlwaysTenInches)
{
    RenderBench bench;
    for (const std::int32_t value : {0, 1, 2, 3, 255}) {
        EXPECT_EQ(bench.Line(Key::ShapeUnitBaseX, value), "Outline base unit X axis: 10 Inch\r\n");
        EXPECT_EQ(bench.Line(Key::ShapeUnitBaseY, value), "Outline base unit Y axis: 10 Inch\r\n");
    }
    EXPECT_TRUE(bench.sink.told.empty());
}

// Rotations --------------------------------------------------------------------------------------------------------

TEST(Rotations, AreDegreesAndMinutes)
{
    const std::pair<std::int32_t, std::string_view> kRotations[] = {
        {0x0000, "0°"},       {0x2D00, "90°"},    {0x5A00, "180°"},   {0x8700, "270°"},  {0xB400, "360°"},
        {0x2D01, "90°"},      {0x2D02, "90° 1'"}, {0x2D03, "90° 1'"}, {0x0002, "0° 1'"}, {0x2D78, "90° 60'"},
        {0xB478, "360° 60'"}, {0x0080, "1°"},     {0xFFFF, "Default"}};
    RenderBench bench;
    for (const auto& [value, shown] : kRotations)
        EXPECT_EQ(bench.Line(Key::RotationX, value), "Rotation X axis (clockwise): " + std::string(shown) + "\r\n");
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(Rotations, HaveThreeLabels)
{
    RenderBench bench;
    EXPECT_EQ(bench.Line(Key::RotationY, 0x2D00), "Rotation Y axis (clockwise): 90°\r\n");
    EXPECT_EQ(bench.Line(Key::ContentRotationY, 0x2D00), "Rotation Y axis (contents): 90°\r\n");
    EXPECT_EQ(bench.Line(Key::ContentRotationY, 0xFFFF), "Rotation Y axis (contents): Default\r\n");
    EXPECT_EQ(bench.Line(Key::ContentRotationY, 0), "Rotation Y axis (contents): 0°\r\n");
}

TEST(Rotations, OutsideACircleAreInvalid)
{
    const std::pair<std::int32_t, std::string> kInvalid[] = {
        {0xB480, "361° 0'"}, {0xFF00, "510° 0'"}, {0x2D7A, "90° 61'"}, {0x2D7E, "90° 63'"}, {0xFFFE, "511° 63'"}};
    for (const auto& [value, shown] : kInvalid) {
        RenderBench bench;
        EXPECT_EQ(bench.Line(Key::RotationX, value),
                  "Rotation X axis (clockwise): °^°R~Invalid (" + shown + ")°^°S~\r\n");
        EXPECT_EQ(bench.sink.told, (Told{"Message Invalid Rotation X axis (clockwise): " + shown, "Invalid"}));
    }
}

TEST(Rotations, TellAnInvalidOneWithAnEnglishWord)
{
    RenderBench bench(Language::German);
    EXPECT_EQ(bench.Line(Key::RotationX, 0xB480),
              "Drehung X-Achse (im Uhrzeigersinn): °^°R~Ungültig (361° 0')°^°S~\r\n");
    EXPECT_EQ(bench.sink.told.front(), "Message Invalid Drehung X-Achse (im Uhrzeigersinn): 361° 0'");
}

}  // namespace
}  // namespace folioscope
