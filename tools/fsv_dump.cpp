// fsv-dump: the dump, the tree and the messages of AFP files, in batch.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <unistd.h>

#include "base/text.h"
#include "base/version.h"
#include "document/document.h"
#include "document/dump_file.h"
#include "dump_input.h"
#include "dump_options.h"

namespace folioscope {

namespace {

enum ExitStatus { kNoFaults = 0, kFaults = 1, kWrongUse = 2, kInputFailed = 3, kOutputFailed = 4 };

volatile std::sig_atomic_t caught = 0;

struct FailureRow {
    int number;
    Label text;
};

// clang-format off
constexpr FailureRow kFailureTexts[] = {
    {kFileNotFound.number,     U("There is no such file. Check its name and path.")},
    {kDeviceFailure.number,    U("The file can not be read or written. It has changed meanwhile, or its device has failed.")},
    {kDiskFull.number,         U("The disk is full. Make room, or write to another disk.")},
    {kTooManyFiles.number,     U("Too many files are open. Close some of them.")},
    {kPermissionDenied.number, U("Access is denied. Check the rights on the file and its folder.")},
    {kPathNotFound.number,     U("This is no file: a folder stands there, or a folder of the path is missing.")},
};
// clang-format on

Label TextOf(const FileFailure& failure)
{
    for (const auto& [number, text] : kFailureTexts)
        if (number == failure.number) return text;
    return kFailureTexts[1].text;
}

// Standard output. A reader that goes away ends the output, and that is no failure.
class StandardOutput final : public DumpSink {
public:
    FileFailure Write(std::string_view bytes) override
    {
        while (!bytes.empty() && !closed_) {
            const auto count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0 && errno != EPIPE) return FailureOf(errno);
            if (count < 0)
                closed_ = true;
            else
                bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return closed_ ? kDeviceFailure : FileFailure{};
    }
    bool Closed() const { return closed_; }

private:
    bool closed_ = false;
};

// Shows a line of progress on a terminal, and turns a signal into the document's cancel flag.
class TerminalHost final : public RunHost {
public:
    TerminalHost(std::string_view name, bool quiet) : name_(name), quiet_(quiet || ::isatty(STDERR_FILENO) == 0) {}
    ~TerminalHost() override { Wipe(); }

    Document* document = nullptr;

    void OperationStarts(std::int64_t lngMaximum) override { maximum_ = std::max<std::int64_t>(lngMaximum, 1); }
    void Progress(std::int64_t lngValue) override { value_ = lngValue; }
    void OperationEnds() override { Wipe(); }
    void GiveWay() override
    {
        if (caught != 0 && document != nullptr) document->SetOperationInteruptedFlag(true);
        const auto now = std::chrono::steady_clock::now();
        if (quiet_ || now < next_) return;
        next_ = now + std::chrono::milliseconds(200);
        shown_ = true;
        std::fprintf(stderr, "\r%s: %d %%", name_.c_str(), static_cast<int>(value_ * 100 / maximum_));
    }

private:
    void Wipe()
    {
        if (shown_) std::fprintf(stderr, "\r\33[K");
        shown_ = false;
    }

    std::string name_;
    bool quiet_, shown_ = false;
    std::int64_t maximum_ = 1, value_ = 0;
    std::chrono::steady_clock::time_point next_ = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
};

// One line a node. Deep levels show their number in place of ever more blanks.
class TreePrinter {
public:
    TreePrinter(const Document& document, DumpSink& sink) : document_(document), tree_(document.Tree()), sink_(sink) {}

    FileFailure Print()
    {
        FileFailure failure;
        for (TreeWalk walk(tree_.Nodes()); !walk.AtEnd() && !failure && caught == 0; walk.Next()) {
            PutNode(walk.Node(), walk.Depth());
            if (out_.size() >= kBuffer) failure = Flush();
        }
        return failure ? failure : Flush();
    }

private:
    static constexpr std::size_t kBuffer = 256u << 10;
    static constexpr std::uint32_t kDeepestIndented = 100;

    void PutNode(std::uint32_t node, std::uint32_t depth)
    {
        out_.append(2 * std::min(depth, kDeepestIndented), ' ');
        if (depth > kDeepestIndented) out_ += "[" + std::to_string(depth) + "] ";
        text_.clear();
        tree_.AppendNodeText(text_, node);
        out_ += OnOneLine(WithoutTags(text_));
        out_ += '\t';
        const std::int32_t start = document_.GetNodeContents_lngStart(node);
        if (start > 0) AppendNumber(out_, std::int64_t{start} - 1);
        out_ += '\t';
        if (start > 0) AppendNumber(out_, std::int64_t{document_.GetNodeContents_lngLength(node)});
        if (tree_.Nodes()[node].red) out_ += "\t!";
        out_ += '\n';
    }

