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

// Between which of sorted values a share ends, and how far from the lower one.
struct Place {
    Place(double share, std::uint64_t count) {
        const double place = share * static_cast<double>(count - 1);
        Below = static_cast<std::uint64_t>(place);
        Above = std::min(Below + 1, count - 1);
        Part = place - static_cast<double>(Below);
    }
    double Between(double low, double high) const { return low + Part * (high - low); }

    std::uint64_t Below, Above;
    double Part;
};

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

MeanAndDeviation MeanAndDeviationOf(SortedNumbers& numbers, double sum) {
    if (numbers.Count() == 0) return {kNoNumber, kNoNumber};
    const auto n = static_cast<double>(numbers.Count());
    const double mean = sum / n;
    double squares = 0;
    numbers.ForEach([&](double number, std::uint64_t times) {
        squares += static_cast<double>(times) * ((number - mean) * (number - mean));
    });
    return {mean, numbers.Count() > 1 ? std::sqrt(squares / (n - 1)) : kNoNumber};
}

double SortedQuantile(const std::vector<float>& sorted, double share) {
    if (sorted.empty()) return kNoNumber;
    const Place place(share, sorted.size());
    return place.Between(sorted[place.Below], sorted[place.Above]);
}

std::vector<double> SortedQuantiles(SortedNumbers& numbers, const std::vector<double>& shares) {
    std::vector<double> quantiles(shares.size(), kNoNumber);
    if (numbers.Count() == 0) return quantiles;
    std::vector<Place> places;
    places.reserve(shares.size());
    for (const double share : shares) places.emplace_back(share, numbers.Count());
    std::uint64_t passed = 0;
    std::vector<double> lower(shares.size());
    numbers.ForEach([&](double number, std::uint64_t times) {
        const auto here = [&](std::uint64_t at) { return passed <= at && at < passed + times; };
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (here(places[i].Below)) lower[i] = number;
            if (here(places[i].Above)) quantiles[i] = places[i].Between(lower[i], number);
        }
        passed += times;
    });
    return quantiles;
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
