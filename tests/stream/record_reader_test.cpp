#include "stream/record_reader.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "stream/file_calls.h"
#include "stream/walk.h"
#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

using Positions = std::vector<std::int64_t>;

class RecordReaders : public testing::Test {
protected:
    Walked WalkOf(const Bytes& content) { return Walk(reader_, folder_.File("walk.afp", content)); }
    Positions FoundIn(const Bytes& content) { return ToldOf(WalkOf(content).records); }
    Framing FramingOf(const Bytes& content) { return WalkOf(content).framing; }

    TemporaryFolder folder_;
    FileCallsGuard guard_;
    RecordReader reader_;
};

PackedFile SomeRecords(const Packing& packing)
{
    PackedFile file(packing);
    for (const std::size_t length : {16, 8, 9, 200, 300, 8, 65535, 1000}) file.Add(Record(length));
    return file;
}

TEST_F(RecordReaders, WalkEveryPacking)
{
    for (const Packing& packing : kPackings) {
        SCOPED_TRACE(packing.name);
        const PackedFile file = SomeRecords(packing);
        const Walked walked = WalkOf(file.Content());
        EXPECT_EQ(walked.framing.intRDWLength, packing.rdw);
        EXPECT_EQ(walked.framing.int5ALength, packing.fiveA ? 1 : 0);
        EXPECT_EQ(walked.framing.strLinefeed, packing.delimiter);
        EXPECT_EQ(walked.framing.intDelimiterLength, static_cast<int>(walked.framing.strLinefeed.size()));
        EXPECT_EQ(walked.records, file.Records());
        EXPECT_EQ(walked.end, kNoFurtherRecord);
    }
}

