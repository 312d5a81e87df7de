#include "child_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace folioscope::test {

namespace {

constexpr int kNotStarted = 127;

struct Pipe {
    int read = -1, write = -1;
};

Pipe MakePipe()
{
    std::array<int, 2> handles;
    if (::pipe2(handles.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    return {handles[0], handles[1]};
}

void CloseHandle(int& handle)
{
    if (handle >= 0) ::close(handle);
    handle = -1;
}

std::vector<char*> Pointers(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

// The rest runs in the child.

void Need(bool done)
{
    if (!done) ::_exit(kNotStarted);
}

void Become(int handle, int from) { Need(from >= 0 && ::dup2(from, handle) == handle); }

void BecomeFile(int handle, const std::string& path, int flags)
{
    Become(handle, ::open(path.c_str(), flags | O_CLOEXEC, 0666));
}

void Limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit limit = {most, most};
    Need(most == 0 || ::setrlimit(resource, &limit) == 0);
}

void SetOutput(int handle, const std::string& file, int given, const Pipe& pipe)
{
    if (!file.empty()) return BecomeFile(handle, file, O_WRONLY | O_CREAT | O_APPEND);
    Become(handle, given >= 0 ? given : pipe.write);
}

[[noreturn]] void RunProgram(Call call, const Pipe& in, const Pipe& out, const Pipe& err)
{
    if (call.input)
        Become(STDIN_FILENO, in.read);
    else
        BecomeFile(STDIN_FILENO, call.inputFile, O_RDONLY);
    SetOutput(STDOUT_FILENO, call.outputFile, call.output, out);
    SetOutput(STDERR_FILENO, call.errorFile, call.error, err);
    for (const int handle : call.closed) ::close(handle);
    Need(call.folder.empty() || ::chdir(call.folder.c_str()) == 0);
    Limit(RLIMIT_AS, call.mostMemory);
    Limit(RLIMIT_FSIZE, call.longestFile);
    // A test may run where some are ignored, as in the background of a script.
    for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM, SIGXFSZ}) std::signal(signal, SIG_DFL);
    if (call.ignoredSignal != 0) std::signal(call.ignoredSignal, SIG_IGN);
    const auto words = Pointers(call.words);
    if (call.environment) {
        const auto environment = Pointers(*call.environment);
        ::execve(words[0], words.data(), environment.data());
    } else {
        ::execv(words[0], words.data());
    }
    ::_exit(kNotStarted);
}

}  // namespace

ChildProcess::ChildProcess(const Call& call) : input_(call.input.value_or(""))
{
    std::signal(SIGPIPE, SIG_IGN);  // a program may end before it has read all of its input
    Pipe in = MakePipe(), out = MakePipe(), err = MakePipe();
    id_ = ::fork();
    if (id_ < 0) throw std::runtime_error("no process");
    if (id_ == 0) RunProgram(call, in, out, err);
    for (int* handle : {&in.read, &out.write, &err.write}) CloseHandle(*handle);
    in_ = in.write;
    out_ = out.read;
    err_ = err.read;
    if (input_.empty()) CloseHandle(in_);
}

ChildProcess::~ChildProcess()
{
    if (id_ > 0) {
        Send(SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }
    for (int* handle : {&in_, &out_, &err_}) CloseHandle(*handle);
}

std::string ChildProcess::ReadSome(std::size_t count)
{
    std::string bytes(count, '\0');
    const auto got = ::read(out_, bytes.data(), bytes.size());
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return bytes;
}

void ChildProcess::CloseOutput() { CloseHandle(out_); }

void ChildProcess::Send(int signal) const { ::kill(id_, signal); }

bool ChildProcess::Runs() const
{
    siginfo_t info = {};
    return ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == 0;
}

Ended ChildProcess::Wait()
{
    Ended ended;
    Exchange(ended);
    int status = 0;
    if (::waitpid(id_, &status, 0) != id_) throw std::runtime_error("lost the program");
    id_ = -1;
    if (WIFEXITED(status)) ended.status = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) ended.signal = WTERMSIG(status);
    if (ended.status == kNotStarted) throw std::runtime_error("the program could not be started");
    return ended;
}

void ChildProcess::Exchange(Ended& ended)
{
    std::array<char, 65'536> piece;
    while (out_ >= 0 || err_ >= 0) {
        std::array<pollfd, 3> waiting = {{{in_, POLLOUT, 0}, {out_, POLLIN, 0}, {err_, POLLIN, 0}}};
        if (::poll(waiting.data(), waiting.size(), -1) < 0 && errno != EINTR) throw std::runtime_error("no poll");
        if (waiting[0].revents != 0) WriteInput();
        const auto take = [&](const pollfd& ready, int& handle, std::string& to) {
            if (ready.revents == 0) return;
            const auto got = ::read(handle, piece.data(), piece.size());
            if (got > 0) to.append(piece.data(), static_cast<std::size_t>(got));
            if (got == 0 || (got < 0 && errno != EINTR)) CloseHandle(handle);
        };
        take(waiting[1], out_, ended.out);
        take(waiting[2], err_, ended.err);
    }
    CloseHandle(in_);
}

void ChildProcess::WriteInput()
{
    const auto put = ::write(in_, input_.data(), std::min<std::size_t>(input_.size(), 4096));
    if (put > 0) input_.erase(0, static_cast<std::size_t>(put));
    if ((put < 0 && errno != EINTR) || input_.empty()) CloseHandle(in_);
}

}  // namespace folioscope::test
