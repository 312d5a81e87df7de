// The walk over the triplets of a field: lengths, ids and ends of all kinds.

#include "analysis/decode/triplets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

constexpr std::string_view kPadding =
    "→This structured field contains padding bytes. Currently padding is not allowed in any of the interchange sets, "
    "but shouldn't cause errors!\n";

// The ids of all triplets that a walk went over: "x'04'", "x'00'".
Lines IdsOf(const Shown& shown) { return ValuesOf(shown, "BeginTriplet"); }

// All Elements of a triplet with a number: its group, its keys.
std::vector<Lines> GroupsOf(const Shown& shown)
{
    std::vector<Lines> groups;
    for (const std::string& element : shown.elements) {
        if (element.starts_with("TripletStartbyte ")) groups.emplace_back();
        if (!groups.empty()) groups.back().push_back(element);
    }
    return groups;
}

TEST(TripletWalk, FramesEachTriplet)
{
    const Shown shown = ShowTriplets(TripletOf("81 01") + TripletOf("81 02"));
    EXPECT_EQ(shown.elements, (Lines{"TripletStartbyte 10", "TripletLength 3", "BeginTriplet x'81'",
                                     "TripletName x'81' (Page Position Information)", "UsePGP 1", "EndTriplet True",
                                     "TripletStartbyte 13", "TripletLength 3", "BeginTriplet x'81'",
                                     "TripletName x'81' (Page Position Information)", "UsePGP 2", "EndTriplet True"}));
    EXPECT_EQ(shown.text, "\nTriplet:<b>→x'81' (Page Position Information)</b>\n"
                          "→Use PGP repeating group with ID: 1\n"
                          "\nTriplet:<b>→x'81' (Page Position Information)</b>\n"
                          "→Use PGP repeating group with ID: 2\n");
}

// The start is a place in the file as the start of the record is, which counts from 1.
TEST(TripletWalk, TellsWhereInTheFileATripletStarts)
{
    const auto file = AfpFile(Packaging::Bare).Add("NOP", Ebcdic("TEXT")).Add("OBD", TripletOf("81 01"));
    FamilyWalk walk(file);
    walk.Next();
    walk.walk.Next();
    EXPECT_EQ(walk.walk.Number(Key::SFStart), 13);
    EXPECT_EQ(walk.walk.Number(Key::TripletStartbyte), 21);
    EXPECT_EQ(walk.walk.Number(Key::TripletLength), 3);
}

TEST(TripletWalk, NeedsMoreThanOneByte)
{
    EXPECT_EQ(ShowTriplets("").elements, Lines{});
    EXPECT_EQ(ShowTriplets(Raw({0x03})).elements, Lines{});
    EXPECT_EQ(IdsOf(ShowTriplets(Raw({0x02, 0x81}))), Lines{"x'81'"});
    // A last single byte stays unread.
    EXPECT_EQ(IdsOf(ShowTriplets(TripletOf("81 01") + Raw({0x03}))), Lines{"x'81'"});
}

// Id 0 ---------------------------------------------------------------------------------------------------------------

