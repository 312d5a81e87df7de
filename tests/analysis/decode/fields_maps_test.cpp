// Maps of resources to local identifiers, and what is to be processed before.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// Elements and lines without the resources that the names are.
void ExpectRecord(std::string_view field, std::string_view pieces, std::string_view expected)
{
    Shown shown = ShowRecord({field, Pieces(pieces)});
    std::erase_if(shown.typed, [](const std::string& element) { return element.starts_with("Text AddResource "); });
    ExpectShown(shown.typed, shown.text, expected);
}

// MCF-1
// --------------------------------------------------------------------------------------------------------------------

constexpr std::string_view kFont = "05 00 41 00 'X0GT10  ' 'T1V10037' 'C0H200B0'";
constexpr std::string_view kFontLines = "Int32 ID 5 | →Identifier: 5\n"
                                        "Byte SectionID 65 | →Doublebyte Section ID: 65\n"
                                        "Text FONName X0GT10   | →External font name:→<b>X0GT10  </b>\n"
                                        "Text CDPName T1V10037 | →External code page name:→<b>T1V10037</b>\n"
                                        "Text CHSName C0H200B0 | →External character set name:→<b>C0H200B0</b>\n";

TEST(MCF1, MapsFonts)
{
    ExpectRecord("MCF-1", "1C 00*3 " + std::string(kFont) + ' ' + std::string(kFont),
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 28\n" +
                     std::string(kFontLines) +
                     "Int16 EndRepetition 1\n"
                     "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                     "Int32 Length 28\n" +
                     std::string(kFontLines) + "Int16 EndRepetition 2");
}

TEST(MCF1, HasARotationInGroupsOfThirtyBytes)
{
    ExpectRecord("MCF-1", "1E 00*3 " + std::string(kFont) + " 8700",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 30\n" +
                     std::string(kFontLines) +
                     "Int16 CharRotation 270 | →Character Rotation: 270°\n"
                     "Int16 EndRepetition 1");
}

TEST(MCF1, HasARotationIfTheGroupIsLongEnough)
{
    const auto of = [](unsigned length, unsigned byte) {
        const Bytes group = Pieces(kFont) + U1(byte) + Zeros(10);
        return ValuesOf(ShowRecord({"MCF-1", U1(length) + Zeros(3) + group.substr(0, length)}), "CharRotation");
    };
    EXPECT_EQ(of(28, 0x2D), Lines{});
    EXPECT_EQ(of(29, 0x2D), Lines{});
    EXPECT_EQ(of(30, 0x2D), Lines{"90"});
    EXPECT_EQ(of(31, 0x2D), Lines{"90"});
    EXPECT_EQ(of(30, 0x2E), Lines{});
}

TEST(MCF1, OfAGroupLengthOfZeroHasOneGroup)
{
    const Shown shown = ShowRecord({"MCF-1", Pieces("00 00*3 " + std::string(kFont) + ' ' + std::string(kFont))});
    EXPECT_EQ(ValuesOf(shown, "Length"), Lines{"0"});
    EXPECT_EQ(ValuesOf(shown, "FONName"), Lines{"X0GT10  "});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"});
}

TEST(MCF1, ShowsNothingForNamesThatAreNotGiven)
{
    const Shown shown = ShowRecord({"MCF-1", Pieces("1C 00*3 05 00 00 00 FF*8 00*8 'C0H200B0'")});
    EXPECT_NE(shown.text.find("→External font name:→<b></b>\n→External code page name:→<b></b>\n"), std::string::npos);
}

TEST(MCF1, WithoutGroupsIsEmpty)
{
    EXPECT_EQ(ShowRecord({"MCF-1", Pieces("1C 00*3")}).elements, Lines{});
    EXPECT_EQ(ShowRecord({"MCF-1", Pieces("1C 00*3 05")}).elements, Lines{});
}

// MSU, MMO, MPS
// ------------------------------------------------------------------------------------------------------------

TEST(MSU, MapsSuppressions)
{
    ExpectRecord("MSU", "'SUPP1   ' 00 05 'SUPP2   ' FF FE",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 10\n"
                 "Text Name SUPP1    | →Name:<b>→SUPP1</b>\n"
                 "Int32 ID 5 | →Identifier: 5\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 10\n"
                 "Text Name SUPP2    | →Name:<b>→SUPP2</b>\n"
                 "Int32 ID 254 | →Identifier: 254\n"
                 "Int16 EndRepetition 2");
}

TEST(MMO, MapsOverlays)
{
    ExpectRecord("MMO", "0C 00*3 05 80 0000 'O1ONE   ' 06 7F 0000 'O1TWO   '",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 12\n"
                 "Int32 ID 5 | →Identifier: 5\n"
                 "Int16 OVLType 1 | →Overlay type: Coded\n"
                 "Text Name O1ONE    | →Name:<b>→O1ONE</b>\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 12\n"
                 "Int32 ID 6 | →Identifier: 6\n"
                 "Int16 OVLType 2 | →Overlay type: Rastered\n"
                 "Text Name O1TWO    | →Name:<b>→O1TWO</b>\n"
                 "Int16 EndRepetition 2");
}

