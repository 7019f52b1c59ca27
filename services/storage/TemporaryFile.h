// The file beside a target in which content is written before it takes the target's place.
//
// It is called ".lithmark-<process>-<number>.tmp". As long as it is in use a lock on it tells it from one that a crash
// left; a signal that ends the process removes it.
#pragma once

#include <optional>
#include <string>

#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

// What the names of the program's own hidden files begin with.
inline constexpr char kHiddenStart[] = ".lithmark-";

class TemporaryFile {
  public:
    // A new file in a folder ("" is the current one), open for writing. The first one that a process makes in a folder
    // also removes what crashes left there. PermissionDenied, DiskFull, FileMissing for a
    // missing folder, WriteError for the rest, all told for `target`.
    TemporaryFile(const std::string& folder, const std::string& target);
    // Removes the file unless it took a target's place.
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Name() const noexcept { return name_; }
    int Descriptor() const noexcept { return descriptor_; }
    // Ends the writing; the file stays in use until it takes its place. WriteError when that shows a failed write.
    void Close(const std::string& target);
    // A failure is told for `told`, the name by which the user knows the target.
    void TakePlaceOf(const std::string& target, const std::string& told);

  private:
    bool LockIt() noexcept;

    std::string name_;
    int descriptor_ = -1, lock_ = -1;
    std::optional<RemovedOnEnd> registered_;
};

// Removes from a folder what crashes left there: temporary files and project locks that no process uses any more.
void RemoveLeftovers(const std::string& folder) noexcept;

}  // namespace lithmark
