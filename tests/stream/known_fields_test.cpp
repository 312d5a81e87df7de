#include "stream/known_fields.h"

#include <gtest/gtest.h>

#include <bitset>

#include "stream/known_pairs.h"

namespace folioscope {
namespace {

static_assert(IsKnownSF(0xA8, 0xA8));
static_assert(!IsKnownSF(0xA8, 0x00));

TEST(KnownFields, AreTheListedPairsAndNoOthers)
{
    std::bitset<65536> listed;
    test::ForEachKnownPair([&](int category, int type) { listed.set(static_cast<std::size_t>(category << 8 | type)); });
    EXPECT_EQ(listed.count(), 134U);
    for (unsigned id = 0; id < 65536; ++id) {
        const auto category = static_cast<std::uint8_t>(id >> 8), type = static_cast<std::uint8_t>(id);
        EXPECT_EQ(IsKnownSF(category, type), listed[id]) << std::hex << id;
    }
}

TEST(KnownFields, LeaveOutTwoFieldsThatTheAnalysisKnows)
{
    EXPECT_FALSE(IsKnownSF(0xA6, 0x8D)) << "RCD";
    EXPECT_FALSE(IsKnownSF(0xA6, 0x8E)) << "XMD";
}

TEST(KnownFields, EveryBeginHasItsEnd)
{
    int begins = 0;
    for (int i = 0; i < 256; ++i) {
        const auto type = static_cast<std::uint8_t>(i);
        EXPECT_EQ(IsKnownSF(0xA8, type), IsKnownSF(0xA9, type)) << std::hex << i;
        begins += IsKnownSF(0xA8, type);
    }
    EXPECT_EQ(begins, 29);
}

TEST(KnownFields, ACategoryOutsideTheListHasNoTypes)
{
    for (const int category : {0x00, 0x01, 0x8B, 0x8D, 0xA1, 0xA3, 0xD3, 0xFF})
        for (int type = 0; type < 256; ++type)
            EXPECT_FALSE(IsKnownSF(static_cast<std::uint8_t>(category), static_cast<std::uint8_t>(type)));
}

}  // namespace
}  // namespace folioscope
