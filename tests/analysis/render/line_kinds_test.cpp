// The kinds of line, under a table of our own in place of the program's: a program of its own, since LineOf stands
// only once in one. It shows each kind whatever keys use it.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/render_bench.h"

namespace folioscope {

namespace {

void RenderOwn(Renderer& renderer, const Element& element) { renderer.PutInvalid("Own", renderer.TextOf(element)); }

constexpr Word kWords[] = {{0, L("Yes")}, {7, "seven"}, {-1, L("Default")}, {7, "seven again"}};

// clang-format off
constexpr LineRow kPlanted[] = {
    {Key::SFStart,     Line::Plain,  L("Length")},
    {Key::SFLength,    Line::Count,  L("Length")},
    {Key::Unknown,     Line::Flag,   L("Name")},
    {Key::NOPContent,  Line::Bold,   L("Content")},
    {Key::Name,        Line::Quoted, L("Name")},
    {Key::HexCode,     Line::Hex,    "literal"},
    {Key::UnitBaseX,   Line::Words,  L("Name"), kWords, Other::Unknown},
    {Key::UnitBaseY,   Line::Words,  L("Name"), kWords, Other::Invalid},
    {Key::PageSizeX,   Line::Words,  L("Name"), kWords, Other::Number},
    {Key::PageSizeY,   Line::Words,  L("Name"), kWords, Other::Nothing},
    {Key::ShowResName, Line::Custom, {}, {}, Other::Nothing, RenderOwn},
    {Key::FullSF,      Line::Silent, L("Name")},
};
// clang-format on

}  // namespace

const LineRow* LineOf(Key key)
{
    for (const LineRow& row : kPlanted)
        if (row.key == key) return &row;
    return nullptr;
}

Label ColorName(std::int32_t) { return Label::None; }

namespace {

using test::RenderBench;

using Told = std::vector<std::string>;

std::string Rendered(const Element& element, Language language = Language::English, NumberStyle style = {})
{
    return RenderBench(language, std::move(style)).Add(element).Render();
}

TEST(PlainLine, HasTheNumberWithoutSeparators)
{
    EXPECT_EQ(Rendered(Element::Int32(Key::SFStart, 1'234'567)), "Length: 1234567\r\n");
    EXPECT_EQ(Rendered(Element::Int16(Key::SFStart, -32'768)), "Length: -32768\r\n");
    EXPECT_EQ(Rendered(Element::Byte(Key::SFStart, 255)), "Length: 255\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFStart, 0)), "Length: 0\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFStart, -2'147'483'647 - 1)), "Length: -2147483648\r\n");
}

TEST(PlainLine, HasTheDigitsOfAFloat)
{
    EXPECT_EQ(Rendered(Element::Float64(Key::SFStart, 1.0 / 3)), "Length: 0.333333333333333\r\n");
    EXPECT_EQ(Rendered(Element::Float32(Key::SFStart, 1.0 / 3)), "Length: 0.3333333\r\n");
    EXPECT_EQ(Rendered(Element::Float64(Key::SFStart, 2.5), Language::German, {".", ","}), "Länge: 2,5\r\n");
    EXPECT_EQ(Rendered(Element::Float64(Key::SFStart, 18446744073709551616.0)), "Length: 1.84467440737096E+19\r\n");
    EXPECT_EQ(Rendered(Element::Float64(Key::SFStart, -12)), "Length: -12\r\n");
}

TEST(PlainLine, HasATextAsItIs)
{
    EXPECT_EQ(RenderBench().TextLine(Key::SFStart, " A "), "Length:  A \r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::SFStart, std::string_view("\0", 1)), std::string("Length: \0\r\n", 11));
    EXPECT_EQ(RenderBench().TextLine(Key::SFStart, "ÿ"), "Length: ÿ\r\n");
    EXPECT_EQ(Rendered(Element::Literal(Key::SFStart, "literal")), "Length: literal\r\n");
}

TEST(PlainLine, HasABooleanInEnglish)
{
    EXPECT_EQ(Rendered(Element::Boolean(Key::SFStart, true), Language::German), "Länge: True\r\n");
    EXPECT_EQ(Rendered(Element::Boolean(Key::SFStart, false), Language::German), "Länge: False\r\n");
}

TEST(CountLine, HasSeparators)
{
    EXPECT_EQ(Rendered(Element::Int32(Key::SFLength, 999)), "Length: 999\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFLength, 1'000)), "Length: 1,000\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFLength, 2'147'483'647)), "Length: 2,147,483,647\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFLength, -1'000)), "Length: -1,000\r\n");
    EXPECT_EQ(Rendered(Element::Int32(Key::SFLength, 1'000'000), Language::German, {".", ","}), "Länge: 1.000.000\r\n");
}

TEST(CountLine, RoundsAFloatHalfAwayFromZero)
{
    EXPECT_EQ(Rendered(Element::Float64(Key::SFLength, 2.5)), "Length: 3\r\n");
    EXPECT_EQ(Rendered(Element::Float32(Key::SFLength, -2.5)), "Length: -3\r\n");
    EXPECT_EQ(Rendered(Element::Float64(Key::SFLength, 1'234.4)), "Length: 1,234\r\n");
}

TEST(CountLine, HasATextAsItIs) { EXPECT_EQ(RenderBench().TextLine(Key::SFLength, "Default"), "Length: Default\r\n"); }

TEST(FlagLine, SaysYesOrNo)
{
    EXPECT_EQ(Rendered(Element::Boolean(Key::Unknown, true)), "Name: Yes\r\n");
    EXPECT_EQ(Rendered(Element::Boolean(Key::Unknown, false)), "Name: No\r\n");
    EXPECT_EQ(Rendered(Element::Boolean(Key::Unknown, true), Language::German), "Name: Ja\r\n");
    EXPECT_EQ(Rendered(Element::Boolean(Key::Unknown, false), Language::French), "Nom: Non\r\n");
}

TEST(BoldLine, StandsBehindATab)
{
    EXPECT_EQ(RenderBench().TextLine(Key::NOPContent, " A "), "Content:\t°^°B~ A °^°N~\r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::NOPContent, "ÿ"), "Content:\t°^°B~°^°N~\r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::NOPContent, std::string_view("\0", 1)), "Content:\t°^°B~°^°N~\r\n");
}

TEST(QuotedLine, StandsBetweenQuotes)
{
    EXPECT_EQ(RenderBench().TextLine(Key::Name, " A "), "Name: \" A \"\r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::Name, ""), "Name: \"\"\r\n");
}

TEST(QuotedLine, IsEmptiedByALeadingZeroOnly)
{
    EXPECT_EQ(RenderBench().TextLine(Key::Name, std::string_view("\0", 1)), "Name: \"\"\r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::Name, std::string_view("\0AB", 3)), "Name: \"\"\r\n");
    EXPECT_EQ(RenderBench().TextLine(Key::Name, "ÿ"), "Name: \"ÿ\"\r\n");
}

TEST(HexLine, HasTheFrameOfAHexValue)
{
    EXPECT_EQ(RenderBench().TextLine(Key::HexCode, "0F A1"), "literal: x'0F A1'\r\n");
    EXPECT_EQ(RenderBench(Language::German).TextLine(Key::HexCode, ""), "literal: x''\r\n");
}

TEST(WordsLine, HasTheFirstWordOfTheValue)
{
    for (const Key key : {Key::UnitBaseX, Key::UnitBaseY, Key::PageSizeX, Key::PageSizeY}) {
        RenderBench bench;
        EXPECT_EQ(bench.Line(key, 0), "Name: Yes\r\n");
        EXPECT_EQ(bench.Line(key, 7), "Name: seven\r\n");
        EXPECT_EQ(bench.Line(key, -1), "Name: Default\r\n");
        EXPECT_TRUE(bench.sink.told.empty());
    }
}

TEST(WordsLine, TranslatesLabelsAndNotLiterals)
{
    RenderBench bench(Language::German);
    EXPECT_EQ(bench.Line(Key::UnitBaseX, 0), "Name: Ja\r\n");
    EXPECT_EQ(bench.Line(Key::UnitBaseX, 7), "Name: seven\r\n");
    EXPECT_EQ(bench.Line(Key::UnitBaseX, -1), "Name: Standard\r\n");
}

TEST(WordsLine, ReportsAnUnknownValue)
{
    RenderBench bench;
    EXPECT_EQ(bench.Line(Key::UnitBaseX, 1'234), "Name: °^°R~Unknown (1234)°^°S~\r\n");
    EXPECT_EQ(bench.sink.told, (Told{"Message Name: Unknown (1234)", "Invalid"}));
    RenderBench german(Language::German);
    EXPECT_EQ(german.Line(Key::UnitBaseX, 1'234), "Name: °^°R~Unbekannt (1234)°^°S~\r\n");
    EXPECT_EQ(german.sink.told, (Told{"Message Name: Unbekannt (1234)", "Invalid"}));
}

TEST(WordsLine, ReportsAnInvalidValue)
{
    RenderBench bench;
    EXPECT_EQ(bench.Line(Key::UnitBaseY, -2), "Name: °^°R~Invalid (-2)°^°S~\r\n");
    EXPECT_EQ(bench.sink.told, (Told{"Message Name: Invalid (-2)", "Invalid"}));
}

TEST(WordsLine, ReportsEachOfSeveralUnknownValues)
{
    RenderBench bench;
    bench.Add(Key::UnitBaseX, 1).Add(Key::UnitBaseX, 2).Add(Key::UnitBaseX, 2).Render();
    EXPECT_EQ(bench.sink.told, (Told{"Message Name: Unknown (1)", "Invalid", "Message Name: Unknown (2)", "Invalid",
                                     "Message Name: Unknown (2)", "Invalid"}));
}

TEST(WordsLine, ReportsEvenWhenTheLineFindsNoRoom)
{
    RenderBench bench;
    bench.renderer.text.Pass(65'530);
    bench.Add(Key::UnitBaseX, 1);
    bench.renderer.RenderStructuredField(bench.list);
    EXPECT_EQ(bench.renderer.text.Text(), "...");
    EXPECT_EQ(bench.sink.told.size(), 2u);
}

TEST(WordsLine, ShowsOtherValuesAsNumbersOrNotAtAll)
{
    RenderBench bench;
    EXPECT_EQ(bench.Line(Key::PageSizeX, 1'234), "Name: 1234\r\n");
    EXPECT_EQ(bench.Line(Key::PageSizeY, 1'234), "");
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(CustomLine, IsWrittenByItsProcedure)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::ShowResName, "A"), "Own: °^°R~Invalid (A)°^°S~\r\n");
    EXPECT_EQ(bench.sink.told, (Told{"Message Own: Invalid (A)", "Invalid"}));
}

TEST(SilentLine, IsNone) { EXPECT_EQ(RenderBench().TextLine(Key::FullSF, "A"), ""); }

TEST(KeyWithoutALine, WritesNothing)
{
    RenderBench bench;
    EXPECT_EQ(bench.Line(Key::Padding, 1), "");
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(AllLines, BeginWithTheIndentation)
{
    RenderBench bench;
    bench.renderer.IndentText = "\t\t";
    bench.Add(Key::SFStart, 1).Add(Key::SFLength, 1).Add(Element::Boolean(Key::Unknown, true));
    bench.AddText(Key::NOPContent, "A").AddText(Key::Name, "A").AddText(Key::HexCode, "0F").Add(Key::UnitBaseX, 0);
    bench.Add(Key::UnitBaseX, 1).Add(Key::PageSizeX, 1);
    EXPECT_EQ(bench.Render(), "\t\tLength: 1\r\n\t\tLength: 1\r\n\t\tName: Yes\r\n\t\tContent:\t°^°B~A°^°N~\r\n"
                              "\t\tName: \"A\"\r\n\t\tliteral: x'0F'\r\n\t\tName: Yes\r\n"
                              "\t\tName: °^°R~Unknown (1)°^°S~\r\n\t\tName: 1\r\n");
}

TEST(AllLines, AreOneAppendEach)
{
    RenderBench bench;
    bench.renderer.text.Pass(65'520);
    bench.Add(Key::SFLength, 1'000'000'000).Add(Key::SFLength, 1);
    bench.renderer.RenderStructuredField(bench.list);
    EXPECT_EQ(bench.renderer.text.Text(), "...Length: 1\r\n");
}

}  // namespace
}  // namespace folioscope
