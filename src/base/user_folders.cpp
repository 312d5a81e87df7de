#include "base/user_folders.h"

#include <cstdlib>
#include <string_view>

namespace folioscope {
namespace {

std::string AbsolutePathIn(const char* variable)
{
    const char* const text = std::getenv(variable);
    if (text == nullptr || *text != '/') return {};
    std::string path = text;
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string FolderIn(const char* variable, std::string_view belowHome)
{
    std::string path = AbsolutePathIn(variable);
    if (!path.empty()) return path;
    path = AbsolutePathIn("HOME");
    if (path.empty()) return {};
    if (path.back() != '/') path += '/';
    return path.append(belowHome);
}

}  // namespace

std::string ConfigFolder() { return FolderIn("XDG_CONFIG_HOME", ".config"); }

std::string DataFolder() { return FolderIn("XDG_DATA_HOME", ".local/share"); }

std::string TemporaryFolder()
{
    const std::string path = AbsolutePathIn("TMPDIR");
    return path.empty() ? "/tmp" : path;
}

}  // namespace folioscope
