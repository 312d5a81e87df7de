// The header of a colour management resource.

#include <gtest/gtest.h>

#include "colour/colour_support.h"

namespace folioscope {
namespace {

using namespace test;

Cmr FullHeader()
{
    return Cmr()
        .Header(4, Raw({1, 2, 3, 4, 5, 6}))
        .Header(10, Filled("ALIAS", 16))
        .Header(26, Wide("HT"))
        .Header(30, Filled("001.000", 14))
        .Header(44, Filled("ACME", 10))
        .Header(54, Filled("LASER7", 12))
        .Header(66, Filled("M1", 6))
        .Header(72, Filled("092", 6))
        .Header(78, Filled("wht", 6))
        .Header(84, Filled("gl", 4))
        .Header(88, Filled("080", 6))
        .Header(94, Filled("P1", 10))
        .Header(104, Filled("P2", 12))
        .Header(116, Filled("P3", 8))
        .Header(124, Filled("P4", 8))
        .Header(132, Filled("P5", 8))
        .Header(140, Filled("NOT READ", 24));
}

constexpr std::string_view kFullHeader = "Int32 CMRSize 1234567 | CMR size: 1,234,567\n"
                                         "Text CMRAlias ALIAS | CMR alias name: \"ALIAS\"\n"
                                         "Text CMRType 00 48 00 54 | CMR type: Halftone\n"
                                         "Text CMRVersion 001.000 | CMR version: 001.000\n"
                                         "Text CMRManufac ACME | Printer manufacturer: \"ACME\"\n"
                                         "Text CMRDevType LASER7 | Printer device type: \"LASER7\"\n"
                                         "Text CMRDevModel M1 | Printer model: \"M1\"\n"
                                         "Text CMRMBrightness 092 | Medium Brightness: \"092\"\n"
                                         "Text CMRMColor 00 77 00 68 00 74 | Medium color: white\n"
                                         "Text CMRMFinish 00 67 00 6C | Medium finish: glossy\n"
                                         "Text CMRMWeight 080 | Medium paper weight (g/m²): \"080\"\n"
                                         "Text CMRProp1 P1 | Property specific field 1: \"P1\"\n"
                                         "Text CMRProp2 P2 | Property specific field 2: \"P2\"\n"
                                         "Text CMRProp3 P3 | Property specific field 3: \"P3\"\n"
                                         "Text CMRProp4 P4 | Property specific field 4: \"P4\"\n"
                                         "Text CMRProp5 P5 | Property specific field 5: \"P5\"\n";

TEST(CmrHeader, ShowsAllFieldsInTheirOrder)
{
    const ColourShown shown = ShowColour(FullHeader().Header(0, U4(1234567)).WithoutEnd());
    ExpectShown(shown.elements, shown.text, kFullHeader);
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(CmrHeader, LeavesTheRecordsOwnTextAlone) { EXPECT_EQ(ShowColour(FullHeader()).own, "Name:<b>→OBJECT</b>\n"); }

TEST(CmrHeader, OfAnObjectOf164BytesIsAllOfIt)
{
    const Bytes object = FullHeader().WithoutEnd().Whole();
    ASSERT_EQ(object.size(), 164u);
    EXPECT_EQ(ShowColour(object).elements.size(), 16u);
    EXPECT_EQ(ShowColour(object + U1(0)).elements.size(), 19u) << "one byte more is an entry whose rest reads as 0";
}

TEST(CmrHeader, CleansTextsOfTheirFilling)
{
    const auto alias = [](const Bytes& text) {
        return ValuesIn(ShowColour(Cmr().Header(10, text).Header(26, Wide("HT"))).elements, "CMRAlias");
    };
    EXPECT_EQ(alias(Wide("@@A@@B@@")), Lines{"A  B"});
    EXPECT_EQ(alias(Wide("@ @  @ @")), Lines{""});
    EXPECT_EQ(alias(Wide("  NAME  ")), Lines{"NAME"});
    EXPECT_EQ(alias(Wide("EIGHTLET")), Lines{"EIGHTLET"});
    EXPECT_EQ(alias(Raw({0x03, 0xA9, 0, 'm', 0, '@', 0, '@', 0, '@', 0, '@', 0, '@', 0, '@'})), Lines{"Ωm"});
}

TEST(CmrHeader, OfAShortObjectReadsZeros)
{
    for (const Bytes& object : {Bytes(), Raw({0, 0, 0, 7}), Raw({0, 0, 0, 7, 0, 0, 0, 0, 0, 0, 0})}) {
        const ColourShown shown = ShowColour(object);
        ASSERT_EQ(shown.elements.size(), 16u);
        EXPECT_EQ(shown.elements[0], object.empty() ? "Int32 CMRSize 0" : "Int32 CMRSize 7");
        EXPECT_EQ(shown.elements[2], "Text CMRType 00 00 00 00");
        EXPECT_EQ(ValuesIn(shown.elements, "BeginRepetition"), Lines{});
        EXPECT_NE(shown.text.find("CMR alias name: \"\"\n"), std::string::npos) << "U+0000 at the start empties it";
    }
}

TEST(CmrHeader, DropsTheHighestBitOfTheSize)
{
    EXPECT_EQ(ShowColour(Cmr().Header(0, U4(0xFFFFFFFF))).elements[0], "Int32 CMRSize 2147483647");
}

TEST(CmrHeader, TellsAnUnknownTypeWithAMessage)
{
    const ColourShown shown = ShowColour(FullHeader().Header(26, Wide("XX")).WithoutEnd());
    EXPECT_NE(shown.text.find("CMR type: <red>Unknown (00 58 00 58)</red>\n"), std::string::npos) << shown.text;
    EXPECT_EQ(shown.heard, (Lines{"Message CMR: CMR type: Unknown (00 58 00 58)", "Invalid"}));
}

}  // namespace
}  // namespace folioscope
