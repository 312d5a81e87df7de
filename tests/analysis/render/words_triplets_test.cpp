// The lines of the keys that triplets, maps and includes bring: labels, kinds, and the words that belong to one key.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"
#include "analysis/render/lines.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct LabelCase {
    Key key;
    std::string_view label;
};

// clang-format off
constexpr LabelCase kPlainNumbers[] = {
    {Key::CDPID,             "Graphic code page ID"},
    {Key::LocalID,           "Local Identifier"},
    {Key::SectionID,         "Doublebyte Section ID"},
    {Key::UseOBP,            "Use OBP with ID"},
    {Key::UsePGP,            "Use PGP repeating group with ID"},
    {Key::ID,                "Identifier"},
    {Key::ArchitectureLevel, "Architecture Level"},
    {Key::DCAFunctionSet,    "MO:DCA Function Set"},
    {Key::Level,             "Level"},
    {Key::Instance,          "Instance"},
    {Key::Format,            "Format"},
    {Key::Checksum,          "Checksum"},
    {Key::SequenceNo,        "Sequence number"},
    {Key::UseBCSymbol,       "Use previous Bar Code Symbol Descriptor with ID"},
    {Key::BCSegOrder,        "Bar code segment order"},
    {Key::PrimitiveMatchID,  "Triplet match ID"},
    {Key::PrimIEnd,          "Graphics end point I axis"},
    {Key::PrimBEnd,          "Graphics end point B axis"},
    {Key::DescriptorID,      "Graphics descriptor ID"},
};
constexpr LabelCase kCounts[] = {
    {Key::UniCharIncHorz,     "Uniform character increment for horizontal writing"},
    {Key::UniCharIncVert,     "Uniform character increment for vertical writing"},
    {Key::BaselineAdjustHorz, "Baseline offset adjustment for horizontal writing"},
    {Key::BaselineAdjustVert, "Baseline offset adjustment for vertical writing"},
    {Key::IndexedObjOffset,   "Byte offset to the indexed object counted from BDT"},
    {Key::IndexedSFOffset,    "Structured field offset to the indexed object counted from BDT"},
    {Key::ObjectBytes,        "Object size in bytes"},
    {Key::ObjectSF,           "Object size in structured fields"},
    {Key::ObjectOffset,       "Object Offset"},
    {Key::SubordinateObjects, "No. of subordinate objekts"},
    {Key::PageNumber,         "Page No. in Sequence"},
    {Key::InitPageNum,        "Initial page number"},
    {Key::FinishingAxis,      "Virtual operation axis offset (in mm)"},
    {Key::FinishingPosition,  "Operation position on axis (in mm)"},
    {Key::BCElemHeight,       "Single bar code height"},
    {Key::HighlightColor,     "Highlight color index"},
    {Key::OffsetX,            "Offset in X direction"},
    {Key::OffsetY,            "Offset in Y direction"},
};
constexpr LabelCase kFlags[] = {
    {Key::FontItalic,         "Font is an italic font"},
    {Key::FontUnderscored,    "Font contains underscored characters"},
    {Key::FontHollow,         "Font contains hollow characters"},
    {Key::FontOverstrucked,   "Font contains overstrucked characters"},
    {Key::FontProportional,   "Font is proportional font"},
    {Key::FontKerned,         "Characters are pairwise kerned"},
    {Key::FontTypeFlags,      "Font Type Flags"},
    {Key::FontTransformation, "Font may be transformed"},
    {Key::MICRFont,           "Font is used for Magnetic Ink Character Recognition (MICR)"},
    {Key::SaveResource,       "Save Resource"},
    {Key::CountMODCA,         "Count MO:DCA pages"},
    {Key::CountConstant,      "Count constant pages"},
    {Key::LocScriptFlag,      "ISO-15924 Script code flag"},
    {Key::HRIPresent,         "Human Readable Interpretation is present"},
    {Key::Asterisk,           "Start/Stop symbols shown as asterisk in HRI"},
    {Key::SuppressSymbol,     "Suppress symbol, present only HRI"},
    {Key::SuppressBlanks,     "Suppress blanks and adjust bar code data"},
    {Key::Boundary,           "Draw boundaries"},
    {Key::PassCSP,            "Pass medium orientation to cut-sheet printers"},
};
constexpr LabelCase kPlainTexts[] = {
    {Key::FQNType,        "Name subtype"},
    {Key::ObjectTypeName, "Object Type"},
    {Key::ObjectVersion,  "Object Version"},
    {Key::ObjectCompany,  "Company"},
    {Key::LocLangCode,    "ISO-639 Language code"},
    {Key::LocScriptCode,  "ISO-15924 Script code"},
    {Key::LocRegionCode,  "ISO-3166 Region code"},
    {Key::LocVariantCode, "Language or region code extension"},
};
constexpr LabelCase kBoldTexts[] = {
    {Key::Content, "Content"},
    {Key::XMLName, "XML tag"},
    {Key::FONName, "External font name"},
    {Key::CDPName, "External code page name"},
    {Key::CHSName, "External character set name"},
};
constexpr LabelCase kQuotedTexts[] = {
    {Key::SystemID,  "Processor ID"},
    {Key::StorageID, "Storage Media ID"},
    {Key::DSID,      "Data Set ID"},
    {Key::TimeStamp, "Time stamp"},
};
constexpr LabelCase kHexTexts[] = {
    {Key::ObjectID,      "ASN.1 Object Identifier (OID)"},
    {Key::APSRMARKEC,    "APSRMARK Engineering change information"},
    {Key::UP3iFinishing, "Finishing options regarding UP3i-specification"},
    {Key::EncrRecord,    "Encryption record"},
    {Key::HexCode,       "Hex-Codes"},
};
// clang-format on

