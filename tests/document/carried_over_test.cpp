// What the last item of a record leaves over for the next one that is read, in whichever order that happens.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "document/document.h"
#include "document/ports.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::Pieces;
using test::Raw;
using test::StringSink;
using test::TestDocument;
using test::U1;

constexpr std::string_view kPreceding = "... preceding element exists ...\r\n";
constexpr std::string_view kContinued = "... to be continued ...\r\n";

Bytes Transparent(std::string_view text, unsigned length)
{
    return Raw({0x2B, 0xD3}) + U1(length) + U1(0xDA) + Ebcdic(text);
}

Bytes Whole(std::string_view text) { return Transparent(text, static_cast<unsigned>(text.size()) + 2); }

std::string Text(std::string_view value) { return "TRN: \t\t°^°B~" + std::string(value) + "°^°N~\r\n"; }

// The body without the head lines.
std::string BodyOf(TestDocument& document, std::uint32_t node)
{
    const std::string content = document.Content(node);
    return content.substr(content.find("\r\n\r\n") + 4);
}

std::string DumpOf(TestDocument& document)
{
    StringSink sink;
    EXPECT_TRUE(document.document.WriteDump(sink, DumpEncoding::Utf8).Whole());
    return sink.text;
}

// Three records behind the root: the first ends four bytes before its text does.
std::unique_ptr<TestDocument> ThreeTexts()
{
    AfpFile file;
    file.Add("PTX", Transparent("FIRST", 11)).Add("PTX", Ebcdic("____") + Whole("SECOND"));
    file.Add("PTX", Ebcdic("____") + Whole("THIRD"));
    return Analyse(file.Content(), {}, Decoders());
}

TEST(CarriedOver, TheNextRecordPassesIt)
{
    const auto document = ThreeTexts();
    for (const std::uint32_t node : {2u, 3u, 4u}) ASSERT_FALSE(document->Select(node));
    EXPECT_EQ(BodyOf(*document, 2), Text("FIRST") + std::string(kContinued));
    EXPECT_EQ(BodyOf(*document, 3), std::string(kPreceding) + Text("SECOND"));
    EXPECT_EQ(BodyOf(*document, 4), "Free Text: \t\t°^°B~____°^°N~\r\n" + Text("THIRD"));
}

TEST(CarriedOver, TheRecordReadNextPassesItWhereverItStands)
{
    const auto document = ThreeTexts();
    for (const std::uint32_t node : {2u, 4u, 3u}) ASSERT_FALSE(document->Select(node));
    EXPECT_EQ(BodyOf(*document, 4), std::string(kPreceding) + Text("THIRD"));
    EXPECT_EQ(BodyOf(*document, 3), "Free Text: \t\t°^°B~____°^°N~\r\n" + Text("SECOND"));
}

TEST(CarriedOver, ARecordIsReadOnce)
{
    const auto document = ThreeTexts();
    for (const std::uint32_t node : {2u, 4u, 4u, 3u, 4u, 2u}) ASSERT_FALSE(document->Select(node));
    EXPECT_EQ(BodyOf(*document, 4), std::string(kPreceding) + Text("THIRD"));
    EXPECT_EQ(BodyOf(*document, 3), "Free Text: \t\t°^°B~____°^°N~\r\n" + Text("SECOND"));
}

TEST(CarriedOver, ARunLeavesItForTheFirstBody)
{
    AfpFile file;
    file.Add("GAD", Pieces("21 06 0001 0002")).Add("PTX", Ebcdic("__") + Whole("BEHIND"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    EXPECT_EQ(BodyOf(*document, 2), "GSCP: Cursor position X=1, Y=2\r\n" + std::string(kContinued));
    ASSERT_FALSE(document->Select(3));
    EXPECT_EQ(BodyOf(*document, 3), std::string(kPreceding) + Text("BEHIND"));
}

TEST(CarriedOver, ADescriptorThatIsToldFromMemoryPassesItToo)
{
    const Bytes descriptor = Pieces("00 00 3840 3840 000100 000200 0000 2BD3 04 C6 0001");
    AfpFile file;
    file.Add("PTD-2", descriptor).Add("PTD-2", descriptor);
    file.Add("GAD", Pieces("21 07 0001 0002")).Add("PTD-2", descriptor).Add("PTD-2", descriptor);
    const auto document = Analyse(file.Content(), {}, Decoders());
    const std::string plain = BodyOf(*document, 2);
    EXPECT_NE(plain.find("AMI: Set cursor to X position: 001\r\n"), std::string::npos) << plain;
    EXPECT_EQ(BodyOf(*document, 3), plain);
    EXPECT_NE(BodyOf(*document, 5), plain);
    EXPECT_NE(BodyOf(*document, 5).find(kPreceding), std::string::npos) << BodyOf(*document, 5);
    EXPECT_EQ(BodyOf(*document, 6), plain);
}

// More text than is kept at a time: what was asked for first is made again from the file.
TEST(CarriedOver, ABodyThatIsMadeAgainIsTheSame)
{
    constexpr int kPairs = 400;
    const Bytes filling = Ebcdic(std::string(30'000, 'x'));
    AfpFile file;
    for (int i = 0; i < kPairs; ++i) {
        file.Add("PTX", filling + Transparent("FIRST", 11));
        file.Add("PTX", Ebcdic("____") + filling + Whole("SECOND"));
    }
    const auto document = Analyse(file.Content(), {}, Decoders());
    const std::string first = DumpOf(*document);
    EXPECT_EQ(DumpOf(*document), first);
    EXPECT_NE(BodyOf(*document, 2).find(kContinued), std::string::npos);
    EXPECT_TRUE(BodyOf(*document, 3).starts_with(kPreceding));
    EXPECT_FALSE(BodyOf(*document, 2).starts_with(kPreceding));
}

TEST(CarriedOver, WhatIsMadeAgainLeavesNothingForOthers)
{
    constexpr std::uint32_t kMany = 700;
    AfpFile file;
    file.Add("PTX", Transparent("FIRST", 11));
    for (std::uint32_t i = 0; i < kMany; ++i) file.Add("PTX", Ebcdic("____") + Ebcdic(std::string(30'000, 'x')));
    file.Add("PTX", Ebcdic("____") + Whole("LAST"));
    const auto document = Analyse(file.Content(), {}, Decoders());
    for (std::uint32_t node = 2; node < kMany + 3; ++node) ASSERT_FALSE(document->Select(node));
    EXPECT_EQ(BodyOf(*document, 2), Text("FIRST") + std::string(kContinued));  // long since given up
    ASSERT_FALSE(document->Select(kMany + 3));
    EXPECT_EQ(BodyOf(*document, kMany + 3), "Free Text: \t\t°^°B~____°^°N~\r\n" + Text("LAST"));
}

}  // namespace
}  // namespace folioscope
