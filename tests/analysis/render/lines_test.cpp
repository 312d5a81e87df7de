#include "analysis/render/lines.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string_view>
#include <vector>

namespace folioscope {
namespace {

const std::map<std::int32_t, std::string_view> kColors = {
    {0, "Drawing default"},
    {1, "Blue"},
    {2, "Red"},
    {3, "Pink/Magenta"},
    {4, "Green"},
    {5, "Turquoise/Cyan"},
    {6, "Yellow"},
    {7, "White"},
    {8, "Black"},
    {9, "Dark blue"},
    {10, "Orange"},
    {11, "Purple"},
    {12, "Dark green"},
    {13, "Dark turquoise"},
    {14, "Mustard"},
    {15, "Gray"},
    {16, "Brown"},
    {65280, "Drawing default"},
    {65281, "Blue"},
    {65282, "Red"},
    {65283, "Pink/Magenta"},
    {65284, "Green"},
    {65285, "Turquoise/Cyan"},
    {65286, "Yellow"},
    {65287, "Device default (normally black)"},
    {65288, "Color of paper"},
    {65535, "Default"},
};

std::string_view NameOf(std::int32_t value) { return Labels(Language::English)[ColorName(value)]; }

TEST(ColorName, KnowsTwoFamiliesAndTheDefault)
{
    for (std::int32_t value = -10; value <= 70'000; ++value) {
        const auto color = kColors.find(value);
        ASSERT_EQ(NameOf(value), color == kColors.end() ? std::string_view() : color->second) << value;
    }
}

TEST(ColorName, IsEmptyFarOutside)
{
    for (const std::int32_t value :
         {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max(), 0xFFFFFF, 0x10001})
        EXPECT_EQ(ColorName(value), Label::None) << value;
}

TEST(ColorName, IsTranslated)
{
    for (const auto& [value, english] : kColors) {
        EXPECT_FALSE(Labels(Language::German)[ColorName(value)].empty()) << english;
        EXPECT_FALSE(Labels(Language::French)[ColorName(value)].empty()) << english;
    }
    EXPECT_EQ(Labels(Language::German)[ColorName(2)], "Rot");
}

std::vector<const LineRow*> AllRows()
{
    std::vector<const LineRow*> rows;
    for (std::size_t key = 0; key < static_cast<std::size_t>(Key::KeyCount); ++key)
        rows.push_back(LineOf(static_cast<Key>(key)));
    return rows;
}

TEST(LineOf, GivesTheRowOfTheKey)
{
    const auto rows = AllRows();
    for (std::size_t key = 1; key < rows.size(); ++key) {
        if (rows[key] == nullptr) continue;  // has its line in an item of a data object
        EXPECT_EQ(rows[key]->key, static_cast<Key>(key));
    }
    EXPECT_NE(LineOf(Key::SFName), nullptr);
    EXPECT_NE(LineOf(Key::ContInNextSF), nullptr);
    EXPECT_EQ(LineOf(Key::BeginSequence), nullptr);
}

TEST(LineOf, KnowsNoLineOfNoKey) { EXPECT_EQ(LineOf(Key::NoKey), nullptr); }

TEST(LineOf, HasAProcedureForEachLineOfItsOwnShapeAndForNoOther)
{
    for (const LineRow* row : AllRows()) {
        if (row == nullptr) continue;
        EXPECT_EQ(row->line == Line::Custom, row->custom != nullptr) << static_cast<int>(row->key);
    }
}

}  // namespace
}  // namespace folioscope
