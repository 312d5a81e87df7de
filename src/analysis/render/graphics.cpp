#include "analysis/render/graphics.h"

namespace folioscope {

namespace {

// clang-format off

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

constexpr Wording kLineWidth = L("Line width");
constexpr double kNormalWidthUnits = 1440;  // an inch
constexpr std::int64_t kDefaultCell = 0xFFFFFF;

void AppendCellSize(Renderer& renderer, std::string& out, const Element& element)
{
    if (element.number == kDefaultCell)
        out += renderer.Say(L("Default"));
    else
        renderer.AppendNumber(out, element, Picture::Grouped);
}

// Returns the width in inches.
double TakeNormalLineWidth(Renderer& renderer, const Element& element)
{
    const double inches = static_cast<double>(element.number) / kNormalWidthUnits;
    renderer.lines.NormalLineWidth = static_cast<float>(inches);
    return inches;
}

}  // namespace

void AppendInches(Renderer& renderer, std::string& out, double inches)
{
    AppendFormatted(out, inches, Picture::TwoToFour, renderer.style);
    out += ' ';
    out += renderer.Say(L("Inch"));
}

// Both lengths of a rounded corner stand in one line.
void RenderBoxEdge(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Rounded corner ellipse length X axis"));
    renderer.AppendNumber(out, renderer.record.kept.Of(Key::BoxEdgeHAxis), Picture::Grouped);
    out += ", ";
    out += renderer.Say(L("Rounded corner ellipse length Y axis"));
    out += ": ";
    AppendFormatted(out, element.number, Picture::Grouped, renderer.style);
    renderer.EndLine();
}

// In 256ths of the normal line width; 0 is the normal width itself.
void RenderLineWidth(Renderer& renderer, const Element& element)
{
    LineState& lines = renderer.lines;
    if (element.number == 0) {
        lines.CurrentLineWidth = lines.NormalLineWidth;
        return renderer.PutLine(kLineWidth, renderer.Say(L("Drawing default")));
    }
    lines.CurrentLineWidth =
        static_cast<float>(static_cast<double>(element.number) / 256 * static_cast<double>(lines.NormalLineWidth));
    std::string& out = renderer.BeginLine(kLineWidth);
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

void RenderNormalLineWidth(Renderer& renderer, const Element& element)
{
    AppendInches(renderer, renderer.BeginLine(L("Normal line width")), TakeNormalLineWidth(renderer, element));
    renderer.EndLine();
}

void RenderNormalLineWidthOfDescriptor(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Normal line width"));
    AppendInches(renderer, out, TakeNormalLineWidth(renderer, element));
    out += " (";
    renderer.AppendValue(out, element);
    out += "/1440)";
    renderer.EndLine();
}

void RenderCharacterCell(Renderer& renderer, const Element& height)
{
    std::string& out = renderer.BeginLine(L("Cell Width"));
    renderer.AppendNumber(out, renderer.record.kept.Of(Key::CellWidth), Picture::Grouped);
    out += ", ";
    out += renderer.Say(L("Cell Height"));
    out += ": ";
    renderer.AppendNumber(out, height, Picture::Grouped);
    renderer.EndLine();
}

void RenderMarkerCell(Renderer& renderer, const Element& height)
{
    std::string& out = renderer.BeginLine(L("Marker cell width"));
    AppendCellSize(renderer, out, renderer.record.kept.Of(Key::MarkerCellWidth));
    out += ", ";
    out += renderer.Say(L("Marker cell height"));
    out += ": ";
    AppendCellSize(renderer, out, height);
    renderer.EndLine();
}

void RenderPatternReference(Renderer& renderer, const Element& y)
{
    const Element x = renderer.record.kept.Of(Key::PatternRefPointX);
    const bool given = x.number != 0 || y.number != 0;
    const auto append = [&](std::string& out, const Element& value) {
        if (given)
            renderer.AppendNumber(out, value, Picture::Grouped);
        else
            out += renderer.Say(L("Default"));
    };
    std::string& out = renderer.BeginLine(L("Pattern reference point X"));
    append(out, x);
    out += ", ";
    out += renderer.Say(L("Y"));
    out += ": ";
    append(out, y);
    renderer.EndLine();
}

}  // namespace folioscope
