// TemporaryFolder: a folder of the user's own in the system's place for temporary files.
#pragma once

#include <deque>
#include <string>

#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

// It goes with this object, with all that is in it; a signal that ends the program removes it too, with the files that
// were announced.
class TemporaryFolder {
  public:
    // WriteError where no folder can be made.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // With its separator.
    const std::string& Path() const noexcept { return path_; }
    // The path of a file that will be written there.
    std::string Announce(const std::string& name);

  private:
    std::string path_;
    std::deque<RemovedOnEnd> registered_;
};

}  // namespace lithmark
