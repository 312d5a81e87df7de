#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace folioscope {

// Small files that are read and written whole. Results are 0 or an errno value.

// What a chain of symbolic links ends at, whether it exists or not; so that a write goes through a link
// rather than replacing it. A chain that doesn't end gives the path itself.
std::string BehindLinks(const std::string& path);

// The folder that a file stands in; "." for a name without one.
std::string FolderOf(const std::string& path);

// Makes a folder and its parents, for the user alone.
int MakeFolders(const std::string& path);

struct FileText {
    int error = 0;  // EFBIG: longer than the limit; EINVAL: no regular file. The text is then empty.
    std::string text;
};
FileText ReadWholeFile(const std::string& path, std::size_t limit);

// Writes beside the path and renames, so that everybody sees the old text or the new one. `temporary` is a
// name in the same folder that nobody else uses at the moment; what is left there by a killed process goes.
// A file that is replaced hands on its owner and permissions, a new one gets `mode`.
int ReplaceWholeFile(const std::string& path, const std::string& temporary, std::string_view text, mode_t mode);

// Gives the file a further name, path + ".damaged" or ".damaged-2" and so on, that no other file has yet.
// Where the file system can't do that the file is renamed.
int KeepBeside(const std::string& path);

// Holds a file's lock against other processes while it lives. The file is made, and stays.
class FileLock {
public:
    explicit FileLock(const std::string& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    int Error() const { return error_; }

private:
    int handle_ = -1;
    int error_ = 0;
};

}  // namespace folioscope
