// The floor under the measurements: what this machine needs to walk a file's records when nothing is decoded.
//
//   read    the records are found and counted
//   nodes   and each gets a node of 24 bytes, with folders from Begin to End
//   render  and each is written to standard output in the manner of a dump: a PTX as a line for each control
//           sequence, every other record as name, position, length and body in hexadecimal

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "afp_facts.h"

namespace folioscope::bench {
namespace {

using Byte = std::uint8_t;

constexpr std::size_t kChunkBytes = 10'240'000, kLongestField = 65535, kLongestFraming = 7, kIntroducer = 8;
constexpr Byte kBegin = 0xA8, kEnd = 0xA9;
constexpr std::uint16_t kTextPair = PairOf("PTX");

struct Record {
    const Byte* bytes;  // from the first length byte
    std::size_t length;
    std::uint64_t start;  // position of the first length byte in the file, from 1
    std::uint8_t row;     // of kFields, from 1
    Byte Category() const { return bytes[3]; }
    std::span<const Byte> Content() const { return std::span(bytes, length).subspan(std::min(length, kIntroducer)); }
};

// ----------------------------------------------------------------------------------------------------- reading

// One chunk of the file at a time.
class ChunkReader {
public:
    explicit ChunkReader(int file) : file_(file) {}
    // Keeps what lies behind the first `used` bytes of the chunk and reads more behind it, if there is more.
    void Refill(std::size_t used)
    {
        have_ -= used;
        base_ += used;
        std::memmove(buffer_.get(), buffer_.get() + used, have_);
        while (have_ < kChunkBytes && !ended_) {
            const ssize_t count = ::read(file_, buffer_.get() + have_, kChunkBytes - have_);
            ended_ = count <= 0;
            failed_ = failed_ || count < 0;
            if (count > 0) have_ += static_cast<std::size_t>(count);
        }
    }
    std::span<const Byte> Chunk() const { return {buffer_.get(), have_}; }
    std::uint64_t Base() const { return base_; }  // bytes of the file ahead of the chunk
    bool Ended() const { return ended_; }         // the chunk is the last one
    bool Failed() const { return failed_; }

private:
    int file_;
    std::unique_ptr<Byte[]> buffer_ = std::make_unique_for_overwrite<Byte[]>(kChunkBytes);
    std::size_t have_ = 0;
    std::uint64_t base_ = 0;
    bool ended_ = false, failed_ = false;
};

struct Framing {
    std::size_t prefix;     // record descriptor word and x'5A' ahead of a length field
    std::size_t delimiter;  // CR, LF or both behind a record
};

std::size_t PrefixOf(std::span<const Byte> head)
{
    const auto is = [&](std::size_t i, Byte value) { return i < head.size() && head[i] == value; };
    if (is(0, 0) && is(2, 0) && is(3, 0) && is(4, 0x5A) && is(5, 0)) return 5;
    if (is(0, 0) && is(2, 0x5A) && is(3, 0)) return 3;
    return is(0, 0x5A) ? 1 : 0;
}

std::uint8_t RowAt(const Byte* field)
{
    return field[2] == 0xD3 ? kRowOfPair[static_cast<std::size_t>(field[3] << 8 | field[4])] : std::uint8_t{0};
}

std::size_t LengthAt(const Byte* field) { return static_cast<std::size_t>(field[0] << 8 | field[1]); }

// The first record tells the framing of all.
Framing FramingOf(std::span<const Byte> head)
{
    const std::size_t prefix = PrefixOf(head);
    for (std::size_t at = prefix; at + kIntroducer <= head.size(); ++at) {
        if (RowAt(&head[at]) == 0) continue;
        const std::size_t behind = at + LengthAt(&head[at]);
        std::size_t delimiter = behind < head.size() && head[behind] == '\r' ? 1 : 0;
        if (behind + delimiter < head.size() && head[behind + delimiter] == '\n') ++delimiter;
        return {prefix, delimiter};
    }
    return {prefix, 0};
}

// Takes the records that begin in a chunk and returns how many of its bytes are used up. Behind `last` a field may
// not lie wholly in the chunk.
template <class Take>
std::size_t WalkChunk(std::span<const Byte> chunk, std::size_t from, std::size_t last, std::uint64_t base,
                      std::size_t framing, Take&& take)
{
    std::size_t at = from;
    while (at < last) {
        const Byte* field = &chunk[at];
        const std::uint8_t row = RowAt(field);
        if (row == 0) {
            ++at;
            continue;
        }
        const std::size_t length = LengthAt(field);
        if (length > chunk.size() - at) return chunk.size();
        take(Record{field, length, base + at + 1, row});
        at += std::max<std::size_t>(length + framing, 1);
    }
    return std::min(at, chunk.size());
}

// Calls take(record) for each record. What is no record is stepped over byte by byte.
template <class Take> void Walk(ChunkReader& in, Take&& take)
{
    constexpr std::size_t kMargin = kLongestField + kLongestFraming;
    in.Refill(0);
    const Framing framing = FramingOf(in.Chunk());
    for (std::size_t from = framing.prefix;;) {
        const std::size_t margin = in.Ended() ? kIntroducer - 1 : kMargin, have = in.Chunk().size();
        const std::size_t used = WalkChunk(in.Chunk(), from, have - std::min(have, margin), in.Base(),
                                           framing.prefix + framing.delimiter, take);
        if (in.Ended()) return;
        in.Refill(used);
        from = 0;
    }
}

// ------------------------------------------------------------------------------------------------------- nodes

// A node for each record and one for each folder, in blocks that never move.
class NodeTree {
public:
    void Take(const Record& record)
    {
        if (record.Category() == kBegin) {
            const std::uint32_t folder = count_;
            Add() = {0, Parent(), 0, 0, 0, 0, 0};
            open_.push_back(folder);
        }
        Add() = {static_cast<std::uint32_t>(record.start),  Parent(),   0, 0,
                 static_cast<std::uint16_t>(record.length), record.row, 0};
        if (record.Category() == kEnd && !open_.empty()) open_.pop_back();
    }

private:
    struct Node {
        std::uint32_t start, parent, end, text;
        std::uint16_t length, row;
        std::uint32_t caption;
    };
    static_assert(sizeof(Node) == 24);
    static constexpr std::size_t kBlockNodes = 1 << 16;

