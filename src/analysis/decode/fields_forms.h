#pragma once

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Form definitions: what a medium map says of sheets, copies and modifications (MO:DCA). Offsets count from 0, from the
// first data byte.

// clang-format off
inline constexpr Row kPMC[] = {                        // Page Modification Control
    u(Key::ID, 0, 1),
};
inline constexpr Row kPGP1[] = {                       // Page Position, older format
    u(Key::OriginX, 0, 3),
    u(Key::OriginY, 3, 3),
};
// clang-format on

void DecodeMFC(clsAFPFunctions&);
void DecodeMCC(clsAFPFunctions&);
void DecodeMMC(clsAFPFunctions&);
void DecodePFC(clsAFPFunctions&);
void DecodePGP2(clsAFPFunctions&);

}  // namespace folioscope
