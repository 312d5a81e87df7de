#include "analysis/decode/dispatch.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/field_names.h"
#include "analysis/record_walk.h"
#include "stream/known_fields.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::FieldName;
using test::kFieldNames;
using test::Raw;
using test::RecordWalk;

using Lines = std::vector<std::string>;

// The two identifiers that the analysis knows and the reader steps over.
bool IsForDirectCallsOnly(std::string_view shortName) { return shortName == "RCD" || shortName == "XMD"; }

std::string LongNameOf(std::string_view shortName)
{
    for (const FieldName& field : kFieldNames)
        if (field.shortName == shortName) return std::string(field.longName);
    return {};
}

TEST(Fields, HaveAllShortAndLongNames)
{
    ASSERT_EQ(std::size(kFieldNames), 136u);
    ASSERT_EQ(Fields().size(), kFieldCount);
    for (const FieldName& field : kFieldNames) {
        const std::size_t row = FindField(field.category, field.type);
        ASSERT_LT(row, kFieldCount) << field.shortName;
        EXPECT_EQ(Fields()[row].NodeText, field.shortName);
        EXPECT_EQ(Fields()[row].SFName, field.longName);
        EXPECT_EQ(Fields()[row].id, field.category << 8 | field.type) << field.shortName;
    }
}

std::string_view SFNameOf(std::string_view shortName)
{
    for (const FieldRow& row : Fields())
        if (row.NodeText == shortName) return row.SFName;
    return {};
}

TEST(Fields, KeepTheUnevenLongNames)
{
    EXPECT_EQ(SFNameOf("LND"), "LND (Line Descriptor, x'D3 A6 E7)");
    EXPECT_EQ(SFNameOf("IDD"), "IDD (Image Data Descriptor, 'D3 A6 FB')");
    EXPECT_EQ(SFNameOf("MCF-1"), "MCF-1 (Map Coded Font [Older Format 1], x'D3 B1 8A')");
    EXPECT_EQ(SFNameOf("MCF-2"), "MCF (Map Coded Font [Newer Format 2], x'D3 AB 8A')");
    EXPECT_EQ(SFNameOf("PGP-1"), "PGP-1 (Page Position [Older Format 1], x'D3 AC AF')");
    EXPECT_EQ(SFNameOf("PGP-2"), "PGP (Page Position [Newer Format 2], x'D3 B1 AF')");
}

TEST(Fields, HaveDifferentShortNames)
{
    std::set<std::string_view> names;
    for (const FieldRow& row : Fields()) names.insert(row.NodeText);
    EXPECT_EQ(names.size(), 136u);
}

TEST(Fields, AreFoundByTheirIdentifierAlone)
{
    std::map<unsigned, std::string_view> expected;
    for (const FieldName& field : kFieldNames) expected[field.category * 256u + field.type] = field.shortName;
    for (unsigned id = 0; id < 65'536; ++id) {
        const std::size_t row = FindField(static_cast<std::uint8_t>(id >> 8), static_cast<std::uint8_t>(id));
        const std::string_view found = row == kFieldCount ? std::string_view() : Fields()[row].NodeText;
        const auto place = expected.find(id);
        ASSERT_EQ(found, place == expected.end() ? std::string_view() : place->second) << std::hex << id;
    }
}

TEST(Fields, AreThoseThatTheReaderKnowsAndTwoMore)
{
    int known = 0;
    for (unsigned id = 0; id < 65'536; ++id) {
        const auto category = static_cast<std::uint8_t>(id >> 8), type = static_cast<std::uint8_t>(id);
        const std::size_t row = FindField(category, type);
        const bool expected = row != kFieldCount && !IsForDirectCallsOnly(Fields()[row].NodeText);
        ASSERT_EQ(IsKnownSF(category, type), expected) << std::hex << id;
        known += IsKnownSF(category, type);
    }
    EXPECT_EQ(known, 134);
}

using Ports = std::map<std::string_view, Port>;

Ports PortsOf(Then then)
{
    Ports ports;
    for (const FieldRow& row : Fields())
        if (row.body.then == then) ports[row.NodeText] = row.body.port;
    return ports;
}

TEST(Fields, AreDeferredInFourCases)
{
    EXPECT_EQ(
        PortsOf(Then::Unread),
        (Ports{{"PTX", Port::Sequences}, {"IPD", Port::Fields}, {"FNI", Port::FontGroups}, {"FNM", Port::FontGroups}}));
}

TEST(Fields, GoThroughAPortAtOnceInThreeCases)
{
    EXPECT_EQ(PortsOf(Then::Port), (Ports{{"GAD", Port::Orders}, {"IDD", Port::Fields}, {"PTD-2", Port::Sequences}}));
}

