#include "services/numerics/FourierTransform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/Failure.h"

namespace lithmark {

namespace {

// The factors of a length, in the order of the stages; the last one is what no radix divides.
std::vector<int> Factors(int length) {
    std::vector<int> factors;
    for (const int radix : {4, 2, 3, 5})
        for (; length % radix == 0; length /= radix) factors.push_back(radix);
    factors.push_back(length);
    return factors;
}

// Sine and cosine of 0 to pi/4 by their series, whose terms beyond fall below the last place.
double SmallSine(double x) {
    constexpr int kTerms = 10;
    double sum = 0;
    for (int k = kTerms; k >= 1; --k) sum = (1 - sum) * x * x / (2.0 * k * (2.0 * k + 1));
    return x - sum * x;
}
double SmallCosine(double x) {
    constexpr int kTerms = 10;
    double sum = 0;
    for (int k = kTerms; k >= 1; --k) sum = (1 - sum) * x * x / (2.0 * k * (2.0 * k - 1));
    return 1 - sum;
}

// cos and sin of 2 pi k/n, k from 0 to n - 1, by the octant in which the angle lies; eighths of a turn are exact.
std::pair<double, double> CosineAndSine(int k, int n) {
    const int eighths = static_cast<int>(8L * k / n);
    // From the nearer multiple of a quarter turn, as a fraction of a quarter turn: 0 to 1/2.
    const long rest = 4L * k - (eighths + 1L) / 2 * n;
    const double angle = std::abs(static_cast<double>(rest)) / n * (std::numbers::pi / 2);
    const double s = rest < 0 ? -SmallSine(angle) : SmallSine(angle), c = SmallCosine(angle);
    switch ((eighths + 1) / 2 % 4) {
        case 0:
            return {c, s};
        case 1:
            return {-s, c};
        case 2:
            return {-c, -s};
        default:
            return {s, -c};
    }
}

// Two lanes at a time; every lane is worked alike.
typedef double Vector __attribute__((vector_size(16), aligned(alignof(double)), may_alias));
constexpr int kStep = sizeof(Vector) / sizeof(double);
struct Complex {
    Vector Re, Im;
};
inline Complex operator+(Complex a, Complex b) {
    return {a.Re + b.Re, a.Im + b.Im};
}
inline Complex operator-(Complex a, Complex b) {
    return {a.Re - b.Re, a.Im - b.Im};
}
inline Complex operator*(double factor, Complex a) {
    return {factor * a.Re, factor * a.Im};
}
inline Complex TimesMinusI(Complex a) {
    return {a.Im, -a.Re};
}
inline Complex Times(Complex a, double re, double im) {
    return {a.Re * re - a.Im * im, a.Re * im + a.Im * re};
}

// The transform of Radix values, in place.
template <int Radix>
inline void Small(Complex (&x)[Radix]) {
    if constexpr (Radix == 2) {
        const auto a = x[0], b = x[1];
        x[0] = a + b;
        x[1] = a - b;
    } else if constexpr (Radix == 3) {
        constexpr double kSine = 0.86602540378443864676;  // of 120 degrees
        const auto sum = x[1] + x[2], turned = TimesMinusI(kSine * (x[1] - x[2]));
        const auto middle = x[0] - 0.5 * sum;
        x[0] = x[0] + sum;
        x[1] = middle + turned;
        x[2] = middle - turned;
    } else if constexpr (Radix == 4) {
        const auto a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = TimesMinusI(x[1] - x[3]);
        x[0] = a + c;
        x[1] = b + d;
        x[2] = a - c;
        x[3] = b - d;
    } else {
        constexpr double kCos1 = 0.30901699437494742410, kCos2 = -0.80901699437494742410;  // of 72 and 144 degrees
        constexpr double kSin1 = 0.95105651629515357212, kSin2 = 0.58778525229247312917;
        const auto a = x[1] + x[4], b = x[2] + x[3], c = x[1] - x[4], d = x[2] - x[3];
        const auto e = x[0] + kCos1 * a + kCos2 * b, f = x[0] + kCos2 * a + kCos1 * b;
        const auto g = TimesMinusI(kSin1 * c + kSin2 * d), h = TimesMinusI(kSin2 * c - kSin1 * d);
        x[0] = x[0] + a + b;
        x[1] = e + g;
        x[2] = f + h;
        x[3] = f - h;
        x[4] = e - g;
    }
}

struct Planes {
    double *Re, *Im;
};

// One stage: groups of `stride` transforms that are worked alike.
template <int Radix, typename Root>
void Stage(int length, int stride, const Root* roots, Planes from, Planes to) {
    const std::ptrdiff_t groups = length / (Radix * stride);
    const std::ptrdiff_t width = static_cast<std::ptrdiff_t>(stride) * FourierTransform::kLanes;
    for (std::ptrdiff_t p = 0; p < groups; ++p) {
        Root w[Radix];
        for (int j = 0; j < Radix; ++j) w[j] = roots[j * p * stride];
        const double *xRe = from.Re + p * width, *xIm = from.Im + p * width;
        double *yRe = to.Re + Radix * p * width, *yIm = to.Im + Radix * p * width;
        for (std::ptrdiff_t i = 0; i < width; i += kStep) {
            Complex x[Radix];
#pragma GCC unroll 8
            for (int k = 0; k < Radix; ++k)
                x[k] = {*reinterpret_cast<const Vector*>(xRe + k * groups * width + i),
                        *reinterpret_cast<const Vector*>(xIm + k * groups * width + i)};
            Small<Radix>(x);
#pragma GCC unroll 8
            for (int j = 0; j < Radix; ++j) {
                const auto y = j == 0 ? x[0] : Times(x[j], w[j].Re, w[j].Im);
                *reinterpret_cast<Vector*>(yRe + j * width + i) = y.Re;
                *reinterpret_cast<Vector*>(yIm + j * width + i) = y.Im;
            }
        }
    }
}

}  // namespace

int FourierTransform::LengthFrom(int least) {
    int length = std::max(least, 1);
    while (Factors(length).back() != 1) ++length;
    return length;
}

FourierTransform::FourierTransform(int length) : length_(length) {
    if (length < 1) Fail(FailureKind::InvalidArgument);
    radices_ = Factors(length);
    if (radices_.back() != 1) Fail(FailureKind::InvalidArgument);
    radices_.pop_back();
    for (int k = 0; k < length; ++k) {
        const auto [c, s] = CosineAndSine(k, length);
        roots_.push_back({c, -s});
    }
}

void FourierTransform::Forward(double* re, double* im, double* work) const {
    const Planes given{re, im}, other{work, work + static_cast<std::size_t>(length_) * kLanes};
    Planes from = given, to = other;
    int stride = 1;
    for (const int radix : radices_) {
        switch (radix) {
            case 2:
                Stage<2>(length_, stride, roots_.data(), from, to);
                break;
            case 3:
                Stage<3>(length_, stride, roots_.data(), from, to);
                break;
            case 4:
                Stage<4>(length_, stride, roots_.data(), from, to);
                break;
            default:
                Stage<5>(length_, stride, roots_.data(), from, to);
                break;
        }
        std::swap(from, to);
        stride *= radix;
    }
    if (from.Re == given.Re) return;
    const auto count = static_cast<std::size_t>(length_) * kLanes;
    std::copy_n(from.Re, count, re);
    std::copy_n(from.Im, count, im);
}

}  // namespace lithmark
