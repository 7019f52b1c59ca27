// WrittenFile: an output file that is written whole or not at all.
//
// The content goes to a file of another name beside the target. Commit puts it in the target's place in one step, so
// that after a crash, a full disk or a pulled plug the target is either the old file or the new one. Without Commit the
// target stays as it was and nothing is left behind. A symbolic link stays a link: the file that it points to is
// replaced. Every failure names the path that was to be written.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "base/Failure.h"
#include "services/storage/TemporaryFile.h"

namespace lithmark {

class WrittenFile {
  public:
    // A device or a pipe is written directly where the user may name one, as the output of a command; no file of a
    // project is ever one.
    enum class Target { File, FileOrDevice };

    // NotAFile for a directory, PermissionDenied where the target or its folder must not be written, FileMissing
    // without a folder, DiskFull, WriteError for the rest.
    explicit WrittenFile(const std::string& path, Target kind = Target::File);
    ~WrittenFile();
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;

    void Append(std::string_view bytes);
    // Bytes at an offset from the start; what lies between is zero. Not to be mixed with Append.
    void WriteAt(std::int64_t offset, std::string_view bytes);
    // Everything on the disk, but not in place yet.
    void Sync();
    // Where the content of a regular file stands until Commit.
    const std::string& TemporaryName() const noexcept { return temporary_->Name(); }
    // Everything on the disk and in place. When it fails, the target is as it was.
    void Commit();

    // The same for files that belong together: all of them come to the disk before the first takes its place, and each
    // folder is brought to the disk once. `at` is told the place in the list that is worked on next. After a failure
    // the files that are in place stay so, and the targets of the others are as they were.
    static void CommitTogether(std::span<const std::unique_ptr<WrittenFile>> files,
                               const std::function<void(std::size_t place)>& at);

  private:
    [[noreturn]] void FailToWrite(int error) const;
    int Descriptor() const noexcept;
    void Flush();
    int SyncError() const noexcept;
    void Close();
    bool TakePlace();
    void Drop() noexcept;

    std::string path_, target_, buffer_;
    std::unique_ptr<TemporaryFile> temporary_;
    int device_ = -1;
    unsigned permissions_ = 0;  // of the file to be replaced; 0 when there is none
};

// Writes a whole file by way of a WrittenFile.
void WriteWholeFile(const std::string& path, std::string_view content,
                    WrittenFile::Target kind = WrittenFile::Target::File);

// The file that a path stands for, behind symbolic links.
std::string RealTarget(const std::string& path);

// Makes what was done to a folder's entries lasting, as far as the file system can.
void SyncFolderOf(const std::string& path) noexcept;

}  // namespace lithmark
