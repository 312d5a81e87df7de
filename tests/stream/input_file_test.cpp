#include "stream/input_file.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>

#include "stream/file_calls.h"
#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

class InputFiles : public testing::Test {
protected:
    // What reading up to `size` bytes from a position gives.
    std::string Read(std::int64_t position, std::size_t size)
    {
        std::string bytes(size, '#');
        std::size_t got = size + 1;
        failure_ = file_.ReadAt(position, {reinterpret_cast<std::uint8_t*>(bytes.data()), size}, got);
        EXPECT_LE(got, size);
        bytes.resize(std::min(got, size));
        return bytes;
    }

    TemporaryFolder folder_;
    FileCallsGuard guard_;
    InputFile file_;
    FileFailure failure_;
};

int NextFreeHandle()
{
    const int handle = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(handle);
    return handle;
}

TEST_F(InputFiles, FailuresGoByTheNumbersOfTheSystem)
{
    struct Case {
        int error, number;
        std::string_view description;
    };
    // clang-format off
    constexpr Case kCases[] = {
        {ENOENT,       53, "File not found"},
        {EISDIR,       76, "Path not found"},
        {ENOTDIR,      76, "Path not found"},
        {EACCES,       70, "Permission denied"},
        {EPERM,        70, "Permission denied"},
        {ENOSPC,       61, "Disk full"},
        {EMFILE,       67, "Too many files"},
        {ENFILE,       67, "Too many files"},
        {EIO,          57, "Device I/O error"},
        {ELOOP,        57, "Device I/O error"},
        {ENAMETOOLONG, 57, "Device I/O error"},
        {EBADF,        57, "Device I/O error"},
    };
    // clang-format on
    for (const auto& [error, number, description] : kCases) {
        const FileFailure failure = FailureOf(error);
        EXPECT_TRUE(failure) << error;
        EXPECT_EQ(failure.number, number) << error;
        EXPECT_EQ(failure.description, description) << error;
    }
    EXPECT_FALSE(FailureOf(0));
    EXPECT_EQ(FailureOf(0).number, 0);
}

TEST_F(InputFiles, OpensAFile)
{
    EXPECT_FALSE(file_.IsOpen());
    EXPECT_FALSE(file_.Open(folder_.File("a.afp", "12345")));
    EXPECT_TRUE(file_.IsOpen());
    EXPECT_EQ(file_.Size(), 5);
    file_.Close();
    EXPECT_FALSE(file_.IsOpen());
}

