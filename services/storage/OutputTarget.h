// OutputTarget: where the bytes of an output go until it is in place.
//
// That is a file of another name beside the target, which takes the target's place in one step; until then the target
// stays as it was, and what never takes its place leaves nothing behind. A symbolic link stays a link: the file that it
// points to is replaced. A device or a pipe is written directly where the user may name one, as the output of a
// command; no file of a project is ever one. All failures name the path that was to be written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "services/storage/TemporaryFile.h"

namespace lithmark {

class OutputTarget {
  public:
    enum class Takes { File, FileOrDevice };

    // NotAFile for a directory, PermissionDenied where the target or its folder must not be written, FileMissing
    // without a folder, DiskFull, WriteError for the rest.
    OutputTarget(std::string path, Takes takes);
    ~OutputTarget();
    OutputTarget(const OutputTarget&) = delete;
    OutputTarget& operator=(const OutputTarget&) = delete;

    // Where the content of a regular file stands until it takes its place.
    const std::string& TemporaryName() const noexcept { return temporary_->Name(); }
    // The folder of the target with its slash at the end; empty for the current one.
    std::string Folder() const;

    // Behind what was written last.
    void Write(std::string_view bytes);
    // At an offset from the start; what lies between is zero. Not to be mixed with Write.
    void WriteAt(std::int64_t offset, std::string_view bytes);
    // The content on the disk; the error's number, 0 for none and for a device.
    int SyncError() const noexcept;
    void Sync() const;
    [[noreturn]] void FailToWrite(int error) const;
    // Ends the writing.
    void Close();
    // Once; later calls and those for a device do nothing. True when the file was put in place.
    bool TakePlace();
    // What was done to the target's folder is on the disk, as far as the file system can.
    void SyncFolder() const noexcept;

  private:
    int Descriptor() const noexcept { return temporary_ ? temporary_->Descriptor() : device_; }

    std::string path_, target_;
    std::optional<TemporaryFile> temporary_;  // of a regular file
    int device_ = -1;
};

// Writes all bytes, at an offset or, when it is negative, at the current place. The error's number, 0 for none.
int WriteAllTo(int descriptor, std::string_view bytes, std::int64_t offset = -1) noexcept;

}  // namespace lithmark
