#include "analysis/decode/fields_begin_end.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/field_names.h"
#include "analysis/record_walk.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::FieldName;
using test::kFieldNames;
using test::Raw;
using test::RecordWalk;
using test::Zeros;

using Lines = std::vector<std::string>;

std::vector<std::string_view> BeginAndEndFields()
{
    std::vector<std::string_view> names;
    for (const FieldName& field : kFieldNames)
        if (field.category == 0xA8 || field.category == 0xA9) names.push_back(field.shortName);
    return names;
}

// What a named field says of its name; resources are another matter.
Lines NameElements(const RecordWalk& walk)
{
    Lines lines = walk.Body();
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("Text AddResource"); });
    return lines;
}

// Two fields show their name in the property text alone.
bool ShowsItsNameInTheTree(std::string_view name) { return name != "BCP" && name != "EMM"; }

TEST(NamedFields, AreFiftyEight) { EXPECT_EQ(BeginAndEndFields().size(), 58u); }

TEST(NamedFields, WithoutDataHaveNoName)
{
    for (const std::string_view name : BeginAndEndFields()) {
        RecordWalk walk(AfpFile().Add("BPG", Ebcdic8("OTHER")).Add(name));
        walk.Next();
        walk.Next();
        EXPECT_EQ(NameElements(walk), Lines{}) << name;
    }
}

TEST(NamedFields, HaveANameOfEightBytes)
{
    for (const std::string_view name : BeginAndEndFields()) {
        RecordWalk walk(AfpFile().Add(name, Ebcdic8("NAME")));
        walk.Next();
        Lines expected = {"Text Name NAME    "};
        if (ShowsItsNameInTheTree(name)) expected.push_back("Text ShowResName NAME");
        EXPECT_EQ(NameElements(walk), expected) << name;
        EXPECT_EQ(walk.afp.Resources.name, "NAME") << name;
    }
}

TEST(NamedFields, OfNineBytesReadTheNameFromWhatFollows)
{
    for (const std::string_view name : BeginAndEndFields()) {
        if (name == "EPS") continue;
        RecordWalk walk(AfpFile(test::Packaging::Bare).Add(name, Ebcdic("N")).Noise(Ebcdic("AMELESS")).Add("EPG"));
        walk.Next();
        Lines expected = {"Text Name NAMELESS"};
        if (ShowsItsNameInTheTree(name)) expected.push_back("Text ShowResName NAMELESS");
        EXPECT_EQ(NameElements(walk), expected) << name;
    }
}

TEST(NamedFields, AShortNameAtTheFilesEndIsFilledWithZeros)
{
    RecordWalk walk(AfpFile().Add("BPG", Ebcdic("PAGE")));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name PAGE....", "Text ShowResName PAGE...."}));
}

TEST(NamedFields, ReadTheirNameInPage500WhateverPageIsCurrent)
{
    for (const std::int32_t page : {37, 500, 819, 1200}) {
        RecordWalk walk(AfpFile().Add("BPG", Raw({0x4F, 0x5A}) + Ebcdic("123456")), {.lngInputCP = page});
        walk.Next();
        EXPECT_EQ(walk.Text(Key::Name), "!]123456") << page;
    }
}

TEST(NamedFields, TrimTheNameForTheTreeOnBothSides)
{
    RecordWalk walk(AfpFile().Add("BPG", Ebcdic("  A B   ")).Add("BRS", Ebcdic8("")));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name   A B   ", "Text ShowResName A B"}));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name         ", "Text ShowResName "}));
}

TEST(NamedFields, KeepTheMarksOfANameThatIsNotGiven)
{
    RecordWalk walk(AfpFile().Add("BPG", Zeros(8)).Add("EPG", Bytes(8, '\xFF')));
    walk.Next();
    EXPECT_EQ(walk.Text(Key::Name), std::string(1, '\0'));
    EXPECT_EQ(walk.Text(Key::ShowResName), std::string(1, '\0'));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name ÿ", "Text ShowResName ÿ"}));
}

TEST(NamedFields, DataBehindTheNameIsNoPartOfIt)
{
    RecordWalk walk(AfpFile().Add("BFG", Ebcdic8("FORM") + Ebcdic("REST")));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name FORM    ", "Text ShowResName FORM"}));
}

TEST(NamedFields, WithDataButNoRoomForANameRepeatTheNameBefore)
{
    for (const std::string_view name : BeginAndEndFields()) {
        if (!ShowsItsNameInTheTree(name)) continue;
        RecordWalk walk(AfpFile().Add("BNG", Ebcdic8("FIRST")).Add({name, Raw({1}), 0x80}));  // all extension
        walk.Next();
        walk.Next();
        EXPECT_FALSE(walk.Has(Key::Name)) << name;
        EXPECT_EQ(walk.Text(Key::ShowResName), "FIRST") << name;
    }
}

TEST(NamedFields, WithoutANameBeforeRepeatNothing)
{
    RecordWalk walk(AfpFile().Add("EPS", Raw({0xC1})));
    walk.Next();
    EXPECT_EQ(NameElements(walk), Lines{"Text ShowResName "});
}

TEST(NamedFields, TheNameBeforeIsNeverForgotten)
{
    RecordWalk walk(
        AfpFile().Add("BNG", Ebcdic8("FIRST")).Add("BPG").Add("NOP", Ebcdic("TEXT")).Add("EPG").Add("EPS", Raw({1})));
    for (int i = 0; i < 5; ++i) walk.Next();
    EXPECT_EQ(walk.Text(Key::ShowResName), "FIRST");
}

