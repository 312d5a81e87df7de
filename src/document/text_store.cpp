#include "document/text_store.h"

#include <cstring>

#include "base/hash.h"

namespace folioscope {

namespace {

constexpr std::size_t kSmallestPart = 4;  // slots

}  // namespace

void TextStore::Clear()
{
    blocks_.clear();
    for (Part& part : parts_) {
        part.table.assign(kSmallestPart, kNoText);
        part.count = 0;
    }
    bytes_ = 0;
    used_ = kBlockUnits;
}

TextStore::Header TextStore::HeaderAt(TextPlace place) const
{
    Header header;
    std::memcpy(&header, Bytes(place), sizeof header);
    return header;
}

std::string_view TextStore::At(TextPlace place) const
{
    if (place == kNoText) return {};
    return {Bytes(place) + sizeof(Header), HeaderAt(place).size};
}

TextPlace TextStore::Keep(std::string_view text)
{
    if (text.empty()) return kNoText;
    const std::uint32_t hash = HashOf(text);
    Part& part = parts_[hash >> (kHashBits - kPartBits)];
    if ((part.count + 1) * 4 > part.table.size() * 3) Grow(part);
    std::vector<TextPlace>& table = part.table;
    std::size_t slot = hash & (table.size() - 1);
    for (; table[slot] != kNoText; slot = (slot + 1) & (table.size() - 1))
        if (HeaderAt(table[slot]).hash == hash && At(table[slot]) == text) return table[slot];
    ++part.count;
    return table[slot] = Append(text, hash);
}

TextPlace TextStore::Append(std::string_view text, std::uint32_t hash)
{
    const std::size_t units = (sizeof(Header) + text.size() + kUnit - 1) / kUnit;
    if (used_ + units > kBlockUnits) {
        // The first unit of the first block is never given away, since place 0 means no text. A text that fills a block
        // gets its own, and the places it covers beyond stay unused.
        const std::size_t size = (units < kBlockUnits ? kBlockUnits : units + 1) * kUnit;
        blocks_.push_back(std::make_unique_for_overwrite<char[]>(size));
        bytes_ += size;
        used_ = blocks_.size() == 1 ? 1 : 0;
    }
    const auto place = static_cast<TextPlace>((blocks_.size() - 1) * kBlockUnits + used_);
    const Header header = {static_cast<std::uint32_t>(text.size()), hash};
    char* to = blocks_.back().get() + used_ * kUnit;
    std::memcpy(to, &header, sizeof header);
    std::memcpy(to + sizeof header, text.data(), text.size());
    used_ += units;
    return place;
}

void TextStore::Grow(Part& part)
{
    std::vector<TextPlace>& table = part.table;
    std::vector<TextPlace> old(table.size() * 2, kNoText);
    old.swap(table);
    for (const TextPlace place : old) {
        if (place == kNoText) continue;
        std::size_t slot = HeaderAt(place).hash & (table.size() - 1);
        while (table[slot] != kNoText) slot = (slot + 1) & (table.size() - 1);
        table[slot] = place;
    }
}

std::size_t TextStore::BytesUsed() const
{
    std::size_t bytes = bytes_;
    for (const Part& part : parts_) bytes += part.table.size() * sizeof(TextPlace);
    return bytes;
}

}  // namespace folioscope
