// Graphics: what each drawing order holds. How the orders hang together is tested in items_test.cpp.

#include "objects/goca_decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct Case {
    std::string_view pieces, expected;
};

void ExpectEach(std::initializer_list<Case> cases)
{
    for (const auto& [pieces, expected] : cases) ExpectItems("GAD", pieces, expected);
}

// Orders of one and two bytes
// -------------------------------------------------------------------------------------------------

TEST(GNOP1, HasOneByte)
{
    // The last byte of a field is never an order of its own.
    ExpectItems("GAD", "00 00 00",
                "Text BeginOrder GNOP1\nInt16 GPSNoOp 1 | GNOP1: No Operation\n"
                "Text BeginOrder GNOP1\nInt16 GPSNoOp 1 | GNOP1: No Operation");
}

TEST(TwoByteOrders, HaveAValue)
{
    ExpectEach({
        {"08 00", "Text BeginOrder GSPS\nByte PatternSID 0 | GSPS: Pattern set: Default"},
        {"0A 01", "Text BeginOrder GSCOL\nInt32 Color 65281 | GSCOL: Color: Blue"},
        {"0A FF", "Text BeginOrder GSCOL\nInt32 Color 65535 | GSCOL: Color: Default"},
        {"0C 02", "Text BeginOrder GSMX\nByte ForegroundMix 2 | GSMX: Mixing of foreground colors: Overpaint (opaque)"},
        {"0D 05", "Text BeginOrder GSBMX\nByte BackgroundMix 5 | "
                  "GSBMX: Mixing of background colors: Leave alone (transparent)"},
        {"18 01", "Text BeginOrder GSLT\nByte LineType 1 | GSLT: Line type: Dotted line"},
        {"1A 01", "Text BeginOrder GSLE\nByte LineEnd 1 | GSLE: Line end type: Flat"},
        {"1B 01", "Text BeginOrder GSLJ\nByte LineJoin 1 | GSLJ: Line join type: Bevel"},
        {"28 01", "Text BeginOrder GSPT\nByte PatternSymbol 1 | GSPT: Pattern symbol: Dotted pattern"},
        {"29 01", "Text BeginOrder GSMT\nByte MarkerSymbol 1 | GSMT: Bullet: Cross"},
        {"38 07", "Text BeginOrder GSCS\nByte CHSID 7 | GSCS: Graphic character set ID: 7"},
        {"39 01", "Text BeginOrder GSCR\nByte Precision 1 | GSCR: Precision: Inaccurate (String)"},
        {"3A 01", "Text BeginOrder GSCD\nByte CharDirection 1 | GSCD: Character direction: Left to right"},
        {"3B 02", "Text BeginOrder GSMP\nByte Precision 2 | GSMP: Precision: Accurate (Character)"},
        {"3C 07", "Text BeginOrder GSMS\nByte MSID 7 | GSMS: Bullet character set: 7"},
        {"3E 00", "Text BeginOrder GEPROL\nBoolean EndProlog 1 | GEPROL: End prolog"},
        {"71 00", "Text BeginOrder End Segment\nBoolean EndSegment 1 | End Segment: End segment"},
    });
}

TEST(TwoByteOrders, AreFollowedByTheNextWhateverTheirValueIs)
{
    for (const std::string_view code :
         {"08", "0A", "0C", "0D", "18", "19", "1A", "1B", "28", "29", "38", "39", "3A", "3B", "3C", "3E", "68", "71"}) {
        const ShownItems shown = ShowItems("GAD", Pieces(std::string(code) + " FF 3E 00"));
        EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1") << code;
        EXPECT_EQ(shown.record, Lines{}) << code;
    }
}

TEST(GSLW, IsIn256ths)
{
    ExpectEach({
        {"19 00", "Text BeginOrder GSLW\nInt16 LineWidth 0 | GSLW: Line width: Drawing default"},
        {"19 01", "Text BeginOrder GSLW\nInt16 LineWidth 256 | GSLW: Line width: 0.01 Inch"},
        {"19 02", "Text BeginOrder GSLW\nInt16 LineWidth 512 | GSLW: Line width: 0.02 Inch"},
        {"19 FF", "Text BeginOrder GSLW\nInt16 LineWidth 65280 | GSLW: Line width: 2.55 Inch"},
    });
}

