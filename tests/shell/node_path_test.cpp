#include "shell/node_path.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "shell/grown_tree.h"

namespace folioscope {
namespace {

using test::GrownTree;

constexpr std::uint32_t kRoot = NodeStore::kRoot;

TEST(NodePath, JoinsTheTextsWithTheirTags)
{
    GrownTree tree;  // folders are bold and coloured
    const std::uint32_t page = tree.Open(), leaf = tree.Leaf("one");
    EXPECT_EQ(FullPath(tree.tree, kRoot, "^"), "test.afp");
    EXPECT_EQ(FullPath(tree.tree, page, "^"), "test.afp^<color=#8080FF><b>Page 1");
    EXPECT_EQ(FullPath(tree.tree, leaf, "^"), "test.afp^<color=#8080FF><b>Page 1^NOP: one");
    EXPECT_EQ(FullPath(tree.tree, leaf, " -> "), "test.afp -> <color=#8080FF><b>Page 1 -> NOP: one");
}

TEST(NodePath, OfNoNodeIsEmpty)
{
    GrownTree tree;
    EXPECT_EQ(FullPath(tree.tree, 0, "^"), "");
    EXPECT_EQ(FullPath(tree.tree, tree.Nodes().Size(), "^"), "");
}

TEST(NodePath, LeadsToTheFirstNodeThatHasIt)
{
    GrownTree tree;
    const std::uint32_t first = tree.Leaf(), second = tree.Leaf();
    EXPECT_EQ(FullPath(tree.tree, first, "^"), FullPath(tree.tree, second, "^"));
    EXPECT_EQ(ExtractNode(tree.tree, "test.afp^NOP", "^"), first);
}

TEST(NodePath, GoesOnBehindAFolderOfTheSameText)
{
    Settings plain;
    plain.FolderBold = plain.FolderColored = 0;
    GrownTree tree(plain);
    tree.Open("BDT");
    tree.Close("EDT");
    tree.Open("BDT");
    const std::uint32_t leaf = tree.Leaf("inside");
    EXPECT_EQ(ExtractNode(tree.tree, "test.afp^Document^NOP: inside", "^"), leaf);
}

TEST(NodePath, BearsTheSeparatorInTheTexts)
{
    GrownTree tree;
    tree.Leaf("a");
    const std::uint32_t odd = tree.Leaf("a^b^");
    EXPECT_EQ(ExtractNode(tree.tree, "test.afp^NOP: a^b^", "^"), odd);
    EXPECT_EQ(FullPath(tree.tree, odd, "^"), "test.afp^NOP: a^b^");
}

TEST(NodePath, FindsNothingForAPathThatIsCutOrWrong)
{
    GrownTree tree;
    tree.Open();
    tree.Leaf("x");
    tree.Close();
    for (const std::string path : {"", "^", "test", "test.afp^", "test.afp^<color=#8080FF><b>Page", "test.afp^NOP: x",
                                   "test.afp^<color=#8080FF><b>Page 1^NOP: x^", "TEST.AFP", "test.afpNOP",
                                   "other^test.afp", "test.afp^<color=#8080FF><b>Page 1^NOP: x^NOP: x"})
        EXPECT_EQ(ExtractNode(tree.tree, path, "^"), 0u) << path;
}

TEST(NodePath, ComesBackToItselfInRandomTrees)
{
    for (const std::string separator : {"^", "", "::", "P"}) {
        std::mt19937 random(3);
        GrownTree tree;
        tree.AddAtRandom(random, 200);
        for (std::uint32_t node = kRoot; node < tree.Nodes().Size(); ++node) {
            const std::string path = FullPath(tree.tree, node, separator);
            const std::uint32_t found = ExtractNode(tree.tree, path, separator);
            ASSERT_NE(found, 0u) << path;
            EXPECT_LE(found, node);
            EXPECT_EQ(FullPath(tree.tree, found, separator), path);
        }
    }
}

TEST(NodePath, BearsADepthOfTenThousand)
{
    GrownTree tree;
    std::uint32_t deepest = 0;
    for (int i = 0; i < 10'000; ++i) deepest = tree.Open("BPT");
    EXPECT_EQ(DepthOf(tree.Nodes(), deepest), 10'000u);
    EXPECT_EQ(DepthOf(tree.Nodes(), kRoot), 0u);
    EXPECT_EQ(ExtractNode(tree.tree, FullPath(tree.tree, deepest, "^"), "^"), deepest);
}

}  // namespace
}  // namespace folioscope
