// What a sample tells of the whole, with how far it may be wrong.
#pragma once

#include <cstdint>
#include <vector>

#include "study/SortedNumbers.h"

namespace lithmark {

struct Interval {
    double Low, High;
};

// The interval that covers an unknown share in 95 % of all samples, from `beyond` of `count` independent ones: Wilson's
// score interval (1927). It never is of no width: 0 of 1000 gives 0 to 0.0038.
Interval WilsonInterval(std::uint64_t beyond, std::uint64_t count);

// The standard error of a mean from the values of copies that each estimate it: their deviation by the root of their
// number. Fewer than two copies tell nothing: not a number.
double CopiesError(const std::vector<double>& copies);
// The half width, in standard errors, of the 95 % interval from so many copies: the quantile of Student's t.
double CopiesFactor(std::size_t copies);

// Mean and deviation (n - 1) of values.
struct MeanAndDeviation {
    double Mean, Deviation;
};
MeanAndDeviation MeanAndDeviationOf(const std::vector<float>& values);
// Of numbers whose sum is known.
MeanAndDeviation MeanAndDeviationOf(SortedNumbers& numbers, double sum);

// The value that a share of sorted values does not exceed, linear between two.
double SortedQuantile(const std::vector<float>& sorted, double share);
// One for each share.
std::vector<double> SortedQuantiles(SortedNumbers& numbers, const std::vector<double>& shares);

// A share of samples beyond a limit.
struct ShareBeyond {
    double Share, Error, Low, High;  // with its standard error and its 95 % interval
};
// Of independent samples.
ShareBeyond ShareOfSamples(std::uint64_t beyond, std::uint64_t count);
// Of copies, each with its own count: Student's t over the copies; Wilson's interval where they tell of no spread, as
// when none is beyond. One copy is a set of independent samples.
struct CopyCount {
    std::uint64_t Beyond = 0, Count = 0;
};
ShareBeyond ShareOfCopies(const std::vector<CopyCount>& copies);

}  // namespace lithmark
