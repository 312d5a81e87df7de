// The lines of font arrays.

#include "objects/fonts_render.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/font_bench.h"

namespace folioscope {
namespace {

using namespace test;

// A sequence of entries as it is rendered.
std::string Rendered(const std::vector<Element>& entries, Language language = Language::English)
{
    LineBench bench(language);
    bench.renderer.list = &bench.list;
    RenderFontArray(bench.renderer, entries);
    EXPECT_EQ(bench.witness.heard, std::vector<std::string>{});
    return Readable(bench.renderer.text.Text());
}

TEST(FontArray, OfPatterns)
{
    FontBench bench(AfpFile().Add("FNM", Pieces("0010 0400 000F4240  0001 0002 00000000")), 1);
    EXPECT_EQ(bench.Text(0), "\n<b>Element 1</b>\n"
                             "→Maximum character box width: 16\n"
                             "→Maximum character box height: 1,024\n"
                             "→Raster pattern data index: 1,000,000\n"
                             "\n<b>Element 2</b>\n"
                             "→Maximum character box width: 1\n"
                             "→Maximum character box height: 2\n"
                             "→Raster pattern data index: 0\n");
    EXPECT_EQ(bench.lines.renderer.IndentText, "");
}

constexpr std::string_view kCharacter = "03E8 02BC FF38 FFFF 0001 FC18 FFFD FFFC 8000 0000";

TEST(FontArray, OfCharacters)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 28)).Add("FNI", Ebcdic8("LA010000") + Pieces(kCharacter)), 2);
    EXPECT_EQ(bench.Text(1), "\n<b>Element 1</b>\n"
                             "→Character ID:<b>→LA010000</b>\n"
                             "→Character increment: 1,000\n"
                             "→Height from the baseline to character upper edge: 700\n"
                             "→Depth from the baseline to character lower edge: -200\n"
                             "→Accompanying FNM element: 2\n"
                             "→A-Space (Space before character): -1,000\n"
                             "→B-Space (Width of character itself): 65,533\n"
                             "→C-Space (Space after character): -4\n"
                             "→Distance from the baseline to the character box top edge: -32,768\n");
    EXPECT_EQ(bench.lines.renderer.IndentText, "");
}

TEST(FontArray, ShowsABlankNameInBold)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(1, 28)).Add("FNI", Ebcdic8("") + Zeros(20)), 2);
    EXPECT_TRUE(bench.Text(1).starts_with("\n<b>Element 1</b>\n→Character ID:<b>→        </b>\n")) << bench.Text(1);
}

TEST(FontArray, ShowsANameThatIsNotGivenAsItWasRead)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(1, 28)).Add("FNI", Zeros(28)), 2);
    const std::string line = "→Character ID:<b>→" + std::string(1, '\0') + "</b>\n";
    EXPECT_NE(bench.Text(1).find(line), std::string::npos);
}

TEST(FontArray, OfNames)
{
    const Bytes names = Pieces("02 03 'LA010000' 000F4240  05 <bcde>");
    FamilyWalk walk(AfpFile().Add("FNC", FontControl(30, 28, 12, 1)).Add("FNN", names));
    walk.bench.renderer.ports.FontArray = RenderFontArray;
    EXPECT_EQ(walk.Last(2).text, "Encoding for IBM character IDs: EBCDIC\n"
                                 "Encoding for outline character IDs: ASCII\n"
                                 "\n<b>Element 1</b>\n"
                                 "→IBM character ID: \"LA010000\"\n"
                                 "→Outline character ID is stored at position: 1,000,000\n"
                                 "\n<b>Element 2</b>\n"
                                 "→Outline character ID: \"bcde\"\n");
}

TEST(FontArray, OfCodePoints)
{
    FamilyWalk walk(AfpFile().Add("FNC", FontControl(30, 28, 12, 1)).Add("FNN", Pieces("02 05 'LA010000' 00002603")));
    walk.bench.renderer.ports.FontArray = RenderFontArray;
    EXPECT_EQ(walk.Last(2).text, "Encoding for IBM character IDs: EBCDIC\n"
                                 "Encoding for outline character IDs: CMAP\n"
                                 "\n<b>Element 1</b>\n"
                                 "→IBM character ID: \"LA010000\"\n"
                                 "→Outline character ID in CMAP file at position: 9,731\n");
}

TEST(FontArray, HasLinesForKeysThatOtherProducersOfElementsWrite)
{
    EXPECT_EQ(Rendered({Element::Int32(Key::CharIDLength, 1'000), Element::Literal(Key::IndexedObjOffset, "12")}),
              "Character ID length: \"1000\"\nByte offset to the indexed object counted from BDT: \"12\"\n");
}

TEST(FontArray, PassesOverOtherKeys)
{
    EXPECT_EQ(Rendered({Element::Int16(Key::Length, 28), Element::Int32(Key::PageSizeX, 1), Element::Byte(Key::ID, 1)}),
              "");
}

TEST(FontArray, QuotesTextsAsTheyAre)
{
    EXPECT_EQ(Rendered({Element::Literal(Key::IBMCharID, std::string_view("\0", 1))}),
              "IBM character ID: \"" + std::string(1, '\0') + "\"\n");
    EXPECT_EQ(Rendered({Element::Literal(Key::ExtCharIDASCII, "")}), "Outline character ID: \"\"\n");
}

TEST(FontArray, SpeaksTheLanguageOfTheAnalysis)
{
    const std::string text = Rendered({Element::Int16(Key::BeginRepetition, 1), Element::Int32(Key::BSpace, 5),
                                       Element::Int16(Key::EndRepetition, 1)},
                                      Language::German);
    EXPECT_NE(text.find("→B-Space (Breite des Zeichens selbst): 5\n"), std::string::npos) << text;
}

TEST(FontArray, NumbersGroupsWithoutSeparators)
{
    EXPECT_EQ(Rendered({Element::Int16(Key::BeginRepetition, 1'667)}), "\n<b>Element 1667</b>\n");
}

}  // namespace
}  // namespace folioscope
