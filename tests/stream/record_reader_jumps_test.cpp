// Single records, read again by their position when the walk is over.

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <numeric>

#include "stream/big_file.h"
#include "stream/file_calls.h"
#include "stream/record_reader.h"
#include "stream/walk.h"
#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

constexpr std::size_t kTail = 131'070;  // bytes behind a record that decoders can reach

class RecordReaderJumps : public testing::Test {
protected:
    // Walks a file to its end and opens it for jumps.
    std::vector<Found> WalkAndReopen(const std::string& path)
    {
        std::vector<Found> records = Walk(reader_, path).records;
        EXPECT_FALSE(reader_.OpenAFPFileRandom());
        Calls() = {};
        return records;
    }

    testing::AssertionResult JumpDelivers(const Found& record)
    {
        if (const auto failure = reader_.SetNextRecord(static_cast<std::int32_t>(record.told)))
            return testing::AssertionFailure() << "failure " << failure.number;
        const Found found = RecordInHand(reader_);
        if (found.told != record.told || found.length != record.length || found.bytes != record.bytes)
            return testing::AssertionFailure()
                   << testing::PrintToString(found) << " for " << testing::PrintToString(record);
        return testing::AssertionSuccess();
    }

    // What lies behind the record in hand, as far as decoders can reach.
    Bytes BehindTheRecord(std::size_t reach = kTail) const
    {
        const auto buffer = reader_.RecordBuffer();
        const auto end = static_cast<std::size_t>(reader_.RecordStart() - 1 + reader_.FieldLength());
        EXPECT_GE(buffer.size(), end + reach);
        if (buffer.size() < end + reach) return {};
        return {reinterpret_cast<const char*>(buffer.data()) + end, reach};
    }

    TemporaryFolder folder_;
    FileCallsGuard guard_;
    RecordReader reader_;
};

// Records of chance lengths, most of them short, in one packing and with a little noise between.
PackedFile MixedFile(const Packing& packing, std::size_t size)
{
    Chance chance(6);
    PackedFile file(packing);
    file.Add(Record(16));
    while (file.Content().size() < size) {
        file.Add(Record(8 + chance.Below(chance.Below(4) == 0 ? 65'528 : 5000), static_cast<char>(chance.Below(64))));
        if (chance.Below(10) == 0) file.Noise(Zeros(chance.Below(3000)));
    }
    return file;
}

TEST_F(RecordReaderJumps, DeliverWhatTheWalkDelivered)
{
    for (const std::size_t packing : {0, 1, 3, 9, 11}) {
        const PackedFile file = MixedFile(kPackings[packing], 3'000'000);
        const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
        ASSERT_EQ(records.size(), file.Records().size());
        for (const Found& record : records) ASSERT_TRUE(JumpDelivers(record)) << kPackings[packing].name;
        reader_.CloseAFPFile();
    }
}

TEST_F(RecordReaderJumps, InAnyOrderOverSeveralChunks)
{
    const PackedFile file = MixedFile({"", 0, true, "\r\n"}, 2 * kChunk + 300'000);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    ASSERT_EQ(records.size(), file.Records().size());
    for (const Found& record : records) ASSERT_TRUE(JumpDelivers(record)) << "in order";
    for (std::size_t i = records.size(); i >= 7; i -= 7) ASSERT_TRUE(JumpDelivers(records[i - 1])) << "backwards";
    Chance chance(7);
    for (int i = 0; i < 300; ++i)
        ASSERT_TRUE(JumpDelivers(records[chance.Below(static_cast<std::uint32_t>(records.size()))])) << "anyhow";
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(JumpDelivers(records[100])) << "again";
}

TEST_F(RecordReaderJumps, WithoutAWalkInTheSameChunkBefore)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 2'000'000);
    const std::string path = folder_.File("a.afp", file.Content());
    reader_.SetFile(path);
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);  // no further than to the framing
    reader_.CloseAFPFile();
    ASSERT_FALSE(reader_.OpenAFPFileRandom());
    for (std::size_t i = file.Records().size(); i-- > 0;) ASSERT_TRUE(JumpDelivers(file.Records()[i]));
}

TEST_F(RecordReaderJumps, TheRecordStandsWhereItsPositionSays)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 1'500'000);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    for (const Found& record : records) {
        ASSERT_FALSE(reader_.SetNextRecord(static_cast<std::int32_t>(record.told)));
        ASSERT_EQ(reader_.BufferFilePos() + reader_.RecordStart() - 1, record.told);
        ASSERT_GE(reader_.RecordStart(), 1);
    }
}

