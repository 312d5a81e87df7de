#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines of values that are computed, put together or shown in their own way.

void RenderTextOrNotSpecified(Renderer&, const Element&);
void RenderTwoWords(Renderer&, const Element&);         // Encrypted, Overprint
void RenderImageResolution(Renderer&, const Element&);  // Resolution
void RenderGlobalId(Renderer&, const Element&);
void RenderPoints(Renderer&, const Element&);  // held in inches
void RenderMovement(Renderer&, const Element&);
void RenderDegrees(Renderer&, const Element&);
void RenderColor(Renderer&, const Element&);
void RenderLabelAlone(Renderer&, const Element&);
void RenderOIDType(Renderer&, const Element&);
void RenderHyperlink(Renderer&, const Element&);
void RenderRadius(Renderer&, const Element&);

}  // namespace folioscope
