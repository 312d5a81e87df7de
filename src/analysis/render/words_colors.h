#pragma once

// The lines of colours, wherever they stand: in a field, a triplet, or an item of a data object. Only the files that
// index lines include this.

#include "analysis/render/colors.h"
#include "analysis/render/renderer.h"
#include "analysis/render/values.h"

namespace folioscope {

// clang-format off
constexpr Word kHighlightColor[] = {{0, L("Default")}};

constexpr LineRow kColorLines[] = {
    Own(Key::RedBits,            KeepForSteps, L("No. of bits which represent the color Red")),
    Own(Key::GreenBits,          KeepForSteps, L("No. of bits which represent the color Green")),
    Own(Key::BlueBits,           KeepForSteps, L("No. of bits which represent the color Blue")),
    Own(Key::CyanBits,           KeepForSteps, L("No. of bits which represent the color Cyan")),
    Own(Key::MagentaBits,        KeepForSteps, L("No. of bits which represent the color Magenta")),
    Own(Key::YellowBits,         KeepForSteps, L("No. of bits which represent the color Yellow")),
    Own(Key::BlackBits,          KeepForSteps, L("No. of bits which represent the color Black")),
    Own(Key::LumBits,            KeepForSteps, L("No. of bits which represent the Luminance L*")),
    Own(Key::ChromABits,         KeepForSteps, L("No. of bits which represent the Chrominance a*")),
    Own(Key::ChromBBits,         KeepForSteps, L("No. of bits which represent the Chrominance b*")),
    Own(Key::IntenseBits,        KeepForSteps, L("No. of bits which represent the Intensity Y")),
    Own(Key::ChromCbBits,        KeepForSteps, L("No. of bits which represent the Chrominance Cb")),
    Own(Key::ChromCrBits,        KeepForSteps, L("No. of bits which represent the Chrominance Cr")),
    Own(Key::Steps,              RenderSteps, L("Steps")),
    Own(Key::IntensityRed,       KeepForShare, L("Intensity of color Red")),
    Own(Key::IntensityGreen,     KeepForShare, L("Intensity of color Green")),
    Own(Key::IntensityBlue,      KeepForShare, L("Intensity of color Blue")),
    Own(Key::IntensityCyan,      KeepForShare, L("Intensity of color Cyan")),
    Own(Key::IntensityMagenta,   KeepForShare, L("Intensity of color Magenta")),
    Own(Key::IntensityYellow,    KeepForShare, L("Intensity of color Yellow")),
    Own(Key::IntensityBlack,     KeepForShare, L("Intensity of color Black")),
    Own(Key::Intensity,          RenderIntensity, L("Saturation")),
    Own(Key::Shading,            RenderShading, L("Shading")),
    {Key::HighlightColor,     Line::Words, L("Highlight color index"), kHighlightColor, Other::Count},
    Own(Key::Luminance,          KeepForValue, L("Luminance L*")),
    Own(Key::ChrominanceA,       KeepForValue, L("Chrominance a*")),
    Own(Key::ChrominanceB,       KeepForValue, L("Chrominance b*")),
    Own(Key::EqualsColorValue,   RenderEqualsColorValue, L("equals value in")),
    Own(Key::Color,              RenderColor, L("Color")),
};
// clang-format on

}  // namespace folioscope
