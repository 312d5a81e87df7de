#pragma once

#include <cstdint>

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Graphics Data Descriptor: what a drawing is and which values hold where its orders say nothing. The layouts are
// GOCA's.
void DecodeGDD(clsAFPFunctions&);

// The direction of characters as an angle: the point (X, Y) at a buffer index, two signed bytes each. A point that lies
// on neither axis, or on one that isn't told, adds nothing.
void AddCharRotation(clsAFPFunctions& afp, std::int32_t position);

}  // namespace folioscope
