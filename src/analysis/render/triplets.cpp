#include "analysis/render/triplets.h"

namespace folioscope {

void RenderBeginTriplet(Renderer& renderer, const Element&) { renderer.text.Append(renderer.IndentText); }

void RenderTripletName(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += kCrLf;
    out += renderer.IndentText;
    out += renderer.Say(L("Triplet"));
    out += ':';
    out += kBold;
    out += '\t';
    out += renderer.TextOf(element);
    out += kNormal;
    renderer.EndLine();
    renderer.IndentText += '\t';
}

void RenderTripletUnknown(Renderer& renderer, const Element&)
{
    std::string& out = renderer.text.Open();
    out += renderer.Say(L("Triplet"));
    out += kCrLf;
    out += ": ";
    out += kRed;
    out += renderer.Say(L("Unknown"));
    out += kBlack;
    renderer.EndLine();
    std::string message(renderer.Say(L("Triplet")));
    message += ": ";
    message += renderer.Say(L("Unknown"));
    renderer.sink.AddContentMessage(message);
    renderer.sink.MarkNodeInvalid();
    renderer.IndentText += '\t';
}

void RenderTripletInvalid(Renderer& renderer, const Element&) { renderer.IndentText += '\t'; }

}  // namespace folioscope
