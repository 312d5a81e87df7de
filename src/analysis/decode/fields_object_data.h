#pragma once

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Fields that carry or describe the data of an object. Offsets count from the first data byte.

// clang-format off
inline constexpr Row kIID[] = {                        // IM Image Input Descriptor
    b(Key::UnitBaseX,      12),
    b(Key::UnitBaseY,      13),
    u(Key::BasePixelX,     14, 2),
    u(Key::BasePixelY,     16, 2),
    u(Key::ObjectSizeX,    18, 2),
    u(Key::ObjectSizeY,    20, 2),
    u(Key::DefCellSizeX,   28, 2),
    u(Key::DefCellSizeY,   30, 2),
    u(Key::Color,          34, 2),
};
inline constexpr Row kIOC[] = {                        // IM Image Output Control
    u(Key::OriginX,        0, 3),
    u(Key::OriginY,        3, 3),
    u(Key::RotationX,      6, 2),
    u(Key::RotationY,      8, 2),
    u(Key::MapX,           18, 2),
    u(Key::MapY,           20, 2),
};
inline constexpr Row kICP[] = {                        // IM Image Cell Position
    u(Key::OffsetX,        0, 2),
    u(Key::OffsetY,        2, 2),
    u(Key::CellSizeX,      4, 2),
    u(Key::CellSizeY,      6, 2),
    u(Key::FillRectangleX, 8, 2),
    u(Key::FillRectangleY, 10, 2),
};
inline constexpr Row kIDD[] = {                        // Image Data Descriptor
    b(Key::UnitBaseX,      0),
    b(Key::UnitBaseY,      0),                         // sic, one unit base for both axes
    u(Key::BasePixelX,     1, 2),
    u(Key::BasePixelY,     3, 2),
    u(Key::ObjectSizeX,    5, 2),
    u(Key::ObjectSizeY,    7, 2),
};
// clang-format on

void DecodeOCD(clsAFPFunctions&);
void DecodeIRD(clsAFPFunctions&);
void DecodeFNG(clsAFPFunctions&);
void DecodeFDX(clsAFPFunctions&);
void DecodeCAT(clsAFPFunctions&);

}  // namespace folioscope
