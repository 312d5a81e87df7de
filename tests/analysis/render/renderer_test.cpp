#include "analysis/render/renderer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "analysis/field_names.h"
#include "analysis/render_bench.h"
#include "base/text.h"

namespace folioscope {
namespace {

using test::FieldName;
using test::kFieldNames;
using test::RenderBench;

using Told = std::vector<std::string>;

constexpr Language kLanguages[] = {Language::English, Language::German, Language::French};
constexpr std::int32_t kLast = std::numeric_limits<std::int32_t>::max();

// Head lines -------------------------------------------------------------------------------------------------------

std::string HeadOf(const RenderBench& bench, std::string_view SFName, std::int32_t start, std::int32_t length)
{
    std::string head;
    bench.renderer.AppendHeadLines(head, SFName, start, length);
    return head;
}

TEST(HeadLines, NameStartAndLength)
{
    EXPECT_EQ(HeadOf(RenderBench(), "BPG (Begin Page, x'D3 A8 AF')", 2, 16),
              "Structured Field:\t°^°B~BPG (Begin Page, x'D3 A8 AF')°^°N~\r\n"
              "Start byte:\t1   (x'00 00 00 01')\r\n"
              "Length:\t16 Bytes\r\n\r\n");
}

TEST(HeadLines, CountTheStartFromZero)
{
    EXPECT_NE(HeadOf(RenderBench(), "", 1, 8).find("Start byte:\t0   (x'00 00 00 00')\r\n"), std::string::npos);
    EXPECT_NE(HeadOf(RenderBench(), "", kLast, 8).find("Start byte:\t2,147,483,646   (x'7F FF FF FE')\r\n"),
              std::string::npos);
    EXPECT_NE(HeadOf(RenderBench(), "", 0x12AB35, 8).find("Start byte:\t1,223,476   (x'00 12 AB 34')\r\n"),
              std::string::npos);
}

TEST(HeadLines, AreInTheLanguageOfTheAnalysis)
{
    EXPECT_EQ(HeadOf(RenderBench(Language::German), "NOP", 2, 65'535),
              "Structured Field:\t°^°B~NOP°^°N~\r\nStart-Byte:\t1   (x'00 00 00 01')\r\nLänge:\t65,535 Bytes\r\n\r\n");
    EXPECT_EQ(HeadOf(RenderBench(Language::French), "NOP", 2, 65'535),
              "Structured Field:\t°^°B~NOP°^°N~\r\nStart byte (octet):\t1   (x'00 00 00 01')\r\n"
              "Longueur:\t65,535 Bytes\r\n\r\n");
}

TEST(HeadLines, HaveTheSeparatorsInForce)
{
    const RenderBench bench(Language::English, {"\u202F", ","});
    EXPECT_NE(HeadOf(bench, "", 1'000'001, 1'000).find("\t1\u202F000\u202F000   ("), std::string::npos);
    EXPECT_NE(HeadOf(bench, "", 1'000'001, 1'000).find("\t1\u202F000 Bytes"), std::string::npos);
}

TEST(HeadLines, TheirLengthIsThatOfTheWrittenLines)
{
    const NumberStyle kStyles[] = {{",", "."}, {".", ","}, {"\u202F", ","}, {"", "."}, {"’’", "."}};
    const std::int32_t kStarts[] = {1, 2, 10, 11, 1'000, 1'001, 999'999, 1'000'001, 1'000'000'001, kLast};
    const std::int32_t kLengths[] = {0, 8, 9, 10, 99, 100, 999, 1'000, 9'999, 10'000, 65'535};
    for (const Language language : kLanguages) {
        for (const NumberStyle& style : kStyles) {
            const RenderBench bench(language, style);
            for (const FieldName& field : kFieldNames)
                for (const std::int32_t start : kStarts)
                    for (const std::int32_t length : kLengths)
                        ASSERT_EQ(bench.renderer.HeadLinesLength(field.longName, start, length),
                                  Utf16Length(HeadOf(bench, field.longName, start, length)))
                            << field.shortName << ' ' << start << ' ' << length;
        }
    }
}

TEST(HeadLines, AreCountedAndNotKept)
{
    RenderBench bench;
    bench.Add(Key::SFStart, 1'235).Add(Key::SFLength, 65'535).AddText(Key::SFName, "NOP (No Operation, x'D3 EE EE')");
    EXPECT_EQ(bench.Render(), "");
    EXPECT_EQ(bench.renderer.text.Position(),
              1 + Utf16Length(HeadOf(bench, "NOP (No Operation, x'D3 EE EE')", 1'235, 65'535)));
    EXPECT_EQ(bench.renderer.SFStart, 1'235);
    EXPECT_EQ(bench.renderer.SFLength, 65'535);
}

// Lines of all records ---------------------------------------------------------------------------------------------

TEST(Renderer, TellsTheTreeTheNodeText)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::NodeText, "BPG"), "");
    EXPECT_EQ(bench.sink.told, Told{"NodeText BPG"});
}

TEST(Renderer, MarksADeferredRecord)
{
    RenderBench bench;
    EXPECT_EQ(bench.Add(Element::Int16(Key::Unread, 1)).Render(), "");
    EXPECT_EQ(bench.sink.told, Told{"Unread"});
}

TEST(Renderer, WritesNothingForSilentKeys)
{
    constexpr Key kSilent[] = {Key::FullSF,   Key::SFStart,     Key::SFLength,         Key::SFIExt, Key::SFIExtText,
                               Key::Padding,  Key::Length,      Key::FileSize,         Key::RDW,    Key::FiveAByte,
                               Key::Linefeed, Key::ErrorNumber, Key::ErrorDescription, Key::NoKey};
    RenderBench bench;
    for (const Key key : kSilent) {
        EXPECT_EQ(bench.Line(key, 1), "") << static_cast<int>(key);
        EXPECT_EQ(bench.renderer.text.Position(), 1u) << static_cast<int>(key);
    }
    EXPECT_EQ(bench.TextLine(Key::SFIExtText, "EXTN"), "");
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(Renderer, WalksTheElementsInOrder)
{
    RenderBench bench;
    bench.AddText(Key::Name, "A").AddText(Key::HexCode, "C1").AddText(Key::Name, "B");
    EXPECT_EQ(bench.Render(), "Name:°^°B~\tA°^°N~\r\nHex-Codes: x'C1'\r\nName:°^°B~\tB°^°N~\r\n");
}

TEST(Renderer, AddsToTheTextThatIsThere)
{
    RenderBench bench;
    bench.renderer.text.Append("before\r\n");
    bench.AddText(Key::HexCode, "C1");
    bench.renderer.RenderStructuredField(bench.list);
    EXPECT_EQ(bench.renderer.text.Text(), "before\r\nHex-Codes: x'C1'\r\n");
}

TEST(Renderer, ALineThatDoesNotFitBecomesDots)
{
    RenderBench bench;
    bench.AddText(Key::Name, std::string(70'000, 'A')).AddText(Key::Name, "B");
    EXPECT_EQ(bench.Render(), "...Name:°^°B~\tB°^°N~\r\n");
}

// Name and ShowResName ---------------------------------------------------------------------------------------------

TEST(NameLine, IsBoldAndTrimmed)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::Name, "PAGE0001"), "Name:°^°B~\tPAGE0001°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::Name, "  A B   "), "Name:°^°B~\tA B°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::Name, "\tA\u00A0"), "Name:°^°B~\t\tA\u00A0°^°N~\r\n");  // blanks only
    EXPECT_TRUE(bench.sink.told.empty());
}

TEST(NameLine, ShowsTwoQuotesForNoName)
{
    RenderBench bench;
    for (const std::string_view name :
         {std::string_view(""), std::string_view("        "), std::string_view("\0", 1), std::string_view("ÿ")})
        EXPECT_EQ(bench.TextLine(Key::Name, name), "Name:\t\"\"\r\n");
}

TEST(NameLine, ShowsMarksThatAreNotAlone)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::Name, "ÿA"), "Name:°^°B~\tÿA°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::Name, "ÿÿ"), "Name:°^°B~\tÿÿ°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::Name, std::string_view("\0A", 2)), std::string("Name:°^°B~\t\0A°^°N~\r\n", 24));
}

TEST(NameLine, IsInTheLanguageAndIndented)
{
    RenderBench bench(Language::French);
    bench.renderer.IndentText = "\t\t";
    EXPECT_EQ(bench.TextLine(Key::Name, "A"), "\t\tNom:°^°B~\tA°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::Name, ""), "\t\tNom:\t\"\"\r\n");
}

TEST(ShowResName, GoesToTheTreeAsItIs)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::ShowResName, " PAGE0001 "), "");
    EXPECT_EQ(bench.sink.told, Told{"ResName  PAGE0001 "});
}

