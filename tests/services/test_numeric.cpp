#include <gtest/gtest.h>

#include <Eigen/LU>
#include <algorithm>
#include <cstring>
#include <random>

#include "services/numerics/DenseInverse.h"
#include "services/numerics/MeshLib.h"
#include "services/numerics/NumericLib.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

using lithmark::tests::KindOf;

using Real = Single::Storage;
using WideMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

constexpr double kEpsilon = std::numeric_limits<Real>::epsilon();

// Settlements of a grid of nodes half a metre apart under unit loads on a layer of 5 m, as a raft has them.
Matrix<Single> Flexibility(int n) {
    const int width = static_cast<int>(std::ceil(std::sqrt(n)));
    Matrix<Single> f(n, n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const double d = 0.5 * std::hypot(i % width - j % width, i / width - j / width);
            f(i + 1, j + 1) = (i == j ? 8.96 : 1 / d) - 1 / std::hypot(d, 5);
        }
    }
    return f;
}

// Elements evenly spread over -1..1: elimination has to exchange rows all the time.
Matrix<Single> Scattered(int n, unsigned seed) {
    std::mt19937 random(seed);
    Matrix<Single> m(n, n);
    for (Single& item : m.Items()) item = random() / 2147483648.0 - 1;
    return m;
}

WideMatrix Wide(const Matrix<Single>& m) {
    WideMatrix wide(m.UpperRow(), m.UpperCol());
    for (int i = 1; i <= m.UpperRow(); ++i)
        for (int j = 1; j <= m.UpperCol(); ++j) wide(i - 1, j - 1) = m(i, j);
    return wide;
}

std::vector<Real> Stored(const Matrix<Single>& m) {
    std::vector<Real> items;
    for (const Single item : m.Items()) items.push_back(item.Stored());
    return items;
}

double GreatestError(const Matrix<Single>& inverse, const WideMatrix& exact) {
    return (Wide(inverse) - exact).cwiseAbs().maxCoeff() / exact.cwiseAbs().maxCoeff();
}

// The elimination once more, one element at a time and without blocks in memory: what defines every digit of Invert.
void EliminateColumns(std::vector<Real>& a, int n, int first, int last, int inFirst, int inLast,
                      std::vector<int>& swaps) {
    const auto at = [&](int i, int j) -> Real& { return a[static_cast<std::size_t>(i) * n + j]; };
    if (last - first == 1) {
        int best = first;
        for (int i = first + 1; i < n; ++i)
            if (std::abs(at(i, first)) > std::abs(at(best, first))) best = i;
        swaps[first] = best;
        if (best != first)
            for (int j = inFirst; j < inLast; ++j) std::swap(at(first, j), at(best, j));
        const Real pivot = at(first, first);
        at(first, first) = 1;
        for (int i = 0; i < n; ++i) {
            if (i == first) continue;
            const Real factor = at(i, first) / pivot;
            at(i, first) = 0;
            for (int j = inFirst; j < inLast; ++j) at(i, j) -= factor * at(first, j);
        }
        for (int j = inFirst; j < inLast; ++j) at(first, j) /= pivot;
        return;
    }
    const int width = last - first > 96 ? 96 : last - first > 16 ? 16 : 1;
    for (int c = first; c < last; c += width) {
        const int end = std::min(c + width, last);
        // Single columns work on their block of up to 16, wider blocks on themselves.
        if (width == 1) {
            EliminateColumns(a, n, c, end, first, last, swaps);
            continue;
        }
        EliminateColumns(a, n, c, end, c, end, swaps);
        for (int k = c; k < end; ++k)
            for (int j = inFirst; j < inLast; ++j)
                if (j < c || j >= end) std::swap(at(k, j), at(swaps[k], j));
        for (int j = inFirst; j < inLast; ++j) {
            if (j >= c && j < end) continue;
            std::vector<Real> pivots;
            for (int k = c; k < end; ++k) {
                pivots.push_back(at(k, j));
                at(k, j) = 0;
            }
            for (int i = 0; i < n; ++i) {
                Real sum = 0;
                for (int k = c; k < end; ++k) sum += at(i, k) * pivots[k - c];
                at(i, j) += sum;
            }
        }
    }
}

