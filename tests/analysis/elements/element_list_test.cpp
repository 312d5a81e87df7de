#include "analysis/elements/element_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace folioscope {
namespace {

std::vector<std::int64_t> NumbersOf(std::span<const Element> elements)
{
    std::vector<std::int64_t> numbers;
    for (const Element& element : elements) numbers.push_back(element.number);
    return numbers;
}

Element Pooled(ElementList& list, Key key, std::string_view text)
{
    const auto from = list.Pool().size();
    list.Pool() += text;
    return list.PooledText(key, from);
}

TEST(ElementList, KeepsTheOrderAndRepeatsOfAKey)
{
    ElementList list;
    list.AddElement(Element::Int32(Key::Length, 3));
    list.AddElement(Element::Int32(Key::SFStart, 1));
    list.AddElement(Element::Int32(Key::Length, 2));
    ASSERT_EQ(list.Elements().size(), 3u);
    EXPECT_EQ(list.Elements()[1].key, Key::SFStart);
    EXPECT_EQ(NumbersOf(list.Elements()), (std::vector<std::int64_t>{3, 1, 2}));
}

TEST(ElementList, FindGivesTheFirstOfAKey)
{
    ElementList list;
    list.AddElement(Element::Int32(Key::Length, 3));
    list.AddElement(Element::Int32(Key::Length, 2));
    ASSERT_NE(list.Find(Key::Length), nullptr);
    EXPECT_EQ(list.Find(Key::Length)->number, 3);
    EXPECT_EQ(list.Find(Key::SFStart), nullptr);
}

TEST(ElementList, HasNoLimit)
{
    ElementList list;
    for (int i = 0; i < 30'000; ++i) list.AddElement(Element::Int32(Key::Length, i));
    EXPECT_EQ(list.Elements().size(), 30'000u);
    EXPECT_EQ(list.Elements().back().number, 29'999);
}

TEST(ElementList, ClearCollectionsEmptiesAll)
{
    ElementList list;
    list.AddElement(Pooled(list, Key::Name, "PAGE0001"));
    list.ClearSequenceElements();
    list.AddSequenceElement(Element::Int32(Key::Length, 1));
    list.PublishSequence(Key::FontArrayType, Key::FontArrayValue);
    list.ClearCollections();
    EXPECT_TRUE(list.Elements().empty());
    EXPECT_TRUE(list.Pool().empty());
    EXPECT_EQ(list.SequenceCount(), 0u);
    EXPECT_EQ(list.Find(Key::Name), nullptr);
}

TEST(ElementList, ASequenceAfterClearingStartsAnew)
{
    ElementList list;
    for (int i = 0; i < 2; ++i) {
        list.ClearSequenceElements();
        list.AddSequenceElement(Element::Int32(Key::Length, i));
        list.PublishSequence(Key::FontArrayType, Key::FontArrayValue);
    }
    list.ClearCollections();
    EXPECT_EQ(list.SequenceCount(), 0u);
    list.AddSequenceElement(Element::Int32(Key::Length, 9));
    list.PublishSequence(Key::FontArrayType, Key::FontArrayValue);
    EXPECT_EQ(NumbersOf(list.SequenceOf(list.Elements()[1])), std::vector<std::int64_t>{9});
}

TEST(ElementList, TextsOfThePoolStandSideBySide)
{
    ElementList list;
    const Element first = Pooled(list, Key::Name, "PAGE0001");
    const Element second = Pooled(list, Key::HexCode, std::string_view("A\0B", 3));
    const Element empty = Pooled(list, Key::ShowResName, "");
    EXPECT_EQ(list.TextOf(first), "PAGE0001");
    EXPECT_EQ(list.TextOf(second), std::string_view("A\0B", 3));
    EXPECT_EQ(list.TextOf(empty), "");
    EXPECT_EQ(first.tag, Tag::Text);
    EXPECT_EQ(second.key, Key::HexCode);
}

TEST(ElementList, TextOfALiteralNeedsNoPool)
{
    ElementList list;
    EXPECT_EQ(list.TextOf(Element::Literal(Key::NodeText, "BPG")), "BPG");
}

TEST(ElementList, WhatIsNoTextHasNone)
{
    ElementList list;
    list.Pool() = "PAGE0001";
    EXPECT_EQ(list.TextOf(Element::Int32(Key::Length, 3)), "");
    EXPECT_EQ(list.TextOf(Element::Boolean(Key::Unknown, true)), "");
}

TEST(ElementList, ASequenceIsPublishedAsTwoHalvesOfOneRange)
{
    ElementList list;
    list.AddElement(Element::Int32(Key::SFStart, 1));
    list.ClearSequenceElements();
    list.AddSequenceElement(Element::Int32(Key::BeginRepetition, 7));
    list.AddSequenceElement(Element::Int32(Key::EndRepetition, 8));
    list.PublishSequence(Key::FontArrayType, Key::FontArrayValue);
    ASSERT_EQ(list.Elements().size(), 3u);
    const Element &types = list.Elements()[1], &values = list.Elements()[2];
    EXPECT_EQ(types.key, Key::FontArrayType);
    EXPECT_EQ(values.key, Key::FontArrayValue);
    for (const Element& half : {types, values}) {
        EXPECT_EQ(half.tag, Tag::Sequence);
        EXPECT_EQ(half.size, 2u);
        EXPECT_EQ(NumbersOf(list.SequenceOf(half)), (std::vector<std::int64_t>{7, 8}));
    }
}

TEST(ElementList, APublishedSequenceOutlastsTheNextOne)
{
    ElementList list;
    list.ClearSequenceElements();
    list.AddSequenceElement(Element::Int32(Key::Length, 1));
    list.PublishSequence(Key::FontArrayType, Key::FontArrayValue);
    list.ClearSequenceElements();
    EXPECT_EQ(list.SequenceCount(), 0u);
    for (int i = 2; i < 300; ++i) list.AddSequenceElement(Element::Int32(Key::Length, i));
    list.PublishSequence(Key::OrderElementType, Key::OrderElementValue);
    EXPECT_EQ(NumbersOf(list.SequenceOf(list.Elements()[1])), std::vector<std::int64_t>{1});
    EXPECT_EQ(list.SequenceOf(list.Elements()[3]).size(), 298u);
    EXPECT_EQ(list.SequenceOf(list.Elements()[3]).front().number, 2);
}

TEST(ElementList, AnEmptySequenceIsPublishedToo)
{
    ElementList list;
    list.ClearSequenceElements();
    list.PublishSequence(Key::SDFElementType, Key::SDFElementValue);
    ASSERT_EQ(list.Elements().size(), 2u);
    EXPECT_TRUE(list.SequenceOf(list.Elements()[1]).empty());
}

TEST(ElementList, WhatIsNoSequenceHasNoEntries)
{
    ElementList list;
    list.ClearSequenceElements();
    list.AddSequenceElement(Element::Int32(Key::Length, 1));
    EXPECT_TRUE(list.SequenceOf(Element::Int32(Key::Length, 0)).empty());
}

TEST(ElementList, ASequenceEndsSilentlyAtTenThousandEntries)
{
    ElementList list;
    list.ClearSequenceElements();
    for (int i = 1; i <= 10'000; ++i) list.AddSequenceElement(Element::Int32(Key::Length, i));
    EXPECT_EQ(list.SequenceCount(), 10'000u);
    list.AddSequenceElement(Element::Int32(Key::Length, 10'001));
    EXPECT_EQ(list.SequenceCount(), 10'000u);
    list.PublishSequence(Key::ArrayElementType, Key::ArrayElementValue);
    const auto entries = list.SequenceOf(list.Elements()[1]);
    ASSERT_EQ(entries.size(), 10'000u);
    EXPECT_EQ(entries.back().number, 10'000);
}

TEST(ElementList, TheLimitCountsAnewForEachSequence)
{
    ElementList list;
    for (int sequence = 0; sequence < 2; ++sequence) {
        list.ClearSequenceElements();
        for (int i = 0; i < 10'001; ++i) list.AddSequenceElement(Element::Int32(Key::Length, i));
        list.PublishSequence(Key::ArrayElementType, Key::ArrayElementValue);
    }
    EXPECT_EQ(list.SequenceOf(list.Elements()[3]).size(), 10'000u);
    EXPECT_EQ(list.Elements().size(), 4u);
}

TEST(ElementList, ClearingKeepsTheMemory)
{
    ElementList list;
    list.AddElement(Pooled(list, Key::Name, std::string(5'000, 'x')));
    const auto* const elements = list.Elements().data();
    const auto capacity = list.Pool().capacity();
    list.ClearCollections();
    list.AddElement(Pooled(list, Key::Name, std::string(5'000, 'y')));
    EXPECT_EQ(list.Elements().data(), elements);
    EXPECT_EQ(list.Pool().capacity(), capacity);
}

}  // namespace
}  // namespace folioscope
