// GrowingFile: an output that can be read while it grows. It begins beside its target and takes the target's place when
// it has something to show; from then on what is appended is seen there. Until then the target stays as it was.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/storage/OutputTarget.h"

namespace lithmark {

class GrowingFile {
  public:
    // An empty path is standard output. A target that is no regular file is written directly. StudyFailure where the
    // target cannot be written.
    explicit GrowingFile(const std::string& path);

    void Append(std::string_view bytes);
    // What was appended so far is given to the system.
    void Flush();
    // Flush, and the file takes its target's place, once.
    void Settle();
    // Settle, and everything is on the disk.
    void Finish();

  private:
    std::string buffer_;
    std::optional<OutputTarget> target_;  // none for standard output
};

}  // namespace lithmark
