// Where a dump of fsv-dump goes: files, devices, the inputs that are never written to.

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "dump_program.h"
#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

constexpr std::string_view kIsInput = ": This is the file to be read. It is never changed; choose another name.\n";
constexpr std::string_view kIsFull = ": The disk is full. Make room, or write to another disk.\n";
using Names = std::vector<std::string>;

}  // namespace

TEST(FsvDumpOutput, IsInCodePage1252WithCrLf)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({folder.File("a.afp", Statement()), "-o", folder / "out"});
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);
    const std::string written = ReadWhole(folder / "out");
    EXPECT_TRUE(written.starts_with("a.afp:\r\n\r\n\tDump created by "));
    EXPECT_TRUE(written.ends_with(">>\tNOP\tContent:\tGr\xFC\xDF"
                                  "e\r\n     ---------\r\n>>\tEPG\tName:\tPAGE0001\r\n"
                                  "     ---------\r\n>\tEDT\tName:\tDOC00001\r\n"));
    EXPECT_EQ(written, InSystemPage(StatementDump("a.afp")));
    EXPECT_EQ(FilesIn(folder.Path()), (Names{"a.afp", "out"}));
}

TEST(FsvDumpOutput, HasAQuestionMarkForWhatThePageLacks)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Dump({folder.File("Ω€ü.afp", Damaged()), "-o", folder / "out"}).status, 1);
    EXPECT_TRUE(ReadWhole(folder / "out").starts_with("<color=clred>?\x80\xFC.afp:\r\n\r\n"));
}

TEST(FsvDumpOutput, IsTheDumpReencodedForEverySample)
{
    const TemporaryFolder folder;
    int samples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(FOLIOSCOPE_SOURCE_DIR) + "/samples")) {
        if (entry.path().extension() != ".afp") continue;
        ++samples;
        for (const char* language : {"en", "de", "fr"}) {
            const std::string out = folder / "out";
            const Ended printed = Dump({"--language", language, entry.path()});
            const Ended written = Dump({"--language", language, entry.path(), "-o", out});
            EXPECT_EQ(ReadWhole(out), InSystemPage(printed.out)) << entry.path();
            EXPECT_EQ(written.status, printed.status);
        }
    }
    EXPECT_GT(samples, 0);
}

TEST(FsvDumpOutput, HyphenIsStandardOutput)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a.afp", Statement());
    for (const Names& form : {Names{"-o", "-"}, Names{"-o-"}, Names{"--output=-"}}) {
        Call call = DumpCall({file});
        call.words.insert(call.words.end(), form.begin(), form.end());
        call.folder = folder.Path();
        EXPECT_EQ(RunToEnd(call).out, InSystemPage(StatementDump("a.afp")));
    }
    EXPECT_EQ(FilesIn(folder.Path()), Names{"a.afp"});
}

TEST(FsvDumpOutput, TellsFaultsAllTheSame)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({"--messages", "-o", folder / "out", folder.File("bad", Damaged())});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.err, kWrongEnd);
    EXPECT_EQ(ReadWhole(folder / "out"), InSystemPage(Dump({folder / "bad"}).out));
}

