#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "analysis/elements/element.h"
#include "analysis/elements/growing_list.h"

namespace folioscope {

// The Elements of the record in hand, in the order in which they were decoded. A key can repeat; the order is meaning.
// Clearing keeps the memory, so that nothing is allocated once the largest record has passed.
class ElementList {
public:
    static constexpr std::size_t kLongestSequence = 10'000;

    void ClearCollections();
    void AddElement(const Element& element) { elements_.Add(element); }
    std::span<const Element> Elements() const { return elements_.All(); }
    const Element* Find(Key key) const;

    // Texts are written to the end of the pool: what was appended since `from` becomes the value.
    std::string& Pool() { return pool_; }
    Element PooledText(Key key, std::size_t from) const;
    std::string_view TextOf(const Element& element) const;

    // A sequence is built by ClearSequenceElements, any number of AddSequenceElement, and PublishSequence, which adds
    // its two halves. Entries past the longest sequence are dropped without a word.
    void ClearSequenceElements() { sequenceStart_ = sequence_.Size(); }
    void AddSequenceElement(const Element& element)
    {
        if (!SequenceIsFull()) sequence_.Add(element);
    }
    bool SequenceIsFull() const { return SequenceCount() >= kLongestSequence; }
    std::size_t SequenceCount() const { return sequence_.Size() - sequenceStart_; }
    void PublishSequence(Key types, Key values);
    std::span<const Element> SequenceOf(const Element& element) const;

private:
    GrowingList<Element> elements_, sequence_;
    std::string pool_;
    std::size_t sequenceStart_ = 0;
};

}  // namespace folioscope
