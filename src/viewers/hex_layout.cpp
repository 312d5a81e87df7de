#include "viewers/hex_layout.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/numbers.h"
#include "codepages/pages.h"
#include "codepages/system_page.h"

namespace folioscope {

namespace {

constexpr std::int32_t kLead = 6, kTail = 24, kSlack = 16, kUnit = 8;
constexpr std::int64_t kLongestItem = 65'535;
constexpr std::size_t kByteCharacters = 102'400, kTextCharacters = 40'000;

// clang-format off
constexpr HexFit kFits[] = {
    {12100,                                    16,  5120, 1800},
    {15600,                                    24,  7700, 2640},
    {std::numeric_limits<std::int32_t>::max(), 32, 10300, 3500},
};
// clang-format on

constexpr std::uint8_t kStop = 0x2E;

// Ranges of bytes, both ends included.
constexpr std::uint8_t kHidden[][2] = {
    {0x00, 0x1F},
    {0x80, 0x90},  // sic: the Euro sign and most of the others can be seen
    {0xAD, 0xB3},  // sic: only AD, the soft hyphen, can't be seen
};

// A text of limited size, allocated once. The place moves on even when a piece is cut at the end, so that all that
// follows is lost as well.
template <class Character> class AppendBuffer {
public:
    AppendBuffer(std::size_t wanted, std::size_t limit) : text_(std::min(wanted, limit), Character{' '}) {}

    void Append(Character character)
    {
        if (at_ < text_.size()) text_[at_] = character;
        ++at_;
    }
    void AppendLineEnd()
    {
        Append(Character{'\r'});
        Append(Character{'\n'});
    }
    std::basic_string<Character> Take() { return std::move(text_); }

private:
    std::basic_string<Character> text_;
    std::size_t at_ = 0;
};

struct ColumnShape {
    int charactersPerByte, fixed, selected;
};

// In the order of HexColumn. A line has `charactersPerByte` characters for each byte and `fixed` ones in any case.
constexpr ColumnShape kShapes[] = {{0, 10, 0}, {3, 2, 2}, {1, 2, 1}};

const ColumnShape& ShapeOf(HexColumn column) { return kShapes[static_cast<std::size_t>(column)]; }

// Where a byte begins, or where it would if the window went on.
std::int32_t PlaceOf(HexColumn column, std::int32_t byte, int bytesPerLine)
{
    const ColumnShape& shape = ShapeOf(column);
    return shape.charactersPerByte * byte + shape.fixed * (byte / bytesPerLine);
}

// What so many bytes take, without a line end behind the last one.
std::size_t RoomFor(HexColumn column, std::size_t bytes, int bytesPerLine)
{
    if (bytes == 0) return 0;
    const auto last = static_cast<std::int32_t>(bytes - 1);
    const std::int32_t end = PlaceOf(column, last, bytesPerLine) + ShapeOf(column).charactersPerByte;
    return static_cast<std::size_t>(end);
}

}  // namespace

HexWindow WindowAround(std::int32_t itemPosition, std::int32_t itemLength, std::int64_t fileSize)
{
    const std::int64_t position = std::max(itemPosition, 0);
    const std::int64_t length = std::clamp<std::int64_t>(itemLength, 0, kLongestItem);
    const std::int64_t start = position < kLead ? 0 : position - kLead;
    const std::int64_t tail = position < kLead ? position : kTail;  // sic, shorter at the start of the file
    const std::int64_t whole = kUnit * (1 + (length + tail + kSlack) / kUnit);
    const std::int64_t end = std::min({start + whole, fileSize, kLongestFile});
    return {static_cast<std::int32_t>(position), static_cast<std::int32_t>(length), static_cast<std::int32_t>(start),
            static_cast<std::int32_t>(std::max<std::int64_t>(end - start, 0))};
}

const HexFit& FitFor(std::int32_t windowTwips)
{
    const auto* const fit = std::ranges::find_if(kFits, [&](const HexFit& f) { return windowTwips < f.below; });
    return fit != std::end(kFits) ? *fit : *std::prev(std::end(kFits));
}

int CharactersPerLine(HexColumn column, int bytesPerLine)
{
    return ShapeOf(column).charactersPerByte * bytesPerLine + ShapeOf(column).fixed;
}

std::int32_t ClampByte(std::int64_t byte, std::int32_t windowLength)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(byte, 0, std::max(windowLength - 1, 0)));
}

