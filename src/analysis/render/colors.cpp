#include "analysis/render/colors.h"

namespace folioscope {

namespace {

constexpr Wording kSaturation = L("Saturation");
constexpr std::int64_t kWhole = 100;  // percent

Wording LabelOf(const Element& element) { return LineOf(element.key)->label; }

// More than the whole range: the line stands, and the fault is told.
void TellOverflow(Renderer& renderer, const Element& element)
{
    std::string message(renderer.Say(kSaturation));
    message += ": ";
    message += renderer.Say(L("Invalid"));
    message += " (";
    renderer.AppendValue(message, element);
    message += "%)";
    renderer.sink.AddContentMessage(message);
    renderer.sink.MarkNodeInvalid();
}

}  // namespace

void KeepForSteps(Renderer& renderer, const Element& element) { renderer.record.bits = element; }

void RenderSteps(Renderer& renderer, const Element& element)
{
    const Element& bits = renderer.record.bits;
    if (bits.key == Key::NoKey) return;
    std::string& out = renderer.BeginLine(LabelOf(bits));
    renderer.AppendValue(out, bits);
    out += " (";
    renderer.AppendValue(out, element);
    out += ' ';
    out += renderer.Say(L("Steps"));
    out += ')';
    renderer.EndLine();
}

void KeepForShare(Renderer& renderer, const Element& element) { renderer.record.intensity = element; }

void RenderIntensity(Renderer& renderer, const Element& element)
{
    const Element raw = renderer.record.intensity;
    if (raw.key == Key::NoKey || raw.number == 0) {
        std::string& out = renderer.BeginLine(kSaturation);
        renderer.AppendValue(out, element);
        out += '%';
        renderer.EndLine();
    } else {
        std::string& out = renderer.BeginLine(LabelOf(raw));
        renderer.AppendValue(out, raw);
        if (element.number != 0) {
            out += " (";
            renderer.AppendValue(out, element);
            out += "% ";
            out += renderer.Say(kSaturation);
            out += ')';
        }
        renderer.EndLine();
        renderer.record.intensity = {};
    }
    if (element.number > kWhole) TellOverflow(renderer, element);
}

void RenderShading(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Shading"));
    renderer.AppendValue(out, element);
    out += '%';
    renderer.EndLine();
}

void KeepForValue(Renderer& renderer, const Element& element) { renderer.record.colorValue = element; }

void RenderEqualsColorValue(Renderer& renderer, const Element& element)
{
    const Element& value = renderer.record.colorValue;
    if (value.key == Key::NoKey) return;
    std::string& out = renderer.BeginLine(LabelOf(value));
    renderer.AppendValue(out, value);
    out += " (";
    out += renderer.Say(L("equals value in"));
    out += ' ';
    out += renderer.Say(L("Color Space"));
    out += ": ";
    renderer.AppendValue(out, element);
    out += ')';
    renderer.EndLine();
}

}  // namespace folioscope
