// The triplets that name things: code pages, qualified names, objects, attributes.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// Bytes that differ between the pages: x'4F' and x'5A' are "|!" on 37 and "!]" on 500.
constexpr std::string_view kTelling = "4F 5A";
const std::string k37 = "|!", k500 = "!]", k819 = "OZ";

std::string ContentOf(const Shown& shown) { return ValuesOf(shown, "Content").at(0); }

// x'01'
// ----------------------------------------------------------------------------------------------------------------

constexpr std::string_view kPage500 = "01 0697 01F4", kPage819 = "01 0697 0333", kNoPage = "01 0697 270F";

Bytes Telling() { return Pieces(kTelling); }

TEST(CodePageTriplet, HoldsForTheScopeOfItsBegin)
{
    const Bytes comment = TripletOf("65 4F 5A");
    FamilyWalk walk(AfpFile()
                        .Add("BDT", Ebcdic8("DOC") + Zeros(2) + TripletOf(kPage819) + comment)
                        .Add("OBD", comment)
                        .Add("BPG", Ebcdic8("PAGE"))
                        .Add("OBD", comment)
                        .Add("EPG")
                        .Add("OBD", comment)
                        .Add("EDT")
                        .Add("OBD", comment));
    EXPECT_EQ(ContentOf(walk.Next()), k819);  // in the Begin itself
    EXPECT_EQ(ContentOf(walk.Next()), k819);
    walk.Next();
    EXPECT_EQ(ContentOf(walk.Next()), k819);  // in a scope inside
    walk.Next();
    EXPECT_EQ(ContentOf(walk.Next()), k819);
    walk.Next();
    EXPECT_EQ(ContentOf(walk.Next()), k37);  // behind its End
}

TEST(CodePageTriplet, OnOtherFieldsHoldsForTheField)
{
    const Bytes comment = TripletOf("65 4F 5A");
    FamilyWalk walk(AfpFile().Add("OBD", comment + TripletOf(kPage819) + comment).Add("OBD", comment));
    EXPECT_EQ(ValuesOf(walk.Next(), "Content"), (Lines{k37, k819}));
    EXPECT_EQ(ContentOf(walk.Next()), k37);
}

TEST(CodePageTriplet, SetsThePagesOfNopAndTleForGood)
{
    FamilyWalk walk(AfpFile()
                        .Add("NOP", Telling())
                        .Add("OBD", TripletOf(kPage819))
                        .Add("NOP", Telling())
                        .Add("TLE", TripletOf("36 0000 4F 5A"))
                        .Add("TLE", TripletOf("02 0B 00 4F 5A")));
    EXPECT_EQ(ValuesOf(walk.Next(), "NOPContent"), Lines{k37});
    walk.Next();
    EXPECT_EQ(ValuesOf(walk.Next(), "NOPContent"), Lines{k819});
    EXPECT_EQ(ContentOf(walk.Next()), k819);
    EXPECT_EQ(ContentOf(walk.Next()), k819);
}

TEST(CodePageTriplet, PassesOverAPageThatIsNotKnown)
{
    const Bytes comment = TripletOf("65 4F 5A");
    FamilyWalk walk(
        AfpFile().Add("BDT", Ebcdic8("DOC") + Zeros(2) + TripletOf(kNoPage) + comment).Add("NOP", Telling()));
    const Shown shown = walk.Next();
    EXPECT_EQ(ContentOf(shown), k37);
    EXPECT_EQ(ValuesOf(shown, "CDPID"), Lines{"9999"});
    EXPECT_EQ(ValuesOf(shown, "ShowTripletContent"), Lines{"Codepage: 9999"});
    EXPECT_EQ(ValuesOf(walk.Next(), "NOPContent"), Lines{k37});
}

TEST(CodePageTriplet, IsOnlyShownIfPagesAreNotToBeDetected)
{
    const InputPages pages = {.lngInputCP = 37, .lngInputCPNOP = 37, .lngInputCPTLE = 37, .CPAutoDetect = false};
    FamilyWalk walk(AfpFile().Add("OBD", TripletOf(kPage819) + TripletOf("65 4F 5A")).Add("NOP", Telling()), pages);
    const Shown shown = walk.Next();
    EXPECT_EQ(ValuesOf(shown, "CDPID"), Lines{"819"});
    EXPECT_EQ(ContentOf(shown), k37);
    EXPECT_EQ(ValuesOf(walk.Next(), "NOPContent"), Lines{k37});
}

