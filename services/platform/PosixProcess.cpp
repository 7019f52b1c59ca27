#include <fcntl.h>
#include <pwd.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "services/platform/Process.h"

namespace lithmark::platform {

namespace {

std::string WithSlash(std::string folder) {
    if (!folder.ends_with('/')) folder += '/';
    return folder;
}

// A folder that all programs share: the one that the variable names, or `otherwise` in the home.
std::string SharedFolder(const char* variable, const char* otherwise) {
    const auto named = Variable(variable);
    if (named && named->starts_with('/')) return WithSlash(*named);
    const std::string home = HomeFolder();
    return home.empty() ? "" : home + otherwise;
}

// The value of a line XDG_DOCUMENTS_DIR="..." of user-dirs.dirs: a path, or one that begins with $HOME.
std::optional<std::string> NamedDocuments(const std::string& line) {
    constexpr std::string_view kName = "XDG_DOCUMENTS_DIR=\"", kHome = "$HOME";
    if (!line.starts_with(kName) || !line.ends_with('"') || line.size() == kName.size()) return std::nullopt;
    const std::string value = line.substr(kName.size(), line.size() - kName.size() - 1);
    if (value.starts_with('/')) return value;
    if (value != kHome && !value.starts_with("$HOME/")) return std::nullopt;
    const std::string below = value.substr(kHome.size());
    return HomeFolder() + (below.empty() ? below : below.substr(1));
}

}  // namespace

int ProcessId() noexcept {
    return ::getpid();
}

std::string ProgramFile() {
    std::array<char, PATH_MAX> path;
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
    return length <= 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(length));
}

std::vector<std::string> Arguments(int argc, char** argv) {
    return {argv, argv + argc};
}

std::optional<std::string> Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

std::string UserName() {
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_name : std::to_string(::getuid());
}

std::string MachineName() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : std::string();
}

std::string HomeFolder() {
    std::string home = Variable("HOME").value_or("");
    if (!home.starts_with('/')) {
        const passwd* user = ::getpwuid(::getuid());
        home = user != nullptr ? user->pw_dir : "";
    }
    return home.starts_with('/') ? WithSlash(home) : "";
}

std::string SettingsFolder() {
    return SharedFolder("XDG_CONFIG_HOME", ".config/");
}

std::string StateFolder() {
    return SharedFolder("XDG_STATE_HOME", ".local/state/");
}

std::string DocumentsFolder() {
    const std::string home = HomeFolder();
    if (home.empty()) return "";
    std::string documents = home + "Documents";
    const std::string file = SettingsFolder() + "user-dirs.dirs";
    std::error_code error;  // what is no file, a pipe perhaps, is not waited for
    if (!std::filesystem::is_regular_file(file, error)) return WithSlash(documents);
    std::ifstream names(file);
    for (std::string line; std::getline(names, line);)
        if (const auto named = NamedDocuments(line)) documents = *named;
    return WithSlash(documents);
}

bool IsTerminal(std::FILE* stream) noexcept {
    return ::isatty(::fileno(stream)) != 0;
}

void UseBytesForStandardStreams() noexcept {}

std::span<const int> EndingSignals() noexcept {
    static constexpr std::array<int, 2> kSignals = {SIGTERM, SIGHUP};
    return kSignals;
}

void EndAtOnce(int status) noexcept {
    ::_exit(status);
}

void FailOnFileSizeLimit() noexcept {
    std::signal(SIGXFSZ, SIG_IGN);
}

void FailOnBrokenPipe() noexcept {
    std::signal(SIGPIPE, SIG_IGN);
}

void BecomeProgram(const std::string& program, char** argv) {
    ::execv(program.c_str(), argv);
}

NoStandardErrors::NoStandardErrors() noexcept {
    std::fflush(stderr);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere < 0) return;
    kept_ = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    if (kept_ >= 0) ::dup2(nowhere, STDERR_FILENO);
    ::close(nowhere);
}

NoStandardErrors::~NoStandardErrors() {
    if (kept_ < 0) return;
    std::fflush(stderr);
    ::dup2(kept_, STDERR_FILENO);
    ::close(kept_);
}

void AllowManyOpenFiles() noexcept {
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

std::tm LocalTime(std::time_t time) noexcept {
    std::tm local{};
    ::localtime_r(&time, &local);
    return local;
}

}  // namespace lithmark::platform
