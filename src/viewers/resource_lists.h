#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folioscope {

// The folders in which the preview looks for resources: two text files of the same entries, mffafp.pro and mffpdf.pro,
// in the folder that the system's programs share. Lines that are no entries are kept as they stand. Failures are passed
// over: a list that can't be read is empty.

// Makes lists without entries where there are none.
void CreateResourceLists(const std::string& folder);
std::vector<std::string> ReadResourcePaths(const std::string& folder);
// Each list before is kept beside as .bak.
void WriteResourcePaths(const std::string& folder, const std::vector<std::string>& paths);

}  // namespace folioscope
