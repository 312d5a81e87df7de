#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines that tell how the data of a field hang together with those of its neighbours.
void RenderContFromLastSF(Renderer&, const Element&);
void RenderContInNextSF(Renderer&, const Element&);
void RenderChainingActiveAtEnd(Renderer&, const Element&);

}  // namespace folioscope
