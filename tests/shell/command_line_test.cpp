#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/command_line.h"

namespace folioscope {
namespace {

TEST(CommandLine, OfNoWordsSaysNothing)
{
    for (const std::string line : {"", " ", "    "}) {
        const CommandLine parsed = ParseCommandLine(line);
        EXPECT_EQ(parsed.strSearch + parsed.strReloadNode + parsed.strStartFile, "");
        EXPECT_FALSE(parsed.bolFromFSV || parsed.bolExtract || parsed.help || parsed.version);
    }
}

TEST(CommandLine, KnowsItsSwitchesInAnyLetterCase)
{
    for (const std::string line :
         {"/search=Über /reload=a^B /fromFSV /extract", "/SEARCH=Über /Reload=a^B /FROMfsv /Extract"}) {
        const CommandLine parsed = ParseCommandLine(line);
        EXPECT_EQ(parsed.strSearch, "ÜBER");
        EXPECT_EQ(parsed.strReloadNode, "a^B");
        EXPECT_TRUE(parsed.bolFromFSV && parsed.bolExtract);
        EXPECT_EQ(parsed.strStartFile, "");
    }
}

TEST(CommandLine, TakesTheLastFile)
{
    EXPECT_EQ(ParseCommandLine("one.afp two.afp").strStartFile, "two.afp");
    EXPECT_EQ(ParseCommandLine("one.afp \"with blank.afp\"").strStartFile, "with blank.afp");
    EXPECT_EQ(ParseCommandLine("\"with blank.afp\" one.afp").strStartFile, "one.afp");
    EXPECT_EQ(ParseCommandLine("\"never closed").strStartFile, "never closed");
}

TEST(CommandLine, AWordWithASlashIsAFileUnlessItIsASwitch)
{
    EXPECT_EQ(ParseCommandLine("/home/me/a.afp").strStartFile, "/home/me/a.afp");
    EXPECT_EQ(ParseCommandLine("/extracts").strStartFile, "/extracts");
    EXPECT_FALSE(ParseCommandLine("/extracts").bolExtract);
    EXPECT_EQ(ParseCommandLine("/fromFSV.afp").strStartFile, "/fromFSV.afp");
}

TEST(CommandLine, ATermEndsAtTheBlank)
{
    const CommandLine parsed = ParseCommandLine("/search=ab cd");
    EXPECT_EQ(parsed.strSearch, "AB");
    EXPECT_EQ(parsed.strStartFile, "cd");
}

TEST(CommandLine, OfArgumentsPutsBlanksInQuotes)
{
    const auto join = [](std::vector<const char*> words) {
        words.insert(words.begin(), "fsv");
        return JoinArguments(static_cast<int>(words.size()), words.data());
    };
    EXPECT_EQ(join({}), "");
    EXPECT_EQ(join({"/home/my files/a.afp", "/extract"}), "\"/home/my files/a.afp\" /extract");
    EXPECT_EQ(join({"/search=ab cd", "b.afp"}), "/search=ab cd b.afp");
}

}  // namespace
}  // namespace folioscope
