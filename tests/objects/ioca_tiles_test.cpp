// Tiles of images: where they lie, their table, and their colours.

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
    for (const auto& [pieces, expected] : cases) ExpectItems("IPD", pieces, expected);
}

// Without those of the field that the bytes behind make.
std::string KeysOfFirst(const ShownItems& shown)
{
    const std::string all = KeysOf(shown);
    return all.substr(0, std::min(all.find(" BeginSDF"), all.find(" SDFUnknown")));
}

TEST(Tiling, ReadsTheCountsAndShowsNone)
{
    ExpectItems("IPD", "9D 09 0100 0400 0003 0004 00",
                "Text BeginSDF Tiling Method Parameter\n"
                "Int32 CellSizeX 256\n"
                "Int32 CellSizeY 1024 | Tiling Method Parameter: Image cell size in X direction: 256, "
                "Image cell size in Y direction: 1,024\n"
                "Int32 TileCountX 3\nInt32 TileCountX 4\n"
                "Boolean TileOrder 0 | Tiling Method Parameter: Tile order: Left-to-Right, Up-to-Down");
    const ShownItems other = ShowItems("IPD", Pieces("9D 09 0100 0400 0003 0004 80"));
    EXPECT_TRUE(other.text.ends_with("Tiling Method Parameter: Tile order: Down-to-Up, Left-to-Right\n"));
}

TEST(Tiling, HasOffsetsAndSizesAsFarAsItIsLong)
{
    const auto keys = [](int length) {
        const Bytes data = Pieces("0100 0100 0003 0004 00") + U4(1) + U4(2) + U4(3) + U4(4000);
        const std::string all = KeysOfFirst(ShowItems("IPD", Pieces("9D") + Raw({length}) + data));
        constexpr std::string_view kHead = "CellSizeX CellSizeY TileCountX TileCountX TileOrder";
        EXPECT_TRUE(all.starts_with(kHead)) << all;
        return all.substr(std::min(all.size(), kHead.size() + 1));
    };
    EXPECT_EQ(keys(25), "OffsetX OffsetY ImageWidth ImageHeight");
    EXPECT_EQ(keys(22), "OffsetX OffsetY ImageWidth ImageHeight");
    const auto has = [&](int length, std::string_view key) { return keys(length).find(key) != std::string::npos; };
    EXPECT_TRUE(has(10, "OffsetX"));
    EXPECT_FALSE(has(13, "OffsetY"));
    EXPECT_TRUE(has(14, "OffsetY"));
    EXPECT_FALSE(has(17, "ImageWidth"));
    EXPECT_TRUE(has(18, "ImageWidth"));
    EXPECT_FALSE(has(21, "ImageHeight"));
    const ShownItems whole =
        ShowItems("IPD", Pieces("9D 19 0100 0100 0003 0004 00") + U4(1) + U4(2000) + U4(3) + U4(4000000));
    EXPECT_TRUE(whole.text.ends_with("Tiling Method Parameter: Offset in X direction: 1\n"
                                     "Tiling Method Parameter: Offset in Y direction: 2,000\n"
                                     "Tiling Method Parameter: Image width: 3\n"
                                     "Tiling Method Parameter: Image height: 4,000,000\n"))
        << whole.text;
    EXPECT_FALSE(ShowItems("IPD", Pieces("9D 09 0100 0100 0003 0004 00")).text.find("Offset") != std::string::npos);
}

TEST(Tiles, HaveAPositionAndASize)
{
    ExpectEach({
        {"B5 08 00001000 FFFFFFFF",
         "Text BeginSDF Tile Position\nInt32 OffsetX 4096 | Tile Position: Offset in X direction: 4,096\n"
         "Int32 OffsetY 2147483647 | Tile Position: Offset in Y direction: 2,147,483,647"},
        {"B6 08 00001000 00000001",
         "Text BeginSDF Tile Size\nInt32 CellSizeX 4096\nInt32 CellSizeY 1 | "
         "Tile Size: Image cell size in X direction: 4,096, Image cell size in Y direction: 1"},
        {"B6 09 00000000 00000001 01",
         "Text BeginSDF Tile Size\nInt32 CellSizeX 0\nInt32 CellSizeY 1 | "
         "Tile Size: Image cell size in X direction: 0, Image cell size in Y direction: 1\n"
         "Byte RelRes 1 | Tile Size: Tile resolution: Equals image resolution"},
        {"FEB8 0004 00000005", "Text BeginSDF Include Tile\nInt32 TileID 5 | Include Tile: Tile Resource local ID: 5"},
        {"FEB8 0004 FFFFFFFF",
         "Text BeginSDF Include Tile\nInt32 TileID 2147483647 | Include Tile: Tile Resource local ID: 2147483647"},
    });
}

