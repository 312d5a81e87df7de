#pragma once

#include "objects/items.h"

namespace folioscope {

// Presentation text: control sequences and free text, from FieldPosition to FieldEnd. The sequences are PTOCA's.
void AnalyzeSequences(clsAFPFunctions& afp);

}  // namespace folioscope
