#include "analysis/render/renderer.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::string_view kColon = ": ";
constexpr Wording kStructuredField = L("Structured Field");
constexpr Wording kStartByte = L("Start byte");
constexpr Wording kLength = L("Length");

// The hex pane shows what these records hold.
constexpr std::array<std::string_view, 6> kHexPaneRecords = {"IRD", "FNG", "OCD", "BDA/BSA", "FDX", "NOP"};

// One character U+0000 or U+00FF stands for a text that isn't given.
bool IsNotGiven(std::string_view value) { return value == std::string_view("\0", 1) || value == "ÿ"; }

std::size_t GroupedLength(std::int64_t value, const NumberStyle& style)
{
    std::size_t digits = 1;
    for (; value >= 10; value /= 10) ++digits;
    return digits + (digits - 1) / 3 * Utf16Length(style.thousands);
}

}  // namespace

void KeptElements::Keep(const Element& element)
{
    std::size_t at = 0;
    while (at < size_ && elements_[at].key != element.key) ++at;
    if (at == elements_.size()) return;
    elements_[at] = element;
    if (at == size_) ++size_;
}

Element KeptElements::Of(Key key) const
{
    for (std::size_t at = 0; at < size_; ++at)
        if (elements_[at].key == key) return elements_[at];
    return {};
}

void RecordState::Reset()
{
    bits = intensity = colorValue = {};
    barCodeType = baselineOffset = x = y = 0;
    arc = {};
    kept.Clear();
}

Renderer::Renderer(Labels analysisLabels, const Settings& userSettings, NumberStyle numbers, NodeSink& nodes)
    : labels(analysisLabels), settings(userSettings), style(std::move(numbers)), sink(nodes)
{
    std::string words;
    AppendHeadLines(words, "", 1, 0);
    headWords_ = Utf16Length(words) - 2 * GroupedLength(0, style);
}

std::string_view Renderer::Say(Wording wording) const
{
    return wording.label == Label::None ? wording.literal : labels[wording.label];
}

void Renderer::RenderStructuredField(const ElementList& elements)
{
    list = &elements;
    record.Reset();
    for (const Element& element : elements.Elements()) RenderElement(LineOf(element.key), element);
}

void Renderer::RenderLines(std::span<const Element> elements, const LineIndex& lineOf)
{
    const RecordState outer = record;
    record.Reset();
    for (const Element& element : elements) RenderElement(lineOf[static_cast<std::size_t>(element.key)], element);
    record = outer;
}

void Renderer::RenderItems(std::span<const Element> items, const LineIndex& lineOf, std::string_view origin)
{
    outerIndent_.swap(IndentText);
    IndentText = ": ";
    origin_ = origin;
    named_ = true;
    RenderLines(items, lineOf);
    named_ = false;
    origin_ = {};
    outerIndent_.swap(IndentText);
}

void Renderer::RenderDeferred(std::span<const Element> elements, const LineIndex& lineOf, std::string_view origin)
{
    outerIndent_.swap(IndentText);
    IndentText.clear();
    std::swap(text, deferredText);
    origin_ = origin;
    RenderLines(elements, lineOf);
    origin_ = {};
    std::swap(text, deferredText);
    outerIndent_.swap(IndentText);
}

void Renderer::RenderElement(const LineRow* row, const Element& element)
{
    if (row == nullptr || row->line == Line::Silent) return;
    row_ = row;
    if (row->line == Line::Custom) return row->custom(*this, element);
    if (row->line == Line::Keep) return record.kept.Keep(element);
    if (row->line == Line::Words) return RenderWords(*row, element);
    if (row->line == Line::Bold) {
        std::string& out = text.Open();
        out += IndentText;
        out += Say(row->label);
        out += ":\t";
        out += kBold;
        if (!IsNotGiven(TextOf(element))) AppendValue(out, element);
        out += kNormal;
        return EndLine();
    }
    std::string& out = BeginLine(row->label);
    switch (row->line) {
    case Line::Plain: AppendValue(out, element); break;
    case Line::Count: AppendNumber(out, element, Picture::Grouped); break;
    case Line::Three: AppendNumber(out, element, Picture::GroupedThree); break;
    case Line::Plus: AppendNumber(out, element, Picture::Plus); break;
    case Line::Flag: out += Say(element.number != 0 ? L("Yes") : L("No")); break;
    case Line::Quoted:
        out += '"';
        if (const auto value = TextOf(element); !value.starts_with('\0')) out += value;
        out += '"';
        break;
    case Line::Hex:
        out += "x'";
        out += TextOf(element);
        out += '\'';
        break;
    default: break;
    }
    EndLine();
}