constexpr std::string_view kEntry = "00000001 00000002 00000003 00000004 01 03 ";

std::string EntryLines(std::string_view number, std::string_view position)
{
    const std::string name = "Tile TOC: ";
    return "Int32 TileNo " + std::string(number) + " | " + name + "Tile:" + std::string(number) + '\n' +
           "Int32 OffsetX 1 | " + name + "Offset in X direction: 1\n" + "Int32 OffsetY 2 | " + name +
           "Offset in Y direction: 2\n" + "Int32 CellSizeX 3\nInt32 CellSizeY 4 | " + name +
           "Image cell size in X direction: 3, Image cell size in Y direction: 4\n" + "Byte RelRes 1 | " + name +
           "Tile resolution: Equals image resolution\n" + "Byte Compression 3 | " + name +
           "Compression algorithm: No Compression\n" + "Text DataPos " + std::string(position) + " | " + name +
           "Offset of image data: x'" + std::string(position) + "'";
}

TEST(TileTable, ShowsEachEntryWithThePositionOfTheNext)
{
    const std::string entry(kEntry);
    ExpectItems("IPD", "FEBB 0036 0000 " + entry + "11*8 " + entry + "22*8 FE55 0018 31*24",
                "Text BeginSDF Tile TOC\n" + EntryLines("1", "22 22 22 22 22 22 22 22") + '\n' +
                    EntryLines("2", "31 31 31 31 31 31 31 31"));
}

TEST(TileTable, WithoutEntriesHasItsNameAlone)
{
    for (const std::string_view pieces : {"FEBB 0000", "FEBB 0002 0000"})
        ExpectItems("IPD", pieces, "Text BeginSDF Tile TOC\nInt32 TileNo 0 | Tile TOC");
    // An entry that begins inside of the length is read whole.
    for (int length = 0; length < 70; ++length) {
        const ShownItems shown = ShowItems("IPD", Pieces("FEBB") + U2(static_cast<unsigned>(length)) + Zeros(100));
        const std::size_t entries = length < 6 ? 0 : (static_cast<std::size_t>(length) - 6) / 26 + 1;
        EXPECT_EQ(ValuesOf(shown, "DataPos").size(), entries) << length;
    }
}

TEST(TileColor, HasValuesOfTwoBytes)
{
    // A0 space, A4 to A7 bits, A8 on values.
    ExpectItems("IPD", "B7 0E 01 00*3 10 08 10 00 FFFF 00FF 8000",
                "Text BeginSDF Tile Set Color\n"
                "Byte ColorSpace 1 | Tile Set Color: Color Space: RGB\n"
                "Byte RedBits 16\n"
                "Float64 Steps 65536 | Tile Set Color: No. of bits which represent the color Red: 16 (65536 Steps)\n"
                "Byte GreenBits 8\n"
                "Float64 Steps 256 | Tile Set Color: No. of bits which represent the color Green: 8 (256 Steps)\n"
                "Byte BlueBits 16\n"
                "Float64 Steps 65536 | Tile Set Color: No. of bits which represent the color Blue: 16 (65536 Steps)\n"
                "Int32 IntensityRed 65535\n"
                "Int16 Intensity 100 | Tile Set Color: Intensity of color Red: 65535 (100% Saturation)\n"
                "Int32 IntensityGreen 255\n"
                "Int16 Intensity 0 | Tile Set Color: Intensity of color Green: 255\n"  // of its first byte alone
                "Int32 IntensityBlue 32768\n"
                "Int16 Intensity 50 | Tile Set Color: Intensity of color Blue: 32768 (50% Saturation)");
    const ShownItems green = ShowItems("IPD", Pieces("B7 0E 01 00*3 10 08 10 00 FFFF 8012 8000"));
    EXPECT_EQ(ValuesOf(green, "IntensityGreen"), Lines{"32786"});
    EXPECT_EQ(ValuesOf(green, "Intensity"), (Lines{"100", "50", "50"}));
}

