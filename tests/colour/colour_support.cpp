#include "colour/colour_support.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "colour/cmr_render.h"
#include "document/ports.h"

namespace folioscope::test {

namespace {

constexpr std::size_t kHeaderSize = 164, kEntrySize = 12;

Bytes Padded(Bytes bytes, std::size_t size)
{
    bytes.resize(std::max(bytes.size(), size));
    return bytes;
}

ColourShown Rendered(const ElementList& list, std::span<const Element> sequence)
{
    LineBench bench;
    ColourShown shown;
    bench.renderer.list = &list;
    RenderColorResource(bench.renderer, sequence);
    shown.text = Readable(bench.renderer.deferredText.Text());
    shown.heard = bench.witness.heard;
    EXPECT_EQ(bench.renderer.text.Text(), "");
    return shown;
}

std::string WithoutTab(const std::string& line)
{
    return line.starts_with("→") ? line.substr(std::string_view("→").size()) : line;
}

}  // namespace

Bytes Wide(std::string_view ascii)
{
    Bytes bytes;
    for (const char c : ascii) bytes += Bytes(1, '\0') + c;
    return bytes;
}

Bytes Filled(std::string_view ascii, std::size_t size)
{
    Bytes bytes = Wide(ascii);
    while (bytes.size() < size) bytes += Wide("@");
    return bytes;
}

Cmr& Cmr::Header(std::size_t at, const Bytes& bytes)
{
    header_.replace(at, bytes.size(), bytes);
    return *this;
}

Cmr& Cmr::Inside(unsigned id, unsigned type, std::uint32_t count, const Bytes& value)
{
    entries_.push_back({U2(id) + U2(type) + U4(count), value, false});
    return *this;
}

Cmr& Cmr::Behind(unsigned id, unsigned type, std::uint32_t count, const Bytes& value)
{
    entries_.push_back({U2(id) + U2(type) + U4(count), value, true});
    return *this;
}

Cmr& Cmr::Pointing(unsigned id, unsigned type, std::uint32_t count, std::uint32_t offset)
{
    return Inside(id, type, count, U4(offset));
}

Cmr& Cmr::WithoutEnd()
{
    end_ = false;
    return *this;
}

Bytes Cmr::Whole() const
{
    Bytes table, data;
    const std::size_t tableSize = kEntrySize * (entries_.size() + (end_ ? 1 : 0));
    for (const auto& [head, value, behind] : entries_) {
        table += head + (behind ? U4(static_cast<std::uint32_t>(tableSize + data.size())) : Padded(value, 4));
        if (behind) data += value;
    }
    if (end_) table += Raw({0xFF, 0xFF, 0, 5}) + Zeros(8);
    Bytes header = header_;
    const std::size_t size = kHeaderSize + table.size() + data.size();
    if (header.starts_with(Zeros(4))) header.replace(0, 4, U4(static_cast<std::uint32_t>(size)));
    return header + table + data;
}

IccProfile& IccProfile::Header(std::size_t at, const Bytes& bytes)
{
    header_.replace(at, bytes.size(), bytes);
    return *this;
}

IccProfile& IccProfile::Tag(std::string_view signature, const Bytes& data)
{
    tags_.push_back({Bytes(signature), data});
    return *this;
}

IccProfile& IccProfile::Entry(std::string_view signature, std::uint32_t offset, std::uint32_t size)
{
    tags_.push_back({Bytes(signature), {}, offset, size});
    return *this;
}

IccProfile& IccProfile::Count(std::uint32_t count)
{
    count_ = U4(count);
    return *this;
}

Bytes IccProfile::Whole() const
{
    Bytes table, data;
    const std::size_t dataAt = header_.size() + 4 + kEntrySize * tags_.size();
    for (const auto& [signature, bytes, offset, size] : tags_) {
        const bool own = offset != 0 || size != 0;
        table += signature + U4(own ? offset : static_cast<std::uint32_t>(dataAt + data.size()));
        table += U4(own ? size : static_cast<std::uint32_t>(bytes.size()));
        data += bytes + Zeros((4 - bytes.size() % 4) % 4);
    }
    Bytes header = header_;
    if (header.starts_with(Zeros(4))) header.replace(0, 4, U4(static_cast<std::uint32_t>(dataAt + data.size())));
    return header + (count_.empty() ? U4(static_cast<std::uint32_t>(tags_.size())) : count_) + table + data;
}

AfpFile InContainer(const Bytes& object, ObjectKind kind, std::size_t step)
{
    const std::string_view entry = kind == ObjectKind::ColourResource ? "39"
                                   : kind == ObjectKind::Metadata     ? "43"
                                                                      : "17";
    AfpFile file;
    file.Add("BOC",
             Ebcdic8("OBJECT") + TripletOf("10 00 01 0000 90 00 06072B1200040101" + std::string(entry) + " 00*7"));
    for (std::size_t at = 0; at < object.size(); at += step) file.Add("OCD", object.substr(at, step));
    return file.Add("EOC", Ebcdic8("OBJECT"));
}

ColourShown ShowColour(const AfpFile& container)
{
    RecordWalk walk(container);
    walk.afp.SetPorts(Decoders());
    while (walk.Next() != kEnd) continue;
    const ElementList& list = walk.afp.List();
    ColourShown shown;
    const Element* const values = list.Find(Key::CMRDataValue);
    if (values == nullptr) return shown;
    EXPECT_EQ(list.SequenceOf(*list.Find(Key::CMRDataType)).data(), list.SequenceOf(*values).data());
    shown = Rendered(list, list.SequenceOf(*values));
    for (const Element& element : list.SequenceOf(*values)) shown.elements.push_back(DescriptionOf(list, element));
    LineBench bench;
    bench.renderer.RenderStructuredField(list);
    shown.own = Readable(bench.renderer.text.Text());
    return shown;
}

ColourShown ShowColour(const Bytes& object) { return ShowColour(InContainer(object, ObjectKind::ColourResource)); }

ColourShown ShowTag(const Cmr& cmr, int number)
{
    const ColourShown whole = ShowColour(cmr);
    ColourShown shown;
    shown.heard = whole.heard;
    const std::string count = std::to_string(number);
    const auto first = std::ranges::find(whole.elements, "Int16 BeginRepetition " + count);
    const auto last = std::find(first, whole.elements.end(), "Int16 EndRepetition " + count);
    if (first != last) shown.elements.assign(first + 1, last);

    const std::string head = "\n<b>Element " + count + "</b>\n", next = "\n<b>Element " + std::to_string(number + 1);
    const auto from = whole.text.find(head);
    EXPECT_NE(from, std::string::npos) << whole.text;
    if (from == std::string::npos) return shown;
    std::string_view text = std::string_view(whole.text).substr(from + head.size());
    text = text.substr(0, text.find(next));
    while (!text.empty()) {
        const auto end = text.find('\n');
        shown.text += WithoutTab(std::string(text.substr(0, end))) + '\n';
        text.remove_prefix(std::min(text.size(), end == std::string_view::npos ? end : end + 1));
    }
    return shown;
}

void ExpectTag(const Cmr& cmr, std::string_view expected, int number)
{
    const ColourShown shown = ShowTag(cmr, number);
    ExpectShown(shown.elements, shown.text, expected);
}

Lines ValuesIn(const Lines& elements, std::string_view key)
{
    const std::string sought = ' ' + std::string(key) + ' ';
    Lines values;
    for (const std::string& element : elements)
        if (const auto at = element.find(sought); at != std::string::npos && at == element.find(' '))
            values.push_back(element.substr(at + sought.size()));
    return values;
}

ColourShown ShowValue(Key key, std::int64_t value)
{
    const Element element = Element::Int32(key, value);
    return Rendered(ElementList(), {&element, 1});
}

ColourShown ShowValue(Key key, std::string_view value)
{
    const Element element = Element::Literal(key, value);
    return Rendered(ElementList(), {&element, 1});
}

}  // namespace folioscope::test
