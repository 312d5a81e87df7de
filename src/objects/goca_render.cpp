#include "objects/goca_render.h"

#include "analysis/render/words_colors.h"
#include "analysis/render/words_graphics.h"
#include "objects/item_lines.h"

namespace folioscope {

namespace {

Element Kept(Renderer& renderer, Key key) { return renderer.record.kept.Of(key); }

// ", Y=12"
void AppendPart(Renderer& renderer, std::string& out, Wording name, std::int64_t value)
{
    out += ", ";
    out += renderer.Say(name);
    AppendGrouped(renderer, out, value);
}

// "(X=3, Y=4) ", the current position.
void AppendPosition(Renderer& renderer, std::string& out)
{
    out += "(X=";
    AppendNumber(out, renderer.record.x);
    out += ", Y=";
    AppendNumber(out, renderer.record.y);
    out += ") ";
}

std::string_view YesOrNo(Renderer& renderer, bool value) { return renderer.Say(value ? L("Yes") : L("No")); }

void MoveX(Renderer& renderer, const Element& x) { renderer.record.x = x.number; }

template <Label label> void RenderPosition(Renderer& renderer, const Element& y)  // "Cursor position X=3, Y=4"
{
    renderer.record.y = y.number;
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(label);
    AppendGrouped(renderer, out, renderer.record.x);
    AppendPart(renderer, out, L("Y="), renderer.record.y);
    renderer.EndLine();
}

// The line goes on with the points behind it.
template <Label label> void RenderDraw(Renderer& renderer, const Element&)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(label);
    renderer.text.Close();
}

std::string& BeginPoint(Renderer& renderer, Label label)
{
    std::string& out = renderer.text.Open();
    AppendPart(renderer, out, label, renderer.record.x);
    AppendPart(renderer, out, "Y=", renderer.record.y);
    return out;
}

template <Label label> void RenderControlPoint(Renderer& renderer, const Element& y)
{
    renderer.record.y = y.number;
    BeginPoint(renderer, label);
    renderer.text.Close();
}

void RenderEndPoint(Renderer& renderer, const Element& y)
{
    renderer.record.y = y.number;
    BeginPoint(renderer, L("Endpoint X="));
    renderer.EndLine();
}

void MoveByX(Renderer& renderer, const Element& offset)
{
    renderer.record.x += offset.number;
    renderer.record.kept.Keep(offset);
}

void RenderEndPointByOffset(Renderer& renderer, const Element& offset)
{
    renderer.record.y += offset.number;
    std::string& out = BeginPoint(renderer, L("Endpoint X="));
    out += "  (Offset X=";
    renderer.AppendValue(out, Kept(renderer, Key::RelEndPosX));
    out += ", Y=";
    renderer.AppendValue(out, offset);
    out += ')';
    renderer.EndLine();
}

void RenderMarker(Renderer& renderer, const Element&)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    AppendPosition(renderer, out);
    renderer.EndLine();
}

void RenderString(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    AppendPosition(renderer, out);
    out += renderer.Say(L("Text"));
    out += ": \"";
    out += renderer.TextOf(element);
    out += '"';
    renderer.EndLine();
}

void RenderArcMultiplier(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Ellipse"));
    out += renderer.Say(L("Multiplier"));
    out += ": ";
    AppendFormatted(out, static_cast<double>(element.number) / 256, Picture::TwoToFour, renderer.style);
    renderer.EndLine();
}

void RenderAngles(Renderer& renderer, const Element& sweep)
{
    std::string& out = renderer.BeginLine(L("Start angle"));
    AppendFormatted(out, Kept(renderer, Key::StartAngle).real, Picture::OneToThree, renderer.style);
    out += "° , ";
    out += renderer.Say(L("Sweep angle"));
    out += ": ";
    AppendFormatted(out, sweep.real, Picture::OneToThree, renderer.style);
    out += "°";
    renderer.EndLine();
}

void RenderBeginImage(Renderer& renderer, const Element& height)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    AppendPosition(renderer, out);
    out += renderer.Say(L("Begin image"));
    out += ": ";
    out += renderer.Say(L("Image width"));
    out += ": ";
    renderer.AppendValue(out, Kept(renderer, Key::ImageWidth));
    out += " Pixel , ";
    out += renderer.Say(L("Image height"));
    out += ": ";
    renderer.AppendValue(out, height);
    out += " Pixel";
    renderer.EndLine();
}

void RenderCustomLine(Renderer& renderer, const Element& move)
{
    const double width = static_cast<double>(renderer.lines.CurrentLineWidth);
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(L("Individual dash length="));
    AppendInches(renderer, out, Kept(renderer, Key::CustomLineDash).real * width);
    out += renderer.Say(L(" and Move="));
    AppendInches(renderer, out, move.real * width);
    renderer.EndLine();
}

constexpr bool IsCustomSet(std::int64_t set) { return set == 254 || set == 255; }

