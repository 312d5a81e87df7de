// The fields between the Begin and End fields: attributes, links, index elements; and the Begins that hold more than a
// name.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// TLE
// ----------------------------------------------------------------------------------------------------------------------

Lines CaptionOf(const Bytes& triplets) { return ValuesOf(ShowRecord({"TLE", triplets}), "ShowResName"); }

TEST(TLE, IsCaptionedByNameAndValue)
{
    const Shown shown = ShowRecord({"TLE", TripletOf("02 0B 00 'Account'") + TripletOf("36 0000 '4711'")});
    EXPECT_EQ(shown.elements.back(), "ShowResName Account -> 4711");
    EXPECT_EQ(shown.heard, Lines{"ResName Account -> 4711"});
    EXPECT_EQ(shown.text, "\nTriplet:<b>→x'02' (Fully Qualified Name)</b>\n"
                          "→Name subtype: x'0B' (Attribute GID)\n"
                          "→GID format: Character string\n"
                          "→Content:→<b>Account</b>\n"
                          "\nTriplet:<b>→x'36' (Attribute Value)</b>\n"
                          "→Content:→<b>4711</b>\n");
}

TEST(TLE, TakesTheNameForATreeAndTheValueAsItIs)
{
    // x'7C' is "@".
    EXPECT_EQ(CaptionOf(TripletOf("02 0B 00 40 'A' 7C 'B' 40") + TripletOf("36 0000 40 'V' 7C 40")),
              Lines{"A B ->  V@ "});
}

TEST(TLE, WithoutAValueIsCaptionedByTheNameAlone)
{
    EXPECT_EQ(CaptionOf(TripletOf("02 0B 00 'Account'")), Lines{"Account"});
    EXPECT_EQ(CaptionOf(TripletOf("36 0000 '4711'")), Lines{" -> 4711"});
    EXPECT_EQ(CaptionOf(TripletOf("02 0B 00 'Account'") + TripletOf("36 0000") + TripletOf("81 01")),
              Lines{"Account -> "});
    EXPECT_EQ(CaptionOf(""), Lines{""});
}

TEST(TLE, TakesTheLastOfSeveralValues)
{
    EXPECT_EQ(CaptionOf(TripletOf("36 0000 'ONE'") + TripletOf("02 0B 00 'NAME'") + TripletOf("36 0000 'TWO'")),
              Lines{"NAME -> TWO"});
}

TEST(TLE, TakesNamesOfAttributesOnly)
{
    EXPECT_EQ(CaptionOf(TripletOf("02 0B 00 'NAME'") + TripletOf("02 0D 00 'OTHER'") + TripletOf("36 0000 'V'")),
              Lines{"NAME -> V"});
}

TEST(TLE, ForgetsTheAttributeBefore)
{
    FamilyWalk walk(AfpFile()
                        .Add("TLE", TripletOf("02 0B 00 'NAME'") + TripletOf("36 0000 'V'"))
                        .Add("TLE", TripletOf("80 00000001 00000002")));
    walk.Next();
    EXPECT_EQ(ValuesOf(walk.Next(), "ShowResName"), Lines{""});
}

TEST(TLE, IsNotNamedByOtherFields)
{
    FamilyWalk walk(AfpFile()
                        .Add("IEL", TripletOf("02 0B 00 'NAME'") + TripletOf("36 0000 'V'"))
                        .Add("TLE", TripletOf("36 0000 'W'")));
    walk.Next();
    EXPECT_EQ(ValuesOf(walk.Next(), "ShowResName"), Lines{" -> W"});
}

TEST(IEL, HoldsTripletsAndHasNoCaption)
{
    const Shown shown = ShowRecord({"IEL", TripletOf("02 CA 00 'INDEX'") + TripletOf("56 00000001")});
    EXPECT_EQ(ValuesOf(shown, "TripletName"),
              (Lines{"x'02' (Fully Qualified Name)", "x'56' (Medium Map Page Number)"}));
    EXPECT_FALSE(Has(shown, "ShowResName"));
}

// LLE
// ----------------------------------------------------------------------------------------------------------------------

Bytes LinkGroup(int type, const Bytes& triplets)
{
    return U2(static_cast<unsigned>(triplets.size()) + 3) + Raw({type}) + triplets;
}

