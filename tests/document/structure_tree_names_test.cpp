// Node texts of the structure tree: names, tags, marks in red, and the bodies that share a name with them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/structure_tree.h"
#include "tree_under_test.h"

namespace folioscope {
namespace {

using test::PlainFolders;
using test::TreeUnderTest;

constexpr std::string_view kBeginEndTypes[] = {"AG", "BC", "CA", "CF", "CP", "DG", "DI", "DM", "DX", "DT",
                                               "FG", "FM", "FN", "GR", "II", "IM", "MM", "MO", "NG", "OC",
                                               "OG", "PF", "PG", "PM", "PS", "PT", "RS", "RG", "SG"};

Settings Decorated(int bold, int colored, std::int32_t color = 0xFF8080)
{
    Settings settings;
    settings.FolderBold = bold;
    settings.FolderColored = colored;
    settings.FolderColor = color;
    return settings;
}

TEST(NodeNames, EveryBeginAndEndShowsItsNameAndFiveFoldersDo)
{
    for (const auto type : kBeginEndTypes) {
        SCOPED_TRACE(type);
        TreeUnderTest t;
        const std::string begin = "B" + std::string(type), end = "E" + std::string(type);
        const auto leaf = t.Add(begin, " NAME ");
        const auto folder = t.Parent(leaf);
        const bool named = begin == "BRS" || begin == "BMM" || begin == "BDM" || begin == "BPG" || begin == "BNG";
        TreeUnderTest bare;
        const std::string title = bare.Text(bare.Parent(bare.Add(begin)));
        EXPECT_EQ(t.Text(leaf), begin + ": NAME");
        EXPECT_EQ(t.Text(folder), named ? title + ": NAME" : title);
        EXPECT_EQ(t.Text(t.Add(end, "  OTHER")), end + ": OTHER");
        EXPECT_EQ(t.Text(folder), named ? title + ": NAME" : title);
    }
}

TEST(NodeNames, BeginAndEndNamesGoByTheirOwnSetting)
{
    Settings settings = PlainFolders();
    settings.ShowBESF = 0;
    TreeUnderTest t(settings);
    const auto leaf = t.Add("BPG", "PAGE0001");
    EXPECT_EQ(t.Text(leaf), "BPG");
    EXPECT_EQ(t.Text(t.Parent(leaf)), "Page 1");
    EXPECT_EQ(t.Text(t.Add("IPO", "OVERLAY1")), "IPO: OVERLAY1");
    EXPECT_EQ(t.Text(t.Add("NOP", "note")), "NOP: note");
    EXPECT_EQ(t.Text(t.Add("EPG", "PAGE0001")), "EPG");
}

TEST(NodeNames, InvokeAndIncludeNamesGoByTheirOwnSetting)
{
    Settings off = PlainFolders();
    off.ShowIISF = 0;
    for (const auto* name : {"IMM", "IOB", "IPG", "IPO", "IPS"}) {
        TreeUnderTest shown, hidden(off);
        EXPECT_EQ(shown.Text(shown.Add(name, "  NAME  ")), std::string(name) + ": NAME");
        EXPECT_EQ(hidden.Text(hidden.Add(name, "NAME")), name);
        EXPECT_EQ(hidden.Text(hidden.Add("BDT", "NAME")), "BDT: NAME");
    }
    TreeUnderTest t;
    EXPECT_EQ(t.Text(t.Add("IDM", "NAME")), "IDM");
}

TEST(NodeNames, ContentsGoByTheirOwnSettingAndKeepTheirBlanks)
{
    Settings off = PlainFolders();
    off.ShowNOP = 0;
    for (const auto* name : {"NOP", "TLE"}) {
        TreeUnderTest shown, hidden(off);
        EXPECT_EQ(shown.Text(shown.Add(name, "  a note  ")), std::string(name) + ":   a note  ");
        EXPECT_EQ(hidden.Text(hidden.Add(name, "a note")), name);
        EXPECT_EQ(hidden.Text(hidden.Add("IPS", "NAME")), "IPS: NAME");
    }
}

TEST(NodeNames, OtherFieldsShowNone)
{
    TreeUnderTest t;
    for (const auto* name : {"PTX", "MCF-2", "PGD", "IDM", "LLE", "IEL", "OCD"})
        EXPECT_EQ(t.Text(t.Add(name, "NAME")), name);
}

TEST(NodeNames, OnlyBlanksAreTrimmed)
{
    TreeUnderTest t;
    EXPECT_EQ(t.Text(t.Add("BDT", " \tA B\t ")), "BDT: \tA B\t");
}

TEST(NodeNames, FoldersAreDecoratedAsTheSettingsSay)
{
    const auto folder = [](const Settings& settings) {
        TreeUnderTest t(settings);
        return t.Text(t.Parent(t.Add("BPG", "PAGE0001")));
    };
    EXPECT_EQ(folder(Decorated(0, 0)), "Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(1, 0)), "<b>Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(0, 1)), "<color=#8080FF>Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(1, 1)), "<color=#8080FF><b>Page 1: PAGE0001");
}

TEST(NodeNames, TheFolderColourIsWrittenRedFirst)
{
    const auto tag = [](std::int32_t color) {
        TreeUnderTest t(Decorated(0, 1, color));
        return t.Text(t.Parent(t.Add("BDT")));
    };
    EXPECT_EQ(tag(0x010203), "<color=#030201>Document");
    EXPECT_EQ(tag(0), "<color=#000000>Document");
    EXPECT_EQ(tag(0xABCDEF), "<color=#EFCDAB>Document");
    EXPECT_EQ(tag(0xFF), "<color=#FF0000>Document");
}

TEST(NodeNames, LeavesAndTheRootAreNeverDecorated)
{
    TreeUnderTest t(Decorated(1, 1));
    EXPECT_EQ(t.Text(t.Add("BDT")), "BDT");
    EXPECT_EQ(t.Text(NodeStore::kRoot), "test.afp");
}

TEST(NodeNames, RedTakesThePlaceOfTheFirstTag)
{
    const auto folder = [](const Settings& settings) {
        TreeUnderTest t(settings);
        const auto leaf = t.Begin("BPG", kBegin, "PAGE0001");
        t.tree.MarkNodeInvalid();
        const std::string once = t.Text(t.Parent(leaf));
        t.tree.MarkNodeInvalid();
        EXPECT_EQ(t.Text(t.Parent(leaf)), once);
        EXPECT_EQ(t.Text(leaf), "<color=clred>BPG: PAGE0001");
        EXPECT_EQ(t.Text(NodeStore::kRoot), "<color=clred>test.afp");
        return once;
    };
    EXPECT_EQ(folder(Decorated(0, 0)), "<color=clred>Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(1, 0)), "<color=clred>Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(0, 1)), "<color=clred>Page 1: PAGE0001");
    EXPECT_EQ(folder(Decorated(1, 1)), "<color=clred><b>Page 1: PAGE0001");
}

TEST(NodeNames, RedTakesWhatStandsInFrontOfTheFirstGreaterSignAlsoFromAName)
{
    for (int options = 0; options < 4; ++options) {
        SCOPED_TRACE(options);
        TreeUnderTest t(Decorated(options & 1, options >> 1));
        const auto leaf = t.Begin("BPG", kBegin, "A>B>C");
        EXPECT_EQ(t.Text(leaf), "BPG: A>B>C");
        const std::string folder = t.Text(t.Parent(leaf));
        t.tree.MarkNodeInvalid();
        EXPECT_EQ(t.Text(leaf), "<color=clred>B>C");
        EXPECT_EQ(t.Text(t.Parent(leaf)), "<color=clred>" + folder.substr(folder.find('>') + 1));
        t.tree.MarkNodeInvalid();
        EXPECT_EQ(t.Text(leaf), "<color=clred>B>C");
    }
}

TEST(NodeNames, ANameThatComesBehindTheMarkIsKeptWhole)
{
    for (const auto* name : {"PAGE0001", "A>B>C"}) {
        TreeUnderTest t(Decorated(1, 1));
        const auto leaf = t.Begin("BPG", kBegin);
        t.tree.MarkNodeInvalid();
        t.tree.ShowResName(name);
        t.tree.MarkNodeInvalid();
        EXPECT_EQ(t.Text(leaf), "<color=clred>BPG: " + std::string(name));
        EXPECT_EQ(t.Text(t.Parent(leaf)), "<color=clred><b>Page 1: " + std::string(name));
    }
}

TEST(NodeNames, ARedFolderWithoutTitleHasTheTagAlone)
{
    TreeUnderTest t;
    const auto leaf = t.Begin("BIM", Status{113});
    t.tree.MarkNodeInvalid();
    EXPECT_EQ(t.Text(t.Parent(leaf)), "<color=clred>");
}

TEST(NodeNames, ARootWithAGreaterSignInItsNameLosesWhatStandsInFront)
{
    Settings settings;
    MessageList messages;
    test::TestTreeListener listener;
    StructureTree tree(settings, Labels(Language::English), Labels(Language::English), messages, listener);
    tree.AddRoot("old>new.afp", "");
    tree.AddNodes(kRecord, test::FieldOf("NOP"));
    tree.MarkNodeInvalid();
    EXPECT_EQ(tree.NodeText(NodeStore::kRoot), "<color=clred>new.afp");
}

TEST(NodeNames, EqualNamesOfDifferentNodesAreKeptApart)
{
    TreeUnderTest t;
    const auto first = t.Add("NOP", "same"), second = t.Begin("NOP", kRecord, "same");
    t.tree.MarkNodeInvalid();
    EXPECT_EQ(t.Text(first), "NOP: same");
    EXPECT_EQ(t.Text(second), "<color=clred>NOP: same");
}

TEST(NodeNames, ShortNamesAreThoseOfTheLeaves)
{
    TreeUnderTest t;
    const auto leaf = t.Add("BPG", "PAGE0001");
    EXPECT_EQ(t.tree.ShortName(leaf), "BPG");
    EXPECT_EQ(t.tree.ShortName(t.Parent(leaf)), "");
    EXPECT_EQ(t.tree.ShortName(t.Add("MCF-2")), "MCF-2");
    EXPECT_EQ(t.tree.ShortName(NodeStore::kRoot), "");
}

TEST(NodeNames, LeadingTagsAreTakenOffForAWindow)
{
    EXPECT_EQ(WithoutTags("BPG: A"), "BPG: A");
    EXPECT_EQ(WithoutTags("<b>Page 1"), "Page 1");
    EXPECT_EQ(WithoutTags("<color=#8080FF><b>Page 1"), "Page 1");
    EXPECT_EQ(WithoutTags("<color=clred>BPG: <b>"), "BPG: <b>");
    EXPECT_EQ(WithoutTags("<color=clred>"), "");
    EXPECT_EQ(WithoutTags("<x>y"), "<x>y");
    EXPECT_EQ(WithoutTags("<color=open"), "<color=open");
    EXPECT_EQ(WithoutTags(""), "");
}

// Bodies ------------------------------------------------------------------------------------------------------------

std::string Body(const TreeUnderTest& t, std::uint32_t node)
{
    std::string body = "kept: ";
    t.tree.AppendBody(body, node);
    EXPECT_TRUE(body.starts_with("kept: "));
    return body.substr(6);
}

TEST(NodeBodies, GiveBackWhatWasStored)
{
    constexpr std::string_view kBodies[] = {"Name:°^°B~\tPAGE0001°^°N~\r\n",
                                            "Name:°^°B~\tPAGE0001°^°N~\r\nMore: 1\r\n",
                                            "Name:\t°^°B~PAGE0001°^°N~\r\n",
                                            "Name:°^°B~\tPAGE0002°^°N~\r\n",
                                            "Name:°^°B~\tPAGE0001°^°N~",
                                            "Content:\t°^°B~PAGE0001°^°N~\r\n",
                                            "\r\nother text\r\n",
                                            ""};
    for (const auto* name : {"BPG", "EPG", "NOP", "IPO", "PTX"})
        for (const auto body : kBodies) {
            TreeUnderTest t;
            const auto leaf = t.Begin(name, test::StatusOf(name), "PAGE0001");
            t.tree.StoreNodeRecord(body, true, 10, 20);
            EXPECT_EQ(Body(t, leaf), body) << name;
            EXPECT_EQ(t.tree.Nodes()[leaf].lngStart, 10);
            EXPECT_EQ(t.tree.Nodes()[leaf].lngLength, 20);
        }
}

TEST(NodeBodies, DoNotFollowWhatBecomesOfTheName)
{
    constexpr std::string_view kBody = "Name:°^°B~\tPAGE0001°^°N~\r\n";
    TreeUnderTest t;
    const auto leaf = t.Begin("BPG", kBegin, "PAGE0001");
    t.tree.StoreNodeRecord(kBody, true, 1, 16);
    t.tree.MarkNodeInvalid();
    EXPECT_EQ(Body(t, leaf), kBody);
    EXPECT_EQ(Body(t, t.Parent(leaf)), "");
}

TEST(NodeBodies, AreTrimmedOfOuterBlanksOnly)
{
    TreeUnderTest t;
    const auto headed = t.Begin("PTX", kRecord);
    t.tree.StoreNodeRecord("  text\r\n  ", true, 1, 8);
    EXPECT_EQ(Body(t, headed), "  text\r\n");  // the head stands in front of it
    const auto bare = t.Begin("PTX", kRecord);
    t.tree.StoreNodeRecord("  \t text\r\n \t ", false, 1, 8);
    EXPECT_EQ(Body(t, bare), "\t text\r\n \t");
    const auto blank = t.Begin("PTX", kRecord);
    t.tree.StoreNodeRecord("    ", false, 1, 8);
    EXPECT_EQ(Body(t, blank), "");
}

TEST(NodeBodies, KeepTheGreatestPositionsAndLengths)
{
    TreeUnderTest t;
    const auto leaf = t.Begin("NOP", kRecord);
    t.tree.StoreNodeRecord("x", true, 2'147'483'632, 65'535);
    EXPECT_EQ(t.tree.Nodes()[leaf].lngStart, 2'147'483'632);
    EXPECT_EQ(t.tree.Nodes()[leaf].lngLength, 65'535);
}

}  // namespace
}  // namespace folioscope
