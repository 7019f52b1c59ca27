// WrittenFile: an output file that is written whole or not at all.
//
// The content goes to an OutputTarget. Commit puts it in place, so that after a crash, a full disk or a pulled plug the
// target is either the old file or the new one. Without Commit the target stays as it was and nothing is left behind.
// Every failure names the path that was to be written.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "services/storage/OutputTarget.h"

namespace lithmark {

class WrittenFile {
  public:
    using Target = OutputTarget::Takes;

    // Fails as OutputTarget does.
    explicit WrittenFile(const std::string& path, Target kind = Target::File);

    void Append(std::string_view bytes);
    // Bytes at an offset from the start; what lies between is zero. Not to be mixed with Append.
    void WriteAt(std::int64_t offset, std::string_view bytes) { target_->WriteAt(offset, bytes); }
    // Everything on the disk, but not in place yet.
    void Sync();
    // Where the content of a regular file stands until Commit.
    const std::string& TemporaryName() const noexcept { return target_->TemporaryName(); }
    // Everything on the disk and in place. When it fails, the target is as it was.
    void Commit();

    // The same for files that belong together: all of them come to the disk before the first takes its place, and each
    // folder is brought to the disk once. `at` is told the place in the list that is worked on next. After a failure
    // the files that are in place stay so, and the targets of the others are as they were.
    static void CommitTogether(std::span<const std::unique_ptr<WrittenFile>> files,
                               const std::function<void(std::size_t place)>& at);

  private:
    void Flush();
    void Drop() noexcept;

    std::string buffer_;
    std::optional<OutputTarget> target_;  // none after a failure
};

// Writes a whole file by way of a WrittenFile.
void WriteWholeFile(const std::string& path, std::string_view content,
                    WrittenFile::Target kind = WrittenFile::Target::File);

}  // namespace lithmark
