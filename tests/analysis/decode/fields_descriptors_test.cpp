// Descriptors and positions: each layout with its bytes, Elements and lines.

#include "analysis/decode/fields_descriptors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// A triplet at a data offset of the only record of a file, as it is decoded and shown.
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

void ExpectRecord(std::string_view field, std::string_view pieces, std::string_view expected)
{
    const Shown shown = ShowRecord({field, Pieces(pieces)});
    ExpectShown(shown.typed, shown.text, expected);
}

constexpr std::string_view kUnits = "00 01 3840 0960";
constexpr std::string_view kUnitLines =
    "Byte UnitBaseX 0 | Base unit X axis: 10 Inch\n"
    "Byte UnitBaseY 1 | Base unit Y axis: 10 Centimeter\n"
    "Int32 PageBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)\n"
    "Int32 PageBaseUnitsY 2400 | Units per unit base Y axis: 2,400   (240 DPI)\n";
constexpr std::string_view kSizes = "002FD0 000A50";
constexpr std::string_view kSizeLines = "Int32 PageSizeX 12240 | Size in X direction: 12,240   (8.5 Inch)\n"
                                        "Int32 PageSizeY 2640 | Size in Y direction: 2,640   (11 Inch)\n";

std::string Joined(std::initializer_list<std::string_view> parts)
{
    std::string joined;
    for (const std::string_view part : parts) joined += part;
    return joined;
}

// PGD, PTD-1, PTD-2
// --------------------------------------------------------------------------------------------------------

TEST(PGD, DescribesAPage)
{
    ExpectRecord("PGD", Joined({kUnits, kSizes, "00*3 03 81 01"}), Joined({kUnitLines, kSizeLines, TripletAt(15)}));
    ExpectRecord("PGD", Joined({kUnits, kSizes, "00*3"}), Joined({kUnitLines, kSizeLines}));
}

TEST(PGD, ReadsItsKeysWhateverItsLength)
{
    const Shown shown = ShowRecord({"PGD", Pieces("00 01")});
    EXPECT_EQ(shown.typed, (Lines{"Byte UnitBaseX 0", "Byte UnitBaseY 1", "Int32 PageBaseUnitsX 0",
                                  "Int32 PageBaseUnitsY 0", "Int32 PageSizeX 0", "Int32 PageSizeY 0"}));
}

TEST(PTD, OfTheOlderFormatHasSizesOfTwoBytes)
{
    ExpectRecord("PTD-1", Joined({kUnits, "2FD0 0A50 03 81 01"}), Joined({kUnitLines, kSizeLines}));
}

TEST(PTD, OfTheNewerFormatHasSizesOfThreeBytes)
{
    ExpectRecord("PTD-2", Joined({kUnits, kSizes}), Joined({kUnitLines, kSizeLines}));
    // What follows is presentation text, not triplets.
    EXPECT_FALSE(Has(ShowRecord({"PTD-2", Pieces(Joined({kUnits, kSizes, "0000 03 81 01"}))}), "BeginTriplet"));
}

TEST(PageSize, IsShownInTheUnitsThatPassedLast)
{
    FamilyWalk walk(AfpFile()
                        .Add("PGD", Pieces("00 00 3840 0960 000960 000960 00*3"))
                        .Add("IPS", Pieces("'SEGMENT ' 0005A0 0000F0")));
    EXPECT_NE(walk.Next().text.find("Size in X direction: 2,400   (1.6667 Inch)\n"
                                    "Size in Y direction: 2,400   (10 Inch)\n"),
              std::string::npos);
    EXPECT_NE(walk.Next().text.find("Origin X axis: 1,440   (1 Inch)\nOrigin Y axis: 240   (1 Inch)\n"),
              std::string::npos);
}

// MDD, CDD, OBD
// ------------------------------------------------------------------------------------------------------------

