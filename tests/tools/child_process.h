#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace folioscope::test {

// How a program is started. What isn't said is as in a script: nothing to read, two pipes that are read.
struct Call {
    std::vector<std::string> words = {};    // the program's path and its arguments
    std::optional<std::string> input = {};  // bytes that come through a pipe
    std::string inputFile = "/dev/null";
    std::string outputFile = {}, errorFile = {};               // appended to in place of a pipe
    int output = -1, error = -1;                               // handles in place of a pipe, such as a terminal's
    std::vector<int> closed = {};                              // standard handles that the program doesn't get
    std::optional<std::vector<std::string>> environment = {};  // NAME=value; none: the one of the test
    std::string folder = {};
    unsigned long mostMemory = 0, longestFile = 0;  // bytes of address space, bytes of a file; 0: no limit
    int ignoredSignal = 0;
};

// How it has ended and what it wrote into the pipes.
struct Ended {
    int status = -1;  // exit status; -1: a signal has ended it
    int signal = 0;
    std::string out, err;
};

class ChildProcess {
public:
    explicit ChildProcess(const Call& call);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();  // ends it if it still runs

    std::string ReadSome(std::size_t count);  // of its output
    void CloseOutput();                       // as a reader does that has seen enough
    void Send(int signal) const;
    bool Runs() const;
    Ended Wait();

private:
    void Exchange(Ended& ended);
    void WriteInput();

    pid_t id_ = -1;
    std::string input_;
    int in_ = -1, out_ = -1, err_ = -1;
};

inline Ended RunToEnd(const Call& call) { return ChildProcess(call).Wait(); }

}  // namespace folioscope::test
