// Presentation text: what each control sequence holds. How the sequences hang together is tested in items_test.cpp.

#include "objects/ptoca_decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// A new line behind what is tested, so that no zeros follow.
#define NEW_LINE "Text BeginSequence BLN\nBoolean NewLine 1 | BLN: New Line"

struct Case {
    std::string_view pieces, expected;
};

void ExpectEach(std::initializer_list<Case> cases)
{
    for (const auto& [pieces, expected] : cases) ExpectItems("PTX", pieces, expected);
}

// All numbers below are LEN, function, parameters behind the prefix 2BD3.

TEST(MovementSequences, HaveSignedAndUnsignedNumbers)
{
    ExpectEach({
        {"2BD3 04 C0 0064", "Text BeginSequence SIM\nInt32 InlineMargin 100 | SIM: Left margin: 100"},
        {"2BD3 04 C0 FFFE", "Text BeginSequence SIM\nInt32 InlineMargin -2 | SIM: Left margin: -2"},
        {"2BD3 04 C4 0FA0", "Text BeginSequence SVI\nInt32 VariableSpace 4000 | SVI: Variable space dimension: 4,000"},
        {"2BD3 04 C4 FFFE",
         "Text BeginSequence SVI\nInt32 VariableSpace 65534 | SVI: Variable space dimension: 65,534"},
        {"2BD3 04 C4 FFFF",
         "Text BeginSequence SVI\nInt32 VariableSpace 65535 | SVI: Variable space dimension: Default"},
        {"2BD3 04 C6 0010", "Text BeginSequence AMI\nInt32 AbsoluteInline 16 | AMI: Set cursor to X position: 016"},
        {"2BD3 04 C6 FFFF",
         "Text BeginSequence AMI\nInt32 AbsoluteInline 65535 | AMI: Set cursor to X position: 65,535"},
        {"2BD3 04 C8 0010", "Text BeginSequence RMI\nInt32 RelativeInline 16 | RMI: Move cursor in X direction: 016"},
        {"2BD3 04 C8 8000",
         "Text BeginSequence RMI\nInt32 RelativeInline -32768 | RMI: Move cursor in X direction: -32,768"},
        {"2BD3 04 D0 00F0", "Text BeginSequence SBI\nInt32 BaselineIncrement 240 | SBI: Baseline increment: 240"},
        {"2BD3 04 D0 FFFF", "Text BeginSequence SBI\nInt32 BaselineIncrement 65535 | SBI: Baseline increment: 240"},
        {"2BD3 04 D0 03E8", "Text BeginSequence SBI\nInt32 BaselineIncrement 1000 | SBI: Baseline increment: 1,000"},
        {"2BD3 04 D2 0000", "Text BeginSequence AMB\nInt32 AbsoluteBaseline 0 | AMB: Set cursor to Y position: 000"},
        {"2BD3 04 D2 FFFF",
         "Text BeginSequence AMB\nInt32 AbsoluteBaseline 65535 | AMB: Set cursor to Y position: 65,535"},
        {"2BD3 04 D4 7FFF",
         "Text BeginSequence RMB\nInt32 RelativeBaseline 32767 | RMB: Move cursor in Y direction: 32,767"},
        {"2BD3 04 D4 FFFF",
         "Text BeginSequence RMB\nInt32 RelativeBaseline -1 | RMB: Move cursor in Y direction: -001"},
        {"2BD3 02 D8", "Text BeginSequence BLN\nBoolean NewLine 1 | BLN: New Line"},
    });
}

TEST(SIA, IsPositiveOnlyWithoutADirectionOrWithZero)
{
    constexpr std::string_view kHead = "Text BeginSequence SIA\nInt32 InterCharAdjust ";
    const auto expect = [&](std::string_view pieces, std::string_view value) {
        ExpectItems("PTX", pieces,
                    std::string(kHead) + std::string(value) +
                        " | SIA: Intercharacter adjustment: " + std::string(value));
    };
    expect("2BD3 04 C2 0005", "5");
    expect("2BD3 05 C2 0005 00", "5");
    expect("2BD3 05 C2 0005 01", "-5");
    expect("2BD3 06 C2 0005 00 00", "-5");
    expect("2BD3 06 C2 0005 01 00", "-5");
    expect("2BD3 04 C2 0000", "0");
    const Lines kLargest = {"Text BeginSequence SIA", "Int32 InterCharAdjust -65535"};
    EXPECT_EQ(ShowItems("PTX", Pieces("2BD3 05 C2 FFFF 01")).items, kLargest);
    EXPECT_EQ(ValuesOf(ShowItems("PTX", Pieces("2BD3 03 C2 05 00 00")), "InterCharAdjust"), Lines{"-1280"});
}

