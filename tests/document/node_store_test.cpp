#include "document/node_store.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace folioscope {
namespace {

constexpr std::uint32_t kRoot = NodeStore::kRoot;

std::vector<std::uint32_t> ChildrenOf(const NodeStore& nodes, std::uint32_t node)
{
    std::vector<std::uint32_t> children;
    nodes.ForEachChild(node, [&](std::uint32_t child) { children.push_back(child); });
    return children;
}

using Steps = std::vector<std::pair<std::uint32_t, std::uint32_t>>;  // node, depth

Steps StepsOf(const NodeStore& nodes)
{
    Steps steps;
    for (TreeWalk walk(nodes); !walk.AtEnd(); walk.Next()) steps.emplace_back(walk.Node(), walk.Depth());
    return steps;
}

// The same tree as lists of children.
struct Model {
    std::vector<std::vector<std::uint32_t>> children{2};
    Steps steps;
    std::vector<std::uint32_t> lastInside;

    std::uint32_t Visit(std::uint32_t node, std::uint32_t depth)
    {
        steps.emplace_back(node, depth);
        std::uint32_t last = node;
        for (const auto child : children[node]) last = Visit(child, depth + 1);
        return lastInside[node] = last;
    }
};

Model MakeRandomTree(NodeStore& nodes, unsigned seed, std::size_t count)
{
    std::mt19937 random(seed);
    Model model;
    std::vector<std::uint32_t> open = {nodes.Add(0, true)};
    while (model.children.size() <= count) {
        const unsigned dice = random() % 10;
        if (dice < 2 && open.size() > 1) {
            nodes.Close(open.back());
            open.pop_back();
            continue;
        }
        const bool folder = dice < 6;
        const std::uint32_t node = nodes.Add(open.back(), folder);
        EXPECT_EQ(node, model.children.size());
        model.children[open.back()].push_back(node);
        model.children.emplace_back();
        if (folder) open.push_back(node);
    }
    model.lastInside.resize(model.children.size());
    model.Visit(kRoot, 0);
    return model;
}

TEST(NodeStore, CountsNodesFromOneInTheOrderOfTheirBirth)
{
    NodeStore nodes;
    EXPECT_EQ(nodes.Size(), 1u);
    EXPECT_EQ(nodes.Add(0, true), kRoot);
    EXPECT_EQ(nodes.Add(kRoot, false), 2u);
    EXPECT_EQ(nodes.Add(kRoot, true), 3u);
    EXPECT_EQ(nodes.Add(3, false), 4u);
    EXPECT_EQ(nodes.Size(), 5u);
    EXPECT_EQ(nodes[4].parent, 3u);
    EXPECT_TRUE(nodes[3].folder);
    EXPECT_FALSE(nodes[4].folder);
}

TEST(NodeStore, AnOpenFolderReachesToTheLastNodeAndAClosedOneToItsOwn)
{
    NodeStore nodes;
    const auto root = nodes.Add(0, true);
    const auto folder = nodes.Add(root, true);
    const auto leaf = nodes.Add(folder, false);
    EXPECT_EQ(nodes.End(leaf), leaf + 1);
    EXPECT_EQ(nodes.End(folder), leaf + 1);
    nodes.Close(folder);
    const auto behind = nodes.Add(root, false);
    EXPECT_EQ(nodes.End(folder), leaf + 1);
    EXPECT_EQ(nodes.End(root), behind + 1);
    EXPECT_TRUE(nodes.HasChildren(root));
    EXPECT_TRUE(nodes.HasChildren(folder));
    EXPECT_FALSE(nodes.HasChildren(leaf));
    EXPECT_EQ(ChildrenOf(nodes, root), (std::vector<std::uint32_t>{folder, behind}));
    EXPECT_EQ(ChildrenOf(nodes, folder), (std::vector<std::uint32_t>{leaf}));
    EXPECT_TRUE(ChildrenOf(nodes, leaf).empty());
}

TEST(NodeStore, AnEmptyFolderHasNoChildren)
{
    NodeStore nodes;
    const auto root = nodes.Add(0, true);
    EXPECT_FALSE(nodes.HasChildren(root));
    const auto folder = nodes.Add(root, true);
    nodes.Close(folder);
    nodes.Add(root, false);
    EXPECT_FALSE(nodes.HasChildren(folder));
    EXPECT_TRUE(ChildrenOf(nodes, folder).empty());
}

TEST(NodeStore, KeepsWhatIsWrittenToManyNodes)
{
    constexpr std::int32_t kCount = 300'000;
    NodeStore nodes;
    const auto root = nodes.Add(0, true);
    nodes[root].lngStart = -1;
    NodeRecord& first = nodes[root];
    for (std::int32_t i = 0; i < kCount; ++i) nodes[nodes.Add(root, false)].lngStart = i;
    EXPECT_EQ(&first, &nodes[root]);
    EXPECT_EQ(nodes[root].lngStart, -1);
    for (std::int32_t i = 0; i < kCount; ++i) ASSERT_EQ(nodes[static_cast<std::uint32_t>(i) + 2].lngStart, i);
}

TEST(NodeStore, BeginsAnewWhenItIsCleared)
{
    NodeStore nodes;
    nodes.Add(0, true);
    nodes[kRoot].red = true;
    nodes.Add(kRoot, false);
    nodes.Clear();
    EXPECT_EQ(nodes.Size(), 1u);
    EXPECT_EQ(nodes.Add(0, true), kRoot);
    EXPECT_FALSE(nodes[kRoot].red);
    EXPECT_FALSE(nodes.HasChildren(kRoot));
}

TEST(NodeStore, AgreesWithListsOfChildrenOnRandomTrees)
{
    for (unsigned seed = 1; seed <= 50; ++seed) {
        SCOPED_TRACE(seed);
        NodeStore nodes;
        const Model model = MakeRandomTree(nodes, seed, seed * 40);
        for (std::uint32_t node = kRoot; node < nodes.Size(); ++node) {
            ASSERT_EQ(ChildrenOf(nodes, node), model.children[node]) << node;
            ASSERT_EQ(nodes.End(node), model.lastInside[node] + 1) << node;
            ASSERT_EQ(nodes.HasChildren(node), !model.children[node].empty()) << node;
        }
        ASSERT_EQ(StepsOf(nodes), model.steps);
    }
}

TEST(TreeWalk, VisitsALonelyRootAndEnds)
{
    NodeStore nodes;
    nodes.Add(0, true);
    EXPECT_EQ(StepsOf(nodes), (Steps{{kRoot, 0}}));
}

TEST(TreeWalk, HasNothingToVisitInAnEmptyStore)
{
    const NodeStore nodes;
    EXPECT_TRUE(StepsOf(nodes).empty());
}

TEST(TreeWalk, KnowsTheDepthAfterStepsUpOverManyLevels)
{
    NodeStore nodes;
    const auto root = nodes.Add(0, true);
    const auto one = nodes.Add(root, true);
    const auto two = nodes.Add(one, true);
    const auto three = nodes.Add(two, true);
    const auto deepest = nodes.Add(three, false);
    for (const auto folder : {three, two, one}) nodes.Close(folder);
    const auto last = nodes.Add(root, false);
    EXPECT_EQ(StepsOf(nodes), (Steps{{root, 0}, {one, 1}, {two, 2}, {three, 3}, {deepest, 4}, {last, 1}}));
}

TEST(TreeWalk, WalksAMillionLevels)
{
    constexpr std::uint32_t kLevels = 1'000'000;
    NodeStore nodes;
    std::uint32_t folder = nodes.Add(0, true);
    for (std::uint32_t i = 0; i < kLevels; ++i) {
        folder = nodes.Add(folder, true);
        nodes.Add(folder, false);
    }
    // Each folder gets a second leaf on the way back, so that the walk goes down and up all levels.
    for (; folder != kRoot; folder = nodes[folder].parent) {
        nodes.Add(folder, false);
        nodes.Close(folder);
    }
    std::uint32_t steps = 0, deepest = 0, last = 0;
    for (TreeWalk walk(nodes); !walk.AtEnd(); walk.Next(), ++steps) {
        ASSERT_EQ(walk.Node(), steps + 1);
        deepest = std::max(deepest, walk.Depth());
        last = walk.Depth();
    }
    EXPECT_EQ(steps, 3 * kLevels + 1);
    EXPECT_EQ(deepest, kLevels + 1);
    EXPECT_EQ(last, 2u);
}

}  // namespace
}  // namespace folioscope
