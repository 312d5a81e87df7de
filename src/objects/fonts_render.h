#pragma once

#include <span>

#include "analysis/render/renderer.h"

namespace folioscope {

// The lines of a font array: FNI, FNM and FNN.
void RenderFontArray(Renderer& renderer, std::span<const Element> array);

}  // namespace folioscope