TEST(TripletWalk, AFirstIdOfZeroMakesTheWholeFieldPadding)
{
    const Shown shown = ShowTriplets(Raw({0x03, 0x00, 0x00}) + TripletOf("81 01"));
    EXPECT_EQ(shown.elements, (Lines{"TripletStartbyte 10", "TripletLength 3", "BeginTriplet x'00'",
                                     "TripletInvalid True", "InvalidBytes True", "EndTriplet True"}));
    EXPECT_EQ(shown.text, kPadding);
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(TripletWalk, ALaterIdOfZeroMakesTheRestPadding)
{
    const Shown shown = ShowTriplets(TripletOf("81 01") + Raw({0x04, 0x00}) + TripletOf("81 02"));
    EXPECT_EQ(IdsOf(shown), (Lines{"x'81'", "x'00'"}));
    EXPECT_EQ(shown.text, "\nTriplet:<b>→x'81' (Page Position Information)</b>\n→Use PGP repeating group with ID: 1\n" +
                              std::string(kPadding));
}

TEST(TripletWalk, AnIdOfZeroCountsWhateverTheLength)
{
    for (const int length : {0, 1, 2, 200, 255}) {
        const Shown shown = ShowTriplets(Raw({length, 0x00}) + TripletOf("81 01"));
        EXPECT_EQ(shown.elements,
                  (Lines{"TripletStartbyte 10", "TripletLength " + std::to_string(length), "BeginTriplet x'00'",
                         "TripletInvalid True", "InvalidBytes True", "EndTriplet True"}))
            << length;
    }
}

TEST(TripletWalk, ZerosBehindTheTripletsArePadding)
{
    EXPECT_EQ(IdsOf(ShowTriplets(TripletOf("81 01") + Zeros(40))), (Lines{"x'81'", "x'00'"}));
}

// Short triplets -----------------------------------------------------------------------------------------------------

TEST(TripletWalk, EndsBehindATripletOfLengthZero)
{
    const Shown shown = ShowTriplets(Raw({0x00, 0x81, 0x07}) + TripletOf("81 01"));
    EXPECT_EQ(shown.elements, (Lines{"TripletStartbyte 10", "TripletLength 0", "BeginTriplet x'81'",
                                     "TripletName x'81' (Page Position Information)", "UsePGP 7", "EndTriplet True"}));
}

TEST(TripletWalk, MovesByOneForALengthOfOne)
{
    // The next triplet begins at the id, which then is its length.
    const Shown shown = ShowTriplets(Raw({0x01, 0x04, 0x81, 0x05, 0x00}) + TripletOf("81 01"));
    EXPECT_EQ(IdsOf(shown), (Lines{"x'04'", "x'81'", "x'81'"}));
    EXPECT_EQ(ValuesOf(shown, "TripletLength"), (Lines{"1", "4", "3"}));
    EXPECT_EQ(ValuesOf(shown, "TripletStartbyte"), (Lines{"10", "11", "15"}));
}

TEST(TripletWalk, ReadsTheKeysOfAShortTripletFromWhatFollows)
{
    const Shown shown = ShowTriplets(Raw({0x02, 0x81}) + TripletOf("81 01"));
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), (Lines{"3", "1"}));
}

// Unknown ids --------------------------------------------------------------------------------------------------------

TEST(TripletWalk, TellsOfAnUnknownIdAndGoesOn)
{
    const Shown shown = ShowTriplets(TripletOf("9E 01") + TripletOf("81 01"));
    EXPECT_EQ(GroupsOf(shown).at(0), (Lines{"TripletStartbyte 10", "TripletLength 3", "BeginTriplet x'9E'",
                                            "TripletUnknown True", "HexCode 9E", "EndTriplet True"}));
    EXPECT_EQ(shown.text, "Triplet\n: <red>Unknown</red>\n→Hex-Codes: x'9E'\n"
                          "\nTriplet:<b>→x'81' (Page Position Information)</b>\n→Use PGP repeating group with ID: 1\n");
    EXPECT_EQ(shown.heard, (Lines{"Message Triplet: Unknown", "Invalid"}));
}

TEST(TripletWalk, WritesAnUnknownIdWithTwoDigits)
{
    const Shown shown = ShowTriplets(TripletOf("05 01"));
    EXPECT_EQ(IdsOf(shown), Lines{"x'05'"});
    EXPECT_EQ(ValuesOf(shown, "HexCode"), Lines{"05"});
}

TEST(TripletWalk, SendsAMessageForEachUnknownTriplet)
{
    EXPECT_EQ(ShowTriplets(TripletOf("9E") + TripletOf("9E")).heard,
              (Lines{"Message Triplet: Unknown", "Invalid", "Message Triplet: Unknown", "Invalid"}));
}

// The end of the field -----------------------------------------------------------------------------------------------

TEST(TripletWalk, ATripletThatRunsPastTheFieldIsNotCut)
{
    // The value's bytes stand in the record behind.
    const auto file = AfpFile(Packaging::Bare)
                          .Add("OBD", Raw({0x09, 0x36, 0x00, 0x00}) + Ebcdic("AB"))
                          .Noise(Ebcdic("CDE"))
                          .Add("EPG");
    const Shown shown = FamilyWalk(file).Next();
    EXPECT_EQ(IdsOf(shown), Lines{"x'36'"});
    EXPECT_EQ(ValuesOf(shown, "Content"), Lines{"ABCDE"});
}

TEST(TripletWalk, ATripletThatRunsPastTheFieldIsTheLast)
{
    const Shown shown = ShowTriplets(TripletOf("81 01") + Raw({0xFF, 0x81, 0x02}));
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), (Lines{"1", "2"}));
    EXPECT_EQ(ValuesOf(shown, "EndTriplet"), (Lines{"True", "True"}));
}

