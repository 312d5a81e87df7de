// Page definitions: conditional processing, and the descriptors of lines, records and XML elements.

#include "analysis/decode/fields_page_definitions.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <span>
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

// A field that the reader never gives: its analysis is called for the place where it stands.
Shown ShowDirectly(std::string_view field, const Bytes& data)
{
    AfpFile file;
    const auto start = static_cast<std::int32_t>(file.Add("NOP").Content().size()) + 2;
    RecordWalk walk(file.Add(field, data));
    walk.At(start);
    LineBench bench;
    bench.renderer.RenderStructuredField(walk.afp.List());
    return {walk.Lines(), walk.Body(), Readable(bench.renderer.text.Text()), bench.witness.heard};
}

// Data bytes by their offset; all others are zero.
Bytes DataOf(std::size_t size, std::initializer_list<std::pair<std::size_t, std::string_view>> parts)
{
    Bytes data = Zeros(size);
    for (const auto& [at, pieces] : parts) {
        const Bytes bytes = Pieces(pieces);
        data.replace(at, bytes.size(), bytes);
    }
    return data;
}

std::string ValueOf(const Shown& shown, std::string_view key)
{
    for (const std::string& element : shown.typed) {
        const auto name = element.find(' ') + 1;
        if (element.substr(name).starts_with(std::string(key) + ' ')) return element.substr(name + key.size() + 1);
    }
    return "none";
}

// CCP
// --------------------------------------------------------------------------------------------------------------------

constexpr std::string_view kNames = "02 'MAP00001' 04 'DATAMAP1' 01";
constexpr std::string_view kNameLines = "Byte MMAction 2 | →Medium Map Action: Invoke named map\n"
                                        "Text MMName MAP00001 | →Medium Map Name: \"MAP00001\"\n"
                                        "Byte DMAction 4 | →Data Map Action: Invoke next map\n"
                                        "Text DMName DATAMAP1 | →Data Map Name: \"DATAMAP1\"\n"
                                        "Byte Comparison 1 | →Comparison operation: If equal to\n";

TEST(CCP, HasAConditionAndAGroupForEachComparison)
{
    ExpectRecord("CCP",
                 "03E9 03EA A0 00 0002 0017 0003  81 " + std::string(kNames) + " 'ABC'  00 " + std::string(kNames) +
                     " 'D E'",
                 "Int32 Condition 1001 | Condition no.: 1001\n"
                 "Int32 NextCondition 1002 | Next condition no.: 1002\n"
                 "Boolean CCPBeforeSP 1 | Take action before subpage boundary: Yes\n"
                 "Boolean CCPAfterSP 0 | Take action after subpage boundary: No\n"
                 "Boolean CCPSpacing 1 | Apply spacing: Yes\n"
                 "Int32 RepeatCount 2\n"
                 "Int32 RepeatLength 23 | Length of each repeating group: 23\n"
                 "Int32 CompLength 3 | Length of comparison string: 3\n"
                 "Int16 BeginRepetition 1 | ¶<b>Element 1</b>\n"
                 "Int32 Length 23\n"
                 "Byte TimingOfAction 129 | →Timing of action: after line\n" +
                     std::string(kNameLines) +
                     "Text CompString ABC | →Comparison string: \"ABC\"\n"
                     "Int16 EndRepetition 1\n"
                     "Int16 BeginRepetition 2 | ¶<b>Element 2</b>\n"
                     "Int32 Length 23\n"
                     "Byte TimingOfAction 0 | →Timing of action: Default\n" +
                     std::string(kNameLines) +
                     "Text CompString D E | →Comparison string: \"D E\"\n"
                     "Int16 EndRepetition 2");
}

TEST(CCP, ReadsItsTextsInThePageInForce)
{
    InputPages pages;
    pages.lngInputCP = 1252;
    const Bytes group = Pieces("00 00 <Map ABCD> 00 <Data map> 00 <xyz>");
    const Shown shown = ShowRecord({"CCP", Pieces("0001 0002 00 00 0001 0017 0003") + group}, pages);
    EXPECT_EQ(ValuesOf(shown, "MMName"), Lines{"Map ABCD"});
    EXPECT_EQ(ValuesOf(shown, "DMName"), Lines{"Data map"});
    EXPECT_EQ(ValuesOf(shown, "CompString"), Lines{"xyz"});
}