TEST(CodePageTriplet, OfAFontIsShownAndNotFollowed)
{
    EXPECT_EQ(ContentOf(ShowTriplets(TripletOf("20 0697 0333") + TripletOf("65 4F 5A"))), k37);
}

// x'02', names of characters
// -------------------------------------------------------------------------------------------

struct NameTypeCase {
    int type;
    std::string_view text;
};

// clang-format off
constexpr NameTypeCase kNameTypes[] = {
    {0x01, "x'01' (Replace First GID Name)"},
    {0x07, "x'07' (Font Family Name)"},
    {0x08, "x'08' (Font Typeface Name)"},
    {0x09, "x'09' (MO:DCA Resource Hierarchy Reference)"},
    {0x0A, "x'0A' (Begin Resource Group Reference)"},
    {0x0B, "x'0B' (Attribute GID)"},
    {0x0C, "x'0C' (Process Element GID)"},
    {0x0D, "x'0D' (Begin Page Group Reference)"},
    {0x11, "x'11' (Media Type Reference)"},
    {0x12, "x'12' (Media Destination Reference)"},
    {0x41, "x'41' (Color Management Resource Reference)"},
    {0x48, "x'48' (Metadata Object (MO) Reference)"},
    {0x6E, "x'6E' (Data Object Font Base Font Identifier)"},
    {0x7E, "x'7E' (Data Object Font Linked Font Identifier)"},
    {0x83, "x'83' (Begin Document Reference)"},
    {0x84, "x'84' (Resource Object Reference)"},
    {0x85, "x'85' (Code Page Name Reference)"},
    {0x86, "x'86' (Font Character Set Name Reference)"},
    {0x87, "x'87' (Begin Page Reference)"},
    {0x8D, "x'8D' (Begin Medium Map Reference)"},
    {0x8E, "x'8E' (Coded Font Name Reference)"},
    {0x98, "x'98' (Begin Document Index Reference)"},
    {0xB0, "x'B0' (Begin Overlay Reference)"},
    {0xBE, "x'BE' (Data Object Internal Resource Reference)"},
    {0xCA, "x'CA' (Index Element GID)"},
    {0xCE, "x'CE' (Other Object Data Reference)"},
    {0xDE, "x'DE' (Data Object External Resource Reference)"},
};
// clang-format on

TEST(QualifiedName, TellsItsTypeIfThatIsKnown)
{
    AfpFile file;
    for (unsigned type = 0; type < 256; ++type) file.Add("OBD", U1(6) + U1(0x02) + U1(type) + U1(0) + Telling());
    FamilyWalk walk(file);
    for (int type = 0; type < 256; ++type) {
        Lines expected;
        for (const auto& [known, text] : kNameTypes)
            if (known == type) expected.emplace_back(text);
        const Shown shown = walk.Next();
        EXPECT_EQ(ValuesOf(shown, "FQNType"), expected) << type;
        EXPECT_TRUE(Has(shown, "FQNFormat")) << type;
    }
}

enum class ReadIn { Current, Tle, P437, P500 };

struct NameCase {
    int type;
    ReadIn page;
    int format;
    bool hexToo;
};

// clang-format off
constexpr NameCase kNames[] = {
    {0x0B, ReadIn::Tle,     1, false},
    {0x01, ReadIn::Current, 1, false},
    {0xCA, ReadIn::Current, 1, false},
    {0xDE, ReadIn::Current, 1, false},
    {0xCE, ReadIn::P500,    3, false},
    {0x41, ReadIn::P437,    3, false},
    {0x85, ReadIn::Current, 1, true},
    {0x86, ReadIn::Current, 1, true},
    {0x8D, ReadIn::Current, 1, true},
    {0x8E, ReadIn::Current, 1, true},
    {0xBE, ReadIn::Current, 1, true},
    {0x84, ReadIn::P500,    1, true},   // and all others alike
    {0x07, ReadIn::P500,    1, true},
    {0x98, ReadIn::P500,    1, true},
    {0xEE, ReadIn::P500,    1, true},   // of no known type
};
// clang-format on

