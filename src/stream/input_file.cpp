#include "stream/input_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace folioscope {

FileFailure FailureOf(int systemError)
{
    switch (systemError) {
    case 0: return {};
    case ENOENT: return kFileNotFound;
    case ENOTDIR:
    case EISDIR: return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS: return kPermissionDenied;
    case ENOSPC:
    case EDQUOT: return kDiskFull;
    case EMFILE:
    case ENFILE: return kTooManyFiles;
    default: return kDeviceFailure;
    }
}

FileFailure InputFile::Open(const std::string& path)
{
    Close();
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return FailureOf(errno);
    struct stat status = {};
    const int error = ::fstat(handle, &status) != 0 ? errno : S_ISDIR(status.st_mode) ? EISDIR : 0;
    if (error != 0) {
        ::close(handle);
        return FailureOf(error);
    }
    handle_ = handle;
    size_ = status.st_size;
    return {};
}

void InputFile::Close()
{
    if (handle_ >= 0) ::close(handle_);
    handle_ = -1;
}

FileFailure InputFile::ReadAt(std::int64_t position, std::span<std::uint8_t> target, std::size_t& got) const
{
    got = 0;
    while (got < target.size()) {
        const auto count = ::pread(handle_, target.data() + got, target.size() - got,
                                   static_cast<off_t>(position + static_cast<std::int64_t>(got)));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return FailureOf(errno);
        if (count == 0) break;
        got += static_cast<std::size_t>(count);
    }
    return {};
}

}  // namespace folioscope