TEST(TripletLines, ShowIdentifiersPlain)
{
    LineBench bench;
    for (const auto& [key, label] : kPlainNumbers) EXPECT_EQ(bench.Text(key, 12'345), std::string(label) + ": 12345\n");
}

TEST(TripletLines, ShowCountsWithSeparators)
{
    LineBench bench;
    for (const auto& [key, label] : kCounts) EXPECT_EQ(bench.Text(key, 12'345), std::string(label) + ": 12,345\n");
}

TEST(TripletLines, ShowLargeOffsetsInFull)
{
    LineBench bench;
    for (const Key key : {Key::IndexedObjOffset, Key::ObjectBytes, Key::ObjectOffset}) {
        const std::string text = bench.Add(Element::Float64(key, 4'294'967'295.0)).Text();
        EXPECT_TRUE(text.ends_with(": 4,294,967,295\n")) << text;
    }
}

TEST(TripletLines, ShowFlagsAsYesOrNo)
{
    LineBench bench;
    for (const auto& [key, label] : kFlags) {
        EXPECT_EQ(bench.Add(Element::Boolean(key, true)).Text(), std::string(label) + ": Yes\n");
        EXPECT_EQ(bench.Add(Element::Boolean(key, false)).Text(), std::string(label) + ": No\n");
    }
}

TEST(TripletLines, ShowTexts)
{
    LineBench bench;
    for (const auto& [key, label] : kPlainTexts)
        EXPECT_EQ(bench.AddText(key, " A ").Text(), std::string(label) + ":  A \n");
    for (const auto& [key, label] : kBoldTexts)
        EXPECT_EQ(bench.AddText(key, " A ").Text(), std::string(label) + ":→<b> A </b>\n");
    for (const auto& [key, label] : kQuotedTexts)
        EXPECT_EQ(bench.AddText(key, " A ").Text(), std::string(label) + ": \" A \"\n");
    for (const auto& [key, label] : kHexTexts)
        EXPECT_EQ(bench.AddText(key, "0F A1").Text(), std::string(label) + ": x'0F A1'\n");
}

TEST(TripletLines, ShowABoldNumberToo)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::Content, -12'345), "Content:→<b>-12345</b>\n");
    EXPECT_EQ(bench.Text(Key::Content, 0), "Content:→<b>0</b>\n");
}

TEST(TripletLines, ShowTheDefaultOfACount)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::FinishingAxis, 65'535), "Virtual operation axis offset (in mm): Default\n");
    EXPECT_EQ(bench.Text(Key::FinishingPosition, 65'535), "Operation position on axis (in mm): 65,535\n");
    EXPECT_EQ(bench.Text(Key::BCElemHeight, 65'535), "Single bar code height: Default\n");
    EXPECT_EQ(bench.Text(Key::HighlightColor, 0), "Highlight color index: Default\n");
    EXPECT_EQ(bench.AddText(Key::OffsetX, "Default").Text(), "Offset in X direction: Default\n");
    EXPECT_EQ(bench.AddText(Key::OffsetY, "Default").Text(), "Offset in Y direction: Default\n");
}

// Words of one key
// ---------------------------------------------------------------------------------------------------------

void ExpectUnknown(Key key, std::int64_t value, std::string_view label)
{
    LineBench bench;
    const std::string number = std::to_string(value), head = std::string(label) + ": ";
    EXPECT_EQ(bench.Text(key, value), head + "<red>Unknown (" + number + ")</red>\n");
    EXPECT_EQ(bench.witness.heard, (Lines{"Message " + head + "Unknown (" + number + ")", "Invalid"}));
}

TEST(TripletWords, OfAreasAndColours)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::SizeType, 2), "Values are valid for: Object Area\n");
    EXPECT_EQ(bench.Text(Key::ColorSubst, 1), "Substitute missing color with: Any color\n");
    for (const std::int64_t value : {0, 1, 3, 255}) ExpectUnknown(Key::SizeType, value, "Values are valid for");
    for (const std::int64_t value : {0, 2, 255}) ExpectUnknown(Key::ColorSubst, value, "Substitute missing color with");
}

TEST(TripletWords, OfMixing)
{
    constexpr LabelCase kMixing[] = {{Key::MixBonB, "Background (new) on Background (existing)"},
                                     {Key::MixBonF, "Background (new) on Foreground (existing)"},
                                     {Key::MixFonB, "Foreground (new) on Background (existing)"}};
    LineBench bench;
    for (const auto& [key, label] : kMixing) {
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Text(key, 0), head + "Not specified\n");
        EXPECT_EQ(bench.Text(key, 1), head + "Replace\n");
        EXPECT_EQ(bench.Text(key, 2), head + "Keep\n");
        EXPECT_EQ(bench.Text(key, 3), head + "Mix\n");
        EXPECT_EQ(bench.Text(key, 255), head + "Default\n");
        ExpectUnknown(key, 4, label);
        ExpectUnknown(key, 254, label);
    }
}

TEST(TripletWords, OfRenderingIntents)
{
    constexpr LabelCase kIntents[] = {{Key::IOCARI, "... for IOCA objects"},
                                      {Key::OCRI, "... for object containers"},
                                      {Key::PTOCARI, "... for PTOCA objects"}};
    LineBench bench;
    for (const auto& [key, label] : kIntents) {
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Text(key, 0), head + "perceptual\n");
        EXPECT_EQ(bench.Text(key, 1), head + "media-relative colorimetric\n");
        EXPECT_EQ(bench.Text(key, 2), head + "saturation\n");
        EXPECT_EQ(bench.Text(key, 3), head + "ICC-absolute colorimetric\n");
        EXPECT_EQ(bench.Text(key, 255), head + "not specified\n");
        ExpectUnknown(key, 4, label);
        ExpectUnknown(key, 254, label);
    }
}

TEST(TripletWords, OfCoordinatesAndFilling)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::UsedCoordinates, 0), "Used coordinate system: any\n");
    EXPECT_EQ(bench.Text(Key::UsedCoordinates, 1), "Used coordinate system: page\n");
    ExpectUnknown(Key::UsedCoordinates, 2, "Used coordinate system");
    EXPECT_EQ(bench.Add(Element::Boolean(Key::Inside, false)).Text(), "Fill mode: Alternate\n");
    EXPECT_EQ(bench.Add(Element::Boolean(Key::Inside, true)).Text(), "Fill mode: Nonzero Winding\n");
}

