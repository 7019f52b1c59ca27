#include "study/Statistics.h"

#include <algorithm>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>
#include <limits>

namespace lithmark {

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
// The standard normal value that 2.5 % exceed.
constexpr double kZ = 1.959963984540054;

}  // namespace

Interval WilsonInterval(std::uint64_t beyond, std::uint64_t count) {
    if (count == 0) return {0, 1};
    const auto n = static_cast<double>(count);
    const double p = static_cast<double>(beyond) / n, z2 = kZ * kZ;
    const double centre = (p + z2 / (2 * n)) / (1 + z2 / n);
    const double half = kZ / (1 + z2 / n) * std::sqrt(p * (1 - p) / n + z2 / (4 * n * n));
    return {beyond == 0 ? 0 : std::max(0.0, centre - half), beyond == count ? 1 : std::min(1.0, centre + half)};
}

double CopiesError(const std::vector<double>& copies) {
    if (copies.size() < 2) return kNoNumber;
    const auto n = static_cast<double>(copies.size());
    double sum = 0, squares = 0;
    for (const double value : copies) sum += value;
    for (const double value : copies) squares += (value - sum / n) * (value - sum / n);
    return std::sqrt(squares / (n - 1) / n);
}

double CopiesFactor(std::size_t copies) {
    const boost::math::students_t student(static_cast<double>(copies) - 1);
    return boost::math::quantile(student, 0.975);
}

MeanAndDeviation MeanAndDeviationOf(const std::vector<float>& values) {
    const auto n = static_cast<double>(values.size());
    if (values.empty()) return {kNoNumber, kNoNumber};
    double sum = 0, squares = 0;
    for (const float value : values) sum += value;
    const double mean = sum / n;
    for (const float value : values) squares += (value - mean) * (value - mean);
    return {mean, values.size() > 1 ? std::sqrt(squares / (n - 1)) : kNoNumber};
}

double SortedQuantile(const std::vector<float>& sorted, double share) {
    if (sorted.empty()) return kNoNumber;
    const double place = share * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    const double low = sorted[below], high = sorted[above];
    return low + (place - static_cast<double>(below)) * (high - low);
}

ShareBeyond ShareOfSamples(std::uint64_t beyond, std::uint64_t count) {
    const Interval interval = WilsonInterval(beyond, count);
    if (count == 0) return {kNoNumber, kNoNumber, interval.Low, interval.High};
    const double share = static_cast<double>(beyond) / static_cast<double>(count);
    return {share, std::sqrt(share * (1 - share) / static_cast<double>(count)), interval.Low, interval.High};
}

ShareBeyond ShareOfCopies(const std::vector<CopyCount>& copies) {
    CopyCount all;
    std::vector<double> shares;
    for (const CopyCount& copy : copies) {
        all.Beyond += copy.Beyond;
        all.Count += copy.Count;
        if (copy.Count > 0) shares.push_back(static_cast<double>(copy.Beyond) / static_cast<double>(copy.Count));
    }
    ShareBeyond result = ShareOfSamples(all.Beyond, all.Count);
    if (shares.size() < 2) return result;
    result.Error = CopiesError(shares);
    if (!(result.Error > 0)) return result;
    const double half = CopiesFactor(shares.size()) * result.Error;
    result.Low = std::max(0.0, result.Share - half);
    result.High = std::min(1.0, result.Share + half);
    return result;
}

}  // namespace lithmark
