#include "document/record_memo.h"

#include <array>

#include "analysis/decode/dispatch.h"
#include "base/hash.h"

namespace folioscope {

namespace {

constexpr std::size_t kLongest = 1024;                       // bytes of a record
constexpr std::size_t kSequenceAt = 6, kSequenceLength = 2;  // of the introducer: says nothing of the contents

constexpr std::string_view kRepeating[] = {
    "TLE", "NOP", "PGD", "PTD-1", "PTD-2", "MCF-2", "MDR", "MPO", "OBD", "OBP", "MCD", "MPT", "MPG", "MGO", "MIO",
    "MBC", "CDD", "MDD", "MMT",   "MMD",   "MCA",   "CTC", "PEC", "IEL", "MSU", "PPO", "GDD", "GAD", "IDD", "BDD/BSD"};

}  // namespace

bool RecordMemo::Repeats(std::size_t field, std::size_t bytes)
{
    static const auto repeating = [] {
        std::array<bool, kFieldCount + 1> table{};
        for (std::size_t i = 0; i < kFieldCount; ++i)
            for (const auto name : kRepeating) table[i] = table[i] || name == Fields()[i].NodeText;
        return table;
    }();
    return repeating[field] && bytes <= kLongest;
}

void RecordMemo::Ask(std::string_view record, const MemoState& state)
{
    bytes_ = record.substr(0, kSequenceAt);
    if (record.size() > kSequenceAt + kSequenceLength) bytes_ += record.substr(kSequenceAt + kSequenceLength);
    hash_ = HashOf(bytes_);
    state_ = state;
    asked_ = &entries_[hash_ % kEntries];
    known_ = asked_->hash == hash_ && asked_->bytes == bytes_ && asked_->before == state;
}

void RecordMemo::Learn(Status status, const UnitState& units, const LineState& lines, const NodeRecord& node)
{
    asked_->hash = hash_;
    asked_->status = status;
    asked_->bytes = bytes_;
    asked_->before = state_;
    asked_->units = units;
    asked_->lines = lines;
    asked_->node = node;
}

}  // namespace folioscope
