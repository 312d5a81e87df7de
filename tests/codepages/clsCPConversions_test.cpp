#include "codepages/clsCPConversions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

#include "codepages/system_page.h"

namespace folioscope {
namespace {

using Bytes = std::vector<std::uint8_t>;

const Bytes& AllBytes()
{
    static const Bytes bytes = [] {
        Bytes all(256);
        std::iota(all.begin(), all.end(), std::uint8_t(0));
        return all;
    }();
    return bytes;
}

std::vector<const CodePageEntry*> PagesWithTable()
{
    std::vector<const CodePageEntry*> pages;
    for (const CodePageEntry& entry : CodePageEntries())
        if (entry.SourceTable != nullptr) pages.push_back(&entry);
    return pages;
}

Bytes Converted(std::int32_t source, std::int32_t target, const Bytes& bytes)
{
    clsCPConversions conversions;
    Bytes result;
    EXPECT_TRUE(conversions.ConvertCPArray(source, target, bytes, result)) << source << " to " << target;
    return result;
}

std::uint8_t FullStopOf(const CodePageEntry& page) { return page.Type == "EBCDIC" ? 0x4B : 0x2E; }

TEST(AvailableCodepages, EightyOneFrom37To1275)
{
    const auto numbers = clsCPConversions::AvailableCodepages();
    ASSERT_EQ(numbers.size(), 81u);
    EXPECT_EQ(numbers.front(), 37);
    EXPECT_EQ(numbers.back(), 1275);
    EXPECT_TRUE(std::ranges::is_sorted(numbers));
    EXPECT_TRUE(std::ranges::binary_search(numbers, 1200));
}

TEST(GetSpecificCPInfo, TextsOfAPage)
{
    std::string_view symbol, type, name;
    clsCPConversions::GetSpecificCPInfo(500, symbol, type, name);
    EXPECT_EQ(symbol, "500");
    EXPECT_EQ(type, "EBCDIC");
    EXPECT_EQ(name, "International");
    clsCPConversions::GetSpecificCPInfo(1200, symbol, type, name);
    EXPECT_EQ(symbol, "1200");
    EXPECT_EQ(type, "Unicode");
    EXPECT_EQ(name, "UTF-16BE");
}

TEST(GetSpecificCPInfo, EmptyForAnUnknownPage)
{
    std::string_view symbol = "a", type = "b", name = "c";
    clsCPConversions::GetSpecificCPInfo(38, symbol, type, name);
    EXPECT_EQ(symbol, "");
    EXPECT_EQ(type, "");
    EXPECT_EQ(name, "");
}

TEST(LoadCodepage, BuildsAPageOnce)
{
    clsCPConversions conversions;
    EXPECT_EQ(conversions.LoadedPages(), 0u);
    EXPECT_TRUE(conversions.LoadCodepage(1252));
    EXPECT_EQ(conversions.LoadedPages(), 1u);
    EXPECT_TRUE(conversions.LoadCodepage(1252));
    EXPECT_EQ(conversions.LoadedPages(), 1u);
    EXPECT_TRUE(conversions.LoadCodepage(37));
    EXPECT_EQ(conversions.LoadedPages(), 2u);
}

TEST(LoadCodepage, TheUnicodePageAddsNothing)
{
    clsCPConversions conversions;
    EXPECT_TRUE(conversions.LoadCodepage(1200));
    EXPECT_EQ(conversions.LoadedPages(), 0u);
}

TEST(LoadCodepage, UnknownPages)
{
    clsCPConversions conversions;
    for (const std::int32_t number : {932, 0, -1, 38, 37 + 0x10000, 1200 + 0x10000}) {
        EXPECT_FALSE(conversions.LoadCodepage(number)) << number;
    }
    EXPECT_EQ(conversions.LoadedPages(), 0u);
}

TEST(LoadCodepage, AllPages)
{
    clsCPConversions conversions;
    for (int round = 0; round < 2; ++round)
        for (const std::int32_t number : clsCPConversions::AvailableCodepages())
            EXPECT_TRUE(conversions.LoadCodepage(number)) << number;
    EXPECT_EQ(conversions.LoadedPages(), 80u);
}

TEST(LoadCodepage, ObjectsShareNothing)
{
    clsCPConversions one, other;
    EXPECT_TRUE(one.LoadCodepage(37));
    EXPECT_EQ(other.LoadedPages(), 0u);
}

struct Conversion {
    std::int32_t source, target;
    std::uint8_t byte, expected;
};

// clang-format off
constexpr Conversion kConversions[] = {
    {37,   1252, 0xC1, 0x41}, {37,  1252, 0x40, 0x20}, {37, 1252, 0x4B, 0x2E},
    {1140, 1252, 0x9F, 0x80}, {37,  1252, 0x9F, 0xA4},     // Euro sign, currency sign
    {1148, 1252, 0x9F, 0x80}, {500, 1252, 0x9F, 0xA4},
    {1142, 1252, 0x5A, 0x80}, {277, 1252, 0x5A, 0xA4},
    {1143, 1252, 0x5A, 0x80}, {278, 1252, 0x5A, 0xA4},
    {1252, 1140, 0x80, 0x9F}, {1252, 37, 0x80, 0x4B},      // page 37 has no Euro sign
    {1252, 1252, 0x81, 0x2E},                              // undefined
    {1252, 1257, 0x80, 0xFF}, {1252, 1257, 0x41, 0x41},
    {1257, 1257, 0xFF, 0x2E}, {1252, 1257, 0x81, 0x2E},    // undefined is the full stop even there
    {920,  1252, 0xE9, 0xE9}, {920, 1252, 0xEA, 0x2E},
    {891,  1252, 0x41, 0x41}, {891, 1252, 0xA1, 0x2E},
    {870,  1252, 0xB9, 0x2E}, {870, 1252, 0xB7, 0x2E},     // U+017D, U+017E
    {1250, 1252, 0x8E, 0x2E}, {1250, 1252, 0x9E, 0x2E},
    {912,  1252, 0xAE, 0x2E}, {912,  1252, 0xBE, 0x2E},
    {37,   1252, 0x25, 0x0A}, {37, 1252, 0x15, 0x2E}, {37, 1252, 0x0D, 0x0D}, {37, 1252, 0x07, 0x7F},
    {37,   819,  0x15, 0x85}, {37, 819,  0xFF, 0x9F},      // these have the upper controls
    {37,   1252, 0xDF, 0xFF}, {819, 1252, 0xFF, 0xFF},     // byte FF of a target page
    {37,   500,  0xFF, 0xFF}, {500, 37, 0x4A, 0xBA},
    {392,  1252, 0x5B, 0x2E}, {393, 1252, 0x5B, 0x24},
    {424,  1252, 0xBC, 0x2E}, {500, 1252, 0xBC, 0xAF},     // overline, macron
    {862,  1252, 0x9F, 0xD2}, {865, 1252, 0xAF, 0xBB}, {863, 1252, 0xF8, 0x2E},
    {1089, 1252, 0xC7, 0x2E}, {1256, 1252, 0xD0, 0x2E},
    {420,  1089, 0x46, 0xC1}, {1275, 1252, 0xCD, 0x2E},
};
// clang-format on

TEST(ConvertCPArray, SingleBytes)
{
    for (const auto& [source, target, byte, expected] : kConversions)
        EXPECT_EQ(Converted(source, target, {byte}), Bytes{expected})
            << source << " to " << target << ", byte " << int(byte);
}

TEST(ConvertCPArray, KeepsOrderAndLength)
{
    EXPECT_EQ(Converted(37, 1252, {0xC1, 0x40, 0x4B}), (Bytes{0x41, 0x20, 0x2E}));
    EXPECT_EQ(Converted(500, 1252, {0xC8, 0x85, 0x93, 0x93, 0x96, 0x4F}), (Bytes{'H', 'e', 'l', 'l', 'o', '!'}));
}

TEST(ConvertCPArray, TheTargetTakesTheSizeOfTheSource)
{
    clsCPConversions conversions;
    Bytes target(1000, 0x77);
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, Bytes{0xC1, 0xC2}, target));
    EXPECT_EQ(target, (Bytes{0x41, 0x42}));
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, Bytes(3000, 0xC1), target));
    EXPECT_EQ(target, Bytes(3000, 0x41));
}

