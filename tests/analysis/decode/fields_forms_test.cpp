// Form definitions: each layout with its bytes, Elements and lines.

#include "analysis/decode/fields_forms.h"

#include <gtest/gtest.h>

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
}

// A triplet x'81' 01 at a data offset of the only record of a file, as it is decoded and shown.
std::string TripletAt(int offset)
{
    return "Int32 TripletStartbyte " + std::to_string(10 + offset) +
           "\n"
           "Int32 TripletLength 3\n"
           "Text BeginTriplet x'81'\n"
           "Text TripletName x'81' (Page Position Information) | ¶Triplet:<b>→x'81' (Page Position Information)</b>\n"
           "Byte UsePGP 1 | →Use PGP repeating group with ID: 1\n"
           "Boolean EndTriplet 1";
}

// MFC
// --------------------------------------------------------------------------------------------------------------------

TEST(MFC, TellsTheCollectionAndItsScope)
{
    ExpectRecord("MFC", "80 00 01 04 03 81 01",
                 "Byte Collection 1 | Collection: Begin medium map level sheet collection\n"
                 "Byte Scope 4 | Scope: Medium map\n" +
                     TripletAt(4));
}

TEST(MFC, IsIgnoredWithoutItsFirstBit)
{
    for (const std::string_view first : {"00", "7F"})
        ExpectRecord("MFC", std::string(first) + " 00 01 04 03 81 01",
                     "Boolean NoOp 1 | This structured field has to be ignored!");
    ExpectRecord("MFC", "", "Boolean NoOp 1 | This structured field has to be ignored!");
}

TEST(MFC, MarksUnknownValues)
{
    const Shown shown = ShowRecord({"MFC", Pieces("FF 00 03 06")});
    EXPECT_EQ(shown.text, "Collection: <red>Unknown (3)</red>\nScope: <red>Unknown (6)</red>\n");
    EXPECT_EQ(shown.heard,
              (Lines{"Message Collection: Unknown (3)", "Invalid", "Message Scope: Unknown (6)", "Invalid"}));
}

TEST(MFC, CutShortReadsNothingAsZero)
{
    ExpectRecord("MFC", "80",
                 "Byte Collection 0 | Collection: No sheet collection at medium map level\n"
                 "Byte Scope 0 | Scope: <red>Unknown (0)</red>");
}

// MCC
// --------------------------------------------------------------------------------------------------------------------

TEST(MCC, HasAGroupForEachRunOfCopies)
{
    ExpectRecord("MCC", "0001 0002 00 00  0003 07D0 00 07",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 6\n"
                 "Int32 FirstCopy 1 | →Number of the first copy: 1\n"
                 "Int32 LastCopy 2 | →Number of the last copy: 2\n"
                 "Byte UseMMC 0 | →Use MMC with ID: Default\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 6\n"
                 "Int32 FirstCopy 3 | →Number of the first copy: 3\n"
                 "Int32 LastCopy 2000 | →Number of the last copy: 2000\n"
                 "Byte UseMMC 7 | →Use MMC with ID: 7\n"
                 "Int16 EndRepetition 2");
}

TEST(MCC, AGroupBeginsAheadOfTheLastByte)
{
    EXPECT_EQ(ValuesOf(ShowRecord({"MCC", Pieces("0001 0002 00 00 00")}), "FirstCopy"), Lines{"1"});
    EXPECT_EQ(ValuesOf(ShowRecord({"MCC", Pieces("0001 0002 00 00 0003")}), "FirstCopy"), (Lines{"1", "3"}));
    EXPECT_EQ(ShowRecord({"MCC"}).elements, Lines{});
}

// MMC
// --------------------------------------------------------------------------------------------------------------------

TEST(MMC, HasAGroupForEachKeyword)
{
    ExpectRecord("MMC", "05 FF F4 02 FC 04",
                 "Int32 ID 5 | Identifier: 5\n"
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 2\n"
                 "Byte MMCKeyword 244\n"
                 "Byte MMCValue 2 | →Duplex Control: Normal Duplex\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 2\n"
                 "Byte MMCKeyword 252\n"
                 "Byte MMCValue 4 | →N-Up Format Control: 4-up\n"
                 "Int16 EndRepetition 2");
}

