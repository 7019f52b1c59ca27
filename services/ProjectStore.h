// ProjectStore: the files of a project as one: kept packed in an archive while the project is closed, and locked
// against other programs while it is open or saved.
//
// The archive is a ZIP file that stands in the place of the project file: the project "Raft1" is then the one file
// Raft1.PO3, and the user opens it under the same name as ever. At every moment either all plain files or the whole
// archive are there, so a crash loses nothing (docs/project-files.md tells the order of the steps).
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "services/storage/ProjectLock.h"

namespace lithmark {

class ProjectStoreService {
  public:
    // Packs the project that is being left. `oldPath` is its path without extension, `extension` that of the file that
    // stands for it (".po3"); `newFile` is the project that is opened next, which is not packed when it is the same.
    // Nothing happens without a project file, when the flags ask for no packing (0: off, 2: no setting), when the
    // project is packed already, when it holds more than an archive may, or while other programs keep changing it.
    // False after a failure, which has been told; the plain files are then all there.
    bool PackProject(const std::string& oldPath, long flags, const std::string& newFile, const std::string& extension);

    // Brings a packed project's files back; a project that is not packed stays as it is. The archive's content counts,
    // but for a plain file that is newer than the archive or of the same second: that stays. False after a failure,
    // which has been told; the archive is then still there. What crashes left in the folder is removed.
    bool UnpackProject(const std::string& path, const std::string& extension);

    // Takes the project of a path without extension for this program, and gives back the one that it had; false when
    // another program has the project open, which has been told with who that is.
    bool TakeProject(const std::string& path);
    // Gives the taken project back.
    void LeaveProject() noexcept { taken_.reset(); }

    // What a save of project files holds while it lasts: the project locked against other programs, and plain, so that
    // no archive is replaced by a plain file. ProjectInUse; DamagedArchive and the like when it cannot be unpacked.
    [[nodiscard]] std::unique_ptr<ProjectLock> BeginSave(const std::string& path);

    // Called between the steps that change the folder; tests end the process there.
    std::function<void()> BetweenSteps;

  private:
    bool PackOnce(const std::string& stem, const std::string& standing);
    void Unpack(const std::string& stem, const std::string& standing);
    // The lock of a project, empty where this program has taken it.
    std::unique_ptr<ProjectLock> Lock(const std::string& path) const;
    void StepDone() const {
        if (BetweenSteps) BetweenSteps();
    }

    std::unique_ptr<ProjectLock> taken_;
};

ProjectStoreService& ProjectStore();

}  // namespace lithmark
