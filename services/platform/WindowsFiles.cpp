#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cerrno>
#include <climits>
#include <string_view>

#include "services/platform/Files.h"
#include "services/platform/Process.h"
#include "services/platform/WindowsText.h"

namespace lithmark::platform {

namespace {

// A lock lies on a byte far behind the end of every file, so that what the file holds can be read all the same.
constexpr DWORD kLockPlaceHigh = 0x40000000;

HANDLE HandleOf(int descriptor) noexcept {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
}

int FailWith(int number) noexcept {
    errno = number;
    return -1;
}

int FailWithLast() noexcept {
    return FailWith(NumberOfLastError());
}

bool HasAttribute(const std::wstring& path, DWORD attribute) noexcept {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

bool IsFolder(const std::wstring& path) noexcept {
    return HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY);
}

DWORD Most(std::size_t count) noexcept {
    constexpr std::size_t kMost = 1 << 30;
    return static_cast<DWORD>(count < kMost ? count : kMost);
}

OVERLAPPED At(std::int64_t offset) noexcept {
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

std::int64_t Read(int descriptor, char* to, std::size_t count, OVERLAPPED* place) noexcept {
    DWORD read = 0;
    if (::ReadFile(HandleOf(descriptor), to, Most(count), &read, place) != 0) return read;
    const DWORD error = ::GetLastError();
    return error == ERROR_HANDLE_EOF || error == ERROR_BROKEN_PIPE ? 0 : FailWithLast();
}

std::int64_t Write(int descriptor, const char* from, std::size_t count, OVERLAPPED* place) noexcept {
    DWORD written = 0;
    return ::WriteFile(HandleOf(descriptor), from, Most(count), &written, place) != 0 ? written : FailWithLast();
}

// The last part of a path, in capitals.
std::string NameOf(const std::string& path) {
    const auto slash = path.find_last_of("/\\:");
    std::string name = path.substr(slash == std::string::npos ? 0 : slash + 1);
    for (char& c : name)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return name;
}

// Names that stand for devices in every folder, with an ending too.
bool IsDeviceName(const std::string& path) {
    std::string name = NameOf(path);
    name = name.substr(0, name.find('.'));
    while (name.ends_with(' ')) name.pop_back();
    for (const std::string_view device : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"})
        if (name == device) return true;
    return name.size() == 4 && (name.starts_with("COM") || name.starts_with("LPT")) && name[3] >= '1' && name[3] <= '9';
}

// 100 ns since 1601 to seconds since 1970.
void SetTime(FileState& state, const FILETIME& time) noexcept {
    constexpr std::int64_t kPerSecond = 10'000'000, kFrom1601To1970 = 11'644'473'600;
    const auto ticks =
        static_cast<std::int64_t>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
    state.Seconds = ticks / kPerSecond - kFrom1601To1970;
    state.Nanoseconds = ticks % kPerSecond * 100;
}

bool StateOfHandle(HANDLE handle, FileState& state) noexcept {
    BY_HANDLE_FILE_INFORMATION about;
    if (::GetFileType(handle) != FILE_TYPE_DISK) {
        state.What = FileState::Kind::Other;
        return true;
    }
    if (::GetFileInformationByHandle(handle, &about) == 0) {
        errno = NumberOfLastError();
        return false;
    }
    const bool folder = (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    state.What = folder ? FileState::Kind::Folder : FileState::Kind::Regular;
    state.Device = about.dwVolumeSerialNumber;
    state.Number = static_cast<std::uint64_t>(about.nFileIndexHigh) << 32 | about.nFileIndexLow;
    state.Size = static_cast<std::uint64_t>(about.nFileSizeHigh) << 32 | about.nFileSizeLow;
    FILE_STANDARD_INFO standard;
    const bool told = ::GetFileInformationByHandleEx(handle, FileStandardInfo, &standard, sizeof standard) != 0;
    state.Names = told && standard.DeletePending != 0 ? 0 : about.nNumberOfLinks;
    SetTime(state, about.ftLastWriteTime);
    return true;
}

}  // namespace

int OpenFile(const std::string& path, Open how) noexcept {
    // Nothing is written to devices, which take it without a word, but where what is written shall vanish.
    const bool writes = how != Open::Read && how != Open::ReadOwnName;
    if (writes && IsDeviceName(path) && (how != Open::Write || NameOf(path) != "NUL")) return FailWith(EACCES);
    const DWORD access = how == Open::Read || how == Open::ReadOwnName ? GENERIC_READ
                         : how == Open::Card                           ? GENERIC_READ | GENERIC_WRITE
                                                                       : GENERIC_WRITE;
    const DWORD creation = how == Open::New ? CREATE_NEW : how == Open::Card ? OPEN_ALWAYS : OPEN_EXISTING;
    const DWORD link = how == Open::ReadOwnName || how == Open::Card ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
    const std::wstring name = WidePath(path);
    const HANDLE handle = ::CreateFileW(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, creation, FILE_ATTRIBUTE_NORMAL | link, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        // A folder cannot be opened, which is told as any refusal.
        const int number = NumberOfLastError();
        if (!IsFolder(name)) return FailWith(number);
        return FailWith(how == Open::New ? EEXIST : EISDIR);
    }
    const int descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) ::CloseHandle(handle);
    return descriptor;
}

int CloseFile(int descriptor) noexcept {
    return ::_close(descriptor);
}

// As all handles of files, it is not handed on to workers.
int DuplicateFile(int descriptor) noexcept {
    const HANDLE self = ::GetCurrentProcess();
    HANDLE handle = nullptr;
    if (::DuplicateHandle(self, HandleOf(descriptor), self, &handle, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0)
        return FailWithLast();
    const int copy = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (copy < 0) ::CloseHandle(handle);
    return copy;
}

std::FILE* OpenStream(const std::string& path) noexcept {
    return ::_wfopen(WidePath(path).c_str(), L"rbN");
}

std::int64_t ReadFrom(int descriptor, char* to, std::size_t count) noexcept {
    return Read(descriptor, to, count, nullptr);
}

std::int64_t WriteTo(int descriptor, const char* from, std::size_t count) noexcept {
    return Write(descriptor, from, count, nullptr);
}

std::int64_t ReadFromAt(int descriptor, char* to, std::size_t count, std::int64_t offset) noexcept {
    OVERLAPPED place = At(offset);
    return Read(descriptor, to, count, &place);
}

std::int64_t WriteToAt(int descriptor, const char* from, std::size_t count, std::int64_t offset) noexcept {
    OVERLAPPED place = At(offset);
    return Write(descriptor, from, count, &place);
}

int CutFile(int descriptor) noexcept {
    const HANDLE handle = HandleOf(descriptor);
    const LARGE_INTEGER start = {};
    return ::SetFilePointerEx(handle, start, nullptr, FILE_BEGIN) != 0 && ::SetEndOfFile(handle) != 0 ? 0
                                                                                                      : FailWithLast();
}

int SyncFile(int descriptor) noexcept {
    return ::FlushFileBuffers(HandleOf(descriptor)) != 0 ? 0 : FailWithLast();
}

void SyncFolder(const std::string&) noexcept {}  // RenameOver writes through

int RenameOver(const std::string& from, const std::string& to) noexcept {
    constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const std::wstring target = WidePath(to);
    // Others hold a file for a moment: what looks for viruses, a worker that has just ended. For a second they are
    // waited for, where it is nothing that stays.
    constexpr int kTries = 50;
    constexpr DWORD kPause = 20;  // ms
    for (int tries = 1;; ++tries) {
        if (::MoveFileExW(WidePath(from).c_str(), target.c_str(), kHow) != 0) return 0;
        const DWORD error = ::GetLastError();
        const int number = NumberOfLastError();
        if (IsFolder(target)) return FailWith(EISDIR);
        const bool mayPass = error == ERROR_SHARING_VIOLATION ||
                             (error == ERROR_ACCESS_DENIED && !HasAttribute(target, FILE_ATTRIBUTE_READONLY));
        if (!mayPass || tries == kTries) return FailWith(number);
        ::Sleep(kPause);
    }
}

int RemoveFile(const char* path) noexcept {
    return ::DeleteFileW(WidePath(path).c_str()) != 0 ? 0 : FailWithLast();
}

int RemoveEmptyFolder(const char* path) noexcept {
    return ::RemoveDirectoryW(WidePath(path).c_str()) != 0 ? 0 : FailWithLast();
}

bool StateOf(const std::string& path, FileState& state) noexcept {
    const HANDLE handle =
        ::CreateFileW(WidePath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        errno = NumberOfLastError();
        return false;
    }
    const bool told = StateOfHandle(handle, state);
    ::CloseHandle(handle);
    return told;
}

bool StateOf(int descriptor, FileState& state) noexcept {
    return StateOfHandle(HandleOf(descriptor), state);
}

bool MayWrite(const std::string& path) noexcept {
    const DWORD attributes = ::GetFileAttributesW(WidePath(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) == 0) return true;
    errno = attributes == INVALID_FILE_ATTRIBUTES ? NumberOfLastError() : EACCES;
    return false;
}

void SetPermissions(int, unsigned) noexcept {}  // a file has those of its folder

Locked TryLock(int descriptor) noexcept {
    OVERLAPPED place = {};
    place.OffsetHigh = kLockPlaceHigh;
    constexpr DWORD kHow = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    if (::LockFileEx(HandleOf(descriptor), kHow, 0, 1, 0, &place) != 0) return Locked::Yes;
    const DWORD error = ::GetLastError();
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? Locked::HeldByAnother : Locked::NoLocks;
}

bool Lock(int descriptor) noexcept {
    OVERLAPPED place = {};
    place.OffsetHigh = kLockPlaceHigh;
    return ::LockFileEx(HandleOf(descriptor), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &place) != 0;
}

namespace {

// Makes something of a name that nobody has.
template <class Make>
std::string MakeTemporary(const Make& make) {
    LARGE_INTEGER clock;
    ::QueryPerformanceCounter(&clock);
    for (std::int64_t tries = 0; tries < 1000; ++tries) {
        const std::string path = TemporaryFolder() + "/lithmark-" + std::to_string(ProcessId()) + "-" +
                                 std::to_string(clock.QuadPart + tries);
        if (make(path)) return path;
        if (errno != EEXIST) break;
    }
    return {};
}

}  // namespace

std::string MakeTemporaryFolder() {
    return MakeTemporary([](const std::string& path) {
        if (::CreateDirectoryW(WidePath(path).c_str(), nullptr) != 0) return true;
        errno = NumberOfLastError();
        return false;
    });
}

std::string MakeTemporaryFile() {
    return MakeTemporary([](const std::string& path) {
        const int descriptor = OpenFile(path, Open::New);
        return descriptor >= 0 && CloseFile(descriptor) == 0;
    });
}

std::string TemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 2> path;
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(path.size()), path.data());
    std::string folder = NarrowPath({path.data(), length});
    while (folder.size() > 3 && folder.ends_with('/')) folder.pop_back();
    return folder;
}

}  // namespace lithmark::platform
