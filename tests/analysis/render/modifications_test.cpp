// The keywords of a medium modification with their values.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct ModificationCase {
    int keyword, value;
    std::string_view line;
};

// clang-format off
constexpr ModificationCase kCases[] = {
    {0x0E, 0,   "Horizontal Print Adjustment: 0"},
    {0x0E, 254, "Horizontal Print Adjustment: 254"},
    {0x0E, 255, "Horizontal Print Adjustment: Unchanged"},
    {0x90, 0,   "Media Destination Selector High-Byte: x'00'"},
    {0x90, 171, "Media Destination Selector High-Byte: x'AB'"},
    {0x91, 255, "Media Destination Selector Low-Byte: x'FF'"},
    {0xA0, 0,   "Add Fixed Medium Information: 0"},
    {0xA0, 255, "Add Fixed Medium Information: All"},
    {0xA1, 0,   "Apply Perforation Cut: Yes"},
    {0xA1, 255, "Apply Perforation Cut: Yes"},
    {0xA2, 1,   "Apply Separation Cut: Yes"},
    {0xB4, 1,   "Subsystem Setup ID High-Byte: x'01'"},
    {0xB5, 16,  "Subsystem Setup ID Low-Byte: x'10'"},
    {0xD1, 0,   "Apply Paper Stack Offset: No"},
    {0xD1, 1,   "Apply Paper Stack Offset: Yes"},
    {0xD1, 255, "Apply Paper Stack Offset: Yes"},
    {0xE0, 0,   "Media Source Selector Format: Format 0"},
    {0xE0, 255, "Media Source Selector Format: Format 255"},
    {0xE1, 1,   "Media Source Selector: Paper Tray 1"},
    {0xE1, 65,  "Media Source Selector: Envelope Tray"},
    {0xE1, 100, "Media Source Selector: Manual Feed Tray"},
    {0xE1, 255, "Media Source Selector: Paper Tray 255"},
    {0xE8, 0,   "Media Type Local ID High-Byte: x'00'"},
    {0xE9, 12,  "Media Type Local ID Low-Byte: x'0C'"},
    {0xF1, 0,   "Forms Flash: Not active"},
    {0xF1, 1,   "Forms Flash: Active"},
    {0xF1, 255, "Forms Flash: Active"},
    {0xF2, 0,   "Medium Overlay Local ID: 0"},
    {0xF2, 127, "Medium Overlay Local ID: 127"},
    {0xF3, 127, "Text Suppression Local ID: 127"},
    {0xF4, 1,   "Duplex Control: Simplex"},
    {0xF4, 2,   "Duplex Control: Normal Duplex"},
    {0xF4, 3,   "Duplex Control: Tumble Duplex"},
    {0xF8, 1,   "Print Quality Control: 1 (1=lowest, 254=highest)"},
    {0xF8, 254, "Print Quality Control: 254 (1=lowest, 254=highest)"},
    {0xF8, 255, "Print Quality Control: Printer Default"},
    {0xF9, 0,   "Constant Forms Control: Not active"},
    {0xF9, 1,   "Constant Forms Control: Active"},
    {0xFC, 1,   "N-Up Format Control: 1-up"},
    {0xFC, 4,   "N-Up Format Control: 4-up"},
};
constexpr ModificationCase kFaults[] = {
    {0xF2, 128, "Medium Overlay Local ID: Invalid (128)"},
    {0xF2, 255, "Medium Overlay Local ID: Invalid (255)"},
    {0xF3, 128, "Text Suppression Local ID: Invalid (128)"},
    {0xF4, 0,   "Duplex Control: Unknown (0)"},
    {0xF4, 4,   "Duplex Control: Unknown (4)"},
    {0xF9, 2,   "Constant Forms Control: Unknown (2)"},
    {0xFC, 0,   "N-Up Format Control: Invalid (0)"},
    {0xFC, 5,   "N-Up Format Control: Invalid (5)"},
    {0x00, 0,   "Unknown Keyword: x'0000'"},
    {0x0D, 255, "Unknown Keyword: x'0DFF'"},
    {0xFF, 1,   "Unknown Keyword: x'FF01'"},
};
// clang-format on

std::string LineOfKeyword(LineBench& bench, int keyword, int value)
{
    bench.witness.heard.clear();
    return bench.Add(Key::MMCKeyword, keyword).Add(Key::MMCValue, value).Text();
}

TEST(Modifications, HaveALineOfTheirKeyword)
{
    LineBench bench;
    for (const auto& [keyword, value, line] : kCases) {
        EXPECT_EQ(LineOfKeyword(bench, keyword, value), std::string(line) + "\n");
        EXPECT_EQ(bench.witness.heard, Lines{}) << line;
    }
}

TEST(Modifications, SendAMessageOfABadValue)
{
    LineBench bench;
    for (const auto& [keyword, value, line] : kFaults) {
        std::string red(line);
        red.insert(red.find(": ") + 2, "<red>");
        EXPECT_EQ(LineOfKeyword(bench, keyword, value), red + "</red>\n");
        EXPECT_EQ(bench.witness.heard, (Lines{"Message " + std::string(line), "Invalid"}));
    }
}

TEST(Modifications, OfOtherKeywordsAreUnknown)
{
    std::set<int> known;
    for (const ModificationCase& row : kCases) known.insert(row.keyword);
    EXPECT_EQ(known.size(), 20u);
    LineBench bench;
    for (int keyword = 0; keyword < 256; ++keyword)
        EXPECT_EQ(LineOfKeyword(bench, keyword, 1).starts_with("Unknown Keyword"), !known.contains(keyword)) << keyword;
}

TEST(Modifications, KeepTheirNamesInEveryLanguage)
{
    LineBench bench(Language::German);
    EXPECT_EQ(LineOfKeyword(bench, 0xF4, 2), "Duplex Control: Normal Duplex\n");
    EXPECT_EQ(LineOfKeyword(bench, 0x0E, 255), "Horizontal Print Adjustment: Unverändert\n");
    EXPECT_EQ(LineOfKeyword(bench, 0xE1, 2), "Media Source Selector: Papierschacht 2\n");
    EXPECT_EQ(LineOfKeyword(bench, 0xE0, 2), "Media Source Selector Format: Format 2\n");
}

}  // namespace
}  // namespace folioscope