std::vector<Real> PlainInverse(std::vector<Real> a, int n) {
    std::vector<int> swaps(n);
    EliminateColumns(a, n, 0, n, 0, n, swaps);
    for (int i = 0; i < n; ++i)
        for (int k = n - 1; k >= 0; --k)
            std::swap(a[static_cast<std::size_t>(i) * n + k], a[static_cast<std::size_t>(i) * n + swaps[k]]);
    return a;
}

TEST(Invert, AgreesWithAnInverseIn64Bits) {
    for (const int n : {1, 2, 3, 15, 16, 17, 47, 48, 95, 96, 97, 121, 200, 441}) {
        SCOPED_TRACE(n);
        const Matrix<Single> f = Flexibility(n);
        Matrix<Single> inverse;
        NumericLib::Invert(n, f, inverse);
        EXPECT_LT(GreatestError(inverse, Wide(f).inverse()), 8 * kEpsilon);
    }
}

TEST(Invert, ExchangesRows) {
    // Published example: the exchange matrix is its own inverse.
    Matrix<Single> exchange(3, 3), inverse;
    exchange(1, 3) = exchange(2, 2) = exchange(3, 1) = 1;
    NumericLib::Invert(3, exchange, inverse);
    EXPECT_EQ(Stored(inverse), Stored(exchange));

    for (const int n : {40, 130, 300}) {
        SCOPED_TRACE(n);
        const Matrix<Single> m = Scattered(n, 7);
        const WideMatrix exact = Wide(m).inverse();
        NumericLib::Invert(n, m, inverse);
        const double condition = Wide(m).norm() * exact.norm();
        EXPECT_LT(GreatestError(inverse, exact), condition * kEpsilon);
    }
}

TEST(Invert, GivesTheSameDigitsOnEveryMachineAndWithAnyNumberOfThreads) {
    for (const int n : {1, 5, 16, 17, 50, 96, 97, 150, 193, 250}) {
        for (const Matrix<Single>& m : {Flexibility(n), Scattered(n, 3)}) {
            const std::vector<Real> expected = PlainInverse(Stored(m), n);
            for (int level = 0; level <= static_cast<int>(detail::WidestSimdLevel()); ++level) {
                for (const int threads : {1, 2, 5}) {
                    std::vector<Real> items = Stored(m);
                    detail::InvertInPlace(n, items.data(), static_cast<detail::SimdLevel>(level), threads);
                    EXPECT_EQ(std::memcmp(items.data(), expected.data(), items.size() * sizeof(Real)), 0)
                        << n << ", level " << level << ", threads " << threads;
                }
            }
        }
    }
}

TEST(Invert, FailsOnASingularMatrix) {
    Matrix<Single> inverse;
    Matrix<Single> zeros(2, 2);
    EXPECT_EQ(KindOf([&] { NumericLib::Invert(2, zeros, inverse); }), FailureKind::SingularMatrix);

    // Two equal rows vanish exactly, wherever they stand.
    Matrix<Single> twins = Scattered(150, 5);
    for (int j = 1; j <= 150; ++j) twins(140, j) = twins(20, j);
    EXPECT_EQ(KindOf([&] { NumericLib::Invert(150, twins, inverse); }), FailureKind::SingularMatrix);

    // An inverse that no stored width can hold.
    Matrix<Single> tiny(1, 1);
    tiny(1, 1) = std::numeric_limits<Real>::denorm_min();
    EXPECT_EQ(KindOf([&] { NumericLib::Invert(1, tiny, inverse); }), FailureKind::SingularMatrix);
}

// The longest stretch without a word is a block of columns, however many threads work.
TEST(Invert, TellsHowFarItIs) {
    const Matrix<Single> m = Flexibility(960);
    for (const int threads : {1, 2}) {
        std::vector<Real> items = Stored(m);
        std::vector<double> told = {0};
        detail::InvertInPlace(960, items.data(), detail::WidestSimdLevel(), threads,
                              [&](double part) { told.push_back(part); });
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
        EXPECT_EQ(told.back(), 1);
        for (std::size_t i = 1; i < told.size(); ++i) EXPECT_LE(told[i] - told[i - 1], 96.0 / 960);
        if (threads == 1) {
            EXPECT_GT(told.size(), 100u);
        }
    }
    Matrix<Single> inverse;
    int calls = 0;
    NumericLib::Invert(300, Flexibility(300), inverse, [&](double) { ++calls; });
    EXPECT_GT(calls, 0);
}

