#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace folioscope {

// Text that is put together piece by piece and taken away whole, for millions of small pieces: an append is a compare
// and a copy. Clearing keeps the memory.
class TextBuffer {
public:
    explicit TextBuffer(std::size_t capacity)
        : data_(std::make_unique_for_overwrite<char[]>(capacity)), capacity_(capacity)
    {
    }

    [[gnu::always_inline]] TextBuffer& operator+=(std::string_view text)
    {
        if (text.size() > capacity_ - size_) [[unlikely]]
            Grow(text.size());
        std::memcpy(data_.get() + size_, text.data(), text.size());
        size_ += text.size();
        return *this;
    }
    TextBuffer& operator+=(char c)
    {
        if (size_ == capacity_) [[unlikely]]
            Grow(1);
        data_[size_++] = c;
        return *this;
    }
    void Append(std::size_t count, char c)
    {
        if (count > capacity_ - size_) Grow(count);
        std::memset(data_.get() + size_, c, count);
        size_ += count;
    }

    std::string_view Text() const { return {data_.get(), size_}; }
    std::size_t Size() const { return size_; }
    void Clear() { size_ = 0; }

private:
    void Grow(std::size_t more)
    {
        const std::size_t capacity = std::max(capacity_ * 2, size_ + more);
        auto data = std::make_unique_for_overwrite<char[]>(capacity);
        std::memcpy(data.get(), data_.get(), size_);
        data_ = std::move(data);
        capacity_ = capacity;
    }

    std::unique_ptr<char[]> data_;
    std::size_t size_ = 0, capacity_;
};

}  // namespace folioscope
