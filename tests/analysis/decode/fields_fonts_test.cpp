// Font resources: each layout with its bytes, Elements and lines, and what a field leaves for those behind it.

#include "analysis/decode/fields_fonts.h"

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

constexpr std::string_view kTripletLines =
    "Int32 TripletLength 3\n"
    "Text BeginTriplet x'81'\n"
    "Text TripletName x'81' (Page Position Information) | ¶Triplet:<b>→x'81' (Page Position Information)</b>\n"
    "Byte UsePGP 1 | →Use PGP repeating group with ID: 1\n"
    "Boolean EndTriplet 1";

std::string TripletAt(int offset)
{
    return "Int32 TripletStartbyte " + std::to_string(10 + offset) + "\n" + std::string(kTripletLines);
}

// Coded fonts
// --------------------------------------------------------------------------------------------------------------------

TEST(CFC, TellsTheNumberOfElements)
{
    ExpectRecord("CFC", "19 01 03 81 01",
                 "Float64 CFIElementCount 1.000000 | No. of elements in the CFI structured field: 1\n" + TripletAt(2));
    ExpectRecord("CFC", "1E 01", "Float64 CFIElementCount 1.200000 | No. of elements in the CFI structured field: 1.2");
    ExpectRecord("CFC", "FF 01",
                 "Float64 CFIElementCount 10.200000 | No. of elements in the CFI structured field: 10.2");
    ExpectRecord("CFC", "00 01", "Float64 CFIElementCount 0.000000 | No. of elements in the CFI structured field: 0");
}

TEST(CFI, NamesACharacterSetAndACodePageForEachSection)
{
    ExpectRecord("CFI", "'C0H200B0' 'T1V10500' 00F0 0064 00*4 41  'C0H400B0' 'T1V10037' 0000 0000 00*4 00",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 25\n"
                 "Text CHSName C0H200B0 | →External character set name:→<b>C0H200B0</b>\n"
                 "Text CDPName T1V10500 | →External code page name:→<b>T1V10500</b>\n"
                 "Float64 FontHeight 0.166667 | →Font height: 12.0 Point\n"
                 "Float64 FontWidth 0.069444 | →Font width: 5.0 Point\n"
                 "Byte SectionID 65 | →Doublebyte Section ID: 65\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 25\n"
                 "Text CHSName C0H400B0 | →External character set name:→<b>C0H400B0</b>\n"
                 "Text CDPName T1V10037 | →External code page name:→<b>T1V10037</b>\n"
                 "Float64 FontHeight 0.000000 | →Font height: Not specified\n"
                 "Float64 FontWidth 0.000000 | →Font width: Not specified\n"
                 "Byte SectionID 0 | →Doublebyte Section ID: 0\n"
                 "Int16 EndRepetition 2");
}

TEST(CFI, ReadsItsNamesInPage500WhateverPageIsInForce)
{
    InputPages pages;
    pages.lngInputCP = 1252;
    EXPECT_EQ(ValuesOf(ShowRecord({"CFI", Pieces("'C0H200B0' 'T1V10500' 00*9")}, pages), "CHSName"), Lines{"C0H200B0"});
}

TEST(CFI, CutShortReadsTheLastGroupBehindTheField)
{
    const Shown shown = ShowRecord({"CFI", Pieces("'C0H200B0' 'T1V10500' 00*9 'C0'")});
    EXPECT_EQ(ValuesOf(shown, "CHSName"), (Lines{"C0H200B0", "C0......"}));
    EXPECT_EQ(ValuesOf(ShowRecord({"CFI", Pieces("'C0H200B0' 'T1V10500' 00*9 'C'")}), "CHSName"), Lines{"C0H200B0"});
}

// Code pages
// --------------------------------------------------------------------------------------------------------------------

