// Reader, analysis, rendering and dump over any bytes: all of them end, the tree is sound, and the dump is the same
// when it is made a second time.

#include <cstddef>

#include "base/text.h"
#include "document/document.h"
#include "fuzz_file.h"

using namespace folioscope;

namespace {

class TextSink final : public DumpSink {
public:
    FileFailure Write(std::string_view bytes) override
    {
        text += bytes;
        return {};
    }
    std::string text;
};

void CheckTree(const StructureTree& tree)
{
    const NodeStore& nodes = tree.Nodes();
    std::uint32_t expected = NodeStore::kRoot;
    for (TreeWalk walk(nodes); !walk.AtEnd(); walk.Next()) {
        const std::uint32_t node = walk.Node();
        FUZZ_CHECK(node == expected++);
        FUZZ_CHECK(nodes[node].parent < node);
        FUZZ_CHECK(nodes.End(node) > node && nodes.End(node) <= nodes.Size());
        if (node != NodeStore::kRoot) FUZZ_CHECK(nodes.End(nodes[node].parent) >= nodes.End(node));
        if (nodes[node].red) FUZZ_CHECK(nodes[node].parent == 0 || nodes[nodes[node].parent].red);
    }
    FUZZ_CHECK(expected == nodes.Size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const test::FuzzFile file(data, size);
    MessageList messages;
    RunHost host;
    Settings settings;
    settings.Language = static_cast<std::int32_t>(size % 3) + 1;
    Document document(settings, NumberStyle(), messages, host);
    FUZZ_CHECK(document.ProcessAFPFile(file.Path(), "fuzz"));
    CheckTree(document.Tree());
    // The texts of colour resources come behind that of their data, and have a room of their own.
    for (std::uint32_t node = 1; node < document.Tree().Nodes().Size(); ++node)
        FUZZ_CHECK(Utf16Length(document.GetNodeContents_strContent(node)) < 3 * PropertyText::kCapacity);

    // Told from memory or not, the text is the same.
    MessageList plainMessages;
    Document plain(settings, NumberStyle(), plainMessages, host);
    plain.TellRepeatedFromMemory(false);
    FUZZ_CHECK(plain.ProcessAFPFile(file.Path(), "fuzz"));
    FUZZ_CHECK(plainMessages.Size() == messages.Size());

    TextSink first, second, page, plainText;
    FUZZ_CHECK(plain.WriteDump(plainText, DumpEncoding::Utf8).Whole());
    FUZZ_CHECK(document.WriteDump(first, DumpEncoding::Utf8).Whole());
    FUZZ_CHECK(first.text == plainText.text);
    CheckTree(document.Tree());
    FUZZ_CHECK(document.WriteDump(second, DumpEncoding::Utf8).Whole());
    // Marks that the first dump has set can stand in front of names that the first dump had written before.
    if (!messages.HasFaults()) FUZZ_CHECK(first.text == second.text);
    FUZZ_CHECK(document.WriteDump(page, DumpEncoding::SystemPage).Whole());
    return 0;
}
