// What a dump says.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/version.h"
#include "codepages/system_page.h"
#include "document/document.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::LinesOf;
using test::PlainFolders;
using test::Raw;
using test::StringSink;
using test::TestDocument;
using test::TestPorts;
using test::U1;
using test::Zeros;
using Lines = std::vector<std::string>;

constexpr std::string_view kSeparator = "     ---------\r\n";

std::string Dump(TestDocument& doc, DumpEncoding encoding = DumpEncoding::SystemPage)
{
    StringSink sink;
    const DumpResult result = doc.document.WriteDump(sink, encoding);
    EXPECT_TRUE(result.Whole());
    EXPECT_EQ(result.bytes, sink.text.size());
    return sink.text;
}

// The dump behind its six header lines.
std::string Blocks(const std::string& dump, std::string_view lineEnd = "\r\n")
{
    std::size_t at = 0;
    for (int i = 0; i < 6; ++i) {
        const auto end = dump.find(lineEnd, at);
        if (end == std::string::npos) return "a header of too few lines: " + dump;
        at = end + lineEnd.size();
    }
    return dump.substr(at);
}

std::string BlocksOf(const Bytes& content, const Settings& settings = {})
{
    return Blocks(Dump(*Analyse(content, settings)));
}

std::string Block(const std::vector<std::string>& lines)
{
    std::string block(kSeparator);
    for (const auto& line : lines) block += line + "\r\n";
    return block;
}

TEST(TextDump, BeginsWithTheNameOfTheFileAndANotice)
{
    const auto doc = Analyse("");
    const std::string version(kVersion), year(kReleaseDate.substr(kReleaseDate.size() - 4));
    const std::string dump = Dump(*doc);
    EXPECT_EQ(dump, "test.afp:\r\n\r\n\tDump created by Folioscope Professional Version " + version +
                        "\r\n\tFolioscope, (c) " + year + "\r\n\thttp://www.marrowgate.example/\r\n\r\n");
    EXPECT_EQ(Blocks(dump), "");
}

TEST(TextDump, WritesTheNameOfTheFileInTheEncodingOfTheDump)
{
    TestDocument doc("");
    doc.document.ProcessAFPFile(doc.path, "größe: 5 € Ж.afp");
    EXPECT_TRUE(Dump(doc).starts_with("gr\xF6\xDF"
                                      "e: 5 \x80 ?.afp:\r\n\r\n"));
    EXPECT_TRUE(Dump(doc, DumpEncoding::Utf8).starts_with("größe: 5 € Ж.afp:\n\n\tDump created by "));
}

TEST(TextDump, WritesABlockForEachRecordAndNoneForFolders)
{
    AfpFile file;
    file.Add("NOP", Ebcdic("first"))
        .Add("BDT")
        .Add("BPG", Ebcdic8("PAGE0001"))
        .Add("NOP", Ebcdic("a note: with a colon"))
        .Add("EPG")
        .Add("BPG")
        .Add("EPG", Ebcdic8("PAGE0002"))
        .Add("EDT");
    EXPECT_EQ(BlocksOf(file.Content()),
              Block({"\tNOP\tContent:\tfirst"}) + Block({">\tBDT"}) + Block({">>\tBPG\tName:\tPAGE0001"}) +
                  Block({">>\tNOP\tContent:\ta note: with a colon"}) + Block({">>\tEPG"}) + Block({">>\tBPG"}) +
                  Block({">>\tEPG\tName:\tPAGE0002"}) + Block({">\tEDT"}));
}

TEST(TextDump, WritesFurtherLinesBehindTwoTabs)
{
    const test::Field field{.name = "NOP", .data = U1(3) + Ebcdic("AB") + Ebcdic("note"), .flags = 0x80};
    EXPECT_EQ(BlocksOf(AfpFile().Add("BDT").Add(field).Add("EDT").Content()),
              Block({">\tBDT"}) +
                  Block({">\tNOP\tContent:\tnote", ">\t\t",
                         ">\t\tThis record contains extended information with a length of 2 bytes with",
                         ">\t\tContent: \"AB\""}) +
                  Block({">\tEDT"}));
}

