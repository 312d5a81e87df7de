// The character and pattern tables of a font, which are read when somebody looks.

#include "objects/fonts_decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "objects/font_bench.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

Lines Only(const Lines& entries, std::string_view key)
{
    Lines values;
    for (const std::string& entry : entries) {
        const auto name = entry.find(' ') + 1;
        if (entry.substr(name).starts_with(std::string(key) + ' '))
            values.push_back(entry.substr(name + key.size() + 1));
    }
    return values;
}

// A character's group of 28 bytes.
Bytes Character(std::string_view name, std::string_view numbers) { return Ebcdic8(name) + Pieces(numbers) + Zeros(2); }
constexpr std::string_view kNumbers = "03E8 02BC FF38 FFFF 0001 FFFE FFFD FFFC FFFB";

// FNM
// --------------------------------------------------------------------------------------------------------------------

TEST(FNM, HasGroupsOfEightBytesThatSaySix)
{
    FontBench bench(AfpFile().Add("FNM", Pieces("0010 0020 00000000  0011 FFFF FFFFFFFF")), 1);
    EXPECT_EQ(bench.Array(0),
              (Lines{"Int16 BeginRepetition 1", "Int16 Length 6", "Int32 CharBoxWidth 16", "Int32 CharBoxHeight 32",
                     "Int32 RasterOffset 0", "Int16 EndRepetition 1", "Int16 BeginRepetition 2", "Int16 Length 6",
                     "Int32 CharBoxWidth 17", "Int32 CharBoxHeight 65535", "Int32 RasterOffset 2147483647",
                     "Int16 EndRepetition 2"}));
}

TEST(FNM, CutShortReadsTheLastGroupBehindTheField)
{
    const auto groups = [](std::size_t size) {
        FontBench bench(AfpFile().Add("FNM", Bytes(size, '\x01')), 1);
        return Only(bench.Array(0), "CharBoxHeight");
    };
    EXPECT_EQ(groups(2), Lines{"0"});
    EXPECT_EQ(groups(8), Lines{"257"});
    EXPECT_EQ(groups(9), Lines{"257"});  // a group begins ahead of the last byte
    EXPECT_EQ(groups(11), (Lines{"257", "256"}));
}

TEST(FNM, NeedsNoControl)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(1, 0)).Add("FNM", Zeros(16)), 2);
    EXPECT_EQ(Only(bench.Array(1), "EndRepetition"), (Lines{"1", "2"}));
}

TEST(FNM, ShowsTenThousandEntries)
{
    FontBench bench(AfpFile().Add("FNM", Zeros(32'000)), 1);
    const Lines entries = bench.Array(0);
    EXPECT_EQ(entries.size(), 10'000u);
    EXPECT_EQ(entries.back(), "Int32 CharBoxHeight 0");  // the 4th entry of group 1,667
    EXPECT_EQ(Only(entries, "BeginRepetition").back(), "1667");
    bench.Text(0);
    EXPECT_LE(bench.lines.renderer.text.Position(), PropertyText::kCapacity);
}

// FNI
// --------------------------------------------------------------------------------------------------------------------

TEST(FNI, HasAGroupForEachCharacter)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 28)).Add("FNI", Character("LA010000", kNumbers)), 2);
    EXPECT_EQ(bench.Array(1),
              (Lines{"Int16 BeginRepetition 1", "Int16 Length 28", "Text CharID LA010000", "Int32 CharIncrement 1000",
                     "Int32 Ascender 700", "Int32 Descender -200", "Int32 FNMElementIndex 2", "Int32 ASpace -2",
                     "Int32 BSpace 65533", "Int32 CSpace -4", "Int32 BaselineOffset -5", "Int16 EndRepetition 1"}));
}

TEST(FNI, HasAnIndexOnRasterPatternsOnly)
{
    for (unsigned technology = 0; technology < 256; ++technology) {
        FontBench bench(AfpFile().Add("FNC", FontControl(technology, 28)).Add("FNI", Character("A", kNumbers)), 2);
        EXPECT_EQ(Only(bench.Array(1), "FNMElementIndex").size(), technology == 5 ? 1u : 0u) << technology;
    }
}

TEST(FNI, AddsOneToTheIndex)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 28)).Add("FNI", Ebcdic8("A") + Zeros(8) + Pieces("FFFF 00*10")),
                    2);
    EXPECT_EQ(Only(bench.Array(1), "FNMElementIndex"), Lines{"65536"});
}

