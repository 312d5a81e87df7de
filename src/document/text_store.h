#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace folioscope {

// The place of a text in a store, in units of 8 bytes; 0 is no text.
using TextPlace = std::uint32_t;
inline constexpr TextPlace kNoText = 0;

// Texts that stay, each of them once: equal ones share a place. Append-only, in blocks that never move.
class TextStore {
public:
    TextStore() { Clear(); }

    TextPlace Keep(std::string_view text);  // an empty text has no place
    std::string_view At(TextPlace place) const;
    void Clear();

    std::size_t BytesUsed() const;

private:
    static constexpr std::size_t kUnit = 8;
    static constexpr std::size_t kBlockUnits = (1u << 20) / kUnit;

    struct Header {
        std::uint32_t size, hash;
    };

    // The places of the texts whose hashes begin alike: open addressing, a power of two, at most three quarters full.
    // A table in many parts grows part by part, so that nobody waits for all of millions of texts.
    struct Part {
        std::vector<TextPlace> table;
        std::size_t count = 0;
    };
    static constexpr int kPartBits = 8, kHashBits = 32;

    Header HeaderAt(TextPlace place) const;
    TextPlace Append(std::string_view text, std::uint32_t hash);
    void Grow(Part& part);

    const char* Bytes(TextPlace place) const
    {
        return blocks_[place / kBlockUnits].get() + place % kBlockUnits * kUnit;
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::array<Part, 1u << kPartBits> parts_;
    std::size_t used_ = 0;   // units of the last block
    std::size_t bytes_ = 0;  // of all blocks
};

}  // namespace folioscope
