#include "analysis/record_walk.h"

#include <gtest/gtest.h>

namespace folioscope::test {

namespace {

constexpr std::string_view kKeyNames[] = {
    "NoKey",
#define KEY(name) #name,
#include "analysis/elements/element_keys.def"
#undef KEY
};

constexpr std::string_view kTagNames[] = {"Int16", "Int32",   "Float32", "Float64", "Text",
                                          "Text",  "Boolean", "Byte",    "Sequence"};

}  // namespace

std::string_view NameOf(Key key) { return kKeyNames[static_cast<std::size_t>(key)]; }

std::string DescriptionOf(const ElementList& list, const Element& element)
{
    std::string line(kTagNames[static_cast<std::size_t>(element.tag)]);
    line += ' ';
    line += NameOf(element.key);
    line += ' ';
    switch (element.tag) {
    case Tag::Text:
    case Tag::Literal: return line += list.TextOf(element);
    case Tag::Float32:
    case Tag::Float64: return line += std::to_string(element.real);
    case Tag::Sequence: return line += std::to_string(element.size);
    default: return line += std::to_string(element.number);
    }
}

std::vector<std::string> LinesOf(const ElementList& list)
{
    std::vector<std::string> lines;
    for (const Element& element : list.Elements()) lines.push_back(DescriptionOf(list, element));
    return lines;
}

std::vector<std::string> BodyOf(const ElementList& list)
{
    std::vector<std::string> lines;
    for (const Element& element : list.Elements()) {
        switch (element.key) {
        case Key::SFStart:
        case Key::SFLength:
        case Key::NodeText:
        case Key::SFName: break;
        default: lines.push_back(DescriptionOf(list, element));
        }
    }
    return lines;
}

RecordWalk::RecordWalk(const Bytes& content, const InputPages& pages)
{
    afp.InitializeProcessing2(folder_.File("input.afp", content), pages);
    EXPECT_EQ(afp.OpenAFPFile(), kOpen);
}

Status RecordWalk::Next()
{
    Step();
    return afp.AnalyzeRecord();
}

void RecordWalk::Step()
{
    std::int32_t processed = 0;
    EXPECT_EQ(afp.GetNextRecord(processed, false), kRecord);
}

Status RecordWalk::At(std::int32_t lngStart)
{
    afp.List().ClearCollections();
    EXPECT_EQ(afp.SetNextRecord(lngStart).number, 0);
    return afp.AnalyzeRecord();
}

std::string RecordWalk::Text(Key key) const
{
    const Element* element = afp.List().Find(key);
    EXPECT_NE(element, nullptr) << NameOf(key);
    return element == nullptr ? std::string() : std::string(afp.List().TextOf(*element));
}

std::int64_t RecordWalk::Number(Key key) const
{
    const Element* element = afp.List().Find(key);
    EXPECT_NE(element, nullptr) << NameOf(key);
    return element == nullptr ? 0 : element->number;
}

}  // namespace folioscope::test
