#pragma once

#include <cstdint>

#include "stream/walk.h"

namespace folioscope::test {

// The reader's rules once more, byte by byte over a file in memory: slow, without any short cut.
class ReferenceScan {
public:
    explicit ReferenceScan(const Bytes& file) : file_(file) {}

    Walked Walk();

private:
    std::int64_t Size() const { return static_cast<std::int64_t>(file_.size()); }
    bool InFile(std::int64_t index) const;
    int ByteAt(std::int64_t index) const;  // of the buffer, from 1; 0 behind the file
    bool IsCandidate() const;
    void Detect();
    bool Next();
    Found InHand() const;

    const Bytes& file_;
    Framing framing_;
    std::int64_t loadedFrom_ = 0;  // place in the file that buffer index 1 was read from, from 0
    std::int64_t bufferFilePos_ = 1, bufferPos_ = 1, processed_ = 0;
    std::int64_t recordStart_ = 0, length_ = 0;
};

}  // namespace folioscope::test
