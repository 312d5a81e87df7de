#pragma once

#include <cstdint>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/rows.h"

namespace folioscope {

// Who holds a colour. A triplet leaves out the coverage and shading of a highlight colour where they are 0, text,
// graphics and images where their bit counts are 0. The values of a tile's colour have two bytes, all others one.
enum class ColorSource : std::uint8_t { Triplet, Item, Tile };

// Buffer indexes of the parts of a colour specification.
struct ColorPlace {
    std::int32_t space;   // the byte that names the colour space
    std::int32_t bits;    // four bit counts
    std::int32_t values;  // one behind the other
    ColorSource source;
};

// The colour space, the bits and steps of its components, their values and what share of the range these are. False:
// the bits leave no range, and the Elements end there.
bool DecodeColor(clsAFPFunctions& afp, ColorPlace place, AddTo to);

// A component's bit count and the steps that so many bits give.
void AddBits(clsAFPFunctions& afp, Key bits, std::int32_t position, AddTo to);

// Red, green and blue alone: bit counts, and values of one byte each with their shares. False: as above.
void AddRGBBits(clsAFPFunctions& afp, std::int32_t bits);
bool AddRGBValues(clsAFPFunctions& afp, std::int32_t bits, std::int32_t values);

}  // namespace folioscope