TEST(ConvertCPArray, EmptySource)
{
    clsCPConversions conversions;
    Bytes target = {1, 2, 3};
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, {}, target));
    EXPECT_TRUE(target.empty());
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, {}, target));
    EXPECT_FALSE(conversions.ConvertCPArray(1200, 1252, {}, target));
}

TEST(ConvertCPArray, InPlace)
{
    clsCPConversions conversions;
    Bytes bytes = {0xC1, 0xC2, 0xC3};
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, bytes, bytes));
    EXPECT_EQ(bytes, (Bytes{0x41, 0x42, 0x43}));
}

TEST(ConvertCPArray, FailureLeavesTheTarget)
{
    constexpr std::pair<int, int> kPairs[] = {{1200, 1252}, {1200, 37},  {1200, 1200}, {1252, 1200}, {932, 1252},
                                              {1252, 932},  {1200, 932}, {932, 1200},  {0, 0},       {-1, 1252}};
    for (const auto& [source, page] : kPairs) {
        clsCPConversions conversions;
        Bytes target = {7, 8, 9};
        EXPECT_FALSE(conversions.ConvertCPArray(source, page, AllBytes(), target)) << source << " to " << page;
        EXPECT_EQ(target, (Bytes{7, 8, 9}));
    }
}

TEST(ConvertCPArray, LoadsThePages)
{
    clsCPConversions conversions;
    Bytes target;
    EXPECT_TRUE(conversions.ConvertCPArray(37, 1252, AllBytes(), target));
    EXPECT_EQ(conversions.LoadedPages(), 2u);
    EXPECT_TRUE(conversions.ConvertCPArray(1252, 37, AllBytes(), target));
    EXPECT_TRUE(conversions.ConvertCPArray(37, 37, AllBytes(), target));
    EXPECT_EQ(conversions.LoadedPages(), 2u);
    EXPECT_FALSE(conversions.ConvertCPArray(500, 932, AllBytes(), target));
    EXPECT_EQ(conversions.LoadedPages(), 3u);
    EXPECT_FALSE(conversions.ConvertCPArray(932, 273, AllBytes(), target));
    EXPECT_EQ(conversions.LoadedPages(), 3u);
}

