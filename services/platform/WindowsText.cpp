#include "services/platform/WindowsText.h"

#include <windows.h>

#include <algorithm>
#include <cerrno>

namespace lithmark::platform {

std::wstring Wide(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    std::wstring wide(static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(std::wstring_view wide) {
    const int units = static_cast<int>(wide.size());
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

std::wstring WidePath(const std::string& path) {
    std::wstring wide = Wide(path);
    std::ranges::replace(wide, L'/', L'\\');
    if (wide.size() < MAX_PATH - 12 || wide.starts_with(L"\\\\?\\")) return wide;
    std::wstring whole(32768, L'\0');
    whole.resize(::GetFullPathNameW(wide.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    if (whole.starts_with(L"\\\\")) return L"\\\\?\\UNC" + whole.substr(1);
    return whole.empty() ? wide : L"\\\\?\\" + whole;
}

std::string NarrowPath(std::wstring_view path) {
    std::string narrow = Narrow(path);
    std::ranges::replace(narrow, '\\', '/');
    return narrow;
}

int NumberOfLastError() noexcept {
    switch (::GetLastError()) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
            return ENOENT;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return EEXIST;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_DELETE_PENDING:
            return EACCES;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return ENOSPC;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return ENOMEM;
        case ERROR_TOO_MANY_OPEN_FILES:
            return EMFILE;
        case ERROR_DIRECTORY:
            return ENOTDIR;
        default:
            return EIO;
    }
}

}  // namespace lithmark::platform
