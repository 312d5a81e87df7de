// The field readers of clsAFPFunctions, over the record buffer and over an object.

#include "analysis/decode/clsAFPFunctions.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "analysis/record_walk.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::Ebcdic;
using test::Raw;
using test::RecordWalk;
using test::Zeros;

constexpr std::int32_t kUnknownPage = 9999;

// The data of one record under the readers; `At` is the position of its first byte.
class Readers : public ::testing::Test {
protected:
    clsAFPFunctions& Over(const Bytes& data, const InputPages& pages = {})
    {
        walk_.emplace(AfpFile().Add("NOP", data).Add("NOP", Ebcdic("NEXT")), pages);
        walk_->Step();
        At = walk_->afp.Reader().RecordStart() + 8;
        return walk_->afp;
    }
    std::string TextCP(std::int32_t page, const Bytes& data, const InputPages& pages = {})
    {
        return TextCP(page, data, static_cast<std::int64_t>(data.size()), pages);
    }
    std::string TextCP(std::int32_t page, const Bytes& data, std::int64_t length, const InputPages& pages = {})
    {
        clsAFPFunctions& afp = Over(data, pages);
        return std::string(afp.List().TextOf(afp.ReadTextCP(Key::Name, page, At, length)));
    }
    std::string Hex(const Bytes& data, std::int64_t length)
    {
        clsAFPFunctions& afp = Over(data);
        return std::string(afp.List().TextOf(afp.ReadHex(Key::HexCode, At, length)));
    }
    std::int64_t At = 0;

private:
    std::optional<RecordWalk> walk_;
};

TEST_F(Readers, NumbersAndBitsStandAtOneBasedPositions)
{
    const clsAFPFunctions& afp = Over(Raw({0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x40}));
    EXPECT_EQ(afp.ByteAt(1), 0x5A);
    EXPECT_EQ(afp.ByteAt(At), 0xFF);
    EXPECT_EQ(afp.ReadUnsigned(At, 4), 2'147'483'647);
    EXPECT_EQ(afp.ReadSigned(At, 4), -1);
    EXPECT_EQ(afp.ReadUnsigned(At + 3, 2), 0xFF00);
    EXPECT_TRUE(afp.ReadBit(At + 4, 9));
    EXPECT_FALSE(afp.ReadBit(At + 4, 8));
    EXPECT_FALSE(afp.ReadBit(At, 32));
}

TEST_F(Readers, PositionsOutsideTheBufferReadZero)
{
    const clsAFPFunctions& afp = Over(Raw({0xFF}));
    EXPECT_EQ(afp.ByteAt(0), 0);
    EXPECT_EQ(afp.ByteAt(-1'000), 0);
    EXPECT_EQ(afp.ByteAt(2'000'000'000), 0);
    EXPECT_EQ(afp.ReadSigned(2'000'000'000, 4), 0);
}

TEST_F(Readers, TextIsDecodedFromThePageThatIsAsked)
{
    EXPECT_EQ(TextCP(37, Raw({0xC1, 0x4F, 0x5A})), "A|!");
    EXPECT_EQ(TextCP(500, Raw({0xC1, 0x4F, 0x5A})), "A!]");
    EXPECT_EQ(TextCP(273, Raw({0xC0, 0x6A, 0xD0})), "äöü");
    EXPECT_EQ(TextCP(819, "caf\xE9"), "café");
}

TEST_F(Readers, TextEndsAtTheLengthAndRunsOnBehindTheField)
{
    EXPECT_EQ(TextCP(37, Ebcdic("ABCD"), 2), "AB");
    EXPECT_EQ(TextCP(37, Ebcdic("ABCD"), 0), "");
    EXPECT_EQ(TextCP(37, Ebcdic("ABCD"), -3), "");
    const std::string behind = TextCP(37, Ebcdic("AB"), 2 + 1 + 8 + 4);  // with the next record's prefix and introducer
    EXPECT_TRUE(behind.starts_with("AB")) << behind;
    EXPECT_TRUE(behind.ends_with("NEXT")) << behind;
}

TEST_F(Readers, TextKeepsBlanks) { EXPECT_EQ(TextCP(37, Ebcdic(" AB  ")), " AB  "); }

TEST_F(Readers, AZeroByteBecomesByte20OnEveryPage)
{
    EXPECT_EQ(TextCP(500, Ebcdic("AB") + Zeros(1) + Ebcdic("C")), "AB.C");  // x'20' is a control there
    EXPECT_EQ(TextCP(500, Ebcdic("AB") + Raw({0x20}) + Ebcdic("C")), "AB.C");
    EXPECT_EQ(TextCP(819, std::string("AB\0\0C", 5)), "AB  C");
    EXPECT_EQ(TextCP(819, std::string("\0B", 2)), " B");
}

TEST_F(Readers, TwoZeroBytesAreTheMarkOfATextThatIsNotGiven)
{
    const std::string mark(1, '\0');
    for (const std::int32_t page : {37, 500, 819, 1200, kUnknownPage})
        for (const std::int64_t length : {-5, 0, 1, 2, 3, 8})
            EXPECT_EQ(TextCP(page, Zeros(8), length), mark) << page << ' ' << length;
    EXPECT_EQ(TextCP(37, Zeros(2) + Ebcdic("ABCDEF")), mark);
}

TEST_F(Readers, TwoBytesFFAreTheOtherMark)
{
    for (const std::int32_t page : {37, 500, 819, 1200, kUnknownPage})
        for (const std::int64_t length : {-5, 0, 1, 2, 3, 8})
            EXPECT_EQ(TextCP(page, Bytes(8, '\xFF'), length), "ÿ") << page << ' ' << length;
    EXPECT_EQ(TextCP(37, Raw({0xFF, 0xFF}) + Ebcdic("ABCDEF")), "ÿ");
}

TEST_F(Readers, AMarkIsSeenBehindAFieldOfOneByte)
{
    clsAFPFunctions& afp = Over(Zeros(1) + Zeros(1));
    EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, 37, At, 1)), std::string_view("\0", 1));
}

TEST_F(Readers, HalfAMarkIsText)
{
    EXPECT_EQ(TextCP(819, "\xFF\x41"), "ÿA");
    EXPECT_EQ(TextCP(819, "\x41\xFF"), "Aÿ");
    EXPECT_EQ(TextCP(819, "\x41\xFF\xFF"), "Aÿÿ");
    EXPECT_EQ(TextCP(819, std::string("\0\xFF", 2)), " ÿ");
}

TEST_F(Readers, Page1200ReadsPairsHighByteFirst)
{
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0x00, 0xE4, 0x20, 0xAC})), "Aä€");
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0x00, 0x00, 0x00, 0x42})), std::string("A\0B", 3));
}

