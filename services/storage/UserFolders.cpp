#include "services/storage/UserFolders.h"

#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "services/platform/Process.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

// This program's own in it.
std::string OwnIn(const std::string& folder) {
    return folder.empty() ? "" : folder + "lithmark/";
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return fs::is_directory(PathOf(path), error);
}

}  // namespace

std::string UserSettingsDir() {
    return OwnIn(platform::SettingsFolder());
}

std::string UserStateDir() {
    return OwnIn(platform::StateFolder());
}

void MakeSettingsDir(const std::string& programDir) {
    std::error_code error;
    if (!programDir.empty() && programDir == UserSettingsDir()) fs::create_directories(PathOf(programDir), error);
}

std::string UserDocumentsDir() {
    const std::string documents = platform::DocumentsFolder();
    return IsFolder(documents) ? documents : platform::HomeFolder();
}

std::string UserProjectsDir() {
    const std::string documents = UserDocumentsDir();
    return documents.empty() ? "" : documents + "Lithmark/";
}

void MakeProjectsDir(const std::string& dir) {
    std::error_code error;
    if (!dir.empty() && WithSeparator(dir) == UserProjectsDir()) fs::create_directories(PathOf(dir), error);
}

std::string DataDirUnset(const std::string& programDir) {
    const std::string user = UserSettingsDir();
    if (user.empty()) {
        std::error_code error;
        return WithSeparator(fs::current_path(error).generic_string());
    }
    return programDir == user ? UserProjectsDir() : programDir;
}

}  // namespace lithmark
