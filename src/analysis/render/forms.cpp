#include "analysis/render/forms.h"

namespace folioscope {

// The upper half of the byte is the partition, 0 on a page that has none; the lower one is the side.
void RenderPagePosition(Renderer& renderer, const Element& element)
{
    const std::int64_t partition = element.number >> 4, side = element.number & 0x0F;
    std::string& out = renderer.BeginLine(L("Page position"));
    if (partition == 0) {
        out += renderer.Say(L("Single Page"));
    } else {
        out += renderer.Say(L("partition"));
        out += ' ';
        AppendNumber(out, partition);
    }
    out += ", ";
    out += renderer.Say(side == 0 ? L("Front") : L("Back"));
    renderer.EndLine();
}

}  // namespace folioscope
