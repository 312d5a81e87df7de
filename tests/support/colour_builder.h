#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "support/afp_builder.h"

namespace folioscope::test {

Bytes Wide(std::string_view ascii);                      // UTF-16BE
Bytes Filled(std::string_view ascii, std::size_t size);  // the same, filled with "@" to a size in bytes

// A colour management resource in the making: a header, the entries of its tag table, and what these point to. The end
// tag closes the table.
class Cmr {
public:
    // Replaces bytes of the header.
    Cmr& Header(std::size_t at, const Bytes& bytes);
    // An entry that holds its value itself, in up to four bytes.
    Cmr& Inside(unsigned id, unsigned type, std::uint32_t count, const Bytes& value = {});
    // An entry that points to its value.
    Cmr& Behind(unsigned id, unsigned type, std::uint32_t count, const Bytes& value);
    // An entry that points somewhere, counted from the end of the header.
    Cmr& Pointing(unsigned id, unsigned type, std::uint32_t count, std::uint32_t offset);
    Cmr& WithoutEnd();

    Bytes Whole() const;

private:
    struct Entry {
        Bytes head, value;  // a value of more than four bytes stands behind the table
        bool behind = false;
    };
    Bytes header_ = Zeros(164);
    std::vector<Entry> entries_;
    bool end_ = true;
};

// An ICC profile in the making (ICC.1): a header of 128 bytes, the tag table, the tags' data.
class IccProfile {
public:
    IccProfile& Header(std::size_t at, const Bytes& bytes);
    IccProfile& Tag(std::string_view signature, const Bytes& data);
    // An entry that says of its data what it likes. The offset counts from the profile's first byte.
    IccProfile& Entry(std::string_view signature, std::uint32_t offset, std::uint32_t size);
    IccProfile& Count(std::uint32_t count);  // in place of the real one

    Bytes Whole() const;

private:
    struct TagEntry {
        Bytes signature, data;
        std::uint32_t offset = 0, size = 0;
    };
    Bytes header_ = Zeros(128), count_;
    std::vector<TagEntry> tags_;
};

}  // namespace folioscope::test
