// How a command ends other than well: an exit status and one line for standard error.
#pragma once

#include <stdexcept>
#include <string>

namespace lithmark {

enum class ExitStatus {
    Done = 0,
    FileTrouble = 1,
    BadCommandLine = 2,
    Aborted = 3,
    SomeAborted = 4,
    Interrupted = 130
};

class CommandFailure : public std::runtime_error {
  public:
    CommandFailure(ExitStatus status, const std::string& line) : std::runtime_error(line), status_(status) {}
    ExitStatus Status() const noexcept { return status_; }

  private:
    ExitStatus status_;
};

}  // namespace lithmark
