#include "services/storage/WrittenFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <set>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;
constexpr char kTemporaryStart[] = ".lithmark-", kTemporaryEnd[] = ".tmp";

// Writes all bytes, at an offset or, when it is negative, at the current place.
void WriteAll(int descriptor, std::string_view bytes, std::int64_t offset) {
    while (!bytes.empty()) {
        const ssize_t written = offset < 0 ? ::write(descriptor, bytes.data(), bytes.size())
                                           : ::pwrite(descriptor, bytes.data(), bytes.size(), offset);
        if (written < 0) {
            if (errno == EINTR) continue;
            FailWithSystemError(errno, FailureKind::WriteError);
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        if (offset >= 0) offset += written;
    }
}

// The file that a path stands for, behind symbolic links.
std::string RealTarget(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) return path;
    const auto real = std::filesystem::weakly_canonical(path, error);
    return error ? path : real.string();
}

// The folder that a path lies in, with its slash at the end; empty for the current one.
std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

}  // namespace

void FailWithSystemError(int error, FailureKind otherwise) {
    const FailureKind kind = error == ENOENT || error == ENOTDIR                   ? FailureKind::FileMissing
                             : error == EISDIR                                     ? FailureKind::NotAFile
                             : error == EACCES || error == EPERM || error == EROFS ? FailureKind::PermissionDenied
                             : error == ENOSPC || error == EDQUOT                  ? FailureKind::DiskFull
                             : error == ENOMEM                                     ? FailureKind::OutOfMemory
                                                                                   : otherwise;
    Fail(kind, std::generic_category().message(error));
}

WrittenFile::WrittenFile(const std::string& path) : target_(RealTarget(path)) {
    struct stat status {};
    if (::stat(target_.c_str(), &status) == 0) {
        if (::access(target_.c_str(), W_OK) != 0) FailWithSystemError(errno, FailureKind::WriteError);
        if (!S_ISREG(status.st_mode)) {
            descriptor_ = ::open(target_.c_str(), O_WRONLY | O_CLOEXEC);
            if (descriptor_ < 0) FailWithSystemError(errno, FailureKind::WriteError);
            return;
        }
        mode_ = status.st_mode & 07777;
    } else if (errno != ENOENT) {
        FailWithSystemError(errno, FailureKind::WriteError);
    }
    OpenTemporary();
}

WrittenFile::~WrittenFile() {
    Drop();
}

void WrittenFile::OpenTemporary() {
    static std::atomic<unsigned> counter = 0;
    const std::string folder = FolderOf(target_);
    // The name is short whatever the target is called, so that long names can be written too.
    do {
        temporary_ =
            folder + kTemporaryStart + std::to_string(::getpid()) + "-" + std::to_string(++counter) + kTemporaryEnd;
        descriptor_ = ::open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (descriptor_ < 0 && errno == EEXIST);
    if (descriptor_ < 0) {
        const int error = errno;
        temporary_.clear();
        FailWithSystemError(error, FailureKind::WriteError);
    }
    if (mode_ != 0) ::fchmod(descriptor_, mode_);
}

void WrittenFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void WrittenFile::WriteAt(std::int64_t offset, std::string_view bytes) {
    WriteAll(descriptor_, bytes, offset);
}

void WrittenFile::Flush() {
    const std::string bytes = std::exchange(buffer_, {});
    WriteAll(descriptor_, bytes, -1);
}

void WrittenFile::Sync() {
    Flush();
    if (const int error = SyncError()) FailWithSystemError(error, FailureKind::WriteError);
}

int WrittenFile::SyncError() const noexcept {
    return temporary_.empty() || ::fsync(descriptor_) == 0 ? 0 : errno;
}

void WrittenFile::Close() {
    if (::close(std::exchange(descriptor_, -1)) != 0) FailWithSystemError(errno, FailureKind::WriteError);
}

void WrittenFile::TakePlace() {
    if (temporary_.empty()) return;
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0) FailWithSystemError(errno, FailureKind::WriteError);
    temporary_.clear();
}

void WrittenFile::Commit() {
    const bool replaces = !temporary_.empty();
    try {
        Sync();
        Close();
        TakePlace();
    } catch (...) {
        Drop();
        throw;
    }
    if (replaces) SyncFolderOf(target_);
}

void WrittenFile::CommitTogether(std::span<const std::unique_ptr<WrittenFile>> files,
                                 const std::function<void(std::size_t place)>& at) {
    std::set<std::string> folders;
    const auto each = [&](const auto& step) {
        for (std::size_t i = 0; i < files.size(); ++i) {
            at(i);
            step(i);
        }
    };
    try {
        each([&](std::size_t i) { files[i]->Flush(); });
        // The disk brings in what several threads wait for in one go, which takes half the time of one after the other.
        std::vector<int> errors(files.size());
        {
            std::vector<std::jthread> helpers;
            for (std::size_t i = 0; i < files.size(); ++i) {
                const auto sync = [&, i] { errors[i] = files[i]->SyncError(); };
                try {
                    helpers.emplace_back(sync);
                } catch (const std::system_error&) {  // no thread to be had
                    sync();
                }
            }
        }
        each([&](std::size_t i) {
            if (errors[i] != 0) FailWithSystemError(errors[i], FailureKind::WriteError);
            files[i]->Close();
        });
        each([&](std::size_t i) {
            const bool replaces = !files[i]->temporary_.empty();
            files[i]->TakePlace();
            if (replaces) folders.insert(FolderOf(files[i]->target_));
        });
    } catch (...) {
        for (const auto& file : files) file->Drop();
        for (const std::string& folder : folders) SyncFolderOf(folder);
        throw;
    }
    for (const std::string& folder : folders) SyncFolderOf(folder);
}

void WrittenFile::Drop() noexcept {
    buffer_.clear();
    if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
    temporary_.clear();
}

void WriteWholeFile(const std::string& path, std::string_view content) {
    WrittenFile file(path);
    file.Append(content);
    file.Commit();
}

std::string ReadWholeFile(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) FailWithSystemError(errno, FailureKind::ReadError);
    std::string content;
    int error = 0;
    try {
        struct stat status {};
        if (::fstat(descriptor, &status) != 0) {
            error = errno;
        } else if (!S_ISREG(status.st_mode)) {
            error = EISDIR;
        } else {
            content.resize(static_cast<std::size_t>(status.st_size) + 1);
            std::size_t length = 0;
            for (;;) {
                const ssize_t count = ::read(descriptor, content.data() + length, content.size() - length);
                if (count < 0 && errno == EINTR) continue;
                if (count < 0) error = errno;
                if (count <= 0) break;
                length += static_cast<std::size_t>(count);
                if (length == content.size()) content.resize(content.size() * 2);
            }
            content.resize(length);
        }
    } catch (const std::exception&) {  // no memory for the content
        error = ENOMEM;
    }
    ::close(descriptor);
    if (error != 0) FailWithSystemError(error, FailureKind::ReadError);
    return content;
}

void RemoveStaleTemporaries(const std::string& folder) noexcept {
    namespace fs = std::filesystem;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (!name.starts_with(kTemporaryStart) || !name.ends_with(kTemporaryEnd)) continue;
        std::error_code ofFile;
        const auto age = fs::file_time_type::clock::now() - it->last_write_time(ofFile);
        if (!ofFile && age > std::chrono::hours(24)) fs::remove(it->path(), ofFile);
    }
}

void SyncFolderOf(const std::string& path) noexcept {
    const std::string folder = FolderOf(path);
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace lithmark
