#include "services/storage/UserFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>

#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

std::string HomeDir() {
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home != '/') {
        const passwd* user = ::getpwuid(::getuid());
        home = user != nullptr ? user->pw_dir : nullptr;
    }
    return home != nullptr && *home == '/' ? WithSeparator(home) : "";
}

// A folder that all programs share: the one that the variable names, or `otherwise` in the home.
std::string SharedFolder(const char* variable, const char* otherwise) {
    const char* named = std::getenv(variable);
    if (named != nullptr && *named == '/') return WithSeparator(named);
    const std::string home = HomeDir();
    return home.empty() ? "" : home + otherwise;
}

std::string ConfigDir() {
    return SharedFolder("XDG_CONFIG_HOME", ".config/");
}

// This program's own in it.
std::string OwnIn(const std::string& folder) {
    return folder.empty() ? "" : folder + "lithmark/";
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// The value of a line XDG_DOCUMENTS_DIR="..." of user-dirs.dirs: a path, or one that begins with $HOME.
std::optional<std::string> NamedDocuments(const std::string& line) {
    constexpr std::string_view kName = "XDG_DOCUMENTS_DIR=\"", kHome = "$HOME";
    if (!line.starts_with(kName) || !line.ends_with('"') || line.size() == kName.size()) return std::nullopt;
    const std::string value = line.substr(kName.size(), line.size() - kName.size() - 1);
    if (value.starts_with('/')) return value;
    if (value != kHome && !value.starts_with("$HOME/")) return std::nullopt;
    const std::string below = value.substr(kHome.size());
    return HomeDir() + (below.empty() ? below : below.substr(1));
}

}  // namespace

std::string UserSettingsDir() {
    return OwnIn(ConfigDir());
}

std::string UserStateDir() {
    return OwnIn(SharedFolder("XDG_STATE_HOME", ".local/state/"));
}

void MakeSettingsDir(const std::string& programDir) {
    std::error_code error;
    if (!programDir.empty() && programDir == UserSettingsDir()) fs::create_directories(programDir, error);
}

std::string UserDocumentsDir() {
    const std::string home = HomeDir();
    if (home.empty()) return "";
    std::string documents = home + "Documents";
    std::ifstream names(ConfigDir() + "user-dirs.dirs");
    for (std::string line; std::getline(names, line);)
        if (const auto named = NamedDocuments(line)) documents = *named;
    return IsFolder(documents) ? WithSeparator(documents) : home;
}

std::string DataDirUnset(const std::string& programDir) {
    if (programDir.empty() || programDir != UserSettingsDir()) return programDir;
    const std::string documents = UserDocumentsDir();
    return documents.empty() ? programDir : documents;
}

}  // namespace lithmark
