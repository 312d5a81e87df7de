// What the words of a command line mean. The messages for wrong ones are tested with the program.

#include <gtest/gtest.h>

#include "dump_options.h"

namespace folioscope::test {

namespace {

DumpOptions Parsed(std::vector<std::string> words)
{
    words.insert(words.begin(), "fsv-dump");
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return ParseOptions(static_cast<int>(words.size()), pointers.data());
}

}  // namespace

TEST(DumpOptions, LeaveTheSettingsAtTheirDefaults)
{
    const DumpOptions options = Parsed({"file"});
    EXPECT_EQ(options.fault, "");
    EXPECT_EQ(options.files, std::vector<std::string>{"file"});
    EXPECT_EQ(options.output, "");
    EXPECT_FALSE(options.save || options.tree || options.messages || options.help || options.version);
    const Settings defaults;
    EXPECT_EQ(options.settings.Codepage, defaults.Codepage);
    EXPECT_EQ(options.settings.CodepageNOP, defaults.CodepageNOP);
    EXPECT_EQ(options.settings.CodepageTLE, defaults.CodepageTLE);
    EXPECT_EQ(options.settings.Language, defaults.Language);
    EXPECT_EQ(options.settings.CodePageAutoDetect, 1);
    EXPECT_EQ(options.settings.DefaultMeasurement, 0);
}

TEST(DumpOptions, CodePageIsThatOfNopAndTleToo)
{
    const Settings settings = Parsed({"--code-page", "500", "file"}).settings;
    EXPECT_EQ(settings.Codepage, 500);
    EXPECT_EQ(settings.CodepageNOP, 500);
    EXPECT_EQ(settings.CodepageTLE, 500);
}

TEST(DumpOptions, CodePagesOfNopAndTleStandAlone)
{
    for (const auto& words : {std::vector<std::string>{"--code-page-nop", "273", "--code-page=500", "file"},
                              std::vector<std::string>{"--code-page=500", "--code-page-nop", "273", "file"}}) {
        const Settings settings = Parsed(words).settings;
        EXPECT_EQ(settings.Codepage, 500);
        EXPECT_EQ(settings.CodepageNOP, 273);
        EXPECT_EQ(settings.CodepageTLE, 500);
    }
    const Settings settings = Parsed({"--code-page-tle=1252", "file"}).settings;
    EXPECT_EQ(settings.Codepage, 37);
    EXPECT_EQ(settings.CodepageNOP, 37);
    EXPECT_EQ(settings.CodepageTLE, 1252);
}

TEST(DumpOptions, NoAutoCodePageTurnsDetectionOff)
{
    EXPECT_EQ(Parsed({"--no-auto-code-page", "file"}).settings.CodePageAutoDetect, 0);
}

TEST(DumpOptions, MeasurementIsANumberFrom0To6)
{
    for (const std::int32_t unit : {0, 1, 2, 3, 4, 5, 6}) {
        const DumpOptions options = Parsed({"--measurement", std::to_string(unit), "file"});
        EXPECT_EQ(options.fault, "");
        EXPECT_EQ(options.settings.DefaultMeasurement, unit);
    }
}

TEST(DumpOptions, LanguageIsTheNumberOfTheSetting)
{
    EXPECT_EQ(Parsed({"--language", "en", "file"}).settings.Language, 1);
    EXPECT_EQ(Parsed({"--language", "de", "file"}).settings.Language, 2);
    EXPECT_EQ(Parsed({"--language=fr", "file"}).settings.Language, 3);
}

TEST(DumpOptions, TheLastOfTwoCountsSoThatAnAliasCanBeOverruled)
{
    const DumpOptions options = Parsed({"--language=de", "--code-page=500", "file", "--language=fr", "--code-page=37"});
    EXPECT_EQ(options.fault, "");
    EXPECT_EQ(options.settings.Language, 3);
    EXPECT_EQ(options.settings.Codepage, 37);
}

TEST(DumpOptions, OutputHasFourForms)
{
    for (const auto& words : {std::vector<std::string>{"-o", "out", "file"},
                              {"-oout", "file"},
                              {"--output", "out", "file"},
                              {"--output=out", "file"}}) {
        const DumpOptions options = Parsed(words);
        EXPECT_EQ(options.fault, "");
        EXPECT_EQ(options.output, "out");
        EXPECT_EQ(options.files, std::vector<std::string>{"file"});
    }
    EXPECT_EQ(Parsed({"--output==", "file"}).output, "=");
    EXPECT_EQ(Parsed({"-o-", "file"}).output, "-");
    EXPECT_EQ(Parsed({"-o", "-", "file"}).output, "-");
    EXPECT_EQ(Parsed({"-o", "--tree", "file"}).output, "--tree");
}

TEST(DumpOptions, StandBeforeBetweenAndBehindFiles)
{
    const DumpOptions options = Parsed({"--messages", "a", "--tree", "b"});
    EXPECT_EQ(options.fault, "");
    EXPECT_EQ(options.files, (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(options.messages);
    EXPECT_TRUE(options.tree);
}

TEST(DumpOptions, EndAtTwoHyphens)
{
    const DumpOptions options = Parsed({"--", "--tree", "-", "--", "-o"});
    EXPECT_EQ(options.fault, "");
    EXPECT_EQ(options.files, (std::vector<std::string>{"--tree", "-", "--", "-o"}));
    EXPECT_FALSE(options.tree);
}

TEST(DumpOptions, HyphenIsAFile) { EXPECT_EQ(Parsed({"-"}).files, std::vector<std::string>{"-"}); }

TEST(DumpOptions, WhatComesFirstOfHelpVersionAndFaultIsDone)
{
    const DumpOptions help = Parsed({"--help", "--bad", "--language=de"});
    EXPECT_TRUE(help.help);
    EXPECT_EQ(help.fault, "");
    EXPECT_EQ(help.settings.Language, 2);
    EXPECT_TRUE(Parsed({"-h"}).help);
    EXPECT_TRUE(Parsed({"-V"}).version);
    EXPECT_EQ(Parsed({"--version", "--bad"}).fault, "");
    EXPECT_EQ(Parsed({"--bad", "--help"}).fault, "There is no option --bad.");
    EXPECT_EQ(Parsed({"--bad", "--worse"}).fault, "There is no option --bad.");
}

TEST(DumpOptions, FaultsAreToldInTheLanguageThatFollows)
{
    EXPECT_EQ(Parsed({"--bad", "--language=de"}).fault, "Es gibt keine Option --bad.");
    EXPECT_EQ(Parsed({"--language=fr", "--bad"}).fault, "Il n'y a pas d'option --bad.");
}

TEST(DumpOptions, FaultsAreOnOneLine)
{
    EXPECT_EQ(Parsed({"--a\nb\x1B[31m\xFF"}).fault, "There is no option --a␊b␛[31m\uFFFD.");
}

TEST(DumpOptions, HelpNamesEveryOptionInEveryLanguage)
{
    for (const Language language : {Language::English, Language::German, Language::French})
        for (const char* option : {"-o, --output OUT", "--save", "--tree", "--messages", "--language en|de|fr",
                                   "--code-page N", "--code-page-nop N", "--code-page-tle N", "--no-auto-code-page",
                                   "--measurement 0..6", "-h, --help", "-V, --version"})
            EXPECT_NE(HelpText(Labels(language)).find(option), std::string::npos) << option;
}

}  // namespace folioscope::test
