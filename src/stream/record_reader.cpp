#include "stream/record_reader.h"

#include <algorithm>
#include <cstring>

#include "stream/known_fields.h"

namespace folioscope {

namespace {

constexpr std::int32_t kMaxFileSize = 2'147'483'647;
constexpr std::int32_t kCandidate = 4;     // bytes behind the position that the candidate test looks at
constexpr std::int32_t kWindow = 2 << 20;  // what a jump reads: its record, those behind it, and the tail

}  // namespace

RecordReader::RecordReader()
    // calloc's zero pages cost nothing until they are read into, so that a small file stays cheap.
    : buffer_(static_cast<std::uint8_t*>(std::calloc(kChunkSize + kTailSize, 1)))
{
}

// Reads from a 1-based file position into the buffer's start. What lies behind the file's bytes becomes zero.
bool RecordReader::Load(std::int32_t filePosition, std::int32_t size)
{
    lngBufferFilePos_ = filePosition;
    lngBufferPos_ = 1;
    astray_ = false;
    const std::int64_t inFile = std::max<std::int64_t>(std::int64_t{lngFileSize_} - (filePosition - 1), 0);
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(size, inFile));
    std::size_t got = 0;
    failure_ = file_.ReadAt(std::int64_t{filePosition} - 1, {buffer_.get(), wanted}, got);
    valid_ = static_cast<std::int32_t>(got);
    readable_ = valid_ + kTailSize;
    std::memset(buffer_.get() + got, 0, kTailSize);
    return !failure_;
}

void RecordReader::FollowWalk(const RecordReader& walk)
{
    strAFPFile_ = walk.strAFPFile_;
    framing_ = walk.framing_;
    lngFileSize_ = walk.lngFileSize_;
}

Status RecordReader::OpenAFPFile()
{
    framing_ = {};
    failure_ = file_.Open(strAFPFile_);
    if (failure_) return kFailure;
    lngFileSize_ = static_cast<std::int32_t>(std::min<std::int64_t>(file_.Size(), kMaxFileSize));
    if (!Load(1, kChunkSize)) return kFailure;
    lngProcessedBytes_ = 0;
    DetectPrefix();
    return FindFirst();
}

Status RecordReader::GoOnOpening()
{
    lngProcessedBytes_ = sought_;
    return FindFirst();
}

Status RecordReader::FindFirst()
{
    const Status first = GetNextRecord2();
    if (first == kFailure) return kFailure;
    if (first == kNoFurtherRecord) {
        // There is nothing to go back to, and no need to look twice.
        sought_ = lngProcessedBytes_;
        lngProcessedBytes_ = lngFileSize_;
        return kOpen;
    }
    DetectDelimiter();
    // Back to the first record without reading: where the search for it has moved the buffer on, positions and
    // buffer part company, and the records found from here on are told at the positions that the walk counts.
    const std::int32_t prefix = framing_.intRDWLength + framing_.int5ALength;
    astray_ = lngBufferFilePos_ != 1;
    lngBufferFilePos_ = 1;
    lngBufferPos_ = prefix + 1;
    lngProcessedBytes_ = prefix;
    return kOpen;
}

// A descriptor word counts only with a x'5A' behind it and if its own and the field's high length bytes are zero.
void RecordReader::DetectPrefix()
{
    if (At(1) == 0 && At(3) == 0 && At(4) == 0 && At(5) == 0x5A && At(6) == 0)
        framing_.intRDWLength = 4;
    else if (At(1) == 0 && At(3) == 0x5A && At(4) == 0)
        framing_.intRDWLength = 2;
    framing_.int5ALength = At(framing_.intRDWLength + 1) == 0x5A ? 1 : 0;
}

void RecordReader::DetectDelimiter()
{
    const std::int32_t behind = recordStart_ + fieldLength_;
    if (At(behind) == 0x0D) framing_.intDelimiterLength = 1;
    if (At(behind + framing_.intDelimiterLength) == 0x0A) ++framing_.intDelimiterLength;
    for (std::int32_t i = 0; i < framing_.intDelimiterLength; ++i)
        framing_.strLinefeed += static_cast<char>(At(behind + i));
}

Status RecordReader::GetNextRecord2()
{
    nextPause_ = lngProcessedBytes_ > kMaxFileSize - kPauseEvery ? kMaxFileSize : lngProcessedBytes_ + kPauseEvery;
    fieldLength_ = framing_.int5ALength + framing_.intRDWLength + 3;
    if (FindRecord()) {
        Pass();
        return kRecord;
    }
    return failure_ ? kFailure : kNoFurtherRecord;
}

