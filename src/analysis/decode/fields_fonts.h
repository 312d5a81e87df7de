#pragma once

#include <cstdint>

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Font resources (FOCA). Offsets count from 0, from the first data byte.

// What FNC and CPC say of the fields behind them. It holds until the next one of the run.
struct FontState {
    // Font Control
    std::uint8_t FontPatternTech = 0;
    std::int16_t FNIGroupLength = 0;     // bytes
    std::int32_t nameGroupLength = 0;    // bytes of a character name in FNN; 0: not told
    std::int32_t namesLeft = 0;          // character names that the next FNN begins with
    bool nameHeaderPending = false;      // the next FNN is the first one: it begins with the formats of the names
    std::uint8_t outlineNameFormat = 0;  // told by the first FNN

    // Code Page Control
    std::int16_t CPType = 0;
};

// clang-format off
inline constexpr Row kCPD[] = {                        // Code Page Descriptor
    read(Read::Text500, Key::Description, 0, 32),
    u(Key::CharIDLength,    32, 2),
    u(Key::CPIElementCount, 34, 4),
    u(Key::CHSID2,          38, 2),
    u(Key::CDPID2,          40, 2),
    u(Key::EncodingScheme,  42, 2),
};
// clang-format on

void DecodeCFC(clsAFPFunctions&);
void DecodeCFI(clsAFPFunctions&);
void DecodeCPC(clsAFPFunctions&);
void DecodeCPI(clsAFPFunctions&);
void DecodeFND(clsAFPFunctions&);
void DecodeFNC(clsAFPFunctions&);
void DecodeFNO(clsAFPFunctions&);
void DecodeFNP(clsAFPFunctions&);
void DecodeFNN(clsAFPFunctions&);

}  // namespace folioscope
