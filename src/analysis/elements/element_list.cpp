#include "analysis/elements/element_list.h"

namespace folioscope {

void ElementList::ClearCollections()
{
    elements_.Clear();
    sequence_.Clear();
    pool_.clear();
    sequenceStart_ = 0;
}

const Element* ElementList::Find(Key key) const
{
    for (const Element& element : elements_.All())
        if (element.key == key) return &element;
    return nullptr;
}

Element ElementList::PooledText(Key key, std::size_t from) const
{
    Element element;
    element.key = key;
    element.tag = Tag::Text;
    element.size = static_cast<std::uint32_t>(pool_.size() - from);
    element.at = from;
    return element;
}

std::string_view ElementList::TextOf(const Element& element) const
{
    if (element.tag == Tag::Literal) return {element.literal, element.size};
    if (element.tag == Tag::Text) return std::string_view(pool_).substr(element.at, element.size);
    return {};
}

void ElementList::PublishSequence(Key types, Key values)
{
    Element half;
    half.tag = Tag::Sequence;
    half.size = static_cast<std::uint32_t>(SequenceCount());
    half.at = sequenceStart_;
    half.key = types;
    elements_.Add(half);
    half.key = values;
    elements_.Add(half);
}

std::span<const Element> ElementList::SequenceOf(const Element& element) const
{
    if (element.tag != Tag::Sequence) return {};
    return sequence_.All().subspan(element.at, element.size);
}

}  // namespace folioscope