TEST(TripletWalk, EndsWithTheGroupThatHoldsIt)
{
    // The first group's triplet runs past the group; the second starts where the group's length says.
    const Bytes group = Raw({0x00, 0x05, 0x09, 0x81, 0x01});
    const Shown shown = ShowRecord({"MMD", group + U2(5) + TripletOf("81 02")});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), (Lines{"1", "2"}));
    EXPECT_EQ(ValuesOf(shown, "BeginRepetitionTRP"), (Lines{"1", "2"}));
}

TEST(TripletWalk, PaddingInAGroupEndsWithTheGroup)
{
    const Shown shown = ShowRecord({"MMD", U2(6) + Zeros(4) + U2(5) + TripletOf("81 02")});
    EXPECT_EQ(IdsOf(shown), (Lines{"x'00'", "x'81'"}));
}

TEST(TripletWalk, GoesOnToTheLastTriplet)
{
    // As many triplets of two bytes as a field can hold.
    Bytes triplets;
    for (int i = 0; i < 16'000; ++i) triplets += Raw({0x02, 0x04});
    const Shown shown = ShowTriplets(triplets);
    EXPECT_EQ(IdsOf(shown).size(), 16'000u);
    EXPECT_EQ(ValuesOf(shown, "EndTriplet").size(), 16'000u);
    EXPECT_EQ(ValuesOf(shown, "TripletStartbyte").back(), std::to_string(10 + 2 * 15'999));
}

TEST(TripletWalk, AFieldOfLengthsOfOneHasAnElementGroupAByte)
{
    const Shown shown = ShowTriplets(Bytes(32'000, '\x01'));
    EXPECT_EQ(IdsOf(shown).size(), 31'999u);
    EXPECT_LE(shown.text.size(), 65'536u * 4);
}

TEST(TripletWalk, TextThatIsTooLongLeavesTheIndentationRight)
{
    // The text is full long before the last triplet; FamilyWalk holds the indentation against none after each record.
    Bytes triplets;
    for (int i = 0; i < 4'000; ++i) triplets += TripletOf("81 01");
    FamilyWalk walk(AfpFile().Add("OBD", triplets).Add("OBD", TripletOf("81 01")));
    EXPECT_NE(walk.Next().text.find("..."), std::string::npos);
    EXPECT_TRUE(walk.Next().text.starts_with("\nTriplet:<b>"));
}

// Where triplets stand -----------------------------------------------------------------------------------------------

struct Place {
    std::string_view field;
    int before;  // bytes
};

TEST(TripletWalk, BeginsBehindTheFixedPartOfAField)
{
    // clang-format off
    constexpr Place kPlaces[] = {
        {"OBD", 0}, {"TLE", 0}, {"IEL", 0}, {"CTC", 2}, {"PEC", 2}, {"MCD", 2}, {"MPT", 2}, {"MPG", 2}, {"MGO", 2},
        {"MIO", 2}, {"MBC", 2}, {"BPG", 8}, {"BNG", 8}, {"BCP", 8}, {"EOC", 8}, {"ECA", 8}, {"IMM", 8}, {"BDM", 9},
        {"BDT", 10}, {"BRS", 10}, {"CDD", 12}, {"MDD", 13}, {"IPS", 14}, {"PGD", 15}, {"IPO", 16}, {"IPG", 17},
        {"IOB", 27},
    };
    // clang-format on
    for (const auto& [field, before] : kPlaces) {
        const Bytes fixed(static_cast<std::size_t>(before), '\x01');
        const Shown shown = ShowRecord({field, fixed + TripletOf("81 05")});
        EXPECT_EQ(IdsOf(shown), Lines{"x'81'"}) << field;
        EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"5"}) << field;
    }
}

TEST(TripletWalk, IsNotTakenByFieldsWithoutTriplets)
{
    for (const std::string_view field :
         {"BCF", "BFG", "BPM", "BDX", "BII", "ECF", "EFN", "ECP", "EII", "EDG",   "EFG", "EFM", "EPM", "EDM",
          "EAG", "EOG", "ESG", "ERS", "EDX", "EMM", "EPS", "FGD", "DXD", "PTD-1", "MSU", "MPS", "MMO"})
        EXPECT_EQ(IdsOf(ShowRecord({field, Ebcdic8("NAME") + TripletOf("81 05")})), Lines{}) << field;
}

TEST(TripletWalk, StopsBeforeThePaddingOfTheField)
{
    const Shown shown = ShowRecord({"OBD", TripletOf("81 01") + Raw({0x09, 0x81, 0x02, 0x04}), 0x08});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
}

}  // namespace
}  // namespace folioscope