void RenderPatternSet(Renderer& renderer, const Element& element)
{
    constexpr Wording kLabel = L("Pattern set");
    std::string value;
    renderer.AppendValue(value, element);
    if (element.number == 0) return renderer.PutLine(kLabel, renderer.Say(L("Default")));
    if (IsCustomSet(element.number)) return renderer.PutLine(kLabel, "Custom (" + value + ')');
    renderer.PutInvalid(kLabel, value);
}

void RenderCustomPattern(Renderer& renderer, const Element& symbol)
{
    constexpr Wording kLabel = L("Custom pattern set");
    const Element set = Kept(renderer, Key::CustomPatternSet);
    std::string value;
    renderer.AppendValue(value, set);
    if (set.number == 0) value = renderer.Say(L("Default"));
    if (set.number != 0 && !IsCustomSet(set.number)) return renderer.PutInvalid(kLabel, value);
    std::string& out = renderer.BeginLine(kLabel);
    out += value;
    out += ", ";
    out += renderer.Say(L("Symbol"));
    out += ": ";
    if (symbol.number == 0)
        out += renderer.Say(L("Default"));
    else
        renderer.AppendValue(out, symbol);
    renderer.EndLine();
}

// The window of a pattern shares its storage with the arc parameters.
enum Edge : std::size_t { kRight, kTop, kLeft, kBottom };

template <Edge edge> void KeepEdge(Renderer& renderer, const Element& element)
{
    renderer.record.arc[edge] = element.number;
}

// The line stands at the bottom edge, which comes before the top edge: that one is what was stored before.
void RenderPatternWindow(Renderer& renderer, const Element& bottom)
{
    struct Side {
        Label label;
        Edge edge;
    };
    constexpr Side kSides[] = {
        {L("Left edge"), kLeft}, {L("Top edge"), kTop}, {L("Right edge"), kRight}, {L("Bottom edge"), kBottom}};
    renderer.record.arc[kBottom] = bottom.number;
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    for (const auto& [label, edge] : kSides) {
        if (edge != kLeft) out += ", ";
        out += renderer.Say(label);
        out += " = ";
        AppendGrouped(renderer, out, renderer.record.arc[edge]);
    }
    renderer.EndLine();
}

void RenderFilledArea(Renderer& renderer, const Element& inside)
{
    std::string& out = renderer.BeginLine(L("Begin filled area"));
    out += renderer.Say(L("Draw boundaries"));
    out += ": ";
    out += YesOrNo(renderer, Kept(renderer, Key::Boundary).number != 0);
    out += ", ";
    out += renderer.Say(L("Fill mode"));
    out += ": ";
    out += renderer.Say(inside.number != 0 ? L("Nonzero Winding") : L("Alternate"));
    renderer.EndLine();
}

void RenderSegment(Renderer& renderer, const Element& size)
{
    std::string& out = renderer.text.Open();
    out += kCrLf;
    out += kBold;
    out += renderer.Say(L("Begin segment"));
    out += kNormal;
    const auto part = [&](std::string_view before, Label label, std::string_view value) {
        out += before;
        out += renderer.Say(label);
        out += ": ";
        out += value;
    };
    part(": ", L("Chained"), YesOrNo(renderer, Kept(renderer, Key::ChainedSegment).number != 0));
    part(", ", L("Prolog"), YesOrNo(renderer, Kept(renderer, Key::BeginProlog).number != 0));
    part(", ", L("Segment order"),
         renderer.Say(Kept(renderer, Key::SegmentOrder).number == 1 ? L("New segment") : L("Append to last segment")));
    part(", ", L("Size"), "");
    AppendGrouped(renderer, out, size);
    out += " Bytes";
    renderer.EndLine();
}

void RenderFirstCorner(Renderer& renderer, const Element& y)
{
    renderer.record.kept.Keep(y);
    std::string& out = renderer.BeginLine(L("First corner X axis"));
    AppendGrouped(renderer, out, Kept(renderer, Key::BoxFirstCornerXaxis));
    out += ", ";
    out += renderer.Say(L("First corner Y axis"));
    out += ": ";
    AppendGrouped(renderer, out, y);
    renderer.EndLine();
}

// A box without height has no direction, and then no line.
void RenderSecondCorner(Renderer& renderer, const Element& y)
{
    const Element x = Kept(renderer, Key::BoxSecondCornerXaxis);
    const std::int64_t width = x.number - Kept(renderer, Key::BoxFirstCornerXaxis).number;
    const std::int64_t height = y.number - Kept(renderer, Key::BoxFirstCornerYaxis).number;
    if (height == 0) return;
    std::string& out = renderer.BeginLine(L("Second corner X axis"));
    AppendGrouped(renderer, out, x);
    out += ", ";
    out += renderer.Say(L("Second corner Y axis"));
    out += ": ";
    AppendGrouped(renderer, out, y);
    out += ", ";
    out += renderer.Say(L("Direction"));
    out += width != 0 && (width > 0) == (height > 0) ? ": CCW" : ": CW";
    renderer.EndLine();
}

