#pragma once

#include "objects/items.h"

namespace folioscope {

// Images: self-defining fields, from FieldPosition to FieldEnd. The fields are IOCA's. Image data are counted, not
// decoded.
void AnalyzeFields(clsAFPFunctions& afp);

}  // namespace folioscope
