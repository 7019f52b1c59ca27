#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "support/OtherProcess.h"
#include "support/System.h"

namespace lithmark::tests {

bool SystemHas(Ability) {
    return true;
}

const char* ReasonWithout(Ability) {
    return "";
}

bool IsRoot() {
    return ::geteuid() == 0;
}

void SetVariable(const char* name, const std::optional<std::string>& value) {
    if (value)
        ::setenv(name, value->c_str(), 1);
    else
        ::unsetenv(name);
}

void MakeLarge(const std::string& path, std::uint64_t bytes) {
    std::filesystem::resize_file(path, bytes);
}

void MakePipe(const std::string& path) {
    constexpr mode_t kOfTheUser = 0600;
    ASSERT_EQ(::mkfifo(path.c_str(), kOfTheUser), 0) << path;
}

std::optional<int> RunInACopy(const std::function<int()>& action, std::optional<std::uint64_t> largestFile) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (largestFile) {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{*largestFile, *largestFile};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        ::_exit(action());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

void EndAtOnce(int status) {
    ::_exit(status);
}

// The sanitizers need memory of their own, more than any limit that would tell something.
LittleMemory::LittleMemory(std::uint64_t bytes) {
    rlimit before{};
    ::getrlimit(RLIMIT_AS, &before);
    before_ = before.rlim_cur;
#ifndef LITHMARK_SANITIZE
    const rlimit little{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_AS, &little);
#else
    static_cast<void>(bytes);
#endif
}

LittleMemory::~LittleMemory() {
    rlimit limit{};
    ::getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = before_;
    ::setrlimit(RLIMIT_AS, &limit);
}

int OwnProcess() {
    return ::getpid();
}

void KillProcess(int process) {
    ::kill(process, SIGKILL);
}

bool ProcessRuns(int process) {
    return ::kill(process, 0) == 0;
}

namespace {

void EndAndAwait(int process, int signal) {
    if (process <= 0) return;
    ::kill(process, signal);
    ::waitpid(process, nullptr, 0);
}

}  // namespace

OtherProcess::OtherProcess(const std::function<void()>& action) {
    int ready[2];
    EXPECT_EQ(::pipe(ready), 0);
    process_ = ::fork();
    if (process_ == 0) {
        action();
        EXPECT_EQ(::write(ready[1], "x", 1), 1);
        for (;;) ::pause();
    }
    char byte = 0;
    EXPECT_EQ(::read(ready[0], &byte, 1), 1);
    ::close(ready[0]);
    ::close(ready[1]);
}

void OtherProcess::Kill() {
    EndAndAwait(process_, SIGKILL);
    process_ = 0;
}

void OtherProcess::AskToEnd() {
    EndAndAwait(process_, SIGTERM);
    process_ = 0;
}

namespace {

std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

}  // namespace

int RunProgram(const ProgramRun& run) {
    // Root may write everywhere, unless this one ability is taken from it.
    const bool dropped = run.WithoutRights && IsRoot();
    std::string line = dropped ? "setpriv --bounding-set=-dac_override --inh-caps=-dac_override env " : "";
    line += run.Runner;
    for (const auto& [name, value] : run.Variables) line += name + "=" + Quoted(value) + " ";
    line += Quoted(run.Program);
    for (const std::string& word : run.Words) line += " " + Quoted(word);
    line += " >" + Quoted(run.Out) + " 2>" + Quoted(run.Err) + " </dev/null";
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace lithmark::tests
