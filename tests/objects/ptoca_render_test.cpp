// Lines of presentation text: words, faults, what one sequence leaves for the next, and the languages.

#include "objects/ptoca_render.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// Elements that no field holds in this order, as lines of text.
struct SequenceBench {
    SequenceBench() : walk(AfpFile().Add("NOP")) { walk.Next(); }
    std::string Text(const std::vector<Element>& items)
    {
        walk.bench.renderer.text.Clear();
        walk.bench.witness.heard.clear();
        RenderSequences(walk.bench.renderer, items);
        return Readable(walk.bench.renderer.text.Text());
    }
    ItemWalk walk;
};

const Element kBegin = Element::Literal(Key::BeginSequence, "X");

// Words
// --------------------------------------------------------------------------------------------------------------------

// clang-format off
constexpr WordCase kWords[] = {
    {Key::Underscore, "Underscore", {{0, "Deactivated"}, {1, "Text and spaces"}, {2, "Only texts"}}},
    {Key::UCTVersion, "UCT version level", {{1, "Base Level"}}},
    {Key::UCTGlyph, "Apply glyph processing", {{0x01, "Yes"}, {0x20, "No"}}},
    {Key::UCTBiDi, "Bidirectional layout processing control", {
        {0x02, "Enabled, default paragraph direction is L -> R"},
        {0x04, "Enabled, set paragraph direction is L -> R"},
        {0x05, "Enabled, set paragraph direction is R -> L"},
        {0x12, "Enabled, set paragraph direction from previous UCT"},
        {0x20, "Disabled"},
        {0x22, "Disabled, text direction L -> R"},
        {0x23, "Disabled, text direction L -> R"}}},
};
// clang-format on

TEST(SequenceWords, AreToldOrUnknown)
{
    SequenceBench bench;
    for (const WordCase& row : kWords)
        ExpectWords(row, "PTX", [&](const Element& element) -> ShownWord {
            const std::string text = bench.Text({kBegin, element});
            return {text, bench.walk.bench.witness.heard};
        });
}

TEST(SequenceWords, ThatAreUnknownAreToldOfTheirField)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 10 6A 02 00 0000 00 00 03 02 00*4 0000 2BD3 02 D8"));
    EXPECT_NE(shown.text.find("UCT: UCT version level: <red>Unknown (2)</red>\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message PTX-UCT: UCT version level: Unknown (2)", "Invalid",
                                  "Message PTX-UCT: Bidirectional layout processing control: Unknown (3)", "Invalid",
                                  "Message PTX-UCT: Apply glyph processing: Unknown (2)", "Invalid"}));
}

TEST(SequenceColorSpace, IsSilentIfItHasNoWord)
{
    SequenceBench bench;
    const auto of = [&](std::uint8_t space) { return bench.Text({kBegin, Element::Byte(Key::ColorSpace, space)}); };
    EXPECT_EQ(of(1), "X: Color Space: RGB\n");
    EXPECT_EQ(of(4), "X: Color Space: CMYK\n");
    EXPECT_EQ(of(6), "X: Color Space: Highlight Color\n");
    EXPECT_EQ(of(8), "X: Color Space: CIELAB\n");
    EXPECT_EQ(of(64), "X: Color Space: Standard OCA\n");
    for (const std::uint8_t space : {0, 2, 3, 5, 7, 9, 18, 63, 65, 255}) {
        EXPECT_EQ(of(space), "");
        EXPECT_EQ(bench.walk.bench.witness.heard, Lines{});
    }
}

// What sequences leave for each other
// -----------------------------------------------------------------------------------------

TEST(TemporaryBaseline, AddsUpOverSequences)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 06 79 02 00 0005 06 79 03 00 0008 06 79 02 00 0003 "
                                                     "06 79 02 00 0001 06 79 01 00 0000 06 78 03 00 0000"));
    EXPECT_EQ(shown.text, "TBM: Temporary Baseline: Superscription in PELS\n: 5\n"
                          "TBM: Temporary Baseline: Subscription in PELS\n: 8\n"
                          "TBM: Temporary Baseline: Subscription in PELS\n: 3\n"
                          "TBM: Temporary Baseline: Superscription in PELS\n: 1\n"
                          "TBM: Temporary Baseline: Back zu Baseline\n"
                          "TBM: Temporary Baseline: Subscription in PELS\n: 0\n");
}