// What the listener throws ends the work, wherever it is, and no thread goes on behind it.
TEST(Invert, EndsWhenItsListenerWantsItTo) {
    struct Enough {};
    const Matrix<Single> m = Flexibility(960);
    for (const double end : {0.0, 0.3, 0.9, 0.99, 1.0}) {
        std::vector<Real> items = Stored(m);
        int later = 0;
        EXPECT_THROW(detail::InvertInPlace(960, items.data(), detail::WidestSimdLevel(), 3,
                                           [&](double part) {
                                               if (part < end) return;
                                               ++later;
                                               throw Enough();
                                           }),
                     Enough);
        EXPECT_EQ(later, 1);
    }
}

TEST(MatVec, TellsHowFarItIs) {
    Matrix<Single> m(600, 600);
    Array<Single> x(1, 600), y;
    std::vector<double> told;
    NumericLib::MatVec(600, m, x, y, [&](double part) { told.push_back(part); });
    EXPECT_FALSE(told.empty());
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
}

TEST(Invert, TakesTheLeadingPartAndWorksInPlace) {
    const Matrix<Single> whole = Flexibility(30);
    Matrix<Single> leading(20, 20), expected, inverse;
    for (int i = 1; i <= 20; ++i)
        for (int j = 1; j <= 20; ++j) leading(i, j) = whole(i, j);
    NumericLib::Invert(20, leading, expected);
    NumericLib::Invert(20, whole, inverse);
    EXPECT_EQ(Stored(inverse), Stored(expected));

    Matrix<Single> same = leading;
    NumericLib::Invert(20, same, same);
    EXPECT_EQ(Stored(same), Stored(expected));
    same = whole;
    NumericLib::Invert(20, same, same);
    EXPECT_EQ(Stored(same), Stored(expected));

    EXPECT_EQ(KindOf([&] { NumericLib::Invert(31, whole, inverse); }), FailureKind::SubscriptRange);
    EXPECT_EQ(KindOf([&] { NumericLib::Invert(0, whole, inverse); }), FailureKind::InvalidArgument);
}

TEST(MatVec, SumsIn64BitsAndRoundsOnce) {
    // 2^24 + 1 - 2^24 is 0 in 32 bits, and 1 in 64 bits.
    Matrix<Single> m(3, 3);
    m(1, 1) = 16777216, m(1, 2) = 1, m(1, 3) = -16777216;
    m(2, 2) = 0.5, m(3, 3) = 3;
    Array<Single> x = Array<Single>::Of({1, 1, 1}), y;
    NumericLib::MatVec(3, m, x, y);
    EXPECT_EQ(y(1), 1.0);
    EXPECT_EQ(y(2), 0.5);
    EXPECT_EQ(y(3), 3.0);
    NumericLib::MatVec(3, m, x, x);
    EXPECT_EQ(x(1), 1.0);
    EXPECT_EQ(x(3), 3.0);
    EXPECT_EQ(KindOf([&] { NumericLib::MatVec(4, m, x, y); }), FailureKind::SubscriptRange);
}

TEST(MatVec, AgreesWithAPlainSumForEveryRestOfEight) {
    for (int n = 1; n <= 19; ++n) {
        const Matrix<Single> m = Scattered(n, 11);
        Array<Single> x(1, n), y;
        for (int i = 1; i <= n; ++i) x(i) = 1.0 / i;
        NumericLib::MatVec(n, m, x, y);
        for (int i = 1; i <= n; ++i) {
            double sum = 0;
            for (int j = 1; j <= n; ++j) sum += m(i, j) * x(j);
            EXPECT_NEAR(y(i), sum, kEpsilon * n) << n;
        }
    }
}

