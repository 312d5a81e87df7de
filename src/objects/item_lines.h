#pragma once

// Lines that text, graphics and images share. They begin with the item's name.

#include "analysis/render/renderer.h"

namespace folioscope {

// An item that no table knows: a red line without a label, a message that begins with `origin`, a red path.
void PutUnknownItem(Renderer& renderer, Label fault, std::string_view origin);

// The name and a word, as the whole line.
void PutItemLine(Renderer& renderer, Wording words);
template <Label label> void RenderWordAlone(Renderer& renderer, const Element&) { PutItemLine(renderer, label); }

// With thousands separators.
void AppendGrouped(Renderer& renderer, std::string& out, const Element& element);
void AppendGrouped(Renderer& renderer, std::string& out, std::int64_t value);

}  // namespace folioscope
