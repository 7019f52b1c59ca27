#include "kernels/raft/GridOffsets.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"

namespace lithmark {

GridOffsets::GridOffsets(const Array<std::string>& lines) {
    std::vector<long> places;
    for (const std::string& line : lines) places.push_back(std::lround(ParseNumber(line).value() * 1000));
    const std::size_t count = places.size();
    if (count > 1) spacing_ = static_cast<double>(places.back() - places.front()) / static_cast<double>(count - 1);
    for (std::size_t i = 0; i < count; ++i)
        shift_.push_back(static_cast<double>(places[i] - places.front()) - static_cast<double>(i) * spacing_);
    for (std::size_t m = 0; m < count; ++m) {
        Distances at{places[m] - places[0], places[m] - places[0]};
        for (std::size_t i = 0; i + m < count; ++i) {
            const long distance = places[i + m] - places[i];
            at.Near = std::min(at.Near, distance);
            at.Far = std::max(at.Far, distance);
        }
        // Lines on rounded even places cannot be apart by a third distance between the two.
        if (at.Far > at.Near + 1) Fail(FailureKind::InvalidArgument);
        if (at.Far != at.Near) even_ = false;
        distances_.push_back(at);
    }
}

GridOffsets::Line GridOffsets::Through(int m, double atNear, double atFar) const {
    const Distances& at = distances_[static_cast<std::size_t>(m)];
    if (at.Near == at.Far) return {atNear, 0};
    const double rise = (atFar - atNear) / static_cast<double>(at.Far - at.Near);
    return {atNear - rise * (static_cast<double>(at.Near) - m * spacing_), rise};
}

OffsetCoefficients CoefficientsOf(const GridOffsets& x, const GridOffsets& y, const OffsetFactor& factor) {
    OffsetCoefficients c;
    const auto place = [&](std::vector<double>& values, int m, int n) -> double& {
        values.resize(static_cast<std::size_t>(x.Lines()) * static_cast<std::size_t>(y.Lines()));
        return values[static_cast<std::size_t>(n) * static_cast<std::size_t>(x.Lines()) + static_cast<std::size_t>(m)];
    };
    for (int n = 0; n < y.Lines(); ++n) {
        for (int m = 0; m < x.Lines(); ++m) {
            const auto lineAt = [&](Single dy) -> GridOffsets::Line {
                if (m == 0 && n == 0) return {0, 0};
                const Single dx = x.Near(m), far = x.Far(m);
                const double atNear = factor(dx, dy);
                return x.Through(m, atNear, far == dx ? atNear : static_cast<double>(factor(far, dy)));
            };
            const GridOffsets::Line near = lineAt(y.Near(n));
            const GridOffsets::Line far = y.Far(n) == y.Near(n) ? near : lineAt(y.Far(n));
            const GridOffsets::Line value = y.Through(n, near.Value, far.Value);
            place(c.Value, m, n) = value.Value;
            if (!y.Even()) place(c.AlongY, m, n) = value.Rise;
            if (x.Even()) continue;
            const GridOffsets::Line rise = y.Through(n, near.Rise, far.Rise);
            place(c.AlongX, m, n) = rise.Value;
            if (!y.Even()) place(c.AlongBoth, m, n) = rise.Rise;
        }
    }
    return c;
}

}  // namespace lithmark
