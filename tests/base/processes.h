#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace folioscope::test {

// Sets or, without a value, takes away a variable of the environment for a while.
class ScopedVariable {
public:
    ScopedVariable(std::string name, const std::optional<std::string>& value) : name_(std::move(name))
    {
        if (const char* const old = std::getenv(name_.c_str())) old_ = old;
        Set(value);
    }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;
    ~ScopedVariable() { Set(old_); }

private:
    void Set(const std::optional<std::string>& value) const
    {
        if (value)
            ::setenv(name_.c_str(), value->c_str(), 1);
        else
            ::unsetenv(name_.c_str());
    }

    std::string name_;
    std::optional<std::string> old_;
};

class ScopedCurrentFolder {
public:
    explicit ScopedCurrentFolder(const std::string& path) : old_(std::filesystem::current_path())
    {
        std::filesystem::current_path(path);
    }
    ScopedCurrentFolder(const ScopedCurrentFolder&) = delete;
    ScopedCurrentFolder& operator=(const ScopedCurrentFolder&) = delete;
    ~ScopedCurrentFolder() { std::filesystem::current_path(old_); }

private:
    std::filesystem::path old_;
};

// Starts a child that ends with the function's result.
template <typename Function> pid_t StartChild(Function function)
{
    const pid_t child = ::fork();
    if (child == 0) ::_exit(function());
    return child;
}

// Doesn't take the result away.
inline bool IsRunning(pid_t child)
{
    siginfo_t info = {};
    return ::waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == 0;
}

// What the child returned, or -1 if it ended otherwise.
inline int ResultOf(pid_t child)
{
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

template <typename Function> int InChild(Function function) { return ResultOf(StartChild(function)); }

// In a child that permissions bind: root becomes nobody there.
template <typename Function> int AsOrdinaryUser(Function function)
{
    constexpr unsigned kNobody = 65534;
    return InChild([&] {
        if (::geteuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) return 255;
        return function();
    });
}

}  // namespace folioscope::test
