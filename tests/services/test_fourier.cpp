#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <cstring>
#include <random>

#include "services/numerics/FourierTransform.h"
#include "services/numerics/GridFourier.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

using lithmark::tests::KindOf;

constexpr int kLanes = FourierTransform::kLanes;

// Values spread over -1..1 that every machine makes alike.
std::vector<double> Scattered(std::size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<double> values(count);
    for (double& value : values) value = random() / 2147483648.0 - 1;
    return values;
}

struct Columns {
    explicit Columns(int length, unsigned seed = 1)
        : Re(Scattered(static_cast<std::size_t>(length) * kLanes, seed)), Im(Scattered(Re.size(), seed + 1)) {}
    std::complex<long double> At(int k, int lane) const {
        const auto i = static_cast<std::size_t>(k * kLanes + lane);
        return {Re[i], Im[i]};
    }
    std::vector<double> Re, Im;
};

void Forward(const FourierTransform& transform, Columns& columns) {
    std::vector<double> work(transform.WorkSize());
    transform.Forward(columns.Re.data(), columns.Im.data(), work.data());
}
void Backward(const FourierTransform& transform, Columns& columns) {
    std::vector<double> work(transform.WorkSize());
    transform.Backward(columns.Re.data(), columns.Im.data(), work.data());
}

TEST(FourierTransform, TakesLengthsOfTwoThreeAndFive) {
    EXPECT_EQ(FourierTransform::LengthFrom(-3), 1);
    EXPECT_EQ(FourierTransform::LengthFrom(1), 1);
    EXPECT_EQ(FourierTransform::LengthFrom(7), 8);
    EXPECT_EQ(FourierTransform::LengthFrom(361), 375);
    EXPECT_EQ(FourierTransform::LengthFrom(65535), 65536);
    EXPECT_EQ(KindOf([] { FourierTransform(14); }), FailureKind::InvalidArgument);
    EXPECT_EQ(KindOf([] { FourierTransform(0); }), FailureKind::InvalidArgument);
}

// By the definition, term by term and with more digits.
TEST(FourierTransform, GivesTheSumsOfItsDefinition) {
    for (const int n : {1, 2, 3, 4, 5, 6, 8, 9, 10, 12, 15, 16, 25, 30, 32, 60, 81, 125, 240, 375, 384, 400}) {
        const FourierTransform transform(n);
        const Columns given(n);
        Columns columns = given;
        Forward(transform, columns);
        std::vector<std::complex<long double>> roots;
        for (int k = 0; k < n; ++k) roots.push_back(std::polar(1.0L, -2 * std::acos(-1.0L) * k / n));
        for (int lane = 0; lane < kLanes; ++lane) {
            for (int j = 0; j < n; ++j) {
                std::complex<long double> sum;
                for (int k = 0; k < n; ++k) sum += given.At(k, lane) * roots[static_cast<std::size_t>(j * k % n)];
                EXPECT_LT(std::abs(sum - columns.At(j, lane)), 2e-15 * std::sqrt(n) * std::log2(2.0 * n))
                    << n << ", frequency " << j;
            }
        }
        Backward(transform, columns);
        for (std::size_t i = 0; i < given.Re.size(); ++i) {
            EXPECT_NEAR(columns.Re[i] / n, given.Re[i], 3e-15);
            EXPECT_NEAR(columns.Im[i] / n, given.Im[i], 3e-15);
        }
    }
}

// The digits of one machine, as a hash: no processor, instruction set, compiler or build type may give others.
TEST(FourierTransform, GivesTheSameDigitsOnEveryMachine) {
    Columns columns(360);
    Forward(FourierTransform(360), columns);
    std::uint64_t hash = 14695981039346656037u;
    for (const std::vector<double>* part : {&columns.Re, &columns.Im}) {
        for (const double value : *part) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, &value, sizeof bits);
            hash = (hash ^ bits) * 1099511628211u;
        }
    }
    EXPECT_EQ(hash, 13539314414252614495u);
}

// --- convolutions over a grid ---

