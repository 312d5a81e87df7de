#include "support/colour_builder.h"

#include <algorithm>

namespace folioscope::test {

namespace {

constexpr std::size_t kHeaderSize = 164, kEntrySize = 12;

Bytes Padded(Bytes bytes, std::size_t size)
{
    bytes.resize(std::max(bytes.size(), size));
    return bytes;
}

}  // namespace

Bytes Wide(std::string_view ascii)
{
    Bytes bytes;
    for (const char c : ascii) bytes += Bytes(1, '\0') + c;
    return bytes;
}

Bytes Filled(std::string_view ascii, std::size_t size)
{
    Bytes bytes = Wide(ascii);
    while (bytes.size() < size) bytes += Wide("@");
    return bytes;
}

Cmr& Cmr::Header(std::size_t at, const Bytes& bytes)
{
    header_.replace(at, bytes.size(), bytes);
    return *this;
}

Cmr& Cmr::Inside(unsigned id, unsigned type, std::uint32_t count, const Bytes& value)
{
    entries_.push_back({U2(id) + U2(type) + U4(count), value, false});
    return *this;
}

Cmr& Cmr::Behind(unsigned id, unsigned type, std::uint32_t count, const Bytes& value)
{
    entries_.push_back({U2(id) + U2(type) + U4(count), value, true});
    return *this;
}

Cmr& Cmr::Pointing(unsigned id, unsigned type, std::uint32_t count, std::uint32_t offset)
{
    return Inside(id, type, count, U4(offset));
}

Cmr& Cmr::WithoutEnd()
{
    end_ = false;
    return *this;
}

Bytes Cmr::Whole() const
{
    Bytes table, data;
    const std::size_t tableSize = kEntrySize * (entries_.size() + (end_ ? 1 : 0));
    for (const auto& [head, value, behind] : entries_) {
        table += head + (behind ? U4(static_cast<std::uint32_t>(tableSize + data.size())) : Padded(value, 4));
        if (behind) data += value;
    }
    if (end_) table += Raw({0xFF, 0xFF, 0, 5}) + Zeros(8);
    Bytes header = header_;
    const std::size_t size = kHeaderSize + table.size() + data.size();
    if (header.starts_with(Zeros(4))) header.replace(0, 4, U4(static_cast<std::uint32_t>(size)));
    return header + table + data;
}

IccProfile& IccProfile::Header(std::size_t at, const Bytes& bytes)
{
    header_.replace(at, bytes.size(), bytes);
    return *this;
}

IccProfile& IccProfile::Tag(std::string_view signature, const Bytes& data)
{
    tags_.push_back({Bytes(signature), data});
    return *this;
}

IccProfile& IccProfile::Entry(std::string_view signature, std::uint32_t offset, std::uint32_t size)
{
    tags_.push_back({Bytes(signature), {}, offset, size});
    return *this;
}

IccProfile& IccProfile::Count(std::uint32_t count)
{
    count_ = U4(count);
    return *this;
}

Bytes IccProfile::Whole() const
{
    Bytes table, data;
    const std::size_t dataAt = header_.size() + 4 + kEntrySize * tags_.size();
    for (const auto& [signature, bytes, offset, size] : tags_) {
        const bool own = offset != 0 || size != 0;
        table += signature + U4(own ? offset : static_cast<std::uint32_t>(dataAt + data.size()));
        table += U4(own ? size : static_cast<std::uint32_t>(bytes.size()));
        data += bytes + Zeros((4 - bytes.size() % 4) % 4);
    }
    Bytes header = header_;
    if (header.starts_with(Zeros(4))) header.replace(0, 4, U4(static_cast<std::uint32_t>(dataAt + data.size())));
    return header + (count_.empty() ? U4(static_cast<std::uint32_t>(tags_.size())) : count_) + table + data;
}

}  // namespace folioscope::test
