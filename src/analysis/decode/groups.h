#pragma once

#include <cstdint>

namespace folioscope {

class clsAFPFunctions;

// Repeating groups of a field. Each walk runs while FieldPosition is below FieldEnd and numbers its groups from 1.

// What a group holds between the keys that open and close it. `start` is the buffer index of its first byte.
using GroupDecoder = void (*)(clsAFPFunctions&, std::int32_t start, std::int32_t length);

// Groups of one size, in bytes; 0 gives one group.
void AnalyzeGroups(clsAFPFunctions& afp, std::int32_t size, GroupDecoder decode);

// Groups that begin with a two-byte length, which counts itself; a length below 2 is the last one.
void AnalyzeLengthGroups(clsAFPFunctions& afp, GroupDecoder decode);
// Groups that begin with a one-byte length, which counts itself; a length of 0 is the last one.
void AnalyzeByteLengthGroups(clsAFPFunctions& afp, GroupDecoder decode);
// Groups that begin with a type and a one-byte length of what follows.
void AnalyzeTypedGroups(clsAFPFunctions& afp, GroupDecoder decode);
// The same as AnalyzeLengthGroups for groups of triplets, which are told without bold.
void AnalyzeTripletGroups(clsAFPFunctions& afp, GroupDecoder decode);
void AnalyzeTripletGroups(clsAFPFunctions& afp);

// One group of the sequence in hand: its number, the length that is told of it, and what it holds. FieldPosition stays.
void AnalyzeSequenceGroup(clsAFPFunctions& afp, int number, std::int32_t length, GroupDecoder decode);

// The triplets of a group from an offset on.
void AnalyzeGroupTriplets(clsAFPFunctions& afp, std::int32_t start, std::int32_t offset, std::int32_t length);

}  // namespace folioscope
