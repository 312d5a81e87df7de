#include "analysis/render/fonts.h"

namespace folioscope {

void RenderRasterDataAlign(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Data boundaries for raster patterns, all"));
    renderer.AppendValue(out, element);
    out += " Bytes";
    renderer.EndLine();
}

void RenderUnderscoreWidth(Renderer& renderer, const Element& element)
{
    renderer.AppendNumber(renderer.BeginLine(L("Underscore width")), element, Picture::OneToThree);
    renderer.EndLine();
}

}  // namespace folioscope
