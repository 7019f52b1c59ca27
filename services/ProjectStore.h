// ProjectStore: keeps a closed project's files packed in one archive.
//
// The archive is a ZIP file that stands in the place of the project file: the project "Raft1" is then the one file
// Raft1.PO3, and the user opens it under the same name as ever. At every moment either all plain files or the whole
// archive are there, so a crash loses nothing (docs/project-files.md tells the order of the steps).
#pragma once

#include <functional>
#include <string>

namespace lithmark {

class ProjectStoreService {
  public:
    // Packs the project that is being left. `oldPath` is its path without extension, `extension` that of the file that
    // stands for it (".po3"); `newFile` is the project that is opened next, which is not packed when it is the same.
    // Nothing happens without a project file, when the flags ask for no packing (0: off, 2: no setting), or when the
    // project is packed already. False after a failure, which has been told; the plain files are then all there.
    bool PackProject(const std::string& oldPath, long flags, const std::string& newFile, const std::string& extension);

    // Brings a packed project's files back; a project that is not packed stays as it is. The archive's content counts,
    // but for a plain file that is newer than the archive: that stays. False after a failure, which has been told; the
    // archive is then still there.
    bool UnpackProject(const std::string& path, const std::string& extension);

    // Called between the steps that change the folder; tests end the process there.
    std::function<void()> BetweenSteps;

  private:
    void Pack(const std::string& stem, const std::string& standing);
    void Unpack(const std::string& stem, const std::string& standing);
    void StepDone() const {
        if (BetweenSteps) BetweenSteps();
    }
};

ProjectStoreService& ProjectStore();

}  // namespace lithmark
