#include "analysis/decode/code_page_stack.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

namespace folioscope {
namespace {

TEST(CodePageStack, StartsAtLevelOneWithPage37)
{
    const CodePageStack stack;
    EXPECT_EQ(stack.Depth(), 1);
    EXPECT_EQ(stack.Current(), 37);
}

TEST(CodePageStack, ResetPutsTheRunsPageIntoTheLowestLevels)
{
    CodePageStack stack;
    for (int i = 0; i < 5; ++i) stack.Push();
    stack.SetTop(500);
    stack.Reset(273);
    EXPECT_EQ(stack.Depth(), 1);
    EXPECT_EQ(stack.Current(), 273);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 273);
}

TEST(CodePageStack, ANewLevelTakesThePageBelow)
{
    CodePageStack stack;
    stack.SetTop(500);
    stack.Push();
    EXPECT_EQ(stack.Depth(), 2);
    EXPECT_EQ(stack.Current(), 500);
}

TEST(CodePageStack, APageHoldsForItsLevelOnly)
{
    CodePageStack stack;
    stack.Push();
    stack.SetTop(500);
    stack.Push();
    stack.SetTop(1200);
    EXPECT_EQ(stack.Current(), 1200);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 500);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 37);
}

TEST(CodePageStack, LevelOneStays)
{
    CodePageStack stack;
    stack.Push();
    stack.SetTop(500);
    for (int i = 0; i < 10; ++i) stack.Pop();
    EXPECT_EQ(stack.Depth(), 1);
    EXPECT_EQ(stack.Current(), 37);
    stack.Push();
    EXPECT_EQ(stack.Depth(), 2);
    EXPECT_EQ(stack.Current(), 37);
}

TEST(CodePageStack, HandDownGivesTheTopsPageToTheLevelBelow)
{
    CodePageStack stack;
    stack.Push();
    stack.Push();
    stack.SetTop(500);
    stack.HandDown();
    EXPECT_EQ(stack.Depth(), 3);
    EXPECT_EQ(stack.Current(), 500);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 500);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 37);
}

TEST(CodePageStack, HandDownOfAnUnchangedPageChangesNothing)
{
    CodePageStack stack;
    stack.Push();
    stack.SetTop(500);
    stack.Push();
    stack.HandDown();
    EXPECT_EQ(stack.Current(), 500);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 500);
    stack.Pop();
    EXPECT_EQ(stack.Current(), 37);
}

TEST(CodePageStack, AMillionLevelsKeepTheirPages)
{
    CodePageStack stack;
    constexpr std::int32_t kLevels = 1'000'000;
    for (std::int32_t level = 2; level <= kLevels; ++level) {
        stack.Push();
        if (level % 1'000 == 0) stack.SetTop(level);
    }
    EXPECT_EQ(stack.Depth(), kLevels);
    for (std::int32_t level = kLevels; level >= 2; --level) {
        ASSERT_EQ(stack.Current(), level < 1'000 ? 37 : level / 1'000 * 1'000);
        stack.Pop();
    }
    EXPECT_EQ(stack.Depth(), 1);
    EXPECT_EQ(stack.Current(), 37);
}

// The plain form of the same: one entry a level.
struct PlainStack {
    std::vector<std::int32_t> pages = {37, 37};

    void Push() { pages.push_back(pages.back()); }
    void Pop()
    {
        if (pages.size() > 2) pages.pop_back();
    }
    void SetTop(std::int32_t page) { pages.back() = page; }
    void HandDown() { pages[pages.size() - 2] = pages.back(); }
};

TEST(CodePageStack, BehavesLikeAListOfLevels)
{
    std::mt19937 random(20);  // the same steps in every run
    CodePageStack stack;
    PlainStack plain;
    for (int step = 0; step < 100'000; ++step) {
        switch (const auto choice = random() % 16; choice) {
        case 0: stack.SetTop(500), plain.SetTop(500); break;
        case 1: stack.SetTop(1200), plain.SetTop(1200); break;
        case 2: stack.SetTop(37), plain.SetTop(37); break;
        case 3:
        case 4:
            if (stack.Depth() < 2) break;  // only inside a record
            stack.HandDown(), plain.HandDown();
            break;
        default:
            if (choice % 2 == 0)
                stack.Push(), plain.Push();
            else
                stack.Pop(), plain.Pop();
        }
        ASSERT_EQ(stack.Current(), plain.pages.back()) << step;
        ASSERT_EQ(stack.Depth(), static_cast<std::int32_t>(plain.pages.size()) - 1) << step;
    }
}

}  // namespace
}  // namespace folioscope