TEST(MDD, DescribesAMedium)
{
    ExpectRecord("MDD", Joined({kUnits, kSizes, "80 03 81 01"}),
                 Joined({kUnitLines, kSizeLines,
                         "Boolean PassCSP 1 | Pass medium orientation to cut-sheet printers: Yes\n", TripletAt(13)}));
    ExpectRecord(
        "MDD", Joined({kUnits, kSizes, "7F"}),
        Joined({kUnitLines, kSizeLines, "Boolean PassCSP 0 | Pass medium orientation to cut-sheet printers: No"}));
}

TEST(MDD, HasSizesFromEightBytesOn)
{
    for (const int length : {0, 1, 6, 7, 8, 9, 12, 13}) {
        const Shown shown = ShowRecord({"MDD", Zeros(static_cast<std::size_t>(length))});
        EXPECT_EQ(Has(shown, "PageSizeX"), length >= 8) << length;
        EXPECT_EQ(Has(shown, "PageSizeY"), length >= 8) << length;
        EXPECT_EQ(Has(shown, "PassCSP"), length >= 8) << length;
        EXPECT_TRUE(Has(shown, "PageBaseUnitsY")) << length;
    }
}

TEST(CDD, DescribesAContainer)
{
    ExpectRecord("CDD", Joined({kUnits, kSizes, "03 81 01"}), Joined({kUnitLines, kSizeLines, TripletAt(12)}));
}

TEST(CDD, HasItsKeysFromTwelveBytesOn)
{
    for (const int length : {0, 1, 11}) {
        const auto size = static_cast<std::size_t>(length);
        EXPECT_EQ(ShowRecord({"CDD", Bytes(size, '\x01')}).typed, Lines{}) << length;
    }
    EXPECT_EQ(ShowRecord({"CDD", Bytes(12, '\x01')}).typed.size(), 6u);
}

TEST(OBD, HoldsTripletsOnly) { ExpectRecord("OBD", "03 81 01", TripletAt(0)); }

// OBP
// ----------------------------------------------------------------------------------------------------------------------

constexpr std::string_view kPosition = "01 17 0000F0 FFFF10 2D00 8700 00 0005A0 FFFFFF 0000 2D00 01";

TEST(OBP, PlacesAnObject)
{
    ExpectRecord("OBP", kPosition,
                 "Int32 ID 1 | Identifier: 1\n"
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 22\n"
                 "Int32 OriginX 240 | →Origin X axis: 240   (0.1667 Inch)\n"
                 "Int32 OriginY -240 | →Origin Y axis: -240   (-0.1667 Inch)\n"
                 "Int32 RotationX 11520 | →Rotation X axis (clockwise): 90°\n"
                 "Int32 RotationY 34560 | →Rotation Y axis (clockwise): 270°\n"
                 "Int32 ContentOriginX 1440 | →Origin of contents X axis: 1,440   (1 Inch)\n"
                 "Int32 ContentOriginY -1 | →Origin of contents Y axis: Default\n"
                 "Int32 ContentRotationY 65535 | →Rotation Y axis (contents): Default\n"
                 "Byte UsedCoordinates 1 | →Used coordinate system: page\n"
                 "Int16 EndRepetition 1");
}

TEST(OBP, TurnsTheContentsByOneByteOnly)
{
    const auto of = [](int byte) {
        Bytes data = Pieces(kPosition);
        data[21] = static_cast<char>(byte);
        const Shown shown = ShowRecord({"OBP", data});
        EXPECT_NE(shown.text.find(byte == 0x2D ? "(contents): Default\n" : "(contents): 0°\n"), std::string::npos);
        return ValuesOf(shown, "ContentRotationY").at(0);
    };
    EXPECT_EQ(of(0x2D), "65535");
    EXPECT_EQ(of(0x00), "0");
    EXPECT_EQ(of(0x5A), "0");
    EXPECT_EQ(of(0x60), "0");  // an EBCDIC "-"
}

