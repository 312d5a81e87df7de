#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace folioscope {

namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

// Takes the first character off a text that isn't empty. A byte that isn't part of well-formed UTF-8 is U+FFFD.
char32_t TakeCharacter(std::string_view& text)
{
    const std::size_t size = std::min(Utf8Step(text.front()), text.size());
    char32_t character = static_cast<unsigned char>(text.front());
    if (size > 1) character &= 0x7Fu >> size;
    for (const char c : text.substr(1, size - 1)) character = character << 6 | (static_cast<unsigned char>(c) & 0x3F);
    std::string again;
    AppendUtf8(again, character);
    const bool wellFormed = again == text.substr(0, size);
    text.remove_prefix(wellFormed ? size : 1);
    return wellFormed ? character : kNoCharacter;
}

// Small letters whose capitals stand at one distance, or each behind its capital.
struct Capitals {
    char32_t first, last;
    std::int32_t distance;  // 0: every second character is the capital of the one behind it
};
// clang-format off
constexpr Capitals kCapitals[] = {
    {0xE0,   0xF6,   -0x20}, {0xF8, 0xFE, -0x20},      // Latin-1
    {0xFF,   0xFF,   0x79},
    {0x101,  0x12F,  0}, {0x133, 0x137, 0},            // Latin Extended-A, in pairs
    {0x13A,  0x148,  0}, {0x14B, 0x177, 0}, {0x17A, 0x17E, 0},
    {0x192,  0x192,  -1},
    {0x3AC,  0x3AC,  -0x26}, {0x3AD, 0x3AF, -0x25},    // Greek
    {0x3B1,  0x3C1,  -0x20}, {0x3C3, 0x3CB, -0x20},
    {0x3CC,  0x3CC,  -0x40}, {0x3CD, 0x3CE, -0x3F},
    {0x430,  0x44F,  -0x20}, {0x450, 0x45F, -0x50},    // Cyrillic
    {0x461,  0x481,  0}, {0x48B, 0x4BF, 0},
};
// clang-format on

char32_t CapitalOf(char32_t character)
{
    for (const auto& [first, last, distance] : kCapitals) {
        if (character < first || character > last) continue;
        if (distance != 0) return static_cast<char32_t>(static_cast<std::int32_t>(character) + distance);
        return (character - first) % 2 == 0 ? character - 1 : character;
    }
    return character;
}

// What has no picture and would still act on a terminal or break a line is U+FFFD.
char32_t PictureOf(char32_t character)
{
    if (character < 0x20) return 0x2400 + character;
    if (character == 0x7F) return 0x2421;
    const bool acts = (character >= 0x80 && character < 0xA0) || character == 0x2028 || character == 0x2029;
    return acts ? kNoCharacter : character;
}

// How many bytes from the start on are ASCII, looked at eight at a time.
std::size_t PlainBytes(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t plain = 0;
    for (std::uint64_t eight; plain + sizeof eight <= text.size(); plain += sizeof eight) {
        std::memcpy(&eight, text.data() + plain, sizeof eight);
        if ((eight & kHighBits) != 0) break;
    }
    while (plain < text.size() && static_cast<unsigned char>(text[plain]) < 0x80) ++plain;
    return plain;
}

}  // namespace

void AppendUtf8(std::string& out, char32_t character)
{
    if ((character >= 0xD800 && character <= 0xDFFF) || character > 0x10FFFF) character = 0xFFFD;
    const auto tail = [&](int shift) { out += char(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        out += char(character);
    } else if (character < 0x800) {
        out += char(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        out += char(0xE0 | character >> 12);
        tail(6), tail(0);
    } else {
        out += char(0xF0 | character >> 18);
        tail(12), tail(6), tail(0);
    }
}

std::size_t Utf8Step(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0xC0 || byte > 0xF7 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// A unit for each byte that begins a character, and one more for each that begins one of four bytes: counted for eight
// bytes at a time.
std::size_t Utf16Length(std::string_view text)
{
    constexpr std::uint64_t kLowest = 0x0101010101010101u;  // of each byte
    std::size_t units = 0, at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t bytes;
        std::memcpy(&bytes, text.data() + at, 8);
        const std::uint64_t high = bytes >> 7 & kLowest;
        if (high == 0) {
            units += 8;
            continue;
        }
        const std::uint64_t second = bytes >> 6 & high, four = bytes >> 5 & bytes >> 4 & second;
        const auto count = [](std::uint64_t marks) { return static_cast<std::size_t>(marks * kLowest >> 56); };
        units += 8 - count(high & ~second) + count(four);
    }
    for (; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        units += (byte & 0xC0) != 0x80;
        units += byte >= 0xF0;
    }
    return units;
}

std::string_view TrimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void AppendUpperCase(std::string& out, std::string_view text)
{
    while (!text.empty()) {
        const std::size_t plain = PlainBytes(text), at = out.size();
        out += text.substr(0, plain);
        for (char& c : std::span(out).subspan(at)) c = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 0x20 : 0));
        text.remove_prefix(plain);
        if (text.empty()) return;
        const std::string_view rest = text;
        const char32_t character = TakeCharacter(text);
        if (character == kNoCharacter)
            out += rest.substr(0, rest.size() - text.size());
        else
            AppendUtf8(out, CapitalOf(character));
    }
}

void ChangeString(std::string& text, std::string_view what, std::string_view with)
{
    if (const auto at = text.find(what); at != std::string::npos) text.replace(at, what.size(), with);
}

std::string WellFormed(std::string_view text)
{
    std::string whole;
    while (!text.empty()) AppendUtf8(whole, TakeCharacter(text));
    return whole;
}

std::string OnOneLine(std::string_view text)
{
    std::string line;
    while (!text.empty()) {
        const auto plain = std::find_if_not(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7F; });
        line.append(text.begin(), plain);
        text.remove_prefix(static_cast<std::size_t>(plain - text.begin()));
        if (!text.empty()) AppendUtf8(line, PictureOf(TakeCharacter(text)));
    }
    return line;
}

}  // namespace folioscope