TEST(TemporaryBaseline, GoesBackToZero)
{
    const ShownItems shown =
        ShowItems("PTX", Pieces("2BD3 06 79 03 00 0064 06 79 01 00 0000 06 79 02 00 0001 06 78 00 00 0001"));
    EXPECT_EQ(shown.text, "TBM: Temporary Baseline: Subscription in PELS\n: 100\n"
                          "TBM: Temporary Baseline: Back zu Baseline\n"
                          "TBM: Temporary Baseline: Superscription in PELS\n: 1\n"
                          "TBM: Temporary Baseline: No Change\n");
}

TEST(TemporaryBaseline, OfAnotherDirectionHasNoLine)
{
    for (const std::string_view direction : {"04", "05", "80", "FF"}) {
        const ShownItems shown = ShowItems("PTX", Pieces("2BD3 06 78 " + std::string(direction) + " 00 0005"));
        EXPECT_EQ(shown.text, "");
        EXPECT_EQ(shown.heard, Lines{});
    }
}

TEST(TemporaryBaseline, StartsAnewWithEachRecord)
{
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 06 78 03 00 0064")).Add("PTX", Pieces("2BD3 06 78 02 00 0001")));
    walk.Next();
    EXPECT_EQ(walk.Next().text, "TBM: Temporary Baseline: Superscription in PELS\n: 1\n");
}

TEST(Rule, ForgetsTheWidthOfTheRuleBefore)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 07 E5 0064 000A 00 04 E4 0064"));
    EXPECT_EQ(shown.text, "DIR: Rule: Direction: Right, Length: 100, Width: 10\n"
                          "DIR: Rule: Direction: Right, Length: 100, Width: Minimum\n");
}

TEST(UnknownSequence, GoesByTheTextOfTrueUntilTheNextBegins)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 03 F1 05 03 37 00 03 07 00 02 D8"));
    EXPECT_EQ(shown.items,
              (Lines{"Text BeginSequence SCFL", "Byte FontLID 5", "Boolean SequenceUnknown 1", "Text HexCode 37",
                     "Boolean SequenceUnknown 1", "Text HexCode 07", "Text BeginSequence BLN", "Boolean NewLine 1"}));
    EXPECT_EQ(shown.text, "SCFL: Font: 5\n"
                          "True: <red>Unknown Control Sequence</red>\nTrue: Hex-Codes: x'37'\n"
                          "True: <red>Unknown Control Sequence</red>\nTrue: Hex-Codes: x'07'\n"
                          "BLN: New Line\n");
    EXPECT_EQ(shown.heard, (Lines{"Message PTX-Unknown Control Sequence", "Invalid",
                                  "Message PTX-Unknown Control Sequence", "Invalid"}));
}

TEST(SequenceColor, AboveTheWholeIsToldOfWithoutAPrefix)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 10 80 00 06 00*4 10 08 00 00 0007 65 00"));
    EXPECT_NE(shown.text.find("SEC: Saturation: 101%\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message Saturation: Invalid (101%)", "Invalid"}));
}

TEST(LinesBeforeTheFirstSequence, HaveAnEmptyName)
{
    SequenceBench bench;
    EXPECT_EQ(bench.Text({Element::Boolean(Key::NewLine, true)}), ": New Line\n");
}

