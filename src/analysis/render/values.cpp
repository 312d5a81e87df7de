#include "analysis/render/values.h"

namespace folioscope {

namespace {

constexpr std::int64_t kNotGiven = 65'535;

struct TwoWordsRow {
    Key key;
    bool value;
    Label first, second;
};

// clang-format off
constexpr TwoWordsRow kTwoWords[] = {
    {Key::Encrypted, true,  L("Yes"), L("No")},       // sic, both words
    {Key::Encrypted, false, L("No"),  L("Yes")},
    {Key::Overprint, true,  L("Yes"), L("Add")},
    {Key::Overprint, false, L("No"),  L("Replace")},
};
// clang-format on

}  // namespace

void RenderTextOrNotSpecified(Renderer& renderer, const Element& element)
{
    const auto value = renderer.TextOf(element);
    renderer.PutLine(renderer.OwnLabel(), value.empty() ? renderer.Say(L("Not specified")) : value);
}

void RenderTwoWords(Renderer& renderer, const Element& element)
{
    for (const auto& [key, value, first, second] : kTwoWords) {
        if (key != element.key || value != (element.number != 0)) continue;
        std::string& out = renderer.BeginLine(renderer.OwnLabel());
        out += renderer.Say(first);
        out += ", ";
        out += renderer.Say(second);
        renderer.EndLine();
    }
}

void RenderImageResolution(Renderer& renderer, const Element& element)
{
    if (element.number == 0) return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Not specified")));
    const std::int64_t resolution =
        element.number < 10 ? element.number : RoundHalfToEven(static_cast<double>(element.number) / 10);
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    AppendFormatted(out, resolution, Picture::Grouped, renderer.style);
    out += " x ";
    AppendFormatted(out, resolution, Picture::Grouped, renderer.style);
    out += " ppi";
    renderer.EndLine();
}

void RenderGlobalId(Renderer& renderer, const Element& element)
{
    if (element.number == 0 || element.number == kNotGiven)
        return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Not specified")));
    renderer.AppendNumber(renderer.BeginLine(renderer.OwnLabel()), element, Picture::Grouped);
    renderer.EndLine();
}

void RenderPoints(Renderer& renderer, const Element& element)
{
    constexpr double kPerInch = 72;
    if (element.real == 0) return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Not specified")));
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    AppendFormatted(out, element.real * kPerInch, Picture::OneToFour, renderer.style);
    out += ' ';
    out += renderer.Say(L("Point"));
    renderer.EndLine();
}

void RenderMovement(Renderer& renderer, const Element& element)
{
    renderer.AppendNumber(renderer.BeginLine(renderer.OwnLabel()), element, Picture::Signed);
    renderer.EndLine();
}

// A text stands as it is.
void RenderDegrees(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    renderer.AppendValue(out, element);
    if (element.tag != Tag::Text && element.tag != Tag::Literal) out += "°";
    renderer.EndLine();
}

void RenderColor(Renderer& renderer, const Element& element)
{
    const Label name = ColorName(static_cast<std::int32_t>(element.number));
    renderer.PutLine(renderer.OwnLabel(), name == Label::None ? std::string_view() : renderer.Say(name));
}

void RenderLabelAlone(Renderer& renderer, const Element&)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(renderer.OwnLabel());
    renderer.EndLine();
}

// The name comes behind a comma and a blank.
void RenderOIDType(Renderer& renderer, const Element& element)
{
    const auto name = renderer.TextOf(element);
    renderer.PutLine(renderer.OwnLabel(), name.substr(std::min<std::size_t>(name.size(), 2)));
}

void RenderHyperlink(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    out += kLink;
    out += renderer.TextOf(element);
    out += kLinkEnd;
    renderer.EndLine();
}

void RenderRadius(Renderer& renderer, const Element& element)
{
    renderer.AppendNumber(renderer.BeginLine(renderer.OwnLabel()), element, Picture::OneToThree);
    renderer.EndLine();
}

}  // namespace folioscope
