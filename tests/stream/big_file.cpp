#include "stream/big_file.h"

#include <filesystem>
#include <fstream>

namespace folioscope::test {

namespace {

void WriteAt(const std::string& path, std::int64_t place, const Bytes& bytes)
{
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(place);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

BigFile::BigFile(const TemporaryFolder& folder, std::int64_t size) : path_(folder.File("big.afp", ""))
{
    std::filesystem::resize_file(path_, static_cast<std::uintmax_t>(size));
}

BigFile& BigFile::Put(std::int64_t position, const Bytes& bytes)
{
    WriteAt(path_, position - 1, bytes);
    return *this;
}

FileWithTail::FileWithTail(const TemporaryFolder& folder, Bytes front)
    : path_(folder.File("tail.afp", front)), front_(front.size()), content_(std::move(front))
{
}

void FileWithTail::SetTail(const Bytes& tail)
{
    content_.resize(front_);
    content_ += tail;
    // Cut only when all is written: a file that is emptied first is flushed to the disk by some file systems.
    WriteAt(path_, static_cast<std::int64_t>(front_), tail);
    std::filesystem::resize_file(path_, content_.size());
}

}  // namespace folioscope::test
