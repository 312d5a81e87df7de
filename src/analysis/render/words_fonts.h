#pragma once

// The lines of font resources. Only lines.cpp includes this.

#include "analysis/render/fonts.h"
#include "analysis/render/renderer.h"

namespace folioscope {

// clang-format off
constexpr Word kIBMGCGIDFormat[] = {{2, "EBCDIC"}};

constexpr LineRow kFontLines[] = {
    // Coded fonts and code pages
    {Key::CFIElementCount,    Line::Plain, L("No. of elements in the CFI structured field")},
    {Key::DefaultCharID,      Line::Plain, L("Default character ID")},
    {Key::CharInvalid,        Line::Flag,  L("Character is an invalid character")},
    {Key::Charnopres,         Line::Flag,  L("Character is not for presentation")},
    {Key::Charnoincrem,       Line::Flag,  L("Character has length 0")},
    {Key::SpaceSection,       Line::Plain, L("Space character section ID")},
    {Key::SpaceCode,          Line::Hex,   L("Space character code point")},
    {Key::CharID,             Line::Bold,  L("Character ID")},
    {Key::CharCode,           Line::Hex,   L("AFP Character code")},
    {Key::UnicodeCharCode,    Line::Hex,   L("Unicode Character Code")},
    {Key::Description,        Line::Bold,  L("Description")},
    {Key::CharIDLength,       Line::Count, L("Character ID length")},
    {Key::CPIElementCount,    Line::Count, L("No. Of elements in the CPI structured field")},

    // Character sets
    {Key::FontExtension,      Line::Flag,  L("This font extends an already existing font")},
    {Key::MonoSpaced,         Line::Flag,  L("All characters have a fixed length")},
    {Key::CharBoxWidth,       Line::Count, L("Maximum character box width")},
    {Key::CharBoxHeight,      Line::Count, L("Maximum character box height")},
    {Key::FNOElementLength,   Line::Count, L("No. of bytes in each FNO element")},
    {Key::FNIElementLength,   Line::Count, L("No. of bytes in each FNI element")},
    Own(Key::RasterDataAlign, RenderRasterDataAlign, L("Data boundaries for raster patterns, all")),
    {Key::RasterDataCount,    Line::Count, L("No. of bytes of raster pattern in FNG-SF's")},
    {Key::FNPElementLength,   Line::Count, L("No. of bytes in each FNP element")},
    {Key::FNMElementLength,   Line::Count, L("No. of bytes in each FNM element")},
    {Key::OutlineDataCount,   Line::Count, L("No. of bytes of outline data in FNG-SF's")},
    {Key::FNNElementLength,   Line::Count, L("No. of bytes in each FNN element")},
    {Key::FNNDataCount,       Line::Count, L("No. of bytes in the following FNN structured fields")},
    {Key::FNNIBMName,         Line::Count, L("No. of IBM character names mapped to outline fonts")},
    {Key::FontDesignClass,    Line::Plain, L("ISO design specification class")},
    {Key::SpaceIncrement,     Line::Count, L("Space character increment")},
    {Key::MaxBaselineExtend,  Line::Count, L("Max. baseline extent")},
    {Key::FNIIndex,           Line::Count, L("FNI structured field containing accompanying data")},
    {Key::EmSpaceInc,         Line::Count, L("Em-space increment")},
    {Key::FigureSpace,        Line::Count, L("Figure and numerals space width")},
    {Key::NomCharIncrement,   Line::Count, L("Nominal character increment used with outline fonts")},
    {Key::DefaultBaselineInc, Line::Count, L("Default baseline increment (PELS)")},
    {Key::LowerX,             Line::Count, L("Nominal height of lowercase characters")},
    {Key::CapitalM,           Line::Count, L("Nominal height of uppercase characters")},
    {Key::MaxAscender,        Line::Count, L("Maximum height baseline to character upper edges")},
    {Key::MaxDescender,       Line::Count, L("Maximum height baseline to character lower edges")},
    Own(Key::UnderscoreWidth, RenderUnderscoreWidth, L("Underscore width")),
    {Key::UnderscorePos,      Line::Count, L("Extent of the underscore to the baseline")},
    {Key::IBMGCGIDFormat,     Line::Words, L("Encoding for IBM character IDs"), kIBMGCGIDFormat, Other::Unknown},

    // These stand in font arrays only, which have lines of their own.
    {Key::CharIncrement,      Line::Silent},
    {Key::Ascender,           Line::Silent},
    {Key::Descender,          Line::Silent},
    {Key::FNMElementIndex,    Line::Silent},
    {Key::ASpace,             Line::Silent},
    {Key::BSpace,             Line::Silent},
    {Key::CSpace,             Line::Silent},
    {Key::BaselineOffset,     Line::Silent},
    {Key::RasterOffset,       Line::Silent},
    {Key::IBMCharID,          Line::Silent},
    {Key::ExtCharIDNext,      Line::Silent},
    {Key::ExtCharIDCMAP,      Line::Silent},
    {Key::ExtCharIDASCII,     Line::Silent},
};
// clang-format on

}  // namespace folioscope
