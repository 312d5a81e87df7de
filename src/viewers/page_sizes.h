#pragma once

#include <QSizeF>

#include <cstdint>
#include <deque>
#include <optional>
#include <span>

namespace folioscope {

inline constexpr QSizeF kDefaultPageSize(612, 792);  // points: 8.5 x 11 inches

// The size that the data of a Page Descriptor tells, in points. None if a unit base is unknown, or if a side has no
// length or one that no paper has.
std::optional<QSizeF> SizeOfDescriptor(std::span<const std::uint8_t> data);

// Counts pages and keeps their sizes, fed with the records of a file. Pages of the same size in a row share an entry,
// so that memory stays small against the file.
class PageSizes {
public:
    // A whole record from its length field on: length, identifier, flags and their reserved bytes, data.
    void Feed(std::span<const std::uint8_t> record);
    void FeedEnd();  // the file ends: a page that is still open ends with it

    int Count() const { return pages_; }
    QSizeF SizeOf(int page) const;  // from 1

private:
    struct Run {
        int firstPage;
        float width, height;
    };

    void Descriptor(std::span<const std::uint8_t> record);
    void EndPage();
    void Append();

    std::deque<Run> runs_;
    QSizeF size_ = kDefaultPageSize;
    int pages_ = 0;
    bool pending_ = false;  // in a page whose size isn't known yet
    bool inPage_ = false, inOverlay_ = false;
};

}  // namespace folioscope
