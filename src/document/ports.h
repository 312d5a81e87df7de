#pragma once

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/render/renderer.h"

namespace folioscope {

// Who decodes and who renders the data of each architecture: the only place that knows them all.
DecodePorts Decoders();
RenderPorts Renderers();

}  // namespace folioscope