    std::uint32_t Parent() const { return open_.empty() ? 0 : open_.back(); }
    Node& Add()
    {
        if (count_ % kBlockNodes == 0) blocks_.push_back(std::make_unique_for_overwrite<Node[]>(kBlockNodes));
        return blocks_.back()[count_++ % kBlockNodes];
    }

    std::vector<std::unique_ptr<Node[]>> blocks_;
    std::vector<std::uint32_t> open_;
    std::uint32_t count_ = 0;
};

// ------------------------------------------------------------------------------------------------------- texts

// A buffer in front of standard output: what is put at Room() lies there after Done().
class TextOut {
public:
    char* Room(std::size_t count)
    {
        if (buffer_.size() - used_ < count) MakeRoom(count);
        return &buffer_[used_];
    }
    void Done(const char* behind) { used_ = static_cast<std::size_t>(behind - buffer_.data()); }
    void Flush()
    {
        for (std::size_t at = 0; at < used_ && !failed_;) {
            const ssize_t count = ::write(STDOUT_FILENO, &buffer_[at], used_ - at);
            failed_ = count < 0;
            if (count > 0) at += static_cast<std::size_t>(count);
        }
        written_ += used_;
        used_ = 0;
    }
    std::uint64_t Written() const { return written_; }
    bool Failed() const { return failed_; }

private:
    void MakeRoom(std::size_t count)
    {
        Flush();
        if (buffer_.size() < count) buffer_.resize(count);
    }