TEST_F(Readers, Page1200LosesAnOddLastByte)
{
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0x00, 0x42, 0x43})), "AB");
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41}), 1), "");
}

TEST_F(Readers, Page1200JoinsSurrogates)
{
    EXPECT_EQ(TextCP(1200, Raw({0xD8, 0x3D, 0xDE, 0x00, 0x00, 0x41})), "😀A");
    EXPECT_EQ(TextCP(1200, Raw({0xDB, 0xFF, 0xDF, 0xFF})), "\U0010FFFF");
    EXPECT_EQ(TextCP(1200, Raw({0xD8, 0x00, 0xDC, 0x00})), "\U00010000");
}

TEST_F(Readers, LoneSurrogatesBecomeTheReplacementCharacter)
{
    EXPECT_EQ(TextCP(1200, Raw({0xD8, 0x3D, 0x00, 0x41})), "\uFFFDA");
    EXPECT_EQ(TextCP(1200, Raw({0xDE, 0x00, 0x00, 0x41})), "\uFFFDA");
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0xD8, 0x3D})), "A\uFFFD");
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0xD8, 0x3D, 0xDE})), "A\uFFFD");
    EXPECT_EQ(TextCP(1200, Raw({0xD8, 0x3D, 0xD8, 0x3D, 0xDE, 0x00})), "\uFFFD😀");
    EXPECT_EQ(TextCP(1200, Raw({0xDC, 0x00, 0xDC, 0x01})), "\uFFFD\uFFFD");
    EXPECT_EQ(TextCP(1200, Raw({0xDB, 0xFF, 0xE0, 0x00})), "\uFFFD\uE000");
    EXPECT_EQ(TextCP(1200, Raw({0xD7, 0xFF, 0xDC, 0x00})), "\uD7FF\uFFFD");
}

TEST_F(Readers, AnUnknownPageGivesPairsLowByteFirst)
{
    EXPECT_EQ(TextCP(kUnknownPage, Raw({0x41, 0x00, 0xAC, 0x20})), "\u2041€");  // the zero byte is x'20' by then
    EXPECT_EQ(TextCP(kUnknownPage, Raw({0x3D, 0xD8, 0x01, 0xDE})), "😁");
    EXPECT_EQ(TextCP(kUnknownPage, Raw({0x41, 0x01, 0x42})), "\u0141");
    EXPECT_EQ(TextCP(kUnknownPage, Raw({0x41, 0x01}), 1), "");
    EXPECT_EQ(TextCP(-1, Raw({0x41, 0x01})), "\u0141");
}

TEST_F(Readers, AnUnknownOutputPageGivesPairsToo)
{
    EXPECT_EQ(TextCP(37, Raw({0x41, 0x01}), {.lngOutputCP = kUnknownPage}), "\u0141");
    EXPECT_EQ(TextCP(37, Raw({0x41, 0x01}), {.lngOutputCP = 1200}), "\u0141");
}

