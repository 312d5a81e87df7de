// Graphics Data Descriptor: the set of orders, the drawing space, and which values hold by default.

#include "analysis/decode/fields_graphics.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// The first part of a descriptor: its lines without the frame of a group.
void ExpectPart(std::string_view pieces, std::string_view expected)
{
    SCOPED_TRACE(pieces);
    const Bytes part = Pieces(pieces);
    const Shown shown =
        ShowRecord({"GDD", part.substr(0, 1) + U1(static_cast<unsigned>(part.size()) - 1) + part.substr(1)});
    ASSERT_GE(shown.elements.size(), 4u);
    EXPECT_EQ(shown.typed.front(), "Int16 BeginRepetition 1");
    EXPECT_EQ(shown.typed[1], "Int32 Length " + std::to_string(part.size() + 1));
    EXPECT_TRUE(shown.typed[2].starts_with("Byte Type "));
    EXPECT_EQ(shown.typed.back(), "Int16 EndRepetition 1");
    constexpr std::string_view kHead = "\n<b>Element 1</b>\n";
    ASSERT_TRUE(shown.text.starts_with(kHead)) << shown.text;
    const auto typeEnd = shown.text.find('\n', kHead.size()) + 1;
    std::string text;
    for (std::string_view rest = std::string_view(shown.text).substr(typeEnd); !rest.empty();) {
        constexpr std::string_view kTab = "→";
        EXPECT_TRUE(rest.starts_with(kTab)) << rest;
        const auto end = rest.find('\n') + 1;
        text += rest.substr(kTab.size(), end - kTab.size());
        rest.remove_prefix(end);
    }
    ExpectShown({shown.typed.begin() + 3, shown.typed.end() - 1}, text, expected);
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(GDD, ConsistsOfParts)
{
    const Shown shown = ShowRecord({"GDD", Pieces("21 04 00 0000 00 F7 07 B0 00*6 99 00 21 04 01 0000 00")});
    EXPECT_EQ(shown.elements,
              (Lines{"BeginRepetition 1", "Length 6",          "Type 33",           "Subtype 0", "AllDefault True",
                     "EndRepetition 1",   "BeginRepetition 2", "Length 9",          "Type 247",  "DOSubset DR/2V0",
                     "GeoFormat 0",       "EndRepetition 2",   "BeginRepetition 3", "Length 2",  "Type 153",
                     "EndRepetition 3",   "BeginRepetition 4", "Length 6",          "Type 33",   "Subtype 1",
                     "AllDefault True",   "EndRepetition 4"}));
    EXPECT_EQ(ShowRecord({"GDD"}).elements, Lines{});
    EXPECT_EQ(ShowRecord({"GDD", Pieces("21")}).elements, Lines{});
}

TEST(GDD, OfPartsWithoutContentEnds)
{
    const Shown shown = ShowRecord({"GDD", Zeros(30'000)});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition").size(), 15'000u);
}

TEST(GDDOrderSubset, HasAName)
{
    constexpr std::string_view kFormat =
        "Byte GeoFormat 0 | Used coordinate format: 16 Bit, High-Byte first, Signed integer";
    const auto expect = [&](std::string_view pieces, std::string_view name) {
        const std::string line = "Text DOSubset " + std::string(name) + " | Drawing order subset: " + std::string(name);
        ExpectPart(pieces, (name.empty() ? "" : line + '\n') + std::string(kFormat));
    };
    // The name two bytes behind the part's start, or five; the version three bytes behind it, or one.
    expect("F7 B0 00 00 02 00 00 00", "DR/2V0");
    expect("F7 00 00 00 B0 00 00 00", "DR/2V0");
    expect("F7 B8 00 00 02 00 00 00", "GRS2");
    expect("F7 B8 00 00 03 00 00 00", "GRS3");
    expect("F7 00 00 00 B8 02 00 00", "GRS2");
    expect("F7 00 00 00 B8 03 00 00", "GRS3");
    expect("F7 B8 00 00 04 00 00 00", "");
    expect("F7 B8 00 00 01 00 00 00", "");
    expect("F7 00 00 00 B8 05 00 00", "");
    expect("F7 B1 00 00 02 00 00 00", "");
}

TEST(GDDOrderSubset, HasOneFormatOfNumbers)
{
    const Shown shown = ShowRecord({"GDD", Pieces("F7 07 B0 00 00 02 00 00 01")});
    EXPECT_EQ(ValuesOf(shown, "GeoFormat"), Lines{"1"});
    EXPECT_EQ(shown.heard, (Lines{"Message Used coordinate format: Unknown (1)", "Invalid"}));
}

TEST(GDDSpace, HasUnitsAndEdges)
{
    ExpectPart("F6 C0 00 00 00 3840 1C20 0BB8 FF9C 05A0 0000 7FFF",
               "Boolean PicturePS 1 | Picture presentation space: 3-D\n"
               "Boolean PictureDimension 1 | Picture dimension: Absolute (defined)\n"
               "Int16 Symmetric 0 | Image symmetric: Symmetric\n"
               "Int32 Resolution 3000 | Resolution X/Y: 300 x 300 ppi\n"
               "Byte UnitBaseX 0 | Base unit X axis: 10 Inch\n"
               "Byte UnitBaseY 0 | Base unit Y axis: 10 Inch\n"
               "Int32 PageBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)\n"
               "Int32 PageBaseUnitsY 7200 | Units per unit base Y axis: 7,200   (720 DPI)\n"
               "Int32 LeftMargin -100 | Left margin: -100   (-0.0694 Inch)\n"
               "Int32 RightMargin 1440 | Right margin: 1,440   (1 Inch)\n"
               "Int32 BottomMargin 0 | Bottom margin: 0   (0 Inch)\n"
               "Int32 TopMargin 32767 | Top margin: 32,767   (45.5097 Inch)");
}

TEST(GDDSpace, HasAResolutionByTheUnitsOfTenInches)
{
    const auto of = [](unsigned resolution) {
        const Bytes part = Pieces("F6 12 00 00 00 01 3840 3840") + U2(resolution) + Zeros(8);
        const Shown shown = ShowRecord({"GDD", part});
        const auto at = shown.text.find("Resolution X/Y: ") + 16;
        return shown.text.substr(at, shown.text.find('\n', at) - at);
    };
    EXPECT_EQ(of(0), "Not specified");
    EXPECT_EQ(of(9), "9 x 9 ppi");
    EXPECT_EQ(of(10), "1 x 1 ppi");
    EXPECT_EQ(of(14405), "1,440 x 1,440 ppi");
    EXPECT_EQ(of(14415), "1,442 x 1,442 ppi");
    EXPECT_EQ(of(65535), "6,554 x 6,554 ppi");
}

TEST(GDDSpace, HasFlags)
{
    const auto of = [](std::string_view flags) {
        return ShowRecord({"GDD", Pieces("F6 12 " + std::string(flags) + " 00 00 00 3840 3840 0BB8 00*8")}).elements;
    };
    const Lines none = of("00"), symmetric = of("08"), others = of("37");
    EXPECT_EQ((Lines{none[3], none[4], none[5]}), (Lines{"PicturePS False", "PictureDimension False", "Symmetric 0"}));
    EXPECT_EQ((Lines{symmetric[3], symmetric[4], symmetric[5]}),
              (Lines{"PicturePS False", "PictureDimension False", "Symmetric 1"}));
    EXPECT_EQ((Lines{others[3], others[4], others[5]}),
              (Lines{"PicturePS False", "PictureDimension False", "Symmetric 0"}));
}

// Defaults: type, length, subtype, mask, flags, values
// -----------------------------------------------------------------------------

TEST(GDDDefaults, ThatAreAllStandardHaveNoMore)
{
    ExpectPart("21 00 FFFF 00 0001 02 05", "Byte Subtype 0 | Subtype: Drawing attributes\n"
                                           "Boolean AllDefault 1 | Set all attributes to default values: Yes");
    ExpectPart("21 11 FFFF 7F 0001", "Byte Subtype 17 | Subtype: Normal line width\n"
                                     "Boolean AllDefault 1 | Set all attributes to default values: Yes");
}

void ExpectDefaults(std::string_view pieces, std::string_view subtype, std::string_view expected)
{
    ExpectPart(pieces, std::string(subtype) + "\nBoolean AllDefault 0 | Set all attributes to default values: No\n" +
                           std::string(expected));
}

TEST(GDDDefaults, OfDrawings)
{
    ExpectDefaults("21 00 B000 80 FF01 02 05", "Byte Subtype 0 | Subtype: Drawing attributes",
                   "Int32 Color 65281 | Color: Blue\n"
                   "Byte ForegroundMix 2 | Mixing of foreground colors: Overpaint (opaque)\n"
                   "Byte BackgroundMix 5 | Mixing of background colors: Leave alone (transparent)");
}

TEST(GDDDefaults, OfLines)
{
    ExpectDefaults("21 01 F000 80 07 02 01 03", "Byte Subtype 1 | Subtype: Line attributes",
                   "Byte LineType 7 | Line type: Solid line\n"
                   "Int16 LineWidth 512 | Line width: 0.0167 Inch\n"
                   "Byte LineEnd 1 | Line end type: Flat\n"
                   "Byte LineJoin 3 | Line join type: Miter");
}

TEST(GDDDefaults, OfCharacters)
{
    ExpectDefaults("21 02 F800 80 0000 0001 03E8 FFFF 02 03 07", "Byte Subtype 2 | Subtype: Character attributes",
                   "Int16 CharRotation 90 | Character Rotation: 90°\n"
                   "Int32 CellWidth 1000\n"
                   "Int32 CellHeight -1 | Cell Width: 1,000, Cell Height: -1\n"
                   "Byte CharDirection 2 | Character direction: Top to bottom\n"
                   "Byte Precision 3 | Precision: Very accurate\n"
                   "Byte CHSID 7 | Graphic character set ID: 7");
    // A direction that isn't told takes its four bytes all the same.
    ExpectDefaults("21 02 9000 80 0001 0001 03", "Byte Subtype 2 | Subtype: Character attributes",
                   "Byte Precision 3 | Precision: Very accurate");
    ExpectDefaults("21 02 9000 80 0000 0000 03", "Byte Subtype 2 | Subtype: Character attributes",
                   "Text CharRotation Default | Character Rotation: Default\n"
                   "Byte Precision 3 | Precision: Very accurate");
}

TEST(GDDDefaults, OfMarkers)
{
    ExpectDefaults("21 03 5900 80 03E8 0002 02 07 40", "Byte Subtype 3 | Subtype: Marker attributes",
                   "Int32 MarkerCellWidth 1000\n"
                   "Int32 MarkerCellHeight 2 | Marker cell width: 1,000, Marker cell height: 2\n"
                   "Byte Precision 2 | Precision: Accurate (Character)\n"
                   "Byte MSID 7 | Bullet character set: 7\n"
                   "Byte MarkerSymbol 64 | Bullet: Blank");
}

TEST(GDDDefaults, OfPatterns)
{
    ExpectDefaults("21 04 0910 80 00 10 03E8 FFFF", "Byte Subtype 4 | Subtype: Pattern attributes",
                   "Byte PatternSID 0 | Pattern set: Default\n"
                   "Byte PatternSymbol 16 | Pattern symbol: Solid fill\n"
                   "Int32 PatternRefPointX 1000\n"
                   "Int32 PatternRefPointY -1 | Pattern reference point X: 1,000, Y: -1");
    ExpectDefaults("21 04 0810 80 07 0000 0000", "Byte Subtype 4 | Subtype: Pattern attributes",
                   "Byte PatternSID 7 | Pattern set: 7\n"
                   "Int32 PatternRefPointX 0\n"
                   "Int32 PatternRefPointY 0 | Pattern reference point X: Default, Y: Default");
}

TEST(GDDDefaults, OfArcs)
{
    ExpectDefaults("21 0B F000 80 0001 0002 FFFD 0004", "Byte Subtype 11 | Subtype: Arc parameters",
                   "Int32 MajorX 1\nInt32 MinorY 2\nInt32 MinorX -3\n"
                   "Int32 MajorY 4 | P = 1, Q = 2, R = -3, S = 4, Direction: CCW");
    // Parameters that aren't given are 0.
    ExpectDefaults("21 0B 1000 80 0004", "Byte Subtype 11 | Subtype: Arc parameters",
                   "Int32 MajorY 4 | P = 0, Q = 0, R = 0, S = 4, Direction: CW");
}

TEST(GDDDefaults, OfProcessColours)
{
    ExpectDefaults("21 10 E000 80 02 05 00 01 00*4 08 04 01 00 FF 03 00", "Byte Subtype 16 | Subtype: Process Color",
                   "Byte ForegroundMix 2 | Mixing of foreground colors: Overpaint (opaque)\n"
                   "Byte BackgroundMix 5 | Mixing of background colors: Leave alone (transparent)\n"
                   "Byte ColorSpace 1 | Color Space: RGB Color\n"
                   "Byte RedBits 8\n"
                   "Float64 Steps 256.000000 | No. of bits which represent the color Red: 8 (256 Steps)\n"
                   "Byte GreenBits 4\n"
                   "Float64 Steps 16.000000 | No. of bits which represent the color Green: 4 (16 Steps)\n"
                   "Byte BlueBits 1\n"
                   "Float64 Steps 2.000000 | No. of bits which represent the color Blue: 1 (2 Steps)\n"
                   "Byte IntensityRed 255\n"
                   "Int16 Intensity 100 | Intensity of color Red: 255 (100% Saturation)\n"
                   "Byte IntensityGreen 3\n"
                   "Int16 Intensity 20 | Intensity of color Green: 3 (20% Saturation)\n"
                   "Byte IntensityBlue 0\n"
                   "Int16 Intensity 0 | Saturation: 0%");
    ExpectDefaults("21 10 2000 80 00 40 00*4 00*4 FF02", "Byte Subtype 16 | Subtype: Process Color",
                   "Byte ColorSpace 64 | Color Space: Standard OCA\n"
                   "Int32 Color 65282 | Color: Red");
}

TEST(GDDDefaults, OfAColourWithoutARangeEndThere)
{
    const Shown shown =
        ShowRecord({"GDD", Pieces("21 12 10 2000 80 00 01 00*4 00 08 08 00 FF 03 00 00 21 04 00 0000 00")});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), (Lines{"1", "2"}));
    EXPECT_FALSE(Has(shown, "Intensity"));
    EXPECT_TRUE(Has(shown, "IntensityRed"));
}

TEST(GDDDefaults, OfTheNormalLineWidth)
{
    ExpectDefaults("21 11 8000 80 000C", "Byte Subtype 17 | Subtype: Normal line width",
                   "Int32 NormalLineWidth 12 | Normal line width: 0.0083 Inch (12/1440)");
    FamilyWalk walk(AfpFile()
                        .Add("GDD", Pieces("21 06 11 8000 80 0024"))
                        .Add("GDD", Pieces("21 05 01 4000 80 02"))
                        .Add("GDD", Pieces("21 05 01 4000 80 00")));
    walk.Next();
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.NormalLineWidth, 36.0f / 1440);
    EXPECT_TRUE(walk.Next().text.ends_with("→Line width: 0.05 Inch\n"));
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.CurrentLineWidth, 0.05f);
    EXPECT_TRUE(walk.Next().text.ends_with("→Line width: Drawing default\n"));
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.CurrentLineWidth, 0.025f);
}

