#include "document/text_store.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace folioscope {
namespace {

constexpr std::size_t kMiB = 1u << 20;

// Texts of one length that differ in their first and last characters.
std::string TextOf(std::size_t size, int number)
{
    std::string text(size, static_cast<char>('a' + number % 26));
    const std::string digits = std::to_string(number);
    text.replace(0, std::min(size, digits.size()), digits, 0, size);
    return text;
}

TEST(TextStore, GivesBackWhatItKeeps)
{
    TextStore texts;
    const TextPlace one = texts.Keep("one"), two = texts.Keep("two");
    EXPECT_NE(one, kNoText);
    EXPECT_NE(two, kNoText);
    EXPECT_NE(one, two);
    EXPECT_EQ(texts.At(one), "one");
    EXPECT_EQ(texts.At(two), "two");
}

TEST(TextStore, AnEmptyTextHasNoPlace)
{
    TextStore texts;
    EXPECT_EQ(texts.Keep(""), kNoText);
    EXPECT_EQ(texts.At(kNoText), "");
    texts.Keep("something");
    EXPECT_EQ(texts.Keep(""), kNoText);
    EXPECT_EQ(texts.At(kNoText), "");
}

TEST(TextStore, EqualTextsShareAPlace)
{
    TextStore texts;
    const TextPlace place = texts.Keep("descriptor");
    const std::size_t used = texts.BytesUsed();
    for (int i = 0; i < 100'000; ++i) ASSERT_EQ(texts.Keep(std::string("descr") + "iptor"), place);
    EXPECT_EQ(texts.BytesUsed(), used);
}

TEST(TextStore, TextsThatDifferInOneByteOrInLengthHavePlacesOfTheirOwn)
{
    TextStore texts;
    std::set<TextPlace> places;
    std::vector<std::string> all;
    for (std::size_t size = 1; size <= 40; ++size) {
        all.push_back(std::string(size, 'x'));
        all.push_back(std::string(size, '\0'));
        for (std::size_t at = 0; at < size; ++at) {
            all.push_back(std::string(size, 'x'));
            all.back()[at] = 'y';
        }
    }
    for (const auto& text : all) places.insert(texts.Keep(text));
    EXPECT_EQ(places.size(), all.size());
    for (const auto& text : all) EXPECT_EQ(texts.At(texts.Keep(text)), text);
}

TEST(TextStore, GrowsAndFindsEveryTextAgain)
{
    constexpr int kCount = 200'000;
    TextStore texts;
    std::vector<TextPlace> places;
    for (int i = 0; i < kCount; ++i) places.push_back(texts.Keep("text number " + std::to_string(i)));
    for (int i = 0; i < kCount; ++i) {
        const std::string text = "text number " + std::to_string(i);
        ASSERT_EQ(texts.At(places[static_cast<std::size_t>(i)]), text);
        ASSERT_EQ(texts.Keep(text), places[static_cast<std::size_t>(i)]);
    }
}

TEST(TextStore, NeverMovesAText)
{
    TextStore texts;
    const std::string_view first = texts.At(texts.Keep("the first"));
    for (int i = 0; i < 1000; ++i) texts.Keep(TextOf(10'000, i));
    texts.Keep(std::string(3 * kMiB, 'l'));
    EXPECT_EQ(first, "the first");
    EXPECT_EQ(texts.At(texts.Keep("the first")).data(), first.data());
}

TEST(TextStore, KeepsTextsOfEveryLengthAroundABlockWhereverTheyCome)
{
    for (std::size_t size = kMiB - 40; size <= kMiB + 40; ++size) {
        SCOPED_TRACE(size);
        TextStore texts;
        const std::string early = TextOf(size, 1), middle = TextOf(size, 22), late = TextOf(size, 333);
        const TextPlace first = texts.Keep(early), small = texts.Keep("small"), second = texts.Keep(middle),
                        third = texts.Keep(late), last = texts.Keep("last");
        ASSERT_TRUE(texts.At(first) == early);
        ASSERT_EQ(texts.At(small), "small");
        ASSERT_TRUE(texts.At(second) == middle);
        ASSERT_TRUE(texts.At(third) == late);
        ASSERT_EQ(texts.At(last), "last");
        ASSERT_EQ(texts.Keep(early), first);
        ASSERT_EQ(texts.Keep(late), third);
    }
}

TEST(TextStore, KeepsTextsThatFillABlockToItsEnd)
{
    for (std::size_t left = 0; left <= 48; ++left) {
        SCOPED_TRACE(left);
        TextStore texts;
        texts.Keep("x");
        const std::string filler = TextOf(kMiB - 64 + left, 7);
        const TextPlace filled = texts.Keep(filler), next = texts.Keep("next");
        ASSERT_TRUE(texts.At(filled) == filler);
        ASSERT_EQ(texts.At(next), "next");
    }
}

TEST(TextStore, KeepsTextsLongerThanABlock)
{
    TextStore texts;
    const std::string huge = TextOf(5 * kMiB + 3, 1), other = TextOf(2 * kMiB, 2);
    const TextPlace before = texts.Keep("before"), first = texts.Keep(huge), between = texts.Keep("between"),
                    second = texts.Keep(other), behind = texts.Keep("behind");
    EXPECT_EQ(texts.At(before), "before");
    EXPECT_TRUE(texts.At(first) == huge);
    EXPECT_EQ(texts.At(between), "between");
    EXPECT_TRUE(texts.At(second) == other);
    EXPECT_EQ(texts.At(behind), "behind");
    EXPECT_EQ(texts.Keep(huge), first);
    EXPECT_EQ(texts.Keep("between"), between);
}

TEST(TextStore, CountsAllBytesThatItHolds)
{
    TextStore texts;
    texts.Keep("x");
    const std::size_t before = texts.BytesUsed();
    texts.Keep(std::string(8 * kMiB, 'x'));
    EXPECT_GE(texts.BytesUsed(), before + 8 * kMiB);
}

TEST(TextStore, ForgetsEverythingWhenItIsCleared)
{
    TextStore texts;
    const std::size_t fresh = texts.BytesUsed();
    for (int i = 0; i < 5000; ++i) texts.Keep(TextOf(1000, i));
    EXPECT_GT(texts.BytesUsed(), fresh);
    texts.Clear();
    EXPECT_EQ(texts.BytesUsed(), fresh);
    const TextPlace place = texts.Keep("anew");
    EXPECT_NE(place, kNoText);
    EXPECT_EQ(texts.At(place), "anew");
}

}  // namespace
}  // namespace folioscope