TEST(TextDump, PassesOverTheEmptyLineBehindTheHead)
{
    const test::Field field{.name = "BDT", .data = U1(3) + Ebcdic("AB"), .flags = 0x80};
    EXPECT_EQ(BlocksOf(AfpFile().Add(field).Content()),
              Block({">\tBDT\tThis record contains extended information with a length of 2 bytes with",
                     ">\t\tContent: \"AB\""}));
}

TEST(TextDump, SpeaksTheLanguageOfTheAnalysis)
{
    Settings settings;
    settings.Language = 2;
    EXPECT_EQ(BlocksOf(AfpFile().Add("NOP", Ebcdic("note")).Content(), settings), Block({"\tNOP\tInhalt:\tnote"}));
}

TEST(TextDump, OneGreaterSignStandsForEachLevelBelowTheFirst)
{
    AfpFile file;
    for (int i = 0; i < 4500; ++i) file.Add("BNG");
    file.Add("NOP", Ebcdic("one") + Raw({0x0D, 0x25}) + Ebcdic("two"));
    const std::string blocks = BlocksOf(file.Content()), deepest(4500, '>');
    std::string expected;
    for (std::size_t i = 1; i <= 4500; ++i) expected += Block({std::string(i, '>') + "\tBNG"});
    expected += Block({deepest + "\tNOP\tContent:\tone", deepest + "\t\ttwo"});
    EXPECT_TRUE(blocks == expected);
}

TEST(TextDump, ADepthBeyondTheBufferIsWrittenInPieces)
{
    constexpr std::uint32_t kLevels = 700'000;
    const auto doc = Analyse("");
    auto& tree = const_cast<StructureTree&>(doc->Tree());
    for (std::uint32_t i = 0; i < kLevels; ++i) tree.AddNodes(kBegin, 136);
    tree.StoreNodeRecord("h\r\n\r\none\r\ntwo\r\n", false, 1, 8);
    StringSink sink;
    EXPECT_TRUE(doc->document.WriteDump(sink, DumpEncoding::SystemPage).Whole());
    const std::string prefix(kLevels, '>');
    EXPECT_TRUE(Blocks(sink.text) == Block({prefix + "\t\tone", prefix + "\t\ttwo"}));
    for (const auto size : sink.sizes) EXPECT_LE(size, 1u << 20);
}

TEST(TextDump, KeepsTheRedTagsOfNames)
{
    const auto doc = Analyse(AfpFile().Add("BDT").Add("EPG", Ebcdic8("A>B: C")).Add("NOP", Ebcdic("note")).Content());
    const std::string dump = Dump(*doc);
    EXPECT_TRUE(dump.starts_with("<color=clred>test.afp:\r\n"));
    EXPECT_EQ(Blocks(dump),
              Block({">\tBDT"}) + Block({">\t<color=clred>EPG\tName:\tA>B: C"}) + Block({"\tNOP\tContent:\tnote"}));
}

TEST(TextDump, ARedRecordWithoutNameKeepsItsTagToo)
{
    const auto doc = Analyse(AfpFile().Add("BDT").Add("EPG").Content());
    EXPECT_EQ(Blocks(Dump(*doc)), Block({">\tBDT"}) + Block({">\t<color=clred>EPG"}));
}

TEST(TextDump, ANameThatTheMarkHasCutIsTakenUpToItsFirstColon)
{
    const auto doc = Analyse(AfpFile().Add("NOP").Add("NOP", Ebcdic("A>B: C")).Content());
    auto& tree = const_cast<StructureTree&>(doc->Tree());
    tree.Revisit(3, true);
    tree.MarkNodeInvalid();
    EXPECT_EQ(doc->NodeText(3), "<color=clred>B: C");
    EXPECT_TRUE(Dump(*doc).ends_with(Block({"\t<color=clred>B\tContent:\tA>B: C"})));
}

