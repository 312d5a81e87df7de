// What the host of a run hears: pages, messages, progress, and what becomes of a cancel.

#include <gtest/gtest.h>

#include <string>
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
using test::LinesOf;
using test::Outline;
using test::PlainFolders;
using test::TestDocument;
using test::Zeros;
using Lines = std::vector<std::string>;

constexpr unsigned kSegmentedFlag = 0x20;
constexpr std::string_view kTruncated = "Structure E: This file seems to be truncated! Processing was canceled!";

// Records of 1,000 bytes each in the file.
Bytes Notes(int count)
{
    AfpFile file;
    for (int i = 0; i < count; ++i) file.Add("NOP", Ebcdic(std::string(991, 'x')));
    return file.Content();
}

Bytes Pages(int count)
{
    AfpFile file;
    for (int i = 0; i < count; ++i) file.Add("BPG").Add("EPG");
    return file.Content();
}

// Pages -------------------------------------------------------------------------------------------------------------

TEST(Run, NotesTheFiveHundredthPageAndNoOther)
{
    const Lines notice = {
        "General I: Already 500 pages processed! Aborting with ESC key or STOP button is possible at every time."};
    EXPECT_EQ(LinesOf(Analyse(Pages(499))->messages), Lines{});
    EXPECT_EQ(LinesOf(Analyse(Pages(500))->messages), notice);
    EXPECT_EQ(LinesOf(Analyse(Pages(501))->messages), notice);
    EXPECT_EQ(LinesOf(Analyse(Pages(1000))->messages), notice);
    EXPECT_EQ(LinesOf(Analyse(Pages(2501))->messages), notice);
}

TEST(Run, NotesThePageWhenItBegins)
{
    const auto doc = Analyse(Pages(499) + AfpFile().Add("BPG").Content());
    ASSERT_EQ(doc->messages.Size(), 2u);
    EXPECT_EQ(NameOf(doc->messages[0].source), "General");
    EXPECT_EQ(LinesOf(doc->messages)[1], kTruncated);
}

TEST(Run, ThePageNoticeIsShownWhateverTheSettingSays)
{
    Settings settings;
    settings.MessageWindow = 0;
    const auto doc = Analyse(Pages(500), settings);
    EXPECT_EQ(doc->window.shown, 1);
    EXPECT_EQ(doc->window.beeps, 1);
}

TEST(Run, CountsPagesButNotSegmentedOnes)
{
    AfpFile file;
    file.Add("BDT")
        .Add("BPG")
        .Add("EPG")
        .Add({.name = "BPG", .flags = kSegmentedFlag})
        .Add("EPG")
        .Add("BPG")
        .Add("EPG");
    const auto doc = Analyse(file.Add("EDT").Content(), PlainFolders());
    EXPECT_EQ(doc->Tree().PageCount(), 2);
    EXPECT_EQ(doc->host.calls.back(), "finished");
    EXPECT_EQ(doc->host.CountOf("counters 8 2"), 1u);
    const std::deque<std::uint32_t> ends = {6, 9, 12};
    EXPECT_EQ(doc->Tree().PageEnds(), ends);
    EXPECT_EQ(doc->NodeText(7), "");
    EXPECT_EQ(doc->NodeText(10), "Page 2");
}

TEST(Run, OffersThePreviewOnce)
{
    EXPECT_EQ(Analyse(Pages(3))->host.CountOf("preview"), 1u);
    EXPECT_EQ(Analyse(AfpFile().Add("BRG").Add("BRS").Add("BPS").Content())->host.CountOf("preview"), 0u);
    EXPECT_EQ(Analyse(AfpFile().Add("BDT").Add("BPS").Content())->host.CountOf("preview"), 1u);
}

// Messages ----------------------------------------------------------------------------------------------------------

TEST(Run, ShowsMessagesAtItsEndIfTheSettingSaysSo)
{
    const Bytes faulty = AfpFile().Add("BDT").Add("EPG").Content();
    Settings off;
    off.MessageWindow = 0;
    EXPECT_EQ(Analyse(faulty)->window.shown, 1);
    EXPECT_EQ(Analyse(faulty)->window.beeps, 1);
    EXPECT_EQ(Analyse(faulty, off)->window.shown, 0);
    EXPECT_EQ(Analyse(faulty, off)->messages.Size(), 1u);
    EXPECT_EQ(Analyse(Notes(1))->window.shown, 0);
    EXPECT_EQ(Analyse(Notes(1))->window.beeps, 0);
}

TEST(Run, AWrongEndIsToldAndShownInRed)
{
    const auto doc = Analyse(AfpFile().Add("BDT").Add("BPG", Ebcdic8("P1")).Add("EDT").Add("EPG").Content());
    EXPECT_EQ(Outline(doc->Tree()), "<color=clred>test.afp\n"
                                    "  <color=clred><b>Document\n"
                                    "    BDT\n"
                                    "    <color=clred><b>Page 1: P1\n"
                                    "      BPG: P1\n"
                                    "      <color=clred>EDT\n"
                                    "    <color=clred>EPG\n");
    EXPECT_EQ(LinesOf(doc->messages),
              (Lines{"Structure E: Structured Field EDT does not match to a corresponding Begin Structured Field!",
                     "Structure E: Structured Field EPG does not match to a corresponding Begin Structured Field!"}));
}

// The host ----------------------------------------------------------------------------------------------------------

