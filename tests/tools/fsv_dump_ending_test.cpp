// How fsv-dump behaves on a terminal, and how it ends early: signals, readers that go away, too little memory.

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <pty.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include "dump_program.h"
#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

using Names = std::vector<std::string>;

constexpr off_t kLarge = 40 << 20;  // bytes of a file for which progress is shown

#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

// A terminal that a program can write to.
class Terminal {
public:
    Terminal()
    {
        if (::openpty(&own_, &given_, nullptr, nullptr, nullptr) != 0) throw std::runtime_error("no terminal");
        termios plain = {};
        ::tcgetattr(given_, &plain);
        ::cfmakeraw(&plain);
        ::tcsetattr(given_, TCSANOW, &plain);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal()
    {
        if (given_ >= 0) ::close(given_);
        ::close(own_);
    }

    // Runs a program on it and gives all that is written to it.
    std::string ScreenOf(Call call, bool withOutput = false)
    {
        call.error = given_;
        if (withOutput) call.output = given_;
        ChildProcess program(call);
        ::close(given_);
        given_ = -1;
        // There is nothing more to read when the program has ended, since nobody else can write.
        std::string screen;
        std::array<char, 4096> piece;
        for (ssize_t got; (got = ::read(own_, piece.data(), piece.size())) > 0;)
            screen.append(piece.data(), static_cast<std::size_t>(got));
        ended_ = program.Wait();
        return screen;
    }
    const Ended& End() const { return ended_; }

private:
    Ended ended_;
    int own_ = -1, given_ = -1;
};

// A small document and much that is none.
std::string LargeFile(const TemporaryFolder& folder, const std::string& name)
{
    std::string file = folder.File(name, Statement());
    EXPECT_EQ(::truncate(file.c_str(), kLarge), 0);
    return file;
}

bool HasTemporary(const TemporaryFolder& folder)
{
    for (const std::string& name : FilesIn(folder.Path()))
        if (name.starts_with("out.")) return true;
    return false;
}

}  // namespace

// Progress ----------------------------------------------------------------------------------------------------------

TEST(FsvDumpTerminal, ShowsProgressOfALargeFileAndWipesIt)
{
    const TemporaryFolder folder;
    Terminal terminal;
    const std::string screen = terminal.ScreenOf(DumpCall({LargeFile(folder, "large\n")}));
    EXPECT_EQ(terminal.End().out, StatementDump("large\n"));
    EXPECT_EQ(terminal.End().status, 0);
    const std::string behind = " %  " + folder.Path() + "/large␊\33[?7h";
    for (const char* percent : {"  0", " 50", "100"})
        EXPECT_NE(screen.find(std::string("\r\33[?7l").append(percent) + behind), std::string::npos) << percent;
    EXPECT_TRUE(screen.ends_with("\33[?7h\r\33[K"));
    EXPECT_EQ(screen.find('\n'), std::string::npos);
}

