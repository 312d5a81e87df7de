#include "base/mdlINIFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/temporary_file.h"

namespace folioscope::mdlINIFiles {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using test::ReadWhole;
using Names = std::vector<std::string>;

const std::string kFile = "; a remark\n"
                          "outside=0\n"
                          "[First]\n"
                          "One=1\n"
                          "  Two = second value \r\n"
                          ";Three=3\n"
                          "no key\n"
                          "Empty=\n"
                          "\n"
                          "[Second]\n"
                          "One=other\n";

class IniFile : public testing::Test {
protected:
    std::string Value(std::string_view section, std::string_view key) const
    {
        return GetPrivateProfile(path, section, key, "default");
    }
    bool Write(std::string_view section, std::string_view key, std::string_view value) const
    {
        return WritePrivateProfile(path, section, key, value);
    }

    test::TemporaryFolder folder;
    std::string path = folder.File("a.ini", kFile);
};

TEST_F(IniFile, GivesTheValueOfAKey)
{
    EXPECT_EQ(Value("First", "One"), "1");
    EXPECT_EQ(Value("First", "Two"), "second value");
    EXPECT_EQ(Value("Second", "One"), "other");
    EXPECT_EQ(Value("First", "Empty"), "");
}

TEST_F(IniFile, GivesTheDefaultForWhatIsNotThere)
{
    EXPECT_EQ(Value("First", "Three"), "default");
    EXPECT_EQ(Value("First", ";Three"), "default");
    EXPECT_EQ(Value("First", "no key"), "default");
    EXPECT_EQ(Value("First", "outside"), "default");
    EXPECT_EQ(Value("Second", "Two"), "default");
    EXPECT_EQ(Value("Third", "One"), "default");
    EXPECT_EQ(GetPrivateProfile(folder / "none.ini", "First", "One", "default"), "default");
    EXPECT_EQ(GetPrivateProfile(folder.Path(), "First", "One", "default"), "default");
}

TEST_F(IniFile, NamesMatchInAnyLetterCase)
{
    EXPECT_EQ(Value("fIRST", "oNE"), "1");
    EXPECT_EQ(GetKeyList(path, "SECOND"), Names{"One"});
}

TEST_F(IniFile, TheFirstOfTwoHolds)
{
    folder.File("a.ini", "[a]\nk=1\nk=2\n[b]\n[A]\nk=3\nl=4\n");
    EXPECT_EQ(Value("a", "k"), "1");
    EXPECT_EQ(Value("a", "l"), "default");
}

TEST_F(IniFile, QuotesAroundAValueDoNotCount)
{
    folder.File("a.ini", "[a]\nd=\" x \"\ns='y'\nhalf=\"z\nmixed=\"z'\none=\"\nequal=a=b\n");
    EXPECT_EQ(Value("a", "d"), " x ");
    EXPECT_EQ(Value("a", "s"), "y");
    EXPECT_EQ(Value("a", "half"), "\"z");
    EXPECT_EQ(Value("a", "mixed"), "\"z'");
    EXPECT_EQ(Value("a", "one"), "\"");
    EXPECT_EQ(Value("a", "equal"), "a=b");
}

TEST_F(IniFile, AMarkOfTheEncodingIsNoPartOfTheFirstLine)
{
    folder.File("a.ini", "\xEF\xBB\xBF[a]\nk=1\n");
    EXPECT_EQ(Value("a", "k"), "1");
    EXPECT_TRUE(Write("a", "k", "2"));
    EXPECT_EQ(ReadWhole(path), "\xEF\xBB\xBF[a]\nk=2\n");
}

TEST_F(IniFile, AValueHasRoomFor2048CharactersWithItsEnd)
{
    folder.File("a.ini", "[a]\nfits=" + std::string(2047, 'x') + "\nlong=" + std::string(2048, 'y') + "\n");
    EXPECT_EQ(Value("a", "fits"), std::string(2047, 'x'));
    EXPECT_EQ(Value("a", "long"), std::string(2047, 'y'));
    EXPECT_EQ(GetPrivateProfile(path, "a", "none", std::string(3000, 'z')), std::string(2047, 'z'));
}

TEST_F(IniFile, TheLimitCountsCharactersNotBytes)
{
    std::string umlauts;
    for (int i = 0; i < 2048; ++i) umlauts += "\xC3\xA4";
    folder.File("a.ini", "[a]\nk=" + umlauts + "\n");
    EXPECT_EQ(Value("a", "k"), umlauts.substr(0, std::size_t{2} * 2047));
}

TEST_F(IniFile, ListsTheKeysInOrder)
{
    EXPECT_EQ(GetKeyList(path, "First"), (Names{"One", "Two", "Empty"}));
    EXPECT_EQ(GetKeyList(path, "Third"), Names{});
    EXPECT_EQ(GetKeyList(folder / "none.ini", "First"), Names{});
    folder.File("a.ini", "[a]\n[b]\nx=1");
    EXPECT_EQ(GetKeyList(path, "a"), Names{});
    EXPECT_EQ(GetKeyList(path, "b"), Names{"x"});
}

TEST_F(IniFile, AKeyWithoutANameEndsTheList)
{
    folder.File("a.ini", "[a]\nx=1\n=2\ny=3\n");
    EXPECT_EQ(GetKeyList(path, "a"), Names{"x"});
}

TEST_F(IniFile, TheListHasRoomFor4096CharactersWithItsEnds)
{
    // 4 names of 1,000 characters and their ends leave room for one of 90.
    std::string lines = "[a]\n";
    Names names;
    for (const char c : {'a', 'b', 'c', 'd'}) names.emplace_back(1000, c);
    for (const auto& name : names) lines += name + "=\n";

    folder.File("a.ini", lines + std::string(90, 'e') + "=\n");
    names.emplace_back(90, 'e');
    EXPECT_EQ(GetKeyList(path, "a"), names);

    folder.File("a.ini", lines + std::string(91, 'e') + "=\nf=\n");
    EXPECT_EQ(GetKeyList(path, "a"), names);
    folder.File("a.ini", lines + std::string(90, 'e') + "=\nf=\n");
    EXPECT_EQ(GetKeyList(path, "a"), names);
}

TEST_F(IniFile, ANameThatDoesNotFitEndsTheListEvenIfTheNextWould)
{
    const std::string face = "\xF0\x9F\x98\x80";  // two characters
    folder.File("a.ini", "[a]\n" + std::string(4091, 'a') + "=\n" + face + face + "=\nb=\n");
    EXPECT_EQ(GetKeyList(path, "a"), (Names{std::string(4091, 'a'), face}));
    folder.File("a.ini", "[a]\n" + std::string(4090, 'a') + "=\n" + face + face + "=\nb=\n");
    EXPECT_EQ(GetKeyList(path, "a"), (Names{std::string(4090, 'a'), face}));
}

TEST_F(IniFile, AWriteReplacesTheValueAlone)
{
    EXPECT_TRUE(Write("first", "two", "x"));
    std::string expected = kFile;
    const std::string line = "  Two = second value ";
    expected.replace(expected.find(line), line.size(), "two=x");
    EXPECT_EQ(ReadWhole(path), expected);
    EXPECT_EQ(Value("First", "Two"), "x");
}

TEST_F(IniFile, ANewKeyStandsAtTheEndOfItsSection)
{
    folder.File("a.ini", "[a]\nk=1\n; remark\n\n\n[b]\nm=2");
    EXPECT_TRUE(Write("a", "l", "3"));
    EXPECT_EQ(ReadWhole(path), "[a]\nk=1\n; remark\nl=3\n\n\n[b]\nm=2\n");
    EXPECT_TRUE(Write("b", "n", "4"));
    EXPECT_EQ(ReadWhole(path), "[a]\nk=1\n; remark\nl=3\n\n\n[b]\nm=2\nn=4\n");
}

TEST_F(IniFile, ANewSectionStandsAtTheEnd)
{
    folder.File("a.ini", "[a]\nk=1");
    EXPECT_TRUE(Write("b", "k", "2"));
    EXPECT_EQ(ReadWhole(path), "[a]\nk=1\n[b]\nk=2\n");
    EXPECT_EQ(Value("a", "k"), "1");
    EXPECT_EQ(Value("b", "k"), "2");
}

TEST_F(IniFile, ASectionAtTheVeryEndTakesKeys)
{
    folder.File("a.ini", "[a]");
    EXPECT_TRUE(Write("a", "k", "1"));
    EXPECT_EQ(ReadWhole(path), "[a]\nk=1\n");
}

TEST_F(IniFile, LineBreaksStayAsTheyAre)
{
    folder.File("a.ini", "[a]\r\nk=1\r\n");
    EXPECT_TRUE(Write("a", "k", "2"));
    EXPECT_TRUE(Write("a", "l", "3"));
    EXPECT_TRUE(Write("b", "m", "4"));
    EXPECT_EQ(ReadWhole(path), "[a]\r\nk=2\r\nl=3\r\n[b]\r\nm=4\r\n");
}

TEST_F(IniFile, MakesTheFileButNotItsFolder)
{
    EXPECT_TRUE(WritePrivateProfile(folder / "new.ini", "a", "k", "1"));
    EXPECT_EQ(ReadWhole(folder / "new.ini"), "[a]\nk=1\n");
    EXPECT_FALSE(WritePrivateProfile(folder / "none/new.ini", "a", "k", "1"));
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST_F(IniFile, AnEmptyValueIsWritten)
{
    EXPECT_TRUE(Write("First", "One", ""));
    EXPECT_EQ(Value("First", "One"), "");
}

TEST_F(IniFile, WhatCouldNotBeReadBackIsRefused)
{
    EXPECT_FALSE(Write("", "k", "v"));
    EXPECT_FALSE(Write("a", "", "v"));
    EXPECT_FALSE(Write("a", " ", "v"));
    EXPECT_FALSE(Write("a", "k=l", "v"));
    EXPECT_FALSE(Write("a", ";k", "v"));
    EXPECT_FALSE(Write("a", "[k]", "v"));
    EXPECT_FALSE(Write("a", "k", "v\nw=1"));
    EXPECT_FALSE(Write("a", "k\r", "v"));
    EXPECT_FALSE(Write("a\n[b", "k", "v"));
    EXPECT_FALSE(Write("a", "k", std::string_view("v\0w", 3)));
    EXPECT_EQ(ReadWhole(path), kFile);
}

TEST_F(IniFile, WhatIsNoFileIsNotWritten)
{
    EXPECT_FALSE(WritePrivateProfile(folder.Path(), "a", "k", "v"));
    EXPECT_FALSE(WritePrivateProfile("/dev/null", "a", "k", "v"));
}

TEST_F(IniFile, AWriteLeavesNothingBeside)
{
    EXPECT_TRUE(Write("First", "One", "2"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST_F(IniFile, ALinkedFileStaysLinked)
{
    fs::create_symlink("a.ini", folder / "link.ini");
    EXPECT_TRUE(WritePrivateProfile(folder / "link.ini", "First", "One", "2"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.ini"));
    EXPECT_EQ(Value("First", "One"), "2");
}

TEST_F(IniFile, AnyBytesCanBeRead)
{
    folder.File("a.ini", "[a\n[]\n[ b ]\n\0=\xFF\nk=\xC3\n="s);
    EXPECT_EQ(Value("b", "k"), "\xC3");
    EXPECT_EQ(Value("b", ""), "");
    EXPECT_EQ(Value("a", "k"), "default");
}

}  // namespace
}  // namespace folioscope::mdlINIFiles
