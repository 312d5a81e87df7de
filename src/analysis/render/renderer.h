#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "analysis/elements/element_list.h"
#include "analysis/render/lines.h"
#include "analysis/render/node_sink.h"
#include "analysis/render/property_text.h"
#include "base/labels.h"
#include "base/numbers.h"
#include "base/settings.h"

namespace folioscope {

// The resolutions last seen, in units an inch. A size is shown with the one that passed last, in whichever field it
// stood; they outlive the record.
struct UnitState {
    std::int16_t PageUnitsX = 1440, PageUnitsY = 1440;
    std::int16_t ObjectUnitsX = 1440, ObjectUnitsY = 1440;
    bool operator==(const UnitState&) const = default;
};

// Line widths in inches, which outlive the record too.
struct LineState {
    float NormalLineWidth = 1.0f / 120;
    float CurrentLineWidth = 1.0f / 120;
    bool operator==(const LineState&) const = default;
};

// Elements that wait for a later one of the same record or sequence, the last one of each key. More than fit are not
// kept: no structure has so many keys that wait.
class KeptElements {
public:
    void Keep(const Element& element);
    Element Of(Key key) const;  // a number 0 if none is kept
    void Clear() { size_ = 0; }

private:
    std::array<Element, 24> elements_;
    std::size_t size_ = 0;
};

// What Elements leave for later ones of the same record or sequence.
struct RecordState {
    void Reset();

    Element bits, intensity, colorValue;
    std::int64_t barCodeType = 0;
    std::int64_t baselineOffset = 0;  // of the temporary baseline of a text
    std::int64_t x = 0, y = 0;        // the current position of a drawing
    std::array<std::int64_t, 4> arc{};
    KeptElements kept;
};

// How the text read last lies: quarter turns of the inline direction and of the baseline direction, and the difference.
struct OrientationMapping {
    std::int16_t first = 0, axis = 0, difference = 0;
};

struct Renderer;

// Renderers of sequences, which lie above this floor. A sequence whose renderer is missing writes nothing.
using SequenceRenderer = void (*)(Renderer&, std::span<const Element>);
struct RenderPorts {
    SequenceRenderer Sequences = nullptr;       // ArrayElementValue: presentation text
    SequenceRenderer Orders = nullptr;          // OrderElementValue: graphics
    SequenceRenderer Fields = nullptr;          // SDFElementValue: images
    SequenceRenderer FontArray = nullptr;       // FontArrayValue
    SequenceRenderer ColourResource = nullptr;  // CMRDataValue
};

// Turns the Elements of a record into its property text, and tells the tree what concerns it.
struct Renderer {
    Renderer(Labels analysisLabels, const Settings& userSettings, NumberStyle numbers, NodeSink& nodes);

    // Walks the Elements in order. Adds to `text`; the caller clears it between records.
    void RenderStructuredField(const ElementList& elements);
    // Elements by lines of their own, with a state of their own.
    void RenderLines(std::span<const Element> elements, const LineIndex& lineOf);
    // The same for the items of a data object: IndentText is the item's name and ": ", and the messages of unknown
    // values begin with `origin` and the name.
    void RenderItems(std::span<const Element> items, const LineIndex& lineOf, std::string_view origin);
    // The same into the text that belongs to another node. The messages begin with `origin` alone.
    void RenderDeferred(std::span<const Element> elements, const LineIndex& lineOf, std::string_view origin);

    // The three lines that head every record: name, start (SFStart counts from 1, the line from 0) and length in bytes.
    void AppendHeadLines(std::string& out, std::string_view SFName, std::int32_t SFStart, std::int32_t SFLength) const;
    // How many characters they have.
    std::size_t HeadLinesLength(std::string_view SFName, std::int32_t SFStart, std::int32_t SFLength) const;

    // For the lines ------------------------------------------------------------------------------------------------

    std::string_view Say(Wording wording) const;
    std::string_view TextOf(const Element& element) const { return list->TextOf(element); }
    void AppendValue(std::string& out, const Element& element) const;  // a number without a picture, or a text
    void AppendNumber(std::string& out, const Element& element, Picture picture) const;
    std::string UnitsText(std::int32_t value, std::int16_t intUnits) const;

    // The label of the line in hand.
    Wording OwnLabel() const { return row_->label; }
    // Indentation, label and ": ". The caller writes the rest behind it and calls EndLine.
    std::string& BeginLine(Wording label);
    void EndLine();
    void PutLine(Wording label, std::string_view value);
    void PutUnknown(Wording label, std::string_view value) { PutFault(label, L("Unknown"), value); }
    void PutInvalid(Wording label, std::string_view value) { PutFault(label, L("Invalid"), value); }
    void RedLine(Wording label, Label fault, std::string_view value);
    // The message of a fault, and a red path to the root.
    void TellFault(Wording label, Label fault, std::string_view value);

    Labels labels;
    const Settings& settings;
    NumberStyle style;
    NodeSink& sink;
    PropertyText text;
    PropertyText deferredText;  // for the node in front of the object's data; the caller clears it too
    std::string IndentText;     // tabs in front of each line
    UnitState units;
    LineState lines;
    RenderPorts ports;
    OrientationMapping orientation;

    // Of the record in hand.
    const ElementList* list = nullptr;
    RecordState record;
    std::string_view nodeText;
    std::int32_t SFStart = 0, SFLength = 0;

private:
    void RenderElement(const LineRow* row, const Element& element);
    void RenderWords(const LineRow& row, const Element& element);
    void PutFault(Wording label, Label fault, std::string_view value);

    const LineRow* row_ = nullptr;  // of the line in hand
    std::string_view origin_;       // of the items in hand; empty outside of them
    bool named_ = false;            // items whose name is IndentText
    std::string outerIndent_;
    std::size_t headWords_;  // characters of the head lines that are the same for all records
};

// Lines of their own shape.
void RenderNodeText(Renderer&, const Element&);
void RenderSFName(Renderer&, const Element&);
void RenderSFStart(Renderer&, const Element&);
void RenderSFLength(Renderer&, const Element&);
void RenderName(Renderer&, const Element&);
void RenderShowResName(Renderer&, const Element&);
void RenderHexCode(Renderer&, const Element&);
void RenderUnknown(Renderer&, const Element&);
void RenderUnread(Renderer&, const Element&);
void RenderBeginRepetition(Renderer&, const Element&);
void RenderBeginRepetitionTRP(Renderer&, const Element&);
void RenderBeginColor(Renderer&, const Element&);
void RenderEndOfGroup(Renderer&, const Element&);
void RenderItemName(Renderer&, const Element&);  // the name that the lines behind it begin with

// The sequence's line is a text of its own, made by a port.
template <SequenceRenderer RenderPorts::*port> void RenderThrough(Renderer& renderer, const Element& element)
{
    if (const SequenceRenderer render = renderer.ports.*port) render(renderer, renderer.list->SequenceOf(element));
}

}  // namespace folioscope
