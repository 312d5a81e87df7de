#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines of drawing attributes. Pairs of values share a line, which stands where the second of them comes.

void RenderBoxEdge(Renderer&, const Element&);
void RenderLineWidth(Renderer&, const Element&);
void RenderNormalLineWidth(Renderer&, const Element&);
void RenderNormalLineWidthOfDescriptor(Renderer&, const Element&);  // with the value as it is behind it
void RenderArcParameter(Renderer&, const Element&);
void RenderCharacterCell(Renderer&, const Element&);
void RenderMarkerCell(Renderer&, const Element&);
void RenderPatternReference(Renderer&, const Element&);

void AppendInches(Renderer& renderer, std::string& out, double inches);

}  // namespace folioscope
