#pragma once

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

// The character table (FNI) and the pattern table (FNM) of a font, as a font array (FOCA). A font can have thousands of
// characters, so these fields are read when somebody looks, with what the last FNC of the run has left.
void DecodeFontGroups(clsAFPFunctions& afp);

}  // namespace folioscope
