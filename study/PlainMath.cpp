#include "study/PlainMath.h"

#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace lithmark {

namespace {

// ln 2 in two parts; the first ends in zero bits, so that whole multiples of it are exact.
constexpr double kLn2High = 6.93147180369123816490e-01, kLn2Low = 1.90821492927058770002e-10;
constexpr double kSqrtHalf = 0.70710678118654752440;

// c0 + c1 x + c2 x^2 + ...
double Polynomial(std::span<const double> coefficients, double x) {
    double sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) sum = sum * x + coefficients[i];
    return sum;
}

// Wichura's coefficients: |p - 1/2| <= 0.425; then by r = sqrt(-ln p), r <= 5 and above.
constexpr std::array kMiddleTop = {3.3871328727963666080e0,  1.3314166789178437745e+2, 1.9715909503065514427e+3,
                                   1.3731693765509461125e+4, 4.5921953931549871457e+4, 6.7265770927008700853e+4,
                                   3.3430575583588128105e+4, 2.5090809287301226727e+3};
constexpr std::array kMiddleBottom = {1.0,
                                      4.2313330701600911252e+1,
                                      6.8718700749205790830e+2,
                                      5.3941960214247511077e+3,
                                      2.1213794301586595867e+4,
                                      3.9307895800092710610e+4,
                                      2.8729085735721942674e+4,
                                      5.2264952788528545610e+3};
constexpr std::array kNearTop = {1.42343711074968357734e0,  4.63033784615654529590e0, 5.76949722146069140550e0,
                                 3.64784832476320460504e0,  1.27045825245236838258e0, 2.41780725177450611770e-1,
                                 2.27238449892691845833e-2, 7.74545014278341407640e-4};
constexpr std::array kNearBottom = {1.0,
                                    2.05319162663775882187e0,
                                    1.67638483018380384940e0,
                                    6.89767334985100004550e-1,
                                    1.48103976427480074590e-1,
                                    1.51986665636164571966e-2,
                                    5.47593808499534494600e-4,
                                    1.05075007164441684324e-9};
constexpr std::array kFarTop = {6.65790464350110377720e0,  5.46378491116411436990e0,  1.78482653991729133580e0,
                                2.96560571828504891230e-1, 2.65321895265761230930e-2, 1.24266094738807843860e-3,
                                2.71155556874348757815e-5, 2.01033439929228813265e-7};
constexpr std::array kFarBottom = {1.0,
                                   5.99832206555887937690e-1,
                                   1.36929880922735805310e-1,
                                   1.48753612908506148525e-2,
                                   7.86869131145613259100e-4,
                                   1.84631831751005468180e-5,
                                   1.42151175831644588870e-7,
                                   2.04426310338993978564e-15};

// Cody's coefficients: erf up to 0.46875; erfc up to 4 and above.
constexpr std::array kErfTop = {3.20937758913846947e03, 3.77485237685302021e02, 1.13864154151050156e02,
                                3.16112374387056560e00, 1.85777706184603153e-1};
constexpr std::array kErfBottom = {2.84423683343917062e03, 1.28261652607737228e03, 2.44024637934444173e02,
                                   2.36012909523441209e01, 1.0};
constexpr std::array kErfcTop = {1.23033935479799725e03, 2.05107837782607147e03, 1.71204761263407058e03,
                                 8.81952221241769090e02, 2.98635138197400131e02, 6.61191906371416295e01,
                                 8.88314979438837594e00, 5.64188496988670089e-1, 2.15311535474403846e-8};
constexpr std::array kErfcBottom = {1.23033935480374942e03, 3.43936767414372164e03, 4.36261909014324716e03,
                                    3.29079923573345963e03, 1.62138957456669019e03, 5.37181101862009858e02,
                                    1.17693950891312499e02, 1.57449261107098347e01, 1.0};
constexpr std::array kErfcFarTop = {6.58749161529837803e-4, 1.60837851487422766e-2, 1.25781726111229246e-1,
                                    3.60344899949804439e-1, 3.05326634961232344e-1, 1.63153871373020978e-2};
constexpr std::array kErfcFarBottom = {2.33520497626869185e-3, 6.05183413124413191e-2, 5.27905102951428412e-1,
                                       1.87295284992346047e00, 2.56852019228982242e00, 1.0};
constexpr double kOneBySqrtPi = 5.6418958354775628695e-1;

// erfc of y >= 0.
double UpperErrorFunction(double y) {
    if (y <= 0.46875) {
        const double y2 = y * y;
        return 1 - y * Polynomial(kErfTop, y2) / Polynomial(kErfBottom, y2);
    }
    double ratio = 0;
    if (y <= 4) {
        ratio = Polynomial(kErfcTop, y) / Polynomial(kErfcBottom, y);
    } else {
        const double r = 1 / (y * y);
        ratio = (kOneBySqrtPi - r * Polynomial(kErfcFarTop, r) / Polynomial(kErfcFarBottom, r)) / y;
    }
    // y^2 in two parts, the first exact, so that the exponential function keeps its digits.
    const double coarse = std::floor(y * 16) / 16, rest = (y - coarse) * (y + coarse);
    return PlainExp(-coarse * coarse) * PlainExp(-rest) * ratio;
}

}  // namespace

double PlainLog(double x) {
    int exponent = 0;
    double m = std::frexp(x, &exponent);  // 0.5 <= m < 1
    if (m < kSqrtHalf) {
        m *= 2;
        --exponent;
    }
    // ln m = 2 artanh s, |s| < 0.172: f - f^2/2 + s (f^2/2 + R) keeps the digits of f = m - 1.
    const double f = m - 1, s = f / (2 + f), s2 = s * s;
    double series = 0;
    for (int k = 23; k >= 3; k -= 2) series = (series + 2.0 / k) * s2;
    const double half = f * f / 2;
    return exponent * kLn2High + ((s * (half + series) + exponent * kLn2Low) - half + f);
}

double PlainExp(double x) {
    if (x < -745.2) return 0;
    if (x > 709.8) return std::numeric_limits<double>::infinity();
    const double k = std::floor(x / (kLn2High + kLn2Low) + 0.5);
    const double high = x - k * kLn2High, low = k * kLn2Low, r = high - low;  // |r| <= 0.347
    double tail = 0;                                                          // (e^r - 1 - r) / r
    for (int n = 15; n >= 2; --n) tail = (tail + 1) * r / n;
    const double value = 1 + (high - (low - r * tail));
    return std::ldexp(value, static_cast<int>(k));
}

double NormalQuantile(double p) {
    if (p > 0.5) return UpperNormalQuantile(1 - p);
    const double q = p - 0.5;
    if (q >= -0.425) {
        const double r = 0.180625 - q * q;
        return q * Polynomial(kMiddleTop, r) / Polynomial(kMiddleBottom, r);
    }
    const double r = std::sqrt(-PlainLog(p));
    return r <= 5 ? -Polynomial(kNearTop, r - 1.6) / Polynomial(kNearBottom, r - 1.6)
                  : -Polynomial(kFarTop, r - 5) / Polynomial(kFarBottom, r - 5);
}

double UpperNormalQuantile(double p) {
    return p > 0.5 ? NormalQuantile(1 - p) : -NormalQuantile(p);
}

double NormalBelow(double z) {
    const double y = std::abs(z) * kSqrtHalf, tail = UpperErrorFunction(y) / 2;
    return z <= 0 ? tail : 1 - tail;
}

double NormalAbove(double z) {
    return NormalBelow(-z);
}

}  // namespace lithmark
