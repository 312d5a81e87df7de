#include <gtest/gtest.h>

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "document/document.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::Field;
using test::HeadLines;
using test::IsHeldOpen;
using test::LinesOf;
using test::Outline;
using test::Packaging;
using test::PlainFolders;
using test::Raw;
using test::TestDocument;
using test::U1;
using test::U2;
using test::Zeros;
using Lines = std::vector<std::string>;

constexpr std::uint32_t kRoot = NodeStore::kRoot;
constexpr unsigned kExtension = 0x80, kSegmentedFlag = 0x20, kPadding = 0x08;
constexpr std::string_view kTruncated = "Structure E: This file seems to be truncated! Processing was canceled!";

Settings In(int language, int technicalEnglish = 0)
{
    Settings settings = PlainFolders();
    settings.Language = language;
    settings.TechnicalEnglish = technicalEnglish;
    return settings;
}

// Records of 1,000 bytes each in the file.
Bytes Notes(int count)
{
    AfpFile file;
    for (int i = 0; i < count; ++i) file.Add("NOP", Ebcdic(std::string(991, 'x')));
    return file.Content();
}

// A sparse file whose last bytes are these.
std::string SparseFile(const test::TemporaryFolder& folder, std::int64_t size, const Bytes& first, const Bytes& last)
{
    const std::string path = folder.File("big.afp", first);
    const int handle = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    EXPECT_EQ(::ftruncate(handle, size), 0);
    EXPECT_EQ(::pwrite(handle, last.data(), last.size(), size - static_cast<std::int64_t>(last.size())),
              static_cast<ssize_t>(last.size()));
    ::close(handle);
    return path;
}

// The file and its packaging ----------------------------------------------------------------------------------------

TEST(Run, AnEmptyFileGivesARootAndNothingElse)
{
    const auto doc = Analyse("");
    EXPECT_EQ(doc->document.Outcome(), RunOutcome::Walked);
    EXPECT_EQ(Outline(doc->Tree()), "test.afp\n");
    EXPECT_EQ(doc->document.SFCount(), 0);
    EXPECT_EQ(doc->messages.Size(), 0u);
    EXPECT_EQ(doc->host.calls, (Lines{"starts 0", "progress 0", "ends", "counters 0 0", "finished"}));
    EXPECT_EQ(doc->Content(kRoot), "Filename & -path: \"" + doc->path +
                                       "\"\r\n\r\n"
                                       "Filesize: 0 Bytes\r\n\r\n"
                                       "This file does NOT contain Record Descriptor Words (RDW).\r\n"
                                       "This file does NOT contain 5A bytes.\r\n"
                                       "This file does NOT contain any record delimiters.");
}

TEST(Run, TheRootTellsThePackaging)
{
    struct Case {
        Packaging packaging;
        bool descriptor, control;
        std::string_view delimiter;
    };
    constexpr Case kCases[] = {{Packaging::Bare, false, false, ""},       {Packaging::FiveA, false, true, ""},
                               {Packaging::Rdw2, true, true, ""},         {Packaging::Rdw4, true, true, ""},
                               {Packaging::Cr, false, true, "x'0D'"},     {Packaging::Lf, false, true, "x'0A'"},
                               {Packaging::CrLf, false, true, "x'0D 0A'"}};
    for (const auto& [packaging, descriptor, control, delimiter] : kCases) {
        SCOPED_TRACE(static_cast<int>(packaging));
        const auto doc =
            Analyse(AfpFile(packaging).Add("BDT").Add("NOP", Ebcdic("note")).Add("EDT").Content(), PlainFolders());
        EXPECT_EQ(Outline(doc->Tree()), "test.afp\n  Document\n    BDT\n    NOP: note\n    EDT\n");
        const std::string content = doc->Content(kRoot);
        const std::string expected =
            (descriptor ? std::string("This file contains Record Descriptor Words (RDW).\r\n")
                        : std::string("This file does NOT contain Record Descriptor Words (RDW).\r\n")) +
            (control ? "This file contains 5A bytes.\r\n" : "This file does NOT contain 5A bytes.\r\n") +
            (delimiter.empty() ? "This file does NOT contain any record delimiters."
                               : "Record delimiter contained:" + std::string(delimiter));
        EXPECT_EQ(content.substr(content.rfind("\r\n\r\n") + 4), expected);
    }
}

