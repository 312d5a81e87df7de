#include "shell/command_line.h"

#include <algorithm>

#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::string_view kSearch = "/search=", kReload = "/reload=", kFromFSV = "/fromFSV", kExtract = "/extract";
constexpr std::string_view kSwitches[] = {kSearch, kReload, kFromFSV, kExtract};

char Small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; }

bool StartsWith(std::string_view text, std::string_view start)
{
    return text.size() >= start.size() &&
           std::equal(start.begin(), start.end(), text.begin(), [](char a, char b) { return Small(a) == Small(b); });
}

bool Equals(std::string_view text, std::string_view word)
{
    return text.size() == word.size() && StartsWith(text, word);
}

void Take(CommandLine& line, std::string_view token)
{
    if (StartsWith(token, kSearch)) {
        line.strSearch.clear();
        AppendUpperCase(line.strSearch, token.substr(kSearch.size()));
    } else if (StartsWith(token, kReload)) {
        line.strReloadNode = token.substr(kReload.size());
    } else if (Equals(token, kFromFSV)) {
        line.bolFromFSV = true;
    } else if (Equals(token, kExtract)) {
        line.bolExtract = true;
    } else if (token == "--help") {
        line.help = true;
    } else if (token == "--version") {
        line.version = true;
    } else {
        line.strStartFile = token;
    }
}

}  // namespace

CommandLine ParseCommandLine(std::string_view line)
{
    CommandLine result;
    while (!line.empty()) {
        if (line.front() == ' ') {
            line.remove_prefix(1);
            continue;
        }
        const bool quoted = line.front() == '"';
        if (quoted) line.remove_prefix(1);
        const auto end = std::min(line.find(quoted ? '"' : ' '), line.size());
        if (quoted)
            result.strStartFile = line.substr(0, end);
        else
            Take(result, line.substr(0, end));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return result;
}

std::string JoinArguments(int argc, const char* const* argv)
{
    std::string line;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const bool named = std::any_of(std::begin(kSwitches), std::end(kSwitches),
                                       [&](std::string_view word) { return StartsWith(argument, word); });
        const bool quoted = argument.find(' ') != std::string_view::npos && !named;
        if (i > 1) line += ' ';
        if (quoted) line += '"';
        line += argument;
        if (quoted) line += '"';
    }
    return line;
}

}  // namespace folioscope
