#pragma once

#include <cstdint>
#include <string_view>

namespace folioscope {

// The names under which decoded values travel to the renderers.
enum class Key : std::uint16_t {
    NoKey,
#define KEY(name) name,
#include "analysis/elements/element_keys.def"
#undef KEY
    KeyCount
};

enum class Tag : std::uint8_t {
    Int16,
    Int32,
    Float32,
    Float64,
    Text,     // in the list's pool
    Literal,  // a text that outlives the record
    Boolean,  // number 0 or 1
    Byte,
    Sequence,  // a range of the sequence list
};

// A key and its value. Which member holds it goes by the tag.
struct Element {
    Key key = Key::NoKey;
    Tag tag = Tag::Int32;
    std::uint32_t size = 0;  // bytes of a text, entries of a sequence
    union {
        std::int64_t number;
        double real;
        std::uint64_t at;  // place in the pool (text) or in the sequence list
        const char* literal;
    };

    constexpr Element() : number(0) {}
    constexpr Element(Key k, Tag t, std::int64_t n) : key(k), tag(t), number(n) {}

    static constexpr Element Int16(Key key, std::int64_t value) { return {key, Tag::Int16, value}; }
    static constexpr Element Int32(Key key, std::int64_t value) { return {key, Tag::Int32, value}; }
    static constexpr Element Byte(Key key, std::uint8_t value) { return {key, Tag::Byte, value}; }
    static constexpr Element Boolean(Key key, bool value) { return {key, Tag::Boolean, value}; }
    static constexpr Element Float32(Key key, double value) { return Real(key, Tag::Float32, value); }
    static constexpr Element Float64(Key key, double value) { return Real(key, Tag::Float64, value); }
    static constexpr Element Literal(Key key, std::string_view text)
    {
        Element element;
        element.key = key;
        element.tag = Tag::Literal;
        element.size = static_cast<std::uint32_t>(text.size());
        element.literal = text.data();
        return element;
    }

private:
    static constexpr Element Real(Key key, Tag tag, double value)
    {
        Element element;
        element.key = key;
        element.tag = tag;
        element.real = value;
        return element;
    }
};

static_assert(sizeof(Element) == 16);

}  // namespace folioscope
