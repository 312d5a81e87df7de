#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "codepages/pages.h"

namespace folioscope {

// The page that text is converted to and written in. It is the same on every machine: the locale isn't asked.
inline constexpr std::int32_t kSystemCodePage = 1252;

// Appends the text in the system's page. A character that the page hasn't got becomes "?", one beyond U+FFFF two of
// them, and each byte that isn't part of well-formed UTF-8 one. The text must not be a part of `out`.
void AppendInSystemPage(std::string_view utf8, std::string& out);

// The character of a byte; U+FFFD where the page has none.
char32_t DecodeInPage(const CodePageEntry& page, std::uint8_t byte);

}  // namespace folioscope
