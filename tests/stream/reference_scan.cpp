#include "stream/reference_scan.h"

#include <algorithm>
#include <bitset>

#include "stream/known_pairs.h"

namespace folioscope::test {

namespace {

constexpr std::int64_t kChunk = 10'240'000;

bool IsKnown(int category, int type)
{
    static const std::bitset<65536> known = [] {
        std::bitset<65536> bits;
        ForEachKnownPair([&](int c, int t) { bits.set(static_cast<std::size_t>(c << 8 | t)); });
        return bits;
    }();
    return known[static_cast<std::size_t>(category << 8 | type)];
}

}  // namespace

bool ReferenceScan::InFile(std::int64_t index) const { return index <= kChunk && loadedFrom_ + index <= Size(); }

int ReferenceScan::ByteAt(std::int64_t index) const
{
    return InFile(index) ? static_cast<unsigned char>(file_[static_cast<std::size_t>(loadedFrom_ + index - 1)]) : 0;
}

bool ReferenceScan::IsCandidate() const
{
    return InFile(bufferPos_ + 4) && ByteAt(bufferPos_ + 2) == 0xD3 &&
           IsKnown(ByteAt(bufferPos_ + 3), ByteAt(bufferPos_ + 4));
}

void ReferenceScan::Detect()
{
    if (ByteAt(1) == 0 && ByteAt(3) == 0 && ByteAt(4) == 0 && ByteAt(5) == 0x5A && ByteAt(6) == 0)
        framing_.intRDWLength = 4;
    else if (ByteAt(1) == 0 && ByteAt(3) == 0x5A && ByteAt(4) == 0)
        framing_.intRDWLength = 2;
    if (ByteAt(framing_.intRDWLength + 1) == 0x5A) framing_.int5ALength = 1;
    if (Next()) {
        const std::int64_t behind = recordStart_ + length_;
        if (ByteAt(behind) == 0x0D) framing_.intDelimiterLength = 1;
        if (ByteAt(behind + framing_.intDelimiterLength) == 0x0A) ++framing_.intDelimiterLength;
        for (int i = 0; i < framing_.intDelimiterLength; ++i)
            framing_.strLinefeed += static_cast<char>(ByteAt(behind + i));
    }
    bufferFilePos_ = 1;
    processed_ = framing_.intRDWLength + framing_.int5ALength;
    bufferPos_ = processed_ + 1;
}

bool ReferenceScan::Next()
{
    length_ = framing_.int5ALength + framing_.intRDWLength + 3;
    while (processed_ < Size()) {
        const bool refillable = bufferFilePos_ + kChunk <= Size();
        if (bufferPos_ + std::max<std::int64_t>(length_, 4) > kChunk && refillable) {
            loadedFrom_ = processed_;
            bufferFilePos_ = processed_ + 1;
            bufferPos_ = 1;
        }
        if (!IsCandidate()) {
            ++bufferPos_;
            ++processed_;
            continue;
        }
        length_ = ByteAt(bufferPos_) * 256 + ByteAt(bufferPos_ + 1);
        if (bufferPos_ + length_ <= kChunk) {
            recordStart_ = bufferPos_;
            const std::int64_t step =
                framing_.intRDWLength + length_ + framing_.int5ALength + framing_.intDelimiterLength;
            bufferPos_ += std::max<std::int64_t>(step, 1);
            processed_ += std::max<std::int64_t>(step, 1);
            return true;
        }
        if (bufferFilePos_ + kChunk > Size()) return false;
    }
    return false;
}

Found ReferenceScan::InHand() const
{
    Found found{bufferFilePos_ + recordStart_ - 1, static_cast<std::int32_t>(length_), processed_, {}};
    // A record never reaches behind the buffer, but it may reach behind the file.
    found.bytes =
        file_.substr(static_cast<std::size_t>(loadedFrom_ + recordStart_ - 1), static_cast<std::size_t>(length_));
    found.bytes.resize(static_cast<std::size_t>(length_), '\0');
    return found;
}

Walked ReferenceScan::Walk()
{
    Detect();
    Walked walked{framing_, {}, kNoFurtherRecord};
    while (Next()) walked.records.push_back(InHand());
    return walked;
}

}  // namespace folioscope::test
