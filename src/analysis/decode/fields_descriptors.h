#pragma once

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Descriptors, maps and includes. What a row can say is a table here; offsets count from the first data byte.

// clang-format off
inline constexpr Row kPGD[] = {                        // Page Descriptor
    b(Key::UnitBaseX,      0),
    b(Key::UnitBaseY,      1),
    u(Key::PageBaseUnitsX, 2, 2),
    u(Key::PageBaseUnitsY, 4, 2),
    u(Key::PageSizeX,      6, 3),
    u(Key::PageSizeY,      9, 3),
};
inline constexpr Row kPTD1[] = {                       // Presentation Text Descriptor, older format
    b(Key::UnitBaseX,      0),
    b(Key::UnitBaseY,      1),
    u(Key::PageBaseUnitsX, 2, 2),
    u(Key::PageBaseUnitsY, 4, 2),
    u(Key::PageSizeX,      6, 2),
    u(Key::PageSizeY,      8, 2),
};
inline constexpr Row kPTD2[] = {                       // Presentation Text Data Descriptor, newer format
    b(Key::UnitBaseX,      0),
    b(Key::UnitBaseY,      1),
    u(Key::PageBaseUnitsX, 2, 2),
    u(Key::PageBaseUnitsY, 4, 2),
    u(Key::PageSizeX,      6, 3),
    u(Key::PageSizeY,      9, 3),
};
// clang-format on

void DecodeMDD(clsAFPFunctions&);
void DecodeCDD(clsAFPFunctions&);
void DecodeOBP(clsAFPFunctions&);
void DecodeIOB(clsAFPFunctions&);
void DecodeIPO(clsAFPFunctions&);
void DecodeIPS(clsAFPFunctions&);
void DecodeIPG(clsAFPFunctions&);
void DecodeIMM(clsAFPFunctions&);
void DecodeIDM(clsAFPFunctions&);
void DecodeMCF1(clsAFPFunctions&);
void DecodeMSU(clsAFPFunctions&);
void DecodeMMO(clsAFPFunctions&);
void DecodeMPS(clsAFPFunctions&);
void DecodePPO(clsAFPFunctions&);
void DecodeMPO(clsAFPFunctions&);
void DecodeMapGroups(clsAFPFunctions&);  // MDR, MCF-2

}  // namespace folioscope
