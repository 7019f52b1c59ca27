// What a study gives as charts: curves over a field, and how often a random result takes which values.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "services/host/Charting.h"
#include "study/window/StudyCurves.h"

namespace lithmark {

// With the limit, the present value and the crossings, where there are any, as curves of their own.
ChartArguments CurveChart(const StudyQuestion& asked, const StudyCurves& curves);

// Shares of samples in bins of one width; the edges are round numbers in the unit of the windows.
struct Histogram {
    double First = 0, Width = 1;      // of the first bin
    std::vector<std::size_t> Counts;  // by bin
    std::size_t Samples = 0;

    double Edge(std::size_t i) const { return First + Width * static_cast<double>(i); }
};

// Of the samples at the present values of the varied fields, or at those next to them.
Histogram HistogramOf(const StudyQuestion& asked, const StudyTable& table);
// Bars in per cent of the samples.
ChartArguments HistogramChart(const StudyQuestion& asked, const Histogram& histogram);
// "1000 samples: mean ..., 5 % ..., 95 % ...", and the share beyond the limit with its interval.
std::string HistogramText(const StudyQuestion& asked, const StudyTable& table);

}  // namespace lithmark
