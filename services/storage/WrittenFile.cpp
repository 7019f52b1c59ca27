#include "services/storage/WrittenFile.h"

#include <cerrno>
#include <filesystem>
#include <set>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "services/platform/Files.h"

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

// Writes all bytes, at an offset or, when it is negative, at the current place. The error's number, 0 for none.
int WriteAll(int descriptor, std::string_view bytes, std::int64_t offset) {
    while (!bytes.empty()) {
        const std::int64_t written = offset < 0 ? platform::WriteTo(descriptor, bytes.data(), bytes.size())
                                                : platform::WriteToAt(descriptor, bytes.data(), bytes.size(), offset);
        if (written < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        if (offset >= 0) offset += written;
    }
    return 0;
}

// The folder that a path lies in, with its slash at the end; empty for the current one.
std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

}  // namespace

std::string RealTarget(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) return path;
    const auto real = std::filesystem::weakly_canonical(path, error);
    return error ? path : real.generic_string();
}

WrittenFile::WrittenFile(const std::string& path, Target kind) : path_(path), target_(RealTarget(path)) {
    using Kind = platform::FileState::Kind;
    platform::FileState state;
    if (platform::StateOf(target_, state)) {
        if (state.What == Kind::Regular) {
            if (!platform::MayWrite(target_)) FailToWrite(errno);
            permissions_ = state.Permissions;
        } else {
            if (kind == Target::File || state.What == Kind::Folder) FailToWrite(EISDIR);
            device_ = platform::OpenFile(target_, platform::Open::Write);
            if (device_ < 0) FailToWrite(errno);
            return;
        }
    } else if (errno != ENOENT) {
        FailToWrite(errno);
    }
    temporary_ = std::make_unique<TemporaryFile>(FolderOf(target_), path_);
    if (permissions_ != 0) platform::SetPermissions(temporary_->Descriptor(), permissions_);
}

WrittenFile::~WrittenFile() {
    Drop();
}

void WrittenFile::FailToWrite(int error) const {
    FailWithSystemError(error, FailureKind::WriteError, path_);
}

int WrittenFile::Descriptor() const noexcept {
    return temporary_ ? temporary_->Descriptor() : device_;
}

void WrittenFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void WrittenFile::WriteAt(std::int64_t offset, std::string_view bytes) {
    if (const int error = WriteAll(Descriptor(), bytes, offset)) FailToWrite(error);
}

void WrittenFile::Flush() {
    const std::string bytes = std::exchange(buffer_, {});
    if (const int error = WriteAll(Descriptor(), bytes, -1)) FailToWrite(error);
}

void WrittenFile::Sync() {
    Flush();
    if (const int error = SyncError()) FailToWrite(error);
}

int WrittenFile::SyncError() const noexcept {
    return !temporary_ || platform::SyncFile(temporary_->Descriptor()) == 0 ? 0 : errno;
}

void WrittenFile::Close() {
    if (temporary_)
        temporary_->Close(path_);
    else if (platform::CloseFile(std::exchange(device_, -1)) != 0)
        FailToWrite(errno);
}

// True when the file was put in place, and not written there directly.
bool WrittenFile::TakePlace() {
    if (!temporary_) return false;
    temporary_->TakePlaceOf(target_, path_);
    temporary_.reset();
    return true;
}

void WrittenFile::Commit() {
    bool placed = false;
    try {
        Sync();
        Close();
        placed = TakePlace();
    } catch (...) {
        Drop();
        throw;
    }
    if (placed) SyncFolderOf(target_);
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
            if (errors[i] != 0) files[i]->FailToWrite(errors[i]);
            files[i]->Close();
        });
        each([&](std::size_t i) {
            if (files[i]->TakePlace()) folders.insert(FolderOf(files[i]->target_));
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
    temporary_.reset();
    if (device_ >= 0) platform::CloseFile(std::exchange(device_, -1));
}

void WriteWholeFile(const std::string& path, std::string_view content, WrittenFile::Target kind) {
    WrittenFile file(path, kind);
    file.Append(content);
    file.Commit();
}

void SyncFolderOf(const std::string& path) noexcept {
    platform::SyncFolder(FolderOf(path));
}

}  // namespace lithmark