TEST(QualifiedName, IsReadAsItsTypeSays)
{
    // Bytes that each of the four pages reads in its own way: 37 "|", 500 "!", 819 "O", and x'9B' on 437.
    const InputPages pages = {.lngInputCP = 37, .lngInputCPNOP = 37, .lngInputCPTLE = 819};
    for (const auto& [type, page, format, hexToo] : kNames) {
        const Bytes name = page == ReadIn::P437 ? Pieces("4F 9B") : Telling();
        const Shown shown = ShowTriplets(U1(6) + U1(0x02) + U1(static_cast<unsigned>(type)) + U1(0) + name, pages);
        const std::string expected = page == ReadIn::P437   ? "O¢"
                                     : page == ReadIn::P500 ? k500
                                     : page == ReadIn::Tle  ? k819
                                                            : k37;
        EXPECT_EQ(ValuesOf(shown, "FQNFormat"), Lines{std::to_string(format)}) << type;
        EXPECT_EQ(ValuesOf(shown, "Content"), Lines{expected}) << type;
        EXPECT_EQ(ValuesOf(shown, "HexCode"), hexToo ? Lines{"4F 5A"} : Lines{}) << type;
    }
}

TEST(QualifiedName, KeepsItsOrder)
{
    EXPECT_EQ(KeysOf(ShowTriplets(TripletOf("02 85 00 'T1V10037'"))),
              "FQNType FQNFormat Content HexCode ShowTripletContent");
}

TEST(QualifiedName, KeepsBlanksAndAtSignsInTheContentOnly)
{
    // x'7C' is "@".
    const Shown shown = ShowTriplets(TripletOf("02 0B 00 40 'A' 7C 'B' 40"));
    EXPECT_EQ(ValuesOf(shown, "Content"), Lines{" A@B "});
    EXPECT_EQ(ValuesOf(shown, "ShowTripletContent"), Lines{"FQN: A B"});
}

TEST(QualifiedName, HasNoSummaryOfUndefinedData)
{
    EXPECT_EQ(ValuesOf(ShowTriplets(TripletOf("02 CE 00 'DATA'")), "ShowTripletContent"), Lines{});
    EXPECT_EQ(ValuesOf(ShowTriplets(TripletOf("02 41 00 4F")), "ShowTripletContent"), Lines{});
}

TEST(QualifiedName, OfOtherTypesIsSummedUpAsItIs)
{
    EXPECT_EQ(ValuesOf(ShowTriplets(TripletOf("02 84 00 'A' 7C 'B'")), "ShowTripletContent"), Lines{"FQN: A@B"});
}

TEST(QualifiedName, CanBeEmpty)
{
    const Shown shown = ShowTriplets(TripletOf("02 0B 00") + TripletOf("81 01"));
    EXPECT_EQ(ValuesOf(shown, "Content"), Lines{""});
    EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
}

TEST(QualifiedName, OfAnotherFormatHasItsTypeOnly)
{
    EXPECT_EQ(KeysOf(ShowTriplets(TripletOf("02 0B 01 'NAME'"))), "FQNType");
    EXPECT_EQ(KeysOf(ShowTriplets(TripletOf("02 0B 30 'NAME'"))), "FQNType");
    EXPECT_EQ(KeysOf(ShowTriplets(TripletOf("02 EE FF 'NAME'"))), "");
}

// x'02', Unicode
// -------------------------------------------------------------------------------------------------------

const Bytes kColorManagement = TripletOf("10 00 01 0000 90 00 06072B120004010139 00*7");
const Bytes kMetadata = TripletOf("10 00 50 0000 90 00 06072B120004010143 00*7");
const Bytes kOtherObject = TripletOf("10 00 01 0000 90 00 06072B120004010117 00*7");

