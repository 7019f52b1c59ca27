#include "study/ScratchFolders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "study/StudyFailure.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

std::string TemporaryFolder() {
    const char* named = std::getenv("TMPDIR");
    return named && *named ? named : "/tmp";
}

}  // namespace

ScratchFolders::ScratchFolders() : root_(TemporaryFolder() + "/lithmark-study-XXXXXX") {
    if (!mkdtemp(root_.data())) FailStudyFile(908000_text, TemporaryFolder());
}

ScratchFolders::~ScratchFolders() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

std::string ScratchFolders::Fresh(int worker) const {
    const fs::path folder = fs::path(root_) / std::to_string(worker);
    std::error_code error;
    fs::remove_all(folder, error);
    fs::create_directory(folder, error);
    if (error) FailStudyFile(908000_text, root_);
    return folder.string() + "/";
}

void ScratchFolders::Leave(int worker) const noexcept {
    std::error_code ignored;
    fs::remove_all(fs::path(root_) / std::to_string(worker), ignored);
    fs::remove(root_, ignored);
}

}  // namespace lithmark
