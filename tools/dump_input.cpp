#include "dump_input.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace folioscope {

namespace {

constexpr std::int64_t kEnough = 2'147'483'648;  // one byte more than can be opened, so that the limit is told

}  // namespace

FileFailure DumpInput::Open(const std::string& name)
{
    path_ = name;
    if (name == "-") return Spool(STDIN_FILENO);
    struct stat status = {};
    if (::stat(name.c_str(), &status) != 0 || S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)) return {};
    const int from = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (from < 0) return FailureOf(errno);
    const FileFailure failure = Spool(from);
    ::close(from);
    return failure;
}

FileFailure DumpInput::Spool(int from)
{
    spool_.reset(std::tmpfile());
    if (!spool_) return FailureOf(errno);
    const int to = ::fileno(spool_.get());
    std::array<char, 65'536> piece;
    for (std::int64_t total = 0; total < kEnough;) {
        const auto got = ::read(from, piece.data(), piece.size());
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return FailureOf(errno);
        if (got == 0) break;
        for (ssize_t done = 0; done < got;) {
            const auto put = ::write(to, piece.data() + done, static_cast<std::size_t>(got - done));
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) return FailureOf(errno);
            done += put;
        }
        total += got;
    }
    path_ = "/proc/self/fd/" + std::to_string(to);
    return {};
}

}  // namespace folioscope
