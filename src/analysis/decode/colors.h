#pragma once

#include <cstdint>

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

// Who holds a colour: the sources differ in what a highlight colour says of its coverage.
enum class ColorSource : std::uint8_t { Triplet };

// Buffer indexes of the parts of a colour specification, as text, graphics, images and triplets share it.
struct ColorPlace {
    std::int32_t space;   // the byte that names the colour space
    std::int32_t bits;    // four bit counts
    std::int32_t values;  // a byte a component
    ColorSource source;
};

using AddToList = void (clsAFPFunctions::*)(const Element&);

// The colour space, the bits and steps of its components, their values and what share of the range these are. False:
// the bits leave no range, and the Elements end there.
bool DecodeColor(clsAFPFunctions& afp, ColorPlace place, AddToList add);

}  // namespace folioscope
