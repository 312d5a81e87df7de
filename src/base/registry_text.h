#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/ini_lines.h"

namespace folioscope {

// The text of the settings store, which people may read and edit. UTF-8, one line an entry:
//
//   [HKEY_CURRENT_USER\Software\Marrowgate\Folioscope]
//   Codepage=dword:37
//   LastFilesList1=sz:/home/anna/statement.afp
//
// A line in brackets is the full key of the entries below it; keys and names are in alphabetical order, and
// letter case doesn't tell them apart. `dword` is a signed 32-bit number in decimal, `sz` a text. In names
// and texts \\ is a backslash, \n \r \t a line feed, carriage return and tabulator, and \xHH any byte:
// control characters, blanks at the ends, bytes that are not UTF-8, and in names also = and a [ in front.
// Blanks around a line, a name or a value don't count. Of two entries of one name the last one holds.
// There are no comments.

using RegistryData = std::variant<std::string, std::int32_t>;
using RegistryValues = std::map<std::string, RegistryData, NameOrder>;
using RegistryKeys = std::map<std::string, RegistryValues, NameOrder>;  // by full key as CanonicalKey gives it

struct RegistryContent {
    RegistryKeys keys;
    bool damaged = false;  // there was something that a new text would lose
};

// The handle of the root name in front of the first backslash; 0 for another name or without a backslash.
std::uint32_t RootHandle(std::string_view fullKey);

// Root and path without empty parts. Nothing for a text that names no root or can't stand in one line.
std::optional<std::string> CanonicalKey(std::string_view fullKey);

// What isn't text (control characters, broken UTF-8) gives no keys at all. Of a text, the lines that can't
// be read are left out.
RegistryContent ParseRegistry(std::string_view text);

std::string RegistryText(const RegistryKeys& keys);

}  // namespace folioscope
