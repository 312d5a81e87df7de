#pragma once

#include <string_view>

#include "stream/input_file.h"

namespace folioscope {

// Where a dump goes.
class DumpSink {
public:
    virtual ~DumpSink() = default;
    virtual FileFailure Write(std::string_view bytes) = 0;
};

}  // namespace folioscope
