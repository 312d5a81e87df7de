#include "codepages/pages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace folioscope {
namespace {

TEST(Pages, AllEightyOneAscending)
{
    const std::vector<int> expected = {
        37,   273,  274,  277,  278,  280,  281,  284,  285,  290,  297,  382,  385,  386,  387,  388,  389,
        391,  392,  393,  394,  395,  420,  424,  437,  500,  813,  819,  850,  851,  852,  855,  857,  860,
        862,  863,  864,  865,  868,  869,  870,  871,  875,  878,  891,  903,  904,  912,  913,  914,  915,
        916,  918,  920,  921,  1004, 1025, 1026, 1047, 1051, 1089, 1140, 1141, 1142, 1143, 1144, 1145, 1146,
        1147, 1148, 1149, 1200, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1275};
    std::vector<int> numbers;
    for (const CodePageEntry& entry : CodePageEntries()) numbers.push_back(entry.Number);
    EXPECT_EQ(numbers, expected);
}

TEST(Pages, SymbolIsTheNumberInThreeDigits)
{
    for (const CodePageEntry& entry : CodePageEntries()) {
        const std::string digits = std::to_string(entry.Number);
        EXPECT_EQ(entry.Symbol, digits.size() < 3 ? "0" + digits : digits);
    }
    EXPECT_EQ(CodePageEntries().front().Symbol, "037");
}

TEST(Pages, Types)
{
    std::map<std::string_view, int> counts;
    for (const CodePageEntry& entry : CodePageEntries()) ++counts[entry.Type];
    const std::map<std::string_view, int> expected = {{"EBCDIC", 42}, {"ASCII", 29}, {"ANSI", 9}, {"Unicode", 1}};
    EXPECT_EQ(counts, expected);
    EXPECT_EQ(FindCodePage(1004)->Type, "ANSI");
    EXPECT_EQ(FindCodePage(1051)->Type, "ASCII");
    EXPECT_EQ(FindCodePage(1140)->Type, "EBCDIC");
    EXPECT_EQ(FindCodePage(1200)->Type, "Unicode");
}

TEST(Pages, LongNames)
{
    struct Row {
        int page;
        const char* name;
    };
    // clang-format off
    constexpr Row kRows[] = {
        {37,   "USA/Canada"},
        {290,  "Japan (Katakana)"},
        {385,  "Canada (France) Pub."},
        {500,  "International"},
        {819,  "Latin-1 (ISO 8859-1, USA/West Europe)"},
        {851,  "Greece (DOS)"},
        {862,  "Iceland (DOS)"},                            // sic
        {869,  "Greece (DOS)"},                             // sic, as 851
        {904,  "Thaiwan"},                                  // sic
        {913,  "Latin-3 (ISO 8859-3, Maltese Esperanto)"},  // sic, without a comma
        {1051, "HP-Roman-8"},
        {1200, "UTF-16BE"},
        {1275, "Apple Latin-1"},
    };
    // clang-format on
    for (const auto& [page, name] : kRows) EXPECT_EQ(FindCodePage(page)->LongName, name);
    for (const CodePageEntry& entry : CodePageEntries()) EXPECT_FALSE(entry.LongName.empty()) << entry.Number;
}

TEST(Pages, SubstituteValueIsTheFullStopPlusOne)
{
    for (const CodePageEntry& entry : CodePageEntries()) {
        const int expected = entry.Number == 1257 ? 0 : entry.Type == "EBCDIC" ? 0x4B + 1 : 0x2E + 1;
        EXPECT_EQ(entry.SubstituteValue, expected) << entry.Number;
    }
}

TEST(Pages, OnlyTheUnicodePageHasNoTable)
{
    for (const CodePageEntry& entry : CodePageEntries())
        EXPECT_EQ(entry.SourceTable == nullptr, entry.Number == 1200) << entry.Number;
}

TEST(Pages, FindsEachPage)
{
    for (const CodePageEntry& entry : CodePageEntries()) EXPECT_EQ(FindCodePage(entry.Number), &entry);
}

TEST(Pages, FindsNoOther)
{
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {0, -1, 36, 38, 932, 1199, 1201, 1276, 65001, Limits::min(), Limits::max()})
        EXPECT_EQ(FindCodePage(number), nullptr) << number;
}

TEST(Pages, NumbersAreNotCutToSixteenBits)
{
    EXPECT_EQ(FindCodePage(37 + 0x10000), nullptr);
    EXPECT_EQ(FindCodePage(1252 - 0x10000), nullptr);
}

TEST(Pages, UnicodeOfTheLatin1Set)
{
    struct Row {
        CharacterNumber number;
        char32_t character;
    };
    // clang-format off
    constexpr Row kRows[] = {
        {1,   0x00}, {32,  0x1F}, {33,  0x7F}, {34,  0x80}, {65,  0x9F},
        {66,  0x20}, {80,  0x2E}, {160, 0x7E}, {161, 0xA0}, {256, 0xFF},
    };
    // clang-format on
    for (const auto& [number, character] : kRows) EXPECT_EQ(UnicodeOf(number), character) << number;
    for (CharacterNumber number = 67; number <= 160; ++number) EXPECT_EQ(UnicodeOf(number), UnicodeOf(number - 1) + 1);
    for (CharacterNumber number = 161; number <= 256; ++number) EXPECT_EQ(UnicodeOf(number), char32_t(number - 1));
}

TEST(Pages, UnicodeOfTheOthersAscends)
{
    EXPECT_EQ(UnicodeOf(257), 0x0100u);
    for (CharacterNumber number = 258; number <= 843; ++number)
        EXPECT_LT(UnicodeOf(number - 1), UnicodeOf(number)) << number;
    EXPECT_EQ(UnicodeOf(843), 0xFEFCu);
    for (CharacterNumber number = 257; number <= 843; ++number) EXPECT_NE(UnicodeOf(number), U'\u20AC');
}

TEST(Pages, TheEuroSignIsTheHighestNumber)
{
    EXPECT_EQ(UnicodeOf(2013), U'\u20AC');
    EXPECT_EQ(kEuroSign, 2013);
    EXPECT_EQ(kHighestCharacter, 2013);
}

TEST(Pages, FreeNumbersNameNoCharacter)
{
    using Limits = std::numeric_limits<CharacterNumber>;
    for (const int number : {0, -1, 844, 2012, 2014, int(Limits::min()), int(Limits::max())})
        EXPECT_EQ(UnicodeOf(static_cast<CharacterNumber>(number)), 0xFFFDu) << number;
}

}  // namespace
}  // namespace folioscope
