#pragma once

// The lines of the fields that carry or describe an object's data. Only lines.cpp includes this.

#include "analysis/render/graphics.h"
#include "analysis/render/objects.h"
#include "analysis/render/renderer.h"

namespace folioscope {

// clang-format off
constexpr Word kGeoFormat[] = {{0, L("16 Bit, High-Byte first, Signed integer")}};
constexpr Word kPicturePS[] = {{0, "2-D"}, {1, "3-D"}};
constexpr Word kBCSymWidth[] = {{0, L("Not specified")}};

constexpr LineRow kObjectLines[] = {
    Own(Key::ContFromLastSF,      RenderContFromLastSF),
    Own(Key::ContInNextSF,        RenderContInNextSF),
    Own(Key::ChainingActiveAtEnd, RenderChainingActiveAtEnd),

    {Key::ObjectData,         Line::Count,  L("No. of bytes with object data")},
    {Key::ImageData,          Line::Count,  L("No. of bytes with image data")},
    {Key::FontData,           Line::Count,  L("No. of bytes with font pattern data")},
    {Key::FixedDataText,      Line::Quoted, L("Constant data")},
    {Key::MapX,               Line::Count,  L("Mapping in X direction")},
    {Key::MapY,               Line::Count,  L("Mapping in Y direction")},
    {Key::FillRectangleX,     Line::Count,  L("Size of fill rectangle in X direction")},
    {Key::FillRectangleY,     Line::Count,  L("Size of fill rectangle in Y direction")},
    {Key::BCSymWidth,         Line::Words,  L("Bar code symbol width"), kBCSymWidth, Other::Count},

    {Key::DOSubset,           Line::Plain,  L("Drawing order subset")},
    {Key::GeoFormat,          Line::Words,  L("Used coordinate format"), kGeoFormat, Other::Unknown},
    {Key::PicturePS,          Line::Words,  L("Picture presentation space"), kPicturePS},
    {Key::AllDefault,         Line::Flag,   L("Set all attributes to default values")},
    Own(Key::NormalLineWidth,    RenderNormalLineWidthOfDescriptor),

    {Key::ResetColorTable,    Line::Flag,   L("Replace existing color table")},
    {Key::LCTID,              Line::Plain,  L("color table local ID")},
    {Key::ColorIndex,         Line::Plain,  L("Color index")},
    {Key::ColorCount,         Line::Count,  L("Color values to generate")},
    {Key::StartIndex,         Line::Count,  L("Start index")},
};
// clang-format on

}  // namespace folioscope
