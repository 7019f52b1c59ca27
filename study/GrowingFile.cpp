#include "study/GrowingFile.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "base/Failure.h"
#include "services/SharedServices.h"
#include "services/platform/Files.h"
#include "services/platform/Process.h"
#include "services/storage/WrittenFile.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 18;

}  // namespace

GrowingFile::GrowingFile(const std::string& path) : path_(path), descriptor_(platform::kStandardOutput) {
    if (path.empty()) return;
    target_ = RealTarget(path);
    platform::FileState state;
    const bool exists = platform::StateOf(target_, state);
    if (exists && !platform::MayWrite(target_)) FailHere(errno);
    if (exists && state.What != platform::FileState::Kind::Regular) {
        device_ = descriptor_ = platform::OpenFile(target_, platform::Open::Write);
        if (descriptor_ < 0) FailHere(errno);
        return;
    }
    const auto folder = std::filesystem::path(target_).parent_path().generic_string();
    Told([&] { temporary_.emplace(folder.empty() || folder.ends_with('/') ? folder : folder + '/', path_); });
    descriptor_ = temporary_->Descriptor();
    if (exists) platform::SetPermissions(descriptor_, state.Permissions);
}

GrowingFile::~GrowingFile() {
    if (device_ >= 0) platform::CloseFile(device_);
}

template <class Step>
void GrowingFile::Told(const Step& step) const {
    try {
        step();
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path_);
        throw StudyFailure(StudyFailure::Cause::File, SharedServices().FailureText(failure));
    }
}

void GrowingFile::FailHere(int error) const {
    if (path_.empty()) FailStudyFile(902001_text, {});
    Told([&] { FailWithSystemError(error, FailureKind::WriteError); });
    std::abort();  // never reached
}

void GrowingFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void GrowingFile::Flush() {
    const std::string bytes = std::exchange(buffer_, {});
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::int64_t written = platform::WriteTo(descriptor_, rest.data(), rest.size());
        if (written < 0) FailHere(errno);
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

void GrowingFile::Settle() {
    Flush();
    if (!temporary_ || temporary_->Name().empty()) return;
    Told([&] { temporary_->TakePlaceOf(target_, path_); });
}

void GrowingFile::Finish() {
    Flush();
    if (temporary_ && platform::SyncFile(descriptor_) != 0) FailHere(errno);
    Settle();
    if (temporary_) SyncFolderOf(target_);
}

}  // namespace lithmark
