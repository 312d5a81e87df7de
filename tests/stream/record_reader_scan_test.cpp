// The reader's scan against the slow one, on files that are cut, damaged or plain chance; and its pauses.

#include <gtest/gtest.h>

#include "stream/big_file.h"
#include "stream/record_reader.h"
#include "stream/reference_scan.h"
#include "stream/walk.h"
#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

class RecordReaderScan : public testing::Test {
protected:
    // True if both scans say the same of the file.
    testing::AssertionResult AsTheReference(const Bytes& content)
    {
        const Walked expected = ReferenceScan(content).Walk();
        disk_.SetTail(content);
        const Walked walked = Walk(reader_, disk_.Path());
        if (walked.framing.intRDWLength != expected.framing.intRDWLength ||
            walked.framing.int5ALength != expected.framing.int5ALength ||
            walked.framing.intDelimiterLength != expected.framing.intDelimiterLength ||
            walked.framing.strLinefeed != expected.framing.strLinefeed)
            return testing::AssertionFailure() << "another framing";
        if (walked.records != expected.records)
            return testing::AssertionFailure() << testing::PrintToString(walked.records) << "\nin the place of\n"
                                               << testing::PrintToString(expected.records);
        if (walked.end != expected.end) return testing::AssertionFailure() << "ended with " << walked.end;
        return testing::AssertionSuccess();
    }

    TemporaryFolder folder_;
    FileWithTail disk_{folder_, ""};
    RecordReader reader_;  // one for all files of a test, so that a file sees what the one before has left
};

PackedFile SmallFile(const Packing& packing)
{
    PackedFile file(packing);
    for (const std::size_t length : {16, 8, 21, 40, 9, 300}) file.Add(Record(length, '\x0D'));
    return file;
}

TEST_F(RecordReaderScan, EveryTruncationOfAFile)
{
    for (const Packing& packing : kPackings) {
        const PackedFile file = SmallFile(packing);
        for (std::size_t size = file.Content().size(); size-- > 0;)
            ASSERT_TRUE(AsTheReference(file.Content().substr(0, size))) << packing.name << " cut to " << size;
    }
}

TEST_F(RecordReaderScan, EveryFileThatStartsTooLate)
{
    for (const Packing& packing : kPackings) {
        const PackedFile file = SmallFile(packing);
        for (std::size_t from = 1; from < 120; ++from)
            ASSERT_TRUE(AsTheReference(file.Content().substr(from))) << packing.name << " from " << from;
    }
}

TEST_F(RecordReaderScan, EveryByteLostOrDoubled)
{
    for (const Packing& packing : kPackings) {
        const Bytes content = SmallFile(packing).Content().substr(0, 130);
        for (std::size_t at = 0; at < content.size(); ++at) {
            ASSERT_TRUE(AsTheReference(Bytes(content).erase(at, 1))) << packing.name << " without byte " << at;
            ASSERT_TRUE(AsTheReference(Bytes(content).insert(at, 1, content[at]))) << packing.name << " at " << at;
        }
    }
}

TEST_F(RecordReaderScan, ChanceBytes)
{
    Chance chance(1);
    std::size_t records = 0;
    for (int i = 0; i < 3000; ++i) {
        const Bytes content = chance.AfpLike(chance.Below(400));
        ASSERT_TRUE(AsTheReference(content)) << "file " << i;
        records += ReferenceScan(content).Walk().records.size();
    }
    EXPECT_GT(records, 3000U) << "the bytes are too tame to show anything";
}

TEST_F(RecordReaderScan, ChanceBytesBetweenRecords)
{
    Chance chance(2);
    for (int i = 0; i < 600; ++i) {
        PackedFile file(kPackings[chance.Below(std::size(kPackings))]);
        for (std::uint32_t left = chance.Below(8); left > 0; --left) {
            file.Add(Record(8 + chance.Below(chance.Below(4) == 0 ? 60000 : 60)));
            if (chance.Below(3) == 0) file.Noise(chance.AfpLike(chance.Below(30)));
        }
        Bytes content = file.Content();
        for (std::uint32_t left = chance.Below(4); left > 0 && !content.empty(); --left)
            content[chance.Below(static_cast<std::uint32_t>(content.size()))] = static_cast<char>(chance.Next());
        ASSERT_TRUE(AsTheReference(content)) << "file " << i;
    }
}

