#include "ui/model/DraftProject.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "core/Units.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "files/SettingsFiles.h"
#include "services/platform/Files.h"
#include "services/storage/FileNames.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

std::string NewFolder() {
    std::string folder = platform::MakeTemporaryFolder();
    if (folder.empty()) FailWithSystemError(errno, FailureKind::WriteError, platform::TemporaryFolder());
    return folder;
}

void Remove(const std::string& folder) noexcept {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

std::string LanguageOption() {
    switch (LanguageTexts().Current()) {
        case Language::German:
            return "de";
        case Language::Arabic:
            return "ar";
        case Language::Ids:
            return "ids";
        default:
            return "en";
    }
}

}  // namespace

DraftProject::DraftProject(const SessionRecord& record) {
    const std::string folder = NewFolder();
    registered_.emplace_back(folder);
    folder_ = WithSeparator(folder);
    try {
        const std::string name = record.ProjectName + ".";
        projectFile_ = folder_ + name + "PO3";
        Write("Units", UnitLines(UnitsInForce()));
        Write("NOFORMAT", NumberFormatLines(record));
        Write("Preferen.tol", PreferenceLines(record));
        Write(name + "AUF", OrderFileLines(record));
        Write(name + FindProblem(record.ProblemType)->Extension, ProblemDataLines(record));
        Write(name + "PO3", ProjectFileLines(record));
    } catch (...) {
        Remove(folder_);
        throw;
    }
}

DraftProject::~DraftProject() {
    Remove(folder_);
}

std::vector<std::string> DraftProject::Options() const {
    return {"--settings", folder_, "--lang", LanguageOption()};
}

// Without the care of a saved file: nobody misses it after a crash.
void DraftProject::Write(const std::string& name, const std::vector<std::string>& lines) {
    const std::string path = folder_ + name;
    registered_.emplace_back(path);
    std::ofstream file(path, std::ios::binary);
    for (const std::string& line : lines) file << line << "\r\n";
    file.close();
    if (!file) FailWithSystemError(errno, FailureKind::WriteError, path);
}

}  // namespace lithmark