struct MaskCase {
    std::string_view subtype, mask, keys;
};
// clang-format off
constexpr MaskCase kMasks[] = {                        // each bit of the mask alone
    {"00", "8000", "Color"},            {"00", "2000", "ForegroundMix"},   {"00", "1000", "BackgroundMix"},
    {"00", "4FFF", ""},
    {"01", "8000", "LineType"},         {"01", "4000", "LineWidth"},       {"01", "2000", "LineEnd"},
    {"01", "1000", "LineJoin"},         {"01", "0FFF", ""},
    {"02", "8000", "CharRotation"},     {"02", "4000", "CellWidth CellHeight"},
    {"02", "2000", "CharDirection"},    {"02", "1000", "Precision"},       {"02", "0800", "CHSID"},
    {"02", "07FF", ""},
    {"03", "4000", "MarkerCellWidth MarkerCellHeight"},                    {"03", "1000", "Precision"},
    {"03", "0800", "MSID"},             {"03", "0100", "MarkerSymbol"},    {"03", "A6FF", ""},
    {"04", "0800", "PatternSID"},       {"04", "0100", "PatternSymbol"},
    {"04", "0010", "PatternRefPointX PatternRefPointY"},                   {"04", "F6EF", ""},
    {"0B", "8000", "MajorX"},           {"0B", "4000", "MinorY"},          {"0B", "2000", "MinorX"},
    {"0B", "1000", "MajorY"},           {"0B", "0FFF", ""},
    {"10", "8000", "ForegroundMix"},    {"10", "4000", "BackgroundMix"},   {"10", "2000", "ColorSpace"},
    {"10", "1FFF", ""},
    {"11", "8000", "NormalLineWidth"},  {"11", "7FFF", ""},
    {"05", "FFFF", ""},                 {"FF", "FFFF", ""},
};
// clang-format on

