#include "contour/FieldChart.h"

#include <algorithm>
#include <cmath>

namespace lithmark {

std::vector<FieldPlot::Triangle> TrianglesOfGrid(const std::vector<double>& x, const std::vector<double>& y,
                                                 const std::vector<std::vector<double>>& values) {
    std::vector<FieldPlot::Triangle> triangles;
    for (std::size_t j = 0; j + 1 < y.size(); ++j)
        for (std::size_t i = 0; i + 1 < x.size(); ++i) {
            // Against the clock.
            const std::array<FieldPlot::Corner, 4> corners = {{{{x[i], y[j]}, values[j][i]},
                                                               {{x[i + 1], y[j]}, values[j][i + 1]},
                                                               {{x[i + 1], y[j + 1]}, values[j + 1][i + 1]},
                                                               {{x[i], y[j + 1]}, values[j + 1][i]}}};
            const double sum = corners[0].Value + corners[1].Value + corners[2].Value + corners[3].Value;
            if (!std::isfinite(sum)) continue;
            const FieldPlot::Corner centre = {{(x[i] + x[i + 1]) / 2, (y[j] + y[j + 1]) / 2}, sum / 4};
            for (std::size_t c = 0; c < corners.size(); ++c)
                triangles.push_back({corners[c], corners[(c + 1) % corners.size()], centre});
        }
    return triangles;
}

}  // namespace lithmark
