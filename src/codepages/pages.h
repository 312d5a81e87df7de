#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace folioscope {

// Names one character in whatever page it stands: the pivot of all conversions. 0 means that there is none.
//      1 to   65   the controls U+0000 to U+001F, U+007F, U+0080 to U+009F
//     66 to  256   U+0020 to U+007E, U+00A0 to U+00FF
//    257 to 2012   all others that a page has, in the order of their code points; numbers at the end stay free
//           2013   the Euro sign
using CharacterNumber = std::int16_t;

inline constexpr CharacterNumber kFullStop = 80;  // what an undefined byte is converted as
inline constexpr CharacterNumber kEuroSign = 2013;
inline constexpr CharacterNumber kHighestCharacter = kEuroSign;

using CharacterTable = std::array<CharacterNumber, 256>;  // by byte value; 0: the byte is undefined

struct CodePageEntry {
    std::int16_t Number;
    std::int16_t SubstituteValue;  // what stands for a character that the page hasn't got: byte value plus 1
    std::string_view Symbol;       // the number, with three digits at least
    std::string_view Type;         // EBCDIC, ASCII, ANSI or Unicode; only shown
    std::string_view LongName;
    const CharacterTable* SourceTable;  // null for page 1200, which isn't single-byte
};

// All pages, by ascending number.
std::span<const CodePageEntry> CodePageEntries();

// Null if there is no such page.
const CodePageEntry* FindCodePage(std::int32_t number);

// U+FFFD for a number that names no character.
char32_t UnicodeOf(CharacterNumber number);

}  // namespace folioscope
