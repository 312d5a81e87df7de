// fsv-dump: the dump, the tree and the messages of AFP files, in batch.

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <optional>
#include <poll.h>
#include <sys/stat.h>
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

constexpr std::int64_t kLargeFile = 32 << 20;  // bytes; less is done before anybody looks

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

// Standard output or standard error. A reader that goes away ends the output, and that is no failure.
class StandardStream final : public DumpSink {
public:
    explicit StandardStream(int handle) : handle_(handle) {}

    FileFailure Write(std::string_view bytes) override
    {
        while (!bytes.empty() && !failure_) {
            const auto count = ::write(handle_, bytes.data(), bytes.size());
            if (count >= 0)
                bytes.remove_prefix(static_cast<std::size_t>(count));
            else if (errno == EAGAIN)
                WaitFor(handle_, POLLOUT);
            else if (errno != EINTR)
                Fail(errno);
        }
        return failure_;
    }
    bool Ended() const { return static_cast<bool>(failure_); }
    bool Failed() const { return Ended() && !closed_; }

private:
    void Fail(int systemError)
    {
        closed_ = systemError == EPIPE;
        failure_ = FailureOf(systemError);
    }

    int handle_;
    bool closed_ = false;
    FileFailure failure_;
};

volatile std::sig_atomic_t caught = 0;

void Catch(int signal) { caught = signal; }

// While it lives, the signals that end a program wait until a half-written file is cleared away. Then they end it.
class HeldSignals {
public:
    HeldSignals()
    {
        struct sigaction action = {};
        action.sa_handler = Catch;
        for (std::size_t i = 0; i < std::size(kSignals); ++i) {
            ::sigaction(kSignals[i], nullptr, &before_[i]);
            if (before_[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &action, nullptr);
        }
    }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals()
    {
        for (std::size_t i = 0; i < std::size(kSignals); ++i) ::sigaction(kSignals[i], &before_[i], nullptr);
        if (caught != 0) std::raise(caught);
    }

private:
    static constexpr int kSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};
    struct sigaction before_[std::size(kSignals)] = {};
};

// Shows a line of progress on a terminal, and turns a signal into the document's cancel flag.
class TerminalHost final : public RunHost {
public:
    TerminalHost(const std::string& name, std::int64_t fileSize)
        : name_(OnOneLine(name)), shows_(fileSize >= kLargeFile && ::isatty(STDERR_FILENO) == 1)
    {
    }
    ~TerminalHost() override { Wipe(); }

    Document* document = nullptr;

    void KeepQuiet() { shows_ = false; }

    void OperationStarts(std::int64_t lngMaximum) override { maximum_ = std::max<std::int64_t>(lngMaximum, 1); }
    void OperationEnds() override { Wipe(); }
    void GiveWay() override
    {
        if (caught != 0 && document != nullptr) document->SetOperationInteruptedFlag(true);
    }
    void Progress(std::int64_t lngValue) override
    {
        const int percent = static_cast<int>(lngValue * 100 / maximum_);
        if (!shows_ || percent == shown_) return;
        shown_ = percent;
        // A name that is too long for the line is cut off there: the terminal doesn't wrap meanwhile.
        std::fprintf(stderr, "\r\33[?7l%3d %%  %s\33[?7h", percent, name_.c_str());
    }

private:
    void Wipe()
    {
        if (shown_ >= 0) std::fputs("\r\33[K", stderr);
        shown_ = -1;
    }

    std::string name_;
    bool shows_;
    int shown_ = -1;  // percent; -1: there is no line
    std::int64_t maximum_ = 1;
};

// One line a node. Deep levels show their number in place of ever more blanks.
class TreePrinter {
public:
    TreePrinter(const Document& document, DumpSink& sink) : document_(document), tree_(document.Tree()), sink_(sink) {}