TEST(MPS, MapsPageSegments)
{
    ExpectRecord("MPS", "0C 00*3 00*4 'S1ONE   ' 00*4 'S1TWO   '",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 12\n"
                 "Text Name S1ONE    | →Name:<b>→S1ONE</b>\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 12\n"
                 "Text Name S1TWO    | →Name:<b>→S1TWO</b>\n"
                 "Int16 EndRepetition 2");
}

TEST(Maps, OfGroupsOfOneSizeNeedAFieldOfTheirOwn)
{
    for (const std::string_view field : {"MMO", "MPS"}) {
        EXPECT_EQ(ShowRecord({field, Zeros(4)}).elements, Lines{}) << field;
        EXPECT_EQ(ShowRecord({field, Zeros(5)}).elements, Lines{}) << field;
        EXPECT_EQ(ValuesOf(ShowRecord({field, Zeros(6)}), "EndRepetition"), Lines{"1"}) << field;
    }
}

// PPO
// ----------------------------------------------------------------------------------------------------------------------

TEST(PPO, TellsWhatToProcess)
{
    ExpectRecord("PPO", "000F FB 0000 A8 0000F0 FFFFFF 03 81 01 000C DF 0000 50 FFFFFF 800000",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 15\n"
                 "Byte ObjectType 251 | →Object Type: Image (IOCA)\n"
                 "Boolean PPOOrient0 1 | →Preprocess and cache at 0°: process\n"
                 "Boolean PPOOrient90 0 | →Preprocess and cache at 90°: Do not process\n"
                 "Boolean PPOOrient180 1 | →Preprocess and cache at 180°: process\n"
                 "Boolean PPOOrient270 0 | →Preprocess and cache at 270°: Do not process\n"
                 "Boolean PPOPreprocess 1 | →All pages instead of only one page: Yes\n"
                 "Int32 OffsetX 240 | →Offset in X direction: 240\n"
                 "Text OffsetY Default | →Offset in Y direction: Default\n"
                 "Int32 TripletStartbyte 22\n"
                 "Int32 TripletLength 3\n"
                 "Text BeginTriplet x'81' | →~\n"
                 "Text TripletName x'81' (Page Position Information) | "
                 "¶→Triplet:<b>→x'81' (Page Position Information)</b>\n"
                 "Byte UsePGP 1 | →→Use PGP repeating group with ID: 1\n"
                 "Boolean EndTriplet 1\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 12\n"
                 "Byte ObjectType 223 | →Object Type: Overlay\n"
                 "Boolean PPOOrient0 0 | →Preprocess and cache at 0°: Do not process\n"
                 "Boolean PPOOrient90 1 | →Preprocess and cache at 90°: process\n"
                 "Boolean PPOOrient180 0 | →Preprocess and cache at 180°: Do not process\n"
                 "Boolean PPOOrient270 1 | →Preprocess and cache at 270°: process\n"
                 "Boolean PPOPreprocess 0 | →All pages instead of only one page: No\n"
                 "Text OffsetX Default | →Offset in X direction: Default\n"
                 "Int32 OffsetY 8388608 | →Offset in Y direction: 8,388,608\n"
                 "Int16 EndRepetition 2");
}

TEST(PPO, OfAGroupLengthBelowTwoHasOneGroup)
{
    for (const std::string_view length : {"0000", "0001"}) {
        const Shown shown = ShowRecord({"PPO", Pieces(std::string(length) + " FB 0000 80 00*6 000C FB 0000 80 00*6")});
        EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"}) << length;
        EXPECT_EQ(ValuesOf(shown, "ObjectType"), Lines{"251"}) << length;
    }
}

// Groups of triplets
// -------------------------------------------------------------------------------------------------------

TEST(MCF2, MapsFontsByTriplets)
{
    const Bytes group = TripletOf("02 85 00 'T1V10037'") + TripletOf("24 05 01");
    const Shown shown = ShowRecord({"MCF-2", U2(static_cast<unsigned>(group.size()) + 2) + group});
    EXPECT_NE(shown.text.find("\nElement 1\n→\n→Triplet:<b>→x'02' (Fully Qualified Name)</b>\n"
                              "→→Name subtype: x'85' (Code Page Name Reference)\n"
                              "→→GID format: Character string\n"
                              "→→Content:→<b>T1V10037</b>\n"
                              "→→Hex-Codes: x'E3 F1 E5 F1 F0 F0 F3 F7'\n"
                              "→\n→Triplet:<b>→x'24' (Resource Local ID)</b>\n"
                              "→→Resource Type: Font\n"
                              "→→Local Identifier: 1\n"),
              std::string::npos)
        << shown.text;
}

TEST(MDR, ReadsNamesByTheClassInItsOwnGroup)
{
    // What the first group says of its object holds for the groups behind it, too.
    const Bytes first = TripletOf("10 00 01 0000 90 00 06072B120004010139 00*7") + TripletOf("02 DE 00 0041 00DC");
    const Bytes second = TripletOf("02 DE 00 0042 00DC");
    const auto group = [](const Bytes& triplets) { return U2(static_cast<unsigned>(triplets.size()) + 2) + triplets; };
    EXPECT_EQ(ValuesOf(ShowRecord({"MDR", group(first) + group(second)}), "Content"), (Lines{"AÜ", "BÜ"}));
}

}  // namespace
}  // namespace folioscope
