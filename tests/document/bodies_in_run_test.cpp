// Bodies that somebody reads while the run goes on: the run takes no notice of it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "document/document.h"
#include "document/ports.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::HeadLines;
using test::LinesOf;
using test::Outline;
using test::Pieces;
using test::PlainFolders;
using test::Raw;
using test::StringSink;
using test::TestDocument;
using test::TripletOf;
using test::U1;
using test::U2;
using test::Zeros;
using Lines = std::vector<std::string>;

Bytes Text(std::string_view text, std::size_t inRecord)
{
    return Raw({0x2B, 0xD3}) + U1(static_cast<unsigned>(text.size()) + 2) + U1(0xDA) + Ebcdic(text.substr(0, inRecord));
}

// A pattern technology and the length of an index group.
Bytes FontControl(unsigned technology, unsigned groupLength)
{
    return Zeros(1) + U1(technology) + Zeros(13) + U1(groupLength) + Zeros(6);
}

// Changes of all that bodies depend on, and items that go on in the record read next.
class Changing {
public:
    AfpFile file;

    void AddBlock(unsigned number)
    {
        const bool even = number % 2 == 0;
        Add("BPG", Ebcdic8("PAGE" + std::to_string(1000 + number)) + TripletOf(even ? "01 FFFF 01F4" : "01 FFFF 0111"));
        Add("FNC", FontControl(even ? 5 : 1, even ? 28 : 14));
        Add("FNI", Ebcdic8("LA01" + std::to_string(1000 + number)) + Zeros(76));
        Add("FNM", U2(number) + Zeros(14));
        Add("PTD-2", Zeros(2) + U2(even ? 2400 : 14'400) + U2(even ? 3000 : 14'400) + Zeros(8));
        Add("PTX", Pieces("2BD3 04 C6 00F0") + Text("FIRST OF " + std::to_string(number), 6));
        Add("IDD", Zeros(1) + U2(even ? 2400 : 6000) + U2(even ? 2400 : 6000) + U2(100) + U2(number));
        Add("PTX", Ebcdic("F " + std::to_string(number)) + Text("SECOND", 6));
        Add("IPD", Pieces("70 00 91 01 FF 94 09 00 0960 0960"));
        Add("TLE", TripletOf("02 0B 00 'Town'") + TripletOf("36 00 00 'Bern'") + U1(3) + U1(5));
        Add("IPD", Pieces("0100 0100 93 00 71 00"));
        // The run itself carries over here, and goes on with it some way behind.
        if (number != 0) {
            Add("GAD", Pieces("21 06 0001 0002"));
            Add("GAD", Pieces("EEEE 21 04 0003 0004"));
        }
        Add("PTX", Pieces("2BD3 02 36 00"));
        Add("NOP", Raw({0x4A, 0x5A, 0xB0, 0xBA}));  // differs in the two code pages
        Add("EPG");
    }

private:
    void Add(std::string_view name, const Bytes& data = {})
    {
        file.Add(name, data);
        filling_ = filling_ * 7 % 30'011;
        file.Add("NOP", Ebcdic(std::string(filling_, 'x')));
    }

    std::size_t filling_ = 20'000;
};

const Bytes& ManyChanges()
{
    static const Bytes content = [] {
        Changing made;
        for (unsigned i = 0; i < 50; ++i) made.AddBlock(i);
        return made.file.Content();
    }();
    return content;
}

bool IsDeferred(const TestDocument& document, std::uint32_t node) { return document.Tree().Nodes()[node].deferred; }

void ReadAll(TestDocument& document)
{
    for (std::uint32_t node = 1; node < document.Tree().Nodes().Size(); ++node) {
        if (!IsDeferred(document, node)) continue;
        ASSERT_FALSE(document.Select(node));
    }
}

std::string DumpOf(TestDocument& document)
{
    StringSink sink;
    EXPECT_TRUE(document.document.WriteDump(sink, DumpEncoding::Utf8).Whole());
    return sink.text;
}

Lines Sorted(Lines lines)
{
    std::sort(lines.begin(), lines.end());
    return lines;
}

// A user who looks at each record that was deferred as soon as it is there, and at some that he has seen before.
class Impatient {
public:
    explicit Impatient(TestDocument& document) : document_(document)
    {
        document.host.onGiveWay = [this] { Look(); };
    }

