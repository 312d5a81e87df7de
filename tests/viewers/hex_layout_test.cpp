#include "viewers/hex_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace folioscope {
namespace {

using enum HexColumn;
using Bytes = std::vector<std::uint8_t>;

constexpr std::int64_t kBig = 1'000'000;
constexpr int kWidths[] = {16, 24, 32};

Bytes Counting(std::size_t count)
{
    Bytes bytes(count);
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    return bytes;
}

std::string HexOf(std::uint8_t byte)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    return {kDigits[byte >> 4], kDigits[byte & 15]};
}

// The text that a range marks; what lies behind the end of the text is none.
template <class Text> Text Marked(const Text& text, TextRange range)
{
    return text.substr(std::min(static_cast<std::size_t>(range.start), text.size()),
                       static_cast<std::size_t>(range.length));
}

template <class Text> Text WithoutBlanksAndLineEnds(const Text& text)
{
    Text all;
    for (const auto character : text)
        if (character != ' ' && character != '\r' && character != '\n') all += character;
    return all;
}

void ExpectWindow(const HexWindow& window, std::int32_t start, std::int32_t length)
{
    EXPECT_EQ(window.start, start);
    EXPECT_EQ(window.length, length);
}

TEST(HexWindowTest, OpensSixBytesBeforeTheItem)
{
    const HexWindow window = WindowAround(1000, 100, kBig);
    EXPECT_EQ(window.itemPosition, 1000);
    EXPECT_EQ(window.itemLength, 100);
    ExpectWindow(window, 994, 144);
    ExpectWindow(WindowAround(6, 100, kBig), 0, 144);
}

TEST(HexWindowTest, OpensWithTheFileNearItsStart)
{
    ExpectWindow(WindowAround(0, 9, kBig), 0, 8 * (1 + (9 + 0 + 16) / 8));
    ExpectWindow(WindowAround(3, 9, kBig), 0, 8 * (1 + (9 + 3 + 16) / 8));
    ExpectWindow(WindowAround(5, 9, kBig), 0, 8 * (1 + (9 + 5 + 16) / 8));
}

TEST(HexWindowTest, IsAWholeNumberOfEightBytes)
{
    for (std::int32_t length = 0; length < 40; ++length) {
        const HexWindow window = WindowAround(1000, length, kBig);
        EXPECT_EQ(window.length % 8, 0);
        EXPECT_GT(window.length, length + 24 + 16);
        EXPECT_LE(window.length, length + 24 + 16 + 8);
    }
}

TEST(HexWindowTest, EndsWithTheFile)
{
    ExpectWindow(WindowAround(1000, 100, 1100), 994, 106);
    ExpectWindow(WindowAround(1000, 100, 994 + 144), 994, 144);
    ExpectWindow(WindowAround(1000, 100, 994 + 143), 994, 143);
    ExpectWindow(WindowAround(0, 5, 3), 0, 3);
    ExpectWindow(WindowAround(1000, 100, 994), 994, 0);
    ExpectWindow(WindowAround(1000, 100, 10), 994, 0);
    ExpectWindow(WindowAround(1000, 100, 0), 994, 0);
}

