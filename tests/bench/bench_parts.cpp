// What the parts cost: conversion, numbers, text keeping, the walk of a record. Figures for the eye of who changes
// them; programs.sh measures whole programs against yardsticks.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

#include "analysis/render/property_text.h"
#include "base/numbers.h"
#include "codepages/clsCPConversions.h"
#include "codepages/system_page.h"
#include "document/document.h"
#include "document/text_store.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"

namespace folioscope {

namespace {

class NullSink final : public DumpSink {
public:
    FileFailure Write(std::string_view bytes) override
    {
        benchmark::DoNotOptimize(bytes.data());
        return {};
    }
};

void ServiceCreation(benchmark::State& state)
{
    for (auto _ : state) {
        clsCPConversions conversions;
        benchmark::DoNotOptimize(conversions);
    }
}
BENCHMARK(ServiceCreation);

void ConvertArray(benchmark::State& state)
{
    clsCPConversions conversions;
    const std::vector<std::uint8_t> source(4096, 0xC1);
    std::vector<std::uint8_t> target;
    for (auto _ : state) benchmark::DoNotOptimize(conversions.ConvertCPArray(500, 1252, source, target));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(source.size()));
}
BENCHMARK(ConvertArray);

void EncodeInSystemPage(benchmark::State& state)
{
    std::string text, out;
    while (text.size() < 4096) text += state.range(0) != 0 ? "Straße nach Köln " : "Road to Cologne ";
    for (auto _ : state) {
        out.clear();
        AppendInSystemPage(text, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(EncodeInSystemPage)->Arg(0)->Arg(1);

void FormatGrouped(benchmark::State& state)
{
    const NumberStyle style;
    std::string out;
    std::int64_t value = 0;
    for (auto _ : state) {
        out.clear();
        AppendFormatted(out, value += 7919, Picture::Grouped, style);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(FormatGrouped);

void KeepTexts(benchmark::State& state)
{
    const auto distinct = static_cast<std::size_t>(state.range(0));
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < distinct; ++i) texts.push_back("Name of a page " + std::to_string(i));
    TextStore store;
    std::size_t next = 0;
    for (auto _ : state) benchmark::DoNotOptimize(store.Keep(texts[next = (next + 1) % distinct]));
}
BENCHMARK(KeepTexts)->Arg(16)->Arg(65'536);

void AppendLines(benchmark::State& state)
{
    PropertyText text;
    for (auto _ : state) {
        text.Clear();
        for (int i = 0; i < 100; ++i) text.Append("Base unit X axis: 10 Inch\r\n");
        benchmark::DoNotOptimize(text.Text().data());
    }
    state.SetItemsProcessed(state.iterations() * 100);
}
BENCHMARK(AppendLines);

// A file of named groups with contents in them, in memory all the time.
std::string GroupsFile(int groups)
{
    test::AfpFile file;
    for (int i = 0; i < groups; ++i) {
        const test::Bytes name = test::Ebcdic8("G" + std::to_string(i));
        file.Add("BNG", name)
            .Add("NOP", test::Ebcdic("content"))
            .Add("TLE")
            .Add("PTX", test::Zeros(120))
            .Add("ENG", name);
    }
    return file.Content();
}
constexpr int kGroups = 10'000, kRecordsPerGroup = 5;

void RunFile(benchmark::State& state)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("groups.afp", GroupsFile(kGroups));
    for (auto _ : state) {
        MessageList messages;
        RunHost host;
        Document document(Settings(), NumberStyle(), messages, host);
        benchmark::DoNotOptimize(document.ProcessAFPFile(path));
    }
    state.SetItemsProcessed(state.iterations() * kGroups * kRecordsPerGroup);
}
BENCHMARK(RunFile)->Unit(benchmark::kMillisecond);

void DumpFileText(benchmark::State& state)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("groups.afp", GroupsFile(kGroups));
    MessageList messages;
    RunHost host;
    Document document(Settings(), NumberStyle(), messages, host);
    document.ProcessAFPFile(path);
    std::uint64_t bytes = 0;
    for (auto _ : state) {
        NullSink sink;
        bytes = document.WriteDump(sink, state.range(0) != 0 ? DumpEncoding::SystemPage : DumpEncoding::Utf8).bytes;
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}
BENCHMARK(DumpFileText)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace folioscope

BENCHMARK_MAIN();
