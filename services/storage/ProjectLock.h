// Which program has a project open.
//
// A lock on the hidden file ".lithmark-<project>.lock" in the project's folder tells it, and that file says who holds
// it. The system takes the lock away when its holder ends, in whatever way; a file that stands there without a lock
// counts for nothing, and the next one who opens the project takes it over. The holder removes the file.
#pragma once

#include <memory>
#include <string>

#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

class ProjectLock {
  public:
    // The lock of the project of this path without extension. ProjectInUse when another holds it, with who does as the
    // detail. Where no lock is to be had (a folder that must not be written, a file system without locks) it is empty,
    // and the project can be worked with all the same.
    explicit ProjectLock(const std::string& project);
    ~ProjectLock();
    ProjectLock(const ProjectLock&) = delete;
    ProjectLock& operator=(const ProjectLock&) = delete;

    const std::string& Project() const noexcept { return project_; }

  private:
    bool TryOnce(const std::string& file, bool again);

    std::string project_, file_;
    int descriptor_ = -1, process_ = 0;
    std::unique_ptr<RemovedOnEnd> registered_;
};

// Who has the project of this path without extension open; empty where nobody has, or that cannot be found out. Takes
// nothing and leaves no file.
std::string HolderOfProject(const std::string& project);

}  // namespace lithmark