TEST(MatMul, MultipliesRowsByColumns) {
    // By hand: [1 2 3; 4 5 6] [7 8; 9 10; 11 12].
    Matrix<Single> a(2, 3), b(3, 2), product;
    for (int k = 0; k < 6; ++k) {
        a.Items()[k] = k + 1;
        b.Items()[k] = k + 7;
    }
    NumericLib::MatMul(2, 3, 2, a, b, product);
    EXPECT_EQ(Stored(product), (std::vector<Real>{58, 64, 139, 154}));
    EXPECT_EQ(KindOf([&] { NumericLib::MatMul(3, 3, 2, a, b, product); }), FailureKind::SubscriptRange);
}

TEST(VectorsConverged, ComparesTheGreatestDifferenceAndKeepsTheNewVector) {
    const Array<Single> current = Array<Single>::Of({1, 2, 3.5});
    Array<Single> previous = Array<Single>::Of({1, 2.25, 3.25});
    EXPECT_FALSE(NumericLib::VectorsConverged(3, current, previous, 0.2));
    EXPECT_EQ(previous(2), 2.0);
    EXPECT_EQ(previous(3), 3.5);
    previous(1) = 1.25;
    EXPECT_TRUE(NumericLib::VectorsConverged(3, current, previous, 0.25));  // exactly the tolerance
    previous(3) = 100;
    EXPECT_TRUE(NumericLib::VectorsConverged(2, current, previous, 0.25));  // element 3 takes no part
    EXPECT_EQ(previous(3), 100.0);
}

TEST(FitLine, PassesThroughTwoPoints) {
    Single intercept, slope;
    NumericLib::FitLine(2, Array<Single>::Of({0, 4}), Array<Single>::Of({1.5, 3.5}), intercept, slope);
    EXPECT_EQ(intercept, 1.5);
    EXPECT_EQ(slope, 0.5);
}

TEST(FitLine, LeavesTheLeastSquares) {
    // By hand: x 1 2 3 4, y 6 5 7 10: slope 7/5, intercept 7/2.
    Single intercept, slope;
    NumericLib::FitLine(4, Array<Single>::Of({1, 2, 3, 4}), Array<Single>::Of({6, 5, 7, 10}), intercept, slope);
    EXPECT_NEAR(slope, 1.4, 1e-7);
    EXPECT_NEAR(intercept, 3.5, 3e-7);
}

