// The content of the tables: what is known of the pages from their publications, not copied from the data file.

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <set>
#include <string_view>
#include <vector>

#include "codepages/pages.h"

namespace folioscope {
namespace {

constexpr char32_t kUndefined = 0xFFFD;

char32_t CharacterAt(int page, int byte)
{
    return UnicodeOf((*FindCodePage(page)->SourceTable)[static_cast<std::size_t>(byte)]);
}

std::vector<const CodePageEntry*> PagesWithTable()
{
    std::vector<const CodePageEntry*> pages;
    for (const CodePageEntry& entry : CodePageEntries())
        if (entry.SourceTable != nullptr) pages.push_back(&entry);
    return pages;
}

bool IsEbcdic(const CodePageEntry& entry) { return entry.Type == "EBCDIC"; }

std::vector<int> UndefinedBytes(int page)
{
    std::vector<int> bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (CharacterAt(page, byte) == kUndefined) bytes.push_back(byte);
    return bytes;
}

std::vector<int> BytesThatDiffer(int one, int other)
{
    std::vector<int> bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (CharacterAt(one, byte) != CharacterAt(other, byte)) bytes.push_back(byte);
    return bytes;
}

TEST(CodePages, CharactersInAll)
{
    std::set<CharacterNumber> latin1, others;
    for (const CodePageEntry* entry : PagesWithTable())
        for (const CharacterNumber number : *entry->SourceTable)
            if (number != 0) (number <= 256 ? latin1 : others).insert(number);
    EXPECT_EQ(latin1.size(), 256u);
    EXPECT_EQ(others.size(), 588u);
    EXPECT_EQ(*others.begin(), 257);
    EXPECT_EQ(*--others.end(), 2013);
    EXPECT_EQ(*-- -- --others.end(), 842);
    for (const CharacterNumber number : others) EXPECT_NE(UnicodeOf(number), kUndefined) << number;
}

TEST(CodePages, NoCharacterTwiceInAPage)
{
    for (const CodePageEntry* entry : PagesWithTable()) {
        std::set<CharacterNumber> seen;
        for (const CharacterNumber number : *entry->SourceTable) {
            EXPECT_TRUE(number == 0 || seen.insert(number).second) << entry->Number << ": " << number;
        }
    }
}

TEST(CodePages, UndefinedBytesByCount)
{
    const std::map<int, std::size_t> counts = {
        {274, 96},  {281, 96},  {290, 61}, {382, 96},  {385, 75}, {386, 96},  {387, 96},  {388, 96},  {389, 96},
        {391, 96},  {392, 96},  {393, 96}, {394, 96},  {395, 96}, {420, 10},  {424, 39},  {813, 6},   {851, 1},
        {855, 1},   {857, 3},   {862, 1},  {864, 5},   {868, 25}, {869, 9},   {870, 11},  {875, 7},   {891, 128},
        {903, 128}, {904, 125}, {913, 7},  {916, 38},  {918, 26}, {1004, 9},  {1025, 10}, {1051, 1},  {1089, 45},
        {1250, 6},  {1251, 2},  {1252, 7}, {1253, 18}, {1254, 8}, {1255, 51}, {1256, 2},  {1257, 20}, {1275, 2}};
    for (const CodePageEntry* entry : PagesWithTable()) {
        const auto found = counts.find(entry->Number);
        EXPECT_EQ(UndefinedBytes(entry->Number).size(), found == counts.end() ? 0 : found->second) << entry->Number;
    }
}

TEST(CodePages, UndefinedBytesByValue)
{
    struct Row {
        int page;
        std::vector<int> bytes;
    };
    // clang-format off
    const Row kRows[] = {
        {420,  {0x45, 0x53, 0x54, 0xB6, 0xB7, 0xCC, 0xCE, 0xE1, 0xEC, 0xFA}},
        {424,  {0x70, 0x72, 0x73, 0x75, 0x76, 0x77, 0x80, 0x8C, 0x8D, 0x8E, 0x8F, 0x9A, 0x9B, 0x9C, 0x9E, 0xAA,
                0xAB, 0xAC, 0xAD, 0xAE, 0xCB, 0xCC, 0xCD, 0xCE, 0xCF, 0xDB, 0xDC, 0xDD, 0xDE, 0xDF, 0xEB, 0xEC,
                0xED, 0xEE, 0xEF, 0xFB, 0xFC, 0xFD, 0xFE}},
        {813,  {0xA4, 0xA5, 0xAA, 0xAE, 0xD2, 0xFF}},
        {851,  {0x91}},
        {855,  {0xFD}},
        {857,  {0xD5, 0xE7, 0xF2}},
        {862,  {0xA9}},
        {864,  {0x9B, 0x9C, 0xA0, 0xA6, 0xA7}},
        {868,  {0x94, 0x98, 0x99, 0x9E, 0x9F, 0xA5, 0xA8, 0xAA, 0xE0, 0xE2, 0xE8, 0xEB, 0xED, 0xEE, 0xEF, 0xF0,
                0xF3, 0xF4, 0xF5, 0xF6, 0xF7, 0xF8, 0xF9, 0xFA, 0xFD}},
        {869,  {0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x87, 0x93, 0x94}},
        {870,  {0x42, 0x44, 0x52, 0x56, 0x62, 0x66, 0x72, 0x76, 0x8F, 0xAF, 0xB3}},
        {875,  {0x6A, 0xDC, 0xE1, 0xEC, 0xED, 0xFC, 0xFD}},
        {913,  {0xA5, 0xAE, 0xBE, 0xC3, 0xD0, 0xE3, 0xF0}},
        {918,  {0x48, 0x53, 0x57, 0x58, 0x65, 0x66, 0x8B, 0x8E, 0x90, 0xBC, 0xBD, 0xCB, 0xCE, 0xDB, 0xDD, 0xDE,
                0xDF, 0xE1, 0xEB, 0xEC, 0xED, 0xEE, 0xEF, 0xFA, 0xFB, 0xFC}},
        {1004, {0x80, 0x81, 0x83, 0x8D, 0x8E, 0x8F, 0x90, 0x9D, 0x9E}},
        {1025, {0x41, 0x45, 0x55, 0x64, 0x73, 0x74, 0x79, 0xA1, 0xC0, 0xD0}},
        {1051, {0xFF}},
        {1250, {0x80, 0x81, 0x83, 0x88, 0x90, 0x98}},
        {1251, {0x88, 0x98}},
        {1252, {0x81, 0x8D, 0x8E, 0x8F, 0x90, 0x9D, 0x9E}},
        {1253, {0x80, 0x81, 0x88, 0x8A, 0x8C, 0x8D, 0x8E, 0x8F, 0x90, 0x98, 0x9A, 0x9C, 0x9D, 0x9E, 0x9F, 0xAA,
                0xD2, 0xFF}},
        {1254, {0x80, 0x81, 0x8D, 0x8E, 0x8F, 0x90, 0x9D, 0x9E}},
        {1256, {0xF8, 0xFA}},
        {1257, {0x80, 0x81, 0x83, 0x88, 0x8A, 0x8C, 0x8D, 0x8E, 0x8F, 0x90, 0x98, 0x9A, 0x9C, 0x9D, 0x9E, 0x9F,
                0xA1, 0xA5, 0xB4, 0xFF}},
        {1275, {0xF6, 0xF7}},
    };
    // clang-format on
    for (const auto& [page, bytes] : kRows) EXPECT_EQ(UndefinedBytes(page), bytes) << page;
}

TEST(CodePages, InvariantBytesOfEbcdic)
{
    const std::map<int, std::u32string_view> runs = {
        {0x40, U" "},     {0x4B, U".<(+"},      {0x50, U"&"},         {0x5C, U"*);"},      {0x60, U"-/"},
        {0x6B, U",%_>?"}, {0xC1, U"ABCDEFGHI"}, {0xD1, U"JKLMNOPQR"}, {0xE2, U"STUVWXYZ"}, {0xF0, U"0123456789"}};
    int pages = 0;
    for (const CodePageEntry* entry : PagesWithTable()) {
        if (!IsEbcdic(*entry)) continue;
        ++pages;
        for (const auto& [first, text] : runs)
            for (std::size_t i = 0; i < text.size(); ++i)
                EXPECT_EQ(CharacterAt(entry->Number, first + int(i)), text[i]) << entry->Number;
    }
    EXPECT_EQ(pages, 42);
}

TEST(CodePages, ControlsOfEbcdicHaveOneLayout)
{
    // clang-format off
    constexpr int kControls[] = {
        0x00, 0x01, 0x02, 0x03, 0x9C, 0x09, 0x86, 0x7F, 0x97, 0x8D, 0x8E, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F,
        0x10, 0x11, 0x12, 0x13, 0x9D, 0x85, 0x08, 0x87, 0x18, 0x19, 0x92, 0x8F, 0x1C, 0x1D, 0x1E, 0x1F,
        0x80, 0x81, 0x82, 0x83, 0x84, 0x0A, 0x17, 0x1B, 0x88, 0x89, 0x8A, 0x8B, 0x8C, 0x05, 0x06, 0x07,
        0x90, 0x91, 0x16, 0x93, 0x94, 0x95, 0x96, 0x04, 0x98, 0x99, 0x9A, 0x9B, 0x14, 0x15, 0x9E, 0x1A,
    };
    // clang-format on
    for (const CodePageEntry* entry : PagesWithTable()) {
        if (!IsEbcdic(*entry)) continue;
        for (int byte = 0; byte < 0x40; ++byte)
            EXPECT_EQ(CharacterAt(entry->Number, byte), char32_t(kControls[byte])) << entry->Number << ": " << byte;
        EXPECT_EQ(CharacterAt(entry->Number, 0xFF), 0x9Fu) << entry->Number;
    }
}

TEST(CodePages, LowHalfOfAllOthersIsAscii)
{
    int pages = 0;
    for (const CodePageEntry* entry : PagesWithTable()) {
        if (IsEbcdic(*entry)) continue;
        ++pages;
        for (int byte = 0; byte < 0x80; ++byte) EXPECT_EQ(CharacterAt(entry->Number, byte), char32_t(byte));
    }
    EXPECT_EQ(pages, 38);
}

TEST(CodePages, UpperControlsStandOnFewPagesBesidesEbcdic)
{
    const std::set<int> withControls = {813, 819, 912, 913, 914, 915, 916, 920, 921, 1051, 1089};
    for (const CodePageEntry* entry : PagesWithTable()) {
        if (IsEbcdic(*entry)) continue;
        for (int byte = 0x80; byte < 0x100; ++byte) {
            const char32_t character = CharacterAt(entry->Number, byte);
            const bool control = character >= 0x80 && character < 0xA0;
            const bool due =
                (withControls.contains(entry->Number) && byte < 0xA0) || (entry->Number == 855 && byte == 0x95);  // sic
            EXPECT_EQ(control, due) << entry->Number << ": " << byte;
            if (control && entry->Number != 855) {
                EXPECT_EQ(character, char32_t(byte)) << entry->Number;
            }
        }
    }
}

TEST(CodePages, Page819IsLatin1)
{
    for (int byte = 0; byte < 256; ++byte) EXPECT_EQ(CharacterAt(819, byte), char32_t(byte));
}

TEST(CodePages, UpperHalfOf1252)
{
    // One character a byte from 80 on; a blank is an undefined byte.
    constexpr std::u32string_view kFrom80 = U"€ ‚ƒ„…†‡ˆ‰Š‹Œ    ‘’“”•–—˜™š›œ  Ÿ";
    ASSERT_EQ(kFrom80.size(), 32u);
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(CharacterAt(1252, 0x80 + i), kFrom80[std::size_t(i)] == U' ' ? kUndefined : kFrom80[std::size_t(i)])
            << i;
    for (int byte = 0xA0; byte < 0x100; ++byte) EXPECT_EQ(CharacterAt(1252, byte), char32_t(byte));
}

TEST(CodePages, EuroPagesAreTheirForerunnersWithOneByteChanged)
{
    struct Row {
        int page, forerunner, byte;
    };
    // clang-format off
    constexpr Row kRows[] = {
        {1140,  37, 0x9F}, {1141, 273, 0x9F}, {1142, 277, 0x5A}, {1143, 278, 0x5A}, {1144, 280, 0x9F},
        {1145, 284, 0x9F}, {1146, 285, 0x9F}, {1147, 297, 0x9F}, {1148, 500, 0x9F}, {1149, 871, 0x9F},
    };
    // clang-format on
    for (const auto& [page, forerunner, byte] : kRows) {
        EXPECT_EQ(BytesThatDiffer(page, forerunner), std::vector<int>{byte}) << page;
        EXPECT_EQ(CharacterAt(page, byte), U'€') << page;
        EXPECT_EQ(CharacterAt(forerunner, byte), U'¤') << forerunner;
    }
}

TEST(CodePages, NoOtherPageHasTheEuroSign)
{
    std::set<int> pages;
    for (const CodePageEntry* entry : PagesWithTable())
        for (const CharacterNumber number : *entry->SourceTable)
            if (number == kEuroSign) pages.insert(entry->Number);
    EXPECT_EQ(pages, (std::set<int>{1140, 1141, 1142, 1143, 1144, 1145, 1146, 1147, 1148, 1149, 1252}));
}

TEST(CodePages, PagesThatDifferInFewBytes)
{
    EXPECT_EQ(BytesThatDiffer(1047, 37), (std::vector<int>{0x5F, 0xAD, 0xB0, 0xBA, 0xBB, 0xBD}));
    EXPECT_EQ(BytesThatDiffer(891, 903), std::vector<int>{});
    EXPECT_EQ(BytesThatDiffer(904, 891), (std::vector<int>{0x80, 0xFD, 0xFE}));
    EXPECT_EQ(BytesThatDiffer(392, 393), std::vector<int>{0x5B});
    EXPECT_EQ(BytesThatDiffer(921, 914).size(), 73u);
}

TEST(CodePages, OnlyTheLowHalfOf891And903IsDefined)
{
    for (const int page : {891, 903})
        for (int byte = 0; byte < 256; ++byte)
            EXPECT_EQ(CharacterAt(page, byte) == kUndefined, byte >= 0x80) << page << ": " << byte;
}

TEST(CodePages, Page920HasThreeLettersOfItsOwn)
{
    const std::map<int, char32_t> known = {{0xD0, U'Ğ'}, {0xDD, U'İ'}, {0xDE, U'Ş'}, {0xEA, U'ę'}, {0xEC, U'ė'},
                                           {0xEF, U'ī'}, {0xF0, U'ğ'}, {0xFD, U'ı'}, {0xFE, U'ş'}};
    for (int byte = 0xA0; byte < 0x100; ++byte) {
        const auto found = known.find(byte);
        EXPECT_EQ(CharacterAt(920, byte), found == known.end() ? char32_t(byte) : found->second) << byte;
    }
}

struct Known {
    int page;
    std::vector<int> bytes;
    std::u32string_view characters;
};

// Bytes on which publications differ: a table from another source fails here.
// clang-format off
const Known kKnown[] = {
    {278,  {0x71, 0xE0}, U"É\\"},
    {290,  {0x6A}, U"¦"},
    {392,  {0x5B}, U"₧"},
    {393,  {0x5B}, U"$"},
    {424,  {0x78}, U"⇔"},
    {437,  {0xF9, 0xFA, 0xE6}, U"·•µ"},
    {813,  {0xA1, 0xAF, 0xB4}, U"‛—\u00B4"},
    {851,  {0xB7, 0xB8, 0xF7}, U"ΝΜ\u02DB"},
    {855,  {0x95, 0xEF}, U"\u0093\u00B4"},
    {857,  {0xEE, 0xF7, 0xFA}, U"—\u02DB\u02D9"},
    {860,  {0xF9, 0xFA, 0xE6, 0x8B, 0x9F, 0xA9}, U"·•µÎÒÓ"},
    {862,  {0xF9, 0xFA, 0xE6, 0x8B, 0x8C, 0x8D, 0x95, 0x97, 0x9F}, U"·•µÐðÞþÝÒ"},
    {863,  {0xF9, 0xFA, 0xE6, 0x8D, 0xED, 0xF8}, U"·•µì∅∘"},
    {864,  {0x25, 0x9F, 0xA9, 0xFF}, U"%\uE016\u0628\u00A0"},
    {865,  {0xF9, 0xFA, 0xE6, 0xAF, 0xED, 0xF8}, U"·•µ»∅∘"},
    {868,  {0x90}, U"\uE016"},
    {869,  {0x8B, 0x8E, 0xEF}, U"‛—\u00B4"},
    {870,  {0xB0, 0xB6, 0xB7, 0xB8, 0xB9, 0xBA}, U"·¶žźŽŹ"},
    {871,  {0x4A, 0xC0}, U"þÞ"},
    {875,  {0x74, 0xB4, 0xB8, 0xCC, 0xCD, 0xDD}, U"∇ΐΰϊϋ·"},
    {878,  {0x95, 0xC1, 0xFF}, U"•аЪ"},
    {904,  {0x80, 0xFD, 0xFE}, U"¢¬¦"},
    {1025, {0x6A, 0xE1}, U"¦¤"},
    {1026, {0x9D, 0xBC}, U"\u02DB—"},
    {1047, {0x5F, 0xAD, 0xB0, 0xBA, 0xBB, 0xBD}, U"^[¬Ý¨]"},
    {1051, {0xA9, 0xAF, 0xB0, 0xB3, 0xF3, 0xF6}, U"\u02CB₤\u00AF°µ—"},
    {1089, {0xC1, 0xEA}, U"\u0621\u064A"},
    {1143, {0x71, 0xE0}, U"É\\"},
    {1149, {0x4A, 0xC0}, U"þÞ"},
    {1254, {0xEA, 0xEC, 0xEF}, U"ęėī"},
    {1255, {0xA4, 0xAF, 0xDF}, U"¤‾‗"},
    {1256, {0x80, 0x81, 0x83, 0x88, 0x89, 0x8A, 0x8C, 0x8D, 0x8E, 0x8F, 0x90, 0xD0},
           U"\u060C\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669\u3113"},
    {1275, {0xBD, 0xC6, 0xCD, 0xDB, 0xF0}, U"\u03A9\u0394\u2126¤\uF8FF"},
};
// clang-format on

TEST(CodePages, BytesOnWhichPublicationsDiffer)
{
    for (const auto& [page, bytes, characters] : kKnown) {
        ASSERT_EQ(bytes.size(), characters.size()) << page;
        for (std::size_t i = 0; i < bytes.size(); ++i)
            EXPECT_EQ(CharacterAt(page, bytes[i]), characters[i]) << "page " << page << ", byte " << bytes[i];
    }
}

TEST(CodePages, OverlineOrMacron)
{
    for (const int page : {273, 277, 278, 280, 284, 297, 424, 1141, 1142, 1143, 1144, 1145, 1147})
        EXPECT_EQ(CharacterAt(page, 0xBC), U'\u203E') << page;
    for (const int page : {281, 285, 290, 394, 1146}) EXPECT_EQ(CharacterAt(page, 0xA1), U'\u203E') << page;
    for (const int page : {916, 1255}) EXPECT_EQ(CharacterAt(page, 0xAF), U'\u203E') << page;
    for (const int page : {37, 500, 871, 1047, 1140, 1148, 1149}) EXPECT_EQ(CharacterAt(page, 0xBC), U'¯') << page;
    for (const int page : {819, 914, 920, 1004, 1252, 1254}) EXPECT_EQ(CharacterAt(page, 0xAF), U'¯') << page;
}

TEST(CodePages, NoBulletOperatorAnywhere)
{
    for (const CodePageEntry* entry : PagesWithTable())
        for (const CharacterNumber number : *entry->SourceTable)
            EXPECT_NE(UnicodeOf(number), U'\u2219') << entry->Number;
}

TEST(CodePages, BoxDrawingOfDosPagesIsDoubleLined)
{
    for (const int page : {437, 860, 862, 863, 865}) {
        EXPECT_EQ(CharacterAt(page, 0xCD), U'═') << page;
        EXPECT_EQ(CharacterAt(page, 0xBA), U'║') << page;
        EXPECT_EQ(CharacterAt(page, 0xCE), U'╬') << page;
    }
}

TEST(CodePages, Page290IsFullWidthKatakanaWithoutSmallLetters)
{
    std::set<char32_t> characters;
    for (int byte = 0; byte < 256; ++byte) characters.insert(CharacterAt(290, byte));
    for (char32_t letter = U'a'; letter <= U'z'; ++letter) EXPECT_FALSE(characters.contains(letter));
    for (const char32_t sign : std::u32string_view(U"[]{}^~¢\\")) EXPECT_FALSE(characters.contains(sign));
    EXPECT_TRUE(characters.contains(U'\u30A1'));
    EXPECT_TRUE(characters.contains(U'\u30FC'));
    for (char32_t halfWidth = 0xFF61; halfWidth < 0xFFA0; ++halfWidth) EXPECT_FALSE(characters.contains(halfWidth));
}

}  // namespace
}  // namespace folioscope