// The convolution of a field with a kernel of the given parities, pair by pair.
std::vector<double> Convolved(const std::vector<double>& field, const std::vector<double>& kernel, int columns,
                              int rows, int columnParity, int rowParity) {
    std::vector<double> sums(field.size());
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c)
            for (int s = 0; s < rows; ++s)
                for (int d = 0; d < columns; ++d) {
                    const int sign = (c < d ? columnParity : 1) * (r < s ? rowParity : 1);
                    sums[static_cast<std::size_t>(r * columns + c)] +=
                        sign * kernel[static_cast<std::size_t>(std::abs(r - s) * columns + std::abs(c - d))] *
                        field[static_cast<std::size_t>(s * columns + d)];
                }
    return sums;
}

TEST(GridFourier, MultiplyingByAKernelsSpectrumIsAConvolution) {
    struct Size {
        int Columns, Rows;
    };
    for (const Size size : {Size{1, 1}, Size{3, 1}, Size{1, 6}, Size{5, 7}, Size{9, 4}}) {
        const GridFourier fourier(size.Columns, size.Rows, FourierTransform::LengthFrom(2 * size.Columns - 1),
                                  FourierTransform::LengthFrom(2 * size.Rows - 1));
        const std::vector<double> first = Scattered(fourier.FieldSize(), 3), second = Scattered(fourier.FieldSize(), 4);
        for (const int columnParity : {1, -1}) {
            for (const int rowParity : {1, -1}) {
                std::vector<double> kernel = Scattered(fourier.FieldSize(), 5);
                for (int r = 0; r < size.Rows; ++r)
                    for (int c = 0; c < size.Columns; ++c)
                        if ((c == 0 && columnParity < 0) || (r == 0 && rowParity < 0))
                            kernel[static_cast<std::size_t>(r * size.Columns + c)] = 0;
                const std::vector<double> factor = fourier.KernelSpectrum(kernel, columnParity, rowParity);
                ASSERT_EQ(factor.size(), fourier.SpectrumSize());
                GridSpectrum spectrum;
                fourier.Forward(first.data(), second.data(), spectrum);
                for (std::size_t k = 0; k < factor.size(); ++k) {
                    spectrum.Re[k] *= factor[k];
                    spectrum.Im[k] *= factor[k];
                    if (columnParity * rowParity < 0) spectrum.Re[k] = -std::exchange(spectrum.Im[k], spectrum.Re[k]);
                }
                std::vector<double> sums1(first.size()), sums2(first.size());
                fourier.Backward(spectrum, sums1.data(), sums2.data());
                const auto expected1 = Convolved(first, kernel, size.Columns, size.Rows, columnParity, rowParity);
                const auto expected2 = Convolved(second, kernel, size.Columns, size.Rows, columnParity, rowParity);
                for (std::size_t i = 0; i < sums1.size(); ++i) {
                    EXPECT_NEAR(sums1[i], expected1[i], 1e-14);
                    EXPECT_NEAR(sums2[i], expected2[i], 1e-14);
                }
            }
        }
    }
}

// A shorter period folds the kernel: what lies beyond comes in from the other side.
TEST(GridFourier, AShortPeriodWrapsAround) {
    const GridFourier fourier(3, 1, 4, 1);
    const std::vector<double> kernel = {2, 1, 0.5}, field = {1, 0, 0};
    const std::vector<double> factor = fourier.KernelSpectrum(kernel, 1, 1);
    GridSpectrum spectrum;
    fourier.Forward(field.data(), nullptr, spectrum);
    for (std::size_t k = 0; k < factor.size(); ++k) {
        spectrum.Re[k] *= factor[k];
        spectrum.Im[k] *= factor[k];
    }
    std::vector<double> sums(3);
    fourier.Backward(spectrum, sums.data(), nullptr);
    EXPECT_NEAR(sums[0], 2, 1e-15);
    EXPECT_NEAR(sums[1], 1, 1e-15);
    EXPECT_NEAR(sums[2], 1, 1e-15);  // 0.5 from the left and 0.5 from the right
}

}  // namespace
}  // namespace lithmark::tests
