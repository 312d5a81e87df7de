#include "record_builder.h"

#include <cassert>

namespace folioscope::bench {

Body& Body::Number(std::uint64_t value, int size)
{
    for (int i = size - 1; i >= 0; --i) bytes_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    return *this;
}

Body& Body::Zeros(std::size_t count)
{
    bytes_.insert(bytes_.end(), count, 0);
    return *this;
}

Body& Body::Text(std::string_view utf8)
{
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        auto character = static_cast<std::uint8_t>(utf8[i]);
        if (character >= 0xC0 && i + 1 < utf8.size())
            character = static_cast<std::uint8_t>(character << 6 | (utf8[++i] & 0x3F));
        bytes_.push_back(kToEbcdic[character]);
    }
    return *this;
}

Body& Body::Name(std::string_view utf8)
{
    const std::size_t from = bytes_.size();
    Text(utf8);
    bytes_.resize(from + 8, kToEbcdic[' ']);
    return *this;
}

Body& Body::Add(std::span<const std::uint8_t> bytes)
{
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    return *this;
}

Body& Body::Triplet(std::uint8_t id, const Body& content) { return U1(content.Size() + 2).U1(id).Add(content); }

Body& Body::Group(const Body& content) { return U2(content.Size() + 2).Add(content); }

Body& Body::Sequence(std::uint8_t function, const Body& parameters)
{
    return U1(parameters.Size() + 2).U1(function | 1U).Add(parameters);
}

Body FullName(std::uint8_t type, std::string_view name) { return Body().Triplet(0x02, Body{type, 0}.Text(name)); }

void RecordBuilder::Put(FieldName field, std::span<const std::uint8_t> body)
{
    assert(body.size() <= kLongestBody);
    const auto put2 = [this](std::size_t value) {
        bytes_.push_back(static_cast<std::uint8_t>(value >> 8));
        bytes_.push_back(static_cast<std::uint8_t>(value));
    };
    const std::size_t length = body.size() + 8;
    if (packaging_.descriptor > 0) put2(packaging_.descriptor + 1 + length);
    if (packaging_.descriptor > 2) put2(0);
    if (packaging_.control) bytes_.push_back(0x5A);
    put2(length);
    bytes_.push_back(0xD3);
    put2(field.pair);
    bytes_.insert(bytes_.end(), 3, 0);
    bytes_.insert(bytes_.end(), body.begin(), body.end());
    bytes_.insert(bytes_.end(), packaging_.delimiter.begin(), packaging_.delimiter.end());
    ++records_;
}

}  // namespace folioscope::bench
