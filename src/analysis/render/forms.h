#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines of form definitions that have a shape of their own.

void RenderPagePosition(Renderer&, const Element&);
void RenderModification(Renderer&, const Element&);  // MMCValue, by the MMCKeyword before it

}  // namespace folioscope
