// A program of its own, since it counts every allocation that the program makes.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "analysis/record_walk.h"
#include "analysis/render/renderer.h"

namespace {

std::size_t allocations = 0;

void* Allocate(std::size_t size)
{
    ++allocations;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

}  // namespace

// The other forms of new and delete, aligned ones aside, come down to these.
void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace folioscope {
namespace {

using test::AfpFile;
using test::Bytes;
using test::Ebcdic8;
using test::Raw;
using test::RecordWalk;

constexpr int kRounds = 1'000, kRecordsOfARound = 8;

class NoSink : public NodeSink {
public:
    void SetNodeText(std::string_view) override {}
    void ShowResName(std::string_view) override {}
    void SetUnread() override {}
    void MarkNodeInvalid() override {}
    void AddContentMessage(std::string_view) override {}
};

// The longest records come in the first round.
AfpFile LongRun()
{
    AfpFile file;
    for (int round = 0; round < kRounds; ++round) {
        file.Add("BPG", Ebcdic8("PAGE0001"));
        file.Add({"BAG", Raw({4, 0xC1, 0xC2, 0xC3}) + Ebcdic8("GROUP"), 0x80});
        file.Add("PTX", Bytes(400, 'x'));
        file.Add("NOP", Bytes(round == 0 ? 3'000 : 100, '\xC1'));
        file.Add({"IPD", Bytes(200, 'x') + Raw({3}), 0x08});
        file.Add("IPG", Ebcdic8("OTHER"));
        file.Add("EAG");
        file.Add("EPG", Ebcdic8("PAGE0001"));
    }
    return file;
}

TEST(Allocations, AreCounted)
{
    const std::size_t before = allocations;
    ::operator delete(::operator new(16));
    ::operator delete[](::operator new[](16));
    std::string text(100, 'x');
    EXPECT_EQ(allocations - before, 3u) << text;
}

TEST(Allocations, AWarmWalkMakesNone)
{
    RecordWalk walk(LongRun(), {.lngInputCP = 37, .lngInputCPNOP = 273, .lngInputCPTLE = 819});
    std::size_t before = 0;
    std::int32_t processed = 0;
    int records = 0;
    for (; walk.afp.GetNextRecord(processed, false) == kRecord; ++records) {
        if (records == 2 * kRecordsOfARound) before = allocations;
        walk.afp.AnalyzeRecord();
    }
    EXPECT_EQ(allocations - before, 0u);
    EXPECT_EQ(records, kRounds * kRecordsOfARound);
}

TEST(Allocations, AWarmWalkWithItsTextsMakesNone)
{
    RecordWalk walk(LongRun());
    const Settings settings;
    NoSink sink;
    Renderer renderer(Labels(Language::English), settings, {}, sink);
    std::size_t before = 0, characters = 0;
    std::int32_t processed = 0;
    for (int records = 0; walk.afp.GetNextRecord(processed, false) == kRecord; ++records) {
        if (records == 2 * kRecordsOfARound) before = allocations;
        walk.afp.AnalyzeRecord();
        renderer.text.Clear();
        renderer.RenderStructuredField(walk.afp.List());
        characters += renderer.text.Text().size();
    }
    EXPECT_EQ(allocations - before, 0u);
    EXPECT_GT(characters, std::size_t{kRounds} * 100);
}

TEST(Allocations, AWarmSecondPassMakesNone)
{
    RecordWalk walk(LongRun());
    std::vector<std::int32_t> starts;
    for (int records = 0; records < kRounds * kRecordsOfARound; ++records) {
        walk.Next();
        starts.push_back(static_cast<std::int32_t>(walk.Number(Key::SFStart)));
    }
    walk.afp.SetPorts({.Sequences = [](clsAFPFunctions& afp) {
        afp.List().ClearSequenceElements();
        for (int i = 0; i < 300; ++i) afp.AddSequenceElement(Element::Int32(Key::Length, i));
        afp.List().PublishSequence(Key::ArrayElementType, Key::ArrayElementValue);
    }});
    std::size_t before = 0;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        if (i == 2 * kRecordsOfARound) before = allocations;
        walk.afp.List().ClearCollections();
        walk.afp.SetNextRecord(starts[i]);
        walk.afp.AnalyzeSpecificRecord();
    }
    EXPECT_EQ(allocations - before, 0u);
}

}  // namespace
}  // namespace folioscope
