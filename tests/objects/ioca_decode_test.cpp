// Images: what each self-defining field holds. How the fields hang together is tested in items_test.cpp.

#include "objects/ioca_decode.h"

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

TEST(ImageSegment, HasANumberIfItHasBytes)
{
    ExpectEach({
        {"70 00", "Text BeginSDF Begin Segment\nInt16 BeginSegment 0 | Begin Segment: Begin segment"},
        {"70 04 00000007", "Text BeginSDF Begin Segment\nInt32 BeginSegment 7 | Begin Segment: Begin segment 7"},
        {"70 04 00000000", "Text BeginSDF Begin Segment\nInt32 BeginSegment 0 | Begin Segment: Begin segment"},
        {"70 04 FFFFFFFF",
         "Text BeginSDF Begin Segment\nInt32 BeginSegment 2147483647 | Begin Segment: Begin segment 2147483647"},
    });
}

TEST(MarkFields, HaveALineEach)
{
    ExpectEach({
        {"71 00", "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment"},
        {"8C 00", "Text BeginSDF Begin Tile\nBoolean BeginTile 1 | Begin Tile: Begin Tile"},
        {"8D 00", "Text BeginSDF End Tile\nBoolean EndTile 1 | End Tile: End Tile"},
        {"8E 00", "Text BeginSDF Begin Transparency Mask\nBoolean BeginTransparency 1 | "
                  "Begin Transparency Mask: Begin transparency mask"},
        {"8F 00", "Text BeginSDF End Transparency Mask\nBoolean EndTransparency 1 | "
                  "End Transparency Mask: End transparency mask"},
        {"91 01 FF", "Text BeginSDF Begin Image Content\nBoolean BeginImgContent 1 | "
                     "Begin Image Content: Begin image content"},
        {"93 00", "Text BeginSDF End Image Content\nBoolean EndImgContent 1 | End Image Content: End image content"},
    });
}

TEST(ImageSize, HasPixelsAndABase)
{
    ExpectEach({
        {"94 09 00 0960 0BB8 0400 0001",
         "Text BeginSDF Image Size Parameter\n"
         "Byte UnitBase 0 | Image Size Parameter: Unit Base: 10 Inch\n"
         "Int32 BasePixelX 2400\n"
         "Int32 BasePixelY 3000 | Image Size Parameter: Image points per unit base X axis: 2,400, "
         "Image points per unit base Y axis: 3,000\n"
         "Int32 ObjectSizeX 1024\n"
         "Int32 ObjectSizeY 1 | Image Size Parameter: Size in X direction: 1,024, Size in Y direction: 1"},
        {"94 09 01 0000 FFFF 0000 0000",
         "Text BeginSDF Image Size Parameter\n"
         "Byte UnitBase 1 | Image Size Parameter: Unit Base: 10 Centimeter\n"
         "Int32 BasePixelX 0\n"
         "Int32 BasePixelY 65535 | Image Size Parameter: Image points per unit base X axis: 0, "
         "Image points per unit base Y axis: 65,535\n"
         "Int32 ObjectSizeX 0\n"
         "Int32 ObjectSizeY 0 | Image Size Parameter: Size in X direction: From image data, "
         "Size in Y direction: From image data"},
        {"94 09 02 0001 0001 FFFF 0000",
         "Text BeginSDF Image Size Parameter\n"
         "Byte UnitBase 2 | Image Size Parameter: Unit Base: Relative\n"
         "Int32 BasePixelX 1\n"
         "Int32 BasePixelY 1 | Image Size Parameter: Image points per unit base X axis: 1, "
         "Image points per unit base Y axis: 1\n"
         "Int32 ObjectSizeX 65535\n"
         "Int32 ObjectSizeY 0 | Image Size Parameter: Size in X direction: 65,535, "
         "Size in Y direction: From image data"},
    });
}

