#pragma once

// The lines of colour management resources (CMOCA). Only cmr_render.cpp includes this.

#include "colour/cmr_tables.h"
#include "colour/colour_lines.h"

namespace folioscope {

void RenderColourGroup(Renderer&, const Element&);
void RenderCmrTag(Renderer&, const Element&);
void RenderCmrFieldType(Renderer&, const Element&);
void RenderMedium(Renderer&, const Element&);
void RenderNumber(Renderer&, const Element&);
void RenderTrueOrFalse(Renderer&, const Element&);
void RenderLightness(Renderer&, const Element&);  // CIELab L*
void RenderChroma(Renderer&, const Element&);     // CIELab a*, b*
void RenderColorant(Renderer&, const Element&);

// The hex text of letters in UTF-16BE.
// clang-format off
constexpr TextWord kCmrTypes[] = {
    {"00 48 00 54", L("Halftone")},
    {"00 54 00 43", L("Tone Transfer Curve")},
    {"00 43 00 43", L("Color Conversion")},
    {"00 4C 00 4B", L("Link Color Conversion")},
    {"00 49 00 58", L("Indexed")},
    {"00 54 00 52", L("Trapping")},
    {"00 44 00 4C", L("ICC DeviceLink")},
};
constexpr TextWord kMediumColors[] = {
    {"00 6E 00 6F 00 63", L("transparent (no color)")},
    {"00 77 00 68 00 74", L("white")},
    {"00 70 00 6E 00 6B", L("pink")},
    {"00 79 00 6C 00 77", L("yellow")},
    {"00 62 00 6C 00 75", L("blue")},
    {"00 67 00 72 00 6E", L("green")},
    {"00 62 00 75 00 66", L("buff")},
    {"00 67 00 64 00 72", L("goldenrod")},
    {"00 67 00 72 00 79", L("red")},                   // sic, the letters gry
    {"00 72 00 65 00 64", L("gray")},                  // sic, the letters red
    {"00 69 00 76 00 79", L("ivory")},
    {"00 6F 00 72 00 67", L("orange")},
    {"00 40 00 40 00 40", L("Not specified")},
};
constexpr TextWord kMediumFinishes[] = {
    {"00 6E 00 6F", L("none")},
    {"00 67 00 6C", L("glossy")},
    {"00 68 00 67", L("high-gloss")},
    {"00 73 00 67", L("semi-gloss")},
    {"00 73 00 74", L("satin")},
    {"00 6D 00 74", L("matte")},
    {"00 63 00 74", L("coated")},
    {"00 74 00 72", L("treated")},
    {"00 63 00 6D", L("commodity")},
    {"00 6E 00 70", L("newsprint")},
    {"00 40 00 40", L("Not specified")},
};
constexpr Word kHalftoneSubsets[] = {
    {1, "Bilevel Point-Operation Halftone"},
    {2, "Multilevel Point-Operation Halftone"},
    {3, "Bilevel Error Diffusion Halftone"},
    {4, "Multilevel Error Diffusion Halftone"},
};
constexpr Word kCurveSubsets[]      = {{1, "Array"}, {2, "Identity"}};
constexpr Word kLinkSubsets[] = {
    {1, "LinkColorConversion LUT"},
    {2, "LinkColorConversion Identity"},
    {3, "ICC DeviceLink Profile"},
};
constexpr Word kIndexedSubsets[]    = {{1, "Multi-output color spaces"}};
constexpr Word kRenderingIntents[] = {
    {0, "Perceptual"},
    {1, "Media-Relative Colorimetric"},
    {2, "Saturation"},
    {3, "ICC-Absolute Colorimetric"},
};
constexpr Word kRasterDirections[]  = {{1, "Normal Raster"}, {2, "Serpentine Raster"}};
constexpr Word kBoundaries[]        = {{1, "None"}, {2, "Zero Boundary"}, {3, "Reflect"}, {4, "Periodic"}};
constexpr Word kCurveLengths[]      = {{1, "256 (1-byte each)"}, {2, "65536 (2-byte each)"}};
constexpr Word kPrecisions[]        = {{1, L("1-byte unsigned binary")}, {2, L("2-byte unsigned binary")}};

constexpr LineRow kCmrLines[] = {
    Own(Key::BeginRepetition,     RenderColourGroup),
    Own(Key::EndRepetition,       RenderEndOfGroup),

    {Key::CMRSize,            Line::Count,  L("CMR size")},
    {Key::CMRAlias,           Line::Quoted, L("CMR alias name")},
    Own(Key::CMRType,             RenderTextWord<kCmrTypes>, L("CMR type")),
    {Key::CMRVersion,         Line::Plain,  L("CMR version")},
    {Key::CMRManufac,         Line::Quoted, L("Printer manufacturer")},
    {Key::CMRDevType,         Line::Quoted, L("Printer device type")},
    {Key::CMRDevModel,        Line::Quoted, L("Printer model")},
    {Key::CMRMBrightness,     Line::Quoted, L("Medium Brightness")},
    Own(Key::CMRMColor,           RenderMedium,              L("Medium color")),
    Own(Key::CMRMFinish,          RenderMedium,              L("Medium finish")),
    {Key::CMRMWeight,         Line::Quoted, L("Medium paper weight (g/m²)")},
    {Key::CMRProp1,           Line::Quoted, L("Property specific field 1")},
    {Key::CMRProp2,           Line::Quoted, L("Property specific field 2")},
    {Key::CMRProp3,           Line::Quoted, L("Property specific field 3")},
    {Key::CMRProp4,           Line::Quoted, L("Property specific field 4")},
    {Key::CMRProp5,           Line::Quoted, L("Property specific field 5")},

    Own(Key::CMRTag,              RenderCmrTag,              L("CMR tag")),
    Own(Key::CMRFieldType,        RenderCmrFieldType,        L("Field type")),
    {Key::CMRCount,           Line::Count,  L("Count")},
    Own(Key::CMRValueNum,         RenderNumber,              L("Value")),
    {Key::CMRValueHex,        Line::Hex,    L("Value")},
    {Key::CMRValueStr,        Line::Quoted, L("Value")},
    {Key::TimeStamp,          Line::Plain,  L("Time stamp")},
    {Key::CMRHTSubsetID,      Line::Words,  L("Subset type"),                    kHalftoneSubsets,  Other::Unknown},
    {Key::CMRTTCSubsetID,     Line::Words,  L("Subset type"),                    kCurveSubsets,     Other::Unknown},
    {Key::CMRLCCSubsetID,     Line::Words,  L("Subset type"),                    kLinkSubsets,      Other::Unknown},
    {Key::CMRIndSubsetID,     Line::Words,  L("Subset type"),                    kIndexedSubsets,   Other::Unknown},
    {Key::CMRRenderingIntent, Line::Words,  L("Rendering Intent"),               kRenderingIntents, Other::Unknown},
    {Key::CMRRasterDir,       Line::Words,  L("Raster Direction"),               kRasterDirections, Other::Unknown},
    {Key::CMRBoundaryCond,    Line::Words,  L("Boundary Condition"),             kBoundaries,       Other::Unknown},
    {Key::CMRTTCurveLen,      Line::Words,  L("Entries in tone transfer curve"), kCurveLengths,     Other::Unknown},

    {Key::LUTNoCompICS,       Line::Count,  L("Number of components of input color space")},
    {Key::LUTNoCompOCS,       Line::Count,  L("Number of components of output color space")},
    {Key::LUTGridPoints,      Line::Hex,    L("Number of grid points per component of input color space")},
    {Key::LUTPrecision,       Line::Words,  L("Precision of data elements"),     kPrecisions,       Other::Unknown},
    Own(Key::LUTMediaRelative,    RenderTrueOrFalse, L("Media-relative colorimetric")),
    Own(Key::LUTSaturation,       RenderTrueOrFalse, L("Saturation")),
    Own(Key::LUTICCAbsolute,      RenderTrueOrFalse, L("ICC-absolute colorimetric")),
    {Key::LUTData,            Line::Count,  L("Number of LUT data")},

    {Key::CPGIndexedColorVal, Line::Count,  L("Indexed Color Value")},
    Own(Key::CPGCIELabValL,       RenderLightness,   L("CIELab L* component")),
    Own(Key::CPGCIELabVala,       RenderChroma,      L("CIELab a* component")),
    Own(Key::CPGCIELabValb,       RenderChroma,      L("CIELab b* component")),
    Own(Key::CPGComponentGray,    RenderColorant,    L("Intensity of gray")),
    Own(Key::CPGComponentCyan,    RenderColorant,    L("Intensity of cyan")),
    Own(Key::CPGComponentMagenta, RenderColorant,    L("Intensity of magenta")),
    Own(Key::CPGComponentYellow,  RenderColorant,    L("Intensity of yellow")),
    Own(Key::CPGComponentBlack,   RenderColorant,    L("Intensity of black")),
    Own(Key::CPGComponentRed,     RenderColorant,    L("Intensity of red")),
    Own(Key::CPGComponentGreen,   RenderColorant,    L("Intensity of green")),
    Own(Key::CPGComponentBlue,    RenderColorant,    L("Intensity of blue")),
    Own(Key::CPGComponent1,       RenderColorant,    L("Intensity of colorant 1")),
    Own(Key::CPGComponent2,       RenderColorant,    L("Intensity of colorant 2")),
    Own(Key::CPGComponent3,       RenderColorant,    L("Intensity of colorant 3")),
    Own(Key::CPGComponent4,       RenderColorant,    L("Intensity of colorant 4")),
    Own(Key::CPGComponent5,       RenderColorant,    L("Intensity of colorant 5")),
    Own(Key::CPGComponent6,       RenderColorant,    L("Intensity of colorant 6")),
    Own(Key::CPGComponent7,       RenderColorant,    L("Intensity of colorant 7")),
    Own(Key::CPGComponent8,       RenderColorant,    L("Intensity of colorant 8")),
    Own(Key::CPGComponent9,       RenderColorant,    L("Intensity of colorant 9")),
    Own(Key::CPGComponent10,      RenderColorant,    L("Intensity of colorant 10")),
    Own(Key::CPGComponent11,      RenderColorant,    L("Intensity of colorant 11")),
    Own(Key::CPGComponent12,      RenderColorant,    L("Intensity of colorant 12")),
};
// clang-format on

}  // namespace folioscope
