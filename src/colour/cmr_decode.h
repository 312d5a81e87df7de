#pragma once

namespace folioscope {

class clsAFPFunctions;

// The colour management resource in ObjectBuffer: header and tags become the pair CMRDataType and CMRDataValue.
void DecodeColorResource(clsAFPFunctions& afp);

}  // namespace folioscope
