#pragma once

#include <cstdint>
#include <span>

namespace folioscope {

// Bytes that decoders read by position. What lies outside reads as 0, so that no length in a file can lead a decoder
// out of the buffer. The record buffer's positions count from 1, an object's from 0.
class ByteView {
public:
    ByteView(std::span<const std::uint8_t> bytes, std::int32_t first) : bytes_(bytes), first_(first) {}

    std::uint8_t At(std::int64_t position) const
    {
        const auto index = static_cast<std::uint64_t>(position - first_);
        return index < bytes_.size() ? bytes_[index] : std::uint8_t{0};
    }

    // Big-endian, 1 to 4 bytes; another length gives 0. Of four bytes the highest bit is dropped, so that the result
    // fits a signed 32-bit number: x'FFFFFFFF' reads as 2,147,483,647.
    std::int32_t Unsigned(std::int64_t position, int length) const
    {
        if (length < 1 || length > 4) return 0;
        std::uint32_t value = length == 4 ? At(position) & 0x7Fu : At(position);
        for (int i = 1; i < length; ++i) value = value << 8 | At(position + i);
        return static_cast<std::int32_t>(value);
    }

    // Big-endian two's complement, 1 to 4 bytes; another length gives 0.
    std::int32_t Signed(std::int64_t position, int length) const
    {
        const std::int32_t value = Unsigned(position, length);
        if (length < 1 || length > 4 || At(position) < 0x80) return value;
        const std::uint32_t above = length == 4 ? 0x80000000u : ~0u << 8 * length;
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) | above);
    }

    // Bit 0 is the highest of the byte at the position, bit 31 the lowest of the fourth. Others are false.
    bool Bit(std::int64_t position, int bit) const
    {
        return bit >= 0 && bit <= 31 && (At(position + bit / 8) & 0x80 >> bit % 8) != 0;
    }

private:
    std::span<const std::uint8_t> bytes_;
    std::int32_t first_;
};

}  // namespace folioscope