TEST(HexWindowTest, ReachesTheLastByteOfTheLargestFile)
{
    constexpr std::int32_t kLast = 2'147'483'646;
    ExpectWindow(WindowAround(kLast, 1, kLongestFile), kLast - 6, 7);
    ExpectWindow(WindowAround(kLast, 65'535, kLongestFile), kLast - 6, 7);
    ExpectWindow(WindowAround(kLast - 99, 100, kLongestFile), kLast - 105, 106);
    EXPECT_EQ(LinesOfPositions(WindowAround(kLast, 1, kLongestFile), 16), "7FFFFFF8\r\n");
}

TEST(HexWindowTest, HoldsNoMoreThanTheLongestRecord)
{
    EXPECT_EQ(WindowAround(1000, 2'000'000'000, kLongestFile).itemLength, 65'535);
    ExpectWindow(WindowAround(1000, 2'000'000'000, kLongestFile), 994, 65'576);
    ExpectWindow(WindowAround(1000, -1, kBig), 994, 48);
}

TEST(HexFitTest, FollowsTheWidthOfTheWindow)
{
    struct Row {
        std::int32_t twips;
        int bytes, hex, text;
    };
    for (const auto& [twips, bytes, hex, text] :
         {Row{0, 16, 5120, 1800}, Row{12099, 16, 5120, 1800}, Row{12100, 24, 7700, 2640}, Row{15599, 24, 7700, 2640},
          Row{15600, 32, 10300, 3500}, Row{2'147'483'647, 32, 10300, 3500}}) {
        const HexFit& fit = FitFor(twips);
        EXPECT_EQ(fit.bytesPerLine, bytes) << twips;
        EXPECT_EQ(fit.byteWidth, hex) << twips;
        EXPECT_EQ(fit.textWidth, text) << twips;
    }
}

TEST(HexPositions, AreTrueOffsetsOfTheLinesAndNotRounded)
{
    EXPECT_EQ(LinesOfPositions({1000, 100, 994, 33}, 16), "000003E2\r\n000003F2\r\n00000402\r\n");
    EXPECT_EQ(LinesOfPositions({1000, 100, 994, 32}, 16), "000003E2\r\n000003F2\r\n");
    EXPECT_EQ(LinesOfPositions({1000, 100, 994, 33}, 24), "000003E2\r\n000003FA\r\n");
    EXPECT_EQ(LinesOfPositions({1000, 100, 994, 33}, 32), "000003E2\r\n00000402\r\n");
    EXPECT_EQ(LinesOfPositions({0, 1, 0, 0}, 16), "");
}

TEST(HexBytes, StandWithABlankBehindEachButTheLast)
{
    EXPECT_EQ(LinesOfBytes(Bytes{}, 16), "");
    EXPECT_EQ(LinesOfBytes(Bytes{0x00}, 16), "00");
    EXPECT_EQ(LinesOfBytes(Bytes{0x0A, 0x5A, 0xFF}, 16), "0A 5A FF");
}

TEST(HexBytes, AreBrokenIntoLines)
{
    const std::string line = "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 ";
    EXPECT_EQ(LinesOfBytes(Bytes(16), 16), line.substr(0, 47));
    EXPECT_EQ(LinesOfBytes(Bytes(17), 16), line + "\r\n00");
    EXPECT_EQ(LinesOfBytes(Bytes(33), 16), line + "\r\n" + line + "\r\n00");
    EXPECT_EQ(LinesOfBytes(Bytes(25), 24).size(), 24u * 3 + 2 + 2);
    EXPECT_EQ(LinesOfBytes(Bytes(33), 32).size(), 32u * 3 + 2 + 2);
}

TEST(HexBytes, EndWhereTheBufferEnds)
{
    EXPECT_EQ(LinesOfBytes(Bytes(32'767), 16).size(), 102'400u - 5 - 1);
    // The last byte that fits: its blank and the line end that would follow are trimmed or never written.
    EXPECT_EQ(LinesOfBytes(Bytes(32'768), 16).size(), 102'400u - 3);
    // Behind it only the line end still fits.
    const std::string full = LinesOfBytes(Bytes(32'769), 16);
    EXPECT_EQ(full.size(), 102'400u);
    EXPECT_EQ(full.substr(full.size() - 2), "\r\n");
    EXPECT_EQ(LinesOfBytes(Bytes(65'000), 16), full);
    // At the other widths a byte is cut behind its first digit.
    for (const int bpl : {24, 32}) {
        const std::string cut = LinesOfBytes(Bytes(65'000), bpl);
        EXPECT_EQ(cut.size(), 102'400u);
        EXPECT_EQ(cut.substr(cut.size() - 4), "00 0");
    }
}

TEST(HexCharacters, AreDecodedByTheSystemsPage)
{
    EXPECT_EQ(LinesOfCharacters(Bytes{'A', 0xE4, 0x99, 0x20}, 16), u"A\u00E4\u2122 ");
    EXPECT_EQ(LinesOfCharacters(Bytes{}, 16), u"");
}

TEST(HexCharacters, AreBrokenIntoLinesAndNotTrimmed)
{
    EXPECT_EQ(LinesOfCharacters(Bytes(17, ' '), 16), std::u16string(16, ' ') + u"\r\n ");
    EXPECT_EQ(LinesOfCharacters(Bytes(49, 'x'), 24),
              std::u16string(24, 'x') + u"\r\n" + std::u16string(24, 'x') + u"\r\nx");
    EXPECT_EQ(LinesOfCharacters(Bytes(32, 'x'), 32), std::u16string(32, 'x'));
}

TEST(HexCharacters, EndWhereTheBufferEnds)
{
    EXPECT_EQ(LinesOfCharacters(Bytes(35'555, 'x'), 16).size(), 35'555u + 2 * 2222);
    EXPECT_EQ(LinesOfCharacters(Bytes(35'556, 'x'), 16).size(), 40'000u);
    EXPECT_EQ(LinesOfCharacters(Bytes(65'000, 'x'), 16), LinesOfCharacters(Bytes(35'556, 'x'), 16));
}

TEST(HexCharacters, BecomeFullStopsWhereNothingIsSeen)
{
    for (int value = 0; value < 256; ++value) {
        Bytes byte{static_cast<std::uint8_t>(value)};
        HideControls(byte);
        const bool hidden = value <= 0x1F || (value >= 0x80 && value <= 0x90) || (value >= 0xAD && value <= 0xB3);
        EXPECT_EQ(byte[0], hidden ? 0x2E : value);
    }
}

// Each byte's range holds its digits and its character, at every width.
TEST(HexRanges, HoldTheByte)
{
    const Bytes bytes = Counting(131);
    Bytes shown = bytes;
    HideControls(shown);
    for (const int bpl : kWidths) {
        const std::string digits = LinesOfBytes(bytes, bpl);
        const std::u16string characters = LinesOfCharacters(shown, bpl);
        const std::string positions = LinesOfPositions({0, 0, 0, 131}, bpl);
        for (std::int32_t i = 0; i < 131; ++i) {
            const auto at = static_cast<std::size_t>(i);
            EXPECT_EQ(Marked(digits, RangeOfByte(Byte, i, 131, bpl)), HexOf(bytes[at]));
            EXPECT_EQ(Marked(characters, RangeOfByte(Text, i, 131, bpl)), LinesOfCharacters(Bytes{shown[at]}, bpl));
            EXPECT_EQ(RangeOfByte(Position, i, 131, bpl), (TextRange{10 * (i / bpl), 0}));
            const auto start = static_cast<std::size_t>(RangeOfByte(Position, i, 131, bpl).start);
            EXPECT_EQ(std::stol(positions.substr(start, 8), nullptr, 16), i / bpl * bpl);
        }
    }
}

TEST(HexRanges, StayInTheWindow)
{
    EXPECT_EQ(RangeOfByte(Byte, -1, 17, 16), (TextRange{0, 2}));
    EXPECT_EQ(RangeOfByte(Byte, 17, 17, 16), (TextRange{50, 2}));
    EXPECT_EQ(RangeOfByte(Text, 2'000'000'000, 17, 16), (TextRange{18, 1}));
    EXPECT_EQ(RangeOfByte(Byte, 5, 0, 16), (TextRange{0, 2}));
}

TEST(HexMark, StartsAndEndsAsReckoned)
{
    const HexWindow window = WindowAround(1000, 100, kBig);
    EXPECT_EQ(RangeOfItem(Byte, window, 16), (TextRange{18, 300 + 2 * 6}));
    EXPECT_EQ(RangeOfItem(Text, window, 16), (TextRange{6, 100 + 2 * 6}));
    EXPECT_EQ(RangeOfItem(Byte, window, 24), (TextRange{18, 300 + 2 * 4}));
    EXPECT_EQ(RangeOfItem(Byte, window, 32), (TextRange{18, 300 + 2 * 3}));
    EXPECT_EQ(RangeOfItem(Position, window, 16), (TextRange{0, 0}));
    EXPECT_EQ(RangeOfItem(Byte, WindowAround(0, 9, kBig), 16), (TextRange{0, 27}));
    EXPECT_EQ(RangeOfItem(Byte, WindowAround(3, 9, kBig), 16), (TextRange{9, 27}));
}

void ExpectMarkHoldsItem(std::int32_t position, std::int32_t length, std::int32_t fileSize)
{
    const Bytes file = Counting(static_cast<std::size_t>(fileSize));
    const HexWindow window = WindowAround(position, length, fileSize);
    const Bytes bytes(file.begin() + window.start, file.begin() + window.start + window.length);
    Bytes shown = bytes;
    HideControls(shown);
    std::string digits;
    std::u16string characters;
    for (std::int32_t i = position; i < std::min(position + length, fileSize); ++i) {
        Bytes one{file[static_cast<std::size_t>(i)]};
        digits += HexOf(one[0]);
        HideControls(one);
        characters += LinesOfCharacters(one, 16);
    }
    for (const int bpl : kWidths) {
        EXPECT_EQ(WithoutBlanksAndLineEnds(Marked(LinesOfBytes(bytes, bpl), RangeOfItem(Byte, window, bpl))), digits)
            << position << " " << length << " " << bpl;
        EXPECT_EQ(WithoutBlanksAndLineEnds(Marked(LinesOfCharacters(shown, bpl), RangeOfItem(Text, window, bpl))),
                  WithoutBlanksAndLineEnds(characters))
            << position << " " << length << " " << bpl;
    }
}

TEST(HexMark, HoldsTheItemAndNothingElse)
{
    for (const std::int32_t position : {0, 1, 3, 5, 6, 7, 300})
        for (const std::int32_t length : {0, 1, 9, 10, 11, 16, 26, 27, 42, 100})
            ExpectMarkHoldsItem(position, length, 600);
}

TEST(HexMark, EndsWithTheFile)
{
    ExpectMarkHoldsItem(580, 100, 600);
    ExpectMarkHoldsItem(599, 1, 600);
    const HexWindow gone = WindowAround(1000, 100, 500);
    EXPECT_EQ(RangeOfItem(Byte, gone, 16), (TextRange{0, 0}));
}

TEST(HexClick, LeadsToTheByteUnderIt)
{
    for (const int bpl : kWidths)
        for (std::int32_t i = 0; i < 131; ++i) {
            const std::int32_t digits = RangeOfByte(Byte, i, 131, bpl).start;
            for (const int within : {0, 1, 2}) EXPECT_EQ(ByteUnder(Byte, digits + within, 131, bpl), i);
            EXPECT_EQ(ByteUnder(Text, RangeOfByte(Text, i, 131, bpl).start, 131, bpl), i);
            for (const int within : {0, 4, 9})
                EXPECT_EQ(ByteUnder(Position, 10 * (i / bpl) + within, 131, bpl), i / bpl * bpl);
        }
}

TEST(HexClick, AtALineEndLeadsToTheLastByteOfTheLine)
{
    EXPECT_EQ(ByteUnder(Byte, 48, 131, 16), 15);
    EXPECT_EQ(ByteUnder(Byte, 49, 131, 16), 15);
    EXPECT_EQ(ByteUnder(Byte, 50, 131, 16), 16);
    EXPECT_EQ(ByteUnder(Text, 16, 131, 16), 15);
    EXPECT_EQ(ByteUnder(Text, 17, 131, 16), 15);
    EXPECT_EQ(ByteUnder(Text, 18, 131, 16), 16);
}

TEST(HexClick, BehindTheEndLeadsToTheLastByte)
{
    EXPECT_EQ(ByteUnder(Byte, 1'000'000, 131, 16), 130);
    EXPECT_EQ(ByteUnder(Position, 90, 131, 16), 130);
    EXPECT_EQ(ByteUnder(Text, 5, 0, 16), 0);
    EXPECT_EQ(ByteUnder(Text, -1, 131, 16), 0);
}

TEST(HexScrollTest, IsNeededWhenTheLinesAreHigherThanTheArea)
{
    constexpr int kHeight = 10 * 240;
    EXPECT_FALSE(ScrollFor(0, 16, kHeight, 240).needed);
    EXPECT_FALSE(ScrollFor(160, 16, kHeight, 240).needed);
    EXPECT_TRUE(ScrollFor(161, 16, kHeight, 240).needed);
    EXPECT_TRUE(ScrollFor(200, 16, kHeight, 240).needed);
    EXPECT_FALSE(ScrollFor(160, 16, kHeight, 240 - 15).needed);
    EXPECT_TRUE(ScrollFor(161, 16, kHeight, 240 - 30).needed) << "a line counts 240 twips even where it is lower";
}

// A tenth line that begins within the area but is cut at its edge can't be read.
TEST(HexScrollTest, IsNeededWhenTheLastLineIsCut) { EXPECT_TRUE(ScrollFor(160, 16, 10 * 240 - 15, 240).needed); }

TEST(HexScrollTest, ReachesTheLastLineOfABigFont)
{
    const HexScroll scroll = ScrollFor(160, 16, 10 * 240, 480);
    EXPECT_TRUE(scroll.needed);
    EXPECT_EQ(scroll.last, 9);
    EXPECT_EQ(scroll.page, 5) << "no line is passed unseen";
    EXPECT_EQ(ScrollFor(160, 16, 100, 480).page, 1);
}

TEST(HexScrollTest, GoesToTheLastLineInPagesOfTheArea)
{
    EXPECT_EQ(ScrollFor(17, 16, 2400, 240).last, 1);
    EXPECT_EQ(ScrollFor(16, 16, 2400, 240).last, 0);
    EXPECT_EQ(ScrollFor(0, 16, 2400, 240).last, 0);
    EXPECT_EQ(ScrollFor(65'576, 16, 2400, 240).last, 4098);
    EXPECT_EQ(ScrollFor(65'576, 32, 2400, 240).last, 2049);
    EXPECT_EQ(ScrollFor(1000, 16, 2639, 240).page, 10);
    EXPECT_EQ(ScrollFor(1000, 16, 2640, 240).page, 11);
}

}  // namespace
}  // namespace folioscope
