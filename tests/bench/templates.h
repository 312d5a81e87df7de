#pragma once

// Pieces of a file that are made once and written many times.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "record_builder.h"

namespace folioscope::bench {

class Template {
public:
    explicit Template(const RecordBuilder& records, unsigned pages = 0);

    // The bytes with group, account and amount made from the serial number. They hold until the next call.
    const Bytes& Numbered(std::uint64_t serial);

    std::size_t Size() const { return bytes_.size(); }
    std::uint64_t records() const { return records_; }
    unsigned pages() const { return pages_; }

private:
    struct Slots {
        std::vector<std::size_t> places;
        std::size_t digits;
    };
    Bytes bytes_;
    std::uint64_t records_;
    unsigned pages_;
    Slots group_, account_, amount_;
};

std::vector<Template> InvoiceTemplates(const Packaging& packaging, Dice& dice, bool faults);

// Named groups of fifty records of 8 to 30 bytes.
std::vector<Template> SmallTemplates(const Packaging& packaging, Dice& dice, bool faults);

// One tower of named groups, each inside the one before it.
Template Tower(const Packaging& packaging, std::size_t depth, bool faults);

// Stretches of 1 to `longest` bytes with many x'D3', none of them followed by the first byte of a known pair.
std::vector<Bytes> NoiseStretches(Dice& dice, std::size_t longest);

}  // namespace folioscope::bench