TEST(Run, TheRootTellsTheSizeWithTheSeparatorsInForce)
{
    EXPECT_NE(Analyse(Notes(3))->Content(kRoot).find("\r\n\r\nFilesize: 3,000 Bytes\r\n\r\n"), std::string::npos);
    const auto doc = Analyse(Notes(1234), {}, {}, {.thousands = ".", .decimal = ","});
    EXPECT_NE(doc->Content(kRoot).find("Filesize: 1.234.000 Bytes"), std::string::npos);
}

TEST(Run, TheRootSpeaksTwoLanguagesWithTechnicalEnglish)
{
    const Bytes content = AfpFile(Packaging::CrLf).Add("NOP", Ebcdic("note")).Content();
    const auto text = [&](int language, int technicalEnglish) {
        return Analyse(content, In(language, technicalEnglish))->Content(kRoot);
    };
    const auto expected = [&](Language analysis, Language interface) {
        const Labels a(analysis), i(interface);
        const auto shown = [](std::string_view label) { return std::string(label); };
        return "\"\r\n\r\n" + shown(a[L("Filesize")]) + ": " + std::to_string(content.size()) + " Bytes\r\n\r\n" +
               shown(i[U("This file does NOT contain Record Descriptor Words (RDW).")]) + "\r\n" +
               shown(i[U("This file contains 5A bytes.")]) + "\r\n" + shown(i[U("Record delimiter contained:")]) +
               "x'0D 0A'";
    };
    EXPECT_TRUE(text(1, 0).ends_with(expected(Language::English, Language::English)));
    EXPECT_TRUE(text(2, 0).ends_with(expected(Language::German, Language::German)));
    EXPECT_TRUE(text(3, 0).ends_with(expected(Language::French, Language::French)));
    EXPECT_TRUE(text(2, 1).ends_with(expected(Language::English, Language::German)));
    EXPECT_TRUE(text(3, 1).ends_with(expected(Language::English, Language::French)));
    EXPECT_TRUE(text(2, 0).starts_with("Dateiname & -pfad: \"/"));
    EXPECT_TRUE(text(2, 1).starts_with("Filename & -path: \"/"));
}

TEST(Run, AnotherNameCanStandInPlaceOfTheFiles)
{
    TestDocument doc(AfpFile().Add("NOP").Content());
    EXPECT_TRUE(doc.document.ProcessAFPFile(doc.path, "standard input"));
    EXPECT_EQ(Outline(doc.Tree()), "standard input\n  NOP\n");
    EXPECT_TRUE(doc.Content(kRoot).starts_with("Filename & -path: \"standard input\"\r\n"));
}

TEST(Run, HoldsNothingOfTheFileOpenAfterwards)
{
    TestDocument doc(Notes(100));
    bool during = false;
    doc.host.onGiveWay = [&] { during = IsHeldOpen(doc.path); };
    EXPECT_TRUE(doc.Run());
    EXPECT_TRUE(during);
    EXPECT_FALSE(IsHeldOpen(doc.path));
}

// Files that can't be analysed --------------------------------------------------------------------------------------

void ExpectRefusal(TestDocument& doc, RunOutcome outcome, const std::string& text)
{
    EXPECT_EQ(doc.document.Outcome(), outcome);
    EXPECT_FALSE(doc.document.Processing());
    ASSERT_EQ(doc.host.boxes.size(), 1u);
    EXPECT_EQ(doc.host.boxes[0].icon, BoxIcon::Stop);
    EXPECT_EQ(doc.host.boxes[0].title, "Stop");
    EXPECT_EQ(doc.host.boxes[0].text, text);
    EXPECT_EQ(doc.host.CountOf("starts"), doc.host.CountOf("ends"));
    EXPECT_EQ(doc.host.CountOf("finished"), 0u);
    EXPECT_EQ(doc.messages.Size(), 0u);
}