TEST(Run, GivesWayEverySoManyBytes)
{
    const auto doc = Analyse(Notes(200));
    EXPECT_EQ(doc->host.calls,
              (Lines{"starts 200000", "progress 66000", "counters 65 0", "gives way", "progress 132000",
                     "counters 131 0", "gives way", "progress 198000", "counters 197 0", "gives way", "progress 200000",
                     "ends", "counters 200 0", "finished"}));
}

TEST(Run, GivesWayInNoiseToo)
{
    TestDocument doc(AfpFile().Add("NOP").Noise(Zeros(1'000'000)).Add("NOP").Content());
    EXPECT_TRUE(doc.Run());
    std::int64_t before = 0;
    for (const auto value : doc.host.progress) {
        EXPECT_GE(value, before);
        EXPECT_LE(value - before, 65'536 + 65'535);
        before = value;
    }
    EXPECT_GE(doc.host.waysGiven, 7);
    EXPECT_EQ(doc.document.SFCount(), 2);
}

TEST(Run, TellsOfItsProgressBetweenStartAndEndOnly)
{
    for (const Bytes& content : {Notes(200), Zeros(300'000) + Notes(200), Zeros(300'000)}) {
        const auto doc = Analyse(content);
        bool running = false;
        for (const auto& call : doc->host.calls) {
            running = (running || call.starts_with("starts ")) && call != "ends";
            EXPECT_TRUE(running || !(call.starts_with("progress ") || call == "gives way")) << call;
        }
        EXPECT_EQ(doc->host.CountOf("starts " + std::to_string(content.size())), 1u);
        EXPECT_EQ(doc->host.CountOf("ends"), 1u);
    }
}

TEST(Run, IsProcessingWhileItRuns)
{
    TestDocument doc(Notes(100));
    EXPECT_FALSE(doc.document.Processing());
    bool during = false;
    doc.host.onGiveWay = [&] { during = doc.document.Processing(); };
    doc.Run();
    EXPECT_TRUE(during);
    EXPECT_FALSE(doc.document.Processing());
}

TEST(Run, ACancelledRunKeepsWhatItHas)
{
    const Bytes content = AfpFile().Add("BDT").Content() + Notes(500);
    for (int moment = 1; moment <= 7; ++moment) {
        SCOPED_TRACE(moment);
        TestDocument doc(content, PlainFolders());
        doc.host.onGiveWay = [&] {
            if (doc.host.waysGiven == moment) doc.document.SetOperationInteruptedFlag(true);
        };
        EXPECT_TRUE(doc.Run());
        EXPECT_EQ(doc.host.waysGiven, moment);
        EXPECT_EQ(doc.document.Outcome(), RunOutcome::Walked);
        EXPECT_TRUE(doc.document.GetOperationInteruptedFlag());
        EXPECT_EQ(doc.messages.Size(), 0u);
        EXPECT_TRUE(doc.host.boxes.empty());
        const auto count = doc.document.SFCount();
        EXPECT_GE(count, moment * 65);
        EXPECT_LE(count, moment * 67);
        EXPECT_EQ(doc.Tree().Nodes().Size(), static_cast<std::uint32_t>(count) + 3);
        const Lines end = {"progress " + std::to_string(content.size()), "ends",
                           "counters " + std::to_string(count) + " 0", "finished"};
        EXPECT_EQ(Lines(doc.host.calls.end() - 4, doc.host.calls.end()), end);
        EXPECT_TRUE(doc.Tree().Nodes().HasChildren(2));
        EXPECT_NE(doc.Content(4).find("xxxx"), std::string::npos);
    }
}

TEST(Run, CanBeCancelledInNoise)
{
    for (const Bytes& front : {Bytes(), AfpFile().Add("BDT").Content()}) {
        TestDocument doc(front + Zeros(5'000'000) + Notes(3));
        doc.host.onGiveWay = [&] { doc.document.SetOperationInteruptedFlag(true); };
        EXPECT_TRUE(doc.Run());
        EXPECT_LE(doc.host.waysGiven, 2);
        EXPECT_EQ(doc.document.SFCount(), front.empty() ? 0 : 1);
        EXPECT_EQ(doc.messages.Size(), 0u);
        EXPECT_EQ(doc.host.CountOf("finished"), 1u);
    }
}

TEST(Run, WalksAMillionLevels)
{
    constexpr std::size_t kLevels = 1'000'000;
    const Bytes begin = AfpFile().Add("BNG").Content(), end = AfpFile().Add("ENG").Content();
    Bytes content;
    for (std::size_t i = 0; i < kLevels; ++i) content += begin;
    for (std::size_t i = 0; i < kLevels; ++i) content += end;
    const auto doc = Analyse(content);
    EXPECT_EQ(doc->Tree().Nodes().Size(), 3 * kLevels + 2);
    EXPECT_EQ(doc->messages.Size(), 0u);
    std::size_t deepest = 0;
    for (TreeWalk walk(doc->Tree().Nodes()); !walk.AtEnd(); walk.Next())
        deepest = std::max<std::size_t>(deepest, walk.Depth());
    EXPECT_EQ(deepest, kLevels + 1);
}

TEST(Run, WalksAMillionPageEnds)
{
    constexpr std::size_t kEnds = 1'000'000;
    const Bytes end = AfpFile().Add("EPG").Content();
    Bytes content;
    for (std::size_t i = 0; i < kEnds; ++i) content += end;
    const auto doc = Analyse(content);
    EXPECT_EQ(doc->Tree().PageEnds().size(), kEnds);
    EXPECT_EQ(doc->Tree().PageEnds().back(), kEnds + 1);
    EXPECT_EQ(doc->messages.Size(), 0u);
}

}  // namespace
}  // namespace folioscope