TEST(ConvertCPArray, ToItselfAPageKeepsWhatItDefines)
{
    for (const CodePageEntry* page : PagesWithTable()) {
        const Bytes result = Converted(page->Number, page->Number, AllBytes());
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const bool defined = (*page->SourceTable)[byte] != 0;
            EXPECT_EQ(result[byte], defined ? byte : FullStopOf(*page)) << page->Number << ": " << byte;
        }
    }
}

TEST(ConvertCPArray, FullStopsAndMissingCharactersOfEveryPage)
{
    for (const CodePageEntry* page : PagesWithTable()) {
        const std::uint8_t fullStop = FullStopOf(*page);
        const std::uint8_t missing = page->Number == 1257 ? 0xFF : fullStop;
        EXPECT_EQ(Converted(37, page->Number, {0x4B}), Bytes{fullStop}) << page->Number;
        EXPECT_EQ(Converted(891, page->Number, {0xA1}), Bytes{fullStop}) << page->Number;  // undefined
        if (page->Number == 1256) continue;
        EXPECT_EQ(Converted(1256, page->Number, {0xD0}), Bytes{missing}) << page->Number;  // on 1256 only
    }
}

TEST(ConvertCPArray, ControlsHaveTheirCounterparts)
{
    for (const CodePageEntry* page : PagesWithTable()) {
        if (page->Type != "EBCDIC") continue;
        const Bytes result = Converted(page->Number, 819, AllBytes());
        for (std::size_t byte = 0; byte < 0x40; ++byte)
            EXPECT_EQ(result[byte], UnicodeOf((*page->SourceTable)[byte])) << page->Number << ": " << byte;
    }
    const Bytes to1252 = Converted(500, 1252, AllBytes());
    const auto controls =
        std::count_if(to1252.begin(), to1252.begin() + 0x40, [](int b) { return b < 0x20 || b == 0x7F; });
    EXPECT_EQ(controls, 33);  // U+0000 to U+001F and U+007F; 1252 has none of the upper ones
}

TEST(ConvertCPArray, To1252YieldsOnlyWhatItDefines)
{
    const CharacterTable& system = *FindCodePage(1252)->SourceTable;
    for (const CodePageEntry* page : PagesWithTable())
        for (const std::uint8_t byte : Converted(page->Number, 1252, AllBytes()))
            EXPECT_NE(system[byte], 0) << page->Number << ": " << int(byte);
}

