// Where a raft run leaves its files.
#pragma once

#include <optional>
#include <string>

#include "services/storage/TemporaryFolder.h"

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
    // Removes the folder; Session's folders are as before. A signal that ends the program removes it too.
    ~RunFiles();
    RunFiles(const RunFiles&) = delete;
    RunFiles& operator=(const RunFiles&) = delete;

  private:
    std::optional<TemporaryFolder> folder_;
    std::string dataDir_, workDir_;
};

}  // namespace lithmark
