#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdlRegistry.h"
#include "base/tagged_value.h"

namespace folioscope {

// An array whose first element has the index lowerBound.
template <typename Element> struct BoundedArray {
    std::vector<Element> elements;
    int lowerBound = 0;
};

namespace mdlOther {

// The text with the first occurrence of the old part replaced.
std::string ChangeString(std::string_view strString, std::string_view strOldPart, std::string_view strNewPart);

// Copies the values into the array from an index on. What would lie behind the array is dropped, and all of
// it if the index lies in front.
template <typename Element>
void FillArray(int intStartIndex, BoundedArray<Element>& theArray, std::initializer_list<Element> values)
{
    if (intStartIndex < theArray.lowerBound) return;
    const auto start = static_cast<std::size_t>(std::int64_t{intStartIndex} - theArray.lowerBound);
    if (start >= theArray.elements.size()) return;
    const auto count = std::min(values.size(), theArray.elements.size() - start);
    std::copy_n(values.begin(), count, theArray.elements.begin() + static_cast<std::ptrdiff_t>(start));
}

// The index of the first equal element. 0 if there is none, which an array from 0 can't tell from its first.
template <typename Element, typename Value> int FindInArray(const BoundedArray<Element>& theArray, const Value& value)
{
    const auto at = std::ranges::find(theArray.elements, value);
    if (at == theArray.elements.end()) return 0;
    return theArray.lowerBound + static_cast<int>(at - theArray.elements.begin());
}

void AddToAnyArray(BoundedArray<TaggedValue>& AnyArray, const TaggedValue& AnyValue);

std::string GetTempDir();  // with one slash at its end

// The field between two dividers, counted from 1; empty beyond the last field, for a part below 1 and
// without a divider, which is the first character of `strDivider`.
std::string Extract(std::string_view strSourceString, std::string_view strDivider, int intPart);

// Makes a folder with all its parents; / and \ both divide. False only if a folder couldn't be made.
// The process's current folder moves to the last one that was there already.
bool MakeDir(std::string_view strPath);

// Makes the folder that the system's programs share, and gives its path; empty if the user has no folder.
// Moves the current folder like MakeDir.
std::string GetAllUsersAppDir(const mdlRegistry& registry);

}  // namespace mdlOther
}  // namespace folioscope