TEST_F(RecordReaders, DecideTheDescriptorByTheFirstSixBytes)
{
    struct Case {
        std::initializer_list<int> start;
        int rdw, fiveA;
    };
    const Case kCases[] = {
        {{0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 1},
        {{0x00, 0x12, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 2, 1},
        {{0x00, 0x12, 0x00, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 4, 1},
        {{0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        // The second byte doesn't matter
        {{0x00, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 2, 1},
        {{0x00, 0xFF, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 2, 1},
        {{0x00, 0x5A, 0x00, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 4, 1},
        // Each of the others does
        {{0x01, 0x12, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x5B, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x5A, 0x01, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x01, 0x12, 0x00, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x01, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x00, 0x01, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x00, 0x00, 0x5B, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x00, 0x00, 0x5A, 0x01, 0x10, 0xD3, 0xA8, 0xA8}, 0, 0},
        {{0x00, 0x12, 0x5A, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 2, 1},
        {{0x5A, 0x00, 0x5A, 0x00, 0x10, 0xD3, 0xA8, 0xA8}, 0, 1},
    };
    for (const auto& [start, rdw, fiveA] : kCases) {
        const Bytes content = Raw(start) + Zeros(400);
        const Walked walked = WalkOf(content);
        SCOPED_TRACE(testing::PrintToString(std::vector<int>(start)));
        EXPECT_EQ(walked.framing.intRDWLength, rdw);
        EXPECT_EQ(walked.framing.int5ALength, fiveA);
        // Whatever stands in front of it, the record is found, two bytes before its identifier.
        EXPECT_EQ(ToldOf(walked.records), Positions{static_cast<std::int64_t>(start.size()) - 4});
    }
}

TEST_F(RecordReaders, ALongFirstRecordHidesTheDescriptorAndAllRecordsAreFoundByScanning)
{
    PackedFile file({"", 2, true, ""});
    for (const std::size_t length : {300, 16, 20}) file.Add(Record(length));
    const Walked walked = WalkOf(file.Content());
    EXPECT_EQ(walked.framing.intRDWLength, 0);
    EXPECT_EQ(walked.framing.int5ALength, 0);
    EXPECT_EQ(ToldOf(walked.records), ToldOf(file.Records()));
}

TEST_F(RecordReaders, TheFirstRecordDecidesTheDelimiter)
{
    struct Case {
        const char *behind, *linefeed;
    };
    constexpr Case kCases[] = {{"", ""},       {"\r", "\r"},   {"\n", "\n"},       {"\r\n", "\r\n"}, {"\n\r", "\n"},
                               {"\r\r", "\r"}, {"\n\n", "\n"}, {"\r\n\n", "\r\n"}, {" \r\n", ""},    {"\t", ""}};
    for (const auto& [behind, linefeed] : kCases) {
        const Bytes record = U1(0x5A) + Record(16);
        EXPECT_EQ(FramingOf(record + behind + record + behind).strLinefeed, linefeed);
        EXPECT_EQ(FramingOf(record + behind).strLinefeed, linefeed) << "at the end of the file";
    }
}

TEST_F(RecordReaders, LineFeedCarriageReturnIsALineFeedAndAByteOfNoise)
{
    PackedFile file({"", 0, true, "\n\r"});
    for (const std::size_t length : {16, 20, 8, 300}) file.Add(Record(length));
    EXPECT_EQ(ToldOf(WalkOf(file.Content()).records), ToldOf(file.Records()));
}

// Each step behind a record lands one byte behind the next length field, and the scan never goes back.
TEST_F(RecordReaders, ADelimiterBehindTheFirstRecordOnlyCostsEverySecondRecord)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16)).Noise("\n");
    for (int i = 0; i < 6; ++i) file.Add(Record(20));
    const Positions at = ToldOf(file.Records());
    EXPECT_EQ(FoundIn(file.Content()), (Positions{at[0], at[1], at[3], at[5]}));
}

TEST_F(RecordReaders, AStepThatLandsShortIsRepaired)
{
    PackedFile file({"", 0, false, ""});
    file.Add(Record(16));
    for (int i = 0; i < 3; ++i) file.Noise("\x5A").Add(Record(20));
    file.Noise(Raw({0x00, 0x19, 0x00, 0x00, 0x5A})).Add(Record(20)).Noise("\r\n").Add(Record(8));
    EXPECT_EQ(FoundIn(file.Content()), ToldOf(file.Records()));
}

TEST_F(RecordReaders, APrefixOfTheFirstRecordOnlyCostsEverySecondRecord)
{
    PackedFile file({"", 0, false, ""});
    file.Noise("\x5A");
    for (int i = 0; i < 5; ++i) file.Add(Record(20));
    const Positions at = ToldOf(file.Records());
    EXPECT_EQ(FoundIn(file.Content()), (Positions{at[0], at[2], at[4]}));
}

TEST_F(RecordReaders, SkipNoiseOfAnyLength)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16));
    for (const std::size_t noise : {1, 2, 3, 4, 5, 255, 65534, 65535, 65536, 65537, 131072, 200001})
        file.Noise(Zeros(noise)).Add(Record(20));
    const Walked walked = WalkOf(file.Content());
    EXPECT_EQ(walked.records, file.Records());
    EXPECT_EQ(walked.end, kNoFurtherRecord);
}

TEST_F(RecordReaders, NoiseInFrontOfTheFirstRecord)
{
    const Bytes noise = "Some text\r\nthat is no record" + Raw({0x5A, 0xD3, 0xD3, 0xA8, 0x00, 0x5A});
    PackedFile file({"", 0, false, ""});
    file.Noise(noise).Add(Record(16)).Add(Record(20));
    const Walked walked = WalkOf(file.Content());
    EXPECT_EQ(walked.framing.int5ALength, 0);
    EXPECT_EQ(walked.records, file.Records());
}

TEST_F(RecordReaders, WhatIsNoKnownIdentifierIsNoise)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16));
    for (const char* identifier : {"D3A68D", "D3A68E", "D3A800", "D300A8", "D3D3D3"})
        file.Noise(U1(0x5A) + Structured(Field{identifier, Bytes(12, '\x40')}));
    file.Noise(U1(0x5A) + U2(16) + Raw({0xD2, 0xA8, 0xA8}) + Zeros(11)).Add(Record(20));
    EXPECT_EQ(FoundIn(file.Content()), ToldOf(file.Records()));
}