const Bytes kUrl = TripletOf("02 DE 20 <http://a.b>");

TEST(LLE, LinksASourceToATarget)
{
    const Shown shown = ShowRecord({"LLE", Raw({1, 0}) + LinkGroup(2, TripletOf("02 0C 00 'S'")) + LinkGroup(3, kUrl)});
    ExpectShown(shown.typed, shown.text,
                "Byte LinkType 1 | Link Type: Navigation\n"
                "Int16 BeginRepetitionTRP 1 | ¶Element 1\n"
                "Int32 Length 8\n"
                "Byte GroupType 2 | →Group Type: Source\n"
                "Int32 TripletStartbyte 15\n"
                "Int32 TripletLength 5\n"
                "Text BeginTriplet x'02' | →~\n"
                "Text TripletName x'02' (Fully Qualified Name) | ¶→Triplet:<b>→x'02' (Fully Qualified Name)</b>\n"
                "Text FQNType x'0C' (Process Element GID) | →→Name subtype: x'0C' (Process Element GID)\n"
                "Int16 FQNFormat 1 | →→GID format: Character string\n"
                "Text Content S | →→Content:→<b>S</b>\n"
                "Text HexCode E2 | →→Hex-Codes: x'E2'\n"
                "Text ShowTripletContent FQN: S\n"
                "Boolean EndTriplet 1\n"
                "Int16 EndRepetitionTRP 1\n"
                "Int16 BeginRepetitionTRP 2 | ¶Element 2\n"
                "Int32 Length 17\n"
                "Byte GroupType 3 | →Group Type: Target\n"
                "Int32 TripletStartbyte 23\n"
                "Int32 TripletLength 14\n"
                "Text BeginTriplet x'02' | →~\n"
                "Text TripletName x'02' (Fully Qualified Name) | ¶→Triplet:<b>→x'02' (Fully Qualified Name)</b>\n"
                "Text FQNType x'DE' (Data Object External Resource Reference) | "
                "→→Name subtype: x'DE' (Data Object External Resource Reference)\n"
                "Int16 FQNFormat 5 | →→GID format: URL\n"
                "Text Hyperlink http://a.b | →→Hyperlink: <link>http://a.b</link>\n"
                "Text ShowTripletContent URL: http://a.b\n"
                "Boolean EndTriplet 1\n"
                "Int16 EndRepetitionTRP 2");
}

TEST(LLE, HasAHyperlinkInTheTargetOfANavigationOnly)
{
    for (const int link : {0, 1, 2, 3, 4})
        for (const int group : {0, 1, 2, 3, 4}) {
            const Shown shown = ShowRecord({"LLE", Raw({link, 0}) + LinkGroup(group, kUrl)});
            const bool followed = link == 1 && group == 3;
            EXPECT_EQ(Has(shown, "Hyperlink"), followed) << link << group;
            EXPECT_EQ(Has(shown, "Content"), !followed) << link << group;
        }
}

TEST(LLE, HasHyperlinksInEachTarget)
{
    const Shown shown =
        ShowRecord({"LLE", Raw({1, 0}) + LinkGroup(3, kUrl) + LinkGroup(2, kUrl) + LinkGroup(3, kUrl + kUrl)});
    EXPECT_EQ(ValuesOf(shown, "Hyperlink").size(), 3u);
    EXPECT_EQ(ValuesOf(shown, "Content").size(), 1u);
}

TEST(LLE, LeavesNoLinkToTheFieldBehind)
{
    FamilyWalk walk(AfpFile().Add("LLE", Raw({1, 0}) + LinkGroup(3, kUrl)).Add("OBD", kUrl));
    walk.Next();
    EXPECT_FALSE(Has(walk.Next(), "Hyperlink"));
}

TEST(LLE, ReadsItsTypeWhateverItsLength)
{
    EXPECT_EQ(ShowRecord({"LLE"}).elements, Lines{"LinkType 0"});
    EXPECT_EQ(ShowRecord({"LLE", Raw({3})}).elements, Lines{"LinkType 3"});
    EXPECT_EQ(ShowRecord({"LLE", Raw({3, 0, 0})}).elements, Lines{"LinkType 3"});
}

