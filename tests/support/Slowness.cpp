#include "Slowness.h"

#include <algorithm>
#include <ctime>
#include <vector>

namespace lithmark::tests {
namespace {

double MeasuredSlowness() {
    constexpr int kRow = 4000, kTimes = 12000, kTries = 5;
    constexpr double kUsual = 0.004;  // seconds
    std::vector<float> row(kRow, 1.0F), sum(kRow, 0.5F);
    double shortest = 1e9;
    for (int i = 0; i < kTries; ++i) {
        const std::clock_t begin = std::clock();
        for (int times = 0; times < kTimes; ++times) {
            const volatile float factor = 1e-3F;
            const float by = factor;
            for (int k = 0; k < kRow; ++k) sum[static_cast<std::size_t>(k)] -= by * row[static_cast<std::size_t>(k)];
        }
        const volatile float kept = sum.back();
        (void)kept;
        shortest = std::min(shortest, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return std::max(1.0, shortest / kUsual);
}

}  // namespace

double Slowness() {
    static const double kMeasured = MeasuredSlowness();
    return kMeasured;
}

}  // namespace lithmark::tests