    FileFailure Flush()
    {
        const FileFailure failure = sink_.Write(out_);
        out_.clear();
        return failure;
    }

    const Document& document_;
    const StructureTree& tree_;
    DumpSink& sink_;
    std::string out_, text_;
};

class Batch {
public:
    explicit Batch(const DumpOptions& options)
        : options_(options), labels_(options.settings.InterfaceLanguage())
    {
    }

    int Run()
    {
        int status = kNoFaults;
        for (const std::string& file : options_.files) {
            status = std::max(status, TakeFile(file));
            if (caught != 0 || standardOutput_.Closed()) break;
        }
        return status;
    }

private:
    int TakeFile(const std::string& file)
    {
        DumpInput input;
        if (const auto failure = input.Open(file)) return Tell(file, labels_[TextOf(failure)], kInputFailed);
        MessageList messages;
        TerminalHost host(file, options_.messages);
        Document document(options_.settings, NumberStyle(), messages, host);
        host.document = &document;
        if (!document.ProcessAFPFile(input.Path(), input.Spooled() ? std::string_view(file) : std::string_view()) ||
            document.Outcome() == RunOutcome::ReadFailed)
            return Tell(file, WhyNot(document), kInputFailed);
        const int status = Write(file, document);
        if (options_.messages) PrintMessages(file, messages);
        return std::max(status, messages.HasFaults() ? int{kFaults} : int{kNoFaults});
    }

    std::string_view WhyNot(const Document& document) const
    {
        if (document.Outcome() == RunOutcome::TooBig)
            return labels_[U("The file is larger than 2,147,483,647 bytes. Split it, and dump the parts.")];
        return labels_[TextOf(document.Failure())];
    }

    int Write(const std::string& file, Document& document)
    {
        if (options_.tree) return Outcome("-", file, {{}, TreePrinter(document, standardOutput_).Print(), false, 0});
        if (!options_.save && options_.output.empty())
            return Outcome("-", file, document.WriteDump(standardOutput_, DumpEncoding::Utf8));
        const std::string path = options_.save ? file + ".txt" : options_.output;
        if (IsSameFile(path, file)) return Tell(path, labels_[U("This is the file to be read. It is never changed; choose another name.")], kOutputFailed);
        DumpFile output;
        DumpResult result;
        result.output = output.Create(path);
        if (!result.output) result = document.WriteDump(output, DumpEncoding::SystemPage);
        if (result.Whole()) result.output = output.Commit();
        return Outcome(path, file, result);
    }

    int Outcome(const std::string& path, const std::string& file, const DumpResult& result)
    {
        if (result.input) return Tell(file, labels_[TextOf(result.input)], kInputFailed);
        if (result.output && !standardOutput_.Closed()) return Tell(path, labels_[TextOf(result.output)], kOutputFailed);
        return kNoFaults;
    }

    int Tell(std::string_view file, std::string_view text, int status) const
    {
        std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(file.size()), file.data(), static_cast<int>(text.size()),
                     text.data());
        return status;
    }

    void PrintMessages(const std::string& file, const MessageList& messages) const
    {
        std::string out;
        for (std::size_t i = 0; i < messages.Size(); ++i) {
            out += NameOf(messages[i].source);
            out += '\t';
            out += NameOf(messages[i].severity);
            out += '\t';
            out += OnOneLine(messages.Description(messages[i]));
            if (options_.files.size() > 1) out += '\t' + file;
            out += '\n';
            if (out.size() < 65'536 && i + 1 < messages.Size()) continue;
            std::fwrite(out.data(), 1, out.size(), stderr);
            out.clear();
        }
    }

    const DumpOptions& options_;
    Labels labels_;
    StandardOutput standardOutput_;
};

void Catch(int signal)
{
    caught = signal;
}

int Main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, Catch);
    const DumpOptions options = ParseOptions(argc, argv);
    const Labels labels(options.settings.InterfaceLanguage());
    if (!options.fault.empty()) {
        std::fprintf(stderr, "fsv-dump: %s\n%.*s\n", options.fault.c_str(),
                     static_cast<int>(labels[U("Try fsv-dump --help.")].size()), labels[U("Try fsv-dump --help.")].data());
        return kWrongUse;
    }
    if (options.help || options.version) {
        const std::string text = options.help ? HelpText(labels) : "fsv-dump " + std::string(kVersion) + "\n";
        return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0 ? kNoFaults : kOutputFailed;
    }
    const int status = Batch(options).Run();
    if (caught != 0) {
        // The caller wants to see what has ended the program.
        std::signal(caught, SIG_DFL);
        std::raise(caught);
    }
    return status;
}

}  // namespace

}  // namespace folioscope

int main(int argc, char** argv)
{
    return folioscope::Main(argc, argv);
}