TEST(Run, AMissingFileIsToldAndNotAnalysed)
{
    TestDocument doc("");
    const std::string path = doc.folder / "missing.afp";
    EXPECT_FALSE(doc.document.ProcessAFPFile(path));
    ExpectRefusal(doc, RunOutcome::Missing,
                  "File " + path + " could not be opened! Following error occured:\rFile does not exist, ");
    EXPECT_EQ(doc.document.Failure().number, 53);
    EXPECT_EQ(doc.host.calls, (Lines{"box"}));
}

TEST(Run, AMissingFileIsToldInTheLanguageOfTheInterface)
{
    TestDocument doc("", In(2, 1));
    const std::string path = doc.folder / "missing.afp";
    EXPECT_FALSE(doc.document.ProcessAFPFile(path));
    ExpectRefusal(doc, RunOutcome::Missing,
                  "Die Datei " + path +
                      " konnte nicht geöffnet werden! Folgender Fehler ist aufgetreten:\rFile does not exist, ");
}

TEST(Run, PlaceholdersAreFilledInTheirOrderAlsoInsideOfAPath)
{
    TestDocument doc("");
    EXPECT_FALSE(doc.document.ProcessAFPFile(doc.folder / "a%2b.afp"));
    ExpectRefusal(doc, RunOutcome::Missing,
                  "File " + (doc.folder / "aFile does not existb.afp") +
                      " could not be opened! Following error occured:\r%2, ");
}

TEST(Run, AFolderCanNotBeOpened)
{
    TestDocument doc("");
    EXPECT_FALSE(doc.document.ProcessAFPFile(doc.folder.Path()));
    ExpectRefusal(doc, RunOutcome::OpenFailed,
                  "File " + doc.folder.Path() + " could not be opened! Following error occured:\r76, Path not found");
    EXPECT_EQ(doc.document.Failure().number, 76);
}

