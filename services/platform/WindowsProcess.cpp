#include <fcntl.h>
#include <io.h>
#include <shlobj.h>
#include <windows.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "services/platform/Process.h"
#include "services/platform/WindowsText.h"

namespace lithmark::platform {

namespace {

std::string WithSlash(std::string folder) {
    if (!folder.empty() && !folder.ends_with('/')) folder += '/';
    return folder;
}

std::string KnownFolder(const KNOWNFOLDERID& id) {
    PWSTR path = nullptr;
    std::string folder;
    if (::SHGetKnownFolderPath(id, 0, nullptr, &path) == S_OK) folder = NarrowPath(path);
    ::CoTaskMemFree(path);
    return WithSlash(folder);
}

// The folder that a variable names, as on other systems, or the system's own.
std::string SharedFolder(const char* variable, const KNOWNFOLDERID& id) {
    const auto named = Variable(variable);
    if (!named || !std::filesystem::path(Wide(*named)).is_absolute()) return KnownFolder(id);
    return WithSlash(NarrowPath(Wide(*named)));
}

}  // namespace

int ProcessId() noexcept {
    return static_cast<int>(::GetCurrentProcessId());
}

std::string ProgramFile() {
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return NarrowPath(path);
}

std::vector<std::string> Arguments(int argc, char** argv) {
    int count = 0;
    LPWSTR* words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (words == nullptr) return {argv, argv + argc};
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i) arguments.push_back(Narrow(words[i]));
    ::LocalFree(words);
    return arguments;
}

std::optional<std::string> Variable(const char* name) {
    const std::wstring wide = Wide(name);
    const DWORD size = ::GetEnvironmentVariableW(wide.c_str(), nullptr, 0);
    if (size == 0) return std::nullopt;
    std::wstring value(size, L'\0');
    value.resize(::GetEnvironmentVariableW(wide.c_str(), value.data(), size));
    return Narrow(value);
}

std::string UserName() {
    std::array<wchar_t, 257> name;
    auto size = static_cast<DWORD>(name.size());
    return ::GetUserNameW(name.data(), &size) != 0 && size > 0 ? Narrow({name.data(), size - 1}) : std::string();
}

std::string MachineName() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name;
    auto size = static_cast<DWORD>(name.size());
    return ::GetComputerNameW(name.data(), &size) != 0 ? Narrow({name.data(), size}) : std::string();
}

std::string HomeFolder() {
    return KnownFolder(FOLDERID_Profile);
}

std::string SettingsFolder() {
    return SharedFolder("XDG_CONFIG_HOME", FOLDERID_RoamingAppData);
}

std::string StateFolder() {
    return SharedFolder("XDG_STATE_HOME", FOLDERID_LocalAppData);
}

std::string DocumentsFolder() {
    return KnownFolder(FOLDERID_Documents);
}

bool IsTerminal(std::FILE* stream) noexcept {
    return ::_isatty(::_fileno(stream)) != 0;
}

void UseBytesForStandardStreams() noexcept {
    for (std::FILE* stream : {stdin, stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
}

std::span<const int> EndingSignals() noexcept {
    static constexpr std::array<int, 2> kSignals = {SIGTERM, SIGBREAK};
    return kSignals;
}

void EndAtOnce(int status) noexcept {
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(status));
    std::abort();  // never reached
}

void FailOnFileSizeLimit() noexcept {}  // writes fail of themselves here

void FailOnBrokenPipe() noexcept {}

// The other program has this one's words: the command line as it stands.
void BecomeProgram(const std::string& program, char**) {
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION started;
    std::wstring words = ::GetCommandLineW();
    if (::CreateProcessW(WidePath(program + ".exe").c_str(), words.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                         &start, &started) == 0)
        return;
    ::SetConsoleCtrlHandler(nullptr, TRUE);  // a Ctrl+C is the other program's
    ::WaitForSingleObject(started.hProcess, INFINITE);
    DWORD status = 1;
    ::GetExitCodeProcess(started.hProcess, &status);
    EndAtOnce(static_cast<int>(status));
}

// The command line has no library that writes there.
NoStandardErrors::NoStandardErrors() noexcept = default;
NoStandardErrors::~NoStandardErrors() = default;

void AllowManyOpenFiles() noexcept {
    ::_setmaxstdio(2048);
}

std::tm LocalTime(std::time_t time) noexcept {
    std::tm local{};
    ::localtime_s(&local, &time);
    return local;
}

}  // namespace lithmark::platform
