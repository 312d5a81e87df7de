#include "codepages/pages.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace folioscope {

namespace {

#include "pages_data.inc"

static_assert(kCharacters[kFullStop] == u'.');
static_assert(std::size(kCharacters) <= kEuroSign);
static_assert(std::ranges::is_sorted(kEntries, {}, &CodePageEntry::Number));

}  // namespace

std::span<const CodePageEntry> CodePageEntries() { return kEntries; }

const CodePageEntry* FindCodePage(std::int32_t number)
{
    const auto* const found = std::ranges::lower_bound(kEntries, number, {}, &CodePageEntry::Number);
    return found != std::end(kEntries) && found->Number == number ? found : nullptr;
}

char32_t UnicodeOf(CharacterNumber number)
{
    if (number == kEuroSign) return U'\u20AC';
    const bool known = number > 0 && static_cast<std::size_t>(number) < std::size(kCharacters);
    return known ? kCharacters[number] : U'\uFFFD';
}

}  // namespace folioscope