    FileFailure Print()
    {
        FileFailure failure;
        for (TreeWalk walk(tree_.Nodes()); !walk.AtEnd() && !failure; walk.Next()) {
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
        out_.append(std::size_t{2} * std::min(depth, kDeepestIndented), ' ');
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
        : options_(options), labels_(options.settings.InterfaceLanguage()), inputs_(options.files)
    {
    }

    int Run()
    {
        int status = kNoFaults;
        for (const std::string& file : options_.files) {
            status = std::max(status, TakeFile(file));
            if (standardOutput_.Ended()) break;
        }
        return standardError_.Failed() ? int{kOutputFailed} : status;
    }

    int Print(const std::string& text) { return OutputStatus(kStandardStream, standardOutput_.Write(text)); }

private:
    int TakeFile(const std::string& file)
    try {
        const std::string path = OutputPath(file);
        if (inputs_.Hold(path))
            return Tell(path == kStandardStream ? file : path,
                        U("This is the file to be read. It is never changed; choose another name."), kOutputFailed);
        DumpInput input;
        if (const auto failure = input.Open(file)) return Tell(file, TextOf(failure), kInputFailed);
        if (input.Size() == 0) return Tell(file, U("The file is empty."), kInputFailed);
        MessageList messages;
        TerminalHost host(file, input.Size());
        Document document(options_.settings, NumberStyle(), messages, host);
        host.document = &document;
        if (!document.ProcessAFPFile(input.Path(), input.ShownName()) || document.Outcome() == RunOutcome::ReadFailed)
            return Tell(file, WhyNot(document), kInputFailed);
        if (path == kStandardStream && ::isatty(STDOUT_FILENO) == 1) host.KeepQuiet();
        const int status = Write(file, path, document);
        if (options_.messages) PrintMessages(file, messages);
        if (document.SFCount() == 0)
            return Tell(file, U("No structured field was found. Check that this is an AFP file."),
                        std::max<int>(status, kFaults));
        return std::max(status, messages.HasFaults() ? int{kFaults} : int{kNoFaults});
    } catch (const std::bad_alloc&) {
        return Tell(file, U("There is not enough memory for this file."), kInputFailed);
    }

    std::string OutputPath(const std::string& file) const
    {
        if (options_.save) return file + ".txt";
        return options_.output.empty() ? kStandardStream : options_.output;
    }

    static Label WhyNot(const Document& document)
    {
        if (document.Outcome() == RunOutcome::TooBig)
            return U("The file is larger than 2,147,483,647 bytes. Split it, and dump the parts.");
        return TextOf(document.Failure());
    }

    int Write(const std::string& file, const std::string& path, Document& document)
    {
        if (options_.tree) return OutputStatus(path, TreePrinter(document, standardOutput_).Print());
        const DumpResult result = path != kStandardStream ? WriteFile(path, document)
                                  : options_.output.empty()
                                      ? document.WriteDump(standardOutput_, DumpEncoding::Utf8)
                                      : document.WriteDump(standardOutput_, DumpEncoding::SystemPage);
        if (result.input) return Tell(file, TextOf(result.input), kInputFailed);
        return OutputStatus(path, result.output);
    }

    static DumpResult WriteFile(const std::string& path, Document& document)
    {
        // What isn't replaced but written straight leaves nothing behind, and may keep the program waiting for long.
        struct stat status = {};
        const bool straight = ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
        std::optional<HeldSignals> held;
        if (!straight) held.emplace();
        DumpFile file;
        DumpResult result;
        result.output = file.Create(path);
        if (!result.output) result = document.WriteDump(file, DumpEncoding::SystemPage);
        if (result.Whole()) result.output = file.Commit();
        return result;
    }

    int OutputStatus(const std::string& path, const FileFailure& failure)
    {
        if (!failure || (path == kStandardStream && !standardOutput_.Failed())) return kNoFaults;
        if (path != kStandardStream) return Tell(path, TextOf(failure), kOutputFailed);
        return Tell(std::string(labels_[U("standard output")]), TextOf(failure), kOutputFailed);
    }

    int Tell(const std::string& name, Label text, int status)
    {
        standardError_.Write(OnOneLine(name) + ": " + std::string(labels_[text]) + "\n");
        return status;
    }

    void PrintMessages(const std::string& file, const MessageList& messages)
    {
        constexpr std::size_t kBuffer = 64u << 10;
        const std::string behind = options_.files.size() > 1 ? '\t' + OnOneLine(file) + '\n' : "\n";
        std::string out;
        for (std::size_t i = 0; i < messages.Size() && !standardError_.Ended(); ++i) {
            out += NameOf(messages[i].source);
            out += '\t';
            out += NameOf(messages[i].severity);
            out += '\t';
            out += OnOneLine(messages.Description(messages[i]));
            out += behind;
            if (out.size() < kBuffer && i + 1 < messages.Size()) continue;
            standardError_.Write(out);
            out.clear();
        }
    }

    const DumpOptions& options_;
    Labels labels_;
    InputFiles inputs_;
    StandardStream standardOutput_{STDOUT_FILENO}, standardError_{STDERR_FILENO};
};

// A standard stream that the caller has closed would be the next file that is opened, and get what isn't meant for it.
// In its place stands one that can't be used.
void HoldStandardStreams()
{
    for (const int handle : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(handle, F_GETFD) < 0) static_cast<void>(::open("/dev/null", handle == 0 ? O_WRONLY : O_RDONLY));
}

int Main(int argc, char** argv)
{
    HoldStandardStreams();
    // Both are told by the write that fails.
    for (const int signal : {SIGPIPE, SIGXFSZ}) std::signal(signal, SIG_IGN);
    const DumpOptions options = ParseOptions(argc, argv);
    const Labels labels(options.settings.InterfaceLanguage());
    if (!options.fault.empty()) {
        const std::string text = "fsv-dump: " + options.fault + "\n" + std::string(labels[U("Try fsv-dump --help.")]);
        std::fprintf(stderr, "%s\n", text.c_str());
        return kWrongUse;
    }
    Batch batch(options);
    if (options.help) return batch.Print(HelpText(labels));
    if (options.version) return batch.Print("fsv-dump " + std::string(kVersion) + "\n");
    return batch.Run();
}

}  // namespace

}  // namespace folioscope

int main(int argc, char** argv) { return folioscope::Main(argc, argv); }