TEST(NamedFields, PaddingTakesRoomFromTheName)
{
    RecordWalk walk(AfpFile().Add({"BPG", Raw({1}), 0x08}));
    walk.Next();
    EXPECT_EQ(NameElements(walk), Lines{"Int32 Padding 1"});
}

TEST(EPS, HasANameFromTwoBytesOn)
{
    RecordWalk walk(
        AfpFile().Add("BPS", Ebcdic8("SEGMENT")).Add("EPS").Add("EPS", Raw({0xC1})).Add("EPS", Ebcdic8("OTHER")));
    walk.Next();
    walk.Next();
    EXPECT_EQ(NameElements(walk), Lines{});
    walk.Next();
    EXPECT_EQ(NameElements(walk), Lines{"Text ShowResName SEGMENT"});
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text Name OTHER   ", "Text ShowResName OTHER"}));
    RecordWalk two(AfpFile(test::Packaging::Bare).Add("EPS", Ebcdic("TW")).Noise(Ebcdic("OBYTES")).Add("EPG"));
    two.Next();
    EXPECT_EQ(two.Text(Key::Name), "TWOBYTES");
}

TEST(ResourceGroup, LastsFromBRGToERG)
{
    RecordWalk walk(AfpFile().Add("BRG").Add("BRS").Add("ERS").Add("ERG").Add("BDT"));
    EXPECT_FALSE(walk.afp.Resources.inResourceGroup);
    for (const bool inside : {true, true, true, false, false}) {
        walk.Next();
        EXPECT_EQ(walk.afp.Resources.inResourceGroup, inside) << walk.Text(Key::NodeText);
    }
}

TEST(NOP, ShowsItsContentAsTextAndAsBytes)
{
    RecordWalk walk(AfpFile().Add("NOP", Ebcdic("Hello, world")));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text NOPContent Hello, world", "Text ShowResName Hello, world",
                                         "Text HexCode C8 85 93 93 96 6B 40 A6 96 99 93 84"}));
}

TEST(NOP, IsReadInItsOwnPage)
{
    RecordWalk walk(AfpFile().Add("NOP", Raw({0x4F, 0x5A})),
                    {.lngInputCP = 37, .lngInputCPNOP = 500, .lngInputCPTLE = 37});
    walk.Next();
    EXPECT_EQ(walk.Text(Key::NOPContent), "!]");
    RecordWalk ascii(AfpFile().Add("NOP", "plain text"), {.lngInputCP = 37, .lngInputCPNOP = 819, .lngInputCPTLE = 37});
    ascii.Next();
    EXPECT_EQ(ascii.Text(Key::NOPContent), "plain text");
}

TEST(NOP, KeepsItsBlanks)
{
    RecordWalk walk(AfpFile().Add("NOP", Ebcdic("  A  ")));
    walk.Next();
    EXPECT_EQ(walk.Text(Key::ShowResName), "  A  ");
}

TEST(NOP, WithoutDataIsEmpty)
{
    RecordWalk walk(AfpFile().Add("NOP").Add("NOP", Ebcdic("X")));
    walk.Next();
    EXPECT_EQ(NameElements(walk), (Lines{"Text NOPContent ", "Text ShowResName ", "Text HexCode "}));
}

TEST(NOP, WithoutDataSeesTheZerosBehindTheFile)
{
    RecordWalk walk(AfpFile().Add("NOP"));
    walk.Next();
    EXPECT_EQ(walk.Text(Key::NOPContent), std::string(1, '\0'));  // the mark is looked for whatever the length
    EXPECT_EQ(walk.Text(Key::HexCode), "");
}

TEST(NOP, ThatBeginsWithAMarkIsNotGiven)
{
    RecordWalk walk(AfpFile().Add("NOP", Zeros(2) + Ebcdic("TEXT")).Add("NOP", Raw({0xFF, 0xFF})));
    walk.Next();
    EXPECT_EQ(walk.Text(Key::NOPContent), std::string(1, '\0'));
    EXPECT_EQ(walk.Text(Key::HexCode), "00 00 E3 C5 E7 E3");
    walk.Next();
    EXPECT_EQ(walk.Text(Key::NOPContent), "ÿ");
}

TEST(NOP, OfMoreThan2048BytesIsTextInFullAndBytesCut)
{
    RecordWalk walk(
        AfpFile().Add("NOP", Bytes(2048, '\xC1')).Add("NOP", Bytes(2049, '\xC1')).Add("NOP", Bytes(65'527, '\xC1')));
    for (const std::size_t length : {2'048, 2'049, 65'527}) {
        walk.Next();
        EXPECT_EQ(walk.Text(Key::NOPContent), std::string(length, 'A'));
        EXPECT_EQ(walk.Text(Key::ShowResName), std::string(length, 'A'));
        const std::string hex = walk.Text(Key::HexCode);
        EXPECT_EQ(hex.size(), length == 2'048 ? 2'048u * 3 - 1 : 2'048u * 3 + 3);
        EXPECT_EQ(hex.ends_with("C1 ..."), length != 2'048);
    }
}

TEST(NOP, StopsBeforeThePadding)
{
    RecordWalk walk(AfpFile().Add({"NOP", Ebcdic("AB") + Raw({0, 2}), 0x08}));
    walk.Next();
    EXPECT_EQ(NameElements(walk),
              (Lines{"Int32 Padding 2", "Text NOPContent AB", "Text ShowResName AB", "Text HexCode C1 C2"}));
}

}  // namespace
}  // namespace folioscope
