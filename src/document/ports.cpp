#include "document/ports.h"

#include "objects/fonts_decode.h"
#include "objects/fonts_render.h"

namespace folioscope {

DecodePorts Decoders()
{
    DecodePorts ports;
    ports.FontGroups = DecodeFontGroups;
    return ports;
}

RenderPorts Renderers()
{
    RenderPorts ports;
    ports.FontArray = RenderFontArray;
    return ports;
}

}  // namespace folioscope
