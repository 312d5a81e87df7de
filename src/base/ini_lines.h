#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace folioscope {

// What the settings store and INI files have in common: lines of names and values.

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// A to Z count as a to z.
constexpr bool SameName(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, LowerCase, LowerCase);
}

struct NameOrder {
    using is_transparent = void;
    constexpr bool operator()(std::string_view a, std::string_view b) const
    {
        return std::ranges::lexicographical_compare(a, b, {}, LowerCase, LowerCase);
    }
};

// Takes blanks, tabulators and carriage returns off both ends.
std::string_view TrimLine(std::string_view text);

// As much of the front of a text as has at most `count` characters.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

}  // namespace folioscope
