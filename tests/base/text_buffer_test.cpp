#include <gtest/gtest.h>

#include <string>

#include "base/text_buffer.h"

namespace folioscope {
namespace {

TEST(TextBuffer, JoinsPieces)
{
    TextBuffer buffer(64);
    buffer += "one";
    buffer += ' ';
    buffer += std::string_view("two\0three", 9);
    buffer.Append(3, '>');
    buffer += "";
    EXPECT_EQ(buffer.Text(), std::string_view("one two\0three>>>", 16));
    EXPECT_EQ(buffer.Size(), 16u);
    buffer.Clear();
    EXPECT_EQ(buffer.Text(), "");
    buffer += "again";
    EXPECT_EQ(buffer.Text(), "again");
}

TEST(TextBuffer, GrowsWhateverItsSizeWas)
{
    for (const std::size_t capacity : {0u, 1u, 7u}) {
        TextBuffer buffer(capacity);
        std::string expected;
        for (int i = 0; i < 300; ++i) {
            const std::string piece(static_cast<std::size_t>(i % 23), static_cast<char>('a' + i % 26));
            buffer += piece;
            buffer += '.';
            buffer.Append(static_cast<std::size_t>(i % 5), '-');
            expected += piece + '.' + std::string(static_cast<std::size_t>(i % 5), '-');
        }
        EXPECT_EQ(buffer.Text(), expected) << capacity;
    }
}

}  // namespace
}  // namespace folioscope