TEST(IdentifierSequences, HaveOneByte)
{
    ExpectEach({
        {"2BD3 03 F0 05", "Text BeginSequence SCFL\nByte FontLID 5 | SCFL: Font: 5"},
        {"2BD3 03 F0 FF", "Text BeginSequence SCFL\nByte FontLID 255 | SCFL: Font: Default"},
        {"2BD3 03 F0 00", "Text BeginSequence SCFL\nByte FontLID 0 | SCFL: Font: 0"},
        {"2BD3 03 F2 07", "Text BeginSequence BSU\nByte BeginSuppression 7 | BSU: Begin of Text Suppression (ID: 7)"},
        // An end is told as a begin.
        {"2BD3 03 F4 07", "Text BeginSequence ESU\nByte BeginSuppression 7 | ESU: Begin of Text Suppression (ID: 7)"},
    });
}

TEST(TRN, IsText)
{
    ExpectEach({
        {"2BD3 07 DA 'Hello'", "Text BeginSequence TRN\nText TransparentData Hello | TRN: →→<b>Hello</b>"},
        {"2BD3 07 DB 'Hello' 02 D8",
         "Text BeginSequence TRN\nText TransparentData Hello | TRN: →→<b>Hello</b>\n" NEW_LINE},
        {"2BD3 02 DA 2BD3 02 D8", "Text BeginSequence TRN\nText TransparentData  | TRN: →→<b></b>\n" NEW_LINE},
    });
}

TEST(TRN, OfTwoZeroBytesIsNotGiven)
{
    const ShownItems zeros = ShowItems("PTX", Pieces("2BD3 04 DA 0000 2BD3 02 D8"));
    EXPECT_EQ(ValuesOf(zeros, "TransparentData"), Lines{std::string(1, '\0')});
    EXPECT_EQ(zeros.text, "TRN: →→<b></b>\nBLN: New Line\n");
    // Only that mark is left out.
    const ShownItems ones = ShowItems("PTX", Pieces("2BD3 04 DA FFFF"));
    EXPECT_EQ(ones.text, "TRN: →→<b>ÿ</b>\n");
}

TEST(NOPSequence, IsAComment)
{
    ExpectItems("PTX", "2BD3 05 F8 'Hey'", "Text BeginSequence NOP\nText NOPSequence Hey | NOP: Comment: \"Hey\"");
    ExpectItems("PTX", "2BD3 02 F8 2BD3 02 D8",
                "Text BeginSequence NOP\nText NOPSequence  | NOP: Comment: \"\"\n" NEW_LINE);
}

TEST(RPS, HasACountAndAText)
{
    ExpectItems("PTX", "2BD3 06 EE 04D2 'ab'",
                "Text BeginSequence RPS\nInt32 RepeatCount 1234\n"
                "Text RepeatString ab | RPS: Text: \"ab\", No. of repetitions: 1,234");
    ExpectItems("PTX", "2BD3 04 EE 0000 2BD3 02 D8",
                "Text BeginSequence RPS\nInt32 RepeatCount 0\n"
                "Text RepeatString  | RPS: Text: \"\", No. of repetitions: 0\n" NEW_LINE);
}

