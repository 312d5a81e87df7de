// Any bytes as a gathered object: decoded as a colour management resource and as metadata, and told. Both end, in
// bounded memory, and come to the same a second time.

#include <cstddef>
#include <string>

#include "analysis/decode/clsAFPFunctions.h"
#include "base/text.h"
#include "colour/cmr_decode.h"
#include "colour/cmr_render.h"
#include "colour/metadata_decode.h"
#include "fuzz_file.h"

using namespace folioscope;

namespace {

constexpr std::size_t kMostText = 64u << 20;

class Deaf final : public NodeSink {
public:
    void SetNodeText(std::string_view) override {}
    void ShowResName(std::string_view) override {}
    void SetUnread() override {}
    void MarkNodeInvalid() override {}
    void AddContentMessage(std::string_view) override {}
};

std::string Told(clsAFPFunctions& afp)
{
    const Settings settings;
    Deaf sink;
    Renderer renderer(Labels(Language::English), settings, {}, sink);
    renderer.ports.ColourResource = RenderColorResource;
    renderer.RenderStructuredField(afp.List());
    FUZZ_CHECK(renderer.IndentText.empty());
    for (const PropertyText* text : {&renderer.text, &renderer.deferredText}) {
        FUZZ_CHECK(text->Position() <= PropertyText::kCapacity);
        FUZZ_CHECK(WellFormed(text->Text()) == text->Text());
    }
    return std::string(renderer.text.Text()) + std::string(renderer.deferredText.Text());
}

std::string Decoded(clsAFPFunctions& afp, void (*decode)(clsAFPFunctions&))
{
    afp.List().ClearCollections();
    decode(afp);
    FUZZ_CHECK(afp.List().SequenceCount() <= ElementList::kLongestSequence);
    FUZZ_CHECK(afp.List().Pool().size() <= kMostText);
    return Told(afp);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    clsAFPFunctions afp;
    afp.ObjectBuffer.assign(data, data + size);
    const std::string colours = Decoded(afp, DecodeColorResource), metadata = Decoded(afp, DecodeMetadata);
    FUZZ_CHECK(Decoded(afp, DecodeColorResource) == colours);
    FUZZ_CHECK(Decoded(afp, DecodeMetadata) == metadata);
    return 0;
}