TEST(GBAR, HasTwoFlags)
{
    ExpectEach({
        {"68 00", "Text BeginOrder GBAR\nBoolean BeginArea 1\nBoolean Boundary 0\nBoolean Inside 0 | "
                  "GBAR: Begin filled area: Draw boundaries: No, Fill mode: Alternate"},
        {"68 40", "Text BeginOrder GBAR\nBoolean BeginArea 1\nBoolean Boundary 1\nBoolean Inside 0 | "
                  "GBAR: Begin filled area: Draw boundaries: Yes, Fill mode: Alternate"},
        {"68 20", "Text BeginOrder GBAR\nBoolean BeginArea 1\nBoolean Boundary 0\nBoolean Inside 1 | "
                  "GBAR: Begin filled area: Draw boundaries: No, Fill mode: Nonzero Winding"},
        {"68 9F", "Text BeginOrder GBAR\nBoolean BeginArea 1\nBoolean Boundary 0\nBoolean Inside 0 | "
                  "GBAR: Begin filled area: Draw boundaries: No, Fill mode: Alternate"},
    });
}

// Long orders without positions
// -----------------------------------------------------------------------------------------------

TEST(NoOperationOrders, HaveTheirWholeLength)
{
    ExpectEach({
        {"04 03 01 02 03", "Text BeginOrder GSGCH\nInt32 GPSNoOp 5 | GSGCH: No Operation"},
        {"35 02 01 02", "Text BeginOrder GSCH\nInt32 GPSNoOp 4 | GSCH: No Operation"},
        {"43 00", "Text BeginOrder GSPICK\nInt32 GPSNoOp 2 | GSPICK: No Operation"},
    });
}

TEST(EndOrders, AreLong)
{
    ExpectEach({
        {"5E 00", "Text BeginOrder GECP\nBoolean EndPattern 1 | GECP: End custom pattern"},
        {"60 00", "Text BeginOrder GEAR\nBoolean EndArea 1 | GEAR: End filled area"},
        {"93 00", "Text BeginOrder GEIMG\nBoolean EndImage 1 | GEIMG: End Image"},
        {"25 02 FF01", "Text BeginOrder GSBCOL"},
    });
    // Their lengths are passed.
    for (const std::string_view code : {"5E", "60", "93", "25", "04", "35", "43"}) {
        const ShownItems shown = ShowItems("GAD", Pieces(std::string(code) + " 02 FFFF 3E 00"));
        EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1") << code;
    }
}

TEST(GCOMT, IsAComment)
{
    ExpectItems("GAD", "01 03 'Hey'", "Text BeginOrder GCOMT\nText Comment Hey | GCOMT: Comment: \"Hey\"");
    ExpectItems("GAD", "01 00 3E 00",
                "Text BeginOrder GCOMT\nText Comment  | GCOMT: Comment: \"\"\n"
                "Text BeginOrder GEPROL\nBoolean EndProlog 1 | GEPROL: End prolog");
}

TEST(ColourOrders, HaveOneOfTheNamedColours)
{
    ExpectEach({
        {"26 02 FF03", "Text BeginOrder GSECOL\nInt32 Color 65283 | GSECOL: Color: Pink/Magenta"},
        {"26 02 0010", "Text BeginOrder GSECOL\nInt32 Color 16 | GSECOL: Color: Brown"},
        {"26 02 1234", "Text BeginOrder GSECOL\nInt32 Color 4660 | GSECOL: Color: "},
    });
}

TEST(GSFLW, IsAFractionOfTheNormalWidth)
{
    ExpectEach({
        {"11 02 0180", "Text BeginOrder GSFLW\nInt32 LineWidth 384 | GSFLW: Line width: 0.015 Inch"},
        {"11 02 0000", "Text BeginOrder GSFLW\nInt32 LineWidth 0 | GSFLW: Line width: Drawing default"},
        {"11 02 FFFF", "Text BeginOrder GSFLW\nInt32 LineWidth 65535 | GSFLW: Line width: 2.56 Inch"},
    });
}

