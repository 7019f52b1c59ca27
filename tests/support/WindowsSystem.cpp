#include <gtest/gtest.h>
#include <windows.h>
#include <winioctl.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "support/OtherProcess.h"
#include "support/System.h"

namespace lithmark::tests {

namespace {

std::wstring Wide(const std::string& text) {
    return std::filesystem::path(text).wstring();
}

// A word as the usual reader of command lines takes it apart.
std::wstring Quoted(const std::string& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : Wide(word)) {
        if (c == L'"') quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L"\"";
}

HANDLE Opened(const std::wstring& path, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                         creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

bool SystemHas(Ability) {
    return false;
}

const char* ReasonWithout(Ability ability) {
    switch (ability) {
        case Ability::CopyOfAProcess:
            return "this system cannot copy a running process";
        case Ability::SymbolicLinks:
            return "not everybody may make symbolic links on this system";
        case Ability::NamedPipes:
            return "pipes have no place in folders on this system";
        case Ability::DeviceFiles:
            return "this system has no files that are devices";
        case Ability::FilePermissions:
            return "files of this system have no permissions for owner, group and others";
        case Ability::FoldersOfHome:
            return "the user's folders do not follow HOME on this system";
        case Ability::NamesByCase:
            return "names do not differ by letter case on this system";
        case Ability::OpenFilesGo:
            return "a file that is open stays on this system, and its folder";
        case Ability::TimesOfFolders:
            return "the standard library sets no times of folders on this system";
        case Ability::PosixShell:
            return "this system has no POSIX shell";
        case Ability::WorkersByCopying:
            return "workers start the program anew here, which a test program does not stand";
    }
    return "";
}

bool IsRoot() {
    return false;
}

void SetVariable(const char* name, const std::optional<std::string>& value) {
    ::_wputenv_s(Wide(name).c_str(), Wide(value.value_or("")).c_str());
}

void MakeLarge(const std::string& path, std::uint64_t bytes) {
    const HANDLE file = Opened(Wide(path), GENERIC_WRITE, OPEN_ALWAYS);
    DWORD given = 0;
    ::DeviceIoControl(file, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &given, nullptr);
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(bytes);
    EXPECT_TRUE(::SetFilePointerEx(file, end, nullptr, FILE_BEGIN) != 0 && ::SetEndOfFile(file) != 0) << path;
    ::CloseHandle(file);
}

void MakePipe(const std::string& path) {
    FAIL() << path << ": " << ReasonWithout(Ability::NamedPipes);
}

std::optional<int> RunInACopy(const std::function<int()>&, std::optional<std::uint64_t>) {
    ADD_FAILURE() << ReasonWithout(Ability::CopyOfAProcess);
    return std::nullopt;
}

void EndAtOnce(int status) {
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(status));
    std::abort();  // never reached
}

LittleMemory::LittleMemory(std::uint64_t) {}
LittleMemory::~LittleMemory() {
    static_cast<void>(before_);
}

OtherProcess::OtherProcess(const std::function<void()>&) {
    ADD_FAILURE() << ReasonWithout(Ability::CopyOfAProcess);
}

void OtherProcess::Kill() {
    process_ = 0;
}

void OtherProcess::AskToEnd() {
    process_ = 0;
}

int OwnProcess() {
    return static_cast<int>(::GetCurrentProcessId());
}

void KillProcess(int process) {
    const HANDLE handle = ::OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(process));
    ::TerminateProcess(handle, 1);
    ::CloseHandle(handle);
}

bool ProcessRuns(int process) {
    const HANDLE handle = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (handle == nullptr) return false;
    const bool runs = ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    ::CloseHandle(handle);
    return runs;
}

int RunProgram(const ProgramRun& run) {
    EXPECT_EQ(run.Runner, "") << ReasonWithout(Ability::PosixShell);
    EXPECT_FALSE(run.WithoutRights) << ReasonWithout(Ability::FilePermissions);
    std::wstring line = Quoted(run.Program);
    for (const std::string& word : run.Words) line += L" " + Quoted(word);
    std::vector<std::optional<std::string>> before;
    for (const auto& [name, value] : run.Variables) {
        const char* was = std::getenv(name.c_str());
        before.push_back(was != nullptr ? std::optional<std::string>(was) : std::nullopt);
        SetVariable(name.c_str(), value);
    }
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    const std::array<HANDLE, 3> streams = {Opened(L"NUL", GENERIC_READ, OPEN_EXISTING),
                                           Opened(Wide(run.Out), GENERIC_WRITE, CREATE_ALWAYS),
                                           Opened(Wide(run.Err), GENERIC_WRITE, CREATE_ALWAYS)};
    start.hStdInput = streams[0];
    start.hStdOutput = streams[1];
    start.hStdError = streams[2];
    PROCESS_INFORMATION started = {};
    const bool runs = ::CreateProcessW(Wide(run.Program).c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                       nullptr, &start, &started) != 0;
    for (const HANDLE stream : streams) ::CloseHandle(stream);
    for (std::size_t i = 0; i < before.size(); ++i) SetVariable(run.Variables[i].first.c_str(), before[i]);
    if (!runs) {
        ADD_FAILURE() << run.Program << " does not start: " << ::GetLastError();
        return -1;
    }
    ::WaitForSingleObject(started.hProcess, INFINITE);
    DWORD status = 0;
    ::GetExitCodeProcess(started.hProcess, &status);
    ::CloseHandle(started.hThread);
    ::CloseHandle(started.hProcess);
    return static_cast<int>(status);
}

}  // namespace lithmark::tests
