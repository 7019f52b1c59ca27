#include "study/GrowingFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 18;

std::string TargetOf(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) return path;
    const auto real = std::filesystem::weakly_canonical(path, error);
    return error ? path : real.string();
}

}  // namespace

GrowingFile::GrowingFile(const std::string& path) : path_(path), descriptor_(STDOUT_FILENO) {
    if (path.empty()) return;
    target_ = TargetOf(path);
    struct stat status {};
    const bool exists = stat(target_.c_str(), &status) == 0;
    if (exists && access(target_.c_str(), W_OK) != 0) FailHere(errno);
    if (exists && !S_ISREG(status.st_mode)) {
        descriptor_ = open(target_.c_str(), O_WRONLY | O_CLOEXEC);
    } else {
        const auto folder = std::filesystem::path(target_).parent_path();
        temporary_ = (folder / (".lithmark-" + std::to_string(getpid()) + "-study.tmp")).string();
        descriptor_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (descriptor_ >= 0 && exists) fchmod(descriptor_, status.st_mode & 07777);
    }
    if (descriptor_ < 0) {
        const int error = errno;
        temporary_.clear();
        FailHere(error);
    }
    owned_ = true;
}

GrowingFile::~GrowingFile() {
    if (owned_) close(descriptor_);
    if (!temporary_.empty()) unlink(temporary_.c_str());
}

void GrowingFile::FailHere(int error) const {
    if (path_.empty()) FailStudyFile(902001_text, {});
    try {
        FailWithSystemError(error, FailureKind::WriteError);
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path_);
        throw StudyFailure(StudyFailure::Cause::File, SharedServices().FailureText(failure));
    }
}

void GrowingFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void GrowingFile::Flush() {
    const std::string bytes = std::exchange(buffer_, {});
    for (std::string_view rest = bytes; !rest.empty();) {
        const ssize_t written = write(descriptor_, rest.data(), rest.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) FailHere(errno);
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

void GrowingFile::Settle() {
    Flush();
    if (temporary_.empty()) return;
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0) FailHere(errno);
    temporary_.clear();
}

void GrowingFile::Finish() {
    Flush();
    const bool regular =
        !target_.empty() && std::filesystem::is_regular_file(temporary_.empty() ? target_ : temporary_);
    if (regular && fsync(descriptor_) != 0) FailHere(errno);
    Settle();
    if (regular) SyncFolderOf(target_);
}

}  // namespace lithmark
