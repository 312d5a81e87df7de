#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "document/ports.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Ebcdic;
using test::Ebcdic8;
using test::PlainFolders;
using test::Raw;
using test::TestDocument;
using test::TripletOf;
using test::U1;
using test::Zeros;

using Nodes = std::vector<std::uint32_t>;

test::Bytes Text(std::string_view text)
{
    return Raw({0x2B, 0xD3}) + U1(static_cast<unsigned>(text.size()) + 2) + U1(0xDA) + Ebcdic(text);
}

// 2 BDT folder, 3 BDT, 4 NOP, 5 TLE, 6 PTX, 7 NOP, 8 EDT
std::unique_ptr<TestDocument> Letter()
{
    AfpFile file;
    file.Add("BDT", Ebcdic8("LETTER") + Zeros(2)).Add("NOP", Ebcdic("made for Bern"));
    file.Add("TLE", TripletOf("02 0B 00 'Town'") + TripletOf("36 00 00 'Bern'"));
    file.Add("PTX", Text("Dear reader of Bern")).Add("NOP", Ebcdic("nothing more")).Add("EDT", Ebcdic8("LETTER"));
    return Analyse(file.Content(), PlainFolders(), Decoders());
}

// All that a user finds who goes on to the end.
Nodes FindAll(TestDocument& document, const FindTerm& term, std::uint32_t from = NodeStore::kRoot)
{
    Nodes found;
    for (FindResult result; (result = document.document.FindNext(from, term)).outcome == FindOutcome::Found;)
        found.push_back(from = result.node);
    return found;
}

TEST(Find, LooksThroughTextsOfNodesAndRecords)
{
    const auto document = Letter();
    EXPECT_EQ(FindAll(*document, {"bern"}), (Nodes{4, 5, 6}));
    EXPECT_EQ(FindAll(*document, {"LETTER"}), (Nodes{3, 8}));
    EXPECT_EQ(FindAll(*document, {"Map Container"}), Nodes{});
}

TEST(Find, NeverTestsTheSelectedNode)
{
    const auto document = Letter();
    EXPECT_EQ(FindAll(*document, {"bern"}, 4), (Nodes{5, 6}));
    EXPECT_EQ(FindAll(*document, {"bern"}, 6), Nodes{});
    EXPECT_EQ(FindAll(*document, {"bern"}, 8), Nodes{});
    const FindResult none = document->document.FindNext(6, {"bern"});
    EXPECT_EQ(none.outcome, FindOutcome::NoMore);
    EXPECT_EQ(none.node, 0u);
}

TEST(Find, DoesNotMindTheCase)
{
    const auto document = Letter();
    for (const std::string_view term : {"dear READER", "DEAR READER", "dear reader", "DeAr ReAdEr"})
        EXPECT_EQ(FindAll(*document, {std::string(term)}), Nodes{6}) << term;
}

TEST(Find, FindsUmlautsInEitherCase)
{
    const auto document = Analyse(AfpFile().Add("NOP", Raw({0x43, 0xDC})).Content(), {}, Decoders());  // ä, ü
    ASSERT_NE(document->Content(2).find("äü"), std::string::npos);
    EXPECT_EQ(FindAll(*document, {"ÄÜ"}), Nodes{2});
    EXPECT_EQ(FindAll(*document, {"äü"}), Nodes{2});
}

TEST(Find, AHitMaySpanTheSlashBetweenBothTexts)
{
    const auto document = Letter();
    EXPECT_EQ(FindAll(*document, {"eptx/Structured"}), Nodes{});
    EXPECT_EQ(FindAll(*document, {"PTX/Structured Field"}), Nodes{6});
}

TEST(Find, LooksThroughMarkupAndTags)
{
    Settings settings;
    settings.FolderBold = 1;
    AfpFile file;
    file.Add("BPG", Ebcdic8("PAGE0001")).Add("EPG", Ebcdic8("PAGE0001"));
    const auto document = Analyse(file.Content(), settings, Decoders());
    EXPECT_EQ(FindAll(*document, {"<B>"}), Nodes{2});
    EXPECT_EQ(FindAll(*document, {"°^°b~"}), (Nodes{3, 4}));
}

TEST(Find, CanKeepToCertainRecords)
{
    const auto document = Letter();
    EXPECT_EQ(FindAll(*document, {"bern", true, false}), Nodes{4});
    EXPECT_EQ(FindAll(*document, {"bern", false, true}), Nodes{5});
    EXPECT_EQ(FindAll(*document, {"bern", true, true}), (Nodes{4, 5}));
}