TEST(FsvDumpOutput, ReplacesAFileAndKeepsItsMode)
{
    const TemporaryFolder folder;
    const std::string out = folder.File("out", std::string(100'000, 'x'));
    ASSERT_EQ(::chmod(out.c_str(), 0640), 0);
    EXPECT_EQ(Dump({folder.File("a.afp", Statement()), "-o", out}).status, 0);
    EXPECT_EQ(ReadWhole(out), InSystemPage(StatementDump("a.afp")));
    struct stat status = {};
    ASSERT_EQ(::stat(out.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
}

// Save --------------------------------------------------------------------------------------------------------------

TEST(FsvDumpSave, WritesBesideEachFile)
{
    const TemporaryFolder folder;
    const std::string a = folder.File("a.afp", Statement()), bad = folder.File("bad", Damaged());
    const Ended ended = Dump({"--save", a, bad});
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ReadWhole(a + ".txt"), InSystemPage(StatementDump("a.afp")));
    EXPECT_EQ(ReadWhole(bad + ".txt"), InSystemPage(Dump({bad}).out));
    EXPECT_EQ(FilesIn(folder.Path()), (Names{"a.afp", "a.afp.txt", "bad", "bad.txt"}));
}

TEST(FsvDumpSave, ReplacesAnEarlierDump)
{
    const TemporaryFolder folder;
    const std::string a = folder.File("a.afp", Statement());
    folder.File("a.afp.txt", "an earlier dump that is longer than the new one" + std::string(10'000, '.'));
    EXPECT_EQ(Dump({"--save", a}).status, 0);
    EXPECT_EQ(ReadWhole(a + ".txt"), InSystemPage(StatementDump("a.afp")));
}

TEST(FsvDumpSave, GoesOnWhereOneFileFails)
{
    const TemporaryFolder folder;
    const std::string a = folder.File("a", Statement()), b = folder.File("b", Statement());
    std::filesystem::create_directory(a + ".txt");
    const Ended ended = Dump({"--save", a, folder / "missing", b});
    EXPECT_EQ(ended.err, a + ".txt: This is no file: a folder stands there, or a folder of the path is missing.\n" +
                             folder.Path() + "/missing: There is no such file. Check its name and path.\n");
    EXPECT_EQ(ended.status, 4);
    EXPECT_EQ(FilesIn(folder.Path()), (Names{"a", "a.txt", "b", "b.txt"}));
}

TEST(FsvDumpSave, WritesNothingForWhatCanNotBeRead)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Dump({"--save", folder.File("empty", ""), folder / "missing"}).status, 3);
    EXPECT_EQ(FilesIn(folder.Path()), Names{"empty"});
}

// The inputs --------------------------------------------------------------------------------------------------------

class FsvDumpInputs : public testing::Test {
protected:
    // Nothing is written, and the file is what it was.
    void ExpectRefused(const Call& call, const std::string& name)
    {
        const Ended ended = RunToEnd(call);
        EXPECT_EQ(ended.out, "");
        EXPECT_EQ(ended.err, name + std::string(kIsInput));
        EXPECT_EQ(ended.status, 4);
        EXPECT_EQ(ReadWhole(file_), Statement());
    }

    const TemporaryFolder folder_;
    const std::string file_ = folder_.File("a.afp", Statement());
};

TEST_F(FsvDumpInputs, AreNeverTheOutput) { ExpectRefused(DumpCall({file_, "-o", file_}), file_); }

TEST_F(FsvDumpInputs, AreNotTheOutputByAnotherPath)
{
    const std::string path =
        folder_.Path() + "/./../" + std::filesystem::path(folder_.Path()).filename().string() + "/a.afp";
    ExpectRefused(DumpCall({file_, "-o", path}), path);
}

TEST_F(FsvDumpInputs, AreNotTheOutputBySymbolicLink)
{
    std::filesystem::create_symlink("a.afp", folder_ / "link");
    ExpectRefused(DumpCall({file_, "-o", folder_ / "link"}), folder_ / "link");
    ExpectRefused(DumpCall({folder_ / "link", "-o", file_}), file_);
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "link"));
}

TEST_F(FsvDumpInputs, AreNotTheOutputByHardLink)
{
    std::filesystem::create_hard_link(file_, folder_ / "link");
    ExpectRefused(DumpCall({file_, "-o", folder_ / "link"}), folder_ / "link");
    EXPECT_EQ(ReadWhole(folder_ / "link"), Statement());
}

TEST_F(FsvDumpInputs, AreNotTheOutputOfSaveByLink)
{
    std::filesystem::create_symlink("a.afp", folder_ / "a.afp.txt");
    ExpectRefused(DumpCall({"--save", file_}), file_ + ".txt");
}

TEST_F(FsvDumpInputs, AreNotTheOutputFromStandardInput)
{
    Call call = DumpCall({"-", "-o", file_});
    call.inputFile = file_;
    ExpectRefused(call, file_);
}

TEST_F(FsvDumpInputs, AreNotStandardOutput)
{
    for (const Names& arguments : {Names{file_}, Names{"--tree", file_}, Names{"-o-", file_}}) {
        Call call = DumpCall(arguments);
        call.outputFile = file_;
        ExpectRefused(call, file_);
    }
}

// As a pattern gives them that is used a second time.
TEST_F(FsvDumpInputs, AreNotWrittenForEachOther)
{
    const std::string text = folder_.File("a.afp.txt", Damaged());
    const Ended ended = Dump({"--save", file_, text});
    EXPECT_EQ(ended.err, text + std::string(kIsInput));
    EXPECT_EQ(ended.status, 4);
    EXPECT_EQ(ReadWhole(text), Damaged());
    EXPECT_EQ(FilesIn(folder_.Path()), (Names{"a.afp", "a.afp.txt", "a.afp.txt.txt"}));
}

// Failures ----------------------------------------------------------------------------------------------------------

TEST(FsvDumpFailedOutput, IsToldWithItsName)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a", Statement());
    const std::string below = file + "/out", missing = folder / "no/such/folder";
    const Ended belowFile = Dump({file, "-o", below});
    EXPECT_EQ(belowFile.err, below + ": This is no file: a folder stands there, or a folder of the path is missing.\n");
    EXPECT_EQ(belowFile.status, 4);
    const Ended noFolder = Dump({file, "-o", missing, "--language=fr"});
    EXPECT_EQ(noFolder.err,
              missing + ": Ce n'est pas un fichier\u00A0: un dossier se trouve là, ou un dossier du chemin manque.\n");
    EXPECT_EQ(noFolder.status, 4);
    const Ended aFolder = Dump({file, "-o", folder.Path(), "--language=de"});
    EXPECT_EQ(aFolder.err,
              folder.Path() + ": Das ist keine Datei: Dort steht ein Ordner, oder ein Ordner des Pfades fehlt.\n");
    EXPECT_EQ(aFolder.status, 4);
    const Ended system = Dump({file, "-o", "/proc/out"});
    EXPECT_TRUE(system.err.starts_with("/proc/out: "));
    EXPECT_EQ(system.status, 4);
    EXPECT_EQ(FilesIn(folder.Path()), Names{"a"});
}

