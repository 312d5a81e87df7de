#include "objects/items_support.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "document/ports.h"

namespace folioscope::test {

namespace {

constexpr float kLineWidth = 0.01f;  // inches

bool HeadsEachRecord(Key key)
{
    return key == Key::SFStart || key == Key::SFLength || key == Key::NodeText || key == Key::SFName;
}

std::string Described(const ElementList& list, const Element& element)
{
    std::string line = DescriptionOf(list, element);
    if (element.tag != Tag::Float32 && element.tag != Tag::Float64) return line;
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.15g", element.real);
    return line.erase(line.rfind(' ') + 1) + digits;
}

std::string KeyIn(const std::string& line)
{
    const auto from = line.find(' ') + 1;
    return line.substr(from, line.find(' ', from) - from);
}

std::string WordOf(const WordCase& row, int value)
{
    for (const auto& [known, word] : row.words)
        if (known == value && !word.empty()) return std::string(word);
    return {};
}

}  // namespace

ItemWalk::ItemWalk(const AfpFile& file, Language language, NumberStyle style, const InputPages& pages)
    : walk(file, pages), bench(language, std::move(style))
{
    walk.afp.SetPorts(Decoders());
    bench.renderer.ports = Renderers();
    bench.renderer.lines = {kLineWidth, kLineWidth};
}

ShownItems ItemWalk::Next()
{
    walk.Next();
    if (walk.Has(Key::Unread)) {
        walk.afp.List().ClearCollections();
        walk.afp.AnalyzeSpecificRecord();
    }
    const ElementList& list = walk.afp.List();
    ShownItems shown;
    for (const Element& element : list.Elements()) {
        if (element.tag == Tag::Sequence) {
            shown.keys += (shown.keys.empty() ? "" : " ") + std::string(NameOf(element.key));
            shown.items.clear();
            for (const Element& item : list.SequenceOf(element)) shown.items.push_back(Described(list, item));
        } else if (!HeadsEachRecord(element.key)) {
            shown.record.push_back(Described(list, element));
        }
    }
    bench.renderer.text.Clear();
    bench.witness.heard.clear();
    bench.renderer.RenderStructuredField(list);
    shown.text = Readable(bench.renderer.text.Text());
    shown.heard = bench.witness.heard;
    EXPECT_EQ(bench.renderer.IndentText, "");
    return shown;
}

ShownItems ItemWalk::Last(int records)
{
    for (int i = 1; i < records; ++i) Next();
    return Next();
}

ShownItems ShowItems(std::string_view field, const Bytes& data) { return ItemWalk(AfpFile().Add(field, data)).Next(); }

std::vector<std::string> ValuesOf(const ShownItems& shown, std::string_view key)
{
    std::vector<std::string> values;
    for (const std::string& line : shown.items)
        if (KeyIn(line) == key) values.push_back(line.substr(line.find(' ', line.find(' ') + 1) + 1));
    return values;
}

std::string KeysOf(const ShownItems& shown)
{
    std::string keys;
    for (std::size_t i = 1; i < shown.items.size(); ++i) keys += (i == 1 ? "" : " ") + KeyIn(shown.items[i]);
    return keys;
}

void ExpectItems(std::string_view field, std::string_view pieces, std::string_view expected)
{
    SCOPED_TRACE(pieces);
    const ShownItems shown = ShowItems(field, Pieces(pieces));
    ExpectShown(shown.items, shown.text, expected);
    EXPECT_EQ(shown.record, std::vector<std::string>{});
    EXPECT_EQ(shown.heard, std::vector<std::string>{});
}

void ExpectFault(std::string_view field, std::string_view pieces, std::string_view message, std::string_view expected)
{
    SCOPED_TRACE(pieces);
    const ShownItems shown = ShowItems(field, Pieces(pieces));
    ExpectShown(shown.items, shown.text, expected);
    EXPECT_EQ(shown.record, std::vector<std::string>{});
    EXPECT_EQ(shown.heard, (std::vector<std::string>{"Message " + std::string(message), "Invalid"}));
}

void ExpectWords(const WordCase& row, std::string_view origin, const ShowWord& show)
{
    for (int value = 0; value < 256; ++value) {
        const ShownWord shown = show(Element::Byte(row.key, static_cast<std::uint8_t>(value)));
        const std::string head = "X: " + std::string(row.label) + ": ", word = WordOf(row, value);
        if (!word.empty()) {
            EXPECT_EQ(shown.text, head + word + '\n');
            EXPECT_EQ(shown.heard, std::vector<std::string>{});
            continue;
        }
        const std::string fault = "Unknown (" + std::to_string(value) + ')';
        EXPECT_EQ(shown.text, head + "<red>" + fault + "</red>\n");
        EXPECT_EQ(shown.heard,
                  (std::vector<std::string>{"Message " + std::string(origin) + '-' + head + fault, "Invalid"}));
    }
}

Bytes Chained(std::string_view pieces)
{
    const Bytes bytes = Pieces(pieces);
    return U1(static_cast<unsigned>(bytes.size()) + 1) + bytes;
}

Bytes Sequence(std::string_view pieces) { return U2(0x2BD3) + Chained(pieces); }

Bytes Long(std::string_view pieces)
{
    const Bytes bytes = Pieces(pieces);
    return bytes.substr(0, 1) + U1(static_cast<unsigned>(bytes.size()) - 1) + bytes.substr(1);
}

}  // namespace folioscope::test
