#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace folioscope {

// What went wrong with a file, under the numbers that users of the system know. 0 is no failure.
struct FileFailure {
    int number = 0;
    std::string_view description;
    explicit operator bool() const { return number != 0; }
};

inline constexpr FileFailure kFileNotFound = {53, "File not found"};
inline constexpr FileFailure kDeviceFailure = {57, "Device I/O error"};
inline constexpr FileFailure kDiskFull = {61, "Disk full"};
inline constexpr FileFailure kTooManyFiles = {67, "Too many files"};
inline constexpr FileFailure kPermissionDenied = {70, "Permission denied"};
inline constexpr FileFailure kPathNotFound = {76, "Path not found"};

FileFailure FailureOf(int systemError);

// A file that is only read, by position. Nothing of it is mapped, so that it may shrink or go at any time.
class InputFile {
public:
    InputFile() = default;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile() { Close(); }

    FileFailure Open(const std::string& path);
    void Close();
    bool IsOpen() const { return handle_ >= 0; }
    std::int64_t Size() const { return size_; }  // bytes, as they were when the file was opened

    // Reads up to target.size() bytes from a position that counts from 0. `got` is short at the end of the file.
    FileFailure ReadAt(std::int64_t position, std::span<std::uint8_t> target, std::size_t& got) const;

private:
    int handle_ = -1;
    std::int64_t size_ = 0;
};

}  // namespace folioscope