TEST(FsvDumpFailedOutput, IsAFullDevice)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a", Statement());
    const Ended ended = Dump({file, "-o", "/dev/full"});
    EXPECT_EQ(ended.err, "/dev/full" + std::string(kIsFull));
    EXPECT_EQ(ended.status, 4);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST(FsvDumpFailedOutput, IsFullStandardOutputToldOnce)
{
    const TemporaryFolder folder;
    const std::string a = folder.File("a", Statement()), b = folder.File("b", Statement());
    for (const Names& arguments : {Names{a, b}, Names{"--tree", a, b}, Names{"-o-", a}, Names{"--help"}, Names{"-V"}}) {
        Call call = DumpCall(arguments);
        call.outputFile = "/dev/full";
        const Ended ended = RunToEnd(call);
        EXPECT_EQ(ended.err, "standard output" + std::string(kIsFull));
        EXPECT_EQ(ended.status, 4);
    }
    Call german = DumpCall({"--language=de", a});
    german.outputFile = "/dev/full";
    EXPECT_EQ(RunToEnd(german).err,
              "Standardausgabe: Der Datenträger ist voll. Platz schaffen oder auf einen anderen schreiben.\n");
}

TEST(FsvDumpFailedOutput, IsFullStandardErrorIfMessagesAreAskedFor)
{
    const TemporaryFolder folder;
    Call call = DumpCall({"--messages", folder.File("bad", Damaged())});
    call.errorFile = "/dev/full";
    const Ended ended = RunToEnd(call);
    EXPECT_EQ(ended.status, 4);
    EXPECT_EQ(ended.out, Dump({folder / "bad"}).out);
}

TEST(FsvDumpFailedOutput, LeavesNothingBehind)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("deep", Nested(1'000)), old = folder.File("old", "an earlier dump");
    for (const std::string& out : {old, folder / "new"}) {
        Call call = DumpCall({file, "-o", out});
        call.longestFile = 4'096;
        const Ended ended = RunToEnd(call);
        EXPECT_EQ(ended.signal, 0);
        EXPECT_EQ(ended.status, 4);
        EXPECT_TRUE(ended.err.starts_with(out + ": "));
    }
    EXPECT_EQ(ReadWhole(old), "an earlier dump");
    EXPECT_EQ(FilesIn(folder.Path()), (Names{"deep", "old"}));
}

TEST(FsvDumpFailedOutput, IsAClosedStandardOutput)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a", Statement());
    Call call = DumpCall({file});
    call.closed = {1};
    const Ended ended = RunToEnd(call);
    EXPECT_EQ(ended.status, 4);
    EXPECT_TRUE(ended.err.starts_with("standard output: "));
}

// The next files to be opened would stand in for the closed ones.
TEST(FsvDumpOutput, GetsNothingThatIsMeantForAClosedStream)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("bad", Damaged()), out = folder / "out";
    Call call = DumpCall({"--messages", file, "-o", out});
    call.closed = {0, 1, 2};
    EXPECT_EQ(RunToEnd(call).status, 4);
    EXPECT_EQ(ReadWhole(out), InSystemPage(Dump({file}).out));
    EXPECT_EQ(ReadWhole(file), Damaged());
}

TEST(FsvDumpOutput, WaitsForAPipeThatDoesNotBlock)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("deep", Nested(1'000));
    std::array<int, 2> handles;
    ASSERT_EQ(::pipe2(handles.data(), O_CLOEXEC | O_NONBLOCK), 0);
    Call call = DumpCall({file});
    call.output = handles[1];
    ChildProcess program(call);
    ::close(handles[1]);
    std::string out;
    pollfd waiting = {handles[0], POLLIN, 0};
    while (::poll(&waiting, 1, -1) == 1) {
        char piece[4096];
        const auto got = ::read(handles[0], piece, sizeof piece);
        if (got <= 0) break;
        out.append(piece, static_cast<std::size_t>(got));
    }
    ::close(handles[0]);
    const Ended ended = program.Wait();
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(out, Dump({file}).out);
}

}  // namespace folioscope::test
