// Bar codes: the names of their types and the meaning of their modifiers.

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

struct TypeCase {
    std::int64_t type;
    std::string_view name;
};

// clang-format off
constexpr TypeCase kTypes[] = {
    {1,  "Code 39 (3-of-9 Code), AIM(TM) USS-39"},
    {2,  "MSI (modified Plessey code)"},
    {3,  "UPC/CGPC--Version A"},
    {5,  "UPC/CGPC--Version E"},
    {6,  "UPC--Two-digit Supplemental (Periodicals)"},
    {7,  "UPC--Five-digit Supplemental (Paperbacks)"},
    {8,  "EAN-8 (includes JAN-short)"},
    {9,  "EAN-13 (includes JAN-standard)"},
    {10, "Industrial 2-of-5"},
    {11, "Matrix 2-of-5"},
    {12, "Interleaved 2-of-5, AIM USS-I 2/5"},
    {13, "Codabar, 2-of-7, AIM USS-Codabar"},
    {17, "Code 128, AIM USS-128"},
    {22, "EAN Two-digit Supplemental"},
    {23, "EAN Five-digit Supplemental"},
    {24, "POSTNET"},
    {26, "RM4SCC"},
    {27, "Japan Postal Bar Code"},
    {28, "Data Matrix (2D bar code)"},
    {29, "MaxiCode (2D bar code)"},
    {30, "PDF417 (2D bar code)"},
    {31, "Australia Post Bar Code"},
    {32, "QR Code (2D bar code)"},
    {33, "Code 93"},
    {34, "USPS Intelligent Mail Barcode"},
    {35, "Royal Mail Red Tag"},
    {36, "GS1 DataBar"},
    {37, "Royal Mail Mailmark"},
};

struct ModifierCase {
    std::int64_t type, modifier;
    std::string_view word;
};
constexpr ModifierCase kModifiers[] = {
    {17, 2,  "original start character (1986)"},
    {17, 3,  "without parenthesis in the HRI"},
    {17, 4,  "with parenthesis in the HRI"},
    {17, 5,  "Intelligent Mail Container Barcode"},
    {24, 0,  "POSTNET Zip"},
    {24, 1,  "POSTNET Zip+4"},
    {24, 2,  "POSTNET Advanced Bar Code (ABC)"},
    {24, 3,  "POSTNET Variable Length"},
    {30, 0,  "PDF417 full"},
    {30, 1,  "PDF417 truncated"},
    {31, 1,  "Default"},
    {31, 2,  "Customer Barcode 2 using table N"},
    {31, 3,  "Customer Barcode 2 using table C"},
    {31, 4,  "Customer Barcode 2 using proprietary encoding"},
    {31, 5,  "Customer Barcode 3 using table N"},
    {31, 6,  "Customer Barcode 3 using table C"},
    {31, 7,  "Customer Barcode 3 using proprietary encoding"},
    {31, 8,  "Replay Paid Barcode"},
    {34, 0,  "20 number digits USPS Intelligent Mail Barcode with no Delivery Point ZIP Code"},
    {34, 1,  "25 number digits USPS Intelligent Mail Barcode with 5-digit Delivery Point ZIP Code"},
    {34, 2,  "29 number digits USPS Intelligent Mail Barcode with 9-digit Delivery Point ZIP Code"},
    {34, 3,  "31 number digits USPS Intelligent Mail Barcode with 11-digit Delivery Point ZIP Code"},
    {36, 0,  "GS1 DataBar Omnidirectional"},
    {36, 1,  "GS1 DataBar Truncated"},
    {36, 2,  "GS1 DataBar Stacked"},
    {36, 3,  "GS1 DataBar Stacked Omnidirectional"},
    {36, 4,  "GS1 DataBar Limited"},
    {36, 17, "GS1 DataBar Expanded"},
    {36, 18, "GS1 DataBar Expanded Stacked, 2 Rows"},
    {36, 19, "GS1 DataBar Expanded Stacked, 3 Rows"},
    {36, 20, "GS1 DataBar Expanded Stacked, 4 Rows"},
    {36, 21, "GS1 DataBar Expanded Stacked, 5 Rows"},
    {36, 22, "GS1 DataBar Expanded Stacked, 6 Rows"},
    {36, 23, "GS1 DataBar Expanded Stacked, 7 Rows"},
    {36, 24, "GS1 DataBar Expanded Stacked, 8 Rows"},
    {36, 25, "GS1 DataBar Expanded Stacked, 9 Rows"},
};
// clang-format on

const std::string kLabel = "Supplemental information: ";

// The line of the modifier alone.
std::string ModifierLine(LineBench& bench, std::int64_t type, std::int64_t modifier)
{
    const std::string both = bench.Add(Key::BCType, type).Add(Key::BCMod, modifier).Text();
    return both.substr(both.find('\n') + 1);
}