TEST(Dispatch, EachFieldOfAFileGetsItsNamesBehindTheIntroducer)
{
    AfpFile file;
    for (const FieldName& field : kFieldNames)
        if (!IsForDirectCallsOnly(field.shortName)) file.Add(field.shortName);
    RecordWalk walk(file);
    for (const FieldName& field : kFieldNames) {
        if (IsForDirectCallsOnly(field.shortName)) continue;
        const Status expected = field.category == 0xA8 ? kBegin : field.category == 0xA9 ? kEnd : kRecord;
        EXPECT_EQ(walk.Next(), expected) << field.shortName;
        const Lines lines = walk.Lines();
        ASSERT_GE(lines.size(), 4u);
        EXPECT_EQ(lines[1], "Int32 SFLength 8");
        EXPECT_EQ(lines[2], "Text NodeText " + std::string(field.shortName));
        EXPECT_EQ(lines[3], "Text SFName " + std::string(field.longName));
    }
}

TEST(Dispatch, TheTwoOthersAreAnalysedWhenAskedFor)
{
    for (const std::string_view name : {"RCD", "XMD"}) {
        RecordWalk walk(AfpFile().Add(name));
        EXPECT_EQ(walk.At(2), kRecord);
        EXPECT_EQ(walk.Text(Key::NodeText), name);
        EXPECT_EQ(walk.Text(Key::SFName), LongNameOf(name));
    }
}

TEST(Dispatch, EveryOtherIdentifierIsUnknown)
{
    // Records of 8 bytes without any packaging: a known identifier of every category and type, in this order.
    Bytes content;
    for (unsigned id = 0; id < 65'536; ++id) content += Raw({0, 8, 0xD3}) + test::U2(id) + test::Zeros(3);
    RecordWalk walk(content);
    walk.afp.CloseAFPFile();
    walk.afp.OpenAFPFileRandom();
    for (unsigned id = 0; id < 65'536; ++id) {
        const Status status = walk.At(static_cast<std::int32_t>(8 * id) + 1);
        const auto category = static_cast<std::uint8_t>(id >> 8), type = static_cast<std::uint8_t>(id);
        ASSERT_EQ(status, category == 0xA8 ? kBegin : category == 0xA9 ? kEnd : kRecord) << std::hex << id;
        const bool known = FindField(category, type) != kFieldCount;
        ASSERT_EQ(walk.Has(Key::NodeText), known) << std::hex << id;
        ASSERT_EQ(walk.Has(Key::SFName), known) << std::hex << id;
        ASSERT_EQ(walk.Has(Key::Unknown), !known) << std::hex << id;
        if (known) continue;
        char shown[9];
        std::snprintf(shown, sizeof shown, "D3 %02X %02X", category, type);
        ASSERT_EQ(walk.Body(), (Lines{"Boolean Unknown 1", "Text HexCode " + std::string(shown)}));
    }
}

TEST(Dispatch, ABodyIsDeferredIfItHasMoreThanOneByte)
{
    for (const std::string_view name : {"PTX", "IPD", "FNI", "FNM"}) {
        RecordWalk walk(AfpFile().Add(name).Add(name, Raw({1})).Add(name, Raw({1, 2})).Add(name, Bytes(1'000, 'x')));
        for (const bool deferred : {false, false, true, true}) {
            walk.Next();
            EXPECT_EQ(walk.Body(), deferred ? Lines{"Int16 Unread 1"} : Lines{}) << name;
        }
    }
}

TEST(Dispatch, PaddingAndExtensionCountForTheDeferring)
{
    RecordWalk walk(AfpFile().Add({"PTX", Raw({1, 2, 3, 3}), 0x08}).Add({"PTX", Raw({3, 1, 2, 9}), 0x80}));
    walk.Next();
    EXPECT_FALSE(walk.Has(Key::Unread));
    walk.Next();
    EXPECT_FALSE(walk.Has(Key::Unread));
}

TEST(Dispatch, NoOtherFieldIsDeferred)
{
    AfpFile file;
    for (const FieldName& field : kFieldNames)
        if (!IsForDirectCallsOnly(field.shortName)) file.Add(field.shortName, Bytes(20, '\x40'));
    RecordWalk walk(file);
    std::set<std::string> deferred;
    for (int i = 0; i < 134; ++i) {
        walk.Next();
        if (walk.Has(Key::Unread)) deferred.insert(walk.Text(Key::NodeText));
    }
    EXPECT_EQ(deferred, (std::set<std::string>{"PTX", "IPD", "FNI", "FNM"}));
}

}  // namespace
}  // namespace folioscope
