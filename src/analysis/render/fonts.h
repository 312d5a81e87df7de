#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines of font resources that have a shape of their own.

void RenderRasterDataAlign(Renderer&, const Element&);
void RenderUnderscoreWidth(Renderer&, const Element&);

}  // namespace folioscope
