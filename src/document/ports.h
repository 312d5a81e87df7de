#pragma once

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

// The decoders of the bodies that the run defers: the only place that knows them all.
DecodePorts DecodersOfDeferredBodies();

}  // namespace folioscope
