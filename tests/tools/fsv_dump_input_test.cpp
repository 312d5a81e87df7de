// What fsv-dump reads: files with all sorts of names, standard input, pipes, and what can't be read.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "dump_program.h"
#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

constexpr off_t kTooBig = 2'147'483'648;

void ExpectUnread(const Ended& ended, const std::string& text)
{
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, text + "\n");
    EXPECT_EQ(ended.status, 3);
}

}  // namespace

// What can't be read ------------------------------------------------------------------------------------------------

TEST(FsvDumpInput, MissingIsTold)
{
    const TemporaryFolder folder;
    const std::string file = folder / "missing";
    ExpectUnread(Dump({file}), file + ": There is no such file. Check its name and path.");
    ExpectUnread(Dump({"--language=de", file}), file + ": Diese Datei gibt es nicht. Namen und Pfad prüfen.");
    ExpectUnread(Dump({"--language=fr", file}), file + ": Ce fichier n'existe pas. Vérifier son nom et son chemin.");
    ExpectUnread(Dump({""}), ": There is no such file. Check its name and path.");
    ExpectUnread(Dump({folder.File("a", Statement()) + "/b"}),
                 folder.Path() + "/a/b: There is no such file. Check its name and path.");
}

TEST(FsvDumpInput, FolderIsTold)
{
    const TemporaryFolder folder;
    ExpectUnread(Dump({folder.Path()}),
                 folder.Path() + ": This is no file: a folder stands there, or a folder of the path is missing.");
    ExpectUnread(Dump({"--tree", "--language=fr", folder.Path()}),
                 folder.Path() +
                     ": Ce n'est pas un fichier\u00A0: un dossier se trouve là, ou un dossier du chemin manque.");
}

TEST(FsvDumpInput, EmptyIsTold)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("empty", "");
    ExpectUnread(Dump({file}), file + ": The file is empty.");
    ExpectUnread(Dump({"--language=de", file}), file + ": Die Datei ist leer.");
    ExpectUnread(Dump({"--language=fr", "--tree", file}), file + ": Le fichier est vide.");
    ExpectUnread(Dump({"-"}), "-: The file is empty.");
    ExpectUnread(Dump({"/dev/null"}), "/dev/null: The file is empty.");
}

TEST(FsvDumpInput, TooBigIsTold)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("big", Statement());
    ASSERT_EQ(::truncate(file.c_str(), kTooBig), 0);
    ExpectUnread(Dump({file}), file + ": The file is larger than 2,147,483,647 bytes. Split it, and dump the parts.");
    ExpectUnread(Dump({"--language=de", file}),
                 file + ": Die Datei ist größer als 2.147.483.647 Bytes. Die Datei teilen und die Teile ausgeben.");
}

TEST(FsvDumpInput, WithoutRightsIsTold)
{
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is denied to root";
    const TemporaryFolder folder;
    const std::string file = folder.File("a", Statement());
    ASSERT_EQ(::chmod(file.c_str(), 0), 0);
    ExpectUnread(Dump({file}), file + ": Access is denied. Check the rights on the file and its folder.");
}

TEST(FsvDumpInput, ClosedStandardInputIsTold)
{
    Call call = DumpCall({"-"});
    call.closed = {0};
    const Ended ended = RunToEnd(call);
    EXPECT_EQ(ended.status, 3);
    EXPECT_TRUE(ended.err.starts_with("-: "));
}

// Streams -----------------------------------------------------------------------------------------------------------

TEST(FsvDumpInput, HyphenIsStandardInput)
{
    Call pipe = DumpCall({"-"});
    pipe.input = Statement();
    const Ended ended = RunToEnd(pipe);
    EXPECT_EQ(ended.out, StatementDump("-"));
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);

    const TemporaryFolder folder;
    Call redirected = DumpCall({"-"});
    redirected.inputFile = folder.File("a.afp", Statement());
    EXPECT_EQ(RunToEnd(redirected).out, StatementDump("-"));
}

TEST(FsvDumpInput, HyphenWorksWithEveryKindOfOutput)
{
    const TemporaryFolder folder;
    Call call = DumpCall({"-", "-o", folder / "out"});
    call.input = Statement();
    EXPECT_EQ(RunToEnd(call).status, 0);
    EXPECT_EQ(ReadWhole(folder / "out"), InSystemPage(StatementDump("-")));
    call = DumpCall({"--tree", "--messages", "-"});
    call.input = Damaged();
    const Ended ended = RunToEnd(call);
    EXPECT_TRUE(ended.out.starts_with("-\t\t\t!\n  Document\t\t\t!\n"));
    EXPECT_EQ(ended.err, kWrongEnd);
}

