#include "document/dump_file.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "document_support.h"

namespace folioscope {
namespace {

namespace fs = std::filesystem;
using test::ReadWhole;
using test::TemporaryFolder;

std::size_t EntriesOf(const std::string& folder)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder)) ++count;
    return count;
}

unsigned ModeOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

class Mask {
public:
    explicit Mask(mode_t mask) : before_(::umask(mask)) {}
    Mask(const Mask&) = delete;
    Mask& operator=(const Mask&) = delete;
    ~Mask() { ::umask(before_); }

private:
    mode_t before_;
};

TEST(DumpFile, HasItsNameWhenItIsWhole)
{
    const TemporaryFolder folder;
    const std::string path = folder / "dump.txt";
    DumpFile file;
    EXPECT_FALSE(file.Create(path));
    EXPECT_FALSE(file.Write("one"));
    EXPECT_FALSE(file.Write(std::string_view(" t\0wo", 5)));
    EXPECT_FALSE(file.Write(""));
    EXPECT_FALSE(fs::exists(path));
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(ReadWhole(path), std::string("one t\0wo", 8));
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
}

TEST(DumpFile, ReplacesAFileAtTheEndOnly)
{
    const TemporaryFolder folder;
    const std::string path = folder.File("dump.txt", "the old text");
    DumpFile file;
    EXPECT_FALSE(file.Create(path));
    EXPECT_FALSE(file.Write("new"));
    EXPECT_EQ(ReadWhole(path), "the old text");
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(ReadWhole(path), "new");
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
}

TEST(DumpFile, LeavesNothingWhenItIsAbandoned)
{
    const TemporaryFolder folder;
    const std::string path = folder.File("dump.txt", "the old text");
    DumpFile file;
    EXPECT_FALSE(file.Create(path));
    EXPECT_FALSE(file.Write("new"));
    file.Abandon();
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
    EXPECT_EQ(ReadWhole(path), "the old text");
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(ReadWhole(path), "the old text");
}

TEST(DumpFile, IsAbandonedWithoutCommitAndByAnotherCreate)
{
    const TemporaryFolder folder;
    {
        DumpFile file;
        EXPECT_FALSE(file.Create(folder / "one.txt"));
        EXPECT_FALSE(file.Write("one"));
        EXPECT_FALSE(file.Create(folder / "two.txt"));
        EXPECT_EQ(EntriesOf(folder.Path()), 1u);
        EXPECT_FALSE(file.Write("two"));
    }
    EXPECT_EQ(EntriesOf(folder.Path()), 0u);
}

TEST(DumpFile, CanBeUsedAgain)
{
    const TemporaryFolder folder;
    DumpFile file;
    for (const auto* name : {"one.txt", "two.txt"}) {
        EXPECT_FALSE(file.Create(folder / name));
        EXPECT_FALSE(file.Write(name));
        EXPECT_FALSE(file.Commit());
        EXPECT_FALSE(file.Commit());
    }
    EXPECT_EQ(ReadWhole(folder / "one.txt"), "one.txt");
    EXPECT_EQ(ReadWhole(folder / "two.txt"), "two.txt");
    EXPECT_EQ(EntriesOf(folder.Path()), 2u);
}

TEST(DumpFile, HasTheRightsOfANewFileOrOfTheOneThatItReplaces)
{
    const TemporaryFolder folder;
    const Mask mask(027);
    const std::string old = folder.File("old.txt", "old");
    ASSERT_EQ(::chmod(old.c_str(), 0604), 0);
    for (const std::string& path : {folder / "new.txt", old}) {
        DumpFile file;
        EXPECT_FALSE(file.Create(path));
        EXPECT_FALSE(file.Commit());
    }
    EXPECT_EQ(ModeOf(folder / "new.txt"), 0640u);
    EXPECT_EQ(ModeOf(old), 0604u);
}

TEST(DumpFile, ALinkStaysAndWhatItPointsToIsReplaced)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "inside");
    const std::string target = folder.File("inside/target.txt", "old"), link = folder / "link.txt";
    fs::create_symlink(target, link);
    DumpFile file;
    EXPECT_FALSE(file.Create(link));
    EXPECT_FALSE(file.Write("new"));
    EXPECT_EQ(ReadWhole(target), "old");
    EXPECT_FALSE(file.Commit());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(ReadWhole(target), "new");
    EXPECT_EQ(EntriesOf(folder.Path()), 2u);
    EXPECT_EQ(EntriesOf(folder / "inside"), 1u);
}