TEST_F(RecordReaders, AnIdentifierInNoiseIsARecordOfTheLengthInFrontOfIt)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16)).Noise("text" + U2(30) + Raw({0xD3, 0xEE, 0x9B}) + Zeros(24)).Add(Record(20)).Add(Record(9));
    // The one in the noise ends inside the record behind, whose identifier is passed over.
    const Positions at = ToldOf(file.Records());
    EXPECT_EQ(FoundIn(file.Content()), (Positions{at[0], at[0] + 16 + 4, at[2]}));
}

TEST_F(RecordReaders, AnEmptyFileOpens)
{
    reader_.SetFile(folder_.File("empty.afp", ""));
    EXPECT_EQ(reader_.OpenAFPFile(), kOpen);
    EXPECT_EQ(reader_.FileSize(), 0);
    EXPECT_EQ(reader_.Frame().intRDWLength, 0);
    EXPECT_EQ(reader_.Frame().int5ALength, 0);
    EXPECT_EQ(reader_.Frame().strLinefeed, "");
    EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
    EXPECT_EQ(reader_.ProcessedBytes(), 0);
}

TEST_F(RecordReaders, FilesOfAFewBytes)
{
    for (std::size_t size = 1; size <= 10; ++size) {
        for (const int byte : {0x00, 0x0A, 0x0D, 0x40, 0x5A, 0xA8, 0xD3, 0xFF}) {
            const Bytes content(size, static_cast<char>(byte));
            EXPECT_EQ(WalkOf(content).records.size(), 0U) << size << " bytes of " << byte;
        }
        const Bytes start = Record(16).substr(0, size);
        const Walked walked = WalkOf(start);
        ASSERT_EQ(walked.records.size(), size < 5 ? 0U : 1U) << size;
        if (size >= 5) {
            EXPECT_EQ(walked.records[0].bytes, start + Zeros(16 - size));
            EXPECT_EQ(walked.records[0].processed, 16);
        }
    }
}

// The search for a delimiter looks behind a record, and here there is none.
TEST_F(RecordReaders, WithoutARecordThereIsNoDelimiter)
{
    WalkOf(SomeRecords({"", 0, true, "\r\n"}).Content());
    for (const Bytes& content : {Bytes(), Bytes("\r\n"), Bytes(70000, '\n'), "\x5A" + Bytes(200, '\r')}) {
        const Framing framing = FramingOf(content);
        EXPECT_EQ(framing.strLinefeed, "");
        EXPECT_EQ(framing.intDelimiterLength, 0);
    }
}

TEST_F(RecordReaders, TheFramingIsDecidedAnewForEachFile)
{
    EXPECT_EQ(FramingOf(SomeRecords({"", 4, true, "\r\n"}).Content()).strLinefeed, "\r\n");
    const Framing bare = FramingOf(SomeRecords({"", 0, false, ""}).Content());
    EXPECT_EQ(bare.intRDWLength, 0);
    EXPECT_EQ(bare.int5ALength, 0);
    EXPECT_EQ(bare.intDelimiterLength, 0);
    EXPECT_EQ(bare.strLinefeed, "");
}

TEST_F(RecordReaders, TheFramingOutlivesTheWalk)
{
    WalkOf(SomeRecords({"", 4, true, "\r\n"}).Content());
    EXPECT_FALSE(reader_.IsOpen());
    EXPECT_EQ(reader_.Frame().intRDWLength, 4);
    EXPECT_EQ(reader_.Frame().strLinefeed, "\r\n");
}

