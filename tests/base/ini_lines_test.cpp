#include "base/ini_lines.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace folioscope {
namespace {

TEST(IniLines, NamesMatchInAnyLetterCase)
{
    EXPECT_TRUE(SameName("CodePage", "cODEpAGE"));
    EXPECT_TRUE(SameName("", ""));
    EXPECT_FALSE(SameName("Codepage", "Codepages"));
    EXPECT_FALSE(SameName("Codepage", "Code page"));
}

TEST(IniLines, OnlyLettersHaveACase)
{
    EXPECT_FALSE(SameName("@", "`"));
    EXPECT_FALSE(SameName("[", "{"));
    EXPECT_FALSE(SameName("\xC3\x84", "\xC3\xA4"));
    EXPECT_TRUE(SameName("AZ", "az"));
}

TEST(IniLines, OrderKnowsNoCase)
{
    std::set<std::string, NameOrder> names = {"b", "A", "a", "C", "B"};
    EXPECT_EQ((std::set<std::string>(names.begin(), names.end())), (std::set<std::string>{"A", "b", "C"}));
    EXPECT_EQ(*names.begin(), "A");
    EXPECT_TRUE(names.contains(std::string_view("c")));
}

TEST(IniLines, TrimsBlanksTabulatorsAndReturns)
{
    EXPECT_EQ(TrimLine(" \ta b\t \r"), "a b");
    EXPECT_EQ(TrimLine(" \t\r"), "");
    EXPECT_EQ(TrimLine(""), "");
}

TEST(IniLines, CutsBetweenCharacters)
{
    EXPECT_EQ(FirstCharacters("abc", 2), "ab");
    EXPECT_EQ(FirstCharacters("abc", 3), "abc");
    EXPECT_EQ(FirstCharacters("abc", 4), "abc");
    EXPECT_EQ(FirstCharacters("abc", 0), "");
    EXPECT_EQ(FirstCharacters("a\xC3\xA4"
                              "b",
                              2),
              "a\xC3\xA4");
}

TEST(IniLines, ACharacterBeyondTheFirstPlaneCountsTwice)
{
    const std::string face = "\xF0\x9F\x98\x80";
    EXPECT_EQ(FirstCharacters(face + "a", 1), "");
    EXPECT_EQ(FirstCharacters(face + "a", 2), face);
    EXPECT_EQ(FirstCharacters(face + "a", 3), face + "a");
}

TEST(IniLines, ABrokenCharacterAtTheEndStaysInside) { EXPECT_EQ(FirstCharacters("a\xF0", 9), "a\xF0"); }

}  // namespace
}  // namespace folioscope
