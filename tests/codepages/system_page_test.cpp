#include "codepages/system_page.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace folioscope {
namespace {

std::string InSystemPage(std::string_view utf8)
{
    std::string out;
    AppendInSystemPage(utf8, out);
    return out;
}

// For characters from U+0080 to U+FFFF.
std::string Utf8(char32_t character)
{
    if (character < 0x800) return {char(0xC0 | character >> 6), char(0x80 | (character & 0x3F))};
    return {char(0xE0 | character >> 12), char(0x80 | (character >> 6 & 0x3F)), char(0x80 | (character & 0x3F))};
}

TEST(SystemPage, IsOneOfThePages)
{
    EXPECT_EQ(kSystemCodePage, 1252);
    ASSERT_NE(FindCodePage(kSystemCodePage), nullptr);
    EXPECT_NE(FindCodePage(kSystemCodePage)->SourceTable, nullptr);
}

TEST(SystemPage, AppendsToWhatIsThere)
{
    std::string out = "before ";
    AppendInSystemPage("after", out);
    AppendInSystemPage("", out);
    AppendInSystemPage("ü", out);
    EXPECT_EQ(out, "before after\xFC");
}

TEST(SystemPage, AsciiIsCopiedWithItsControls)
{
    std::string all;
    for (int byte = 0; byte < 0x80; ++byte) all += char(byte);
    EXPECT_EQ(InSystemPage(all), all);
    EXPECT_EQ(InSystemPage(std::string_view("\0", 1)), std::string(1, '\0'));
}

TEST(SystemPage, RunsOfAsciiOfAnyLengthAroundAnotherCharacter)
{
    for (std::size_t before = 0; before < 20; ++before)
        for (std::size_t after = 0; after < 20; ++after) {
            const std::string a(before, 'a'), b(after, 'b');
            EXPECT_EQ(InSystemPage(std::string(a).append("ß").append(b)), std::string(a).append("\xDF").append(b));
        }
}

TEST(SystemPage, OneByteBeyondAsciiIsFoundAnywhere)
{
    for (std::size_t at = 0; at < 40; ++at) {
        std::string text(40, 'a');
        text[at] = '\xC3';
        std::string expected(40, 'a');
        expected[at] = '?';
        EXPECT_EQ(InSystemPage(text), expected);
    }
}

TEST(SystemPage, EncodesWhatItDecodes)
{
    const CodePageEntry& page = *FindCodePage(kSystemCodePage);
    int defined = 0;
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const char32_t character = DecodeInPage(page, static_cast<std::uint8_t>(byte));
        if (character == 0xFFFD) continue;
        ++defined;
        EXPECT_EQ(InSystemPage(Utf8(character)), std::string(1, char(byte))) << byte;
    }
    EXPECT_EQ(defined, 249 - 128);
}

TEST(SystemPage, OnlyItsOwnCharactersAreEncoded)
{
    int encoded = 0;
    for (char32_t character = 0x80; character < 0x10000; ++character)
        if (character < 0xD800 || character > 0xDFFF) encoded += InSystemPage(Utf8(character)) != "?";
    EXPECT_EQ(encoded, 249 - 128);
}

TEST(SystemPage, Signs)
{
    EXPECT_EQ(InSystemPage("€‚ƒ„…†‡ˆ‰Š‹Œ"), "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C");
    EXPECT_EQ(InSystemPage("‘’“”•–—˜™š›œŸ"), "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9F");
    EXPECT_EQ(InSystemPage("Größe à 5 £"), "Gr\xF6\xDF"
                                           "e \xE0 5 \xA3");
}

TEST(SystemPage, CharactersOutsideBecomeQuestionMarks)
{
    EXPECT_EQ(InSystemPage("Žž"), "??");  // sic, though systems of today have both
    EXPECT_EQ(InSystemPage("aΩb"), "a?b");
    EXPECT_EQ(InSystemPage("\uFFFD"), "?");
    EXPECT_EQ(InSystemPage("\u0081\u008D\u0085"), "???");
    EXPECT_EQ(InSystemPage("\uFFFF"), "?");
}

