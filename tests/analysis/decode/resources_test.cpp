// The Elements that tell a consumer which resources a file has and which it needs.

#include "analysis/decode/resources.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

Lines ResourcesOf(const Shown& shown) { return ValuesOf(shown, "AddResource"); }

Bytes TripletGroup(const Bytes& triplets) { return U2(static_cast<unsigned>(triplets.size()) + 2) + triplets; }

const Bytes kNamed = TripletOf("02 8D 00 'OBJECT01'") + TripletOf("02 8E 00 'X0FONT  '") +
                     TripletOf("02 86 00 'C0CHARS '") + TripletOf("02 85 00 'T1PAGE  '");

struct ReferenceCase {
    std::string_view field;
    Bytes data;
    Lines resources;
};

std::vector<ReferenceCase> References()
{
    return {
        {"BNG", Ebcdic8("GROUP1"), {"10/E/GROUP1/GROUP1"}},
        {"IMM", Ebcdic8("MAP1"), {"10/E/MAP1/MAP1"}},
        {"IDM", Ebcdic8("MAP2"), {"9/E/MAP2/MAP2"}},
        {"MPO", TripletGroup(kNamed), {"6/E/OBJECT01/OBJECT01"}},
        {"IPO", Ebcdic8("O1ONE") + Zeros(8), {"6/E/O1ONE/O1ONE"}},
        {"MMO",
         Zeros(4) + Zeros(4) + Ebcdic8("O1ONE") + Zeros(4) + Ebcdic8("O1TWO"),
         {"6/E/O1ONE/O1ONE", "6/E/O1TWO/O1TWO"}},
        {"IPS", Ebcdic8("S1ONE") + Zeros(6), {"5/E/S1ONE/S1ONE"}},
        {"MPS",
         Zeros(4) + Zeros(4) + Ebcdic8("S1ONE") + Zeros(4) + Ebcdic8("S1TWO"),
         {"5/E/S1ONE/S1ONE", "5/E/S1TWO/S1TWO"}},
        {"IOB", Ebcdic8("LOGO") + Zeros(19), {"4/E/LOGO/LOGO"}},
        {"MDR", TripletGroup(kNamed), {"4/E/OBJECT01/OBJECT01", "3/E/FONT/FONT", "2/E/CHARS/CHARS", "1/E/PAGE/PAGE"}},
        {"MCF-2", TripletGroup(kNamed), {"4/E/OBJECT01/OBJECT01", "3/E/FONT/FONT", "2/E/CHARS/CHARS", "1/E/PAGE/PAGE"}},
        {"MCF-1",
         Raw({28, 0, 0, 0, 5, 0, 0, 0}) + Ebcdic("X0FONT  T1PAGE  C0CHARS "),
         {"3/E/X0FONT/X0FONT", "3/E/T1PAGE/T1PAGE", "3/E/C0CHARS/C0CHARS"}},
    };
}

TEST(AddResource, TellsOfReferences)
{
    for (const auto& [field, data, resources] : References())
        EXPECT_EQ(ResourcesOf(ShowRecord({field, data})), resources) << field;
}

TEST(AddResource, TellsOfNoReferenceInsideOfAResourceGroup)
{
    AfpFile file;
    file.Add("BRG");
    for (const auto& reference : References()) file.Add(reference.field, reference.data);
    file.Add("ERG").Add("IPS", Ebcdic8("S1ONE") + Zeros(6));
    FamilyWalk walk(file);
    walk.Next();
    for (const auto& reference : References()) EXPECT_EQ(ResourcesOf(walk.Next()), Lines{}) << reference.field;
    walk.Next();
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"5/E/S1ONE/S1ONE"});
}

TEST(AddResource, ShowsNothing)
{
    for (const auto& [field, data, resources] : References())
        EXPECT_EQ(ShowRecord({field, data}).text.find("/E/"), std::string::npos) << field;
}

TEST(AddResource, OfAGroupForgetsTheGroupBefore)
{
    const Shown shown = ShowRecord({"MCF-2", TripletGroup(kNamed) + TripletGroup(TripletOf("02 8E 00 'X0OTHER '"))});
    EXPECT_EQ(ResourcesOf(shown),
              (Lines{"4/E/OBJECT01/OBJECT01", "3/E/FONT/FONT", "2/E/CHARS/CHARS", "1/E/PAGE/PAGE", "3/E/OTHER/OTHER"}));
    EXPECT_EQ(ResourcesOf(ShowRecord({"MPO", TripletGroup(kNamed) + TripletGroup(TripletOf("24 02 01"))})),
              Lines{"6/E/OBJECT01/OBJECT01"});
}

