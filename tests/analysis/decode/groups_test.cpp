// Repeating groups: their keys, their lengths, where they end.

#include "analysis/decode/groups.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

constexpr std::string_view kTripletGroupFields[] = {"MPO", "MDR", "MCF-2", "MMD", "MMT", "MCA"};

Bytes Group(const Bytes& triplets) { return U2(static_cast<unsigned>(triplets.size()) + 2) + triplets; }

TEST(TripletGroups, HoldTripletsToTheirEnd)
{
    for (const std::string_view field : kTripletGroupFields) {
        const Shown shown = ShowRecord({field, Group(TripletOf("81 01")) + Group(TripletOf("81 02"))});
        ExpectShown(shown.typed, shown.text,
                    "Int16 BeginRepetitionTRP 1 | ¶Element 1\n"
                    "Int32 Length 5\n"
                    "Int32 TripletStartbyte 12\n"
                    "Int32 TripletLength 3\n"
                    "Text BeginTriplet x'81' | →~\n"
                    "Text TripletName x'81' (Page Position Information) | "
                    "¶→Triplet:<b>→x'81' (Page Position Information)</b>\n"
                    "Byte UsePGP 1 | →→Use PGP repeating group with ID: 1\n"
                    "Boolean EndTriplet 1\n"
                    "Int16 EndRepetitionTRP 1\n"
                    "Int16 BeginRepetitionTRP 2 | ¶Element 2\n"
                    "Int32 Length 5\n"
                    "Int32 TripletStartbyte 17\n"
                    "Int32 TripletLength 3\n"
                    "Text BeginTriplet x'81' | →~\n"
                    "Text TripletName x'81' (Page Position Information) | "
                    "¶→Triplet:<b>→x'81' (Page Position Information)</b>\n"
                    "Byte UsePGP 2 | →→Use PGP repeating group with ID: 2\n"
                    "Boolean EndTriplet 1\n"
                    "Int16 EndRepetitionTRP 2");
    }
}

TEST(TripletGroups, OfAnEmptyFieldAreNone)
{
    for (const std::string_view field : kTripletGroupFields) {
        EXPECT_EQ(ShowRecord({field}).elements, Lines{}) << field;
        EXPECT_EQ(ShowRecord({field, Raw({0x05})}).elements, Lines{}) << field;  // a last byte stays unread
    }
}

TEST(TripletGroups, OfALengthBelowTwoAreTheLast)
{
    for (const unsigned length : {0u, 1u}) {
        const Shown shown = ShowRecord({"MMD", U2(length) + Group(TripletOf("81 01"))});
        EXPECT_EQ(shown.elements,
                  (Lines{"BeginRepetitionTRP 1", "Length " + std::to_string(length), "EndRepetitionTRP 1"}));
        EXPECT_EQ(shown.text, "\nElement 1\n");
    }
}

TEST(TripletGroups, OfLengthTwoAreEmpty)
{
    const Shown shown = ShowRecord({"MMD", U2(2) + U2(2) + Group(TripletOf("81 01"))});
    EXPECT_EQ(ValuesOf(shown, "Length"), (Lines{"2", "2", "5"}));
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
    EXPECT_EQ(ValuesOf(shown, "EndRepetitionTRP"), (Lines{"1", "2", "3"}));
}

TEST(TripletGroups, ThatRunPastTheFieldReadWhatLiesBehind)
{
    const Bytes behind = TripletOf("81 02");
    const auto file = AfpFile(Packaging::Bare).Add("MMD", U2(8) + TripletOf("81 01")).Noise(behind).Add("EPG");
    const Shown shown = FamilyWalk(file).Next();
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), (Lines{"1", "2"}));
    EXPECT_EQ(ValuesOf(shown, "EndRepetitionTRP"), Lines{"1"});
}

TEST(TripletGroups, OfTheLargestLengthEnd)
{
    // Zeros lie behind the file, and an id of zero ends the walk.
    const Shown shown = ShowRecord({"MMD", U2(0xFFFF) + TripletOf("81 01")});
    EXPECT_EQ(ValuesOf(shown, "BeginTriplet"), (Lines{"x'81'", "x'00'"}));
    EXPECT_EQ(ValuesOf(shown, "EndRepetitionTRP"), Lines{"1"});
}

TEST(TripletGroups, StartWhereTheLengthSays)
{
    // The group ends in front of its triplet's end, and the next begins there.
    const Bytes first = U2(4) + Raw({0x05, 0x81});
    const Shown shown = ShowRecord({"MMD", first + Group(TripletOf("81 02"))});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), (Lines{"0", "2"}));
}

