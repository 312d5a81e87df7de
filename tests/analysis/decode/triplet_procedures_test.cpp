// The triplets with values that are put together, chosen between, or counted.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// The keys of one triplet, given from its id on.
std::string KeysOfTriplet(std::string_view pieces) { return KeysOf(ShowTriplets(TripletOf(pieces))); }

Lines ValuesOfTriplet(std::string_view pieces, std::string_view key)
{
    return ValuesOf(ShowTriplets(TripletOf(pieces)), key);
}

// A triplet of a length, made of the first bytes of a longer one.
Shown ShowCut(std::string_view pieces, unsigned length)
{
    return ShowTriplets(U1(length) + Pieces(pieces).substr(0, length - 1));
}

// Angles
// -----------------------------------------------------------------------------------------------------------------

TEST(AngleTriplets, KnowFourAngles)
{
    struct Case {
        std::string_view byte;
        Lines degrees;
    };
    const Case kCases[] = {{"00", {"0"}}, {"2D", {"90"}}, {"5A", {"180"}}, {"87", {"270"}},
                           {"10", {}},    {"2C", {}},     {"2E", {}},      {"FF", {}}};
    for (const auto& [byte, degrees] : kCases) {
        const std::string code(byte);
        EXPECT_EQ(ValuesOfTriplet("1D " + code + "00 0000", "IAxis"), degrees) << byte;
        EXPECT_EQ(ValuesOfTriplet("1D 0000 " + code + "00", "BAxis"), degrees) << byte;
        EXPECT_EQ(ValuesOfTriplet("26 " + code + "00", "CharRotation"), degrees) << byte;
        EXPECT_EQ(ValuesOfTriplet("7F " + code + "00 0000 00*8", "IAxis"), degrees) << byte;
        EXPECT_EQ(ValuesOfTriplet("7F 0000 " + code + "00 00*8", "BAxis"), degrees) << byte;
        EXPECT_EQ(ValuesOfTriplet("8B 00 20 0000 0000 " + code + "00 0003 0001", "CharRotation"), degrees) << byte;
    }
}

TEST(AngleTriplets, PassOverTheSecondByte)
{
    EXPECT_EQ(ValuesOfTriplet("1D 2DFF 5AFF", "IAxis"), Lines{"90"});
    EXPECT_EQ(ValuesOfTriplet("1D 2DFF 5AFF", "BAxis"), Lines{"180"});
}

TEST(AngleTriplets, AreSummedUpInDegrees)
{
    EXPECT_EQ(ValuesOfTriplet("1D 0000 2D00", "ShowTripletContent"), Lines{"Text orientation: 0°"});
    EXPECT_EQ(ValuesOfTriplet("1D 8700 0000", "ShowTripletContent"), Lines{"Text orientation: 270°"});
    EXPECT_EQ(ValuesOfTriplet("26 2D00", "ShowTripletContent"), Lines{"Char rotation: 90°"});
}

// Offsets and counts
// -----------------------------------------------------------------------------------------------------

struct OffsetCase {
    std::string_view start;  // id and, if it has one, the object's type
    std::string_view key, outside;
};

// clang-format off
constexpr OffsetCase kOffsets[] = {
    {"2D",       "IndexedObjOffset",   "IndexedObjOutside"},
    {"58",       "IndexedSFOffset",    "IndexedSFOutside"},
    {"57",       "ObjectBytes",        ""},
    {"59",       "ObjectSF",           ""},
    {"5A AF 00", "ObjectOffset",       ""},
    {"5E AF 00", "SubordinateObjects", ""},
};
// clang-format on

TEST(OffsetTriplets, OfTheShortFormDropTheHighestBit)
{
    for (const auto& [start, key, outside] : kOffsets) {
        const std::string id(start);
        EXPECT_EQ(ValuesOfTriplet(id + " 00000000", key), Lines{"0"}) << start;
        EXPECT_EQ(ValuesOfTriplet(id + " 7FFFFFFF", key), Lines{"2147483647"}) << start;
        EXPECT_EQ(ValuesOfTriplet(id + " 80000001", key), Lines{"1"}) << start;
        EXPECT_EQ(ValuesOfTriplet(id + " FFFFFFFE", key), Lines{"2147483646"}) << start;
    }
}