TEST_F(Readers, TheOutputPageDecidesWhatCanBeShown)
{
    EXPECT_EQ(TextCP(37, Raw({0x51, 0x81})), "éa");
    EXPECT_EQ(TextCP(37, Raw({0x51, 0x81}), {.lngOutputCP = 437}), "éa");
    EXPECT_EQ(TextCP(37, Raw({0x51, 0x81}), {.lngOutputCP = 1251}), ".a");  // Cyrillic has no é
}

TEST_F(Readers, PagesCanAlternate)
{
    clsAFPFunctions& afp = Over(Raw({0x4F, 0x4F}));
    for (int turn = 0; turn < 3; ++turn) {
        EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, 37, At, 2)), "||");
        EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, 500, At, 2)), "!!");
        EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, kUnknownPage, At, 2)), "\u4F4F");
    }
}

TEST_F(Readers, ANewRunForgetsThePagesOfTheOldOne)
{
    clsAFPFunctions& afp = Over(Raw({0x51, 0x81}));
    EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, 37, At, 2)), "éa");
    afp.InitializeProcessing2(afp.Reader().File(), {.lngOutputCP = 1251});
    EXPECT_EQ(afp.List().TextOf(afp.ReadTextCP(Key::Name, 37, At, 2)), ".a");
}

TEST_F(Readers, ReadTextTakesTheCurrentCodePage)
{
    clsAFPFunctions& afp = Over(Raw({0x4F}), {.lngInputCP = 500});
    EXPECT_EQ(afp.List().TextOf(afp.ReadText(Key::Name, At, 1)), "!");
    afp.CodePages.SetTop(37);
    EXPECT_EQ(afp.List().TextOf(afp.ReadText(Key::Name, At, 1)), "|");
}

TEST_F(Readers, ATextElementHasTheKeyAndIsNotAdded)
{
    clsAFPFunctions& afp = Over(Ebcdic("AB"));
    EXPECT_EQ(afp.ReadText(Key::Name, At, 2).key, Key::Name);
    EXPECT_EQ(afp.ReadText(Key::Name, At, 2).tag, Tag::Text);
    EXPECT_EQ(afp.ReadHex(Key::HexCode, At, 2).key, Key::HexCode);
    EXPECT_TRUE(afp.List().Elements().empty());
}

TEST_F(Readers, HexIsUpperCaseWithBlanksBetween)
{
    EXPECT_EQ(Hex(Raw({0x0F, 0xA1, 0x00}), 3), "0F A1 00");
    EXPECT_EQ(Hex(Raw({0x0F, 0xA1, 0x00}), 1), "0F");
    EXPECT_EQ(Hex(Raw({0x0F}), 0), "");
    EXPECT_EQ(Hex(Raw({0x0F}), -1), "");
}

