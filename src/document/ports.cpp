#include "document/ports.h"

#include "colour/cmr_decode.h"
#include "colour/cmr_render.h"
#include "colour/metadata_decode.h"
#include "objects/fonts_decode.h"
#include "objects/fonts_render.h"
#include "objects/goca_decode.h"
#include "objects/goca_render.h"
#include "objects/ioca_decode.h"
#include "objects/ioca_render.h"
#include "objects/ptoca_decode.h"
#include "objects/ptoca_render.h"

namespace folioscope {

DecodePorts Decoders()
{
    return {.Sequences = AnalyzeSequences,
            .Orders = AnalyzeOrders,
            .Fields = AnalyzeFields,
            .FontGroups = DecodeFontGroups,
            .ColourResource = DecodeColorResource,
            .Metadata = DecodeMetadata};
}

RenderPorts Renderers()
{
    return {.Sequences = RenderSequences,
            .Orders = RenderOrders,
            .Fields = RenderFields,
            .FontArray = RenderFontArray,
            .ColourResource = RenderColorResource};
}

}  // namespace folioscope