TEST(ImageEncoding, HasABitOrderIfItIsThreeLong)
{
    constexpr std::string_view kBoth = "Text BeginSDF Image Encoding Parameter\n"
                                       "Byte Compression 3 | Image Encoding Parameter: Compression algorithm: "
                                       "No Compression\n"
                                       "Byte Recording 1 | Image Encoding Parameter: Recording algorithm: RIDIC";
    const std::string both(kBoth);
    ExpectItems("IPD", "95 02 03 01", both);
    ExpectItems("IPD", "95 03 03 01 00",
                both + "\nByte Bitorder 0 | Image Encoding Parameter: Bit order: Left to right");
    ExpectItems("IPD", "95 03 03 01 01",
                both + "\nByte Bitorder 1 | Image Encoding Parameter: Bit order: Right to left");
    ExpectItems("IPD", "95 03 03 01 FF",
                both + "\nByte Bitorder 255 | Image Encoding Parameter: Bit order: Right to left");
    ExpectItems("IPD", "95 04 03 01 01 00", both);
}

TEST(SmallFields, HaveOneByte)
{
    ExpectEach({
        {"96 01 08",
         "Text BeginSDF IDE Size Parameter\nByte IDEBits 8 | IDE Size Parameter: No. of data bits per image point: 8"},
        {"97 01 00", "Text BeginSDF Image LUT-ID Parameter\nByte LUTID 0 | "
                     "Image LUT-ID Parameter: Color look-up table: Default"},
        {"97 01 FF",
         "Text BeginSDF Image LUT-ID Parameter\nByte LUTID 255 | Image LUT-ID Parameter: Color look-up table: 255"},
        {"F7 02 01 0B", "Text BeginSDF IOCA Function Set Identification\nByte FunctionSet 11 | "
                        "IOCA Function Set Identification: Function set: 11"},
        {"F6 04 0000 FF01", "Text BeginSDF Set Bilevel Image Color\nInt32 ForegroundColor 65281 | "
                            "Set Bilevel Image Color: Foreground Color: Blue"},
        {"F6 04 0000 1234", "Text BeginSDF Set Bilevel Image Color\nInt32 ForegroundColor 4660 | "
                            "Set Bilevel Image Color: Foreground Color: "},
    });
}

TEST(Bands, HaveABitCountEach)
{
    ExpectItems("IPD", "98 03 02 08 04",
                "Text BeginSDF Band Image Parameter\n"
                "Int32 BandNo 1\nByte BitCount 8 | Band Image Parameter: Band: 1, Bit count: 8\n"
                "Int32 BandNo 2\nByte BitCount 4 | Band Image Parameter: Band: 2, Bit count: 4");
    ExpectItems("IPD", "98 01 00", "Text BeginSDF Band Image Parameter");
    // Their number isn't held against the length.
    const ShownItems shown = ShowItems("IPD", Pieces("98 01 FF"));
    EXPECT_EQ(ValuesOf(shown, "BitCount").size(), 255u);
}

TEST(IDEStructure, HasBitsAsFarAsItIsLong)
{
    const auto keys = [](std::string_view space, int length) {
        const Bytes data = Pieces("00 " + std::string(space) + " 00 00 00 01 02 03 04 05");
        const ShownItems shown = ShowItems("IPD", Pieces("9B") + Raw({length}) + data);
        const std::string all = KeysOfFirst(shown);
        constexpr std::string_view kHead = "ASFlag GrayCoding ColorSpace";
        EXPECT_TRUE(all.starts_with(kHead)) << all;
        return all.substr(std::min(all.size(), kHead.size() + 1));
    };
    const std::string red = "RedBits Steps", green = " GreenBits Steps", blue = " BlueBits Steps";
    EXPECT_EQ(keys("01", 0), red);
    EXPECT_EQ(keys("01", 6), red);
    EXPECT_EQ(keys("01", 7), red + green);
    EXPECT_EQ(keys("01", 8), red + green + blue);
    EXPECT_EQ(keys("01", 9), red + green + blue);
    const std::string intensity = "IntenseBits Steps", cb = " ChromCbBits Steps", cr = " ChromCrBits Steps";
    EXPECT_EQ(keys("02", 6), intensity);
    EXPECT_EQ(keys("02", 7), intensity + cr);
    EXPECT_EQ(keys("02", 8), intensity + cr + cb);
    EXPECT_EQ(keys("12", 6), intensity);
    EXPECT_EQ(keys("12", 7), intensity + cb);
    EXPECT_EQ(keys("12", 8), intensity + cb + cr);
    const std::string cyan = "CyanBits Steps", magenta = " MagentaBits Steps", yellow = " YellowBits Steps";
    EXPECT_EQ(keys("04", 6), cyan);
    EXPECT_EQ(keys("04", 7), cyan + magenta);
    EXPECT_EQ(keys("04", 8), cyan + magenta + yellow);
    EXPECT_EQ(keys("04", 9), cyan + magenta + yellow + " BlackBits Steps");
    for (const std::string_view space : {"00", "03", "05", "06", "08", "11", "13", "40", "FF"})
        EXPECT_EQ(keys(space, 9), "") << space;
}