TEST(FsvDumpTerminal, ShowsNoProgressOfASmallFile)
{
    const TemporaryFolder folder;
    Terminal terminal;
    EXPECT_EQ(terminal.ScreenOf(DumpCall({folder.File("a", Nested(2'000)), "-o", folder / "out"})), "");
    EXPECT_EQ(terminal.End().status, 0);
}

TEST(FsvDumpTerminal, HasMessagesAfterTheProgress)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("bad", Damaged());
    ASSERT_EQ(::truncate(file.c_str(), kLarge), 0);
    Terminal terminal;
    EXPECT_TRUE(terminal.ScreenOf(DumpCall({"--messages", file})).ends_with("\33[?7h\r\33[K" + std::string(kWrongEnd)));
    EXPECT_EQ(terminal.End().status, 1);
}

TEST(FsvDumpTerminal, ShowsNoProgressAmidTheDump)
{
    const TemporaryFolder folder;
    // The walk is long because of what follows the records, the dump because of them.
    const std::string file = folder.File("deep", Nested(1'500));
    ASSERT_EQ(::truncate(file.c_str(), kLarge), 0);
    Terminal terminal;
    const std::string screen = terminal.ScreenOf(DumpCall({file}), true);
    EXPECT_EQ(terminal.End().status, 0);
    EXPECT_TRUE(screen.starts_with("\r\33[?7l"));
    EXPECT_TRUE(screen.ends_with("\r\33[K" + Dump({file}).out));
}

TEST(FsvDumpTerminal, IsTheOnlyPlaceForProgress)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({LargeFile(folder, "large")});
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.out, StatementDump("large"));
}

// Readers that go away ----------------------------------------------------------------------------------------------

TEST(FsvDumpPipe, EndsQuietlyWhenItsReaderGoes)
{
    const TemporaryFolder folder;
    const std::string deep = folder.File("deep", Nested(3'000)), small = folder.File("a", Statement());
    for (const Names& arguments : {Names{deep, small}, Names{"--tree", deep, deep, deep}, Names{"-o", "-", deep}}) {
        ChildProcess program(DumpCall(arguments));
        EXPECT_FALSE(program.ReadSome(10).empty());
        program.CloseOutput();
        const Ended ended = program.Wait();
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(ended.signal, 0);
        EXPECT_EQ(ended.status, 0);
    }
}

TEST(FsvDumpPipe, TellsFaultsThatWereFoundByThen)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("deep", Nested(3'000) + Damaged());
    ChildProcess program(DumpCall({"--messages", file}));
    EXPECT_FALSE(program.ReadSome(10).empty());
    program.CloseOutput();
    const Ended ended = program.Wait();
    EXPECT_EQ(ended.err, kWrongEnd);
    EXPECT_EQ(ended.status, 1);
}

TEST(FsvDumpPipe, EndsQuietlyWhenNobodyReadsTheMessages)
{
    const TemporaryFolder folder;
    int handles[2];
    ASSERT_EQ(::pipe(handles), 0);
    ::close(handles[0]);
    Call call = DumpCall({"--messages", folder.File("bad", Damaged())});
    call.error = handles[1];
    const Ended ended = RunToEnd(call);
    ::close(handles[1]);
    EXPECT_EQ(ended.signal, 0);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, Dump({folder / "bad"}).out);
}

// Signals -----------------------------------------------------------------------------------------------------------

class FsvDumpSignal : public testing::TestWithParam<int> {};

TEST_P(FsvDumpSignal, LeavesNoPartOfAFile)
{
    const std::string old = "an earlier dump";
    const TemporaryFolder folder;
    const std::string file = folder.File("deep", Nested(15'000)), out = folder.File("out", old);
    const auto isOld = [&] { return std::filesystem::file_size(out) == old.size(); };
    for (int tries = 0; tries < 20; ++tries) {
        ChildProcess program(DumpCall({file, "-o", out}));
        while (!HasTemporary(folder) && isOld() && program.Runs()) ::usleep(500);
        program.Send(GetParam());
        const Ended ended = program.Wait();
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(FilesIn(folder.Path()), (Names{"deep", "out"}));
        if (isOld()) {
            EXPECT_EQ(ReadWhole(out), old);
            EXPECT_EQ(ended.signal, GetParam());
            return;
        }
        // It was done before the signal came. Then what stands there is whole.
        ASSERT_GT(std::filesystem::file_size(out), 225'000'000u);
        folder.File("out", old);
    }
    FAIL() << "the signal always came too late";
}

INSTANTIATE_TEST_SUITE_P(Of, FsvDumpSignal, testing::Values(SIGHUP, SIGINT, SIGQUIT, SIGTERM));

TEST(FsvDumpSignals, EndAWaitForInput)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        std::array<int, 2> handles;
        ASSERT_EQ(::pipe2(handles.data(), O_CLOEXEC), 0);
        ASSERT_EQ(::write(handles[1], "Z", 1), 1);
        Call call = DumpCall({"-"});
        call.inputFile = "/proc/self/fd/" + std::to_string(handles[0]);
        ChildProcess program(call);
        // It reads when the byte is gone.
        for (int left = 1; left > 0 && program.Runs(); ::ioctl(handles[0], FIONREAD, &left)) ::usleep(500);
        program.Send(signal);
        EXPECT_EQ(program.Wait().signal, signal);
        for (const int handle : handles) ::close(handle);
    }
}

TEST(FsvDumpSignals, EndAWaitForAReader)
{
    const TemporaryFolder folder;
    ChildProcess program(DumpCall({folder.File("deep", Nested(3'000))}));
    EXPECT_FALSE(program.ReadSome(10).empty());
    program.Send(SIGTERM);
    const Ended ended = program.Wait();
    EXPECT_EQ(ended.signal, SIGTERM);
    EXPECT_EQ(ended.err, "");
}

TEST(FsvDumpSignals, StayIgnoredIfTheCallerIgnoresThem)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("deep", Nested(3'000)), out = folder / "out";
    Call call = DumpCall({file, "-o", out});
    call.ignoredSignal = SIGHUP;
    ChildProcess program(call);
    while (FilesIn(folder.Path()).size() == 1 && program.Runs()) ::usleep(500);
    program.Send(SIGHUP);
    const Ended ended = program.Wait();
    EXPECT_EQ(ended.signal, 0);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ReadWhole(out), InSystemPage(Dump({file}).out));
}

// Memory ------------------------------------------------------------------------------------------------------------

namespace {

constexpr unsigned long kLittleMemory = 64ul << 20;  // bytes of address space

// Records of 3,000 bytes, whose texts are all the same or all different. The file isn't held in memory, nor is its
// dump.
Ended DumpWithLittleMemory(const TemporaryFolder& folder, int records, bool different)
{
    std::ofstream out(folder / "nops", std::ios::binary);
    for (int i = 0; i < records; ++i) {
        const Bytes number = Ebcdic(std::to_string(different ? i : 0));
        out << AfpFile().Add("NOP", Bytes(3'000 - number.size(), '\xC1') + number).Content();
    }
    out.close();
    Call call = DumpCall({"-o", folder / "out", folder / "nops"});
    call.mostMemory = kLittleMemory;
    return RunToEnd(call);
}

}  // namespace

TEST(FsvDumpMemory, DoesNotGrowWithTheDump)
{
    if (kSanitized) GTEST_SKIP() << "the sanitizer needs more than any limit";
    const TemporaryFolder folder;
    const Ended ended = DumpWithLittleMemory(folder, 60'000, false);
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);
    EXPECT_GT(std::filesystem::file_size(folder / "out"), 2.5 * kLittleMemory);
}

TEST(FsvDumpMemory, ThatIsTooLittleIsTold)
{
    if (kSanitized) GTEST_SKIP() << "the sanitizer needs more than any limit";
    const TemporaryFolder folder;
    const Ended ended = DumpWithLittleMemory(folder, 40'000, true);
    EXPECT_EQ(ended.signal, 0);
    EXPECT_EQ(ended.status, 3);
    EXPECT_EQ(ended.err, folder.Path() + "/nops: There is not enough memory for this file.\n");
    EXPECT_EQ(FilesIn(folder.Path()), Names{"nops"});
}

}  // namespace folioscope::test
