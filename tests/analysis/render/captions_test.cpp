// What the names in the Elements do to the tree, and how a dump shows triplets: whole files, run as a document.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Ebcdic;
using test::Ebcdic8;
using test::Raw;
using test::Triplet;
using test::Zeros;

struct StringSink final : DumpSink {
    FileFailure Write(std::string_view bytes) override
    {
        text += bytes;
        return {};
    }
    std::string text;
};

struct RunOfFile {
    RunOfFile(const AfpFile& file, const Settings& settings) : document(settings, {}, messages, host)
    {
        EXPECT_TRUE(document.ProcessAFPFile(folder.File("input.afp", file.Content())));
    }

    // The text of a node, counted from the first record's.
    std::string Node(std::uint32_t number) const { return document.Tree().NodeText(NodeStore::kRoot + number); }

    std::string Dump()
    {
        StringSink sink;
        EXPECT_TRUE(document.WriteDump(sink, DumpEncoding::Utf8).Whole());
        return sink.text;
    }

    test::TemporaryFolder folder;
    MessageList messages;
    RunHost host;
    Document document;
};

Settings Plain()
{
    Settings settings;
    settings.FolderBold = settings.FolderColored = 0;
    return settings;
}

AfpFile Includes()
{
    // Name, reserved byte, kind of the object, and the rest.
    const auto name = [](std::string_view text) { return Ebcdic8(text) + Raw({0, 0xFB}) + Zeros(18); };
    return AfpFile()
        .Add("IMM", Ebcdic8("MAP"))
        .Add("IOB", name("OBJECT"))
        .Add("IPG", name("PAGE"))
        .Add("IPO", name("OVERLAY"))
        .Add("IPS", name("SEGMENT"))
        .Add("IDM", Ebcdic8("DATAMAP"))
        .Add("IOB", Zeros(8) + Raw({0, 0xFB}) + Zeros(18))
        .Add("IPS", Ebcdic(" A B    ") + Zeros(20));
}

std::vector<std::string> Captions(const RunOfFile& run, std::uint32_t count)
{
    std::vector<std::string> captions;
    for (std::uint32_t node = 1; node <= count; ++node) captions.push_back(run.Node(node));
    return captions;
}

TEST(Captions, OfIncludesHaveTheirNames)
{
    const RunOfFile run(Includes(), Plain());
    EXPECT_EQ(Captions(run, 8), (std::vector<std::string>{"IMM: MAP", "IOB: OBJECT", "IPG: PAGE", "IPO: OVERLAY",
                                                          "IPS: SEGMENT", "IDM", "IOB", "IPS: A B"}));
}

TEST(Captions, OfIncludesCanDoWithoutNames)
{
    Settings settings = Plain();
    settings.ShowIISF = 0;
    const RunOfFile run(Includes(), settings);
    EXPECT_EQ(Captions(run, 6), (std::vector<std::string>{"IMM", "IOB", "IPG", "IPO", "IPS", "IDM"}));
}

TEST(Captions, OfIncludesGoByTheirOwnSetting)
{
    Settings settings = Plain();
    settings.ShowBESF = settings.ShowNOP = 0;
    const RunOfFile run(Includes(), settings);
    EXPECT_EQ(run.Node(1), "IMM: MAP");
}

AfpFile Attribute()
{
    return AfpFile().Add("TLE", Triplet(0x02, Raw({0x0B, 0x00}) + Ebcdic("Account")) +
                                    Triplet(0x36, Raw({0x00, 0x00}) + Ebcdic("4711")));
}

TEST(Captions, OfAttributesHaveNameAndValue)
{
    EXPECT_EQ(RunOfFile(Attribute(), Plain()).Node(1), "TLE: Account -> 4711");
    Settings settings = Plain();
    settings.ShowNOP = 0;
    EXPECT_EQ(RunOfFile(Attribute(), settings).Node(1), "TLE");
}

TEST(Captions, AreRedForAnUnknownTriplet)
{
    const RunOfFile run(AfpFile().Add("OBD", Triplet(0x9E, Raw({1}))), Plain());
    EXPECT_EQ(run.Node(1), "<color=clred>OBD");
    ASSERT_EQ(run.messages.Size(), 1u);
    EXPECT_EQ(run.messages.Description(run.messages[0]), "Triplet: Unknown");
}

TEST(Dump, ShowsTheTripletsOfAnAttribute)
{
    const auto file = AfpFile()
                          .Add("BDT")
                          .Add("BPG", Ebcdic8("PAGE0001"))
                          .Add("TLE", Triplet(0x02, Raw({0x0B, 0x00}) + Ebcdic("Account")) +
                                          Triplet(0x36, Raw({0x00, 0x00}) + Ebcdic("4711")));
    RunOfFile run(file, {});
    const std::string dump = run.Dump();
    EXPECT_TRUE(dump.ends_with("     ---------\n"
                               ">>\tTLE\tTriplet:\tx'02' (Fully Qualified Name)\n"
                               ">>\t\t\tName subtype: x'0B' (Attribute GID)\n"
                               ">>\t\t\tGID format: Character string\n"
                               ">>\t\t\tContent:\tAccount\n"
                               ">>\t\t\n"
                               ">>\t\tTriplet:\tx'36' (Attribute Value)\n"
                               ">>\t\t\tContent:\t4711\n"))
        << dump;
}

TEST(Dump, ShowsTheNameOfAPage)
{
    RunOfFile run(AfpFile().Add("BPG", Ebcdic8("PAGE0001")), Plain());
    EXPECT_TRUE(run.Dump().ends_with("     ---------\n>\tBPG\tName:\tPAGE0001\n")) << run.Dump();
}

}  // namespace
}  // namespace folioscope
