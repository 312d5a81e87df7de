#pragma once

#include <span>

#include "analysis/render/renderer.h"

namespace folioscope {

// The lines of drawing orders.
void RenderOrders(Renderer& renderer, std::span<const Element> sequence);
const LineIndex& OrderLines();

}  // namespace folioscope