void Renderer::RenderWords(const LineRow& row, const Element& element)
{
    auto found = std::find_if(row.words.begin(), row.words.end(),
                              [&](const Word& word) { return word.value == element.number; });
    if (found == row.words.end() && row.other == Other::Last) --found;
    if (found != row.words.end()) {
        std::string& out = BeginLine(row.label);
        out += Say(found->text);
        out += Say(found->more);
        return EndLine();
    }
    if (row.other == Other::Count) {
        AppendNumber(BeginLine(row.label), element, Picture::Grouped);
        return EndLine();
    }
    std::string number;
    AppendValue(number, element);
    if (row.other == Other::Unknown) PutUnknown(row.label, number);
    if (row.other == Other::Invalid) PutInvalid(row.label, number);
    if (row.other == Other::Number) PutLine(row.label, number);
}

void Renderer::AppendValue(std::string& out, const Element& element) const
{
    switch (element.tag) {
    case Tag::Int16:
    case Tag::Int32:
    case Tag::Byte: folioscope::AppendNumber(out, element.number); break;
    case Tag::Float32: folioscope::AppendNumber(out, static_cast<float>(element.real), style); break;
    case Tag::Float64: folioscope::AppendNumber(out, element.real, style); break;
    case Tag::Boolean: out += element.number != 0 ? "True" : "False"; break;
    case Tag::Text:
    case Tag::Literal: out += TextOf(element); break;
    case Tag::Sequence: break;
    }
}

void Renderer::AppendNumber(std::string& out, const Element& element, Picture picture) const
{
    if (element.tag == Tag::Float32)
        AppendFormatted(out, static_cast<float>(element.real), picture, style);
    else if (element.tag == Tag::Float64)
        AppendFormatted(out, element.real, picture, style);
    else if (element.tag == Tag::Text || element.tag == Tag::Literal)
        out += TextOf(element);
    else
        AppendFormatted(out, element.number, picture, style);
}

std::string& Renderer::BeginLine(Wording label)
{
    std::string& out = text.Open();
    out += IndentText;
    out += Say(label);
    out += kColon;
    return out;
}

void Renderer::EndLine()
{
    text.Opened() += kCrLf;
    text.Close();
}

void Renderer::PutLine(Wording label, std::string_view value)
{
    BeginLine(label) += value;
    EndLine();
}

void Renderer::RedLine(Wording label, Label fault, std::string_view value)
{
    std::string& out = BeginLine(label);
    out += kRed;
    out += Say(fault);
    out += " (";
    out += value;
    out += ')';
    out += kBlack;
    EndLine();
}

// A value that no table knows: a red line, a message, and a red path to the root.
void Renderer::PutFault(Wording label, Label fault, std::string_view value)
{
    RedLine(label, fault, value);
    TellFault(label, fault, value);
}

void Renderer::TellFault(Wording label, Label fault, std::string_view value)
{
    std::string message(origin_);
    if (named_) message += IndentText;
    message += Say(label);
    message += ": ";
    message += Say(fault);
    message += " (";
    message += value;
    message += ')';
    sink.AddContentMessage(message);
    sink.MarkNodeInvalid();
}

void Renderer::AppendHeadLines(std::string& out, std::string_view SFName, std::int32_t start, std::int32_t length) const
{
    out += Say(kStructuredField);
    out += ":\t";
    out += kBold;
    out += SFName;
    out += kNormal;
    out += kCrLf;
    out += Say(kStartByte);
    out += ":\t";
    AppendFormatted(out, std::int64_t{start} - 1, Picture::Grouped, style);
    out += "   (x'";
    for (const int shift : {24, 16, 8, 0}) {
        AppendHex(out, static_cast<std::uint32_t>(start - 1) >> shift & 0xFF, 2);
        if (shift != 0) out += ' ';
    }
    out += "')";
    out += kCrLf;
    out += Say(kLength);
    out += ":\t";
    AppendFormatted(out, std::int64_t{length}, Picture::Grouped, style);
    out += " Bytes";
    out += kCrLf;
    out += kCrLf;
}