TEST_F(InputFiles, SizesGoBeyondTwoGigabytes)
{
    const std::string path = folder_.File("big.afp", "");
    std::filesystem::resize_file(path, 5'000'000'000);
    EXPECT_FALSE(file_.Open(path));
    EXPECT_EQ(file_.Size(), 5'000'000'000);
    EXPECT_EQ(Read(4'999'999'998, 10), std::string(2, '\0'));
}

TEST_F(InputFiles, AMissingFile)
{
    EXPECT_EQ(file_.Open(folder_ / "none.afp").number, 53);
    EXPECT_EQ(file_.Open(folder_ / "none/none.afp").number, 53);
    EXPECT_EQ(file_.Open("").number, 53);
    EXPECT_FALSE(file_.IsOpen());
}

TEST_F(InputFiles, AFolderIsNoFile)
{
    EXPECT_EQ(file_.Open(folder_.Path()).number, 76);
    EXPECT_FALSE(file_.IsOpen());
    const std::string path = folder_.File("a.afp", "1");
    EXPECT_EQ(file_.Open(path + "/b.afp").number, 76);
}

TEST_F(InputFiles, ALinkToItself)
{
    std::filesystem::create_symlink("loop.afp", folder_ / "loop.afp");
    EXPECT_EQ(file_.Open(folder_ / "loop.afp").number, 57);
}

TEST_F(InputFiles, ALinkToNothingIsAMissingFile)
{
    std::filesystem::create_symlink("none.afp", folder_ / "link.afp");
    EXPECT_EQ(file_.Open(folder_ / "link.afp").number, 53);
}

TEST_F(InputFiles, ForbiddenFile)
{
    constexpr uid_t kNobody = 65534;
    const std::string path = folder_.File("a.afp", "1");
    ::chmod(path.c_str(), 0);
    // To the superuser nothing is forbidden.
    const bool super = ::geteuid() == 0;
    if (super && ::seteuid(kNobody) != 0) GTEST_SKIP() << "the superuser can't become an ordinary user here";
    const FileFailure failure = file_.Open(path);
    ASSERT_TRUE(!super || ::seteuid(0) == 0);
    EXPECT_EQ(failure.number, 70);
}

TEST_F(InputFiles, TooManyFiles)
{
    const std::string path = folder_.File("a.afp", "1");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none = {static_cast<rlim_t>(NextFreeHandle()), before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const FileFailure failure = file_.Open(path);
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(failure.number, 67);
    EXPECT_FALSE(file_.Open(path));
}

TEST_F(InputFiles, HandlesAreGivenBack)
{
    const int free = NextFreeHandle();
    const std::string path = folder_.File("a.afp", "1");
    {
        InputFile file;
        for (int i = 0; i < 3; ++i) {
            EXPECT_FALSE(file.Open(path));
            EXPECT_EQ(NextFreeHandle(), free + 1);
        }
        EXPECT_TRUE(file.Open(folder_.Path()));
        EXPECT_EQ(NextFreeHandle(), free);
        EXPECT_TRUE(file.Open(folder_ / "none.afp"));
        EXPECT_FALSE(file.IsOpen());
        EXPECT_FALSE(file.Open(path));
    }
    EXPECT_EQ(NextFreeHandle(), free);
}

TEST_F(InputFiles, ReadsByPosition)
{
    file_.Open(folder_.File("a.afp", "0123456789"));
    EXPECT_EQ(Read(0, 10), "0123456789");
    EXPECT_EQ(Read(7, 2), "78");
    EXPECT_EQ(Read(0, 1), "0");
    EXPECT_EQ(Read(3, 0), "");
    EXPECT_FALSE(failure_);
}

TEST_F(InputFiles, ReadsLessAtTheEnd)
{
    file_.Open(folder_.File("a.afp", "0123456789"));
    EXPECT_EQ(Read(8, 10), "89");
    EXPECT_EQ(Read(10, 10), "");
    EXPECT_EQ(Read(1000, 10), "");
    EXPECT_FALSE(failure_);
}

TEST_F(InputFiles, ReadsWhatIsLeftOfAShrunkFile)
{
    const std::string path = folder_.File("a.afp", "0123456789");
    file_.Open(path);
    std::filesystem::resize_file(path, 4);
    EXPECT_EQ(Read(0, 10), "0123");
    EXPECT_EQ(file_.Size(), 10);
    EXPECT_FALSE(failure_);
}

TEST_F(InputFiles, GoesOnAfterShortReadsAndInterruptions)
{
    file_.Open(folder_.File("a.afp", "0123456789"));
    Calls().atMost = 3;
    Calls().interruptions = 2;
    EXPECT_EQ(Read(1, 9), "123456789");
    EXPECT_FALSE(failure_);
    EXPECT_EQ(Calls().calls, 2 + 3);
}

TEST_F(InputFiles, TellsAFailedRead)
{
    file_.Open(folder_.File("a.afp", "0123456789"));
    Calls().atMost = 4;
    Calls().goodCalls = 1;
    Calls().error = EIO;
    EXPECT_EQ(Read(0, 10), "0123");
    EXPECT_EQ(failure_.number, 57);
}

TEST_F(InputFiles, ReadsNothingWithoutAFile)
{
    EXPECT_EQ(Read(0, 10), "");
    EXPECT_EQ(failure_.number, 57);
}

TEST_F(InputFiles, APositionBeforeTheFileFails)
{
    file_.Open(folder_.File("a.afp", "0123456789"));
    EXPECT_EQ(Read(-1, 10), "");
    EXPECT_EQ(failure_.number, 57);
}

}  // namespace
}  // namespace folioscope::test
