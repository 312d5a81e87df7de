#include "codepages/clsCPConversions.h"

#include <algorithm>
#include <utility>

#include "codepages/system_page.h"

namespace folioscope {

namespace {

constexpr std::int32_t kUnicodePage = 1200;

constexpr auto kAllBytes = [] {
    std::array<std::uint8_t, 256> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i);
    return bytes;
}();

// No page has a character beyond U+FFFF.
ByteText Utf8Of(char32_t character)
{
    const auto lead = [&](unsigned mark, int shift) { return static_cast<char>(mark | character >> shift); };
    const auto tail = [&](int shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) return {{lead(0, 0)}, 1};
    if (character < 0x800) return {{lead(0xC0, 6), tail(0)}, 2};
    return {{lead(0xE0, 12), tail(6), tail(0)}, 3};
}

}  // namespace

std::vector<std::int32_t> clsCPConversions::AvailableCodepages()
{
    std::vector<std::int32_t> numbers;
    for (const CodePageEntry& entry : CodePageEntries()) numbers.push_back(entry.Number);
    return numbers;
}

void clsCPConversions::GetSpecificCPInfo(std::int32_t lngCPNumber, std::string_view& strSymbol,
                                         std::string_view& strType, std::string_view& strLongName)
{
    const CodePageEntry* const entry = FindCodePage(lngCPNumber);
    strSymbol = entry ? entry->Symbol : std::string_view();
    strType = entry ? entry->Type : std::string_view();
    strLongName = entry ? entry->LongName : std::string_view();
}

bool clsCPConversions::LoadCodepage(std::int32_t lngCodepage)
{
    if (lngCodepage == kUnicodePage) return true;
    const CodePageEntry* const entry = FindCodePage(lngCodepage);
    if (entry == nullptr) return false;
    if (std::ranges::find(forwardList_, entry->Number, &ForwardPage::Number) != forwardList_.end()) return true;

    ForwardPage& forward = forwardList_.emplace_back();
    ReversePage& reverse = reverseList_.emplace_back();
    forward.Number = reverse.Number = entry->Number;
    reverse.ReverseTable.fill(entry->SubstituteValue);
    for (std::size_t byte = 0; byte < entry->SourceTable->size(); ++byte) {
        const CharacterNumber character = (*entry->SourceTable)[byte];
        forward.ForwardTable[byte] = character > 0 ? character : kFullStop;
        if (character > 0) reverse.ReverseTable[character] = static_cast<std::int16_t>(byte + 1);
    }
    return true;
}

bool clsCPConversions::ConvertCPArray(std::int32_t lngSourceCP, std::int32_t lngTargetCP,
                                      std::span<const std::uint8_t> bytSourceArray,
                                      std::vector<std::uint8_t>& bytTargetArray)
{
    if (!LoadCodepage(lngSourceCP) || !LoadCodepage(lngTargetCP)) return false;
    if (lngSourceCP == kUnicodePage || lngTargetCP == kUnicodePage) return false;

    const auto& forward = std::ranges::find(forwardList_, lngSourceCP, &ForwardPage::Number)->ForwardTable;
    const auto& reverse = std::ranges::find(reverseList_, lngTargetCP, &ReversePage::Number)->ReverseTable;
    bytTargetArray.resize(bytSourceArray.size());
    std::ranges::transform(bytSourceArray, bytTargetArray.begin(), [&](std::uint8_t byte) {
        return static_cast<std::uint8_t>(reverse[forward[byte]] - 1);  // in 8 bits: 0 gives FF
    });
    return true;
}

const ByteTexts* clsCPConversions::TextsOf(std::int32_t lngSourceCP, std::int32_t lngTargetCP)
{
    for (TextPair& pair : textPairs_) {
        if (pair.source != lngSourceCP || pair.target != lngTargetCP) continue;
        std::swap(pair, textPairs_.front());
        return textPairs_.front().texts.get();
    }

    std::vector<std::uint8_t> converted;
    if (!ConvertCPArray(lngSourceCP, lngTargetCP, kAllBytes, converted)) return nullptr;
    const CodePageEntry& target = *FindCodePage(lngTargetCP);
    auto texts = std::make_unique<ByteTexts>();
    std::ranges::transform(converted, texts->begin(),
                           [&](std::uint8_t byte) { return Utf8Of(DecodeInPage(target, byte)); });
    textPairs_.push_back({lngSourceCP, lngTargetCP, std::move(texts)});
    std::swap(textPairs_.back(), textPairs_.front());
    return textPairs_.front().texts.get();
}

}  // namespace folioscope
