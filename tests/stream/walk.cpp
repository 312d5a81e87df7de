#include "stream/walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string_view>

namespace folioscope::test {

void PrintTo(const Found& found, std::ostream* out)
{
    *out << "record at " << found.told << ", length " << found.length << ", processed " << found.processed;
}

Found RecordInHand(const RecordReader& reader)
{
    const auto buffer = reader.RecordBuffer();
    const auto start = static_cast<std::size_t>(reader.RecordStart()) - 1;
    const auto length = static_cast<std::size_t>(reader.FieldLength());
    Found found{std::int64_t{reader.BufferFilePos()} + reader.RecordStart() - 1,
                reader.FieldLength(),
                reader.ProcessedBytes(),
                {}};
    EXPECT_LE(start + length, buffer.size());
    if (start + length <= buffer.size())
        found.bytes.assign(reinterpret_cast<const char*>(buffer.data()) + start, length);
    return found;
}

Walked Walk(RecordReader& reader, const std::string& path)
{
    Walked walked;
    reader.SetFile(path);
    walked.end = reader.OpenAFPFile();
    EXPECT_EQ(walked.end, kOpen);
    walked.framing = reader.Frame();
    // A record moves the walk on by a byte at the least; a second round comes from positions that restart.
    const std::size_t most = 2 * static_cast<std::size_t>(reader.FileSize()) + 2;
    while ((walked.end = reader.GetNextRecord2()) == kRecord && walked.records.size() < most)
        walked.records.push_back(RecordInHand(reader));
    EXPECT_LT(walked.records.size(), most) << "the walk doesn't end";
    EXPECT_EQ(reader.CloseAFPFile(), kClosed);
    return walked;
}

std::vector<std::int64_t> ToldOf(const std::vector<Found>& records)
{
    std::vector<std::int64_t> told;
    for (const Found& record : records) told.push_back(record.told);
    return told;
}

Bytes Record(std::size_t length, char fill) { return Structured(Field{"NOP", Bytes(length - 8, fill)}); }

Bytes Packing::Before(std::size_t length) const
{
    const auto described = static_cast<unsigned>(length) + 1 + static_cast<unsigned>(rdw);
    const Bytes descriptor = rdw == 4 ? U2(described) + U2(0) : rdw == 2 ? U2(described) : Bytes();
    return descriptor + (fiveA ? U1(0x5A) : Bytes());
}

std::size_t Packing::Around() const
{
    return static_cast<std::size_t>(rdw) + (fiveA ? 1 : 0) + std::string_view(delimiter).size();
}

PackedFile& PackedFile::Add(const Bytes& record)
{
    content_ += packing_.Before(record.size());
    const auto at = static_cast<std::int64_t>(content_.size());
    content_ += record + packing_.delimiter;
    // The prefix of the next record is paid for with this one.
    const auto processed = at + static_cast<std::int64_t>(record.size() + packing_.Around());
    records_.push_back({at + 1, static_cast<std::int32_t>(record.size()), processed, record});
    return *this;
}

PackedFile& PackedFile::Noise(const Bytes& bytes)
{
    content_ += bytes;
    return *this;
}

PackedFile& PackedFile::FillTo(std::int64_t position)
{
    const std::size_t most = RecordReader::kLongestRecord;
    const std::size_t around = packing_.Around();
    const std::size_t target = static_cast<std::size_t>(position) - 1 - packing_.Before(8).size();
    while (content_.size() < target) {
        const std::size_t left = target - content_.size();
        const std::size_t whole = records_.empty()  ? 16 + around  // short, or the descriptor isn't recognised
                                  : left <= most    ? left
                                  : left < 2 * most ? left / 2
                                                    : most;
        Add(Record(whole - around));
    }
    EXPECT_EQ(content_.size(), target) << "no room for a last record";
    return *this;
}

std::uint32_t Chance::Next()
{
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33);
}

Bytes Chance::AfpLike(std::size_t size)
{
    static constexpr std::string_view kFrequent("\xD3\xD3\xEE\xA8\xA9\xAF\x9B\x89\x00\x00\x01\x05\x09\x5A\x0D\x0A", 16);
    static constexpr std::string_view kIdentifiers[] = {"\xD3\xEE\xEE", "\xD3\xA8\xA8", "\xD3\xA9\xAF", "\xD3\xAF\xC3",
                                                        "\xD3\xA6\x8D"};
    Bytes bytes;
    while (bytes.size() < size) {
        const std::uint32_t number = Next();
        if (number % 16 == 0)
            bytes += U2(Below(24)) + Bytes(kIdentifiers[number / 16 % std::size(kIdentifiers)]);
        else if (number % 4 == 1)
            bytes += static_cast<char>(number >> 8);
        else
            bytes += kFrequent[number / 16 % kFrequent.size()];
    }
    bytes.resize(size);
    return bytes;
}

}  // namespace folioscope::test
