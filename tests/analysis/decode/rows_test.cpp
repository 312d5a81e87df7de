// Layout rows: how each kind reads its value, and which of them ask for the length.

#include "analysis/decode/rows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// The Elements of one row over bytes of its own.
Lines ReadOne(const Row& row, const Bytes& bytes, std::int32_t length, const InputPages& pages = {})
{
    RecordWalk walk(AfpFile().Add("NOP", bytes), pages);
    walk.Next();
    walk.afp.List().ClearCollections();
    const Row rows[] = {row};
    ReadRows(walk.afp, rows, walk.afp.FieldPosition, length);
    return walk.Lines();
}

Lines ReadOne(const Row& row, const Bytes& bytes)
{
    return ReadOne(row, bytes, static_cast<std::int32_t>(bytes.size()));
}

TEST(Rows, ReadNumbers)
{
    const Bytes bytes = Raw({0xFE, 0x80, 0x01, 0xFF, 0xFF});
    EXPECT_EQ(ReadOne(b(Key::ID, 1), bytes), Lines{"Byte ID 128"});
    EXPECT_EQ(ReadOne(u(Key::ID, 0, 1), bytes), Lines{"Int32 ID 254"});
    EXPECT_EQ(ReadOne(u(Key::ID, 1, 2), bytes), Lines{"Int32 ID 32769"});
    EXPECT_EQ(ReadOne(u(Key::ID, 1, 3), bytes), Lines{"Int32 ID 8389119"});
    EXPECT_EQ(ReadOne(u(Key::ID, 1, 4), bytes), Lines{"Int32 ID 131071"});  // without the highest bit
    EXPECT_EQ(ReadOne(s(Key::ID, 0, 1), bytes), Lines{"Int32 ID -2"});
    EXPECT_EQ(ReadOne(s(Key::ID, 1, 2), bytes), Lines{"Int32 ID -32767"});
    EXPECT_EQ(ReadOne(s(Key::ID, 2, 2), bytes), Lines{"Int32 ID 511"});
    EXPECT_EQ(ReadOne(s(Key::ID, 1, 3), bytes), Lines{"Int32 ID -8388097"});
}

TEST(Rows, ReadBitsAndHalves)
{
    const Bytes bytes = Raw({0x00, 0x81, 0x40});
    EXPECT_EQ(ReadOne(bit(Key::ID, 1, 0), bytes), Lines{"Boolean ID 1"});
    EXPECT_EQ(ReadOne(bit(Key::ID, 1, 1), bytes), Lines{"Boolean ID 0"});
    EXPECT_EQ(ReadOne(bit(Key::ID, 1, 7), bytes), Lines{"Boolean ID 1"});
    EXPECT_EQ(ReadOne(bit(Key::ID, 1, 9), bytes), Lines{"Boolean ID 1"});  // of the byte behind
    EXPECT_EQ(ReadOne(read(Read::TwoOrOne, Key::ID, 1, 0), bytes), Lines{"Int16 ID 2"});
    EXPECT_EQ(ReadOne(read(Read::TwoOrOne, Key::ID, 1, 1), bytes), Lines{"Int16 ID 1"});
    EXPECT_EQ(ReadOne(read(Read::OneOrZero, Key::ID, 1, 0), bytes), Lines{"Int16 ID 1"});
    EXPECT_EQ(ReadOne(read(Read::OneOrZero, Key::ID, 1, 1), bytes), Lines{"Int16 ID 0"});
    EXPECT_EQ(ReadOne(read(Read::HighHalf, Key::ID, 1), bytes), Lines{"Byte ID 8"});
    EXPECT_EQ(ReadOne(read(Read::LowHalf, Key::ID, 1), bytes), Lines{"Byte ID 1"});
    EXPECT_EQ(ReadOne(read(Read::IsOne, Key::ID, 0), Raw({0x01})), Lines{"Boolean ID 1"});
    EXPECT_EQ(ReadOne(read(Read::IsOne, Key::ID, 0), Raw({0x81})), Lines{"Boolean ID 0"});
    EXPECT_EQ(ReadOne(read(Read::True, Key::ID, 0), Raw({0x00})), Lines{"Boolean ID 1"});
}

TEST(Rows, ReadAnglesAndInches)
{
    EXPECT_EQ(ReadOne(angle(Key::IAxis, 1), Raw({0, 0x2D})), Lines{"Int16 IAxis 90"});
    EXPECT_EQ(ReadOne(angle(Key::IAxis, 1), Raw({0, 0x2E})), Lines{});
    EXPECT_EQ(ReadOne(read(Read::Inches, Key::FontHeight, 0, 2), U2(360)), Lines{"Float64 FontHeight 0.250000"});
}

