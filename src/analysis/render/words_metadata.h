#pragma once

// The lines of metadata objects (MOCA). Only lines.cpp includes this.

#include "analysis/render/lines.h"

namespace folioscope {

// clang-format off
constexpr LineRow kMetadataLines[] = {
    {Key::MOLen,         Line::Count, L("Length")},
    {Key::MOHeaderLen,   Line::Count, L("Header length")},
    {Key::MOType,        Line::Plain, L("Type")},
    {Key::MOFormat,      Line::Plain, L("Format")},
    {Key::MOCompression, Line::Plain, L("Compression")},
    {Key::MOName,        Line::Plain, L("Name")},
    {Key::MOData,        Line::Bold,  L("Data")},
    {Key::MOHexCode,     Line::Hex,   L("Hex-Codes")},
};
// clang-format on

}  // namespace folioscope
