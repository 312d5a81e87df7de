#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/text.h"
#include "document/document.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::HeadLines;
using test::LinesOf;
using test::Outline;
using test::Packaging;
using test::PlainFolders;
using test::Raw;
using test::TestDocument;
using test::TestPorts;
using test::U1;
using test::U2;
using test::Zeros;
using Lines = std::vector<std::string>;

constexpr std::size_t kMostCharacters = 65'535;
constexpr std::string_view kNOP = "NOP (No Operation, x'D3 EE EE')";
constexpr std::string_view kPTX = "PTX (Presentation Text Data, x'D3 EE 9B')";
constexpr std::string_view kIPD = "IPD (Image Picture Data, x'D3 EE FB')";
constexpr std::string_view kFNM = "FNM (Font Pattern Map, x'D3 A2 89')";

std::string ContentLine(const std::string& value) { return "Content:\t°^°B~" + value + "°^°N~\r\n"; }

std::string Repeated(std::string_view text, std::size_t count)
{
    std::string result;
    while (count-- > 0) result += text;
    return result;
}

Bytes PageOf(const std::vector<test::Field>& fields)
{
    AfpFile file;
    file.Add("BPG");
    for (const auto& field : fields) file.Add(field);
    return file.Add("EPG").Content();
}

TEST(NodeDetails, AFolderShowsNothing)
{
    const auto doc = Analyse(PageOf({{"NOP"}}));
    EXPECT_EQ(doc->Content(2), "");
    EXPECT_EQ(doc->document.GetNodeContents_lngStart(2), 0);
    EXPECT_EQ(doc->document.GetNodeContents_lngLength(2), 0);
    EXPECT_FALSE(doc->document.GetNodeContents_bolUnread(2));
    EXPECT_EQ(doc->document.GetNodeContents_lngStart(NodeStore::kRoot), 0);
    EXPECT_EQ(doc->document.GetNodeContents_lngLength(NodeStore::kRoot), 0);
}

TEST(NodeDetails, ALeafKnowsWhereItsLengthFieldStandsAndWhatItSays)
{
    struct Case {
        Packaging packaging;
        std::int32_t first, second;
    };
    constexpr Case kCases[] = {{Packaging::Bare, 1, 17},
                               {Packaging::FiveA, 2, 19},
                               {Packaging::Rdw2, 4, 23},
                               {Packaging::Rdw4, 6, 27},
                               {Packaging::CrLf, 2, 21}};
    for (const auto& [packaging, first, second] : kCases) {
        SCOPED_TRACE(static_cast<int>(packaging));
        const auto doc = Analyse(AfpFile(packaging).Add("BPG", Ebcdic8("PAGE0001")).Add("EPG").Content());
        EXPECT_EQ(doc->document.GetNodeContents_lngStart(3), first);
        EXPECT_EQ(doc->document.GetNodeContents_lngLength(3), 16);
        EXPECT_EQ(doc->document.GetNodeContents_lngStart(4), second);
        EXPECT_EQ(doc->document.GetNodeContents_lngLength(4), 8);
        EXPECT_EQ(doc->Content(3),
                  HeadLines("BPG (Begin Page, x'D3 A8 AF')", first - 1, 16) + "Name:°^°B~\tPAGE0001°^°N~\r\n");
        EXPECT_EQ(doc->Content(4), HeadLines("EPG (End Page, x'D3 A9 AF')", second - 1, 8));
    }
}

