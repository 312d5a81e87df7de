#include "objects/font_bench.h"

#include <gtest/gtest.h>

#include "document/ports.h"

namespace folioscope::test {

Bytes FontControl(unsigned technology, unsigned indexLength, unsigned nameLength, unsigned names)
{
    Bytes data = Zeros(35) + U1(nameLength) + Zeros(4) + U2(names);
    data[1] = static_cast<char>(technology);
    data[15] = static_cast<char>(indexLength);
    return data;
}

FontBench::FontBench(const AfpFile& file, int records, Language language) : walk(file), lines(language)
{
    walk.afp.SetPorts(Decoders());
    lines.renderer.ports = Renderers();
    for (int record = 0; record < records; ++record) {
        walk.Next();
        starts_.push_back(walk.afp.FilePosition(walk.afp.Reader().RecordStart()));
    }
}

void FontBench::Read(int record)
{
    walk.At(starts_[static_cast<std::size_t>(record)]);
    if (walk.afp.List().Find(Key::Unread) == nullptr) return;
    walk.afp.List().ClearCollections();
    walk.afp.AnalyzeSpecificRecord();
}

std::vector<std::string> FontBench::Array(int record)
{
    Read(record);
    const ElementList& list = walk.afp.List();
    std::vector<std::string> entries;
    const Element* const values = list.Find(Key::FontArrayValue);
    const Element* const types = list.Find(Key::FontArrayType);
    EXPECT_TRUE(values != nullptr && types != nullptr);
    if (values == nullptr || types == nullptr) return entries;
    EXPECT_EQ(types + 1, values);
    EXPECT_EQ(types->size, values->size);
    for (const Element& element : list.SequenceOf(*values)) entries.push_back(DescriptionOf(list, element));
    return entries;
}

std::string FontBench::Text(int record)
{
    Read(record);
    lines.renderer.text.Clear();
    lines.renderer.RenderStructuredField(walk.afp.List());
    return Readable(lines.renderer.text.Text());
}

}  // namespace folioscope::test