TEST(FNI, MovesByTheLengthThatTheControlGives)
{
    for (const unsigned length : {26u, 28u, 30u, 255u}) {
        Bytes index;
        for (const std::string_view name : {"LA010000", "LB010000", "LC010000"}) {
            Bytes group = Character(name, kNumbers) + Zeros(255);
            index += group.substr(0, length);
        }
        FontBench bench(AfpFile().Add("FNC", FontControl(5, length)).Add("FNI", index), 2);
        const Lines entries = bench.Array(1);
        EXPECT_EQ(Only(entries, "CharID"), (Lines{"LA010000", "LB010000", "LC010000"})) << length;
        EXPECT_EQ(Only(entries, "Length"), Lines(3, std::to_string(length)));
    }
}

TEST(FNI, OfOverlappingGroupsEndsAllTheSame)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 1)).Add("FNI", Zeros(30'000)), 2);
    EXPECT_EQ(bench.Array(1).size(), 10'000u);
}

TEST(FNI, HasNoGroupsWithoutALength)
{
    FontBench none(AfpFile().Add("FNI", Character("LA010000", kNumbers)), 1);
    EXPECT_EQ(none.Array(0), Lines{});
    EXPECT_EQ(none.Text(0), "");
    FontBench zero(AfpFile().Add("FNC", FontControl(5, 0)).Add("FNI", Character("LA010000", kNumbers)), 2);
    EXPECT_EQ(zero.Array(1), Lines{});
}

TEST(FNI, CutShortReadsTheLastGroupBehindTheField)
{
    const Bytes index = Character("LA010000", kNumbers) + Ebcdic("LB01");
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 28)).Add("FNI", index), 2);
    EXPECT_EQ(Only(bench.Array(1), "EndRepetition"), (Lines{"1", "2"}));
    EXPECT_EQ(Only(bench.Array(1), "CharIncrement"), (Lines{"1000", "0"}));
}

TEST(FNI, KeepsNamesThatAreNotGiven)
{
    FontBench bench(AfpFile().Add("FNC", FontControl(1, 28)).Add("FNI", Zeros(28) + Bytes(8, '\xFF') + Zeros(20)), 2);
    EXPECT_EQ(Only(bench.Array(1), "CharID"), (Lines{Bytes(1, '\0'), "ÿ"}));
}

TEST(FNI, ReadsItsNamesInPage500)
{
    Bytes group = Pieces("4A 5A 81") + Ebcdic("AAAAA") + Zeros(20);
    FontBench bench(AfpFile().Add("FNC", FontControl(1, 28)).Add("FNI", group), 2);
    EXPECT_EQ(Only(bench.Array(1), "CharID"), Lines{"[]aAAAAA"});
}

TEST(FNI, ShowsTenThousandEntries)
{
    Bytes index;
    for (int i = 0; i < 1'000; ++i) index += Character("LA010000", kNumbers);
    FontBench bench(AfpFile().Add("FNC", FontControl(5, 28)).Add("FNI", index), 2);
    const Lines entries = bench.Array(1);
    EXPECT_EQ(entries.size(), 10'000u);
    EXPECT_EQ(Only(entries, "BeginRepetition").back(), "834");  // twelve entries a group
}

TEST(FNI, IsReadWithTheLastControlOfTheRun)
{
    const Bytes index = Character("LA010000", kNumbers) + Character("LB010000", kNumbers);
    AfpFile file;
    file.Add("FNC", FontControl(5, 28)).Add("FNI", index).Add("FNC", FontControl(1, 14));
    FontBench bench(file, 3);
    const Lines entries = bench.Array(1);
    EXPECT_EQ(Only(entries, "EndRepetition").size(), 4u);
    EXPECT_EQ(Only(entries, "FNMElementIndex"), Lines{});
}

TEST(FNI, IsDumpedWithTheLastControlOfTheFile)
{
    AfpFile file;
    file.Add("FNC", FontControl(5, 28)).Add("FNI", Character("LA010000", kNumbers)).Add("FNC", FontControl(1, 28));
    const TemporaryFolder folder;
    const Settings settings;
    MessageList messages;
    RunHost host;
    Document document(settings, NumberStyle(), messages, host);
    ASSERT_TRUE(document.ProcessAFPFile(folder.File("font.afp", file.Content())));
    struct Sink final : DumpSink {
        FileFailure Write(std::string_view bytes) override
        {
            text += bytes;
            return {};
        }
        std::string text;
    } sink;
    ASSERT_TRUE(document.WriteDump(sink, DumpEncoding::Utf8).Whole());
    EXPECT_NE(sink.text.find("Character ID:\tLA010000\n"), std::string::npos) << sink.text;
    EXPECT_NE(sink.text.find("C-Space (Space after character): -4\n"), std::string::npos) << sink.text;
    EXPECT_EQ(sink.text.find("Accompanying FNM element"), std::string::npos);
    EXPECT_FALSE(messages.HasFaults());
}

}  // namespace
}  // namespace folioscope
