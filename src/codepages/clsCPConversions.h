#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "codepages/pages.h"

namespace folioscope {

// One character in UTF-8; the bytes behind `size` are 0.
struct ByteText {
    char utf8[3];
    std::uint8_t size;
};
using ByteTexts = std::array<ByteText, 256>;  // by byte value

// Converts bytes of one code page to those of another. Making one costs nothing; a page is built at its first use and
// stays. Page 1200 counts as a page, but nothing is converted from or to it.
class clsCPConversions {
public:
    // All page numbers, ascending.
    static std::vector<std::int32_t> AvailableCodepages();

    // Three empty texts if there is no such page.
    static void GetSpecificCPInfo(std::int32_t lngCPNumber, std::string_view& strSymbol, std::string_view& strType,
                                  std::string_view& strLongName);

    // False if there is no such page.
    bool LoadCodepage(std::int32_t lngCodepage);

    // False, with the target as it was, if a page doesn't exist or is 1200. Undefined bytes become the target page's
    // full stop, and so do characters that it hasn't got; on target 1257 the latter become FF. The source may be the
    // whole of the target.
    bool ConvertCPArray(std::int32_t lngSourceCP, std::int32_t lngTargetCP,
                        std::span<const std::uint8_t> bytSourceArray, std::vector<std::uint8_t>& bytTargetArray);

    // What each byte shows as: converted to the target page, then decoded by that page's own table. Null where
    // ConvertCPArray says false. Valid as long as this object.
    const ByteTexts* TextsOf(std::int32_t lngSourceCP, std::int32_t lngTargetCP);

    std::size_t LoadedPages() const { return forwardList_.size(); }

private:
    struct ForwardPage {
        std::int16_t Number;
        CharacterTable ForwardTable;  // by byte value; undefined bytes have the full stop
    };
    struct ReversePage {
        std::int16_t Number;
        std::array<std::int16_t, kHighestCharacter + 1> ReverseTable;  // byte value plus 1, by CharacterNumber
    };
    struct TextPair {
        std::int32_t source, target;
        std::unique_ptr<const ByteTexts> texts;
    };

    std::vector<ForwardPage> forwardList_;  // in the order of first use, and so the other
    std::vector<ReversePage> reverseList_;
    std::vector<TextPair> textPairs_;  // the pair used last comes first
};

}  // namespace folioscope
