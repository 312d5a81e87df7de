#pragma once

// The triplets that a row of keys can't say. Only the triplet walk includes this.

#include "analysis/decode/triplets.h"

namespace folioscope {

void AddUnknownTriplet(clsAFPFunctions& afp, std::uint8_t id);
void AddInvalidTriplet(clsAFPFunctions& afp);
// An old private triplet has the same id and at most three bytes; it counts as padding.
bool IsShortObjectClassification(std::uint8_t id, TripletPlace place);
// The triplets with two names add theirs by themselves.
bool NamesItself(std::uint8_t id);

void DecodeCodePageId(clsAFPFunctions&, TripletPlace);            // x'01'
void DecodeQualifiedName(clsAFPFunctions&, TripletPlace);         // x'02'
void DecodeObjectClassification(clsAFPFunctions&, TripletPlace);  // x'10'
void SummarizeInterchangeSet(clsAFPFunctions&, TripletPlace);     // x'18'
void SummarizeFontSize(clsAFPFunctions&, TripletPlace);           // x'1F'
void DecodeObjectType(clsAFPFunctions&, TripletPlace);            // x'21'
void SummarizeOrientation(clsAFPFunctions&, TripletPlace);        // x'27'
void DecodeByteOffset(clsAFPFunctions&, TripletPlace);            // x'2D'
void DecodeAttributeValue(clsAFPFunctions&, TripletPlace);        // x'36'
void DecodeColorSpecification(clsAFPFunctions&, TripletPlace);    // x'4E'
void DecodeByteExtent(clsAFPFunctions&, TripletPlace);            // x'57'
void DecodeFieldOffset(clsAFPFunctions&, TripletPlace);           // x'58'
void DecodeFieldExtent(clsAFPFunctions&, TripletPlace);           // x'59'
void DecodeObjectOffset(clsAFPFunctions&, TripletPlace);          // x'5A'
void DecodeObjectCount(clsAFPFunctions&, TripletPlace);           // x'5E'
void DecodeDateAndTime(clsAFPFunctions&, TripletPlace);           // x'62'
void DecodeResourceManagement(clsAFPFunctions&, TripletPlace);    // x'63'
void DecodeBarCodeSymbol(clsAFPFunctions&, TripletPlace);         // x'69'
void DecodeMixingRules(clsAFPFunctions&, TripletPlace);           // x'71'
void DecodeUniversalTime(clsAFPFunctions&, TripletPlace);         // x'72'
void DecodeGraphicsDescriptor(clsAFPFunctions&, TripletPlace);    // x'7E'
void DecodeParameterValue(clsAFPFunctions&, TripletPlace);        // x'82'
void DecodeFinishingOperation(clsAFPFunctions&, TripletPlace);    // x'85'
void DecodeFontDescriptor(clsAFPFunctions&, TripletPlace);        // x'8B'
void DecodeLocaleSelector(clsAFPFunctions&, TripletPlace);        // x'8C'

}  // namespace folioscope