TEST(KeysThatNoSequenceWrites, HaveLines)
{
    SequenceBench bench;
    EXPECT_EQ(bench.Text({kBegin, Element::Byte(Key::EndSuppression, 5)}), "X: End of Text Suppression (ID: 5)\n");
    EXPECT_EQ(bench.Text({kBegin, Element::Int32(Key::UTLength, 1234)}),
              "X: Length of all following UGI, UGA, UGO sequences: 1,234\n");
    EXPECT_EQ(bench.Text({kBegin, Element::Int32(Key::GLTTFIndex, 1234)}),
              "X: Index into TTF font collection: 1,234\n");
    EXPECT_EQ(bench.Text({kBegin, Element::Boolean(Key::EndSequence, true), Element::Literal(Key::SequenceName, "Y")}),
              "");
    EXPECT_EQ(bench.Text({kBegin, Element::Int32(Key::InlineMargin, 65'535)}), "X: Left margin: 0\n");
    constexpr std::pair<Key, std::string_view> kBits[] = {
        {Key::IntenseBits, "Intensity Y"}, {Key::ChromCbBits, "Chrominance Cb"}, {Key::ChromCrBits, "Chrominance Cr"}};
    for (const auto& [key, name] : kBits)
        EXPECT_EQ(bench.Text({kBegin, Element::Byte(key, 8), Element::Float64(Key::Steps, 256)}),
                  "X: No. of bits which represent the " + std::string(name) + ": 8 (256 Steps)\n");
}

// Orientation
// -------------------------------------------------------------------------------------------------------------------

TEST(OrientationQuadrants, CountQuarterTurns)
{
    struct Case {
        std::int16_t inlineDegrees, baselineDegrees, first, axis, difference;
    };
    constexpr Case kCases[] = {
        {0, 90, 0, 1, 1},
        {90, 180, 1, 2, 1},
        {180, 270, 2, 3, 1},
        {270, 0, 3, 0, 1},
        {0, 270, 0, 3, -1},
        {90, 0, 1, 0, -1},
        {180, 90, 2, 1, -1},
        {270, 180, 3, 2, -1},
        {0, 0, 0, 0, 0},
        {90, 90, 1, 1, 0},
        {0, 180, 0, 2, -2},
        {180, 0, 2, 0, -2},
        {45, 135, 0, 1, 1},
        {135, 225, 2, 3, 1},  // halves go to the even
                              // one
        {0, 45, 0, 0, 0},
        {0, 91, 0, 1, -3},
        {91, 0, 1, 0, -1},
    };
    for (const Case& c : kCases) {
        const OrientationMapping mapping = OrientationQuadrants(c.inlineDegrees, c.baselineDegrees);
        EXPECT_EQ(mapping.first, c.first) << c.inlineDegrees << ' ' << c.baselineDegrees;
        EXPECT_EQ(mapping.difference, c.difference) << c.inlineDegrees << ' ' << c.baselineDegrees;
        EXPECT_EQ(mapping.axis, c.axis) << c.inlineDegrees << ' ' << c.baselineDegrees;
    }
}

TEST(OrientationQuadrants, AreThoseOfTheTextReadLast)
{
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 06 F6 2D00 5A00")).Add("PTX", Pieces("2BD3 02 D8")));
    walk.Next();
    const OrientationMapping& mapping = walk.bench.renderer.orientation;
    EXPECT_EQ(mapping.first, 1);
    EXPECT_EQ(mapping.axis, 2);
    EXPECT_EQ(mapping.difference, 1);
    walk.Next();  // each text starts upright
    EXPECT_EQ(mapping.first, 0);
    EXPECT_EQ(mapping.axis, 1);
    EXPECT_EQ(mapping.difference, 1);
}

// Languages and number styles
// -------------------------------------------------------------------------------------------------

TEST(SequenceLines, AreTranslated)
{
    const auto of = [](Language language, std::string_view pieces) {
        return ItemWalk(AfpFile().Add("PTX", Pieces(pieces)), language, {".", ","}).Next();
    };
    constexpr auto kGerman = Language::German, kFrench = Language::French;
    EXPECT_EQ(of(kGerman, "2BD3 04 C6 1000").text, "AMI: Cursor auf X-Position setzen: 4.096\n");
    EXPECT_EQ(of(kFrench, "2BD3 04 C6 1000").text, "AMI: Placer le curseur à la position X: 4.096\n");
    EXPECT_EQ(of(kGerman, "2BD3 04 E4 0001").text, "DIR: Linie: Richtung: Rechts, Länge: 1, Breite: Minimum\n");
    EXPECT_EQ(of(kFrench, "2BD3 03 76 01").text, "USC: Soulignement: Texte et espaces\n");
    EXPECT_EQ(of(kGerman, "2BD3 05 8E 0000 00").text, "GOR: Glyphen-ID: x'0,5'\n");
    // A free text has no name of the catalog.
    EXPECT_EQ(of(kGerman, "'Hey'").text, "Free Text: →→<b>He</b>\n");

    const ShownItems unknown = of(kGerman, "2BD3 03 37 00 2BD3 02 D9");
    EXPECT_EQ(unknown.text.substr(0, unknown.text.find('\n')), "True: <red>Unbekannte Control Sequence</red>");
    EXPECT_EQ(unknown.heard.at(0), "Message PTX-Unbekannte Control Sequence");
    EXPECT_EQ(of(kFrench, "2BD3 02 D9").text,
              "BLN: Nouvelle ligne\n"
              "<red>Indicateur de chaînage non terminé sur la dernière séquence de contrôle\u00A0!</red>\n");
}

}  // namespace
}  // namespace folioscope