TEST(ShowResName, IsNotShownIfItIsNoText)
{
    RenderBench bench;
    for (const std::string_view name : {std::string_view(""), std::string_view("\0", 1), std::string_view("\0AB", 3),
                                        std::string_view("ÿ"), std::string_view("ÿAB")})
        EXPECT_EQ(bench.TextLine(Key::ShowResName, name), "");
    EXPECT_TRUE(bench.sink.told.empty());
    bench.TextLine(Key::ShowResName, "Aÿ");
    EXPECT_EQ(bench.sink.told, Told{"ResName Aÿ"});
}

// HexCode ----------------------------------------------------------------------------------------------------------

std::string HexLineOf(std::string_view nodeText)
{
    RenderBench bench;
    bench.Add(Key::SFStart, 2).Add(Key::SFLength, 10).AddText(Key::NodeText, nodeText).AddText(Key::HexCode, "C1 C2");
    return bench.Render();
}

TEST(HexCode, IsALineOfAllRecordsButSix)
{
    std::vector<std::string_view> silent;
    for (const FieldName& field : kFieldNames) {
        const std::string line = HexLineOf(field.shortName);
        if (line.empty())
            silent.push_back(field.shortName);
        else
            EXPECT_EQ(line, "Hex-Codes: x'C1 C2'\r\n") << field.shortName;
    }
    EXPECT_EQ(silent, (std::vector<std::string_view>{"IRD", "FNG", "OCD", "BDA/BSA", "FDX", "NOP"}));
}