TEST(UCT, HasFlagsAndText)
{
    ExpectItems("PTX", "2BD3 14 6A 01 00 0004 A8 00 05 01 00*4 FFFB 0041 0042",
                "Text BeginSequence UCT\n"
                "Byte UCTVersion 1 | UCT: UCT version level: Base Level\n"
                "Boolean UCTNormalization 1 | UCT: Already normalized by generator: true\n"
                "Boolean UCTAltIPosValid 0 | UCT: Alternate inline position is valid: false\n"
                "Boolean UCTAltIPosCoord 1 | UCT: Use relative instead absolute coordinates: true\n"
                "Boolean UCTCurrentIPos 0 | UCT: Maintain current inline position: false\n"
                "Boolean UCTResetDir 1 | UCT: Reset paragraph direction: true\n"
                "Byte UCTBiDi 5 | UCT: Bidirectional layout processing control: "
                "Enabled, set paragraph direction is R -> L\n"
                "Byte UCTGlyph 1 | UCT: Apply glyph processing: Yes\n"
                "Int32 UCTAltIPos -5 | UCT: Alternate current inline position: -+5\n"
                "Int32 Length 4 | UCT: Length: 4\n"
                "Text Content AB | UCT: Content: \"AB\"");
    ExpectItems("PTX", "2BD3 10 6A 01 00 FFFF 50 00 20 20 00*4 1234 2BD3 02 D8",
                "Text BeginSequence UCT\n"
                "Byte UCTVersion 1 | UCT: UCT version level: Base Level\n"
                "Boolean UCTNormalization 0 | UCT: Already normalized by generator: false\n"
                "Boolean UCTAltIPosValid 1 | UCT: Alternate inline position is valid: true\n"
                "Boolean UCTAltIPosCoord 0 | UCT: Use relative instead absolute coordinates: false\n"
                "Boolean UCTCurrentIPos 1 | UCT: Maintain current inline position: true\n"
                "Boolean UCTResetDir 0 | UCT: Reset paragraph direction: false\n"
                "Byte UCTBiDi 32 | UCT: Bidirectional layout processing control: Disabled\n"
                "Byte UCTGlyph 32 | UCT: Apply glyph processing: No\n"
                "Int32 UCTAltIPos 4660 | UCT: Alternate current inline position: +4,660\n"
                "Int32 Length 65535 | UCT: Length: 65,535\n"
                "Text Content  | UCT: Content: \"\"\n" NEW_LINE);
}

TEST(GLC, ShowsNothing)
{
    // P0 to P1 advance, P2 length of the object identifier, P3 length of the name. The identifier is read 12 bytes
    // behind the length byte, two bytes short; the name 10 bytes behind the identifier's length.
    ExpectItems("PTX", "2BD3 11 6C 0140 04 03 00*6 FEDC 'abc' 2BD3 02 D8",
                "Text BeginSequence GLC\n"
                "Text SequenceName GLC (Glyph Layout Control)\n"
                "Int32 GLCAdvance 320\n"
                "Text GLCFontOID FE DC\n"
                "Text GLCFontname abc\n" NEW_LINE);
    ExpectItems("PTX", "2BD3 06 6C FFFF 00 00",
                "Text BeginSequence GLC\nText SequenceName GLC (Glyph Layout Control)\nInt32 GLCAdvance 65535");
}

TEST(GLC, OfAShortIdentifierReadsNone)
{
    for (const std::string_view oid : {"01", "02"}) {
        const ShownItems shown = ShowItems("PTX", Pieces("2BD3 06 6C 0000 " + std::string(oid) + " 00"));
        EXPECT_EQ(ValuesOf(shown, "GLCFontOID"), Lines{""}) << oid;
        EXPECT_EQ(ValuesOf(shown, "GLCFontname"), Lines{}) << oid;
    }
}

TEST(OVS, HasACharacterUnlessItEnds)
{
    ExpectItems("PTX", "2BD3 05 72 00 00 C1",
                "Text BeginSequence OVS\nInt16 Overstrike 0\nText OverstrikeChar  | OVS: Overstrike: Deactivated");
    ExpectItems("PTX", "2BD3 05 72 F0 00 C1",
                "Text BeginSequence OVS\nInt16 Overstrike 0\nText OverstrikeChar  | OVS: Overstrike: Deactivated");
    const std::string a("\0A", 2);
    const auto told = [&](std::string_view state) {
        return "OVS: Overstrike: " + std::string(state) + "with Character: \"" + a + "\"\n";
    };
    for (const auto& [flags, state, word] : {std::tuple{"01", "1", "Text and spaces"},
                                             {"0F", "1", "Text and spaces"},
                                             {"02", "2", "Only texts"},
                                             {"08", "2", "Only texts"}}) {
        const ShownItems shown = ShowItems("PTX", Pieces("2BD3 05 72 " + std::string(flags) + " 00 C1"));
        EXPECT_EQ(ValuesOf(shown, "Overstrike"), Lines{state}) << flags;
        EXPECT_EQ(ValuesOf(shown, "OverstrikeChar"), Lines{a}) << flags;
        EXPECT_EQ(shown.text, told(word)) << flags;
    }
}