TEST_F(RecordReaders, BehindTheEndThereIsNoFurtherRecordEver)
{
    const PackedFile file = SomeRecords({"", 0, true, "\n"});
    reader_.SetFile(folder_.File("a.afp", file.Content()));
    reader_.OpenAFPFile();
    for (std::size_t i = 0; i < file.Records().size(); ++i) EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
    const std::int32_t processed = reader_.ProcessedBytes();
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(reader_.GetNextRecord2(), kNoFurtherRecord);
        EXPECT_EQ(reader_.ProcessedBytes(), processed);
    }
    EXPECT_EQ(reader_.CloseAFPFile(), kClosed);
}

TEST_F(RecordReaders, ALastRecordLongerThanTheFileHasItsDeclaredLengthAndZerosBehindTheFile)
{
    PackedFile file({"", 0, true, ""});
    file.Add(Record(16)).Add(Record(5000));
    for (const std::size_t lost : {1, 100, 4995}) {
        const Bytes content = file.Content().substr(0, file.Content().size() - lost);
        const Walked walked = WalkOf(content);
        ASSERT_EQ(walked.records.size(), 2U);
        EXPECT_EQ(walked.records[1].length, 5000);
        EXPECT_EQ(walked.records[1].bytes, Record(5000).substr(0, 5000 - lost) + Zeros(lost));
        EXPECT_GT(walked.records[1].processed, static_cast<std::int64_t>(content.size()));
        EXPECT_EQ(walked.end, kNoFurtherRecord);
    }
}

// Bytes of the file before must not complete an identifier that this one has cut off.
TEST_F(RecordReaders, BytesBehindTheFileAreNoneOfIt)
{
    const Bytes whole = SomeRecords({"", 0, false, ""}).Content() + Record(40);
    const auto last = static_cast<std::int64_t>(whole.size()) - 40 + 1;
    for (std::size_t kept = 1; kept <= 8; ++kept) {
        EXPECT_EQ(FoundIn(whole).back(), last);
        const Walked walked = WalkOf(whole.substr(0, whole.size() - 40 + kept));
        EXPECT_EQ(walked.records.back().told == last, kept >= 5) << kept;
    }
}

TEST_F(RecordReaders, AnIdentifierAtTheVeryEndIsARecordOnlyWhenItIsWhole)
{
    const Bytes first = Record(16);
    EXPECT_EQ(FoundIn(first + Raw({0x00, 0x05, 0xD3})), (Positions{1}));
    EXPECT_EQ(FoundIn(first + Raw({0x00, 0x05, 0xD3, 0xA8})), (Positions{1}));
    EXPECT_EQ(FoundIn(first + Raw({0x00, 0x05, 0xD3, 0xA8, 0xA8})), (Positions{1, 17}));
    EXPECT_EQ(FoundIn(first + Raw({0x40, 0x40, 0xD3, 0xD3, 0xD3})), (Positions{1}));
    EXPECT_EQ(FoundIn(first + Raw({0x00, 0x05, 0xD3, 0xD3, 0xA8, 0xA8})), (Positions{1, 18}));
}

TEST_F(RecordReaders, ABareRecordOfLengthZeroIsDeliveredOnce)
{
    const Bytes zero = U2(0) + Raw({0xD3, 0xEE, 0xEE, 0x00, 0x00, 0x00});
    const Walked walked = WalkOf(Record(16) + zero + Record(20));
    EXPECT_EQ(ToldOf(walked.records), (Positions{1, 17, 25}));
    EXPECT_EQ(walked.records[1].length, 0);
    EXPECT_EQ(walked.records[1].processed, 17) << "the scan goes on one byte further";
}

