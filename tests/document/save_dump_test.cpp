// How a dump is written: what the host hears, how it is stopped, where it goes.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "document/document.h"
#include "document_support.h"

namespace folioscope {
namespace {

namespace fs = std::filesystem;
using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::Ebcdic;
using test::ReadWhole;
using test::StringSink;
using test::TestDocument;
using test::TestPorts;
using Lines = std::vector<std::string>;

constexpr std::string_view kSeparator = "     ---------\r\n";
constexpr std::string_view kFailed = "An error occured while creating the export file:\r\nError: ";

Bytes Notes(int count)
{
    AfpFile file;
    for (int i = 0; i < count; ++i) file.Add("NOP", Ebcdic("note " + std::to_string(i)));
    return file.Content();
}

std::string Dump(TestDocument& doc)
{
    StringSink sink;
    EXPECT_TRUE(doc.document.WriteDump(sink, DumpEncoding::SystemPage).Whole());
    return sink.text;
}

std::size_t EntriesOf(const std::string& folder)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder)) ++count;
    return count;
}

void ExpectBox(const TestDocument& doc, BoxIcon icon, const std::string& text)
{
    ASSERT_EQ(doc.host.boxes.size(), 1u);
    EXPECT_EQ(doc.host.boxes[0].icon, icon);
    EXPECT_EQ(doc.host.boxes[0].title, icon == BoxIcon::Stop ? "Stop" : "Information");
    EXPECT_EQ(doc.host.boxes[0].text, text);
}

// Were the code wrong, root would replace the machine's own device.
void SaveToDevice(TestDocument& doc, const std::string& device)
{
    const test::AsOrdinaryUser user;
    if (!user.Succeeded()) GTEST_SKIP() << "root could harm the device";
    doc.document.SaveDump(device);
}

// A part of `whole` that ends with a block.
void ExpectWholeBlocks(const std::string& part, const std::string& whole)
{
    EXPECT_TRUE(whole.starts_with(part));
    EXPECT_LT(part.size(), whole.size());
    EXPECT_TRUE(whole.substr(part.size()).starts_with(kSeparator));
}

std::size_t BlockCount(const std::string& dump)
{
    std::size_t count = 0;
    for (auto at = dump.find(kSeparator); at != std::string::npos; at = dump.find(kSeparator, at + 1)) ++count;
    return count;
}

TEST(WriteDump, IsAnOperationThatGivesWayEveryFiveHundredNodes)
{
    const auto doc = Analyse(Notes(1700));
    doc->host.calls.clear();
    doc->host.progress.clear();
    doc->host.waysGiven = 0;
    Dump(*doc);
    EXPECT_EQ(doc->host.waysGiven, 3);
    EXPECT_TRUE(doc->host.calls.front().starts_with("starts "));
    EXPECT_EQ(doc->host.calls.back(), "ends");
    EXPECT_EQ(doc->host.CountOf("finished"), 0u);
    EXPECT_TRUE(doc->host.boxes.empty());
    std::int64_t before = 0;
    for (const auto value : doc->host.progress) {
        EXPECT_GT(value, before);
        EXPECT_LE(value, 1702);
        before = value;
    }
}

TEST(WriteDump, CanBeCancelledAndEndsWithAWholeBlock)
{
    const auto doc = Analyse(Notes(1700));
    const std::string whole = Dump(*doc);
    doc->host.waysGiven = 0;
    doc->host.onGiveWay = [&] {
        if (doc->host.waysGiven == 2) doc->document.SetOperationInteruptedFlag(true);
    };
    StringSink sink;
    const DumpResult result = doc->document.WriteDump(sink, DumpEncoding::SystemPage);
    EXPECT_TRUE(result.cancelled);
    EXPECT_FALSE(result.Whole());
    EXPECT_FALSE(result.input);
    EXPECT_FALSE(result.output);
    EXPECT_TRUE(doc->document.GetOperationInteruptedFlag());
    EXPECT_EQ(doc->host.calls.back(), "ends");
    ExpectWholeBlocks(sink.text, whole);
    EXPECT_GE(BlockCount(sink.text), 998u);
    EXPECT_LE(BlockCount(sink.text), 1001u);
}