    std::vector<char> buffer_ = std::vector<char>(8 << 20);
    std::size_t used_ = 0;
    std::uint64_t written_ = 0;
    bool failed_ = false;
};

constexpr auto kHexDigits = [] {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::array<std::array<char, 2>, 256> digits{};
    for (std::size_t byte = 0; byte < 256; ++byte) digits[byte] = {kDigits[byte >> 4], kDigits[byte & 15]};
    return digits;
}();

// Each puts a text and returns the place behind it.
char* Put(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }

char* PutNumber(char* to, std::uint64_t value)
{
    constexpr int kLongestNumber = 20;
    return std::to_chars(to, to + kLongestNumber, value).ptr;
}

char* PutHex(char* to, std::span<const Byte> bytes)
{
    for (const Byte byte : bytes) to = std::copy(kHexDigits[byte].begin(), kHexDigits[byte].end(), to);
    return to;
}

struct SequenceName {
    Byte function;  // without the chaining bit
    std::string_view text;
};

// clang-format off
constexpr SequenceName kSequenceNames[] = {
    {0x74, "STC: Color: "},
    {0x76, "USC: Underscore: "},
    {0x80, "SEC: Color space: "},
    {0xC0, "SIM: Left margin: "},
    {0xC4, "SVI: Width of a variable space: "},
    {0xC6, "AMI: Set cursor to X position: "},
    {0xC8, "RMI: Move cursor in X direction: "},
    {0xD2, "AMB: Set cursor to Y position: "},
    {0xD4, "RMB: Move cursor in Y direction: "},
    {0xE4, "DIR: Rule to the right, length: "},
    {0xE6, "DBR: Rule downwards, length: "},
    {0xF0, "SCFL: Font: "},
    {0xF6, "STO: Orientation: "},
    {0xF8, "NOP: Comment: "},
};
// clang-format on

constexpr auto kTextOfFunction = [] {
    std::array<std::string_view, 256> texts;
    for (const auto [function, text] : kSequenceNames) texts[function] = texts[function + 1U] = text;
    return texts;
}();

class Renderer {
public:
    void Take(const Record& record)
    {
        if (record.Category() == kBegin) ++depth_;
        const bool text = record.row == kRowOfPair[kTextPair];
        char* to = out_.Room(kLongestHead + depth_ + 2 * record.length);
        to = PutHead(to, record, text ? "\r\n" : "\tx'");
        if (!text) to = Put(PutHex(to, record.Content()), "'\r\n");
        out_.Done(to);
        if (text) PutSequences(record.Content());
        if (record.Category() == kEnd && depth_ > 0) --depth_;
    }
    TextOut& Out() { return out_; }

private:
    char* PutHead(char* to, const Record& record, std::string_view end) const
    {
        to = PutIndent(Put(to, "     ---------\r\n"), "\t");
        to = Put(Put(to, kFields[record.row - 1].name), "\t");
        const auto start = static_cast<std::uint32_t>(record.start);
        const Byte position[] = {static_cast<Byte>(start >> 24), static_cast<Byte>(start >> 16),
                                 static_cast<Byte>(start >> 8), static_cast<Byte>(start)};
        to = Put(PutHex(to, position), " ");
        return Put(PutNumber(to, record.length), end);
    }
    char* PutIndent(char* to, std::string_view end) const
    {
        return Put(std::fill_n(to, depth_ > 0 ? depth_ - 1 : 0, '>'), end);
    }
    void PutSequences(std::span<const Byte> content)
    {
        bool chained = false;
        for (std::size_t at = 0; at + 2 <= content.size();) {
            if (!chained) {
                if (content[at] != 0x2B || content[at + 1] != 0xD3) return;
                at += 2;
            }
            const auto rest = content.subspan(at);
            if (rest.size() < 2 || rest[0] < 2 || rest[0] > rest.size()) return;
            char* to = PutIndent(out_.Room(kLongestSequence + depth_), "\t\t");
            to = Put(PutNumber(to, at), "\t");
            out_.Done(Put(PutSequence(to, rest[1], rest.subspan(2, rest[0] - 2U)), "\r\n"));
            chained = rest[1] & 1;
            at += rest[0];
        }
    }
    static char* PutSequence(char* to, Byte function, std::span<const Byte> parameters)
    {
        static constexpr Byte kTransparentData = 0xDA;
        if ((function & 0xFE) == kTransparentData) {
            to = Put(to, "TRN: \t\t");
            for (const Byte byte : parameters) *to++ = kToAscii[byte];
            return to;
        }
        const std::string_view text = kTextOfFunction[function];
        if (text.empty()) return Put(PutHex(Put(to, "Unknown control sequence x'"), {&function, 1}), "'");
        to = Put(to, text);
        if (parameters.size() >= 2) return PutNumber(to, static_cast<unsigned>(parameters[0] << 8 | parameters[1]));
        return parameters.empty() ? to : PutNumber(to, parameters[0]);
    }

