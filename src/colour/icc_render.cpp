#include "colour/icc_render.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "colour/colour_lines.h"
#include "colour/icc_tables.h"

namespace folioscope {

namespace {

template <std::size_t N> std::string_view NameOf(const IccName (&names)[N], std::string_view signature)
{
    const auto* const found = std::ranges::find(names, signature, &IccName::signature);
    return found != std::end(names) ? found->name : std::string_view();
}

std::string_view MakerOf(std::string_view signature)
{
    const auto* const found = std::ranges::find_if(
        kIccPrivateTags, [&](const IccPrivateTags& row) { return row.first <= signature && signature <= row.last; });
    return found != std::end(kIccPrivateTags) ? found->maker : std::string_view();
}

}  // namespace

void RenderIccTag(Renderer& renderer, const Element& element)
{
    const Wording label = renderer.OwnLabel();
    const auto signature = renderer.TextOf(element);
    if (const auto name = NameOf(kIccTags, signature); !name.empty())
        PutNamed(renderer, label, name, signature);
    else if (const auto maker = MakerOf(signature); !maker.empty())
        PutNamed(renderer, label, std::string(maker) + " private tag", signature);
    else
        renderer.PutUnknown(label, signature);
}

void RenderIccType(Renderer& renderer, const Element& element)
{
    const Wording label = renderer.OwnLabel();
    const auto type = renderer.TextOf(element);
    if (const auto name = NameOf(kIccTypes, type); !name.empty()) return PutNamed(renderer, label, name, type);
    renderer.RedLine(label, L("Unknown"), type);
    renderer.TellFault(L("Tag signature"), L("Unknown"), type);  // sic, the message has the other label
}

}  // namespace folioscope
