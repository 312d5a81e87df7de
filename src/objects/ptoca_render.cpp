#include "objects/ptoca_render.h"

#include "analysis/render/words_colors.h"
#include "objects/item_lines.h"

namespace folioscope {

namespace {

constexpr std::int64_t kNotGiven = 65'535;

void RenderText(Renderer& renderer, const Element& element)
{
    const std::string_view value = renderer.TextOf(element);
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    constexpr std::string_view kTextColumn = "\t\t";
    out += kTextColumn;
    out += kBold;
    if (value != std::string_view("\0", 1)) out += value;
    out += kNormal;
    renderer.EndLine();
}

template <Label label> void RenderSuppression(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(label);
    out += " (ID: ";
    renderer.AppendValue(out, element);
    out += ')';
    renderer.EndLine();
}

// A rule: its length and its width came before its direction.
void RenderRule(Renderer& renderer, const Element& direction)
{
    constexpr Label kDirections[] = {L("Right"), L("Down"), L("Left"), L("Up")};
    const Element length = renderer.record.kept.Of(Key::RuleLength), width = renderer.record.kept.Of(Key::RuleWidth);
    std::string& out = renderer.BeginLine(L("Rule"));
    out += renderer.Say(L("Direction"));
    out += ": ";
    out += renderer.Say(kDirections[direction.number - 1]);
    out += ", ";
    out += renderer.Say(L("Length"));
    out += ": ";
    AppendGrouped(renderer, out, length);
    out += ", ";
    out += renderer.Say(L("Width"));
    out += ": ";
    if (width.key == Key::NoKey || width.real == 0)
        out += "Minimum";
    else
        AppendGrouped(renderer, out, width);
    renderer.EndLine();
}

// A rule without a width of its own has none from the rule before it.
void KeepRuleLength(Renderer& renderer, const Element& length)
{
    renderer.record.kept.Keep(length);
    renderer.record.kept.Keep(Element::Float32(Key::RuleWidth, 0));
}

void RenderRepeatString(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Text"));
    out += '"';
    out += renderer.TextOf(element);
    out += "\", ";
    out += renderer.Say(L("No. of repetitions"));
    out += ": ";
    AppendGrouped(renderer, out, renderer.record.kept.Of(Key::RepeatCount));
    renderer.EndLine();
}

// The count of offsets, which goes by the glyphs' name.
void RenderGlyphCount(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Glyph-ID"));
    out += "x'";
    renderer.AppendValue(out, element);
    out += '\'';
    renderer.EndLine();
}

// 65535 stands for a value of the system's own.
template <std::int64_t ownValue> void RenderOrOwnValue(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(renderer.OwnLabel());
    AppendFormatted(out, element.number == kNotGiven ? ownValue : element.number, Picture::Grouped, renderer.style);
    renderer.EndLine();
}

constexpr Label kStates[] = {L("Deactivated"), L("Text and spaces"), L("Only texts")};

void RenderOverstrike(Renderer& renderer, const Element& character)
{
    std::string& out = renderer.BeginLine(L("Overstrike"));
    out += renderer.Say(kStates[renderer.record.kept.Of(Key::Overstrike).number]);
    if (const auto value = renderer.TextOf(character); !value.empty()) {
        out += renderer.Say(L("with Character"));
        out += ": \"";
        out += value;
        out += '"';
    }
    renderer.EndLine();
}

void RenderOrientation(Renderer& renderer, const Element& inlineOrientation)
{
    const Element baseline = renderer.record.kept.Of(Key::BaselineOrientation);
    std::string& out = renderer.BeginLine(L("Character orientation"));
    renderer.AppendValue(out, inlineOrientation);
    out += "°, ";
    out += renderer.Say(L("Baseline orientation"));
    out += ": ";
    AppendNumber(out, RoundHalfToEven(baseline.real));
    out += "°";
    renderer.EndLine();
    const auto degrees = [](const Element& element) {
        return static_cast<std::int16_t>(RoundHalfToEven(element.real));
    };
    renderer.orientation = OrientationQuadrants(degrees(inlineOrientation), degrees(baseline));
}

void PutTemporaryBaseline(Renderer& renderer, Label word)
{
    renderer.PutLine(L("Temporary Baseline"), renderer.Say(word));
}

// How far, in a line of its own without a name.
void PutIncrement(Renderer& renderer, const Element& increment)
{
    std::string& out = renderer.text.Open();
    out += ": ";
    if (increment.number == kNotGiven)
        out += renderer.Say(L("Default"));
    else
        AppendGrouped(renderer, out, increment);
    renderer.EndLine();
}

// The offset of the temporary baseline adds up from sequence to sequence.
void RenderTemporaryBaseline(Renderer& renderer, const Element& increment)
{
    enum Direction : std::int64_t { kNoChange, kBack, kAdd, kSubtract };
    const std::int64_t direction = renderer.record.kept.Of(Key::TBMDirection).number;
    std::int64_t& offset = renderer.record.baselineOffset;
    switch (direction) {
    case kNoChange: return PutTemporaryBaseline(renderer, L("No Change"));
    case kBack: offset = 0; return PutTemporaryBaseline(renderer, L("Back zu Baseline"));  // sic
    case kAdd: offset += increment.number; break;
    case kSubtract: offset -= increment.number; break;
    default: return;
    }
    PutTemporaryBaseline(renderer, offset > 0 ? L("Superscription in PELS") : L("Subscription in PELS"));
    PutIncrement(renderer, increment);
}

void RenderColorSpace(Renderer& renderer, const Element& element)
{
    struct Space {
        std::int64_t value;
        std::string_view name;
    };
    constexpr Space kSpaces[] = {{1, "RGB"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CIELAB"}, {64, "Standard OCA"}};
    for (const auto& [value, name] : kSpaces)
        if (value == element.number) renderer.PutLine(L("Color Space"), name);
}

// Not behind a name: the text of the Boolean takes the name's place until the next sequence begins.
void RenderSequenceUnknown(Renderer& renderer, const Element& element)
{
    renderer.IndentText.clear();
    renderer.AppendValue(renderer.IndentText, element);
    renderer.IndentText += ": ";
    PutUnknownItem(renderer, L("Unknown Control Sequence"), "PTX-");
}

// clang-format off
constexpr Word kDefault65535[] = {{65535, L("Default")}};
constexpr Word kFontLID[] = {{255, L("Default")}};
constexpr Word kUnderscore[] = {{0, L("Deactivated")}, {1, L("Text and spaces")}, {2, L("Only texts")}};
constexpr Word kVersion[] = {{1, "Base Level"}};
constexpr Word kGlyphs[] = {{1, L("Yes")}, {0x20, L("No")}};
constexpr Word kTrueFalse[] = {{0, L("false")}, {1, L("true")}};
constexpr Word kBiDi[] = {
    {0x02, L("Enabled, default paragraph direction is L -> R")},
    {0x04, L("Enabled, set paragraph direction is L -> R")},
    {0x05, L("Enabled, set paragraph direction is R -> L")},
    {0x12, L("Enabled, set paragraph direction from previous UCT")},
    {0x20, L("Disabled")},
    {0x22, L("Disabled, text direction L -> R")},
    {0x23, L("Disabled, text direction L -> R")},      // sic
};

constexpr LineRow kLines[] = {
    Own(Key::BeginSequence,       RenderItemName),
    {Key::Length,              Line::Count,  L("Length")},
    {Key::Content,             Line::Quoted, L("Content")},
    {Key::AbsoluteBaseline,    Line::Three,  L("Set cursor to Y position")},
    {Key::AbsoluteInline,      Line::Three,  L("Set cursor to X position")},
    {Key::RelativeBaseline,    Line::Three,  L("Move cursor in Y direction")},
    {Key::RelativeInline,      Line::Three,  L("Move cursor in X direction")},
    {Key::NOPSequence,         Line::Quoted, L("Comment")},
    Own(Key::TransparentData,     RenderText),
    Own(Key::NewLine,             RenderWordAlone<L("New Line")>),
    Own(Key::BeginSuppression,    RenderSuppression<L("Begin of Text Suppression")>),
    Own(Key::EndSuppression,      RenderSuppression<L("End of Text Suppression")>),
    Own(Key::RuleLength,          KeepRuleLength),
    {Key::RuleWidth,           Line::Keep},
    Own(Key::RuleDirection,       RenderRule),
    {Key::Overstrike,          Line::Keep},
    Own(Key::OverstrikeChar,      RenderOverstrike),
    {Key::RepeatCount,         Line::Keep},
    Own(Key::RepeatString,        RenderRepeatString),
    Own(Key::BaselineIncrement,   RenderOrOwnValue<240>, L("Baseline increment")),
    {Key::FontLID,             Line::Words,  L("Font"), kFontLID, Other::Number},
    Own(Key::ColorSpace,          RenderColorSpace),
    {Key::InterCharAdjust,     Line::Count,  L("Intercharacter adjustment")},
    Own(Key::InlineMargin,        RenderOrOwnValue<0>, L("Left margin")),
    {Key::BaselineOrientation, Line::Keep},
    Own(Key::InlineOrientation,   RenderOrientation),
    {Key::VariableSpace,       Line::Words,  L("Variable space dimension"), kDefault65535, Other::Count},
    {Key::TBMDirection,        Line::Keep},
    Own(Key::TBMIncrement,        RenderTemporaryBaseline),
    {Key::Underscore,          Line::Words,  L("Underscore"), kUnderscore, Other::Unknown},
    {Key::UCTVersion,          Line::Words,  L("UCT version level"), kVersion, Other::Unknown},
    {Key::UCTBiDi,             Line::Words,  L("Bidirectional layout processing control"), kBiDi, Other::Unknown},
    {Key::UCTGlyph,            Line::Words,  L("Apply glyph processing"), kGlyphs, Other::Unknown},
    {Key::UCTAltIPos,          Line::Plus,   L("Alternate current inline position")},
    {Key::UCTNormalization,    Line::Words,  L("Already normalized by generator"), kTrueFalse},
    {Key::UCTAltIPosValid,     Line::Words,  L("Alternate inline position is valid"), kTrueFalse},
    {Key::UCTAltIPosCoord,     Line::Words,  L("Use relative instead absolute coordinates"), kTrueFalse},
    {Key::UCTCurrentIPos,      Line::Words,  L("Maintain current inline position"), kTrueFalse},
    {Key::UCTResetDir,         Line::Words,  L("Reset paragraph direction"), kTrueFalse},
    {Key::UTLength,            Line::Count,  L("Length of all following UGI, UGA, UGO sequences")},
    {Key::GLIDLength,          Line::Count,  L("Length of a glyph ID in byte")},
    {Key::GLTTFIndex,          Line::Count,  L("Index into TTF font collection")},
    Own(Key::GLOfCount,           RenderGlyphCount),
    {Key::GLIDCount,           Line::Count,  L("Number of glyphs")},
    {Key::GLAdCount,           Line::Count,  L("Number of advances")},
    {Key::GLAdvance,           Line::Plus,   L("Inline advance")},
    {Key::GLOffset,            Line::Plus,   L("Baseline offset")},
    {Key::HexCode,             Line::Hex,    L("Hex-Codes")},
    Own(Key::SequenceUnknown,     RenderSequenceUnknown),

    {Key::EndSequence,         Line::Silent},
    {Key::SequenceName,        Line::Silent},
    {Key::GLID,                Line::Silent},          // glyphs themselves aren't told
    {Key::GLCAdvance,          Line::Silent},
    {Key::GLCFontOID,          Line::Silent},
    {Key::GLCFontname,         Line::Silent},
};
// clang-format on

constexpr LineIndex kLineOf = IndexOf(kLines, kColorLines);

}  // namespace

const LineIndex& SequenceLines() { return kLineOf; }

void RenderSequences(Renderer& renderer, std::span<const Element> sequence)
{
    constexpr std::int16_t kUpright = 0, kDownwards = 90;
    renderer.orientation = OrientationQuadrants(kUpright, kDownwards);
    renderer.RenderItems(sequence, kLineOf, "PTX-");
}

OrientationMapping OrientationQuadrants(std::int16_t inlineDegrees, std::int16_t baselineDegrees)
{
    constexpr std::int32_t kQuarter = 90;
    const auto quarters = [](std::int32_t degrees) {
        return static_cast<std::int16_t>(RoundHalfToEven(static_cast<double>(degrees) / kQuarter));
    };
    std::int32_t difference = baselineDegrees - inlineDegrees;
    if (difference < -kQuarter) difference += 4 * kQuarter;
    if (difference > kQuarter) difference -= 4 * kQuarter;
    OrientationMapping mapping;
    mapping.first = quarters(inlineDegrees);
    mapping.difference = quarters(difference);
    mapping.axis = static_cast<std::int16_t>((mapping.first + mapping.difference) & 3);
    return mapping;
}

}  // namespace folioscope
