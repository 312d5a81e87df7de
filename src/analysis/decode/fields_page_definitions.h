#pragma once

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Page definitions: how line data become pages. Offsets count from 0, from the first data byte.

// clang-format off
inline constexpr Row kFDS[] = {                        // Fixed Data Text Size
    u(Key::FixedDataSize, 0, 2),
};
inline constexpr Row kLNC[] = {                        // Line Descriptor Count
    u(Key::LNDCount, 0, 2),
};
// clang-format on

void DecodeCCP(clsAFPFunctions&);
void DecodeLND(clsAFPFunctions&);
void DecodeRCD(clsAFPFunctions&);
void DecodeXMD(clsAFPFunctions&);

}  // namespace folioscope
