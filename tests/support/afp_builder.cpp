#include "support/afp_builder.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "analysis/decode/dispatch.h"

namespace folioscope::test {

namespace {

struct Glyph {
    char ascii;
    unsigned char ebcdic;
};
constexpr Glyph kPunctuation[] = {{' ', 0x40}, {'.', 0x4B}, {'(', 0x4D}, {'+', 0x4E},  {'&', 0x50}, {'*', 0x5C},
                                  {')', 0x5D}, {'-', 0x60}, {'/', 0x61}, {',', 0x6B},  {'%', 0x6C}, {'_', 0x6D},
                                  {'>', 0x6E}, {'?', 0x6F}, {':', 0x7A}, {'\'', 0x7D}, {'=', 0x7E}};

char EbcdicOf(char c)
{
    constexpr std::string_view kRows = "abcdefghijklmnopqrstuvwxyz";
    constexpr std::array<unsigned char, 3> kStarts = {0x81, 0x91, 0xA2};
    const auto letter = kRows.find(static_cast<char>(c | 0x20));
    if (((c | 0x20) >= 'a') && letter != std::string_view::npos) {
        const std::size_t row = letter < 9 ? 0 : letter < 18 ? 1 : 2;
        const unsigned char lower = static_cast<unsigned char>(kStarts[row] + letter - row * 9);
        return static_cast<char>(c & 0x20 ? lower : lower + 0x40);
    }
    if (c >= '0' && c <= '9') return static_cast<char>(0xF0 + (c - '0'));
    for (const auto& [ascii, ebcdic] : kPunctuation)
        if (ascii == c) return static_cast<char>(ebcdic);
    throw std::invalid_argument("no EBCDIC for a character of a test");
}

unsigned HexDigit(char c) { return static_cast<unsigned>(c <= '9' ? c - '0' : c - 'A' + 10); }

}  // namespace

Bytes U1(unsigned value) { return Bytes(1, static_cast<char>(value)); }

Bytes U2(unsigned value) { return U1(value >> 8) + U1(value); }

Bytes U3(unsigned value) { return U1(value >> 16) + U2(value); }

Bytes U4(std::uint32_t value) { return U2(value >> 16) + U2(value); }

Bytes Raw(std::initializer_list<int> bytes)
{
    Bytes raw;
    for (const int byte : bytes) raw += static_cast<char>(byte);
    return raw;
}

Bytes Zeros(std::size_t count) { return Bytes(count, '\0'); }

Bytes Ebcdic(std::string_view text)
{
    Bytes bytes;
    for (const char c : text) bytes += EbcdicOf(c);
    return bytes;
}

Bytes Ebcdic8(std::string_view text)
{
    Bytes bytes = Ebcdic(text);
    bytes.resize(8, 0x40);
    return bytes;
}

Bytes Triplet(unsigned id, const Bytes& data) { return U1(static_cast<unsigned>(data.size()) + 2) + U1(id) + data; }

Bytes Pieces(std::string_view pieces)
{
    Bytes bytes;
    for (std::size_t i = 0; i < pieces.size();) {
        const char c = pieces[i];
        if (c == ' ') {
            ++i;
        } else if (c == '\'' || c == '<') {
            const auto end = pieces.find(c == '<' ? '>' : '\'', i + 1);
            const auto text = pieces.substr(i + 1, end - i - 1);
            bytes += c == '<' ? Bytes(text) : Ebcdic(text);
            i = end + 1;
        } else {
            const Bytes byte = U1(HexDigit(c) << 4 | HexDigit(pieces.at(i + 1)));
            i += 2;
            std::size_t count = 0;
            if (i < pieces.size() && pieces[i] == '*')
                for (++i; i < pieces.size() && pieces[i] != ' '; ++i) count = count * 10 + HexDigit(pieces[i]);
            for (std::size_t n = std::max<std::size_t>(count, 1); n > 0; --n) bytes += byte;
        }
    }
    return bytes;
}

Bytes TripletOf(std::string_view pieces)
{
    const Bytes bytes = Pieces(pieces);
    return U1(static_cast<unsigned>(bytes.size()) + 1) + bytes;
}

Bytes IdentifierOf(std::string_view name)
{
    for (const FieldRow& row : Fields())
        if (row.NodeText == name) return U2(row.id);
    if (name.size() != 6 || !name.starts_with("D3")) throw std::invalid_argument("no such field: " + std::string(name));
    Bytes bytes;
    for (const std::size_t at : {2, 4}) bytes += U1(HexDigit(name[at]) << 4 | HexDigit(name[at + 1]));
    return bytes;
}

Bytes Structured(const Field& field)
{
    const unsigned length =
        field.declaredLength != 0 ? field.declaredLength : static_cast<unsigned>(field.data.size()) + 8;
    return U2(length) + U1(0xD3) + IdentifierOf(field.name) + U1(field.flags) + U2(0) + field.data;
}

AfpFile& AfpFile::Add(const Field& field)
{
    const Bytes bytes = Structured(field);
    const auto size = static_cast<unsigned>(bytes.size());
    switch (packaging_) {
    case Packaging::Bare: break;
    case Packaging::Rdw2: content_ += U2(size + 3) + U1(0x5A); break;
    case Packaging::Rdw4: content_ += U2(size + 5) + U2(0) + U1(0x5A); break;
    default: content_ += U1(0x5A); break;
    }
    content_ += bytes;
    if (packaging_ == Packaging::Cr || packaging_ == Packaging::CrLf) content_ += '\r';
    if (packaging_ == Packaging::Lf || packaging_ == Packaging::CrLf) content_ += '\n';
    return *this;
}

AfpFile& AfpFile::Noise(const Bytes& bytes)
{
    content_ += bytes;
    return *this;
}

}  // namespace folioscope::test
