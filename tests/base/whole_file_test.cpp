#include "base/whole_file.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

#include "base/processes.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

namespace fs = std::filesystem;
using test::ReadWhole;

constexpr std::size_t kLimit = 1 << 20;

mode_t ModeOf(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST(WholeFile, ReadsAllOfIt)
{
    const test::TemporaryFolder folder;
    const std::string content = std::string(200'000, 'x') + '\0' + "end";
    const auto read = ReadWholeFile(folder.File("a", content), kLimit);
    EXPECT_EQ(read.error, 0);
    EXPECT_EQ(read.text, content);
    EXPECT_EQ(ReadWholeFile(folder.File("empty", ""), kLimit).error, 0);
}

TEST(WholeFile, RefusesWhatIsTooLong)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "12345");
    EXPECT_EQ(ReadWholeFile(path, 5).text, "12345");
    const auto read = ReadWholeFile(path, 4);
    EXPECT_EQ(read.error, EFBIG);
    EXPECT_EQ(read.text, "");
}

TEST(WholeFile, OnlyRegularFilesAreRead)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(ReadWholeFile(folder / "none", kLimit).error, ENOENT);
    EXPECT_EQ(ReadWholeFile(folder.Path(), kLimit).error, EINVAL);
    EXPECT_EQ(ReadWholeFile("/dev/zero", kLimit).error, EINVAL);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadWholeFile(folder / "pipe", kLimit).error, EINVAL);
}

TEST(WholeFile, WritesANewFileAndLeavesNothingBeside)
{
    const test::TemporaryFolder folder;
    ASSERT_EQ(ReplaceWholeFile(folder / "a", folder / "a.new", "text", 0600), 0);
    EXPECT_EQ(ReadWhole(folder / "a"), "text");
    EXPECT_EQ(ModeOf(folder / "a"), 0600U);
    EXPECT_FALSE(fs::exists(folder / "a.new"));
}

TEST(WholeFile, AReplacedFileHandsOnItsPermissions)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "old and longer");
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    ASSERT_EQ(ReplaceWholeFile(path, path + ".new", "new", 0600), 0);
    EXPECT_EQ(ReadWhole(path), "new");
    EXPECT_EQ(ModeOf(path), 0640U);
}

TEST(WholeFile, ReadersOfTheOldFileKeepIt)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "old");
    fs::create_hard_link(path, folder / "held");
    ASSERT_EQ(ReplaceWholeFile(path, path + ".new", "new", 0600), 0);
    EXPECT_EQ(ReadWhole(folder / "held"), "old");
}

TEST(WholeFile, WhatAKilledProcessLeftIsReplaced)
{
    const test::TemporaryFolder folder;
    folder.File("a.new", "half a te");
    ASSERT_EQ(ReplaceWholeFile(folder / "a", folder / "a.new", "text", 0600), 0);
    EXPECT_EQ(ReadWhole(folder / "a"), "text");
    EXPECT_FALSE(fs::exists(folder / "a.new"));
}

TEST(WholeFile, ALinkInTheTemporaryPlaceIsNotFollowed)
{
    const test::TemporaryFolder folder;
    const std::string other = folder.File("other", "mine");
    fs::create_symlink(other, folder / "a.new");
    ASSERT_EQ(ReplaceWholeFile(folder / "a", folder / "a.new", "text", 0600), 0);
    EXPECT_EQ(ReadWhole(other), "mine");
    EXPECT_EQ(ReadWhole(folder / "a"), "text");
}

TEST(WholeFile, AFailedWriteLeavesTheOldFile)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "old");
    const int result = test::InChild([&] {
        const rlimit limit = {1000, 1000};
        std::signal(SIGXFSZ, SIG_IGN);
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 255;
        return ReplaceWholeFile(path, path + ".new", std::string(5000, 'x'), 0600);
    });
    EXPECT_EQ(result, EFBIG);
    EXPECT_EQ(ReadWhole(path), "old");
    EXPECT_FALSE(fs::exists(path + ".new"));
}

TEST(WholeFile, AFolderIsNotReplaced)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder / "a");
    EXPECT_EQ(ReplaceWholeFile(folder / "a", folder / "a.new", "text", 0600), EINVAL);
    EXPECT_TRUE(fs::is_directory(folder / "a"));
    EXPECT_NE(ReplaceWholeFile(folder / "none/a", folder / "none/a.new", "text", 0600), 0);
}