TEST(OffsetTriplets, OfTheShortFormCanSayOutside)
{
    for (const auto& [start, key, outside] : kOffsets) {
        const Shown shown = ShowTriplets(TripletOf(std::string(start) + " FFFFFFFF"));
        if (outside.empty()) {
            EXPECT_EQ(ValuesOf(shown, key), Lines{"2147483647"}) << start;
        } else {
            EXPECT_EQ(ValuesOf(shown, outside), Lines{"True"}) << start;
            EXPECT_FALSE(Has(shown, key)) << start;
            EXPECT_NE(shown.text.find("→Index outside: Indexed object is outside of the document\n"),
                      std::string::npos);
        }
    }
}

TEST(OffsetTriplets, OfTheLongFormCountAllBits)
{
    for (const auto& [start, key, outside] : kOffsets) {
        const std::string id(start);
        EXPECT_EQ(ValuesOfTriplet(id + " 00012345 00000001", key), Lines{"74565"}) << start;
        EXPECT_EQ(ValuesOfTriplet(id + " 80000001 00000001", key), Lines{"2147483649"}) << start;
        const Shown most = ShowTriplets(TripletOf(id + " FFFFFFFF FFFFFFFF"));
        EXPECT_EQ(ValuesOf(most, key), Lines{"4294967295"}) << start;
        EXPECT_NE(most.text.find(": 4,294,967,295\n"), std::string::npos) << start;
        if (!outside.empty()) {
            EXPECT_FALSE(Has(most, outside)) << start;
        }
    }
}

TEST(OffsetTriplets, AreLongFromOneByteMoreOn)
{
    EXPECT_EQ(ValuesOfTriplet("57 FFFFFFFF 00", "ObjectBytes"), Lines{"4294967295"});
    EXPECT_EQ(ValuesOfTriplet("5A AF 00 FFFFFFFF 00", "ObjectOffset"), Lines{"4294967295"});
    // The length alone decides; the four bytes are read even from behind a shorter triplet.
    EXPECT_EQ(ValuesOf(ShowTriplets(Raw({0x05, 0x2D, 0xFF, 0xFF, 0xFF, 0xFF})), "IndexedObjOutside"), Lines{"True"});
}

TEST(OffsetTriplets, AreSummedUp)
{
    EXPECT_EQ(ValuesOfTriplet("2D 00100000", "ShowTripletContent"), Lines{"Object offset: 1,048,576"});
    EXPECT_EQ(ValuesOfTriplet("2D 00100000 00000000", "ShowTripletContent"), Lines{"Object offset: 1,048,576"});
    EXPECT_EQ(ValuesOfTriplet("57 00100000 00000000", "ShowTripletContent"), Lines{"Object size: 1048576"});
    EXPECT_EQ(ValuesOfTriplet("58 00100000", "ShowTripletContent"), Lines{"SF offset: 1048576"});
    EXPECT_EQ(ValuesOfTriplet("59 00100000", "ShowTripletContent"), Lines{"Object extend: 1048576"});
}

// Time stamps
// ------------------------------------------------------------------------------------------------------------

TEST(TimeStamps, TellTheCenturyByOneCharacter)
{
    const auto of = [](std::string_view stamp) {
        return ValuesOfTriplet("62 00 " + std::string(stamp), "TimeStamp").at(0);
    };
    EXPECT_EQ(of("' 9936516352156'"), "1999/365 16:35:21.56");
    EXPECT_EQ(of("'02400100000000'"), "2024/001 00:00:00.00");
    EXPECT_EQ(of("'12400100000000'"), "2124/001 00:00:00.00");
    EXPECT_EQ(of("'92400100000000'"), "2924/001 00:00:00.00");
    EXPECT_EQ(of("'A2400100000000'"), "2A24/001 00:00:00.00");
}

TEST(TimeStamps, AreReadAsTheyStand)
{
    EXPECT_EQ(ValuesOfTriplet("62 01 'XYYDDDHHMMSShh'", "TimeStamp").at(0), "2XYY/DDD HH:MM:SS.hh");
    EXPECT_EQ(ValuesOfTriplet("63 02 00000000 'XYYDDDHHMMSShh'", "TimeStamp").at(0), "2XYY/DDD HH:MM:SS.hh");
}

