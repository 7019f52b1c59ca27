#include "kernels/raft/FlexibilityOperator.h"

#include <numeric>
#include <optional>

namespace lithmark {

namespace {

int PeriodOf(int lines) {
    return FourierTransform::LengthFrom(2 * lines - 1);
}

}  // namespace

OffsetGrid::OffsetGrid(const RectangularMesh& mesh)
    : x_(mesh.GridX),
      y_(mesh.GridY),
      fourier_(mesh.Columns(), mesh.Rows(), PeriodOf(mesh.Columns()), PeriodOf(mesh.Rows())) {
    for (int j = 0; j < y_.Lines(); ++j) {
        for (int i = 0; i < x_.Lines(); ++i) {
            shiftX_.push_back(x_.Shift(i));
            shiftY_.push_back(y_.Shift(j));
        }
    }
}

FlexibilityOperator::FlexibilityOperator(const OffsetGrid& grid, const OffsetFactor& factor, std::vector<double> own)
    : grid_(grid), own_(std::move(own)) {
    OffsetCoefficients c = CoefficientsOf(grid.X(), grid.Y(), factor);
    const GridFourier& fourier = grid.Fourier();
    value_ = fourier.KernelSpectrum(c.Value, 1, 1);
    if (!c.AlongX.empty()) alongX_ = fourier.KernelSpectrum(c.AlongX, -1, 1);
    if (!c.AlongY.empty()) alongY_ = fourier.KernelSpectrum(c.AlongY, 1, -1);
    if (!c.AlongBoth.empty()) alongBoth_ = fourier.KernelSpectrum(c.AlongBoth, -1, -1);
    mean_ = std::move(c.Value);
    mean_[0] = std::accumulate(own_.begin(), own_.end(), 0.0) / static_cast<double>(own_.size());
}

std::size_t FlexibilityOperator::Bytes() const noexcept {
    std::size_t count = 0;
    for (const auto* values : {&own_, &mean_, &value_, &alongX_, &alongY_, &alongBoth_}) count += values->size();
    return count * sizeof(double);
}

void FlexibilityOperator::Apply(std::span<const std::vector<double>> x, std::span<std::vector<double>> y) const {
    for (std::size_t i = 0; i < x.size(); i += 2) {
        const bool pair = i + 1 < x.size();
        ApplyPair(x[i], pair ? &x[i + 1] : nullptr, y[i], pair ? &y[i + 1] : nullptr);
    }
}

// With the shifts a and b, and A, B, C and D for the convolutions with the value and the rises along x, y and both,
//   y = A x - B(a x) - C(b x) + D(a b x)  +  a (B x - D(b x))  +  b (C x - D(a x))  +  a b D x.
// The transforms of B and C are imaginary.
void FlexibilityOperator::ApplyPair(const std::vector<double>& x1, const std::vector<double>* x2,
                                    std::vector<double>& y1, std::vector<double>* y2) const {
    const GridFourier& fourier = grid_.Fourier();
    const std::size_t n = grid_.Nodes();
    const bool shiftsX = !alongX_.empty(), shiftsY = !alongY_.empty();
    const std::vector<double>&a = grid_.ShiftX(), &b = grid_.ShiftY();

    std::vector<double> weighted1(x2 || shiftsX || shiftsY ? n : 0), weighted2(x2 ? n : 0);
    const auto transform = [&](bool byA, bool byB, GridSpectrum& spectrum) {
        if (!byA && !byB) return fourier.Forward(x1.data(), x2 ? x2->data() : nullptr, spectrum);
        for (std::size_t i = 0; i < n; ++i) {
            const double weight = (byA ? a[i] : 1) * (byB ? b[i] : 1);
            weighted1[i] = weight * x1[i];
            if (x2) weighted2[i] = weight * (*x2)[i];
        }
        fourier.Forward(weighted1.data(), x2 ? weighted2.data() : nullptr, spectrum);
    };
    GridSpectrum plain, withA, withB, withBoth;
    transform(false, false, plain);
    if (shiftsX) transform(true, false, withA);
    if (shiftsY) transform(false, true, withB);
    if (shiftsX && shiftsY) transform(true, true, withBoth);

    for (std::size_t k = 0; k < fourier.SpectrumSize(); ++k) {
        const double A = value_[k];
        const double re = plain.Re[k], im = plain.Im[k];
        double outRe = A * re, outIm = A * im;
        const double B = shiftsX ? alongX_[k] : 0, C = shiftsY ? alongY_[k] : 0;
        const double D = shiftsX && shiftsY ? alongBoth_[k] : 0;
        double aRe = 0, aIm = 0, bRe = 0, bIm = 0;
        if (shiftsX) {
            outRe += B * withA.Im[k];
            outIm -= B * withA.Re[k];
            aRe = -B * im;
            aIm = B * re;
        }
        if (shiftsY) {
            outRe += C * withB.Im[k];
            outIm -= C * withB.Re[k];
            bRe = -C * im;
            bIm = C * re;
        }
        if (shiftsX && shiftsY) {
            outRe += D * withBoth.Re[k];
            outIm += D * withBoth.Im[k];
            aRe -= D * withB.Re[k];
            aIm -= D * withB.Im[k];
            bRe -= D * withA.Re[k];
            bIm -= D * withA.Im[k];
            withBoth.Re[k] = D * re;
            withBoth.Im[k] = D * im;
        }
        plain.Re[k] = outRe;
        plain.Im[k] = outIm;
        if (shiftsX) {
            withA.Re[k] = aRe;
            withA.Im[k] = aIm;
        }
        if (shiftsY) {
            withB.Re[k] = bRe;
            withB.Im[k] = bIm;
        }
    }

    fourier.Backward(plain, y1.data(), y2 ? y2->data() : nullptr);
    for (std::size_t i = 0; i < n; ++i) {
        y1[i] += own_[i] * x1[i];
        if (y2) (*y2)[i] += own_[i] * (*x2)[i];
    }
    const auto addBack = [&](bool byA, bool byB, GridSpectrum& spectrum) {
        fourier.Backward(spectrum, weighted1.data(), x2 ? weighted2.data() : nullptr);
        for (std::size_t i = 0; i < n; ++i) {
            const double weight = (byA ? a[i] : 1) * (byB ? b[i] : 1);
            y1[i] += weight * weighted1[i];
            if (y2) (*y2)[i] += weight * weighted2[i];
        }
    };
    if (shiftsX) addBack(true, false, withA);
    if (shiftsY) addBack(false, true, withB);
    if (shiftsX && shiftsY) addBack(true, true, withBoth);
}

}  // namespace lithmark
