#include "base/mdlINIFiles.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <unistd.h>

#include "base/ini_lines.h"
#include "base/text.h"
#include "base/whole_file.h"

namespace folioscope::mdlINIFiles {
namespace {

constexpr std::size_t kListCharacters = 4096;
constexpr std::size_t kValueCharacters = 2048;
constexpr std::size_t kLongestFile = std::size_t{16} << 20;

std::string_view Unquoted(std::string_view text)
{
    const bool quoted =
        text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

// Positions in the file's text.
struct Line {
    std::size_t begin = 0, end = 0, next = 0;  // `end` is in front of the line break
    std::string_view text;                     // without blanks at its ends
};

Line LineAt(std::string_view text, std::size_t begin)
{
    if (begin == 0 && text.starts_with(kByteOrderMark)) begin = kByteOrderMark.size();
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::size_t next = std::min(end + 1, text.size());
    const bool return_ = end > begin && text[end - 1] == '\r';
    return {begin, end - (return_ ? 1 : 0), next, TrimLine(text.substr(begin, end - begin))};
}

bool IsSection(std::string_view line) { return line.size() >= 2 && line.front() == '[' && line.back() == ']'; }

std::string_view SectionName(std::string_view line) { return TrimLine(line.substr(1, line.size() - 2)); }

// The position behind the line that begins a section.
std::optional<std::size_t> FindSection(std::string_view text, std::string_view section)
{
    for (std::size_t at = 0; at < text.size();) {
        const Line line = LineAt(text, at);
        at = line.next;
        if (IsSection(line.text) && SameName(SectionName(line.text), TrimLine(section))) return at;
    }
    return {};
}

struct Entry {
    Line line;
    std::string_view key, value;
};

// The next key=value of the section that `at` is in; `at` moves behind it, or to the section's end.
std::optional<Entry> NextEntry(std::string_view text, std::size_t& at)
{
    while (at < text.size()) {
        const Line line = LineAt(text, at);
        if (IsSection(line.text)) return {};
        at = line.next;
        const auto divider = line.text.find('=');
        if (line.text.starts_with(';') || divider == std::string_view::npos) continue;
        return Entry{line, TrimLine(line.text.substr(0, divider)), TrimLine(line.text.substr(divider + 1))};
    }
    return {};
}

std::optional<Entry> FindEntry(std::string_view text, std::size_t section, std::string_view key)
{
    while (auto entry = NextEntry(text, section))
        if (SameName(entry->key, TrimLine(key))) return entry;
    return {};
}

// Behind the section's last line that isn't empty.
std::size_t EndOfSection(std::string_view text, std::size_t section)
{
    std::size_t end = section;
    for (std::size_t at = section; at < text.size();) {
        const Line line = LineAt(text, at);
        if (IsSection(line.text)) break;
        at = line.next;
        if (!line.text.empty()) end = at;
    }
    return end;
}

std::string ReadText(std::string_view path) { return ReadWholeFile(std::string(path), kLongestFile).text; }

std::string_view LineBreakOf(std::string_view text)
{
    const auto feed = text.find('\n');
    return feed != std::string_view::npos && feed > 0 && text[feed - 1] == '\r' ? "\r\n" : "\n";
}

std::string WithValue(std::string text, std::string_view section, std::string_view key, std::string_view value)
{
    const std::string entry = std::string(TrimLine(key)) + '=' + std::string(value);
    const std::string lineBreak(LineBreakOf(text));
    auto begin = FindSection(text, section);
    if (begin) {
        if (const auto old = FindEntry(text, *begin, key))
            return text.replace(old->line.begin, old->line.end - old->line.begin, entry);
    }
    if (!text.empty() && text.back() != '\n') text += lineBreak;
    begin = FindSection(text, section);
    if (begin) return text.insert(EndOfSection(text, *begin), entry + lineBreak);
    return text + '[' + std::string(TrimLine(section)) + ']' + lineBreak + entry + lineBreak;
}

bool IsOneLine(std::string_view text) { return text.find_first_of(std::string_view("\0\r\n", 3)) == text.npos; }

bool CanStand(std::string_view section, std::string_view key, std::string_view value)
{
    if (TrimLine(section).empty() || TrimLine(key).empty()) return false;
    if (!IsOneLine(section) || !IsOneLine(key) || !IsOneLine(value)) return false;
    const char first = TrimLine(key).front();
    return key.find('=') == key.npos && first != ';' && first != '[';
}

}  // namespace

std::vector<std::string> GetKeyList(std::string_view strFilename, std::string_view strSection)
{
    const std::string text = ReadText(strFilename);
    auto at = FindSection(text, strSection);
    std::vector<std::string> keys;
    if (!at) return keys;

    std::size_t room = kListCharacters - 1;  // the NUL behind the last name's own
    while (const auto entry = NextEntry(text, *at)) {
        if (entry->key.empty() || room <= 1) break;
        const auto key = FirstCharacters(entry->key, room - 1);
        if (!key.empty()) keys.emplace_back(key);
        room -= Utf16Length(key) + 1;
    }
    return keys;
}

std::string GetPrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                              std::string_view strDefault)
{
    const std::string text = ReadText(strINIFile);
    const auto section = FindSection(text, strSection);
    const auto entry = section ? FindEntry(text, *section, strKey) : std::nullopt;
    return std::string(FirstCharacters(entry ? Unquoted(entry->value) : strDefault, kValueCharacters - 1));
}

bool WritePrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                         std::string_view strValue)
{
    if (!CanStand(strSection, strKey, strValue)) return false;
    const std::string path = BehindLinks(std::string(strINIFile));
    const FileText old = ReadWholeFile(path, kLongestFile);
    if (old.error != 0 && old.error != ENOENT) return false;

    const std::string text = WithValue(old.text, strSection, strKey, strValue);
    if (old.error == 0 && text == old.text) return true;
    if (text.size() > kLongestFile) return false;
    // No lock guards the file, so the temporary name must be this process's own.
    return ReplaceWholeFile(path, path + ".new" + std::to_string(::getpid()), text, 0666) == 0;
}

}  // namespace folioscope::mdlINIFiles