TEST(GSCLT, HasDashesAndMovesIn256ths)
{
    ExpectItems("GAD", "20 08 0280 0100 0001 FF00",
                "Text BeginOrder GSCLT\nFloat64 CustomLineDash 2.5\n"
                "Float64 CustomLineMove 1 | GSCLT: Individual dash length=0.025 Inch and Move=0.01 Inch\n"
                "Float64 CustomLineDash 0.00390625\n"
                "Float64 CustomLineMove 255 | GSCLT: Individual dash length=0.00 Inch and Move=2.55 Inch");
    EXPECT_EQ(ShowItems("GAD", Pieces("20 00 3E 00")).items[1], "Text BeginOrder GEPROL");
    // A group that begins inside of the length is read whole.
    const ShownItems shown = ShowItems("GAD", Pieces("20 05 0100 0200 03 3E 00"));
    EXPECT_EQ(ValuesOf(shown, "CustomLineDash"), (Lines{"1", "3.2421875"}));
    EXPECT_EQ(ValuesOf(shown, "CustomLineMove").size(), 2u);
    EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1");
}

TEST(GSCC, HasFractionsUnlessItIsTwoLong)
{
    ExpectEach({
        {"33 08 0010 FFF0 8000 7FFF", "Text BeginOrder GSCC\nFloat64 CellWidth 15.5\n"
                                      "Float64 CellHeight -15.5000152587891 | GSCC: Cell Width: 16, Cell Height: -16"},
        {"33 04 03E8 07D0 3E 00", "Text BeginOrder GSCC\nFloat64 CellWidth 1000.2421875\n"
                                  "Float64 CellHeight 2000 | GSCC: Cell Width: 1,000, Cell Height: 2,000\n"
                                  "Text BeginOrder GEPROL\nBoolean EndProlog 1 | GEPROL: End prolog"},
    });
}

TEST(GSCC, OfTwoBytesHasWholeNumbers)
{
    // The height is read from behind the order.
    const ShownItems shown = ShowItems("GAD", Pieces("33 02 03E8 3E 00 3E 00"));
    EXPECT_EQ(shown.items[1], "Int32 CellWidth 1000");
    EXPECT_EQ(shown.items[2], "Int32 CellHeight 15872");
    EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1");
    EXPECT_TRUE(shown.text.starts_with("GSCC: Cell Width: 1,000, Cell Height: 15,872\n"));
}

TEST(GSCA, StandsBesideTheOrders)
{
    const auto of = [](std::string_view point) {
        return ShowItems("GAD", Pieces("3E 00 34 04 " + std::string(point) + " 3E 00"));
    };
    const auto expect = [&](std::string_view point, const Lines& rotation, std::string_view line) {
        const ShownItems shown = of(point);
        EXPECT_EQ(shown.record, rotation) << point;
        EXPECT_EQ(shown.items, (Lines{"Text BeginOrder GEPROL", "Boolean EndProlog 1", "Text BeginOrder GSCA",
                                      "Text BeginOrder GEPROL", "Boolean EndProlog 1"}));
        EXPECT_EQ(shown.text, std::string(line) + "GEPROL: End prolog\nGEPROL: End prolog\n");
    };
    expect("0000 0000", {"Text CharRotation Default"}, "Character Rotation: Default\n");
    expect("0000 0001", {"Int16 CharRotation 90"}, "Character Rotation: 90°\n");
    expect("0000 FFFF", {"Int16 CharRotation 270"}, "Character Rotation: 270°\n");
    expect("FFFB 0000", {"Int16 CharRotation 180"}, "Character Rotation: 180°\n");
    expect("0001 0000", {"Int16 CharRotation 0"}, "Character Rotation: 0°\n");
    expect("0001 0001", {}, "");
    expect("0001 FFFF", {}, "");
    expect("8000 0001", {}, "");
    expect("FFFF FFFF", {}, "");
}

