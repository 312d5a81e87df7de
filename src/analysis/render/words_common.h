#pragma once

// The lines of the keys that all fields share. Only lines.cpp includes this.

#include "analysis/render/renderer.h"
#include "analysis/render/units.h"

namespace folioscope {

// clang-format off
constexpr LineRow kCommonLines[] = {
    Own(Key::NodeText,           RenderNodeText),
    Own(Key::SFName,             RenderSFName),
    Own(Key::SFStart,            RenderSFStart),
    Own(Key::SFLength,           RenderSFLength),
    Own(Key::Name,               RenderName,               L("Name")),
    Own(Key::ShowResName,        RenderShowResName),
    Own(Key::HexCode,            RenderHexCode,            L("Hex-Codes")),
    Own(Key::Unknown,            RenderUnknown,            L("Structured Field")),
    Own(Key::Unread,             RenderUnread),
    Own(Key::BeginRepetition,    RenderBeginRepetition,    L("Element")),
    Own(Key::EndRepetition,      RenderEndOfGroup),
    Own(Key::BeginRepetitionTRP, RenderBeginRepetitionTRP, L("Element")),
    Own(Key::EndRepetitionTRP,   RenderEndOfGroup),
    Own(Key::BeginColor,         RenderBeginColor,         L("Entry")),
    Own(Key::EndColor,           RenderEndOfGroup),

    {Key::NOPContent,            Line::Bold,               L("Content")},

    Own(Key::UnitBaseX,          RenderUnitBase,           L("Base unit X axis")),
    Own(Key::UnitBaseY,          RenderUnitBase,           L("Base unit Y axis")),
    Own(Key::ShapeUnitBaseX,     RenderShapeUnitBase,      L("Outline base unit X axis")),
    Own(Key::ShapeUnitBaseY,     RenderShapeUnitBase,      L("Outline base unit Y axis")),
    Own(Key::PageBaseUnitsX,     WithUnits<RenderResolution, &UnitState::PageUnitsX>,   L("Units per unit base X axis")),
    Own(Key::PageBaseUnitsY,     WithUnits<RenderResolution, &UnitState::PageUnitsY>,   L("Units per unit base Y axis")),
    Own(Key::ObjectBaseUnitsX,   WithUnits<RenderResolution, &UnitState::ObjectUnitsX>, L("Units per unit base X axis")),
    Own(Key::ObjectBaseUnitsY,   WithUnits<RenderResolution, &UnitState::ObjectUnitsY>, L("Units per unit base Y axis")),
    Own(Key::BasePixelX,         WithUnits<RenderResolution, &UnitState::ObjectUnitsX>, L("Image points per unit base X axis")),
    Own(Key::BasePixelY,         WithUnits<RenderResolution, &UnitState::ObjectUnitsY>, L("Image points per unit base Y axis")),
    Own(Key::ShapeUnitsX,        WithUnits<RenderResolution, &UnitState::ObjectUnitsX>, L("Units per outline unit base X axis")),
    Own(Key::ShapeUnitsY,        WithUnits<RenderResolution, &UnitState::ObjectUnitsY>, L("Units per outline unit base Y axis")),
    Own(Key::PageSizeX,          WithUnits<RenderSize, &UnitState::PageUnitsX>,         L("Size in X direction")),
    Own(Key::PageSizeY,          WithUnits<RenderSize, &UnitState::PageUnitsY>,         L("Size in Y direction")),
    Own(Key::ObjectSizeX,        WithUnits<RenderSize, &UnitState::ObjectUnitsX>,       L("Size in X direction")),
    Own(Key::ObjectSizeY,        WithUnits<RenderSize, &UnitState::ObjectUnitsY>,       L("Size in Y direction")),
    Own(Key::CellSizeX,          RenderCellSize,           L("Image cell size in X direction")),
    Own(Key::CellSizeY,          RenderCellSize,           L("Image cell size in Y direction")),
    Own(Key::DefCellSizeX,       RenderCellSize,           L("Default image cell size in X direction")),
    Own(Key::DefCellSizeY,       RenderCellSize,           L("Default image cell size in Y direction")),
    Own(Key::OriginX,            WithUnits<RenderOrigin, &UnitState::PageUnitsX>,       L("Origin X axis")),
    Own(Key::OriginY,            WithUnits<RenderOrigin, &UnitState::PageUnitsY>,       L("Origin Y axis")),
    Own(Key::ContentOriginX,     WithUnits<RenderOrigin, &UnitState::ObjectUnitsX>,     L("Origin of contents X axis")),
    Own(Key::ContentOriginY,     WithUnits<RenderOrigin, &UnitState::ObjectUnitsY>,     L("Origin of contents Y axis")),
    Own(Key::LeftMargin,         WithUnits<RenderMargin, &UnitState::PageUnitsX>,       L("Left margin")),
    Own(Key::TopMargin,          WithUnits<RenderMargin, &UnitState::PageUnitsY>,       L("Top margin")),
    Own(Key::RightMargin,        WithUnits<RenderMargin, &UnitState::PageUnitsX>,       L("Right margin")),
    Own(Key::BottomMargin,       WithUnits<RenderMargin, &UnitState::PageUnitsY>,       L("Bottom margin")),
    Own(Key::RotationX,          RenderRotation,           L("Rotation X axis (clockwise)")),
    Own(Key::RotationY,          RenderRotation,           L("Rotation Y axis (clockwise)")),
    Own(Key::ContentRotationY,   RenderRotation,           L("Rotation Y axis (contents)")),

    // Kept for whoever reads the Elements; the run tells of the introducer's extension and padding itself.
    {Key::FullSF,           Line::Silent},
    {Key::SFIExt,           Line::Silent},
    {Key::SFIExtText,       Line::Silent},
    {Key::Padding,          Line::Silent},
    {Key::Length,           Line::Silent},
    {Key::FileSize,         Line::Silent},
    {Key::RDW,              Line::Silent},
    {Key::FiveAByte,        Line::Silent},
    {Key::Linefeed,         Line::Silent},
    {Key::ErrorNumber,      Line::Silent},
    {Key::ErrorDescription, Line::Silent},

    // The value's half carries the same range, and is told by its own renderer.
    {Key::FontArrayType,     Line::Silent},
    Own(Key::FontArrayValue, RenderThrough<&RenderPorts::FontArray>),
    {Key::ArrayElementType,  Line::Silent},
    Own(Key::ArrayElementValue, RenderThrough<&RenderPorts::Sequences>),
    {Key::OrderElementType,  Line::Silent},
    Own(Key::OrderElementValue, RenderThrough<&RenderPorts::Orders>),
    {Key::SDFElementType,    Line::Silent},
    Own(Key::SDFElementValue, RenderThrough<&RenderPorts::Fields>),
    {Key::CMRDataType,       Line::Silent},
    Own(Key::CMRDataValue,   RenderThrough<&RenderPorts::ColourResource>),
};
// clang-format on

}  // namespace folioscope
