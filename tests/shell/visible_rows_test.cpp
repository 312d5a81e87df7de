#include "shell/visible_rows.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>
#include <vector>

#include "shell/grown_tree.h"

namespace folioscope {
namespace {

using test::GrownTree;
using Nodes = std::vector<std::uint32_t>;

constexpr std::uint32_t kRoot = NodeStore::kRoot;

// The rows as a plain walk finds them.
Nodes Flatten(const NodeStore& store, const std::set<std::uint32_t>& expanded, std::uint32_t known)
{
    Nodes rows;
    const std::function<void(std::uint32_t)> visit = [&](std::uint32_t node) {
        if (node >= known) return;
        rows.push_back(node);
        if (expanded.contains(node)) store.ForEachChild(node, visit);
    };
    if (store.Size() > kRoot) visit(kRoot);
    return rows;
}

void ExpectRows(const VisibleRows& rows, const Nodes& expected)
{
    ASSERT_EQ(rows.Rows(), expected.size());
    std::uint32_t next = expected.empty() ? 0 : expected.front();
    for (std::uint32_t row = 0; row < expected.size(); ++row) {
        ASSERT_EQ(rows.NodeAt(row), expected[row]) << "row " << row;
        ASSERT_EQ(rows.RowOf(expected[row]), row);
        ASSERT_TRUE(rows.IsVisible(expected[row]));
        ASSERT_EQ(next, expected[row]);
        next = rows.NextRowNode(next);
    }
    EXPECT_EQ(next, 0u);
    EXPECT_EQ(rows.NodeAt(rows.Rows()), 0u);
}

struct RowsOf {
    explicit RowsOf(GrownTree& grown) : tree(grown) { rows.Reset(&tree.Nodes()); }

    void ExpectAsFlattened() const { ExpectRows(rows, Flatten(tree.Nodes(), expanded, rows.Known())); }
    void Expand(std::uint32_t node)
    {
        rows.Expand(node);
        if (rows.HasChildren(node)) expanded.insert(node);
    }
    void Collapse(std::uint32_t node)
    {
        rows.Collapse(node);
        expanded.erase(node);
    }

