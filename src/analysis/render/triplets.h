#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// The group that a triplet makes, and the bar code keys that depend on each other.

void RenderBeginTriplet(Renderer&, const Element&);
void RenderTripletName(Renderer&, const Element&);
void RenderTripletUnknown(Renderer&, const Element&);
void RenderTripletInvalid(Renderer&, const Element&);

void RenderBCType(Renderer&, const Element&);
void RenderBCMod(Renderer&, const Element&);
void RenderBCModWidth(Renderer&, const Element&);
void RenderBCHeightMult(Renderer&, const Element&);
void RenderBCRatio(Renderer&, const Element&);

}  // namespace folioscope
