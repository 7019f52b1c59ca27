// The one kind of run-time failure of the program.
//
// A failure is thrown where it happens and caught once, at the edge of the kernel or file routine, which then does what
// it owes its caller: the shared failure routine, a flag, and a plain return.
#pragma once

#include <exception>
#include <string>

namespace lithmark {

enum class FailureKind {
    DivisionByZero,
    Overflow,         // a value that does not fit a Single or an Integer
    InvalidArgument,  // a logarithm of a non-positive number, a root of a negative one, a value that is not a number
    SubscriptRange,
    SingularMatrix,
    OutOfMemory,
    Cancelled,  // the user ended a long run
    FileMissing,
    NotAFile,  // a directory stands in the place of a file
    PermissionDenied,
    DiskFull,
    ReadError,
    WriteError,
    EndOfFile,
    BadNumber,       // a line that should hold a number holds something else
    BadFlag,         // a line that should hold #TRUE# or #FALSE# holds something else
    BadWord,         // a line that should hold one of a set of words holds something else
    BadCount,        // a table count below 1 or beyond what an Integer holds
    DamagedArchive,  // a packed project that cannot be unpacked
    NoSuchForm,      // a menu entry without a dialog
    Other
};

// What went wrong and, for files, where. `detail` is technical text for a message's end (a file's item, a system
// error).
class Failure : public std::exception {
  public:
    explicit Failure(FailureKind kindOfFailure, std::string detailText = {}, long lineNumber = 0)
        : kind_(kindOfFailure), detail_(std::move(detailText)), line_(lineNumber) {}

    FailureKind Kind() const noexcept { return kind_; }
    const std::string& Detail() const noexcept { return detail_; }
    long Line() const noexcept { return line_; }  // 1-based line of a text file, 0 when none applies
    const char* what() const noexcept override { return detail_.c_str(); }

  private:
    FailureKind kind_;
    std::string detail_;
    long line_;
};

// Throw from a cold path, so that checks stay cheap where they are inlined.
[[noreturn]] void Fail(FailureKind kind);
[[noreturn]] void Fail(FailureKind kind, std::string detail, long line = 0);

}  // namespace lithmark