TEST(NodeDetails, HeadLinesHaveSeparatorsAndFourGroupsOfHex)
{
    const Bytes content = AfpFile().Add("NOP", Ebcdic(std::string(60'000, 'x'))).Add("NOP", Ebcdic("abc")).Content();
    const auto doc = Analyse(content, {}, {}, {.thousands = ".", .decimal = ","});
    EXPECT_TRUE(doc->Content(2).starts_with("Structured Field:\t°^°B~NOP (No Operation, x'D3 EE EE')°^°N~\r\n"
                                            "Start byte:\t1   (x'00 00 00 01')\r\n"
                                            "Length:\t60.008 Bytes\r\n\r\n"));
    EXPECT_TRUE(doc->Content(3).starts_with("Structured Field:\t°^°B~NOP (No Operation, x'D3 EE EE')°^°N~\r\n"
                                            "Start byte:\t60.010   (x'00 00 EA 6A')\r\n"
                                            "Length:\t11 Bytes\r\n\r\n"));
}

TEST(NodeDetails, SpeaksTheLanguageOfTheAnalysis)
{
    Settings settings;
    settings.Language = 2;
    const auto doc = Analyse(AfpFile().Add("NOP", Ebcdic("abc")).Content(), settings);
    EXPECT_EQ(doc->Content(2), "Structured Field:\t°^°B~NOP (No Operation, x'D3 EE EE')°^°N~\r\n"
                               "Start-Byte:\t1   (x'00 00 00 01')\r\n"
                               "Länge:\t11 Bytes\r\n\r\n"
                               "Inhalt:\t°^°B~abc°^°N~\r\n");
    settings.TechnicalEnglish = 1;
    EXPECT_EQ(Analyse(AfpFile().Add("NOP", Ebcdic("abc")).Content(), settings)->Content(2),
              HeadLines(kNOP, 1, 11) + ContentLine("abc"));
}

// Bodies that the run leaves for later ------------------------------------------------------------------------------

TEST(NodeDetails, DefersFourKindsOfRecordsThatHaveABody)
{
    for (const auto* name : {"PTX", "IPD", "FNI", "FNM"}) {
        const auto unread = [&](const Bytes& body) {
            return Analyse(AfpFile().Add(name, body).Content())->document.GetNodeContents_bolUnread(2);
        };
        EXPECT_FALSE(unread({})) << name;
        EXPECT_FALSE(unread(Ebcdic("A"))) << name;
        EXPECT_TRUE(unread(Ebcdic("AB"))) << name;
    }
    for (const auto* name : {"NOP", "GAD", "OCD", "BPG", "FNG"})
        EXPECT_FALSE(Analyse(AfpFile().Add(name, Ebcdic("BODY")).Content())->document.GetNodeContents_bolUnread(2))
            << name;
}

TEST(NodeDetails, AnUnreadRecordShowsItsHeadOnly)
{
    const auto doc = Analyse(PageOf({{"PTX", Ebcdic("BODY")}}), {}, TestPorts());
    EXPECT_EQ(doc->Content(4), HeadLines(kPTX, 10, 12));
    EXPECT_TRUE(doc->document.GetNodeContents_bolUnread(4));
}

TEST(NodeDetails, ReadingAddsTheBodyBehindTheHead)
{
    const auto doc = Analyse(PageOf({{"PTX", Ebcdic("BODY")}}), {}, TestPorts());
    EXPECT_FALSE(doc->Select(4));
    EXPECT_FALSE(doc->document.GetNodeContents_bolUnread(4));
    EXPECT_EQ(doc->Content(4), HeadLines(kPTX, 10, 12) + ContentLine("BODY"));
    EXPECT_EQ(doc->NodeText(4), "PTX");
}

TEST(NodeDetails, ARecordIsReadOnce)
{
    const auto doc = Analyse(PageOf({{"PTX", Ebcdic("BODY")}}), {}, TestPorts());
    EXPECT_FALSE(doc->Select(4));
    const std::string content = doc->Content(4);
    std::filesystem::remove(doc->path);
    EXPECT_EQ(doc->Content(4), content);
    EXPECT_NE(content.find("BODY"), std::string::npos);
}

TEST(NodeDetails, FaultsOfABodyAppearWhenItIsReadAndOnlyOnce)
{
    const auto doc = Analyse(PageOf({{"IPD", U1(9) + Zeros(3)}}), PlainFolders(), TestPorts());
    EXPECT_EQ(doc->messages.Size(), 0u);
    EXPECT_FALSE(doc->IsRed(NodeStore::kRoot));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(doc->Select(4));
        EXPECT_EQ(LinesOf(doc->messages), (Lines{"Content E: Base unit X axis: Unknown (9)"}));
        EXPECT_TRUE(doc->messages[0].bolHighlight);
        EXPECT_EQ(Outline(doc->Tree()), "<color=clred>test.afp\n"
                                        "  <color=clred>Page 1\n"
                                        "    BPG\n"
                                        "    <color=clred>IPD\n"
                                        "    EPG\n");
        EXPECT_EQ(doc->Content(4), HeadLines(kIPD, 10, 12) + "Base unit X axis: °^°R~Unknown (9)°^°S~\r\n");
    }
}

TEST(NodeDetails, EachRecordHasFaultsOfItsOwn)
{
    const auto doc = Analyse(PageOf({{"IPD", U1(9) + Zeros(3)}, {"IPD", U1(9) + Zeros(3)}}), {}, TestPorts());
    doc->Select(5);
    EXPECT_FALSE(doc->IsRed(4));
    EXPECT_TRUE(doc->IsRed(5));
    doc->Select(4);
    EXPECT_TRUE(doc->IsRed(4));
    EXPECT_EQ(doc->messages.Size(), 2u);
}

// The body's decoder goes by the introducer alone: extension and padding are taken for a part of it.
TEST(NodeDetails, ABodyStandsBehindTheNotesOfTheRunAndHasAllBytes)
{
    const test::Field field{"PTX", U1(4) + Ebcdic("EXTBODY") + Zeros(1) + U1(2), 0x88};
    const auto doc = Analyse(PageOf({field}), {}, TestPorts());
    const std::string head = HeadLines(kPTX, 10, 18) +
                             "\r\nThis record contains extended information with a length of 3 bytes with\r\n"
                             "Content: \"EXT\"\r\n"
                             "\r\nThis record contains 2 padding bytes up to the end of the record.\r\n";
    EXPECT_EQ(doc->Content(4), head);
    EXPECT_FALSE(doc->Select(4));
    const std::string content = doc->Content(4);
    EXPECT_TRUE(content.starts_with(head + "Content:\t°^°B~"));
    const std::string body = content.substr(head.size());
    EXPECT_NE(body.find("EXTBODY"), std::string::npos);
    EXPECT_EQ(Utf16Length(body), Utf16Length(ContentLine("")) + 10);
}

TEST(NodeDetails, ARecordOfACancelledRunCanBeRead)
{
    AfpFile file;
    file.Add("PTX", Ebcdic("BODY"));
    for (int i = 0; i < 100; ++i) file.Add("NOP", Ebcdic(std::string(1000, 'x')));
    TestDocument doc(file.Content(), {}, TestPorts());
    doc.host.onGiveWay = [&] { doc.document.SetOperationInteruptedFlag(true); };
    doc.Run();
    EXPECT_FALSE(doc.Select(2));
    EXPECT_EQ(doc.Content(2), HeadLines(kPTX, 1, 12) + ContentLine("BODY"));
}

TEST(NodeDetails, BodiesBehindTheFirstChunkAreReadFromTheirPlaces)
{
    AfpFile file;
    for (int i = 0; i < 400; ++i) {
        file.Add("PTX", Ebcdic("BODY " + std::to_string(i)));
        file.Add("NOP", Ebcdic(std::string(60'000, 'x')));
    }
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    ASSERT_FALSE(doc->document.RedirectOpenAFPFileRandom());
    for (const int i : {399, 0, 200, 1, 398, 170}) {
        const auto node = static_cast<std::uint32_t>(2 + 2 * i);
        EXPECT_FALSE(doc->document.LookupMissingData(node));
        EXPECT_TRUE(doc->Content(node).ends_with(ContentLine("BODY " + std::to_string(i)))) << i;
    }
    doc->document.RedirectCloseAFPFile();
}

// More text than is kept: the bodies that were dropped are made again, without another word about their faults.
TEST(NodeDetails, ManyLargeBodiesReadTheSameAlways)
{
    constexpr int kCount = 400;
    AfpFile file;
    for (int i = 0; i < kCount; ++i) {
        file.Add("PTX", Ebcdic(std::to_string(i) + std::string(60'000, static_cast<char>('a' + i % 26))));
        file.Add("IPD", U1(9) + Zeros(3));
    }
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    ASSERT_FALSE(doc->document.RedirectOpenAFPFileRandom());
    std::vector<std::string> first;
    for (std::uint32_t node = 2; node < 2 + 2 * kCount; ++node) {
        ASSERT_FALSE(doc->document.LookupMissingData(node));
        first.push_back(doc->Content(node));
    }
    doc->document.RedirectCloseAFPFile();
    for (int i = 0; i < kCount; ++i) {
        const std::string body = std::to_string(i) + std::string(60'000, static_cast<char>('a' + i % 26));
        ASSERT_TRUE(first[static_cast<std::size_t>(2 * i)].ends_with("\r\n\r\n" + ContentLine(body))) << i;
    }
    EXPECT_EQ(doc->messages.Size(), static_cast<std::size_t>(kCount));
    const std::string outline = Outline(doc->Tree());
    for (std::uint32_t node = 2; node < 2 + 2 * kCount; ++node)
        ASSERT_TRUE(doc->Content(node) == first[node - 2]) << node;
    EXPECT_EQ(doc->messages.Size(), static_cast<std::size_t>(kCount));
    EXPECT_EQ(Outline(doc->Tree()), outline);
}

// Failures ----------------------------------------------------------------------------------------------------------

TEST(NodeDetails, AVanishedFileFailsAndLeavesTheRecordUnread)
{
    const auto doc = Analyse(PageOf({{"IPD", U1(9) + Zeros(3)}}), {}, TestPorts());
    const std::string away = doc->path + ".away";
    std::filesystem::rename(doc->path, away);
    EXPECT_EQ(doc->document.RedirectOpenAFPFileRandom().number, 53);
    EXPECT_TRUE(doc->document.GetNodeContents_bolUnread(4));
    EXPECT_EQ(doc->Content(4), HeadLines(kIPD, 10, 12));
    EXPECT_EQ(doc->messages.Size(), 0u);
    std::filesystem::rename(away, doc->path);
    EXPECT_FALSE(doc->Select(4));
    EXPECT_EQ(doc->messages.Size(), 1u);
}

TEST(NodeDetails, ARecordThatTheFileHasLostFailsAndStaysUnread)
{
    AfpFile file;
    file.Add("PTX", Ebcdic("FIRST BODY")).Add("PTX", Ebcdic("SECOND BODY"));
    for (int i = 0; i < 400; ++i) file.Add("NOP", Ebcdic(std::string(60'000, 'x')));
    const auto doc = Analyse(file.Content(), {}, TestPorts());
    std::filesystem::resize_file(doc->path, 30);
    EXPECT_EQ(doc->Select(3).number, 57);
    EXPECT_TRUE(doc->document.GetNodeContents_bolUnread(3));
    EXPECT_EQ(doc->Content(3), HeadLines(kPTX, 20, 19));
    EXPECT_FALSE(doc->Select(2));
    EXPECT_EQ(doc->Content(2), HeadLines(kPTX, 1, 18) + ContentLine("FIRST BODY"));
}

// The size of a text ------------------------------------------------------------------------------------------------

// A note of so many characters, each of them three bytes of UTF-8.
std::unique_ptr<TestDocument> NoteOfEuros(std::size_t count, int showNOP)
{
    Settings settings;
    settings.CodepageNOP = 1140;
    settings.ShowNOP = showNOP;
    return Analyse(AfpFile().Add("NOP", Bytes(count, '\x9F')).Content(), settings);
}

TEST(NodeDetails, ATextOfTheMostCharactersIsStoredWholeAndALongerOneEndsInDots)
{
    const std::size_t fixed = Utf16Length(HeadLines(kNOP, 1, 65'000) + ContentLine(""));
    const std::size_t most = kMostCharacters - fixed;
    ASSERT_LT(most, 65'527u);
    for (const int showNOP : {0, 1}) {
        const auto whole = NoteOfEuros(most, showNOP), longer = NoteOfEuros(most + 1, showNOP);
        const std::string content = whole->Content(2);
        EXPECT_EQ(Utf16Length(content), kMostCharacters);
        EXPECT_TRUE(content ==
                    HeadLines(kNOP, 1, static_cast<std::int64_t>(most) + 8) + ContentLine(Repeated("€", most)));
        EXPECT_EQ(longer->Content(2), HeadLines(kNOP, 1, static_cast<std::int64_t>(most) + 9) + "...");
    }
}

TEST(NodeDetails, ACaptionHasNoSuchLimit)
{
    const auto doc = NoteOfEuros(65'527, 1);
    EXPECT_TRUE(doc->NodeText(2) == "NOP: " + Repeated("€", 65'527));
    EXPECT_EQ(doc->Content(2), HeadLines(kNOP, 1, 65'535) + "...");
}

TEST(NodeDetails, CharactersBeyondSixteenBitsCountTwiceAlsoInBodiesThatAreReadLater)
{
    const Bytes smiley = Raw({0xD8, 0x3D, 0xDE, 0x00}), letter = Raw({0x00, 0x41});
    const std::size_t line = Utf16Length(ContentLine(""));
    bool whole = false, cut = false;
    for (std::size_t units = 32'680; units <= 32'700; ++units) {
        Bytes body = units % 2 != 0 ? letter : Bytes();
        std::string shown = units % 2 != 0 ? "A" : "";
        for (std::size_t i = 0; i < units / 2; ++i) body += smiley;
        shown += Repeated("😀", units / 2);
        const auto doc = Analyse(AfpFile().Add("FNM", body).Content(), {}, TestPorts());
        ASSERT_FALSE(doc->Select(2));
        const std::string head = HeadLines(kFNM, 1, static_cast<std::int64_t>(body.size()) + 8);
        const bool fits = Utf16Length(head) + 2 * (units + line) <= kMostCharacters;
        (fits ? whole : cut) = true;
        ASSERT_TRUE(doc->Content(2) == head + ContentLine(shown) + (fits ? ContentLine(shown) : "...")) << units;
    }
    EXPECT_TRUE(whole && cut);
}

TEST(NodeDetails, AShorterLineMayFitBehindTheDots)
{
    const Bytes data = U1(3) + Ebcdic("AB") + Bytes(65'527 - 3, '\xC3');
    const auto doc = Analyse(AfpFile().Add({.name = "NOP", .data = data, .flags = 0x80}).Content());
    EXPECT_EQ(doc->Content(2), HeadLines(kNOP, 1, 65'535) +
                                   "...\r\nThis record contains extended information with a length of 2 bytes with\r\n"
                                   "Content: \"AB\"\r\n");
}

}  // namespace
}  // namespace folioscope
