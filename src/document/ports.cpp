#include "document/ports.h"

#include "colour/cmr_decode.h"
#include "colour/cmr_render.h"
#include "colour/metadata_decode.h"

namespace folioscope {

DecodePorts Decoders() { return {.ColourResource = DecodeColorResource, .Metadata = DecodeMetadata}; }

RenderPorts Renderers() { return {.ColourResource = RenderColorResource}; }

}  // namespace folioscope
