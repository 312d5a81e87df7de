#pragma once

#include <cstdint>
#include <span>

#include "analysis/render/renderer.h"

namespace folioscope {

// The lines of presentation text.
void RenderSequences(Renderer& renderer, std::span<const Element> sequence);
const LineIndex& SequenceLines();

// Of degrees; halves of a quarter turn go to the even one.
OrientationMapping OrientationQuadrants(std::int16_t inlineDegrees, std::int16_t baselineDegrees);

}  // namespace folioscope
