#include "services/storage/OutputTarget.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/Failure.h"
#include "base/Paths.h"
#include "services/platform/Files.h"

namespace lithmark {

namespace {

// The file that a path stands for, behind symbolic links.
std::string RealTarget(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_symlink(PathOf(path), error)) return path;
    const auto real = std::filesystem::weakly_canonical(PathOf(path), error);
    return error ? path : real.generic_string();
}

}  // namespace

int WriteAllTo(int descriptor, std::string_view bytes, std::int64_t offset) noexcept {
    while (!bytes.empty()) {
        const std::int64_t written = offset < 0 ? platform::WriteTo(descriptor, bytes.data(), bytes.size())
                                                : platform::WriteToAt(descriptor, bytes.data(), bytes.size(), offset);
        if (written < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        if (offset >= 0) offset += written;
    }
    return 0;
}

OutputTarget::OutputTarget(std::string path, Takes takes) : path_(std::move(path)), target_(RealTarget(path_)) {
    using Kind = platform::FileState::Kind;
    platform::FileState state;
    const bool exists = platform::StateOf(target_, state);
    if (!exists && errno != ENOENT) FailToWrite(errno);
    if (exists && state.What != Kind::Regular) {
        if (takes == Takes::File || state.What == Kind::Folder) FailToWrite(EISDIR);
        device_ = platform::OpenFile(target_, platform::Open::Write);
        if (device_ < 0) FailToWrite(errno);
        return;
    }
    if (exists && !platform::MayWrite(target_)) FailToWrite(errno);
    temporary_.emplace(Folder(), path_);
    if (exists && state.Permissions != 0) platform::SetPermissions(temporary_->Descriptor(), state.Permissions);
}

OutputTarget::~OutputTarget() {
    if (device_ >= 0) platform::CloseFile(device_);
}

void OutputTarget::FailToWrite(int error) const {
    FailWithSystemError(error, FailureKind::WriteError, path_);
}

std::string OutputTarget::Folder() const {
    const auto slash = target_.rfind('/');
    return slash == std::string::npos ? "" : target_.substr(0, slash + 1);
}

void OutputTarget::Write(std::string_view bytes) {
    if (const int error = WriteAllTo(Descriptor(), bytes)) FailToWrite(error);
}

void OutputTarget::WriteAt(std::int64_t offset, std::string_view bytes) {
    if (const int error = WriteAllTo(Descriptor(), bytes, offset)) FailToWrite(error);
}

int OutputTarget::SyncError() const noexcept {
    return !temporary_ || platform::SyncFile(temporary_->Descriptor()) == 0 ? 0 : errno;
}

void OutputTarget::Sync() const {
    if (const int error = SyncError()) FailToWrite(error);
}

void OutputTarget::Close() {
    if (temporary_)
        temporary_->Close(path_);
    else if (platform::CloseFile(std::exchange(device_, -1)) != 0)
        FailToWrite(errno);
}

bool OutputTarget::TakePlace() {
    if (!temporary_ || temporary_->Name().empty()) return false;
    temporary_->TakePlaceOf(target_, path_);
    return true;
}

void OutputTarget::SyncFolder() const noexcept {
    if (temporary_) platform::SyncFolder(Folder());
}

}  // namespace lithmark
