#include "base/registry_text.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace folioscope {
namespace {

const std::string kKey = R"(HKEY_CURRENT_USER\Software\Marrowgate\Folioscope)";

std::string WithKey(const std::string& lines) { return "[" + kKey + "]\n" + lines; }

// The one entry of a text that has no other.
RegistryData Only(const RegistryContent& content)
{
    if (content.keys.size() != 1 || content.keys.begin()->second.size() != 1) return "not one entry";
    return content.keys.begin()->second.begin()->second;
}

RegistryData RoundTrip(const std::string& name, const RegistryData& data)
{
    const auto read = ParseRegistry(RegistryText({{kKey, {{name, data}}}}));
    EXPECT_FALSE(read.damaged);
    const auto key = read.keys.find(kKey);
    if (key == read.keys.end()) return "no key";
    const auto at = key->second.find(name);
    return at == key->second.end() ? "no entry" : at->second;
}

TEST(RegistryKeys, RootsHaveHandles)
{
    EXPECT_EQ(RootHandle(R"(HKEY_CLASSES_ROOT\x)"), 0x80000000U);
    EXPECT_EQ(RootHandle(R"(HKEY_CURRENT_USER\x)"), 0x80000001U);
    EXPECT_EQ(RootHandle(R"(HKEY_LOCAL_MACHINE\x)"), 0x80000002U);
    EXPECT_EQ(RootHandle(R"(HKEY_USERS\x)"), 0x80000003U);
    EXPECT_EQ(RootHandle(R"(HKEY_PERFORMANCE_DATA\x)"), 0x80000004U);
    EXPECT_EQ(RootHandle(R"(HKEY_CURRENT_CONFIG\x)"), 0x80000005U);
    EXPECT_EQ(RootHandle(R"(HKEY_DYN_DATA\x\y)"), 0x80000006U);
}

TEST(RegistryKeys, AnotherRootOrNoBackslashHasNoHandle)
{
    for (const auto* key : {"", "\\", "HKEY_CURRENT_USER", "HKCU\\x", "\\HKEY_CURRENT_USER\\x", "hkey_current_user\\x",
                            "HKEY_CURRENT_USER \\x", "HKEY_CURRENT_USER/x"}) {
        EXPECT_EQ(RootHandle(key), 0U) << key;
        EXPECT_EQ(CanonicalKey(key), std::nullopt) << key;
    }
}

TEST(RegistryKeys, EmptyPartsDoNotCount)
{
    EXPECT_EQ(CanonicalKey(R"(HKEY_USERS\a\\b\)"), R"(HKEY_USERS\a\b)");
    EXPECT_EQ(CanonicalKey(R"(HKEY_USERS\)"), "HKEY_USERS");
    EXPECT_EQ(CanonicalKey(R"(HKEY_USERS\\\)"), "HKEY_USERS");
}

TEST(RegistryKeys, WhatCannotStandInOneLineIsNoKey)
{
    EXPECT_EQ(CanonicalKey("HKEY_USERS\\a\nb"), std::nullopt);
    EXPECT_EQ(CanonicalKey(std::string("HKEY_USERS\\a\0b", 14)), std::nullopt);
    EXPECT_EQ(CanonicalKey("HKEY_USERS\\a\xFF"), std::nullopt);
    EXPECT_EQ(CanonicalKey("HKEY_USERS\\\xC3\xA4"), "HKEY_USERS\\\xC3\xA4");
}

TEST(RegistryText, IsReadable)
{
    const RegistryKeys keys = {
        {kKey, {{"LastFilesList1", "/home/anna/a b.afp"}, {"Codepage", 37}, {"WindowTop", -5}}},
        {R"(HKEY_CLASSES_ROOT\http)", {{"", "x %1"}}},
        {R"(HKEY_USERS\empty)", {}},
    };
    EXPECT_EQ(RegistryText(keys), "[HKEY_CLASSES_ROOT\\http]\n"
                                  "=sz:x %1\n"
                                  "\n"
                                  "[HKEY_CURRENT_USER\\Software\\Marrowgate\\Folioscope]\n"
                                  "Codepage=dword:37\n"
                                  "LastFilesList1=sz:/home/anna/a b.afp\n"
                                  "WindowTop=dword:-5\n"
                                  "\n"
                                  "[HKEY_USERS\\empty]\n");
}

TEST(RegistryText, ReadsWhatItWrites)
{
    const RegistryKeys keys = {
        {kKey, {{"a", "text"}, {"b", 1}}}, {R"(HKEY_USERS\[odd] = name )", {{"", ""}}}, {"HKEY_USERS", {{"c", 2}}}};
    const auto read = ParseRegistry(RegistryText(keys));
    EXPECT_FALSE(read.damaged);
    EXPECT_EQ(read.keys, keys);
}

TEST(RegistryText, TextsOfAllBytesComeBack)
{
    std::string all;
    for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
    for (const std::string& text :
         {all, std::string(), std::string(" "), std::string("  a  b  "), std::string("a\nb\r\n"),
          std::string(R"(C:\temp\new\x41)"), std::string("\\"), std::string("=sz:[x]"),
          std::string("\xC3\xA4\xF0\x9F\x98\x80"), std::string("\xC3"), std::string(" \xC3"),
          std::string("\xED\xA0\x80"), std::string("\xC0\x80"), std::string("\xF4\x90\x80\x80")}) {
        EXPECT_EQ(RoundTrip("name", text), RegistryData(text));
        EXPECT_EQ(RoundTrip(text, 7), RegistryData(7));
    }
}

TEST(RegistryText, EscapesOnlyWhatNeedsIt)
{
    EXPECT_EQ(RegistryText({{"HKEY_USERS", {{" a=b ", " c=d "}}}}),
              "[HKEY_USERS]\n\\x20a\\x3Db\\x20=sz:\\x20c=d\\x20\n");
    EXPECT_EQ(RegistryText({{"HKEY_USERS", {{"[a]", "[b]"}}}}), "[HKEY_USERS]\n\\x5Ba]=sz:[b]\n");
    EXPECT_EQ(RegistryText({{"HKEY_USERS", {{"t", "\\\n\r\t\x01\x7F\xFF\xC3\xA4"}}}}),
              "[HKEY_USERS]\nt=sz:\\\\\\n\\r\\t\\x01\\x7F\\xFF\xC3\xA4\n");
}

TEST(RegistryText, NumbersHave32Bits)
{
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {0, 1, -1, Limits::min(), Limits::max()})
        EXPECT_EQ(RoundTrip("n", number), RegistryData(number));
    EXPECT_EQ(Only(ParseRegistry(WithKey("n=dword:4294967295"))), RegistryData(-1));
    EXPECT_EQ(Only(ParseRegistry(WithKey("n=dword:2147483648"))), RegistryData(Limits::min()));
}