TEST(OVS, OfAPageThatIsNotKnownHasNoCharacter)
{
    InputPages pages;
    pages.lngInputCP = 4711;
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 05 72 02 00 C1")), Language::English, {}, pages);
    const ShownItems shown = walk.Next();
    EXPECT_EQ(ValuesOf(shown, "OverstrikeChar"), Lines{""});
    EXPECT_EQ(shown.text, "OVS: Overstrike: Only texts\n");
}

TEST(STC, IsOneOfTheNamedColours)
{
    ExpectItems("PTX", "2BD3 04 74 FF01",
                "Text BeginSequence STC\nInt16 ColorSpace 64 | STC: Color Space: Standard OCA\n"
                "Int32 Color 65281 | STC: Color: Blue");
    ExpectItems("PTX", "2BD3 04 74 FFFF",
                "Text BeginSequence STC\nInt16 ColorSpace 64 | STC: Color Space: Standard OCA\n"
                "Int32 Color 65535 | STC: Color: Default");
}

TEST(USC, HasThreeStates)
{
    ExpectEach({
        {"2BD3 03 76 00", "Text BeginSequence USC\nInt16 Underscore 0 | USC: Underscore: Deactivated"},
        {"2BD3 03 76 F0", "Text BeginSequence USC\nInt16 Underscore 0 | USC: Underscore: Deactivated"},
        {"2BD3 03 76 01", "Text BeginSequence USC\nInt16 Underscore 1 | USC: Underscore: Text and spaces"},
        {"2BD3 03 76 03", "Text BeginSequence USC\nInt16 Underscore 1 | USC: Underscore: Text and spaces"},
        {"2BD3 03 76 02", "Text BeginSequence USC\nInt16 Underscore 2 | USC: Underscore: Only texts"},
        {"2BD3 03 76 08", "Text BeginSequence USC\nInt16 Underscore 2 | USC: Underscore: Only texts"},
    });
}

TEST(TBM, HasAnIncrementByItsLength)
{
    ExpectEach({
        {"2BD3 03 78 02", "Text BeginSequence TBM\nByte TBMDirection 2"},
        {"2BD3 04 78 02 00", "Text BeginSequence TBM\nByte TBMDirection 2\n"
                             "Int32 TBMIncrement 65535 | TBM: Temporary Baseline: Superscription in PELS¶: Default"},
        {"2BD3 05 78 02 00 04 00", "Text BeginSequence TBM\nByte TBMDirection 2\n"
                                   "Int32 TBMIncrement 1024 | TBM: Temporary Baseline: Superscription in PELS¶: 1,024"},
        {"2BD3 06 78 03 00 0005", "Text BeginSequence TBM\nByte TBMDirection 3\n"
                                  "Int32 TBMIncrement 5 | TBM: Temporary Baseline: Subscription in PELS¶: 5"},
    });
}

TEST(STO, HasDegreesOfBothDirections)
{
    ExpectItems("PTX", "2BD3 06 F6 2D00 5A00",
                "Text BeginSequence STO\nFloat64 BaselineOrientation 180\n"
                "Float64 InlineOrientation 90 | STO: Character orientation: 90°, Baseline orientation: 180°");
    ExpectItems("PTX", "2BD3 06 F6 007F FFFF",
                "Text BeginSequence STO\nFloat64 BaselineOrientation 511\n"
                "Float64 InlineOrientation 0 | STO: Character orientation: 0°, Baseline orientation: 511°");
}

// Rules
// --------------------------------------------------------------------------------------------------------------------

TEST(Rules, HaveAWidthOnlyIfTheyAreSevenLong)
{
    ExpectEach({
        {"2BD3 07 E4 0480 000A 00", "Text BeginSequence DIR\nFloat32 RuleLength 1152\nFloat32 RuleWidth 10\n"
                                    "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 1,152, Width: 10"},
        {"2BD3 07 E4 FB80 FFF6 00", "Text BeginSequence DIR\nFloat32 RuleLength 1152\nFloat32 RuleWidth 10\n"
                                    "Int16 RuleDirection 3 | DIR: Rule: Direction: Left, Length: 1,152, Width: 10"},
        {"2BD3 04 E4 0000", "Text BeginSequence DIR\nFloat32 RuleLength 0\n"
                            "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 0, Width: Minimum"},
        {"2BD3 06 E4 0064 000A", "Text BeginSequence DIR\nFloat32 RuleLength 100\n"
                                 "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 100, Width: Minimum"},
        {"2BD3 08 E4 0064 000A 00 00",
         "Text BeginSequence DIR\nFloat32 RuleLength 100\n"
         "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 100, Width: Minimum"},
        {"2BD3 07 E6 0064 0000 00", "Text BeginSequence DBR\nFloat32 RuleLength 100\nFloat32 RuleWidth 0\n"
                                    "Int16 RuleDirection 2 | DBR: Rule: Direction: Down, Length: 100, Width: Minimum"},
        {"2BD3 07 E6 8000 0001 00", "Text BeginSequence DBR\nFloat32 RuleLength 32768\nFloat32 RuleWidth 1\n"
                                    "Int16 RuleDirection 4 | DBR: Rule: Direction: Up, Length: 32,768, Width: 1"},
    });
}