TEST(WriteDump, ASinkThatTakesNoMoreEndsIt)
{
    struct FullSink final : DumpSink {
        FileFailure Write(std::string_view) override { return ++writes == 3 ? kDiskFull : FileFailure{}; }
        int writes = 0;
    };
    AfpFile file;
    for (int i = 0; i < 100; ++i) file.Add("NOP", Ebcdic(std::string(60'000, 'x')));
    const auto doc = Analyse(file.Content());
    FullSink sink;
    const DumpResult result = doc->document.WriteDump(sink, DumpEncoding::Utf8);
    EXPECT_EQ(result.output.number, 61);
    EXPECT_FALSE(result.input);
    EXPECT_FALSE(result.cancelled);
    EXPECT_FALSE(result.Whole());
    EXPECT_EQ(sink.writes, 3);
    EXPECT_EQ(doc->host.calls.back(), "ends");
}

// The user may select an unread node whenever a dump gives way: the window opens the file, reads, and closes it.
TEST(WriteDump, GoesOnWhenANodeIsSelectedMeanwhile)
{
    AfpFile file;
    for (int i = 0; i < 600; ++i) file.Add("PTX", Ebcdic("BODY " + std::string(40'000, 'x') + std::to_string(i)));
    const auto undisturbed = Analyse(file.Content(), {}, TestPorts()), doc = Analyse(file.Content(), {}, TestPorts());
    doc->host.onGiveWay = [&] { EXPECT_FALSE(doc->Select(590)); };
    StringSink sink;
    const DumpResult result = doc->document.WriteDump(sink, DumpEncoding::SystemPage);
    EXPECT_TRUE(result.Whole());
    EXPECT_EQ(result.input.number, 0);
    EXPECT_TRUE(sink.text == Dump(*undisturbed));
}

TEST(SaveDump, WritesTheFileAndTellsSo)
{
    const auto doc = Analyse(Notes(3));
    const std::string target = doc->path + ".txt";
    doc->document.SaveDump(target);
    ExpectBox(*doc, BoxIcon::Information, "Dump has been saved as " + target + "!");
    EXPECT_EQ(ReadWhole(target), Dump(*doc));
    EXPECT_FALSE(doc->document.GetOperationInteruptedFlag());
    EXPECT_EQ(EntriesOf(doc->folder.Path()), 2u);
}

TEST(SaveDump, TellsItInTheLanguageOfTheInterface)
{
    Settings settings;
    settings.Language = 2;
    settings.TechnicalEnglish = 1;
    const auto doc = Analyse(Notes(1), settings);
    const std::string target = doc->path + ".txt";
    doc->document.SaveDump(target);
    ExpectBox(*doc, BoxIcon::Information, "Der Dump wurde als " + target + " gespeichert!");
}

TEST(SaveDump, ReplacesAFileOfTheNameWhenTheDumpIsWhole)
{
    const auto doc = Analyse(Notes(1700));
    const std::string target = doc->folder.File("old.txt", "the old text, left alone while the dump is written");
    std::string during;
    doc->host.onGiveWay = [&] { during = ReadWhole(target); };
    doc->document.SaveDump(target);
    EXPECT_EQ(during, "the old text, left alone while the dump is written");
    EXPECT_EQ(ReadWhole(target), Dump(*doc));
    EXPECT_EQ(EntriesOf(doc->folder.Path()), 2u);
}

TEST(SaveDump, ReplacesWhatALinkPointsTo)
{
    const auto doc = Analyse(Notes(1));
    const std::string target = doc->folder.File("old.txt", "old"), link = doc->folder / "link.txt";
    fs::create_symlink(target, link);
    doc->document.SaveDump(link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(ReadWhole(target), Dump(*doc));
    ExpectBox(*doc, BoxIcon::Information, "Dump has been saved as " + link + "!");
}

TEST(SaveDump, ACancelledDumpLeavesItsWholeBlocksAndSaysNothing)
{
    const auto doc = Analyse(Notes(1700));
    const std::string whole = Dump(*doc), target = doc->folder.File("dump.txt", "old");
    doc->host.onGiveWay = [&] { doc->document.SetOperationInteruptedFlag(true); };
    doc->document.SaveDump(target);
    EXPECT_TRUE(doc->host.boxes.empty());
    EXPECT_TRUE(doc->document.GetOperationInteruptedFlag());
    const std::string part = ReadWhole(target);
    ExpectWholeBlocks(part, whole);
    EXPECT_GE(BlockCount(part), 498u);
    EXPECT_LE(BlockCount(part), 501u);
    EXPECT_EQ(EntriesOf(doc->folder.Path()), 2u);
}

TEST(SaveDump, AFolderAsItsTargetIsToldWithItsNumber)
{
    const auto doc = Analyse(Notes(1));
    doc->document.SaveDump(doc->folder.Path());
    ExpectBox(*doc, BoxIcon::Stop, std::string(kFailed) + "76, Path not found\r\nFile: " + doc->folder.Path());
}

TEST(SaveDump, AMissingFolderIsToldWithItsNumber)
{
    const auto doc = Analyse(Notes(1));
    const std::string target = doc->folder / "missing/dump.txt";
    doc->document.SaveDump(target);
    ExpectBox(*doc, BoxIcon::Stop, std::string(kFailed) + "76, Path not found\r\nFile: " + target);
}

TEST(SaveDump, AFolderWithoutWritingRightsIsToldWithItsNumber)
{
    const auto doc = Analyse(Notes(1));
    const std::string target = doc->path + ".txt";
    ASSERT_EQ(::chmod(doc->folder.Path().c_str(), 0555), 0);
    {
        const test::AsOrdinaryUser user;
        if (!user.Succeeded()) GTEST_SKIP() << "root may write everywhere";
        doc->document.SaveDump(target);
    }
    ::chmod(doc->folder.Path().c_str(), 0755);
    ExpectBox(*doc, BoxIcon::Stop, std::string(kFailed) + "70, Permission denied\r\nFile: " + target);
    EXPECT_EQ(EntriesOf(doc->folder.Path()), 1u);
}

TEST(SaveDump, AFullDiskIsToldWithItsNumberAndStopsTheOperation)
{
    const auto doc = Analyse(Notes(3));
    SaveToDevice(*doc, "/dev/full");
    if (IsSkipped()) return;
    ExpectBox(*doc, BoxIcon::Stop, std::string(kFailed) + "61, Disk full\r\nFile: /dev/full");
    EXPECT_TRUE(doc->document.GetOperationInteruptedFlag());
}

TEST(SaveDump, AVanishedFileIsToldWithItsNumberAndWhatWasWrittenStays)
{
    const auto doc = Analyse(Notes(2) + AfpFile().Add("PTX", Ebcdic("BODY")).Content() + Notes(1), {}, TestPorts());
    const std::string whole = Dump(*Analyse(Notes(2))), target = doc->folder / "dump.txt";
    fs::remove(doc->path);
    doc->document.SaveDump(target);
    ExpectBox(*doc, BoxIcon::Stop, std::string(kFailed) + "53, File not found\r\nFile: " + doc->path);
    EXPECT_TRUE(doc->document.GetOperationInteruptedFlag());
    EXPECT_EQ(ReadWhole(target), whole);
}

TEST(SaveDump, FailuresAreToldInTheLanguageOfTheInterface)
{
    Settings settings;
    settings.Language = 2;
    const auto doc = Analyse(Notes(1), settings);
    SaveToDevice(*doc, "/dev/full");
    if (IsSkipped()) return;
    ExpectBox(*doc, BoxIcon::Stop,
              "Beim Erstellen der Exportdatei ist ein Fehler aufgetreten:\r\n"
              "Fehler: 61, Disk full\r\nDatei: /dev/full");
}

TEST(SaveDump, WritesADeviceWithoutReplacingIt)
{
    const auto doc = Analyse(Notes(3));
    SaveToDevice(*doc, "/dev/null");
    if (IsSkipped()) return;
    ExpectBox(*doc, BoxIcon::Information, "Dump has been saved as /dev/null!");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace folioscope