TextRange RangeOfByte(HexColumn column, std::int32_t byte, std::int32_t windowLength, int bytesPerLine)
{
    return {PlaceOf(column, ClampByte(byte, windowLength), bytesPerLine), ShapeOf(column).selected};
}

TextRange RangeOfItem(HexColumn column, const HexWindow& window, int bytesPerLine)
{
    if (column == HexColumn::Position) return {};
    // Damage can have cut the file within the item.
    const std::int32_t first = std::min(window.itemPosition - window.start, window.length);
    const std::int32_t end = std::min(first + window.itemLength, window.length);
    const std::int32_t start = PlaceOf(column, first, bytesPerLine);
    return {start, PlaceOf(column, end, bytesPerLine) - start};
}

std::int32_t ByteUnder(HexColumn column, std::int32_t position, std::int32_t windowLength, int bytesPerLine)
{
    const int characters = CharactersPerLine(column, bytesPerLine);
    const std::int32_t line = std::max(position, 0) / characters;
    const std::int32_t place = std::max(position, 0) % characters;
    const int width = ShapeOf(column).charactersPerByte;
    // Without the bound, a click behind the end of a line would lead to the line below.
    const std::int32_t inLine = width == 0 ? 0 : std::min(place / width, bytesPerLine - 1);
    return ClampByte(std::int64_t{bytesPerLine} * line + inLine, windowLength);
}

std::string LinesOfPositions(const HexWindow& window, int bytesPerLine)
{
    std::string text;
    // Not rounded to full lines: each is the true position of the first byte beside it.
    for (std::int64_t at = window.start; at < std::int64_t{window.start} + window.length; at += bytesPerLine) {
        AppendHex(text, static_cast<std::uint64_t>(at), 8);
        text += "\r\n";
    }
    return text;
}

std::string LinesOfBytes(std::span<const std::uint8_t> bytes, int bytesPerLine)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    AppendBuffer<char> buffer(RoomFor(HexColumn::Byte, bytes.size(), bytesPerLine), kByteCharacters);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        // sic, 1: a line is never that short, so no line end is missed
        if (i > 1 && i % static_cast<std::size_t>(bytesPerLine) == 0) buffer.AppendLineEnd();
        buffer.Append(kDigits[bytes[i] >> 4]);
        buffer.Append(kDigits[bytes[i] & 15]);
        buffer.Append(' ');
    }
    std::string text = buffer.Take();
    text.erase(text.find_last_not_of(' ') + 1);  // no blank stands in front
    return text;
}

void HideControls(std::span<std::uint8_t> bytes)
{
    for (std::uint8_t& byte : bytes)
        for (const auto& [first, last] : kHidden)
            if (byte >= first && byte <= last) byte = kStop;
}

std::u16string LinesOfCharacters(std::span<const std::uint8_t> bytes, int bytesPerLine)
{
    const CodePageEntry& page = *FindCodePage(kSystemCodePage);
    AppendBuffer<char16_t> buffer(RoomFor(HexColumn::Text, bytes.size(), bytesPerLine), kTextCharacters);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0 && i % static_cast<std::size_t>(bytesPerLine) == 0) buffer.AppendLineEnd();
        buffer.Append(static_cast<char16_t>(DecodeInPage(page, bytes[i])));
    }
    return buffer.Take();  // not trimmed: a blank at the end is a byte
}

HexScroll ScrollFor(std::int32_t windowLength, int bytesPerLine, int heightTwips, int lineHeight)
{
    HexScroll scroll;
    const std::int32_t bytes = std::max(windowLength - 1, 0);
    scroll.last = bytes / bytesPerLine;
    // rows = bytes / bytesPerLine is a fraction: lines of which the last one counts by its bytes
    const bool higher = std::int64_t{bytes} * kLineTwips >= std::int64_t{heightTwips} * bytesPerLine;
    const bool cut = std::int64_t{scroll.last + 1} * lineHeight > heightTwips;
    scroll.needed = windowLength > 0 && (higher || cut);
    scroll.page = std::max(std::min(heightTwips / kLineTwips, heightTwips / std::max(lineHeight, 1)), 1);
    return scroll;
}

}  // namespace folioscope
