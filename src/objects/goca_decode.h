#pragma once

#include "objects/items.h"

namespace folioscope {

// Graphics: drawing orders, from FieldPosition to FieldEnd. The orders are GOCA's; which form one has goes by its code
// alone.
void AnalyzeOrders(clsAFPFunctions& afp);

}  // namespace folioscope
