#pragma once

// Bytes of made-up AFP: bodies, records in one of six packagings, and a random sequence that is the same everywhere.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "afp_facts.h"

namespace folioscope::bench {

using Bytes = std::vector<std::uint8_t>;

// SplitMix64. The standard library's distributions may differ from one library to the next, so they aren't used.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}
    std::uint64_t Next()
    {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }
    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(Next() % limit); }
    std::size_t Between(std::size_t least, std::size_t most) { return least + Below(most - least + 1); }
    template <class List> const auto& Pick(const List& list) { return list[Below(std::size(list))]; }
    template <class List> void Shuffle(List& list)
    {
        for (std::size_t i = std::size(list); i > 1; --i) std::swap(list[i - 1], list[Below(i)]);
    }

private:
    std::uint64_t state_;
};

// The body of a record, or a piece of one. Numbers are big-endian, texts code page 37.
class Body {
public:
    Body() = default;
    Body(std::initializer_list<std::uint8_t> bytes) : bytes_(bytes) {}

    Body& Number(std::uint64_t value, int size);
    Body& U1(std::size_t value) { return Number(value, 1); }
    Body& U2(std::size_t value) { return Number(value, 2); }
    Body& U3(std::size_t value) { return Number(value, 3); }
    Body& Zeros(std::size_t count);
    Body& Text(std::string_view utf8);  // Latin 1 characters only
    Body& Name(std::string_view utf8);  // eight bytes, filled with blanks
    Body& Add(std::span<const std::uint8_t> bytes);
    Body& Add(const Body& body) { return Add(body.bytes_); }
    Body& Triplet(std::uint8_t id, const Body& content);            // length, identifier, content
    Body& Group(const Body& content);                               // two length bytes, content
    Body& Sequence(std::uint8_t function, const Body& parameters);  // chained

    std::span<const std::uint8_t> View() const { return bytes_; }
    std::size_t Size() const { return bytes_.size(); }

private:
    Bytes bytes_;
};

Body FullName(std::uint8_t type, std::string_view name);  // triplet x'02'

struct Packaging {
    std::string_view name;
    std::size_t descriptor;  // bytes of the record descriptor word
    bool control;            // x'5A' ahead of the length
    std::string_view delimiter;
    constexpr std::size_t Framing() const { return descriptor + (control ? 1 : 0) + delimiter.size(); }
    constexpr std::size_t Overhead() const { return Framing() + 8; }  // of a record without a body
};

// clang-format off
constexpr Packaging kPackagings[] = {
    {"5a",   0, true,  ""},
    {"bare", 0, false, ""},
    {"rdw2", 2, true,  ""},
    {"rdw4", 4, true,  ""},
    {"crlf", 0, true,  "\r\n"},
    {"lf",   0, true,  "\n"},
};
// clang-format on

// A field named where the compiler sees it; a name that kFields lacks doesn't compile.
struct FieldName {
    std::uint16_t pair;
    consteval FieldName(const char* name) : pair(PairOf(name))
    {
        if (pair == 0) throw "no such field";
    }
    constexpr explicit FieldName(std::uint16_t known) : pair(known) {}
};

constexpr std::size_t kLongestBody = 32759;

// Frames bodies into records.
class RecordBuilder {
public:
    explicit RecordBuilder(const Packaging& packaging) : packaging_(packaging) {}
    void Put(FieldName field, const Body& body = {}) { Put(field, body.View()); }
    void Put(FieldName field, std::span<const std::uint8_t> body);  // at most kLongestBody bytes

    const Packaging& packaging() const { return packaging_; }
    const Bytes& bytes() const { return bytes_; }
    std::uint64_t records() const { return records_; }

private:
    const Packaging& packaging_;
    Bytes bytes_;
    std::uint64_t records_ = 0;
};

}  // namespace folioscope::bench