TEST(GSMC, HasADefaultByItsFlag)
{
    ExpectEach({
        {"37 06 0000 0000 80 00",
         "Text BeginOrder GSMC\nInt32 MarkerCellWidth 16777215\n"
         "Int32 MarkerCellHeight 16777215 | GSMC: Marker cell width: Default, Marker cell height: Default"},
        {"37 06 0000 0005 80 00", "Text BeginOrder GSMC\nInt32 MarkerCellWidth 16777215\n"
                                  "Int32 MarkerCellHeight 5 | GSMC: Marker cell width: Default, Marker cell height: 5"},
        {"37 06 FFFF 0000 FF 00",
         "Text BeginOrder GSMC\nInt32 MarkerCellWidth -1\n"
         "Int32 MarkerCellHeight 16777215 | GSMC: Marker cell width: -1, Marker cell height: Default"},
        {"37 06 0000 0000 7F 00", "Text BeginOrder GSMC\nInt32 MarkerCellWidth 0\n"
                                  "Int32 MarkerCellHeight 0 | GSMC: Marker cell width: 0, Marker cell height: 0"},
        {"37 04 03E8 0000", "Text BeginOrder GSMC\nInt32 MarkerCellWidth 1000\n"
                            "Int32 MarkerCellHeight 0 | GSMC: Marker cell width: 1,000, Marker cell height: 0"},
        {"37 07 0000 0000 80 00 00", "Text BeginOrder GSMC\nInt32 MarkerCellWidth 0\n"
                                     "Int32 MarkerCellHeight 0 | GSMC: Marker cell width: 0, Marker cell height: 0"},
        {"37 05 0000 0000 80", "Text BeginOrder GSMC\nInt32 MarkerCellWidth 0\n"
                               "Int32 MarkerCellHeight 0 | GSMC: Marker cell width: 0, Marker cell height: 0"},
    });
}

TEST(GSAP, HasFourArcParameters)
{
    ExpectEach({
        {"22 08 0002 0003 0001 0004", "Text BeginOrder GSAP\nInt32 MajorX 2\nInt32 MinorY 3\nInt32 MinorX 1\n"
                                      "Int32 MajorY 4 | GSAP: P = 2, Q = 3, R = 1, S = 4, Direction: CCW"},
        {"22 08 0002 0003 0002 0003", "Text BeginOrder GSAP\nInt32 MajorX 2\nInt32 MinorY 3\nInt32 MinorX 2\n"
                                      "Int32 MajorY 3 | GSAP: P = 2, Q = 3, R = 2, S = 3, Direction: CW"},
        {"22 08 8000 7FFF 7FFF 7FFF",
         "Text BeginOrder GSAP\nInt32 MajorX -32768\nInt32 MinorY 32767\nInt32 MinorX 32767\n"
         "Int32 MajorY 32767 | GSAP: P = -32,768, Q = 32,767, R = 32,767, S = 32,767, Direction: CW"},
        {"22 08 8000 8000 8000 7FFF",
         "Text BeginOrder GSAP\nInt32 MajorX -32768\nInt32 MinorY -32768\nInt32 MinorX -32768\n"
         "Int32 MajorY 32767 | GSAP: P = -32,768, Q = -32,768, R = -32,768, S = 32,767, Direction: CCW"},
    });
}

TEST(GSPRP, IsADefaultByItsFlag)
{
    ExpectEach({
        {"A0 06 00 00 0005 FFF6", "Text BeginOrder GSPRP\nInt32 PatternRefPointX 5\n"
                                  "Int32 PatternRefPointY -10 | GSPRP: Pattern reference point X: 5, Y: -10"},
        {"A0 06 7F 00 0000 03E8", "Text BeginOrder GSPRP\nInt32 PatternRefPointX 0\n"
                                  "Int32 PatternRefPointY 1000 | GSPRP: Pattern reference point X: 0, Y: 1,000"},
        {"A0 06 80 00 0005 FFF6", "Text BeginOrder GSPRP\nInt16 PatternRefPointX 0\n"
                                  "Int16 PatternRefPointY 0 | GSPRP: Pattern reference point X: Default, Y: Default"},
        {"A0 06 00 00 0000 0000", "Text BeginOrder GSPRP\nInt32 PatternRefPointX 0\n"
                                  "Int32 PatternRefPointY 0 | GSPRP: Pattern reference point X: Default, Y: Default"},
    });
}

