#include "base/mdlOther.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "base/text.h"
#include "base/user_folders.h"

namespace folioscope::mdlOther {
namespace {

constexpr std::string_view kShellFolders =
    R"(HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders)";

bool IsFolder(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Somebody else may have made it in between.
bool MakeOne(const std::string& path) { return ::mkdir(path.c_str(), 0777) == 0 || IsFolder(path); }

}  // namespace

std::string ChangeString(std::string_view strString, std::string_view strOldPart, std::string_view strNewPart)
{
    std::string text(strString);
    folioscope::ChangeString(text, strOldPart, strNewPart);
    return text;
}

void AddToAnyArray(BoundedArray<TaggedValue>& AnyArray, const TaggedValue& AnyValue)
{
    AnyArray.elements.push_back(AnyValue);
}

std::string GetTempDir()
{
    std::string path = TemporaryFolder();
    if (path.back() != '/') path += '/';
    return path;
}

std::string Extract(std::string_view strSourceString, std::string_view strDivider, int intPart)
{
    if (strDivider.empty() || intPart < 1) return {};
    const auto divider = strDivider.substr(0, Utf8Step(strDivider.front()));
    const std::string text = std::string(strSourceString).append(divider);
    std::size_t begin = 0;
    for (int part = 1;; ++part) {
        const auto end = text.find(divider, begin);
        if (end == std::string::npos) return {};
        if (part == intPart) return text.substr(begin, end - begin);
        begin = end + divider.size();
    }
}

bool MakeDir(std::string_view strPath)
{
    std::string path(strPath);
    std::ranges::replace(path, '\\', '/');
    if (!path.ends_with('/')) path += '/';
    std::size_t at = 1;
    if (path.front() != '/') {
        std::error_code error;
        const std::string current = std::filesystem::current_path(error).string();
        if (error) return true;
        at = current.size() + 1;
        path.insert(0, current + '/');
    }
    while ((at = path.find('/', at)) != std::string::npos) {
        const std::string folder = path.substr(0, at++);
        if (::chdir(folder.c_str()) == 0) continue;
        if (errno != ENOENT && errno != ENOTDIR) break;
        if (!MakeOne(folder)) return false;
    }
    return true;
}

std::string GetAllUsersAppDir(const mdlRegistry& registry)
{
    TaggedValue value;
    registry.GetRegistryValue(kShellFolders, "Common AppData", value, DataFolder());
    const auto* const folder = std::get_if<std::string>(&value);
    std::string path = folder != nullptr ? *folder : DataFolder();
    if (path.empty()) return path;
    path += "/Marrowgate";
    MakeDir(path);
    return path;
}

}  // namespace folioscope::mdlOther
