#include "study/GrowingFile.h"

#include <utility>

#include "base/Failure.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 18;

// Does a step; its failure becomes the study's.
template <class Step>
void Told(const Step& step) {
    try {
        step();
    } catch (const Failure& failure) {
        throw StudyFailure(StudyFailure::Cause::File, SharedServices().FailureText(failure));
    }
}

}  // namespace

GrowingFile::GrowingFile(const std::string& path) {
    if (!path.empty()) Told([&] { target_.emplace(path, OutputTarget::Takes::FileOrDevice); });
}

void GrowingFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void GrowingFile::Flush() {
    const std::string bytes = std::exchange(buffer_, {});
    if (target_)
        Told([&] { target_->Write(bytes); });
    else if (WriteAllTo(platform::kStandardOutput, bytes) != 0)
        FailStudyFile(902001_text, {});
}

void GrowingFile::Settle() {
    Flush();
    if (target_) Told([&] { target_->TakePlace(); });
}

void GrowingFile::Finish() {
    Flush();
    if (target_) Told([&] { target_->Sync(); });
    Settle();
    if (target_) target_->SyncFolder();
}

}  // namespace lithmark
