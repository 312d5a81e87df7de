#include "objects/fonts_render.h"

#include "analysis/render/lines.h"

namespace folioscope {

namespace {

void RenderCharID(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(renderer.OwnLabel());
    out += ':';
    out += kBold;
    out += '\t';
    renderer.AppendValue(out, element);
    out += kNormal;
    renderer.EndLine();
}

// Between quotes as it is, also a text that isn't given.
void RenderQuoted(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    out += '"';
    renderer.AppendValue(out, element);
    out += '"';
    renderer.EndLine();
}

// clang-format off
constexpr LineRow kFontArrayLines[] = {
    Own(Key::BeginRepetition,  RenderBeginRepetition, L("Element")),
    Own(Key::EndRepetition,    RenderEndOfGroup),
    {Key::RasterOffset,        Line::Count, L("Raster pattern data index")},
    {Key::CharBoxWidth,        Line::Count, L("Maximum character box width")},
    {Key::CharBoxHeight,       Line::Count, L("Maximum character box height")},
    {Key::CharIncrement,       Line::Count, L("Character increment")},
    {Key::Ascender,            Line::Count, L("Height from the baseline to character upper edge")},
    {Key::Descender,           Line::Count, L("Depth from the baseline to character lower edge")},
    {Key::FNMElementIndex,     Line::Count, L("Accompanying FNM element")},
    {Key::ASpace,              Line::Count, L("A-Space (Space before character)")},
    {Key::BSpace,              Line::Count, L("B-Space (Width of character itself)")},
    {Key::CSpace,              Line::Count, L("C-Space (Space after character)")},
    {Key::BaselineOffset,      Line::Count, L("Distance from the baseline to the character box top edge")},
    {Key::ExtCharIDNext,       Line::Count, L("Outline character ID is stored at position")},
    {Key::ExtCharIDCMAP,       Line::Count, L("Outline character ID in CMAP file at position")},
    Own(Key::ExtCharIDASCII,   RenderQuoted, L("Outline character ID")),
    Own(Key::IBMCharID,        RenderQuoted, L("IBM character ID")),
    Own(Key::IndexedObjOffset, RenderQuoted, L("Byte offset to the indexed object counted from BDT")),
    Own(Key::CharID,           RenderCharID, L("Character ID")),
    Own(Key::CharIDLength,     RenderQuoted, L("Character ID length")),
};
// clang-format on

constexpr LineIndex kLineOf = IndexOf(kFontArrayLines);

}  // namespace

void RenderFontArray(Renderer& renderer, std::span<const Element> array) { renderer.RenderLines(array, kLineOf); }

}  // namespace folioscope