TEST(TileColor, KnowsTheOtherSpaces)
{
    const auto keys = [](std::string_view pieces) { return KeysOf(ShowItems("IPD", Pieces(pieces))); };
    EXPECT_EQ(keys("B7 10 04 00*3 10 10 10 10 FFFF 00FF 8000 0001"),
              "ColorSpace CyanBits Steps MagentaBits Steps YellowBits Steps BlackBits Steps IntensityCyan Intensity "
              "IntensityMagenta Intensity IntensityYellow Intensity IntensityBlack Intensity");
    ExpectItems("IPD", "B7 0E 08 00*3 10 10 08 00 8000 8001 FF81",
                "Text BeginSDF Tile Set Color\n"
                "Byte ColorSpace 8 | Tile Set Color: Color Space: CieLab\n"
                "Byte LumBits 16\n"
                "Float64 Steps 65536 | Tile Set Color: No. of bits which represent the Luminance L*: 16 (65536 Steps)\n"
                "Byte ChromABits 16\n"
                "Float64 Steps 65536 | "
                "Tile Set Color: No. of bits which represent the Chrominance a*: 16 (65536 Steps)\n"
                "Byte ChromBBits 8\n"
                "Float64 Steps 256 | Tile Set Color: No. of bits which represent the Chrominance b*: 8 (256 Steps)\n"
                "Int32 Luminance 32768\n"
                "Int16 EqualsColorValue 50 | Tile Set Color: Luminance L*: 32768 (equals value in Color Space: 50)\n"
                "Int32 ChrominanceA -32767\n"
                "Int16 EqualsColorValue -100 | "
                "Tile Set Color: Chrominance a*: -32767 (equals value in Color Space: -100)\n"
                "Int32 ChrominanceB -127\n"
                "Int16 EqualsColorValue -100 | "
                "Tile Set Color: Chrominance b*: -127 (equals value in Color Space: -100)");
    ExpectItems("IPD", "B7 0A 40 00*3 00*4 FF02",
                "Text BeginSDF Tile Set Color\nByte ColorSpace 64 | Tile Set Color: Color Space: Standard\n"
                "Int32 Color 65282 | Tile Set Color: Color: Red");
}

TEST(TileColor, TakesTheCoverageOfAHighlightByItsBits)
{
    const auto of = [](std::string_view bits, std::string_view expected) {
        ExpectItems("IPD", "B7 0C 06 00*3 " + std::string(bits) + " 0007 32 19",
                    "Text BeginSDF Tile Set Color\nByte ColorSpace 6 | Tile Set Color: Color Space: Highlight Color\n"
                    "Int32 HighlightColor 7 | Tile Set Color: Highlight color index: 7\n" +
                        std::string(expected));
    };
    of("10 00 00 00", "Int16 Intensity 100 | Tile Set Color: Saturation: 100%\n"
                      "Int16 Shading 0 | Tile Set Color: Shading: 0%");
    of("10 08 00 00", "Byte Intensity 50 | Tile Set Color: Saturation: 50%\n"
                      "Int16 Shading 0 | Tile Set Color: Shading: 0%");
    of("10 00 08 00", "Int16 Intensity 100 | Tile Set Color: Saturation: 100%\n"
                      "Byte Shading 25 | Tile Set Color: Shading: 25%");
}

TEST(TileColor, StopsAtAColourWithoutARange)
{
    const auto keys = [](std::string_view pieces) {
        const ShownItems shown = ShowItems("IPD", Pieces(std::string(pieces) + " 71 00"));
        EXPECT_EQ(shown.items.back(), "Boolean EndSegment 1");
        return KeysOfFirst(shown);
    };
    const std::string rgb = "ColorSpace RedBits Steps GreenBits Steps BlueBits Steps";
    EXPECT_EQ(keys("B7 0E 01 00*3 00 08 10 00 FFFF 00FF 8000"), rgb + " IntensityRed");
    // 65,535 of one bit are more percent than a short number holds.
    EXPECT_EQ(keys("B7 0E 01 00*3 01 08 10 00 FFFF 00FF 8000"), rgb + " IntensityRed");
    const std::string lab = "ColorSpace LumBits Steps ChromABits Steps ChromBBits Steps";
    EXPECT_EQ(keys("B7 0E 08 00*3 10 01 10 00 FFFF 00FF 8000"), lab + " Luminance EqualsColorValue ChrominanceA");
}

TEST(ExtendedBilevelColor, IsLaidOutAsInATextsSequence)
{
    ExpectItems("IPD", "F4 0E 00 06 00*4 00 08 00 00 0007 32 19",
                "Text BeginSDF Set Extended Bilevel Image Color\n"
                "Byte ColorSpace 6 | Set Extended Bilevel Image Color: Color Space: Highlight Color\n"
                "Int32 HighlightColor 7 | Set Extended Bilevel Image Color: Highlight color index: 7\n"
                "Byte Intensity 50 | Set Extended Bilevel Image Color: Saturation: 50%\n"
                "Int16 Shading 0 | Set Extended Bilevel Image Color: Shading: 0%");
    const ShownItems rgb = ShowItems("IPD", Pieces("F4 0D 00 01 00*4 08 08 08 00 FF 80 00"));
    EXPECT_EQ(rgb.items[8], "Byte IntensityRed 255");
    EXPECT_EQ(ValuesOf(rgb, "Intensity"), (Lines{"100", "50", "0"}));
}

}  // namespace
}  // namespace folioscope
