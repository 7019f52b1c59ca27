// Blocks of work shared by threads: each is worked once, and the caller can end them.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "services/numerics/SharedBlocks.h"

namespace lithmark::tests {
namespace {

TEST(SharedBlocks, EachPlaceIsWorkedOnce) {
    for (const int threads : {1, 2, 5}) {
        for (const int count : {0, 1, 10, 31, 1000}) {
            std::vector<std::atomic<int>> worked(static_cast<std::size_t>(count));
            ShareBlocks(
                count, 10, threads,
                [&](int first, int last) {
                    EXPECT_EQ(first % 10, 0);
                    EXPECT_TRUE(last == first + 10 || last == count);
                    for (int i = first; i < last; ++i) ++worked[static_cast<std::size_t>(i)];
                },
                [](double) {});
            for (const auto& times : worked) EXPECT_EQ(times, 1);
        }
    }
}

TEST(SharedBlocks, TellThePartThatIsTaken) {
    std::vector<double> told;
    ShareBlocks(
        40, 10, 1, [](int, int) {}, [&told](double part) { told.push_back(part); });
    EXPECT_EQ(told, (std::vector<double>{0, 0.25, 0.5, 0.75}));
}

// The helpers, which are slow here, take nothing more once the caller has thrown.
TEST(SharedBlocks, EndWhenTheCallerThrows) {
    for (const int threads : {1, 4}) {
        const std::thread::id caller = std::this_thread::get_id();
        std::atomic<int> worked = 0;
        const auto work = [&](int, int) {
            ++worked;
            if (std::this_thread::get_id() != caller) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        };
        const auto end = [](double) { throw std::runtime_error("ended"); };
        EXPECT_THROW(ShareBlocks(1'000'000, 1, threads, work, end), std::runtime_error);
        EXPECT_LT(worked, 1'000'000);
    }
}

TEST(SharedBlocks, ProcessorsStayInTheirBounds) {
    EXPECT_EQ(ProcessorsUpTo(1), 1);
    EXPECT_EQ(ProcessorsUpTo(0), 1);
    EXPECT_GE(ProcessorsUpTo(1000), 1);
    EXPECT_LE(ProcessorsUpTo(2), 2);
}

}  // namespace
}  // namespace lithmark::tests
