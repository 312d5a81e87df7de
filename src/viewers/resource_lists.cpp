#include "viewers/resource_lists.h"

#include <cctype>
#include <filesystem>
#include <fstream>

#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::string_view kLists[] = {"mffafp.pro", "mffpdf.pro"};
constexpr std::string_view kEntryStart = "<files ", kPathStart = "path=\"", kEnd = "</resourcelist>";

std::string Trimmed(std::string_view line)
{
    if (line.ends_with('\r')) line.remove_suffix(1);
    std::string small(TrimBlanks(line));
    for (char& c : small) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return small;
}

bool IsEntry(std::string_view line) { return Trimmed(line).starts_with(kEntryStart); }

bool IsEnd(std::string_view line) { return Trimmed(line) == kEnd; }

std::string PathOf(const std::string& folder, std::string_view list) { return folder + '/' + std::string(list); }

void Write(std::ofstream& out, const std::vector<std::string>& paths)
{
    for (const std::string& path : paths) out << "      <files path=\"" << path << "\" extension=\"*\" />\n";
}

// Copies the lines of the list before, with other entries in front of its end.
void Rewrite(const std::string& list, const std::vector<std::string>& paths)
{
    const std::string backup = list.substr(0, list.rfind('.')) + ".bak";
    std::error_code error;
    std::filesystem::remove(backup, error);
    if (error) return;
    std::filesystem::rename(list, backup, error);
    if (error) return;
    std::ifstream in(backup, std::ios::binary);
    std::ofstream out(list, std::ios::binary);
    if (!in || !out) return;
    bool written = false;
    for (std::string line; std::getline(in, line);) {
        if (!written && IsEnd(line)) {
            Write(out, paths);
            written = true;
        }
        if (written || !IsEntry(line)) out << line << '\n';
    }
    if (!written) Write(out, paths);
}

}  // namespace

void CreateResourceLists(const std::string& folder)
{
    for (const auto list : kLists) {
        std::error_code error;
        if (std::filesystem::exists(PathOf(folder, list), error) || error) continue;
        std::ofstream(PathOf(folder, list), std::ios::binary) << "<resourcelist>\n" << kEnd << '\n';
    }
}

std::vector<std::string> ReadResourcePaths(const std::string& folder)
{
    std::vector<std::string> paths;
    std::ifstream in(PathOf(folder, kLists[0]), std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        if (!IsEntry(line)) continue;
        const auto start = line.find(kPathStart);
        if (start == std::string::npos) continue;
        const auto from = start + kPathStart.size();
        paths.push_back(line.substr(from, line.find('"', from) - from));
    }
    return paths;
}

void WriteResourcePaths(const std::string& folder, const std::vector<std::string>& paths)
{
    for (const auto list : kLists) Rewrite(PathOf(folder, list), paths);
}

}  // namespace folioscope
