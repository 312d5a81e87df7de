#include "colour/colour_support.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "colour/cmr_render.h"
#include "document/ports.h"

namespace folioscope::test {

namespace {

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
