// Work that several threads do together, block by block.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <system_error>
#include <thread>
#include <vector>

namespace lithmark {

// The threads that this machine runs at once, between 1 and `most`.
inline int ProcessorsUpTo(int most) {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, std::max(1, most));
}

// Calls work(first, last) once for each block of `size` of the places 0 to count - 1 (the last block may be shorter);
// this thread and threads - 1 helpers take the next free block. Who works a block must not change its outcome. `work`
// must not throw. After each of its blocks this thread calls done(part), the part that is taken by then, 0 to 1; when
// that throws, the helpers stop behind their block and the exception leaves.
template <typename Work, typename Done>
void ShareBlocks(int count, int size, int threads, const Work& work, const Done& done) {
    std::atomic<int> next = 0;
    const auto take = [&](const auto& blockDone) {
        for (int first = next.fetch_add(size); first < count; first = next.fetch_add(size)) {
            work(first, std::min(first + size, count));
            blockDone(static_cast<double>(first) / count);
        }
    };
    std::vector<std::jthread> helpers;
    try {
        helpers.reserve(static_cast<std::size_t>(threads - 1));
        while (static_cast<int>(helpers.size()) < threads - 1) helpers.emplace_back([&take] { take([](double) {}); });
    } catch (const std::system_error&) {
        // A thread that cannot be started is missed by nobody: this one takes all blocks that are left.
    }
    try {
        take(done);
    } catch (...) {
        next = count;
        throw;
    }
}

}  // namespace lithmark