TEST(MMC, CutShortHasNoHalfKeyword)
{
    EXPECT_EQ(ValuesOf(ShowRecord({"MMC", Pieces("05 FF F4 02 FC")}), "MMCKeyword"), Lines{"244"});
    EXPECT_EQ(ShowRecord({"MMC", Pieces("05 FF")}).elements, Lines{"ID 5"});
}

// PMC
// --------------------------------------------------------------------------------------------------------------------

TEST(PMC, HasAnIdentifierAndTriplets)
{
    ExpectRecord("PMC", "FE 00 03 81 01", "Int32 ID 254 | Identifier: 254\n" + TripletAt(2));
}

// PFC
// --------------------------------------------------------------------------------------------------------------------

// The field begins at position 2 of the record buffer, its data at 10.
std::string FidelityOf(const std::string& pieces)
{
    const Shown shown = ShowRecord({"PFC", Pieces(pieces)});
    return shown.typed.front() + " | " + shown.text.substr(0, shown.text.find('\n'));
}

constexpr std::string_view kReplace = "Int16 ResetFidelity 1 | Replace/Add following settings: Replace";
constexpr std::string_view kAdd = "Int16 ResetFidelity 2 | Replace/Add following settings: Add";

TEST(PFC, TakesItsFlagFromThePositionThatTheFirstByteNames)
{
    EXPECT_EQ(FidelityOf("00 80 80 80"), kReplace);  // in front of the buffer
    EXPECT_EQ(FidelityOf("01 80 80 80"), kReplace);  // the x'5A' of the record
    EXPECT_EQ(FidelityOf("04 00 00 00"), kAdd);      // the x'D3' of the identifier
    EXPECT_EQ(FidelityOf("0B 80 00 00"), kAdd);      // the second data byte
    EXPECT_EQ(FidelityOf("0B 7F 00 00"), kReplace);
    EXPECT_EQ(FidelityOf("FF 80 80 80"), kReplace);  // behind the file
    EXPECT_EQ(FidelityOf("80 00 00 00"), kReplace);  // its own first bit says nothing
}

TEST(PFC, HasTripletsBehindFourBytes)
{
    ExpectRecord("PFC", "00 00*3 03 81 01", std::string(kReplace) + "\n" + TripletAt(4));
}

// PGP
// --------------------------------------------------------------------------------------------------------------------

TEST(PGP1, HasAnOrigin)
{
    ExpectRecord("PGP-1", "0005A0 FFFFFF",
                 "Int32 OriginX 1440 | Origin X axis: 1,440   (1 Inch)\n"
                 "Int32 OriginY 16777215 | Origin Y axis: 16,777,215   (11,650.84 Inch)");
}

TEST(PGP2, HasAGroupForEachPage)
{
    ExpectRecord("PGP-2", "01  0C 0005A0 FFFFFF 2D00 10 F0 07  0C FFFA60 000000 0000 01 00 FF",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 12\n"
                 "Int32 OriginX 1440 | →Origin X axis: 1,440   (1 Inch)\n"
                 "Int32 OriginY -1 | →Origin Y axis: Default\n"
                 "Int32 RotationX 11520 | →Rotation X axis (clockwise): 90°\n"
                 "Byte PagePosition 16 | →Page position: partition 1, Front\n"
                 "Boolean PresentVariableData 1 | →Print variable page data to partition: Yes\n"
                 "Boolean PresentPMCOverlays 1 | →Print overlays specified in the PMC structured field: Yes\n"
                 "Boolean PMCOrigin 1 | →Place overlays using the origin of the: partition\n"
                 "Boolean ViewData 1 | →Intended for viewing: Yes\n"
                 "Byte UsePMC 7 | →Use PMC with ID: 7\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 12\n"
                 "Int32 OriginX -1440 | →Origin X axis: -1,440   (-1 Inch)\n"
                 "Int32 OriginY 0 | →Origin Y axis: 0   (0 Inch)\n"
                 "Int32 RotationX 0 | →Rotation X axis (clockwise): 0°\n"
                 "Byte PagePosition 1 | →Page position: Single Page, Back\n"
                 "Boolean PresentVariableData 0 | →Print variable page data to partition: No\n"
                 "Boolean PresentPMCOverlays 0 | →Print overlays specified in the PMC structured field: No\n"
                 "Boolean PMCOrigin 0 | →Place overlays using the origin of the: page\n"
                 "Boolean ViewData 0 | →Intended for viewing: No\n"
                 "Byte UsePMC 255 | →Use PMC with ID: All\n"
                 "Int16 EndRepetition 2");
}