TEST(WholeFile, GoesThroughChainsOfLinks)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/b", folder / "a");
    fs::create_symlink("../c", folder / "sub/b");
    EXPECT_EQ(BehindLinks(folder / "a"), folder / "sub/../c");
    EXPECT_EQ(BehindLinks(folder / "sub"), folder / "sub");
    fs::create_symlink("/x/y", folder / "absolute");
    EXPECT_EQ(BehindLinks(folder / "absolute"), "/x/y");
}

TEST(WholeFile, ALinkToItselfEnds)
{
    const test::TemporaryFolder folder;
    fs::create_symlink("a", folder / "a");
    EXPECT_EQ(BehindLinks(folder / "a"), folder / "a");
}

TEST(WholeFile, FolderOfAFile)
{
    EXPECT_EQ(FolderOf("/a/b"), "/a");
    EXPECT_EQ(FolderOf("/b"), "/");
    EXPECT_EQ(FolderOf("b"), ".");
    EXPECT_EQ(FolderOf("a/b"), "a");
}

TEST(WholeFile, MakesFoldersForTheUserAlone)
{
    const test::TemporaryFolder folder;
    ASSERT_EQ(MakeFolders(folder / "a/b/c"), 0);
    EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
    EXPECT_EQ(ModeOf(folder / "a"), 0700U);
    EXPECT_EQ(MakeFolders(folder / "a/b/c"), 0);
    EXPECT_EQ(MakeFolders("/"), 0);
    EXPECT_EQ(MakeFolders("."), 0);
}

TEST(WholeFile, AFileInTheWayOfAFolder)
{
    const test::TemporaryFolder folder;
    folder.File("a", "text");
    EXPECT_EQ(MakeFolders(folder / "a"), ENOTDIR);
    EXPECT_EQ(MakeFolders(folder / "a/b"), ENOTDIR);
    EXPECT_EQ(ReadWhole(folder / "a"), "text");
}

TEST(WholeFile, TellsWhyAParentCouldNotBeMade)
{
    const test::TemporaryFolder folder;
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return MakeFolders(folder / "a/b"); }), EACCES);
    ::chmod(folder.Path().c_str(), 0700);
}

TEST(WholeFile, KeepsADamagedFileUnderAFreeName)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "third");
    folder.File("a.damaged", "first");
    folder.File("a.damaged-2", "second");
    ASSERT_EQ(KeepBeside(path), 0);
    EXPECT_EQ(ReadWhole(path + ".damaged"), "first");
    EXPECT_EQ(ReadWhole(path + ".damaged-2"), "second");
    EXPECT_EQ(ReadWhole(path + ".damaged-3"), "third");
}

TEST(WholeFile, KeepsADamagedFileOnce)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("a", "text");
    ASSERT_EQ(KeepBeside(path), 0);
    ASSERT_EQ(KeepBeside(path), 0);
    EXPECT_TRUE(fs::exists(path + ".damaged"));
    EXPECT_FALSE(fs::exists(path + ".damaged-2"));
}

TEST(FileLock, IsHeldAgainstOtherProcesses)
{
    // Each child adds 1 to the number in the file; without the lock some of them would read the same number.
    constexpr int kChildren = 4, kRounds = 25;
    const test::TemporaryFolder folder;
    const std::string path = folder.File("count", "0");
    std::vector<pid_t> children;
    children.reserve(kChildren);
    for (int i = 0; i < kChildren; ++i) {
        children.push_back(test::StartChild([&] {
            for (int round = 0; round < kRounds; ++round) {
                const FileLock lock(path + ".lock");
                if (lock.Error() != 0) return 1;
                const int count = std::stoi(ReadWholeFile(path, kLimit).text);
                if (ReplaceWholeFile(path, path + ".new", std::to_string(count + 1), 0600) != 0) return 2;
            }
            return 0;
        }));
    }
    for (const pid_t child : children) EXPECT_EQ(test::ResultOf(child), 0);
    EXPECT_EQ(ReadWhole(path), std::to_string(kChildren * kRounds));
}

TEST(FileLock, TellsThatItCouldNotBeTaken)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(FileLock(folder / "none/lock").Error(), ENOENT);
    EXPECT_EQ(FileLock(folder / "lock").Error(), 0);
}

TEST(FileLock, AnotherUsersLockFileWillDo)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("lock", "");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return FileLock(path).Error(); }), 0);
}

}  // namespace
}  // namespace folioscope