TEST(TripletGroups, OfLengthTwoFillAField)
{
    Bytes groups;
    for (int i = 0; i < 16'000; ++i) groups += U2(2);
    const Shown shown = ShowRecord({"MMD", groups});
    EXPECT_EQ(ValuesOf(shown, "BeginRepetitionTRP").size(), 16'000u);
    EXPECT_EQ(ValuesOf(shown, "EndRepetitionTRP").back(), "16000");
}

TEST(PlainGroups, AreBold)
{
    const Shown shown = ShowRecord({"MSU", Ebcdic8("SUPPRESS") + Raw({0, 5})});
    EXPECT_TRUE(shown.text.starts_with("\n<b>Element 1</b>\n")) << shown.text;
}

TEST(PlainGroups, TakeWhatLiesBehindAShortField)
{
    // The second group has two bytes in the field; the rest is read from behind it.
    const Bytes first = Ebcdic8("FIRST") + Raw({0, 1});
    const auto file = AfpFile(Packaging::Bare).Add("MSU", first + Ebcdic("SE")).Noise(Ebcdic("COND..")).Add("EPG");
    const Shown shown = FamilyWalk(file).Next();
    EXPECT_EQ(ValuesOf(shown, "Name"), (Lines{"FIRST   ", "SECOND.."}));
    // One byte more is none.
    EXPECT_EQ(ValuesOf(ShowRecord({"MSU", first + Ebcdic("S")}), "Name"), Lines{"FIRST   "});
}

TEST(PlainGroups, OfTheSizeZeroAreOne)
{
    RecordWalk walk(AfpFile().Add("NOP", Zeros(20)));
    walk.Next();
    walk.afp.List().ClearCollections();
    AnalyzeGroups(walk.afp, 0, [](clsAFPFunctions&, std::int32_t, std::int32_t) {});
    EXPECT_EQ(walk.Lines(), (Lines{"Int16 BeginRepetition 1", "Int32 Length 0", "Int16 EndRepetition 1"}));
}

TEST(PlainGroups, OfTheSizeOneAreOneAByte)
{
    RecordWalk walk(AfpFile().Add("NOP", Zeros(20)));
    walk.Next();
    walk.afp.List().ClearCollections();
    AnalyzeGroups(walk.afp, 1, [](clsAFPFunctions&, std::int32_t, std::int32_t) {});
    EXPECT_EQ(walk.Lines().size(), 3u * 19);
}

// Groups with a length of one byte, and with a type in front of it
// ----------------------------------------------------------------

// The lengths of the groups that a walk finds in some data.
Lines LengthsOf(void (*walkGroups)(clsAFPFunctions&, GroupDecoder), const Bytes& data)
{
    RecordWalk walk(AfpFile().Add("NOP", data));
    walk.Next();
    walk.afp.List().ClearCollections();
    walkGroups(walk.afp, [](clsAFPFunctions&, std::int32_t, std::int32_t) {});
    Lines lengths;
    for (const Element& element : walk.afp.List().Elements())
        if (element.key == Key::Length) lengths.push_back(std::to_string(element.number));
    return lengths;
}

TEST(ByteLengthGroups, CountTheirLengthByte)
{
    EXPECT_EQ(LengthsOf(AnalyzeByteLengthGroups, Raw({3, 9, 9, 2, 9, 1, 1, 1})), (Lines{"3", "2", "1", "1"}));
    EXPECT_EQ(LengthsOf(AnalyzeByteLengthGroups, Raw({0, 9, 9})), Lines{"0"});
    EXPECT_EQ(LengthsOf(AnalyzeByteLengthGroups, Raw({255, 9})), Lines{"255"});
    EXPECT_EQ(LengthsOf(AnalyzeByteLengthGroups, Raw({5})), Lines{});
    EXPECT_EQ(LengthsOf(AnalyzeByteLengthGroups, Bytes(30'000, '\1')).size(), 29'999u);
}

TEST(TypedGroups, CountWhatLiesBehindTheirLength)
{
    EXPECT_EQ(LengthsOf(AnalyzeTypedGroups, Raw({7, 1, 9, 7, 0, 7, 2, 9, 9})), (Lines{"3", "2", "4"}));
    EXPECT_EQ(LengthsOf(AnalyzeTypedGroups, Raw({7, 255, 9})), Lines{"257"});
    EXPECT_EQ(LengthsOf(AnalyzeTypedGroups, Raw({7})), Lines{});
    EXPECT_EQ(LengthsOf(AnalyzeTypedGroups, Zeros(30'000)).size(), 15'000u);
}

TEST(NewWalks, TellWhereAGroupStarts)
{
    RecordWalk walk(AfpFile().Add("NOP", Raw({7, 1, 9, 7, 0})));
    walk.Next();
    const std::int32_t start = walk.afp.FieldPosition;
    walk.afp.List().ClearCollections();
    AnalyzeTypedGroups(walk.afp, [](clsAFPFunctions& afp, std::int32_t at, std::int32_t length) {
        afp.AddElement(Element::Int32(Key::ID, at - afp.Reader().RecordStart()));
        afp.AddElement(Element::Int32(Key::Level, length));
    });
    EXPECT_EQ(walk.Lines(), (Lines{"Int16 BeginRepetition 1", "Int32 Length 3", "Int32 ID 8", "Int32 Level 3",
                                   "Int16 EndRepetition 1", "Int16 BeginRepetition 2", "Int32 Length 2", "Int32 ID 11",
                                   "Int32 Level 2", "Int16 EndRepetition 2"}));
    EXPECT_EQ(walk.afp.FieldPosition, start + 5);
}

}  // namespace
}  // namespace folioscope
