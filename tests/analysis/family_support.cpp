#include "analysis/family_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace folioscope::test {

namespace {

struct Sign {
    std::string_view written, readable;
};
constexpr Sign kSigns[] = {{"\t", "→"},        {"\r\n", "\n"},      {"°^°B~", "<b>"},    {"°^°N~", "</b>"},
                           {"°^°R~", "<red>"}, {"°^°S~", "</red>"}, {"°^°H~", "<link>"}, {"°^°L~", "</link>"}};

std::string ValueOf(const ElementList& list, const Element& element)
{
    switch (element.tag) {
    case Tag::Text:
    case Tag::Literal: return std::string(list.TextOf(element));
    case Tag::Boolean: return element.number != 0 ? "True" : "False";
    case Tag::Float32:
    case Tag::Float64: {
        char digits[32];
        std::snprintf(digits, sizeof digits, "%.15g", element.real);
        return digits;
    }
    case Tag::Sequence: return std::to_string(element.size);
    default: return std::to_string(element.number);
    }
}

bool HeadsEachRecord(Key key)
{
    return key == Key::SFStart || key == Key::SFLength || key == Key::NodeText || key == Key::SFName;
}

std::string Replaced(std::string text, std::string_view what, std::string_view with)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
    return text;
}

std::vector<std::string> LinesIn(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

// Each line of the text without the one tab that stands before it.
std::string OneTabLess(std::string_view text)
{
    std::string out;
    for (const std::string& line : LinesIn(text)) {
        EXPECT_TRUE(line.empty() || line.starts_with("→")) << line;
        out += line.starts_with("→") ? std::string_view(line).substr(std::string_view("→").size()) : line;
        out += '\n';
    }
    return out;
}

std::pair<std::size_t, std::size_t> TripletRange(const std::vector<std::string>& elements)
{
    const auto name = std::ranges::find_if(elements, [](const auto& e) { return e.starts_with("TripletName "); });
    const auto end = std::find(name, elements.end(), "EndTriplet True");
    if (name == elements.end() || end == elements.end()) return {0, 0};
    return {name - elements.begin() + 1, end - elements.begin()};
}

}  // namespace

std::string Readable(std::string_view propertyText)
{
    std::string text(propertyText);
    for (const auto& [written, readable] : kSigns) text = Replaced(std::move(text), written, readable);
    return text;
}

LineBench& LineBench::AddText(Key key, std::string_view text)
{
    const auto from = list.Pool().size();
    list.Pool() += text;
    return Add(list.PooledText(key, from));
}

std::string LineBench::Text()
{
    renderer.text.Clear();
    renderer.RenderStructuredField(list);
    list.ClearCollections();
    return Readable(renderer.text.Text());
}

Shown FamilyWalk::Next()
{
    walk.Next();
    const ElementList& list = walk.afp.List();
    Shown shown;
    for (const Element& element : list.Elements())
        if (!HeadsEachRecord(element.key))
            shown.elements.push_back(std::string(NameOf(element.key)) + ' ' + ValueOf(list, element));
    shown.typed = walk.Body();
    bench.renderer.text.Clear();
    bench.witness.heard.clear();
    bench.renderer.RenderStructuredField(list);
    shown.text = Readable(bench.renderer.text.Text());
    shown.heard = bench.witness.heard;
    EXPECT_EQ(bench.renderer.IndentText, "");
    return shown;
}

Shown FamilyWalk::Last(int records)
{
    for (int i = 1; i < records; ++i) Next();
    return Next();
}

Shown ShowRecord(const Field& field, const InputPages& pages) { return FamilyWalk(AfpFile().Add(field), pages).Next(); }

Shown ShowTriplets(const Bytes& triplets, const InputPages& pages) { return ShowRecord({"OBD", triplets}, pages); }

void ExpectShown(const std::vector<std::string>& elements, const std::string& text, std::string_view expected)
{
    constexpr std::string_view kBetween = " | ";
    std::vector<std::string> expectedElements;
    std::string expectedText;
    for (const std::string& line : LinesIn(expected)) {
        const auto at = line.find(kBetween);
        expectedElements.push_back(line.substr(0, at));
        if (at == std::string::npos) continue;
        expectedText += Replaced(line.substr(at + kBetween.size()), "¶", "\n") + '\n';
        if (expectedText.ends_with("~\n")) expectedText.resize(expectedText.size() - 2);
    }
    EXPECT_EQ(elements, expectedElements);
    EXPECT_EQ(text, expectedText);
}

void ExpectTriplet(const Shown& shown, std::string_view name, std::string_view expected)
{
    const auto [first, last] = TripletRange(shown.elements);
    ASSERT_GE(first, 4u) << "no triplet with a name";
    const std::string id(name.substr(0, 5));
    EXPECT_TRUE(shown.elements[first - 4].starts_with("TripletStartbyte "));
    EXPECT_TRUE(shown.elements[first - 3].starts_with("TripletLength "));
    EXPECT_EQ(shown.elements[first - 2], "BeginTriplet " + id);
    EXPECT_EQ(shown.elements[first - 1], "TripletName " + std::string(name));

    const std::string head = "\nTriplet:<b>→" + std::string(name) + "</b>\n";
    const auto at = shown.text.find(head);
    ASSERT_NE(at, std::string::npos) << shown.text;
    const auto from = static_cast<std::ptrdiff_t>(first), to = static_cast<std::ptrdiff_t>(last);
    ExpectShown({shown.elements.begin() + from, shown.elements.begin() + to},
                OneTabLess(std::string_view(shown.text).substr(at + head.size())), expected);
}

std::vector<std::string> ValuesOf(const Shown& shown, std::string_view key)
{
    std::vector<std::string> values;
    for (const std::string& element : shown.elements)
        if (element.starts_with(std::string(key) + ' ')) values.push_back(element.substr(key.size() + 1));
    return values;
}

bool Has(const Shown& shown, std::string_view key) { return !ValuesOf(shown, key).empty(); }

std::string KeysOf(const Shown& shown)
{
    const auto [first, last] = TripletRange(shown.elements);
    std::string keys;
    for (std::size_t i = first; i < last; ++i)
        keys += (keys.empty() ? "" : " ") + shown.elements[i].substr(0, shown.elements[i].find(' '));
    return keys;
}

}  // namespace folioscope::test
