#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "analysis/elements/element.h"
#include "base/labels.h"

namespace folioscope {

struct Renderer;

// How the line of a key looks. All but Custom are indentation, label, ": " or ":" and a tab, value, line end.
enum class Line : std::uint8_t {
    Plain,   // the value as it is
    Count,   // with thousands separators
    Flag,    // Yes or No
    Bold,    // a text, bold behind a tab
    Quoted,  // a text between double quotes
    Hex,     // x'...'
    Words,   // the word of the value
    Three,   // with thousands separators, at least three digits
    Plus,    // with thousands separators behind a plus, whatever the sign
    Custom,  // a line of its own shape
    Keep,    // no line: a later one shows it
    Silent,  // no line
};

// What is said of a value that no word fits.
enum class Other : std::uint8_t {
    Unknown,
    Invalid,
    Number,  // as it is
    Count,   // with thousands separators
    Last,    // the last word of the list
    Nothing,
};

struct Word {
    std::int32_t value;
    Wording text;
    Wording more = {};  // right behind it
};

struct LineRow {
    Key key;
    Line line;
    Wording label = {};
    std::span<const Word> words = {};
    Other other = Other::Nothing;
    void (*custom)(Renderer&, const Element&) = nullptr;
};

// A row for a line of its own shape.
constexpr LineRow Own(Key key, void (*custom)(Renderer&, const Element&), Wording label = {})
{
    return {key, Line::Custom, label, {}, Other::Nothing, custom};
}

// Key to row; null for a key without one.
using LineIndex = std::array<const LineRow*, static_cast<std::size_t>(Key::KeyCount)>;

// The index of some tables. A key that two of them claim doesn't compile.
template <class... Tables> constexpr LineIndex IndexOf(const Tables&... tables)
{
    LineIndex index{};
    const auto enter = [&](const auto& lines) {
        for (const LineRow& line : lines) {
            auto& place = index[static_cast<std::size_t>(line.key)];
            if (place != nullptr) throw "two lines for one key";
            place = &line;
        }
    };
    (enter(tables), ...);
    return index;
}

// The line of a key; null for a key that no renderer knows, which writes nothing.
const LineRow* LineOf(Key key);

// The label of one of the named colours; Label::None for any other value.
Label ColorName(std::int32_t value);

}  // namespace folioscope