TEST(TripletWords, OfTheUnitBase)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::UnitBase, 0), "Unit Base: 10 Inch\n");
    EXPECT_EQ(bench.Text(Key::UnitBase, 1), "Unit Base: 10 Centimeter\n");
    EXPECT_EQ(bench.Text(Key::UnitBase, 2), "Unit Base: Relative\n");
    ExpectUnknown(Key::UnitBase, 3, "Unit Base");
}

TEST(TripletLines, AreTranslated)
{
    LineBench german(Language::German), french(Language::French);
    EXPECT_EQ(german.AddText(Key::Content, "A").Text(), "Inhalt:→<b>A</b>\n");
    EXPECT_EQ(french.AddText(Key::HexCode, "0F").Text(), "Code hexadécimal: x'0F'\n");
    EXPECT_TRUE(german.Add(Element::Boolean(Key::FontKerned, true)).Text().ends_with(": Ja\n"));
}

// Keys that show nothing
// ---------------------------------------------------------------------------------------------------

TEST(SilentKeys, ShowNothing)
{
    LineBench bench;
    for (const Key key : {Key::TripletStartbyte, Key::TripletLength, Key::Length}) {
        ASSERT_NE(LineOf(key), nullptr) << NameOf(key);
        EXPECT_EQ(LineOf(key)->line, Line::Silent) << NameOf(key);
        EXPECT_EQ(bench.Text(key, 1), "") << NameOf(key);
    }
    for (const Key key : {Key::ShowTripletContent, Key::AddResource}) {
        ASSERT_NE(LineOf(key), nullptr) << NameOf(key);
        EXPECT_EQ(bench.AddText(key, "TEXT").Text(), "") << NameOf(key);
    }
    EXPECT_TRUE(bench.witness.heard.empty());
}

}  // namespace
}  // namespace folioscope
