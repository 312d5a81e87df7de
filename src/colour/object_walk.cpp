#include "colour/object_walk.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace folioscope {

void ObjectWalk::AddRows(std::span<const ObjectRow> rows, std::int64_t base)
{
    for (const auto& [key, read, at, size, own] : rows) {
        const std::int64_t p = base + at;
        switch (read) {
        case ObjectRead::Byte: Add(Element::Byte(key, ByteAt(p))); break;
        case ObjectRead::Unsigned: Add(Element::Int32(key, Unsigned(p, size))); break;
        case ObjectRead::Bit: Add(Element::Boolean(key, Bit(p, size))); break;
        case ObjectRead::Wide: AddCleaned(key, kUtf16BEPage, p, size); break;
        case ObjectRead::Narrow: AddCleaned(key, kPage437, p, size); break;
        case ObjectRead::Hex: AddHex(key, p, size); break;
        case ObjectRead::Own: own(*this, key, p); break;
        }
    }
}

void ObjectWalk::AddText(Key key, std::string_view made)
{
    std::string& pool = afp_.List().Pool();
    const auto from = pool.size();
    pool += made;
    Add(afp_.List().PooledText(key, from));
}

void ObjectWalk::AddText(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    Add(Text(key, lngCodepage, position, length));
}

void ObjectWalk::AddCleaned(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    Add(Cleaned(key, lngCodepage, position, length));
}

void ObjectWalk::AddHex(Key key, std::int64_t position, std::int64_t length)
{
    Add(afp_.ObjReadHex(key, position, length));
}

// A text that no description of a record could hold is cut, first at the object's end.
std::int64_t ObjectWalk::BytesToRead(std::int64_t position, std::int64_t length)
{
    constexpr std::int64_t kLongestWhole = 65'536, kLongestCut = 2 * kLongestWhole;  // as many characters of UTF-16
    if (length > kLongestWhole) length = std::min({length, std::max<std::int64_t>(Size() - position, 0), kLongestCut});
    length = std::clamp<std::int64_t>(length, 0, textLeft_);
    textLeft_ -= length;
    return length;
}

Element ObjectWalk::Text(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    return afp_.ObjReadTextCP(key, lngCodepage, position, BytesToRead(position, length));
}

Element ObjectWalk::Cleaned(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    Element element = Text(key, lngCodepage, position, length);
    std::string& pool = afp_.List().Pool();
    std::replace(pool.begin() + static_cast<std::ptrdiff_t>(element.at), pool.end(), '@', ' ');
    const std::string_view whole = TextOf(element), trimmed = TrimBlanks(whole);
    if (!trimmed.empty()) element.at += static_cast<std::uint64_t>(trimmed.data() - whole.data());
    element.size = static_cast<std::uint32_t>(trimmed.size());
    return element;
}

}  // namespace folioscope
