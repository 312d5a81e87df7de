#include "document/structure_tree.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tree_under_test.h"

namespace folioscope {
namespace {

using test::FieldOf;
using test::LinesOf;
using test::Outline;
using test::PlainFolders;
using test::StatusOf;
using test::TreeUnderTest;
using Lines = std::vector<std::string>;

constexpr std::uint32_t kRoot = NodeStore::kRoot;
constexpr Status kSegmentedBegin{113}, kSegmentedEnd{121};

enum class On { None, Folder, Parent };

struct FolderExpected {
    std::string_view type, title;  // type: the short names without B and E
    int image = 0;
    On on = On::None;
};

// clang-format off
constexpr FolderExpected kFolders[] = {
    {"AG", "Active Env. Group"},
    {"BC", "Bar Code Data"},
    {"CA", "Color Table Data"},
    {"CF", "Coded Font",                 7,  On::Parent},
    {"CP", "Code Page",                  7,  On::Parent},
    {"DG", "Document Env. Group"},
    {"DI", "Document Index",             4,  On::Folder},
    {"DM", "Data Map"},
    {"DX", "Data Map Transm. Subcase"},
    {"DT", "Document",                   10, On::Folder},
    {"FG", "Form Env. Group"},
    {"FM", "Form Definition"},
    {"FN", "Character Set",              7,  On::Parent},
    {"GR", "GOCA Graphics Data"},
    {"II", "IM Image Data"},
    {"IM", "IOCA Image Data"},
    {"MM", "Medium Map"},
    {"MO", "Overlay",                    8,  On::Parent},
    {"NG", "Named Group",                11, On::Folder},
    {"OC", "Object Container"},
    {"OG", "Object Env. Group"},
    {"PF", "Print File"},
    {"PG", "Page 1",                     11, On::Folder},
    {"PM", "Page Definition"},
    {"PS", "Page Segment",               9,  On::Parent},
    {"PT", "Presentation Text"},
    {"RS", "Resource",                   6,  On::Folder},
    {"RG", "Resource Group",             5,  On::Folder},
    {"SG", "Resource Environment Group"},
};
// clang-format on

TEST(StructureTree, ShowsTheFileAsItsRoot)
{
    const TreeUnderTest t;
    EXPECT_EQ(Outline(t.tree), "test.afp\n");
    EXPECT_EQ(t.Image(kRoot), 0);
    std::string body;
    t.tree.AppendBody(body, kRoot);
    EXPECT_EQ(body, "root text");
    EXPECT_EQ(t.tree.Current(), kRoot);
}

TEST(StructureTree, GivesEachBeginItsFolderTitleAndImage)
{
    for (const auto& [type, title, image, on] : kFolders) {
        SCOPED_TRACE(type);
        TreeUnderTest t;
        const auto outer = t.Parent(t.Add("BSG"));
        const auto leaf = t.Add("B" + std::string(type));
        const auto folder = t.Parent(leaf);
        EXPECT_EQ(t.Parent(folder), outer);
        EXPECT_EQ(t.Text(folder), title);
        EXPECT_EQ(t.Text(leaf), "B" + std::string(type));
        EXPECT_EQ(t.Image(folder), on == On::Folder ? image : 0);
        EXPECT_EQ(t.Image(outer), on == On::Parent ? image : 0);
        EXPECT_EQ(t.Image(leaf), 2);
        EXPECT_EQ(t.Image(t.Add("E" + std::string(type))), 2);
    }
}

TEST(StructureTree, AResourceFolderShowsTheKindOfResourceThatItHolds)
{
    constexpr std::pair<std::string_view, int> kKinds[] = {{"BCF", 7}, {"BCP", 7}, {"BFN", 7},
                                                           {"BMO", 8}, {"BPS", 9}, {"BFM", 6}};
    for (const auto& [begin, image] : kKinds) {
        TreeUnderTest t;
        const auto resource = t.Parent(t.Add("BRS"));
        EXPECT_EQ(t.Image(resource), 6);
        t.Add(begin);
        EXPECT_EQ(t.Image(resource), image) << begin;
    }
}

TEST(StructureTree, AnImageForTheParentCanGoToTheRoot)
{
    TreeUnderTest t;
    t.Add("BPS");
    EXPECT_EQ(t.Image(kRoot), 9);
}

TEST(StructureTree, PutsRecordsBetweenBeginAndEndIntoTheirFolder)
{
    TreeUnderTest t;
    for (const auto* name : {"NOP", "BDT", "BPG", "PTX", "EPG", "NOP", "EDT", "NOP"}) t.Add(name);
    EXPECT_EQ(Outline(t.tree), "test.afp\n"
                               "  NOP\n"
                               "  Document\n"
                               "    BDT\n"
                               "    Page 1\n"
                               "      BPG\n"
                               "      PTX\n"
                               "      EPG\n"
                               "    NOP\n"
                               "    EDT\n"
                               "  NOP\n");
    EXPECT_EQ(t.messages.Size(), 0u);
}

TEST(StructureTree, TheClosedFolderIsCurrentBehindAnEnd)
{
    TreeUnderTest t;
    const auto begin = t.Add("BDT");
    EXPECT_EQ(t.tree.Current(), begin);
    t.Add("EDT");
    EXPECT_EQ(t.tree.Current(), t.Parent(begin));
    const auto leaf = t.Add("NOP");
    EXPECT_EQ(t.tree.Current(), leaf);
    EXPECT_EQ(t.Parent(leaf), kRoot);
}

TEST(StructureTree, ASegmentedBeginMakesAFolderWithoutTitleAndImage)
{
    TreeUnderTest t{Settings{}};
    const auto page = t.Add("BPG", kSegmentedBegin);
    EXPECT_EQ(t.Text(t.Parent(page)), "");
    EXPECT_EQ(t.Image(t.Parent(page)), 0);
    EXPECT_EQ(t.Text(page), "BPG");
    t.Add("BPS", kSegmentedBegin);
    EXPECT_EQ(t.Image(t.Parent(page)), 0);
    EXPECT_EQ(t.tree.PageCount(), 0);
    EXPECT_TRUE(t.listener.pages.empty());
    EXPECT_EQ(t.listener.offers, 0);
}

TEST(StructureTree, ANamedSegmentedBeginGivesItsFolderTheNameAlone)
{
    TreeUnderTest t;
    const auto page = t.Add("BPG", kSegmentedBegin, "PAGE0001"), image = t.Add("BIM", kSegmentedBegin, "IMAGE001");
    EXPECT_EQ(t.Text(t.Parent(page)), ": PAGE0001");
    EXPECT_EQ(t.Text(t.Parent(image)), "");
}

TEST(StructureTree, ASegmentedEndDoesNotClose)
{
    TreeUnderTest t;
    for (const auto& [name, status] :
         {std::pair{"BDT", kBegin}, {"EDT", kSegmentedEnd}, {"NOP", kRecord}, {"EDT", kEnd}})
        t.Add(name, status);
    t.Add("NOP");
    EXPECT_EQ(Outline(t.tree), "test.afp\n  Document\n    BDT\n    EDT\n    NOP\n    EDT\n  NOP\n");
    EXPECT_EQ(t.messages.Size(), 0u);
}

TEST(StructureTree, ASegmentedRecordIsALeafLikeOthers)
{
    TreeUnderTest t;
    t.Add("NOP", kSegmented);
    EXPECT_EQ(Outline(t.tree), "test.afp\n  NOP\n");
}

TEST(StructureTree, OtherStatusesAddNoNode)
{
    TreeUnderTest t;
    t.Add("BDT");
    const auto size = t.tree.Nodes().Size();
    for (const int status : {0, 32, 98, 99, 104, 105, 114, 116, 122, 124, 127})
        EXPECT_FALSE(t.tree.AddNodes(static_cast<Status>(status), FieldOf("NOP"))) << status;
    EXPECT_EQ(t.tree.Nodes().Size(), size);
}

TEST(StructureTree, AnEndAtRootLevelStaysThere)
{
    TreeUnderTest t;
    for (const auto* name : {"BDT", "EDT", "EDT", "NOP"}) t.Add(name);
    EXPECT_EQ(Outline(t.tree), "<color=clred>test.afp\n  Document\n    BDT\n    EDT\n  <color=clred>EDT\n  NOP\n");
    EXPECT_EQ(LinesOf(t.messages), (Lines{"Structure E: Structured Field EDT does not match to a corresponding Begin "
                                          "Structured Field!"}));
    EXPECT_TRUE(t.messages[0].bolHighlight);
}

TEST(StructureTree, AnEndInFrontOfEverythingIsComparedWithItself)
{
    TreeUnderTest t;
    t.Add("EPG");
    t.Add("EPG");
    EXPECT_EQ(t.messages.Size(), 0u);
    t.Add("EDT");
    EXPECT_EQ(t.messages.Size(), 1u);
}

TEST(StructureTree, EndsPairWithTheirBegins)
{
    for (const auto& [beginType, title, image, on] : kFolders)
        for (const auto& row : kFolders) {
            TreeUnderTest t;
            t.Add("B" + std::string(beginType));
            t.Add("E" + std::string(row.type));
            EXPECT_EQ(t.messages.Size(), row.type == beginType ? 0u : 1u) << beginType << ' ' << row.type;
        }
}

TEST(StructureTree, TheFirstRecordOfAFolderCountsAsItsBeginAlthoughNamesDiffer)
{
    TreeUnderTest t;
    t.Add("BPG", "PAGE0001");
    t.Add("EPG", "OTHER");
    EXPECT_EQ(t.messages.Size(), 0u);
    EXPECT_EQ(Outline(t.tree), "test.afp\n  Page 1: PAGE0001\n    BPG: PAGE0001\n    EPG: OTHER\n");
}

TEST(StructureTree, AWrongEndClosesItsFolderAllTheSame)
{
    TreeUnderTest t;
    for (const auto* name : {"BDT", "BPG", "EDT", "EPG", "NOP"}) t.Add(name);
    EXPECT_EQ(Outline(t.tree), "<color=clred>test.afp\n"
                               "  <color=clred>Document\n"
                               "    BDT\n"
                               "    <color=clred>Page 1\n"
                               "      BPG\n"
                               "      <color=clred>EDT\n"
                               "    <color=clred>EPG\n"
                               "  NOP\n");
    EXPECT_EQ(t.messages.Size(), 2u);
}

TEST(StructureTree, ARedBeginStillPairs)
{
    TreeUnderTest t;
    t.Begin("BDT", kBegin, "NAME");
    t.tree.MarkNodeInvalid();
    t.Add("NOP");
    t.Add("EDT");
    EXPECT_EQ(t.messages.Size(), 0u);
}

// What the marking leaves of the Begin's text is its name's end, and that is what the End is held against.
TEST(StructureTree, ARedBeginThatLostItsShortNamePairsByWhatIsLeft)
{
    TreeUnderTest lost, matching;
    lost.Begin("BPG", kBegin, "A>B");
    lost.tree.MarkNodeInvalid();
    lost.Add("EPG");
    EXPECT_EQ(lost.messages.Size(), 1u);
    matching.Begin("BPG", kBegin, "A>XPGX");
    matching.tree.MarkNodeInvalid();
    matching.Add("EPG");
    EXPECT_EQ(matching.messages.Size(), 0u);
}

// An End at root level is held against the root's first child, also if that is a folder, whose title can match.
TEST(StructureTree, AnEndAtRootLevelIsComparedWithAFoldersTitle)
{
    const auto faults = [](int bold, int colored) {
        Settings settings = PlainFolders();
        settings.FolderBold = bold;
        settings.FolderColored = colored;
        TreeUnderTest t(settings);
        for (const auto* name : {"BIM", "EIM", "EOC"}) t.Add(name);  // "IOCA Image Data" ends like EOC
        return t.messages.Size();
    };
    EXPECT_EQ(faults(0, 0), 0u);
    EXPECT_EQ(faults(1, 0), 0u);
    EXPECT_EQ(faults(0, 1), 0u);
    EXPECT_EQ(faults(1, 1), 1u);  // only the first of the two tags is taken off
}

TEST(StructureTree, TellsOfAWrongEndInTheLanguageOfTheInterface)
{
    TreeUnderTest t(PlainFolders(), Language::German);
    t.Add("BDT");
    t.Add("EPG");
    EXPECT_EQ(LinesOf(t.messages),
              (Lines{"Structure E: Zum Structured Field EPG gibt es kein passendes Begin Structured "
                     "Field!"}));
}

TEST(StructureTree, NotesTheLeavesOfPageEnds)
{
    TreeUnderTest t;
    t.Add("BDT");
    t.Add("BPG");
    const auto first = t.Add("EPG");
    t.Add("BPG");
    t.Add("EPG", kSegmentedEnd);
    const auto second = t.Add("EPG"), wrong = t.Add("EPG");
    EXPECT_EQ(t.messages.Size(), 1u);
    const std::deque<std::uint32_t> expected = {first, second, wrong};
    EXPECT_EQ(t.tree.PageEnds(), expected);
}

TEST(StructureTree, NumbersPagesThroughoutTheFile)
{
    TreeUnderTest t;
    std::uint32_t leaf = 0;
    for (int i = 0; i < 1234; ++i) {
        leaf = t.Add("BPG");
        t.Add("EPG");
    }
    EXPECT_EQ(t.Text(t.Parent(leaf)), "Page 1234");
    EXPECT_EQ(t.tree.PageCount(), 1234);
    EXPECT_EQ(t.listener.pages.size(), 1234u);
    EXPECT_EQ(t.listener.pages.front(), 1);
    EXPECT_EQ(t.listener.pages.back(), 1234);
}

TEST(StructureTree, OffersThePreviewOnceAtTheFirstPage)
{
    TreeUnderTest t;
    t.Add("BDT");
    EXPECT_EQ(t.listener.offers, 0);
    for (int i = 0; i < 3; ++i) {
        t.Add("BPG");
        t.Add("EPG");
        EXPECT_EQ(t.listener.offers, 1);
    }
}

TEST(StructureTree, OffersThePreviewForSegmentsAndOverlaysOutsideResourcesOnly)
{
    const auto offers = [](const std::vector<std::string>& records) {
        TreeUnderTest t;
        for (const auto& name : records) t.Add(name);
        return t.listener.offers;
    };
    EXPECT_EQ(offers({"BPS"}), 1);
    EXPECT_EQ(offers({"BMO"}), 1);
    EXPECT_EQ(offers({"BPS", "EPS", "BMO"}), 1);
    EXPECT_EQ(offers({"BFM", "BMM", "BIM", "BRS", "BFN", "BCP", "BCF"}), 0);
    EXPECT_EQ(offers({"BRG", "BRS", "BPS", "EPS", "ERS", "BRS", "BMO"}), 0);
    EXPECT_EQ(offers({"BRG", "BPG"}), 1);
    EXPECT_EQ(offers({"BRG", "ERG", "BPS"}), 0);  // a document ends the resources, not the group's end
    EXPECT_EQ(offers({"BRG", "ERG", "BDT", "BPS"}), 1);
    EXPECT_EQ(offers({"BDT", "BRG", "BMO"}), 0);
}

TEST(StructureTree, ASegmentedGroupOrDocumentChangesNothingForThePreview)
{
    TreeUnderTest t;
    t.Add("BRG", kSegmentedBegin);
    t.Add("BPS");
    EXPECT_EQ(t.listener.offers, 1);
    TreeUnderTest inside;
    inside.Add("BRG");
    inside.Add("BDT", kSegmentedBegin);
    inside.Add("BPS");
    EXPECT_EQ(inside.listener.offers, 0);
}

TEST(StructureTree, MarksANodeAndAllFoldersAroundIt)
{
    TreeUnderTest t;
    const auto document = t.Parent(t.Add("BDT")), before = t.Parent(t.Add("BPG"));
    t.Add("EPG");
    const auto page = t.Parent(t.Add("BPG"));
    const auto leaf = t.Begin("PTX", kRecord);
    t.tree.MarkNodeInvalid();
    for (const auto node : {leaf, page, document, kRoot}) EXPECT_TRUE(t.tree.Nodes()[node].red) << node;
    for (const auto node : {document + 1, before, before + 1, page + 1}) EXPECT_FALSE(t.tree.Nodes()[node].red) << node;
}

TEST(StructureTree, MarksTheNodeThatIsReadAgain)
{
    TreeUnderTest t;
    const auto page = t.Parent(t.Add("BPG")), text = t.Add("PTX");
    t.Add("EPG");
    t.Add("NOP");
    t.tree.Revisit(text, true);
    t.tree.MarkNodeInvalid();
    t.tree.AddContentMessage("PTX-Code: Unknown");
    EXPECT_EQ(Outline(t.tree),
              "<color=clred>test.afp\n  <color=clred>Page 1\n    BPG\n    <color=clred>PTX\n    EPG\n  NOP\n");
    EXPECT_EQ(LinesOf(t.messages), (Lines{"Content E: PTX-Code: Unknown"}));
    EXPECT_TRUE(t.messages[0].bolHighlight);
    EXPECT_TRUE(t.tree.Nodes()[page].red);
}

TEST(StructureTree, FaultsOfANodeThatWasHeardCountNoMore)
{
    TreeUnderTest t;
    const auto text = t.Add("PTX");
    t.tree.Revisit(text, false);
    t.tree.MarkNodeInvalid();
    t.tree.AddContentMessage("PTX-Code: Unknown");
    EXPECT_EQ(t.messages.Size(), 0u);
    EXPECT_FALSE(t.tree.Nodes()[kRoot].red);
    t.Begin("NOP", kRecord);
    t.tree.MarkNodeInvalid();
    EXPECT_TRUE(t.tree.Nodes()[kRoot].red);
}

TEST(StructureTree, BuildsAMillionLevelsWithAFaultOnEach)
{
    constexpr std::size_t kLevels = 1'000'000;
    TreeUnderTest t;
    t.AddMany(kLevels, "BNG", kBegin);
    t.AddMany(kLevels, "EPG", kEnd);
    EXPECT_EQ(t.messages.Size(), kLevels);
    EXPECT_EQ(t.tree.PageEnds().size(), kLevels);
    EXPECT_EQ(t.tree.Current(), 2u);
    EXPECT_EQ(t.tree.Nodes().Size(), 3 * kLevels + 2);
    EXPECT_EQ(t.Text(2), "<color=clred>Named Group");
}

TEST(StructureTree, HoldsAMillionPageEnds)
{
    constexpr std::size_t kEnds = 1'000'000;
    TreeUnderTest t;
    t.Add("BDT");
    t.AddMany(kEnds, "EPG", kSegmentedEnd);
    t.AddMany(kEnds, "EPG", kEnd);
    EXPECT_EQ(t.tree.PageEnds().size(), kEnds);
    EXPECT_EQ(t.tree.PageEnds().front(), kEnds + 4);
    EXPECT_EQ(t.tree.PageEnds().back(), 2 * kEnds + 3);
}

}  // namespace
}  // namespace folioscope
