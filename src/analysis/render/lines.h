#pragma once

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
    Custom,  // a line of its own shape
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

// The line of a key; null for a key that no renderer knows, which writes nothing.
const LineRow* LineOf(Key key);

// The label of one of the named colours; Label::None for any other value.
Label ColorName(std::int32_t value);

}  // namespace folioscope