    static constexpr std::size_t kLongestHead = 128, kLongestSequence = 320;
    TextOut out_;
    std::size_t depth_ = 0;
};

// -------------------------------------------------------------------------------------------------------- main

using Clock = std::chrono::steady_clock;

struct Figures {
    std::uint64_t records = 0, bytes = 0, text = 0;
    double seconds = 0;  // until all is read and written; what it holds is given back afterwards
    bool failed = false;
};

enum class Mode : std::uint8_t { Read, Nodes, Render };

std::optional<Mode> ModeOf(std::string_view word)
{
    if (word == "read") return Mode::Read;
    if (word == "nodes") return Mode::Nodes;
    if (word == "render") return Mode::Render;
    return std::nullopt;
}

Figures Run(Mode mode, int file, Clock::time_point started)
{
    ChunkReader in(file);
    std::array<std::uint64_t, std::size(kFields) + 1> counts{};
    NodeTree tree;
    std::optional<Renderer> renderer;
    const auto walk = [&](auto&& take) {
        Walk(in, [&](const Record& record) {
            ++counts[record.row];
            take(record);
        });
    };
    switch (mode) {
    case Mode::Read: walk([](const Record&) {}); break;
    case Mode::Nodes: walk([&](const Record& record) { tree.Take(record); }); break;
    case Mode::Render:
        renderer.emplace();
        walk([&](const Record& record) { renderer->Take(record); });
        renderer->Out().Flush();
        break;
    }
    Figures figures;
    figures.seconds = std::chrono::duration<double>(Clock::now() - started).count();
    for (const std::uint64_t count : counts) figures.records += count;
    figures.bytes = in.Base() + in.Chunk().size();
    figures.text = renderer ? renderer->Out().Written() : 0;
    figures.failed = in.Failed() || (renderer && renderer->Out().Failed());
    return figures;
}

void Report(std::string_view mode, const Figures& figures)
{
    const auto millionsPerSecond = [&](std::uint64_t count) {
        return static_cast<double>(count) / 1e6 / figures.seconds;
    };
    std::fprintf(stderr, "%.*s: %llu records, %.4f s, %.0f MB/s, %.2f M records/s, %.1f MB of text\n",
                 static_cast<int>(mode.size()), mode.data(), static_cast<unsigned long long>(figures.records),
                 figures.seconds, millionsPerSecond(figures.bytes), millionsPerSecond(figures.records),
                 static_cast<double>(figures.text) / 1e6);
}

}  // namespace
}  // namespace folioscope::bench

int main(int argc, char** argv)
{
    using namespace folioscope::bench;
    const auto mode = argc == 3 ? ModeOf(argv[1]) : std::nullopt;
    if (!mode) {
        std::fputs("usage: bare_walker read|nodes|render FILE\n", stderr);
        return 2;
    }
    const auto started = Clock::now();
    const int file = open(argv[2], O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        std::perror(argv[2]);
        return 1;
    }
    const Figures figures = Run(*mode, file, started);
    close(file);
    if (figures.failed) {
        std::fputs("bare_walker: reading or writing failed\n", stderr);
        return 1;
    }
    Report(argv[1], figures);
    return 0;
}
