// Files longer than the reader's buffer: what stands at its border, and noise that fills it.

#include <gtest/gtest.h>

#include <filesystem>

#include "stream/big_file.h"
#include "stream/file_calls.h"
#include "stream/record_reader.h"
#include "stream/reference_scan.h"
#include "stream/walk.h"
#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

using Positions = std::vector<std::int64_t>;

constexpr std::int64_t kNearBorder = kChunk - 200'000;  // room for records of every length in front of the border

class RecordReaderChunks : public testing::Test {
protected:
    TemporaryFolder folder_;
    FileCallsGuard guard_;
    RecordReader reader_;
};

// The bytes of a file behind those that another, its begin, has.
Bytes TailOf(const PackedFile& file, const PackedFile& front) { return file.Content().substr(front.Content().size()); }

void ExpectAsTheReference(const Walked& walked, const Bytes& content)
{
    const Walked expected = ReferenceScan(content).Walk();
    EXPECT_EQ(walked.records, expected.records);
    EXPECT_EQ(walked.end, expected.end);
    EXPECT_EQ(walked.framing.strLinefeed, expected.framing.strLinefeed);
}

TEST_F(RecordReaderChunks, ALengthFieldAtEachOfTheLastBytes)
{
    for (const std::size_t packing : {0, 1, 2, 3, 11}) {
        const PackedFile front = PackedFile(kPackings[packing]).FillTo(kNearBorder);
        FileWithTail disk(folder_, front.Content());
        for (std::int64_t position = kChunk - 9; position <= kChunk + 1; ++position) {
            PackedFile file = front;
            file.FillTo(position).Add(Record(position % 2 == 0 ? 8 : 65'535)).Add(Record(9)).Add(Record(70'00));
            disk.SetTail(TailOf(file, front));
            const Walked walked = Walk(reader_, disk.Path());
            EXPECT_EQ(walked.records, file.Records()) << kPackings[packing].name << " at " << position;
            EXPECT_EQ(walked.end, kNoFurtherRecord);
        }
    }
}

// The file position of buffer index 1 when the record at that position is delivered.
std::int32_t BufferStartAt(RecordReader& reader, const std::string& path, std::int64_t position)
{
    reader.SetFile(path);
    EXPECT_EQ(reader.OpenAFPFile(), kOpen);
    while (reader.GetNextRecord2() == kRecord)
        if (reader.BufferFilePos() + reader.RecordStart() - 1 >= position) return reader.BufferFilePos();
    return 0;
}