TEST_F(Readers, HexEndsWithDotsBehind2048Bytes)
{
    const Bytes data(5'000, '\xAB');
    const std::string whole = Hex(data, 2048);
    EXPECT_EQ(whole.size(), 2048u * 3 - 1);
    EXPECT_TRUE(whole.ends_with("AB AB"));
    const std::string cut = Hex(data, 2049);
    EXPECT_EQ(cut, whole + " ...");
    EXPECT_EQ(Hex(data, 5'000), cut);
    EXPECT_EQ(Hex(data, 2'000'000'000), cut);
    EXPECT_EQ(Hex(data, 2047).size(), 2047u * 3 - 1);
}

TEST_F(Readers, CopiesRecordBytes)
{
    const clsAFPFunctions& afp = Over(Raw({1, 2, 3}));
    EXPECT_EQ(afp.CopyRecordBytes(At, 3), (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_EQ(afp.CopyRecordBytes(At + 1, 1), std::vector<std::uint8_t>{2});
    EXPECT_EQ(afp.CopyRecordBytes(-1, 3), (std::vector<std::uint8_t>{0, 0, 0x5A}));
    EXPECT_TRUE(afp.CopyRecordBytes(At, 0).empty());
    EXPECT_TRUE(afp.CopyRecordBytes(At, -1).empty());
}

// The same over an object, whose positions count from 0 -----------------------------------------------------------

class ObjectReaders : public ::testing::Test {
protected:
    clsAFPFunctions& Over(const Bytes& object)
    {
        afp_.ObjectBuffer.assign(object.begin(), object.end());
        return afp_;
    }
    std::string TextCP(std::int32_t page, const Bytes& object, std::int64_t length)
    {
        Over(object);
        return std::string(afp_.List().TextOf(afp_.ObjReadTextCP(Key::Name, page, 0, length)));
    }
    std::string Hex(std::size_t length)
    {
        Over(Bytes(length, '\xAB'));
        return std::string(afp_.List().TextOf(afp_.ObjReadHex(Key::HexCode, 0, static_cast<std::int64_t>(length))));
    }

private:
    clsAFPFunctions afp_;
};

TEST_F(ObjectReaders, NumbersAndBitsStandAtPositionsFromZero)
{
    const clsAFPFunctions& afp = Over(Raw({0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x40}));
    EXPECT_EQ(afp.ObjByteAt(0), 0xFF);
    EXPECT_EQ(afp.ObjByteAt(5), 0x40);
    EXPECT_EQ(afp.ObjByteAt(6), 0);
    EXPECT_EQ(afp.ObjByteAt(-1), 0);
    EXPECT_EQ(afp.ObjReadUnsigned(0, 4), 2'147'483'647);
    EXPECT_EQ(afp.ObjReadSigned(0, 4), -1);
    EXPECT_EQ(afp.ObjReadUnsigned(3, 3), 0xFF0040);
    EXPECT_EQ(afp.ObjReadSigned(3, 3), -65'472);
    EXPECT_EQ(afp.ObjReadUnsigned(0, 5), 0);
    EXPECT_TRUE(afp.ObjReadBit(4, 9));
    EXPECT_FALSE(afp.ObjReadBit(4, 10));
}

TEST_F(ObjectReaders, TextKnowsNoMarks)
{
    EXPECT_EQ(TextCP(819, Zeros(3), 3), "   ");
    EXPECT_EQ(TextCP(819, Bytes(3, '\xFF'), 3), "ÿÿÿ");
    EXPECT_EQ(TextCP(819, Zeros(2), 0), "");
    EXPECT_EQ(TextCP(819, Zeros(2), -1), "");
}

TEST_F(ObjectReaders, TextIsDecodedLikeThatOfARecord)
{
    EXPECT_EQ(TextCP(500, Raw({0xC1, 0x00, 0x4F}), 3), "A.!");
    EXPECT_EQ(TextCP(1200, Raw({0x00, 0x41, 0xD8, 0x3D, 0xDE, 0x00, 0x42}), 7), "A😀");
    EXPECT_EQ(TextCP(1200, Raw({0x00}), 1), "");
    EXPECT_EQ(TextCP(kUnknownPage, Raw({0x41, 0x00, 0x42}), 3), "\u2041");
    EXPECT_EQ(TextCP(819, "AB", 4), "AB  ");  // the object's end reads as zeros
}

TEST_F(ObjectReaders, ReadTextTakesTheCurrentCodePage)
{
    clsAFPFunctions& afp = Over(Raw({0x4F}));
    afp.CodePages.SetTop(500);
    EXPECT_EQ(afp.List().TextOf(afp.ObjReadText(Key::Name, 0, 1)), "!");
}

TEST_F(ObjectReaders, HexStandsInGroupsOfEightAndLinesOfThirtyTwo)
{
    const std::string eight = "AB AB AB AB AB AB AB AB \t\t";
    const std::string line = eight + eight + eight + eight + "\r\n\t    ";
    EXPECT_EQ(Hex(0), "");
    EXPECT_EQ(Hex(1), "AB");
    EXPECT_EQ(Hex(7), "AB AB AB AB AB AB AB");
    EXPECT_EQ(Hex(8), eight);
    EXPECT_EQ(Hex(9), eight + "AB");
    EXPECT_EQ(Hex(31), eight + eight + eight + "AB AB AB AB AB AB AB");
    EXPECT_EQ(Hex(32), eight + eight + eight + eight + "\r\n\t");  // only blanks are taken off the end
    EXPECT_EQ(Hex(33), line + "AB");
    EXPECT_EQ(Hex(64), line + eight + eight + eight + eight + "\r\n\t");
}

TEST_F(ObjectReaders, HexEndsWithDotsBehindTheLayoutOf2048Bytes)
{
    const std::string whole = Hex(2048);
    EXPECT_TRUE(whole.ends_with("AB \t\t\r\n\t")) << whole;
    EXPECT_EQ(Hex(2049), whole + "    ...");
    EXPECT_EQ(Hex(5'000), whole + "    ...");
}

TEST_F(ObjectReaders, CopiesObjectBytes)
{
    const clsAFPFunctions& afp = Over(Raw({1, 2, 3}));
    EXPECT_EQ(afp.CopyObjectBytes(0, 2), (std::vector<std::uint8_t>{1, 2}));
    EXPECT_EQ(afp.CopyObjectBytes(2, 3), (std::vector<std::uint8_t>{3, 0, 0}));
    EXPECT_TRUE(afp.CopyObjectBytes(0, -1).empty());
}

}  // namespace
}  // namespace folioscope
