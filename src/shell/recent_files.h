#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/clsSillyFunctions.h"

namespace folioscope {

// The files opened last, the newest first; an empty text is a free place.
class RecentFiles {
public:
    static constexpr std::size_t kPlaces = 9;

    // LastFilesList1 to LastFilesList9 of the settings key.
    void Read(const clsSillyFunctions& store);
    void Write(clsSillyFunctions& store) const;

    // Puts a path first. If it was there already, in whatever letter case, it leaves its old place.
    void Add(std::string_view path);

    const std::string& operator[](std::size_t place) const { return strLastFiles_[place]; }  // from 0

private:
    std::array<std::string, kPlaces> strLastFiles_;
};

// What the menu shows for a path: "&1 /home/me/a.afp"; the middle of a long one gives way to three dots.
std::string RecentFileCaption(std::size_t place, std::string_view path);

}  // namespace folioscope
