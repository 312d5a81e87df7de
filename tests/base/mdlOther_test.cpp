#include "base/mdlOther.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <sys/stat.h>

#include "base/processes.h"
#include "support/temporary_file.h"

namespace folioscope::mdlOther {
namespace {

namespace fs = std::filesystem;
using Bytes = BoundedArray<std::uint8_t>;
using Integers = BoundedArray<std::int16_t>;
using Texts = BoundedArray<std::string>;
using test::ScopedCurrentFolder;
using test::ScopedVariable;

TEST(ChangeString, ReplacesOnlyTheFirst)
{
    EXPECT_EQ(ChangeString("%1 and %1", "%1", "x"), "x and %1");
    EXPECT_EQ(ChangeString("a%1", "%1", "%1%1"), "a%1%1");
    EXPECT_EQ(ChangeString("abc", "b", ""), "ac");
    EXPECT_EQ(ChangeString("abc", "B", "x"), "abc");
    EXPECT_EQ(ChangeString("abc", "d", "x"), "abc");
    EXPECT_EQ(ChangeString("", "a", "x"), "");
}

TEST(FillArray, CopiesFromTheIndexOn)
{
    Bytes bytes = {{0, 0, 0, 0}, 0};
    FillArray<std::uint8_t>(1, bytes, {7, 255});
    EXPECT_EQ(bytes.elements, (std::vector<std::uint8_t>{0, 7, 255, 0}));

    Integers integers = {{0, 0, 0}, 5};
    FillArray<std::int16_t>(6, integers, {-32768, 32767});
    EXPECT_EQ(integers.elements, (std::vector<std::int16_t>{0, -32768, 32767}));
    FillArray<std::int16_t>(5, integers, {});
    EXPECT_EQ(integers.elements, (std::vector<std::int16_t>{0, -32768, 32767}));
}

TEST(FillArray, StaysInTheArray)
{
    Bytes bytes = {{0, 0}, 1};
    FillArray<std::uint8_t>(2, bytes, {1, 2, 3});
    EXPECT_EQ(bytes.elements, (std::vector<std::uint8_t>{0, 1}));
    FillArray<std::uint8_t>(3, bytes, {9});
    FillArray<std::uint8_t>(0, bytes, {9, 9});
    FillArray<std::uint8_t>(std::numeric_limits<int>::min(), bytes, {9});
    FillArray<std::uint8_t>(std::numeric_limits<int>::max(), bytes, {9});
    EXPECT_EQ(bytes.elements, (std::vector<std::uint8_t>{0, 1}));

    Bytes low = {{0}, std::numeric_limits<int>::min()};
    FillArray<std::uint8_t>(std::numeric_limits<int>::max(), low, {9});
    EXPECT_EQ(low.elements, std::vector<std::uint8_t>{0});
    Bytes none;
    FillArray<std::uint8_t>(0, none, {9});
    EXPECT_TRUE(none.elements.empty());
}

TEST(FindInArray, GivesTheFirstIndex)
{
    const Integers integers = {{5, -6, 7, -6}, 1};
    EXPECT_EQ(FindInArray(integers, std::int16_t{5}), 1);
    EXPECT_EQ(FindInArray(integers, std::int16_t{-6}), 2);
    const Texts texts = {{"a", "b", "b"}, 10};
    EXPECT_EQ(FindInArray(texts, std::string_view("b")), 11);
    EXPECT_EQ(FindInArray(texts, std::string_view("B")), 0);
}

TEST(FindInArray, NoMatchIsZeroAndSoIsTheFirstOfAnArrayFromZero)
{
    EXPECT_EQ(FindInArray(Integers{{5, 6}, 1}, std::int16_t{7}), 0);
    EXPECT_EQ(FindInArray(Integers{{5, 6}, 0}, std::int16_t{7}), 0);
    EXPECT_EQ(FindInArray(Integers{{5, 6}, 0}, std::int16_t{5}), 0);
    EXPECT_EQ(FindInArray(Integers{}, std::int16_t{5}), 0);
}

TEST(AddToAnyArray, GrowsByOneAndKeepsTheContent)
{
    BoundedArray<TaggedValue> values;
    AddToAnyArray(values, std::int32_t{1});
    AddToAnyArray(values, std::string("two"));
    AddToAnyArray(values, NullValue());
    ASSERT_EQ(values.elements.size(), 3U);
    EXPECT_EQ(std::get<std::int32_t>(values.elements[0]), 1);
    EXPECT_EQ(std::get<std::string>(values.elements[1]), "two");
    EXPECT_TRUE(std::holds_alternative<NullValue>(values.elements[2]));
    AddToAnyArray(values, TaggedValue(values.elements[1]));
    EXPECT_EQ(std::get<std::string>(values.elements[3]), "two");
}

TEST(Extract, GivesTheFieldCountedFromOne)
{
    EXPECT_EQ(Extract("a,b,c", ",", 1), "a");
    EXPECT_EQ(Extract("a,b,c", ",", 2), "b");
    EXPECT_EQ(Extract("a,b,c", ",", 3), "c");
    EXPECT_EQ(Extract("a,b,c", ",", 4), "");
    EXPECT_EQ(Extract("a,,c", ",", 2), "");
    EXPECT_EQ(Extract("a,,c", ",", 3), "c");
    EXPECT_EQ(Extract(",a", ",", 1), "");
    EXPECT_EQ(Extract(",a", ",", 2), "a");
    EXPECT_EQ(Extract("abc", ",", 1), "abc");
    EXPECT_EQ(Extract("", ",", 1), "");
}

TEST(Extract, DividesAtTheFirstCharacterOfTheDivider)
{
    EXPECT_EQ(Extract("a;b,c", ";,", 2), "b,c");
    EXPECT_EQ(Extract("a\xC3\xA4"
                      "b\xC3\xB6"
                      "c",
                      "\xC3\xA4\xC3\xB6", 2),
              "b\xC3\xB6"
              "c");
}

TEST(Extract, WithoutAPartOrADividerThereIsNothing)
{
    EXPECT_EQ(Extract("a,b", ",", 0), "");
    EXPECT_EQ(Extract("a,b", ",", -1), "");
    EXPECT_EQ(Extract("a,b", ",", std::numeric_limits<int>::max()), "");
    EXPECT_EQ(Extract("a,b", "", 1), "");
}

TEST(GetTempDir, EndsWithOneSlash)
{
    for (const auto* path : {"/t/u", "/t/u/", "/t/u//"}) {
        const ScopedVariable variable("TMPDIR", path);
        EXPECT_EQ(GetTempDir(), "/t/u/");
    }
    {
        const ScopedVariable variable("TMPDIR", "/");
        EXPECT_EQ(GetTempDir(), "/");
    }
    const ScopedVariable variable("TMPDIR", std::nullopt);
    EXPECT_EQ(GetTempDir(), "/tmp/");
}

class MakeDirTest : public testing::Test {
protected:
    test::TemporaryFolder folder;
    ScopedCurrentFolder current{folder.Path()};
};

TEST_F(MakeDirTest, MakesAllParents)
{
    EXPECT_TRUE(MakeDir(folder / "a/b/c"));
    EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
    EXPECT_TRUE(MakeDir(folder / "a/b/c"));
    EXPECT_TRUE(MakeDir(folder / "d/"));
    EXPECT_TRUE(fs::is_directory(folder / "d"));
    EXPECT_TRUE(MakeDir(folder / "e//f"));
    EXPECT_TRUE(fs::is_directory(folder / "e/f"));
}

TEST_F(MakeDirTest, BothSlashesDivide)
{
    EXPECT_TRUE(MakeDir(folder.Path() + "\\a\\b/c\\"));
    EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
}

TEST_F(MakeDirTest, ARelativePathBeginsAtTheCurrentFolder)
{
    EXPECT_TRUE(MakeDir("a/b"));
    EXPECT_TRUE(fs::is_directory(folder / "a/b"));
    fs::current_path("/");
    EXPECT_TRUE(MakeDir(""));
}

TEST_F(MakeDirTest, TheCurrentFolderMovesToTheLastThatWasThere)
{
    fs::create_directories(folder / "a/b");
    EXPECT_TRUE(MakeDir(folder / "a/b/c/d"));
    EXPECT_EQ(fs::current_path(), fs::path(folder / "a/b"));
    EXPECT_TRUE(MakeDir(folder / "a/b/c/d"));
    EXPECT_EQ(fs::current_path(), fs::path(folder / "a/b/c/d"));
}

TEST_F(MakeDirTest, IsFalseOnlyIfAMakingFails)
{
    folder.File("file", "mine");
    EXPECT_FALSE(MakeDir(folder / "file"));
    EXPECT_FALSE(MakeDir(folder / "file/a"));
    EXPECT_EQ(test::ReadWhole(folder / "file"), "mine");
    EXPECT_FALSE(MakeDir("/proc/folioscope"));
    // Another failure than a missing folder ends the scan, and counts for nothing.
    EXPECT_TRUE(MakeDir(folder / std::string(300, 'x') + "/a"));
    EXPECT_TRUE(fs::is_empty(folder / "file") || !fs::exists(folder / "file/a"));
}

TEST_F(MakeDirTest, AFolderWithoutPermissionEndsTheScan)
{
    fs::create_directory(folder / "closed");
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return MakeDir(folder / "closed/a") ? 1 : 0; }), 1);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return MakeDir(folder / "new") ? 1 : 0; }), 0);
    ::chmod(folder.Path().c_str(), 0700);
    ::chmod((folder / "closed").c_str(), 0700);
    EXPECT_TRUE(fs::is_empty(folder / "closed"));
}