std::string LineOfPagePosition(unsigned byte)
{
    LineBench bench;
    return bench.Text(Key::PagePosition, byte);
}

TEST(PGP2, SplitsThePositionInPartitionAndSide)
{
    EXPECT_EQ(LineOfPagePosition(0x00), "Page position: Single Page, Front\n");
    EXPECT_EQ(LineOfPagePosition(0x0F), "Page position: Single Page, Back\n");
    EXPECT_EQ(LineOfPagePosition(0x40), "Page position: partition 4, Front\n");
    EXPECT_EQ(LineOfPagePosition(0xF1), "Page position: partition 15, Back\n");
}

TEST(PGP2, SpeaksTheLanguageOfTheAnalysis)
{
    LineBench bench(Language::German);
    EXPECT_EQ(bench.Text(Key::PagePosition, 0x01), "Seitenposition: Einzelseite, Rückseite\n");
    EXPECT_EQ(bench.Text(Key::PMCOrigin, 1).substr(bench.Text(Key::PMCOrigin, 1).rfind(':')), ": Partition\n");
}

TEST(PGP2, KeysBehindTheGroupAreLeftOut)
{
    const auto keysOf = [](unsigned length) {
        const Bytes group = Pieces("000001 000002 0000 11 FF 05") + Zeros(4);
        const Shown shown = ShowRecord({"PGP-2", U1(1) + U1(length) + group.substr(0, length - 1)});
        std::string keys;
        for (const std::string& element : shown.elements) keys += element.substr(0, element.find(' ')) + ' ';
        return keys;
    };
    const std::string always = "BeginRepetition Length OriginX OriginY RotationX ";
    const std::string flags = "PagePosition PresentVariableData PresentPMCOverlays PMCOrigin ViewData ";
    EXPECT_EQ(keysOf(9), always + "EndRepetition ");
    EXPECT_EQ(keysOf(10), always + "PagePosition EndRepetition ");
    EXPECT_EQ(keysOf(11), always + flags + "EndRepetition ");
    EXPECT_EQ(keysOf(12), always + flags + "UsePMC EndRepetition ");
    EXPECT_EQ(keysOf(13), always + flags + "UsePMC EndRepetition ");
}

TEST(PGP2, OfAGroupLengthOfZeroHasOneGroup)
{
    const Shown shown = ShowRecord({"PGP-2", Pieces("01 00 000001 000002 0000 00 00 00 0C 000003 000004 0000")});
    EXPECT_EQ(ValuesOf(shown, "OriginX"), Lines{"1"});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"});
    EXPECT_FALSE(Has(shown, "PagePosition"));
}

TEST(PGP2, WithoutGroupsIsEmpty)
{
    EXPECT_EQ(ShowRecord({"PGP-2", U1(1)}).elements, Lines{});
    EXPECT_EQ(ShowRecord({"PGP-2", Pieces("01 0C")}).elements, Lines{});
}

// Fields without data that count
// -----------------------------------------------------------------------------------------------

TEST(Descriptors, OfEnvironmentGroupsAndSubcasesSayNothing)
{
    for (const std::string_view field : {"FGD", "DXD"}) {
        const Shown shown = ShowRecord({field, Pieces("01 02 03 04")});
        EXPECT_EQ(shown.elements, Lines{}) << field;
        EXPECT_EQ(shown.text, "") << field;
    }
}

}  // namespace
}  // namespace folioscope
