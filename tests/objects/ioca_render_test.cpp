// Lines of images: words, faults, and the languages.

#include "objects/ioca_render.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct FieldBench {
    FieldBench() : walk(AfpFile().Add("NOP")) { walk.Next(); }
    std::string Text(const std::vector<Element>& items)
    {
        walk.bench.renderer.text.Clear();
        walk.bench.witness.heard.clear();
        RenderFields(walk.bench.renderer, items);
        return Readable(walk.bench.renderer.text.Text());
    }
    ItemWalk walk;
};

const Element kBegin = Element::Literal(Key::BeginSDF, "X");

// clang-format off
constexpr WordCase kWords[] = {
    {Key::RelRes, "Tile resolution", {{1, "Equals image resolution"}, {2, "Half of image resolution"}}},
    {Key::UnitBase, "Unit Base", {{0, "10 Inch"}, {1, "10 Centimeter"}, {2, "Relative"}}},
    {Key::Recording, "Recording algorithm", {
        {1, "RIDIC"}, {3, "Bottom-to-top"}, {4, "Unpadded RIDIC"},
        {254, "-> see External Algorithm Specification parameter"}}},
    {Key::ColorSpace, "Color Space", {
        {1, "RGB"}, {2, "YCrCb"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CieLab"}, {0x12, "YCbCr"},
        {0x40, "Standard"}}},
    {Key::Compression, "Compression algorithm", {
        {1, "IBM MMR-Modified READ"},
        {3, "No Compression"},
        {6, "RL4 (Run-Length 4)"},
        {8, "ABIC (bilevel Q-coder)"},
        {9, "TIFF algorithm 2"},
        {10, "Concatenated ABIC"},
        {11, "OS/2 color compression"},
        {12, "TIFF Packbits"},
        {13, "TIFF LZW"},
        {14, "TIFF LZW with Differencing Predictor"},
        {0x20, "Solid Fill Rectangle"},
        {0x80, "G3 MH (Modified Huffman)"},
        {0x81, "G3 MR (Modified READ)"},
        {0x82, "G4 MMR (Modified Modified READ)"},
        {0x83, "JPEG"},
        {0x84, "JBIG2"},
        {0xC0, "JPEG, Non-differental Huffman, Baseline DCT"},
        {0xC1, "JPEG, Non-differental Huffman, Extended sequential DCT"},
        {0xC2, "JPEG, Non-differental Huffman, Progressive DCT"},
        {0xC3, "JPEG, Non-differental Huffman, Lossless"},
        {0xC5, "JPEG, Differental Huffman, Sequential DCT"},
        {0xC6, "JPEG, Differental Huffman, Progressive DCT"},
        {0xC7, "JPEG, Differental Huffman, Lossless"},
        {0xC9, "JPEG, Non-differental arithmetic, Extended sequential DCT"},
        {0xCA, "JPEG, Non-differental arithmetic, Progressive DCT"},
        {0xCB, "JPEG, Non-differental arithmetic, Losless"},
        {0xCD, "JPEG, Differental arithmetic, Sequential DCT"},
        {0xCE, "JPEG, Differental arithmetic, Progressive DCT"},
        {0xCF, "JPEG, Differental arithmetic, Losless"},
        {0xFE, "User-defined -> see External Algorithm Specification parameter"}}},
};
// clang-format on

TEST(FieldWords, AreToldOrUnknown)
{
    FieldBench bench;
    for (const WordCase& row : kWords)
        ExpectWords(row, "IPD", [&](const Element& element) -> ShownWord {
            const std::string text = bench.Text({kBegin, element});
            return {text, bench.walk.bench.witness.heard};
        });
}

TEST(FieldWords, ThatAreUnknownAreToldOfTheirField)
{
    ExpectFault("IPD", "B6 09 00000001 00000001 03", "IPD-Tile Size: Tile resolution: Unknown (3)",
                "Text BeginSDF Tile Size\nInt32 CellSizeX 1\nInt32 CellSizeY 1 | "
                "Tile Size: Image cell size in X direction: 1, Image cell size in Y direction: 1\n"
                "Byte RelRes 3 | Tile Size: Tile resolution: <red>Unknown (3)</red>");
    const ShownItems shown = ShowItems("IPD", Pieces("95 02 02 02"));
    EXPECT_EQ(shown.heard,
              (Lines{"Message IPD-Image Encoding Parameter: Compression algorithm: Unknown (2)", "Invalid",
                     "Message IPD-Image Encoding Parameter: Recording algorithm: Unknown (2)", "Invalid"}));
}

TEST(UnknownField, HasTheNameOfTheFieldBefore)
{
    ExpectFault("IPD", "55 00 71 00", "IPD: Unknown Self Defining Field",
                "Text SDFUnknown 55 | : <red>Unknown Self Defining Field</red>");
    ExpectFault("IPD", "71 00 07 00 71 00", "IPD: Unknown Self Defining Field",
                "Text BeginSDF End Segment\nBoolean EndSegment 1 | End Segment: End segment\n"
                "Text SDFUnknown 07 | End Segment: <red>Unknown Self Defining Field</red>");
}

TEST(FieldColor, AboveTheWholeIsToldOfWithoutAPrefix)
{
    const ShownItems shown = ShowItems("IPD", Pieces("F4 0D 00 01 00*4 07 08 08 00 FF 00 00"));
    EXPECT_NE(shown.text.find("Set Extended Bilevel Image Color: Intensity of color Red: 255 (201% Saturation)\n"),
              std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message Saturation: Invalid (201%)", "Invalid"}));
}

TEST(KeysThatNoFieldWrites, HaveLines)
{
    FieldBench bench;
    EXPECT_EQ(bench.Text({kBegin, Element::Int32(Key::TileCountX, 1234), Element::Int32(Key::TileCountY, 5678)}),
              "X: No. of Tiles in X direction: 1,234, No. of Tiles in Y direction: 5,678\n");
    EXPECT_EQ(bench.Text({kBegin, Element::Boolean(Key::EndSDF, true), Element::Literal(Key::HexCode, "FF")}), "");
}

TEST(StoredFieldValues, StartAnewWithEachRecord)
{
    ItemWalk walk(AfpFile().Add("IPD", Pieces("FE9C 0004 07 00 00 AA")).Add("IPD", Pieces("96 01 08")));
    walk.Next();
    walk.Next();
    walk.bench.renderer.text.Clear();
    const std::vector<Element> items = {kBegin, Element::Byte(Key::BitCount, 8)};
    RenderFields(walk.bench.renderer, items);
    EXPECT_EQ(walk.bench.renderer.text.Text(), "X: Band: 0, Bit count: 8\r\n");
}

TEST(FieldLines, AreTranslated)
{
    const auto of = [](Language language, std::string_view pieces) {
        return ItemWalk(AfpFile().Add("IPD", Pieces(pieces)), language, {".", ","}).Next();
    };
    constexpr auto kGerman = Language::German, kFrench = Language::French;
    // The names of the fields aren't words of the catalog.
    EXPECT_EQ(of(kGerman, "70 04 00000007").text, "Begin Segment: Beginn Segment 7\n");
    EXPECT_EQ(of(kFrench, "70 04 00000007").text, "Begin Segment: Début du segment 7\n");
    EXPECT_EQ(of(kGerman, "95 03 02 01 01").text,
              "Image Encoding Parameter: Komprimierungsalgorithmus: <red>Unbekannt (2)</red>\n"
              "Image Encoding Parameter: " +
                  std::string(TextOf(L("Recording algorithm"), kGerman)) +
                  ": RIDIC\nImage Encoding Parameter: Bitreihenfolge: Von rechts nach links\n");
    EXPECT_EQ(of(kFrench, "98 02 01 08").text, "Band Image Parameter: Bande: 1, Nombre de bits: 8\n");
    EXPECT_EQ(of(kGerman, "55 00").heard.at(0), "Message IPD: Unbekanntes Self-Defining Field");
    EXPECT_EQ(of(kFrench, "55 00").text, ": <red>Champ autodéfini inconnu</red>\n");
    const ShownItems unknown = of(kFrench, "95 02 03 09");
    EXPECT_TRUE(unknown.heard.at(0).ends_with(": Inconnu (9)")) << unknown.heard.at(0);
}

}  // namespace
}  // namespace folioscope
