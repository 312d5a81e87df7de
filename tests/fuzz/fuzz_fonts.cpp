// Form, page definition and font fields around any bytes: their analysis ends, what they leave for each other can't
// lead it astray, and no list or text grows without bound. Fields that the reader doesn't know are analysed where they
// stand.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/dispatch.h"
#include "document/document.h"
#include "fuzz_file.h"

using namespace folioscope;

namespace {

constexpr std::string_view kFields[] = {"FNC", "FNI", "FNM", "FNN", "FNO", "FNP",   "FND",   "CPC", "CPI",
                                        "CPD", "CFC", "CFI", "CCP", "LND", "RCD",   "XMD",   "LNC", "FDS",
                                        "MFC", "MCC", "MMC", "PMC", "PFC", "PGP-1", "PGP-2", "FGD", "DXD"};

constexpr std::size_t kMostRecords = 48;
constexpr std::size_t kMostPool = 64u << 20;

class TextSink final : public DumpSink {
public:
    FileFailure Write(std::string_view bytes) override
    {
        text += bytes;
        return {};
    }
    std::string text;
};

class NoTree final : public NodeSink {
public:
    void SetNodeText(std::string_view) override {}
    void ShowResName(std::string_view) override {}
    void SetUnread() override {}
    void MarkNodeInvalid() override {}
    void AddContentMessage(std::string_view) override {}
};

struct Records {
    std::string file;
    std::vector<std::int32_t> starts;  // file positions of the length fields, from 1
};

std::uint16_t IdOf(std::string_view name)
{
    const auto fields = Fields();
    return std::find_if(fields.begin(), fields.end(), [&](const auto& row) { return row.NodeText == name; })->id;
}

void AddRecord(Records& records, std::string_view name, const std::string& data)
{
    const auto put = [&](std::size_t value) { records.file += static_cast<char>(value); };
    const std::size_t length = data.size() + 8, id = IdOf(name);
    put(0x5A);
    records.starts.push_back(static_cast<std::int32_t>(records.file.size()) + 1);
    for (const std::size_t byte : {length >> 8, length, std::size_t{0xD3}, id >> 8, id}) put(byte & 0xFF);
    records.file.append(3, '\0');
    records.file += data;
}

// A field is a byte that picks it, a length byte and so many data bytes. A length from 0xF0 on makes a long field of
// the next 16 bytes, again and again.
Records RecordsOf(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kLong = 0xF0, kLongStep = 2000, kPattern = 16;
    Records records;
    std::size_t at = 0;
    while (at + 2 <= size && records.starts.size() < kMostRecords) {
        const std::string_view name = kFields[data[at] % std::size(kFields)];
        const std::size_t told = data[at + 1];
        at += 2;
        const std::size_t taken = std::min(told < kLong ? told : kPattern, size - at);
        std::string body(reinterpret_cast<const char*>(data) + at, taken);
        at += taken;
        if (told >= kLong && taken > 0) {
            const std::string pattern = body;
            while (body.size() < (told - kLong + 1) * kLongStep) body += pattern;
        }
        AddRecord(records, name, body);
    }
    return records;
}

// The lines of the record in hand. An array that was cut can leave its last group open.
void Render(Renderer& renderer, ElementList& list)
{
    bool cut = false;
    for (const Element& element : list.Elements()) {
        FUZZ_CHECK(list.SequenceOf(element).size() <= ElementList::kLongestSequence);
        cut = cut || list.SequenceOf(element).size() == ElementList::kLongestSequence;
    }
    FUZZ_CHECK(list.Pool().size() <= kMostPool);
    renderer.text.Clear();
    renderer.IndentText.clear();
    renderer.RenderStructuredField(list);
    FUZZ_CHECK(renderer.text.Position() <= PropertyText::kCapacity);
    FUZZ_CHECK(cut || renderer.IndentText.empty());
}

void AnalyzeEach(const Records& records, const std::string& path)
{
    const Settings settings;
    NoTree tree;
    Renderer renderer(Labels(Language::English), settings, NumberStyle(), tree);
    renderer.ports = Renderers();
    clsAFPFunctions afp;
    afp.SetPorts(Decoders());
    afp.InitializeProcessing2(path, {});
    FUZZ_CHECK(afp.OpenAFPFile() == kOpen);
    for (const std::int32_t start : records.starts) {
        afp.List().ClearCollections();
        FUZZ_CHECK(!afp.SetNextRecord(start));
        afp.AnalyzeRecord();
        FUZZ_CHECK(afp.Field() != kFieldCount);
        Render(renderer, afp.List());
        if (afp.List().Find(Key::Unread) == nullptr) continue;
        afp.List().ClearCollections();
        afp.AnalyzeSpecificRecord();
        Render(renderer, afp.List());
    }
    afp.CloseAFPFile();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Records records = RecordsOf(data, size);
    const test::FuzzFile file(reinterpret_cast<const std::uint8_t*>(records.file.data()), records.file.size());
    AnalyzeEach(records, file.Path());

    MessageList messages;
    RunHost host;
    const Settings settings;
    Document document(settings, NumberStyle(), messages, host);
    FUZZ_CHECK(document.ProcessAFPFile(file.Path(), "fuzz"));
    TextSink first, second;
    FUZZ_CHECK(document.WriteDump(first, DumpEncoding::Utf8).Whole());
    FUZZ_CHECK(document.WriteDump(second, DumpEncoding::Utf8).Whole());
    if (!messages.HasFaults()) FUZZ_CHECK(first.text == second.text);
    return 0;
}
