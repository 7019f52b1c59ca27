// Files as the operating system has them.
//
// Paths are UTF-8 with "/" between folders on every system. Descriptors are those of the C library. A function that
// fails returns -1 (or what it says), and `errno` holds one of the usual numbers. Contents are bytes: no line end is
// ever changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace lithmark::platform {

enum class Open {
    Read,         // a pipe without a writer does not keep the caller waiting
    ReadOwnName,  // the same; a link is not followed
    Write,        // what exists: a device, a pipe
    New,          // for writing; EEXIST when the name is taken
    Card,         // for reading and writing, made when it is missing; a link is not followed
};

int OpenFile(const std::string& path, Open how) noexcept;
int CloseFile(int descriptor) noexcept;
// A second descriptor of the same open file, with the same locks.
int DuplicateFile(int descriptor) noexcept;

// A stream of a file's bytes to read; null on a failure.
std::FILE* OpenStream(const std::string& path) noexcept;

// How many bytes were taken or given, as few as the system likes; 0 at the end of a file. An interrupted call is
// repeated.
std::int64_t ReadFrom(int descriptor, char* to, std::size_t count) noexcept;
std::int64_t WriteTo(int descriptor, const char* from, std::size_t count) noexcept;
// At an offset from the start; where the next WriteTo writes is left open.
std::int64_t ReadFromAt(int descriptor, char* to, std::size_t count, std::int64_t offset) noexcept;
std::int64_t WriteToAt(int descriptor, const char* from, std::size_t count, std::int64_t offset) noexcept;
// -1 on a failure.
int CutFile(int descriptor) noexcept;
// What was written is on the disk.
int SyncFile(int descriptor) noexcept;
// What was done to a folder's entries is on the disk, as far as the file system can; "" is the current folder.
void SyncFolder(const std::string& folder) noexcept;

// In one step, over a file that stands there.
int RenameOver(const std::string& from, const std::string& to) noexcept;
int RemoveFile(const char* path) noexcept;
int RemoveEmptyFolder(const char* path) noexcept;

struct FileState {
    enum class Kind { Regular, Folder, Other } What = Kind::Other;
    unsigned Permissions = 0;                   // as chmod has them; 0 where the system has none
    std::uint64_t Device = 0, Number = 0;       // the same file under two names has the same
    std::uint64_t Size = 0, Names = 0;          // of bytes; of names, 0 for a file that was removed while it is open
    std::int64_t Seconds = 0, Nanoseconds = 0;  // of the last change
};
// False on a failure.
bool StateOf(const std::string& path, FileState& state) noexcept;
bool StateOf(int descriptor, FileState& state) noexcept;
// Whether the user may write a file that exists; else `errno` says why not.
bool MayWrite(const std::string& path) noexcept;
void SetPermissions(int descriptor, unsigned permissions) noexcept;

// A lock that one open file holds against all others until its last descriptor is closed, in whatever way.
enum class Locked { Yes, HeldByAnother, NoLocks };
Locked TryLock(int descriptor) noexcept;
// Waits for the lock. False where there are none.
bool Lock(int descriptor) noexcept;

// A new folder of the user's own among the temporary files, "" on a failure; and a new, empty file there.
std::string MakeTemporaryFolder();
std::string MakeTemporaryFile();
// Where temporary files belong, without a separator at its end.
std::string TemporaryFolder();

}  // namespace lithmark::platform