TEST(OBP, HasAGroupFromThreeBytesOn)
{
    EXPECT_EQ(ShowRecord({"OBP", Raw({7})}).typed, Lines{"Int32 ID 7"});
    EXPECT_EQ(ShowRecord({"OBP", Raw({7, 23})}).typed, Lines{"Int32 ID 7"});
    EXPECT_EQ(ValuesOf(ShowRecord({"OBP", Raw({7, 23, 0})}), "EndRepetition"), Lines{"1"});
    EXPECT_EQ(ValuesOf(ShowRecord({"OBP", Pieces(kPosition)}), "EndRepetition"), Lines{"1"});
    EXPECT_EQ(ValuesOf(ShowRecord({"OBP", Pieces(kPosition) + Zeros(1)}), "EndRepetition"), (Lines{"1", "2"}));
}

TEST(OBP, TellsOfRotationsThatAreNone)
{
    Bytes data = Pieces(kPosition);
    data[8] = '\xC8';  // 400 degrees
    data[9] = '\x02';  // and a minute
    const Shown shown = ShowRecord({"OBP", data});
    EXPECT_NE(shown.text.find("→Rotation X axis (clockwise): <red>Invalid (400° 1')</red>\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message Invalid Rotation X axis (clockwise): 400° 1'", "Invalid"}));
}

// IOB, IPO, IPS, IPG, IMM, IDM
// ---------------------------------------------------------------------------------------------

constexpr std::string_view kObject = "'LOGO    ' 00 FB 0000F0 FFFF10 0000 2D00 0005A0 000B40 01";
constexpr std::string_view kObjectLines = "Text Name LOGO     | Name:<b>→LOGO</b>\n"
                                          "Byte ObjectType 251 | Object Type: Image (IOCA)\n"
                                          "Int32 OriginX 240 | Origin X axis: 240   (0.1667 Inch)\n"
                                          "Int32 OriginY -240 | Origin Y axis: -240   (-0.1667 Inch)\n"
                                          "Int32 RotationX 0 | Rotation X axis (clockwise): 0°\n"
                                          "Int32 RotationY 11520 | Rotation Y axis (clockwise): 90°\n"
                                          "Int32 ContentOriginX 1440 | Origin of contents X axis: 1,440   (1 Inch)\n"
                                          "Int32 ContentOriginY 2880 | Origin of contents Y axis: 2,880   (2 Inch)\n"
                                          "Byte RefCSys 1 | Reference coordinate system: Page/Overlay\n";

TEST(IOB, IncludesAnObject)
{
    ExpectRecord("IOB", Joined({kObject, "03 81 01"}),
                 Joined({kObjectLines, TripletAt(27), "\nText AddResource 4/E/LOGO/LOGO\nText ShowResName LOGO"}));
}

TEST(IOB, CanLeaveItsPlacesToTheObject)
{
    const Shown shown = ShowRecord({"IOB", Pieces("'LOGO    ' 00 FB FFFFFF FFFFFF FFFF FFFF FFFFFF FFFFFF 00")});
    EXPECT_NE(shown.text.find("Origin X axis: Default\nOrigin Y axis: Default\n"
                              "Rotation X axis (clockwise): Default\nRotation Y axis (clockwise): Default\n"
                              "Origin of contents X axis: Default\nOrigin of contents Y axis: Default\n"
                              "Reference coordinate system: Text (from LND/RCD)\n"),
              std::string::npos)
        << shown.text;
}

TEST(IPO, IncludesAnOverlay)
{
    ExpectRecord("IPO", "'OVERLAY1' 0000F0 FFFF10 5A00 03 81 01",
                 "Text Name OVERLAY1 | Name:<b>→OVERLAY1</b>\n"
                 "Int32 OriginX 240 | Origin X axis: 240   (0.1667 Inch)\n"
                 "Int32 OriginY -240 | Origin Y axis: -240   (-0.1667 Inch)\n"
                 "Int32 RotationX 23040 | Rotation X axis (clockwise): 180°\n" +
                     TripletAt(16) + "\nText AddResource 6/E/OVERLAY1/OVERLAY1\nText ShowResName OVERLAY1");
}

