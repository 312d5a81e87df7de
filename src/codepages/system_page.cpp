#include "codepages/system_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace folioscope {

namespace {

constexpr char kNotInPage = '?';
constexpr char32_t kNoCharacter = U'\uFFFD';

struct Encoding {
    char32_t character;
    char byte;
};
using Encodings = std::array<Encoding, 128>;

// What the page has beyond ASCII, by code point. Its undefined bytes come out as encodings of U+FFFD, harmlessly.
Encodings MakeEncodings(const CodePageEntry& page)
{
    Encodings encodings{};
    for (std::size_t i = 0; i < encodings.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(0x80 + i);
        const char32_t character = DecodeInPage(page, byte);
        encodings[i] = {character, character == kNoCharacter ? kNotInPage : static_cast<char>(byte)};
    }
    std::ranges::sort(encodings, {}, &Encoding::character);
    return encodings;
}

char ByteInSystemPage(char32_t character)
{
    static const Encodings encodings = MakeEncodings(*FindCodePage(kSystemCodePage));
    const auto found = std::ranges::lower_bound(encodings, character, {}, &Encoding::character);
    return found != encodings.end() && found->character == character ? found->byte : kNotInPage;
}

// Bytes before the first one that isn't ASCII, looked at eight at a time.
std::size_t AsciiRun(std::string_view text)
{
    std::size_t run = 0;
    for (std::uint64_t eight = 0; run + sizeof eight <= text.size(); run += sizeof eight) {
        std::memcpy(&eight, text.data() + run, sizeof eight);
        if ((eight & 0x8080808080808080) != 0) break;
    }
    while (run < text.size() && static_cast<unsigned char>(text[run]) < 0x80) ++run;
    return run;
}

struct Decoded {
    char32_t character;
    std::size_t size;  // bytes; 0: malformed
};

struct Lead {
    unsigned char first, last;
    std::size_t size;
    char32_t lowest;  // what is lower has a shorter form
};

// clang-format off
constexpr Lead kLeads[] = {
    {0xC0, 0xDF, 2, 0x80},
    {0xE0, 0xEF, 3, 0x800},
    {0xF0, 0xF7, 4, 0x10000},
};
// clang-format on

// Takes a text that starts with a byte beyond ASCII.
Decoded DecodeFirst(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const auto* const lead =
        std::ranges::find_if(kLeads, [&](const Lead& l) { return first >= l.first && first <= l.last; });
    if (lead == std::end(kLeads) || text.size() < lead->size) return {kNoCharacter, 0};

    char32_t character = first & (0x7F >> lead->size);
    for (const char c : text.substr(1, lead->size - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) != 0x80) return {kNoCharacter, 0};
        character = character << 6 | (byte & 0x3F);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < lead->lowest || character > 0x10FFFF || surrogate) return {kNoCharacter, 0};
    return {character, lead->size};
}

}  // namespace

void AppendInSystemPage(std::string_view utf8, std::string& out)
{
    while (!utf8.empty()) {
        const std::size_t plain = AsciiRun(utf8);
        out.append(utf8.substr(0, plain));
        utf8.remove_prefix(plain);
        if (utf8.empty()) return;

        const auto [character, size] = DecodeFirst(utf8);
        if (size == 4)
            out.append(2, kNotInPage);  // one for each UTF-16 unit
        else
            out += ByteInSystemPage(character);
        utf8.remove_prefix(std::max<std::size_t>(size, 1));
    }
}

char32_t DecodeInPage(const CodePageEntry& page, std::uint8_t byte)
{
    if (page.SourceTable == nullptr) return kNoCharacter;
    // Conversion to page 1257 makes FF of what the page hasn't got, and systems show this byte as a dot above.
    if (page.Number == 1257 && byte == 0xFF) return U'\u02D9';
    return UnicodeOf((*page.SourceTable)[byte]);
}

}  // namespace folioscope