TEST(UniversalTime, HasTwoDigitsAPlaceAndAZone)
{
    const auto of = [](std::string_view stamp) {
        return ValuesOfTriplet("72 00 " + std::string(stamp), "TimeStamp").at(0);
    };
    EXPECT_EQ(of("07E8 01 02 03 04 05 00 00 00"), "2024/01/02 03:04:05 Z UTC");
    EXPECT_EQ(of("07E8 0C 1F 17 3B 3B 01 01 00"), "2024/12/31 23:59:59 +01:00");
    EXPECT_EQ(of("07E8 0C 1F 17 3B 3B 02 0B 1E"), "2024/12/31 23:59:59 -11:30");
    EXPECT_EQ(of("07E8 0C 1F 17 3B 3B 09 01 02"), "2024/12/31 23:59:59 -01:02");
}

// x'63'
// ------------------------------------------------------------------------------------------------------------------

TEST(ResourceManagement, GoesByItsFormat)
{
    EXPECT_EQ(KeysOfTriplet("63 01 1234 00"), "Format Checksum Scope SaveResource");
    EXPECT_EQ(KeysOfTriplet("63 02 00000000 ' 9936516352156'"), "Format APSRMARKEC TimeStamp");
    for (const std::string_view other : {"63 00 1234 C0", "63 03 1234 C0", "63 FF 1234 C0"}) {
        const Shown shown = ShowTriplets(TripletOf(other));
        EXPECT_EQ(KeysOf(shown), "Format");
        EXPECT_EQ(ValuesOf(shown, "TripletName"), Lines{"x'63' Type 1 (Object Checksum/CRC Resource Management)"});
    }
}

TEST(ResourceManagement, TellsScopeAndSavingByBits)
{
    EXPECT_EQ(ValuesOfTriplet("63 01 0000 80", "Scope"), Lines{"17"});
    EXPECT_EQ(ValuesOfTriplet("63 01 0000 7F", "Scope"), Lines{"18"});
    EXPECT_EQ(ValuesOfTriplet("63 01 0000 40", "SaveResource"), Lines{"True"});
    EXPECT_EQ(ValuesOfTriplet("63 01 0000 BF", "SaveResource"), Lines{"False"});
}

// x'69'
// ------------------------------------------------------------------------------------------------------------------

constexpr std::string_view kSymbol = "69 0102 B4 0000 11 02 FF FF07 14 03E8 0F 00E1";

TEST(BarCodeSymbol, IsAnIdUpToLengthSeventeen)
{
    for (const unsigned length : {4u, 17u}) {
        const Shown shown = ShowCut(kSymbol, length);
        EXPECT_EQ(KeysOf(shown), "UseBCSymbol");
        EXPECT_EQ(ValuesOf(shown, "UseBCSymbol"), Lines{"258"});
        EXPECT_NE(shown.text.find("→Use previous Bar Code Symbol Descriptor with ID: 258\n"), std::string::npos);
    }
    EXPECT_EQ(KeysOf(ShowCut(kSymbol, 18)), "ID HRIPresent HRIPos Asterisk SuppressSymbol SuppressBlanks BCType BCMod "
                                            "FontLID Color BCModWidth BCElemHeight BCHeightMult BCRatio");
}

TEST(BarCodeSymbol, TakesTheLineOfTextFromTwoBits)
{
    const auto of = [](std::string_view flags) {
        return ValuesOfTriplet("69 0001 " + std::string(flags) + " 00*13", "HRIPos");
    };
    EXPECT_EQ(of("9F"), Lines{"0"});
    EXPECT_EQ(of("40"), Lines{"1"});
    EXPECT_EQ(of("20"), Lines{"2"});
    EXPECT_EQ(of("60"), Lines{"1"});  // both
}

