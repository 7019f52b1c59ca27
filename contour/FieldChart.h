// FieldChart: a value over two quantities as a field: classes, lines, a limit that is looked for, and where one stands.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "contour/FieldPlot.h"

namespace lithmark {

struct FieldChart {
    explicit FieldChart(FieldPlot field) : Field(std::move(field)) {}

    FieldPlot Field;
    double Left = 0, Right = 1, Bottom = 0, Top = 1;  // the ends of the axes
    std::string Title, XTitle, YTitle, ValueTitle;    // axes as "title symbol [unit]"
    std::optional<double> Limit;                      // a line of its own
    std::string LimitName;
    std::optional<FieldPoint> Present;
    std::string PresentName;
};

// The triangles of a grid with a value for each pair of places, `values[j][i]` at x[i] and y[j]. Each cell is split by
// its centre, which has the mean of the corners; a cell with a corner that is not a number is left out.
std::vector<FieldPlot::Triangle> TrianglesOfGrid(const std::vector<double>& x, const std::vector<double>& y,
                                                 const std::vector<std::vector<double>>& values);

}  // namespace lithmark