std::size_t Renderer::HeadLinesLength(std::string_view SFName, std::int32_t start, std::int32_t length) const
{
    return headWords_ + Utf16Length(SFName) + GroupedLength(std::int64_t{start} - 1, style) +
           GroupedLength(length, style);
}

void RenderNodeText(Renderer& renderer, const Element& element)
{
    renderer.nodeText = renderer.TextOf(element);
    renderer.sink.SetNodeText(renderer.nodeText);
}

// The head lines are a formula of what the node keeps anyway, so they are counted here and written where they are
// shown.
void RenderSFName(Renderer& renderer, const Element& element)
{
    renderer.text.Pass(renderer.HeadLinesLength(renderer.TextOf(element), renderer.SFStart, renderer.SFLength));
}

void RenderSFStart(Renderer& renderer, const Element& element)
{
    renderer.SFStart = static_cast<std::int32_t>(element.number);
    renderer.nodeText = {};
}

void RenderSFLength(Renderer& renderer, const Element& element)
{
    renderer.SFLength = static_cast<std::int32_t>(element.number);
}

void RenderName(Renderer& renderer, const Element& element)
{
    const auto name = renderer.TextOf(element);
    const auto shown = IsNotGiven(name) ? std::string_view() : TrimBlanks(name);
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(L("Name"));
    if (shown.empty()) {
        out += ":\t\"\"";
    } else {
        out += ':';
        out += kBold;
        out += '\t';
        out += shown;
        out += kNormal;
    }
    renderer.EndLine();
}

void RenderShowResName(Renderer& renderer, const Element& element)
{
    const auto name = renderer.TextOf(element);
    if (!name.empty() && name.front() != '\0' && !name.starts_with("ÿ")) renderer.sink.ShowResName(name);
}

void RenderHexCode(Renderer& renderer, const Element& element)
{
    if (std::find(kHexPaneRecords.begin(), kHexPaneRecords.end(), renderer.nodeText) != kHexPaneRecords.end()) return;
    std::string& out = renderer.BeginLine(L("Hex-Codes"));
    out += "x'";
    out += renderer.TextOf(element);
    out += '\'';
    renderer.EndLine();
}

void RenderUnknown(Renderer& renderer, const Element&)
{
    std::string& out = renderer.BeginLine(kStructuredField);
    out += kRed;
    out += renderer.Say(L("Unknown"));
    out += kBlack;
    renderer.EndLine();
    std::string& second = renderer.BeginLine(kLength);
    AppendFormatted(second, std::int64_t{renderer.SFLength}, Picture::Grouped, renderer.style);
    second += " Bytes";
    renderer.EndLine();
    std::string message(renderer.Say(kStructuredField));
    message += ": ";
    message += renderer.Say(L("Unknown"));
    renderer.sink.AddContentMessage(message);
    renderer.sink.MarkNodeInvalid();
}

void RenderUnread(Renderer& renderer, const Element&) { renderer.sink.SetUnread(); }

namespace {

void PutGroupHead(Renderer& renderer, const Element& element, Wording word, bool bold)
{
    std::string& out = renderer.text.Open();
    out += kCrLf;
    out += renderer.IndentText;
    if (bold) out += kBold;
    out += renderer.Say(word);
    out += ' ';
    renderer.AppendValue(out, element);
    if (bold) out += kNormal;
    renderer.EndLine();
    renderer.IndentText += '\t';
}

}  // namespace

void RenderBeginRepetition(Renderer& renderer, const Element& element)
{
    PutGroupHead(renderer, element, L("Element"), true);
}

void RenderBeginRepetitionTRP(Renderer& renderer, const Element& element)
{
    PutGroupHead(renderer, element, L("Element"), false);
}

void RenderBeginColor(Renderer& renderer, const Element& element)
{
    PutGroupHead(renderer, element, L("Entry"), false);
}

void RenderEndOfGroup(Renderer& renderer, const Element&)
{
    if (!renderer.IndentText.empty()) renderer.IndentText.pop_back();
}

void RenderItemName(Renderer& renderer, const Element& element)
{
    renderer.IndentText.assign(renderer.TextOf(element));
    renderer.IndentText += kColon;
}

}  // namespace folioscope
