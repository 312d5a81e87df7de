#pragma once

// The lines of attributes that graphics orders, their defaults and a triplet share. Only the files that index lines
// include this.

#include "analysis/render/graphics.h"
#include "analysis/render/renderer.h"
#include "analysis/render/values.h"

namespace folioscope {

// clang-format off
constexpr Word kBackgroundMix[] = {{5, L("Leave alone (transparent)")}, {-1, L("Default")}};
constexpr Word kCHSID[] = {{0, L("Default")}, {65535, L("All")}};
constexpr Word kCharDirection[] = {
    {0, L("Default")}, {1, L("Left to right")}, {2, L("Top to bottom")}, {3, L("Right to left")},
    {4, L("Bottom to top")},
};
constexpr Word kForegroundMix[] = {{2, L("Overpaint (opaque)")}, {-1, L("Default")}};
constexpr Word kDefaultOrNumber[] = {{0, L("Default")}};
constexpr Word kLineEnd[] = {{0, L("Default")}, {1, L("Flat")}, {2, L("Square")}, {3, L("Round")}};
constexpr Word kLineJoin[] = {{0, L("Default")}, {1, L("Bevel")}, {2, L("Round")}, {3, L("Miter")}};
constexpr Word kLineType[] = {
    {0, L("Default")}, {1, L("Dotted line")}, {2, L("Short dashed line")}, {3, L("Dash-dot line")},
    {4, L("Double dotted line")}, {5, L("Long dashed line")}, {6, L("Dash double-dot line")}, {7, L("Solid line")},
    {8, L("Invisible line")},
};
constexpr Word kMarkerSymbol[] = {
    {0, L("Default")}, {1, L("Cross")}, {2, L("Plus sign")}, {3, L("Empty diamond")}, {4, L("Empty square")},
    {5, L("6-point star")}, {6, L("8-point star")}, {7, L("Filled diamond")}, {8, L("Filled square")},
    {9, L("Filled Circle")}, {10, L("Empty circle")}, {64, L("Blank")},
};
constexpr Word kPatternSymbol[] = {
    {0, L("Default")}, {1, L("Dotted pattern")}, {2, L("Dotted pattern")}, {3, L("Dotted pattern")},
    {4, L("Dotted pattern")}, {5, L("Dotted pattern")}, {6, L("Dotted pattern")}, {7, L("Dotted pattern")},
    {8, L("Dotted pattern")}, {9, L("Vertical lines")}, {10, L("Horizontal lines")},
    {11, L("Diagonal lines (bottom-left to top-right)")}, {12, L("Diagonal lines (bottom-left to top-right)")},
    {13, L("Diagonal lines (top-left to bottom-right)")}, {14, L("Diagonal lines (top-left to bottom-right)")},
    {15, L("No fill")}, {16, L("Solid fill")}, {64, L("Blank")},
};
constexpr Word kPrecision[] = {
    {0, L("Default")}, {1, L("Inaccurate (String)")}, {2, L("Accurate (Character)")}, {3, L("Very accurate")},
};

constexpr LineRow kGraphicsLines[] = {
    {Key::BackgroundMix,      Line::Words, L("Mixing of background colors"), kBackgroundMix, Other::Last},
    {Key::ForegroundMix,      Line::Words, L("Mixing of foreground colors"), kForegroundMix, Other::Last},
    {Key::CHSID,              Line::Words, L("Graphic character set ID"), kCHSID, Other::Number},
    {Key::CharDirection,      Line::Words, L("Character direction"), kCharDirection, Other::Unknown},
    Own(Key::CharRotation,      RenderDegrees, L("Character Rotation")),
    {Key::LineEnd,            Line::Words, L("Line end type"), kLineEnd, Other::Unknown},
    {Key::LineJoin,           Line::Words, L("Line join type"), kLineJoin, Other::Unknown},
    {Key::LineType,           Line::Words, L("Line type"), kLineType, Other::Unknown},
    {Key::MSID,               Line::Words, L("Bullet character set"), kDefaultOrNumber, Other::Number},
    {Key::MarkerSymbol,       Line::Words, L("Bullet"), kMarkerSymbol, Other::Unknown},
    {Key::PatternSymbol,      Line::Words, L("Pattern symbol"), kPatternSymbol, Other::Unknown},
    {Key::Precision,          Line::Words, L("Precision"), kPrecision, Other::Unknown},
    Own(Key::LineWidth,          RenderLineWidth, L("Line width")),
    {Key::BoxEdgeHAxis,       Line::Keep},
    Own(Key::BoxEdgeVAxis,       RenderBoxEdge, L("Rounded corner ellipse length Y axis")),
    Own(Key::MajorX,             RenderArcParameter),
    Own(Key::MinorY,             RenderArcParameter),
    Own(Key::MinorX,             RenderArcParameter),
    Own(Key::MajorY,             RenderArcParameter),
    {Key::CellWidth,          Line::Keep},
    Own(Key::CellHeight,         RenderCharacterCell),
    {Key::MarkerCellWidth,    Line::Keep},
    Own(Key::MarkerCellHeight,   RenderMarkerCell),
    {Key::PatternRefPointX,   Line::Keep},
    Own(Key::PatternRefPointY,   RenderPatternReference),
};
// clang-format on

}  // namespace folioscope
