#include "stream/file_calls.h"

#include <algorithm>
#include <cerrno>
#include <sys/types.h>

namespace folioscope::test {

FileCalls& Calls()
{
    static FileCalls calls;
    return calls;
}

}  // namespace folioscope::test

// The linker puts the wrapper in the place of pread, see CMakeLists.txt.
extern "C" ssize_t __real_pread(int handle, void* target, std::size_t size, off_t position);

extern "C" ssize_t __wrap_pread(int handle, void* target, std::size_t size, off_t position)
{
    auto& calls = folioscope::test::Calls();
    ++calls.calls;
    if (calls.interruptions > 0) {
        --calls.interruptions;
        errno = EINTR;
        return -1;
    }
    if (calls.goodCalls == 0) {
        errno = calls.error;
        return -1;
    }
    if (calls.goodCalls > 0) --calls.goodCalls;
    const ssize_t count = __real_pread(handle, target, std::min(size, calls.atMost), position);
    if (count > 0) calls.bytes += count;
    return count;
}
