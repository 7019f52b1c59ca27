#include "services/storage/ProjectLock.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "base/Paths.h"
#include "base/Utf8.h"
#include "services/platform/Files.h"
#include "services/platform/Process.h"
#include "services/storage/TemporaryFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kTries = 5;
constexpr std::chrono::milliseconds kPause(20);

std::string LockFileOf(const std::string& project) {
    const std::filesystem::path path = PathOf(project);
    return (path.parent_path() / (std::string(kHiddenStart) + path.filename().string() + ".lock")).generic_string();
}

// Who this process is, a line each: user, machine, process.
std::string Card() {
    return platform::UserName() + "\n" + platform::MachineName() + "\n" + std::to_string(platform::ProcessId()) + "\n";
}

// Who holds a lock, by the card in its file; the card may still be missing.
std::string HolderIn(int descriptor) {
    std::array<char, 512> bytes;
    const std::int64_t count = platform::ReadFromAt(descriptor, bytes.data(), bytes.size(), 0);
    std::vector<std::string> lines =
        Split(std::string_view(bytes.data(), static_cast<std::size_t>(count < 0 ? 0 : count)), '\n');
    lines.resize(3);
    return Text(909010_text, {{"|1", Excerpt(lines[0])}, {"|2", Excerpt(lines[1])}, {"|3", Excerpt(lines[2])}});
}

// True when the descriptor's file is the one that stands under the name; a holder removes the file as it leaves.
bool StandsUnder(int descriptor, const std::string& file) {
    platform::FileState open, named;
    return platform::StateOf(descriptor, open) && platform::StateOf(file, named) && open.Device == named.Device &&
           open.Number == named.Number;
}

}  // namespace

// Who tidies up the folder holds the lock for a moment, so a lock that is held is tried again before that is told.
ProjectLock::ProjectLock(const std::string& project) : project_(project) {
    const std::string file = LockFileOf(project);
    for (int tries = 1; !TryOnce(file, tries < kTries); ++tries) std::this_thread::sleep_for(kPause);
}

// False when the lock is to be tried again: it is held, or the file went away under it.
bool ProjectLock::TryOnce(const std::string& file, bool again) {
    using namespace platform;
    // No link is followed: the name is the program's own, and what it leads to need not be.
    int descriptor = OpenFile(file, Open::Card);
    // The file of another user, who may well hold the lock.
    if (descriptor < 0 && errno == EACCES) descriptor = OpenFile(file, Open::ReadOwnName);
    if (descriptor < 0) return true;
    const Locked lock = TryLock(descriptor);
    if (lock != Locked::Yes) {
        const bool held = lock == Locked::HeldByAnother;
        const std::string holder = held ? HolderIn(descriptor) : std::string();
        CloseFile(descriptor);
        if (held && !again) FailInFile(FailureKind::ProjectInUse, project_, holder);
        return !held;
    }
    if (!StandsUnder(descriptor, file)) {
        CloseFile(descriptor);
        return false;
    }
    descriptor_ = descriptor;
    file_ = file;
    process_ = ProcessId();
    registered_ = std::make_unique<RemovedOnEnd>(file_);
    const std::string card = Card();
    // A card that cannot be written leaves the holder unnamed; the lock holds all the same.
    if (CutFile(descriptor_) == 0) static_cast<void>(WriteToAt(descriptor_, card.data(), card.size(), 0) < 0);
    return true;
}

ProjectLock::~ProjectLock() {
    if (descriptor_ < 0) return;
    // A process that was forked off has the lock's descriptor too; the file is its maker's.
    if (process_ == platform::ProcessId() && StandsUnder(descriptor_, file_)) platform::RemoveFile(file_.c_str());
    registered_.reset();
    platform::CloseFile(descriptor_);
}

std::string HolderOfProject(const std::string& project) {
    const int descriptor = platform::OpenFile(LockFileOf(project), platform::Open::ReadOwnName);
    if (descriptor < 0) return {};
    const bool held = platform::TryLock(descriptor) == platform::Locked::HeldByAnother;
    std::string holder = held ? HolderIn(descriptor) : std::string();
    platform::CloseFile(descriptor);
    return holder;
}

}  // namespace lithmark
