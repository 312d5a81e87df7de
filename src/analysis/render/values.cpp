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

// The letters under which the four arc parameters are shown, in their order in the line.
struct ArcRow {
    Key key;
    std::size_t place;
};
constexpr ArcRow kArcs[] = {
    {Key::MajorX, 0},
    {Key::MinorY, 1},
    {Key::MinorX, 2},
    {Key::MajorY, 3},
};
constexpr Wording kArcLetters[] = {L("P"), L("Q"), L("R"), L("S")};
// clang-format on

Wording LabelOf(const Element& element) { return LineOf(element.key)->label; }

}  // namespace

void RenderTextOrNotSpecified(Renderer& renderer, const Element& element)
{
    const auto value = renderer.TextOf(element);
    renderer.PutLine(LabelOf(element), value.empty() ? renderer.Say(L("Not specified")) : value);
}

void RenderTwoWords(Renderer& renderer, const Element& element)
{
    for (const auto& [key, value, first, second] : kTwoWords) {
        if (key != element.key || value != (element.number != 0)) continue;
        std::string& out = renderer.BeginLine(LabelOf(element));
        out += renderer.Say(first);
        out += ", ";
        out += renderer.Say(second);
        renderer.EndLine();
    }
}

void RenderImageResolution(Renderer& renderer, const Element& element)
{
    if (element.number == 0) return renderer.PutLine(LabelOf(element), renderer.Say(L("Not specified")));
    const std::int64_t resolution =
        element.number < 10 ? element.number : RoundHalfToEven(static_cast<double>(element.number) / 10);
    std::string& out = renderer.BeginLine(LabelOf(element));
    AppendFormatted(out, resolution, Picture::Grouped, renderer.style);
    out += " x ";
    AppendFormatted(out, resolution, Picture::Grouped, renderer.style);
    out += " ppi";
    renderer.EndLine();
}

void RenderGlobalId(Renderer& renderer, const Element& element)
{
    if (element.number == 0 || element.number == kNotGiven)
        return renderer.PutLine(LabelOf(element), renderer.Say(L("Not specified")));
    renderer.AppendNumber(renderer.BeginLine(LabelOf(element)), element, Picture::Grouped);
    renderer.EndLine();
}

void RenderPoints(Renderer& renderer, const Element& element)
{
    constexpr double kPerInch = 72;
    if (element.real == 0) return renderer.PutLine(LabelOf(element), renderer.Say(L("Not specified")));
    std::string& out = renderer.BeginLine(LabelOf(element));
    AppendFormatted(out, element.real * kPerInch, Picture::OneToFour, renderer.style);
    out += ' ';
    out += renderer.Say(L("Point"));
    renderer.EndLine();
}

void RenderMovement(Renderer& renderer, const Element& element)
{
    renderer.AppendNumber(renderer.BeginLine(LabelOf(element)), element, Picture::Signed);
    renderer.EndLine();
}

// A text stands as it is.
void RenderDegrees(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(LabelOf(element));
    renderer.AppendValue(out, element);
    if (element.tag != Tag::Text && element.tag != Tag::Literal) out += "°";
    renderer.EndLine();
}

void RenderColor(Renderer& renderer, const Element& element)
{
    const Label name = ColorName(static_cast<std::int32_t>(element.number));
    renderer.PutLine(LabelOf(element), name == Label::None ? std::string_view() : renderer.Say(name));
}

void RenderLabelAlone(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(LabelOf(element));
    renderer.EndLine();
}

// The name comes behind a comma and a blank.
void RenderOIDType(Renderer& renderer, const Element& element)
{
    const auto name = renderer.TextOf(element);
    renderer.PutLine(LabelOf(element), name.substr(std::min<std::size_t>(name.size(), 2)));
}

void RenderHyperlink(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(LabelOf(element));
    out += kLink;
    out += renderer.TextOf(element);
    out += kLinkEnd;
    renderer.EndLine();
}

// Both lengths of a rounded corner stand in one line.
void RenderBoxEdge(Renderer& renderer, const Element& element)
{
    if (element.key == Key::BoxEdgeHAxis) {
        renderer.record.boxEdge = element.number;
        return;
    }
    std::string& out = renderer.BeginLine(L("Rounded corner ellipse length X axis"));
    AppendFormatted(out, renderer.record.boxEdge, Picture::Grouped, renderer.style);
    out += ", ";
    out += renderer.Say(L("Rounded corner ellipse length Y axis"));
    out += ": ";
    AppendFormatted(out, element.number, Picture::Grouped, renderer.style);
    renderer.EndLine();
}

void RenderRadius(Renderer& renderer, const Element& element)
{
    renderer.AppendNumber(renderer.BeginLine(LabelOf(element)), element, Picture::OneToThree);
    renderer.EndLine();
}

// In 256ths of the normal line width; 0 is the normal width itself.
void RenderLineWidth(Renderer& renderer, const Element& element)
{
    LineState& lines = renderer.lines;
    if (element.number == 0) {
        lines.CurrentLineWidth = lines.NormalLineWidth;
        return renderer.PutLine(LabelOf(element), renderer.Say(L("Drawing default")));
    }
    lines.CurrentLineWidth =
        static_cast<float>(static_cast<double>(element.number) / 256 * static_cast<double>(lines.NormalLineWidth));
    std::string& out = renderer.BeginLine(LabelOf(element));
    AppendFormatted(out, lines.CurrentLineWidth, Picture::TwoToFour, renderer.style);
    out += ' ';
    out += renderer.Say(L("Inch"));
    renderer.EndLine();
}

// The line stands where the last of the four comes in a graphics order. A triplet has them in another order, and the
// line then shows what the parameters behind it were before.
void RenderArcParameter(Renderer& renderer, const Element& element)
{
    auto& arc = renderer.record.arc;
    for (const auto& [key, place] : kArcs)
        if (key == element.key) arc[place] = element.number;
    if (element.key != Key::MajorY) return;
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    for (std::size_t i = 0; i < std::size(kArcLetters); ++i) {
        out += renderer.Say(kArcLetters[i]);
        out += " = ";
        AppendFormatted(out, arc[i], Picture::Grouped, renderer.style);
        out += ", ";
    }
    out += renderer.Say(L("Direction"));
    out += arc[0] * arc[1] - arc[2] * arc[3] > 0 ? ": CCW" : ": CW";
    renderer.EndLine();
}

}  // namespace folioscope
