#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Colours: a component's bits wait for their steps, its value for its share of the range.

void KeepForSteps(Renderer&, const Element&);
void RenderSteps(Renderer&, const Element&);
void KeepForShare(Renderer&, const Element&);
void RenderIntensity(Renderer&, const Element&);
void RenderShading(Renderer&, const Element&);
void KeepForValue(Renderer&, const Element&);
void RenderEqualsColorValue(Renderer&, const Element&);

}  // namespace folioscope
