#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <vector>

namespace folioscope {

// What stands where in the three columns of the hex pane. Positions in the file and indexes of bytes count from 0;
// so do the positions of characters, for which a line end counts two: CR and LF.

inline constexpr int kTwipsPerPixel = 15;
inline constexpr int kLineTwips = 240;       // a line of text, for the scroll bar
inline constexpr int kLowestTwips = 925;     // height of the whole pane
inline constexpr int kColumnGapTwips = 240;  // between bytes and text
inline constexpr std::int64_t kLongestFile = std::numeric_limits<std::int32_t>::max();

// The part of the file that is on show, around the item.
struct HexWindow {
    std::int32_t itemPosition = 0, itemLength = 0;
    std::int32_t start = 0, length = 0;
};

// An item is a record, whose length has 16 bits: what is beyond that is cut. The window ends with the file.
HexWindow WindowAround(std::int32_t itemPosition, std::int32_t itemLength, std::int64_t fileSize);

enum class HexColumn : std::uint8_t { Position, Byte, Text };
inline constexpr std::array kHexColumns = {HexColumn::Position, HexColumn::Byte, HexColumn::Text};

// How much fits into a document window of this width. The widths are those of the columns, in twips.
struct HexFit {
    std::int32_t below;  // width of the window, in twips
    int bytesPerLine;
    int byteWidth, textWidth;
};
const HexFit& FitFor(std::int32_t windowTwips);

// With the two characters of the line end.
int CharactersPerLine(HexColumn column, int bytesPerLine);

struct TextRange {
    std::int32_t start = 0, length = 0;
    bool operator==(const TextRange&) const = default;
};

// Index of the last byte that is reached at most; 0 in an empty window.
std::int32_t ClampByte(std::int64_t byte, std::int32_t windowLength);

// What is selected when a byte is the current one.
TextRange RangeOfByte(HexColumn column, std::int32_t byte, std::int32_t windowLength, int bytesPerLine);

// The characters of the item, with the line ends among them. No range in the column of positions.
TextRange RangeOfItem(HexColumn column, const HexWindow& window, int bytesPerLine);

// The byte that a character belongs to; a line end belongs to the last byte of its line.
std::int32_t ByteUnder(HexColumn column, std::int32_t position, std::int32_t windowLength, int bytesPerLine);

// Eight digits a line: where the line's first byte stands in the file.
std::string LinesOfPositions(const HexWindow& window, int bytesPerLine);

// Two digits and a blank for each byte. Holds 102,400 characters; what goes past them is lost.
std::string LinesOfBytes(std::span<const std::uint8_t> bytes, int bytesPerLine);

// Bytes of the system's page, shown: what can't be seen becomes a full stop.
void HideControls(std::span<std::uint8_t> bytes);

// A character for each byte of the system's page. Holds 40,000 characters, and what goes past them is lost.
std::u16string LinesOfCharacters(std::span<const std::uint8_t> bytes, int bytesPerLine);

// How far the scroll bar goes, in lines.
struct HexScroll {
    bool needed = false;
    std::int32_t last = 0;  // index of the last line
    std::int32_t page = 1;
};
// `lineHeight` is the height in twips that a line has in fact; a bigger font needs more than what is reckoned with.
HexScroll ScrollFor(std::int32_t windowLength, int bytesPerLine, int heightTwips, int lineHeight);

}  // namespace folioscope
