#pragma once

namespace folioscope {

class clsAFPFunctions;

// The metadata object in ObjectBuffer: its header and its content.
void DecodeMetadata(clsAFPFunctions& afp);

}  // namespace folioscope
