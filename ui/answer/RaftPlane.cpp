#include "ui/answer/RaftPlane.h"

#include <cmath>
#include <cstddef>
#include <numeric>

namespace lithmark {

namespace {

constexpr double kCentimetres = 100;  // in a metre

double Mean(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

}  // namespace

std::optional<double> TiltOf(const std::vector<double>& x, const std::vector<double>& y,
                             const std::vector<double>& settlement) {
    if (x.size() < 3 || y.size() != x.size() || settlement.size() != x.size()) return std::nullopt;
    const double x0 = Mean(x), y0 = Mean(y), s0 = Mean(settlement);
    double xx = 0, xy = 0, yy = 0, xs = 0, ys = 0, ss = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double dx = x[i] - x0, dy = y[i] - y0, ds = settlement[i] - s0;
        xx += dx * dx;
        xy += dx * dy;
        yy += dy * dy;
        xs += dx * ds;
        ys += dy * ds;
        ss += ds * ds;
    }
    const double determinant = xx * yy - xy * xy;
    if (!(determinant > 1e-9 * xx * yy)) return std::nullopt;
    // What is left of 32 bits is no tilt.
    constexpr double kDigits = 1e-6;
    if (std::sqrt(ss / static_cast<double>(x.size())) <= kDigits * std::fabs(s0)) return 0;
    const double slopeX = (xs * yy - ys * xy) / determinant, slopeY = (ys * xx - xs * xy) / determinant;
    return std::hypot(slopeX, slopeY) / kCentimetres;
}

}  // namespace lithmark