TEST(FsvDumpInput, PipeCanBeLongerThanItsBuffer)
{
    AfpFile file;
    for (int i = 0; i < 40; ++i) file.Add("NOP", Bytes(30'000, '\xC1'));
    Call call = DumpCall({"-"});
    call.input = file.Content();
    std::string expected = Header("-");
    for (int i = 0; i < 40; ++i) expected += "     ---------\n\tNOP\tContent:\t" + std::string(30'000, 'A') + "\n";
    EXPECT_EQ(RunToEnd(call).out, expected);
}

TEST(FsvDumpInput, StandsInTheFileSystemToo)
{
    Call call = DumpCall({"/dev/stdin"});
    call.input = Statement();
    EXPECT_EQ(RunToEnd(call).out, StatementDump("stdin"));
}

TEST(FsvDumpInput, CanBeANamedPipe)
{
    const TemporaryFolder folder;
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    Call writing;
    writing.words = {"/bin/cat", folder.File("a.afp", Statement())};
    writing.outputFile = fifo;
    ChildProcess writer(writing);
    const Ended ended = Dump({fifo});
    EXPECT_EQ(ended.out, StatementDump("fifo"));
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(writer.Wait().status, 0);
}

TEST(FsvDumpInput, LeavesNoCopyInTheTemporaryFolder)
{
    const auto before = FilesIn("/proc/self/fd").size();
    const TemporaryFolder folder;
    Call call = DumpCall({"-"});
    call.input = Statement();
    call.folder = folder.Path();
    call.environment = std::vector<std::string>{"TMPDIR=" + folder.Path()};
    EXPECT_EQ(RunToEnd(call).status, 0);
    EXPECT_TRUE(FilesIn(folder.Path()).empty());
    EXPECT_EQ(FilesIn("/proc/self/fd").size(), before);
}

// Names -------------------------------------------------------------------------------------------------------------

TEST(FsvDumpNames, HaveBlanksLettersAndSigns)
{
    const TemporaryFolder folder;
    for (const std::string name : {"a b  c.afp", "Größe €.afp", "印刷.afp", "100%1.afp", "a'b\"c\\d", "x:y", "*"}) {
        const Ended ended = Dump({folder.File(name, Statement())});
        EXPECT_EQ(ended.out, StatementDump(name));
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(ended.status, 0);
    }
}

TEST(FsvDumpNames, StartWithAHyphenBehindTwoHyphens)
{
    const TemporaryFolder folder;
    for (const std::string name : {"-o", "--tree", "--"}) {
        folder.File(name, Statement());
        Call call = DumpCall({"--", name});
        call.folder = folder.Path();
        EXPECT_EQ(RunToEnd(call).out, StatementDump(name));
    }
    folder.File("-", Statement());
    Call call = DumpCall({"./-"});
    call.folder = folder.Path();
    EXPECT_EQ(RunToEnd(call).out, StatementDump("-"));
}

TEST(FsvDumpNames, ThatAreNotUtf8LeaveTheDumpInUtf8)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a\xFF\xE2\x82.afp", Statement());
    EXPECT_EQ(Dump({file}).out, StatementDump("a\uFFFD\uFFFD\uFFFD.afp"));
    EXPECT_EQ(Dump({"--save", file}).status, 0);
    EXPECT_EQ(ReadWhole(file + ".txt"), InSystemPage(StatementDump("a???.afp")));
    ExpectUnread(Dump({folder / "no\xFF"}),
                 folder.Path() + "/no\uFFFD: There is no such file. Check its name and path.");
}

TEST(FsvDumpNames, WithLineEndsAndEscapesLeaveMessagesOnOneLine)
{
    const TemporaryFolder folder;
    const std::string name = "a\nb\x1B[31m";
    const Ended ended = Dump({"--tree", folder.File(name, Statement())});
    EXPECT_TRUE(ended.out.starts_with("a␊b␛[31m\t\t\n  Document\t\t\n"));
    EXPECT_EQ(ended.status, 0);
    ExpectUnread(Dump({folder / ("no" + name)}),
                 folder.Path() + "/noa␊b␛[31m: There is no such file. Check its name and path.");
    EXPECT_EQ(Dump({folder / name}).out, StatementDump(name));
}

TEST(FsvDumpNames, AreShownWithoutTheirFolders)
{
    const TemporaryFolder folder;
    folder.File("a.afp", Statement());
    Call call = DumpCall({"./a.afp"});
    call.folder = folder.Path();
    EXPECT_EQ(RunToEnd(call).out, StatementDump("a.afp"));
}

TEST(FsvDumpNames, MayBeLinks)
{
    const TemporaryFolder folder;
    folder.File("a.afp", Statement());
    std::filesystem::create_symlink("a.afp", folder / "link");
    EXPECT_EQ(Dump({folder / "link"}).out, StatementDump("link"));
}

}  // namespace folioscope::test
