// The words of the values in colour resources and profiles, and of those that no word fits.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "colour/cmr_render.h"
#include "colour/colour_lines.h"
#include "colour/colour_support.h"

namespace folioscope {
namespace {

using namespace test;

struct ValueWords {
    Key key;
    std::string_view label;
    std::vector<std::pair<int, std::string_view>> words;
};

const ValueWords kNumbers[] = {
    {Key::CMRFieldType,
     "Field type",
     {{1, "1 byte unsigned binary"},
      {2, "2 byte unsigned binary"},
      {4, "4 byte unsigned binary"},
      {5, "BYTE"},
      {6, "ASCII"},
      {7, "UTF-16BE"},
      {8, "CODE"},
      {9, "BITS"}}},
    {Key::CMRHTSubsetID,
     "Subset type",
     {{1, "Bilevel Point-Operation Halftone"},
      {2, "Multilevel Point-Operation Halftone"},
      {3, "Bilevel Error Diffusion Halftone"},
      {4, "Multilevel Error Diffusion Halftone"}}},
    {Key::CMRTTCSubsetID, "Subset type", {{1, "Array"}, {2, "Identity"}}},
    {Key::CMRLCCSubsetID,
     "Subset type",
     {{1, "LinkColorConversion LUT"}, {2, "LinkColorConversion Identity"}, {3, "ICC DeviceLink Profile"}}},
    {Key::CMRIndSubsetID, "Subset type", {{1, "Multi-output color spaces"}}},
    {Key::CMRICCSubsetID,
     "Subset type",
     {{1, "Monochrome input profile"},
      {2, "Monochrome display profile"},
      {3, "Monochrome output profile"},
      {4, "Three-component matrix-based input profile"},
      {5, "Three-component matrix-based display input profile"},
      {6, "N-component LUT-based input profile"},
      {7, "N-component LUT-based display profile"},
      {8, "N-Component LUT-based output profiles"},
      {9, "ColorSpace conversion profile"},
      {10, "Retired (Abstract profile)"}}},
    {Key::CMRRenderingIntent,
     "Rendering Intent",
     {{0, "Perceptual"}, {1, "Media-Relative Colorimetric"}, {2, "Saturation"}, {3, "ICC-Absolute Colorimetric"}}},
    {Key::ICCHRendIntent,
     "Rendering Intent",
     {{0, "Perceptual"}, {1, "Media-Relative Colorimetric"}, {2, "Saturation"}, {3, "ICC-Absolute Colorimetric"}}},
    {Key::CMRRasterDir, "Raster Direction", {{1, "Normal Raster"}, {2, "Serpentine Raster"}}},
    {Key::CMRBoundaryCond, "Boundary Condition", {{1, "None"}, {2, "Zero Boundary"}, {3, "Reflect"}, {4, "Periodic"}}},
    {Key::CMRTTCurveLen, "Entries in tone transfer curve", {{1, "256 (1-byte each)"}, {2, "65536 (2-byte each)"}}},
    {Key::LUTPrecision, "Precision of data elements", {{1, "1-byte unsigned binary"}, {2, "2-byte unsigned binary"}}},
    {Key::ICCHMediaAttr,
     "Device media attributes",
     {{1, "Reflective"},
      {2, "Transparency"},
      {3, "Glossy"},
      {4, "Matte"},
      {5, "Media polarity positive"},
      {6, "Media polarity negative"},
      {7, "Color media"},
      {8, "Black & White"}}},
};

TEST(ColourWords, OfNumbersAreTheirRows)
{
    for (const auto& [key, label, words] : kNumbers) {
        for (const auto& [value, word] : words) {
            const ColourShown shown = ShowValue(key, value);
            EXPECT_EQ(shown.text, std::string(label) + ": " + std::string(word) + "\n");
            EXPECT_EQ(shown.heard, Lines{});
        }
    }
}

TEST(ColourWords, OfOtherNumbersAreUnknownWithAMessage)
{
    for (const auto& [key, label, words] : kNumbers) {
        for (const int value : {-1, 0, 3, 4, 5, 9, 11, 255, 65535}) {
            const auto known = [&](const auto& word) { return word.first == value; };
            if (std::ranges::any_of(words, known)) continue;
            const ColourShown shown = ShowValue(key, value);
            const std::string unknown = "Unknown (" + std::to_string(value) + ")";
            EXPECT_EQ(shown.text, std::string(label) + ": <red>" + unknown + "</red>\n");
            EXPECT_EQ(shown.heard, (Lines{"Message CMR: " + std::string(label) + ": " + unknown, "Invalid"}));
        }
    }
}

struct TextWords {
    Key key;
    std::string_view label;
    std::vector<std::pair<std::string_view, std::string_view>> words;
};

const TextWords kTexts[] = {
    {Key::CMRType,
     "CMR type",
     {{"00 48 00 54", "Halftone"},
      {"00 54 00 43", "Tone Transfer Curve"},
      {"00 43 00 43", "Color Conversion"},
      {"00 4C 00 4B", "Link Color Conversion"},
      {"00 49 00 58", "Indexed"},
      {"00 54 00 52", "Trapping"},
      {"00 44 00 4C", "ICC DeviceLink"}}},
    {Key::ICCHDevClass,
     "Profile/Device class",
     {{"scnr", "Input device profile"},
      {"mntr", "Display device profile"},
      {"prtr", "Output device profile"},
      {"link", "DeviceLink profile"},
      {"spac", "ColorSpace Conversion profile"},
      {"abst", "Abstract profile"},
      {"nmcl", "Named color profile"}}},
    {Key::ICCHPlatform,
     "Primary platform",
     {{"APPL", "Apple Computer, Inc."}, {"MSFT", "Microsoft Corporation"}, {"SUNW", "Sun Microsystems, Inc."}}},
};

TEST(ColourWords, OfTextsAreTheirRows)
{
    for (const auto& [key, label, words] : kTexts) {
        for (const auto& [value, word] : words) {
            const ColourShown shown = ShowValue(key, value);
            EXPECT_EQ(shown.text, std::string(label) + ": " + std::string(word) + "\n");
            EXPECT_EQ(shown.heard, Lines{});
        }
        for (const std::string value : {"", "SGI", "00 48 00 55", "SCNR", "scn"}) {
            const ColourShown shown = ShowValue(key, value);
            EXPECT_EQ(shown.text, std::string(label) + ": <red>Unknown (" + value + ")</red>\n");
            EXPECT_EQ(shown.heard,
                      (Lines{"Message CMR: " + std::string(label) + ": Unknown (" + value + ")", "Invalid"}));
        }
    }
}

// Media
// --------------------------------------------------------------------------------------------------------------------

std::string HexText(std::string_view letters)
{
    std::string text;
    for (const char c : letters) {
        text += text.empty() ? "00 " : " 00 ";
        AppendHex(text, static_cast<unsigned char>(c), 2);
    }
    return text;
}

// Red and gray have changed places.
TEST(MediumWords, OfColors)
{
    const std::pair<std::string_view, std::string_view> kColors[] = {
        {"noc", "transparent (no color)"},
        {"wht", "white"},
        {"pnk", "pink"},
        {"ylw", "yellow"},
        {"blu", "blue"},
        {"grn", "green"},
        {"buf", "buff"},
        {"gdr", "goldenrod"},
        {"gry", "red"},
        {"red", "gray"},
        {"ivy", "ivory"},
        {"org", "orange"},
        {"@@@", "Not specified"},
    };
    for (const auto& [letters, word] : kColors)
        EXPECT_EQ(ShowValue(Key::CMRMColor, HexText(letters)).text, "Medium color: " + std::string(word) + "\n");
}

TEST(MediumWords, OfFinishes)
{
    const std::pair<std::string_view, std::string_view> kFinishes[] = {
        {"no", "none"},      {"gl", "glossy"},    {"hg", "high-gloss"},    {"sg", "semi-gloss"},
        {"st", "satin"},     {"mt", "matte"},     {"ct", "coated"},        {"tr", "treated"},
        {"cm", "commodity"}, {"np", "newsprint"}, {"@@", "Not specified"},
    };
    for (const auto& [letters, word] : kFinishes)
        EXPECT_EQ(ShowValue(Key::CMRMFinish, HexText(letters)).text, "Medium finish: " + std::string(word) + "\n");
}

TEST(MediumWords, OfTheMakersOwnAreNoFault)
{
    for (const std::string letters : {"RED", "abc", "no@", "@@"}) {
        const std::string hex = HexText(letters);
        const ColourShown shown = ShowValue(Key::CMRMColor, hex);
        EXPECT_EQ(shown.text, "Medium color: custom (" + hex + ")\n");
        EXPECT_EQ(shown.heard, Lines{});
    }
    for (const std::string letters : {"GL", "zz", "@@@"}) {
        const std::string hex = HexText(letters);
        EXPECT_EQ(ShowValue(Key::CMRMFinish, hex).text, "Medium finish: custom (" + hex + ")\n");
        EXPECT_EQ(ShowValue(Key::CMRMFinish, hex).heard, Lines{});
    }
}

// Kinds of line
// --------------------------------------------------------------------------------------------------------------------

TEST(ColourLines, QuoteTexts)
{
    const std::pair<Key, std::string_view> kQuoted[] = {
        {Key::CMRAlias, "CMR alias name"},
        {Key::CMRManufac, "Printer manufacturer"},
        {Key::CMRDevType, "Printer device type"},
        {Key::CMRDevModel, "Printer model"},
        {Key::CMRMBrightness, "Medium Brightness"},
        {Key::CMRMWeight, "Medium paper weight (g/m²)"},
        {Key::CMRProp1, "Property specific field 1"},
        {Key::CMRProp2, "Property specific field 2"},
        {Key::CMRProp3, "Property specific field 3"},
        {Key::CMRProp4, "Property specific field 4"},
        {Key::CMRProp5, "Property specific field 5"},
        {Key::CMRValueStr, "Value"},
        {Key::ICCHPrefCMMType, "Preferred CMM Type"},
        {Key::ICCHCreator, "Creator"},
        {Key::ICCHCSD, "Color space of data"},
        {Key::ICCHPCS, "Profile connection space (PCS)"},
        {Key::ICCHFileSig, "File signature"},
        {Key::ICCHDevManu, "Device manufacturer"},
        {Key::ICCHDevModel, "Device model"},
    };
    for (const auto& [key, label] : kQuoted) {
        EXPECT_EQ(ShowValue(key, "some text").text, std::string(label) + ": \"some text\"\n");
        EXPECT_EQ(ShowValue(key, "").text, std::string(label) + ": \"\"\n");
    }
}

TEST(ColourLines, ShowPlainTexts)
{
    const std::pair<Key, std::string_view> kPlain[] = {
        {Key::CMRVersion, "CMR version"},
        {Key::TimeStamp, "Time stamp"},
        {Key::ICCHVersion, "Profile version number"},
        {Key::ICCHDateTime, "Creation date and time this profile was created"},
        {Key::ICCHIlluField, "PCS illuminant"},
    };
    for (const auto& [key, label] : kPlain) EXPECT_EQ(ShowValue(key, "4.2.0").text, std::string(label) + ": 4.2.0\n");
}

TEST(ColourLines, GroupTheDigitsOfNumbers)
{
    const std::pair<Key, std::string_view> kCounts[] = {
        {Key::CMRSize, "CMR size"},
        {Key::CMRValueNum, "Value"},
        {Key::CMRCount, "Count"},
        {Key::CPGIndexedColorVal, "Indexed Color Value"},
        {Key::LUTNoCompICS, "Number of components of input color space"},
        {Key::LUTNoCompOCS, "Number of components of output color space"},
        {Key::LUTData, "Number of LUT data"},
        {Key::ICCHProfileSize, "ICC profile size"},
        {Key::ICCDataSize, "Data size"},
    };
    for (const auto& [key, label] : kCounts) {
        EXPECT_EQ(ShowValue(key, 2147483647).text, std::string(label) + ": 2,147,483,647\n");
        EXPECT_EQ(ShowValue(key, 0).text, std::string(label) + ": 0\n");
        EXPECT_EQ(ShowValue(key, -1234).text, std::string(label) + ": -1,234\n");
    }
}

TEST(ColourLines, FrameHex)
{
    const std::pair<Key, std::string_view> kHex[] = {
        {Key::CMRValueHex, "Value"},
        {Key::LUTGridPoints, "Number of grid points per component of input color space"},
        {Key::ICCHMD5ID, "Profile-ID (MD5)"},
    };
    for (const auto& [key, label] : kHex) EXPECT_EQ(ShowValue(key, "0F A1").text, std::string(label) + ": x'0F A1'\n");
}

TEST(ColourLines, SayTrueOrFalse)
{
    const std::pair<Key, std::string_view> kFlags[] = {
        {Key::LUTMediaRelative, "Media-relative colorimetric"},
        {Key::LUTICCAbsolute, "ICC-absolute colorimetric"},
        {Key::LUTSaturation, "Saturation"},
        {Key::ICCHEmbedProfile, "Embedded Profile"},
        {Key::ICCHNoIndepUse, "Profile cannot be used independently"},
    };
    for (const auto& [key, label] : kFlags) {
        EXPECT_EQ(ShowValue(key, 1).text, std::string(label) + ": true\n");
        EXPECT_EQ(ShowValue(key, 0).text, std::string(label) + ": false\n");
    }
}

TEST(ColourLines, ArePassedOverForKeysOfOthers)
{
    EXPECT_EQ(ShowValue(Key::OriginX, 5).text, "");
    EXPECT_EQ(ColourLineOf(Key::OriginX), nullptr);
}

TEST(ColourLines, SpeakTheLanguageOfTheAnalysis)
{
    LineBench bench(Language::German, {".", ","});
    const Element elements[] = {Element::Int32(Key::CMRSize, 1234), Element::Literal(Key::CMRType, "00 49 00 58"),
                                Element::Byte(Key::CMRHTSubsetID, 3), Element::Byte(Key::CPGComponentGray, 51)};
    bench.renderer.list = &bench.list;
    RenderColorResource(bench.renderer, elements);
    const Labels german(Language::German);
    EXPECT_EQ(bench.renderer.deferredText.Text(),
              std::string(german[L("CMR size")]) + ": 1.234\r\n" + std::string(german[L("CMR type")]) + ": " +
                  std::string(german[L("Indexed")]) + "\r\n" + std::string(german[L("Subset type")]) +
                  ": Bilevel Error Diffusion Halftone\r\n" + std::string(german[L("Intensity of gray")]) +
                  ": 51 (20,0 %)\r\n");
}

// The second text has the same rules and the same size as the first.
TEST(ColourText, HoldsAsMuchAsThePropertyText)
{
    LineBench bench;
    const std::string text(30'000, 'x');
    const Element line = Element::Literal(Key::CMRValueStr, text), number = Element::Int32(Key::CMRSize, 1);
    const Element elements[] = {line, line, line, number};
    bench.renderer.list = &bench.list;
    bench.renderer.text.Append("the record's own");
    bench.renderer.IndentText = "\t";
    RenderColorResource(bench.renderer, elements);
    EXPECT_EQ(bench.renderer.deferredText.Text(),
              "Value: \"" + text + "\"\r\nValue: \"" + text + "\"\r\n...CMR size: 1\r\n");
    EXPECT_EQ(bench.renderer.text.Text(), "the record's own");
    EXPECT_EQ(bench.renderer.IndentText, "\t");
}

}  // namespace
}  // namespace folioscope