    std::size_t read = 0, looks = 0;

private:
    void Look()
    {
        if (!document_.document.Processing()) return;
        const std::uint32_t size = document_.Tree().Nodes().Size();
        for (; next_ < size; ++next_) {
            if (!IsDeferred(document_, next_)) continue;
            ASSERT_TRUE(document_.document.GetNodeContents_bolUnread(next_));
            ASSERT_FALSE(document_.Select(next_));
            ASSERT_FALSE(document_.document.GetNodeContents_bolUnread(next_));
            seen_.push_back(next_);
            ++read;
        }
        if (seen_.empty()) return;
        const std::uint32_t old = seen_[looks++ * 37 % seen_.size()];
        ASSERT_FALSE(document_.Select(old));
        ASSERT_GT(document_.Content(old).size(), 100u);
    }

    TestDocument& document_;
    std::uint32_t next_ = 1;
    std::vector<std::uint32_t> seen_;
};

TEST(BodiesInARun, LeaveItAsItWouldBeWithoutThem)
{
    TestDocument plain(ManyChanges(), PlainFolders(), Decoders());
    TestDocument looked(ManyChanges(), PlainFolders(), Decoders());
    ASSERT_GT(ManyChanges().size(), static_cast<std::size_t>(RecordReader::kChunkSize));
    Impatient user(looked);
    ASSERT_TRUE(plain.Run());
    ASSERT_TRUE(looked.Run());
    looked.host.onGiveWay = nullptr;
    EXPECT_GT(user.read, 300u);
    EXPECT_GT(user.looks, 120u);
    EXPECT_EQ(looked.document.SFCount(), plain.document.SFCount());

    ReadAll(plain);
    ReadAll(looked);
    EXPECT_EQ(Outline(looked.Tree()), Outline(plain.Tree()));
    for (std::uint32_t node = NodeStore::kRoot + 1; node < plain.Tree().Nodes().Size(); ++node)
        ASSERT_EQ(looked.Content(node), plain.Content(node)) << node;
    EXPECT_TRUE(DumpOf(looked) == DumpOf(plain));
    EXPECT_GE(plain.messages.Size(), 50u);
    EXPECT_EQ(Sorted(LinesOf(looked.messages)), Sorted(LinesOf(plain.messages)));
    EXPECT_FALSE(test::IsHeldOpen(looked.path));
}

// The records told from memory depend on units and on what is carried over.
TEST(BodiesInARun, LeaveItAsItWouldBeAlsoWithoutTheMemoryOfRecords)
{
    TestDocument remembered(ManyChanges(), PlainFolders(), Decoders());
    TestDocument decoded(ManyChanges(), PlainFolders(), Decoders());
    decoded.document.TellRepeatedFromMemory(false);
    Impatient one(remembered), other(decoded);
    ASSERT_TRUE(remembered.Run());
    ASSERT_TRUE(decoded.Run());
    EXPECT_EQ(LinesOf(remembered.messages), LinesOf(decoded.messages));
    EXPECT_TRUE(DumpOf(remembered) == DumpOf(decoded));
}

// Filling behind some records, so that the run gives way twice, and at the end.
Bytes BeforeFilling(AfpFile file)
{
    for (int i = 0; i < 200; ++i) file.Add("NOP", Ebcdic(std::string(1000, 'x')));
    return file.Content();
}

TEST(BodiesInARun, ShowTheirFaultsWhenTheyAreReadAndOnce)
{
    TestDocument document(BeforeFilling(AfpFile().Add("PTX", Pieces("2BD3 02 36 00"))), PlainFolders(), Decoders());
    const Lines fault = {"Content E: PTX-Unknown Control Sequence"};
    document.host.onGiveWay = [&] {
        if (document.Tree().Nodes().Size() < 3) return;
        ASSERT_FALSE(document.Select(2));
        EXPECT_EQ(LinesOf(document.messages), fault);
        EXPECT_TRUE(document.IsRed(2));
        EXPECT_TRUE(document.IsRed(NodeStore::kRoot));
    };
    document.Run();
    ASSERT_GE(document.host.waysGiven, 2);
    document.host.onGiveWay = nullptr;
    EXPECT_FALSE(document.Select(2));
    EXPECT_NE(document.Content(2).find("Unknown Control"), std::string::npos);
    EXPECT_EQ(LinesOf(document.messages), fault);
}

