#pragma once

#include <span>
#include <string_view>

#include "analysis/render/renderer.h"

namespace folioscope {

// The line of a key of a colour resource; null for any other key.
const LineRow* ColourLineOf(Key key);

// The word of a value that is a text: a signature, or the hex text of some letters.
struct TextWord {
    std::string_view value;
    Wording word;
};

const Wording* FindWord(std::span<const TextWord> words, std::string_view value);

// A value that no word fits: a red line, a message, a red path to the root.
template <const auto& words> void RenderTextWord(Renderer& renderer, const Element& element)
{
    const Wording label = renderer.OwnLabel();
    const auto value = renderer.TextOf(element);
    if (const Wording* const word = FindWord(words, value))
        renderer.PutLine(label, renderer.Say(*word));
    else
        renderer.PutUnknown(label, value);
}

// Label, word, and the value in brackets.
inline void PutNamed(Renderer& renderer, Wording label, std::string_view word, std::string_view value)
{
    std::string& out = renderer.BeginLine(label);
    out += word;
    out += " (";
    out += value;
    out += ')';
    renderer.EndLine();
}

}  // namespace folioscope