// The same thing said in characters: what stands at a byte of one page is looked for on the other.
Bytes ExpectedOf(const CodePageEntry& source, const CodePageEntry& target)
{
    std::map<char32_t, std::uint8_t> byteOf;
    for (std::size_t byte = 0; byte < 256; ++byte)
        byteOf[UnicodeOf((*target.SourceTable)[byte])] = static_cast<std::uint8_t>(byte);
    Bytes expected(256);
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const bool defined = (*source.SourceTable)[byte] != 0;
        const auto found = byteOf.find(defined ? UnicodeOf((*source.SourceTable)[byte]) : U'.');
        const std::uint8_t missing = target.Number == 1257 ? 0xFF : FullStopOf(target);
        expected[byte] = found != byteOf.end() ? found->second : missing;
    }
    return expected;
}

char32_t Decoded(const ByteText& text)
{
    const auto at = [&](int i) { return static_cast<char32_t>(static_cast<unsigned char>(text.utf8[i])); };
    if (text.size == 1) return at(0);
    if (text.size == 2) return (at(0) & 0x1F) << 6 | (at(1) & 0x3F);
    return (at(0) & 0x0F) << 12 | (at(1) & 0x3F) << 6 | (at(2) & 0x3F);
}

std::string_view View(const ByteText& text) { return {text.utf8, text.size}; }

TEST(TextsOf, AgreesWithConvertCPArrayOnAllPairs)
{
    clsCPConversions conversions;
    for (const CodePageEntry* source : PagesWithTable())
        for (const CodePageEntry* target : PagesWithTable()) {
            Bytes converted;
            ASSERT_TRUE(conversions.ConvertCPArray(source->Number, target->Number, AllBytes(), converted));
            ASSERT_EQ(converted, ExpectedOf(*source, *target)) << source->Number << " to " << target->Number;
            const ByteTexts* const texts = conversions.TextsOf(source->Number, target->Number);
            ASSERT_NE(texts, nullptr);
            const bool same = std::ranges::equal(*texts, converted, [&](const ByteText& text, std::uint8_t byte) {
                return Decoded(text) == DecodeInPage(*target, byte);
            });
            ASSERT_TRUE(same) << source->Number << " to " << target->Number;
        }
    EXPECT_EQ(conversions.LoadedPages(), 80u);
}

TEST(TextsOf, AreUtf8OfTheRightLength)
{
    clsCPConversions conversions;
    const ByteTexts& from37 = *conversions.TextsOf(37, 1252);
    EXPECT_EQ(View(from37[0xC1]), "A");
    EXPECT_EQ(View(from37[0x00]), std::string_view("\0", 1));  // a zero byte is a character like others here
    EXPECT_EQ(View(from37[0x15]), ".");
    EXPECT_EQ(View(from37[0x9F]), "¤");
    EXPECT_EQ(View((*conversions.TextsOf(1140, 1252))[0x9F]), "€");
    EXPECT_EQ(View((*conversions.TextsOf(500, 819))[0xFF]), "\u009F");
    EXPECT_EQ(View((*conversions.TextsOf(1252, 1257))[0x80]), "\u02D9");
    EXPECT_EQ(View((*conversions.TextsOf(878, 1251))[0xC1]), "а");
    EXPECT_EQ(View((*conversions.TextsOf(1004, 1252))[0x8E]), ".");
    for (const ByteText& text : from37)
        for (int i = text.size; i < 3; ++i) EXPECT_EQ(text.utf8[i], '\0');
}

TEST(TextsOf, NullWhereNothingIsConverted)
{
    clsCPConversions conversions;
    constexpr std::pair<int, int> kPairs[] = {{1200, 1252}, {1252, 1200}, {1200, 1200}, {932, 1252}, {1252, 932}};
    for (int round = 0; round < 2; ++round)
        for (const auto& [source, target] : kPairs)
            EXPECT_EQ(conversions.TextsOf(source, target), nullptr) << source << " to " << target;
}

TEST(TextsOf, StayInPlace)
{
    clsCPConversions conversions;
    std::map<std::pair<int, int>, const ByteTexts*> first;
    for (const CodePageEntry* source : PagesWithTable())
        for (const int target : {1252, 37})
            first[{source->Number, target}] = conversions.TextsOf(source->Number, target);
    for (const auto& [pair, texts] : first) EXPECT_EQ(conversions.TextsOf(pair.first, pair.second), texts);
    const ByteTexts* const again = conversions.TextsOf(37, 1252);
    EXPECT_EQ(conversions.TextsOf(37, 1252), again);
    EXPECT_NE(conversions.TextsOf(37, 37), again);
    EXPECT_EQ(View((*again)[0xC1]), "A");
}

}  // namespace
}  // namespace folioscope
