#include "contour/FieldPlot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "contour/AxisTicks.h"
#include "contour/FieldColours.h"

namespace lithmark {

namespace {

constexpr int kMostClasses = 10;
// Of the greatest value: a rigid raft under a central load settles evenly, but its nodes differ in the last digits.
constexpr double kEven = 1e-5;
// Of a class: values of 32 bits that miss a limit by their last digit lie on it.
constexpr double kRounding = 1e-5;
constexpr double kSame = 1e-4;  // of the range: nodes that share the least or the greatest value

// Limits at multiples of the narrowest round step that gives at most ten classes.
std::vector<double> RoundLimits(double least, double greatest) {
    double step = RoundStep((greatest - least) / kMostClasses * (1 - kRounding));
    const auto lower = [&] { return std::floor(least / step + kRounding); };
    const auto upper = [&] { return std::ceil(greatest / step - kRounding); };
    while (upper() - lower() > kMostClasses) step = RoundStep(1.5 * step);
    // As multiples of a whole number of tenths, hundredths and so on, so that 0.3 is 0.3.
    const double whole = std::pow(10.0, DecimalsOf(step));
    const double first = lower();
    std::vector<double> limits(static_cast<std::size_t>(std::max(0.0, upper() - first + 1)));
    for (std::size_t i = 0; i < limits.size(); ++i)
        limits[i] = (first + static_cast<double>(i)) * std::round(step * whole) / whole;
    return limits;
}

}  // namespace

FieldPlot::FieldPlot(const BasContour& plot) {
    const double factor = plot.CaptionFactor();
    plot.VisitTriangles([&](const double(&x)[3], const double(&y)[3], const double(&z)[3]) {
        Triangle t;
        for (std::size_t i = 0; i < 3; ++i) t[i] = {{x[i], y[i]}, z[i] * factor};
        const double turn = (x[1] - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (y[1] - y[0]);
        if (turn < 0) std::swap(t[1], t[2]);
        triangles_.push_back(t);
    });
    for (int i = 1; i <= plot.NodeCount; ++i) nodes_.push_back({{plot.CtrX(i), plot.CtrY(i)}, plot.CtrZ(i) * factor});
    Classify();
}

FieldPlot::FieldPlot(std::vector<Triangle> triangles) : triangles_(std::move(triangles)) {
    for (const Triangle& t : triangles_) nodes_.insert(nodes_.end(), t.begin(), t.end());
    const auto order = [](const Corner& a, const Corner& b) {
        return std::pair(a.At.X, a.At.Y) < std::pair(b.At.X, b.At.Y);
    };
    std::sort(nodes_.begin(), nodes_.end(), order);
    const auto same = [](const Corner& a, const Corner& b) { return a.At == b.At; };
    nodes_.erase(std::unique(nodes_.begin(), nodes_.end(), same), nodes_.end());
    Classify();
}

void FieldPlot::Classify() {
    if (nodes_.empty()) Fail(FailureKind::SubscriptRange);
    const auto byValue = [](const Corner& a, const Corner& b) { return a.Value < b.Value; };
    const auto [least, greatest] = std::minmax_element(nodes_.begin(), nodes_.end(), byValue);
    least_ = least->Value;
    greatest_ = greatest->Value;
    const double size = std::max(std::abs(least_), std::abs(greatest_));
    even_ = greatest_ - least_ <= kEven * size;
    if (even_) {
        const double half = size > 0 ? RoundStep(0.05 * size) : 1;
        limits_ = {least_ - half, greatest_ + half};
    } else {
        limits_ = RoundLimits(least_, greatest_);
    }
    const double width = limits_[1] - limits_[0];
    decimals_ = even_ ? DecimalsOf(RoundStep(0.01 * width)) : DecimalsOf(width);
}

std::uint32_t FieldPlot::ColourOf(int cls) const {
    return FieldColour(Classes() == 1 ? 0.5 : static_cast<double>(cls - 1) / (Classes() - 1));
}

int FieldPlot::ClassOf(double value) const {
    const auto above = std::upper_bound(limits_.begin(), limits_.end(), value);
    return std::clamp(static_cast<int>(above - limits_.begin()), 1, Classes());
}

std::string FieldPlot::LimitText(double limit) const {
    return TickText(limit, decimals_, LanguageDecimalSign());
}

std::string FieldPlot::ValueText(double value) const {
    return TickText(value, even_ ? decimals_ : decimals_ + 2, LanguageDecimalSign());
}

std::vector<FieldPoint> FieldPlot::NodesAt(double value) const {
    std::vector<FieldPoint> places;
    if (even_) return places;
    for (const Corner& node : nodes_)
        if (std::abs(node.Value - value) <= kSame * (greatest_ - least_)) places.push_back(node.At);
    return places;
}

namespace {

// Where the value between two corners is `level`.
template <typename Corner>
FieldPoint Between(const Corner& a, const Corner& b, double level) {
    const double part = (level - a.Value) / (b.Value - a.Value);
    return {a.At.X + part * (b.At.X - a.At.X), a.At.Y + part * (b.At.Y - a.At.Y)};
}

}  // namespace

std::vector<std::vector<FieldPoint>> FieldPlot::RegionAbove(double level) const {
    std::vector<std::vector<FieldPoint>> region;
    for (const Triangle& t : triangles_) {
        std::vector<FieldPoint> part;
        for (std::size_t i = 0; i < 3; ++i) {
            const Corner &from = t[i], &to = t[(i + 1) % 3];
            if (from.Value >= level) part.push_back(from.At);
            if ((from.Value >= level) != (to.Value >= level)) part.push_back(Between(from, to, level));
        }
        if (part.size() >= 3) region.push_back(std::move(part));
    }
    return region;
}

std::vector<FieldLine> FieldPlot::LineAt(double level) const {
    std::vector<FieldLine> lines;
    for (const Triangle& t : triangles_) {
        std::vector<FieldPoint> ends;
        for (std::size_t i = 0; i < 3; ++i) {
            const Corner &from = t[i], &to = t[(i + 1) % 3];
            if ((from.Value >= level) != (to.Value >= level)) ends.push_back(Between(from, to, level));
        }
        if (ends.size() == 2 && !(ends[0] == ends[1])) lines.push_back({ends[0], ends[1]});
    }
    return lines;
}

std::optional<double> FieldPlot::ValueAt(const FieldPoint& at) const {
    constexpr double kOnEdge = 1e-9;
    for (const Triangle& t : triangles_) {
        const double ax = t[1].At.X - t[0].At.X, ay = t[1].At.Y - t[0].At.Y;
        const double bx = t[2].At.X - t[0].At.X, by = t[2].At.Y - t[0].At.Y, area = ax * by - ay * bx;
        if (area == 0) continue;
        const double px = at.X - t[0].At.X, py = at.Y - t[0].At.Y;
        const double second = (px * by - py * bx) / area, third = (ax * py - ay * px) / area;
        if (second < -kOnEdge || third < -kOnEdge || second + third > 1 + kOnEdge) continue;
        return t[0].Value + second * (t[1].Value - t[0].Value) + third * (t[2].Value - t[0].Value);
    }
    return std::nullopt;
}

std::vector<FieldPlot::SectionPoint> FieldPlot::Section(const FieldLine& line) const {
    const double dx = line.To.X - line.From.X, dy = line.To.Y - line.From.Y, length = std::hypot(dx, dy);
    std::vector<SectionPoint> points;
    if (!(length > 0)) return points;
    const auto add = [&](double part, double value) {
        points.push_back({part * length, {line.From.X + part * dx, line.From.Y + part * dy}, value});
    };
    for (const Triangle& t : triangles_) {
        // The part of the line in the triangle: inside of each edge, which all turn to the left.
        double from = 0, to = 1;
        for (std::size_t i = 0; i < 3; ++i) {
            const FieldPoint &a = t[i].At, &b = t[(i + 1) % 3].At;
            const double ex = b.X - a.X, ey = b.Y - a.Y;
            const double inside = ex * (line.From.Y - a.Y) - ey * (line.From.X - a.X), rate = ex * dy - ey * dx;
            const double slack = 1e-9 * (ex * ex + ey * ey);
            if (std::abs(rate) <= 1e-12 * std::hypot(ex, ey) * length) {
                if (inside < -slack) to = -1;
            } else if (rate > 0) {
                from = std::max(from, -(inside + slack) / rate);
            } else {
                to = std::min(to, (inside + slack) / -rate);
            }
        }
        if (!(from <= to)) continue;
        const double ax = t[1].At.X - t[0].At.X, ay = t[1].At.Y - t[0].At.Y;
        const double bx = t[2].At.X - t[0].At.X, by = t[2].At.Y - t[0].At.Y, area = ax * by - ay * bx;
        if (area == 0) continue;
        for (const double part : {from, to}) {
            const double px = line.From.X + part * dx - t[0].At.X, py = line.From.Y + part * dy - t[0].At.Y;
            const double second = (px * by - py * bx) / area, third = (ax * py - ay * px) / area;
            add(part, t[0].Value + second * (t[1].Value - t[0].Value) + third * (t[2].Value - t[0].Value));
        }
    }
    std::sort(points.begin(), points.end(),
              [](const SectionPoint& a, const SectionPoint& b) { return a.Distance < b.Distance; });
    const auto same = [&](const SectionPoint& a, const SectionPoint& b) {
        return b.Distance - a.Distance <= 1e-6 * length;
    };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
    return points;
}

}  // namespace lithmark
