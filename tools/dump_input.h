#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "stream/input_file.h"

namespace folioscope {

// A file of the command line. What can't be read by position (standard input, a pipe) is copied to a temporary file
// that has no name and goes with the program.
class DumpInput {
public:
    FileFailure Open(const std::string& name);
    const std::string& Path() const { return path_; }  // where to read it
    bool Spooled() const { return spool_ != nullptr; }

private:
    FileFailure Spool(int from);

    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> spool_;
    std::string path_;
};

}  // namespace folioscope
