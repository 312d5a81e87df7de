#pragma once

#include <span>

#include "analysis/render/renderer.h"

namespace folioscope {

// The text of a colour resource, from what stands in CMRDataValue. It belongs to another node than the record's.
void RenderColorResource(Renderer& renderer, std::span<const Element> elements);

}  // namespace folioscope
