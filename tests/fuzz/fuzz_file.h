#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

// What a fuzzer must find out by itself: a wrong state ends the program.
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) std::abort();                                                                                \
    } while (false)

namespace folioscope::test {

// The bytes as a file that lies in memory.
class FuzzFile {
public:
    FuzzFile(const std::uint8_t* data, std::size_t size) : handle_(::memfd_create("fuzz", MFD_CLOEXEC))
    {
        while (size > 0) {
            const auto written = ::write(handle_, data, size);
            FUZZ_CHECK(written > 0);
            data += written;
            size -= static_cast<std::size_t>(written);
        }
    }
    FuzzFile(const FuzzFile&) = delete;
    FuzzFile& operator=(const FuzzFile&) = delete;
    ~FuzzFile() { ::close(handle_); }

    std::string Path() const { return "/proc/self/fd/" + std::to_string(handle_); }

private:
    int handle_;
};

}  // namespace folioscope::test
