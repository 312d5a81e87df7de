#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "child_process.h"
#include "support/afp_builder.h"

namespace folioscope::test {

Call DumpCall(const std::vector<std::string>& arguments);  // of fsv-dump
Ended Dump(const std::vector<std::string>& arguments);

// A document of one page with a text, and the same with an End that no Begin belongs to.
Bytes Statement();
Bytes Damaged();
Bytes Nested(std::size_t levels);  // a folder in a folder in a folder; their dump grows with the square of the levels

// The lines in front of the first node, and the whole dump of Statement.
std::string Header(std::string_view name);
std::string StatementDump(std::string_view name);

std::string InSystemPage(std::string_view dump);  // as a saved dump: code page 1252, CR LF
std::vector<std::string> FilesIn(const std::string& folder);

inline constexpr std::string_view kWrongEnd =
    "Structure\tE\tStructured Field EPG does not match to a corresponding Begin Structured Field!\n";

}  // namespace folioscope::test
