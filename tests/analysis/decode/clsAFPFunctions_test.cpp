// The operations of a walk and what they leave in the Element list.

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
using test::Ebcdic8;
using test::Field;
using test::LinesOf;
using test::Packaging;
using test::Raw;
using test::RecordWalk;
using test::Structured;
using test::TemporaryFolder;

using Lines = std::vector<std::string>;

AfpFile TwoPages(Packaging packaging = Packaging::FiveA)
{
    return AfpFile(packaging).Add("BPG", Ebcdic8("PAGE0001")).Add("EPG", Ebcdic8("PAGE0001"));
}

TEST(Analyser, StartsWithThePagesThatARunOverrides)
{
    clsAFPFunctions afp;
    EXPECT_EQ(afp.Pages.lngInputCP, 37);
    EXPECT_EQ(afp.Pages.lngInputCPNOP, 37);
    EXPECT_EQ(afp.Pages.lngInputCPTLE, 37);
    EXPECT_EQ(afp.Pages.lngOutputCP, 1252);
    EXPECT_TRUE(afp.Pages.CPAutoDetect);
    EXPECT_EQ(afp.CurrentCodePage(), 37);
    EXPECT_EQ(afp.CodePages.Depth(), 1);
    EXPECT_EQ(afp.Reader().File(), "");
    EXPECT_TRUE(afp.List().Elements().empty());
}

TEST(Analyser, OneInputPageServesNOPAndTLEToo)
{
    clsAFPFunctions afp;
    afp.InitializeProcessing("some.afp", 500, 437, false);
    EXPECT_EQ(afp.Reader().File(), "some.afp");
    EXPECT_EQ(afp.Pages.lngInputCP, 500);
    EXPECT_EQ(afp.Pages.lngInputCPNOP, 500);
    EXPECT_EQ(afp.Pages.lngInputCPTLE, 500);
    EXPECT_EQ(afp.Pages.lngOutputCP, 437);
    EXPECT_FALSE(afp.Pages.CPAutoDetect);
    EXPECT_EQ(afp.CurrentCodePage(), 500);
}

TEST(Analyser, ThreeInputPagesCanDiffer)
{
    clsAFPFunctions afp;
    afp.CodePages.Push();
    afp.InitializeProcessing2("some.afp", {273, 500, 1141, 1252, true});
    EXPECT_EQ(afp.CurrentCodePage(), 273);
    EXPECT_EQ(afp.CodePages.Depth(), 1);
    EXPECT_EQ(afp.Pages.lngInputCPNOP, 500);
    EXPECT_EQ(afp.Pages.lngInputCPTLE, 1141);
}

TEST(Analyser, OpeningTellsSizeAndFraming)
{
    struct Case {
        Packaging packaging;
        Lines lines;
    };
    const Case cases[] = {
        {Packaging::Bare, {"Int32 FileSize 32", "Int16 RDW 0", "Int16 FiveAByte 0", "Text Linefeed "}},
        {Packaging::FiveA, {"Int32 FileSize 34", "Int16 RDW 0", "Int16 FiveAByte 1", "Text Linefeed "}},
        {Packaging::Rdw2, {"Int32 FileSize 38", "Int16 RDW 2", "Int16 FiveAByte 1", "Text Linefeed "}},
        {Packaging::Rdw4, {"Int32 FileSize 42", "Int16 RDW 4", "Int16 FiveAByte 1", "Text Linefeed "}},
        {Packaging::CrLf, {"Int32 FileSize 38", "Int16 RDW 0", "Int16 FiveAByte 1", "Text Linefeed \r\n"}},
    };
    for (const auto& [packaging, lines] : cases)
        EXPECT_EQ(RecordWalk(TwoPages(packaging)).Lines(), lines) << static_cast<int>(packaging);
}

TEST(Analyser, OpeningReplacesTheElementsOfBefore)
{
    RecordWalk walk(TwoPages());
    walk.Next();
    EXPECT_EQ(walk.afp.OpenAFPFile(), kOpen);
    EXPECT_EQ(walk.Lines().size(), 4u);
}

TEST(Analyser, AMissingFileIsTold)
{
    TemporaryFolder folder;
    clsAFPFunctions afp;
    afp.InitializeProcessing2(folder / "missing.afp", {});
    EXPECT_EQ(afp.OpenAFPFile(), kFailure);
    EXPECT_EQ(LinesOf(afp.List()), (Lines{"Int32 ErrorNumber 53", "Text ErrorDescription File not found"}));
}

TEST(Analyser, AFolderIsNoFile)
{
    TemporaryFolder folder;
    clsAFPFunctions afp;
    afp.InitializeProcessing2(folder.Path(), {});
    EXPECT_EQ(afp.OpenAFPFile(), kFailure);
    EXPECT_EQ(LinesOf(afp.List()), (Lines{"Int32 ErrorNumber 76", "Text ErrorDescription Path not found"}));
}

