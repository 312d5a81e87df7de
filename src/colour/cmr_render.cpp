#include "colour/cmr_render.h"

#include <algorithm>
#include <iterator>

#include "colour/cmr_words.h"
#include "colour/icc_words.h"

namespace folioscope {

namespace {

constexpr LineIndex kLineOf = IndexOf(kCmrLines, kIccLines);

// "1F 08", as the object's bytes are told.
std::string HexOf(std::uint16_t id)
{
    std::string text;
    AppendHex(text, id >> 8, 2);
    text += ' ';
    AppendHex(text, id & 0xFF, 2);
    return text;
}

constexpr double kHighest16 = 65'535, kHighest8 = 255, kPercent = 100;

void PutReal(Renderer& renderer, double value)
{
    AppendFormatted(renderer.BeginLine(renderer.OwnLabel()), value, Picture::One, renderer.style);
    renderer.EndLine();
}

}  // namespace

const LineRow* ColourLineOf(Key key) { return kLineOf[static_cast<std::size_t>(key)]; }

const Wording* FindWord(std::span<const TextWord> words, std::string_view value)
{
    const auto found = std::ranges::find(words, value, &TextWord::value);
    return found != words.end() ? &found->word : nullptr;
}

void RenderColorResource(Renderer& renderer, std::span<const Element> elements)
{
    renderer.RenderDeferred(elements, kLineOf, "CMR: ");
}

void RenderColourGroup(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += kCrLf;
    out += kBold;
    out += renderer.Say(L("Element"));
    out += ' ';
    renderer.AppendValue(out, element);
    out += kNormal;
    renderer.EndLine();
    renderer.IndentText += '\t';
}

void RenderCmrTag(Renderer& renderer, const Element& element)
{
    const auto id = renderer.TextOf(element);
    const auto* const tag = std::ranges::find_if(kCmrTags, [&](const CmrTag& row) { return HexOf(row.id) == id; });
    if (tag != std::end(kCmrTags))
        renderer.PutLine(renderer.OwnLabel(), tag->name);
    else
        renderer.PutUnknown(renderer.OwnLabel(), id);
}

void RenderCmrFieldType(Renderer& renderer, const Element& element)
{
    const auto* const row = std::ranges::find(kCmrFieldTypes, element.number, &CmrFieldType::type);
    if (row != std::end(kCmrFieldTypes)) return renderer.PutLine(renderer.OwnLabel(), row->name);
    std::string type;
    renderer.AppendValue(type, element);
    renderer.PutUnknown(renderer.OwnLabel(), type);
}

// A medium that isn't listed is the maker's own, and no fault.
void RenderMedium(Renderer& renderer, const Element& element)
{
    const std::span<const TextWord> words = element.key == Key::CMRMColor ? std::span<const TextWord>(kMediumColors)
                                                                          : std::span<const TextWord>(kMediumFinishes);
    const auto value = renderer.TextOf(element);
    if (const Wording* const word = FindWord(words, value))
        return renderer.PutLine(renderer.OwnLabel(), renderer.Say(*word));
    PutNamed(renderer, renderer.OwnLabel(), renderer.Say(L("custom")), value);
}

// sic, a flag that is set counts as -1.
void RenderNumber(Renderer& renderer, const Element& element)
{
    const std::int64_t sign = element.tag == Tag::Boolean ? -1 : 1;
    AppendFormatted(renderer.BeginLine(renderer.OwnLabel()), sign * element.number, Picture::Grouped, renderer.style);
    renderer.EndLine();
}

void RenderTrueOrFalse(Renderer& renderer, const Element& element)
{
    renderer.PutLine(renderer.OwnLabel(), renderer.Say(element.number != 0 ? L("true") : L("false")));
}

void RenderLightness(Renderer& renderer, const Element& element)
{
    PutReal(renderer, static_cast<double>(element.number) / kHighest16 * kPercent);
}

void RenderChroma(Renderer& renderer, const Element& element)
{
    PutReal(renderer, static_cast<double>(element.number) / kHighest16 * kHighest8 - 128);
}

void RenderColorant(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    renderer.AppendValue(out, element);
    out += " (";
    AppendFormatted(out, static_cast<double>(element.number) / kHighest8 * kPercent, Picture::OneToTwo, renderer.style);
    out += " %)";
    renderer.EndLine();
}

}  // namespace folioscope