TEST(LLE, OfAGroupLengthBelowTwoHasOneGroup)
{
    for (const unsigned length : {0u, 1u}) {
        const Shown shown = ShowRecord({"LLE", Raw({1, 0}) + U2(length) + Raw({3}) + kUrl});
        EXPECT_EQ(ValuesOf(shown, "EndRepetitionTRP"), Lines{"1"});
        EXPECT_EQ(ValuesOf(shown, "GroupType"), Lines{"3"});
        EXPECT_FALSE(Has(shown, "BeginTriplet"));
    }
}

// Begins that hold more
// ----------------------------------------------------------------------------------------------------

TEST(BDM, TellsHowLineDataAreFormatted)
{
    const Shown shown = ShowRecord({"BDM", Ebcdic8("MAP1") + Raw({2}) + TripletOf("81 01")});
    EXPECT_EQ(ValuesOf(shown, "LDFormat"), Lines{"2"});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
    EXPECT_NE(shown.text.find("Name:<b>→MAP1</b>\nLine Data will be formatted with: XML\n"), std::string::npos);
}

TEST(BDM, HasAFormatIfThereIsRoomForIt)
{
    EXPECT_FALSE(Has(ShowRecord({"BDM", Ebcdic8("MAP1")}), "LDFormat"));
    EXPECT_TRUE(Has(ShowRecord({"BDM", Ebcdic8("MAP1") + Raw({0})}), "LDFormat"));
    EXPECT_FALSE(Has(ShowRecord({"BDM"}), "LDFormat"));
}

TEST(BDT, PassesTwoBytesBehindItsName)
{
    const Shown shown = ShowRecord({"BDT", Ebcdic8("DOC") + Raw({0xFF, 0xFF}) + TripletOf("81 01")});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
    EXPECT_EQ(shown.elements.back(), "ShowResName DOC");
    EXPECT_EQ(ShowRecord({"BDT", Ebcdic8("DOC")}).elements, (Lines{"Name DOC     ", "ShowResName DOC"}));
}

TEST(BRS, PassesTwoBytesBehindItsName)
{
    const Shown shown = ShowRecord({"BRS", Ebcdic8("RES") + Raw({0xFF, 0xFF}) + TripletOf("21 FE")});
    EXPECT_EQ(ValuesOf(shown, "ResObjType"), Lines{"254"});
    EXPECT_EQ(ValuesOf(shown, "ShowResName"), Lines{"RES"});
}

TEST(NamedFields, HaveTripletsBehindTheirName)
{
    for (const std::string_view field : {"BPF", "BDI", "BPG", "BGR", "BDG", "BOG", "BAG", "BPT", "BFN", "BSG", "BFM",
                                         "BBC", "BIM", "BCA", "BPS", "BMO", "BNG", "BMM", "BOC", "BRG", "EPF", "EDI",
                                         "EDT", "ENG", "EPG", "EGR", "EMO", "EBC", "EPT", "ECA", "EOC", "EIM", "ERG"}) {
        const Shown shown = ShowRecord({field, Ebcdic8("NAME") + TripletOf("81 01")});
        EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"}) << field;
        EXPECT_EQ(ValuesOf(shown, "ShowResName"), Lines{"NAME"}) << field;
    }
}

TEST(BCP, HasTripletsAndNoCaption)
{
    const Shown shown = ShowRecord({"BCP", Ebcdic8("T1V10037") + TripletOf("81 01")});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
    EXPECT_FALSE(Has(shown, "ShowResName"));
}

TEST(BOC, PreparesToGatherWhatIsDecodedFurther)
{
    const std::string_view entries[] = {"39", "43", "17"};
    for (const std::string_view entry : entries) {
        FamilyWalk walk(AfpFile().Add("BOC", Ebcdic8("OBJECT") + TripletOf("10 00 01 0000 90 00 06072B1200040101" +
                                                                           std::string(entry) + " 00*7")));
        walk.walk.afp.ObjectBuffer = {1, 2, 3};
        walk.Next();
        const bool gathered = entry != "17";
        EXPECT_EQ(walk.walk.afp.ObjectBuffer,
                  gathered ? std::vector<std::uint8_t>{} : (std::vector<std::uint8_t>{1, 2, 3}))
            << entry;
    }
}

}  // namespace
}  // namespace folioscope