TEST(DumpFile, WritesADeviceStraight)
{
    const test::AsOrdinaryUser user;
    if (!user.Succeeded()) GTEST_SKIP() << "root could harm the device";
    DumpFile file;
    EXPECT_FALSE(file.Create("/dev/null"));
    EXPECT_FALSE(file.Write("text"));
    EXPECT_FALSE(file.Commit());
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(DumpFile, WritesAPipeStraight)
{
    const TemporaryFolder folder;
    const std::string path = folder / "pipe";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    const int reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    DumpFile file;
    EXPECT_FALSE(file.Create(path));
    EXPECT_FALSE(file.Write("text"));
    char bytes[10] = {};
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 4);
    EXPECT_EQ(std::string_view(bytes), "text");
    EXPECT_FALSE(file.Commit());
    ::close(reader);
    EXPECT_TRUE(fs::is_fifo(path));
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
}

TEST(DumpFile, AFullDiskIsTold)
{
    const test::AsOrdinaryUser user;
    if (!user.Succeeded()) GTEST_SKIP() << "root could harm the device";
    DumpFile file;
    ASSERT_FALSE(file.Create("/dev/full"));
    const FileFailure failure = file.Write("text");
    EXPECT_EQ(failure.number, 61);
    EXPECT_EQ(failure.description, "Disk full");
    file.Abandon();
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(DumpFile, AFolderAndAFileInPlaceOfAFolderAreNoTargets)
{
    const TemporaryFolder folder;
    const std::string ordinary = folder.File("ordinary.txt", "text");
    DumpFile file;
    EXPECT_EQ(file.Create(folder.Path()).number, 76);
    EXPECT_EQ(file.Create(ordinary + "/dump.txt").number, 76);
    EXPECT_EQ(ReadWhole(ordinary), "text");
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
}

TEST(DumpFile, AMissingFolderIsAPathThatIsNotFound)
{
    const TemporaryFolder folder;
    DumpFile file;
    const FileFailure failure = file.Create(folder / "missing/dump.txt");
    EXPECT_EQ(failure.number, 76);
    EXPECT_EQ(failure.description, "Path not found");
}

TEST(DumpFile, AFolderWithoutWritingRightsIsToldAndStaysAsItIs)
{
    const TemporaryFolder folder;
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    FileFailure failure;
    {
        const test::AsOrdinaryUser user;
        if (!user.Succeeded()) GTEST_SKIP() << "root may write everywhere";
        DumpFile file;
        failure = file.Create(folder / "dump.txt");
    }
    ::chmod(folder.Path().c_str(), 0755);
    EXPECT_EQ(failure.number, 70);
    EXPECT_EQ(EntriesOf(folder.Path()), 0u);
}

TEST(DumpFile, AFileWithoutWritingRightsIsNotReplaced)
{
    const TemporaryFolder folder;
    const std::string path = folder.File("dump.txt", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    FileFailure failure;
    {
        const test::AsOrdinaryUser user;
        if (!user.Succeeded()) GTEST_SKIP() << "root may write everywhere";
        DumpFile file;
        failure = file.Create(path);
    }
    EXPECT_EQ(failure.number, 70);
    EXPECT_EQ(ReadWhole(path), "old");
    EXPECT_EQ(EntriesOf(folder.Path()), 1u);
}

TEST(DumpFile, PathsOfOneFileAreTheSame)
{
    const TemporaryFolder folder;
    const std::string one = folder.File("one.txt", "text"), other = folder.File("other.txt", "text");
    fs::create_symlink(one, folder / "link.txt");
    fs::create_hard_link(one, folder / "hard.txt");
    EXPECT_TRUE(IsSameFile(one, one));
    EXPECT_TRUE(IsSameFile(one, folder / "./one.txt"));
    EXPECT_TRUE(IsSameFile(one, folder / "link.txt"));
    EXPECT_TRUE(IsSameFile(one, folder / "hard.txt"));
    EXPECT_FALSE(IsSameFile(one, other));
    EXPECT_FALSE(IsSameFile(one, folder / "missing.txt"));
    EXPECT_FALSE(IsSameFile(folder / "missing.txt", folder / "missing.txt"));
}

}  // namespace
}  // namespace folioscope
