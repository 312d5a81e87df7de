#include "viewers/page_sizes.h"

#include <algorithm>

namespace folioscope {

namespace {

// Identifiers behind x'D3'.
enum Field : unsigned { kPGD = 0xA6'AF, kBPG = 0xA8'AF, kEPG = 0xA9'AF, kBMO = 0xA8'DF, kEMO = 0xA9'DF };

constexpr std::size_t kIntroducer = 8;     // length 2, identifier 3, flags 1, reserved 2
constexpr unsigned kExtensionFlag = 0x80;  // the introducer goes on; its next byte is the length of what is added
constexpr std::size_t kDescriptor = 12;    // bases 1 + 1, units 2 + 2, sizes 3 + 3
constexpr double kLongestSide = 72'000;    // points; a roll of 25 metres

unsigned Number(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t count)
{
    unsigned value = 0;
    for (std::size_t i = 0; i < count; ++i) value = value << 8 | bytes[at + i];
    return value;
}

// Units are told for 10 inches or for 10 centimetres.
std::optional<double> SideInPoints(unsigned base, unsigned units, unsigned size)
{
    if (base > 1 || units == 0 || size == 0) return std::nullopt;
    const double points = 72.0 * 10 / (base == 0 ? 1 : 2.54) * size / units;
    if (points > kLongestSide) return std::nullopt;
    return points;
}

}  // namespace

std::optional<QSizeF> SizeOfDescriptor(std::span<const std::uint8_t> data)
{
    if (data.size() < kDescriptor) return std::nullopt;
    const auto width = SideInPoints(data[0], Number(data, 2, 2), Number(data, 6, 3));
    const auto height = SideInPoints(data[1], Number(data, 4, 2), Number(data, 9, 3));
    if (!width || !height) return std::nullopt;
    return QSizeF(*width, *height);
}

void PageSizes::Feed(std::span<const std::uint8_t> record)
{
    if (record.size() < kIntroducer) return;
    switch (Number(record, 3, 2)) {
    case kBPG:
        EndPage();
        inPage_ = pending_ = true;
        break;
    case kEPG: EndPage(); break;
    case kBMO: inOverlay_ = true; break;
    case kEMO: inOverlay_ = false; break;
    case kPGD: Descriptor(record); break;
    default: break;
    }
}

void PageSizes::FeedEnd() { EndPage(); }

void PageSizes::Descriptor(std::span<const std::uint8_t> record)
{
    // An overlay that isn't ended doesn't take the sizes of the pages behind it.
    if (inOverlay_ && !inPage_) return;
    if (inPage_ && !pending_) return;
    std::size_t at = kIntroducer;
    if ((record[5] & kExtensionFlag) != 0 && record.size() > at) at += record[at];
    const auto size = SizeOfDescriptor(record.subspan(std::min(at, record.size())));
    if (!size) return;
    size_ = *size;
    if (pending_) Append();
}

void PageSizes::EndPage()
{
    if (pending_) Append();
    inPage_ = false;
}

void PageSizes::Append()
{
    pending_ = false;
    ++pages_;
    const auto width = static_cast<float>(size_.width()), height = static_cast<float>(size_.height());
    if (runs_.empty() || runs_.back().width != width || runs_.back().height != height)
        runs_.push_back({pages_, width, height});
}

QSizeF PageSizes::SizeOf(int page) const
{
    const auto behind =
        std::upper_bound(runs_.begin(), runs_.end(), page, [](int p, const Run& run) { return p < run.firstPage; });
    if (behind == runs_.begin()) return kDefaultPageSize;
    const Run& run = *std::prev(behind);
    return {run.width, run.height};
}

}  // namespace folioscope
