#include "analysis/decode/byte_view.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

namespace folioscope {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

struct Number {
    std::vector<std::uint8_t> bytes;
    std::int32_t asUnsigned, asSigned;
};

const Number kNumbers[] = {
    {{0x00}, 0, 0},
    {{0x7F}, 127, 127},
    {{0x80}, 128, -128},
    {{0xFF}, 255, -1},
    {{0x01, 0x02}, 258, 258},
    {{0x7F, 0xFF}, 32'767, 32'767},
    {{0x80, 0x00}, 32'768, -32'768},
    {{0xFF, 0xFE}, 65'534, -2},
    {{0x01, 0x02, 0x03}, 66'051, 66'051},
    {{0x7F, 0xFF, 0xFF}, 8'388'607, 8'388'607},
    {{0x80, 0x00, 0x00}, 8'388'608, -8'388'608},
    {{0xFF, 0xFF, 0xFF}, 16'777'215, -1},
    {{0x01, 0x02, 0x03, 0x04}, 16'909'060, 16'909'060},
    {{0x7F, 0xFF, 0xFF, 0xFF}, kHighest, kHighest},
    {{0x80, 0x00, 0x00, 0x00}, 0, kLowest},
    {{0x80, 0x00, 0x00, 0x01}, 1, kLowest + 1},
    {{0xFF, 0xFF, 0xFF, 0xFF}, kHighest, -1},
    {{0xFF, 0xFF, 0xFF, 0xFE}, kHighest - 1, -2},
};

TEST(ByteView, ReadsBigEndianNumbersOfOneToFourBytes)
{
    for (const auto& [bytes, asUnsigned, asSigned] : kNumbers) {
        const int length = static_cast<int>(bytes.size());
        EXPECT_EQ(ByteView(bytes, 1).Unsigned(1, length), asUnsigned);
        EXPECT_EQ(ByteView(bytes, 1).Signed(1, length), asSigned);
        EXPECT_EQ(ByteView(bytes, 0).Unsigned(0, length), asUnsigned);
        EXPECT_EQ(ByteView(bytes, 0).Signed(0, length), asSigned);
    }
}

TEST(ByteView, OtherLengthsReadZero)
{
    const std::vector<std::uint8_t> bytes(8, 0xFF);
    const ByteView view(bytes, 1);
    for (const int length : {-1, 0, 5, 8, 1'000}) {
        EXPECT_EQ(view.Unsigned(1, length), 0) << length;
        EXPECT_EQ(view.Signed(1, length), 0) << length;
    }
}

TEST(ByteView, CountsFromItsFirstPosition)
{
    const std::vector<std::uint8_t> bytes = {10, 20, 30};
    EXPECT_EQ(ByteView(bytes, 1).At(1), 10);
    EXPECT_EQ(ByteView(bytes, 1).At(3), 30);
    EXPECT_EQ(ByteView(bytes, 0).At(0), 10);
    EXPECT_EQ(ByteView(bytes, 0).At(2), 30);
}

TEST(ByteView, WhatLiesOutsideReadsZero)
{
    const std::vector<std::uint8_t> bytes = {0xFF, 0xFF, 0xFF};
    const ByteView view(bytes, 1);
    for (const std::int64_t position : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{4}, std::int64_t{kLowest},
                                        std::int64_t{kHighest}, std::int64_t{kHighest} * 4}) {
        EXPECT_EQ(view.At(position), 0) << position;
        EXPECT_EQ(view.Unsigned(position, 1), 0) << position;
        EXPECT_FALSE(view.Bit(position, 0)) << position;
    }
    EXPECT_EQ(ByteView({}, 1).At(1), 0);
    EXPECT_EQ(ByteView({}, 0).Signed(0, 4), 0);
}

TEST(ByteView, ANumberAcrossTheEndIsFilledWithZeros)
{
    const std::vector<std::uint8_t> bytes = {0x12, 0xFF};
    const ByteView view(bytes, 1);
    EXPECT_EQ(view.Unsigned(1, 4), 0x12FF0000);
    EXPECT_EQ(view.Unsigned(2, 2), 0xFF00);
    EXPECT_EQ(view.Signed(2, 2), -256);
    EXPECT_EQ(view.Unsigned(0, 2), 0x12);
}

TEST(ByteView, BitsCountFromTheHighestOfTheFirstByte)
{
    for (int set = 0; set < 32; ++set) {
        std::vector<std::uint8_t> bytes(5);
        bytes[static_cast<std::size_t>(1 + set / 8)] = static_cast<std::uint8_t>(0x80 >> set % 8);
        const ByteView record(bytes, 1), object(bytes, 0);
        for (int bit = 0; bit < 32; ++bit) {
            EXPECT_EQ(record.Bit(2, bit), bit == set) << bit;
            EXPECT_EQ(object.Bit(1, bit), bit == set) << bit;
        }
    }
}

TEST(ByteView, BitsBeyondTheFourthByteAreClear)
{
    const std::vector<std::uint8_t> bytes(16, 0xFF);
    const ByteView view(bytes, 1);
    EXPECT_TRUE(view.Bit(5, 0));
    EXPECT_TRUE(view.Bit(5, 31));
    EXPECT_FALSE(view.Bit(5, -1));
    EXPECT_FALSE(view.Bit(5, 32));
    EXPECT_FALSE(view.Bit(5, kLowest));
    EXPECT_FALSE(view.Bit(5, kHighest));
}

}  // namespace
}  // namespace folioscope