    GrownTree& tree;
    VisibleRows rows;
    std::set<std::uint32_t> expanded;
};

TEST(VisibleRows, OfNoTreeAreNone)
{
    VisibleRows rows;
    ExpectRows(rows, {});
    rows.Reset(nullptr);
    EXPECT_FALSE(rows.TakeOver());
    EXPECT_FALSE(rows.Expand(1));
    EXPECT_FALSE(rows.Collapse(1));
    rows.CollapseAll();
    rows.ExpandRange(0, 10);
    ExpectRows(rows, {});
    EXPECT_EQ(rows.NextRowNode(0), 0u);
    EXPECT_EQ(rows.RowOf(5), 0u);

    NodeStore empty;
    rows.Reset(&empty);
    ExpectRows(rows, {});
    rows.CollapseAll();
    ExpectRows(rows, {});
}

TEST(VisibleRows, BeginWithTheRootAlone)
{
    GrownTree tree;
    tree.Leaf();
    RowsOf under(tree);
    ExpectRows(under.rows, {kRoot});
    EXPECT_TRUE(under.rows.HasChildren(kRoot));
    EXPECT_FALSE(under.rows.HasChildren(2));
    EXPECT_FALSE(under.rows.IsVisible(2));
    EXPECT_FALSE(under.rows.IsVisible(0));
}

TEST(VisibleRows, SayWhetherAnythingChanged)
{
    GrownTree tree;
    const std::uint32_t leaf = tree.Leaf();
    RowsOf under(tree);
    EXPECT_TRUE(under.rows.Expand(kRoot));
    EXPECT_FALSE(under.rows.Expand(kRoot));
    EXPECT_FALSE(under.rows.Expand(leaf));
    EXPECT_FALSE(under.rows.Expand(0));
    EXPECT_FALSE(under.rows.Expand(99));
    EXPECT_TRUE(under.rows.Collapse(kRoot));
    EXPECT_FALSE(under.rows.Collapse(kRoot));
    EXPECT_FALSE(under.rows.TakeOver());
}

TEST(VisibleRows, KeepWhatWasOpenInAClosedFolder)
{
    GrownTree tree;
    const std::uint32_t outer = tree.Open(), inner = tree.Open();
    tree.Close();
    tree.Close();
    RowsOf under(tree);
    under.Expand(inner);  // while it can't be seen
    ExpectRows(under.rows, {kRoot});
    under.Expand(kRoot);
    under.Expand(outer);
    under.ExpectAsFlattened();
    const Nodes open = Flatten(tree.Nodes(), under.expanded, under.rows.Known());
    EXPECT_EQ(open.size(), 7u);
    under.Collapse(outer);
    ExpectRows(under.rows, {kRoot, outer});
    EXPECT_TRUE(under.rows.IsExpanded(inner));
    under.Expand(outer);
    ExpectRows(under.rows, open);
}

TEST(VisibleRows, AreTheSameAsAPlainWalkFinds)
{
    for (const unsigned seed : {1u, 2u, 3u, 4u, 5u}) {
        std::mt19937 random(seed);
        GrownTree tree;
        tree.AddAtRandom(random, 300);
        RowsOf under(tree);
        for (int step = 0; step < 150; ++step) {
            const auto node = static_cast<std::uint32_t>(random() % tree.Nodes().Size());
            if (random() % 3 != 0)
                under.Expand(node);
            else
                under.Collapse(node);
            ASSERT_NO_FATAL_FAILURE(under.ExpectAsFlattened()) << "seed " << seed << " step " << step;
        }
    }
}

TEST(VisibleRows, GrowWhereAFolderIsOpen)
{
    std::mt19937 random(7);
    GrownTree tree;
    RowsOf under(tree);
    tree.Leaf();
    ExpectRows(under.rows, {kRoot});
    EXPECT_FALSE(under.rows.TakeOver());  // the root is closed
    under.Expand(kRoot);
    for (int step = 0; step < 200; ++step) {
        tree.AddAtRandom(random, static_cast<int>(random() % 60));
        ASSERT_NO_FATAL_FAILURE(under.ExpectAsFlattened()) << "nodes that weren't taken over";
        const std::uint32_t before = under.rows.Rows();
        const bool more = under.rows.TakeOver();
        EXPECT_EQ(more, under.rows.Rows() != before);
        EXPECT_EQ(under.rows.Known(), tree.Nodes().Size());
        const auto node = static_cast<std::uint32_t>(random() % tree.Nodes().Size());
        random() % 2 != 0 ? under.Expand(node) : under.Collapse(node == kRoot ? 2 : node);
        ASSERT_NO_FATAL_FAILURE(under.ExpectAsFlattened()) << "step " << step;
    }
    EXPECT_GT(tree.Nodes().Size(), 5000u);  // more than one block
}

TEST(VisibleRows, OpenAndCloseAllTogether)
{
    std::mt19937 random(11);
    GrownTree tree;
    tree.AddAtRandom(random, 20'000);
    RowsOf under(tree);
    Nodes all;
    for (std::uint32_t node = kRoot; node < tree.Nodes().Size(); ++node) all.push_back(node);
    under.rows.ExpandRange(0, tree.Nodes().Size());
    ASSERT_NO_FATAL_FAILURE(ExpectRows(under.rows, all));
    under.rows.CollapseAll();
    ExpectRows(under.rows, {kRoot});
    for (std::uint32_t node = kRoot; node < tree.Nodes().Size(); ++node) ASSERT_FALSE(under.rows.IsExpanded(node));
    // In parts, as an operation that gives way in between does.
    for (std::uint32_t node = kRoot; node < tree.Nodes().Size(); node += 777) {
        under.rows.ExpandRange(node, node + 777);
        for (std::uint32_t at = node; at < std::min(node + 777, tree.Nodes().Size()); ++at)
            if (under.rows.HasChildren(at)) under.expanded.insert(at);
        if (node % 5 == 0) {
            ASSERT_NO_FATAL_FAILURE(under.ExpectAsFlattened());
        }
    }
    ASSERT_NO_FATAL_FAILURE(ExpectRows(under.rows, all));
}

TEST(VisibleRows, CountAcrossMoreThanAMillionNodes)
{
    GrownTree tree;
    const std::uint32_t page = tree.Open();
    constexpr std::uint32_t kLeaves = 1'200'000;
    for (std::uint32_t i = 0; i < kLeaves; ++i) tree.Leaf();
    tree.Close();
    const std::uint32_t last = tree.Leaf();
    RowsOf under(tree);
    under.Expand(kRoot);
    EXPECT_EQ(under.rows.RowOf(last), 2u);
    EXPECT_EQ(under.rows.NextRowNode(page), last);
    under.Expand(page);
    EXPECT_EQ(under.rows.Rows(), kLeaves + 5);
    for (const std::uint32_t row : {0u, 63u, 64u, 4095u, 4096u, 1'048'574u, 1'048'575u, 1'048'576u, kLeaves + 4}) {
        EXPECT_EQ(under.rows.NodeAt(row), row + 1);
        EXPECT_EQ(under.rows.RowOf(row + 1), row);
    }
    under.Collapse(page);
    ExpectRows(under.rows, {kRoot, page, last});
}

TEST(VisibleRows, BearADepthOfTenThousand)
{
    GrownTree tree;
    constexpr std::uint32_t kDepth = 10'000;
    for (std::uint32_t i = 0; i < kDepth; ++i) tree.Open();
    RowsOf under(tree);
    under.rows.ExpandRange(kRoot, tree.Nodes().Size());
    EXPECT_EQ(under.rows.Rows(), 2 * kDepth + 1);
    under.rows.Collapse(kRoot + 1);
    EXPECT_EQ(under.rows.Rows(), 2u);
}

}  // namespace
}  // namespace folioscope
