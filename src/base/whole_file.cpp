#include "base/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace folioscope {
namespace {

class Handle {
public:
    explicit Handle(int number) : number_(number) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    int Number() const { return number_; }
    int Close()
    {
        const int number = number_;
        number_ = -1;
        return number < 0 || ::close(number) == 0 || errno == EINTR ? 0 : errno;
    }

private:
    int number_;
};

int WriteAll(int handle, std::string_view text)
{
    while (!text.empty()) {
        const auto count = ::write(handle, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) return EIO;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

// Best effort: only root may give a file away, and the new text matters more than its owner.
void HandOnOwner(int handle, const struct stat& old)
{
    if ((old.st_uid != ::geteuid() || old.st_gid != ::getegid()) && ::fchown(handle, old.st_uid, old.st_gid) != 0)
        return;
    ::fchmod(handle, old.st_mode & 07777);
}

int WriteNewFile(const std::string& path, std::string_view text, mode_t mode, const struct stat* old)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    Handle file(::open(path.c_str(), kFlags, old != nullptr ? 0600 : mode));
    if (file.Number() < 0) return errno;
    if (old != nullptr) HandOnOwner(file.Number(), *old);
    if (const int error = WriteAll(file.Number(), text); error != 0) return error;
    if (::fsync(file.Number()) != 0) return errno;
    return file.Close();
}

std::string LinkTarget(const std::string& path)
{
    std::string target(PATH_MAX, '\0');
    const auto length = ::readlink(path.c_str(), target.data(), target.size());
    target.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return target;
}

bool Exists(const std::string& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 || errno != ENOENT;
}

bool SameFile(const std::string& a, const std::string& b)
{
    struct stat one = {}, other = {};
    return ::lstat(a.c_str(), &one) == 0 && ::lstat(b.c_str(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

}  // namespace

std::string BehindLinks(const std::string& path)
{
    constexpr int kMostLinks = 40;  // as the kernel has it
    std::string at = path;
    for (int i = 0; i < kMostLinks; ++i) {
        std::string target = LinkTarget(at);
        if (target.empty()) return at;
        if (target.front() != '/') target.insert(0, at, 0, at.rfind('/') + 1);
        at = std::move(target);
    }
    return path;
}

std::string FolderOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash == 0 ? 1 : slash);
}

int MakeFolders(const std::string& path)
{
    int error = 0;  // the first one tells more than those that follow from it
    for (std::size_t end = 0; end < path.size();) {
        end = std::min(path.find('/', end + 1), path.size());
        if (::mkdir(path.substr(0, end).c_str(), 0700) != 0 && errno != EEXIST && error == 0) error = errno;
    }
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) return error != 0 ? error : errno;
    return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
}

FileText ReadWholeFile(const std::string& path, std::size_t limit)
{
    // Opening a pipe without O_NONBLOCK would wait for its writer.
    const Handle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (file.Number() < 0 || ::fstat(file.Number(), &status) != 0) return {errno, {}};
    if (!S_ISREG(status.st_mode)) return {EINVAL, {}};

    std::string text;
    for (;;) {
        constexpr std::size_t kStep = 65536;
        const std::size_t had = text.size();
        text.resize(had + kStep);
        const auto count = ::read(file.Number(), text.data() + had, kStep);
        const int error = errno;
        text.resize(had + (count > 0 ? static_cast<std::size_t>(count) : 0));
        if (text.size() > limit) return {EFBIG, {}};
        if (count == 0) return {0, std::move(text)};
        if (count < 0 && error != EINTR) return {error, {}};
    }
}

int ReplaceWholeFile(const std::string& path, const std::string& temporary, std::string_view text, mode_t mode)
{
    struct stat old = {};
    const bool replaces = ::stat(path.c_str(), &old) == 0;
    if (replaces && !S_ISREG(old.st_mode)) return EINVAL;

    ::unlink(temporary.c_str());
    int error = WriteNewFile(temporary, text, mode, replaces ? &old : nullptr);
    if (error == 0 && ::rename(temporary.c_str(), path.c_str()) != 0) error = errno;
    if (error != 0 && error != EEXIST) ::unlink(temporary.c_str());
    return error;
}

int KeepBeside(const std::string& path)
{
    constexpr int kMostNames = 1000;
    for (int i = 1; i <= kMostNames; ++i) {
        const std::string name = path + ".damaged" + (i == 1 ? "" : "-" + std::to_string(i));
        if (::link(path.c_str(), name.c_str()) == 0 || SameFile(path, name)) return 0;
        if (Exists(name)) continue;
        return ::rename(path.c_str(), name.c_str()) == 0 ? 0 : errno;
    }
    return EEXIST;
}

FileLock::FileLock(const std::string& path)
{
    // Some file systems lock only what is open for writing, and the file may be another user's.
    handle_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0600);
    error_ = handle_ < 0 ? errno : 0;
    if (handle_ < 0) handle_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle_ < 0) return;
    error_ = 0;
    while (::flock(handle_, LOCK_EX) != 0) {
        if (errno == EINTR) continue;
        error_ = errno;
        return;
    }
}

FileLock::~FileLock()
{
    if (handle_ >= 0) ::close(handle_);
}

}  // namespace folioscope