TEST(CCP, NamesThatAreNotGivenAreEmpty)
{
    const Shown shown = ShowRecord({"CCP", Pieces("0001 0002 00 00 0001 0014 0000 00*20")});
    EXPECT_NE(shown.text.find("→Medium Map Name: \"\"\n"), std::string::npos) << shown.text;
    EXPECT_NE(shown.text.find("→Comparison string: \"\"\n"), std::string::npos) << shown.text;
}

TEST(CCP, OfAGroupLengthOfZeroHasOneGroup)
{
    const Shown shown = ShowRecord({"CCP", Pieces("0001 0002 00 00 0002 0000 0003 00*40")});
    EXPECT_EQ(ValuesOf(shown, "BeginRepetition"), Lines{"1"});
    EXPECT_EQ(ValuesOf(shown, "EndRepetition"), Lines{"1"});
}

TEST(CCP, WithoutGroupsEndsBehindItsFixedPart)
{
    EXPECT_EQ(ShowRecord({"CCP", Pieces("0001 0002 00 00 0000 0017 0003")}).elements.size(), 8u);
    EXPECT_EQ(ShowRecord({"CCP", Pieces("0001 0002 00 00 0000 0017 0003 00")}).elements.size(), 8u);
    EXPECT_GT(ShowRecord({"CCP", Pieces("0001 0002 00 00 0000 0017 0003 0000")}).elements.size(), 8u);
}