TEST_F(RecordReaderJumps, WhatLiesBehindTheRecordIsTheFilesAndThenZeros)
{
    for (const std::size_t size : {1000, 100'000, 3'000'000}) {
        const PackedFile file = MixedFile({"", 0, true, "\n"}, size);
        const Bytes padded = file.Content() + Zeros(kTail);
        const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
        const auto check = [&](const Found& record) {
            ASSERT_TRUE(JumpDelivers(record));
            const auto end = static_cast<std::size_t>(record.told - 1 + record.length);
            ASSERT_TRUE(BehindTheRecord() == padded.substr(end, kTail)) << testing::PrintToString(record);
        };
        for (const Found& record : records) check(record);
        for (std::size_t i = records.size(); i-- > 0;) check(records[i]);
    }
}

TEST_F(RecordReaderJumps, WhatLiesBehindTheRecordIsTheFilesInALongFileToo)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, kChunk + 5'000'000);
    const Bytes padded = file.Content() + Zeros(kTail);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    for (std::size_t i = 0; i < records.size(); i += 5) {
        ASSERT_TRUE(JumpDelivers(records[i]));
        const auto end = static_cast<std::size_t>(records[i].told - 1 + records[i].length);
        ASSERT_TRUE(BehindTheRecord() == padded.substr(end, kTail)) << testing::PrintToString(records[i]);
    }
}

