#include "services/numerics/NumericLib.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "services/numerics/DenseInverse.h"

namespace lithmark::NumericLib {

namespace {

// The leading rows by cols part of a matrix is read; fails unless it is there.
void Require(const Matrix<Single>& m, int rows, int cols) {
    (void)m(m.LowerRow() + rows - 1, m.LowerCol() + cols - 1);
}

void Require(const Array<Single>& v, int n) {
    (void)v(v.Lower() + n - 1);
}

}  // namespace

void Invert(int n, const Matrix<Single>& m, Matrix<Single>& inverse, const Progress& progress) {
    static_assert(sizeof(Single) == sizeof(Single::Storage));
    if (n < 1) Fail(FailureKind::InvalidArgument);
    Require(m, n, n);
    if (&m == &inverse && (m.UpperRow() - m.LowerRow() + 1 != n || m.UpperCol() - m.LowerCol() + 1 != n)) {
        const Matrix<Single> leading = std::move(inverse);
        return Invert(n, leading, inverse, progress);
    }
    if (&m != &inverse) {
        inverse.Redim(1, n, 1, n);
        for (int i = 0; i < n; ++i) {
            const auto row = m.Row(m.LowerRow() + i).first(static_cast<std::size_t>(n));
            std::copy(row.begin(), row.end(), inverse.Row(i + 1).begin());
        }
    }
    auto* items = reinterpret_cast<Single::Storage*>(inverse.Items().data());
    detail::InvertInPlace(n, items, detail::WidestSimdLevel(), detail::UsefulThreads(n), progress);
}

void MatVec(int n, const Matrix<Single>& m, const Array<Single>& x, Array<Single>& y, const Progress& progress) {
    if (n < 1) Fail(FailureKind::InvalidArgument);
    constexpr std::size_t lanes = 8;
    const auto size = static_cast<std::size_t>(n);
    Require(m, n, n);
    Require(x, n);
    const std::vector<double> wide(x.begin(), x.begin() + n);
    y.Redim(1, n);
    for (int i = 1; i <= n; ++i) {
        const auto row = m.Row(m.LowerRow() + i - 1).first(size);
        double sum[lanes] = {};
        std::size_t j = 0;
        for (; j + lanes <= size; j += lanes)
            for (std::size_t k = 0; k < lanes; ++k) sum[k] += row[j + k] * wide[j + k];
        for (std::size_t k = 0; j + k < size; ++k) sum[k] += row[j + k] * wide[j + k];
        y(i) = ((sum[0] + sum[1]) + (sum[2] + sum[3])) + ((sum[4] + sum[5]) + (sum[6] + sum[7]));
        if (progress && i % 512 == 0) progress(static_cast<double>(i) / n);
    }
}

void MatMul(int rows, int inner, int cols, const Matrix<Single>& a, const Matrix<Single>& b, Matrix<Single>& product) {
    Require(a, rows, inner);
    Require(b, inner, cols);
    product.Redim(1, rows, 1, cols);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            double sum = 0;
            for (int k = 0; k < inner; ++k)
                sum += a(a.LowerRow() + i, a.LowerCol() + k) * b(b.LowerRow() + k, b.LowerCol() + j);
            product(i + 1, j + 1) = sum;
        }
    }
}

bool VectorsConverged(int n, const Array<Single>& current, Array<Single>& previous, double tolerance) {
    double greatest = 0;
    for (int i = 1; i <= n; ++i) {
        greatest = std::max(greatest, std::abs(current(i) - previous(i)));
        previous(i) = current(i);
    }
    return greatest <= tolerance;
}

void FitLine(int n, const Array<Single>& x, const Array<Single>& y, Single& intercept, Single& slope) {
    double xMean = 0, yMean = 0;
    for (int i = 1; i <= n; ++i) {
        xMean += Quotient(x(i), n);
        yMean += Quotient(y(i), n);
    }
    double xx = 0, xy = 0;
    for (int i = 1; i <= n; ++i) {
        xx += Square(x(i) - xMean);
        xy += (x(i) - xMean) * (y(i) - yMean);
    }
    const double rise = Quotient(xy, xx);
    slope = rise;
    intercept = yMean - rise * xMean;
}

void QuadCorners(double x1, double x2, double y1, double y2, Matrix<Single>& corners) {
    const double xs[] = {x1, x2, x2, x1};
    const double ys[] = {y1, y1, y2, y2};
    corners.Redim(1, 4, 1, 2);
    for (int k = 1; k <= 4; ++k) {
        corners(k, 1) = xs[k - 1];
        corners(k, 2) = ys[k - 1];
    }
}

void GaussPoints(Matrix<Single>& points, int n) {
    if (n < 1 || n > 4) Fail(FailureKind::InvalidArgument);
    points.Redim(1, n, 1, 2);
    const auto set = [&points](int i, double abscissa, double weight) {
        points(i, 1) = abscissa;
        points(i, 2) = weight;
    };
    switch (n) {
        case 1:
            set(1, 0, 2);
            break;
        case 2:
            set(1, -std::sqrt(1.0 / 3), 1);
            set(2, std::sqrt(1.0 / 3), 1);
            break;
        case 3:
            set(1, -std::sqrt(0.6), 5.0 / 9);
            set(2, 0, 8.0 / 9);
            set(3, std::sqrt(0.6), 5.0 / 9);
            break;
        default: {
            // Roots of 35 x^4 - 30 x^2 + 3 and their weights.
            const double inner = std::sqrt((3 - std::sqrt(4.8)) / 7), outer = std::sqrt((3 + std::sqrt(4.8)) / 7);
            const double heavy = 0.5 + std::sqrt(30.0) / 36, light = 0.5 - std::sqrt(30.0) / 36;
            set(1, -outer, light);
            set(2, -inner, heavy);
            set(3, inner, heavy);
            set(4, outer, light);
        }
    }
}

void ShapeFunctions(Matrix<Single>& dN, Array<Single>& n, const Matrix<Single>& points, int i, int j) {
    const double xi = points(i, 1), eta = points(j, 1);
    const double xiCorner[] = {-1, 1, 1, -1};
    const double etaCorner[] = {-1, -1, 1, 1};
    dN.Redim(1, 2, 1, 4);
    n.Redim(1, 4);
    for (int k = 1; k <= 4; ++k) {
        const double alongXi = 1 + xiCorner[k - 1] * xi, alongEta = 1 + etaCorner[k - 1] * eta;
        n(k) = alongXi * alongEta / 4;
        dN(1, k) = xiCorner[k - 1] * alongEta / 4;
        dN(2, k) = etaCorner[k - 1] * alongXi / 4;
    }
}

}  // namespace lithmark::NumericLib