TEST_F(RecordReaders, RecordsOfSmallLengthsAreDeliveredOnceAndTheWalkEnds)
{
    for (const Packing& packing : kPackings) {
        SCOPED_TRACE(packing.name);
        for (unsigned length = 0; length < 8; ++length) {
            const Bytes record = U2(length) + Raw({0xD3, 0xEE, 0xEE});
            Bytes content;
            Positions at;
            for (int i = 0; i < 200; ++i) {
                content += packing.Before(5);
                at.push_back(static_cast<std::int64_t>(content.size()) + 1);
                content += record + packing.delimiter;
            }
            const Positions found = FoundIn(content);
            // Lengths behind 5 make the step land in the record behind, so that some are passed over.
            if (length <= 5)
                EXPECT_EQ(found, at) << length;
            else
                EXPECT_TRUE(std::includes(at.begin(), at.end(), found.begin(), found.end())) << length;
        }
    }
}

TEST_F(RecordReaders, OpensBeforeTheFirstRecord)
{
    const PackedFile file = SomeRecords({"", 2, true, "\n"});
    reader_.SetFile(folder_.File("a.afp", file.Content()));
    EXPECT_EQ(reader_.OpenAFPFile(), kOpen);
    EXPECT_TRUE(reader_.IsOpen());
    EXPECT_EQ(reader_.FileSize(), static_cast<std::int32_t>(file.Content().size()));
    EXPECT_EQ(reader_.ProcessedBytes(), 3) << "the prefix";
    EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
    EXPECT_EQ(RecordInHand(reader_), file.Records()[0]);
    EXPECT_EQ(reader_.OpenAFPFile(), kOpen);
    EXPECT_EQ(reader_.GetNextRecord2(), kRecord);
    EXPECT_EQ(RecordInHand(reader_), file.Records()[0]) << "a second opening starts from the front";
}

TEST_F(RecordReaders, BehindARecordBytesAreReadableForTheDecoders)
{
    const Bytes content = Record(16) + Record(100);
    reader_.SetFile(folder_.File("a.afp", content));
    reader_.OpenAFPFile();
    while (reader_.GetNextRecord2() == kRecord) {
        const auto buffer = reader_.RecordBuffer();
        const auto end = static_cast<std::size_t>(reader_.RecordStart() - 1 + reader_.FieldLength());
        ASSERT_GE(buffer.size(), end + 131'070);
        for (std::size_t i = content.size(); i < buffer.size(); ++i) ASSERT_EQ(buffer[i], 0) << i;
    }
}

TEST_F(RecordReaders, AFileThatCanNotBeOpened)
{
    reader_.SetFile(folder_ / "none.afp");
    EXPECT_EQ(reader_.OpenAFPFile(), kFailure);
    EXPECT_EQ(reader_.Failure().number, 53);
    EXPECT_EQ(reader_.Failure().description, "File not found");
    EXPECT_EQ(reader_.OpenAFPFileRandom().number, 53);
    reader_.SetFile(folder_.Path());
    EXPECT_EQ(reader_.OpenAFPFile(), kFailure);
    EXPECT_EQ(reader_.Failure().number, 76);
    EXPECT_FALSE(reader_.IsOpen());
    EXPECT_EQ(reader_.CloseAFPFile(), kClosed);
    EXPECT_EQ(FoundIn(Record(16)), Positions{1}) << "the failure is over";
}

TEST_F(RecordReaders, AFileThatCanNotBeRead)
{
    Calls().goodCalls = 0;
    Calls().error = EIO;
    reader_.SetFile(folder_.File("a.afp", Record(16)));
    EXPECT_EQ(reader_.OpenAFPFile(), kFailure);
    EXPECT_EQ(reader_.Failure().number, 57);
}

TEST_F(RecordReaders, ShortReadsAndInterruptionsAreNotSeen)
{
    const PackedFile file = SomeRecords({"", 0, true, "\n"});
    Calls().atMost = 1000;
    Calls().interruptions = 3;
    EXPECT_EQ(WalkOf(file.Content()).records, file.Records());
}

}  // namespace
}  // namespace folioscope::test