TEST(QualifiedName, IsUnicodeForColourManagementAndMetadata)
{
    for (const Bytes& object : {kColorManagement, kMetadata}) {
        for (const std::string_view name : {"02 01 00 0041 00DC", "02 CA 00 0041 00DC", "02 DE 00 0041 00DC"}) {
            const Shown shown = ShowTriplets(object + TripletOf(name));
            EXPECT_EQ(ContentOf(shown), "AÜ");
            EXPECT_EQ(ValuesOf(shown, "FQNFormat"), Lines{"2"});
            EXPECT_NE(shown.text.find("→GID format: Character string / Global Resource Identifier (GRIC)\n"),
                      std::string::npos);
        }
        EXPECT_EQ(ContentOf(ShowTriplets(object + TripletOf("02 85 00 4F 5A"))), k37);
    }
    EXPECT_EQ(ContentOf(ShowTriplets(kOtherObject + TripletOf("02 DE 00 4F 5A"))), k37);
    EXPECT_EQ(ContentOf(ShowTriplets(kColorManagement + kOtherObject + TripletOf("02 DE 00 4F 5A"))), k37);
}

TEST(QualifiedName, IsUnicodeUntilTheNextContainer)
{
    FamilyWalk walk(AfpFile()
                        .Add("BOC", Ebcdic8("CMR") + kColorManagement)
                        .Add("OBD", TripletOf("02 DE 00 0041 00DC"))
                        .Add("BOC", Ebcdic8("OTHER"))
                        .Add("OBD", TripletOf("02 DE 00 4F 5A")));
    walk.Next();
    EXPECT_EQ(ContentOf(walk.Next()), "AÜ");
    walk.Next();
    EXPECT_EQ(ContentOf(walk.Next()), k37);
}

// x'02', object ids and addresses
// --------------------------------------------------------------------------------------

TEST(QualifiedName, CanBeAnObjectId)
{
    const Shown shown = ShowTriplets(TripletOf("02 DE 10 06072B120004010116"));
    ExpectTriplet(shown, "x'02' (Fully Qualified Name)",
                  "FQNType x'DE' (Data Object External Resource Reference) | Name subtype: x'DE' (Data Object External "
                  "Resource Reference)\n"
                  "FQNFormat 4 | GID format: ASN.1 Object Identifier (OID)\n"
                  "HexCode 06 07 2B 12 00 04 01 01 16 | Hex-Codes: x'06 07 2B 12 00 04 01 01 16'\n"
                  "OIDType , Graphics Interchange Format (GIF) | Registered object type: Graphics Interchange Format "
                  "(GIF)\n"
                  "ShowTripletContent OID: Graphics Interchange Format (GIF)");
}

TEST(QualifiedName, CanBeAnAddress)
{
    const Shown shown = ShowTriplets(TripletOf("02 DE 20 <http://a.b/9>") + TripletOf("81 01"));
    EXPECT_EQ(ValuesOf(shown, "FQNFormat"), Lines{"5"});
    EXPECT_EQ(ContentOf(shown), "http://a.b/9");
    EXPECT_EQ(ValuesOf(shown, "HexCode"), Lines{"68 74 74 70 3A 2F 2F 61 2E 62 2F 39"});
    EXPECT_EQ(ValuesOf(shown, "ShowTripletContent"), Lines{"URL: http://a.b/9"});
    EXPECT_NE(shown.text.find("→GID format: URL\n→Content:→<b>http://a.b/9</b>\n→Hex-Codes: x'68"), std::string::npos);
    EXPECT_EQ(ContentOf(ShowTriplets(TripletOf("02 84 20 9B"))), "¢");  // page 437 whatever the type
}

// x'10'
// ----------------------------------------------------------------------------------------------------------------

TEST(ObjectClassification, OfThreeBytesIsPaddingAndTheWalkGoesOn)
{
    for (const int length : {2, 3}) {
        const Bytes data = length == 2 ? Raw({0x02, 0x10}) : Raw({0x03, 0x10, 0x07});
        const Shown shown = ShowTriplets(data + TripletOf("81 01"));
        EXPECT_EQ(ValuesOf(shown, "BeginTriplet"), (Lines{"x'00'", "x'81'"}));
        EXPECT_EQ(ValuesOf(shown, "TripletInvalid"), Lines{"True"});
        EXPECT_EQ(ValuesOf(shown, "InvalidBytes"), Lines{"True"});
        EXPECT_FALSE(Has(shown, "ObjectClass"));
        EXPECT_EQ(ValuesOf(shown, "UsePGP"), Lines{"1"});
        EXPECT_EQ(shown.heard, Lines{});
    }
    EXPECT_TRUE(Has(ShowTriplets(Raw({0x04, 0x10, 0x00, 0x01})), "ObjectClass"));
}