TEST(BarCodeSymbol, DividesTheRatioByTenUntilItIsTenOrLess)
{
    const auto of = [](unsigned ratio) {
        const Shown shown = ShowTriplets(U1(18) + Pieces("69 0001 00*12") + U2(ratio));
        const auto at = shown.text.find("Wide to narrow ratio: ");
        return shown.text.substr(at + 22, shown.text.find('\n', at) - at - 22);
    };
    EXPECT_EQ(of(0), "0.0");
    EXPECT_EQ(of(3), "3.0");
    EXPECT_EQ(of(10), "10.0");
    EXPECT_EQ(of(11), "1.1");
    EXPECT_EQ(of(30), "3.0");
    EXPECT_EQ(of(100), "10.0");
    EXPECT_EQ(of(225), "2.25");
    EXPECT_EQ(of(300), "3.0");
    EXPECT_EQ(of(65'534), "6.5534");
    EXPECT_EQ(of(65'535), "Default");
}

// x'71', x'75', x'7E'
// ----------------------------------------------------------------------------------------------------

TEST(MixingRules, StandInTheOrderOfTheFile)
{
    EXPECT_EQ(KeysOfTriplet("71"), "");
    EXPECT_EQ(KeysOfTriplet("71 73 01 70 02"), "MixFonF MixBonB");
    EXPECT_EQ(KeysOfTriplet("71 6F 01 74 02 71 03"), "MixBonF");
    EXPECT_EQ(KeysOfTriplet("71 70 01 70 02"), "MixBonB MixBonB");
    EXPECT_EQ(ValuesOfTriplet("71 70 01 71 02 72 03 73 FF", "MixFonF"), Lines{"255"});
}

TEST(ColorFidelity, ReportsIfTheByteIsOne)
{
    EXPECT_EQ(ValuesOfTriplet("75 02 00 01 00 01 00", "Notification"), Lines{"True"});
    EXPECT_EQ(ValuesOfTriplet("75 01 00 02 00 01 00", "Notification"), Lines{"False"});
    EXPECT_EQ(ValuesOfTriplet("75 01 00 00 00 01 00", "Notification"), Lines{"False"});
    const Shown unknown = ShowTriplets(TripletOf("75 02 00 01 00 02 00"));
    EXPECT_EQ(unknown.heard, (Lines{"Message Substitute missing color with: Unknown (2)", "Invalid"}));
}

constexpr std::string_view kGraphics =
    "7E 02 0007 05 00 40 0064 00C8 03E8 07D0 00 01 0009 01 00 00 0000 00 0A 0002 0003 0005 0007";

TEST(GraphicsDescriptor, HasItsAttributesFromLengthThirtyFiveOn)
{
    const std::string first = "PrimitiveParms PrimitiveMatchID PrimitiveType Boundary Inside PrimIEnd PrimBEnd "
                              "BoxEdgeHAxis BoxEdgeVAxis RadiusFullArc DescriptorID";
    EXPECT_EQ(KeysOf(ShowCut(kGraphics, 20)), first);
    EXPECT_EQ(KeysOf(ShowCut(kGraphics, 34)), first);
    EXPECT_EQ(KeysOf(ShowCut(kGraphics, 35)),
              first + " ForegroundMix LineType LineWidth PatternSID PatternSymbol MajorX MajorY MinorX MinorY");
}

TEST(GraphicsDescriptor, ReadsTypeAndLineTypeFromTheByteBefore)
{
    const Shown shown = ShowCut(kGraphics, 35);
    EXPECT_EQ(ValuesOf(shown, "PrimitiveType"), Lines{"2"});
    EXPECT_EQ(ValuesOf(shown, "LineType"), Lines{"1"});
    EXPECT_NE(shown.text.find("→Fill mode: Nonzero Winding\n"), std::string::npos);
    EXPECT_NE(shown.text.find("→Radius full arc: 0.004\n"), std::string::npos);  // 1/256
    EXPECT_NE(shown.text.find("→Line width: Drawing default\n"), std::string::npos);
}

// x'82'
// ------------------------------------------------------------------------------------------------------------------

TEST(ParameterValue, GoesByItsType)
{
    for (const std::string_view type : {"00", "03", "04", "07", "FF"})
        EXPECT_EQ(KeysOfTriplet("82 00 " + std::string(type) + " 0102"), "ParmType HexCode") << type;
    for (const std::string_view type : {"01", "02", "05", "06"})
        EXPECT_EQ(KeysOfTriplet("82 00 " + std::string(type) + " 0102"), "ParmType Content") << type;
    EXPECT_EQ(ValuesOfTriplet("82 00 06 'NAME'", "Content"), Lines{"NAME"});
    EXPECT_EQ(ValuesOfTriplet("82 00 00 0102", "HexCode"), Lines{"01 02"});
}

TEST(ParameterValue, WithoutAValueHasItsTypeOnly)
{
    for (const std::string_view type : {"00", "01", "02", "05", "06", "07"})
        EXPECT_EQ(KeysOfTriplet("82 00 " + std::string(type)), "ParmType") << type;
}

TEST(ParameterValue, ReadsNumbersOfOneToFourBytes)
{
    EXPECT_EQ(ValuesOfTriplet("82 00 01 FE", "Content"), Lines{"254"});
    EXPECT_EQ(ValuesOfTriplet("82 00 02 FE", "Content"), Lines{"-2"});
    EXPECT_EQ(ValuesOfTriplet("82 00 01 FFFE", "Content"), Lines{"65534"});
    EXPECT_EQ(ValuesOfTriplet("82 00 02 FFFE", "Content"), Lines{"-2"});
    EXPECT_EQ(ValuesOfTriplet("82 00 02 FFFFFE", "Content"), Lines{"-2"});
    EXPECT_EQ(ValuesOfTriplet("82 00 01 FFFFFFFF", "Content"), Lines{"2147483647"});
    EXPECT_EQ(ValuesOfTriplet("82 00 02 FFFFFFFF", "Content"), Lines{"-1"});
    EXPECT_EQ(ValuesOfTriplet("82 00 01 0102030405", "Content"), Lines{"0"});
    EXPECT_EQ(ValuesOfTriplet("82 00 02 FFFFFFFFFF", "Content"), Lines{"0"});
}

TEST(ParameterValue, ShowsANumberAsContent)
{
    ExpectTriplet(ShowTriplets(TripletOf("82 00 01 FFFE")), "x'82' (Parameter Value)",
                  "ParmType 1 | Parameter type: unsigned binary number\n"
                  "Content 65534 | Content:→<b>65534</b>");
    ExpectTriplet(ShowTriplets(TripletOf("82 00 02 FFFE")), "x'82' (Parameter Value)",
                  "ParmType 2 | Parameter type: signed binary number\n"
                  "Content -2 | Content:→<b>-2</b>");
}

// x'85', x'86', x'88', x'8B'
// -----------------------------------------------------------------------------------------------

TEST(FinishingOperation, HasAsManyPositionsAsItCounts)
{
    const auto of = [](std::string_view count, std::string_view positions) {
        return ValuesOfTriplet("85 01 0000 00 " + std::string(count) + " FFFF " + std::string(positions),
                               "FinishingPosition");
    };
    EXPECT_EQ(of("00", ""), Lines{});
    EXPECT_EQ(of("00", "0001 0002"), Lines{});
    EXPECT_EQ(of("01", "0001 0002"), Lines{"1"});
    EXPECT_EQ(of("02", "0001 0002"), (Lines{"1", "2"}));
}

TEST(FinishingOperation, HasOnlyPositionsInsideOfTheTriplet)
{
    const auto of = [](std::string_view positions) {
        return ValuesOfTriplet("85 01 0000 00 FF FFFF " + std::string(positions), "FinishingPosition");
    };
    EXPECT_EQ(of(""), Lines{});
    EXPECT_EQ(of("00"), Lines{});
    EXPECT_EQ(of("0001"), Lines{"1"});
    EXPECT_EQ(of("0001 00"), Lines{"1"});
    EXPECT_EQ(of("0001 0002 0003"), (Lines{"1", "2", "3"}));
}

TEST(FinishingOperation, CanLeaveTheAxisToThePrinter)
{
    EXPECT_NE(
        ShowTriplets(TripletOf("85 01 0000 FF 00 FFFF")).text.find("→Virtual operation axis offset (in mm): Default\n"),
        std::string::npos);
    EXPECT_NE(
        ShowTriplets(TripletOf("85 01 0000 FF 01 FFFE FFFF"))
            .text.find("→Virtual operation axis offset (in mm): 65,534\n→Operation position on axis (in mm): 65,535\n"),
        std::string::npos);
}

TEST(Fidelity, AsksForAByteOfOne)
{
    for (const std::string_view id : {"86", "88"}) {
        const std::string start(id);
        const std::string of = start == "86" ? "Text" : "Finish";
        for (const auto& [byte, value] : {std::pair("00", "False"), {"01", "True"}, {"02", "False"}, {"FF", "False"}}) {
            EXPECT_EQ(ValuesOfTriplet(start + ' ' + byte + " 00 00 00", of + "Continuation"), Lines{value});
            EXPECT_EQ(ValuesOfTriplet(start + " 00 00 " + byte + " 00", of + "Reporting"), Lines{value});
        }
    }
}

TEST(FontTechnology, IsKnownOfOneKindOnly)
{
    EXPECT_EQ(ValuesOfTriplet("8B 00 20 00*10", "FontArchitecture"), Lines{"3"});
    const Shown other = ShowTriplets(TripletOf("8B 00 21 00*10"));
    EXPECT_EQ(ValuesOf(other, "FontArchitecture"), Lines{"33"});
    EXPECT_EQ(other.heard.at(0), "Message Font architecture: Unknown (33)");
}

TEST(FontDescriptor, IsABitmapOrAnOutline)
{
    EXPECT_EQ(ValuesOfTriplet("1F 07 05 00*15 00", "FontArchitecture"), Lines{"1"});
    EXPECT_EQ(ValuesOfTriplet("1F 07 05 00*15 40", "FontArchitecture"), Lines{"2"});
    EXPECT_EQ(ValuesOfTriplet("1F 07 05 00*15 BF", "FontArchitecture"), Lines{"1"});
}

TEST(FontDescriptor, TakesEachFlagFromItsBit)
{
    constexpr std::string_view kFlags[] = {"FontItalic", "FontUnderscored",  "FontTransformation",
                                           "FontHollow", "FontOverstrucked", "FontProportional",
                                           "FontKerned", "FontTypeFlags"};
    for (unsigned bit = 0; bit < 8; ++bit) {
        const Shown shown = ShowTriplets(U1(20) + Pieces("1F 07 05 00*4") + U1(0x80u >> bit) + Zeros(11));
        for (unsigned other = 0; other < 8; ++other)
            EXPECT_EQ(ValuesOf(shown, kFlags[other]), Lines{other == bit ? "True" : "False"}) << bit << other;
    }
}

// Optional keys
// ------------------------------------------------------------------------------------------------------------

struct LengthCase {
    unsigned length;
    std::string_view keys;
};

void ExpectKeysByLength(std::string_view pieces, std::initializer_list<LengthCase> lengths)
{
    std::string_view keys;
    auto next = lengths.begin();
    const auto whole = static_cast<unsigned>(Pieces(pieces).size()) + 1;
    for (unsigned length = lengths.begin()->length; length <= whole; ++length) {
        if (next != lengths.end() && next->length == length) keys = (next++)->keys;
        EXPECT_EQ(KeysOf(ShowCut(pieces, length)), keys) << pieces.substr(0, 2) << " of length " << length;
    }
    EXPECT_EQ(next, lengths.end());
}

TEST(OptionalKeys, OfAPageOverlayCondition)
{
    ExpectKeysByLength("46 01 03",
                       {{2, "OverlayType ShowTripletContent"}, {4, "OverlayType Level ShowTripletContent"}});
}

TEST(OptionalKeys, OfAResourceInclude)
{
    ExpectKeysByLength("6C FB 'SEGMENT1' 00 00F0 FF FF10 2D00", {{11, "ObjectType Name"},
                                                                 {14, "ObjectType Name OriginX"},
                                                                 {17, "ObjectType Name OriginX OriginY"},
                                                                 {19, "ObjectType Name OriginX OriginY RotationX"}});
}

TEST(OptionalKeys, OfALocale)
{
    ExpectKeysByLength("8C 00 2B <language> <script..> <region..> 00*8 <variant>",
                       {{2, "LocLangFlag"},
                        {4, "LocLangFlag LocScriptFlag LocRegionFlag"},
                        {12, "LocLangFlag LocLangCode LocScriptFlag LocRegionFlag"},
                        {20, "LocLangFlag LocLangCode LocScriptFlag LocScriptCode LocRegionFlag"},
                        {28, "LocLangFlag LocLangCode LocScriptFlag LocScriptCode LocRegionFlag LocRegionCode"},
                        {37, "LocLangFlag LocLangCode LocScriptFlag LocScriptCode LocRegionFlag LocRegionCode "
                             "LocVariantCode"}});
}

TEST(OptionalKeys, OfAnEncryption)
{
    ExpectKeysByLength("94 80 00 01 02 00 01 AA BB", {{3, "Encrypted"},
                                                      {5, "Encrypted EncrAlg EncrRecord"},
                                                      {6, "Encrypted EncrAlg EncrMod EncrRecord"},
                                                      {8, "Encrypted EncrAlg EncrMod EncrFormat EncrRecord"}});
    EXPECT_EQ(ValuesOf(ShowCut("94 80 00 01 02 00 01 AA BB", 7), "EncrRecord"), Lines{"01 02 00"});
    EXPECT_EQ(ValuesOf(ShowCut("94 80 00 01 02 00 01 AA BB", 10), "EncrRecord"), Lines{"01 02 00 01 AA BB"});
}

TEST(OptionalKeys, OfAContainerSize)
{
    ExpectKeysByLength("9C 0000 02 00 01 0BB8 1770 00012C 000258",
                       {{5, "PDFSize"},
                        {6, "PDFSize UnitBaseX"},
                        {7, "PDFSize UnitBaseX UnitBaseY"},
                        {9, "PDFSize UnitBaseX UnitBaseY ObjectBaseUnitsX"},
                        {11, "PDFSize UnitBaseX UnitBaseY ObjectBaseUnitsX ObjectBaseUnitsY"},
                        {14, "PDFSize UnitBaseX UnitBaseY ObjectBaseUnitsX ObjectBaseUnitsY ObjectSizeX"},
                        {17, "PDFSize UnitBaseX UnitBaseY ObjectBaseUnitsX ObjectBaseUnitsY ObjectSizeX ObjectSizeY"}});
}

TEST(Locale, ShowsUnicodeLettersWithBlanksBetween)
{
    const Shown shown = ShowTriplets(TripletOf("8C 00 20 0065006E00200020"));
    EXPECT_EQ(ValuesOf(shown, "LocLangCode"), Lines{" e n    "});
    EXPECT_EQ(ValuesOf(shown, "LocLangFlag"), Lines{"2"});
    EXPECT_EQ(ValuesOf(shown, "LocScriptFlag"), Lines{"False"});
    EXPECT_EQ(ValuesOf(shown, "LocRegionFlag"), Lines{"0"});
}

TEST(Locale, SplitsItsFlags)
{
    const Shown shown = ShowTriplets(TripletOf("8C 00 BF"));
    EXPECT_EQ(ValuesOf(shown, "LocLangFlag"), Lines{"3"});
    EXPECT_EQ(ValuesOf(shown, "LocScriptFlag"), Lines{"True"});
    EXPECT_EQ(ValuesOf(shown, "LocRegionFlag"), Lines{"7"});
}

TEST(Extender, ShowsItsDataToItsEnd)
{
    EXPECT_EQ(ValuesOfTriplet("FF 0000 01 C1 C2", "HexCode"), Lines{"01 C1 C2"});
    EXPECT_EQ(ValuesOfTriplet("FF 0000", "HexCode"), Lines{""});
}

TEST(Comment, ShowsTextAndBytes)
{
    EXPECT_EQ(ValuesOfTriplet("65", "HexCode"), Lines{""});
    EXPECT_EQ(ValuesOfTriplet("65 'A B'", "Content"), Lines{"A B"});
    EXPECT_EQ(ValuesOfTriplet("65 'A B'", "HexCode"), Lines{"C1 40 C2"});
}

TEST(Texts, ThatAreNotGivenShowNothing)
{
    const Shown comment = ShowTriplets(TripletOf("65 0000"));
    EXPECT_EQ(ValuesOf(comment, "Content"), Lines{std::string(1, '\0')});
    EXPECT_NE(comment.text.find("→Content:→<b></b>\n"), std::string::npos);
    const Shown origin = ShowTriplets(TripletOf("64 01 00*8 FF*6 00*44"));
    EXPECT_NE(origin.text.find("→Processor ID: \"\"\n→Storage Media ID: \"ÿ\"\n→Data Set ID: \"\"\n"),
              std::string::npos);
}

}  // namespace
}  // namespace folioscope
