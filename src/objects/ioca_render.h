#pragma once

#include <span>

#include "analysis/render/renderer.h"

namespace folioscope {

// The lines of an image's self-defining fields.
void RenderFields(Renderer& renderer, std::span<const Element> sequence);
const LineIndex& FieldLines();

}  // namespace folioscope
