#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace folioscope {

// All text inside the program is UTF-8. Where a limit counts characters, a character is a UTF-16 unit.

// Appends one character. Halves of surrogate pairs and values above U+10FFFF become U+FFFD.
void AppendUtf8(std::string& out, char32_t character);

// Bytes of the character that starts with this byte; 1 for a byte that starts none.
std::size_t Utf8Step(char first);

std::size_t Utf16Length(std::string_view text);

// Takes blanks (U+0020 only) off both ends.
std::string_view TrimBlanks(std::string_view text);

// Appends a text in capitals: letters of the Latin, Greek and Cyrillic alphabets that have one capital. Bytes that
// aren't part of well-formed UTF-8 stay as they are.
void AppendUpperCase(std::string& out, std::string_view text);

// Replaces the first occurrence of `what`, which is how placeholders are filled.
void ChangeString(std::string& text, std::string_view what, std::string_view with);

// The text with U+FFFD in place of each byte that isn't part of well-formed UTF-8.
std::string WellFormed(std::string_view text);

// One line for a terminal or a list: control characters are shown as their pictures (U+2400 and on). U+FFFD stands for
// those that have none (U+0080 to U+009F, U+2028, U+2029) and for bytes that aren't part of well-formed UTF-8.
std::string OnOneLine(std::string_view text);

}  // namespace folioscope