void RenderOrderUnknown(Renderer& renderer, const Element&)
{
    PutUnknownItem(renderer, L("Order/Segment unknown"), "GAD/GDD: ");
}

// clang-format off
constexpr Word kColorSpace[] = {
    {1, "RGB"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CIELAB"}, {64, "Standard OCA"},
};

constexpr LineRow kLines[] = {
    Own(Key::BeginOrder,           RenderItemName),
    Own(Key::NormalLineWidth,      RenderNormalLineWidth),
    {Key::CustomLineDash,       Line::Keep},
    Own(Key::CustomLineMove,       RenderCustomLine),
    Own(Key::PatternSID,           RenderPatternSet),
    {Key::CustomPatternSet,     Line::Keep},
    Own(Key::CustomPatternSymbol,  RenderCustomPattern),
    Own(Key::CustomPatternWindowL, KeepEdge<kLeft>),
    Own(Key::CustomPatternWindowR, KeepEdge<kRight>),
    Own(Key::CustomPatternWindowT, KeepEdge<kTop>),
    Own(Key::CustomPatternWindowB, RenderPatternWindow),
    {Key::ColorSpace,           Line::Words,  L("Color Space"), kColorSpace, Other::Unknown},
    Own(Key::GPSNoOp,              RenderWordAlone<L("No Operation")>),
    {Key::Comment,              Line::Quoted, L("Comment")},

    Own(Key::GPSPosX,              MoveX),
    Own(Key::GPSPosY,              RenderPosition<L("Cursor position X=")>),
    Own(Key::CenterPosX,           MoveX),
    Own(Key::CenterPosY,           RenderPosition<L("Center of the arc X=")>),
    Own(Key::DrawLine,             RenderDraw<L("Line")>),
    Own(Key::DrawCurve,            RenderDraw<L("Curve")>),
    Own(Key::DrawBezier,           RenderDraw<L("Bezier curve")>),
    Own(Key::EndPosX,              MoveX),
    Own(Key::EndPosY,              RenderEndPoint),
    Own(Key::RelEndPosX,           MoveByX),
    Own(Key::RelEndPosY,           RenderEndPointByOffset),
    Own(Key::Ctrl1PosX,            MoveX),
    Own(Key::Ctrl1PosY,            RenderControlPoint<L("Control point 1 X=")>),
    Own(Key::Ctrl2PosX,            MoveX),
    Own(Key::Ctrl2PosY,            RenderControlPoint<L("Control point 2 X=")>),
    Own(Key::DrawMarker,           RenderMarker),
    Own(Key::DrawString,           RenderString),
    Own(Key::Multiplier,           RenderArcMultiplier),
    {Key::StartAngle,           Line::Keep},
    Own(Key::SweepAngle,           RenderAngles),
    {Key::ImageWidth,           Line::Keep},
    Own(Key::ImageHeight,          RenderBeginImage),
    {Key::ImageData,            Line::Plain,  L("No. of bytes with image data")},
    Own(Key::EndImage,             RenderWordAlone<L("End Image")>),

    {Key::BeginSegment,         Line::Keep},
    {Key::ChainedSegment,       Line::Keep},
    {Key::BeginProlog,          Line::Keep},
    {Key::SegmentOrder,         Line::Keep},
    Own(Key::SegmentSize,          RenderSegment),
    Own(Key::EndSegment,           RenderWordAlone<L("End segment")>),
    Own(Key::EndProlog,            RenderWordAlone<L("End prolog")>),
    Own(Key::DeletePattern,        RenderWordAlone<L("Delete custom pattern")>),
    Own(Key::EndPattern,           RenderWordAlone<L("End custom pattern")>),
    Own(Key::EndArea,              RenderWordAlone<L("End filled area")>),
    {Key::Boundary,             Line::Keep},
    Own(Key::Inside,               RenderFilledArea),

    {Key::BoxFirstCornerXaxis,  Line::Keep},
    Own(Key::BoxFirstCornerYaxis,  RenderFirstCorner),
    {Key::BoxSecondCornerXaxis, Line::Keep},
    Own(Key::BoxSecondCornerYaxis, RenderSecondCorner),
    Own(Key::OrderUnknown,         RenderOrderUnknown),

    {Key::EndOrder,             Line::Silent},
    {Key::OrderName,            Line::Silent},
    {Key::BeginArea,            Line::Silent},
    {Key::HexCode,              Line::Silent},         // the hex pane shows the bytes
};
// clang-format on

constexpr LineIndex kLineOf = IndexOf(kLines, kColorLines, kGraphicsLines);

}  // namespace

const LineIndex& OrderLines() { return kLineOf; }

void RenderOrders(Renderer& renderer, std::span<const Element> sequence)
{
    renderer.RenderItems(sequence, kLineOf, "GAD/GDD-");
}

}  // namespace folioscope
