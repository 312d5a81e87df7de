// What AnalyzeRecord reads of every record: introducer, extension, padding, flags, code page levels.

#include "analysis/decode/clsAFPFunctions.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "analysis/decode/dispatch.h"
#include "analysis/record_walk.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::Ebcdic;
using test::Ebcdic8;
using test::Field;
using test::Packaging;
using test::Raw;
using test::RecordWalk;
using test::Zeros;

using Lines = std::vector<std::string>;

constexpr unsigned kExtension = 0x80, kSegmentedFlag = 0x20, kPaddingFlag = 0x08;

TEST(AnalyzeRecord, HeadsEachRecordWithStartLengthAndNames)
{
    RecordWalk walk(AfpFile().Add("BPG").Add("EPG", Ebcdic8("PAGE0001")));
    walk.Next();
    EXPECT_EQ(walk.Lines(), (Lines{"Int32 SFStart 2", "Int32 SFLength 8", "Text NodeText BPG",
                                   "Text SFName BPG (Begin Page, x'D3 A8 AF')"}));
    walk.Next();
    EXPECT_EQ(walk.Lines(),
              (Lines{"Int32 SFStart 11", "Int32 SFLength 16", "Text NodeText EPG",
                     "Text SFName EPG (End Page, x'D3 A9 AF')", "Text Name PAGE0001", "Text ShowResName PAGE0001"}));
}

TEST(AnalyzeRecord, SFStartIsThePlaceOfTheLengthFieldInTheFile)
{
    const std::pair<Packaging, std::vector<std::int64_t>> kStarts[] = {{Packaging::Bare, {1, 9}},
                                                                       {Packaging::FiveA, {2, 11}},
                                                                       {Packaging::Rdw2, {4, 15}},
                                                                       {Packaging::Rdw4, {6, 19}},
                                                                       {Packaging::CrLf, {2, 13}}};
    for (const auto& [packaging, starts] : kStarts) {
        RecordWalk walk(AfpFile(packaging).Add("BPG").Add("EPG"));
        for (const std::int64_t start : starts) {
            walk.Next();
            EXPECT_EQ(walk.Number(Key::SFStart), start) << static_cast<int>(packaging);
        }
    }
}

TEST(AnalyzeRecord, AddsToTheListThatIsThere)
{
    RecordWalk walk(AfpFile().Add("BPG"));
    walk.Next();
    walk.afp.AnalyzeRecord();
    EXPECT_EQ(walk.Lines().size(), 8u);
}

TEST(AnalyzeRecord, TellsThePlacesOfTheData)
{
    RecordWalk walk(AfpFile().Add("IPG", Raw({1, 2, 3})));
    walk.Step();
    walk.afp.AnalyzeRecord();
    EXPECT_EQ(walk.afp.FieldEnd, walk.afp.Reader().RecordStart() + 10);
    EXPECT_EQ(walk.afp.FieldLength, 11);
}

// Flags ------------------------------------------------------------------------------------------------------------

struct StatusCase {
    std::string_view name;
    Status plain, segmented;
};
constexpr StatusCase kStatuses[] = {
    {"BPG", kBegin, Status{113}},    {"EPG", kEnd, Status{121}},      {"IPG", kRecord, kSegmented},
    {"D3A800", kBegin, Status{113}}, {"D3A900", kEnd, Status{121}},   {"D3AF00", kRecord, kSegmented},
    {"D30000", kRecord, kSegmented}, {"D3FFFF", kRecord, kSegmented}, {"RCD", kRecord, kSegmented},
};

TEST(AnalyzeRecord, StatusFollowsFromCategoryAndSegmentedFlagAlone)
{
    const Bytes data = Raw({3, 0xC1, 0xC2}) + Ebcdic8("PAGE0001") + Raw({1});
    for (const auto& [name, plain, segmented] : kStatuses) {
        AfpFile file;
        for (unsigned flags = 0; flags < 256; ++flags) file.Add({name, data, flags});
        RecordWalk walk(file);
        const std::int32_t step = static_cast<std::int32_t>(data.size()) + 9;
        for (unsigned flags = 0; flags < 256; ++flags) {
            const Status status = walk.At(2 + static_cast<std::int32_t>(flags) * step);
            EXPECT_EQ(status, flags & kSegmentedFlag ? segmented : plain) << name << ' ' << flags;
        }
    }
}