TEST(TextDump, ATextWithoutALineGivesTheWholeNodeText)
{
    Settings settings;
    const Bytes content = AfpFile().Add("NOP", Ebcdic(std::string(65'527, 'x'))).Content();
    EXPECT_EQ(BlocksOf(content, settings), Block({"\tNOP: " + std::string(65'527, 'x')}));
    settings.ShowNOP = 0;
    EXPECT_EQ(BlocksOf(content, settings), Block({"\tNOP"}));
}

// Texts without head lines ------------------------------------------------------------------------------------------

// No record of a file gives such a text while all its fields are known, so the tree gets a leaf by hand.
std::string BlockOfText(std::string_view text)
{
    const auto doc = Analyse("");
    auto& tree = const_cast<StructureTree&>(doc->Tree());
    tree.AddNodes(kRecord, 136);
    tree.StoreNodeRecord(text, false, 1, 8);
    return Blocks(Dump(*doc));
}

TEST(TextDump, StartsBehindTheFirstParagraph)
{
    EXPECT_EQ(BlockOfText("head\r\n\r\none\r\ntwo\r\n"), Block({"\t\tone", "\t\ttwo"}));
    EXPECT_EQ(BlockOfText("head\r\nmore head\r\n\r\none\r\n\r\ntwo\r\n"), Block({"\t\tone", "\t\t", "\t\ttwo"}));
    EXPECT_EQ(BlockOfText("\r\n\r\none\r\n"), Block({"\t\tone"}));
    EXPECT_EQ(BlockOfText("°^°B~head\r\n\r\n°^°N~one\r\n"), Block({"\t\tone"}));
}

TEST(TextDump, PassesOverOneEmptyLineBehindTheFirstParagraph)
{
    EXPECT_EQ(BlockOfText("head\r\n\r\n\r\none\r\n"), Block({"\t\tone"}));
    EXPECT_EQ(BlockOfText("head\r\n\r\n\r\n\r\none\r\n"), Block({"\t\t", "\t\tone"}));
}

TEST(TextDump, PassesOverThreeCharactersOfATextWithoutSuchAParagraph)
{
    EXPECT_EQ(BlockOfText("abcdef\r\nmore\r\n"), Block({"\t\tdef", "\t\tmore"}));
    EXPECT_EQ(BlockOfText("abc\r\ndef\r\n"), Block({"\t\tdef"}));  // five
    EXPECT_EQ(BlockOfText("ab\r\ndef\r\n"), Block({"\t\t\ndef"}));
    EXPECT_EQ(BlockOfText("é€üdef\r\n"), Block({"\t\tdef"}));
}

TEST(TextDump, ATextWithoutALineBehindItsStartGivesTheNodeTextAlone)
{
    EXPECT_EQ(BlockOfText("a single paragraph"), Block({"\t"}));
    EXPECT_EQ(BlockOfText("head\r\n\r\nrest"), Block({"\t"}));
    EXPECT_EQ(BlockOfText("head\r\n\r\n"), Block({"\t"}));
    EXPECT_EQ(BlockOfText("abc\r\n"), Block({"\t"}));
    EXPECT_EQ(BlockOfText("ab"), Block({"\t"}));
    EXPECT_EQ(BlockOfText("\r\n"), Block({"\t"}));
}

TEST(TextDump, DropsWhatStandsBehindTheLastLine)
{
    EXPECT_EQ(BlockOfText("head\r\n\r\none\r\nrest"), Block({"\t\tone"}));
}

TEST(TextDump, AnEmptyTextWritesNothing)
{
    EXPECT_EQ(BlockOfText(""), "");
    EXPECT_EQ(BlockOfText("   "), "");
}

TEST(TextDump, TakesTheMarkupOutOfEachLine)
{
    EXPECT_EQ(BlockOfText("h\r\n\r\n°^°B~bold°^°N~ and °^°R~red°^°S~\r\n°^°H~link°^°L~!\r\n"),
              Block({"\t\tbold and red", "\t\tlink!"}));
    EXPECT_EQ(BlockOfText("h\r\n\r\nx°^°N~\r\n°^°B~y\r\nz\r\n"), Block({"\t\tx", "\t\ty", "\t\tz"}));
    EXPECT_EQ(BlockOfText("h\r\n\r\na°^°xyb°^°\r\nc°^°x\r\nd\r\n"), Block({"\t\tab", "\t\tc", "\t\td"}));
    EXPECT_EQ(BlockOfText("h\r\n\r\n10 °C, °^ and ^°\r\n"), Block({"\t\t10 \xB0"
                                                                   "C, \xB0^ and ^\xB0"}));
}

// Characters --------------------------------------------------------------------------------------------------------

TEST(TextDump, AValueWithAMarkerInItLosesItAndTwoCharacters)
{
    const auto line = [](const Bytes& note) { return BlocksOf(AfpFile().Add("NOP", note).Content()); };
    const Bytes marker = Raw({0x90, 0xB0, 0x90});
    EXPECT_EQ(line(Ebcdic("abc") + marker + Ebcdic("xydef")), Block({"\tNOP\tContent:\tabcdef"}));
    EXPECT_EQ(line(Ebcdic("abc") + marker), Block({"\tNOP\tContent:\tabc\xB0N~"}));
}

TEST(TextDump, WritesCharactersOutsideThePageAsQuestionMarks)
{
    Settings settings;
    settings.CodepageNOP = 1200;
    const Bytes note = Raw({0x00, 0x41, 0x20, 0xAC, 0x00, 0xE9, 0x04, 0x16, 0xD8, 0x3D, 0xDE, 0x00, 0x00, 0x42});
    const auto doc = Analyse(AfpFile().Add("NOP", note).Content(), settings);
    EXPECT_EQ(Blocks(Dump(*doc)), Block({"\tNOP\tContent:\tA\x80\xE9???B"}));
    EXPECT_EQ(Blocks(Dump(*doc, DumpEncoding::Utf8), "\n"), "     ---------\n\tNOP\tContent:\tA€éЖ😀B\n");
}

TEST(TextDump, WritesControlCharactersAsTheyAre)
{
    const Bytes note = Ebcdic("a") + Raw({0x2F}) + Ebcdic("b") + Raw({0x05}) + Ebcdic("c") + Raw({0x0D}) + Ebcdic("d") +
                       Raw({0x25}) + Ebcdic("e") + Raw({0x07});
    EXPECT_EQ(BlocksOf(AfpFile().Add("NOP", note).Content()), Block({"\tNOP\tContent:\ta\ab\tc\rd\ne\x7F"}));
}

TEST(TextDump, ALineEndInsideOfAValueBeginsALine)
{
    const Bytes note =
        Ebcdic("one") + Raw({0x0D, 0x25}) + Ebcdic("two") + Raw({0x0D, 0x25, 0x0D, 0x25}) + Ebcdic("three");
    EXPECT_EQ(BlocksOf(AfpFile().Add("NOP", note).Content()),
              Block({"\tNOP\tContent:\tone", "\t\ttwo", "\t\t", "\t\tthree"}));
}

TEST(TextDump, TheTwoFormsDifferInEncodingAndLineEndsOnly)
{
    Settings settings;
    settings.CodepageNOP = 1200;
    AfpFile file;
    file.Add("BDT", Ebcdic8("DOC")).Add("EPG", Ebcdic8("X"));
    for (int i = 1; i < 0x500; ++i) {
        if (i == 0x0A || i == 0x0D) continue;
        Bytes note;
        for (int k = 0; k < 9; ++k) note += test::U2(static_cast<unsigned>(i)) + test::U2('a');
        file.Add({.name = "NOP", .data = U1(2) + Ebcdic("X") + note, .flags = 0x80});
    }
    const auto doc = Analyse(file.Content(), settings);
    const std::string system = Dump(*doc), utf8 = Dump(*doc, DumpEncoding::Utf8);
    std::string lines, expected;
    for (const char c : utf8) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
    AppendInSystemPage(lines, expected);
    EXPECT_EQ(utf8.find('\r'), std::string::npos);
    EXPECT_TRUE(system == expected);
}

// Bodies that the run left for later --------------------------------------------------------------------------------

TEST(TextDump, ReadsWhatTheRunDeferred)
{
    const Bytes content =
        AfpFile().Add("BPG").Add("PTX", Ebcdic("BODY")).Add("IPD", U1(9) + Zeros(3)).Add("PTX").Add("EPG").Content();
    const auto doc = Analyse(content, {}, TestPorts());
    const std::string first = Dump(*doc);
    EXPECT_EQ(Blocks(first), Block({">\tBPG"}) + Block({">\tPTX\tContent:\tBODY"}) +
                                 Block({">\t<color=clred>IPD\tBase unit X axis: Unknown (9)"}) + Block({">\tPTX"}) +
                                 Block({">\tEPG"}));
    // The header was written before the fault was found.
    EXPECT_TRUE(first.starts_with("test.afp:\r\n"));
    EXPECT_EQ(LinesOf(doc->messages), (Lines{"Content E: Base unit X axis: Unknown (9)"}));
    for (const std::uint32_t node : {4, 5}) EXPECT_FALSE(doc->document.GetNodeContents_bolUnread(node));
    EXPECT_TRUE(doc->Content(4).ends_with("Content:\t°^°B~BODY°^°N~\r\n"));
    EXPECT_EQ(Dump(*doc), "<color=clred>" + first);
    EXPECT_EQ(doc->messages.Size(), 1u);
}

TEST(TextDump, DumpsManyLargeBodiesTheSameAlways)
{
    constexpr int kCount = 400;
    AfpFile file;
    for (int i = 0; i < kCount; ++i)
        file.Add("PTX", Ebcdic(std::to_string(i) + std::string(60'000, static_cast<char>('a' + i % 26))));
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    StringSink sink;
    EXPECT_TRUE(doc->document.WriteDump(sink, DumpEncoding::SystemPage).Whole());
    std::string expected;
    for (int i = 0; i < kCount; ++i)
        expected +=
            Block({"\tPTX\tContent:\t" + std::to_string(i) + std::string(60'000, static_cast<char>('a' + i % 26))});
    EXPECT_TRUE(Blocks(sink.text) == expected);
    EXPECT_TRUE(Dump(*doc) == sink.text);
    EXPECT_FALSE(test::IsHeldOpen(doc->path));
    EXPECT_GT(sink.sizes.size(), 10u);
    for (const auto size : sink.sizes) EXPECT_LE(size, 1u << 20);
}

TEST(TextDump, ATreeWithoutDeferredRecordsNeedsNoFile)
{
    const auto doc = Analyse(AfpFile().Add("BDT").Add("NOP", Ebcdic("note")).Add("PTX").Add("EDT").Content());
    const std::string before = Dump(*doc);
    std::filesystem::remove(doc->path);
    EXPECT_EQ(Dump(*doc), before);
}

TEST(TextDump, BodiesThatWereJustReadNeedNoFile)
{
    const auto doc = Analyse(AfpFile().Add("PTX", Ebcdic("BODY")).Content(), {}, TestPorts());
    ASSERT_FALSE(doc->Select(2));
    std::filesystem::remove(doc->path);
    EXPECT_EQ(Blocks(Dump(*doc)), Block({"\tPTX\tContent:\tBODY"}));
}

TEST(TextDump, AVanishedFileFailsAtTheFirstDeferredRecord)
{
    const auto doc =
        Analyse(AfpFile().Add("NOP", Ebcdic("note")).Add("PTX", Ebcdic("BODY")).Add("NOP").Content(), {}, TestPorts());
    std::filesystem::remove(doc->path);
    StringSink sink;
    const DumpResult result = doc->document.WriteDump(sink, DumpEncoding::SystemPage);
    EXPECT_EQ(result.input.number, 53);
    EXPECT_EQ(result.output.number, 0);
    EXPECT_FALSE(result.Whole());
    EXPECT_EQ(Blocks(sink.text), Block({"\tNOP\tContent:\tnote"}));
    EXPECT_TRUE(doc->document.GetNodeContents_bolUnread(3));
}

TEST(TextDump, AFileThatHasLostARecordFailsThere)
{
    AfpFile file;
    file.Add("PTX", Ebcdic("FIRST")).Add("PTX", Ebcdic("SECOND"));
    for (int i = 0; i < 400; ++i) file.Add("NOP", Ebcdic(std::string(60'000, 'x')));
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    std::filesystem::resize_file(doc->path, 20);
    StringSink sink;
    const DumpResult result = doc->document.WriteDump(sink, DumpEncoding::SystemPage);
    EXPECT_EQ(result.input.number, 57);
    EXPECT_EQ(Blocks(sink.text), Block({"\tPTX\tContent:\tFIRST"}));
}

// Long bodies take their time, also between two of the moments at which a user can stop the dump.
TEST(TextDump, LetsTheWindowBePaintedAsItGrows)
{
    AfpFile file;
    for (int i = 0; i < 100; ++i) file.Add("PTX", Ebcdic(std::string(30'000, 'x')));
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    doc->host.waysGiven = 0;
    int painted = 0;
    doc->host.onKeepAlive = [&] { ++painted; };
    EXPECT_GT(Dump(*doc).size(), 3'000'000u);
    EXPECT_EQ(doc->host.waysGiven, 0);
    EXPECT_GE(painted, 10);
}

}  // namespace
}  // namespace folioscope