TEST(CPD, DescribesACodePage)
{
    ExpectRecord("CPD", "'GERMAN' 40*26 0008 000100FF 02B9 0111 6100",
                 "Text Description GERMAN                           | "
                 "Description:→<b>GERMAN                          </b>\n"
                 "Int32 CharIDLength 8 | Character ID length: 8\n"
                 "Int32 CPIElementCount 65791 | No. Of elements in the CPI structured field: 65,791\n"
                 "Int32 CHSID2 697 | Graphic character set ID: 697\n"
                 "Int32 CDPID2 273 | Graphic code page ID: 273\n"
                 "Int32 EncodingScheme 24832 | Font Encoding Scheme: Single-Byte, EBCDIC");
}

TEST(CPD, MarksAnUnknownEncoding)
{
    const Shown shown = ShowRecord({"CPD", Zeros(38) + Pieces("FFFF 0000 0001")});
    EXPECT_NE(shown.text.find("Graphic character set ID: Not specified\nGraphic code page ID: Not specified\n"
                              "Font Encoding Scheme: <red>Unknown (1)</red>\n"),
              std::string::npos)
        << shown.text;
    EXPECT_EQ(shown.heard, (Lines{"Message Font Encoding Scheme: Unknown (1)", "Invalid"}));
}

TEST(CPC, TellsTheTypeOfTheCodePage)
{
    ExpectRecord("CPC", "'SP010000' A0 0A 41 40 80",
                 "Text DefaultCharID SP010000 | Default character ID: SP010000\n"
                 "Boolean CharInvalid 1 | Character is an invalid character: Yes\n"
                 "Boolean Charnopres 0 | Character is not for presentation: No\n"
                 "Boolean Charnoincrem 1 | Character has length 0: Yes\n"
                 "Int16 CPType 10 | Code page type: Single-Byte\n"
                 "Text SpaceCode 40 | Space character code point: x'40'\n"
                 "Boolean CPISort 1 | Sort order of the following CPI elements: Ascending code points");
    ExpectRecord("CPC", "'SP010000' 40 FF 41 40 7F",
                 "Text DefaultCharID SP010000 | Default character ID: SP010000\n"
                 "Boolean CharInvalid 0 | Character is an invalid character: No\n"
                 "Boolean Charnopres 1 | Character is not for presentation: Yes\n"
                 "Boolean Charnoincrem 0 | Character has length 0: No\n"
                 "Int16 CPType 255 | Code page type: Double-Byte incl. Unicode scalar values\n"
                 "Byte SpaceSection 65 | Space character section ID: 65\n"
                 "Text SpaceCode 40 | Space character code point: x'40'\n"
                 "Boolean CPISort 0 | Sort order of the following CPI elements: Ascending character ID");
}

TEST(CPC, HasASectionOnDoubleBytePagesOnly)
{
    for (unsigned type = 0; type < 256; ++type) {
        const Shown shown = ShowRecord({"CPC", Ebcdic8("SP010000") + U1(0) + U1(type) + Pieces("41 40 00")});
        EXPECT_EQ(Has(shown, "SpaceSection"), type == 11 || type == 255) << type;
    }
}

// CPI behind a CPC of a type.
Shown ShowIndex(unsigned type, std::string_view pieces)
{
    const Bytes control = Ebcdic8("SP010000") + U1(0) + U1(type) + Pieces("00 40 00");
    return FamilyWalk(AfpFile().Add("CPC", control).Add("CPI", Pieces(pieces))).Last(2);
}

