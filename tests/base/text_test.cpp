#include "base/text.h"

#include <gtest/gtest.h>

#include <string>

namespace folioscope {
namespace {

std::string Utf8(char32_t character)
{
    std::string out;
    AppendUtf8(out, character);
    return out;
}

struct Character {
    char32_t value;
    std::string_view bytes;
    std::size_t units;  // of UTF-16
};

// The first and the last of each length, and some between.
constexpr Character kCharacters[] = {
    {0x00, std::string_view("\0", 1), 1},
    {'A', "A", 1},
    {0x7F, "\x7F", 1},
    {0x80, "\xC2\x80", 1},
    {0xE4, "\xC3\xA4", 1},
    {0x7FF, "\xDF\xBF", 1},
    {0x800, "\xE0\xA0\x80", 1},
    {0x20AC, "\xE2\x82\xAC", 1},
    {0xD7FF, "\xED\x9F\xBF", 1},
    {0xE000, "\xEE\x80\x80", 1},
    {0xFFFF, "\xEF\xBF\xBF", 1},
    {0x10000, "\xF0\x90\x80\x80", 2},
    {0x1F600, "\xF0\x9F\x98\x80", 2},
    {0x10FFFF, "\xF4\x8F\xBF\xBF", 2},
};

TEST(Text, EncodesCharactersOfEveryLength)
{
    for (const auto& [value, bytes, units] : kCharacters) EXPECT_EQ(Utf8(value), bytes) << std::hex << int(value);
    std::string out = "a";
    AppendUtf8(out, 0xDF);
    AppendUtf8(out, 'z');
    EXPECT_EQ(out, "aßz");
}

TEST(Text, WhatIsNoCharacterBecomesTheReplacementCharacter)
{
    for (const char32_t value : {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000, 0x7FFFFFFF})
        EXPECT_EQ(Utf8(value), "\xEF\xBF\xBD") << std::hex << int(value);
    EXPECT_EQ(Utf8(char32_t{0xFFFFFFFF}), "\xEF\xBF\xBD");
}

TEST(Text, StepsFromCharacterToCharacter)
{
    for (const auto& [value, bytes, units] : kCharacters) EXPECT_EQ(Utf8Step(bytes[0]), bytes.size());
}

TEST(Text, StepsOneByteOverWhatStartsNoCharacter)
{
    for (int byte = 0x80; byte <= 0xBF; ++byte) EXPECT_EQ(Utf8Step(static_cast<char>(byte)), 1U) << byte;
    for (int byte = 0xF8; byte <= 0xFF; ++byte) EXPECT_EQ(Utf8Step(static_cast<char>(byte)), 1U) << byte;
}

TEST(Text, CountsUtf16Units)
{
    EXPECT_EQ(Utf16Length(""), 0U);
    EXPECT_EQ(Utf16Length("plain"), 5U);
    EXPECT_EQ(Utf16Length("Größe"), 5U);
    EXPECT_EQ(Utf16Length("90° €"), 5U);
    EXPECT_EQ(Utf16Length("°^°B~"), 5U);
    EXPECT_EQ(Utf16Length("a\U0001F600b"), 4U);
    std::string all;
    std::size_t sum = 0;
    for (const auto& [value, bytes, units] : kCharacters) {
        EXPECT_EQ(Utf16Length(bytes), units) << std::hex << int(value);
        all += bytes;
        sum += units;
    }
    EXPECT_EQ(Utf16Length(all), sum);
}

TEST(Text, TrimsBlanksAndNothingElse)
{
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks(" "), "");
    EXPECT_EQ(TrimBlanks("     "), "");
    EXPECT_EQ(TrimBlanks("a"), "a");
    EXPECT_EQ(TrimBlanks("  a"), "a");
    EXPECT_EQ(TrimBlanks("a  "), "a");
    EXPECT_EQ(TrimBlanks("  two  words  "), "two  words");
    EXPECT_EQ(TrimBlanks(" \t a \r\n "), "\t a \r\n");
    EXPECT_EQ(TrimBlanks(" \u00A0 "), "\u00A0");
    EXPECT_EQ(TrimBlanks(std::string_view(" \0 ", 3)), std::string_view("\0", 1));
}

std::string Changed(std::string text, std::string_view what, std::string_view with)
{
    ChangeString(text, what, with);
    return text;
}

TEST(Text, ChangesTheFirstOccurrenceOnly)
{
    EXPECT_EQ(Changed("%1 and %1", "%1", "one"), "one and %1");
    EXPECT_EQ(Changed("aaa", "a", "aa"), "aaaa");
    EXPECT_EQ(Changed("abcabc", "bc", ""), "aabc");
    EXPECT_EQ(Changed("no such part", "%1", "one"), "no such part");
    EXPECT_EQ(Changed("", "%1", "one"), "");
    EXPECT_EQ(Changed("case Matters", "m", "n"), "case Matters");
    EXPECT_EQ(Changed("ends in %1", "%1", "it"), "ends in it");
}

// The replacement runs over the whole text, so what is filled in first can take what comes later.
TEST(Text, AFilledInTextCanHoldTheNextPlaceholder)
{
    std::string text = "File %1: %2, %3";
    ChangeString(text, "%1", "a%2b");
    ChangeString(text, "%2", "x");
    ChangeString(text, "%3", "y");
    EXPECT_EQ(text, "File axb: %2, y");
}

struct IllFormed {
    std::string_view bytes, shown;
};

// One replacement character for each byte that can't be read.
// clang-format off
constexpr IllFormed kIllFormed[] = {
    {"\x80", "\uFFFD"},                                       // a byte of a character's middle
    {"a\xBF\xBFz", "a\uFFFD\uFFFDz"},
    {"\xC3", "\uFFFD"},                                       // cut off
    {"\xE2\x82", "\uFFFD\uFFFD"},
    {"\xF0\x9F\x98", "\uFFFD\uFFFD\uFFFD"},
    {"\xE2\x82z", "\uFFFD\uFFFDz"},
    {"\xC3z\xC3\xA4", "\uFFFDzä"},
    {"\xE2 \xE2\x82\xAC", "\uFFFD €"},
    {"\xC0\x80", "\uFFFD\uFFFD"},                             // longer than need be
    {"\xC1\xBF", "\uFFFD\uFFFD"},
    {"\xE0\x9F\xBF", "\uFFFD\uFFFD\uFFFD"},
    {"\xF0\x8F\xBF\xBF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},                   // half of a surrogate pair
    {"\xED\xBF\xBF", "\uFFFD\uFFFD\uFFFD"},
    {"\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},         // above U+10FFFF
    {"\xF8\xFF", "\uFFFD\uFFFD"},                             // in no text
};
// clang-format on

TEST(Text, WellFormedTextStays)
{
    std::string all;
    for (const auto& [value, bytes, units] : kCharacters) all += bytes;
    EXPECT_EQ(WellFormed(all), all);
    EXPECT_EQ(WellFormed(""), "");
    EXPECT_EQ(WellFormed("\uFFFD"), "\uFFFD");
}

TEST(Text, WhatIsNotWellFormedIsReplacedByteForByte)
{
    for (const auto& [bytes, shown] : kIllFormed) {
        EXPECT_EQ(WellFormed(bytes), shown);
        EXPECT_EQ(OnOneLine(bytes), shown);
    }
}

TEST(Text, OneLineShowsControlsAsPictures)
{
    EXPECT_EQ(OnOneLine(""), "");
    EXPECT_EQ(OnOneLine("plain ~ Größe € \U0001F600"), "plain ~ Größe € \U0001F600");
    EXPECT_EQ(OnOneLine("a\r\nb\tc"), "a␍␊b␉c");
    EXPECT_EQ(OnOneLine(std::string_view("\0\x1B\x7F", 3)), "␀␛␡");
    std::string controls;
    for (char c = 0; c < 0x20; ++c) controls += c;
    for (const char c : OnOneLine(controls)) EXPECT_GE(static_cast<unsigned char>(c), 0x80);
    EXPECT_EQ(Utf16Length(OnOneLine(controls)), controls.size());
}

TEST(Text, OneLineHasNoControlsThatHaveNoPicture)
{
    for (char32_t control = 0x80; control < 0xA0; ++control) EXPECT_EQ(OnOneLine(Utf8(control)), "\uFFFD");
    EXPECT_EQ(OnOneLine("a" + Utf8(0x2028) + "b" + Utf8(0x2029)), "a\uFFFDb\uFFFD");
    EXPECT_EQ(OnOneLine(Utf8(0xA0) + Utf8(0x2027) + Utf8(0x202A)), Utf8(0xA0) + Utf8(0x2027) + Utf8(0x202A));
}

TEST(Utf16Length, CountsEachCharacterAtEachPlace)
{
    const std::string_view characters[] = {"a", "ä", "€", "𝒳"};
    for (std::size_t before = 0; before < 20; ++before)
        for (std::size_t behind = 0; behind < 20; ++behind)
            for (const std::string_view character : characters) {
                const std::string text = std::string(before, 'x') + std::string(character) + std::string(behind, 'y');
                EXPECT_EQ(Utf16Length(text), before + (character.size() == 4 ? 2 : 1) + behind) << text;
            }
    std::string all;
    for (int i = 0; i < 100; ++i) all += "aä€𝒳";
    EXPECT_EQ(Utf16Length(all), 500u);
}

TEST(AppendUpperCase, KnowsTheLettersOfTheAlphabets)
{
    const auto upper = [](std::string_view text) {
        std::string out = "+";
        AppendUpperCase(out, text);
        return out;
    };
    EXPECT_EQ(upper(""), "+");
    EXPECT_EQ(upper("azAZ09 {|}~`@[^"), "+AZAZ09 {|}~`@[^");
    EXPECT_EQ(upper("aàöøþÿ÷ßb"), "+AÀÖØÞŸ÷ßB");
    EXPECT_EQ(upper("āăįĳĵķĺňŋŷźżžƒœš"), "+ĀĂĮĲĴĶĹŇŊŶŹŻŽƑŒŠ");
    EXPECT_EQ(upper("ĀĸŉƑ"), "+ĀĸŉƑ");
    EXPECT_EQ(upper("άέήίαρςστόύώ"), "+ΆΈΉΊΑΡςΣΤΌΎΏ");
    EXPECT_EQ(upper("аяѐџѡҋ"), "+АЯЀЏѠҊ");
    EXPECT_EQ(upper("日本 𝒳 €"), "+日本 𝒳 €");
}

TEST(AppendUpperCase, LeavesBadBytesAsTheyAre)
{
    std::string out;
    AppendUpperCase(out, "a\xC3 b\xFF\xE2\x82");
    EXPECT_EQ(out, "A\xC3 B\xFF\xE2\x82");
    out.clear();
    AppendUpperCase(out, "\xEF\xBF\xBD");
    EXPECT_EQ(out, "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace folioscope