// At the border of a chunk the walk has only zeros behind a record; a jump has the file's bytes.
TEST_F(RecordReaderJumps, WhatLiesBehindARecordAtTheBorderOfAChunk)
{
    PackedFile file = PackedFile({"", 0, false, ""}).FillTo(kChunk - 1000);
    file.Add(Record(1000)).Add(Record(60'000, '\x77')).Add(Record(65'535, '\x66')).Add(Record(65'535, '\x55'));
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    const Found& last = records[records.size() - 4];
    ASSERT_EQ(last.told, kChunk - 1000);
    for (const std::size_t before : {std::size_t{0}, records.size() - 1, records.size() - 5}) {
        ASSERT_TRUE(JumpDelivers(records[before]));
        ASSERT_TRUE(JumpDelivers(last));
        EXPECT_TRUE(BehindTheRecord() == file.Content().substr(kChunk - 1, kTail)) << before;
    }
}

TEST_F(RecordReaderJumps, ALastRecordLongerThanTheFileComesAsInTheWalk)
{
    for (const std::int64_t at : {std::int64_t{1000}, std::int64_t{1'000'000}}) {
        PackedFile file = PackedFile({"", 0, true, ""}).FillTo(at);
        file.Noise(U1(0x5A) + Record(60'000).substr(0, 300));
        const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
        ASSERT_EQ(records.back().length, 60'000);
        ASSERT_TRUE(JumpDelivers(records.front()));
        ASSERT_TRUE(JumpDelivers(records.back()));
        // The record itself takes a part of the zeros behind the file.
        EXPECT_TRUE(BehindTheRecord(kTail / 2) == Zeros(kTail / 2));
    }
}

TEST_F(RecordReaderJumps, ShortRecordsAtTheEndOfTheFile)
{
    const Bytes tiny = U2(5) + Raw({0xD3, 0xEE, 0xEE});
    const PackedFile file = PackedFile({"", 0, false, ""}).FillTo(700'000);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content() + tiny + tiny));
    ASSERT_EQ(records.size(), file.Records().size() + 2);
    ASSERT_TRUE(JumpDelivers(records.front()));
    ASSERT_TRUE(JumpDelivers(records.back()));
    ASSERT_TRUE(JumpDelivers(records[records.size() - 2]));
}

TEST_F(RecordReaderJumps, InFileOrderReadTheFileAboutOnce)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 2 * kChunk + 300'000);
    const auto size = static_cast<std::int64_t>(file.Content().size());
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    for (const Found& record : records) ASSERT_TRUE(JumpDelivers(record));
    EXPECT_LT(Calls().bytes, 2 * size);
    EXPECT_LT(Calls().calls, size / 100'000);
}

TEST_F(RecordReaderJumps, ToEachOfManyShortRecordsReadTheFileAboutOnce)
{
    PackedFile file({"", 0, true, ""});
    for (int i = 0; i < 200'000; ++i) file.Add(Record(16));
    BigFile disk(folder_, 2 * kChunk);
    disk.Put(1, file.Content());
    const auto records = WalkAndReopen(disk.Path());
    ASSERT_EQ(records.size(), file.Records().size());
    for (const Found& record : records) ASSERT_TRUE(JumpDelivers(record));
    EXPECT_LT(Calls().bytes, 3 * static_cast<std::int64_t>(file.Content().size()));
}

TEST_F(RecordReaderJumps, OneJumpReadsLessThanAChunk)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 2 * kChunk + 300'000);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    for (const std::size_t i : {records.size() / 2, std::size_t{0}, records.size() / 4}) {
        Calls() = {};
        ASSERT_TRUE(JumpDelivers(records[i]));
        EXPECT_LT(Calls().bytes, kChunk / 2);
        EXPECT_GT(Calls().bytes, 0);
    }
}

TEST_F(RecordReaderJumps, ToWhatTheFileHasLostFail)
{
    PackedFile file = PackedFile({"", 0, true, ""}).FillTo(2 * kChunk + 100'000);
    const std::string path = folder_.File("a.afp", file.Content());
    const auto records = WalkAndReopen(path);  // what is in the buffer then lies far behind what is asked for here
    const auto cut = std::find_if(records.begin(), records.end(), [](const Found& r) { return r.told > 5'000'000; });
    const std::int64_t end = cut->told - 1 + cut->length;
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(end));
    ASSERT_TRUE(JumpDelivers(*(cut - 1)));
    ASSERT_TRUE(JumpDelivers(*cut)) << "its last byte is the file's";
    EXPECT_EQ(reader_.SetNextRecord(static_cast<std::int32_t>((cut + 1)->told)).number, kDeviceFailure.number);
    EXPECT_EQ(reader_.SetNextRecord(static_cast<std::int32_t>((cut + 20)->told)).number, kDeviceFailure.number);
    ASSERT_TRUE(JumpDelivers(records.front())) << "a failure doesn't stick";
}

TEST_F(RecordReaderJumps, ToARecordThatHasLostItsLastByteFail)
{
    const PackedFile file = PackedFile({"", 0, true, ""}).FillTo(2 * kChunk + 100'000);
    const std::string path = folder_.File("a.afp", file.Content());
    const auto records = WalkAndReopen(path);
    const Found& cut = records[70];
    for (const std::int64_t left : {cut.told + cut.length - 2, cut.told + 1, cut.told, cut.told - 1, std::int64_t{0}}) {
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(left));
        EXPECT_EQ(reader_.SetNextRecord(static_cast<std::int32_t>(cut.told)).number, kDeviceFailure.number) << left;
    }
}

TEST_F(RecordReaderJumps, OutsideTheFileFail)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 1'000'000);
    const auto size = static_cast<std::int32_t>(file.Content().size());
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    for (const std::int32_t position :
         {size + 1, size + 1'000'000, 0, -1, -1'000'000, std::numeric_limits<std::int32_t>::max()})
        EXPECT_EQ(reader_.SetNextRecord(position).number, kDeviceFailure.number) << position;
    ASSERT_TRUE(JumpDelivers(records[3]));
}

TEST_F(RecordReaderJumps, ToNoRecordTakeItsTwoBytesForALength)
{
    const Bytes noise = U2(40) + Bytes(60, '\x40');
    const auto records = WalkAndReopen(folder_.File("a.afp", Record(16) + noise));
    ASSERT_EQ(records.size(), 1U);
    ASSERT_FALSE(reader_.SetNextRecord(17));
    EXPECT_EQ(reader_.FieldLength(), 40);
    EXPECT_EQ(RecordInHand(reader_).bytes, noise.substr(0, 40));
}

TEST_F(RecordReaderJumps, FailWithTheNumberOfTheFailedRead)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, kChunk + 3'000'000);
    const auto records = WalkAndReopen(folder_.File("a.afp", file.Content()));
    Calls().goodCalls = 0;
    Calls().error = EIO;
    EXPECT_EQ(reader_.SetNextRecord(static_cast<std::int32_t>(records.front().told)).number, 57);
    Calls() = {};
    ASSERT_TRUE(JumpDelivers(records.front()));
}

TEST_F(RecordReaderJumps, FailWhenTheFileIsGone)
{
    const PackedFile file = MixedFile({"", 0, true, ""}, 100'000);
    const std::string path = folder_.File("a.afp", file.Content());
    Walk(reader_, path);
    std::filesystem::remove(path);
    EXPECT_EQ(reader_.OpenAFPFileRandom().number, 53);
    EXPECT_FALSE(reader_.IsOpen());
}

TEST_F(RecordReaderJumps, ManyOpeningsAndJumpsKeepTheFraming)
{
    const PackedFile file = MixedFile({"", 4, true, "\r\n"}, 300'000);
    const std::string path = folder_.File("a.afp", file.Content());
    const auto records = Walk(reader_, path).records;
    for (const Found& record : records) {
        ASSERT_FALSE(reader_.OpenAFPFileRandom());
        ASSERT_TRUE(JumpDelivers(record));
        ASSERT_EQ(reader_.CloseAFPFile(), kClosed);
        ASSERT_EQ(reader_.Frame().intRDWLength, 4);
        ASSERT_EQ(reader_.Frame().strLinefeed, "\r\n");
    }
    EXPECT_EQ(Walk(reader_, path).records, file.Records()) << "a walk after jumps";
}

}  // namespace
}  // namespace folioscope::test
