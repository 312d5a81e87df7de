// Fields that carry the data of an object, and images of the older format.

#include "analysis/decode/fields_object_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

void ExpectRecord(std::string_view field, std::string_view pieces, std::string_view expected)
{
    const Shown shown = ShowRecord({field, Pieces(pieces)});
    ExpectShown(shown.typed, shown.text, expected);
    EXPECT_EQ(shown.heard, Lines{}) << field;
}

// Data
// ---------------------------------------------------------------------------------------------------------------------

TEST(OCD, OfAPlainObjectShowsItsBytesInTheHexPaneOnly)
{
    ExpectRecord("OCD", "01 A0 FF", "Int32 ObjectData 3 | No. of bytes with object data: 3\nText HexCode 01 A0 FF");
    ExpectRecord("OCD", "", "Int32 ObjectData 0 | No. of bytes with object data: 0\nText HexCode ");
    const Shown large = ShowRecord({"OCD", Bytes(5'000, 'x')});
    EXPECT_EQ(large.text, "No. of bytes with object data: 5,000\n");
    EXPECT_TRUE(ValuesOf(large, "HexCode").at(0).ends_with("..."));
}

// A Begin field of a container, whose class is the last byte of its registered identifier, and two fields of data.
AfpFile Container(std::string_view entry)
{
    return AfpFile()
        .Add("BOC",
             Ebcdic8("OBJECT") + TripletOf("10 00 01 0000 90 00 06072B1200040101" + std::string(entry) + " 00*7"))
        .Add("OCD", Pieces("01 02 03"))
        .Add("OCD", Pieces("04 05"));
}

TEST(OCD, OfAManagedObjectIsGathered)
{
    for (const std::string_view entry : {"39", "43"}) {  // a colour management resource, a metadata object
        FamilyWalk walk(Container(entry));
        walk.walk.afp.ObjectBuffer = {9, 9};
        walk.Next();
        EXPECT_EQ(walk.walk.afp.ObjectBuffer, std::vector<std::uint8_t>{}) << entry;
        const Shown first = walk.Next();
        EXPECT_EQ(first.typed, Lines{"Int32 ObjectData 3"}) << entry;
        EXPECT_EQ(first.text, "No. of bytes with object data: 3\n");
        EXPECT_EQ(walk.walk.afp.ObjectBuffer, (std::vector<std::uint8_t>{1, 2, 3}));
        walk.Next();
        EXPECT_EQ(walk.walk.afp.ObjectBuffer, (std::vector<std::uint8_t>{1, 2, 3, 4, 5}));
    }
}

TEST(OCD, OfAnotherObjectIsNotGathered)
{
    FamilyWalk walk(Container("17"));
    const Shown last = walk.Last(3);
    EXPECT_EQ(last.typed, (Lines{"Int32 ObjectData 2", "Text HexCode 04 05"}));
    EXPECT_TRUE(walk.walk.afp.ObjectBuffer.empty());
}

TEST(IRD, IsCounted)
{
    ExpectRecord("IRD", "01 A0", "Int32 ImageData 2 | No. of bytes with image data: 2\nText HexCode 01 A0");
    EXPECT_EQ(ShowRecord({"IRD", Zeros(1'234)}).text, "No. of bytes with image data: 1,234\n");
}

TEST(FNG, IsCounted)
{
    ExpectRecord("FNG", "01 A0", "Int32 FontData 2 | No. of bytes with font pattern data: 2\nText HexCode 01 A0");
    EXPECT_EQ(ShowRecord({"FNG", Zeros(1'234)}).text, "No. of bytes with font pattern data: 1,234\n");
}

TEST(FDX, IsText)
{
    ExpectRecord("FDX", "'Fixed'", "Text FixedDataText Fixed | Constant data: \"Fixed\"\nText HexCode C6 89 A7 85 84");
    InputPages pages;
    pages.lngInputCP = 1252;
    EXPECT_EQ(ShowRecord({"FDX", "Fixed"}, pages).text, "Constant data: \"Fixed\"\n");
    // Two zero bytes stand for no text.
    EXPECT_EQ(ShowRecord({"FDX", Zeros(4)}).text, "Constant data: \"\"\n");
}

TEST(DataOfPaddedFields, EndInFrontOfThePadding)
{
    const Shown shown = ShowRecord({"IRD", Pieces("01 02 03 00 02"), 0x08});
    EXPECT_EQ(ValuesOf(shown, "ImageData"), Lines{"3"});
    EXPECT_EQ(ValuesOf(shown, "HexCode"), Lines{"01 02 03"});
}

// Images of the older format
// --------------------------------------------------------------------------------------------------

TEST(IID, DescribesAnImage)
{
    ExpectRecord("IID", "00*12 00 01 0960 0BB8 0400 0000 00*6 0000 03E8 00*2 FF01",
                 "Byte UnitBaseX 0 | Base unit X axis: 10 Inch\n"
                 "Byte UnitBaseY 1 | Base unit Y axis: 10 Centimeter\n"
                 "Int32 BasePixelX 2400 | Image points per unit base X axis: 2,400   (240 DPI)\n"
                 "Int32 BasePixelY 3000 | Image points per unit base Y axis: 3,000   (300 DPI)\n"
                 "Int32 ObjectSizeX 1024 | Size in X direction: 1,024   (4.2667 Inch)\n"
                 "Int32 ObjectSizeY 0 | Size in Y direction: Not specified\n"
                 "Int32 DefCellSizeX 0 | Default image cell size in X direction: No image cell\n"
                 "Int32 DefCellSizeY 1000 | Default image cell size in Y direction: 1,000\n"
                 "Int32 Color 65281 | Color: Blue");
}

TEST(IID, ThatIsCutReadsWhatLiesBehind)
{
    const Shown shown = ShowRecord({"IID", Pieces("00*12 05")});
    EXPECT_EQ(shown.typed.front(), "Byte UnitBaseX 5");
    EXPECT_EQ(shown.typed.back(), "Int32 Color 0");
    EXPECT_EQ(shown.heard, (Lines{"Message Base unit X axis: Unknown (5)", "Invalid"}));
}

TEST(IOC, PlacesAnImage)
{
    ExpectRecord("IOC", "0005A0 000B40 2D00 FFFF 00*8 03E8 07D0",
                 "Int32 OriginX 1440 | Origin X axis: 1,440   (1 Inch)\n"
                 "Int32 OriginY 2880 | Origin Y axis: 2,880   (2 Inch)\n"
                 "Int32 RotationX 11520 | Rotation X axis (clockwise): 90°\n"
                 "Int32 RotationY 65535 | Rotation Y axis (clockwise): Default\n"
                 "Int32 MapX 1000 | Mapping in X direction: 1,000\n"
                 "Int32 MapY 2000 | Mapping in Y direction: 2,000");
}

TEST(ICP, PlacesACell)
{
    ExpectRecord("ICP", "03E8 FFFF 0000 FFFF 03E8 07D0",
                 "Int32 OffsetX 1000 | Offset in X direction: 1,000\n"
                 "Int32 OffsetY 65535 | Offset in Y direction: 65,535\n"
                 "Int32 CellSizeX 0 | Image cell size in X direction: No image cell\n"
                 "Int32 CellSizeY 65535 | Image cell size in Y direction: Default\n"
                 "Int32 FillRectangleX 1000 | Size of fill rectangle in X direction: 1,000\n"
                 "Int32 FillRectangleY 2000 | Size of fill rectangle in Y direction: 2,000");
}

TEST(IDD, HasOneUnitBaseForBothAxes)
{
    ExpectRecord("IDD", "01 0960 0BB8 0400 FFFF",
                 "Byte UnitBaseX 1 | Base unit X axis: 10 Centimeter\n"
                 "Byte UnitBaseY 1 | Base unit Y axis: 10 Centimeter\n"
                 "Int32 BasePixelX 2400 | Image points per unit base X axis: 2,400   (240 DPI)\n"
                 "Int32 BasePixelY 3000 | Image points per unit base Y axis: 3,000   (300 DPI)\n"
                 "Int32 ObjectSizeX 1024 | Size in X direction: 1,024   (4.2667 Inch)\n"
                 "Int32 ObjectSizeY 65535 | Size in Y direction: Default");
}

// Color Attribute Table
// --------------------------------------------------------------------------------------------------------

TEST(CAT, ListsColours)
{
    ExpectRecord("CAT", "40 00 05 16 01 00 02 01 00*3 08 04 08 00 0001 FF 03 80 0102 00 00 00",
                 "Boolean ResetColorTable 1 | Replace existing color table: Yes\n"
                 "Byte LCTID 5 | color table local ID: 5\n"
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 22\n"
                 "Byte Type 1 | →Type: Element list\n"
                 "Byte ColorSpace 1 | →Color Space: RGB Color\n"
                 "Byte RedBits 8\n"
                 "Float64 Steps 256.000000 | →No. of bits which represent the color Red: 8 (256 Steps)\n"
                 "Byte GreenBits 4\n"
                 "Float64 Steps 16.000000 | →No. of bits which represent the color Green: 4 (16 Steps)\n"
                 "Byte BlueBits 8\n"
                 "Float64 Steps 256.000000 | →No. of bits which represent the color Blue: 8 (256 Steps)\n"
                 "Int16 BeginColor 1 | ¶→Entry 1\n"
                 "Int32 ColorIndex 1 | →→Color index: 1\n"
                 "Byte IntensityRed 255\n"
                 "Int16 Intensity 100 | →→Intensity of color Red: 255 (100% Saturation)\n"
                 "Byte IntensityGreen 3\n"
                 "Int16 Intensity 20 | →→Intensity of color Green: 3 (20% Saturation)\n"
                 "Byte IntensityBlue 128\n"
                 "Int16 Intensity 50 | →→Intensity of color Blue: 128 (50% Saturation)\n"
                 "Int16 EndColor 1\n"
                 "Int16 BeginColor 2 | ¶→Entry 2\n"
                 "Int32 ColorIndex 258 | →→Color index: 258\n"
                 "Byte IntensityRed 0\n"
                 "Int16 Intensity 0 | →→Saturation: 0%\n"
                 "Byte IntensityGreen 0\n"
                 "Int16 Intensity 0 | →→Saturation: 0%\n"
                 "Byte IntensityBlue 0\n"
                 "Int16 Intensity 0 | →→Saturation: 0%\n"
                 "Int16 EndColor 2\n"
                 "Int16 EndRepetition 1");
}

TEST(CAT, HasIndexesOfTwoOrThreeBytes)
{
    for (const auto& [size, index] : {std::pair{"02", "1"}, {"03", "258"}, {"00", "258"}, {"04", "258"}}) {
        const Shown shown = ShowRecord(
            {"CAT", Pieces("00 00 00 12 01 00 " + std::string(size) + " 01 00*3 08 08 08 00 0001 02 FF 80 00")});
        EXPECT_EQ(ValuesOf(shown, "ColorIndex").at(0), index) << size;
    }
}

TEST(CAT, GeneratesColours)
{
    ExpectRecord("CAT", "BF 00 FF 0D 02 80 00 01 00 03E8 0007 08 04 01",
                 "Boolean ResetColorTable 0 | Replace existing color table: No\n"
                 "Byte LCTID 255 | color table local ID: 255\n"
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 13\n"
                 "Byte Type 2 | →Type: Generator\n"
                 "Boolean ColorMixing 1 | →Color mixing: Subtractive\n"
                 "Byte ColorSpace 1 | →Color Space: RGB Color\n"
                 "Int32 ColorCount 1000 | →Color values to generate: 1,000\n"
                 "Int32 StartIndex 7 | →Start index: 7\n"
                 "Byte RedBits 8\n"
                 "Float64 Steps 256.000000 | →No. of bits which represent the color Red: 8 (256 Steps)\n"
                 "Byte GreenBits 4\n"
                 "Float64 Steps 16.000000 | →No. of bits which represent the color Green: 4 (16 Steps)\n"
                 "Byte BlueBits 1\n"
                 "Float64 Steps 2.000000 | →No. of bits which represent the color Blue: 1 (2 Steps)\n"
                 "Int16 EndRepetition 1");
}

TEST(CAT, HasGroupsByTheirOwnLength)
{
    const auto lengths = [](std::string_view pieces) {
        return ValuesOf(ShowRecord({"CAT", Pieces(pieces)}), "Length");
    };
    EXPECT_EQ(lengths("00 00 00"), Lines{});
    EXPECT_EQ(lengths("00 00 00 05"), Lines{});  // a last byte stays unread
    EXPECT_EQ(lengths("00 00 00 03 09 00 02 09"), (Lines{"3", "2"}));
    EXPECT_EQ(lengths("00 00 00 00 09 00 02 09"), Lines{"0"});
    EXPECT_EQ(lengths("00 00 00 01 01 01"), (Lines{"1", "1"}));
    const Shown other = ShowRecord({"CAT", Pieces("00 00 00 03 09 00")});
    EXPECT_EQ(ValuesOf(other, "Type"), Lines{"9"});
    EXPECT_EQ(other.elements.size(), 6u);
}

TEST(CAT, ClosesAColourWithoutARange)
{
    // The rest of the group is gone with it, and the group behind it is read.
    const Shown shown =
        ShowRecord({"CAT", Pieces("00 00 00 16 01 00 02 01 00*3 00 08 08 00 0001 FF 03 80 0102 00 00 00 02 09")});
    EXPECT_EQ(ValuesOf(shown, "EndColor"), Lines{"1"});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), (Lines{"1", "2"}));
    EXPECT_FALSE(Has(shown, "IntensityGreen"));
    EXPECT_EQ(shown.heard, (Lines{"Message Type: Unknown (9)", "Invalid"}));  // of the second group alone
}

TEST(CAT, OfTheLargestGroupEnds)
{
    const Shown shown = ShowRecord({"CAT", Pieces("00 00 00 FF 01 00 02 01 00*3 08 08 08 00") + Zeros(243)});
    // 243 bytes of five bytes each; the last reads past the group.
    EXPECT_EQ(ValuesOf(shown, "BeginColor").size(), 49u);
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"});
}

}  // namespace
}  // namespace folioscope