TEST(FitLine, FailsWithoutTwoDifferentAbscissae) {
    Single intercept, slope;
    const Array<Single> x = Array<Single>::Of({2, 2}), y = Array<Single>::Of({1, 5});
    EXPECT_EQ(KindOf([&] { NumericLib::FitLine(2, x, y, intercept, slope); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([&] { NumericLib::FitLine(0, x, y, intercept, slope); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([&] { NumericLib::FitLine(3, x, y, intercept, slope); }), FailureKind::SubscriptRange);
}

TEST(GaussPoints, IntegratePolynomialsUpToTheirDegree) {
    for (int n = 1; n <= 4; ++n) {
        Matrix<Single> points;
        NumericLib::GaussPoints(points, n);
        for (int degree = 0; degree < 2 * n; ++degree) {
            double sum = 0;
            for (int i = 1; i <= n; ++i) sum += points(i, 2) * std::pow(points(i, 1), degree);
            EXPECT_NEAR(sum, degree % 2 == 0 ? 2.0 / (degree + 1) : 0, 4 * kEpsilon) << n << ", degree " << degree;
        }
    }
    Matrix<Single> points;
    EXPECT_EQ(KindOf([&] { NumericLib::GaussPoints(points, 0); }), FailureKind::InvalidArgument);
    EXPECT_EQ(KindOf([&] { NumericLib::GaussPoints(points, 5); }), FailureKind::InvalidArgument);
}

TEST(GaussPoints, OfOrderFourAreThePublishedOnes) {
    // Abramowitz and Stegun, table 25.4.
    Matrix<Single> points;
    NumericLib::GaussPoints(points, 4);
    const double abscissae[] = {-0.861136311594053, -0.339981043584856, 0.339981043584856, 0.861136311594053};
    const double weights[] = {0.347854845137454, 0.652145154862546, 0.652145154862546, 0.347854845137454};
    for (int i = 1; i <= 4; ++i) {
        EXPECT_NEAR(points(i, 1), abscissae[i - 1], kEpsilon + 1e-15);
        EXPECT_NEAR(points(i, 2), weights[i - 1], kEpsilon + 1e-15);
    }
}

TEST(ShapeFunctions, MapARectangleOntoItself) {
    Matrix<Single> points, corners, dN, jacobian;
    Array<Single> n;
    NumericLib::GaussPoints(points, 4);
    NumericLib::QuadCorners(2, 5, -1, 3, corners);
    for (int i = 1; i <= 4; ++i) {
        for (int j = 1; j <= 4; ++j) {
            NumericLib::ShapeFunctions(dN, n, points, i, j);
            double x = 0, y = 0, sum = 0;
            for (int k = 1; k <= 4; ++k) {
                x += n(k) * corners(k, 1);
                y += n(k) * corners(k, 2);
                sum += n(k);
            }
            EXPECT_NEAR(sum, 1, 4 * kEpsilon);
            EXPECT_NEAR(x, 3.5 + 1.5 * points(i, 1), 16 * kEpsilon);
            EXPECT_NEAR(y, 1 + 2 * points(j, 1), 16 * kEpsilon);
            NumericLib::MatMul(2, 4, 2, dN, corners, jacobian);
            // Half the sides on the diagonal; the determinant is positive.
            EXPECT_NEAR(jacobian(1, 1), 1.5, 16 * kEpsilon);
            EXPECT_NEAR(jacobian(2, 2), 2, 16 * kEpsilon);
            EXPECT_NEAR(jacobian(1, 2), 0, 16 * kEpsilon);
            EXPECT_NEAR(jacobian(2, 1), 0, 16 * kEpsilon);
        }
    }
}

TEST(BuildEdges, NumbersEdgesInTheOrderOfFirstAppearance) {
    // A quadrangle, a second one beside it, a triangle on top:  7
    //                                                          4 5 6
    //                                                          1 2 3
    std::vector<MeshLib::ElementRecord> records = {
        {4, {0, 2, 1, 4, 5}, {}}, {4, {0, 3, 2, 5, 6}, {}}, {3, {0, 5, 4, 7}, {}}};
    const MeshLib::MeshValues values = MeshLib::BuildEdges(records);
    EXPECT_EQ(records[0].Edge, (std::array<long, 5>{0, 1, 2, 3, 4}));
    EXPECT_EQ(records[1].Edge, (std::array<long, 5>{0, 5, 4, 6, 7}));
    EXPECT_EQ(records[2].Edge, (std::array<long, 5>{0, 3, 8, 9, 0}));
    EXPECT_EQ(values.EdgeCount, 9);
    EXPECT_EQ(values.OffsetX, 0.0);
    EXPECT_EQ(values.OffsetY, 0.0);
    EXPECT_EQ(values.Turn, 0.0);
}

TEST(BuildEdges, HoldsEulersFormulaOnALargeGrid) {
    // 100 by 100 quadrangles: nodes - edges + elements = 1.
    std::vector<MeshLib::ElementRecord> records;
    for (int j = 0; j < 100; ++j) {
        for (int i = 1; i <= 100; ++i) {
            const int node = j * 101 + i;
            records.push_back({4, {0, node + 1, node, node + 101, node + 102}, {}});
        }
    }
    EXPECT_EQ(MeshLib::BuildEdges(records).EdgeCount, 101 * 101 + 10000 - 1);
}

TEST(BuildEdges, RefusesACornerCountThatTheRecordCannotHold) {
    std::vector<MeshLib::ElementRecord> records = {{5, {}, {}}};
    EXPECT_EQ(KindOf([&] { MeshLib::BuildEdges(records); }), FailureKind::SubscriptRange);
    records.clear();
    EXPECT_EQ(MeshLib::BuildEdges(records).EdgeCount, 0);
}

}  // namespace
}  // namespace lithmark::tests
