#include "ui/model/DraftProject.h"

#include <cerrno>
#include <fstream>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "core/Units.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "files/SettingsFiles.h"
#include "services/texts/LanguageCodes.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

DraftProject::DraftProject(const SessionRecord& record) {
    const std::string name = record.ProjectName + ".";
    projectFile_ = Folder() + name + "PO3";
    Write("Units", UnitLines(UnitsInForce()));
    Write("NOFORMAT", NumberFormatLines(record));
    Write("Preferen.tol", PreferenceLines(record));
    Write(name + "AUF", OrderFileLines(record));
    Write(name + FindProblem(record.ProblemType)->Extension, ProblemDataLines(record));
    Write(name + "PO3", ProjectFileLines(record));
}

std::vector<std::string> DraftProject::Options() const {
    return {"--settings", Folder(), "--lang", LanguageCode(LanguageTexts().Current())};
}

// Without the care of a saved file: nobody misses it after a crash.
void DraftProject::Write(const std::string& name, const std::vector<std::string>& lines) {
    const std::string path = folder_.Announce(name);
    std::ofstream file(path, std::ios::binary);
    for (const std::string& line : lines) file << line << "\r\n";
    file.close();
    if (!file) FailWithSystemError(errno, FailureKind::WriteError, path);
}

}  // namespace lithmark
