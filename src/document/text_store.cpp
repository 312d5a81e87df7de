#include "document/text_store.h"

#include <cstring>

#include "base/hash.h"

namespace folioscope {

void TextStore::Clear()
{
    blocks_.clear();
    table_.assign(1024, kNoText);
    count_ = bytes_ = 0;
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
    if ((count_ + 1) * 4 > table_.size() * 3) Grow();
    const std::uint32_t hash = HashOf(text);
    std::size_t slot = hash & (table_.size() - 1);
    for (; table_[slot] != kNoText; slot = (slot + 1) & (table_.size() - 1))
        if (HeaderAt(table_[slot]).hash == hash && At(table_[slot]) == text) return table_[slot];
    ++count_;
    return table_[slot] = Append(text, hash);
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

void TextStore::Grow()
{
    std::vector<TextPlace> old(table_.size() * 2, kNoText);
    old.swap(table_);
    for (const TextPlace place : old) {
        if (place == kNoText) continue;
        std::size_t slot = HeaderAt(place).hash & (table_.size() - 1);
        while (table_[slot] != kNoText) slot = (slot + 1) & (table_.size() - 1);
        table_[slot] = place;
    }
}

std::size_t TextStore::BytesUsed() const { return bytes_ + table_.size() * sizeof(TextPlace); }

}  // namespace folioscope
