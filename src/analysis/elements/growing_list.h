#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <span>
#include <type_traits>

namespace folioscope {

// A list of plain values that is cleared without giving back its memory. Adding is a store and a compare, since it is
// the most frequent step of all decoding.
template <class Value> class GrowingList {
    static_assert(std::is_trivially_copyable_v<Value>);

public:
    [[gnu::always_inline]] void Add(const Value& value)
    {
        if (size_ == capacity_) [[unlikely]]
            Grow();
        values_[size_++] = value;
    }
    void Clear() { size_ = 0; }
    std::size_t Size() const { return size_; }
    std::span<const Value> All() const { return {values_.get(), size_}; }

private:
    void Grow()
    {
        const std::size_t capacity = capacity_ == 0 ? 256 : capacity_ * 2;
        auto values = std::make_unique_for_overwrite<Value[]>(capacity);
        if (size_ != 0) std::memcpy(static_cast<void*>(values.get()), values_.get(), size_ * sizeof(Value));
        values_ = std::move(values);
        capacity_ = capacity;
    }

    std::unique_ptr<Value[]> values_;
    std::size_t size_ = 0, capacity_ = 0;
};

}  // namespace folioscope