TEST(Rules, HalveTheFractionOfTheirWidth)
{
    // 2.5 rounds away from zero; -3 + 1 / 2 is 2.5 too.
    ExpectEach({
        {"2BD3 07 E4 0001 0002 01", "Text BeginSequence DIR\nFloat32 RuleLength 1\nFloat32 RuleWidth 2.5\n"
                                    "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 1, Width: 3"},
        {"2BD3 07 E4 0001 FFFD 01", "Text BeginSequence DIR\nFloat32 RuleLength 1\nFloat32 RuleWidth 2.5\n"
                                    "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 1, Width: 3"},
        {"2BD3 07 E4 0001 0000 FF", "Text BeginSequence DIR\nFloat32 RuleLength 1\nFloat32 RuleWidth 127.5\n"
                                    "Int16 RuleDirection 1 | DIR: Rule: Direction: Right, Length: 1, Width: 128"},
    });
}

// Glyphs
// -------------------------------------------------------------------------------------------------------------------

TEST(GIR, HasGlyphsOfTwoOrFourBytes)
{
    ExpectEach({
        {"2BD3 08 8A 0000 0102 A0FF",
         "Text BeginSequence GIR\nInt16 GLIDLength 2 | GIR: Length of a glyph ID in byte: 2\n"
         "Float64 GLIDCount 2 | GIR: Number of glyphs: 2\nText GLID 01 02\nText GLID A0 FF"},
        {"2BD3 0E 8A 0100 01020304 05060708 0000",
         "Text BeginSequence GIR\nInt16 GLIDLength 4 | GIR: Length of a glyph ID in byte: 4\n"
         "Float64 GLIDCount 2 | GIR: Number of glyphs: 2\nText GLID 01 02 03 04\nText GLID 05 06 07 08"},
        {"2BD3 04 8A FE00", "Text BeginSequence GIR\nInt16 GLIDLength 2 | GIR: Length of a glyph ID in byte: 2\n"
                            "Float64 GLIDCount 0 | GIR: Number of glyphs: 0"},
        {"2BD3 03 8A 00 00", "Text BeginSequence GIR\nInt16 GLIDLength 2 | GIR: Length of a glyph ID in byte: 2\n"
                             "Float64 GLIDCount -0.5 | GIR: Number of glyphs: -1"},
    });
}

TEST(GIR, RoundsItsCountToEvenForTheGlyphsAndUpForTheLine)
{
    const auto of = [](std::string_view pieces) { return ShowItems("PTX", Pieces(pieces)); };
    const ShownItems twoAndAHalf = of("2BD3 09 8A 0000 0101 0202 03");
    EXPECT_EQ(ValuesOf(twoAndAHalf, "GLIDCount"), Lines{"2.5"});
    EXPECT_EQ(ValuesOf(twoAndAHalf, "GLID"), (Lines{"01 01", "02 02"}));
    EXPECT_NE(twoAndAHalf.text.find("Number of glyphs: 3\n"), std::string::npos);
    const ShownItems threeAndAHalf = of("2BD3 0B 8A 0000 0101 0202 0303 04 99");
    EXPECT_EQ(ValuesOf(threeAndAHalf, "GLIDCount"), Lines{"3.5"});
    EXPECT_EQ(ValuesOf(threeAndAHalf, "GLID"), (Lines{"01 01", "02 02", "03 03", "04 99"}));
    // (9 - 6) / 4
    const ShownItems threeQuarters = of("2BD3 09 8A 0100 01020304 05");
    EXPECT_EQ(ValuesOf(threeQuarters, "GLIDCount"), Lines{"0.75"});
    EXPECT_EQ(ValuesOf(threeQuarters, "GLID"), Lines{"01 02 03 04"});
}