TEST(IPO, HasARotationFromSixteenBytesOn)
{
    for (const std::size_t length : {14u, 15u, 16u, 17u})
        EXPECT_EQ(Has(ShowRecord({"IPO", Ebcdic8("OVERLAY1") + Zeros(length - 8)}), "RotationX"), length >= 16)
            << length;
}

TEST(IPS, IncludesAPageSegment)
{
    ExpectRecord("IPS", "'SEGMENT1' 0000F0 FFFFFF 03 81 01",
                 "Text Name SEGMENT1 | Name:<b>→SEGMENT1</b>\n"
                 "Int32 OriginX 240 | Origin X axis: 240   (0.1667 Inch)\n"
                 "Int32 OriginY -1 | Origin Y axis: Default\n" +
                     TripletAt(14) + "\nText AddResource 5/E/SEGMENT1/SEGMENT1\nText ShowResName SEGMENT1");
}

TEST(IPG, IncludesAPage)
{
    ExpectRecord("IPG", "'PAGE0001' 00*9 03 81 01",
                 "Text Name PAGE0001 | Name:<b>→PAGE0001</b>\n" + TripletAt(17) + "\nText ShowResName PAGE0001");
}

TEST(IMM, InvokesAMediumMap)
{
    ExpectRecord("IMM", "'MAP01   ' 03 81 01",
                 "Text Name MAP01    | Name:<b>→MAP01</b>\n" + TripletAt(8) +
                     "\nText AddResource 10/E/MAP01/MAP01\nText ShowResName MAP01");
}

TEST(IDM, InvokesADataMap)
{
    ExpectRecord("IDM", "'MAP01   '",
                 "Text Name MAP01    | Name:<b>→MAP01</b>\n"
                 "Text AddResource 9/E/MAP01/MAP01\nText ShowResName MAP01");
}

TEST(IDM, IsTheOnlyOneToReadItsNameInTheCurrentPage)
{
    const InputPages pages = {.lngInputCP = 819};
    EXPECT_EQ(ValuesOf(ShowRecord({"IDM", "ASCIIMAP"}, pages), "Name"), Lines{"ASCIIMAP"});
    for (const std::string_view field : {"IMM", "IOB", "IPO", "IPS", "IPG", "BDM", "BPG"})
        EXPECT_EQ(ValuesOf(ShowRecord({field, Pieces("4F*8") + Zeros(20)}, pages), "Name"), Lines{"!!!!!!!!"}) << field;
}

TEST(IDM, HasNoTriplets)
{
    EXPECT_FALSE(Has(ShowRecord({"IDM", Ebcdic8("MAP01") + TripletOf("81 01")}), "BeginTriplet"));
}

TEST(Included, NamesAreTrimmedForTheTree)
{
    for (const std::string_view field : {"IOB", "IPO", "IPS", "IPG", "IMM", "IDM"}) {
        const Shown shown = ShowRecord({field, Ebcdic("  A B   ") + Zeros(20)});
        EXPECT_EQ(ValuesOf(shown, "ShowResName"), Lines{"A B"}) << field;
        EXPECT_EQ(shown.elements.back(), "ShowResName A B") << field;
        ASSERT_FALSE(shown.heard.empty()) << field;
        EXPECT_EQ(shown.heard.back(), "ResName A B") << field;
    }
}

// Triplets alone
// -----------------------------------------------------------------------------------------------------------

TEST(Controls, PassTwoBytes)
{
    for (const std::string_view field : {"CTC", "PEC", "MCD", "MPT", "MPG", "MGO", "MIO", "MBC"})
        ExpectRecord(field, "FF FF 03 81 01", TripletAt(2));
}

TEST(Descriptors, OfFormsAndDataMapsAddNothing)
{
    for (const std::string_view field : {"FGD", "DXD"})
        EXPECT_EQ(ShowRecord({field, Pieces("03 81 01 03 81 01")}).typed, Lines{}) << field;
}

}  // namespace
}  // namespace folioscope
