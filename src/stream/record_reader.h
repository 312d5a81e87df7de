#pragma once

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "stream/input_file.h"

namespace folioscope {

// The state of the reader and, with the values of the analysis, of a record. 96 to 127 mean that a record is there.
enum Status : std::int16_t {
    kNothing = 0,
    kClosed = 4,
    kOpen = 8,
    kNoFurtherRecord = 32,
    kRecord = 96,     // ordinary field
    kSegmented = 97,  // the same, flagged as segmented: the low bit
    kBegin = 112,
    kEnd = 120,
    kFailure = 128,
};

// The widths around the structured field, which are the same for all records of a file. In bytes.
struct Framing {
    std::int16_t intRDWLength = 0;        // record descriptor word: 0, 2 or 4
    std::int16_t int5ALength = 0;         // x'5A' in front of each length field: 0 or 1
    std::int16_t intDelimiterLength = 0;  // CR, LF or CR LF behind each record: 0 to 2
    std::string strLinefeed;              // the delimiter's bytes
};

// Turns an AFP file of unknown packaging into a sequence of records. Repair is by scanning: whatever lies between
// two records is stepped over without a word. File positions and buffer indexes count from 1 and fit in 32 bits.
//
// A walk is SetFile, OpenAFPFile, GetNextRecord2 until kNoFurtherRecord, CloseAFPFile. Then single records can be
// read again: OpenAFPFileRandom, SetNextRecord, CloseAFPFile, with the framing that the walk has found. A walk
// doesn't go on from a jump. While one goes on, a second reader that was told to FollowWalk reads single records.
class RecordReader {
public:
    static constexpr std::int32_t kChunkSize = 10'240'000;
    static constexpr std::int32_t kLongestRecord = 65'535;
    static constexpr std::int32_t kTailSize = 2 * kLongestRecord;  // decoders read past a record's end
    static constexpr std::int32_t kPauseEvery = 65'536;            // bytes of noise between two calls of onScan

    RecordReader();

    void SetFile(std::string path) { strAFPFile_ = std::move(path); }
    // Takes the file, its size and its framing from a reader that has opened it for a walk.
    void FollowWalk(const RecordReader& walk);
    const std::string& File() const { return strAFPFile_; }

    Status OpenAFPFile();
    // Goes on with the search for the first record where onScan has ended it.
    Status GoOnOpening();
    Status GetNextRecord2();
    // The file may have changed since its bytes were read, so none of them are trusted.
    FileFailure OpenAFPFileRandom()
    {
        astray_ = true;
        return file_.Open(strAFPFile_);
    }
    bool IsOpen() const { return file_.IsOpen(); }
    // Makes the record whose length field is at this file position the current one. Fails if the file has lost
    // bytes of it since the walk.
    FileFailure SetNextRecord(std::int32_t lngProcessedStart);
    Status CloseAFPFile();

    const Framing& Frame() const { return framing_; }
    const FileFailure& Failure() const { return failure_; }
    std::int32_t FileSize() const { return lngFileSize_; }              // bytes
    std::int32_t BufferFilePos() const { return lngBufferFilePos_; }    // file position of buffer index 1
    std::int32_t ProcessedBytes() const { return lngProcessedBytes_; }  // bytes consumed by the walk
    std::int32_t RecordStart() const { return recordStart_; }           // buffer index of the first length byte
    std::int32_t FieldLength() const { return fieldLength_; }           // as the record's two length bytes say

    // The chunk in hand and zeros behind the file's last byte. Index 0 of the span is buffer index 1.
    std::span<const std::uint8_t> RecordBuffer() const { return {buffer_.get(), static_cast<std::size_t>(readable_)}; }

    // Called in a long stretch without a record; false ends the walk there.
    std::function<bool(std::int32_t lngProcessedBytes)> onScan;

private:
    struct Free {
        void operator()(std::uint8_t* bytes) const { std::free(bytes); }
    };

    bool Load(std::int32_t filePosition, std::int32_t size);
    bool CanRefill() const { return std::int64_t{lngBufferFilePos_} + kChunkSize <= lngFileSize_; }
    void DetectPrefix();
    Status FindFirst();
    void DetectDelimiter();
    bool FindRecord();
    bool SkipNoise();
    std::int32_t NoiseFrom(std::int32_t position, std::int32_t positions) const;
    void Skip(std::int32_t bytes);
    void Pass();
    std::uint8_t At(std::int32_t index) const { return buffer_[static_cast<std::size_t>(index) - 1]; }

    std::string strAFPFile_;
    InputFile file_;
    FileFailure failure_;
    Framing framing_;
    std::unique_ptr<std::uint8_t[], Free> buffer_;
    std::int32_t lngFileSize_ = 0;
    std::int32_t lngBufferFilePos_ = 1;
    std::int32_t lngBufferPos_ = 1;  // buffer index of the next record's first length byte
    std::int32_t lngProcessedBytes_ = 0;
    std::int32_t recordStart_ = 1;
    std::int32_t fieldLength_ = 0;
    std::int32_t valid_ = 0;     // bytes of the file in the buffer
    std::int32_t readable_ = 0;  // the same and the zeros behind them
    std::int32_t nextPause_ = 0;
    std::int32_t sought_ = 0;  // bytes that the search for the first record has passed
    bool astray_ = false;      // the buffer's bytes aren't those that its file position tells
};

}  // namespace folioscope