TEST(BodiesInARun, AreReadWithTheFontControlOfTheMomentAndThenWithTheLastOne)
{
    AfpFile file;
    file.Add("FNC", FontControl(5, 28)).Add("FNI", Ebcdic8("LA010000") + Zeros(20));
    const Bytes content = BeforeFilling(file) + AfpFile().Add("FNC", FontControl(1, 28)).Content();
    TestDocument document(content, PlainFolders(), Decoders());
    Lines seen;
    document.host.onGiveWay = [&] {
        ASSERT_FALSE(document.Select(3));
        seen.push_back(document.Content(3));
    };
    document.Run();
    document.host.onGiveWay = nullptr;
    ASSERT_GE(seen.size(), 2u);
    const std::string_view index = "FNM";
    EXPECT_NE(seen.front().find(index), std::string::npos) << seen.front();
    EXPECT_EQ(seen.back(), seen.front());
    EXPECT_NE(document.Content(3).find("LA010000"), std::string::npos);
    EXPECT_EQ(document.Content(3).find(index), std::string::npos) << document.Content(3);
}

TEST(BodiesInARun, CanBeReadInTheMomentOfACancel)
{
    TestDocument document(BeforeFilling(AfpFile().Add("PTX", Text("BODY", 4))), PlainFolders(), Decoders());
    document.host.onGiveWay = [&] {
        ASSERT_FALSE(document.Select(2));
        EXPECT_NE(document.Content(2).find("BODY"), std::string::npos);
        document.document.SetOperationInteruptedFlag(true);
    };
    ASSERT_TRUE(document.Run());
    EXPECT_EQ(document.host.waysGiven, 1);
    EXPECT_LT(document.Tree().Nodes().Size(), 100u);
    EXPECT_FALSE(document.document.Processing());
    EXPECT_NE(document.Content(2).find("BODY"), std::string::npos);
    EXPECT_FALSE(test::IsHeldOpen(document.path));
}

TEST(BodiesInARun, OfAFileThatHasVanishedFailAndTheRunGoesOn)
{
    TestDocument document(BeforeFilling(AfpFile().Add("PTX", Text("BODY", 4))), PlainFolders(), Decoders());
    document.host.onGiveWay = [&] {
        std::filesystem::remove(document.path);
        EXPECT_EQ(document.Select(2).number, 53);
        EXPECT_TRUE(document.document.GetNodeContents_bolUnread(2));
        EXPECT_EQ(document.Content(2).find("BODY"), std::string::npos);
    };
    ASSERT_TRUE(document.Run());
    EXPECT_EQ(document.document.Outcome(), RunOutcome::Walked);
    EXPECT_EQ(document.document.SFCount(), 201);
    EXPECT_GE(document.host.waysGiven, 2);
    EXPECT_EQ(document.messages.Size(), 0u);
}

// A long stretch of noise is a moment in the midst of the reader's own search.
TEST(BodiesInARun, CanBeReadWhileTheReaderLooksForARecord)
{
    const Bytes content =
        AfpFile().Add("PTX", Text("BODY", 4)).Noise(Bytes(11'000'000, '\x40')).Add("NOP", Ebcdic("behind")).Content();
    TestDocument document(content, PlainFolders(), Decoders());
    document.host.onGiveWay = [&] {
        ASSERT_FALSE(document.Select(2));
        ASSERT_NE(document.Content(2).find("BODY"), std::string::npos);
    };
    ASSERT_TRUE(document.Run());
    EXPECT_GT(document.host.waysGiven, 100);
    EXPECT_EQ(Outline(document.Tree()), "test.afp\n  PTX\n  NOP: behind\n");
}