TEST(Rows, KnowFourAngles)
{
    for (int byte = 0; byte < 256; ++byte) {
        const int degrees = byte == 0x00 ? 0 : byte == 0x2D ? 90 : byte == 0x5A ? 180 : byte == 0x87 ? 270 : -1;
        EXPECT_EQ(DegreesOf(static_cast<std::uint8_t>(byte)), degrees) << byte;
    }
}

TEST(Rows, ReadTextsInTheirPages)
{
    const Bytes bytes = Raw({0x00, 0x4F, 0x5A});
    const InputPages pages = {.lngInputCP = 37};
    EXPECT_EQ(ReadOne(text(Key::Content, 1, 2), bytes, 3, pages), Lines{"Text Content |!"});
    EXPECT_EQ(ReadOne(read(Read::Text500, Key::Content, 1, 2), bytes, 3, pages), Lines{"Text Content !]"});
    EXPECT_EQ(ReadOne(read(Read::Text1252, Key::Content, 1, 2), bytes, 3, pages), Lines{"Text Content OZ"});
    EXPECT_EQ(ReadOne(name(Key::Name, 0), Ebcdic("ABCDEFGHI")), Lines{"Text Name ABCDEFGH"});
}

TEST(Rows, ReadToTheEndIfNoSizeIsGiven)
{
    EXPECT_EQ(ReadOne(text(Key::Content, 1), Ebcdic("ABCD")), Lines{"Text Content BCD"});
    EXPECT_EQ(ReadOne(hex(Key::HexCode, 1), Raw({1, 2, 0xFF})), Lines{"Text HexCode 02 FF"});
    EXPECT_EQ(ReadOne(text(Key::Content, 4), Ebcdic("ABCDE"), 4), Lines{"Text Content "});
    EXPECT_EQ(ReadOne(hex(Key::HexCode, 4), Raw({1, 2, 3}), 3), Lines{"Text HexCode "});
    EXPECT_EQ(ReadOne(hex(Key::HexCode, 1, 2), Raw({1, 2, 0xFF, 4})), Lines{"Text HexCode 02 FF"});
}

TEST(Rows, ReadPastTheLengthUnlessTheyMustBeInside)
{
    const Bytes bytes = Raw({1, 2, 3, 4});
    EXPECT_EQ(ReadOne(u(Key::ID, 2, 2), bytes, 0), Lines{"Int32 ID 772"});
    EXPECT_EQ(ReadOne(inside(u(Key::ID, 2, 2)), bytes, 3), Lines{});
    EXPECT_EQ(ReadOne(inside(u(Key::ID, 2, 2)), bytes, 4), Lines{"Int32 ID 772"});
    EXPECT_EQ(ReadOne(inside(b(Key::ID, 2)), bytes, 2), Lines{});
    EXPECT_EQ(ReadOne(inside(b(Key::ID, 2)), bytes, 3), Lines{"Byte ID 3"});
    EXPECT_EQ(ReadOne(inside(bit(Key::ID, 2, 7)), bytes, 2), Lines{});
    EXPECT_EQ(ReadOne(inside(bit(Key::ID, 2, 7)), bytes, 3), Lines{"Boolean ID 1"});
    EXPECT_EQ(ReadOne(inside(bit(Key::ID, 2, 8)), bytes, 3), Lines{});
    EXPECT_EQ(ReadOne(inside(text(Key::Content, 2)), Ebcdic("ABCD"), 2), Lines{});
    EXPECT_EQ(ReadOne(inside(text(Key::Content, 2)), Ebcdic("ABCD"), 3), Lines{"Text Content C"});
    EXPECT_EQ(ReadOne(inside(text(Key::Content, 2, 2)), Ebcdic("ABCD"), 3), Lines{});
}

TEST(Rows, KeepTheirOrder)
{
    RecordWalk walk(AfpFile().Add("NOP", Raw({1, 2, 3})));
    walk.Next();
    walk.afp.List().ClearCollections();
    const Row rows[] = {b(Key::ID, 2), b(Key::Level, 0), b(Key::ID, 1)};
    ReadRows(walk.afp, rows, walk.afp.FieldPosition, 3);
    EXPECT_EQ(walk.Lines(), (Lines{"Byte ID 3", "Byte Level 1", "Byte ID 2"}));
}

}  // namespace
}  // namespace folioscope