TEST(CPI, OfASingleBytePageHasGroupsOfTenBytes)
{
    const Shown shown = ShowIndex(10, "'LA010000' 00 81  'LB010000' E0 C2");
    ExpectShown(shown.typed, shown.text,
                "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                "Int32 Length 10\n"
                "Text CharID LA010000 | →Character ID:→<b>LA010000</b>\n"
                "Boolean CharInvalid 0 | →Character is an invalid character: No\n"
                "Boolean Charnopres 0 | →Character is not for presentation: No\n"
                "Boolean Charnoincrem 0 | →Character has length 0: No\n"
                "Text CharCode 81 | →AFP Character code: x'81'\n"
                "Int16 EndRepetition 1\n"
                "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                "Int32 Length 10\n"
                "Text CharID LB010000 | →Character ID:→<b>LB010000</b>\n"
                "Boolean CharInvalid 1 | →Character is an invalid character: Yes\n"
                "Boolean Charnopres 1 | →Character is not for presentation: Yes\n"
                "Boolean Charnoincrem 1 | →Character has length 0: Yes\n"
                "Text CharCode C2 | →AFP Character code: x'C2'\n"
                "Int16 EndRepetition 2");
}

TEST(CPI, OfADoubleBytePageHasCodePointsOfTwoBytes)
{
    const Shown shown = ShowIndex(11, "'LA010000' 00 41C1  'LB010000' 00 41C2");
    EXPECT_EQ(ValuesOf(shown, "CharCode"), (Lines{"41 C1", "41 C2"}));
    EXPECT_EQ(ValuesOf(shown, "Length"), (Lines{"11", "11"}));
    EXPECT_EQ(ValuesOf(shown, "CharID"), (Lines{"LA010000", "LB010000"}));
    EXPECT_FALSE(Has(shown, "UnicodeCharCode"));
}

TEST(CPI, OfType254HasAUnicodeTail)
{
    const Shown shown =
        ShowIndex(254, "'LA010000' 00 C1 01 00000041  'LB010000' 00 C2 00  'LC010000' 00 C3 02 00000043 00010302");
    EXPECT_EQ(ValuesOf(shown, "CharID"), (Lines{"LA010000", "LB010000", "LC010000"}));
    EXPECT_EQ(ValuesOf(shown, "CharCode"), (Lines{"C1", "C2", "C3"}));
    EXPECT_EQ(ValuesOf(shown, "UnicodeCharCode"), (Lines{"00 00 00 41", "00 00 00 43", "00 01 03 02"}));
    EXPECT_EQ(ValuesOf(shown, "Length"), (Lines{"254", "254", "254"}));
    EXPECT_NE(shown.text.find("→AFP Character code: x'C3'\n→Unicode Character Code: x'00 00 00 43'\n"
                              "→Unicode Character Code: x'00 01 03 02'\n"),
              std::string::npos)
        << shown.text;
}

TEST(CPI, OfType255HasBoth)
{
    const Shown shown = ShowIndex(255, "'LA010000' 00 41C1 01 00004E00  'LB010000' 00 41C2 00");
    EXPECT_EQ(ValuesOf(shown, "CharCode"), (Lines{"41 C1", "41 C2"}));
    EXPECT_EQ(ValuesOf(shown, "UnicodeCharCode"), Lines{"00 00 4E 00"});
}

TEST(CPI, HasATailAboveType240Only)
{
    EXPECT_FALSE(Has(ShowIndex(240, "'LA010000' 00 C1 01 00000041"), "UnicodeCharCode"));
    EXPECT_TRUE(Has(ShowIndex(242, "'LA010000' 00 C1 01 00000041"), "UnicodeCharCode"));
}

TEST(CPI, WithoutAControlHasGroupsOfTenBytes)
{
    const Shown shown = ShowRecord({"CPI", Pieces("'LA010000' 00 81  'LB010000' 00 C2")});
    EXPECT_EQ(ValuesOf(shown, "CharID"), (Lines{"LA010000", "LB010000"}));
    EXPECT_EQ(ValuesOf(shown, "Length"), (Lines{"0", "0"}));
}

TEST(CPI, CutShortReadsBehindTheField)
{
    // The count says 255, of which no byte is there.
    const Shown shown = ShowIndex(254, "'LA010000' 00 C1 FF");
    EXPECT_EQ(ValuesOf(shown, "UnicodeCharCode").size(), 255u);
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"});
}

