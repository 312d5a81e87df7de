#pragma once

// The lines of ICC profiles. Only cmr_render.cpp includes this.

#include "colour/cmr_words.h"
#include "colour/icc_render.h"

namespace folioscope {

// clang-format off
constexpr TextWord kDeviceClasses[] = {                // ICC.1, profile/device class signatures
    {"scnr", "Input device profile"},
    {"mntr", "Display device profile"},
    {"prtr", "Output device profile"},
    {"link", "DeviceLink profile"},
    {"spac", "ColorSpace Conversion profile"},
    {"abst", "Abstract profile"},
    {"nmcl", "Named color profile"},
};
constexpr TextWord kPlatforms[] = {                    // ICC.1, primary platforms
    {"APPL", "Apple Computer, Inc."},
    {"MSFT", "Microsoft Corporation"},
    {"SGI ", "Silicon Graphics, Inc."},                // sic, no value keeps its blank
    {"SUNW", "Sun Microsystems, Inc."},
};
constexpr Word kIccSubsets[] = {
    {1,  "Monochrome input profile"},
    {2,  "Monochrome display profile"},
    {3,  "Monochrome output profile"},
    {4,  "Three-component matrix-based input profile"},
    {5,  "Three-component matrix-based display input profile"},
    {6,  "N-component LUT-based input profile"},
    {7,  "N-component LUT-based display profile"},
    {8,  "N-Component LUT-based output profiles"},
    {9,  "ColorSpace conversion profile"},
    {10, "Retired (Abstract profile)"},
};
constexpr Word kMediaAttributes[] = {
    {1, L("Reflective")},
    {2, L("Transparency")},
    {3, L("Glossy")},
    {4, L("Matte")},
    {5, L("Media polarity positive")},
    {6, L("Media polarity negative")},
    {7, L("Color media")},
    {8, L("Black & White")},
};

constexpr LineRow kIccLines[] = {
    {Key::CMRICCSubsetID,  Line::Words,  L("Subset type"),             kIccSubsets,       Other::Unknown},

    {Key::ICCHProfileSize, Line::Count,  L("ICC profile size")},
    {Key::ICCHPrefCMMType, Line::Quoted, L("Preferred CMM Type")},
    {Key::ICCHVersion,     Line::Plain,  L("Profile version number")},
    Own(Key::ICCHDevClass,     RenderTextWord<kDeviceClasses>, L("Profile/Device class")),
    {Key::ICCHCSD,         Line::Quoted, L("Color space of data")},
    {Key::ICCHPCS,         Line::Quoted, L("Profile connection space (PCS)")},
    {Key::ICCHDateTime,    Line::Plain,  L("Creation date and time this profile was created")},
    {Key::ICCHFileSig,     Line::Quoted, L("File signature")},
    Own(Key::ICCHPlatform,     RenderTextWord<kPlatforms>,     L("Primary platform")),
    Own(Key::ICCHEmbedProfile, RenderTrueOrFalse,              L("Embedded Profile")),
    Own(Key::ICCHNoIndepUse,   RenderTrueOrFalse,              L("Profile cannot be used independently")),
    {Key::ICCHDevManu,     Line::Quoted, L("Device manufacturer")},
    {Key::ICCHDevModel,    Line::Quoted, L("Device model")},
    {Key::ICCHMediaAttr,   Line::Words,  L("Device media attributes"), kMediaAttributes,  Other::Unknown},
    {Key::ICCHRendIntent,  Line::Words,  L("Rendering Intent"),        kRenderingIntents, Other::Unknown},
    {Key::ICCHIlluField,   Line::Plain,  L("PCS illuminant")},
    {Key::ICCHCreator,     Line::Quoted, L("Creator")},
    {Key::ICCHMD5ID,       Line::Hex,    L("Profile-ID (MD5)")},

    Own(Key::ICCTagSig,        RenderIccTag,                   L("Tag signature")),
    Own(Key::ICCTagType,       RenderIccType,                  L("Tag type")),
    {Key::ICCDataSize,     Line::Count,  L("Data size")},
};
// clang-format on

}  // namespace folioscope