TEST(Analyser, AnEmptyFileHasNoRecord)
{
    RecordWalk walk(Bytes{});
    EXPECT_EQ(walk.Lines().front(), "Int32 FileSize 0");
    std::int32_t processed = -1;
    EXPECT_EQ(walk.afp.GetNextRecord(processed, false), kNoFurtherRecord);
    EXPECT_EQ(processed, 0);
    EXPECT_TRUE(walk.Lines().empty());
}

TEST(Analyser, GetNextRecordEmptiesTheListAndCountsBytes)
{
    RecordWalk walk(TwoPages());
    std::int32_t processed = 0;
    EXPECT_EQ(walk.afp.GetNextRecord(processed, false), kRecord);
    EXPECT_TRUE(walk.Lines().empty());
    EXPECT_EQ(processed, 1 + 16 + 1);
    EXPECT_EQ(walk.afp.GetNextRecord(processed, false), kRecord);
    EXPECT_EQ(walk.afp.GetNextRecord(processed, false), kNoFurtherRecord);
}

TEST(Analyser, GetNextRecord2KeepsTheElements)
{
    RecordWalk walk(TwoPages());
    std::int32_t processed = 0;
    EXPECT_EQ(walk.afp.GetNextRecord2(processed, false), kRecord);
    EXPECT_EQ(walk.Lines().size(), 4u);
}

TEST(Analyser, FullSFHoldsTheRecordInFrontOfItsElements)
{
    RecordWalk walk(AfpFile().Add("BPG", Ebcdic8("PAGE0001")).Add("EPG"));
    std::int32_t processed = 0;
    walk.afp.GetNextRecord(processed, true);
    walk.afp.AnalyzeRecord();
    EXPECT_EQ(walk.afp.List().Elements()[0].key, Key::FullSF);
    EXPECT_EQ(walk.afp.List().Elements()[1].key, Key::SFStart);
    EXPECT_EQ(walk.Text(Key::FullSF), Structured({"BPG", Ebcdic8("PAGE0001")}));
    EXPECT_EQ(walk.Text(Key::Name), "PAGE0001");
    walk.afp.GetNextRecord(processed, true);
    EXPECT_EQ(walk.Text(Key::FullSF), Structured({"EPG"}));
}