TEST(CPI, CanHaveMoreThanTenThousandEntries)
{
    Bytes index;
    for (int i = 0; i < 3'000; ++i) index += Ebcdic8("LA010000") + U1(0) + U1(i & 0xFF);
    const Shown shown = ShowRecord({"CPI", index});
    EXPECT_EQ(shown.elements.size(), 3'000u * 8);
    EXPECT_EQ(ValuesOf(shown, "EndRepetition").back(), "3000");
}

// Character sets
// --------------------------------------------------------------------------------------------------------------------

TEST(FND, DescribesAFont)
{
    const Bytes data =
        Pieces("'HELVETICA' 40*23 05 09 00F0 0078 0000 05A0 0001 0000 04 02 01 00*15 D8 00*11 0A3B FFFF");
    ASSERT_EQ(data.size(), 80u);
    const Shown shown = ShowRecord({"FND", data + Pieces("03 81 01")});
    ExpectShown(shown.typed, shown.text,
                "Text Description HELVETICA                        | "
                "Description:→<b>HELVETICA                       </b>\n"
                "Byte FontWeightClass 5 | Font Weight Class: Medium (normal)\n"
                "Byte FontWidthClass 9 | Font Width Class: Ultra-expanded\n"
                "Float64 MaxFontHeight 0.166667 | Maximum recommended font height: 12.0 Point\n"
                "Float64 NomFontHeight 0.083333 | Nominal font height: 6.0 Point\n"
                "Float64 MinFontHeight 0.000000 | Minimum recommended font height: Not specified\n"
                "Float64 MaxFontWidth 1.000000 | Maximum recommended font width: 72.0 Point\n"
                "Float64 NomFontWidth 0.000694 | Nominal font width: 0.05 Point\n"
                "Float64 MinFontWidth 0.000000 | Minimum recommended font width: Not specified\n"
                "Text FontDesignClass 4.2.1 | ISO design specification class: 4.2.1\n"
                "Boolean FontItalic 1 | Font is an italic font: Yes\n"
                "Boolean FontUnderscored 1 | Font contains underscored characters: Yes\n"
                "Boolean FontHollow 1 | Font contains hollow characters: Yes\n"
                "Boolean FontOverstrucked 1 | Font contains overstrucked characters: Yes\n"
                "Int32 CHSID2 2619 | Graphic character set ID: 2,619\n"
                "Int32 FONID2 65535 | Font Typeface ID: Not specified\n" +
                    TripletAt(80));
}

TEST(FND, HasItsFlagsInOneByte)
{
    const std::pair<unsigned, std::string_view> kFlags[] = {
        {0x80, "FontItalic"}, {0x40, "FontUnderscored"}, {0x10, "FontHollow"}, {0x08, "FontOverstrucked"}};
    for (unsigned bit = 0x80; bit != 0; bit >>= 1) {
        const Shown shown = ShowRecord({"FND", Zeros(64) + U1(bit) + Zeros(15)});
        for (const auto& [flag, key] : kFlags)
            EXPECT_EQ(ValuesOf(shown, key), Lines{flag == bit ? "True" : "False"}) << key << ' ' << bit;
    }
}

TEST(FND, ShowsTheGreatestDesignClass)
{
    EXPECT_EQ(ValuesOf(ShowRecord({"FND", Zeros(46) + Pieces("FF 00 FF") + Zeros(31)}), "FontDesignClass"),
              Lines{"255.0.255"});
}

// Font Control: 42 bytes, with some of them set.
Bytes FontControl(unsigned tech, unsigned indexLength, unsigned nameLength = 12, unsigned names = 0)
{
    Bytes data = Pieces("01 00 00 C2 00 00 3840 0960 0032 03E8 1A 00 03 0F4240 16 08 00 00 03E8 03E8 00100000 00*3");
    data += U1(nameLength) + U4(2'000) + U2(names);
    data[1] = static_cast<char>(tech);
    data[15] = static_cast<char>(indexLength);
    return data;
}

TEST(FNC, DescribesACharacterSet)
{
    ASSERT_EQ(FontControl(31, 28, 12, 1000).size(), 42u);
    const Shown shown = ShowRecord({"FNC", FontControl(31, 28, 12, 1000) + Pieces("03 81 01")});
    ExpectShown(shown.typed, shown.text,
                "Byte PatternTech 31 | Font pattern technology: Type 1 Font Printer File Binary (PFB, Outline)\n"
                "Boolean MICRFont 1 | Font is used for Magnetic Ink Character Recognition (MICR): Yes\n"
                "Boolean FontExtension 1 | This font extends an already existing font: Yes\n"
                "Boolean MonoSpaced 1 | All characters have a fixed length: Yes\n"
                "Byte UnitBaseX 0 | Base unit X axis: 10 Inch\n"
                "Byte UnitBaseY 0 | Base unit Y axis: 10 Inch\n"
                "Int32 PageBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)\n"
                "Int32 PageBaseUnitsY 2400 | Units per unit base Y axis: 2,400   (240 DPI)\n"
                "Int32 CharBoxWidth 50 | Maximum character box width: 50\n"
                "Int32 CharBoxHeight 1000 | Maximum character box height: 1,000\n"
                "Byte FNOElementLength 26 | No. of bytes in each FNO element: 26\n"
                "Int16 FNIElementLength 28 | No. of bytes in each FNI element: 28\n"
                "Float64 RasterDataAlign 8.000000 | Data boundaries for raster patterns, all: 8 Bytes\n"
                "Int32 RasterDataCount 1000000 | No. of bytes of raster pattern in FNG-SF's: 1,000,000\n"
                "Byte FNPElementLength 22 | No. of bytes in each FNP element: 22\n"
                "Byte FNMElementLength 8 | No. of bytes in each FNM element: 8\n"
                "Byte ShapeUnitBaseX 0 | Outline base unit X axis: 10 Inch\n"
                "Byte ShapeUnitBaseY 0 | Outline base unit Y axis: 10 Inch\n"
                "Int32 ShapeUnitsX 1000 | Units per outline unit base X axis: 1,000   (100 DPI)\n"
                "Int32 ShapeUnitsY 1000 | Units per outline unit base Y axis: 1,000   (100 DPI)\n"
                "Int32 OutlineDataCount 1048576 | No. of bytes of outline data in FNG-SF's: 1,048,576\n"
                "Byte FNNElementLength 12 | No. of bytes in each FNN element: 12\n"
                "Int32 FNNDataCount 2000 | No. of bytes in the following FNN structured fields: 2,000\n"
                "Int32 FNNIBMName 1000 | No. of IBM character names mapped to outline fonts: 1,000\n" +
                    TripletAt(42));
}

TEST(FNC, HasItsTrailingKeysAsFarAsItReaches)
{
    struct TrailingCase {
        std::size_t offset;
        std::string_view key;
    };
    constexpr TrailingCase kTrailing[] = {{22, "ShapeUnitBaseX"}, {23, "ShapeUnitBaseY"},   {24, "ShapeUnitsX"},
                                          {26, "ShapeUnitsY"},    {28, "OutlineDataCount"}, {35, "FNNElementLength"},
                                          {36, "FNNDataCount"},   {40, "FNNIBMName"}};
    for (std::size_t size = 1; size <= 42; ++size) {
        const Shown shown = ShowRecord({"FNC", FontControl(5, 28).substr(0, size)});
        EXPECT_TRUE(Has(shown, "FNMElementLength")) << size;
        for (const auto& [offset, key] : kTrailing) EXPECT_EQ(Has(shown, key), offset < size) << key << ' ' << size;
    }
}

TEST(FNC, ShowsTheBoundaryOfPatternsAsAPowerOfTwo)
{
    const auto lineOf = [](unsigned byte) {
        Bytes data = FontControl(5, 28);
        data[16] = static_cast<char>(byte);
        const Shown shown = ShowRecord({"FNC", data});
        const auto at = shown.text.find("Data boundaries");
        return shown.text.substr(at, shown.text.find('\n', at) - at);
    };
    EXPECT_EQ(lineOf(0), "Data boundaries for raster patterns, all: 1 Bytes");
    EXPECT_EQ(lineOf(10), "Data boundaries for raster patterns, all: 1024 Bytes");
    EXPECT_EQ(lineOf(64), "Data boundaries for raster patterns, all: 1.84467440737096E+19 Bytes");
    EXPECT_EQ(lineOf(255), "Data boundaries for raster patterns, all: 5.78960446186581E+76 Bytes");
}

TEST(FNC, KeepsWhatTheFieldsBehindItNeed)
{
    RecordWalk walk(AfpFile().Add("FNC", FontControl(5, 200, 14, 3)).Add("FNC", FontControl(31, 0).substr(0, 22)));
    walk.Next();
    EXPECT_EQ(walk.afp.Fonts.FontPatternTech, 5);
    EXPECT_EQ(walk.afp.Fonts.FNIGroupLength, 200);
    EXPECT_EQ(walk.afp.Fonts.nameGroupLength, 14);
    EXPECT_EQ(walk.afp.Fonts.namesLeft, 3);
    EXPECT_TRUE(walk.afp.Fonts.nameHeaderPending);
    walk.Next();
    EXPECT_EQ(walk.afp.Fonts.FontPatternTech, 31);
    EXPECT_EQ(walk.afp.Fonts.FNIGroupLength, 0);
    EXPECT_EQ(walk.afp.Fonts.nameGroupLength, 0);
    EXPECT_EQ(walk.afp.Fonts.namesLeft, 0);
}

TEST(FNC, LeavesTheTypeOfTheCodePage)
{
    const Bytes control = Ebcdic8("SP010000") + Pieces("00 0B 00 40 00");
    RecordWalk walk(AfpFile().Add("CPC", control).Add("FNC", FontControl(5, 28)));
    walk.Next();
    walk.Next();
    EXPECT_EQ(walk.afp.Fonts.CPType, 11);
}

TEST(Fonts, BeginAnewWithEachFile)
{
    RecordWalk walk(AfpFile().Add("FNC", FontControl(5, 28)));
    walk.Next();
    walk.afp.InitializeProcessing2(walk.afp.Reader().File(), {});
    EXPECT_EQ(walk.afp.Fonts.FNIGroupLength, 0);
    EXPECT_EQ(walk.afp.Fonts.FontPatternTech, 0);
}

TEST(FNI, AndFNMAreLeftForLater)
{
    for (const std::string_view field : {"FNI", "FNM"}) {
        ExpectRecord(field, "00 00", "Int16 Unread 1");
        EXPECT_EQ(ShowRecord({field}).elements, Lines{}) << field;
    }
}

constexpr std::string_view kOrientation = "0000 2D00 1111 2222 0014 07D0 28 00 0032 3333 0033 0034 0035 4444";

TEST(FNO, HasAGroupForEachRotation)
{
    ExpectRecord("FNO", std::string(kOrientation) + " 00*2 8700 00*8 F7 00*13",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 26\n"
                 "Int16 CharRotation 90 | →Character Rotation: 90°\n"
                 "Int32 SpaceIncrement 20 | →Space character increment: 20\n"
                 "Int32 MaxBaselineExtend 2000 | →Max. baseline extent: 2,000\n"
                 "Float64 FNIIndex 1.000000 | →FNI structured field containing accompanying data: 1\n"
                 "Boolean FontKerned 1 | →Characters are pairwise kerned: Yes\n"
                 "Int32 EmSpaceInc 50 | →Em-space increment: 50\n"
                 "Int32 FigureSpace 51 | →Figure and numerals space width: 51\n"
                 "Int32 NomCharIncrement 52 | →Nominal character increment used with outline fonts: 52\n"
                 "Int32 DefaultBaselineInc 53 | →Default baseline increment (PELS): 53\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 26\n"
                 "Int16 CharRotation 270 | →Character Rotation: 270°\n"
                 "Int32 SpaceIncrement 0 | →Space character increment: 0\n"
                 "Int32 MaxBaselineExtend 0 | →Max. baseline extent: 0\n"
                 "Float64 FNIIndex 7.000000 | →FNI structured field containing accompanying data: 7\n"
                 "Boolean FontKerned 0 | →Characters are pairwise kerned: No\n"
                 "Int32 EmSpaceInc 0 | →Em-space increment: 0\n"
                 "Int32 FigureSpace 0 | →Figure and numerals space width: 0\n"
                 "Int32 NomCharIncrement 0 | →Nominal character increment used with outline fonts: 0\n"
                 "Int32 DefaultBaselineInc 0 | →Default baseline increment (PELS): 0\n"
                 "Int16 EndRepetition 2");
}

TEST(FNO, HasARotationOfFourAngles)
{
    const auto rotationOf = [](unsigned byte) {
        return ValuesOf(ShowRecord({"FNO", Zeros(2) + U1(byte) + Zeros(23)}), "CharRotation");
    };
    EXPECT_EQ(rotationOf(0x00), Lines{"0"});
    EXPECT_EQ(rotationOf(0x2D), Lines{"90"});
    EXPECT_EQ(rotationOf(0x5A), Lines{"180"});
    EXPECT_EQ(rotationOf(0x87), Lines{"270"});
    EXPECT_EQ(rotationOf(0x2E), Lines{});
    EXPECT_EQ(rotationOf(0xFF), Lines{});
}

TEST(FNP, HasAGroupForEachPosition)
{
    ExpectRecord("FNP", "0000 01F4 02BC 0320 FF38 00*7 003280 FFCE  00*17 000000 0001",
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 22\n"
                 "Int32 LowerX 500 | →Nominal height of lowercase characters: 500\n"
                 "Int32 CapitalM 700 | →Nominal height of uppercase characters: 700\n"
                 "Int32 MaxAscender 800 | →Maximum height baseline to character upper edges: 800\n"
                 "Int32 MaxDescender -200 | →Maximum height baseline to character lower edges: -200\n"
                 "Float64 UnderscoreWidth 50.500000 | →Underscore width: 50.5\n"
                 "Int32 UnderscorePos -50 | →Extent of the underscore to the baseline: -50\n"
                 "Int16 EndRepetition 1\n"
                 "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                 "Int32 Length 22\n"
                 "Int32 LowerX 0 | →Nominal height of lowercase characters: 0\n"
                 "Int32 CapitalM 0 | →Nominal height of uppercase characters: 0\n"
                 "Int32 MaxAscender 0 | →Maximum height baseline to character upper edges: 0\n"
                 "Int32 MaxDescender 0 | →Maximum height baseline to character lower edges: 0\n"
                 "Float64 UnderscoreWidth 0.000000 | →Underscore width: 0.0\n"
                 "Int32 UnderscorePos 1 | →Extent of the underscore to the baseline: 1\n"
                 "Int16 EndRepetition 2");
}

TEST(FNP, RoundsTheUnderscoreToThreeDecimals)
{
    LineBench bench;
    EXPECT_EQ(bench.Add(Element::Float64(Key::UnderscoreWidth, 1 / 256.0)).Text(), "Underscore width: 0.004\n");
    EXPECT_EQ(bench.Add(Element::Float64(Key::UnderscoreWidth, 12 + 85 / 256.0)).Text(), "Underscore width: 12.332\n");
}

}  // namespace
}  // namespace folioscope