// Where the run stands in the tree decides whether the file ends too early.
TEST(BodiesInARun, DontMoveTheRunToAnotherFolder)
{
    AfpFile cut;
    cut.Add("PTX", Text("BODY", 4)).Add("BPG").Add("NOP").Noise(Bytes(100'000, '\x40'));
    TestDocument document(cut.Content(), PlainFolders(), Decoders());
    document.host.onGiveWay = [&] { ASSERT_FALSE(document.Select(2)); };
    ASSERT_TRUE(document.Run());
    ASSERT_GE(document.host.waysGiven, 1);
    EXPECT_EQ(LinesOf(document.messages),
              Lines{"Structure E: This file seems to be truncated! Processing was canceled!"});
}

// What is read in a run belongs to the chain of readings that goes on behind it.
TEST(BodiesInARun, LeaveTheirLastItemToTheOneReadNext)
{
    AfpFile file;
    file.Add("PTX", Text("FIRST", 1)).Add("PTX", Ebcdic("____") + Text("SECOND", 6));
    TestDocument document(BeforeFilling(file), PlainFolders(), Decoders());
    document.host.onGiveWay = [&] { ASSERT_FALSE(document.Select(2)); };
    ASSERT_TRUE(document.Run());
    document.host.onGiveWay = nullptr;
    ASSERT_FALSE(document.Select(3));
    EXPECT_NE(document.Content(3).find("preceding element"), std::string::npos);
    EXPECT_NE(document.Content(3).find("SECOND"), std::string::npos);
}

// Units that change while a document is open ------------------------------------------------------------------------

// A body that is a size in the page's units, which are inches at first.
DecodePorts Sizes()
{
    return {.Sequences = [](clsAFPFunctions& afp) { afp.AddElement(Element::Int32(Key::PageSizeX, 720)); }};
}

TEST(TakeSettings, CountsForTheTextsThatAreMadeFromThenOn)
{
    const Bytes content = AfpFile().Add("PTX", Zeros(2)).Add("PTX", Zeros(2)).Content();
    TestDocument document(content, PlainFolders(), Sizes());
    document.Run();
    ASSERT_FALSE(document.Select(2));
    const std::string inches = document.Content(2);
    EXPECT_TRUE(inches.ends_with("(0.5 Inch)\r\n")) << inches;
    Settings metric;
    metric.DefaultMeasurement = 2;
    metric.Language = 2;  // the analysis keeps its own
    document.document.TakeSettings(metric);
    EXPECT_EQ(document.Content(2), inches);
    ASSERT_FALSE(document.Select(3));
    EXPECT_EQ(document.Content(3), HeadLines("PTX (Presentation Text Data, x'D3 EE 9B')", 12, 10) +
                                       "Size in X direction: 720   (12.7 mm)\r\n");
}

TEST(TakeSettings, CountsInARunAlsoForRecordsThatWereSeenBefore)
{
    const Bytes descriptor = Pieces("00 00 0960 0960 0000F0 0000F0 00*3");
    AfpFile file;
    for (int i = 0; i < 3000; ++i) file.Add("PGD", descriptor);
    TestDocument document(file.Content(), PlainFolders(), Decoders());
    std::uint32_t from = 0;
    document.host.onGiveWay = [&] {
        Settings metric;
        metric.DefaultMeasurement = 2;
        document.document.TakeSettings(metric);
        from = document.Tree().Nodes().Size();
    };
    document.Run();
    ASSERT_EQ(document.host.waysGiven, 1);
    for (const std::uint32_t node : {2u, from - 1})
        EXPECT_NE(document.Content(node).find("240   (1 Inch)"), std::string::npos) << document.Content(node);
    for (const std::uint32_t node : {from, from + 1, 3001u})
        EXPECT_NE(document.Content(node).find("240   (25.4 mm)"), std::string::npos) << document.Content(node);
}

// A line width that is given in normal widths follows the setting, until a file gives its own.
TEST(TakeSettings, SetsTheNormalLineWidth)
{
    AfpFile file;
    file.Add("GAD", Pieces("19 02"));
    for (int i = 0; i < 70; ++i) file.Add("NOP", Ebcdic(std::string(1000, 'x')));
    file.Add("GAD", Pieces("19 02"));
    TestDocument document(file.Content(), PlainFolders(), Decoders());
    document.host.onGiveWay = [&] {
        Settings thicker;
        thicker.NormalLineWidth = 0;
        document.document.TakeSettings(thicker);
    };
    document.Run();
    ASSERT_EQ(document.host.waysGiven, 1);
    EXPECT_NE(document.Content(2).find("0.0167 Inch"), std::string::npos) << document.Content(2);
    EXPECT_NE(document.Content(73).find("0.02 Inch"), std::string::npos) << document.Content(73);
}

}  // namespace
}  // namespace folioscope
