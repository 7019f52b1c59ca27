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
    BadInput,  // an input that no calculation can work with; the detail says which and why
    OutOfMemory,
    Cancelled,  // the user ended a long run
    FileMissing,
    NotAFile,  // a directory stands in the place of a file
    PermissionDenied,
    DiskFull,
    ReadError,
    WriteError,
    EndOfFile,
    BadNumber,        // a line that should hold a number holds something else
    BadFlag,          // a line that should hold #TRUE# or #FALSE# holds something else
    BadWord,          // a line that should hold one of a set of words holds something else
    BadCount,         // a table count below 1 or beyond what an Integer holds
    DamagedArchive,   // a packed project that cannot be unpacked
    TooLarge,         // a file beyond what its reader takes; the detail is that limit in MB
    ArchiveTooLarge,  // a packed project whose content is; the same
    ProjectInUse,     // another program has the project open; the detail says who
    NoSuchForm,       // a menu entry without a dialog
    Other
};

// What went wrong and, for files, where. `detail` is technical text for a message's end (a file's item, a system
// error's short name). A failure that knows its file carries it; otherwise it is the one last opened.
class Failure : public std::exception {
  public:
    explicit Failure(FailureKind kindOfFailure, std::string detailText = {}, long lineNumber = 0)
        : kind_(kindOfFailure), detail_(std::move(detailText)), line_(lineNumber) {}

    FailureKind Kind() const noexcept { return kind_; }
    const std::string& Detail() const noexcept { return detail_; }
    long Line() const noexcept { return line_; }  // 1-based line of a text file, 0 when none applies
    const std::string& File() const noexcept { return file_; }
    Failure&& InFile(std::string path) && {
        file_ = std::move(path);
        return std::move(*this);
    }
    const char* what() const noexcept override { return detail_.c_str(); }

  private:
    FailureKind kind_;
    std::string detail_, file_;
    long line_;
};

// Throw from a cold path, so that checks stay cheap where they are inlined.
[[noreturn]] void Fail(FailureKind kind);
[[noreturn]] void Fail(FailureKind kind, std::string detail, long line = 0);
[[noreturn]] void FailInFile(FailureKind kind, std::string file, std::string detail = {});

// The failure that a system error number stands for; `otherwise` for a number that has no kind of its own, with the
// error's short name ("EIO") as its detail.
[[noreturn]] void FailWithSystemError(int error, FailureKind otherwise, std::string file = {});

// What an exception stands for that a command ends in. Of a library's exception only the system error counts: its words
// are English, and no user reads them.
Failure FailureFrom(const std::exception& error);

}  // namespace lithmark
