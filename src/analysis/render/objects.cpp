#include "analysis/render/objects.h"

namespace folioscope {

namespace {

// These stand at the margin: they speak of the whole record.
void PutLabel(Renderer& renderer, Wording label)
{
    std::string& out = renderer.text.Open();
    out += renderer.Say(label);
    renderer.EndLine();
}

}  // namespace

void RenderContFromLastSF(Renderer& renderer, const Element&)
{
    PutLabel(renderer, L("... preceding element exists ..."));
}

void RenderContInNextSF(Renderer& renderer, const Element&) { PutLabel(renderer, L("... to be continued ...")); }

void RenderChainingActiveAtEnd(Renderer& renderer, const Element&)
{
    constexpr Wording kUnfinished = L("Unfinished chaining flag on last control sequence!");
    std::string& out = renderer.text.Open();
    out += kRed;
    out += renderer.Say(kUnfinished);
    out += kBlack;
    renderer.EndLine();
    renderer.sink.AddContentMessage(renderer.Say(kUnfinished));
    renderer.sink.MarkNodeInvalid();
}

}  // namespace folioscope
