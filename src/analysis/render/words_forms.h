#pragma once

// The lines of form definitions and page definitions. Only lines.cpp includes this.

#include "analysis/render/forms.h"
#include "analysis/render/renderer.h"
#include "analysis/render/values.h"

namespace folioscope {

// clang-format off
constexpr Word kPMCOrigin[] = {{0, L("page")}, {1, L("partition")}};
constexpr Word kDataLength[] = {{65'535, L("Place all remaining bytes")}};

constexpr LineRow kFormLines[] = {
    Own(Key::NoOp,                   RenderLabelAlone, L("This structured field has to be ignored!")),
    {Key::MMCKeyword,                Line::Keep},
    Own(Key::MMCValue,               RenderModification),
    {Key::FirstCopy,                 Line::Plain,  L("Number of the first copy")},
    {Key::LastCopy,                  Line::Plain,  L("Number of the last copy")},
    Own(Key::PagePosition,           RenderPagePosition, L("Page position")),
    {Key::PresentVariableData,       Line::Flag,   L("Print variable page data to partition")},
    {Key::PresentPMCOverlays,        Line::Flag,   L("Print overlays specified in the PMC structured field")},
    {Key::PMCOrigin,                 Line::Words,  L("Place overlays using the origin of the"), kPMCOrigin},

    // Conditional processing
    {Key::Condition,                 Line::Plain,  L("Condition no.")},
    {Key::NextCondition,             Line::Plain,  L("Next condition no.")},
    {Key::CCPBeforeSP,               Line::Flag,   L("Take action before subpage boundary")},
    {Key::CCPAfterSP,                Line::Flag,   L("Take action after subpage boundary")},
    {Key::CCPSpacing,                Line::Flag,   L("Apply spacing")},
    {Key::RepeatCount,               Line::Silent},                    // the groups can be counted
    {Key::RepeatLength,              Line::Count,  L("Length of each repeating group")},
    {Key::CompLength,                Line::Count,  L("Length of comparison string")},
    {Key::MMName,                    Line::Quoted, L("Medium Map Name")},
    {Key::DMName,                    Line::Quoted, L("Data Map Name")},
    {Key::CompString,                Line::Quoted, L("Comparison string")},

    // Line, record and XML descriptors
    {Key::FixedDataSize,             Line::Count,  L("No. of bytes in following FDX structured fields")},
    {Key::LNDCount,                  Line::Count,  L("No. of following LND structured fields")},
    {Key::NextLNDSkip,               Line::Plain,  L("Next LND if skipping channel code detected")},
    {Key::NextLNDSpace,              Line::Plain,  L("Next LND if spacing channel code detected")},
    {Key::NextLNDReuse,              Line::Plain,  L("Next LND when reusing the same data")},
    {Key::LNDFlagsBaseline,          Line::Flag,   L("Set new writing position Y axis")},
    {Key::LNDFlagsRelBaseline,       Line::Flag,   L("Move writing position Y axis")},
    {Key::NewInlinePos,              Line::Count,  L("New writing position X axis")},
    {Key::NewBaselinePos,            Line::Count,  L("New writing position Y axis")},
    {Key::LNDFlagsTextColor,         Line::Flag,   L("Set text color")},
    {Key::LNDFlagsCompTRC,           Line::Flag,   L("Use small Font table")},
    {Key::FixedTextStart,            Line::Count,  L("Use fixed text (FDX) beginning with offset")},
    {Key::FixedTextLength,           Line::Count,  L("No. of fixed text bytes to use")},
    {Key::DataStart,                 Line::Count,  L("Use variable data beginning with offset")},
    {Key::DataLength,                Line::Words,  L("No. of variable data bytes to use"), kDataLength, Other::Count},
    {Key::CCPID,                     Line::Plain,  L("Use Conditional Processing (CCP) with ID")},
    {Key::NextLNDCond,               Line::Plain,  L("Next LND when using conditional processing")},
    {Key::ChannelCode,               Line::Plain,  L("Active on channel code")},
    {Key::SubpageID,                 Line::Plain,  L("Subpage ID")},
    {Key::LNDFlagsROI,               Line::Flag,   L("Include resource object")},
    {Key::SuppToken,                 Line::Quoted, L("Suppression token name")},
    {Key::Record,                    Line::Plain,  L("Record")},
    {Key::CondRCD,                   Line::Plain,  L("Concatenated with Conditional-RCD")},
    {Key::RCDPageNo,                 Line::Flag,   L("Print page number")},
    {Key::ResetPageNo,               Line::Flag,   L("Reset page number")},
    {Key::NewPageNo,                 Line::Count,  L("New page number")},
    {Key::FieldNo,                   Line::Count,  L("Field number")},
    {Key::AdBIncrement,              Line::Count,  L("Additional baseline increment")},
    {Key::XMLFlagGenInlinePos,       Line::Flag,   L("Generate inline position")},
    {Key::XMLFlagGenBaselinePos,     Line::Flag,   L("Generate baseline position")},
    {Key::XMLFlagGenFontChange,      Line::Flag,   L("Generate font change")},
    {Key::XMLFlagGenSup,             Line::Flag,   L("Generate suppression")},
    {Key::XMLFlagFieldXMD,           Line::Flag,   L("Field XMD")},
    {Key::XMLFlagUseFixedData,       Line::Flag,   L("Use fixed data")},
    {Key::XMLFlagAttrXMD,            Line::Flag,   L("Attribute XMD")},
    {Key::XMLFlagCondXMD,            Line::Flag,   L("Conditional Processing XMD")},
    {Key::XMLFlagRelInlinePos,       Line::Flag,   L("Relative inline position")},
    {Key::XMLFlagRelBaselinePos,     Line::Flag,   L("Relative baseline position")},
    {Key::XMLFlagNewPage,            Line::Flag,   L("New page")},
    {Key::XMLFlagPrintPageNo,        Line::Flag,   L("Print page number")},
    {Key::XMLFlagResetPageNo,        Line::Flag,   L("Reset page number")},
    {Key::XMLFlagGroupInd,           Line::Flag,   L("Group indicator")},
    {Key::XMLFlagFieldDelimSize,     Line::Flag,   L("Field delimiter size")},
    {Key::XMLFlagUseStartTag,        Line::Flag,   L("Use start tag")},
    {Key::XMLFlagContinued,          Line::Flag,   L("Header/Trailer continued")},
    {Key::FieldXMD,                  Line::Plain,  L("XMD Field Pointer")},
    {Key::CondXMD,                   Line::Plain,  L("Concatenated with conditional XMD")},
};
// clang-format on

}  // namespace folioscope