TEST(AnalyzeRecord, OnlyExtensionAndPaddingFlagsChangeTheElements)
{
    const Bytes data = Raw({3, 0xC1, 0xC2}) + Ebcdic8("PAGE0001") + Raw({1});
    AfpFile file;
    for (unsigned flags = 0; flags < 256; ++flags) file.Add({"EAG", data, flags});
    RecordWalk walk(file);
    Lines seen[256];
    for (Lines& lines : seen) {
        walk.Next();
        lines = walk.Body();
    }
    EXPECT_EQ(seen[0].size(), 2u);
    EXPECT_EQ(seen[kExtension].size(), 4u);
    EXPECT_EQ(seen[kPaddingFlag].size(), 3u);
    EXPECT_EQ(seen[kExtension | kPaddingFlag].size(), 5u);
    for (unsigned flags = 0; flags < 256; ++flags)
        EXPECT_EQ(seen[flags], seen[flags & (kExtension | kPaddingFlag)]) << flags;
}

TEST(AnalyzeRecord, ASegmentedBeginAndEndMoveTheCodePageLevels)
{
    RecordWalk walk(AfpFile().Add({"BPG", {}, kSegmentedFlag}).Add({"EPG", {}, kSegmentedFlag}));
    EXPECT_EQ(walk.Next(), 113);
    EXPECT_EQ(walk.afp.CodePages.Depth(), 2);
    EXPECT_EQ(walk.Next(), 121);
    EXPECT_EQ(walk.afp.CodePages.Depth(), 1);
}

// Extension --------------------------------------------------------------------------------------------------------

Lines ExtensionOf(const Bytes& data, const InputPages& pages = {})
{
    RecordWalk walk(AfpFile().Add({"BPG", data, kExtension}).Add("EPG"), pages);
    walk.Next();
    return walk.Body();
}

TEST(Extension, ItsLengthByteCountsItself)
{
    EXPECT_EQ(ExtensionOf(Raw({5}) + Ebcdic("EXTN") + Ebcdic8("PAGE0001")),
              (Lines{"Int16 SFIExt 4", "Text SFIExtText EXTN", "Text Name PAGE0001", "Text ShowResName PAGE0001"}));
}

TEST(Extension, StandsBehindTheIntroducer)
{
    RecordWalk walk(AfpFile().Add({"BPG", Raw({2, 0xC1}), kExtension}));
    walk.Next();
    EXPECT_EQ(walk.afp.List().Elements()[1].key, Key::SFLength);
    EXPECT_EQ(walk.afp.List().Elements()[2].key, Key::SFIExt);
    EXPECT_EQ(walk.afp.List().Elements()[3].key, Key::SFIExtText);
    EXPECT_EQ(walk.afp.List().Elements()[4].key, Key::NodeText);
}

TEST(Extension, ItsTextIsInTheCurrentCodePage)
{
    const Bytes data = Raw({3, 0x4F, 0x5A});
    EXPECT_EQ(ExtensionOf(data, {.lngInputCP = 37})[1], "Text SFIExtText |!");
    EXPECT_EQ(ExtensionOf(data, {.lngInputCP = 500})[1], "Text SFIExtText !]");
}

TEST(Extension, ALengthByteOfOneIsEmpty)
{
    EXPECT_EQ(ExtensionOf(Raw({1}) + Ebcdic8("PAGE0001")),
              (Lines{"Int16 SFIExt 0", "Text SFIExtText ", "Text Name PAGE0001", "Text ShowResName PAGE0001"}));
}

TEST(Extension, ALengthByteOfZeroIsMinusOneAndPassesNothing)
{
    EXPECT_EQ(ExtensionOf(Raw({0}) + Ebcdic("PAGE0001")),
              (Lines{"Int16 SFIExt -1", "Text SFIExtText ", "Text Name .PAGE000", "Text ShowResName .PAGE000"}));
}

TEST(Extension, TwoZeroBytesAreTextThatIsNotGiven)
{
    EXPECT_EQ(ExtensionOf(Raw({3, 0, 0}))[1], std::string("Text SFIExtText \0", 17));
}

TEST(Extension, ThatTakesTheWholeFieldLeavesNoName)
{
    EXPECT_EQ(ExtensionOf(Raw({3, 0xC1, 0xC2})), (Lines{"Int16 SFIExt 2", "Text SFIExtText AB", "Text ShowResName "}));
}

TEST(Extension, ThatRunsPastTheFieldLeavesNoName)
{
    const Lines lines = ExtensionOf(Raw({255, 0xC1, 0xC2}));
    EXPECT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "Int16 SFIExt 254");
    EXPECT_TRUE(lines[1].starts_with("Text SFIExtText AB"));
    EXPECT_EQ(lines[2], "Text ShowResName ");
}

