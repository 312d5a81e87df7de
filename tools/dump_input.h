#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include "stream/input_file.h"

namespace folioscope {

inline constexpr const char* kStandardStream = "-";  // the name of standard input, and as OUT of standard output

// A file of the command line. What can't be read by position (standard input, a pipe) is copied to a temporary file
// that has no name and goes with the program.
class DumpInput {
public:
    FileFailure Open(const std::string& name);
    const std::string& Path() const { return path_; }  // where to read it
    std::string ShownName() const;                     // without folders, in well-formed UTF-8
    std::int64_t Size() const { return size_; }        // bytes; -1 of what is no file at all

private:
    FileFailure Spool(int from);

    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> spool_;
    std::string name_, path_;
    std::int64_t size_ = -1;
};

// The files that are to be read. Nothing may be written to one of them, whatever its name is there.
class InputFiles {
public:
    explicit InputFiles(const std::vector<std::string>& names);
    // `path`: an output, or kStandardStream.
    bool Hold(const std::string& path) const;

private:
    std::set<std::pair<dev_t, ino_t>> files_;
};

// Waits until a handle that doesn't block can be read or written (POLLIN, POLLOUT).
void WaitFor(int handle, short events);

}  // namespace folioscope