TEST(BarCodeType, HasAName)
{
    LineBench bench;
    for (std::int64_t type = 0; type < 256; ++type) {
        std::string_view name;
        for (const auto& [known, text] : kTypes)
            if (known == type) name = text;
        EXPECT_EQ(bench.Text(Key::BCType, type), "Bar code type: " + std::string(name) + '\n') << type;
    }
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(BarCodeModifier, TellsOfCheckDigits)
{
    LineBench bench;
    for (const std::int64_t type : {1, 3, 5, 9, 10, 11, 12, 13, 28, 29, 35}) {
        EXPECT_EQ(ModifierLine(bench, type, 1), kLabel + "Without check digit\n") << type;
        EXPECT_EQ(ModifierLine(bench, type, 2), kLabel + "With two check digits (modifier code x'02')\n") << type;
        EXPECT_EQ(ModifierLine(bench, type, 0), kLabel + "With two check digits (modifier code x'00')\n") << type;
        EXPECT_EQ(ModifierLine(bench, type, 255), kLabel + "With two check digits (modifier code x'FF')\n") << type;
    }
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(BarCodeModifier, HasAWordOrIsUnknown)
{
    for (const std::int64_t type : {17, 24, 30, 31, 34, 36}) {
        for (std::int64_t modifier = 0; modifier < 256; ++modifier) {
            LineBench bench;
            const auto found = std::ranges::find_if(
                kModifiers, [&](const ModifierCase& row) { return row.type == type && row.modifier == modifier; });
            const std::string number = std::to_string(modifier);
            if (found != std::end(kModifiers)) {
                EXPECT_EQ(ModifierLine(bench, type, modifier), kLabel + std::string(found->word) + '\n') << type;
                EXPECT_EQ(bench.witness.heard, Lines{}) << type << ' ' << modifier;
            } else {
                EXPECT_EQ(ModifierLine(bench, type, modifier), kLabel + "<red>Unknown (" + number + ")</red>\n")
                    << type;
                EXPECT_EQ(bench.witness.heard, (Lines{"Message " + kLabel + "Unknown (" + number + ")", "Invalid"}))
                    << type;
            }
        }
    }
}

TEST(BarCodeModifier, OfSomeTypesSaysOneThingForAllValues)
{
    LineBench bench;
    for (const std::int64_t modifier : {0, 1, 2, 255}) {
        EXPECT_EQ(ModifierLine(bench, 32, modifier), kLabel + "Model 2 QR Code Barcode\n");
        EXPECT_EQ(ModifierLine(bench, 33, modifier), kLabel + "Code 93 Barcode\n");
    }
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(BarCodeModifier, OfOtherTypesHasNoLine)
{
    LineBench bench;
    for (const std::int64_t type : {2, 6, 7, 8, 22, 23, 26, 27, 37, 0, 4, 38, 255})
        for (const std::int64_t modifier : {0, 1, 255}) EXPECT_EQ(ModifierLine(bench, type, modifier), "") << type;
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(BarCodeModifier, MeansTheTypeOfItsOwnRecord)
{
    LineBench bench;
    bench.Text(Key::BCType, 17);
    EXPECT_EQ(bench.Text(Key::BCMod, 2), "");
    bench.Add(Key::BCType, 17).Add(Key::BCType, 24).Add(Key::BCMod, 2);
    EXPECT_TRUE(bench.Text().ends_with(kLabel + "POSTNET Advanced Bar Code (ABC)\n"));
}

TEST(BarCodeModifier, IsTranslatedWhereTheCatalogHasIt)
{
    LineBench bench(Language::German);
    EXPECT_EQ(ModifierLine(bench, 24, 0).substr(ModifierLine(bench, 24, 0).find(':')), ": POSTNET Zip\n");
    const std::string standard = ModifierLine(bench, 31, 1);
    EXPECT_TRUE(standard.ends_with(": Standard\n")) << standard;
}

TEST(BarCodeSizes, AreInInchesAndTenths)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::BCModWidth, 255), "Module (bar/space) width: Default\n");
    EXPECT_EQ(bench.Text(Key::BCModWidth, 0), "Module (bar/space) width: 0.0 Inch\n");
    EXPECT_EQ(bench.Text(Key::BCModWidth, 13), "Module (bar/space) width: 0.013 Inch\n");
    EXPECT_EQ(bench.Text(Key::BCModWidth, 254), "Module (bar/space) width: 0.254 Inch\n");
    EXPECT_EQ(bench.Text(Key::BCHeightMult, 0), "Bar code height multiplier: 0.0\n");
    EXPECT_EQ(bench.Text(Key::BCHeightMult, 1), "Bar code height multiplier: 0.1\n");
    EXPECT_EQ(bench.Text(Key::BCHeightMult, 255), "Bar code height multiplier: 25.5\n");
}

TEST(BarCodeRatio, HasUpToFourDecimals)
{
    LineBench bench;
    const auto of = [&](double ratio) { return bench.Add(Element::Float64(Key::BCRatio, ratio)).Text(); };
    EXPECT_EQ(of(0), "Wide to narrow ratio: 0.0\n");
    EXPECT_EQ(of(2.5), "Wide to narrow ratio: 2.5\n");
    EXPECT_EQ(of(6.5534), "Wide to narrow ratio: 6.5534\n");
    EXPECT_EQ(of(65'535.0 / 10 / 10 / 10 / 10), "Wide to narrow ratio: Default\n");
}

}  // namespace
}  // namespace folioscope
