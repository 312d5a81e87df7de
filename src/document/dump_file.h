#pragma once

#include <string>

#include "document/dump_sink.h"

namespace folioscope {

// A file that gets its final name only when it is whole: until Commit it stands beside it under another name. A target
// that is no ordinary file (a device, a pipe) is written straight. A link stays and what it points to is replaced.
class DumpFile final : public DumpSink {
public:
    DumpFile() = default;
    DumpFile(const DumpFile&) = delete;
    DumpFile& operator=(const DumpFile&) = delete;
    ~DumpFile() override { Abandon(); }

    FileFailure Create(const std::string& path);
    FileFailure Write(std::string_view bytes) override;
    FileFailure Commit();
    void Abandon();

private:
    FileFailure Fail(int systemError);

    int handle_ = -1;
    std::string finalPath_, writtenPath_;
};

// Whether two paths name the same file.
bool IsSameFile(const std::string& one, const std::string& other);

}  // namespace folioscope