TEST(Run, AFileWithoutReadingRightsCanNotBeOpened)
{
    TestDocument doc(Notes(1));
    ASSERT_EQ(::chmod(doc.folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(doc.path.c_str(), 0), 0);
    bool analysed = true;
    {
        const test::AsOrdinaryUser user;
        if (!user.Succeeded()) GTEST_SKIP() << "root may read everything";
        analysed = doc.Run();
    }
    EXPECT_FALSE(analysed);
    ExpectRefusal(doc, RunOutcome::OpenFailed,
                  "File " + doc.path + " could not be opened! Following error occured:\r70, Permission denied");
}

TEST(Run, AFileOfTwoGigabytesIsTooBig)
{
    TestDocument doc("");
    const std::string path = SparseFile(doc.folder, 2'147'483'648, AfpFile().Add("BDT").Content(), "");
    EXPECT_FALSE(doc.document.ProcessAFPFile(path));
    ExpectRefusal(
        doc, RunOutcome::TooBig,
        "File " + path +
            " could not be opened! Following error occured:\rFile too big, Files over 2 GB are not supported.");
    EXPECT_EQ(doc.host.calls, (Lines{"box"}));
}

TEST(Run, AFileOneByteSmallerIsWalkedToItsEnd)
{
    TestDocument doc("", PlainFolders());
    const Bytes last = AfpFile().Add("NOP", Ebcdic("last")).Add("EDT").Content();
    const std::string path = SparseFile(doc.folder, 2'147'483'647, AfpFile().Add("BDT").Content(), last);
    std::int64_t before = 0, widest = 0;
    doc.host.onGiveWay = [&] {
        widest = std::max(widest, doc.host.progress.back() - before);
        before = doc.host.progress.back();
        doc.host.calls.clear();
    };
    EXPECT_TRUE(doc.document.ProcessAFPFile(path));
    EXPECT_EQ(Outline(doc.Tree()), "big.afp\n  Document\n    BDT\n    NOP: last\n    EDT\n");
    EXPECT_EQ(doc.document.GetNodeContents_lngStart(5), 2'147'483'640);
    EXPECT_TRUE(doc.Content(5).starts_with(HeadLines("EDT (End Document, x'D3 A9 A8')", 2'147'483'639, 8)));
    EXPECT_EQ(doc.document.SFCount(), 3);
    EXPECT_EQ(doc.messages.Size(), 0u);
    EXPECT_LE(widest, 2 * 65'536);
    EXPECT_EQ(doc.host.progress.back(), 2'147'483'647);
}

// What the file holds -----------------------------------------------------------------------------------------------

TEST(Run, AFileThatEndsInsideAPageIsTruncated)
{
    const auto doc = Analyse(AfpFile().Add("BDT").Add("BPG", Ebcdic8("PAGE0001")).Content(), PlainFolders());
    EXPECT_EQ(Outline(doc->Tree()), "test.afp\n  Document\n    BDT\n    Page 1: PAGE0001\n      BPG: PAGE0001\n");
    EXPECT_EQ(LinesOf(doc->messages), (Lines{std::string(kTruncated)}));
    EXPECT_TRUE(doc->messages[0].bolHighlight);
    EXPECT_FALSE(doc->IsRed(kRoot));
    EXPECT_EQ(doc->document.Outcome(), RunOutcome::Walked);
}

TEST(Run, AFileIsTruncatedAsLongAsAFolderIsOpen)
{
    const auto faults = [](const std::vector<Field>& fields) {
        AfpFile file;
        for (const auto& field : fields) file.Add(field);
        return LinesOf(Analyse(file.Content())->messages);
    };
    const Lines none, truncated = {std::string(kTruncated)};
    EXPECT_EQ(faults({{"BDT"}}), truncated);
    EXPECT_EQ(faults({{"BDT"}, {"EDT"}}), none);
    EXPECT_EQ(faults({{"BDT"}, {"BPG"}, {"EPG"}}), truncated);
    EXPECT_EQ(faults({{"BDT"}, {"BPG"}, {"EPG"}, {"NOP"}}), truncated);
    EXPECT_EQ(faults({{"BDT"}, {"BPG"}, {"EPG"}, {"EDT"}, {"NOP"}}), none);
    EXPECT_EQ(faults({{"BDT"}, {.name = "EDT", .flags = kSegmentedFlag}}), truncated);
    EXPECT_EQ(faults({{.name = "BDT", .flags = kSegmentedFlag}, {"NOP"}}), truncated);
}

TEST(Run, AFlatFileIsNeverTruncated)
{
    const auto doc = Analyse(Notes(3000), PlainFolders());
    EXPECT_EQ(doc->messages.Size(), 0u);
    EXPECT_EQ(doc->Tree().Nodes().Size(), 3002u);
    for (std::uint32_t node = 2; node < 3002; ++node) ASSERT_EQ(doc->Tree().Nodes()[node].parent, kRoot);
}

TEST(Run, AFileWithoutRecordsGivesARoot)
{
    const auto doc = Analyse(std::string(100'000, 'x'));
    EXPECT_EQ(Outline(doc->Tree()), "test.afp\n");
    EXPECT_EQ(doc->document.SFCount(), 0);
    EXPECT_EQ(doc->messages.Size(), 0u);
}

TEST(Run, CountsEveryRecord)
{
    const auto doc = Analyse(AfpFile()
                                 .Add("BDT")
                                 .Noise(Zeros(7))
                                 .Add("NOP")
                                 .Add({.name = "NOP", .flags = kSegmentedFlag})
                                 .Add("EDT")
                                 .Content(),
                             PlainFolders());
    EXPECT_EQ(doc->document.SFCount(), 4);
    EXPECT_EQ(Outline(doc->Tree()), "test.afp\n  Document\n    BDT\n    NOP\n    NOP\n    EDT\n");
}

TEST(Run, ShowsNamesThatAreTextOnly)
{
    const auto captions = [](const Bytes& name) {
        const auto doc = Analyse(AfpFile().Add("BPG", name).Add("EPG").Content(), PlainFolders());
        return doc->NodeText(3) + "|" + doc->NodeText(2);
    };
    EXPECT_EQ(captions(Ebcdic8("  P 1")), "BPG: P 1|Page 1: P 1");
    EXPECT_EQ(captions(Ebcdic8("A>B")), "BPG: A>B|Page 1: A>B");
    EXPECT_EQ(captions(Ebcdic8("")), "BPG|Page 1");
    EXPECT_EQ(captions(Zeros(2) + Ebcdic("ABCDEF")), "BPG|Page 1");
    EXPECT_EQ(captions(Raw({0xFF, 0xFF}) + Ebcdic("ABCDEF")), "BPG|Page 1");
    EXPECT_EQ(captions(Raw({0xDF}) + Ebcdic("ABCDEFG")), "BPG|Page 1");  // a y with two dots, code 255
    EXPECT_EQ(captions({}), "BPG|Page 1");
}

TEST(Run, ShowsNotesAsTheyAre)
{
    const auto caption = [](const Bytes& note) { return Analyse(AfpFile().Add("NOP", note).Content())->NodeText(2); };
    EXPECT_EQ(caption(Ebcdic("  a note ")), "NOP:   a note ");
    EXPECT_EQ(caption(Zeros(2) + Ebcdic("note")), "NOP");
    EXPECT_EQ(caption(Raw({0xDF}) + Ebcdic("note")), "NOP");
    EXPECT_EQ(caption({}), "NOP");
}

TEST(Run, ReadsTextInTheCodePagesOfTheSettings)
{
    Settings settings;
    settings.Codepage = 500;
    settings.CodepageNOP = 37;
    const Field field{.name = "NOP", .data = U1(2) + U1(0x5A) + U1(0x5A), .flags = kExtension};
    const auto doc = Analyse(AfpFile().Add(field).Content(), settings);
    EXPECT_EQ(doc->NodeText(2), "NOP: !");
    EXPECT_NE(doc->Content(2).find("Content: \"]\"\r\n"), std::string::npos);
    settings.CodepageNOP = 500;
    EXPECT_EQ(Analyse(AfpFile().Add(field).Content(), settings)->NodeText(2), "NOP: ]");
}

TEST(Run, TellsOfAnExtensionBehindTheBody)
{
    const Bytes data = U1(6) + Ebcdic("HELLO") + Ebcdic("note");
    const auto doc = Analyse(AfpFile().Add({.name = "NOP", .data = data, .flags = kExtension}).Content());
    EXPECT_EQ(doc->Content(2), HeadLines("NOP (No Operation, x'D3 EE EE')", 1, 18) +
                                   "Content:\t°^°B~note°^°N~\r\n"
                                   "\r\nThis record contains extended information with a length of 5 bytes with\r\n"
                                   "Content: \"HELLO\"\r\n");
    EXPECT_EQ(doc->NodeText(2), "NOP: note");
}

TEST(Run, TellsOfPaddingBehindTheBody)
{
    const auto content = [](const Bytes& padding) {
        const auto doc =
            Analyse(AfpFile().Add({.name = "NOP", .data = Ebcdic("note") + padding, .flags = kPadding}).Content());
        return doc->Content(2);
    };
    const std::string_view name = "NOP (No Operation, x'D3 EE EE')";
    EXPECT_EQ(content(Zeros(2) + U1(3)),
              HeadLines(name, 1, 15) + "Content:\t°^°B~note°^°N~\r\n"
                                       "\r\nThis record contains 3 padding bytes up to the end of the record.\r\n");
    EXPECT_EQ(content(Zeros(1997) + U2(2000) + U1(0)),
              HeadLines(name, 1, 2012) +
                  "Content:\t°^°B~note°^°N~\r\n"
                  "\r\nThis record contains 2,000 padding bytes up to the end of the record.\r\n");
}

TEST(Run, TellsOfAnExtensionInFrontOfPadding)
{
    const Field field{.name = "BPG", .data = U1(2) + Ebcdic("X") + Zeros(1) + U1(2), .flags = kExtension | kPadding};
    const auto doc = Analyse(AfpFile().Add(field).Content(), In(2));
    const std::string content = doc->Content(3);
    EXPECT_EQ(content.substr(content.find("\r\n\r\n") + 4),
              "\r\nDieser Datensatz enthält erweiterte Informationen von 1 Bytes Länge mit\r\nInhalt: \"X\"\r\n"
              "\r\nDieser Datensatz enthält 2 Füllbytes bis zum Ende des Datensatzes.\r\n");
}

}  // namespace
}  // namespace folioscope