TEST_F(RecordReaderChunks, TheBufferMovesOnOnlyForARecordThatDoesNotFit)
{
    const PackedFile front = PackedFile({"", 0, false, ""}).FillTo(kNearBorder);
    FileWithTail disk(folder_, front.Content());
    for (const std::int64_t length : {8, 100, 65'535})
        for (const std::int64_t beyond : {-1, 0, 1, 2}) {
            const std::int64_t position = kChunk - length + beyond;  // the index behind the record is the chunk's last
            PackedFile file = front;
            file.FillTo(position).Add(Record(static_cast<std::size_t>(length))).Add(Record(100));
            disk.SetTail(TailOf(file, front));
            EXPECT_EQ(BufferStartAt(reader_, disk.Path(), position), beyond <= 0 ? 1 : position) << length << beyond;
            EXPECT_EQ(Walk(reader_, disk.Path()).records, file.Records()) << length << beyond;
        }
}

TEST_F(RecordReaderChunks, TheTestOfACandidateNeedsItsFiveBytesInTheBuffer)
{
    const PackedFile front = PackedFile({"", 0, false, ""}).FillTo(kNearBorder);
    FileWithTail disk(folder_, front.Content());
    const Bytes tiny = U2(4) + Raw({0xD3, 0xEE, 0xEE});
    for (std::int64_t position = kChunk - 6; position <= kChunk; ++position) {
        PackedFile file = front;
        file.FillTo(position).Noise(tiny).Noise(Zeros(100));
        disk.SetTail(TailOf(file, front));
        EXPECT_EQ(BufferStartAt(reader_, disk.Path(), position), position + 4 <= kChunk ? 1 : position) << position;
    }
}

TEST_F(RecordReaderChunks, BehindTheBuffersEndDecodersReadZeros)
{
    PackedFile file = PackedFile({"", 0, false, ""}).FillTo(kChunk - 1000);
    file.Add(Record(1000)).Add(Record(30'000, '\x77'));
    reader_.SetFile(folder_.File("a.afp", file.Content()));
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
    for (std::size_t i = 0; i + 1 < file.Records().size(); ++i) ASSERT_EQ(reader_.GetNextRecord2(), kRecord);
    ASSERT_EQ(reader_.RecordStart(), kChunk - 1000);
    const auto buffer = reader_.RecordBuffer();
    ASSERT_GE(buffer.size(), static_cast<std::size_t>(kChunk) + 131'070);
    EXPECT_EQ(buffer[static_cast<std::size_t>(kChunk) - 1], 30'000 >> 8) << "the last byte of the chunk";
    for (auto i = static_cast<std::size_t>(kChunk); i < buffer.size(); ++i) ASSERT_EQ(buffer[i], 0) << i;
}

TEST_F(RecordReaderChunks, RecordsOfAllLengthsOverSeveralChunks)
{
    Chance chance(3);
    for (const std::size_t packing : {0, 3, 9}) {
        PackedFile file(kPackings[packing]);
        file.Add(Record(16));
        while (static_cast<std::int64_t>(file.Content().size()) < 2 * kChunk + 500'000)
            file.Add(Record(8 + chance.Below(65'535 - 7)));
        const std::string path = folder_.File("a.afp", file.Content());
        Calls() = {};
        EXPECT_EQ(Walk(reader_, path).records, file.Records()) << kPackings[packing].name;
        EXPECT_LT(Calls().bytes, static_cast<std::int64_t>(file.Content().size()) + 3 * 65'536) << "read again";
    }
}

TEST_F(RecordReaderChunks, ChanceBytesAroundTheBorder)
{
    Chance chance(4);
    for (const std::size_t packing : {0, 1, 3, 9}) {
        const PackedFile front = PackedFile(kPackings[packing]).FillTo(kNearBorder);
        FileWithTail disk(folder_, front.Content());
        for (int i = 0; i < 6; ++i) {
            PackedFile file = front;
            file.FillTo(kChunk - 100 - chance.Below(5000)).Noise(chance.AfpLike(4000 + chance.Below(80'000)));
            disk.SetTail(TailOf(file, front));
            ExpectAsTheReference(Walk(reader_, disk.Path()), disk.Content());
        }
    }
}

TEST_F(RecordReaderChunks, NoiseLongerThanChunks)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16)).Noise(Zeros(kChunk + 12'345)).Add(Record(20)).Noise(Bytes(2 * kChunk, '\xD3')).Add(Record(24));
    const Walked walked = Walk(reader_, folder_.File("a.afp", file.Content()));
    EXPECT_EQ(walked.records, file.Records());
    EXPECT_EQ(walked.end, kNoFurtherRecord);
}

TEST_F(RecordReaderChunks, NoRecordInAFileOfSeveralChunks)
{
    BigFile file(folder_, 2 * kChunk + 1000);
    const Walked walked = Walk(reader_, file.Path());
    EXPECT_EQ(walked.records.size(), 0U);
    EXPECT_EQ(walked.end, kNoFurtherRecord);
    EXPECT_EQ(walked.framing.strLinefeed, "");
    EXPECT_EQ(reader_.ProcessedBytes(), 2 * kChunk + 1000);
}

// --- The first record lies in a later chunk ---
// The search for it has moved the buffer on, and the walk starts over in what is there: it counts from the file's
// begin, over the bytes of the later chunk. Only the next refill brings both together again.

TEST_F(RecordReaderChunks, PositionsRestartWhenTheFirstRecordIsInTheSecondChunk)
{
    PackedFile file({"", 0, true, ""});
    const std::int64_t noise = 10'300'000;
    file.Noise(Zeros(noise)).Add(Record(16)).Add(Record(20)).Add(Record(24));
    const Walked walked = Walk(reader_, folder_.File("a.afp", file.Content()));
    // The search refills at the last index that leaves a candidate's five bytes, that is from this position on.
    const std::int64_t loaded = kChunk - 3, first = noise + 2;
    const Positions restarted = {first - loaded + 1, first - loaded + 18, first - loaded + 39};
    Positions told = restarted;
    for (const Found& record : file.Records()) told.push_back(record.told);
    EXPECT_EQ(ToldOf(walked.records), told) << "astray first, and a second time where they are";
    for (std::size_t i = 0; i < walked.records.size(); ++i)
        EXPECT_EQ(walked.records[i].bytes, file.Records()[i % 3].bytes) << i;
    EXPECT_EQ(walked.end, kNoFurtherRecord);
    ExpectAsTheReference(walked, file.Content());
}

TEST_F(RecordReaderChunks, PositionsRestartAsTheReferenceHasIt)
{
    Chance chance(5);
    for (const std::int64_t noise : {kChunk - 3, kChunk, kChunk + 1, 2 * kChunk + 70'000}) {
        PackedFile file({"", 0, noise % 2 == 0, "\r\n"});
        file.Noise(Zeros(static_cast<std::size_t>(noise)));
        for (int i = 0; i < 30; ++i) file.Add(Record(8 + chance.Below(3000)));
        const Walked walked = Walk(reader_, folder_.File("a.afp", file.Content()));
        EXPECT_EQ(walked.framing.strLinefeed, "\r\n") << noise;
        ExpectAsTheReference(walked, file.Content());
    }
}

TEST_F(RecordReaderChunks, AfterAWalkAstrayAJumpReadsTheFile)
{
    PackedFile file({"", 0, false, ""});
    // With so much behind them, the buffer would do for a jump if its bytes were those of its positions.
    file.Noise(Zeros(10'300'000)).Add(Record(16)).Add(Record(20)).Noise(Zeros(1'000'000));
    reader_.SetFile(folder_.File("a.afp", file.Content()));
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
    ASSERT_EQ(reader_.GetNextRecord2(), kRecord);
    const Found astray = RecordInHand(reader_);
    ASSERT_NE(astray.told, file.Records()[0].told);
    reader_.CloseAFPFile();
    ASSERT_FALSE(reader_.OpenAFPFileRandom());
    ASSERT_FALSE(reader_.SetNextRecord(static_cast<std::int32_t>(astray.told)));
    EXPECT_EQ(reader_.FieldLength(), 0) << "the file has zeros there";
    ASSERT_FALSE(reader_.SetNextRecord(static_cast<std::int32_t>(file.Records()[1].told)));
    EXPECT_EQ(RecordInHand(reader_).bytes, file.Records()[1].bytes);
}

// --- Damaged last records ---

TEST_F(RecordReaderChunks, ADamagedLastRecordThatReachesBehindTheBufferIsTheEndOfTheData)
{
    for (const std::int64_t chunkStart : {std::int64_t{1}, kChunk - 5000}) {
        PackedFile file = PackedFile({"", 0, false, ""}).FillTo(chunkStart);
        // Its end would lie one byte behind what fits; the file ends long before.
        if (chunkStart > 1) file.Add(Record(65'535));
        file.FillTo(chunkStart + kChunk - 60'000);
        const std::size_t healthy = file.Records().size();
        file.Noise(Record(60'000).substr(0, 50'000)).Noise(Zeros(100));
        const Walked walked = Walk(reader_, folder_.File("a.afp", file.Content()));
        ExpectAsTheReference(walked, file.Content());
        EXPECT_GE(walked.records.size(), healthy);
    }
}

TEST_F(RecordReaderChunks, WithoutProgressEachCallSaysThatThereIsNoFurtherRecord)
{
    PackedFile file = PackedFile({"", 0, false, ""}).FillTo(kChunk - 30'000);
    const std::size_t healthy = file.Records().size();
    file.Noise(U2(60'000) + Raw({0xD3, 0xEE, 0xEE}) + Zeros(100));
    const std::string path = folder_.File("a.afp", file.Content());
    EXPECT_EQ(Walk(reader_, path).records, file.Records());
    reader_.OpenAFPFile();
    for (std::size_t i = 0; i < healthy; ++i) ASSERT_EQ(reader_.GetNextRecord2(), kRecord);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
        EXPECT_EQ(reader_.ProcessedBytes(), kChunk - 30'000 - 1);
    }
}

TEST_F(RecordReaderChunks, ADamagedLastRecordThatFitsIsDelivered)
{
    PackedFile file = PackedFile({"", 0, false, ""}).FillTo(kChunk - 60'000);
    const std::size_t healthy = file.Records().size();
    file.Noise(Record(60'000).substr(0, 100));
    const Walked walked = Walk(reader_, folder_.File("a.afp", file.Content()));
    ASSERT_EQ(walked.records.size(), healthy + 1);
    EXPECT_EQ(walked.records.back().bytes, Record(60'000).substr(0, 100) + Zeros(59'900));
}

TEST_F(RecordReaderChunks, FilesThatEndAroundTheBorder)
{
    for (const std::size_t packing : {0, 1, 9}) {
        const PackedFile front = PackedFile(kPackings[packing]).FillTo(kNearBorder);
        FileWithTail disk(folder_, front.Content());
        for (std::int64_t size = kChunk - 3; size <= kChunk + 6; ++size) {
            PackedFile file = front;
            file.FillTo(size - 40'000).Add(Record(50'000)).Add(Record(100));
            disk.SetTail(TailOf(file, front).substr(0, static_cast<std::size_t>(size) - front.Content().size()));
            ASSERT_EQ(static_cast<std::int64_t>(disk.Content().size()), size);
            ExpectAsTheReference(Walk(reader_, disk.Path()), disk.Content());
        }
    }
}

// A record fits only if the index behind it is one of the buffer. Where the file ends with the buffer, the last
// record has no such index, and no refill can help it.
TEST_F(RecordReaderChunks, FilesWhoseLastRecordEndsAroundTheBorder)
{
    for (const std::size_t packing : {0, 1, 9}) {
        const std::int64_t behind = static_cast<std::int64_t>(std::string_view(kPackings[packing].delimiter).size());
        const PackedFile front = PackedFile(kPackings[packing]).FillTo(kNearBorder);
        FileWithTail disk(folder_, front.Content());
        for (std::int64_t size = kChunk - 2; size <= kChunk + 2; ++size) {
            PackedFile file = front;
            file.FillTo(size - behind - 49'999).Add(Record(50'000));
            disk.SetTail(TailOf(file, front));
            ASSERT_EQ(static_cast<std::int64_t>(disk.Content().size()), size);
            const Walked walked = Walk(reader_, disk.Path());
            ExpectAsTheReference(walked, disk.Content());
            const bool lost = behind == 0 && size == kChunk;
            EXPECT_EQ(walked.records.size() + (lost ? 1 : 0), file.Records().size()) << size;
        }
    }
}

// --- Files that change or fail meanwhile ---

TEST_F(RecordReaderChunks, AFileThatShrinksDuringTheWalk)
{
    PackedFile file = PackedFile({"", 0, true, ""}).FillTo(kChunk + 3'000'000);
    for (const std::int64_t left : {std::int64_t{0}, kChunk - 1'000'000, kChunk + 1'000'000}) {
        const std::string path = folder_.File("a.afp", file.Content());
        reader_.SetFile(path);
        ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
        ASSERT_EQ(reader_.GetNextRecord2(), kRecord);
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(left));
        std::size_t i = 0;
        for (; i < file.Records().size(); ++i) {
            const Found& whole = file.Records()[i];
            const Found found = RecordInHand(reader_);
            ASSERT_EQ(found.told, whole.told);
            ASSERT_EQ(found.length, whole.length);
            // Of the chunk in hand nothing is lost. Behind it, what the file has lost is zero.
            if (whole.told + whole.length > kChunk) {
                const auto kept =
                    static_cast<std::size_t>(std::clamp<std::int64_t>(left - whole.told + 1, 0, whole.length));
                ASSERT_EQ(found.bytes,
                          whole.bytes.substr(0, kept) + Zeros(static_cast<std::size_t>(whole.length) - kept));
            } else {
                ASSERT_EQ(found.bytes, whole.bytes);
            }
            if (reader_.GetNextRecord2() != kRecord) break;
        }
        EXPECT_LT(i, file.Records().size() - 10) << "records that are gone were delivered";
        EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
        reader_.CloseAFPFile();
    }
}

TEST_F(RecordReaderChunks, AReadThatFailsInTheWalk)
{
    PackedFile file = PackedFile({"", 0, true, ""}).FillTo(kChunk + 300'000);
    reader_.SetFile(folder_.File("a.afp", file.Content()));
    ASSERT_EQ(reader_.OpenAFPFile(), kOpen);
    Calls().goodCalls = 0;
    Calls().error = EIO;
    std::size_t delivered = 0;
    Status status;
    while ((status = reader_.GetNextRecord2()) == kRecord)
        EXPECT_EQ(RecordInHand(reader_), file.Records()[delivered++]);
    EXPECT_EQ(status, kFailure);
    EXPECT_EQ(reader_.Failure().number, 57);
    EXPECT_EQ(reader_.Failure().description, "Device I/O error");
    EXPECT_GT(delivered, 150U);
    EXPECT_EQ(reader_.ProcessedBytes(), file.Records()[delivered - 1].processed);
}

// --- The largest file ---

constexpr std::int64_t kLargest = 2'147'483'647;

TEST_F(RecordReaderChunks, TheLargestFileIsWalkedToItsLastByte)
{
    const Bytes prefix = U1(0x5A);
    BigFile file(folder_, kLargest);
    file.Put(1, prefix + Record(16) + prefix + Record(300));
    file.Put(kLargest - 8300, prefix + Record(8000));  // its last byte is 299 bytes before the last record
    file.Put(kLargest - 100, prefix + Record(100));
    const Walked walked = Walk(reader_, file.Path());
    EXPECT_EQ(ToldOf(walked.records), (Positions{2, 19, kLargest - 8299, kLargest - 99}));
    EXPECT_EQ(walked.records.back().bytes, Record(100));
    EXPECT_EQ(walked.records.back().processed, kLargest) << "a position never leaves 32 bits";
    EXPECT_EQ(walked.end, kNoFurtherRecord);
    ASSERT_FALSE(reader_.OpenAFPFileRandom());
    ASSERT_FALSE(reader_.SetNextRecord(static_cast<std::int32_t>(kLargest - 99)));
    EXPECT_EQ(RecordInHand(reader_).bytes, Record(100));
    ASSERT_FALSE(reader_.SetNextRecord(static_cast<std::int32_t>(kLargest - 8299)));
    EXPECT_EQ(RecordInHand(reader_).bytes, Record(8000));
}

TEST_F(RecordReaderChunks, ALastRecordThatReachesBehindTheLargestFile)
{
    BigFile file(folder_, kLargest);
    file.Put(1, Record(16)).Put(kLargest - 99, Record(65'535).substr(0, 100));
    const Walked walked = Walk(reader_, file.Path());
    EXPECT_EQ(ToldOf(walked.records), (Positions{1, kLargest - 99}));
    EXPECT_EQ(walked.records.back().processed, kLargest);
    EXPECT_EQ(walked.end, kNoFurtherRecord);
}

TEST_F(RecordReaderChunks, AFileSizeStaysWithinThirtyTwoBits)
{
    BigFile file(folder_, kLargest + 1000);
    file.Put(1, Record(16));
    reader_.SetFile(file.Path());
    EXPECT_EQ(reader_.OpenAFPFile(), kOpen);
    EXPECT_EQ(reader_.FileSize(), kLargest);
    EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
}

}  // namespace
}  // namespace folioscope::test
