// The distribution of a random field.
#pragma once

#include <limits>
#include <string>

namespace lithmark {

// A standard normal value and its place in the distribution: the shares of values below it and above it. The one that
// is small keeps its digits.
struct NormalPoint {
    double Z = 0, Below = 0.5, Above = 0.5;

    static NormalPoint At(double below);  // 0 < below < 1
    static NormalPoint OfValue(double z);
};

class Distribution {
  public:
    // normal:MEAN:SD, lognormal:MEAN:SD, uniform:A:B or triangular:A:MODE:B, each with :MIN:MAX at its end where it is
    // cut. Mean and deviation are those of the field before it is cut, the deviation also as a percentage of the mean
    // ("10%"). StudyFailure for any other text, and for a distribution that has no values.
    static Distribution Parse(const std::string& text);

    // The value at a place of the distribution. Lognormal values are those of Y = ln X, with the deviation
    // sqrt(ln(1 + (SD/MEAN)^2)) and the mean ln MEAN - deviation^2/2 (Benjamin and Cornell 1970).
    double Value(const NormalPoint& point) const;
    // The value that a share of all values does not exceed.
    double Quantile(double share) const { return Value(NormalPoint::At(share)); }

    // The same text for all ways to write the same distribution.
    std::string Plain() const;

    double Least() const noexcept { return least_; }
    double Greatest() const noexcept { return greatest_; }

  private:
    enum class Kind { Normal, LogNormal, Uniform, Triangular };

    void Cut(double least, double greatest);
    // Of the distribution before it is cut.
    NormalPoint PointOf(double value) const;
    double Uncut(const NormalPoint& point) const;
    // By the smaller of the two shares.
    double TriangularValue(double below, double above) const;

    Kind kind_ = Kind::Normal;
    double a_ = 0, b_ = 1;  // mean and deviation, of Y where lognormal; else the ends
    double mode_ = 0;
    bool cut_ = false;
    double least_ = -std::numeric_limits<double>::infinity(), greatest_ = std::numeric_limits<double>::infinity();
    NormalPoint cutLow_, cutHigh_;
};

}  // namespace lithmark
