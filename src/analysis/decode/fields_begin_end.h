#pragma once

namespace folioscope {

class clsAFPFunctions;

// The bodies of the Begin and End fields: an 8-byte name in page 500, if the field has data.
void DecodeNamed(clsAFPFunctions&);      // the common form
void DecodeEPS(clsAFPFunctions&);        // End Page Segment
void DecodeNameOnly(clsAFPFunctions&);   // shown in the property text alone: BCP, EMM
void DecodeBRG(clsAFPFunctions&);
void DecodeERG(clsAFPFunctions&);
void DecodeNOP(clsAFPFunctions&);

}  // namespace folioscope