TEST(GDDDefaults, AreThoseOfTheirMask)
{
    for (const auto& [subtype, mask, keys] : kMasks) {
        const Shown shown =
            ShowRecord({"GDD", Pieces("21 14 " + std::string(subtype) + ' ' + std::string(mask) + " 80") + Zeros(16)});
        std::string found;
        for (std::size_t i = 5; i + 1 < shown.elements.size(); ++i)
            found += (i == 5 ? "" : " ") + shown.elements[i].substr(0, shown.elements[i].find(' '));
        EXPECT_EQ(found, keys) << subtype << ' ' << mask;
    }
}

TEST(GDDDefaults, OfAnotherSubtypeAreUnknown)
{
    const Shown shown = ShowRecord({"GDD", Pieces("21 04 05 FFFF 80")});
    EXPECT_EQ(shown.heard, (Lines{"Message Subtype: Unknown (5)", "Invalid"}));
}

TEST(GDD, IsTranslated)
{
    RecordWalk walk(AfpFile().Add("GDD", Pieces("21 05 01 4000 80 02")));
    walk.Next();
    LineBench bench(Language::German, {".", ","});
    bench.renderer.RenderStructuredField(walk.afp.List());
    EXPECT_TRUE(Readable(bench.renderer.text.Text()).ends_with("→Linienstärke: 0,0167 Zoll\n"));
}

}  // namespace
}  // namespace folioscope
