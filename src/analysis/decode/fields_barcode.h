#pragma once

#include <cstdint>

namespace folioscope {

class clsAFPFunctions;

// Bar codes: the descriptor of a symbol and its data. The layouts are BCOCA's.

void DecodeBDD(clsAFPFunctions&);
void DecodeBDA(clsAFPFunctions&);

// Where the readable line stands: 0 nobody says, 1 below, 2 above. `flags` is the buffer index of the flag byte.
void AddHRIPosition(clsAFPFunctions& afp, std::int32_t flags);
// The ratio of wide to narrow bars: a decimal number whose point follows its first digit.
void AddWideToNarrow(clsAFPFunctions& afp, std::int32_t position);

}  // namespace folioscope