TEST(GAR, HasAdvances)
{
    ExpectItems("PTX", "2BD3 08 8C 0000 0010 FFF0",
                "Text BeginSequence GAR\nFloat64 GLAdCount 2 | GAR: Number of advances: 2\n"
                "Int32 GLAdvance 16 | GAR: Inline advance: +16\n"
                "Int32 GLAdvance -16 | GAR: Inline advance: -+16");
    ExpectItems("PTX", "2BD3 09 8C 0000 0000 03E8 00",
                "Text BeginSequence GAR\nFloat64 GLAdCount 2.5 | GAR: Number of advances: 3\n"
                "Int32 GLAdvance 0 | GAR: Inline advance: +0\n"
                "Int32 GLAdvance 1000 | GAR: Inline advance: +1,000");
}

TEST(GOR, HasOffsetsAndGoesByAnotherName)
{
    ExpectItems("PTX", "2BD3 08 8E 0000 0010 FFF0",
                "Text BeginSequence GOR\nFloat64 GLOfCount 2 | GOR: Glyph-ID: x'2'\n"
                "Int32 GLOffset 16 | GOR: Baseline offset: +16\n"
                "Int32 GLOffset -16 | GOR: Baseline offset: -+16");
    ExpectItems("PTX", "2BD3 09 8E 0000 0001 0002 00",
                "Text BeginSequence GOR\nFloat64 GLOfCount 2.5 | GOR: Glyph-ID: x'2.5'\n"
                "Int32 GLOffset 1 | GOR: Baseline offset: +1\n"
                "Int32 GLOffset 2 | GOR: Baseline offset: +2");
    ExpectItems("PTX", "2BD3 04 8E 0000", "Text BeginSequence GOR\nFloat64 GLOfCount 0 | GOR: Glyph-ID: x'0'");
}

// All of them
// ---------------------------------------------------------------------------------------------------------------

constexpr struct {
    int selector;
    std::string_view mnemonic;
} kSequences[] = {
    {0x6A, "UCT"}, {0x6C, "GLC"}, {0x72, "OVS"},  {0x74, "STC"}, {0x76, "USC"}, {0x78, "TBM"}, {0x80, "SEC"},
    {0x8A, "GIR"}, {0x8C, "GAR"}, {0x8E, "GOR"},  {0xC0, "SIM"}, {0xC2, "SIA"}, {0xC4, "SVI"}, {0xC6, "AMI"},
    {0xC8, "RMI"}, {0xD0, "SBI"}, {0xD2, "AMB"},  {0xD4, "RMB"}, {0xD8, "BLN"}, {0xDA, "TRN"}, {0xE4, "DIR"},
    {0xE6, "DBR"}, {0xEE, "RPS"}, {0xF0, "SCFL"}, {0xF2, "BSU"}, {0xF4, "ESU"}, {0xF6, "STO"}, {0xF8, "NOP"},
};

TEST(AllSequences, AreKnownWithAndWithoutTheChainingBit)
{
    std::string_view names[256] = {};
    for (const auto& [selector, mnemonic] : kSequences) names[selector] = names[selector + 1] = mnemonic;
    for (int function = 0; function < 256; ++function) {
        const ShownItems shown = ShowItems("PTX", Pieces("2BD3 10") + Raw({function}) + Zeros(14));
        ASSERT_FALSE(shown.items.empty());
        if (names[function].empty()) {
            char code[3];
            std::snprintf(code, sizeof code, "%02X", static_cast<unsigned>(function));
            EXPECT_EQ(shown.items, (Lines{"Boolean SequenceUnknown 1", std::string("Text HexCode ") + code}));
        } else {
            EXPECT_EQ(shown.items.front(), "Text BeginSequence " + std::string(names[function])) << function;
        }
        const bool chained = (function & 1) != 0;
        EXPECT_EQ(shown.record, chained ? Lines{"Boolean ChainingActiveAtEnd 1"} : Lines{}) << function;
    }
}

TEST(AllSequences, ReadWhatLiesBehindIfTheyAreTooShort)
{
    // The length doesn't shorten the parameters; the walk goes on where it says.
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 02 C6 2BD3 03 F0 09"));
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence AMI", "Int32 AbsoluteInline 11219", "Text BeginSequence SCFL",
                                  "Byte FontLID 9"}));
}

}  // namespace
}  // namespace folioscope
