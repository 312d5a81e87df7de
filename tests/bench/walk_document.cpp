// Runs and dumps one file as fsv-dump does, and tells what it took:
//
//   walk_document [--run-only] FILE
//
// The dump goes to standard output. One line goes to standard error: seconds of the run and of the dump, bytes of the
// dump, records, the anonymous memory at the end of the run and at its highest during the dump, and the bytes that the
// dump has read.

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <unistd.h>

#include "document/document.h"

namespace {

using namespace folioscope;

long AnonymousBytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("RssAnon:")) return std::stol(line.substr(8)) * 1024;
    return 0;
}

long ReadBytes()
{
    std::ifstream io("/proc/self/io");
    for (std::string line; std::getline(io, line);)
        if (line.starts_with("rchar:")) return std::stol(line.substr(6));
    return 0;
}

class OutputSink final : public DumpSink {
public:
    FileFailure Write(std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const auto count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
            if (count < 0) return FailureOf(errno);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return {};
    }
};

// Looks at the memory now and then while a dump goes on.
class WatchingHost final : public RunHost {
public:
    void GiveWay() override
    {
        if (++calls_ % 4096 == 0) highest = std::max(highest, AnonymousBytes());
    }
    long highest = 0;

private:
    long calls_ = 0;
};

double Since(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv)
{
    const bool runOnly = argc == 3 && std::strcmp(argv[1], "--run-only") == 0;
    if (argc != 2 && !runOnly) {
        std::fprintf(stderr, "usage: walk_document [--run-only] FILE\n");
        return 2;
    }
    MessageList messages;
    WatchingHost host;
    auto start = std::chrono::steady_clock::now();
    Document document(Settings(), NumberStyle(), messages, host);
    if (!document.ProcessAFPFile(argv[argc - 1])) return 3;
    const double run = Since(start);
    const long anonymous = AnonymousBytes();
    double dump = 0;
    long read = 0;
    DumpResult result;
    host.highest = anonymous;
    if (!runOnly) {
        OutputSink sink;
        const long before = ReadBytes();
        start = std::chrono::steady_clock::now();
        result = document.WriteDump(sink, DumpEncoding::Utf8);
        dump = Since(start);
        read = ReadBytes() - before;
    }
    host.highest = std::max(host.highest, AnonymousBytes());
    std::fprintf(stderr, "run %.4f dump %.4f text %llu records %d anonymous %ld dumped %ld read %ld\n", run, dump,
                 static_cast<unsigned long long>(result.bytes), document.SFCount(), anonymous, host.highest, read);
    return result.Whole() ? 0 : 4;
}
