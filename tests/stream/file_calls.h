#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace folioscope::test {

// Stands between the code under test and the system's pread: counts what is read, and can make it go wrong.
struct FileCalls {
    std::int64_t bytes = 0;                                        // read so far
    int calls = 0;                                                 // calls so far
    std::size_t atMost = std::numeric_limits<std::size_t>::max();  // bytes that a call gives
    int interruptions = 0;                                         // calls to come that fail with EINTR
    int goodCalls = -1;                                            // calls to come before all fail; -1: none fails
    int error = 0;                                                 // what they fail with
};

// Those of the running test; a FileCallsGuard puts them back to ordinary at its begin and end.
FileCalls& Calls();

struct FileCallsGuard {
    FileCallsGuard() { Calls() = {}; }
    FileCallsGuard(const FileCallsGuard&) = delete;
    FileCallsGuard& operator=(const FileCallsGuard&) = delete;
    ~FileCallsGuard() { Calls() = {}; }
};

}  // namespace folioscope::test
