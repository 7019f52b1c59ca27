#include "study/Distribution.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "study/PlainMath.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

[[noreturn]] void FailDistribution(const std::string& text) {
    FailRequest(908010_text, text);
}

double ReadNumber(const std::string& text, const std::string& part) {
    const auto number = ParseNumber(part);
    if (!number || !std::isfinite(*number)) FailDistribution(text);
    return *number;
}

// A deviation above 0, as a number or as a percentage of the mean.
double ReadDeviation(const std::string& text, const std::string& part, double mean) {
    const bool percent = part.ends_with('%');
    const double number = ReadNumber(text, percent ? part.substr(0, part.size() - 1) : part);
    const double deviation = percent ? std::abs(mean) * number / 100 : number;
    if (!(deviation > 0)) FailDistribution(text);
    return deviation;
}

}  // namespace

NormalPoint NormalPoint::At(double below) {
    return {NormalQuantile(below), below, 1 - below};
}

NormalPoint NormalPoint::OfValue(double z) {
    return {z, NormalBelow(z), NormalAbove(z)};
}

Distribution Distribution::Parse(const std::string& text) {
    const std::vector<std::string> parts = Split(text, ':');
    Distribution result;
    const std::string& name = parts.front();
    if (name == "normal")
        result.kind_ = Kind::Normal;
    else if (name == "lognormal")
        result.kind_ = Kind::LogNormal;
    else if (name == "uniform")
        result.kind_ = Kind::Uniform;
    else if (name == "triangular")
        result.kind_ = Kind::Triangular;
    else
        FailDistribution(text);
    const std::size_t own = result.kind_ == Kind::Triangular ? 4 : 3;
    if (parts.size() != own && parts.size() != own + 2) FailDistribution(text);

    const double first = ReadNumber(text, parts[1]);
    switch (result.kind_) {
        case Kind::Normal:
            result.a_ = first;
            result.b_ = ReadDeviation(text, parts[2], first);
            break;
        case Kind::LogNormal: {
            const double deviation = ReadDeviation(text, parts[2], first), ratio = deviation / first;
            if (!(first > 0)) FailDistribution(text);
            const double variance = PlainLog(1 + ratio * ratio);
            result.a_ = PlainLog(first) - variance / 2;
            result.b_ = std::sqrt(variance);
            result.least_ = 0;
            break;
        }
        case Kind::Uniform:
        case Kind::Triangular:
            result.a_ = result.least_ = first;
            result.b_ = result.greatest_ = ReadNumber(text, parts[own - 1]);
            result.mode_ = ReadNumber(text, parts[2]);
            if (!(result.a_ < result.b_) || result.mode_ < result.a_ || result.mode_ > result.b_)
                FailDistribution(text);
            break;
    }
    if (parts.size() == own) return result;
    const double least = ReadNumber(text, parts[own]), greatest = ReadNumber(text, parts[own + 1]);
    result.Cut(std::max(least, result.least_), std::min(greatest, result.greatest_));
    const double share = result.cutHigh_.Below - result.cutLow_.Below;
    const double upper = result.cutLow_.Above - result.cutHigh_.Above;
    if (!(least < greatest) || !(std::max(share, upper) > 0)) FailDistribution(text);
    return result;
}

std::string Distribution::Plain() const {
    std::vector<double> numbers = {a_, b_};
    if (kind_ == Kind::Triangular) numbers.push_back(mode_);
    if (cut_) numbers.insert(numbers.end(), {least_, greatest_});
    std::string text = std::to_string(static_cast<int>(kind_));
    for (const double number : numbers) text += ":" + JsonNumber(number);
    return text;
}

void Distribution::Cut(double least, double greatest) {
    cutLow_ = PointOf(least);
    cutHigh_ = PointOf(greatest);
    least_ = least;
    greatest_ = greatest;
    cut_ = true;
}

NormalPoint Distribution::PointOf(double value) const {
    switch (kind_) {
        case Kind::Normal:
            return NormalPoint::OfValue((value - a_) / b_);
        case Kind::LogNormal:
            if (value <= 0) return {-std::numeric_limits<double>::infinity(), 0, 1};
            return NormalPoint::OfValue((PlainLog(value) - a_) / b_);
        case Kind::Uniform:
            return {0, (value - a_) / (b_ - a_), (b_ - value) / (b_ - a_)};
        case Kind::Triangular:
            break;
    }
    const double width = b_ - a_;
    if (value < mode_) {
        const double below = (value - a_) / width * ((value - a_) / (mode_ - a_));
        return {0, below, 1 - below};
    }
    const double above = value < b_ ? (b_ - value) / width * ((b_ - value) / (b_ - mode_)) : 0;
    return {0, 1 - above, above};
}

double Distribution::TriangularValue(double below, double above) const {
    const double width = b_ - a_;
    const double toMode = (mode_ - a_) / width;
    if (below < toMode) return a_ + std::sqrt(below * width * (mode_ - a_));
    return b_ - std::sqrt(above * width * (b_ - mode_));
}

double Distribution::Uncut(const NormalPoint& point) const {
    switch (kind_) {
        case Kind::Normal:
            return a_ + b_ * point.Z;
        case Kind::LogNormal:
            return PlainExp(a_ + b_ * point.Z);
        case Kind::Uniform:
            return a_ + (b_ - a_) * point.Below;
        case Kind::Triangular:
            break;
    }
    return TriangularValue(point.Below, point.Above);
}

double Distribution::Value(const NormalPoint& point) const {
    if (!cut_) return Uncut(point);
    // The place between the ends of the cut, by the tail that both lie nearer to.
    NormalPoint inside;
    if (cutLow_.Below < 0.5) {
        inside.Below = cutLow_.Below + point.Below * (cutHigh_.Below - cutLow_.Below);
        inside.Above = 1 - inside.Below;
    } else {
        inside.Above = cutHigh_.Above + point.Above * (cutLow_.Above - cutHigh_.Above);
        inside.Below = 1 - inside.Above;
    }
    if (kind_ == Kind::Normal || kind_ == Kind::LogNormal)
        inside.Z = inside.Below < 0.5 ? NormalQuantile(inside.Below) : UpperNormalQuantile(inside.Above);
    return std::clamp(Uncut(inside), least_, greatest_);
}

}  // namespace lithmark
