// Folders for what a row's run writes: one root below the folder of temporary files, one folder in it for each worker.
// They are gone at the end, however it comes about.
#pragma once

#include <string>

namespace lithmark {

class ScratchFolders {
  public:
    // StudyFailure where no folder can be made.
    ScratchFolders();
    ~ScratchFolders();
    ScratchFolders(const ScratchFolders&) = delete;
    ScratchFolders& operator=(const ScratchFolders&) = delete;

    // An empty folder for a worker that begins, with a separator at its end.
    std::string Fresh(int worker) const;
    // For a worker that outlives the study: takes away its own folder, and the root where it was the last.
    void Leave(int worker) const noexcept;

  private:
    std::string root_;
};

}  // namespace lithmark