TEST(IDEStructure, HasFlagsAndSteps)
{
    ExpectItems("IPD", "9B 08 00 01 00 00 00 01 08 10",
                "Text BeginSDF IDE Structure Parameter\n"
                "Boolean ASFlag 0 | IDE Structure Parameter: AS-Flag: Additive\n"
                "Boolean GrayCoding 0 | IDE Structure Parameter: Gray coding: No\n"
                "Byte ColorSpace 1 | IDE Structure Parameter: Color Space: RGB\n"
                "Byte RedBits 1\nFloat64 Steps 2 | "
                "IDE Structure Parameter: No. of bits which represent the color Red: 1 (2 Steps)\n"
                "Byte GreenBits 8\nFloat64 Steps 256 | "
                "IDE Structure Parameter: No. of bits which represent the color Green: 8 (256 Steps)\n"
                "Byte BlueBits 16\nFloat64 Steps 65536 | "
                "IDE Structure Parameter: No. of bits which represent the color Blue: 16 (65536 Steps)");
    ExpectItems("IPD", "9B 08 C0 12 00 00 00 08 04 02",
                "Text BeginSDF IDE Structure Parameter\n"
                "Boolean ASFlag 1 | IDE Structure Parameter: AS-Flag: Subtractive\n"
                "Boolean GrayCoding 1 | IDE Structure Parameter: Gray coding: Yes\n"
                "Byte ColorSpace 18 | IDE Structure Parameter: Color Space: YCbCr\n"
                "Byte IntenseBits 8\nFloat64 Steps 256 | "
                "IDE Structure Parameter: No. of bits which represent the Intensity Y: 8 (256 Steps)\n"
                "Byte ChromCbBits 4\nFloat64 Steps 16 | "
                "IDE Structure Parameter: No. of bits which represent the Chrominance Cb: 4 (16 Steps)\n"
                "Byte ChromCrBits 2\nFloat64 Steps 4 | "
                "IDE Structure Parameter: No. of bits which represent the Chrominance Cr: 2 (4 Steps)");
}

TEST(ExternalAlgorithm, HasAnOrderOrACompression)
{
    ExpectEach({
        {"9F 07 00 00 05 00 00 00 00",
         "Text BeginSDF External Algorithm Specification Parameter\n"
         "Byte AlgorithmType 0 | External Algorithm Specification Parameter: Algorithm type: Recording algorithm\n"
         "Byte IDEOrder 5 | External Algorithm Specification Parameter: Image point order: "
         "Down-to-Up, Left-to-Right"},
        {"9F 07 10 00 05 00 00 00 83",
         "Text BeginSDF External Algorithm Specification Parameter\n"
         "Byte AlgorithmType 16 | External Algorithm Specification Parameter: Algorithm type: "
         "Compression algorithm\n"
         "Byte Compression 131 | External Algorithm Specification Parameter: Compression algorithm: JPEG"},
        {"9F 07 11 00 05 00 00 00 83",
         "Text BeginSDF External Algorithm Specification Parameter\n"
         "Byte AlgorithmType 17 | External Algorithm Specification Parameter: Algorithm type: "
         "Compression algorithm"},
    });
}

// Extended fields
// ----------------------------------------------------------------------------------------------------------

TEST(ImageData, AreCounted)
{
    ExpectItems("IPD", "FE92 0010 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 71 00",
                "Text BeginSDF Image Data\nInt32 ImageData 16 | Image Data: No. of bytes with image data: 16\n"
                "Text HexCode 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F\n"
                "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment");
    ExpectItems("IPD", "FE92 0000 71 00",
                "Text BeginSDF Image Data\nInt32 ImageData 0 | Image Data: No. of bytes with image data: 0\n"
                "Text HexCode \n"
                "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment");
    const ShownItems large = ShowItems("IPD", Pieces("FE92 0801") + Bytes(2049, 'x'));
    EXPECT_EQ(large.text, "Image Data: No. of bytes with image data: 2,049\n");
    EXPECT_EQ(ValuesOf(large, "HexCode").at(0).size(), 2048u * 3 + 3);
    EXPECT_TRUE(ValuesOf(large, "HexCode").at(0).ends_with("78 78 ..."));
}

