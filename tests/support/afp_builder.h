#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace folioscope::test {

// Bytes in the making. A std::string serves as the container, so that parts join with +.
using Bytes = std::string;

Bytes U1(unsigned value);
Bytes U2(unsigned value);  // big-endian, as all of AFP
Bytes U3(unsigned value);
Bytes U4(std::uint32_t value);
Bytes Raw(std::initializer_list<int> bytes);
Bytes Zeros(std::size_t count);

// Letters, digits, blank and common punctuation in EBCDIC (the same on pages 37 and 500).
Bytes Ebcdic(std::string_view text);
Bytes Ebcdic8(std::string_view text);  // padded with blanks or cut to 8 bytes

Bytes Triplet(unsigned id, const Bytes& data);

// Bytes written readably: hex pairs, 'EBCDIC text', <text as it stands>; a pair can repeat: "00*14". Blanks separate.
Bytes Pieces(std::string_view pieces);
// One triplet of an id and data, with the length byte that it needs.
Bytes TripletOf(std::string_view pieces);

// Parts of a structured field that most records have in common.
struct Field {
    std::string_view name;  // "BPG"; or an identifier in hex: "D3A8AF"
    Bytes data = {};
    unsigned flags = 0;
    unsigned declaredLength = 0;  // 0: the real one
};

// From the length field to the last data byte, without any packaging.
Bytes Structured(const Field& field);

enum class Packaging { Bare, FiveA, Rdw2, Rdw4, Cr, Lf, CrLf };

// A file of records in one packaging.
class AfpFile {
public:
    explicit AfpFile(Packaging packaging = Packaging::FiveA) : packaging_(packaging) {}

    AfpFile& Add(const Field& field);
    AfpFile& Add(std::string_view name, const Bytes& data = {}) { return Add(Field{name, data}); }
    AfpFile& Noise(const Bytes& bytes);
    const Bytes& Content() const { return content_; }

private:
    Packaging packaging_;
    Bytes content_;
};

// The category and type of a field's short name, as two bytes.
Bytes IdentifierOf(std::string_view name);

}  // namespace folioscope::test
