#include "document/ports.h"

#include "objects/goca_decode.h"
#include "objects/goca_render.h"
#include "objects/ioca_decode.h"
#include "objects/ioca_render.h"
#include "objects/ptoca_decode.h"
#include "objects/ptoca_render.h"

namespace folioscope {

DecodePorts Decoders() { return {.Sequences = AnalyzeSequences, .Orders = AnalyzeOrders, .Fields = AnalyzeFields}; }

RenderPorts Renderers() { return {.Sequences = RenderSequences, .Orders = RenderOrders, .Fields = RenderFields}; }

}  // namespace folioscope
