#include "document/ports.h"

namespace folioscope {

DecodePorts Decoders() { return {}; }

RenderPorts Renderers() { return {}; }

}  // namespace folioscope
