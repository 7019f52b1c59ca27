// Very many numbers kept sorted: none is lost or bent, whatever they are and in whatever order they come, and a million
// of them take a byte or two each.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "study/SortedNumbers.h"
#include "study/Statistics.h"

namespace lithmark::tests {
namespace {

SortedNumbers Store(const std::vector<float>& numbers) {
    SortedNumbers store;
    for (const float number : numbers) store.Add(number);
    return store;
}

std::vector<float> Listed(SortedNumbers& store) {
    std::vector<float> numbers;
    store.ForEach([&](float number, std::uint64_t times) { numbers.insert(numbers.end(), times, number); });
    return numbers;
}

std::vector<float> LogNormals(std::size_t count) {
    std::mt19937_64 random(14);
    std::normal_distribution<double> normal(4, 0.2);
    std::vector<float> numbers(count);
    for (float& number : numbers) number = static_cast<float>(std::exp(normal(random)));
    return numbers;
}

void ExpectSorted(std::vector<float> numbers) {
    SortedNumbers store = Store(numbers);
    EXPECT_EQ(store.Count(), numbers.size());
    std::ranges::sort(numbers);
    EXPECT_EQ(Listed(store), numbers);
    EXPECT_EQ(Listed(store), numbers) << "a second time";
}

TEST(SortedNumbersOfAStudy, AreTheNumbersThatWereAdded) {
    // Blocks that are full, nearly full and just begun.
    for (const std::size_t count : {0U, 1U, 2U, 8191U, 8192U, 8193U, 16384U, 100000U}) {
        SCOPED_TRACE(count);
        ExpectSorted(LogNormals(count));
    }
}

TEST(SortedNumbersOfAStudy, AreOfEverySizeAndSign) {
    using Limits = std::numeric_limits<float>;
    std::vector<float> numbers = {Limits::max(),  Limits::lowest(),     Limits::min(),
                                  -Limits::min(), Limits::denorm_min(), -Limits::denorm_min()};
    std::mt19937 random(1);
    while (numbers.size() < 50000) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(number)) numbers.push_back(number);
    }
    ExpectSorted(numbers);
    std::ranges::sort(numbers);
    ExpectSorted(numbers);
    std::ranges::reverse(numbers);
    ExpectSorted(numbers);
}

TEST(SortedNumbersOfAStudy, ZeroAndItsNegativeAreOne) {
    SortedNumbers store = Store({-0.0F, 0, -1, -0.0F, 1});
    std::vector<std::pair<float, std::uint64_t>> items;
    store.ForEach([&](float number, std::uint64_t times) { items.emplace_back(number, times); });
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[1].second, 3u);
    EXPECT_FALSE(std::signbit(items[1].first));
}

TEST(SortedNumbersOfAStudy, GoOnAfterTheyWereListed) {
    std::vector<float> numbers = LogNormals(30000);
    SortedNumbers store = Store(numbers);
    Listed(store);
    for (const float number : {3.0F, 1e9F, -7.0F}) {
        store.Add(number);
        numbers.push_back(number);
    }
    std::ranges::sort(numbers);
    EXPECT_EQ(Listed(store), numbers);
}

// Where nothing but the order is kept, a million numbers of a sixth of their range lie some ten steps apart.
TEST(SortedNumbersOfAStudy, TakeAByteOrTwoEach) {
    SortedNumbers store = Store(LogNormals(1000000));
    std::uint64_t listed = 0;
    store.ForEach([&](float, std::uint64_t times) { listed += times; });
    EXPECT_EQ(listed, 1000000u);
    EXPECT_LT(store.Bytes(), 1300000u);
    SortedNumbers few;
    for (int i = 0; i < 1000000; ++i) few.Add(static_cast<float>(i % 10));
    few.ForEach([](float, std::uint64_t times) { EXPECT_EQ(times, 100000u); });
    EXPECT_LT(few.Bytes(), 10000u);
}

TEST(SortedNumbersOfAStudy, HaveTheMomentsAndQuantilesOfTheirList) {
    SortedNumbers none;
    EXPECT_TRUE(std::isnan(SortedQuantiles(none, {0.5}).front()));
    for (const std::size_t count : {1U, 2U, 3U, 20U, 21U, 9000U, 100000U}) {
        SCOPED_TRACE(count);
        std::vector<float> numbers = LogNormals(count);
        for (std::size_t i = 0; i < count; i += 3) numbers[i] = std::round(numbers[i]);  // many repeat
        double sum = 0;
        for (const float number : numbers) sum += static_cast<double>(number);
        SortedNumbers store = Store(numbers);
        const MeanAndDeviation listed = MeanAndDeviationOf(numbers), stored = MeanAndDeviationOf(store, sum);
        EXPECT_EQ(stored.Mean, listed.Mean);
        if (count > 1) {
            EXPECT_NEAR(stored.Deviation, listed.Deviation, 1e-12 * listed.Deviation);
        } else {
            EXPECT_TRUE(std::isnan(stored.Deviation));
        }
        std::ranges::sort(numbers);
        const std::vector<double> shares = {0, 0.05, 0.5, 0.95, 1}, quantiles = SortedQuantiles(store, shares);
        for (std::size_t i = 0; i < shares.size(); ++i) EXPECT_EQ(quantiles[i], SortedQuantile(numbers, shares[i]));
    }
}

}  // namespace
}  // namespace lithmark::tests