TEST(HexCode, IsShownForARecordWithoutNodeText)
{
    RenderBench bench;
    bench.Add(Key::SFStart, 2).Add(Element::Literal(Key::NodeText, "NOP")).AddText(Key::HexCode, "C1").Render();
    bench.Add(Key::SFStart, 20).Add(Key::SFLength, 8).AddText(Key::HexCode, "D3 AF 00");
    EXPECT_EQ(bench.Render(), "Hex-Codes: x'D3 AF 00'\r\n");
}

TEST(HexCode, IsInTheLanguageAndIndented)
{
    RenderBench bench(Language::French);
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.TextLine(Key::HexCode, "0F"), "\tCode hexadécimal: x'0F'\r\n");
    EXPECT_EQ(bench.TextLine(Key::HexCode, ""), "\tCode hexadécimal: x''\r\n");
}

// Unknown fields ---------------------------------------------------------------------------------------------------

TEST(UnknownField, HasTwoLinesAMessageAndARedPath)
{
    RenderBench bench;
    bench.Add(Key::SFStart, 2).Add(Key::SFLength, 1'016).Add(Element::Boolean(Key::Unknown, true));
    bench.AddText(Key::HexCode, "D3 AF 00");
    EXPECT_EQ(bench.Render(),
              "Structured Field: °^°R~Unknown°^°S~\r\nLength: 1,016 Bytes\r\nHex-Codes: x'D3 AF 00'\r\n");
    EXPECT_EQ(bench.sink.told, (Told{"Message Structured Field: Unknown", "Invalid"}));
}

TEST(UnknownField, IsToldInTheLanguageOfTheAnalysis)
{
    RenderBench german(Language::German);
    german.Add(Key::SFLength, 8).Add(Element::Boolean(Key::Unknown, true));
    EXPECT_EQ(german.Render(), "Structured Field: °^°R~Unbekannt°^°S~\r\nLänge: 8 Bytes\r\n");
    EXPECT_EQ(german.sink.told, (Told{"Message Structured Field: Unbekannt", "Invalid"}));
    RenderBench french(Language::French);
    french.Add(Key::SFLength, 8).Add(Element::Boolean(Key::Unknown, true));
    EXPECT_EQ(french.Render(), "Structured Field: °^°R~Inconnu°^°S~\r\nLongueur: 8 Bytes\r\n");
}

TEST(UnknownField, IsIndented)
{
    RenderBench bench;
    bench.renderer.IndentText = "\t";
    bench.Add(Key::SFLength, 8).Add(Element::Boolean(Key::Unknown, true));
    EXPECT_EQ(bench.Render(), "\tStructured Field: °^°R~Unknown°^°S~\r\n\tLength: 8 Bytes\r\n");
}

// Groups -----------------------------------------------------------------------------------------------------------

TEST(Groups, AreHeadedAndIndented)
{
    RenderBench bench;
    bench.Add(Key::BeginRepetition, 1).AddText(Key::Name, "A").Add(Key::EndRepetition, 1);
    bench.Add(Key::BeginRepetition, 2).AddText(Key::Name, "B").Add(Key::EndRepetition, 2).AddText(Key::Name, "C");
    EXPECT_EQ(bench.Render(), "\r\n°^°B~Element 1°^°N~\r\n\tName:°^°B~\tA°^°N~\r\n"
                              "\r\n°^°B~Element 2°^°N~\r\n\tName:°^°B~\tB°^°N~\r\nName:°^°B~\tC°^°N~\r\n");
    EXPECT_EQ(bench.renderer.IndentText, "");
}

TEST(Groups, OfTripletsAndColoursAreNotBold)
{
    RenderBench bench;
    bench.Add(Key::BeginRepetitionTRP, 1'000).AddText(Key::Name, "A").Add(Key::EndRepetitionTRP, 1'000);
    EXPECT_EQ(bench.Render(), "\r\nElement 1000\r\n\tName:°^°B~\tA°^°N~\r\n");
    bench.Add(Key::BeginColor, 3).AddText(Key::Name, "A").Add(Key::EndColor, 3).AddText(Key::Name, "B");
    EXPECT_EQ(bench.Render(), "\r\nEntry 3\r\n\tName:°^°B~\tA°^°N~\r\nName:°^°B~\tB°^°N~\r\n");
}

TEST(Groups, NestOneTabADepth)
{
    RenderBench bench;
    bench.Add(Key::BeginRepetition, 1)
        .Add(Key::BeginRepetitionTRP, 2)
        .Add(Key::BeginColor, 3)
        .AddText(Key::HexCode, "0F");
    bench.Add(Key::EndColor, 3).Add(Key::EndRepetitionTRP, 2).Add(Key::EndRepetition, 1).AddText(Key::HexCode, "F0");
    EXPECT_EQ(bench.Render(), "\r\n°^°B~Element 1°^°N~\r\n\r\n\tElement 2\r\n\r\n\t\tEntry 3\r\n"
                              "\t\t\tHex-Codes: x'0F'\r\nHex-Codes: x'F0'\r\n");
}

TEST(Groups, SpeakTheLanguage)
{
    RenderBench bench(Language::French);
    EXPECT_EQ(bench.Add(Key::BeginRepetition, 1).Add(Key::EndRepetition, 1).Render(), "\r\n°^°B~Élément 1°^°N~\r\n");
    EXPECT_EQ(bench.Add(Key::BeginColor, 1).Add(Key::EndColor, 1).Render(), "\r\nEntrée 1\r\n");
}

TEST(Groups, AnEndTooManyIsHarmless)
{
    RenderBench bench;
    bench.Add(Key::EndRepetition, 1).Add(Key::EndColor, 1).Add(Key::EndRepetitionTRP, 1).AddText(Key::HexCode, "0F");
    EXPECT_EQ(bench.Render(), "Hex-Codes: x'0F'\r\n");
}

// NOP --------------------------------------------------------------------------------------------------------------

TEST(NOPLine, IsBoldBehindATab)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::NOPContent, " Hello "), "Content:\t°^°B~ Hello °^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::NOPContent, ""), "Content:\t°^°B~°^°N~\r\n");
}

TEST(NOPLine, IsEmptyIfTheTextIsNotGiven)
{
    RenderBench bench;
    EXPECT_EQ(bench.TextLine(Key::NOPContent, std::string_view("\0", 1)), "Content:\t°^°B~°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::NOPContent, "ÿ"), "Content:\t°^°B~°^°N~\r\n");
    EXPECT_EQ(bench.TextLine(Key::NOPContent, "ÿA"), "Content:\t°^°B~ÿA°^°N~\r\n");
}

TEST(NOPLine, IsWrittenInGermanToo)
{
    RenderBench bench(Language::German);
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.TextLine(Key::NOPContent, "A"), "\tInhalt:\t°^°B~A°^°N~\r\n");
}

}  // namespace
}  // namespace folioscope