TEST(ObjectClassification, TakesTwoBitsForEachCarrier)
{
    struct Case {
        unsigned flags;
        Lines codes;
    };
    const Case kCases[] = {{0x00, {"3", "3", "3"}}, {0xFC, {"1", "1", "1"}}, {0x54, {"2", "2", "2"}},
                           {0xA8, {"1", "1", "1"}}, {0x1F, {"3", "2", "1"}}, {0x03, {"3", "3", "3"}}};
    for (const auto& [flags, codes] : kCases) {
        const Shown shown = ShowTriplets(U1(24) + Pieces("10 00 01 0000") + U1(flags) + Zeros(17));
        const Lines got = {ValuesOf(shown, "ObjectBOC").at(0), ValuesOf(shown, "ObjectOEG").at(0),
                           ValuesOf(shown, "ObjectOCD").at(0)};
        EXPECT_EQ(got, codes) << flags;
    }
}

TEST(ObjectClassification, HasItsTextsByLength)
{
    const Bytes whole = Pieces("00 01 0000 90 00 06072B120004010117 00*7") + Bytes(72, '\xC1');
    const auto has = [&](unsigned length) {
        const Shown shown = ShowTriplets(U1(length) + U1(0x10) + whole.substr(0, length - 2));
        return std::string(Has(shown, "ObjectTypeName") ? "T" : "") + (Has(shown, "ObjectVersion") ? "V" : "") +
               (Has(shown, "ObjectCompany") ? "C" : "");
    };
    EXPECT_EQ(has(24), "");
    EXPECT_EQ(has(25), "T");
    EXPECT_EQ(has(56), "T");
    EXPECT_EQ(has(57), "TV");
    EXPECT_EQ(has(64), "TV");
    EXPECT_EQ(has(65), "TVC");
    EXPECT_EQ(has(96), "TVC");
}

TEST(ObjectClassification, ReadsVersionAndCompanyOfAColourManagementResourceInPage437)
{
    const Bytes texts = Bytes(32, '\xC1') + Bytes(8, '\x41') + Bytes(32, '\x41');
    const auto of = [&](std::string_view entry) {
        return ShowTriplets(U1(96) + Pieces("10 00 01 0000 90 00 06072B1200040101" + std::string(entry) + " 00*7") +
                            texts);
    };
    const Shown managed = of("39");
    EXPECT_EQ(ValuesOf(managed, "ObjectTypeName"), Lines{std::string(32, 'A')});
    EXPECT_EQ(ValuesOf(managed, "ObjectVersion"), Lines{std::string(8, 'A')});
    EXPECT_EQ(ValuesOf(managed, "ObjectCompany"), Lines{std::string(32, 'A')});
    // x'41' is a no-break space on page 37.
    const Shown other = of("43");
    EXPECT_EQ(ValuesOf(other, "ObjectVersion").at(0).substr(0, 2), "\u00A0");
}

TEST(ObjectClassification, ShowsAnEmptyTypeOfAnUnknownClass)
{
    const Shown shown = ShowTriplets(TripletOf("10 00 01 0000 90 00 06072B120004020517 00*7"));
    EXPECT_EQ(ValuesOf(shown, "OIDType"), Lines{", "});
    EXPECT_NE(shown.text.find("→Registered object type: \n"), std::string::npos);
}

// x'18', x'1F', x'21', x'27', x'36'
// ------------------------------------------------------------------------------------

TEST(InterchangeSet, IsSummedUpByItsId)
{
    struct Case {
        unsigned id;
        Lines summary;
    };
    const Case kCases[] = {{0x0900, {"MO:DCA IS/1"}},
                           {0x0001, {"MO:DCA AFP/A"}},
                           {0x0C00, {"MO:DCA IS/2"}},
                           {0x0D00, {"MO:DCA IS/3"}},
                           {0x0980, {"MO:DCA IS/1 + Function Set(s)"}},
                           {0x0D80, {"MO:DCA IS/3 + Function Set(s)"}},
                           {0x0D01, {"MO:DCA AFP/A + IS/3"}},
                           {0x0002, {}}};
    for (const auto& [id, summary] : kCases)
        EXPECT_EQ(ValuesOf(ShowTriplets(TripletOf("18 01").replace(0, 1, U1(5)) + U2(id)), "ShowTripletContent"),
                  summary)
            << id;
}

