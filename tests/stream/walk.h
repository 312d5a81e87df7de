#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "stream/record_reader.h"
#include "support/afp_builder.h"

namespace folioscope::test {

// A record as a reader has delivered it.
struct Found {
    std::int64_t told = 0;  // file position of its first length byte, from 1, as the reader has it
    std::int32_t length = 0;
    std::int64_t processed = 0;  // bytes consumed behind it
    Bytes bytes;                 // `length` bytes from its first length byte on
    bool operator==(const Found&) const = default;
};
void PrintTo(const Found& found, std::ostream* out);

Found RecordInHand(const RecordReader& reader);

// What the reader says from OpenAFPFile to the end, after which it is closed.
struct Walked {
    Framing framing;
    std::vector<Found> records;
    Status end = kNothing;
};

Walked Walk(RecordReader& reader, const std::string& path);

// The told positions of all records.
std::vector<std::int64_t> ToldOf(const std::vector<Found>& records);

// A structured field of that length, 8 to 65535. Nothing in its data can be taken for a record.
Bytes Record(std::size_t length, char fill = '\x40');

// What stands around each structured field of a file.
struct Packing {
    const char* name;
    int rdw;
    bool fiveA;
    const char* delimiter;

    Bytes Before(std::size_t length) const;
    std::size_t Around() const;  // bytes, without the structured field's own
};
inline constexpr Packing kPackings[] = {
    {"bare", 0, false, ""},
    {"5A", 0, true, ""},
    {"RDW 2", 2, true, ""},
    {"RDW 4", 4, true, ""},
    {"bare, CR", 0, false, "\r"},
    {"bare, LF", 0, false, "\n"},
    {"bare, CR LF", 0, false, "\r\n"},
    {"5A, CR", 0, true, "\r"},
    {"5A, LF", 0, true, "\n"},
    {"5A, CR LF", 0, true, "\r\n"},
    {"RDW 2, CR LF", 2, true, "\r\n"},
    {"RDW 4, CR LF", 4, true, "\r\n"},
};

// A file in one packing that knows where its records are.
class PackedFile {
public:
    explicit PackedFile(const Packing& packing) : packing_(packing) {}

    PackedFile& Add(const Bytes& record);
    PackedFile& Noise(const Bytes& bytes);
    // Adds records until the length field of the next one comes to the file position, from 1.
    PackedFile& FillTo(std::int64_t position);

    const Packing& Around() const { return packing_; }
    const Bytes& Content() const { return content_; }
    const std::vector<Found>& Records() const { return records_; }  // as a reader should deliver them

private:
    Packing packing_;
    Bytes content_;
    std::vector<Found> records_;
};

// Numbers that look like chance and are the same at each run.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}
    std::uint32_t Next();
    std::uint32_t Below(std::uint32_t bound) { return Next() % bound; }
    // Bytes among which identifiers, whole ones with small lengths too, prefixes and delimiters are frequent.
    Bytes AfpLike(std::size_t size);

private:
    std::uint64_t state_;
};

}  // namespace folioscope::test
