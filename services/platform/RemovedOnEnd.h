// Files that must not outlive the process, also when a signal ends it: temporary files, locks, folders for the while.
#pragma once

#include <string>

namespace lithmark {

// A file, or a folder of such files, that is registered as long as this lives. It itself is not touched. Of more files
// than a fixed number the last ones are not registered; they are what a crash leaves.
class RemovedOnEnd {
  public:
    explicit RemovedOnEnd(const std::string& path) noexcept;
    ~RemovedOnEnd();
    RemovedOnEnd(const RemovedOnEnd&) = delete;
    RemovedOnEnd& operator=(const RemovedOnEnd&) = delete;

  private:
    int slot_;
};

// Removes all registered files. Safe in a signal handler, before the process ends.
void RemoveRegisteredFiles() noexcept;

// From now on a signal that asks the process to end (SIGTERM, SIGHUP) first removes the registered files. A file size
// limit makes a write fail instead of ending the process.
void EndCleanlyOnSignals();

}  // namespace lithmark
