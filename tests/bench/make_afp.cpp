// Writes large AFP files for measurements. The same arguments give the same bytes, and the file has exactly the size
// asked for: what the last whole piece leaves over is filled with NOP records.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "invoice_run.h"
#include "record_builder.h"
#include "templates.h"

namespace folioscope::bench {
namespace {

constexpr char kUsage[] = "usage: make_afp SIZE FILE [--seed N] [--packaging 5a|bare|rdw2|rdw4|crlf|lf] [--faults]\n"
                          "                [--statements | --small | --deep DEPTH | --noise | --tiny FIELD |\n"
                          "                 --texts LINES | --descriptors LINES]\n"
                          "\n"
                          "  SIZE          bytes, or with K M G (powers of 1000) or KiB MiB GiB (powers of 1024)\n"
                          "  --statements  a print run of invoices in named page groups; this is the default\n"
                          "  --small       groups of records of 8 to 30 bytes\n"
                          "  --deep DEPTH  towers of named groups, each inside the one before it\n"
                          "  --noise       invoices with stretches of noise between them, about half of the file\n"
                          "  --tiny FIELD  nothing but records of 8 bytes of this field, such as EPG\n"
                          "  --texts LINES nothing but PTX records of so many lines of text, each record another text\n"
                          "  --descriptors LINES\n"
                          "                the same lines behind descriptors (PTD-2)\n"
                          "  --faults      adds a record with unknown values to each page, small group or level\n";

enum class Kind : std::uint8_t { Statements, Small, Deep, Noise, Tiny, Texts, Descriptors };

// Nothing but records of one size.
bool IsOfOneSize(Kind kind) { return kind == Kind::Tiny || kind == Kind::Texts || kind == Kind::Descriptors; }

struct Options {
    std::uint64_t size = 0, seed = 1;
    std::string path;
    const Packaging* packaging = &kPackagings[0];
    Kind kind = Kind::Statements;
    std::size_t depth = 0, lines = 0;
    std::uint16_t tiny = 0;
    bool faults = false;
};

// ------------------------------------------------------------------------------------------------ command line

std::optional<std::uint64_t> ParseNumber(std::string_view text)
{
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<std::uint64_t> ParseSize(std::string_view text)
{
    struct Unit {
        std::string_view suffix;
        std::uint64_t bytes;
    };
    // clang-format off
    static constexpr Unit kSizeUnits[] = {
        {"KiB", 1ULL << 10}, {"MiB", 1ULL << 20}, {"GiB", 1ULL << 30},
        {"K",   1'000},      {"M",   1'000'000},  {"G",   1'000'000'000},
    };
    // clang-format on
    std::uint64_t factor = 1;
    for (const auto [suffix, bytes] : kSizeUnits) {
        if (!text.ends_with(suffix)) continue;
        factor = bytes;
        text.remove_suffix(suffix.size());
        break;
    }
    const auto number = ParseNumber(text);
    if (!number || *number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) / factor)
        return std::nullopt;
    return *number * factor;
}

// Takes an option and its value off the list; what remains are SIZE and FILE.
class CommandLine {
public:
    CommandLine(int argc, char** argv) : words_(argv + 1, argv + argc) {}
    bool Flag(std::string_view name)
    {
        const auto found = std::find(words_.begin(), words_.end(), name);
        if (found == words_.end()) return false;
        words_.erase(found);
        return true;
    }
    std::optional<std::string> Value(std::string_view name)
    {
        const auto found = std::find(words_.begin(), words_.end(), name);
        if (found == words_.end() || found + 1 == words_.end()) return std::nullopt;
        std::string value = found[1];
        words_.erase(found, found + 2);
        return value;
    }
    const std::vector<std::string>& Rest() const { return words_; }

private:
    std::vector<std::string> words_;
};

std::nullopt_t Reject(const char* what, std::string_view value)
{
    std::fprintf(stderr, "make_afp: %s: %.*s\n", what, static_cast<int>(value.size()), value.data());
    return std::nullopt;
}

// The number of kinds that were asked for, or nothing if the value of one of them is bad.
std::optional<int> ParseKind(CommandLine& words, Options& options)
{
    constexpr std::uint64_t kDeepest = 10'000'000, kMostLines = 500;
    int kinds = 0;
    const auto choose = [&](Kind kind) {
        options.kind = kind;
        ++kinds;
    };
    if (words.Flag("--statements")) choose(Kind::Statements);
    if (words.Flag("--small")) choose(Kind::Small);
    if (words.Flag("--noise")) choose(Kind::Noise);
    if (const auto text = words.Value("--deep")) {
        const auto depth = ParseNumber(*text);
        if (!depth || *depth == 0 || *depth > kDeepest) return Reject("no depth from 1 to 10000000", *text);
        options.depth = static_cast<std::size_t>(*depth);
        choose(Kind::Deep);
    }
    for (const auto& [word, kind] :
         {std::pair{"--texts", Kind::Texts}, std::pair{"--descriptors", Kind::Descriptors}}) {
        const auto text = words.Value(word);
        if (!text) continue;
        const auto lines = ParseNumber(*text);
        if (!lines || *lines == 0 || *lines > kMostLines) return Reject("no count of lines from 1 to 500", *text);
        options.lines = static_cast<std::size_t>(*lines);
        choose(kind);
    }
    if (const auto text = words.Value("--tiny")) {
        options.tiny = PairOf(*text);
        if (options.tiny == 0) return Reject("no field of this name", *text);
        choose(Kind::Tiny);
    }
    return kinds;
}

std::optional<Options> ParseOptions(CommandLine words)
{
    Options options;
    if (const auto text = words.Value("--seed")) {
        const auto seed = ParseNumber(*text);
        if (!seed) return Reject("no seed", *text);
        options.seed = *seed;
    }
    if (const auto text = words.Value("--packaging")) {
        options.packaging = std::find_if(std::begin(kPackagings), std::end(kPackagings),
                                         [&](const Packaging& packaging) { return packaging.name == *text; });
        if (options.packaging == std::end(kPackagings)) return Reject("no packaging", *text);
    }
    options.faults = words.Flag("--faults");
    const auto kinds = ParseKind(words, options);
    if (!kinds) return std::nullopt;
    if (*kinds > 1 || (options.faults && IsOfOneSize(options.kind)) || words.Rest().size() != 2) {
        std::fputs(kUsage, stderr);
        return std::nullopt;
    }
    const auto size = ParseSize(words.Rest()[0]);
    if (!size) return Reject("no size", words.Rest()[0]);
    options.size = *size;
    options.path = words.Rest()[1];
    return options;
}

// ------------------------------------------------------------------------------------------------------ output

// After a failure, which it reports, it takes bytes without writing them.
class OutputFile {
public:
    explicit OutputFile(const std::string& path)
        : path_(path), file_(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))
    {
        buffer_.reserve(kBufferBytes);
        if (file_ < 0) Fail();
    }
    ~OutputFile() { Close(); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Put(std::span<const std::uint8_t> bytes)
    {
        size_ += bytes.size();
        if (buffer_.size() + bytes.size() > kBufferBytes) Flush();
        if (bytes.size() > kBufferBytes) return Write(bytes);
        buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
    }
    bool Close()
    {
        Flush();
        if (file_ >= 0 && close(file_) != 0) Fail();
        file_ = -1;
        return !failed_;
    }
    std::uint64_t Size() const { return size_; }

private:
    static constexpr std::size_t kBufferBytes = 1 << 20;

    void Flush()
    {
        Write(buffer_);
        buffer_.clear();
    }
    void Write(std::span<const std::uint8_t> bytes)
    {
        while (!bytes.empty() && !failed_) {
            const ssize_t written = write(file_, bytes.data(), bytes.size());
            if (written < 0) return Fail();
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
    }
    void Fail()
    {
        if (!failed_) std::perror(path_.c_str());
        failed_ = true;
    }

    std::string path_;
    int file_;
    bool failed_ = false;
    std::uint64_t size_ = 0;
    Bytes buffer_;
};

struct Totals {
    std::uint64_t records = 0, pages = 0, noise = 0;
};

// Exactly that many bytes of NOP records: none, or at least one record without a body.
void PutFiller(OutputFile& out, const Packaging& packaging, std::uint64_t amount, Totals& totals)
{
    constexpr std::uint64_t kLongestFiller = 4000;
    const std::uint64_t overhead = packaging.Overhead();
    const Bytes blanks(kLongestFiller, kToEbcdic[' ']);
    while (amount > 0) {
        std::uint64_t step = std::min(amount, kLongestFiller);
        if (amount > step && amount - step < overhead) step = amount - overhead;
        RecordBuilder record(packaging);
        record.Put("NOP", std::span(blanks).first(static_cast<std::size_t>(step - overhead)));
        out.Put(record.bytes());
        amount -= step;
        ++totals.records;
    }
}

// ------------------------------------------------------------------------------------------------------- files

struct Plan {
    Template head, tail;
    std::vector<Template> templates;
    std::vector<Bytes> noise;
};

std::vector<Template> MakeTemplates(const Options& options, Dice& dice)
{
    switch (options.kind) {
    case Kind::Small: return SmallTemplates(*options.packaging, dice, options.faults);
    case Kind::Deep: return {Tower(*options.packaging, options.depth, options.faults)};
    default: return InvoiceTemplates(*options.packaging, dice, options.faults);
    }
}

Template Head(const Options& options, Dice& dice)
{
    RecordBuilder head(*options.packaging);
    head.Put("BPF", Body().Name("INVOICES"));
    if (options.kind == Kind::Statements || options.kind == Kind::Noise) PutResourceGroup(head, dice);
    Body document = Body().Name("MONTHLY").Zeros(2).Triplet(0x01, Body().U2(0).U2(500));
    head.Put("BDT", document.Add(FullName(0x01, "Invoices of run " + std::to_string(options.seed))));
    return Template(head);
}

Template Tail(const Options& options)
{
    RecordBuilder tail(*options.packaging);
    tail.Put("EDT", Body().Name("MONTHLY"));
    tail.Put("EPF", Body().Name("INVOICES"));
    return Template(tail);
}

Plan MakePlan(const Options& options, Dice& dice)
{
    Template head = Head(options, dice);
    Plan plan{std::move(head), Tail(options), MakeTemplates(options, dice), {}};
    if (options.kind == Kind::Noise) {
        const std::size_t sum = std::accumulate(plan.templates.begin(), plan.templates.end(), std::size_t{0},
                                                [](std::size_t all, const Template& one) { return all + one.Size(); });
        plan.noise = NoiseStretches(dice, 2 * sum / plan.templates.size());
    }
    return plan;
}

// Writes templates in a shuffled order, each with a number of its own, until the next one doesn't fit any more.
void PutTemplates(OutputFile& out, Plan& plan, std::uint64_t end, std::uint64_t overhead, Dice& dice, Totals& totals)
{
    std::vector<std::size_t> order(plan.templates.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (std::uint64_t serial = 1;;) {
        dice.Shuffle(order);
        for (const std::size_t index : order) {
            Template& piece = plan.templates[index];
            const Bytes* noise = plan.noise.empty() ? nullptr : &dice.Pick(plan.noise);
            const std::uint64_t behind = out.Size() + piece.Size() + (noise ? noise->size() : 0);
            if (behind > end || (behind < end && end - behind < overhead)) return;
            out.Put(piece.Numbered(serial++));
            if (noise) out.Put(*noise);
            totals.noise += noise ? noise->size() : 0;
            totals.records += piece.records();
            totals.pages += piece.pages();
        }
    }
}

// Bytes that a file has at the least; a larger one can be filled up if it has room for a record without a body.
std::uint64_t LeastSize(const Options& options, const Plan& plan)
{
    const std::uint64_t tower = options.kind == Kind::Deep ? plan.templates.front().Size() : 0;
    return plan.head.Size() + tower + plan.tail.Size();
}

void PutRun(OutputFile& out, const Options& options, Plan& plan, Dice& dice, Totals& totals)
{
    const std::uint64_t end = options.size - plan.tail.Size();
    out.Put(plan.head.Numbered(0));
    PutTemplates(out, plan, end, options.packaging->Overhead(), dice, totals);
    PutFiller(out, *options.packaging, end - out.Size(), totals);
    out.Put(plan.tail.Numbered(0));
    totals.records += plan.head.records() + plan.tail.records();
}

// Lines of a text: each sets the position and the font. The number makes them another text.
void AppendLines(Body& body, std::size_t lines, std::uint64_t number)
{
    body.U1(0x2B).U1(0xD3);
    for (std::size_t line = 0; line < lines; ++line) {
        std::string text = "Item 000000 of the list, with a price of 00.00";
        for (std::size_t at = 11, rest = number; at > 5; rest /= 10) text[--at] = static_cast<char>('0' + rest % 10);
        body.Sequence(0xC6, Body().U2(300)).Sequence(0xD2, Body().U2(200 + 40 * line));
        body.Sequence(0xF0, Body().U1(1 + line % 3)).Sequence(0xDA, Body().Text(text));
    }
    body.U1(2).U1(0xF8);
}

Body BodyOfOneSize(const Options& options, std::uint64_t number)
{
    Body body;
    if (options.kind == Kind::Tiny) return body;
    if (options.kind == Kind::Descriptors) body.Zeros(2).U2(14400).U2(14400).U3(100).U3(200).Zeros(2);
    AppendLines(body, options.lines, number);
    return body;
}

FieldName FieldOfOneSize(const Options& options)
{
    if (options.kind == Kind::Texts) return "PTX";
    return options.kind == Kind::Descriptors ? FieldName("PTD-2") : FieldName(options.tiny);
}

// A size that isn't a whole number of records ends in a NOP that is a little longer.
void PutRecordsOfOneSize(OutputFile& out, const Options& options, std::uint64_t recordBytes, Totals& totals)
{
    constexpr std::uint64_t kBlockRecords = 8192;
    RecordBuilder block(*options.packaging);
    for (std::uint64_t i = 0; i < kBlockRecords; ++i) block.Put(FieldOfOneSize(options), BodyOfOneSize(options, i));
    const std::uint64_t rest = options.size % recordBytes;
    std::uint64_t count = options.size / recordBytes - (rest != 0 ? 1 : 0);
    totals.records = count;
    while (count > 0) {
        const std::uint64_t now = std::min(count, kBlockRecords);
        out.Put(std::span(block.bytes()).first(static_cast<std::size_t>(now * recordBytes)));
        count -= now;
    }
    if (rest != 0) PutFiller(out, *options.packaging, recordBytes + rest, totals);
}

bool FitsSize(const Options& options, std::uint64_t least, std::uint64_t next)
{
    if (options.size == least || options.size >= next) return true;
    std::fprintf(stderr, "make_afp: the smallest sizes for this are %llu and from %llu on\n",
                 static_cast<unsigned long long>(least), static_cast<unsigned long long>(next));
    return false;
}

bool Report(const OutputFile& out, const Totals& totals)
{
    const auto number = [](std::uint64_t value) { return static_cast<unsigned long long>(value); };
    const auto framed = static_cast<double>(out.Size() - totals.noise);
    std::fprintf(stderr, "%llu bytes, %llu records, %.1f bytes a record, %llu pages, %llu bytes of noise\n",
                 number(out.Size()), number(totals.records), framed / static_cast<double>(totals.records),
                 number(totals.pages), number(totals.noise));
    return true;
}

bool MakeFile(const Options& options)
{
    const std::uint64_t overhead = options.packaging->Overhead();
    Totals totals;
    if (IsOfOneSize(options.kind)) {
        const std::uint64_t recordBytes = overhead + BodyOfOneSize(options, 0).Size();
        if (!FitsSize(options, recordBytes, recordBytes)) return false;
        OutputFile out(options.path);
        PutRecordsOfOneSize(out, options, recordBytes, totals);
        return out.Close() && Report(out, totals);
    }
    Dice dice(options.seed);
    Plan plan = MakePlan(options, dice);
    const std::uint64_t least = LeastSize(options, plan);
    if (!FitsSize(options, least, least + overhead)) return false;
    OutputFile out(options.path);
    PutRun(out, options, plan, dice, totals);
    return out.Close() && Report(out, totals);
}

}  // namespace
}  // namespace folioscope::bench

int main(int argc, char** argv)
{
    const auto options = folioscope::bench::ParseOptions(folioscope::bench::CommandLine(argc, argv));
    if (!options) return 2;
    return folioscope::bench::MakeFile(*options) ? 0 : 1;
}