TEST(AddResource, OfANameWithoutAKindIsNone)
{
    EXPECT_EQ(ResourcesOf(ShowRecord({"MCF-2", TripletGroup(TripletOf("02 8E 00 'X0'"))})), Lines{});
    EXPECT_EQ(ResourcesOf(ShowRecord({"MCF-2", TripletGroup(TripletOf("02 8E 00 'X0A'"))})), Lines{"3/E/A/A"});
}

// The first two characters tell the kind, and a character can have more than one byte.
TEST(AddResource, CountsCharactersOfAName)
{
    const Shown shown = ShowRecord({"MCF-2", TripletGroup(TripletOf("02 8E 00 63 63 'FONT'"))});  // x'63': Ä
    EXPECT_EQ(ResourcesOf(shown), Lines{"3/E/FONT/FONT"});
    EXPECT_EQ(ResourcesOf(ShowRecord({"BRS", Pieces("63 63 'FONT  ' 0000") + TripletOf("21 40")})),
              Lines{"64/I/ÄÄFONT  /FONT  "});
}

// Resources of the file itself
// ---------------------------------------------------------------------------------------------

TEST(AddResource, TellsOfAResourceByItsType)
{
    const Shown shown = ShowRecord({"BRS", Ebcdic("C0H200B0") + Zeros(2) + TripletOf("21 40")});
    EXPECT_EQ(ResourcesOf(shown), Lines{"64/I/C0H200B0/H200B0"});
    EXPECT_EQ(ResourcesOf(ShowRecord({"BRS", Ebcdic("C0H200B0") + Zeros(2)})), Lines{"0/I/C0H200B0/C0H200B0"});
}

TEST(AddResource, OfAResourceWithANameOfBlanksHasAKeyOfBlanks)
{
    EXPECT_EQ(ResourcesOf(ShowRecord({"BRS", Ebcdic8("") + Zeros(2)})), Lines{"0/I/        /        "});
}

TEST(AddResource, OfAResourceForgetsTheTypeBefore)
{
    FamilyWalk walk(AfpFile()
                        .Add("BRS", Ebcdic("C0H200B0") + Zeros(2) + TripletOf("21 40"))
                        .Add("BRS", Ebcdic("F1FORMAL") + Zeros(2)));
    walk.Next();
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"0/I/F1FORMAL/F1FORMAL"});
}

TEST(AddResource, OfMapsTellsTheResourceAround)
{
    FamilyWalk walk(AfpFile()
                        .Add("BRG")
                        .Add("BRS", Ebcdic("F1FORMAL") + Zeros(2) + TripletOf("21 FE"))
                        .Add("BMM", Ebcdic8("MAP1"))
                        .Add("BDM", Ebcdic8("MAP2"))
                        .Add("ERG")
                        .Add("BMM", Ebcdic8("MAP3")));
    walk.Next();
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"254/I/F1FORMAL/FORMAL"});
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"8/I/F1FORMAL (MAP1)/MAP1"});
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"7/I/F1FORMAL (MAP2)/MAP2"});
    walk.Next();
    EXPECT_EQ(ResourcesOf(walk.Next()), Lines{"8/I/F1FORMAL (MAP3)/MAP3"});
}

TEST(AddResource, OfAGroupWithoutANameIsNone) { EXPECT_EQ(ResourcesOf(ShowRecord({"BNG", Ebcdic8("")})), Lines{}); }

TEST(AddResource, IsNotAddedByOtherFields)
{
    for (const std::string_view field : {"BDT", "BPG", "BPS", "BMO", "BFM", "BOC", "EMM", "ERS", "IPG", "TLE", "NOP",
                                         "MSU", "MMD", "MMT", "MCA", "PPO"})
        EXPECT_EQ(ResourcesOf(ShowRecord({field, Ebcdic8("NAME") + Zeros(20)})), Lines{}) << field;
}

}  // namespace
}  // namespace folioscope
