#include "analysis/render/units.h"

#include <cstdlib>

namespace folioscope {

namespace {

constexpr std::int32_t kNotGiven2 = 65'535, kNotGiven3 = 16'777'215;  // all bits of 2 and of 3 bytes

struct Measurement {
    double factor;  // units of it in an inch
    Wording unit;
};

// clang-format off
constexpr Measurement kMeasurements[] = {  // by the setting DefaultMeasurement
    {1,    L("Inch")},
    {2.54, "cm"},
    {25.4, "mm"},
    {72,   L("Point")},
    {240,  "pels"},
    {300,  "pels"},
    {600,  "pels"},
};

struct UnitBase {
    std::int32_t value;
    std::string_view count;
    Label unit;
};
constexpr UnitBase kUnitBases[] = {
    {0, "10 ", L("Inch")},
    {1, "10 ", L("Centimeter")},
    {2, "",    L("Relative")},
};
// clang-format on

void PutWithUnits(Renderer& renderer, const Element& element, UnitMember units)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    renderer.AppendNumber(out, element, Picture::Grouped);
    out += "   (";
    out += renderer.UnitsText(static_cast<std::int32_t>(element.number), renderer.units.*units);
    out += ')';
    renderer.EndLine();
}

std::string RotationText(std::int32_t degrees, std::int32_t minutes)
{
    std::string text;
    AppendNumber(text, std::int64_t{degrees});
    text += "° ";
    AppendNumber(text, std::int64_t{minutes});
    return text += '\'';
}

}  // namespace

std::string Renderer::UnitsText(std::int32_t value, std::int16_t intUnits) const
{
    std::string out;
    if (intUnits == 0) return out;
    const auto index = static_cast<std::size_t>(settings.DefaultMeasurement);
    const bool known = index < std::size(kMeasurements);
    const float product =
        known ? static_cast<float>(static_cast<double>(value) / intUnits * kMeasurements[index].factor) : 0.0f;
    AppendFormatted(out, product, Picture::UpToFour, style);
    if (out.ends_with(style.decimal)) out.resize(out.size() - style.decimal.size());
    if (!known) return out;
    out += ' ';
    return out += Say(kMeasurements[index].unit);
}

// Units per ten inches, whatever the unit base says; a number below 10 is the resolution itself.
void RenderResolution(Renderer& renderer, const Element& element, UnitMember units)
{
    const std::int64_t resolution = element.number < 10 ? element.number : RoundHalfToEven(double(element.number) / 10);
    renderer.units.*units = static_cast<std::int16_t>(resolution);
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    renderer.AppendNumber(out, element, Picture::Grouped);
    out += "   (";
    AppendFormatted(out, resolution, Picture::Grouped, renderer.style);
    out += " DPI)";
    renderer.EndLine();
}

void RenderSize(Renderer& renderer, const Element& element, UnitMember units)
{
    switch (element.number) {
    case 0: return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Not specified")));
    case kNotGiven2:
    case kNotGiven3:
    case -1: return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Default")));
    default: PutWithUnits(renderer, element, units);
    }
}

void RenderOrigin(Renderer& renderer, const Element& element, UnitMember units)
{
    if (element.number == -1) return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Default")));
    PutWithUnits(renderer, element, units);
}

void RenderMargin(Renderer& renderer, const Element& element, UnitMember units)
{
    PutWithUnits(renderer, element, units);
}

void RenderCellSize(Renderer& renderer, const Element& element)
{
    switch (element.number) {
    case 0: return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("No image cell")));
    case kNotGiven2:
    case kNotGiven3: return renderer.PutLine(renderer.OwnLabel(), renderer.Say(L("Default")));
    default: break;
    }
    renderer.AppendNumber(renderer.BeginLine(renderer.OwnLabel()), element, Picture::Grouped);
    renderer.EndLine();
}

void RenderUnitBase(Renderer& renderer, const Element& element)
{
    for (const auto& [value, count, unit] : kUnitBases) {
        if (value != element.number) continue;
        std::string& out = renderer.BeginLine(renderer.OwnLabel());
        out += count;
        out += renderer.Say(unit);
        return renderer.EndLine();
    }
    std::string number;
    renderer.AppendValue(number, element);
    renderer.PutUnknown(renderer.OwnLabel(), number);
}

// The outline's unit base isn't looked at: it is always ten inches.
void RenderShapeUnitBase(Renderer& renderer, const Element&)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    out += kUnitBases[0].count;
    out += renderer.Say(kUnitBases[0].unit);
    renderer.EndLine();
}

// Nine bits of degrees and six of minutes, above the lowest bit.
void RenderRotation(Renderer& renderer, const Element& element)
{
    const Wording label = renderer.OwnLabel();
    if (element.number == kNotGiven2) return renderer.PutLine(label, renderer.Say(L("Default")));
    const auto degrees = static_cast<std::int32_t>((element.number & 0xFF80) / 128);
    const auto minutes = static_cast<std::int32_t>((element.number & 0x007E) / 2);
    const std::string both = RotationText(degrees, minutes);
    if (std::abs(degrees) > 360 || std::abs(minutes) > 60) {
        renderer.RedLine(label, L("Invalid"), both);
        std::string message = "Invalid ";
        message += renderer.Say(label);
        message += ": ";
        message += both;
        renderer.sink.AddContentMessage(message);
        renderer.sink.MarkNodeInvalid();
        return;
    }
    if (minutes != 0) return renderer.PutLine(label, both);
    std::string text;
    AppendNumber(text, std::int64_t{degrees});
    renderer.PutLine(label, text += "°");
}

}  // namespace folioscope