struct ResourceTypeCase {
    int type;
    std::string_view summary;
};

TEST(ResourceObjectType, IsSummedUp)
{
    // clang-format off
    constexpr ResourceTypeCase kTypes[] = {
        {0x03, "Resource: Graphics (GOCA) object"}, {0x05, "Resource: Bar Code (BCOCA) object"},
        {0x06, "Resource: Image (IOCA) object"},    {0x40, "Resource: Charset"},
        {0x41, "Resource: Codepage"},               {0x42, "Resource: CodedFont"},
        {0x92, "Resource: Object"},                 {0x9B, "Resource: Presentation Text (PTOCA) object"},
        {0xFB, "Resource: Segment"},                {0xFC, "Resource: Overlay"},
        {0xFD, "Resource: Pagedef"},                {0xFE, "Resource: Formdef"},
    };
    // clang-format on
    for (const auto& [type, summary] : kTypes) {
        const Shown shown = ShowRecord({"BRS", Ebcdic8("NAME") + Zeros(2) + Raw({0x03, 0x21, type})});
        EXPECT_EQ(ValuesOf(shown, "ShowTripletContent"), Lines{std::string(summary)});
        EXPECT_EQ(ValuesOf(shown, "ResObjType"), Lines{std::to_string(type)});
    }
    EXPECT_FALSE(Has(ShowRecord({"BRS", Ebcdic8("NAME") + Zeros(2) + TripletOf("21 A8")}), "ShowTripletContent"));
}

TEST(ResourceObjectType, IsAFunctionSetOnOtherFields)
{
    const Bytes triplet = TripletOf("21 FE 00 0000 0008");
    for (const std::string_view field : {"BOC", "BPG"}) {
        const Shown shown = ShowRecord({field, Ebcdic8("NAME") + triplet});
        EXPECT_EQ(ValuesOf(shown, "TripletName"), Lines{"x'21' (Object Function Set Specification)"});
        EXPECT_EQ(KeysOf(shown), "OCAObjType ArchitectureLevel DCAFunctionSet OCAFunctionSet ShowTripletContent");
    }
    const Shown resource = ShowRecord({"BRS", Ebcdic8("NAME") + Zeros(2) + triplet});
    EXPECT_EQ(ValuesOf(resource, "TripletName"), Lines{"x'21' (Resource Object Type)"});
    EXPECT_EQ(KeysOf(resource), "ResObjType ShowTripletContent");
}

TEST(FontSize, IsSummedUpInPoints)
{
    const auto of = [](unsigned height) {
        return ValuesOf(ShowTriplets(U1(20) + Pieces("1F 07 05") + U2(height) + Zeros(14)), "ShowTripletContent").at(0);
    };
    EXPECT_EQ(of(0), "Font size: 0.0");
    EXPECT_EQ(of(240), "Font size: 12.0");
    EXPECT_EQ(of(207), "Font size: 10.4");  // 10.35
}

TEST(ObjectOrientation, IsSummedUp)
{
    const auto of = [](int value) { return ValuesOf(ShowTriplets(Raw({3, 0x27, value})), "ShowTripletContent"); };
    EXPECT_EQ(of(0), Lines{"Orientation: 0°"});
    EXPECT_EQ(of(1), Lines{"Orientation: 270°"});
    EXPECT_EQ(of(2), Lines{"Orientation: 180°"});
    EXPECT_EQ(of(3), Lines{"Orientation: 90°"});
}

TEST(AttributeValue, IsReadInThePageOfTle)
{
    const InputPages pages = {.lngInputCP = 37, .lngInputCPNOP = 37, .lngInputCPTLE = 819};
    EXPECT_EQ(ContentOf(ShowTriplets(TripletOf("36 0000 4F 5A"), pages)), k819);
    EXPECT_EQ(ContentOf(ShowTriplets(TripletOf("65 4F 5A"), pages)), k37);
}

}  // namespace
}  // namespace folioscope
