// The keywords of a medium modification (MO:DCA, MMC). The trade says them in English everywhere; only words that the
// catalog has are translated.

#include <algorithm>

#include "analysis/render/forms.h"

namespace folioscope {

namespace {

enum class Shape : std::uint8_t {
    Word,    // a word, or by `other` what becomes of a value that none fits
    Number,  // a word, or the number between `before` and `after`
    Hex,
};

struct KeywordRow {
    std::uint8_t keyword;
    Shape shape;
    Other other;
    std::uint8_t least, most;  // numbers outside are invalid
    const char* head;
    std::span<const Word> words = {};
    Wording before = {};  // with a blank behind it
    const char* after = "";
};

constexpr KeywordRow Worded(std::uint8_t keyword, const char* head, std::span<const Word> words,
                            Other other = Other::Last)
{
    return {keyword, Shape::Word, other, 0, 0, head, words};
}
constexpr KeywordRow Numbered(std::uint8_t keyword, const char* head, std::span<const Word> words, Wording before = {},
                              const char* after = "")
{
    return {keyword, Shape::Number, Other::Invalid, 0, 255, head, words, before, after};
}
constexpr KeywordRow Limited(std::uint8_t keyword, const char* head, std::uint8_t least, std::uint8_t most,
                             const char* after = "")
{
    return {keyword, Shape::Number, Other::Invalid, least, most, head, {}, {}, after};
}
constexpr KeywordRow InHex(std::uint8_t keyword, const char* head)
{
    return {keyword, Shape::Hex, Other::Nothing, 0, 0, head};
}

// clang-format off
constexpr Word kUnchanged[] = {{255, L("Unchanged")}};
constexpr Word kAll[] = {{255, L("All")}};
constexpr Word kAlways[] = {{-1, L("Yes")}};
constexpr Word kNoOrYes[] = {{0, L("No")}, {-1, L("Yes")}};
constexpr Word kTrays[] = {{65, L("Envelope Tray")}, {100, L("Manual Feed Tray")}};
constexpr Word kNotActiveOrActive[] = {{0, L("Not active")}, {-1, L("Active")}};
constexpr Word kDuplex[] = {{1, "Simplex"}, {2, "Normal Duplex"}, {3, "Tumble Duplex"}};
constexpr Word kPrinterDefault[] = {{255, L("Printer Default")}};
constexpr Word kConstantForms[] = {{0, L("Not active")}, {1, L("Active")}};

constexpr KeywordRow kKeywords[] = {
    Numbered(0x0E, "Horizontal Print Adjustment", kUnchanged),
    InHex   (0x90, "Media Destination Selector High-Byte"),
    InHex   (0x91, "Media Destination Selector Low-Byte"),
    Numbered(0xA0, "Add Fixed Medium Information", kAll),
    Worded  (0xA1, "Apply Perforation Cut", kAlways),
    Worded  (0xA2, "Apply Separation Cut", kAlways),
    InHex   (0xB4, "Subsystem Setup ID High-Byte"),
    InHex   (0xB5, "Subsystem Setup ID Low-Byte"),
    Worded  (0xD1, "Apply Paper Stack Offset", kNoOrYes),
    Numbered(0xE0, "Media Source Selector Format", {}, "Format"),
    Numbered(0xE1, "Media Source Selector", kTrays, L("Paper Tray")),
    InHex   (0xE8, "Media Type Local ID High-Byte"),
    InHex   (0xE9, "Media Type Local ID Low-Byte"),
    Worded  (0xF1, "Forms Flash", kNotActiveOrActive),
    Limited (0xF2, "Medium Overlay Local ID", 0, 127),
    Limited (0xF3, "Text Suppression Local ID", 0, 127),
    Worded  (0xF4, "Duplex Control", kDuplex, Other::Unknown),
    Numbered(0xF8, "Print Quality Control", kPrinterDefault, {}, " (1=lowest, 254=highest)"),
    Worded  (0xF9, "Constant Forms Control", kConstantForms, Other::Unknown),
    Limited (0xFC, "N-Up Format Control", 1, 4, "-up"),
};
// clang-format on

constexpr const char* kUnknownKeyword = "Unknown Keyword";

// "x'12AB'": keyword and value.
void RenderUnknownKeyword(Renderer& renderer, std::int64_t keyword, std::int64_t value)
{
    std::string code = "x'";
    AppendHex(code, static_cast<std::uint64_t>(keyword << 8 | value), 4);
    code += '\'';
    std::string& out = renderer.BeginLine(kUnknownKeyword);
    out += kRed;
    out += code;
    out += kBlack;
    renderer.EndLine();
    renderer.sink.AddContentMessage(std::string(kUnknownKeyword) + ": " + code);
    renderer.sink.MarkNodeInvalid();
}

void RenderNumber(Renderer& renderer, const KeywordRow& row, std::int64_t value)
{
    std::string& out = renderer.BeginLine(row.head);
    if (const auto before = renderer.Say(row.before); !before.empty()) {
        out += before;
        out += ' ';
    }
    AppendNumber(out, value);
    out += row.after;
    renderer.EndLine();
}

void RenderHex(Renderer& renderer, const KeywordRow& row, std::int64_t value)
{
    std::string& out = renderer.BeginLine(row.head);
    out += "x'";
    AppendHex(out, static_cast<std::uint64_t>(value), 2);
    out += '\'';
    renderer.EndLine();
}

void RenderKeyword(Renderer& renderer, const KeywordRow& row, std::int64_t value)
{
    if (row.shape == Shape::Hex) return RenderHex(renderer, row, value);
    for (const Word& word : row.words)
        if (word.value == value) return renderer.PutLine(row.head, renderer.Say(word.text));
    if (row.shape == Shape::Number && value >= row.least && value <= row.most)
        return RenderNumber(renderer, row, value);
    if (row.other == Other::Last) return renderer.PutLine(row.head, renderer.Say(row.words.back().text));
    std::string number;
    AppendNumber(number, value);
    if (row.other == Other::Unknown) return renderer.PutUnknown(row.head, number);
    renderer.PutInvalid(row.head, number);
}

}  // namespace

void RenderModification(Renderer& renderer, const Element& element)
{
    const std::int64_t keyword = renderer.record.kept.Of(Key::MMCKeyword).number;
    const auto row =
        std::find_if(std::begin(kKeywords), std::end(kKeywords), [&](const auto& r) { return r.keyword == keyword; });
    if (row == std::end(kKeywords)) return RenderUnknownKeyword(renderer, keyword, element.number);
    RenderKeyword(renderer, *row, element.number);
}

}  // namespace folioscope