// Each turn finds a record, moves the buffer's start on to the position, or moves the position on: it ends.
bool RecordReader::FindRecord()
{
    failure_ = {};
    while (lngProcessedBytes_ < lngFileSize_) {
        if (lngBufferPos_ + std::max(fieldLength_, kCandidate) > kChunkSize && CanRefill()) {
            if (!Load(lngProcessedBytes_ + 1, kChunkSize)) return false;
        }
        const std::int32_t p = lngBufferPos_;
        if (p + kCandidate <= valid_ && At(p + 2) == 0xD3 && IsKnownSF(At(p + 3), At(p + 4))) {
            fieldLength_ = At(p) << 8 | At(p + 1);
            if (p + fieldLength_ <= kChunkSize) return true;
            // Behind the last refill such a record can't be had whole any more; it is the end of the data.
            if (!CanRefill()) return false;
        } else if (!SkipNoise()) {
            return false;
        }
    }
    return false;
}

// How many of the positions from this one on start no record. The one in hand is known not to.
std::int32_t RecordReader::NoiseFrom(std::int32_t position, std::int32_t positions) const
{
    const std::uint8_t* const first = &buffer_[static_cast<std::size_t>(position) + 1];  // x'D3' of the position
    const std::uint8_t* const end = first + positions;
    for (const std::uint8_t* at = first + 1; at < end; ++at) {
        if (*at != 0xD3)
            at = static_cast<const std::uint8_t*>(std::memchr(at, 0xD3, static_cast<std::size_t>(end - at)));
        if (at == nullptr) break;
        if (IsKnownSF(at[1], at[2])) return static_cast<std::int32_t>(at - first);
    }
    return positions;
}

// Steps to the next position that could start a record, at most to where a refill or a pause is due.
bool RecordReader::SkipNoise()
{
    const std::int32_t refillAt = kChunkSize - kCandidate + 1;
    if (lngBufferPos_ + kCandidate > valid_) {
        // Nothing of the file is left in this buffer.
        Skip(CanRefill() ? std::max(refillAt - lngBufferPos_, 1) : lngFileSize_ - lngProcessedBytes_);
        return true;
    }
    const std::int32_t positions = std::min(valid_ - kCandidate - lngBufferPos_ + 1, kPauseEvery);
    Skip(NoiseFrom(lngBufferPos_, positions));
    if (lngProcessedBytes_ < nextPause_) return true;
    nextPause_ = lngProcessedBytes_ > kMaxFileSize - kPauseEvery ? kMaxFileSize : lngProcessedBytes_ + kPauseEvery;
    return !onScan || onScan(lngProcessedBytes_);
}

void RecordReader::Skip(std::int32_t bytes)
{
    bytes = std::min(bytes, lngFileSize_ - lngProcessedBytes_);
    lngBufferPos_ += bytes;
    lngProcessedBytes_ += bytes;
}

// Makes the record at the position the current one and steps behind it.
void RecordReader::Pass()
{
    recordStart_ = lngBufferPos_;
    std::int32_t step = framing_.intRDWLength + fieldLength_ + framing_.int5ALength + framing_.intDelimiterLength;
    // A bare record of length 0 would be found here for ever.
    step = std::max(step, 1);
    lngBufferPos_ += step;
    lngProcessedBytes_ =
        static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{lngProcessedBytes_} + step, kMaxFileSize));
}

// A jump behaves as if it read a whole chunk from the record on, but a part of it is enough: what the decoders of
// one record can reach. So records that follow each other are served from one read.
FileFailure RecordReader::SetNextRecord(std::int32_t lngProcessedStart)
{
    const auto reaches = [&](std::int32_t length) {
        const std::int64_t from = std::int64_t{lngProcessedStart} - lngBufferFilePos_;
        const std::int64_t end =
            std::min<std::int64_t>(from + length, std::int64_t{lngFileSize_} - lngBufferFilePos_ + 1);
        return !astray_ && from >= 0 && from < valid_ && end <= valid_;
    };
    if (!reaches(kLongestRecord + kTailSize) && !Load(lngProcessedStart, kWindow)) return failure_;
    lngBufferPos_ = lngProcessedStart - lngBufferFilePos_ + 1;
    fieldLength_ = At(lngBufferPos_) << 8 | At(lngBufferPos_ + 1);
    if (!reaches(std::max(fieldLength_, kCandidate + 1))) return kDeviceFailure;
    Pass();
    return {};
}

Status RecordReader::CloseAFPFile()
{
    file_.Close();
    return kClosed;
}

}  // namespace folioscope