TEST_F(RecordReaderScan, ManyCandidatesThatAreNone)
{
    for (const Bytes& pattern :
         {Raw({0xD3}), Raw({0xD3, 0xA8}), Raw({0xD3, 0xEE, 0x00}), Raw({0x00, 0xD3, 0xD3, 0xA9})}) {
        Bytes content = Record(16);
        while (content.size() < 200'000) content += pattern;
        ASSERT_TRUE(AsTheReference(content + Record(20)));
    }
}

// Records of length 0 without anything around them take a step of one byte each.
TEST_F(RecordReaderScan, AFileFullOfRecordsOfLengthZeroEnds)
{
    Bytes content;
    for (int i = 0; i < 20'000; ++i) content += U2(0) + Raw({0xD3, 0xEE, 0xEE});
    ASSERT_TRUE(AsTheReference(content));
    EXPECT_EQ(Walk(reader_, disk_.Path()).records.size(), 20'000U);
}

// --- Pauses ---

class RecordReaderPauses : public RecordReaderScan {
protected:
    // The places of all pauses from the opening of the file to its end.
    std::vector<std::int32_t> PausesIn(const Bytes& content)
    {
        std::vector<std::int32_t> pauses;
        reader_.onScan = [&](std::int32_t lngProcessedBytes) {
            EXPECT_EQ(lngProcessedBytes, reader_.ProcessedBytes());
            pauses.push_back(lngProcessedBytes);
            return true;
        };
        Walk(reader_, folder_.File("pause.afp", content));
        return pauses;
    }
};

TEST_F(RecordReaderPauses, ComeInNoiseAtStepsOfAChunkAsBigAsARecord)
{
    for (const char fill : {'\0', '\xD3', '\x40'}) {
        const auto pauses = PausesIn(Record(16) + Bytes(1'000'000, fill) + Record(16));
        // Most of them, as a step may be a little longer; none is missing for two steps.
        EXPECT_GE(pauses.size(), 1'000'000U / 65'536 / 2);
        std::int32_t before = 16;
        for (const std::int32_t pause : pauses) {
            EXPECT_GE(pause - before, 65'536);
            EXPECT_LE(pause - before, 2 * 65'536);
            before = pause;
        }
        EXPECT_LE(1'000'016 - before, 2 * 65'536);
    }
}

TEST_F(RecordReaderPauses, ComeInTheSearchForTheFirstRecordToo)
{
    EXPECT_GT(PausesIn(Zeros(300'000) + Record(16)).size(), PausesIn(Record(16) + Zeros(300'000)).size());
}

TEST_F(RecordReaderPauses, DoNotComeBetweenRecords)
{
    PackedFile file({"", 0, true, ""});
    for (int i = 0; i < 300; ++i) file.Add(Record(60'000)).Noise(Zeros(500));
    EXPECT_TRUE(PausesIn(file.Content()).empty());
}

TEST_F(RecordReaderPauses, EndTheWalkWhenTheyAreAnsweredWithFalse)
{
    reader_.SetFile(folder_.File("pause.afp", Record(16) + Zeros(1'000'000) + Record(16)));
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
    ASSERT_EQ(reader_.GetNextRecord2(), kRecord);
    int pauses = 0;
    reader_.onScan = [&](std::int32_t) { return ++pauses < 3; };
    EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
    EXPECT_EQ(pauses, 3);
    EXPECT_LT(reader_.ProcessedBytes(), 500'000);
    EXPECT_EQ(reader_.CloseAFPFile(), kClosed);
}

TEST_F(RecordReaderPauses, CanEndTheOpening)
{
    reader_.SetFile(folder_.File("pause.afp", Zeros(1'000'000) + Record(16)));
    int pauses = 0;
    reader_.onScan = [&](std::int32_t) { return ++pauses, false; };
    EXPECT_EQ(reader_.OpenAFPFile(), kOpen);
    EXPECT_EQ(pauses, 1);
    EXPECT_EQ(reader_.Frame().strLinefeed, "");
    EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
    EXPECT_LE(pauses, 2);
}

TEST_F(RecordReaderPauses, LetTheOpeningGoOn)
{
    reader_.SetFile(folder_.File("pause.afp", Zeros(9'000'000) + Record(16) + "\r\n" + Record(16) + "\r\n"));
    bool paused = false;
    int pauses = 0;
    reader_.onScan = [&](std::int32_t) { return paused = true, ++pauses, false; };
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
    while (paused) {
        paused = false;
        ASSERT_EQ(reader_.GoOnOpening(), kOpen);
    }
    EXPECT_GT(pauses, 100);
    EXPECT_EQ(reader_.Frame().strLinefeed, "\r\n");
    reader_.onScan = nullptr;
    EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
    EXPECT_EQ(reader_.FieldLength(), 16);
    EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
    EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
}

}  // namespace
}  // namespace folioscope::test