TEST(RegistryText, EditedByHand)
{
    const auto read =
        ParseRegistry("\xEF\xBB\xBF  [" + kKey + "] \r\n\r\n  A = dword: 5 \r\n\tb\t=\tsz: x y \r\nB=sz:z");
    EXPECT_FALSE(read.damaged);
    EXPECT_EQ(read.keys, (RegistryKeys{{kKey, {{"A", 5}, {"b", "z"}}}}));
}

TEST(RegistryText, LetterCaseDoesNotTellKeysOrNamesApart)
{
    const auto read = ParseRegistry("[HKEY_USERS\\Abc]\nName=dword:1\n[HKEY_USERS\\aBC]\nnAME=dword:2\n");
    EXPECT_FALSE(read.damaged);
    EXPECT_EQ(Only(read), RegistryData(2));
}

TEST(RegistryText, NothingIsNoDamage)
{
    for (const auto* text : {"", "\n\n", " \r\n", "\xEF\xBB\xBF"}) {
        EXPECT_FALSE(ParseRegistry(text).damaged);
        EXPECT_TRUE(ParseRegistry(text).keys.empty());
    }
}

TEST(RegistryText, WhatIsNoTextGivesNothing)
{
    for (const std::string& noise : {std::string(1, '\0'), std::string("\x01"), std::string("\x7F"),
                                     std::string("\xFF"), std::string("\xC3"), std::string("\xED\xA0\x80")}) {
        const auto read = ParseRegistry(WithKey("a=dword:1\nb=sz:" + noise + "\n"));
        EXPECT_TRUE(read.damaged);
        EXPECT_TRUE(read.keys.empty());
    }
}

TEST(RegistryText, LinesThatCannotBeReadAreLeftOut)
{
    for (const auto* line : {"a",
                             "a=5",
                             "a=",
                             "a=dword:",
                             "a=dword:x",
                             "a=dword:5x",
                             "a=dword:1.5",
                             "a=dword:4294967296",
                             "a=dword:-2147483649",
                             "a=dword:99999999999999999999",
                             "a=DWORD:5",
                             "a=sz:\\",
                             "a=sz:\\q",
                             "a=sz:\\x4",
                             "a=sz:\\x4g",
                             "a=sz:\\x",
                             "\\q=sz:a",
                             "; remark",
                             "# remark",
                             "[",
                             "[]",
                             "[HKEY_USERS\\x",
                             "[HKEY_NOBODY\\x]",
                             "[HKEY_USERS\\]",
                             "[HKEY_USERS\\a\\\\b]"}) {
        const auto read = ParseRegistry(WithKey("good=dword:1\n" + std::string(line) + "\n"));
        EXPECT_TRUE(read.damaged) << line;
        EXPECT_EQ(Only(read), RegistryData(1)) << line;
    }
}

TEST(RegistryText, EntriesNeedAKey)
{
    const auto read = ParseRegistry("a=dword:1\n");
    EXPECT_TRUE(read.damaged);
    EXPECT_TRUE(read.keys.empty());
}

TEST(RegistryText, EntriesOfABadKeyDoNotFallToTheOneBefore)
{
    const auto read = ParseRegistry("[HKEY_USERS\\a]\n[HKEY_NOBODY\\b]\nc=dword:1\n[HKEY_USERS\\d]\ne=dword:2\n");
    EXPECT_TRUE(read.damaged);
    EXPECT_EQ(read.keys, (RegistryKeys{{R"(HKEY_USERS\a)", {}}, {R"(HKEY_USERS\d)", {{"e", 2}}}}));
}

TEST(RegistryText, ACutTextNeverReadsOutside)
{
    const std::string text = RegistryText({{kKey, {{"a=\n", "\\ \xC3\xA4\x01"}, {"b", -37}}}});
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const std::string cut = text.substr(0, length);  // its own memory, so that a look behind it shows
        const auto read = ParseRegistry(cut);
        EXPECT_LE(read.keys.size(), 1U);
    }
}

}  // namespace
}  // namespace folioscope