TEST(BandImageData, AreCountedWithoutTheirHead)
{
    ExpectItems("IPD", "FE9C 0005 02 00 00 A1 B2",
                "Text BeginSDF Band Image Data\nByte BandNo 2\n"
                "Int32 BandImageData 2 | Band Image Data: Band: 2, No. of bytes with image data: 2\n"
                "Text HexCode A1 B2");
    ExpectItems("IPD", "FE9C 0000 71 00",
                "Text BeginSDF Band Image Data\nByte BandNo 113\n"
                "Int32 BandImageData -3 | Band Image Data: Band: 113, No. of bytes with image data: -3\n"
                "Text HexCode \n"
                "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment");
    const ShownItems large = ShowItems("IPD", Pieces("FE9C 07D3 01 00 00") + Bytes(2000, 'x'));
    EXPECT_EQ(large.text, "Band Image Data: Band: 1, No. of bytes with image data: 2,000\n");
}

TEST(SubsamplingField, HasItsNameOnly)
{
    ExpectItems("IPD", "FECE 0000", "Text BeginSDF Image Subsampling Parameter");
    ExpectItems("IPD", "FECE 0003 010203 71 00",
                "Text BeginSDF Image Subsampling Parameter\n"
                "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment");
}

// All of them
// ---------------------------------------------------------------------------------------------------------------

constexpr struct {
    int id;
    std::string_view name;
} kShort[] = {
    {0x70, "Begin Segment"},
    {0x71, "End Segment"},
    {0x8C, "Begin Tile"},
    {0x8D, "End Tile"},
    {0x8E, "Begin Transparency Mask"},
    {0x8F, "End Transparency Mask"},
    {0x91, "Begin Image Content"},
    {0x93, "End Image Content"},
    {0x94, "Image Size Parameter"},
    {0x95, "Image Encoding Parameter"},
    {0x96, "IDE Size Parameter"},
    {0x97, "Image LUT-ID Parameter"},
    {0x98, "Band Image Parameter"},
    {0x9B, "IDE Structure Parameter"},
    {0x9D, "Tiling Method Parameter"},
    {0x9F, "External Algorithm Specification Parameter"},
    {0xB5, "Tile Position"},
    {0xB6, "Tile Size"},
    {0xB7, "Tile Set Color"},
    {0xF4, "Set Extended Bilevel Image Color"},
    {0xF6, "Set Bilevel Image Color"},
    {0xF7, "IOCA Function Set Identification"},
};

TEST(AllFields, AreKnownOrEndTheWalk)
{
    std::string_view names[256] = {};
    for (const auto& [id, name] : kShort) names[id] = name;
    for (int id = 0; id < 256; ++id) {
        if (id == 0xFE) continue;
        const ShownItems shown = ShowItems("IPD", Raw({id, 2}) + Pieces("0000 71 00 71 00"));
        if (names[id].empty()) {
            char code[3];
            std::snprintf(code, sizeof code, "%02X", static_cast<unsigned>(id));
            EXPECT_EQ(shown.items, Lines{std::string("Text SDFUnknown ") + code});
            EXPECT_EQ(shown.heard, (Lines{"Message IPD: Unknown Self Defining Field", "Invalid"}));
        } else {
            EXPECT_EQ(shown.items.front(), "Text BeginSDF " + std::string(names[id]));
            EXPECT_EQ(shown.items.back(), "Boolean EndSegment 1");
        }
        EXPECT_EQ(shown.record, Lines{});
    }
}

TEST(AllFields, OfTheExtendedFormAreKnownOrPassed)
{
    for (int id = 0; id < 256; ++id) {
        const ShownItems shown = ShowItems("IPD", Raw({0xFE, id, 0, 2}) + Pieces("0000 71 00"));
        const bool known = id == 0x92 || id == 0x9C || id == 0xB8 || id == 0xBB || id == 0xCE;
        EXPECT_EQ(shown.items.size() > 2, known) << id;
        EXPECT_EQ(shown.items.back(), "Boolean EndSegment 1") << id;
        EXPECT_EQ(shown.heard, Lines{}) << id;
    }
}

}  // namespace
}  // namespace folioscope
