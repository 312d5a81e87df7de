#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace folioscope {

// The identifiers that count as a record: x'D3', then a category and a type of this list. Everything else in a
// file is noise to the reader. RCD (x'D3 A6 8D') and XMD (x'D3 A6 8E') are left out on purpose: the analysis knows
// them, the reader steps over them.
struct KnownRow {
    std::uint8_t category;
    std::string_view types;  // one character a byte
};

// The types of the Begin fields; the End fields have the same.
inline constexpr std::string_view kBeginEndTypes = "\x5F\x77\x7B\x87\x89\x8A\x92\x9B\xA5\xA7\xA8\xAD\xAF\xBB\xC4\xC5"
                                                   "\xC6\xC7\xC9\xCA\xCB\xCC\xCD\xCE\xD9\xDF\xE3\xEB\xFB";

// clang-format off
inline constexpr KnownRow kKnownFields[] = {
    {0x8C, "\x87\x89\x8A"},
    {0xA0, "\x88\x90"},
    {0xA2, "\x88\x89"},
    {0xA6, "\x6B\x7B\x87\x88\x89\x92\x9B\xAF\xBB\xC5\xE3\xE7\xEB\xFB"},
    {0xA7, "\x7B\x87\x88\x89\x8A\x9B\xA8\xAF\xCA"},
    {0xA8, kBeginEndTypes},
    {0xA9, kBeginEndTypes},
    {0xAA, "\xE7\xEC"},
    {0xAB, "\x77\x88\x89\x8A\x92\x9B\xAF\xBB\xC3\xCA\xCC\xCD\xD8\xEA\xEB\xFB"},
    {0xAC, "\x6B\x7B\x89\xAF"},
    {0xAD, "\xC3"},
    {0xAE, "\x89"},
    {0xAF, "\x5F\xAF\xC3\xD8"},
    {0xB0, "\x77"},
    {0xB1, "\x5F\x8A\x9B\xAF\xDF"},
    {0xB2, "\x88\xA7"},
    {0xB4, "\x90"},
    {0xEE, "\x7B\x89\x92\x9B\xBB\xEB\xEC\xEE\xFB"},
};
// clang-format on

namespace detail {

// One bit a type for each category of the list: small enough to stay in the first-level cache.
struct KnownBits {
    std::array<std::uint8_t, 256> row{};  // by category; 0: no category of ours
    std::array<std::array<std::uint64_t, 4>, std::size(kKnownFields) + 1> bits{};
};

inline constexpr KnownBits kKnownBits = [] {
    KnownBits known;
    for (std::size_t i = 0; i < std::size(kKnownFields); ++i) {
        known.row[kKnownFields[i].category] = static_cast<std::uint8_t>(i + 1);
        for (const char c : kKnownFields[i].types) {
            const auto type = static_cast<std::uint8_t>(c);
            known.bits[i + 1][type / 64] |= std::uint64_t{1} << type % 64;
        }
    }
    return known;
}();

}  // namespace detail

constexpr bool IsKnownSF(std::uint8_t category, std::uint8_t type)
{
    return detail::kKnownBits.bits[detail::kKnownBits.row[category]][type / 64] >> type % 64 & 1;
}

}  // namespace folioscope