TEST(PatternOrders, HaveASetASymbolAndAWindow)
{
    // The line of the window stands at its bottom edge, in front of its top edge.
    ExpectItems("GAD", "DE 0C 00 FE 05 00 0001 0002 0003 0004",
                "Text BeginOrder GBCP\nByte CustomPatternSet 254\n"
                "Byte CustomPatternSymbol 5 | GBCP: Custom pattern set: 254, Symbol: 5\n"
                "Int32 CustomPatternWindowL 1\nInt32 CustomPatternWindowR 2\n"
                "Int32 CustomPatternWindowB 3 | GBCP: Left edge = 1, Top edge = 0, Right edge = 2, Bottom edge = 3\n"
                "Int32 CustomPatternWindowT 4");
    ExpectEach({
        {"DF 04 00 FF 05 00", "Text BeginOrder GDPT\nByte CustomPatternSet 255\n"
                              "Byte CustomPatternSymbol 5 | GDPT: Custom pattern set: 255, Symbol: 5"},
        {"DF 04 00 00 00 00", "Text BeginOrder GDPT\nByte CustomPatternSet 0\n"
                              "Byte CustomPatternSymbol 0 | GDPT: Custom pattern set: Default, Symbol: Default"},
        {"DF 02 00 FF", "Text BeginOrder GDPT\nByte CustomPatternSet 255"},
        {"DF 03 00 07 05", "Text BeginOrder GDPT\nByte CustomPatternSet 7"},
        {"DF 05 00 FF 05 00 00", "Text BeginOrder GDPT\nByte CustomPatternSet 255"},
    });
}

TEST(BeginSegment, HasFlagsAndASize)
{
    // The flags stand behind a length and four bytes of name, the size behind them.
    const auto of = [](std::string_view flags, std::string_view elements, std::string_view line) {
        ExpectItems("GAD", "70 0C 00000001 00 " + std::string(flags) + " 1000 00000000",
                    "Text BeginOrder Begin Segment\nBoolean BeginSegment 1\n" + std::string(elements) +
                        "Int32 SegmentSize 4096 | ¶<b>Begin segment</b>: " + std::string(line) + ", Size: 4,096 Bytes");
    };
    of("00", "Boolean ChainedSegment 1\nBoolean BeginProlog 0\nInt16 SegmentOrder 1\n",
       "Chained: Yes, Prolog: No, Segment order: New segment");
    of("80", "Boolean ChainedSegment 0\nBoolean BeginProlog 0\nInt16 SegmentOrder 1\n",
       "Chained: No, Prolog: No, Segment order: New segment");
    of("10", "Boolean ChainedSegment 1\nBoolean BeginProlog 1\nInt16 SegmentOrder 1\n",
       "Chained: Yes, Prolog: Yes, Segment order: New segment");
    of("06", "Boolean ChainedSegment 1\nBoolean BeginProlog 0\nInt16 SegmentOrder 2\n",
       "Chained: Yes, Prolog: No, Segment order: Append to last segment");
    of("F2", "Boolean ChainedSegment 0\nBoolean BeginProlog 1\nInt16 SegmentOrder 1\n",
       "Chained: No, Prolog: Yes, Segment order: New segment");
    of("F4", "Boolean ChainedSegment 0\nBoolean BeginProlog 1\nInt16 SegmentOrder 1\n",
       "Chained: No, Prolog: Yes, Segment order: New segment");
}

// Images and texts in a drawing
// -----------------------------------------------------------------------------------------------

TEST(ImageOrders, HaveASize)
{
    ExpectEach({
        {"91 06 00 00 0400 FFFF",
         "Text BeginOrder GCBIMG\nInt32 ImageWidth 1024\nInt32 ImageHeight 65535 | "
         "GCBIMG: (X=0, Y=0) Begin image: Image width: 1024 Pixel , Image height: 65535 Pixel"},
        {"D1 0A 1388 FFFF 00 00 0008 0009",
         "Text BeginOrder GBIMG\nInt32 GPSPosX 5000\n"
         "Int32 GPSPosY -1 | GBIMG: Cursor position X=5,000, Y=-1\n"
         "Int32 ImageWidth 8\nInt32 ImageHeight 9 | "
         "GBIMG: (X=5000, Y=-1) Begin image: Image width: 8 Pixel , Image height: 9 Pixel"},
    });
}

