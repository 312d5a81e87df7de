#include <gtest/gtest.h>

#include <string>

#include "shell/recent_files.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

std::string All(const RecentFiles& files)
{
    std::string all;
    for (std::size_t i = 0; i < RecentFiles::kPlaces; ++i) all += files[i] + '|';
    return all;
}

TEST(RecentFiles, PutsTheNewestFirst)
{
    RecentFiles files;
    for (const char* const file : {"a", "b", "c"}) files.Add(file);
    EXPECT_EQ(All(files), "c|b|a|||||||");
}

TEST(RecentFiles, KeepsNineAndNoneTwice)
{
    RecentFiles files;
    for (const char* const file : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}) files.Add(file);
    EXPECT_EQ(All(files), "10|9|8|7|6|5|4|3|2|");
    files.Add("5");
    EXPECT_EQ(All(files), "5|10|9|8|7|6|4|3|2|");
    files.Add("5");
    EXPECT_EQ(All(files), "5|10|9|8|7|6|4|3|2|");
    files.Add("2");
    EXPECT_EQ(All(files), "2|5|10|9|8|7|6|4|3|");
}

TEST(RecentFiles, ComparesWithoutLetterCase)
{
    RecentFiles files;
    for (const char* const file : {"/Home/Ä.afp", "b", "/home/ä.AFP"}) files.Add(file);
    EXPECT_EQ(All(files), "/home/ä.AFP|b||||||||");
}

TEST(RecentFiles, ComeBackFromTheStore)
{
    const test::TemporaryFolder folder;
    clsSillyFunctions store(folder / "registry.ini");
    RecentFiles files, again;
    again.Add("gone");
    for (const char* const file : {"one", "two with blank", "/three"}) files.Add(file);
    files.Write(store);
    again.Read(store);
    EXPECT_EQ(All(again), All(files));
    EXPECT_EQ(All(again), "/three|two with blank|one|||||||");
}

TEST(RecentFileCaption, ShowsAShortPathWhole)
{
    EXPECT_EQ(RecentFileCaption(0, "/home/me/a.afp"), "&1 /home/me/a.afp");
    const std::string path(50, 'x');
    EXPECT_EQ(RecentFileCaption(8, path), "&9 " + path);  // 53 characters
}

TEST(RecentFileCaption, CutsTheMiddleOfALongOneAtItsFolders)
{
    EXPECT_EQ(RecentFileCaption(0, "/home/printing/archive/of/the/whole/last/year/run/statement.afp"),
              "&1 /home/printing/.../year/run/statement.afp");
    EXPECT_EQ(RecentFileCaption(0, "/home/printing/archive/of/the/whole/last/year/run/a.afp"),
              "&1 /home/printing/.../last/year/run/a.afp");
}

TEST(RecentFileCaption, CutsWithoutFoldersAtTwentyFiveCharacters)
{
    EXPECT_EQ(RecentFileCaption(0, std::string(30, 'a') + std::string(30, 'b')),
              "&1 " + std::string(22, 'a') + "..." + std::string(25, 'b'));
    std::string umlauts;
    for (int i = 0; i < 60; ++i) umlauts += "ä";
    EXPECT_EQ(RecentFileCaption(1, umlauts).size(), 3u + 2 * 22 + 3 + 2 * 25);
}

}  // namespace
}  // namespace folioscope