class AllUsersTest : public MakeDirTest {
protected:
    ScopedVariable home{"HOME", folder / "home"};
    ScopedVariable data{"XDG_DATA_HOME", std::nullopt};
    mdlRegistry registry{folder / "registry.ini"};
    static constexpr std::string_view kShellFolders =
        R"(HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders)";
};

TEST_F(AllUsersTest, LiesInTheUsersDataFolder)
{
    EXPECT_EQ(GetAllUsersAppDir(registry), folder / "home/.local/share/Marrowgate");
    EXPECT_TRUE(fs::is_directory(folder / "home/.local/share/Marrowgate"));
    const ScopedVariable other("XDG_DATA_HOME", folder / "data");
    EXPECT_EQ(GetAllUsersAppDir(registry), folder / "data/Marrowgate");
    EXPECT_TRUE(fs::is_directory(folder / "data/Marrowgate"));
}

TEST_F(AllUsersTest, TheStoreMayNameAnotherFolder)
{
    ASSERT_EQ(registry.SetRegistryValue(kShellFolders, "Common AppData", folder / "shared"), 0);
    EXPECT_EQ(GetAllUsersAppDir(registry), folder / "shared/Marrowgate");
    EXPECT_TRUE(fs::is_directory(folder / "shared/Marrowgate"));
    EXPECT_FALSE(fs::exists(folder / "home"));
}

TEST_F(AllUsersTest, ANumberNamesNoFolder)
{
    ASSERT_EQ(registry.SetRegistryValue(kShellFolders, "Common AppData", std::int32_t{5}), 0);
    EXPECT_EQ(GetAllUsersAppDir(registry), folder / "home/.local/share/Marrowgate");
}

TEST_F(AllUsersTest, WithoutAHomeThereIsNone)
{
    const ScopedVariable none("HOME", std::nullopt);
    EXPECT_EQ(GetAllUsersAppDir(registry), "");
    EXPECT_FALSE(fs::exists("/Marrowgate"));
}

}  // namespace
}  // namespace folioscope::mdlOther
