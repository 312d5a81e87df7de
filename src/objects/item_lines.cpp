#include "objects/item_lines.h"

namespace folioscope {

void PutUnknownItem(Renderer& renderer, Label fault, std::string_view origin)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += kRed;
    out += renderer.Say(fault);
    out += kBlack;
    renderer.EndLine();
    std::string message(origin);
    message += renderer.Say(fault);
    renderer.sink.AddContentMessage(message);
    renderer.sink.MarkNodeInvalid();
}

void PutItemLine(Renderer& renderer, Wording words)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(words);
    renderer.EndLine();
}

void AppendGrouped(Renderer& renderer, std::string& out, const Element& element)
{
    renderer.AppendNumber(out, element, Picture::Grouped);
}

void AppendGrouped(Renderer& renderer, std::string& out, std::int64_t value)
{
    AppendFormatted(out, value, Picture::Grouped, renderer.style);
}

}  // namespace folioscope