TEST(SystemPage, CharactersBeyondTheFirstPlaneAreTwoQuestionMarks)
{
    EXPECT_EQ(InSystemPage("\U00010000"), "??");
    EXPECT_EQ(InSystemPage("x\U0001F600y"), "x??y");
    EXPECT_EQ(InSystemPage("\U0010FFFF"), "??");
}

TEST(SystemPage, EachMalformedByteIsAQuestionMark)
{
    struct Row {
        std::string_view text, expected;
    };
    // clang-format off
    constexpr Row kRows[] = {
        {"\x80",                 "?"},       // nothing before the tail
        {"a\xBF" "b",            "a?b"},
        {"\xC3",                 "?"},       // cut off
        {"\xC3" "a",             "?a"},
        {"\xC3\xC3\xA9",         "?\xE9"},
        {"\xE2\x82",             "??"},
        {"\xE2\x82" "a",         "??a"},
        {"\xF0\x9F\x98",         "???"},
        {"\xF0\x9F\x98" "abc",   "???abc"},
        {"\xC0\x80",             "??"},      // longer than need be
        {"\xC1\xBF",             "??"},
        {"\xE0\x83\xA9",         "???"},
        {"\xF0\x82\x82\xAC",     "????"},
        {"\xED\xA0\x80",         "???"},     // half of a surrogate pair
        {"\xED\xBF\xBF",         "???"},
        {"\xF4\x90\x80\x80",     "????"},    // beyond the last character
        {"\xF7\xBF\xBF\xBF",     "????"},
        {"\xF8\x88\x80\x80\x80", "?????"},
        {"\xFE\xFF",             "??"},
    };
    // clang-format on
    for (const auto& [text, expected] : kRows) EXPECT_EQ(InSystemPage(text), expected);
}

TEST(SystemPage, ReadsNothingBehindTheText)
{
    const std::string euro = "€";
    for (std::size_t size = 0; size < euro.size(); ++size) {
        const std::string cut(euro.data(), size);
        EXPECT_EQ(InSystemPage(cut), std::string(size, '?'));
        EXPECT_EQ(InSystemPage(std::string_view(euro).substr(0, size)), std::string(size, '?'));
    }
}

TEST(DecodeInPage, GivesTheCharacterOfThePage)
{
    EXPECT_EQ(DecodeInPage(*FindCodePage(37), 0xC1), U'A');
    EXPECT_EQ(DecodeInPage(*FindCodePage(1252), 0x80), U'€');
    EXPECT_EQ(DecodeInPage(*FindCodePage(1251), 0xE0), U'а');
    EXPECT_EQ(DecodeInPage(*FindCodePage(1252), 0xFF), U'ÿ');
}

TEST(DecodeInPage, UndefinedBytes)
{
    EXPECT_EQ(DecodeInPage(*FindCodePage(1252), 0x8E), 0xFFFDu);
    EXPECT_EQ(DecodeInPage(*FindCodePage(891), 0xFF), 0xFFFDu);
    EXPECT_EQ(DecodeInPage(*FindCodePage(1257), 0x80), 0xFFFDu);
    EXPECT_EQ(DecodeInPage(*FindCodePage(1200), 0x41), 0xFFFDu);
}

TEST(DecodeInPage, MissingCharactersOf1257ShowAsADotAbove)
{
    EXPECT_EQ((*FindCodePage(1257)->SourceTable)[0xFF], 0);
    EXPECT_EQ(DecodeInPage(*FindCodePage(1257), 0xFF), U'\u02D9');
    EXPECT_EQ(DecodeInPage(*FindCodePage(1253), 0xFF), 0xFFFDu);
}

}  // namespace
}  // namespace folioscope
