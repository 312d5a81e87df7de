// Bar codes: the descriptor of a symbol and its data.

#include "analysis/decode/fields_barcode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

TEST(BDD, DescribesASymbol)
{
    const Shown shown = ShowRecord(
        {"BDD/BSD", Pieces("00 00 3840 1C20 05A0 0000 0000 01 02 FF FF01 FF FFFF 0A 012C") + TripletOf("81 01")});
    ExpectShown(shown.elements, shown.text,
                "UnitBase 0 | Unit Base: 10 Inch\n"
                "ObjectBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)\n"
                "ObjectBaseUnitsY 7200 | Units per unit base Y axis: 7,200   (720 DPI)\n"
                "ObjectSizeX 1440 | Size in X direction: 1,440   (1 Inch)\n"
                "ObjectSizeY 0 | Size in Y direction: Not specified\n"
                "BCSymWidth 0 | Bar code symbol width: Not specified\n"
                "BCType 1 | Bar code type: Code 39 (3-of-9 Code), AIM(TM) USS-39\n"
                "BCMod 2 | Supplemental information: With two check digits (modifier code x'02')\n"
                "FontLID 255 | Font: Default\n"
                "Color 65281 | Color: Blue\n"
                "BCModWidth 255 | Module (bar/space) width: Default\n"
                "BCElemHeight 65535 | Single bar code height: Default\n"
                "BCHeightMult 10 | Bar code height multiplier: 1.0\n"
                "BCRatio 3 | Wide to narrow ratio: 3.0\n"
                "TripletStartbyte 33\n"
                "TripletLength 3\n"
                "BeginTriplet x'81' | ~\n"
                "TripletName x'81' (Page Position Information) | ¶Triplet:<b>→x'81' (Page Position Information)</b>\n"
                "UsePGP 1 | →Use PGP repeating group with ID: 1\n"
                "EndTriplet True");
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(BDD, HasTypedValues)
{
    EXPECT_EQ(ShowRecord({"BDD/BSD", Pieces("01 00 0001 0002 FFFF 0004 03E8 1E 01 05 0000 0D 03E8 FF 0000")}).typed,
              (Lines{"Byte UnitBase 1", "Int32 ObjectBaseUnitsX 1", "Int32 ObjectBaseUnitsY 2",
                     "Int32 ObjectSizeX 65535", "Int32 ObjectSizeY 4", "Int32 BCSymWidth 1000", "Byte BCType 30",
                     "Byte BCMod 1", "Byte FontLID 5", "Int32 Color 0", "Byte BCModWidth 13", "Int32 BCElemHeight 1000",
                     "Byte BCHeightMult 255", "Float64 BCRatio 0.000000"}));
}

TEST(BDD, ShowsOtherValuesThanTheDefaults)
{
    const Shown shown = ShowRecord({"BDD/BSD", Pieces("01 00 0001 0002 FFFF 0004 03E8 1E 01 05 0000 0D 03E8 FF 0000")});
    for (const std::string_view line :
         {"Unit Base: 10 Centimeter\n", "Size in X direction: Default\n", "Bar code symbol width: 1,000\n",
          "Bar code type: PDF417 (2D bar code)\n", "Supplemental information: PDF417 truncated\n", "Font: 5\n",
          "Color: Drawing default\n", "Module (bar/space) width: 0.013 Inch\n", "Single bar code height: 1,000\n",
          "Bar code height multiplier: 25.5\n", "Wide to narrow ratio: 0.0\n"})
        EXPECT_NE(shown.text.find(line), std::string::npos) << line << shown.text;
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(BDD, ReportsAnUnknownBase)
{
    const Shown shown = ShowRecord({"BDD/BSD", Pieces("03 00*22")});
    EXPECT_EQ(shown.heard, (Lines{"Message Unit Base: Unknown (3)", "Invalid"}));
    EXPECT_TRUE(shown.text.starts_with("Unit Base: <red>Unknown (3)</red>\n"));
}

TEST(BDD, DividesItsRatioUntilItIsTenOrLess)
{
    const auto of = [](unsigned ratio) {
        const Shown shown = ShowRecord({"BDD/BSD", Zeros(21) + U2(ratio)});
        const auto at = shown.text.find("Wide to narrow ratio: ") + 22;
        return ValuesOf(shown, "BCRatio").at(0) + " | " + shown.text.substr(at, shown.text.find('\n', at) - at);
    };
    EXPECT_EQ(of(300), "3 | 3.0");
    EXPECT_EQ(of(30), "3 | 3.0");
    EXPECT_EQ(of(3), "3 | 3.0");
    EXPECT_EQ(of(0), "0 | 0.0");
    EXPECT_EQ(of(10), "10 | 10.0");
    EXPECT_EQ(of(11), "1.1 | 1.1");
    EXPECT_EQ(of(100), "10 | 10.0");
    EXPECT_EQ(of(225), "2.25 | 2.25");
    EXPECT_EQ(of(1001), "1.001 | 1.001");
    EXPECT_EQ(of(65534), "6.5534 | 6.5534");
    EXPECT_EQ(of(65535), "6.5535 | Default");
}

TEST(BDD, WithoutTripletsEndsWithItsRatio)
{
    const Shown shown = ShowRecord({"BDD/BSD", Zeros(23)});
    EXPECT_EQ(shown.elements.back(), "BCRatio 0");
    // A byte alone makes no triplet.
    EXPECT_EQ(ShowRecord({"BDD/BSD", Zeros(23) + Raw({0x03})}).elements.back(), "BCRatio 0");
}

TEST(BDA, GivesItsDataOnBothPages)
{
    const Shown shown = ShowRecord({"BDA/BSA", Pieces("96 0064 03E8 'AB' <AB>")});
    EXPECT_EQ(ValuesOf(shown, "Content").size(), 2u);
    EXPECT_TRUE(ValuesOf(shown, "Content").at(0).starts_with("AB"));
    EXPECT_TRUE(ValuesOf(shown, "Content").at(1).ends_with("AB"));
    EXPECT_EQ(ValuesOf(shown, "HexCode"), Lines{"C1 C2 41 42"});
}

TEST(BDA, HasFlagsAndAnOrigin)
{
    const Shown shown = ShowRecord({"BDA/BSA", Pieces("96 0064 03E8 '12'")});
    const auto contents = ValuesOf(shown, "Content");
    ASSERT_EQ(contents.size(), 2u);
    ExpectShown(shown.typed, shown.text,
                "Boolean HRIPresent 1 | Human Readable Interpretation is present: Yes\n"
                "Int16 HRIPos 0 | Position of HRI line: Default\n"
                "Boolean Asterisk 1 | Start/Stop symbols shown as asterisk in HRI: Yes\n"
                "Boolean SuppressSymbol 1 | Suppress symbol, present only HRI: Yes\n"
                "Boolean SuppressBlanks 1 | Suppress blanks and adjust bar code data: Yes\n"
                "Int32 ContentOriginX 100 | Origin of contents X axis: 100   (0.0694 Inch)\n"
                "Int32 ContentOriginY 1000 | Origin of contents Y axis: 1,000   (0.6944 Inch)\n"
                "Text Content 12 | Content:→<b>12</b>\n"
                "Text Content " +
                    contents[1] + " | Content:→<b>" + contents[1] +
                    "</b>\n"
                    "Text HexCode F1 F2");
    EXPECT_EQ(shown.heard, Lines{});
    const Shown none = ShowRecord({"BDA/BSA", Pieces("09 0000 FFFF '12'")});
    EXPECT_EQ((Lines{none.typed.begin(), none.typed.begin() + 7}),
              (Lines{"Boolean HRIPresent 0", "Int16 HRIPos 0", "Boolean Asterisk 0", "Boolean SuppressSymbol 0",
                     "Boolean SuppressBlanks 0", "Int32 ContentOriginX 0", "Int32 ContentOriginY 65535"}));
}

TEST(BDA, HasThePositionOfTheReadableLine)
{
    const auto of = [](std::string_view flags) {
        return ValuesOf(ShowRecord({"BDA/BSA", Pieces(std::string(flags) + " 0000 0000 'A'")}), "HRIPos");
    };
    EXPECT_EQ(of("00"), Lines{"0"});
    EXPECT_EQ(of("9F"), Lines{"0"});
    EXPECT_EQ(of("40"), Lines{"1"});
    EXPECT_EQ(of("20"), Lines{"2"});
    EXPECT_EQ(of("60"), Lines{"1"});
}

TEST(BDA, WithoutDataIsEmpty)
{
    // What lies behind the field decides whether the text counts as given.
    const Shown shown = ShowRecord({"BDA/BSA", Pieces("00 0000 0000")});
    EXPECT_EQ(ValuesOf(shown, "HexCode"), Lines{""});
    EXPECT_TRUE(shown.text.ends_with("Content:→<b></b>\nContent:→<b></b>\n")) << shown.text;
}

}  // namespace
}  // namespace folioscope
