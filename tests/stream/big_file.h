#pragma once

#include <cstdint>
#include <string>

#include "stream/walk.h"
#include "support/temporary_file.h"

namespace folioscope::test {

inline constexpr std::int64_t kChunk = RecordReader::kChunkSize;

// A file of any size, most of it a hole.
class BigFile {
public:
    BigFile(const TemporaryFolder& folder, std::int64_t size);
    // Puts bytes at a file position, from 1.
    BigFile& Put(std::int64_t position, const Bytes& bytes);
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

// A file that keeps its front while its end is replaced time and again.
class FileWithTail {
public:
    FileWithTail(const TemporaryFolder& folder, Bytes front);
    // The file is then the front and these bytes.
    void SetTail(const Bytes& tail);
    const Bytes& Content() const { return content_; }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
    std::size_t front_;
    Bytes content_;
};

}  // namespace folioscope::test
