#include "analysis/elements/element.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace folioscope {
namespace {

TEST(Element, KeepsKeyTagAndNumber)
{
    const Element element = Element::Int32(Key::SFStart, 2'147'483'647);
    EXPECT_EQ(element.key, Key::SFStart);
    EXPECT_EQ(element.tag, Tag::Int32);
    EXPECT_EQ(element.number, 2'147'483'647);
}

TEST(Element, TellsTheTagThatTheDecoderChose)
{
    EXPECT_EQ(Element::Int16(Key::Unread, 1).tag, Tag::Int16);
    EXPECT_EQ(Element::Byte(Key::UnitBaseX, 255).tag, Tag::Byte);
    EXPECT_EQ(Element::Byte(Key::UnitBaseX, 255).number, 255);
    EXPECT_EQ(Element::Boolean(Key::Unknown, true).tag, Tag::Boolean);
    EXPECT_EQ(Element::Boolean(Key::Unknown, true).number, 1);
    EXPECT_EQ(Element::Boolean(Key::Unknown, false).number, 0);
    EXPECT_EQ(Element::Int16(Key::SFIExt, -1).number, -1);
}

TEST(Element, KeepsRealNumbersWhole)
{
    EXPECT_EQ(Element::Float32(Key::Length, 0.1).tag, Tag::Float32);
    EXPECT_EQ(Element::Float64(Key::Length, 1.0 / 3).tag, Tag::Float64);
    EXPECT_EQ(Element::Float64(Key::Length, 1.0 / 3).real, 1.0 / 3);
}

TEST(Element, PointsAtALiteral)
{
    static constexpr std::string_view kText = "BPG";
    const Element element = Element::Literal(Key::NodeText, kText);
    EXPECT_EQ(element.tag, Tag::Literal);
    EXPECT_EQ(element.literal, kText.data());
    EXPECT_EQ(element.size, 3u);
}

TEST(Element, IsNoKeyAndZeroWhenNew)
{
    const Element element;
    EXPECT_EQ(element.key, Key::NoKey);
    EXPECT_EQ(element.number, 0);
    EXPECT_EQ(element.size, 0u);
}

TEST(ElementKeys, StandOnceEach)
{
    constexpr std::string_view kNames[] = {
#define KEY(name) #name,
#include "analysis/elements/element_keys.def"
#undef KEY
    };
    EXPECT_EQ(std::set<std::string_view>(std::begin(kNames), std::end(kNames)).size(), std::size(kNames));
    EXPECT_EQ(static_cast<std::size_t>(Key::KeyCount), std::size(kNames) + 1);
    EXPECT_EQ(static_cast<int>(Key::NoKey), 0);
}

}  // namespace
}  // namespace folioscope
