#include "services/platform/RemovedOnEnd.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>

#include "services/platform/Files.h"
#include "services/platform/Process.h"

namespace lithmark {

namespace {

constexpr int kSlots = 64;
constexpr std::size_t kLongestPath = 4096;

enum class SlotState { Free, Filling, Registered };

// Plain memory: a signal handler may read nothing else.
struct Slot {
    std::atomic<SlotState> State = SlotState::Free;
    int Process = 0;  // a process that was forked off has the slots too, and not the files
    std::array<char, kLongestPath> Path;
};
std::array<Slot, kSlots> slots;
static_assert(std::atomic<SlotState>::is_always_lock_free);

extern "C" {
static void OnEndingSignal(int signal) {
    RemoveRegisteredFiles();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}
}  // extern "C"

}  // namespace

RemovedOnEnd::RemovedOnEnd(const std::string& path) noexcept : slot_(-1) {
    if (path.size() >= kLongestPath) return;
    for (int i = 0; i < kSlots && slot_ < 0; ++i) {
        Slot& slot = slots[static_cast<std::size_t>(i)];
        SlotState expected = SlotState::Free;
        if (!slot.State.compare_exchange_strong(expected, SlotState::Filling)) continue;
        std::memcpy(slot.Path.data(), path.c_str(), path.size() + 1);
        slot.Process = platform::ProcessId();
        slot.State = SlotState::Registered;
        slot_ = i;
    }
}

RemovedOnEnd::~RemovedOnEnd() {
    if (slot_ >= 0) slots[static_cast<std::size_t>(slot_)].State = SlotState::Free;
}

void RemoveRegisteredFiles() noexcept {
    // Folders when they are empty.
    for (const auto remove : {platform::RemoveFile, platform::RemoveEmptyFolder})
        for (const Slot& slot : slots)
            if (slot.State == SlotState::Registered && slot.Process == platform::ProcessId()) remove(slot.Path.data());
}

void EndCleanlyOnSignals() {
    for (const int signal : platform::EndingSignals())
        if (std::signal(signal, OnEndingSignal) == SIG_IGN) std::signal(signal, SIG_IGN);  // as nohup wants it
    platform::FailOnFileSizeLimit();
}

}  // namespace lithmark
