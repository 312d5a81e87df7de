#include "dump_input.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int64_t kEnough = 2'147'483'648;  // one byte more than can be opened, so that the limit is told

bool StatusOf(const std::string& name, int standardStream, struct stat& status)
{
    return (name == kStandardStream ? ::fstat(standardStream, &status) : ::stat(name.c_str(), &status)) == 0;
}

}  // namespace

FileFailure DumpInput::Open(const std::string& name)
{
    name_ = path_ = name;
    if (name == kStandardStream) return Spool(STDIN_FILENO);
    struct stat status = {};
    if (!StatusOf(name, STDIN_FILENO, status) || S_ISDIR(status.st_mode)) return {};
    if (S_ISREG(status.st_mode)) {
        size_ = status.st_size;
        return {};
    }
    const int from = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (from < 0) return FailureOf(errno);
    const FileFailure failure = Spool(from);
    ::close(from);
    return failure;
}

std::string DumpInput::ShownName() const { return WellFormed(std::filesystem::path(name_).filename().string()); }

FileFailure DumpInput::Spool(int from)
{
    spool_.reset(std::tmpfile());
    if (!spool_) return FailureOf(errno);
    const int to = ::fileno(spool_.get());
    std::array<char, 65'536> piece;
    for (size_ = 0; size_ < kEnough;) {
        const auto got = ::read(from, piece.data(), piece.size());
        if (got < 0 && errno == EAGAIN) WaitFor(from, POLLIN);
        if (got < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (got < 0) return FailureOf(errno);
        if (got == 0) break;
        for (ssize_t done = 0; done < got;) {
            const auto put = ::write(to, piece.data() + done, static_cast<std::size_t>(got - done));
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) return FailureOf(errno);
            done += put;
        }
        size_ += got;
    }
    path_ = "/proc/self/fd/" + std::to_string(to);
    return {};
}

InputFiles::InputFiles(const std::vector<std::string>& names)
{
    struct stat status = {};
    for (const std::string& name : names)
        if (StatusOf(name, STDIN_FILENO, status) && S_ISREG(status.st_mode))
            files_.emplace(status.st_dev, status.st_ino);
}

bool InputFiles::Hold(const std::string& path) const
{
    struct stat status = {};
    return StatusOf(path, STDOUT_FILENO, status) && files_.contains({status.st_dev, status.st_ino});
}

void WaitFor(int handle, short events)
{
    pollfd waiting = {handle, events, 0};
    // A failure of the wait shows again as one of the read or write that follows.
    static_cast<void>(::poll(&waiting, 1, -1));
}

}  // namespace folioscope
