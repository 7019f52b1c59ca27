#include "services/storage/WrittenFile.h"

#include <set>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "services/platform/Files.h"

namespace lithmark {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

}  // namespace

WrittenFile::WrittenFile(const std::string& path, Target kind) {
    target_.emplace(path, kind);
}

void WrittenFile::Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (buffer_.size() >= kBufferSize) Flush();
}

void WrittenFile::Flush() {
    target_->Write(std::exchange(buffer_, {}));
}

void WrittenFile::Sync() {
    Flush();
    target_->Sync();
}

void WrittenFile::Commit() {
    try {
        Sync();
        target_->Close();
        if (!target_->TakePlace()) return;
    } catch (...) {
        Drop();
        throw;
    }
    target_->SyncFolder();
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
                const auto sync = [&, i] { errors[i] = files[i]->target_->SyncError(); };
                try {
                    helpers.emplace_back(sync);
                } catch (const std::system_error&) {  // no thread to be had
                    sync();
                }
            }
        }
        each([&](std::size_t i) {
            if (errors[i] != 0) files[i]->target_->FailToWrite(errors[i]);
            files[i]->target_->Close();
        });
        each([&](std::size_t i) {
            OutputTarget& target = *files[i]->target_;
            if (target.TakePlace()) folders.insert(target.Folder());
        });
    } catch (...) {
        for (const auto& file : files) file->Drop();
        for (const std::string& folder : folders) platform::SyncFolder(folder);
        throw;
    }
    for (const std::string& folder : folders) platform::SyncFolder(folder);
}

void WrittenFile::Drop() noexcept {
    buffer_.clear();
    target_.reset();
}

void WriteWholeFile(const std::string& path, std::string_view content, WrittenFile::Target kind) {
    WrittenFile file(path, kind);
    file.Append(content);
    file.Commit();
}

}  // namespace lithmark
