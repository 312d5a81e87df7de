#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines of ICC profiles that have a shape of their own.
void RenderIccTag(Renderer&, const Element&);
void RenderIccType(Renderer&, const Element&);

}  // namespace folioscope
