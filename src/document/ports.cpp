#include "document/ports.h"

namespace folioscope {

DecodePorts DecodersOfDeferredBodies() { return {}; }

}  // namespace folioscope
