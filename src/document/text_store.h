#pragma once

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

    Header HeaderAt(TextPlace place) const;
    TextPlace Append(std::string_view text, std::uint32_t hash);
    void Grow();

    const char* Bytes(TextPlace place) const
    {
        return blocks_[place / kBlockUnits].get() + place % kBlockUnits * kUnit;
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::vector<TextPlace> table_;  // open addressing, a power of two, at most three quarters full
    std::size_t count_ = 0;
    std::size_t used_ = 0;   // units of the last block
    std::size_t bytes_ = 0;  // of all blocks
};

}  // namespace folioscope