TEST(Find, ARedRecordIsOfNoKind)
{
    AfpFile file;
    file.Add("TLE", TripletOf("02 0B 00 'Town'") + TripletOf("36 00 00 'Bern'") + TripletOf("05 00 00"));
    file.Add("NOP", Ebcdic("Bern"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    ASSERT_TRUE(document->IsRed(2));
    EXPECT_EQ(FindAll(*document, {"bern"}), (Nodes{2, 3}));
    EXPECT_EQ(FindAll(*document, {"bern", true, true}), Nodes{3});
    EXPECT_EQ(FindAll(*document, {"COLOR=CLRED"}), Nodes{2});
}

TEST(Find, ReadsBodiesOnTheWayAndOnce)
{
    const auto document = Letter();
    EXPECT_TRUE(document->document.GetNodeContents_bolUnread(6));
    EXPECT_EQ(FindAll(*document, {"no such text"}), Nodes{});
    EXPECT_FALSE(document->document.GetNodeContents_bolUnread(6));
    EXPECT_EQ(document->host.waysGiven, 1);
    EXPECT_EQ(FindAll(*document, {"dear"}), Nodes{6});
    EXPECT_EQ(document->host.waysGiven, 1);
    EXPECT_FALSE(test::IsHeldOpen(document->path));
}

TEST(Find, CanBeStoppedWhereABodyIsRead)
{
    AfpFile file;
    for (int i = 0; i < 5; ++i) file.Add("PTX", Text("page"));
    file.Add("NOP", Ebcdic("target"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    document->host.waysGiven = 0;
    document->host.onGiveWay = [&] {
        if (document->host.waysGiven == 3) document->document.SetOperationInteruptedFlag(true);
    };
    const FindResult stopped = document->document.FindNext(NodeStore::kRoot, {"target"});
    EXPECT_EQ(stopped.outcome, FindOutcome::Cancelled);
    EXPECT_EQ(stopped.node, 5u);  // the one behind the third body
    EXPECT_FALSE(document->document.GetOperationInteruptedFlag());
    document->host.onGiveWay = nullptr;
    EXPECT_EQ(FindAll(*document, {"target"}, stopped.node), Nodes{7});
}

TEST(Find, AStopBeforeTheSearchDoesNotCount)
{
    const auto document = Letter();
    document->document.SetOperationInteruptedFlag(true);
    EXPECT_EQ(FindAll(*document, {"bern"}), (Nodes{4, 5, 6}));
}

TEST(Find, LetsTheWindowBePaintedWhereNoBodyIsRead)
{
    AfpFile file;
    for (int i = 0; i < 30'000; ++i) file.Add("NOP", Ebcdic("note"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    document->host.calls.clear();
    document->host.waysGiven = 0;
    std::vector<std::int64_t> painted;
    document->host.onKeepAlive = [&] { painted.push_back(document->host.progress.back()); };
    EXPECT_EQ(FindAll(*document, {"no such text"}), Nodes{});
    EXPECT_EQ(document->host.waysGiven, 0);
    ASSERT_GT(painted.size(), 5u);
    std::int64_t last = NodeStore::kRoot;
    for (const std::int64_t node : painted) {
        EXPECT_GT(node, last);
        EXPECT_LT(node - last, 8192);
        last = node;
    }
    EXPECT_LT(30'001 - last, 8192);
}

TEST(Find, GoesOnWhenTheUserLooksAtARecordMeanwhile)
{
    AfpFile file;
    for (int i = 0; i < 5; ++i) file.Add("PTX", Text("page"));
    file.Add("NOP", Ebcdic("target"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    document->host.onGiveWay = [&] { EXPECT_FALSE(document->Select(6)); };
    EXPECT_EQ(FindAll(*document, {"target"}), Nodes{7});
    EXPECT_FALSE(document->document.GetNodeContents_bolUnread(5));
}

TEST(Find, TellsOfAFileThatHasGone)
{
    const auto document = Letter();
    std::filesystem::remove(document->path);
    const FindResult result = document->document.FindNext(NodeStore::kRoot, {"bern"});
    EXPECT_EQ(result.outcome, FindOutcome::ReadFailed);
    EXPECT_EQ(result.failure.number, 53);
}

TEST(Find, FaultsOfABodyAreToldWhenItIsRead)
{
    const auto document = Analyse(AfpFile().Add("PTX", Raw({0x2B, 0xD3, 0x02, 0x36, 0})).Content(), {}, Decoders());
    EXPECT_EQ(test::LinesOf(document->messages).size(), 0u);
    EXPECT_EQ(FindAll(*document, {"unknown control"}), Nodes{2});
    EXPECT_EQ(test::LinesOf(document->messages), std::vector<std::string>{"Content E: PTX-Unknown Control Sequence"});
    EXPECT_TRUE(document->IsRed(2));
}

}  // namespace
}  // namespace folioscope