TEST(Analyser, FullSFHasTheDeclaredLengthBeyondTheFile)
{
    RecordWalk walk(AfpFile().Add(Field{.name = "BPG", .data = Ebcdic8("PAGE0001"), .declaredLength = 1'000}));
    std::int32_t processed = 0;
    walk.afp.GetNextRecord(processed, true);
    Bytes expected = Structured({.name = "BPG", .data = Ebcdic8("PAGE0001"), .declaredLength = 1'000});
    expected.resize(1'000, '\0');
    EXPECT_EQ(walk.Text(Key::FullSF), expected);
}

TEST(Analyser, WithoutBeingAskedThereIsNoFullSF)
{
    RecordWalk walk(TwoPages());
    walk.Next();
    EXPECT_FALSE(walk.Has(Key::FullSF));
}

TEST(Analyser, ClosingAndReopeningEmptyTheList)
{
    RecordWalk walk(TwoPages());
    walk.Next();
    EXPECT_EQ(walk.afp.CloseAFPFile(), kClosed);
    EXPECT_TRUE(walk.Lines().empty());
    walk.afp.AddElement(Element::Int32(Key::Length, 1));
    EXPECT_EQ(walk.afp.OpenAFPFileRandom().number, 0);
    EXPECT_TRUE(walk.Lines().empty());
}

TEST(Analyser, ARecordReadAgainHasTheSameElements)
{
    for (const Packaging packaging : {Packaging::Bare, Packaging::FiveA, Packaging::Rdw4, Packaging::CrLf}) {
        RecordWalk walk(TwoPages(packaging));
        std::vector<Lines> seen;
        std::vector<std::int32_t> starts;
        for (int i = 0; i < 2; ++i) {
            walk.Next();
            seen.push_back(walk.Lines());
            starts.push_back(static_cast<std::int32_t>(walk.Number(Key::SFStart)));
        }
        walk.afp.CloseAFPFile();
        walk.afp.OpenAFPFileRandom();
        for (const std::size_t i : {1, 0, 1}) {
            walk.At(starts[i]);
            EXPECT_EQ(walk.Lines(), seen[i]);
        }
    }
}

TEST(Analyser, SetNextRecordKeepsTheElements)
{
    RecordWalk walk(TwoPages());
    walk.Next();
    const Lines before = walk.Lines();
    EXPECT_EQ(walk.afp.SetNextRecord(2).number, 0);
    EXPECT_EQ(walk.Lines(), before);
}

TEST(Analyser, ReadingNamesTheFieldsRow)
{
    RecordWalk walk(TwoPages());
    walk.Next();
    ASSERT_LT(walk.afp.Field(), kFieldCount);
    EXPECT_EQ(Fields()[walk.afp.Field()].NodeText, "BPG");
    walk.Next();
    EXPECT_EQ(Fields()[walk.afp.Field()].NodeText, "EPG");
}

// The second pass ---------------------------------------------------------------------------------------------------

constexpr std::string_view kPorts[] = {"Sequences", "Orders", "Fields", "FontGroups"};

// A port that tells its name, its place in the record and the code page level.
template <int Index> void TellingPort(clsAFPFunctions& afp)
{
    afp.AddElement(Element::Literal(Key::Name, kPorts[Index]));
    afp.AddElement(Element::Int32(Key::BeginRepetition, afp.FieldPosition - afp.Reader().RecordStart()));
    afp.AddElement(Element::Int32(Key::EndRepetition, afp.FieldEnd - afp.Reader().RecordStart()));
    afp.AddElement(Element::Int32(Key::Length, afp.CodePages.Depth()));
    afp.CodePages.SetTop(1200);
}

constexpr DecodePorts kTellingPorts = {
    .Sequences = TellingPort<0>, .Orders = TellingPort<1>, .Fields = TellingPort<2>, .FontGroups = TellingPort<3>};

Lines ReadLater(RecordWalk& walk)
{
    walk.Step();
    walk.afp.AnalyzeSpecificRecord();
    return walk.Lines();
}

TEST(SecondPass, EachDeferredFieldGoesThroughItsPort)
{
    const std::pair<std::string_view, std::string> kFields[] = {
        {"PTX", "Sequences"}, {"IPD", "Fields"}, {"FNI", "FontGroups"}, {"FNM", "FontGroups"}};
    for (const auto& [field, port] : kFields) {
        RecordWalk walk(AfpFile().Add(field, Raw({1, 2, 3})));
        walk.afp.SetPorts(kTellingPorts);
        EXPECT_EQ(ReadLater(walk),
                  (Lines{"Text Name " + port, "Int32 BeginRepetition 8", "Int32 EndRepetition 10", "Int32 Length 2"}))
            << field;
    }
}

TEST(SecondPass, ExtensionAndPaddingStayOnTheBody)
{
    RecordWalk walk(AfpFile().Add({"PTX", Raw({2, 1, 0, 0, 0, 2}), 0x88}));
    walk.afp.SetPorts(kTellingPorts);
    EXPECT_EQ(ReadLater(walk),
              (Lines{"Text Name Sequences", "Int32 BeginRepetition 8", "Int32 EndRepetition 13", "Int32 Length 2"}));
}

TEST(SecondPass, AnyOtherFieldAddsNothing)
{
    AfpFile file;
    std::size_t count = 0;
    for (const FieldRow& row : Fields()) {
        if (row.body.then == Then::Unread || row.NodeText == "RCD" || row.NodeText == "XMD") continue;
        file.Add(row.NodeText, Raw({1, 2, 3, 4}));
        ++count;
    }
    EXPECT_EQ(count, 130u);
    RecordWalk walk(file);
    walk.afp.SetPorts(kTellingPorts);
    for (std::size_t i = 0; i < count; ++i) EXPECT_EQ(ReadLater(walk), Lines{});
}

TEST(SecondPass, AnUnknownFieldAddsNothing)
{
    RecordWalk walk(AfpFile().Add("D3AF00", Raw({1, 2, 3, 4})));
    walk.afp.SetPorts(kTellingPorts);
    walk.afp.List().ClearCollections();
    EXPECT_EQ(walk.afp.SetNextRecord(2).number, 0);
    walk.afp.AnalyzeSpecificRecord();
    EXPECT_EQ(walk.Lines(), Lines{});
}

TEST(SecondPass, WithoutAPortNothingIsAdded)
{
    for (const std::string_view field : {"PTX", "IPD", "FNI", "FNM"}) {
        RecordWalk walk(AfpFile().Add(field, Raw({1, 2, 3})));
        EXPECT_EQ(ReadLater(walk), Lines{}) << field;
    }
}

TEST(SecondPass, KeepsTheElementsThatAreThere)
{
    RecordWalk walk(AfpFile().Add("PTX", Raw({1, 2, 3})));
    walk.afp.SetPorts(kTellingPorts);
    walk.Next();
    const auto before = walk.Lines().size();
    walk.afp.AnalyzeSpecificRecord();
    EXPECT_EQ(walk.Lines().size(), before + 4);
}

TEST(SecondPass, LeavesTheCodePageLevelsAsTheyWere)
{
    RecordWalk walk(AfpFile().Add("BPG").Add("PTX", Raw({1, 2, 3})), {.lngInputCP = 500});
    walk.afp.SetPorts(kTellingPorts);
    walk.Next();
    EXPECT_EQ(ReadLater(walk).back(), "Int32 Length 3");
    EXPECT_EQ(walk.afp.CodePages.Depth(), 2);
    EXPECT_EQ(walk.afp.CurrentCodePage(), 500);  // the port set another one, for its own level
}

}  // namespace
}  // namespace folioscope
