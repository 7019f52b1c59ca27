// The program as the operating system runs it, and its user.
#pragma once

#include <cstdio>
#include <ctime>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lithmark::platform {

int ProcessId() noexcept;
// The path of the running program; "" where the system does not tell it.
std::string ProgramFile();
// The words of the command line, in UTF-8.
std::vector<std::string> Arguments(int argc, char** argv);
// A variable of the environment; nothing when it is not set.
std::optional<std::string> Variable(const char* name);

std::string UserName();
std::string MachineName();

// The folders that all programs of a user share: where they keep settings, what they were at, and where the user keeps
// documents; they need not exist. With a "/" at the end; "" where the system names none.
std::string HomeFolder();
std::string SettingsFolder();
std::string StateFolder();
std::string DocumentsFolder();

bool IsTerminal(std::FILE* stream) noexcept;
// Standard input and output carry bytes from now on, line ends as they are.
void UseBytesForStandardStreams() noexcept;
constexpr int kStandardInput = 0, kStandardOutput = 1;

// The signals that ask a program to end, beside an interrupt from the keyboard; safe calls in a handler: RemoveFile,
// ProcessId and this, which ends the program without a further step.
std::span<const int> EndingSignals() noexcept;
[[noreturn]] void EndAtOnce(int status) noexcept;
// A write beyond a limit or to a reader that is gone fails from now on, and ends the program no more.
void FailOnFileSizeLimit() noexcept;
void FailOnBrokenPipe() noexcept;

// Runs another program with the same words in the place of this one, with its streams and its exit status. Returns only
// where it does not start.
void BecomeProgram(const std::string& program, char** argv);

// Standard error goes nowhere as long as this lives: a library has words of its own for it.
class NoStandardErrors {
  public:
    NoStandardErrors() noexcept;
    ~NoStandardErrors();
    NoStandardErrors(const NoStandardErrors&) = delete;
    NoStandardErrors& operator=(const NoStandardErrors&) = delete;

  private:
    int kept_ = -1;
};

// As many files may be open as the system allows at most.
void AllowManyOpenFiles() noexcept;

// The time of day here.
std::tm LocalTime(std::time_t time) noexcept;

}  // namespace lithmark::platform