// Padding ----------------------------------------------------------------------------------------------------------

RecordWalk Padded(const Bytes& data) { return RecordWalk(AfpFile().Add({"BPG", data, kPaddingFlag}).Add("EPG")); }

TEST(Padding, TheLastByteCountsIt)
{
    RecordWalk walk = Padded(Ebcdic8("PAGE0001") + Raw({0xFF, 0xFF, 3}));
    walk.Next();
    EXPECT_EQ(walk.Number(Key::SFLength), 19);  // as the introducer says
    EXPECT_EQ(walk.Body(), (Lines{"Int32 Padding 3", "Text Name PAGE0001", "Text ShowResName PAGE0001"}));
    EXPECT_EQ(walk.afp.FieldLength, 16);
    EXPECT_EQ(walk.afp.FieldEnd, walk.afp.Reader().RecordStart() + 15);
}

TEST(Padding, ALastByteOfZeroLeavesItToTheTwoBytesBefore)
{
    for (const unsigned count : {3u, 4u, 255u, 256u, 260u, 1'000u}) {
        RecordWalk walk = Padded(Ebcdic8("PAGE0001") + Zeros(count - 3) + test::U2(count) + Raw({0}));
        walk.Next();
        EXPECT_EQ(walk.Number(Key::Padding), count);
        EXPECT_EQ(walk.afp.FieldLength, 16) << count;
        EXPECT_EQ(walk.Text(Key::Name), "PAGE0001") << count;
    }
}

TEST(Padding, NoneInEitherPlaceIsTold)
{
    RecordWalk walk = Padded(Ebcdic8("PAGE0001") + Zeros(3));
    walk.Next();
    EXPECT_EQ(walk.Number(Key::Padding), 0);
    EXPECT_EQ(walk.afp.FieldLength, 19);
}

TEST(Padding, ThatFillsTheFieldLeavesNoNameAndNoShowResName)
{
    RecordWalk walk = Padded(Zeros(7) + Raw({8}));
    walk.Next();
    EXPECT_EQ(walk.Body(), Lines{"Int32 Padding 8"});
}

TEST(Padding, OfMoreThanTheFieldLeavesNoName)
{
    RecordWalk walk = Padded(Ebcdic8("PAGE0001") + Raw({255}));
    EXPECT_EQ(walk.Next(), kBegin);
    EXPECT_EQ(walk.Body(), Lines{"Int32 Padding 255"});
    walk.Next();
    EXPECT_EQ(walk.Text(Key::NodeText), "EPG");  // the next record isn't touched by it
}

TEST(Padding, OfAFieldWithoutDataIsReadFromTheIntroducer)
{
    RecordWalk walk(AfpFile().Add({"BPG", {}, kPaddingFlag}));
    walk.Next();
    EXPECT_EQ(walk.Body(), Lines{"Int32 Padding 2048"});  // the two bytes in front of the last: the flags, and a zero
}

TEST(Padding, StandsBehindTheExtension)
{
    RecordWalk walk(AfpFile().Add({"BPG", Raw({2, 0xC1}) + Ebcdic8("PAGE0001") + Raw({1}), kExtension | kPaddingFlag}));
    walk.Next();
    EXPECT_EQ(walk.Body(), (Lines{"Int16 SFIExt 1", "Text SFIExtText A", "Int32 Padding 1", "Text Name PAGE0001",
                                  "Text ShowResName PAGE0001"}));
}

// Identifiers ------------------------------------------------------------------------------------------------------

TEST(Identifier, IsToldWithThatOfTheRecordBefore)
{
    RecordWalk walk(AfpFile().Add("BPG").Add("IPG").Add("EPG"));
    walk.Next();
    EXPECT_EQ(walk.afp.IdentifierText(), "D3 A8 AF");
    walk.Next();
    EXPECT_EQ(walk.afp.IdentifierText(), "D3 AF AF");
    EXPECT_EQ(walk.afp.PreviousIdentifierText(), "D3 A8 AF");
    walk.Next();
    EXPECT_EQ(walk.afp.IdentifierText(), "D3 A9 AF");
    EXPECT_EQ(walk.afp.PreviousIdentifierText(), "D3 AF AF");
}

TEST(Identifier, OfAnUnknownFieldIsAllThatIsShownOfIt)
{
    RecordWalk walk(AfpFile().Add("D3AF00", Ebcdic8("PAGE0001")));
    walk.At(2);
    EXPECT_EQ(walk.Lines(),
              (Lines{"Int32 SFStart 2", "Int32 SFLength 16", "Boolean Unknown 1", "Text HexCode D3 AF 00"}));
    EXPECT_EQ(walk.afp.Field(), kFieldCount);
}

TEST(Identifier, OfAnotherClassIsUnknownAndOrdinary)
{
    const std::pair<Bytes, std::string> kIdentifiers[] = {{Raw({0xD2, 0xA8, 0xAF}), "D2 A8 AF"},
                                                          {Raw({0xD4, 0xA9, 0xAF}), "D4 A9 AF"},
                                                          {Raw({0, 0xEE, 0xEE}), "00 EE EE"}};
    for (const auto& [identifier, shown] : kIdentifiers) {
        RecordWalk walk(Raw({0x5A, 0, 8}) + identifier + Zeros(3));
        EXPECT_EQ(walk.At(2), kRecord) << shown;
        EXPECT_EQ(walk.Body(), (Lines{"Boolean Unknown 1", "Text HexCode " + shown}));
        EXPECT_EQ(walk.afp.CodePages.Depth(), 1) << shown;
    }
}

TEST(Identifier, OfAnUnknownFieldStandsBehindExtensionAndPadding)
{
    RecordWalk walk(AfpFile().Add({"D3AF00", Raw({2, 0xC1, 0, 2}), kExtension | kPaddingFlag}));
    walk.At(2);
    EXPECT_EQ(walk.Body(), (Lines{"Int16 SFIExt 1", "Text SFIExtText A", "Int32 Padding 2", "Boolean Unknown 1",
                                  "Text HexCode D3 AF 00"}));
}

// Code page levels -------------------------------------------------------------------------------------------------

TEST(CodePageLevels, FollowBeginAndEnd)
{
    RecordWalk walk(AfpFile().Add("BDT").Add("NOP").Add("BPG").Add("IPG").Add("EPG").Add("EDT"));
    for (const std::int32_t depth : {2, 2, 3, 3, 2, 1}) {
        walk.Next();
        EXPECT_EQ(walk.afp.CodePages.Depth(), depth) << walk.Text(Key::NodeText);
    }
}

TEST(CodePageLevels, StayAtOneUnderEndsWithoutABegin)
{
    RecordWalk walk(AfpFile().Add("EPG").Add("EPG").Add("EPG").Add("BPG"), {.lngInputCP = 500});
    for (const std::int32_t depth : {1, 1, 1, 2}) {
        walk.Next();
        EXPECT_EQ(walk.afp.CodePages.Depth(), depth);
        EXPECT_EQ(walk.afp.CurrentCodePage(), 500);
    }
}

TEST(CodePageLevels, FollowUnknownBeginsAndEnds)
{
    RecordWalk walk(AfpFile().Add("D3A800").Add("D3A900"));
    walk.At(2);
    EXPECT_EQ(walk.afp.CodePages.Depth(), 2);
    walk.At(11);
    EXPECT_EQ(walk.afp.CodePages.Depth(), 1);
}

TEST(CodePageLevels, ScopesKeepTheirPages)
{
    RecordWalk walk(AfpFile().Add("BDT").Add("BPG").Add("NOP").Add("EPG").Add("EDT"));
    walk.Next();
    walk.afp.CodePages.SetTop(500);  // as a Begin field does that names its page
    for (const std::int32_t page : {500, 500, 500, 37}) {
        walk.Next();
        EXPECT_EQ(walk.afp.CurrentCodePage(), page) << walk.Text(Key::NodeText);
    }
}

TEST(CodePageLevels, AMillionNestedScopesCanBeLeftAgain)
{
    constexpr std::int32_t kScopes = 1'000'000;
    RecordWalk walk(AfpFile().Add("BPG").Add("EPG"));
    walk.Step();
    for (std::int32_t i = 0; i < kScopes; ++i) {
        walk.afp.List().ClearCollections();
        walk.afp.AnalyzeRecord();
    }
    EXPECT_EQ(walk.afp.CodePages.Depth(), kScopes + 1);
    walk.Step();
    for (std::int32_t i = 0; i < kScopes; ++i) {
        walk.afp.List().ClearCollections();
        walk.afp.AnalyzeRecord();
    }
    EXPECT_EQ(walk.afp.CodePages.Depth(), 1);
}

}  // namespace
}  // namespace folioscope
