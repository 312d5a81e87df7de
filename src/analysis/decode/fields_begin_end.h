#pragma once

namespace folioscope {

class clsAFPFunctions;

// The Begin and End fields, whose data begin with an 8-byte name, and the fields that stand between them.
void DecodeNamed(clsAFPFunctions&);            // the common form: name, triplets, name in the tree
void DecodeBeginData(clsAFPFunctions&);        // its data begin anew: nothing is left of the item before
void DecodeNamedReserved(clsAFPFunctions&);    // the same with two reserved bytes behind the name: BDT
void DecodeNameOnly(clsAFPFunctions&);         // name, name in the tree
void DecodeNameAndTriplets(clsAFPFunctions&);  // name, triplets
void DecodeNameAlone(clsAFPFunctions&);        // name
void DecodeEPS(clsAFPFunctions&);
void DecodeBRG(clsAFPFunctions&);
void DecodeERG(clsAFPFunctions&);
void DecodeBRS(clsAFPFunctions&);
void DecodeBNG(clsAFPFunctions&);
void DecodeBDM(clsAFPFunctions&);
void DecodeBMM(clsAFPFunctions&);
void DecodeBOC(clsAFPFunctions&);
void DecodeEOC(clsAFPFunctions&);
void DecodeNOP(clsAFPFunctions&);
void DecodeTLE(clsAFPFunctions&);
void DecodeLLE(clsAFPFunctions&);

}  // namespace folioscope
