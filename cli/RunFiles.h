// Where a raft run leaves its files.
#pragma once

#include <string>

namespace lithmark {

class RunFiles {
  public:
    enum class Where {
        BesideProject,
        Nowhere,  // none are written
        Aside     // in a folder of their own, for whoever reads them as long as this lives
    };

    // WriteError where no folder can be made aside.
    explicit RunFiles(Where where);
    // Removes the folder; Session's folders are as before.
    ~RunFiles();
    RunFiles(const RunFiles&) = delete;
    RunFiles& operator=(const RunFiles&) = delete;

  private:
    std::string folder_, dataDir_, workDir_;
};

}  // namespace lithmark
