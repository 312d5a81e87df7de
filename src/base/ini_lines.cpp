#include "base/ini_lines.h"

#include "base/text.h"

namespace folioscope {

std::string_view TrimLine(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view FirstCharacters(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t next = std::min(end + Utf8Step(text[end]), text.size());
        const std::size_t length = Utf16Length(text.substr(end, next - end));
        if (length > count) break;
        count -= length;
        end = next;
    }
    return text.substr(0, end);
}

}  // namespace folioscope
