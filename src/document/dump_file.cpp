#include "document/dump_file.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace folioscope {

namespace {

constexpr mode_t kNewFile = 0666;

mode_t NewFileMode()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return kNewFile & ~mask;
}

// The path behind links. A link to nothing yet is kept as it is.
std::string BehindLinks(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

}  // namespace

FileFailure DumpFile::Create(const std::string& path)
{
    Abandon();
    finalPath_ = BehindLinks(path);
    struct stat status = {};
    const bool exists = ::stat(finalPath_.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) return FailureOf(EISDIR);
    if (exists && !S_ISREG(status.st_mode)) {
        handle_ = ::open(finalPath_.c_str(), O_WRONLY | O_CLOEXEC);
        return handle_ < 0 ? FailureOf(errno) : FileFailure{};
    }
    if (exists && ::access(finalPath_.c_str(), W_OK) != 0) return FailureOf(errno);
    writtenPath_ = finalPath_ + ".XXXXXX";
    handle_ = ::mkostemp(writtenPath_.data(), O_CLOEXEC);
    if (handle_ < 0) {
        writtenPath_.clear();
        return errno == ENOENT ? kPathNotFound : FailureOf(errno);
    }
    if (::fchmod(handle_, exists ? status.st_mode & 07777 : NewFileMode()) != 0) return Fail(errno);
    return {};
}

FileFailure DumpFile::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = ::write(handle_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return FailureOf(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

FileFailure DumpFile::Commit()
{
    if (handle_ < 0) return {};
    // Some file systems tell only here that a write has failed.
    const int closed = ::close(handle_);
    handle_ = -1;
    if (closed != 0) return Fail(errno);
    if (!writtenPath_.empty() && ::rename(writtenPath_.c_str(), finalPath_.c_str()) != 0) return Fail(errno);
    writtenPath_.clear();
    return {};
}

FileFailure DumpFile::Fail(int systemError)
{
    Abandon();
    return FailureOf(systemError);
}

void DumpFile::Abandon()
{
    if (handle_ >= 0) ::close(handle_);
    handle_ = -1;
    if (!writtenPath_.empty()) ::unlink(writtenPath_.c_str());
    writtenPath_.clear();
}

bool IsSameFile(const std::string& one, const std::string& other)
{
    std::error_code error;
    return std::filesystem::equivalent(one, other, error) && !error;
}

}  // namespace folioscope
