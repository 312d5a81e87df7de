#pragma once

// Any bytes as the data of an object: put into records of its fields, decoded and rendered.

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "analysis/render/renderer.h"
#include "base/text.h"
#include "document/ports.h"
#include "fuzz_file.h"

namespace folioscope::test {

class SilentNodes final : public NodeSink {
public:
    void SetNodeText(std::string_view) override {}
    void ShowResName(std::string_view) override {}
    void SetUnread() override {}
    void MarkNodeInvalid() override {}
    void AddContentMessage(std::string_view) override {}
};

// Category and type of a field.
using FieldId = std::uint16_t;

// The first byte says how: its three lowest bits are the number of cuts, the others the first of the fields, which take
// turns. A field holds at most 32,759 bytes.
inline std::vector<std::uint8_t> AsRecords(std::span<const std::uint8_t> data, std::span<const FieldId> fields)
{
    constexpr std::size_t kIntroducer = 8, kMostData = 32'759;
    std::vector<std::uint8_t> file;
    if (data.empty()) return file;
    const std::size_t pieces = (data[0] & 7u) + 1;
    std::size_t turn = data[0] >> 3;
    data = data.subspan(1);
    const std::size_t size = std::clamp<std::size_t>((data.size() + pieces - 1) / pieces, 1, kMostData);
    do {
        const auto piece = data.first(std::min(size, data.size()));
        const std::size_t length = piece.size() + kIntroducer;
        const FieldId field = fields[turn++ % fields.size()];
        for (const std::size_t byte : {std::size_t{0x5A}, length >> 8, length & 0xFF, std::size_t{0xD3},
                                       std::size_t{field} >> 8, std::size_t{field} & 0xFF})
            file.push_back(static_cast<std::uint8_t>(byte));
        file.insert(file.end(), 3, 0);
        file.insert(file.end(), piece.begin(), piece.end());
        data = data.subspan(piece.size());
    } while (!data.empty());
    return file;
}

inline void CheckElements(const clsAFPFunctions& afp)
{
    constexpr std::size_t kMostABadByteMakes = 32, kMostOfAField = 64;
    std::size_t most = static_cast<std::size_t>(afp.Reader().FieldLength()) * kMostABadByteMakes + kMostOfAField;
    FUZZ_CHECK(afp.List().Elements().size() <= most);
    FUZZ_CHECK(afp.CarryOverBytes >= 0 && afp.CarryOverBytes <= 0xFFFF);
    for (const Element& element : afp.List().Elements())
        FUZZ_CHECK(afp.List().SequenceOf(element).size() <= ElementList::kLongestSequence);
}

inline void CheckText(Renderer& renderer, const ElementList& elements)
{
    renderer.text.Clear();
    renderer.RenderStructuredField(elements);
    FUZZ_CHECK(renderer.IndentText.empty());
    FUZZ_CHECK(renderer.text.Position() <= PropertyText::kCapacity);
    FUZZ_CHECK(Utf16Length(renderer.text.Text()) < PropertyText::kCapacity);
}

// Decodes and renders the records, those too that a run leaves for later.
inline void RunItems(const std::uint8_t* data, std::size_t size, std::span<const FieldId> fields)
{
    const std::vector<std::uint8_t> bytes = AsRecords({data, size}, fields);
    const FuzzFile file(bytes.data(), bytes.size());
    clsAFPFunctions afp;
    afp.InitializeProcessing2(file.Path(), {});
    afp.SetPorts(Decoders());
    const Settings settings;
    SilentNodes nodes;
    Renderer renderer(Labels(static_cast<Language>(size % 3 + 1)), settings, NumberStyle(), nodes);
    renderer.ports = Renderers();
    if (afp.OpenAFPFile() != kOpen) return;
    std::int32_t processed = 0;
    for (std::size_t records = 0; afp.GetNextRecord(processed, false) == kRecord; ++records) {
        FUZZ_CHECK(records <= bytes.size());
        afp.AnalyzeRecord();
        CheckElements(afp);
        CheckText(renderer, afp.List());
        if (afp.List().Find(Key::Unread) == nullptr) continue;
        afp.List().ClearCollections();
        afp.AnalyzeSpecificRecord();
        CheckElements(afp);
        CheckText(renderer, afp.List());
    }
    afp.CloseAFPFile();
}

}  // namespace folioscope::test