TEST(GIMD, HasBytes)
{
    ExpectItems("GAD", "92 03 01 A0 FF",
                "Text BeginOrder GIMD\nInt32 ImageData 3 | GIMD: No. of bytes with image data: 3\n"
                "Text HexCode 01 A0 FF");
    ExpectItems("GAD", "92 00",
                "Text BeginOrder GIMD\nInt32 ImageData 0 | GIMD: No. of bytes with image data: 0\nText HexCode ");
}

TEST(StringOrders, HaveText)
{
    ExpectEach({
        {"83 03 'abc'", "Text BeginOrder GCCHST\nText DrawString abc | GCCHST: (X=0, Y=0) Text: \"abc\""},
        {"C3 07 03E8 0002 'abc'",
         "Text BeginOrder GCHST\nInt32 GPSPosX 1000\nInt32 GPSPosY 2 | GCHST: Cursor position X=1,000, Y=2\n"
         "Text DrawString abc | GCHST: (X=1000, Y=2) Text: \"abc\""},
        {"C3 04 0001 0002 3E 00",
         "Text BeginOrder GCHST\nInt32 GPSPosX 1\nInt32 GPSPosY 2 | GCHST: Cursor position X=1, Y=2\n"
         "Text DrawString  | GCHST: (X=1, Y=2) Text: \"\"\n"
         "Text BeginOrder GEPROL\nBoolean EndProlog 1 | GEPROL: End prolog"},
    });
}

// Process colours: the rest is tested with the sequence of the same layout
// -------------------------------------------------------------------------

TEST(GSPCOL, IsLaidOutAsInATextsSequence)
{
    ExpectItems("GAD", "B2 0D 00 01 00*4 08 04 01 00 FF 03 00",
                "Text BeginOrder GSPCOL\n"
                "Byte ColorSpace 1 | GSPCOL: Color Space: RGB\n"
                "Byte RedBits 8\n"
                "Float64 Steps 256 | GSPCOL: No. of bits which represent the color Red: 8 (256 Steps)\n"
                "Byte GreenBits 4\n"
                "Float64 Steps 16 | GSPCOL: No. of bits which represent the color Green: 4 (16 Steps)\n"
                "Byte BlueBits 1\n"
                "Float64 Steps 2 | GSPCOL: No. of bits which represent the color Blue: 1 (2 Steps)\n"
                "Byte IntensityRed 255\n"
                "Int16 Intensity 100 | GSPCOL: Intensity of color Red: 255 (100% Saturation)\n"
                "Byte IntensityGreen 3\n"
                "Int16 Intensity 20 | GSPCOL: Intensity of color Green: 3 (20% Saturation)\n"
                "Byte IntensityBlue 0\n"
                "Int16 Intensity 0 | GSPCOL: Saturation: 0%");
    ExpectItems("GAD", "B2 0E 00 06 00*4 00 08 00 00 0007 32 19",
                "Text BeginOrder GSPCOL\nByte ColorSpace 6 | GSPCOL: Color Space: Highlight Color\n"
                "Int32 HighlightColor 7 | GSPCOL: Highlight color index: 7\n"
                "Byte Intensity 50 | GSPCOL: Saturation: 50%\n"
                "Int16 Shading 0 | GSPCOL: Shading: 0%");
    ExpectItems("GAD", "B2 0C 00 40 00*4 00*4 FF02",
                "Text BeginOrder GSPCOL\nByte ColorSpace 64 | GSPCOL: Color Space: Standard OCA\n"
                "Int32 Color 65282 | GSPCOL: Color: Red");
    EXPECT_EQ(KeysOf(ShowItems("GAD", Pieces("B2 0D 00 08 00*4 08 08 08 00 FF 03 00"))),
              "ColorSpace LumBits Steps ChromABits Steps ChromBBits Steps Luminance EqualsColorValue ChrominanceA "
              "EqualsColorValue ChrominanceB EqualsColorValue");
    EXPECT_EQ(KeysOf(ShowItems("GAD", Pieces("B2 0E 00 04 00*4 08 08 08 00 FF 03 00 01"))),
              "ColorSpace CyanBits Steps MagentaBits Steps YellowBits Steps BlackBits Steps IntensityCyan Intensity "
              "IntensityMagenta Intensity IntensityYellow Intensity IntensityBlack");
}

}  // namespace
}  // namespace folioscope