TEST(CCP, OverlappingGroupsWithLongStringsStaySmall)
{
    // One group a byte, each with a string of 65,535 bytes: written out they would be gigabytes.
    const Bytes groups(20'000, '\xC1');
    RecordWalk walk(AfpFile().Add("CCP", Pieces("0001 0002 00 00 0002 0001 FFFF") + groups));
    walk.Next();
    std::size_t strings = 0;
    for (const Element& element : walk.afp.List().Elements())
        if (element.key == Key::CompString && walk.afp.List().TextOf(element).size() == 65'535) ++strings;
    EXPECT_EQ(strings, 19'999u);
    EXPECT_LT(walk.afp.List().Pool().size(), 8u << 20);

    LineBench bench;
    bench.renderer.RenderStructuredField(walk.afp.List());
    EXPECT_LE(bench.renderer.text.Position(), PropertyText::kCapacity);
}

// FDS, LNC
// --------------------------------------------------------------------------------------------------------------------

TEST(FDS, TellsTheSizeOfTheFixedText)
{
    ExpectRecord("FDS", "FFFF", "Int32 FixedDataSize 65535 | No. of bytes in following FDX structured fields: 65,535");
}

TEST(LNC, TellsTheNumberOfDescriptors)
{
    ExpectRecord("LNC", "03E8", "Int32 LNDCount 1000 | No. of following LND structured fields: 1,000");
}

// LND
// --------------------------------------------------------------------------------------------------------------------

Bytes LineDescriptor(std::string_view flags)
{
    return DataOf(40, {
                          {0, flags},
                          {2, "03E8 FC18"},        // positions
                          {6, "2D00 5A00"},        // rotations
                          {10, "FF 0C"},           // font, channel code
                          {12, "03E9 03EA 03EB"},  // next descriptors
                          {18, "'SECRET01'"},
                          {27, "000003E8 FFFF"},     // start, length
                          {33, "0002 03EC 05 03ED"}  // colour, next descriptor, subpage, condition
                      });
}

TEST(LND, HasAllRowsWithoutAnyFlag)
{
    const Shown shown = ShowRecord({"LND", LineDescriptor("0000")});
    ExpectShown(shown.typed, shown.text,
                "Boolean LNDFlagsSkip 0 | New page at unexpected skipping channel code: No\n"
                "Int32 NextLNDSkip 1001 | Next LND if skipping channel code detected: 1001\n"
                "Boolean LNDFlagsSpace 0 | New page at unexpected spacing channel code: No\n"
                "Int32 NextLNDSpace 1002 | Next LND if spacing channel code detected: 1002\n"
                "Boolean LNDFlagsReuse 0 | Use same data with other LND: No\n"
                "Int32 NextLNDReuse 1003 | Next LND when reusing the same data: 1003\n"
                "Boolean LNDFlagsInline 0 | Set new writing position X axis: No\n"
                "Boolean LNDFlagsBaseline 0 | Set new writing position Y axis: No\n"
                "Boolean LNDFlagsRelBaseline 0 | Move writing position Y axis: No\n"
                "Int32 NewInlinePos 1000 | New writing position X axis: 1,000\n"
                "Int32 NewBaselinePos 64536 | New writing position Y axis: 64,536\n"
                "Boolean LNDFlagsFont 0 | Use new font: No\n"
                "Boolean LNDFlagsTextColor 0 | Set text color: No\n"
                "Boolean LNDFlagsCompTRC 0 | Use small Font table: No\n"
                "Byte FontLID 255 | Font: Default\n"
                "Int32 Color 2 | Color: Red\n"
                "Int32 RotationX 11520 | Rotation X axis (clockwise): 90°\n"
                "Int32 RotationY 23040 | Rotation Y axis (clockwise): 180°\n"
                "Boolean LNDFlagsFixedData 0 | Use fixed data information: No\n"
                "Int32 DataStart 1000 | Use variable data beginning with offset: 1,000\n"
                "Int32 DataLength 65535 | No. of variable data bytes to use: Place all remaining bytes\n"
                "Boolean LNDFlagsCondition 0 | Use conditional processing: No\n"
                "Int32 CCPID 1005 | Use Conditional Processing (CCP) with ID: 1005\n"
                "Int32 NextLNDCond 1004 | Next LND when using conditional processing: 1004\n"
                "Byte ChannelCode 12 | Active on channel code: 12\n"
                "Byte SubpageID 5 | Subpage ID: 5\n"
                "Boolean LNDFlagsROI 0 | Include resource object: No\n"
                "Boolean LNDFlagsSupp 0 | Suppress data: No\n"
                "Text SuppToken SECRET01 | Suppression token name: \"SECRET01\"");
}

// The flags, each with its bit of the word that begins the descriptor.
struct FlagCase {
    int bit;
    std::string_view key;
};

void ExpectFlags(std::span<const FlagCase> flags, const std::function<Shown(const Bytes& word)>& show, int bits)
{
    for (int set = 0; set < bits; ++set) {
        const Shown shown = show(U4(0x80000000u >> set));
        for (const auto& [bit, key] : flags)
            EXPECT_EQ(ValueOf(shown, key), bit == set ? "1" : "0") << key << " with bit " << set;
    }
}

constexpr FlagCase kLineFlags[] = {{0, "LNDFlagsSkip"},        {1, "LNDFlagsSpace"},      {2, "LNDFlagsInline"},
                                   {3, "LNDFlagsBaseline"},    {4, "LNDFlagsFont"},       {5, "LNDFlagsSupp"},
                                   {6, "LNDFlagsReuse"},       {7, "LNDFlagsFixedData"},  {9, "LNDFlagsCompTRC"},
                                   {10, "LNDFlagsTextColor"},  {11, "LNDFlagsCondition"}, {12, "LNDFlagsROI"},
                                   {13, "LNDFlagsRelBaseline"}};

TEST(LND, HasItsFlagsInTheFirstWord)
{
    ExpectFlags(
        kLineFlags,
        [](const Bytes& word) {
            return ShowRecord({"LND", word.substr(0, 2) + Zeros(38)});
        },
        16);
}

TEST(LND, MovesTheBaselineByASignedNumber)
{
    const auto linesOf = [](std::string_view position) {
        const Shown shown = ShowRecord({"LND", DataOf(40, {{0, "0004"}, {4, position}})});
        const auto at = shown.text.find("New writing position X axis: 0\n");
        return shown.text.substr(at, shown.text.find("Use new font") - at);
    };
    EXPECT_EQ(linesOf("FC18"), "New writing position X axis: 0\nMovement of writing position Y axis: -1,000\n");
    EXPECT_EQ(linesOf("03E8"), "New writing position X axis: 0\nMovement of writing position Y axis: +1,000\n");
    EXPECT_EQ(linesOf("0000"), "New writing position X axis: 0\nMovement of writing position Y axis: 0\n");
}

TEST(LND, TakesFixedTextByItsFlag)
{
    const Shown shown = ShowRecord({"LND", LineDescriptor("0100")});
    EXPECT_EQ(ValueOf(shown, "FixedTextStart"), "1000");
    EXPECT_EQ(ValueOf(shown, "FixedTextLength"), "65535");
    EXPECT_EQ(ValueOf(shown, "DataStart"), "none");
    EXPECT_EQ(ValueOf(shown, "DataLength"), "none");
    EXPECT_NE(shown.text.find("Use fixed text (FDX) beginning with offset: 1,000\n"
                              "No. of fixed text bytes to use: 65,535\n"),
              std::string::npos)
        << shown.text;
}

TEST(LND, CountsTheBytesOfVariableData)
{
    const Shown shown = ShowRecord({"LND", DataOf(40, {{31, "FFFE"}})});
    EXPECT_NE(shown.text.find("No. of variable data bytes to use: 65,534\n"), std::string::npos) << shown.text;
}

TEST(LND, HasTripletsBehindFortyBytes)
{
    const Shown shown = ShowRecord({"LND", LineDescriptor("0000") + Pieces("03 81 01")});
    EXPECT_EQ(ValueOf(shown, "TripletStartbyte"), "50");
    EXPECT_EQ(ValueOf(shown, "UsePGP"), "1");
}

TEST(LND, CutShortHasAllItsKeys)
{
    for (const std::size_t size : {0, 1, 17, 26, 39}) {
        const Shown shown = ShowRecord({"LND", LineDescriptor("0000").substr(0, size)});
        EXPECT_EQ(shown.typed.size(), 29u) << size;
        EXPECT_EQ(ValueOf(shown, "CCPID"), size == 39 ? "768" : "0") << size;  // one of its two bytes
    }
}

// RCD
// --------------------------------------------------------------------------------------------------------------------

Bytes RecordDescriptor(const Bytes& flags)
{
    Bytes data = DataOf(70, {{0, "'CUSTOMER  ' 01"},
                             {15, "03E8 FC18 2D00 5A00 05"},  // positions, rotations, font
                             {26, "'SECRET01'"},
                             {35, "000003E8 0014"},  // start, length
                             {41, "03E9 00 03EA"},   // conditional record, condition
                             {46, "03EB 0001 01"},   // page number, space at the end, alignment
                             {51, "'-/'"},           // delimiter
                             {53, "03EC 03ED"}});    // field number, increment
    return data.replace(11, flags.size(), flags);
}

TEST(RCD, IsDecodedWhenItIsAnalysedDirectly)
{
    const Shown shown = ShowDirectly("RCD", RecordDescriptor(Zeros(3)));
    ExpectShown(shown.typed, shown.text,
                "Text Record CUSTOMER   | Record: CUSTOMER  \n"
                "Byte RCDType 1 | Record type: Page Header\n"
                "Int16 RCDSubType 0 | Record sub type: Record RCD\n"
                "Boolean LNDFlagsInline 0 | Set new writing position X axis: No\n"
                "Boolean LNDFlagsBaseline 0 | Set new writing position Y axis: No\n"
                "Boolean LNDFlagsRelBaseline 0 | Move writing position Y axis: No\n"
                "Int32 NewInlinePos 1000 | New writing position X axis: 1,000\n"
                "Int32 NewBaselinePos 64536 | New writing position Y axis: 64,536\n"
                "Boolean LNDFlagsFont 0 | Use new font: No\n"
                "Byte FontLID 5 | Font: 5\n"
                "Int32 RotationX 11520 | Rotation X axis (clockwise): 90°\n"
                "Int32 RotationY 23040 | Rotation Y axis (clockwise): 180°\n"
                "Boolean LNDFlagsFixedData 0 | Use fixed data information: No\n"
                "Int32 DataStart 1000 | Use variable data beginning with offset: 1,000\n"
                "Int32 DataLength 20 | No. of variable data bytes to use: 20\n"
                "Boolean LNDFlagsSupp 0 | Suppress data: No\n"
                "Text SuppToken SECRET01 | Suppression token name: \"SECRET01\"\n"
                "Boolean LNDFlagsCondition 0 | Use conditional processing: No\n"
                "Int32 CCPID 1002 | Use Conditional Processing (CCP) with ID: 1002\n"
                "Int32 CondRCD 1001 | Concatenated with Conditional-RCD: 1001\n"
                "Boolean RCDNewPage 0 | Logical page eject first: No\n"
                "Boolean RCDPageNo 0 | Print page number: No\n"
                "Boolean ResetPageNo 0 | Reset page number: No\n"
                "Int32 NewPageNo 1003 | New page number: 1,003\n"
                "Boolean RCDGroup 0 | Record is part of a group: No\n"
                "Boolean RCDDelSize 0 | Field delimiter size: 1\n"
                "Text FieldDel / | Field Delimiter: /\n"
                "Byte FieldAlign 1 | Field alignment: Right\n"
                "Int32 FieldNo 1004 | Field number: 1,004\n"
                "Boolean RecIDData 0 | Use record ID as data field: No\n"
                "Int32 RCDEndSpace 1 | Check for enough space at bottom: Yes\n"
                "Int32 AdBIncrement 1005 | Additional baseline increment: 1,005");
}

constexpr FlagCase kRecordFlags[] = {{2, "LNDFlagsInline"},
                                     {3, "LNDFlagsBaseline"},
                                     {4, "LNDFlagsFont"},
                                     {5, "LNDFlagsSupp"},
                                     {7, "LNDFlagsFixedData"},
                                     {11, "LNDFlagsCondition"},
                                     {13, "LNDFlagsRelBaseline"},
                                     {16, "RCDNewPage"},
                                     {17, "RCDPageNo"},
                                     {18, "ResetPageNo"},
                                     {19, "RCDGroup"},
                                     {20, "RCDDelSize"},
                                     {21, "RecIDData"}};

TEST(RCD, HasItsFlagsBehindTheType)
{
    ExpectFlags(
        kRecordFlags, [](const Bytes& word) { return ShowDirectly("RCD", RecordDescriptor(word)); }, 24);
}

TEST(RCD, HasASubTypeByTwoFlags)
{
    const auto typeOf = [](unsigned flags) {
        return ValueOf(ShowDirectly("RCD", RecordDescriptor(U2(flags))), "RCDSubType");
    };
    EXPECT_EQ(typeOf(0x0000), "0");
    EXPECT_EQ(typeOf(0x0200), "1");
    EXPECT_EQ(typeOf(0x0010), "2");
    EXPECT_EQ(typeOf(0x0210), "2");
}

TEST(RCD, HasPositionsAndTextByItsFlags)
{
    const Shown moved = ShowDirectly("RCD", RecordDescriptor(U2(0x0004)));
    EXPECT_EQ(ValueOf(moved, "NewRelBaselinePos"), "-1000");
    EXPECT_EQ(ValueOf(moved, "NewBaselinePos"), "none");
    const Shown fixed = ShowDirectly("RCD", RecordDescriptor(U2(0x0100)));
    EXPECT_EQ(ValueOf(fixed, "FixedTextStart"), "1000");
    EXPECT_EQ(ValueOf(fixed, "FixedTextLength"), "20");
    EXPECT_EQ(ValueOf(fixed, "DataStart"), "none");
}

TEST(RCD, HasADelimiterOfOneOrTwoBytes)
{
    EXPECT_EQ(ValueOf(ShowDirectly("RCD", RecordDescriptor(Zeros(3))), "FieldDel"), "/");
    EXPECT_EQ(ValueOf(ShowDirectly("RCD", RecordDescriptor(Pieces("000008"))), "FieldDel"), "-/");
}

TEST(RCD, HasTripletsBehindSeventyBytes)
{
    const Shown shown = ShowDirectly("RCD", RecordDescriptor(Zeros(3)) + Pieces("03 81 01"));
    EXPECT_EQ(ValueOf(shown, "UsePGP"), "1");
    EXPECT_EQ(ValueOf(ShowDirectly("RCD", RecordDescriptor(Zeros(3))), "TripletStartbyte"), "none");
}

// XMD
// --------------------------------------------------------------------------------------------------------------------

Bytes ElementDescriptor(const Bytes& flags)
{
    Bytes data = DataOf(62, {{0, "03"},
                             {9, "2D00 5A00 05 03E9"},  // rotations, font, field
                             {18, "'SECRET01'"},
                             {27, "000003E8 0014"},         // start, length
                             {35, "07 03EA 03EB 0000 00"},  // subpage, condition, page number, space, alignment
                             {43, "'-/'"},
                             {45, "03EC 03ED"}});
    return data.replace(1, flags.size(), flags);
}

TEST(XMD, IsDecodedWhenItIsAnalysedDirectly)
{
    const Shown shown = ShowDirectly("XMD", ElementDescriptor(Zeros(3)));
    ExpectShown(shown.typed, shown.text,
                "Byte XMLElementType 3 | Element type: Group Header\n"
                "Boolean XMLFlagGenInlinePos 0 | Generate inline position: No\n"
                "Boolean XMLFlagGenBaselinePos 0 | Generate baseline position: No\n"
                "Boolean XMLFlagGenFontChange 0 | Generate font change: No\n"
                "Boolean XMLFlagGenSup 0 | Generate suppression: No\n"
                "Boolean XMLFlagFieldXMD 0 | Field XMD: No\n"
                "Boolean XMLFlagUseFixedData 0 | Use fixed data: No\n"
                "Boolean XMLFlagAttrXMD 0 | Attribute XMD: No\n"
                "Boolean XMLFlagCondXMD 0 | Conditional Processing XMD: No\n"
                "Boolean XMLFlagRelInlinePos 0 | Relative inline position: No\n"
                "Boolean XMLFlagRelBaselinePos 0 | Relative baseline position: No\n"
                "Boolean XMLFlagNewPage 0 | New page: No\n"
                "Boolean XMLFlagPrintPageNo 0 | Print page number: No\n"
                "Boolean XMLFlagResetPageNo 0 | Reset page number: No\n"
                "Boolean XMLFlagGroupInd 0 | Group indicator: No\n"
                "Boolean XMLFlagFieldDelimSize 0 | Field delimiter size: No\n"
                "Boolean XMLFlagUseStartTag 0 | Use start tag: No\n"
                "Boolean XMLFlagContinued 0 | Header/Trailer continued: No\n"
                "Int32 RotationX 11520 | Rotation X axis (clockwise): 90°\n"
                "Int32 RotationY 23040 | Rotation Y axis (clockwise): 180°\n"
                "Byte FontLID 5 | Font: 5\n"
                "Int32 FieldXMD 1001 | XMD Field Pointer: 1001\n"
                "Text SuppToken SECRET01 | Suppression token name: \"SECRET01\"\n"
                "Int32 DataStart 1000 | Use variable data beginning with offset: 1,000\n"
                "Int32 DataLength 20 | No. of variable data bytes to use: 20\n"
                "Int32 CondXMD 1001 | Concatenated with conditional XMD: 1001\n"
                "Byte SubpageID 7 | Subpage ID: 7\n"
                "Int32 CCPID 1002 | Use Conditional Processing (CCP) with ID: 1002\n"
                "Int32 NewPageNo 1003 | New page number: 1,003\n"
                "Int32 RCDEndSpace 0 | Check for enough space at bottom: No\n"
                "Byte FieldAlign 0 | Field alignment: Left\n"
                "Text FieldDel / | Field Delimiter: /\n"
                "Int32 FieldNo 1004 | Field number: 1,004\n"
                "Int32 AdBIncrement 1005 | Additional baseline increment: 1,005");
}

constexpr FlagCase kElementFlags[] = {
    {2, "XMLFlagGenInlinePos"},    {3, "XMLFlagGenBaselinePos"}, {4, "XMLFlagGenFontChange"},
    {5, "XMLFlagGenSup"},          {6, "XMLFlagFieldXMD"},       {7, "XMLFlagUseFixedData"},
    {10, "XMLFlagAttrXMD"},        {11, "XMLFlagCondXMD"},       {12, "XMLFlagRelInlinePos"},
    {13, "XMLFlagRelBaselinePos"}, {16, "XMLFlagNewPage"},       {17, "XMLFlagPrintPageNo"},
    {18, "XMLFlagResetPageNo"},    {19, "XMLFlagGroupInd"},      {20, "XMLFlagFieldDelimSize"},
    {21, "XMLFlagUseStartTag"},    {23, "XMLFlagContinued"}};

TEST(XMD, HasItsFlagsBehindTheType)
{
    ExpectFlags(
        kElementFlags, [](const Bytes& word) { return ShowDirectly("XMD", ElementDescriptor(word)); }, 24);
}

TEST(XMD, HasTextAndDelimiterByItsFlags)
{
    const Shown shown = ShowDirectly("XMD", ElementDescriptor(Pieces("010008")));
    EXPECT_EQ(ValueOf(shown, "FixedTextStart"), "1000");
    EXPECT_EQ(ValueOf(shown, "FixedTextLength"), "20");
    EXPECT_EQ(ValueOf(shown, "DataStart"), "none");
    EXPECT_EQ(ValueOf(shown, "FieldDel"), "-/");
}

TEST(XMD, HasTripletsBehindSixtyTwoBytes)
{
    const Shown shown = ShowDirectly("XMD", ElementDescriptor(Zeros(3)) + Pieces("03 81 01"));
    EXPECT_EQ(ValueOf(shown, "UsePGP"), "1");
}

TEST(XMD, MarksAnUnknownElementType)
{
    const Shown shown = ShowDirectly("XMD", U1(4) + Zeros(61));
    EXPECT_TRUE(shown.text.starts_with("Element type: <red>Unknown (4)</red>\n")) << shown.text;
    EXPECT_EQ(shown.heard, (Lines{"Message Element type: Unknown (4)", "Invalid"}));
}

}  // namespace
}  // namespace folioscope
